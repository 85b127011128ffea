// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

// Answers every modal dialog that comes up while it lives and notes what it showed:
// the n-th message box gets the n-th answer (the last one given once they run out; its
// default button when the answer is NoButton or none was given); file dialogs are
// rejected, and so is any other dialog when closeOtherDialogs is set.
class DialogAnswerer : public QObject
{
public:
    explicit DialogAnswerer(QList<QMessageBox::StandardButton> answers = {})
        : m_answers(std::move(answers))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            QWidget *modal = QApplication::activeModalWidget();
            if (auto *box = qobject_cast<QMessageBox *>(modal)) {
                titles << box->windowTitle();
                texts << box->text();
                defaults << box->standardButton(box->defaultButton());
                const qsizetype n = defaults.size() - 1;
                const QMessageBox::StandardButton answer = m_answers.isEmpty()
                    ? QMessageBox::NoButton
                    : m_answers.value(n, m_answers.last());
                if (QAbstractButton *button = box->button(answer))
                    button->click();
                else if (box->defaultButton())
                    box->defaultButton()->click();
                else
                    box->accept();
            } else if (auto *dialog = qobject_cast<QDialog *>(modal);
                       dialog && (closeOtherDialogs || qobject_cast<QFileDialog *>(dialog))) {
                titles << dialog->windowTitle();
                // A summary's headline, for what it says of the whole.
                const auto *summary = dialog->findChild<QLabel *>(QStringLiteral("lab_summary"));
                texts << (summary ? summary->text() : QString());
                defaults << QMessageBox::NoButton;
                dialogs << dialog->metaObject()->className();
                dialog->reject();
            }
        });
        m_timer.start(20);
    }
    bool closeOtherDialogs = false;
    QStringList titles;
    QStringList texts;
    QList<QMessageBox::StandardButton> defaults;
    QStringList dialogs;

private:
    QList<QMessageBox::StandardButton> m_answers;
    QTimer m_timer;
};
