// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>

class MainWindow;
class QAction;
class QActionGroup;
class QMenu;

// The window's two menus: the add menu (the local computer and the cloud services) and the
// system menu with its help entries, the language choice and the project entries.
class MainWindowMenus : public QObject
{
    Q_OBJECT
public:
    explicit MainWindowMenus(MainWindow *window);

    QMenu *addMenu() const { return m_addMenu; }
    QMenu *systemMenu() const { return m_systemMenu; }
    // The actions that follow the window state, in the order the state table names them:
    // open project, language, save project, show results.
    QAction *stateAction(int index) const { return m_stateActions.at(index); }
    // Runs a system menu entry that opens a page, a folder or the about box.
    void runEntry(QAction *action);
    // The language chosen for the next start.
    void switchLanguage(QAction *action);

private:
    void buildAddMenu();
    void buildSystemMenu();

    MainWindow *m_window;
    QMenu *m_addMenu = nullptr;
    QMenu *m_systemMenu = nullptr;
    QMenu *m_languageMenu = nullptr;
    QActionGroup *m_languageGroup = nullptr;
    QList<QAction *> m_stateActions;
    QAction *m_actShowResults = nullptr;
    QAction *m_actOpenProject = nullptr;
    QAction *m_actSaveProject = nullptr;
};
