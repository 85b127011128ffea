// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QPointer>
#include <QStringList>

class QWidget;

// "Export as CSV…" of the result page: asks where, then writes the table off the GUI
// thread (a result of a million members takes a while), into a temporary file that
// replaces the chosen one only when it is whole.
class CsvExportRun : public QObject
{
    Q_OBJECT
public:
    explicit CsvExportRun(QWidget *page);

    // order: the page's groups, top to bottom, so that the numbers match what is shown.
    void start(const QStringList &order);
    bool isRunning() const { return m_watcher.isRunning(); }
    // Writes to path without asking (what start() does after the question).
    void writeTo(const QString &path, const QStringList &order);

signals:
    // error empty: the table is at path.
    void finished(const QString &path, const QString &error);

private:
    QPointer<QWidget> m_page;
    QFutureWatcher<QString> m_watcher;
    QString m_path;
};
