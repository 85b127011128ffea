// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/CloudSignIn.h"

#include "app/DataDirectory.h"
#include "app/LogTags.h"
#include "app/TLogger.h"
#include "cloud/CloudService.h"
#include "cloud/KvCloudObject.h"
#include "cloud/RcloneProcess.h"
#include "engine/GroupItemAutoSelector.h"
#include "engine/GroupMember.h"
#include "engine/ScanConfigCheck.h"
#include "engine/TFileData.h"
#include "mainwindow/FolderPage.h"
#include "mainwindow/MainWindow.h"
#include "mainwindow/TCloudFolderDialog.h"
#include "preferences/DFGenernalPreferences.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "preferences/DFSelectionPreferences.h"
#include "scancontrol/TControlUI.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QUrl>

namespace {

// The log tag of the cloud's own lines.
const QString kCloudTag = QStringLiteral("[KvCloudObject]:");

const QString &kTag = LogTags::mainWindow;

} // namespace

CloudSignIn::CloudSignIn(MainWindow *window) : QObject(window), m_window(window)
{
    connectCloud();
}

void CloudSignIn::pickService(int cloudType)
{
    const CloudService *service = CloudService::byType(cloudType);
    if (!service)
        return;
    if (!m_window->folders().isEmpty() && !m_cloudMode) {
        QMessageBox::information(m_window, MainWindow::tr("info"),
            MainWindow::tr("After adding local directories, cloud accounts can no "
                           "longer be added."));
        return;
    }
    if (!m_window->cloudFolders().isEmpty() && cloudType != m_cloudType) {
        QMessageBox::information(m_window, MainWindow::tr("info"),
            MainWindow::tr("Multiple cloud accounts cannot be scanned at the same time."));
        return;
    }
    if (const QString missing = RcloneProcess::whyUnavailable(); !missing.isEmpty()) {
        QMessageBox::warning(m_window, service->name, missing);
        return;
    }
    // One remote per service, named after it; a signed-in one goes straight to its folders.
    const QString account = QString(service->name).remove(QLatin1Char(' '));
    KvCloudObject *cloud = KvCloudObject::instance();
    const bool newSignIn = m_newSignIn.contains(cloudType);
    if (cloud->account() == account && m_cloudType == cloudType && !newSignIn) {
        m_window->showSelectFolderDialog(account, cloudType);
        return;
    }
    splog_d(kTag + QStringLiteral("Sign in to %1").arg(service->name));
    m_signingIn = true;
    // Starting rclone takes a moment the first time.
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const bool started
        = cloud->start_authorization(account, cloudType, newSignIn ? KvCloudObject::kNewSignIn : 0);
    QApplication::restoreOverrideCursor();
    if (started && cloud->isAuthorizing())
        showSignInBox(service->name);
}

void CloudSignIn::showSignInBox(const QString &service)
{
    closeSignInBox();
    m_signInBox
        = new QMessageBox(QMessageBox::Information, MainWindow::tr("Sign in to %1").arg(service),
            MainWindow::tr("Finish signing in to %1 in your web browser. This window goes on by "
                           "itself once you are through.")
                .arg(service),
            QMessageBox::Cancel, m_window);
    m_signInBox->setObjectName(QStringLiteral("box_signIn"));
    m_signInBox->setAttribute(Qt::WA_DeleteOnClose);
    m_signInBox->setTextInteractionFlags(Qt::TextBrowserInteraction);
    connect(m_signInBox, &QMessageBox::rejected, this, [this] {
        // Given up by the user: no failure to report afterwards.
        m_signingIn = false;
        m_signInBox.clear();
        KvCloudObject::instance()->cancel_authorization();
    });
    m_signInBox->open();
}

void CloudSignIn::closeSignInBox()
{
    if (!m_signInBox)
        return;
    // Closed by the answer, not by the user: no cancel.
    m_signInBox->disconnect(this);
    m_signInBox->close();
    m_signInBox.clear();
}

