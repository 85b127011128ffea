// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/DuplicateKeyReader.h"

#include "app/TLogger.h"
#include "engine/FilePathCodec.h"
#include "engine/FinderCommon.h"
#include "engine/SampledKey.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <exception>

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>
#include <QtConcurrent>

#define XXH_STATIC_LINKING_ONLY
#include <xxhash.h>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

// The log tags of this file.
const QString kStreamHashTag = QStringLiteral("[streamHash] ");

using FinderCommon::fileNameOf;
using FinderCommon::hexKey;
using FinderCommon::kTag;
using SampledKey::kBlock;
using SampledKey::kExternalDrive;
using SampledKey::kWholeFileLimit;
#ifdef Q_OS_UNIX
using SampledKey::stampOf;
#endif
constexpr qint64 kStreamPiece = 65536;
constexpr qint64 kMapLimit = 4294967296LL;
// Below this size a memory map costs more than the reads it replaces, so smaller files are
// read with pread; the keys are the same either way.
constexpr qint64 kStreamMapThreshold = 1 << 20;

#ifdef Q_OS_UNIX
// Whole-content key of an open regular file of the given size; false (after a message)
// when the file cannot be read to its end.
template<typename NameOf>
bool streamKeyOf(int fd, qint64 size, int driveType, quint64 &key, const NameOf &nameOf, int &error)
{
    XXH3_state_t *state = XXH3_createState();
    if (!state) {
        splog_d(kStreamHashTag + QStringLiteral("Failed to create XXH3 state"));
        return false;
    }
    XXH3_64bits_reset(state);
    bool hashed = false;
    if (driveType != kExternalDrive && size <= kMapLimit && size >= kStreamMapThreshold) {
        void *map = ::mmap(nullptr, size_t(size), PROT_READ, MAP_SHARED, fd, 0);
        if (map != MAP_FAILED) {
            ::madvise(map, size_t(size), MADV_SEQUENTIAL | MADV_WILLNEED);
            const char *bytes = static_cast<const char *>(map);
            for (qint64 offset = 0; offset < size; offset += kStreamPiece)
                XXH3_64bits_update(
                    state, bytes + offset, size_t(std::min(kStreamPiece, size - offset)));
            ::munmap(map, size_t(size));
            hashed = true;
        }
    }
    if (!hashed) {
        static thread_local QByteArray buffer(kStreamPiece * 4, Qt::Uninitialized);
        qint64 offset = 0;
        while (offset < size) {
            const ssize_t got = ::read(fd, buffer.data(), size_t(buffer.size()));
            if (got < 0 && errno == EINTR)
                continue;
            if (got <= 0) {
                error = got < 0 ? errno : ENODATA;
                splog_repeated("[streamHash] Failed to read file or reached EOF",
                    kStreamHashTag
                        + QStringLiteral("Failed to read file or reached EOF: %1").arg(nameOf()));
                XXH3_freeState(state);
                return false;
            }
            XXH3_64bits_update(state, buffer.constData(), size_t(got));
            offset += got;
        }
    }
    key = XXH3_64bits_digest(state);
    XXH3_freeState(state);
    return true;
}

// Whole-content key of the file `name` relative to `dirfd`.
template<typename NameOf>
bool streamKeyAt(int dirfd, const char *name, int driveType, quint64 &key, const NameOf &nameOf,
    int &error, struct stat *opened = nullptr)
{
    error = 0;
    const int fd = ::openat(dirfd, name, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat info
    {
    };
    if (fd < 0)
        error = errno;
    else if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode))
        error = EINVAL;
    if (error != 0 || info.st_size < 1) {
        if (fd >= 0)
            ::close(fd);
        splog_repeated("[streamHash] File not accessible",
            kStreamHashTag + QStringLiteral("File not accessible: %1").arg(nameOf()));
        return false;
    }
    const bool ok = streamKeyOf(fd, info.st_size, driveType, key, nameOf, error);
    ::close(fd);
    if (opened)
        *opened = info;
    return ok;
}

