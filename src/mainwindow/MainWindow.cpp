// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/MainWindow.h"

#include "app/AppIdentity.h"
#include "app/BuildSettings.h"
#include "app/DailyRunReport.h"
#include "app/EnvironmentLog.h"
#include "app/LogTags.h"
#include "app/TLogger.h"
#include "cloud/KvCloudObject.h"
#include "engine/ProtectedFolders.h"
#include "engine/ScanProblems.h"
#include "engine/TFileData.h"
#include "fileops/RemovalJournal.h"
#include "fileops/TOpenSaveThread.h"
#include "mainwindow/CloudSignIn.h"
#include "mainwindow/FolderPage.h"
#include "mainwindow/MainWindowMenus.h"
#include "mainwindow/NoResultPage.h"
#include "mainwindow/ProjectActions.h"
#include "mainwindow/ScanPage.h"
#include "mainwindow/ScanProblemsLabel.h"
#include "mainwindow/ScanRootList.h"
#include "mainwindow/StartNotices.h"
#include "mainwindow/TitleBar.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "scancontrol/TControlUI.h"
#include "settingsdialog/DFPreferencesDialog.h"
#include "widgets/RoundTextButton.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// The log tag of this file.
const QString &kTag = LogTags::mainWindow;

} // namespace

MainWindow::MainWindow(const QStringList &arguments, QWidget *parent) : QMainWindow(parent)
{
    QCoreApplication::setOrganizationName(AppIdentity::organizationName);
    QCoreApplication::setApplicationName(AppIdentity::applicationName);
    EnvironmentLog::write();

    setObjectName(QStringLiteral("MainWindow"));
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setAcceptDrops(true);
    m_projects = new ProjectActions(this);
    buildUi();
    buildMenus();
    connectController();
    m_cloud = new CloudSignIn(this);
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
        QTimer::singleShot(
            0, this, [this, problem] { StartNotices::explainSettingsNotLoaded(this, problem); });

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
    m_projects->thread()->wait();
    if (m_resultPage)
        delete m_resultPage;
    splog_d(kTag + QStringLiteral("Program is exit") + QString(57, QLatin1Char('.')));
}

QStringList MainWindow::folders() const
{
    return m_folderPage->folders();
}

QString MainWindow::projectPath() const
{
    return m_projects->projectPath();
}

bool MainWindow::isCloudMode() const
{
    return m_cloud->isCloudMode();
}

QStringList MainWindow::cloudFolders() const
{
    return m_folderPage->cloudFolders();
}

QString MainWindow::cloudAccount() const
{
    return m_cloud->account();
}

QMenu *MainWindow::systemMenu() const
{
    return m_menus->systemMenu();
}

QMenu *MainWindow::addMenu() const
{
    return m_menus->addMenu();
}

// ----------------------------------------------------------------------------- layout

void MainWindow::buildUi()
{
    auto *central = new QWidget(this);
    central->setObjectName(QStringLiteral("centralwidget"));
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_titleFrame = new TitleBar(central);
    layout->addWidget(m_titleFrame);

    m_pages = new QStackedWidget(central);
    m_pages->setObjectName(QStringLiteral("stackedWidget"));
    m_folderPage = new FolderPage;
    m_scanPage = new ScanPage;
    m_noResultPage = new NoResultPage;
    m_pages->addWidget(m_folderPage);
    m_pages->addWidget(m_scanPage);
    m_pages->addWidget(m_noResultPage);
    connect(m_folderPage, &FolderPage::deleteRequested, this, &MainWindow::deleteSelectPath);
    connect(
        m_folderPage, &FolderPage::indexesMoved, this, &MainWindow::on_listview_path_indexesMoved);
    connect(m_folderPage, &FolderPage::currentChanged, this, &MainWindow::setPushButtonEnable);
    layout->addWidget(m_pages, 1);

    // What the last scan could not read; shown under the scanning and "nothing found"
    // pages once a scan has ended with something left out.
    m_labProblems = new ScanProblemsLabel(central);
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
    connect(m_titleFrame->settingsButton(), &QPushButton::clicked, this,
        &MainWindow::on_btn_set_clicked);
    connect(m_titleFrame->minimizeButton(), &QPushButton::clicked, this, &QWidget::showMinimized);
    connect(m_titleFrame->closeButton(), &QPushButton::clicked, this, &QWidget::close);
    connect(m_folderPage, &FolderPage::previousClicked, this, &MainWindow::on_btn_pre_clicked);
    connect(m_folderPage, &FolderPage::nextClicked, this, &MainWindow::on_btn_next_clicked);
}

