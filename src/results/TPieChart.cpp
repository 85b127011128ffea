// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/TPieChart.h"

#include "app/FileTypeCatalogue.h"
#include "engine/GroupMember.h"
#include "results/TImageModel.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QThreadPool>
#include <QtConcurrent>

namespace {

void add(StatResult &result, int category, int count, qint64 bytes)
{
    FileCategoryStat &stat = result.stats[category];
    stat.count += count;
    stat.size += bytes;
    result.count += count;
    result.totalSize += bytes;
}

// copies of a path: a file counts itself, a folder every file in it, in its sub-folders
// and hidden ones too, as the folder comparison counts them. Even zero copies give the
// path's category an entry, so the chart knows the category is present.
void addPath(StatResult &result, const QString &path, int copies)
{
    const QFileInfo info(path);
    if (info.isDir()) {
        int files = 0;
        qint64 bytes = 0;
        if (copies > 0) {
            QDirIterator it(
                path, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
            while (it.hasNext()) {
                it.next();
                ++files;
                bytes += it.fileInfo().size();
            }
        }
        add(result, CategoryFolders, copies * files, copies * bytes);
    } else if (info.isFile()) {
        add(result, getFileType(info.suffix()), copies, copies * info.size());
    }
}

StatResult localGroupStats(const QStringList &members)
{
    QStringList plain;
    QStringList similar;
    for (const GroupMember &member : GroupMember::fromEntries(members)) {
        if (member.isSimilar())
            similar.append(member.path);
        else
            plain.append(member.path);
    }
    StatResult result;
    // Plain members are copies of one another: one look at the first stands for all.
    if (!plain.isEmpty())
        addPath(result, plain.first(), int(plain.size()));
    else if (!similar.isEmpty())
        addPath(result, similar.first(), 0);
    // Similar pictures differ in size, so each is looked at.
    for (const QString &path : std::as_const(similar))
        addPath(result, path, 1);
    return result;
}

StatResult cloudGroupStats(const QStringList &members, KvCloudObject *cloud)
{
    StatResult result;
    if (members.isEmpty())
        return result;
    const auto property = [cloud](const QString &entry, const QString &name) {
        return TImageModel::cloudProperty(cloud, entry, name);
    };
    const int category
        = categoryOfMimeType(property(members.first(), QStringLiteral("mimeType")).toString());
    qint64 bytes = 0;
    for (const QString &entry : members)
        bytes += property(entry, QStringLiteral("size")).toLongLong();
    add(result, category, int(members.size()), bytes);
    return result;
}

void mergeStats(StatResult &total, const StatResult &part)
{
    for (auto it = part.stats.cbegin(); it != part.stats.cend(); ++it) {
        FileCategoryStat &stat = total.stats[it.key()];
        stat.count += it.value().count;
        stat.size += it.value().size;
    }
    total.count += part.count;
    total.totalSize += part.totalSize;
}

} // namespace

TPieChart::TPieChart(QObject *parent) : QObject(parent)
{
    qRegisterMetaType<FileCategoryStatsMap>("FileCategoryStatsMap");
}

TPieChart::~TPieChart()
{
    // The run may still read the properties of a cloud object its owner is about
    // to free.
    QMutexLocker locker(&m_mutex);
    m_future.cancel();
    m_future.waitForFinished();
}

void TPieChart::start(
    const QHash<QString, QList<QString>> &groups, KvCloudObject *cloud, bool isCloud)
{
    QMutexLocker locker(&m_mutex);
    m_future.cancel();
    if (m_watcher) {
        // Its finished may already be queued; only the newest run may report.
        m_watcher->disconnect(this);
        m_watcher->deleteLater();
    }
    m_result = StatResult();
    // The old run works on its own copy of the list, so freeing ours is safe.
    m_groups.clear();
    m_groups.reserve(groups.size());
    for (auto it = groups.cbegin(); it != groups.cend(); ++it)
        m_groups.append(it.value());

    const auto map = [cloud, isCloud](const QStringList &members) {
        return isCloud ? cloudGroupStats(members, cloud) : localGroupStats(members);
    };
    m_watcher = new QFutureWatcher<StatResult>(this);
    connect(m_watcher, &QFutureWatcherBase::finished, this,
        [this, watcher = m_watcher] { deliver(watcher); });
    m_future = QtConcurrent::mappedReduced<StatResult>(
        QThreadPool::globalInstance(), m_groups, map, mergeStats);
    m_watcher->setFuture(m_future);
}

bool TPieChart::isRunning() const
{
    QMutexLocker locker(&m_mutex);
    return m_future.isRunning();
}

void TPieChart::waitForFinished()
{
    QFuture<StatResult> future;
    {
        QMutexLocker locker(&m_mutex);
        future = m_future;
    }
    future.waitForFinished();
}

void TPieChart::deliver(QFutureWatcher<StatResult> *watcher)
{
    const QFuture<StatResult> future = watcher->future();
    if (watcher != m_watcher || future.isCanceled() || future.resultCount() == 0)
        return;
    m_result = future.result();
    emit statsReady(m_result.stats, m_result.count, m_result.totalSize);
}

QColor TPieChart::categoryColour(int code)
{
    switch (code) {
    case CategoryImages:
        return QColor(91, 143, 230);
    case CategoryDocuments:
        return QColor(241, 161, 85);
    case CategoryAudio:
        return QColor(236, 86, 76);
    case CategoryVideos:
        return QColor(113, 219, 206);
    case CategoryFolders:
        return QColor(250, 223, 98);
    case CategoryOthers:
        return QColor(155, 155, 155);
    default:
        return QColor();
    }
}

QString TPieChart::categoryName(int code)
{
    switch (code) {
    case CategoryImages:
        return tr("Images");
    case CategoryDocuments:
        return tr("Documents");
    case CategoryAudio:
        return tr("Musics");
    case CategoryVideos:
        return tr("Videos");
    case CategoryFolders:
        return tr("Folder");
    case CategoryOthers:
        return tr("Others");
    default:
        return QString();
    }
}
