// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <functional>

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QMutex>
#include <QSet>
#include <QStringList>

// The duplicate finder's folder matching: collects, as the file groups are stored, which
// folders hold duplicate files, then finds the folders whose whole content is equal,
// stores them as folder groups and takes their files out of the file groups.
class DuplicateFolderMatcher
{
public:
    // One folder holding duplicate files, for the folder matching: per duplicate file
    // directly in it, its content key, its group and its name.
    struct DirMatchInfo
    {
        QList<QByteArray> contentKeys;
        QStringList groupKeys;
        int fileCount = 0;
        qint64 totalSize = 0;
        QStringList names;
        QList<qint64> sizes;
    };

    // stop: the finder's stop flag; files and bytes: its running totals of the copies that
    // could go, which folder groups add to and pruned file groups take from.
    DuplicateFolderMatcher(
        const std::atomic<qint64> &stop, std::atomic<int> &files, std::atomic<qint64> &bytes);

    void clear();
    // Notes the members of one file group by folder; false when a stop came first. Called
    // from the pool threads.
    bool addGroupFiles(qint64 size, const QByteArray &contentKey, const QString &groupKey,
        const QStringList &paths);
    // Matches the folders below roots; progress gets the percentage done, from pool
    // threads.
    void match(const QStringList &roots, int selectHint, const QMap<QString, int> &priority,
        const std::function<void(double)> &progress);

private:
    // A folder's whole content, sub-folders and hidden files included, as an order-free
    // digest of its files' content keys; complete only when every file below it is a
    // member of a duplicate group and nothing but files and folders is there.
    struct FolderDigest
    {
        bool complete = false;
        int fileCount = 0;
        qint64 totalSize = 0;
        quint64 sum = 0;
        quint64 mixedSum = 0;

        static FolderDigest ofFile(const QByteArray &key, qint64 size);
        void add(const FolderDigest &other);
    };

    bool isStopRequested() const { return m_stop.load() != 0; }
    FolderDigest digestFolder(const QString &folder, const QHash<QString, FolderDigest> &below,
        const QSet<QString> &candidates) const;
    // Takes the files of matched folders out of the file groups, except where a copy
    // lives outside every matched folder: then the copy in the kept folder stays too.
    void pruneMatchedFolders(
        const QList<QStringList> &matched, int selectHint, const QMap<QString, int> &priority);

    const std::atomic<qint64> &m_stop;
    std::atomic<int> &m_files;
    std::atomic<qint64> &m_bytes;
    // Guards dirTable while the pool threads fill it.
    QMutex m_mutex;
    QHash<QString, DirMatchInfo> dirTable;
    QHash<QByteArray, QStringList> m_signatureTable;
};
