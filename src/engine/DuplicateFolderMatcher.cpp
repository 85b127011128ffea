// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/DuplicateFolderMatcher.h"

#include "app/TLogger.h"
#include "engine/DirGroupEntry.h"
#include "engine/FilePathCodec.h"
#include "engine/FinderCommon.h"
#include "engine/GroupItemAutoSelector.h"
#include "engine/TFileData.h"
#include "platform/FolderReader.h"

#include <algorithm>

#include <QDataStream>
#include <QMutexLocker>
#include <QtConcurrent>

#define XXH_STATIC_LINKING_ONLY
#include <xxhash.h>

using FinderCommon::fileNameOf;
using FinderCommon::folderOf;
using FinderCommon::kTag;

namespace {

int depthOf(const QString &path)
{
    return int(path.count(QLatin1Char('/')));
}

bool isBelow(const QString &path, const QString &folder)
{
    return path.size() > folder.size() && path.startsWith(folder)
        && (folder.endsWith(QLatin1Char('/')) || path.at(folder.size()) == QLatin1Char('/'));
}

// Whether a folder that holds no duplicate file holds anything but empty folders.
bool holdsAnything(const QString &folder)
{
    // A folder that cannot be listed may hold anything.
    platform::FolderReader reader(FilePathCodec::encode(folder).toStdString());
    if (reader.error())
        return true;
    platform::EntryInfo info;
    while (reader.next()) {
        if (reader.stat(info) != 0 || info.kind != platform::EntryInfo::Folder)
            return true;
        const QString child = folder + QLatin1Char('/')
            + FilePathCodec::decode(reader.name(), qsizetype(reader.nameLength()));
        if (holdsAnything(child))
            return true;
    }
    return false;
}

} // namespace

DuplicateFolderMatcher::DuplicateFolderMatcher(
    const std::atomic<qint64> &stop, std::atomic<int> &files, std::atomic<qint64> &bytes)
    : m_stop(stop), m_files(files), m_bytes(bytes)
{ }

void DuplicateFolderMatcher::clear()
{
    QMutexLocker locker(&m_mutex);
    dirTable.clear();
    m_signatureTable.clear();
}

bool DuplicateFolderMatcher::addGroupFiles(
    qint64 size, const QByteArray &contentKey, const QString &groupKey, const QStringList &paths)
{
    for (const QString &path : paths) {
        if (isStopRequested())
            return false;
        QMutexLocker locker(&m_mutex);
        DirMatchInfo &info = dirTable[folderOf(path)];
        info.contentKeys.append(contentKey);
        info.groupKeys.append(groupKey);
        info.names.append(fileNameOf(path));
        info.sizes.append(size);
        ++info.fileCount;
        info.totalSize += size;
    }
    return true;
}

// Two independent mixes of the key make the order-free digest: sums of mixed keys are
// equal for equal multisets, and a chance match of both 64-bit sums, the file count and
// the byte count is negligible (removal checks the contents again in any case).
DuplicateFolderMatcher::FolderDigest DuplicateFolderMatcher::FolderDigest::ofFile(
    const QByteArray &key, qint64 size)
{
    FolderDigest digest;
    digest.sum = XXH3_64bits_withSeed(key.constData(), size_t(key.size()), 0);
    digest.mixedSum
        = XXH3_64bits_withSeed(key.constData(), size_t(key.size()), 0x9E3779B97F4A7C15ULL);
    digest.fileCount = 1;
    digest.totalSize = size;
    return digest;
}

void DuplicateFolderMatcher::FolderDigest::add(const FolderDigest &other)
{
    sum += other.sum;
    mixedSum += other.mixedSum;
    fileCount += other.fileCount;
    totalSize += other.totalSize;
}

