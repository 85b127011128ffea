// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/MainWindow.h"

#include "app/AppIdentity.h"
#include "app/BuildSettings.h"
#include "app/DailyRunReport.h"
#include "app/DataDirectory.h"
#include "app/EnvironmentLog.h"
#include "app/FeatureReporter.h"
#include "app/FileTypeCatalogue.h"
#include "app/LanguageSetup.h"
#include "app/SettingsKeys.h"
#include "app/TLogger.h"
#include "cloud/CloudService.h"
#include "cloud/KvCloudObject.h"
#include "cloud/RcloneProcess.h"
#include "engine/GroupItemAutoSelector.h"
#include "engine/ScanConfigCheck.h"
#include "engine/ScanProblems.h"
#include "engine/TFileData.h"
#include "fileops/RemovalJournal.h"
#include "fileops/TOpenSaveThread.h"
#include "mainwindow/ScanRootList.h"
#include "mainwindow/TCloudFolderDialog.h"
#include "preferences/DFGenernalPreferences.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "preferences/DFSelectionPreferences.h"
#include "results/CListViewDelegate.h"
#include "results/TImageModel.h"
#include "scancontrol/TControlUI.h"
#include "settingsdialog/DFPreferencesDialog.h"
#include "widgets/CRotateLabel.h"
#include "widgets/RoundProgressBar.h"
#include "widgets/RoundTextButton.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

