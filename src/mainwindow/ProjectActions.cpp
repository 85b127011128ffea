// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/ProjectActions.h"

#include "app/AppIdentity.h"
#include "app/LogTags.h"
#include "app/TLogger.h"
#include "engine/TFileData.h"
#include "fileops/TOpenSaveThread.h"
#include "mainwindow/CloudSignIn.h"
#include "mainwindow/ScanPage.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "scancontrol/TControlUI.h"

#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QStackedWidget>

namespace {

const QString &kTag = LogTags::mainWindow;

} // namespace

ProjectActions::ProjectActions(MainWindow *window)
    : QObject(window), m_window(window), m_projectThread(new TOpenSaveThread(this))
{ }

QString ProjectActions::title() const
{
    return m_projectPath.isEmpty()
        ? AppIdentity::applicationName
        : QStringLiteral("%1 – %2").arg(
            QFileInfo(m_projectPath).fileName(), AppIdentity::applicationName);
}

void ProjectActions::openProject(const QString &path)
{
    // What the window shows comes back as it was when the project cannot be read.
    m_beforeOpen = BeforeOpen {m_window->m_pages->currentIndex(), m_window->m_state,
        m_window->m_showResultsWhenDone, m_window->m_scanPage->ringValue(),
        m_window->m_scanPage->progressText()};
    m_window->m_showResultsWhenDone = true;
    rememberProjectFolder(path);
    m_window->setStatus(MainWindow::StateOpening);
    splog_d(kTag + QStringLiteral("Open project: %1").arg(path));
    m_openingPath = path;
    if (!m_projectThread->openProject(path)) {
        restoreBeforeOpen();
        return;
    }
}

void ProjectActions::restoreBeforeOpen()
{
    m_openingPath.clear();
    m_window->m_showResultsWhenDone = m_beforeOpen.showResultsWhenDone;
    m_window->setStatus(m_beforeOpen.state == MainWindow::StateOpening ? MainWindow::StateReady
                                                                       : m_beforeOpen.state);
    m_window->m_pages->setCurrentIndex(m_beforeOpen.page);
    m_window->m_scanPage->setRingValue(m_beforeOpen.ring);
    m_window->m_scanPage->setProgressText(m_beforeOpen.progress);
}

void ProjectActions::showOpenProgress(double cur, double total)
{
    if (total > 0)
        m_window->onProcessChange(cur * 100.0 / total);
}

void ProjectActions::openFinished(int flag)
{
    if (flag != TOpenSaveThread::ProjectSucceeded) {
        // The results on show, if any, are untouched: the store takes a project only
        // once it has been read whole.
        restoreBeforeOpen();
        QMessageBox::warning(
            m_window, MainWindow::tr("Open File"), TOpenSaveThread::resultText(flag));
        return;
    }
    m_projectPath = std::exchange(m_openingPath, QString());
    m_window->setTitle();
    TControlUI::instance()->setProjectPath(m_projectPath);
    // A project holds local results, whatever the window scanned before.
    m_window->m_localScan = false;
    m_window->m_cloud->setCloudMode(false);
    TControlUI::instance()->setCloudMode(false);
    m_window->m_scanPage->hideTypeFilter();
    m_window->clearScanProblems();
    m_savedRevision = TFileData::instance()->revision();
    m_window->filesCountChange(int(m_projectThread->scanFileCount()));
    m_window->onUpdateTimer(m_projectThread->scanTime());
    // Counted as a scan counts: the copies that could go.
    const TFileData::Removable removable = TFileData::instance()->removable();
    m_window->onItemFound(int(std::min<qint64>(removable.count, INT_MAX)), removable.bytes);
    m_window->allThreadComplate();
}

void ProjectActions::saveFinished(int flag)
{
    if (flag == TOpenSaveThread::ProjectSucceeded)
        return;
    QMessageBox::warning(m_window, MainWindow::tr("Save File"), TOpenSaveThread::resultText(flag));
}

