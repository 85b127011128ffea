// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "mainwindow/MainWindow.h"

#include <QObject>
#include <QString>

class TOpenSaveThread;

// The window's project files: opening one (and what the window showed before, for when it
// cannot be read), saving the results, the question before unsaved results are lost, and
// the project's name in the title.
class ProjectActions : public QObject
{
    Q_OBJECT
public:
    explicit ProjectActions(MainWindow *window);

    TOpenSaveThread *thread() const { return m_projectThread; }
    QString projectPath() const { return m_projectPath; }
    // A scan starts or the window starts over: no project.
    void forgetProject() { m_projectPath.clear(); }
    QString title() const;

    // Opens a project file as the menu does; a project that cannot be read leaves the
    // window and its results as they were.
    void openProject(const QString &path);
    void showOpenProgress(double cur, double total);
    void openFinished(int flag);
    void saveFinished(int flag);
    void openProjectFromMenu();
    void saveProjectFromMenu();
    // The page's Save: to the project file the results have, else to a file the user
    // names.
    void saveResults();
    // Asks to save unsaved results: true to go on, false to stay (Cancel or failed save).
    bool confirmDiscardResults();
    // Results that would be lost: never saved, or changed since they were saved or opened.
    bool resultsUnsaved() const;
    // Asks whether to save results that would be lost; false when the user cancels or the
    // save fails. stopScanBeforeSaving: a running scan is stopped before a Yes saves.
    bool askToSaveResults(bool stopScanBeforeSaving = false);

private:
    void restoreBeforeOpen();
    // Runs a save and waits for its end while the window keeps painting.
    bool saveProjectBlocking(const QString &path);
    // File dialog for a project, starting in the folder used last; the chosen folder is
    // kept in the preferences ("SaveFolder") for the next time.
    QString chooseProjectFile(bool save);
    void rememberProjectFolder(const QString &path);

    MainWindow *m_window;
    TOpenSaveThread *m_projectThread = nullptr;
    QString m_projectPath;
    // The store's revision when the results were last saved or opened.
    quint64 m_savedRevision = 0;
    // A project being opened, and what the window showed before.
    QString m_openingPath;
    struct BeforeOpen
    {
        int page = 0;
        int state = MainWindow::StateReady;
        bool showResultsWhenDone = true;
        double ring = 0;
        QString progress;
    };
    BeforeOpen m_beforeOpen;
};