#endif

} // namespace

DuplicateKeyReader::DuplicateKeyReader(const ScanTable &table, const std::atomic<qint64> &stop)
    : m_table(table), m_stop(stop)
{ }

void DuplicateKeyReader::begin(
    const ContentKeyCache::Options &options, bool contentKeys, bool allContent)
{
    m_allContent = allContent;
    m_keyedFiles.store(0);
    m_wantedFiles = 0;
    m_keysFromCache.store(0);
    if (contentKeys && options.enabled) {
        m_cache = std::make_unique<ContentKeyCache>(
            options.path.isEmpty() ? ContentKeyCache::defaultPath() : options.path);
        if (!m_cache->isOpen())
            m_cache.reset();
    }
}

void DuplicateKeyReader::beginWholeReads()
{
    m_fullReadStartNs = QDateTime::currentMSecsSinceEpoch() * 1'000'000LL;
}

void DuplicateKeyReader::release()
{
    decltype(m_keys)().swap(m_keys);
    decltype(m_keyState)().swap(m_keyState);
}

QByteArray DuplicateKeyReader::nameKeyOf(const QString &filePath)
{
    return QCryptographicHash::hash(fileNameOf(filePath).toUtf8(), QCryptographicHash::Md5)
        .toHex()
        .toUpper();
}

QByteArray DuplicateKeyReader::sampledKeyOf(const QString &filePath, qint64 size, int driveType)
{
    try {
#ifdef Q_OS_UNIX
        const QByteArray native = FilePathCodec::encode(filePath);
        quint64 key = 0;
        int error = 0;
        if (!SampledKey::readAt(
                AT_FDCWD, native.constData(), size, key, [&filePath] { return filePath; }, error))
            return {};
        return hexKey(key);
#else
        QFile file(filePath);
        if (!file.open(QIODevice::ReadOnly)) {
            splog_d(kTag
                + QStringLiteral("Cannot read file, skipped: [%1]. %2")
                      .arg(filePath, file.errorString()));
            return {};
        }
        if (file.size() < 1)
            return {};
        const qint64 n = std::min(file.size(), size);
        if (n <= kWholeFileLimit) {
            const QByteArray data = file.read(n);
            return hexKey(XXH3_64bits(data.constData(), size_t(data.size())));
        }
        const qint64 offsets[3] = {0, std::clamp<qint64>(n / 2 - 2048, 0, n - kBlock), n - kBlock};
        XXH3_state_t state;
        XXH3_64bits_reset(&state);
        uchar *map = driveType != kExternalDrive ? file.map(0, n) : nullptr;
        if (driveType != kExternalDrive && !map)
            splog_d(kTag + QStringLiteral("file.map failed.: [%1].").arg(filePath));
        char buffer[kBlock];
        for (qint64 offset : offsets) {
            if (map) {
                XXH3_64bits_update(&state, map + offset, kBlock);
            } else if (file.seek(offset)) {
                const qint64 got = file.read(buffer, kBlock);
                if (got > 0)
                    XXH3_64bits_update(&state, buffer, size_t(got));
            }
        }
        if (map)
            file.unmap(map);
        return hexKey(XXH3_64bits_digest(&state));
#endif
    } catch (const std::exception &error) {
        splog_d(kTag
            + QStringLiteral("Exception in calculateFileHash: [%1].")
                  .arg(QString::fromLocal8Bit(error.what())));
    } catch (...) {
        splog_d(kTag + QStringLiteral("Unknown exception in calculateFileHash."));
    }
    return {};
}

