// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

// The window's own title bar (the window has no frame): logo, title and the settings,
// menu, minimize and close buttons. Dragging by it is the window's.
class TitleBar : public QFrame
{
    Q_OBJECT
public:
    explicit TitleBar(QWidget *parent = nullptr);

    void setTitle(const QString &title);
    QPushButton *settingsButton() const { return m_btnSet; }
    QPushButton *menuButton() const { return m_btnMenu; }
    QPushButton *minimizeButton() const { return m_btnMinimize; }
    QPushButton *closeButton() const { return m_btnClose; }

private:
    QLabel *m_title = nullptr;
    QPushButton *m_btnSet = nullptr;
    QPushButton *m_btnMenu = nullptr;
    QPushButton *m_btnMinimize = nullptr;
    QPushButton *m_btnClose = nullptr;
};