namespace {

// The log tag of this file.
const QString kCloudTag = QStringLiteral("[KvCloudObject]:");

const QString kTag = QStringLiteral("[MainWindows]: ");

QPixmap picture(const QString &name)
{
    return QPixmap(QStringLiteral(":/resource/") + name);
}

QPushButton *iconButton(QWidget *parent, const QString &name, const QString &icon)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(name);
    button->setIcon(QIcon(QStringLiteral(":/resource/") + icon));
    button->setIconSize(QSize(20, 20));
    button->setFixedSize(32, 32);
    button->setFlat(true);
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

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

MainWindow::MainWindow(const QStringList &arguments, QWidget *parent) : QMainWindow(parent)
{
    QCoreApplication::setOrganizationName(AppIdentity::organizationName);
    QCoreApplication::setApplicationName(AppIdentity::applicationName);
    EnvironmentLog::write();

    setObjectName(QStringLiteral("MainWindow"));
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setAcceptDrops(true);
    m_projectThread = new TOpenSaveThread(this);
    buildUi();
    buildMenus();
    connectController();
    connectCloud();
    connect(qApp, &QCoreApplication::aboutToQuit, this, [] {
        splog_d(kTag + QStringLiteral("Application is about to quit, start clean cache."));
        TFileData::instance()->clear();
    });
    setTitle();
    resize(1000, 680);

    const QString project = arguments.size() > 1 ? arguments.at(1) : QString();
    if (!project.isEmpty() && QFileInfo(project).isFile()) {
        openProject(QFileInfo(project).absoluteFilePath());
    } else {
        setStatus(StateReady);
        // Told once the window is up, so the message has a window to stand on.
        if (!project.isEmpty())
            QTimer::singleShot(0, this, [this, project] { explainBadProjectArgument(project); });
    }

    // Settings that could not be read are in force as defaults and are not written back.
    if (const QString problem = DFPreferences::instance()->fileProblem(); !problem.isEmpty())
        QTimer::singleShot(0, this, [this, problem] {
            QMessageBox::warning(this, tr("Settings Not Loaded"),
                tr("The settings file cannot be used: %1\n\nThe program runs with the default "
                   "settings and will not save any changes there.")
                    .arg(problem));
        });

    // The marker is this window's own; the journal also tells of a batch that the command
    // line or another window left without an end.
    if (DFPreferences::instance()->ignoreListPreferences()->deleteException() == 1
        || !RemovalJournal().interruptedBatch().id.isEmpty())
        QTimer::singleShot(0, this, &MainWindow::showAbnormalExitNotice);

    m_runReport = new DailyRunReport(
        QStringLiteral(VELTRINE_ANALYTICS_ID), QStringLiteral(VELTRINE_ANALYTICS_SECRET), this);
    QTimer::singleShot(0, this, &MainWindow::onTimeout);
}

MainWindow::~MainWindow()
{
    m_projectThread->wait();
    if (m_resultPage)
        delete m_resultPage;
    splog_d(kTag + QStringLiteral("Program is exit") + QString(57, QLatin1Char('.')));
}

// ----------------------------------------------------------------------------- layout

void MainWindow::buildUi()
{
    auto *central = new QWidget(this);
    central->setObjectName(QStringLiteral("centralwidget"));
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    buildTitleFrame(central);
    layout->addWidget(m_titleFrame);

    m_pages = new QStackedWidget(central);
    m_pages->setObjectName(QStringLiteral("stackedWidget"));
    m_pages->addWidget(buildFolderPage());
    m_pages->addWidget(buildScanPage());
    m_pages->addWidget(buildNoResultPage());
    layout->addWidget(m_pages, 1);

    // What the last scan could not read; shown under the scanning and "nothing found"
    // pages once a scan has ended with something left out.
    m_labProblems = new QLabel(central);
    m_labProblems->setObjectName(QStringLiteral("lab_scanProblems"));
    m_labProblems->setTextFormat(Qt::RichText);
    m_labProblems->setTextInteractionFlags(
        Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    // One sentence a line: every sentence fits the narrowest window in all languages, and
    // a wrapped label would be squeezed to a thin column between the stretches.
    m_labProblems->setWordWrap(false);
    m_labProblems->setAlignment(Qt::AlignCenter);
    m_labProblems->setVisible(false);
    connect(m_labProblems, &QLabel::linkActivated, this, [this] { showProblemDetails(); });
    auto *problemRow = new QHBoxLayout;
    problemRow->setContentsMargins(40, 0, 40, 6);
    problemRow->addStretch(1);
    problemRow->addWidget(m_labProblems);
    problemRow->addStretch(1);
    layout->addLayout(problemRow);

    auto *bottom = new QFrame(central);
    bottom->setObjectName(QStringLiteral("frame_bottom"));
    auto *bottomLayout = new QHBoxLayout(bottom);
    bottomLayout->setContentsMargins(32, 8, 32, 24);
    m_btnAdd = new RoundTextButton(bottom);
    m_btnAdd->setObjectName(QStringLiteral("btnAdd"));
    m_btnAdd->setFixedSize(120, 120);
    m_btnAdd->setIconSize(QSize(120, 120));
    m_btnAdd->setCursor(Qt::PointingHandCursor);
    m_btnScan = new QPushButton(bottom);
    m_btnScan->setObjectName(QStringLiteral("btn_scan"));
    m_btnScan->setMinimumSize(160, 44);
    m_btnScan->setCursor(Qt::PointingHandCursor);
    // Two side columns of equal stretch keep the round button in the middle however
    // wide the translated scan button is.
    auto *left = new QWidget(bottom);
    left->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto *right = new QHBoxLayout;
    right->addStretch(1);
    right->addWidget(m_btnScan, 0, Qt::AlignVCenter);
    bottomLayout->addWidget(left, 1);
    bottomLayout->addWidget(m_btnAdd);
    bottomLayout->addLayout(right, 1);
    layout->addWidget(bottom);
    setCentralWidget(central);

    connect(m_btnAdd, &QPushButton::clicked, this, &MainWindow::on_btnAdd_clicked);
    connect(m_btnScan, &QPushButton::clicked, this, &MainWindow::on_btn_scan_clicked);
    connect(m_btnSet, &QPushButton::clicked, this, &MainWindow::on_btn_set_clicked);
    connect(m_btnMinimize, &QPushButton::clicked, this, &QWidget::showMinimized);
    connect(m_btnClose, &QPushButton::clicked, this, &QWidget::close);
    connect(m_btnPre, &QPushButton::clicked, this, &MainWindow::on_btn_pre_clicked);
    connect(m_btnNext, &QPushButton::clicked, this, &MainWindow::on_btn_next_clicked);
}

void MainWindow::buildTitleFrame(QWidget *parent)
{
    m_titleFrame = new QFrame(parent);
    m_titleFrame->setObjectName(QStringLiteral("frame_title"));
    m_titleFrame->setFixedHeight(48);
    auto *layout = new QHBoxLayout(m_titleFrame);
    layout->setContentsMargins(16, 0, 10, 0);
    auto *logo = new QLabel(m_titleFrame);
    logo->setObjectName(QStringLiteral("lab_logo"));
    logo->setPixmap(picture(QStringLiteral("logo.png")));
    m_title = new QLabel(m_titleFrame);
    m_title->setObjectName(QStringLiteral("lab_title"));
    m_btnSet = iconButton(m_titleFrame, QStringLiteral("btn_set"), QStringLiteral("btn_set.png"));
    m_btnMenu
        = iconButton(m_titleFrame, QStringLiteral("btn_menu"), QStringLiteral("btn_menu.png"));
    m_btnMinimize = iconButton(
        m_titleFrame, QStringLiteral("btn_minimize"), QStringLiteral("btn_minimize.png"));
    m_btnClose
        = iconButton(m_titleFrame, QStringLiteral("btn_close"), QStringLiteral("btn_close.png"));
    layout->addWidget(logo);
    layout->addWidget(m_title);
    layout->addStretch(1);
    layout->addWidget(m_btnSet);
    layout->addWidget(m_btnMenu);
    layout->addWidget(m_btnMinimize);
    layout->addWidget(m_btnClose);
}

QWidget *MainWindow::buildFolderPage()
{
    auto *page = new QWidget;
    page->setObjectName(QStringLiteral("page_folders"));
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(40, 24, 40, 8);
    m_background = new QLabel(page);
    m_background->setObjectName(QStringLiteral("lab_background"));
    m_background->setAlignment(Qt::AlignCenter);
    m_background->setPixmap(picture(LanguageSetup::current().noSelectionBackground.isEmpty()
            ? QStringLiteral("noSelection_bg.png")
            : LanguageSetup::current().noSelectionBackground));
    layout->addWidget(m_background, 1);

    auto *listRow = new QHBoxLayout;
    m_btnPre = iconButton(page, QStringLiteral("btn_pre"), QStringLiteral("btn_pre.png"));
    m_btnNext = iconButton(page, QStringLiteral("btn_next"), QStringLiteral("btn_next.png"));
    m_pathModel = new QStandardItemModel(this);
    m_pathView = new QListView(page);
    m_pathView->setObjectName(QStringLiteral("listview_path"));
    m_pathView->setModel(m_pathModel);
    m_pathView->setMouseTracking(true);
    m_pathView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_pathView->setIconSize(QSize(24, 24));
    m_pathView->setTextElideMode(Qt::ElideLeft);
    auto *delegate = new CListViewDelegate(m_pathView);
    m_pathView->setItemDelegate(delegate);
    connect(delegate, &CListViewDelegate::deleteItem, this, &MainWindow::deleteSelectPath,
        Qt::QueuedConnection);
    connect(m_pathView, &QListView::indexesMoved, this, &MainWindow::on_listview_path_indexesMoved);
    connect(m_pathView->selectionModel(), &QItemSelectionModel::currentChanged, this,
        &MainWindow::setPushButtonEnable);
    listRow->addWidget(m_btnPre, 0, Qt::AlignVCenter);
    listRow->addWidget(m_pathView, 1);
    listRow->addWidget(m_btnNext, 0, Qt::AlignVCenter);
    layout->addLayout(listRow, 1);

    m_dragHint = new QLabel(page);
    m_dragHint->setObjectName(QStringLiteral("lab_dragHint"));
    m_dragHint->setAlignment(Qt::AlignCenter);
    m_dragHint->setPixmap(picture(LanguageSetup::current().noSelectionLiteBackground.isEmpty()
            ? QStringLiteral("noSelection_LiteBG.png")
            : LanguageSetup::current().noSelectionLiteBackground));
    layout->addWidget(m_dragHint);
    m_labNumber = new QLabel(page);
    m_labNumber->setObjectName(QStringLiteral("lab_number"));
    m_labNumber->setAlignment(Qt::AlignCenter);
    layout->addWidget(m_labNumber);
    return page;
}

QWidget *MainWindow::buildScanPage()
{
    auto *page = new QWidget;
    page->setObjectName(QStringLiteral("page_scan"));
    auto *layout = new QHBoxLayout(page);
    layout->setContentsMargins(60, 24, 60, 8);
    // Ring and figures stay together in the middle on wide windows.
    layout->addStretch(1);

    auto *ringBox = new QWidget(page);
    ringBox->setFixedSize(240, 240);
    m_ring = new RoundProgressBar(ringBox);
    m_ring->setObjectName(QStringLiteral("progress_ring"));
    m_ring->setGeometry(0, 0, 240, 240);
    // The track is drawn around the outside of the arc; at two pixels its outer edge is
    // the widget's edge, any wider and the circle is cut flat on four sides. No end dot:
    // it marks the top of the ring and would show as a lone speck before any progress.
    m_ring->setWidths(2.0, 14.0);
    m_ring->setPaintFlags(RoundProgressBar::Ring | RoundProgressBar::GradientArc);
    m_ring->setColors(QColor(194, 220, 255), QColor(69, 146, 220), QColor(49, 120, 200));
    m_animation = new CRotateLabel(ringBox);
    m_animation->setObjectName(QStringLiteral("lab_animation"));
    m_animation->setPixmap(picture(QStringLiteral("scan_rotate.png")));
    m_animation->setGeometry(40, 40, 160, 160);
    layout->addWidget(ringBox, 0, Qt::AlignCenter);

    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(18);
    grid->setHorizontalSpacing(32);
    // Room for the widest figure ("1023.99 GB"), so the block does not shift as the
    // figures grow during a scan.
    grid->setColumnMinimumWidth(1, 170);
    auto addRow = [&](int row, const QString &objectName, const QString &caption, QLabel *&value) {
        auto *label = new QLabel(caption, page);
        label->setObjectName(objectName + QStringLiteral("_caption"));
        value = new QLabel(page);
        value->setObjectName(objectName);
        value->setProperty("scanValue", true);
        grid->addWidget(label, row, 0);
        grid->addWidget(value, row, 1);
    };
    addRow(0, QStringLiteral("lab_fileNumber"), tr("Files scanned"), m_labFileNumber);
    addRow(1, QStringLiteral("lab_findNumber"), tr("Duplicates found"), m_labFindNumber);
    addRow(2, QStringLiteral("lab_findSize"), tr("Size of duplicates"), m_labFindSize);
    addRow(3, QStringLiteral("lab_progress"), tr("Progress"), m_labProgress);
    addRow(4, QStringLiteral("lab_findTime"), tr("Elapsed time"), m_labFindTime);
    m_labFindTime->setText(QStringLiteral("00:00:00"));
    m_labStage = new QLabel(page);
    m_labStage->setObjectName(QStringLiteral("lab_stage"));
    m_labFilter = new QLabel(page);
    m_labFilter->setObjectName(QStringLiteral("lab_filter"));
    m_labFilter->setWordWrap(true);
    m_labFilter->setMaximumWidth(420);
    m_labFilter->setVisible(false);
    layout->addSpacing(48);
    auto *column = new QVBoxLayout;
    column->addStretch(1);
    column->addLayout(grid);
    column->addSpacing(22);
    column->addWidget(m_labStage);
    column->addSpacing(6);
    column->addWidget(m_labFilter);
    column->addStretch(1);
    layout->addLayout(column);
    layout->addStretch(1);
    return page;
}

QWidget *MainWindow::buildNoResultPage()
{
    auto *page = new QWidget;
    page->setObjectName(QStringLiteral("page_noResults"));
    auto *layout = new QVBoxLayout(page);
    m_noResultRing = new QLabel(page);
    m_noResultRing->setObjectName(QStringLiteral("lab_noDuplicatesRing"));
    m_noResultRing->setPixmap(picture(QStringLiteral("noduplicatesfound_ring_bg.png")));
    m_noResultRing->setAlignment(Qt::AlignCenter);
    m_noResultText = new QLabel(page);
    m_noResultText->setObjectName(QStringLiteral("lab_noDuplicates"));
    m_noResultText->setPixmap(picture(LanguageSetup::current().noDuplicatesBackground.isEmpty()
            ? QStringLiteral("noduplicatesfound_bg.png")
            : LanguageSetup::current().noDuplicatesBackground));
    m_noResultText->setAlignment(Qt::AlignCenter);
    // Takes the place of "No duplicate files found" when nothing could be read at all:
    // an all-clear would then be false.
    m_labUnreadable = new QLabel(page);
    m_labUnreadable->setObjectName(QStringLiteral("lab_rootsUnreadable"));
    m_labUnreadable->setAlignment(Qt::AlignCenter);
    m_labUnreadable->setWordWrap(true);
    m_labUnreadable->setVisible(false);
    layout->addStretch(1);
    layout->addWidget(m_noResultRing);
    layout->addWidget(m_noResultText);
    layout->addWidget(m_labUnreadable);
    layout->addStretch(1);
    return page;
}

void MainWindow::buildMenus()
{
    m_addMenu = new QMenu(this);
    m_addMenu->setObjectName(QStringLiteral("menu_add"));
    m_addMenu->setProperty("iconMenu", true);
    QAction *local
        = m_addMenu->addAction(QIcon(QStringLiteral(":/resource/local.png")), tr("Local Computer"));
    local->setObjectName(QStringLiteral("action_local"));
    connect(local, &QAction::triggered, this, &MainWindow::on_local_menu_add_clicked);
    m_addMenu->addSeparator();
    m_addMenu->setToolTipsVisible(true);
    QList<QAction *> cloudActions;
    for (const int type : {1, 7, 5, 2}) {
        const CloudService *service = CloudService::byType(type);
        QAction *action
            = m_addMenu->addAction(QIcon(TCloudFolderDialog::smallIcon(type)), service->name);
        action->setObjectName(QStringLiteral("action_cloud_%1").arg(type));
        action->setData(type);
        connect(action, &QAction::triggered, this, &MainWindow::on_cloud_menu_clicked);
        cloudActions << action;
    }
    // Without rclone the cloud entries say so where the user looks for them.
    connect(m_addMenu, &QMenu::aboutToShow, this, [cloudActions] {
        const QString missing = RcloneProcess::whyUnavailable();
        for (QAction *action : cloudActions) {
            const QString name = CloudService::byType(action->data().toInt())->name;
            action->setText(missing.isEmpty() ? name : tr("%1 (needs rclone)").arg(name));
            action->setToolTip(missing);
        }
    });

    m_systemMenu = new QMenu(this);
    m_systemMenu->setObjectName(QStringLiteral("menu_system"));
    auto add = [this](const QString &text, const QString &name) {
        QAction *action = m_systemMenu->addAction(text);
        action->setObjectName(name);
        return action;
    };
    // Entries that open a web page stay out of the menu when this build names none.
    const bool help = !QStringLiteral(VELTRINE_HELP_URL).isEmpty();
    const bool home = !QStringLiteral(VELTRINE_HOMEPAGE_URL).isEmpty();
    add(tr("User Guide"), QStringLiteral("action_userGuide"))->setVisible(help);
    add(tr("Product FAQ"), QStringLiteral("action_faq"))->setVisible(home);
    add(tr("Feedback and Support"), QStringLiteral("action_feedback"))->setVisible(home);
    add(tr("Check for Updates"), QStringLiteral("action_updates"))->setVisible(home);
    add(tr("About"), QStringLiteral("action_about"));
    m_languageMenu = m_systemMenu->addMenu(tr("Language"));
    m_languageMenu->setObjectName(QStringLiteral("menu_language"));
    m_languageGroup = new QActionGroup(this);
    const int current = QSettings().value(SettingsKeys::language, 1).toInt();
    for (const LanguageEntry &entry : kLanguages) {
        QAction *action = m_languageMenu->addAction(QString::fromUtf8(entry.label));
        action->setCheckable(true);
        action->setData(entry.index);
        action->setChecked(entry.index == current);
        m_languageGroup->addAction(action);
    }
    connect(m_languageGroup, &QActionGroup::triggered, this, &MainWindow::languageSwitch);
    add(tr("Show Log in Explorer"), QStringLiteral("action_showLog"));
    add(tr("Open Data Folder"), QStringLiteral("action_dataFolder"));
    m_systemMenu->addSeparator();
    m_actOpenProject = add(tr("Open Project"), QStringLiteral("action_openProject"));
    m_actSaveProject = add(tr("Save Project"), QStringLiteral("action_saveProject"));
    m_actShowResults = add(tr("Show Results"), QStringLiteral("action_showResults"));
    // The actions that follow the window state, in the order the state table names them.
    m_stateActions
        = {m_actOpenProject, m_languageMenu->menuAction(), m_actSaveProject, m_actShowResults};
    connect(m_systemMenu, &QMenu::triggered, this, &MainWindow::onSystemMenuEvent);
    connect(m_btnMenu, &QPushButton::clicked, this,
        [this] { m_systemMenu->popup(m_btnMenu->mapToGlobal(QPoint(0, m_btnMenu->height()))); });
}

void MainWindow::connectController()
{
    TControlUI *controller = TControlUI::instance();
    connect(controller, &TControlUI::filesScaningChange, this, &MainWindow::filesCountChange);
    connect(controller, &TControlUI::processChange, this, &MainWindow::onProcessChange);
    connect(controller, &TControlUI::onDuplicateItemFound, this, &MainWindow::onItemFound);
    connect(controller, &TControlUI::onUpdateTimer, this, &MainWindow::onUpdateTimer);
    connect(controller, &TControlUI::stageChanged, this, &MainWindow::onStageChanged);
    connect(controller, &TControlUI::picturesCounted, this, &MainWindow::onPicturesCounted);
    connect(controller, &TControlUI::onAllComplate, this, &MainWindow::allThreadComplate);
    connect(m_projectThread, &TOpenSaveThread::openProjectComplated, this,
        &MainWindow::onProjectOpenComplated, Qt::QueuedConnection);
    connect(m_projectThread, &TOpenSaveThread::saveComplated, this,
        &MainWindow::onSaveProjectComplated, Qt::QueuedConnection);
    connect(m_projectThread, &TOpenSaveThread::openProjectProcess, this,
        &MainWindow::onOpenProjectProcess);
}

// ----------------------------------------------------------------------------- states

void MainWindow::setStatus(int state)
{
    m_state = state;
    auto enableActions = [this](std::initializer_list<bool> enabled) {
        int i = 0;
        for (bool on : enabled)
            m_stateActions.at(i++)->setEnabled(on);
    };
    switch (state) {
    case StateReady:
        m_btnAdd->setEnabled(true);
        m_btnAdd->setText(QString());
        m_btnAdd->setIcon(QIcon(QStringLiteral(":/resource/button_plus_enable.png")));
        m_btnScan->setText(tr("Scan"));
        m_btnScan->setEnabled(!m_folders.isEmpty() || !m_cloudFolders.isEmpty());
        m_animation->setRotating(false);
        m_ring->setValue(0);
        m_labProgress->setText(QStringLiteral("0.00%"));
        m_labFileNumber->setText(QStringLiteral("0"));
        m_labFindNumber->setText(QStringLiteral("0"));
        m_labFindSize->setText(TImageModel::sizeText(0));
        enableActions({true, true, false, false});
        break;
    case StateScanning:
        m_btnAdd->setEnabled(true);
        m_btnAdd->setIcon(QIcon());
        m_btnAdd->setText(tr("Stop"));
        m_btnScan->setEnabled(false);
        enableActions({false, false, false, false});
        m_animation->setRotating(true);
        break;
    case StateContinue:
        m_btnAdd->setEnabled(true);
        m_btnAdd->setIcon(QIcon());
        m_btnAdd->setText(tr("Continue"));
        enableActions({false, true, true, true});
        break;
    case StateFinished:
        m_btnAdd->setEnabled(true);
        m_btnAdd->setIcon(QIcon());
        m_btnAdd->setText(tr("New Scan"));
        enableActions({true, true, true, true});
        // The end state of the animation: the sweep stops where it is.
        m_animation->setRotating(false);
        if (m_resultKind == ResultsFound) {
            m_btnScan->setText(tr("Show results"));
            m_btnScan->setEnabled(true);
        }
        break;
    case StateOpening:
        m_btnAdd->setEnabled(false);
        m_pages->setCurrentIndex(1);
        m_ring->setValue(0);
        m_stateActions.at(1)->setEnabled(false);
        m_stateActions.at(2)->setEnabled(false);
        m_stateActions.at(3)->setEnabled(false);
        break;
    default:
        break;
    }
    updateFolderPageView();
}

// ----------------------------------------------------------------------------- folders

bool MainWindow::addFolder(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isDir())
        return false;
    const QString folder = QDir::cleanPath(info.absoluteFilePath());
    if (m_folders.contains(folder))
        return false;
    splog_d(kTag + QStringLiteral("Add a directory :%1").arg(folder));
    m_folders << folder;
    // The row shows the whole path, elided on the left by the view, so two folders of
    // one name stay apart and the folder's own name is always visible.
    auto *item = new QStandardItem(
        QIcon(QStringLiteral(":/resource/folder.png")), QDir::toNativeSeparators(folder));
    item->setToolTip(QDir::toNativeSeparators(folder));
    item->setData(folder, Qt::UserRole);
    m_pathModel->appendRow(item);
    m_pathView->setCurrentIndex(m_pathModel->index(m_pathModel->rowCount() - 1, 0));
    refreshCountLabel();
    setPushButtonEnable();
    updateFolderPageView();
    return true;
}

void MainWindow::addFolders(const QStringList &paths)
{
    const ScanRootList::SortedPaths sorted = ScanRootList::sortPaths(paths);
    for (const QString &folder : sorted.folders)
        addFolder(folder);
    const QStringList refused = sorted.files + sorted.missing;
    if (refused.isEmpty())
        return;
    for (const QString &path : refused)
        splog_d(kTag + QStringLiteral("Not a folder, not added :%1").arg(path));
    const auto name = [](const QString &path) { return QDir::toNativeSeparators(path); };
    QString text;
    if (refused.size() == 1 && sorted.files.size() == 1)
        text = tr("\"%1\" is a file, not a folder. Only folders can be scanned: add the "
                  "folder that holds it instead.")
                   .arg(name(refused.first()));
    else if (refused.size() == 1)
        text = tr("\"%1\" could not be found. It may have been moved or removed.")
                   .arg(name(refused.first()));
    else
        text = tr("%n item(s) were not added because they are not folders:", nullptr,
            int(refused.size()));
    QMessageBox box(QMessageBox::Information, tr("Note"), text, QMessageBox::Ok, this);
    box.setObjectName(QStringLiteral("box_notFolders"));
    if (refused.size() > 1) {
        // The names go in the box itself when they are few; a long drop lists them all
        // in the details, so the box stays on the screen.
        constexpr int kShown = 5;
        QStringList lines;
        for (int i = 0; i < std::min<int>(kShown, int(refused.size())); ++i)
            lines << name(refused.at(i));
        box.setInformativeText(lines.join(QLatin1Char('\n')));
        if (refused.size() > kShown)
            box.setDetailedText(QStringList(refused).join(QLatin1Char('\n')));
    }
    box.exec();
}

void MainWindow::refreshCountLabel()
{
    if (m_cloudMode)
        m_labNumber->setText(m_cloudAccount);
    else
        m_labNumber->setText(tr("%n folder(s) added", nullptr, int(m_folders.size())));
}

void MainWindow::updateFolderPageView()
{
    const bool empty = m_pathModel->rowCount() == 0;
    m_background->setVisible(empty);
    m_pathView->setVisible(!empty);
    m_btnPre->setVisible(!empty);
    m_btnNext->setVisible(!empty);
    // Cloud folders take no local folders beside them, dropped or not.
    m_dragHint->setVisible(!empty && !m_cloudMode);
}

void MainWindow::deleteSelectPath(const QModelIndex &index)
{
    if (!index.isValid() || m_state != StateReady)
        return;
    const QString folder = index.data(Qt::UserRole).toString();
    m_folders.removeAll(folder);
    m_cloudFolders.removeAll(folder);
    if (m_cloudMode && m_cloudFolders.isEmpty()) {
        // The last cloud folder gone: local folders may come again.
        m_cloudMode = false;
        m_cloudAccount.clear();
        TControlUI::instance()->setCloudMode(false);
    }
    m_pathModel->removeRow(index.row());
    splog_d(kTag + QStringLiteral("Remove a directory :%1").arg(folder));
    refreshCountLabel();
    setPushButtonEnable();
    updateFolderPageView();
}

void MainWindow::on_local_menu_add_clicked()
{
    if (!m_cloudFolders.isEmpty()) {
        QMessageBox::information(this, tr("Note"),
            tr("After adding cloud accounts and directories, local "
               "directories can no longer be added."));
        return;
    }
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Select Folder"));
    if (folder.isEmpty())
        return;
    m_cloudMode = false;
    addFolders({folder});
}

void MainWindow::on_cloud_menu_clicked()
{
    const auto *action = qobject_cast<QAction *>(sender());
    const int cloudType = action ? action->data().toInt() : 0;
    const CloudService *service = CloudService::byType(cloudType);
    if (!service)
        return;
    if (!m_folders.isEmpty() && !m_cloudMode) {
        QMessageBox::information(this, tr("info"),
            tr("After adding local directories, cloud accounts can no "
               "longer be added."));
        return;
    }
    if (!m_cloudFolders.isEmpty() && cloudType != m_cloudType) {
        QMessageBox::information(
            this, tr("info"), tr("Multiple cloud accounts cannot be scanned at the same time."));
        return;
    }
    if (const QString missing = RcloneProcess::whyUnavailable(); !missing.isEmpty()) {
        QMessageBox::warning(this, service->name, missing);
        return;
    }
    // One remote per service, named after it; a signed-in one goes straight to its folders.
    const QString account = QString(service->name).remove(QLatin1Char(' '));
    KvCloudObject *cloud = KvCloudObject::instance();
    const bool newSignIn = m_newSignIn.contains(cloudType);
    if (cloud->account() == account && m_cloudType == cloudType && !newSignIn) {
        showSelectFolderDialog(account, cloudType);
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

void MainWindow::showSignInBox(const QString &service)
{
    closeSignInBox();
    m_signInBox = new QMessageBox(QMessageBox::Information, tr("Sign in to %1").arg(service),
        tr("Finish signing in to %1 in your web browser. This window goes on by itself once "
           "you are through.")
            .arg(service),
        QMessageBox::Cancel, this);
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

void MainWindow::closeSignInBox()
{
    if (!m_signInBox)
        return;
    // Closed by the answer, not by the user: no cancel.
    m_signInBox->disconnect(this);
    m_signInBox->close();
    m_signInBox.clear();
}

void MainWindow::showSelectFolderDialog(const QString &account, int cloudType)
{
    m_signingIn = false;
    closeSignInBox();
    if (m_state != StateReady)
        return;
    if (!m_folders.isEmpty() && !m_cloudMode) {
        QMessageBox::information(this, tr("info"),
            tr("After adding local directories, cloud accounts can no "
               "longer be added."));
        return;
    }
    if (!m_cloudFolders.isEmpty() && (account != m_cloudAccount || cloudType != m_cloudType)) {
        splog_d(kTag + QStringLiteral("Second cloud account refused: %1").arg(account));
        QMessageBox::information(
            this, tr("info"), tr("Multiple cloud accounts cannot be scanned at the same time."));
        return;
    }
    m_newSignIn.remove(cloudType);
    TCloudFolderDialog dialog(account, cloudType, this);
    if (dialog.exec() != QDialog::Accepted) {
        if (dialog.listingFailed())
            m_newSignIn.insert(cloudType);
        return;
    }
    const QList<CloudFolderInfo> chosen = dialog.selectedFolders();
    if (chosen.isEmpty())
        return;
    // Cloud folders replace whatever local ones there were.
    m_folders.clear();
    if (m_cloudFolders.isEmpty())
        m_pathModel->removeRows(0, m_pathModel->rowCount());
    m_cloudAccount = account;
    m_cloudType = cloudType;
    m_cloudMode = true;
    TControlUI::instance()->setCloudMode(true);
    for (const CloudFolderInfo &folder : chosen)
        addCloudRow(folder);
    refreshCountLabel();
    setPushButtonEnable();
    updateFolderPageView();
}

void MainWindow::addCloudRow(const CloudFolderInfo &folder)
{
    if (m_cloudFolders.contains(folder.id))
        return;
    splog_d(kTag + QStringLiteral("Add a cloud directory :%1").arg(folder.id));
    m_cloudFolders << folder.id;
    auto *item
        = new QStandardItem(QIcon(QStringLiteral(":/resource/cloudfolder128.png")), folder.id);
    item->setToolTip(folder.id);
    item->setData(folder.id, Qt::UserRole);
    m_pathModel->appendRow(item);
    m_pathView->setCurrentIndex(m_pathModel->index(m_pathModel->rowCount() - 1, 0));
}

void MainWindow::connectCloud()
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
            QMessageBox::warning(this, tr("Sign-in Failed"),
                tr("The cloud account could not be signed in.\n\n%1").arg(error));
    });
    connect(cloud, &KvCloudObject::onFilesFetchCount, this, &MainWindow::filesCountChange);
    connect(cloud, &KvCloudObject::processChange, this, &MainWindow::onProcessChange);
    connect(cloud, &KvCloudObject::onFindedDuplicateItem, this,
        [this](const QHash<QString, QList<QString>> &groups) {
            splog_d(kCloudTag
                + QStringLiteral("onFindedDuplicateItem.dupItmes.size=%1").arg(groups.size()));
            m_cloudGroups = groups;
        });
    connect(cloud, &KvCloudObject::diskSpaceLow, this, [this] {
        splog_d(kCloudTag + QStringLiteral("diskSpaceLow.********************"));
        QMessageBox::warning(this, tr("Insufficient System Disk Space"),
            tr("Thumbnail download was not completed. This may affect similar image detection "
               "results. Please free up some disk space and try again."));
    });
    connect(cloud, &KvCloudObject::onAllComplate, this, &MainWindow::allCloudThreadComplated);
    connect(cloud, &KvCloudObject::onDuplicateItemFound, this, &MainWindow::onItemFound);
    connect(cloud, &KvCloudObject::onAuthorizedSuccess, this, &MainWindow::showSelectFolderDialog);
    connect(cloud, &KvCloudObject::onUpdateTimer, this, &MainWindow::onUpdateTimer);
    connect(cloud, &KvCloudObject::authorizationLink, this, [this](const QUrl &link) {
        if (!m_signInBox)
            return;
        m_signInBox->setInformativeText(
            tr("If no browser window opened, open <a href=\"%1\">this sign-in page</a>.")
                .arg(link.toString().toHtmlEscaped()));
        if (auto *label
            = m_signInBox->findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel")))
            label->setOpenExternalLinks(true);
    });
    connect(cloud, &KvCloudObject::onTraversalFailed, this,
        [this](const QString &reason) { m_cloudFailure = reason; });
}

void MainWindow::on_btn_pre_clicked()
{
    const int row = m_pathView->currentIndex().row();
    if (row > 0)
        m_pathView->setCurrentIndex(m_pathModel->index(row - 1, 0));
    setPushButtonEnable();
}

void MainWindow::on_btn_next_clicked()
{
    const int row = m_pathView->currentIndex().row();
    if (row + 1 < m_pathModel->rowCount())
        m_pathView->setCurrentIndex(m_pathModel->index(row + 1, 0));
    setPushButtonEnable();
}

void MainWindow::on_listview_path_indexesMoved(const QModelIndexList &)
{
    setPushButtonEnable();
}

void MainWindow::setPushButtonEnable()
{
    const int row = m_pathView->currentIndex().row();
    const int rows = m_pathModel->rowCount();
    m_btnPre->setEnabled(rows > 0 && row > 0);
    m_btnNext->setEnabled(rows > 0 && row + 1 < rows);
    if (m_state == StateReady)
        m_btnScan->setEnabled(!m_folders.isEmpty() || !m_cloudFolders.isEmpty());
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    event->setDropAction(Qt::LinkAction);
    if (m_state == StateReady && event->mimeData()->hasUrls()
        && ScanRootList::acceptsDrag(event->mimeData()))
        event->accept();
    else
        event->ignore();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    if (m_state != StateReady)
        return;
    if (!m_cloudFolders.isEmpty()) {
        QMessageBox::information(this, tr("Note"),
            tr("After adding cloud accounts and directories, local "
               "directories can no longer be added."));
        return;
    }
    m_cloudMode = false;
    const QStringList paths = ScanRootList::droppedPaths(event->mimeData());
    event->acceptProposedAction();
    // A message box inside the drop would hold the file manager's drag open.
    QTimer::singleShot(0, this, [this, paths] { addFolders(paths); });
}

// ----------------------------------------------------------------------------- scanning

void MainWindow::on_btnAdd_clicked()
{
    switch (m_state) {
    case StateReady:
        // The add menu is the way folders come in.
        m_addMenu->popup(m_btnAdd->mapToGlobal(QPoint(0, m_btnAdd->height())));
        break;
    case StateScanning:
        // A stopped scan ends with what it found so far.
        if (m_cloudMode)
            KvCloudObject::instance()->stop_all_tasks();
        else
            TControlUI::instance()->stop();
        setStatus(StateFinished);
        break;
    case StateContinue:
        if (!m_cloudMode)
            setStatus(StateScanning);
        break;
    case StateFinished: {
        if (!confirmDiscardResults())
            return;
        TControlUI::instance()->stop();
        if (m_resultPage)
            m_resultPage->deleteLater();
        TFileData::instance()->clear();
        m_showResultsWhenDone = true;
        m_pages->setCurrentIndex(0);
        m_folders.clear();
        m_cloudFolders.clear();
        m_cloudAccount.clear();
        m_cloudType = 0;
        m_cloudMode = false;
        TControlUI::instance()->setCloudMode(false);
        m_projectPath.clear();
        setTitle();
        m_resultKind = ResultsFound;
        m_localScan = false;
        clearScanProblems();
        m_labFindTime->setText(QStringLiteral("00:00:00"));
        m_cloudInteger = 20;
        m_pathModel->removeRows(0, m_pathModel->rowCount());
        setStatus(StateReady);
        refreshCountLabel();
        break;
    }
    default:
        break;
    }
}

void MainWindow::on_btn_scan_clicked()
{
    if (m_state != StateReady) {
        openResultPage();
        return;
    }
    if (m_cloudMode) {
        if (!m_cloudFolders.isEmpty())
            startCloudScan();
        return;
    }
    if (m_folders.isEmpty())
        return;
    startLocalScan();
}

void MainWindow::startCloudScan()
{
    DFPreferences *preferences = DFPreferences::instance();
    KvCloudObject *cloud = KvCloudObject::instance();
    const QJsonObject common = preferences->ignoreListPreferences()->toJson();
    const QJsonObject similar = preferences->generalPreferences()->toJson();
    // The same guard as a local scan: values no dialog can produce do not reach the scan.
    if (const QStringList refused = ScanConfigCheck::problems(common, similar);
        !refused.isEmpty()) {
        QMessageBox::warning(this, tr("Error"), refused.join(QLatin1Char('\n')));
        return;
    }
    m_cloudGroups.clear();
    m_cloudFailure.clear();
    TFileData::instance()->clear();
    showScanStarted(false);
    splog_d(
        kTag + QStringLiteral("Cloud scan of %1").arg(m_cloudFolders.join(QStringLiteral(", "))));
    cloud->set_common_config(common);
    cloud->set_similar_config(similar);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    cloud->start_traversal_files(m_cloudFolders, m_cloudInteger);
    QApplication::restoreOverrideCursor();
}

void MainWindow::startLocalScan()
{
    const QStringList roots = ScanRootList::pruneNested(m_folders);
    // The controller refuses settings that would spoil the scan; the window then stays
    // ready with the folders as they are.
    const QString refused = TControlUI::instance()->startScan(roots);
    if (!refused.isEmpty()) {
        QMessageBox::warning(this, tr("Error"), refused);
        return;
    }
    m_lastScanRoots = roots;
    showScanStarted(true);
}

void MainWindow::showScanStarted(bool local)
{
    m_localScan = local;
    m_scanRunning = true;
    clearScanProblems();
    m_projectPath.clear();
    setTitle();
    m_resultKind = ResultsFound;
    m_filesScanned = 0;
    m_ring->setValue(0);
    m_labProgress->setText(QStringLiteral("0.00%"));
    m_labFileNumber->setText(QStringLiteral("0"));
    m_labFindNumber->setText(QStringLiteral("0"));
    m_labFindSize->setText(TImageModel::sizeText(0));
    m_labFindTime->setText(QStringLiteral("00:00:00"));
    m_labStage->setText(local ? tr("Looking for files…") : tr("Listing the cloud folders…"));
    showTypeFilter();
    m_pages->setCurrentIndex(1);
    setStatus(StateScanning);
}

void MainWindow::showTypeFilter()
{
    const DFIgnoreListPreferences *common = DFPreferences::instance()->ignoreListPreferences();
    const bool onlyList = common->ScanFileType() == 0;
    const QStringList types = onlyList ? common->OnlyFileType() : common->IgnoreFileType();
    const QString listed = types.join(QStringLiteral(", "));
    m_labFilter->setText(onlyList ? tr("Only these file types are scanned: %1").arg(listed)
                                  : tr("These file types are skipped: %1").arg(listed));
    m_labFilter->setToolTip(m_labFilter->text());
    m_labFilter->setVisible(!types.isEmpty());
}

void MainWindow::filesCountChange(int fileCount)
{
    m_filesScanned = fileCount;
    m_labFileNumber->setText(QString::number(fileCount));
}

void MainWindow::onProcessChange(double value)
{
    m_labProgress->setText(QString::number(value, 'f', 2) + QLatin1Char('%'));
    m_ring->setValue(value);
}

void MainWindow::onItemFound(int number, qint64 total)
{
    m_labFindNumber->setText(QString::number(number));
    m_labFindSize->setText(TImageModel::sizeText(total));
}

void MainWindow::onUpdateTimer(const QString &time)
{
    m_elapsed = time;
    m_labFindTime->setText(time);
}

void MainWindow::onStageChanged(int stage)
{
    switch (stage) {
    case TControlUI::StageScanning:
        m_labStage->setText(tr("Looking for files…"));
        break;
    case TControlUI::StageMatching:
        m_labStage->setText(tr("Comparing files of the same size…"));
        break;
    case TControlUI::StageSimilar:
        m_labStage->setText(tr("Reading pictures…"));
        break;
    default:
        break;
    }
}

void MainWindow::onPicturesCounted(int progressType, int done, int total)
{
    const QLocale locale;
    const QString counted
        = QStringLiteral("%1 / %2").arg(locale.toString(done), locale.toString(total));
    switch (progressType) {
    case 2:
        m_labStage->setText(tr("Reading pictures %1").arg(counted));
        break;
    case 3:
        m_labStage->setText(tr("Comparing pictures %1").arg(counted));
        break;
    case 4:
        m_labStage->setText(tr("Checking picture details %1").arg(counted));
        break;
    default:
        break;
    }
}

QString MainWindow::unreadableText(qint64 folders, qint64 files)
{
    // Counts past two thousand million are not expected; tr's %n takes an int.
    const int f = int(std::min<qint64>(folders, INT_MAX));
    const int n = int(std::min<qint64>(files, INT_MAX));
    if (f > 0 && n > 0)
        return tr("%1 and %2 could not be read.")
            .arg(tr("%n folder(s)", nullptr, f), tr("%n file(s)", nullptr, n));
    if (f > 0)
        return tr("%n folder(s) could not be read.", nullptr, f);
    if (n > 0)
        return tr("%n file(s) could not be read.", nullptr, n);
    return QString();
}

void MainWindow::clearScanProblems()
{
    m_problemSections.clear();
    m_labProblems->clear();
    m_labProblems->setVisible(false);
    m_noResultRing->setPixmap(picture(QStringLiteral("noduplicatesfound_ring_bg.png")));
    m_noResultText->setVisible(true);
    m_labUnreadable->setVisible(false);
}

void MainWindow::showScanProblems(const ScanProblems &problems)
{
    clearScanProblems();
    const auto section = [&problems](const QString &title, ScanProblems::Kind kind) {
        return ProblemListDialog::Section {title, problems.count(kind), problems.paths(kind)};
    };
    m_problemSections = {
        section(tr("Folders that could not be read"), ScanProblems::UnreadableFolder),
        section(tr("Files that could not be read"), ScanProblems::UnreadableFile),
        section(tr("Links not followed because they lead outside the chosen folders"),
            ScanProblems::LinkOutsideRoots),
        section(tr("System folders not entered"), ScanProblems::PseudoFileSystem),
    };
    QStringList sentences;
    const QString unreadable = unreadableText(problems.count(ScanProblems::UnreadableFolder),
        problems.count(ScanProblems::UnreadableFile));
    if (!unreadable.isEmpty())
        sentences << unreadable;
    if (const qint64 links = problems.count(ScanProblems::LinkOutsideRoots))
        sentences << tr("%n link(s) leading outside the chosen folders were not followed.", nullptr,
            int(std::min<qint64>(links, INT_MAX)));
    if (!sentences.isEmpty()) {
        for (QString &sentence : sentences)
            sentence = sentence.toHtmlEscaped();
        m_labProblems->setText(
            QStringLiteral("%1 &nbsp;<a href=\"details\" style=\"color:#2f6fae;\">%2</a>")
                .arg(sentences.join(QStringLiteral("<br>")), tr("Details").toHtmlEscaped()));
        m_labProblems->setVisible(true);
    }
    if (problems.allRootsUnreadable()) {
        const bool one = problems.unreadableRoots() == 1;
        m_noResultRing->setPixmap(picture(QStringLiteral("unreadable_ring_bg.png")));
        m_noResultText->setVisible(false);
        m_labUnreadable->setText(
            QStringLiteral("<b>%1</b><br>%2")
                .arg((one ? tr("The chosen folder could not be read.")
                          : tr("The chosen folders could not be read."))
                         .toHtmlEscaped(),
                    (one ? tr("Check that it still exists and that you are allowed to open it.")
                         : tr("Check that they still exist and that you are allowed to open them."))
                        .toHtmlEscaped()));
        m_labUnreadable->setVisible(true);
        splog_d(kTag + QStringLiteral("No root of the scan could be read."));
    }
}

void MainWindow::showProblemDetails(QWidget *over)
{
    auto *dialog = new ProblemListDialog(m_problemSections, over ? over : this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void MainWindow::explainBadProjectArgument(const QString &path)
{
    const QFileInfo info(path);
    splog_d(kTag + QStringLiteral("Project argument is not a file: %1").arg(path));
    const QString shown = QDir::toNativeSeparators(info.absoluteFilePath());
    QMessageBox::warning(this, tr("Open File"),
        info.isDir() ? tr("\"%1\" is a folder, not a project file. To scan it, add it "
                          "with the + button.")
                           .arg(shown)
                     : tr("The project file \"%1\" does not exist.").arg(shown));
}

bool MainWindow::hasResults() const
{
    return !TFileData::instance()->isEmpty();
}

void MainWindow::allThreadComplate()
{
    // A project that was opened is no scan that ended.
    m_scanStopped = std::exchange(m_scanRunning, false)
        && (m_localScan ? TControlUI::instance()->wasStopped() : m_cloudStopped);
    const bool stopped = m_scanStopped;
    setStatus(StateFinished);
    // A stopped scan's progress stays where it stopped.
    if (!stopped)
        onProcessChange(100.0);
    m_labStage->setText(
        stopped ? tr("Scan stopped – results are incomplete") : tr("Scan complete"));
    if (m_localScan)
        showScanProblems(TControlUI::instance()->problems());
    else
        clearScanProblems();
    if (hasResults()) {
        m_resultKind = ResultsFound;
        setStatus(StateFinished);
        if (m_showResultsWhenDone)
            openResultPage();
    } else {
        m_resultKind = NoResults;
        m_pages->setCurrentIndex(2);
        m_btnScan->setEnabled(false);
        if (stopped)
            showStoppedWithoutResults(
                m_localScan && TControlUI::instance()->stoppedStage() == TControlUI::StageScanning);
    }
}

void MainWindow::showStoppedWithoutResults(bool beforeComparing)
{
    if (m_localScan && TControlUI::instance()->problems().allRootsUnreadable())
        return;
    m_noResultRing->setPixmap(picture(QStringLiteral("unreadable_ring_bg.png")));
    m_noResultText->setVisible(false);
    m_labUnreadable->setText(
        QStringLiteral("<b>%1</b><br>%2")
            .arg(tr("Scan stopped – results are incomplete").toHtmlEscaped(),
                (beforeComparing
                        ? tr("The scan was stopped before any files were compared.")
                        : tr("No duplicates were found among the files compared before the "
                             "stop."))
                    .toHtmlEscaped()));
    m_labUnreadable->setVisible(true);
}

void MainWindow::allCloudThreadComplated(bool isAbort)
{
    TFileData *store = TFileData::instance();
    store->clear();
    // Copies are selected by the duplicate rule, similar pictures by the picture rule, as
    // after a local scan.
    QList<GroupItemAutoSelector::KeyedGroup> copies;
    QList<GroupItemAutoSelector::KeyedGroup> pictures;
    for (auto it = m_cloudGroups.cbegin(); it != m_cloudGroups.cend(); ++it) {
        store->insertGroup(it.key(), it.value());
        const bool similar = std::any_of(it.value().cbegin(), it.value().cend(), isSimilarEntry);
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
                      return QVariant(cloud->getCFP(stripSimilarTag(entry), name));
                  },
                  preferences->selectionPreferences()->mapPriority());
          };
    select(copies, int(preferences->selectionPreferences()->selectDuplicate()));
    if (preferences->generalPreferences()->selectedSimilar())
        select(pictures, int(preferences->generalPreferences()->selectionHint()));
    m_cloudStopped = isAbort;
    allThreadComplate();
    if (const QString failure = std::exchange(m_cloudFailure, QString()); !failure.isEmpty()) {
        QMessageBox::warning(this, tr("Cloud Scan Failed"),
            tr("The cloud scan could not be completed: %1").arg(failure));
    } else if (isAbort) {
        splog_d(kTag + QStringLiteral("allCloudThreadComplated isAbort."));
        QMessageBox::information(this, tr("info"),
            tr("Thumbnail download was not completed. This may affect similar image detection "
               "results. "));
    }
}

void MainWindow::openResultPage()
{
    if (!hasResults())
        return;
    if (!m_resultPage) {
        // The main window hides while the results show; the program must not quit then.
        QApplication::setQuitOnLastWindowClosed(false);
        m_resultPage = new ResultForm(
            nullptr, m_cloudMode, m_cloudMode ? KvCloudObject::instance() : nullptr);
        m_resultPage->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_resultPage, &ResultForm::updateWindows, this, &MainWindow::onResultWindowClose);
        connect(m_resultPage, &ResultForm::problemDetailsRequested, this,
            [this] { showProblemDetails(m_resultPage); });
        connect(m_resultPage, &ResultForm::saveRequested, this, &MainWindow::saveResults);
        m_resultPage->setProjectName(
            m_projectPath.isEmpty() ? QString() : QFileInfo(m_projectPath).fileName());
        m_resultPage->setProblemText(
            m_labProblems->isVisibleTo(this) ? m_labProblems->text() : QString());
        m_resultPage->setIncompleteScan(!m_cloudMode && m_scanStopped);
    }
    hide();
    m_resultPage->show();
    m_resultPage->raise();
    m_resultPage->activateWindow();
}

void MainWindow::onResultWindowClose(bool update)
{
    // The finished page follows what the result page removed, hid or ignored (a cloud
    // page's sizes are the service's, not at hand here).
    if (update && !m_cloudMode) {
        const TFileData::Removable left = TFileData::instance()->removable();
        onItemFound(int(std::min<qint64>(left.count, INT_MAX)), left.bytes);
    }
    show();
    QApplication::setQuitOnLastWindowClosed(true);
}

// ----------------------------------------------------------------------------- projects

void MainWindow::openProject(const QString &path)
{
    // What the window shows comes back as it was when the project cannot be read.
    m_beforeOpen = BeforeOpen {m_pages->currentIndex(), m_state, m_showResultsWhenDone,
        m_ring->value(), m_labProgress->text()};
    m_showResultsWhenDone = true;
    rememberProjectFolder(path);
    setStatus(StateOpening);
    splog_d(kTag + QStringLiteral("Open project: %1").arg(path));
    m_openingPath = path;
    if (!m_projectThread->openProject(path)) {
        restoreBeforeOpen();
        return;
    }
}

void MainWindow::restoreBeforeOpen()
{
    m_openingPath.clear();
    m_showResultsWhenDone = m_beforeOpen.showResultsWhenDone;
    setStatus(m_beforeOpen.state == StateOpening ? StateReady : m_beforeOpen.state);
    m_pages->setCurrentIndex(m_beforeOpen.page);
    m_ring->setValue(m_beforeOpen.ring);
    m_labProgress->setText(m_beforeOpen.progress);
}

void MainWindow::onOpenProjectProcess(double cur, double total)
{
    if (total > 0)
        onProcessChange(cur * 100.0 / total);
}

void MainWindow::onProjectOpenComplated(int flag, int files, qint64 size)
{
    if (flag != TOpenSaveThread::ProjectSucceeded) {
        // The results on show, if any, are untouched: the store takes a project only
        // once it has been read whole.
        restoreBeforeOpen();
        QMessageBox::warning(this, tr("Open File"), TOpenSaveThread::resultText(flag));
        return;
    }
    m_projectPath = std::exchange(m_openingPath, QString());
    setTitle();
    TControlUI::instance()->setProjectPath(m_projectPath);
    // A project holds local results, whatever the window scanned before.
    m_localScan = false;
    m_cloudMode = false;
    TControlUI::instance()->setCloudMode(false);
    m_labFilter->setVisible(false);
    clearScanProblems();
    m_savedRevision = TFileData::instance()->revision();
    filesCountChange(int(m_projectThread->scanFileCount()));
    onUpdateTimer(m_projectThread->scanTime());
    Q_UNUSED(files)
    Q_UNUSED(size)
    // Counted as a scan counts: the copies that could go.
    const TFileData::Removable removable = TFileData::instance()->removable();
    onItemFound(int(std::min<qint64>(removable.count, INT_MAX)), removable.bytes);
    allThreadComplate();
}

void MainWindow::onSaveProjectComplated(int flag)
{
    if (flag == TOpenSaveThread::ProjectSucceeded)
        return;
    QMessageBox::warning(this, tr("Save File"), TOpenSaveThread::resultText(flag));
}

bool MainWindow::saveProjectBlocking(const QString &path)
{
    QEventLoop loop;
    int result = TOpenSaveThread::ProjectWriteFailed;
    const auto connection = connect(
        m_projectThread, &TOpenSaveThread::saveComplated, &loop, [&loop, &result](int flag) {
            result = flag;
            loop.quit();
        });
    // What the file will hold: the results as they are when the save starts.
    const quint64 revision = TFileData::instance()->revision();
    if (!m_projectThread->saveProject(path, m_filesScanned, m_elapsed)) {
        disconnect(connection);
        return false;
    }
    loop.exec();
    disconnect(connection);
    if (result == TOpenSaveThread::ProjectSucceeded) {
        m_projectPath = path;
        m_savedRevision = revision;
        TControlUI::instance()->setProjectPath(path);
        if (m_resultPage)
            m_resultPage->setProjectName(QFileInfo(path).fileName());
        setTitle();
    }
    return result == TOpenSaveThread::ProjectSucceeded;
}

void MainWindow::rememberProjectFolder(const QString &path)
{
    DFIgnoreListPreferences *common = DFPreferences::instance()->ignoreListPreferences();
    const QString folder = QFileInfo(path).absolutePath();
    if (common->SaveFolder() == folder)
        return;
    common->setSaveFolder(folder);
    DFPreferences::instance()->save();
}

QString MainWindow::chooseProjectFile(bool save)
{
    const QString start = DFPreferences::instance()->ignoreListPreferences()->SaveFolder();
    const QString filter = QStringLiteral("(*.dupproj)");
    QString path = save ? QFileDialog::getSaveFileName(this, tr("Save File"), start, filter)
                        : QFileDialog::getOpenFileName(this, tr("Open File"), start, filter);
    if (path.isEmpty())
        return path;
    if (save && !path.endsWith(QLatin1String(".dupproj"), Qt::CaseInsensitive))
        path += QStringLiteral(".dupproj");
    rememberProjectFolder(path);
    return path;
}

void MainWindow::saveProjectFromMenu()
{
    if (m_cloudMode) {
        QMessageBox::information(
            this, tr("Note"), tr("The cloud drive scan results cannot be saved."));
        return;
    }
    if (!hasResults())
        return;
    const QString path = chooseProjectFile(true);
    if (path.isEmpty())
        return;
    const bool previous = m_showResultsWhenDone;
    m_showResultsWhenDone = false;
    saveProjectBlocking(path);
    m_showResultsWhenDone = previous;
}

void MainWindow::openProjectFromMenu()
{
    if (!confirmDiscardResults())
        return;
    const QString path = chooseProjectFile(false);
    if (!path.isEmpty())
        openProject(path);
}

bool MainWindow::confirmDiscardResults()
{
    return askToSaveResults();
}

bool MainWindow::resultsUnsaved() const
{
    return hasResults() && !m_cloudMode
        && (m_projectPath.isEmpty() || TFileData::instance()->revision() != m_savedRevision);
}

bool MainWindow::askToSaveResults(bool stopScanBeforeSaving)
{
    if (!resultsUnsaved())
        return true;
    const bool saved = !m_projectPath.isEmpty();
    const auto answer = QMessageBox::question(this, tr("Note"),
        saved ? tr("The changes to the results have not been saved to %1. Do you want to save "
                   "them?")
                    .arg(QFileInfo(m_projectPath).fileName())
              : tr("The current scan results have not been saved. Do you want to save the file?"),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    if (answer == QMessageBox::Cancel)
        return false;
    if (answer == QMessageBox::No)
        return true;
    // The scan is stopped before the save, so that the file holds what the window shows.
    if (stopScanBeforeSaving)
        TControlUI::instance()->stop();
    const QString path = saved ? m_projectPath : chooseProjectFile(true);
    if (path.isEmpty())
        return false;
    const bool previous = std::exchange(m_showResultsWhenDone, false);
    const bool ok = saveProjectBlocking(path);
    if (!ok)
        m_showResultsWhenDone = previous;
    return ok;
}

void MainWindow::saveResults()
{
    if (m_projectPath.isEmpty()) {
        saveProjectFromMenu();
        return;
    }
    const bool previous = std::exchange(m_showResultsWhenDone, false);
    saveProjectBlocking(m_projectPath);
    m_showResultsWhenDone = previous;
}

// ----------------------------------------------------------------------------- menus

void MainWindow::onSystemMenuEvent(QAction *action)
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
        QMessageBox::about(this, tr("About"),
            tr("%1<br>Version %2 (%3)")
                .arg(AppIdentity::applicationName, AppIdentity::version, AppIdentity::buildDate));
    else if (name == QLatin1String("action_showLog"))
        QDesktopServices::openUrl(QUrl::fromLocalFile(DataDirectory::logDirectory()));
    else if (name == QLatin1String("action_dataFolder"))
        QDesktopServices::openUrl(QUrl::fromLocalFile(DataDirectory::base()));
    else if (name == QLatin1String("action_openProject"))
        openProjectFromMenu();
    else if (name == QLatin1String("action_saveProject"))
        saveProjectFromMenu();
    else if (name == QLatin1String("action_showResults"))
        openResultPage();
}

void MainWindow::languageSwitch(QAction *action)
{
    const int index = action->data().toInt();
    QSettings().setValue(SettingsKeys::language, index);
    splog_d(kTag + QStringLiteral("Language switched to %1 for the next start.").arg(index));
    QMessageBox::information(this, tr("Language"),
        tr("The new language takes effect the next time the program "
           "starts."));
}

void MainWindow::retranslate()
{
    setTitle();
    refreshCountLabel();
    setStatus(m_state);
    emit retranslateSignal();
}

void MainWindow::setTitle()
{
    const QString title = m_projectPath.isEmpty()
        ? AppIdentity::applicationName
        : QStringLiteral("%1 – %2").arg(
            QFileInfo(m_projectPath).fileName(), AppIdentity::applicationName);
    setWindowTitle(title);
    m_title->setText(title);
    refreshCountLabel();
}

void MainWindow::onTimeout()
{
    m_runReport->sendIfDue();
}

void MainWindow::on_btn_set_clicked()
{
    // A cloud scan runs outside the controller, so the window's own state counts too.
    DFPreferencesDialog dialog(
        DFPreferences::instance(),
        [this] {
            return m_state == StateScanning || m_state == StateContinue
                || TControlUI::instance()->isRunning();
        },
        this);
    connect(this, &MainWindow::retranslateSignal, &dialog, &DFPreferencesDialog::retranslate);
    dialog.exec();
}

void MainWindow::showAbnormalExitNotice()
{
    reportFeature(AppIdentity::featureDeletedExcept, QString());
    RemovalJournal journal;
    const RemovalJournal::Batch batch = journal.interruptedBatch();
    QString text;
    if (batch.id.isEmpty() || batch.signal == 0) {
        text = tr("The program exited unexpectedly during the last batch deletion,<br>possibly "
                  "due to interference from antivirus software.<br><br>Please disable your "
                  "antivirus temporarily or add this application<br>to its whitelist to avoid "
                  "deletion failures or crashes.");
    } else {
        text = tr("The last batch removal was stopped before it finished (signal %1).")
                   .arg(batch.signal);
    }
    // The journal tells how far the interrupted batch got, item by item.
    if (!batch.id.isEmpty()) {
        const qsizetype removed = batch.count(RemovalJournal::removed);
        const qsizetype unfinished = std::count_if(batch.items.cbegin(), batch.items.cend(),
            [](const RemovalJournal::Item &item) { return item.intended && !item.hasOutcome; });
        text += QStringLiteral("<br><br>")
            + tr("Items handled before it stopped: %1 of %2 (%3 removed, %4 cut off in the "
                 "middle).<br>The removal journal lists each one and where it went:<br>%5")
                  .arg(batch.items.size())
                  .arg(batch.planned)
                  .arg(removed)
                  .arg(unfinished)
                  .arg(QDir::toNativeSeparators(journal.path()).toHtmlEscaped());
        if (batch.restorable())
            text += QStringLiteral("<br><br>")
                + tr("The command line's \"restore %1\" puts its items back.").arg(batch.id);
        journal.markNoticed(batch.id);
    }
    QMessageBox::information(this, tr("Abnormal Exit Detected During Last Deletion"), text);
    DFPreferences::instance()->ignoreListPreferences()->setDeleteException(0);
    DFPreferences::instance()->save();
}

// ----------------------------------------------------------------------------- window

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (resultsUnsaved()) {
        // A scan that ends while the question is open must not open its result page over
        // a window that is closing; Cancel keeps the scan going as it was.
        const bool showResults = std::exchange(m_showResultsWhenDone, false);
        if (!askToSaveResults(true)) {
            m_showResultsWhenDone = showResults;
            event->ignore();
            return;
        }
    }
    if (m_cloudMode)
        KvCloudObject::instance()->stop_all_tasks();
    TControlUI::instance()->stop();
    event->accept();
}

void MainWindow::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton
        && m_titleFrame->geometry().contains(event->position().toPoint())) {
        m_dragging = true;
        m_dragOffset = event->globalPosition().toPoint() - frameGeometry().topLeft();
    }
    QMainWindow::mousePressEvent(event);
}

void MainWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragging && (event->buttons() & Qt::LeftButton))
        move(event->globalPosition().toPoint() - m_dragOffset);
    QMainWindow::mouseMoveEvent(event);
}

void MainWindow::mouseReleaseEvent(QMouseEvent *event)
{
    m_dragging = false;
    QMainWindow::mouseReleaseEvent(event);
}