QByteArray DuplicateKeyReader::wholeKeyOf(const QString &filePath, int driveType)
{
#ifdef Q_OS_UNIX
    const QByteArray native = FilePathCodec::encode(filePath);
    quint64 key = 0;
    int error = 0;
    if (!streamKeyAt(
            AT_FDCWD, native.constData(), driveType, key,
            [&filePath] { return fileNameOf(filePath); }, error))
        return {};
    return hexKey(key);
#else
    XXH3_state_t *state = XXH3_createState();
    if (!state) {
        splog_d(kStreamHashTag + QStringLiteral("Failed to create XXH3 state"));
        return {};
    }
    XXH3_64bits_reset(state);
    QByteArray key;
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly) || file.size() < 1) {
        splog_d(
            kStreamHashTag + QStringLiteral("File not accessible: %1").arg(fileNameOf(filePath)));
        XXH3_freeState(state);
        return {};
    }
    const qint64 size = file.size();
    uchar *map = driveType != kExternalDrive && size <= kMapLimit ? file.map(0, size) : nullptr;
    if (map) {
        for (qint64 offset = 0; offset < size; offset += kStreamPiece)
            XXH3_64bits_update(state, map + offset, size_t(std::min(kStreamPiece, size - offset)));
        file.unmap(map);
    } else {
        QByteArray buffer(kStreamPiece, Qt::Uninitialized);
        while (!file.atEnd()) {
            const qint64 got = file.read(buffer.data(), kStreamPiece);
            if (got <= 0) {
                splog_d(kStreamHashTag
                    + QStringLiteral("Failed to read file or reached EOF: %1")
                          .arg(fileNameOf(filePath)));
                XXH3_freeState(state);
                return {};
            }
            XXH3_64bits_update(state, buffer.constData(), size_t(got));
        }
    }
    key = hexKey(XXH3_64bits_digest(state));
    XXH3_freeState(state);
    return key;
#endif
}

void DuplicateKeyReader::computeSampledKeys(const std::vector<quint32> &order,
    const std::vector<SizeRun> &runs, OverlappedKeyReader *reader)
{
    const size_t files = size_t(m_table.fileCount());
    m_keys.assign(files, 0);
    m_keyState.assign(files, 0);
    for (const SizeRun &run : runs) {
        // Empty files are never opened: they are never duplicates.
        if (m_table.file(order[run.begin]).size < 1)
            continue;
        for (quint32 i = run.begin; i < run.begin + run.count; ++i)
            m_keyState[order[i]] = 1;
        m_wantedFiles += run.count;
    }
    takeOverlappedKeys(reader);
    const auto foldersToRead = [this] {
        QList<quint32> folders;
        for (quint32 f = 0; f < quint32(m_table.folderCount()); ++f) {
            const ScanTable::Folder &folder = m_table.folder(f);
            const auto first = m_keyState.begin() + folder.firstFile;
            if (std::find(first, first + folder.fileCount, quint8(1)) != first + folder.fileCount)
                folders.append(f);
        }
        return folders;
    };
    if (!m_cache) {
        readFolders(foldersToRead(), false);
        return;
    }
    // With the cache, every file whose stamp the walk kept is looked up at once; the rest
    // go in runs of folders of about kCacheBatch wanted files: each run is stamped, the
    // files without a walk stat looked up, its misses read and their keys stored in one
    // write, so the cache's part of memory stays the same however large the tree.
    constexpr quint32 kCacheBatch = 32768;
    lookUpWalkStamps();
    const QList<quint32> folders = foldersToRead();
    QList<quint32> batch;
    quint32 wanted = 0;
    for (qsizetype at = 0; at < folders.size() && !isStopRequested(); ++at) {
        const ScanTable::Folder &folder = m_table.folder(folders[at]);
        batch.append(folders[at]);
        wanted += quint32(std::count(m_keyState.begin() + folder.firstFile,
            m_keyState.begin() + folder.firstFile + folder.fileCount, quint8(1)));
        if (wanted >= kCacheBatch || at + 1 == folders.size()) {
            keyFoldersWithCache(batch);
            batch.clear();
            wanted = 0;
        }
    }
    decltype(m_cachedFiles)().swap(m_cachedFiles);
    decltype(m_cacheEntries)().swap(m_cacheEntries);
    std::sort(m_cachedFullKeys.begin(), m_cachedFullKeys.end());
}