DuplicateFolderMatcher::FolderDigest DuplicateFolderMatcher::digestFolder(const QString &folder,
    const QHash<QString, FolderDigest> &below, const QSet<QString> &candidates) const
{
    FolderDigest digest;
    const DirMatchInfo info = dirTable.value(folder);
    const QString prefix = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    platform::FolderReader reader(FilePathCodec::encode(folder).toStdString());
    if (reader.error())
        return digest;
    bool complete = true;
    platform::EntryInfo status;
    while (reader.next()) {
        if (reader.stat(status) != 0) {
            complete = false;
            break;
        }
        const QString entryName
            = FilePathCodec::decode(reader.name(), qsizetype(reader.nameLength()));
        if (status.kind == platform::EntryInfo::File) {
            const qsizetype at = info.names.indexOf(entryName);
            if (at < 0) {
                complete = false;
                break;
            }
            digest.add(FolderDigest::ofFile(info.contentKeys.at(at), info.sizes.at(at)));
        } else if (status.kind == platform::EntryInfo::Folder) {
            const QString child = prefix + entryName;
            if (candidates.contains(child)) {
                const FolderDigest sub = below.value(child);
                if (!sub.complete) {
                    complete = false;
                    break;
                }
                digest.add(sub);
            } else if (holdsAnything(child)) {
                complete = false;
                break;
            }
        } else {
            // Links, pipes and devices would be lost with the folder and have no copy.
            complete = false;
            break;
        }
    }
    digest.complete = complete;
    return digest;
}

void DuplicateFolderMatcher::match(const QStringList &roots, int selectHint,
    const QMap<QString, int> &priority, const std::function<void(double)> &progress)
{
    // Candidates: every folder holding a duplicate file, and its folders up to the root
    // it was found under (a folder is a duplicate of another only with everything in it,
    // sub-folders included, so the whole chain is looked at).
    QSet<QString> candidates;
    {
        QMutexLocker locker(&m_mutex);
        for (auto it = dirTable.cbegin(); it != dirTable.cend(); ++it) {
            QString folder = it.key();
            QString root;
            for (const QString &candidate : std::as_const(roots))
                if ((folder == candidate || isBelow(folder, candidate))
                    && candidate.size() > root.size())
                    root = candidate;
            while (!candidates.contains(folder)) {
                candidates.insert(folder);
                if (root.isEmpty() || folder == root || !isBelow(folder, root))
                    break;
                folder = folderOf(folder);
            }
        }
    }
    splog_d(kTag
        + QStringLiteral("Start matching duplicate directories. Number "
                         "of groups to match [%1].")
              .arg(candidates.size()));
    // Deepest folders first: a folder's digest takes its sub-folders' digests.
    QMap<int, QStringList> byDepth;
    for (const QString &folder : std::as_const(candidates))
        byDepth[-depthOf(folder)].append(folder);
    QHash<QString, FolderDigest> digests;
    std::atomic<int> processed {0};
    const qsizetype total = candidates.size();
    for (auto level = byDepth.begin(); level != byDepth.end() && !isStopRequested(); ++level) {
        const QList<FolderDigest> results
            = QtConcurrent::blockingMapped(level.value(), [&](const QString &folder) {
                  if (isStopRequested())
                      return FolderDigest();
                  const FolderDigest digest = digestFolder(folder, digests, candidates);
                  const int done = processed.fetch_add(1) + 1;
                  progress(done * 100.0 / total);
                  return digest;
              });
        for (qsizetype i = 0; i < results.size(); ++i)
            digests.insert(level.value().at(i), results.at(i));
    }
    if (isStopRequested()) {
        progress(0.0);
        return;
    }
    for (auto it = digests.cbegin(); it != digests.cend(); ++it) {
        const FolderDigest &digest = it.value();
        if (!digest.complete || digest.fileCount == 0)
            continue;
        QByteArray signature;
        QDataStream stream(&signature, QIODevice::WriteOnly);
        stream << digest.fileCount << digest.totalSize << digest.sum << digest.mixedSum;
        m_signatureTable[signature].append(it.key());
    }
    // A folder inside a matched folder is covered by it: only the outermost matches are
    // reported, and a folder is never matched with a folder that holds it.
    QSet<QString> matchedFolders;
    for (const QStringList &folders : std::as_const(m_signatureTable))
        if (folders.size() > 1)
            for (const QString &folder : folders)
                matchedFolders.insert(folder);
    const auto insideMatched = [&matchedFolders](const QString &folder) {
        for (QString parent = folder; parent != QLatin1String("/");) {
            parent = folderOf(parent);
            if (matchedFolders.contains(parent))
                return true;
        }
        return false;
    };
    QList<QStringList> matched;
    for (const QStringList &folders : std::as_const(m_signatureTable)) {
        if (folders.size() < 2)
            continue;
        QStringList outermost;
        for (const QString &folder : folders)
            if (!insideMatched(folder))
                outermost.append(folder);
        if (outermost.size() < 2)
            continue;
        // The pool finishes folders in any order; a fixed order keeps the key stable and
        // the first folder is the one kept.
        outermost.sort();
        matched.append(outermost);
    }
    std::sort(matched.begin(), matched.end());
    TFileData *store = TFileData::instance();
    for (const QStringList &folders : std::as_const(matched)) {
        QList<DirGroupEntry> entries;
        for (const QString &folder : folders) {
            const FolderDigest &digest = digests[folder];
            entries.append(DirGroupEntry {folder, digest.fileCount, digest.totalSize});
            // The files of every folder but the first, which stays.
            if (folder == folders.first())
                continue;
            m_files.fetch_add(digest.fileCount);
            m_bytes.fetch_add(digest.totalSize);
        }
        const QString key = TFileData::groupKey(folders.first());
        store->insertDirGroup(key, entries);
        // Selected by the same rule as the copies of files.
        if (selectHint != 8)
            GroupItemAutoSelector::applyToGroup(key, folders, selectHint, priority);
    }
    pruneMatchedFolders(matched, selectHint, priority);
}

