// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ScanProblems.h"

#include <QMutexLocker>

void ScanProblems::clear(int rootCount)
{
    QMutexLocker locker(&m_mutex);
    m_counts.fill(0);
    for (QStringList &list : m_paths)
        list.clear();
    m_rootCount = rootCount;
    m_unreadableRoots = 0;
}

void ScanProblems::add(Kind kind, const QString &path)
{
    QMutexLocker locker(&m_mutex);
    if (m_paths[kind].size() < kKeptPaths)
        m_paths[kind].append(path);
    ++m_counts[kind];
}

void ScanProblems::addUnreadableRoot(const QString &path)
{
    add(UnreadableFolder, path);
    QMutexLocker locker(&m_mutex);
    ++m_unreadableRoots;
}

qint64 ScanProblems::count(Kind kind) const
{
    QMutexLocker locker(&m_mutex);
    return m_counts[kind];
}

QStringList ScanProblems::paths(Kind kind) const
{
    QMutexLocker locker(&m_mutex);
    return m_paths[kind];
}

int ScanProblems::unreadableRoots() const
{
    QMutexLocker locker(&m_mutex);
    return m_unreadableRoots;
}

bool ScanProblems::allRootsUnreadable() const
{
    QMutexLocker locker(&m_mutex);
    return m_rootCount > 0 && m_unreadableRoots >= m_rootCount;
}

QString ScanProblems::unreadableSummary() const
{
    const qint64 folders = count(UnreadableFolder);
    const qint64 files = count(UnreadableFile);
    if (folders == 0 && files == 0)
        return {};
    return QStringLiteral("%1 %2 and %3 %4 could not be read")
        .arg(folders)
        .arg(folders == 1 ? QStringLiteral("folder") : QStringLiteral("folders"))
        .arg(files)
        .arg(files == 1 ? QStringLiteral("file") : QStringLiteral("files"));
}
