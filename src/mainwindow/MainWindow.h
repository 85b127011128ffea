// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/CloudFolderInfo.h"
#include "results/ResultForm.h"
#include "widgets/ProblemListDialog.h"

#include <QMainWindow>
#include <QModelIndexList>
#include <QPointer>
#include <QSet>
#include <QStringList>

class CRotateLabel;
class DailyRunReport;
class QAction;
class QActionGroup;
class QFrame;
class QLabel;
class QListView;
class QMenu;
class QMessageBox;
class QPushButton;
class QStackedWidget;
class QStandardItemModel;
class RoundProgressBar;
class ScanProblems;
class TOpenSaveThread;

// The program's single window: collects the folders, starts and stops the scan through
// the scan controller, shows its progress and leads to the results. Window states:
// 1 ready, 2 scanning, 3 paused (kept in the table; nothing enters it), 4 finished,
// 5 opening a project.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    enum State {
        StateReady = 1,
        StateScanning = 2,
        StateContinue = 3,
        StateFinished = 4,
        StateOpening = 5,
    };
    enum ResultKind {
        ResultsFound = 1,
        NoResults = 2,
    };

    explicit MainWindow(const QStringList &arguments, QWidget *parent = nullptr);
    ~MainWindow() override;

    int state() const { return m_state; }
    int resultKind() const { return m_resultKind; }
    QStringList folders() const { return m_folders; }
    QString projectPath() const { return m_projectPath; }
    // The folders the last start handed to the controller (nested ones removed).
    QStringList lastScanRoots() const { return m_lastScanRoots; }
    void setShowResultsWhenDone(bool show) { m_showResultsWhenDone = show; }
    ResultForm *resultPage() const { return m_resultPage; }
    QMenu *systemMenu() const { return m_systemMenu; }
    QMenu *addMenu() const { return m_addMenu; }

    // Adds one folder to the list; false when it is already listed or not a folder.
    bool addFolder(const QString &path);
    // Opens a project file as the menu does; a project that cannot be read leaves the
    // window and its results as they were.
    void openProject(const QString &path);
    // Adds the folders among paths given where folders are expected (a drop, the folder
    // chooser) and tells the user, in one message, which of them are files or missing.
    void addFolders(const QStringList &paths);
    // Shows on the finished pages what a scan could not read or did not follow; with
    // every root unreadable the "nothing found" page turns into a warning.
    void showScanProblems(const ScanProblems &problems);
    // The no-results page after a stop: no all-clear, the stop said instead.
    void showStoppedWithoutResults(bool beforeComparing);
    // The scanning page names the file-type filter of the settings, when one is in force:
    // a scan that leaves files out by their type says so while it runs.
    void showTypeFilter();
    // "3 folders and 1 file could not be read" in the current language; empty when both
    // counts are 0.
    static QString unreadableText(qint64 folders, qint64 files);
    void setStatus(int state);
    bool isCloudMode() const { return m_cloudMode; }
    QStringList cloudFolders() const { return m_cloudFolders; }
    QString cloudAccount() const { return m_cloudAccount; }

public slots:
    void on_btnAdd_clicked();
    void on_btn_scan_clicked();
    void on_local_menu_add_clicked();
    void on_cloud_menu_clicked();
    void on_btn_pre_clicked();
    void on_btn_next_clicked();
    void on_btn_set_clicked();
    void on_listview_path_indexesMoved(const QModelIndexList &indexes);
    void setPushButtonEnable();
    void deleteSelectPath(const QModelIndex &index);
    void filesCountChange(int fileCount);
    void onProcessChange(double value);
    void onItemFound(int number, qint64 total);
    void onUpdateTimer(const QString &time);
    void onStageChanged(int stage);
    void onPicturesCounted(int progressType, int done, int total);
    void allThreadComplate();
    void allCloudThreadComplated(bool isAbort);
    // The chooser of the account's folders, after a sign-in.
    void showSelectFolderDialog(const QString &account, int cloudType);
    void onResultWindowClose(bool update);
    void onProjectOpenComplated(int flag, int files, qint64 size);
    void onOpenProjectProcess(double cur, double total);
    void onSaveProjectComplated(int flag);
    void onSystemMenuEvent(QAction *action);
    void languageSwitch(QAction *action);
    void retranslate();
    void setTitle();
    void onTimeout();
    // Opens the list of the paths the last scan could not read or did not follow.
    // Over the given window (the result page) or this one.
    void showProblemDetails(QWidget *over = nullptr);