void MainWindow::buildMenus()
{
    m_menus = new MainWindowMenus(this);
    QPushButton *button = m_titleFrame->menuButton();
    connect(button, &QPushButton::clicked, this, [this, button] {
        m_menus->systemMenu()->popup(button->mapToGlobal(QPoint(0, button->height())));
    });
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
    TOpenSaveThread *projectThread = m_projects->thread();
    connect(projectThread, &TOpenSaveThread::openProjectComplated, this,
        &MainWindow::onProjectOpenComplated, Qt::QueuedConnection);
    connect(projectThread, &TOpenSaveThread::saveComplated, this,
        &MainWindow::onSaveProjectComplated, Qt::QueuedConnection);
    connect(projectThread, &TOpenSaveThread::openProjectProcess, this,
        &MainWindow::onOpenProjectProcess);
}

// ----------------------------------------------------------------------------- states

void MainWindow::setStatus(int state)
{
    m_state = state;
    auto enableActions = [this](std::initializer_list<bool> enabled) {
        int i = 0;
        for (bool on : enabled)
            m_menus->stateAction(i++)->setEnabled(on);
    };
    switch (state) {
    case StateReady:
        m_btnAdd->setEnabled(true);
        m_btnAdd->setText(QString());
        m_btnAdd->setIcon(QIcon(QStringLiteral(":/resource/button_plus_enable.png")));
        m_btnScan->setText(tr("Scan"));
        m_btnScan->setEnabled(!m_folderPage->isEmpty());
        m_scanPage->setRotating(false);
        m_scanPage->showZero();
        enableActions({true, true, false, false});
        break;
    case StateScanning:
        m_btnAdd->setEnabled(true);
        m_btnAdd->setIcon(QIcon());
        m_btnAdd->setText(tr("Stop"));
        m_btnScan->setEnabled(false);
        enableActions({false, false, false, false});
        m_scanPage->setRotating(true);
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
        m_scanPage->setRotating(false);
        if (m_resultKind == ResultsFound) {
            m_btnScan->setText(tr("Show results"));
            m_btnScan->setEnabled(true);
        }
        break;
    case StateOpening:
        m_btnAdd->setEnabled(false);
        m_pages->setCurrentIndex(1);
        m_scanPage->setRingValue(0);
        m_menus->stateAction(1)->setEnabled(false);
        m_menus->stateAction(2)->setEnabled(false);
        m_menus->stateAction(3)->setEnabled(false);
        break;
    default:
        break;
    }
    updateFolderPageView();
}

// ----------------------------------------------------------------------------- folders

bool MainWindow::addFolder(const QString &path)
{
    if (!m_folderPage->addFolder(path))
        return false;
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
    m_folderPage->tellRefused(sorted);
}

void MainWindow::refreshCountLabel()
{
    m_folderPage->refreshCountLabel(m_cloud->isCloudMode(), m_cloud->account());
}

void MainWindow::updateFolderPageView()
{
    m_folderPage->updateView(m_cloud->isCloudMode());
}

void MainWindow::deleteSelectPath(const QModelIndex &index)
{
    if (!index.isValid() || m_state != StateReady)
        return;
    const QString folder = m_folderPage->removeRow(index);
    if (m_cloud->isCloudMode() && m_folderPage->cloudFolders().isEmpty())
        m_cloud->leaveCloudMode();
    splog_d(kTag + QStringLiteral("Remove a directory :%1").arg(folder));
    refreshCountLabel();
    setPushButtonEnable();
    updateFolderPageView();
}

void MainWindow::on_local_menu_add_clicked()
{
    if (m_folderPage->refuseLocalBesideCloud())
        return;
    const QString folder = m_folderPage->chooseLocalFolder();
    if (folder.isEmpty())
        return;
    m_cloud->setCloudMode(false);
    addFolders({folder});
}

void MainWindow::on_cloud_menu_clicked()
{
    const auto *action = qobject_cast<QAction *>(sender());
    m_cloud->pickService(action ? action->data().toInt() : 0);
}

void MainWindow::showSelectFolderDialog(const QString &account, int cloudType)
{
    if (!m_cloud->chooseFolders(account, cloudType))
        return;
    refreshCountLabel();
    setPushButtonEnable();
    updateFolderPageView();
}