void DuplicateKeyReader::takeOverlappedKeys(OverlappedKeyReader *reader)
{
    m_overlappedKeys = 0;
    if (!reader)
        return;
    OverlappedKeyReader::Outcome outcome = reader->finish();
    for (const OverlappedKeyReader::Result &result : outcome.results) {
        if (result.file >= m_keyState.size() || m_keyState[result.file] != 1)
            continue;
        m_keys[result.file] = result.key;
        m_keyState[result.file] = result.keyed ? 2 : 3;
        m_keyedFiles.fetch_add(1);
        ++m_overlappedKeys;
        if (result.cached)
            m_keysFromCache.fetch_add(1);
        if (!result.keyed)
            noteUnread(result.file, result.error);
    }
    if (m_cache && m_allContent)
        m_cachedFullKeys = std::move(outcome.fullKeys);
}

void DuplicateKeyReader::lookUpWalkStamps()
{
    std::vector<quint32> files;
    for (quint32 i = 0; i < quint32(m_keyState.size()); ++i)
        if (m_keyState[i] == 1 && m_table.stat(i).inode != 0)
            files.push_back(i);
    const auto stampOf = [this, &files](size_t at) {
        const quint32 file = files[at];
        const ScanBatch::Stat &stat = m_table.stat(file);
        return ContentKeyCache::Stamp {m_table.folder(m_table.file(file).folder).device, stat.inode,
            m_table.file(file).size, stat.modifiedNs, stat.changedNs};
    };
    const qint32 today = qint32(QDateTime::currentSecsSinceEpoch() / 86400);
    std::vector<quint32> seenBefore;
    QMutex mutex;
    const bool sound = m_cache->lookup(
        files.size(), stampOf, [&](size_t at, const ContentKeyCache::Entry &entry) {
            if (!entry.hasSampled)
                return;
            const quint32 file = files[at];
            m_keys[file] = entry.sampledKey;
            m_keyState[file] = 2;
            m_keyedFiles.fetch_add(1);
            m_keysFromCache.fetch_add(1);
            if (!(entry.hasFull && m_allContent) && entry.seenDay >= today)
                return;
            QMutexLocker locker(&mutex);
            if (entry.hasFull && m_allContent)
                m_cachedFullKeys.emplace_back(file, entry.fullKey);
            if (entry.seenDay < today)
                seenBefore.push_back(quint32(at));
        });
    if (!sound) {
        // A damaged cache gives nothing, not even what it gave before the damage showed.
        for (quint32 file : files) {
            if (m_keyState[file] == 2) {
                m_keyState[file] = 1;
                m_keys[file] = 0;
                m_keyedFiles.fetch_sub(1);
            }
        }
        m_keysFromCache.store(0);
        m_cachedFullKeys.clear();
        return;
    }
    m_cache->touch(seenBefore.size(), [&](size_t at) { return stampOf(seenBefore[at]); });
}

void DuplicateKeyReader::keyFoldersWithCache(const QList<quint32> &folders)
{
    // The stamps are taken before any file is read, and a key is stored only when its
    // file was last modified well before that moment.
    m_readStartNs = QDateTime::currentMSecsSinceEpoch() * 1'000'000LL;
    m_cachedFiles.clear();
    for (quint32 index : folders) {
        const ScanTable::Folder &folder = m_table.folder(index);
        for (quint32 i = folder.firstFile; i < folder.firstFile + folder.fileCount; ++i)
            if (m_keyState[i] == 1)
                m_cachedFiles.push_back(i);
    }
    m_cacheEntries.assign(m_cachedFiles.size(), ContentKeyCache::Entry {});
    readFolders(folders, true);
    // The files with a walk stat were looked up with all the others.
    std::vector<ContentKeyCache::Entry> unlooked;
    std::vector<size_t> positions;
    for (size_t slot = 0; slot < m_cachedFiles.size(); ++slot) {
        if (m_table.stat(m_cachedFiles[slot]).inode == 0 && m_cacheEntries[slot].stamp.size >= 0) {
            unlooked.push_back(m_cacheEntries[slot]);
            positions.push_back(slot);
        }
    }
    if (!unlooked.empty()) {
        m_cache->lookup(unlooked);
        for (size_t i = 0; i < positions.size(); ++i)
            m_cacheEntries[positions[i]] = unlooked[i];
    }
    takeCachedSampledKeys();
    readFolders(folders, false);
    for (size_t slot = 0; slot < m_cachedFiles.size(); ++slot) {
        ContentKeyCache::Entry &entry = m_cacheEntries[slot];
        const quint32 file = m_cachedFiles[slot];
        if (m_keyState[file] == 2 && !(entry.found && entry.hasSampled)) {
            entry.sampledKey = m_keys[file];
            entry.hasSampled = true;
            entry.fresh = true;
        }
    }
    m_cache->store(m_cacheEntries, m_readStartNs);
}

