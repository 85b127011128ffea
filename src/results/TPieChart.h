// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFuture>
#include <QFutureWatcher>
#include <QHash>
#include <QList>
#include <QMetaType>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QStringList>

class KvCloudObject;

// Files and bytes of the duplicates of one category.
struct FileCategoryStat
{
    qint64 size = 0;
    int count = 0;
};

// Category code (FileCategory) -> its share.
using FileCategoryStatsMap = QHash<int, FileCategoryStat>;
Q_DECLARE_METATYPE(FileCategoryStatsMap)

struct StatResult
{
    FileCategoryStatsMap stats;
    int count = 0;
    qint64 totalSize = 0;
};

// Sums the result groups by file category on the global thread pool for the result
// page's chart. Only the latest start reports: a start drops the run before it.
class TPieChart : public QObject
{
    Q_OBJECT
public:
    explicit TPieChart(QObject *parent = nullptr);
    ~TPieChart() override;

    // groups: key -> member entries. A cloud run reads sizes and MIME types from the
    // cloud source's listing, from the pool's threads.
    void start(const QHash<QString, QList<QString>> &groups, KvCloudObject *cloud, bool isCloud);
    bool isRunning() const;
    // Blocks until the current run is over; its figures still come through statsReady.
    void waitForFinished();
    // Figures of the last run that reported; empty from each start on.
    const StatResult &result() const { return m_result; }

    // Slice colour and legend of a category; invalid and empty for a code without one.
    static QColor categoryColour(int code);
    static QString categoryName(int code);

signals:
    void statsReady(FileCategoryStatsMap result, int count, qlonglong totalSize);

private:
    void deliver(QFutureWatcher<StatResult> *watcher);

    mutable QMutex m_mutex; // guards m_future, which waitForFinished may read from any thread
    QFuture<StatResult> m_future;
    QFutureWatcher<StatResult> *m_watcher = nullptr;
    QList<QStringList> m_groups;
    StatResult m_result;
};