void MainWindow::on_btn_pre_clicked()
{
    m_folderPage->selectPrevious();
    setPushButtonEnable();
}

void MainWindow::on_btn_next_clicked()
{
    m_folderPage->selectNext();
    setPushButtonEnable();
}

void MainWindow::on_listview_path_indexesMoved(const QModelIndexList &)
{
    setPushButtonEnable();
}

void MainWindow::setPushButtonEnable()
{
    m_folderPage->updateArrows();
    if (m_state == StateReady)
        m_btnScan->setEnabled(!m_folderPage->isEmpty());
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    event->setDropAction(Qt::LinkAction);
    if (m_state == StateReady && FolderPage::acceptsDrag(event))
        event->accept();
    else
        event->ignore();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    if (m_state != StateReady)
        return;
    if (m_folderPage->refuseLocalBesideCloud())
        return;
    m_cloud->setCloudMode(false);
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
        m_menus->addMenu()->popup(m_btnAdd->mapToGlobal(QPoint(0, m_btnAdd->height())));
        break;
    case StateScanning:
        // A stopped scan ends with what it found so far.
        if (m_cloud->isCloudMode())
            KvCloudObject::instance()->stop_all_tasks();
        else
            TControlUI::instance()->stop();
        setStatus(StateFinished);
        break;
    case StateContinue:
        if (!m_cloud->isCloudMode())
            setStatus(StateScanning);
        break;
    case StateFinished: {
        if (!m_projects->confirmDiscardResults())
            return;
        TControlUI::instance()->stop();
        if (m_resultPage)
            m_resultPage->deleteLater();
        TFileData::instance()->clear();
        m_showResultsWhenDone = true;
        m_pages->setCurrentIndex(0);
        m_folderPage->clear();
        m_cloud->reset();
        m_projects->forgetProject();
        setTitle();
        m_resultKind = ResultsFound;
        m_localScan = false;
        clearScanProblems();
        m_scanPage->setElapsed(QStringLiteral("00:00:00"));
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
    if (m_cloud->isCloudMode()) {
        if (!m_folderPage->cloudFolders().isEmpty()) {
            // Local folders protect nothing of a cloud account.
            TFileData::instance()->setProtectedFolders({});
            m_cloud->startScan();
        }
        return;
    }
    if (m_folderPage->folders().isEmpty())
        return;
    startLocalScan();
}

void MainWindow::startLocalScan()
{
    const QStringList roots = ScanRootList::pruneNested(m_folderPage->folders());
    // The locked rows and the settings' list together; the finder's selection already
    // leaves what they hold alone.
    TFileData::instance()->setProtectedFolders(ProtectedFolders(m_folderPage->protectedFolders()
        + DFPreferences::instance()->ignoreListPreferences()->ProtectedFolderList()));
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
    m_projects->forgetProject();
    setTitle();
    m_resultKind = ResultsFound;
    m_filesScanned = 0;
    m_scanPage->showStarted(local);
    m_pages->setCurrentIndex(1);
    setStatus(StateScanning);
}

void MainWindow::showTypeFilter()
{
    m_scanPage->showTypeFilter();
}

void MainWindow::filesCountChange(int fileCount)
{
    m_filesScanned = fileCount;
    m_scanPage->setFilesScanned(fileCount);
}

void MainWindow::onProcessChange(double value)
{
    m_scanPage->setProgress(value);
}

void MainWindow::onItemFound(int number, qint64 total)
{
    m_scanPage->setFound(number, total);
}

void MainWindow::onUpdateTimer(const QString &time)
{
    m_elapsed = time;
    m_scanPage->setElapsed(time);
}

void MainWindow::onStageChanged(int stage)
{
    m_scanPage->showStage(stage);
}

void MainWindow::onPicturesCounted(int progressType, int done, int total)
{
    m_scanPage->showPicturesCounted(progressType, done, total);
}

QString MainWindow::unreadableText(qint64 folders, qint64 files)
{
    return ScanProblemsLabel::unreadableText(folders, files);
}

void MainWindow::clearScanProblems()
{
    m_labProblems->clearProblems();
    m_noResultPage->showAllClear();
}

void MainWindow::showScanProblems(const ScanProblems &problems)
{
    clearScanProblems();
    m_labProblems->showProblems(problems);
    if (problems.allRootsUnreadable()) {
        m_noResultPage->showRootsUnreadable(problems.unreadableRoots() == 1);
        splog_d(kTag + QStringLiteral("No root of the scan could be read."));
    }
}

void MainWindow::showProblemDetails(QWidget *over)
{
    auto *dialog = new ProblemListDialog(m_labProblems->sections(), over ? over : this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void MainWindow::explainBadProjectArgument(const QString &path)
{
    StartNotices::explainBadProjectArgument(this, path);
}

bool MainWindow::hasResults() const
{
    return !TFileData::instance()->isEmpty();
}

void MainWindow::allThreadComplate()
{
    // A project that was opened is no scan that ended.
    m_scanStopped = std::exchange(m_scanRunning, false)
        && (m_localScan ? TControlUI::instance()->wasStopped() : m_cloud->wasStopped());
    const bool stopped = m_scanStopped;
    setStatus(StateFinished);
    // A stopped scan's progress stays where it stopped.
    if (!stopped)
        onProcessChange(100.0);
    m_scanPage->showEnd(stopped);
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
    m_noResultPage->showStopped(beforeComparing);
}

void MainWindow::allCloudThreadComplated(bool isAbort)
{
    m_cloud->finishScan(isAbort);
}

void MainWindow::openResultPage()
{
    if (!hasResults())
        return;
    if (!m_resultPage) {
        // The main window hides while the results show; the program must not quit then.
        QApplication::setQuitOnLastWindowClosed(false);
        const bool cloudMode = m_cloud->isCloudMode();
        m_resultPage
            = new ResultForm(nullptr, cloudMode, cloudMode ? KvCloudObject::instance() : nullptr);
        m_resultPage->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_resultPage, &ResultForm::updateWindows, this, &MainWindow::onResultWindowClose);
        connect(m_resultPage, &ResultForm::problemDetailsRequested, this,
            [this] { showProblemDetails(m_resultPage); });
        connect(m_resultPage, &ResultForm::saveRequested, m_projects, &ProjectActions::saveResults);
        const QString projectPath = m_projects->projectPath();
        m_resultPage->setProjectName(
            projectPath.isEmpty() ? QString() : QFileInfo(projectPath).fileName());
        m_resultPage->setProblemText(
            m_labProblems->isVisibleTo(this) ? m_labProblems->text() : QString());
        m_resultPage->setIncompleteScan(!cloudMode && m_scanStopped);
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
    if (update && !m_cloud->isCloudMode()) {
        const TFileData::Removable left = TFileData::instance()->removable();
        onItemFound(int(std::min<qint64>(left.count, INT_MAX)), left.bytes);
    }
    show();
    QApplication::setQuitOnLastWindowClosed(true);
}

// ----------------------------------------------------------------------------- projects

void MainWindow::openProject(const QString &path)
{
    m_projects->openProject(path);
}

void MainWindow::onOpenProjectProcess(double cur, double total)
{
    m_projects->showOpenProgress(cur, total);
}

void MainWindow::onProjectOpenComplated(int flag, int files, qint64 size)
{
    Q_UNUSED(files)
    Q_UNUSED(size)
    m_projects->openFinished(flag);
}

void MainWindow::onSaveProjectComplated(int flag)
{
    m_projects->saveFinished(flag);
}

// ----------------------------------------------------------------------------- menus

void MainWindow::onSystemMenuEvent(QAction *action)
{
    const QString name = action->objectName();
    if (name == QLatin1String("action_openProject"))
        m_projects->openProjectFromMenu();
    else if (name == QLatin1String("action_saveProject"))
        m_projects->saveProjectFromMenu();
    else if (name == QLatin1String("action_showResults"))
        openResultPage();
    else
        m_menus->runEntry(action);
}

void MainWindow::languageSwitch(QAction *action)
{
    m_menus->switchLanguage(action);
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
    const QString title = m_projects->title();
    setWindowTitle(title);
    m_titleFrame->setTitle(title);
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
    StartNotices::showAbnormalExit(this);
}

// ----------------------------------------------------------------------------- window

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_projects->resultsUnsaved()) {
        // A scan that ends while the question is open must not open its result page over
        // a window that is closing; Cancel keeps the scan going as it was.
        const bool showResults = std::exchange(m_showResultsWhenDone, false);
        if (!m_projects->askToSaveResults(true)) {
            m_showResultsWhenDone = showResults;
            event->ignore();
            return;
        }
    }
    if (m_cloud->isCloudMode())
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