void DuplicateFolderMatcher::pruneMatchedFolders(
    const QList<QStringList> &matched, int selectHint, const QMap<QString, int> &priority)
{
    if (matched.isEmpty())
        return;
    // Each matched folder, and whether it is the kept one of its group.
    QHash<QString, bool> kept;
    QSet<QString> touchedGroups;
    for (const QStringList &folders : matched) {
        for (const QString &folder : folders) {
            kept.insert(folder, folder == folders.first());
            for (auto it = dirTable.cbegin(); it != dirTable.cend(); ++it)
                if (it.key() == folder || isBelow(it.key(), folder))
                    for (const QString &key : it.value().groupKeys)
                        touchedGroups.insert(key);
        }
    }
    // The matched folder holding a path, if any.
    const auto holder = [&kept](const QString &path) -> const QString * {
        for (QString folder = folderOf(path);; folder = folderOf(folder)) {
            const auto found = kept.constFind(folder);
            if (found != kept.constEnd())
                return &found.key();
            if (folder == QLatin1String("/"))
                return nullptr;
        }
    };
    TFileData *store = TFileData::instance();
    for (const QString &key : std::as_const(touchedGroups)) {
        const QStringList members = store->group(key);
        QStringList outside;
        QStringList inKept;
        for (const QString &path : members) {
            const QString *folder = holder(path);
            if (!folder)
                outside.append(path);
            else if (kept.value(*folder))
                inKept.append(path);
        }
        // Every copy inside matched folders: the folder groups report them all. Otherwise
        // the copies outside stay, with the one in the kept folder beside them, so that no
        // copy goes unreported and the group never lists only copies to be removed.
        QStringList remaining;
        if (!outside.isEmpty()) {
            for (const QString &path : members)
                if (outside.contains(path) || inKept.contains(path))
                    remaining.append(path);
        }
        if (remaining == members)
            continue;
        // The running totals count the copies that could go: those of the copies dropped
        // leave them (the folder groups count their files instead).
        const qsizetype dropped
            = (members.size() - 1) - (remaining.size() < 2 ? 0 : remaining.size() - 1);
        const DirMatchInfo &info = dirTable[folderOf(members.first())];
        const qsizetype at = info.names.indexOf(fileNameOf(members.first()));
        m_files.fetch_sub(int(dropped));
        m_bytes.fetch_sub(qint64(dropped) * (at < 0 ? 0 : info.sizes.at(at)));
        if (remaining.size() < 2) {
            store->removeGroup(key);
            continue;
        }
        store->replaceGroup(key, remaining);
        if (selectHint != 8) {
            GroupItemAutoSelector::applyToGroup(key, remaining, selectHint, priority);
        } else {
            store->removeSelected(key);
        }
    }
}