bool ProjectActions::saveProjectBlocking(const QString &path)
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
    if (!m_projectThread->saveProject(path, m_window->m_filesScanned, m_window->m_elapsed)) {
        disconnect(connection);
        return false;
    }
    loop.exec();
    disconnect(connection);
    if (result == TOpenSaveThread::ProjectSucceeded) {
        m_projectPath = path;
        m_savedRevision = revision;
        TControlUI::instance()->setProjectPath(path);
        if (m_window->m_resultPage)
            m_window->m_resultPage->setProjectName(QFileInfo(path).fileName());
        m_window->setTitle();
    }
    return result == TOpenSaveThread::ProjectSucceeded;
}

void ProjectActions::rememberProjectFolder(const QString &path)
{
    DFIgnoreListPreferences *common = DFPreferences::instance()->ignoreListPreferences();
    const QString folder = QFileInfo(path).absolutePath();
    if (common->SaveFolder() == folder)
        return;
    common->setSaveFolder(folder);
    DFPreferences::instance()->save();
}

QString ProjectActions::chooseProjectFile(bool save)
{
    const QString start = DFPreferences::instance()->ignoreListPreferences()->SaveFolder();
    const QString filter = QStringLiteral("(*.dupproj)");
    QString path = save
        ? QFileDialog::getSaveFileName(m_window, MainWindow::tr("Save File"), start, filter)
        : QFileDialog::getOpenFileName(m_window, MainWindow::tr("Open File"), start, filter);
    if (path.isEmpty())
        return path;
    if (save && !path.endsWith(QLatin1String(".dupproj"), Qt::CaseInsensitive))
        path += QStringLiteral(".dupproj");
    rememberProjectFolder(path);
    return path;
}

void ProjectActions::saveProjectFromMenu()
{
    if (m_window->isCloudMode()) {
        QMessageBox::information(m_window, MainWindow::tr("Note"),
            MainWindow::tr("The cloud drive scan results cannot be saved."));
        return;
    }
    if (!m_window->hasResults())
        return;
    const QString path = chooseProjectFile(true);
    if (path.isEmpty())
        return;
    const bool previous = m_window->m_showResultsWhenDone;
    m_window->m_showResultsWhenDone = false;
    saveProjectBlocking(path);
    m_window->m_showResultsWhenDone = previous;
}

void ProjectActions::openProjectFromMenu()
{
    if (!confirmDiscardResults())
        return;
    const QString path = chooseProjectFile(false);
    if (!path.isEmpty())
        m_window->openProject(path);
}

bool ProjectActions::confirmDiscardResults()
{
    return askToSaveResults();
}

bool ProjectActions::resultsUnsaved() const
{
    return m_window->hasResults() && !m_window->isCloudMode()
        && (m_projectPath.isEmpty() || TFileData::instance()->revision() != m_savedRevision);
}

bool ProjectActions::askToSaveResults(bool stopScanBeforeSaving)
{
    if (!resultsUnsaved())
        return true;
    const bool saved = !m_projectPath.isEmpty();
    const auto answer = QMessageBox::question(m_window, MainWindow::tr("Note"),
        saved ? MainWindow::tr("The changes to the results have not been saved to %1. Do you "
                               "want to save them?")
                    .arg(QFileInfo(m_projectPath).fileName())
              : MainWindow::tr(
                  "The current scan results have not been saved. Do you want to save the file?"),
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
    const bool previous = std::exchange(m_window->m_showResultsWhenDone, false);
    const bool ok = saveProjectBlocking(path);
    if (!ok)
        m_window->m_showResultsWhenDone = previous;
    return ok;
}

void ProjectActions::saveResults()
{
    if (m_projectPath.isEmpty()) {
        saveProjectFromMenu();
        return;
    }
    const bool previous = std::exchange(m_window->m_showResultsWhenDone, false);
    saveProjectBlocking(m_projectPath);
    m_window->m_showResultsWhenDone = previous;
}
