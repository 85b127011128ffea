// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QStringList>
#include <QTimer>

// Answers every message box that comes up while it lives and notes its title and text.
class MessageBoxCatcher : public QObject
{
public:
    MessageBoxCatcher()
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                titles << box->windowTitle();
                texts << box->text();
                box->accept();
            }
        });
        m_timer.start(20);
    }
    QStringList titles;
    QStringList texts;

private:
    QTimer m_timer;
};