signals:
    void retranslateSignal();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void buildUi();
    void buildTitleFrame(QWidget *parent);
    QWidget *buildFolderPage();
    QWidget *buildScanPage();
    QWidget *buildNoResultPage();
    void buildMenus();
    void connectController();
    void connectCloud();
    void startCloudScan();
    // The scanning page from zero, for a scan that has just started.
    void showScanStarted(bool local);
    // One row of the folder list for a chosen cloud folder.
    void addCloudRow(const CloudFolderInfo &folder);
    void refreshCountLabel();
    void updateFolderPageView();
    void startLocalScan();
    void openResultPage();
    // Asks to save unsaved results: true to go on, false to stay (Cancel or failed save).
    bool confirmDiscardResults();
    // Runs a save and waits for its end while the window keeps painting.
    bool saveProjectBlocking(const QString &path);
    void saveProjectFromMenu();
    // File dialog for a project, starting in the folder used last; the chosen folder is
    // kept in the preferences ("SaveFolder") for the next time.
    QString chooseProjectFile(bool save);
    void rememberProjectFolder(const QString &path);
    void openProjectFromMenu();
    bool hasResults() const;
    // Results that would be lost: never saved, or changed since they were saved or opened.
    bool resultsUnsaved() const;
    // The page's Save: to the project file the results have, else to a file the user
    // names.
    void saveResults();
    // Asks whether to save results that would be lost; false when the user cancels or the
    // save fails. stopScanBeforeSaving: a running scan is stopped before a Yes saves.
    bool askToSaveResults(bool stopScanBeforeSaving = false);
    void showAbnormalExitNotice();
    void clearScanProblems();
    // The one optional argument names something that is not a project file.
    void explainBadProjectArgument(const QString &path);

    int m_state = StateReady;
    int m_resultKind = ResultsFound;
    bool m_showResultsWhenDone = true;
    bool m_cloudMode = false;
    QStringList m_folders;
    QStringList m_cloudFolders;
    QString m_cloudAccount;
    int m_cloudType = 0;
    // Set from a pick in the add menu until its sign-in answers; the box tells the user
    // to finish it in the browser and can give it up.
    bool m_signingIn = false;
    // Services whose folders could not be listed: the next pick signs in anew.
    QSet<int> m_newSignIn;
    QPointer<QMessageBox> m_signInBox;
    void showSignInBox(const QString &service);
    void closeSignInBox();
    // The groups of the running cloud scan, and why it failed if it did.
    QHash<QString, QList<QString>> m_cloudGroups;
    QString m_cloudFailure;
    int m_cloudInteger = 20;
    QStringList m_lastScanRoots;
    QString m_projectPath;
    qint64 m_filesScanned = 0;
    QString m_elapsed = QStringLiteral("00:00:00");
    // Set while the finished pages belong to a local scan started here: only then do the
    // controller's scan problems describe what is shown (not after a project or cloud scan).
    bool m_localScan = false;
    // The last cloud scan was stopped or cut short.
    bool m_cloudStopped = false;
    // A scan runs (not a project being opened); the results shown are those of a scan
    // stopped before its end.
    bool m_scanRunning = false;
    bool m_scanStopped = false;
    // The store's revision when the results were last saved or opened.
    quint64 m_savedRevision = 0;
    // A project being opened, and what the window showed before.
    QString m_openingPath;
    struct BeforeOpen
    {
        int page = 0;
        int state = StateReady;
        bool showResultsWhenDone = true;
        double ring = 0;
        QString progress;
    };
    BeforeOpen m_beforeOpen;
    void restoreBeforeOpen();
    QList<ProblemListDialog::Section> m_problemSections;

    QFrame *m_titleFrame = nullptr;
    QLabel *m_title = nullptr;
    QStackedWidget *m_pages = nullptr;
    QLabel *m_background = nullptr;
    QLabel *m_dragHint = nullptr;
    QListView *m_pathView = nullptr;
    QStandardItemModel *m_pathModel = nullptr;
    QLabel *m_labNumber = nullptr;
    CRotateLabel *m_animation = nullptr;
    RoundProgressBar *m_ring = nullptr;
    QLabel *m_labFileNumber = nullptr;
    QLabel *m_labFindNumber = nullptr;
    QLabel *m_labFindSize = nullptr;
    QLabel *m_labProgress = nullptr;
    QLabel *m_labFindTime = nullptr;
    // What the scan is doing, or that it was stopped.
    QLabel *m_labStage = nullptr;
    // The file-type filter in force, when there is one.
    QLabel *m_labFilter = nullptr;
    QLabel *m_labProblems = nullptr;
    QLabel *m_noResultRing = nullptr;
    QLabel *m_noResultText = nullptr;
    QLabel *m_labUnreadable = nullptr;
    QPushButton *m_btnAdd = nullptr;
    QPushButton *m_btnScan = nullptr;
    QPushButton *m_btnSet = nullptr;
    QPushButton *m_btnMenu = nullptr;
    QPushButton *m_btnMinimize = nullptr;
    QPushButton *m_btnClose = nullptr;
    QPushButton *m_btnPre = nullptr;
    QPushButton *m_btnNext = nullptr;
    QMenu *m_addMenu = nullptr;
    QMenu *m_systemMenu = nullptr;
    QMenu *m_languageMenu = nullptr;
    QActionGroup *m_languageGroup = nullptr;
    QList<QAction *> m_stateActions;
    QAction *m_actShowResults = nullptr;
    QAction *m_actOpenProject = nullptr;
    QAction *m_actSaveProject = nullptr;
    TOpenSaveThread *m_projectThread = nullptr;
    DailyRunReport *m_runReport = nullptr;
    QPointer<ResultForm> m_resultPage;
    QPoint m_dragOffset;
    bool m_dragging = false;
};