bool CloudSignIn::chooseFolders(const QString &account, int cloudType)
{
    m_signingIn = false;
    closeSignInBox();
    if (m_window->state() != MainWindow::StateReady)
        return false;
    if (!m_window->folders().isEmpty() && !m_cloudMode) {
        QMessageBox::information(m_window, MainWindow::tr("info"),
            MainWindow::tr("After adding local directories, cloud accounts can no "
                           "longer be added."));
        return false;
    }
    if (!m_window->cloudFolders().isEmpty()
        && (account != m_cloudAccount || cloudType != m_cloudType)) {
        splog_d(kTag + QStringLiteral("Second cloud account refused: %1").arg(account));
        QMessageBox::information(m_window, MainWindow::tr("info"),
            MainWindow::tr("Multiple cloud accounts cannot be scanned at the same time."));
        return false;
    }
    m_newSignIn.remove(cloudType);
    TCloudFolderDialog dialog(account, cloudType, m_window);
    if (dialog.exec() != QDialog::Accepted) {
        if (dialog.listingFailed())
            m_newSignIn.insert(cloudType);
        return false;
    }
    const QList<CloudFolderInfo> chosen = dialog.selectedFolders();
    if (chosen.isEmpty())
        return false;
    // Cloud folders replace whatever local ones there were.
    m_window->m_folderPage->takeCloudFolders();
    m_cloudAccount = account;
    m_cloudType = cloudType;
    m_cloudMode = true;
    TControlUI::instance()->setCloudMode(true);
    for (const CloudFolderInfo &folder : chosen)
        m_window->m_folderPage->addCloudRow(folder);
    return true;
}

