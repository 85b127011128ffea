// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QList>
#include <QStringList>

class QPlainTextEdit;

// A read-only list of the paths a scan could not read or did not follow, in sections
// ("Folders that could not be read", ...). The text can be selected and copied, and a
// button copies all of it, so the user can paste the list into a file manager or a
// support request.
class ProblemListDialog : public QDialog
{
    Q_OBJECT
public:
    struct Section
    {
        QString title;
        // The full count; paths may hold fewer (the scan keeps a limited number).
        qint64 count = 0;
        QStringList paths;
    };

    explicit ProblemListDialog(const QList<Section> &sections, QWidget *parent = nullptr);

    // The whole list as plain text, as it is shown and copied.
    QString text() const;
    static QString textFor(const QList<Section> &sections);

public slots:
    void copyAll();

private:
    QPlainTextEdit *m_list = nullptr;
};
