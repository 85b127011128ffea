// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;

// The "nothing found" page, and what takes the place of its all-clear when that would be
// false: every root unreadable, or a scan stopped before it found anything.
class NoResultPage : public QWidget
{
    Q_OBJECT
public:
    explicit NoResultPage(QWidget *parent = nullptr);

    // Back to the all-clear.
    void showAllClear();
    void showRootsUnreadable(bool one);
    void showStopped(bool beforeComparing);

private:
    void showWarning(const QString &html);

    QLabel *m_noResultRing = nullptr;
    QLabel *m_noResultText = nullptr;
    QLabel *m_labUnreadable = nullptr;
};