void CloudSignIn::connectCloud()
{
    KvCloudObject *cloud = KvCloudObject::instance();
    cloud->initialization(DataDirectory::base());
    connect(cloud, &KvCloudObject::logMessage, this,
        [](const QString &message) { splog_d(kCloudTag + QStringLiteral("%1.").arg(message)); });
    connect(cloud, &KvCloudObject::onAuthorizedCompleted, this, [](bool updated) {
        splog_d(kCloudTag + QStringLiteral("onAuthorizedCompleted. update:%1").arg(updated));
    });
    connect(cloud, &KvCloudObject::onAuthorizedFailed, this, [this](const QString &error) {
        splog_d(kCloudTag + QStringLiteral("onAuthorizedFailed. error:%1").arg(error));
        closeSignInBox();
        // A sign-in from the add menu that failed; the folder chooser reports its own.
        if (std::exchange(m_signingIn, false))
            QMessageBox::warning(m_window, MainWindow::tr("Sign-in Failed"),
                MainWindow::tr("The cloud account could not be signed in.\n\n%1").arg(error));
    });
    connect(cloud, &KvCloudObject::onFilesFetchCount, m_window, &MainWindow::filesCountChange);
    connect(cloud, &KvCloudObject::processChange, m_window, &MainWindow::onProcessChange);
    connect(cloud, &KvCloudObject::onFindedDuplicateItem, this,
        [this](const QHash<QString, QList<QString>> &groups) {
            splog_d(kCloudTag
                + QStringLiteral("onFindedDuplicateItem.dupItmes.size=%1").arg(groups.size()));
            m_cloudGroups = groups;
        });
    connect(cloud, &KvCloudObject::diskSpaceLow, this, [this] {
        splog_d(kCloudTag + QStringLiteral("diskSpaceLow.********************"));
        QMessageBox::warning(m_window, MainWindow::tr("Insufficient System Disk Space"),
            MainWindow::tr("Thumbnail download was not completed. This may affect similar "
                           "image detection results. Please free up some disk space and try "
                           "again."));
    });
    connect(cloud, &KvCloudObject::onAllComplate, m_window, &MainWindow::allCloudThreadComplated);
    connect(cloud, &KvCloudObject::onDuplicateItemFound, m_window, &MainWindow::onItemFound);
    connect(
        cloud, &KvCloudObject::onAuthorizedSuccess, m_window, &MainWindow::showSelectFolderDialog);
    connect(cloud, &KvCloudObject::onUpdateTimer, m_window, &MainWindow::onUpdateTimer);
    connect(cloud, &KvCloudObject::authorizationLink, this, [this](const QUrl &link) {
        if (!m_signInBox)
            return;
        m_signInBox->setInformativeText(
            MainWindow::tr("If no browser window opened, open <a href=\"%1\">this sign-in "
                           "page</a>.")
                .arg(link.toString().toHtmlEscaped()));
        if (auto *label
            = m_signInBox->findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel")))
            label->setOpenExternalLinks(true);
    });
    connect(cloud, &KvCloudObject::onTraversalFailed, this,
        [this](const QString &reason) { m_cloudFailure = reason; });
}

void CloudSignIn::startScan()
{
    DFPreferences *preferences = DFPreferences::instance();
    KvCloudObject *cloud = KvCloudObject::instance();
    const QJsonObject common = preferences->ignoreListPreferences()->toJson();
    const QJsonObject similar = preferences->generalPreferences()->toJson();
    // The same guard as a local scan: values no dialog can produce do not reach the scan.
    if (const QStringList refused = ScanConfigCheck::problems(common, similar);
        !refused.isEmpty()) {
        QMessageBox::warning(m_window, MainWindow::tr("Error"), refused.join(QLatin1Char('\n')));
        return;
    }
    m_cloudGroups.clear();
    m_cloudFailure.clear();
    TFileData::instance()->clear();
    m_window->showScanStarted(false);
    const QStringList folders = m_window->cloudFolders();
    splog_d(kTag + QStringLiteral("Cloud scan of %1").arg(folders.join(QStringLiteral(", "))));
    cloud->set_common_config(common);
    cloud->set_similar_config(similar);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    cloud->start_traversal_files(folders, m_cloudInteger);
    QApplication::restoreOverrideCursor();
}

void CloudSignIn::finishScan(bool isAbort)
{
    TFileData *store = TFileData::instance();
    store->clear();
    // Copies are selected by the duplicate rule, similar pictures by the picture rule, as
    // after a local scan.
    QList<GroupItemAutoSelector::KeyedGroup> copies;
    QList<GroupItemAutoSelector::KeyedGroup> pictures;
    for (auto it = m_cloudGroups.cbegin(); it != m_cloudGroups.cend(); ++it) {
        store->insertGroup(it.key(), it.value());
        const bool similar = GroupMember::anySimilar(GroupMember::fromEntries(it.value()));
        (similar ? pictures : copies).append({it.key(), it.value()});
    }
    m_cloudGroups.clear();
    DFPreferences *preferences = DFPreferences::instance();
    KvCloudObject *cloud = KvCloudObject::instance();
    const auto select
        = [cloud, preferences](const QList<GroupItemAutoSelector::KeyedGroup> &groups, int rule) {
              if (groups.isEmpty() || rule == 8)
                  return;
              GroupItemAutoSelector::autoSelectAllEx(
                  groups, rule,
                  [cloud](const QString &entry, const QString &name) {
                      return QVariant(cloud->getCFP(GroupMember::fromEntry(entry).path, name));
                  },
                  preferences->selectionPreferences()->mapPriority());
          };
    select(copies, int(preferences->selectionPreferences()->selectDuplicate()));
    if (preferences->generalPreferences()->selectedSimilar())
        select(pictures, int(preferences->generalPreferences()->selectionHint()));
    m_cloudStopped = isAbort;
    m_window->allThreadComplate();
    if (const QString failure = std::exchange(m_cloudFailure, QString()); !failure.isEmpty()) {
        QMessageBox::warning(m_window, MainWindow::tr("Cloud Scan Failed"),
            MainWindow::tr("The cloud scan could not be completed: %1").arg(failure));
    } else if (isAbort) {
        splog_d(kTag + QStringLiteral("allCloudThreadComplated isAbort."));
        QMessageBox::information(m_window, MainWindow::tr("info"),
            MainWindow::tr("Thumbnail download was not completed. This may affect similar "
                           "image detection results. "));
    }
}

void CloudSignIn::leaveCloudMode()
{
    m_cloudMode = false;
    m_cloudAccount.clear();
    TControlUI::instance()->setCloudMode(false);
}

void CloudSignIn::reset()
{
    m_cloudAccount.clear();
    m_cloudType = 0;
    m_cloudMode = false;
    TControlUI::instance()->setCloudMode(false);
    m_cloudInteger = 20;
}
