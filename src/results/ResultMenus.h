// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace Ui {
class ResultForm;
}

class QAbstractItemView;
class QAction;
class QActionGroup;
class QMenu;
class QPoint;
class QSlider;
class ResultForm;

// The result page's menus: the selection rules, the show filter with the similarity
// slider, the removal methods on the remove button, and the context menus of a group and
// of a member. Their actions call the page's slots.
class ResultMenus : public QObject
{
    Q_OBJECT
public:
    ResultMenus(ResultForm *page, Ui::ResultForm *ui);

    QMenu *selectMenu() const { return m_selectMenu; }
    QMenu *filterMenu() const { return m_filterMenu; }
    QMenu *deleteMenu() const { return m_deleteMenu; }
    QActionGroup *filterActions() const { return m_filterActions; }
    QSlider *similaritySlider() const { return m_similaritySlider; }

    void buildSelectAndFilter();
    // The removal methods, the one in the preferences checked.
    void buildDelete();
    void setActiveDeleteAction(QAction *newAction);
    void showGroupMenu(const QPoint &pos);
    void showMemberMenu(QAbstractItemView *view, const QPoint &pos);
    void retranslate();

signals:
    // The similarity slider moved to this floor.
    void similarityChanged(int value);

private:
    ResultForm *m_page = nullptr;
    Ui::ResultForm *ui = nullptr;
    QMenu *m_selectMenu = nullptr;
    QMenu *m_filterMenu = nullptr;
    QMenu *m_deleteMenu = nullptr;
    QActionGroup *m_filterActions = nullptr;
    QSlider *m_similaritySlider = nullptr;
    QAction *m_activeDeleteAction = nullptr;
    QAction *m_actTrash = nullptr;
    QAction *m_actPermanent = nullptr;
    QAction *m_actFolder = nullptr;
    QAction *m_actHardLink = nullptr;
    QAction *m_actReflink = nullptr;
    QAction *m_actSymlink = nullptr;
};