void DuplicateKeyReader::stampFolder(quint32 index)
{
    if (isStopRequested())
        return;
    const ScanTable::Folder &folder = m_table.folder(index);
    auto slot = std::lower_bound(m_cachedFiles.begin(), m_cachedFiles.end(), folder.firstFile);
    const auto end
        = std::lower_bound(slot, m_cachedFiles.end(), folder.firstFile + folder.fileCount);
    // The walk's own stat of each file, where it kept one: nothing is asked again.
    bool missing = false;
    for (auto at = slot; at != end; ++at) {
        const ScanBatch::Stat &stat = m_table.stat(*at);
        if (stat.inode == 0) {
            missing = true;
            continue;
        }
        m_cacheEntries[size_t(at - m_cachedFiles.begin())].stamp = ContentKeyCache::Stamp {
            folder.device, stat.inode, m_table.file(*at).size, stat.modifiedNs, stat.changedNs};
    }
    if (!missing)
        return;
#ifdef Q_OS_UNIX
    const int dirfd = ::open(folder.native.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (dirfd < 0)
        return;
    for (; slot != end; ++slot) {
        const quint32 file = *slot;
        if (m_table.stat(file).inode != 0)
            continue;
        struct stat info
        {
        };
        // A file that changed size since the walk is left to the read, which reports it.
        if (::fstatat(dirfd, m_table.nativeName(file), &info, AT_SYMLINK_NOFOLLOW) != 0
            || !S_ISREG(info.st_mode) || info.st_size != m_table.file(file).size)
            continue;
        m_cacheEntries[size_t(slot - m_cachedFiles.begin())].stamp = stampOf(info);
    }
    ::close(dirfd);
#else
    Q_UNUSED(slot)
#endif
}

void DuplicateKeyReader::takeCachedSampledKeys()
{
    for (size_t slot = 0; slot < m_cachedFiles.size(); ++slot) {
        const ContentKeyCache::Entry &entry = m_cacheEntries[slot];
        if (!entry.found || !entry.hasSampled)
            continue;
        const quint32 file = m_cachedFiles[slot];
        m_keys[file] = entry.sampledKey;
        m_keyState[file] = 2;
        m_keyedFiles.fetch_add(1);
        m_keysFromCache.fetch_add(1);
        if (entry.hasFull && m_allContent)
            m_cachedFullKeys.emplace_back(file, entry.fullKey);
    }
}

bool DuplicateKeyReader::cachedFullKey(quint32 file, quint64 &key)
{
    if (!m_cache)
        return false;
    const auto found = std::lower_bound(
        m_cachedFullKeys.begin(), m_cachedFullKeys.end(), std::pair<quint32, quint64> {file, 0});
    if (found == m_cachedFullKeys.end() || found->first != file)
        return false;
    key = found->second;
    m_keysFromCache.fetch_add(1);
    return true;
}

void DuplicateKeyReader::noteFullKey(quint32 file, quint64 key, const ContentKeyCache::Stamp &read)
{
    if (!m_cache)
        return;
#ifdef Q_OS_UNIX
    // The row holds both keys: the sampled one is read again from the same file and must
    // be the one this scan used, or the file changed between the two reads.
    const ScanTable::Folder &folder = m_table.folder(m_table.file(file).folder);
    const QByteArray native = m_table.nativePath(file);
    quint64 sampled = 0;
    int error = 0;
    struct stat opened
    {
    };
    if (!SampledKey::readAt(
            AT_FDCWD, native.constData(), m_table.file(file).size, sampled,
            [this, file] { return m_table.filePath(file); }, error, &opened)
        || sampled != m_keys[file] || !(stampOf(opened) == read))
        return;
    ContentKeyCache::Entry entry {read, sampled, key, true, true};
    entry.fresh = true;
    QMutexLocker locker(&m_cacheLock);
    m_fullEntries.push_back(entry);
#else
    Q_UNUSED(file)
    Q_UNUSED(key)
    Q_UNUSED(read)
#endif
}

void DuplicateKeyReader::keepOnlyIfStamped(quint32 file, const ContentKeyCache::Stamp &read)
{
    const auto slot = std::lower_bound(m_cachedFiles.begin(), m_cachedFiles.end(), file);
    if (slot == m_cachedFiles.end() || *slot != file)
        return;
    QMutexLocker locker(&m_cacheLock);
    ContentKeyCache::Stamp &stamp = m_cacheEntries[size_t(slot - m_cachedFiles.begin())].stamp;
    // Replaced or changed between its stamp and its read: its key stands for another file.
    if (!(stamp == read))
        stamp.size = -1;
}

void DuplicateKeyReader::storeKeys()
{
    if (!m_cache)
        return;
    m_cache->store(m_fullEntries, m_fullReadStartNs);
    m_cache.reset();
    decltype(m_fullEntries)().swap(m_fullEntries);
    decltype(m_cachedFullKeys)().swap(m_cachedFullKeys);
}

void DuplicateKeyReader::keyFolder(quint32 index)
{
    if (isStopRequested())
        return;
    const ScanTable::Folder &folder = m_table.folder(index);
    std::vector<quint32> wanted;
    for (quint32 i = folder.firstFile; i < folder.firstFile + folder.fileCount; ++i)
        if (m_keyState[i] == 1)
            wanted.push_back(i);
    // One reader on a disk that seeks reads in the disk's order.
    if (m_readPool.mode() == ReadPool::Hdd)
        std::sort(wanted.begin(), wanted.end(),
            [this](quint32 a, quint32 b) { return m_table.stat(a).inode < m_table.stat(b).inode; });
#ifdef Q_OS_UNIX
    // The folder is opened once; each file is then looked up by its name alone. A folder
    // that cannot be opened this way leaves its files to full paths.
    const int dirfd = ::open(folder.native.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
#endif
    for (const quint32 i : wanted) {
        if (isStopRequested())
            break;
        quint64 key = 0;
        bool keyed = false;
        try {
#ifdef Q_OS_UNIX
            const auto pathOf = [this, i] { return m_table.filePath(i); };
            int error = 0;
            struct stat opened
            {
            };
            struct stat *read = m_cache ? &opened : nullptr;
            if (dirfd >= 0) {
                keyed = SampledKey::readAt(
                    dirfd, m_table.nativeName(i), m_table.file(i).size, key, pathOf, error, read);
            } else {
                const QByteArray native = m_table.nativePath(i);
                keyed = SampledKey::readAt(
                    AT_FDCWD, native.constData(), m_table.file(i).size, key, pathOf, error, read);
            }
            if (!keyed)
                noteUnread(i, error);
            else if (read)
                keepOnlyIfStamped(i, stampOf(opened));
#else
            const QByteArray hex
                = sampledKeyOf(m_table.filePath(i), m_table.file(i).size, folder.driveType);
            keyed = !hex.isEmpty();
            key = hex.toULongLong(nullptr, 16);
#endif
        } catch (const std::exception &error) {
            splog_d(kTag
                + QStringLiteral("Exception in calculateFileHash: [%1].")
                      .arg(QString::fromLocal8Bit(error.what())));
        } catch (...) {
            splog_d(kTag + QStringLiteral("Unknown exception in calculateFileHash."));
        }
        m_keys[i] = key;
        m_keyState[i] = keyed ? 2 : 3;
        m_keyedFiles.fetch_add(1);
        m_bytesRead.fetch_add(std::min<qint64>(m_table.file(i).size, SampledKey::kWholeFileLimit));
    }
#ifdef Q_OS_UNIX
    if (dirfd >= 0)
        ::close(dirfd);
#endif
    if (m_progress)
        m_progress();
}

void DuplicateKeyReader::readFolders(QList<quint32> folders, bool stampOnly)
{
    if (m_readPool.mode() == ReadPool::Hdd) {
        // Folders by the place of their first file on the disk (its inode), so that one
        // reader sweeps the disk once instead of seeking back and forth.
        const auto firstInode = [this](quint32 index) {
            const ScanTable::Folder &folder = m_table.folder(index);
            quint64 lowest = ~quint64(0);
            for (quint32 i = folder.firstFile; i < folder.firstFile + folder.fileCount; ++i)
                if (m_keyState[i] == 1 && m_table.stat(i).inode != 0)
                    lowest = std::min<quint64>(lowest, m_table.stat(i).inode);
            return lowest;
        };
        std::vector<std::pair<quint64, quint32>> keyed;
        for (quint32 folder : folders)
            keyed.emplace_back(firstInode(folder), folder);
        std::sort(keyed.begin(), keyed.end());
        for (size_t i = 0; i < keyed.size(); ++i)
            folders[qsizetype(i)] = keyed[i].second;
    }
    const auto work = [this, &folders, stampOnly](size_t at) {
        if (stampOnly)
            stampFolder(folders[qsizetype(at)]);
        else
            keyFolder(folders[qsizetype(at)]);
    };
    m_readPool.run(size_t(folders.size()), work, m_bytesRead, &m_stop);
}

void DuplicateKeyReader::noteUnread(quint32 file, int error)
{
    // An empty file holds nothing to compare; that is no failure.
    if (error == 0 || !m_problems)
        return;
    // A file removed since the walk is simply gone: it is no member, and nothing the
    // user could not read.
    m_problems->add(error == ENOENT ? ScanProblems::VanishedFile : ScanProblems::UnreadableFile,
        m_table.filePath(file));
}

bool DuplicateKeyReader::stillExists(quint32 file)
{
#ifdef Q_OS_UNIX
    struct stat info
    {
    };
    if (::stat(m_table.nativePath(file).constData(), &info) == 0 && S_ISREG(info.st_mode))
        return true;
    noteUnread(file, errno == 0 ? ENOENT : errno);
    return false;
#else
    if (QFileInfo(m_table.filePath(file)).isFile())
        return true;
    noteUnread(file, ENOENT);
    return false;
#endif
}

bool DuplicateKeyReader::wholeKey(quint32 file, quint64 &key)
{
    const int driveType = m_table.folder(m_table.file(file).folder).driveType;
#ifdef Q_OS_UNIX
    if (!cachedFullKey(file, key)) {
        const QByteArray native = m_table.nativePath(file);
        int error = 0;
        struct stat opened
        {
        };
        if (!streamKeyAt(
                AT_FDCWD, native.constData(), driveType, key,
                [this, file] { return m_table.fileName(file); }, error, &opened)) {
            noteUnread(file, error);
            return false;
        }
        noteFullKey(file, key, stampOf(opened));
        m_bytesRead.fetch_add(m_table.file(file).size);
    }
#else
    const QByteArray hex = wholeKeyOf(m_table.filePath(file), driveType);
    if (hex.isEmpty())
        return false;
    key = hex.toULongLong(nullptr, 16);
#endif
    return true;
}
