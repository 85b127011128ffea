// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "results/ResultForm.h"
#include "widgets/ProblemListDialog.h"

#include <QMainWindow>
#include <QModelIndexList>
#include <QPointer>
#include <QStringList>

class CloudSignIn;
class DailyRunReport;
class FolderPage;
class MainWindowMenus;
class NoResultPage;
class ProjectActions;
class QAction;
class QLabel;
class QMenu;
class QPushButton;
class QStackedWidget;
class ScanPage;
class ScanProblems;
class ScanProblemsLabel;
class TitleBar;

// The program's single window: collects the folders, starts and stops the scan through
// the scan controller, shows its progress and leads to the results. Window states:
// 1 ready, 2 scanning, 3 paused (kept in the table; nothing enters it), 4 finished,
// 5 opening a project. The pages, the cloud side and the project files are parts of their
// own; the window keeps the state, the bottom buttons, the menus and the result page.
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
    QStringList folders() const;
    QString projectPath() const;
    // The folders the last start handed to the controller (nested ones removed).
    QStringList lastScanRoots() const { return m_lastScanRoots; }
    void setShowResultsWhenDone(bool show) { m_showResultsWhenDone = show; }
    ResultForm *resultPage() const { return m_resultPage; }
    QMenu *systemMenu() const;
    QMenu *addMenu() const;

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
    bool isCloudMode() const;
    QStringList cloudFolders() const;
    QString cloudAccount() const;

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
    // The parts work on the window's state and its scan flow.
    friend class CloudSignIn;
    friend class ProjectActions;

    void buildUi();
    void buildMenus();
    void connectController();
    // The scanning page from zero, for a scan that has just started.
    void showScanStarted(bool local);
    void refreshCountLabel();
    void updateFolderPageView();
    void startLocalScan();
    void openResultPage();
    bool hasResults() const;
    void showAbnormalExitNotice();
    void clearScanProblems();
    // The one optional argument names something that is not a project file.
    void explainBadProjectArgument(const QString &path);

    int m_state = StateReady;
    int m_resultKind = ResultsFound;
    bool m_showResultsWhenDone = true;
    QStringList m_lastScanRoots;
    qint64 m_filesScanned = 0;
    QString m_elapsed = QStringLiteral("00:00:00");
    // Set while the finished pages belong to a local scan started here: only then do the
    // controller's scan problems describe what is shown (not after a project or cloud scan).
    bool m_localScan = false;
    // A scan runs (not a project being opened); the results shown are those of a scan
    // stopped before its end.
    bool m_scanRunning = false;
    bool m_scanStopped = false;

    FolderPage *m_folderPage = nullptr;
    ScanPage *m_scanPage = nullptr;
    NoResultPage *m_noResultPage = nullptr;
    CloudSignIn *m_cloud = nullptr;
    ProjectActions *m_projects = nullptr;
    TitleBar *m_titleFrame = nullptr;
    QStackedWidget *m_pages = nullptr;
    ScanProblemsLabel *m_labProblems = nullptr;
    QPushButton *m_btnAdd = nullptr;
    QPushButton *m_btnScan = nullptr;
    MainWindowMenus *m_menus = nullptr;
    DailyRunReport *m_runReport = nullptr;
    QPointer<ResultForm> m_resultPage;
    QPoint m_dragOffset;
    bool m_dragging = false;
};
