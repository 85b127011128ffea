// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/MainWindowMenus.h"

#include "app/AppIdentity.h"
#include "app/BuildSettings.h"
#include "app/DataDirectory.h"
#include "app/LogTags.h"
#include "app/SettingsKeys.h"
#include "app/TLogger.h"
#include "cloud/CloudService.h"
#include "cloud/RcloneProcess.h"
#include "mainwindow/MainWindow.h"
#include "mainwindow/TCloudFolderDialog.h"

#include <QAction>
#include <QActionGroup>
#include <QDesktopServices>
#include <QMenu>
#include <QMessageBox>
#include <QSettings>
#include <QUrl>

namespace {

const QString &kTag = LogTags::mainWindow;

// Menu order of the languages and the index each stores under "Language".
struct LanguageEntry
{
    const char *label;
    int index;
};
const LanguageEntry kLanguages[] = {
    {"English", 1},
    {"Deutsch", 5},
    {"Español", 6},
    {"Français", 2},
    {"Italiano", 4},
    {"Português", 3},
    {"\u65e5\u672c\u8a9e", 7},
};

} // namespace

MainWindowMenus::MainWindowMenus(MainWindow *window) : QObject(window), m_window(window)
{
    buildAddMenu();
    buildSystemMenu();
}

void MainWindowMenus::buildAddMenu()
{
    m_addMenu = new QMenu(m_window);
    m_addMenu->setObjectName(QStringLiteral("menu_add"));
    m_addMenu->setProperty("iconMenu", true);
    QAction *local = m_addMenu->addAction(
        QIcon(QStringLiteral(":/resource/local.png")), MainWindow::tr("Local Computer"));
    local->setObjectName(QStringLiteral("action_local"));
    connect(local, &QAction::triggered, m_window, &MainWindow::on_local_menu_add_clicked);
    m_addMenu->addSeparator();
    m_addMenu->setToolTipsVisible(true);
    QList<QAction *> cloudActions;
    for (const int type : {1, 7, 5, 2}) {
        const CloudService *service = CloudService::byType(type);
        QAction *action
            = m_addMenu->addAction(QIcon(TCloudFolderDialog::smallIcon(type)), service->name);
        action->setObjectName(QStringLiteral("action_cloud_%1").arg(type));
        action->setData(type);
        connect(action, &QAction::triggered, m_window, &MainWindow::on_cloud_menu_clicked);
        cloudActions << action;
    }
    // Without rclone the cloud entries say so where the user looks for them.
    connect(m_addMenu, &QMenu::aboutToShow, this, [cloudActions] {
        const QString missing = RcloneProcess::whyUnavailable();
        for (QAction *action : cloudActions) {
            const QString name = CloudService::byType(action->data().toInt())->name;
            action->setText(
                missing.isEmpty() ? name : MainWindow::tr("%1 (needs rclone)").arg(name));
            action->setToolTip(missing);
        }
    });
}

void MainWindowMenus::buildSystemMenu()
{
    m_systemMenu = new QMenu(m_window);
    m_systemMenu->setObjectName(QStringLiteral("menu_system"));
    auto add = [this](const QString &text, const QString &name) {
        QAction *action = m_systemMenu->addAction(text);
        action->setObjectName(name);
        return action;
    };
    // Entries that open a web page stay out of the menu when this build names none.
    const bool help = !QStringLiteral(VELTRINE_HELP_URL).isEmpty();
    const bool home = !QStringLiteral(VELTRINE_HOMEPAGE_URL).isEmpty();
    add(MainWindow::tr("User Guide"), QStringLiteral("action_userGuide"))->setVisible(help);
    add(MainWindow::tr("Product FAQ"), QStringLiteral("action_faq"))->setVisible(home);
    add(MainWindow::tr("Feedback and Support"), QStringLiteral("action_feedback"))
        ->setVisible(home);
    add(MainWindow::tr("Check for Updates"), QStringLiteral("action_updates"))->setVisible(home);
    add(MainWindow::tr("About"), QStringLiteral("action_about"));
    m_languageMenu = m_systemMenu->addMenu(MainWindow::tr("Language"));
    m_languageMenu->setObjectName(QStringLiteral("menu_language"));
    m_languageGroup = new QActionGroup(m_window);
    const int current = QSettings().value(SettingsKeys::language, 1).toInt();
    for (const LanguageEntry &entry : kLanguages) {
        QAction *action = m_languageMenu->addAction(QString::fromUtf8(entry.label));
        action->setCheckable(true);
        action->setData(entry.index);
        action->setChecked(entry.index == current);
        m_languageGroup->addAction(action);
    }
    connect(m_languageGroup, &QActionGroup::triggered, m_window, &MainWindow::languageSwitch);
    add(MainWindow::tr("Show Log in Explorer"), QStringLiteral("action_showLog"));
    add(MainWindow::tr("Open Data Folder"), QStringLiteral("action_dataFolder"));
    m_systemMenu->addSeparator();
    m_actOpenProject = add(MainWindow::tr("Open Project"), QStringLiteral("action_openProject"));
    m_actSaveProject = add(MainWindow::tr("Save Project"), QStringLiteral("action_saveProject"));
    m_actShowResults = add(MainWindow::tr("Show Results"), QStringLiteral("action_showResults"));
    // The actions that follow the window state, in the order the state table names them.
    m_stateActions
        = {m_actOpenProject, m_languageMenu->menuAction(), m_actSaveProject, m_actShowResults};
    connect(m_systemMenu, &QMenu::triggered, m_window, &MainWindow::onSystemMenuEvent);
}

void MainWindowMenus::runEntry(QAction *action)
{
    const QString name = action->objectName();
    const QString home = QStringLiteral(VELTRINE_HOMEPAGE_URL);
    auto openAddress = [](const QString &address) {
        if (!address.isEmpty())
            QDesktopServices::openUrl(QUrl(address));
    };
    if (name == QLatin1String("action_userGuide"))
        openAddress(QStringLiteral(VELTRINE_HELP_URL));
    else if (name == QLatin1String("action_faq"))
        openAddress(home.isEmpty() ? QString() : home + QStringLiteral("/faq"));
    else if (name == QLatin1String("action_feedback"))
        openAddress(home.isEmpty() ? QString() : home + QStringLiteral("/support"));
    else if (name == QLatin1String("action_updates"))
        openAddress(home.isEmpty() ? QString() : home + QStringLiteral("/download"));
    else if (name == QLatin1String("action_about"))
        QMessageBox::about(m_window, MainWindow::tr("About"),
            MainWindow::tr("%1<br>Version %2 (%3)")
                .arg(AppIdentity::applicationName, AppIdentity::version, AppIdentity::buildDate));
    else if (name == QLatin1String("action_showLog"))
        QDesktopServices::openUrl(QUrl::fromLocalFile(DataDirectory::logDirectory()));
    else if (name == QLatin1String("action_dataFolder"))
        QDesktopServices::openUrl(QUrl::fromLocalFile(DataDirectory::base()));
}

void MainWindowMenus::switchLanguage(QAction *action)
{
    const int index = action->data().toInt();
    QSettings().setValue(SettingsKeys::language, index);
    splog_d(kTag + QStringLiteral("Language switched to %1 for the next start.").arg(index));
    QMessageBox::information(m_window, MainWindow::tr("Language"),
        MainWindow::tr("The new language takes effect the next time the program "
                       "starts."));
}
