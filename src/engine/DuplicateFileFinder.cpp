// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/DuplicateFileFinder.h"

#include "app/FileTypeCatalogue.h"
#include "app/SnapshotKeys.h"
#include "app/TLogger.h"
#include "engine/FilePathCodec.h"
#include "engine/FinderCommon.h"
#include "engine/GroupItemAutoSelector.h"
#include "engine/KeyRuns.h"
#include "engine/SampledKey.h"
#include "engine/TFileData.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <exception>
#include <string_view>
#include <unordered_map>

#include <QCryptographicHash>
#include <QDataStream>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonValue>
#include <QMutexLocker>
#include <QReadLocker>
#include <QWriteLocker>
#include <QtConcurrent>

#define XXH_STATIC_LINKING_ONLY
#include <xxhash.h>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

// The log tags of this file.
const QString kStreamHashTag = QStringLiteral("[streamHash] ");

using FinderCommon::fileNameOf;
using FinderCommon::folderOf;
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
// Image suffixes up to this length are tested on the name's bytes.
constexpr size_t kShortSuffix = 16;

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

// Counts the plain files of a folder the way a directory listing of files only does:
// regular files and links to them, hidden (dot) entries not counted.
int countPlainFiles(const QString &folder)
{
    DIR *dir = ::opendir(FilePathCodec::encode(folder).constData());
    if (!dir)
        return -1;
    const int fd = ::dirfd(dir);
    int count = 0;
    while (const dirent *entry = ::readdir(dir)) {
        if (entry->d_name[0] == '.')
            continue;
        if (entry->d_type == DT_REG) {
            ++count;
            continue;
        }
        if (entry->d_type != DT_LNK && entry->d_type != DT_UNKNOWN)
            continue;
        struct stat info
        {
        };
        if (::fstatat(fd, entry->d_name, &info, 0) == 0 && S_ISREG(info.st_mode))
            ++count;
    }
    ::closedir(dir);
    return count;
}
#else
int countPlainFiles(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files).size();
}
#endif

} // namespace

DuplicateFileFinder::DuplicateFileFinder(QObject *parent) : QThread(parent) { }

DuplicateFileFinder::~DuplicateFileFinder()
{
    requestStop();
    wait();
}

void DuplicateFileFinder::applyConfig(const QJsonObject &duplication)
{
    config = duplication;
    const QJsonValue method = duplication.value(SnapshotKeys::scanMethod);
    if (method.isDouble())
        scanMethod = method.toInt();
    const QJsonValue folders = duplication.value(SnapshotKeys::scanDupDirectory);
    if (folders.isBool())
        scanDupDirectory = folders.toBool();
    const QJsonValue hint = duplication.value(SnapshotKeys::duplicateSelectHint);
    if (hint.isDouble())
        duplicateSelectHint = hint.toInt();
    if (duplicateSelectHint == 3) {
        const QJsonValue priorities = duplication.value(SnapshotKeys::mapPriority);
        if (priorities.isObject()) {
            mapPriority.clear();
            const QJsonObject map = priorities.toObject();
            for (auto it = map.begin(); it != map.end(); ++it)
                mapPriority.insert(it.key(), it.value().toInt());
        }
    }
}

void DuplicateFileFinder::setInput(const SizeTable &table, const QStringList &)
{
    m_table.clear();
    for (auto it = table.cbegin(); it != table.cend(); ++it)
        for (const FileMeta &meta : it.value())
            m_table.append(meta);
}

QStringList DuplicateFileFinder::uniqueImageFiles() const
{
    QMutexLocker locker(&m_mutex);
    return uniqueImages;
}

QByteArray DuplicateFileFinder::nameKey(const QString &filePath)
{
    return QCryptographicHash::hash(fileNameOf(filePath).toUtf8(), QCryptographicHash::Md5)
        .toHex()
        .toUpper();
}

QByteArray DuplicateFileFinder::calculateFileHash(
    const QString &filePath, qint64 size, int driveType)
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

QByteArray DuplicateFileFinder::streamHash(const QString &filePath, int driveType)
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

void DuplicateFileFinder::run()
{
    stopRequested.store(0);
    {
        QMutexLocker locker(&m_mutex);
        uniqueImages.clear();
    }
    m_folders.clear();
    duplicateFileCount.store(0);
    duplicateTotalSize.store(0);
    processDuplicates();
    if (!isStopRequested() && scanDupDirectory) {
        m_folders.match(m_roots, duplicateSelectHint, mapPriority,
            [this](double percent) { emit progressUpdated(1, percent); });
        emit onFindItem(duplicateFileCount.load(), duplicateTotalSize.load());
    }
    m_table.clear();
    decltype(m_order)().swap(m_order);
    decltype(m_runs)().swap(m_runs);
    decltype(m_keys)().swap(m_keys);
    decltype(m_keyState)().swap(m_keyState);
    m_folders.clear();
    emit scanFinished();
}

void DuplicateFileFinder::reportProgress(bool force)
{
    const qint64 now = m_timer.elapsed();
    if (!force && now - m_lastReportMs.load() <= 100)
        return;
    m_lastReportMs.store(now);
    const double total = double(m_wantedFiles) + double(m_runs.size());
    const double done = double(m_keyedFiles.load()) + double(m_done.load());
    emit progressUpdated(0, total > 0 ? done * 100.0 / total : 100.0);
    emit onFindItem(duplicateFileCount.load(), duplicateTotalSize.load());
}

void DuplicateFileFinder::processDuplicates()
{
    m_timer.start();
    m_lastReportMs.store(0);
    m_done.store(0);
    m_keyedFiles.store(0);
    m_wantedFiles = 0;
    m_table.squeeze();
    m_order = m_table.bySize();
    prepareImageTest();

    // Stage A: single files are never opened; single pictures wait for the similar stage.
    m_runs.clear();
    const size_t count = m_order.size();
    for (size_t begin = 0; begin < count;) {
        const qint64 size = m_table.file(m_order[begin]).size;
        size_t end = begin + 1;
        while (end < count && m_table.file(m_order[end]).size == size)
            ++end;
        if (end - begin == 1) {
            if (m_collectsPictures && isImage(m_order[begin])) {
                QMutexLocker locker(&m_mutex);
                uniqueImages.append(m_table.filePath(m_order[begin]));
            }
        } else {
            m_runs.push_back(SizeRun {quint32(begin), quint32(end - begin)});
        }
        begin = end;
    }
    // Large groups first, so that the last chunk does not leave one thread hashing a
    // big file alone.
    std::sort(m_runs.begin(), m_runs.end(), [this](const SizeRun &a, const SizeRun &b) {
        return m_table.file(m_order[a.begin]).size * a.count
            > m_table.file(m_order[b.begin]).size * b.count;
    });

    m_keysFromCache.store(0);
    if (scanMethod != scanName && m_cacheOptions.enabled) {
        m_cache = std::make_unique<ContentKeyCache>(
            m_cacheOptions.path.isEmpty() ? ContentKeyCache::defaultPath() : m_cacheOptions.path);
        if (!m_cache->isOpen())
            m_cache.reset();
    }
    if (scanMethod != scanName)
        computeSampledKeys();

    m_fullReadStartNs = QDateTime::currentMSecsSinceEpoch() * 1'000'000LL;
    // Stage B, in chunks so that a stop takes effect between them.
    const qsizetype candidates = qsizetype(m_runs.size());
    const qsizetype chunk
        = std::max<qsizetype>(10, candidates / std::max(1, QThread::idealThreadCount()));
    for (qsizetype start = 0; start < candidates && !isStopRequested(); start += chunk) {
        const qsizetype end = std::min(candidates, start + chunk);
        QtConcurrent::blockingMap(m_runs.begin() + start, m_runs.begin() + end,
            [this](const SizeRun &run) { hashGroup(run); });
    }
    storeKeys();
    emit progressUpdated(0, isStopRequested() ? 0.0 : 100.0);
    emit onFindItem(duplicateFileCount.load(), duplicateTotalSize.load());
}

void DuplicateFileFinder::prepareImageTest()
{
    m_imageSuffixes.clear();
    m_longestImageSuffix = 0;
    m_asciiImageTest = true;
    for (const QString &suffix : FileTypeCatalogue::categoryExtensions().value(CategoryImages)) {
        for (QChar c : suffix)
            m_asciiImageTest = m_asciiImageTest && c.unicode() < 0x80;
        m_imageSuffixes.push_back(suffix.toLatin1().toLower().toStdString());
        m_longestImageSuffix = std::max(m_longestImageSuffix, m_imageSuffixes.back().size());
    }
    m_asciiImageTest = m_asciiImageTest && m_longestImageSuffix <= kShortSuffix;
    m_packedImageSuffixes.clear();
    for (const std::string &suffix : m_imageSuffixes) {
        if (suffix.size() > 8)
            continue;
        quint64 packed = 0;
        std::memcpy(&packed, suffix.data(), suffix.size());
        m_packedImageSuffixes.push_back(packed);
    }
    std::sort(m_packedImageSuffixes.begin(), m_packedImageSuffixes.end());
}

bool DuplicateFileFinder::isImage(quint32 file) const
{
    if (m_asciiImageTest) {
        // The suffix as QFileInfo::suffix() takes it: the text after the last dot.
        const char *name = m_table.nativeName(file);
        const char *dot = std::strrchr(name, '.');
        char lower[kShortSuffix];
        size_t length = 0;
        bool ascii = true;
        for (const char *c = dot ? dot + 1 : ""; *c; ++c) {
            const unsigned char byte = static_cast<unsigned char>(*c);
            if (byte >= 0x80) {
                ascii = false;
                break;
            }
            // For ASCII text a case-insensitive comparison is a comparison of lower case.
            if (length < kShortSuffix)
                lower[length] = char(byte >= 'A' && byte <= 'Z' ? byte + ('a' - 'A') : byte);
            ++length;
        }
        if (ascii) {
            if (length > m_longestImageSuffix)
                return false;
            if (length <= 8) {
                quint64 packed = 0;
                std::memcpy(&packed, lower, length);
                return std::binary_search(
                    m_packedImageSuffixes.begin(), m_packedImageSuffixes.end(), packed);
            }
            const std::string_view suffix(lower, length);
            return std::find(m_imageSuffixes.begin(), m_imageSuffixes.end(), suffix)
                != m_imageSuffixes.end();
        }
    }
    return isImageFile(m_table.fileName(file));
}

void DuplicateFileFinder::computeSampledKeys()
{
    const size_t files = size_t(m_table.fileCount());
    m_keys.assign(files, 0);
    m_keyState.assign(files, 0);
    for (const SizeRun &run : m_runs) {
        // Empty files are never opened: they are never duplicates.
        if (m_table.file(m_order[run.begin]).size < 1)
            continue;
        for (quint32 i = run.begin; i < run.begin + run.count; ++i)
            m_keyState[m_order[i]] = 1;
        m_wantedFiles += run.count;
    }
    takeOverlappedKeys();
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
        QtConcurrent::blockingMap(foldersToRead(), [this](quint32 folder) { keyFolder(folder); });
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

void DuplicateFileFinder::takeOverlappedKeys()
{
    m_overlappedKeys = 0;
    if (!m_reader)
        return;
    OverlappedKeyReader::Outcome outcome = m_reader->finish();
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
    if (m_cache && scanMethod == scanAllContent)
        m_cachedFullKeys = std::move(outcome.fullKeys);
}

void DuplicateFileFinder::lookUpWalkStamps()
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
            if (!(entry.hasFull && scanMethod == scanAllContent) && entry.seenDay >= today)
                return;
            QMutexLocker locker(&mutex);
            if (entry.hasFull && scanMethod == scanAllContent)
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

void DuplicateFileFinder::keyFoldersWithCache(const QList<quint32> &folders)
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
    QtConcurrent::blockingMap(folders, [this](quint32 folder) { stampFolder(folder); });
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
    QtConcurrent::blockingMap(folders, [this](quint32 folder) { keyFolder(folder); });
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

void DuplicateFileFinder::stampFolder(quint32 index)
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

void DuplicateFileFinder::takeCachedSampledKeys()
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
        if (entry.hasFull && scanMethod == scanAllContent)
            m_cachedFullKeys.emplace_back(file, entry.fullKey);
    }
}

bool DuplicateFileFinder::cachedFullKey(quint32 file, quint64 &key)
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

void DuplicateFileFinder::noteFullKey(quint32 file, quint64 key, const ContentKeyCache::Stamp &read)
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

void DuplicateFileFinder::keepOnlyIfStamped(quint32 file, const ContentKeyCache::Stamp &read)
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

void DuplicateFileFinder::storeKeys()
{
    if (!m_cache)
        return;
    m_cache->store(m_fullEntries, m_fullReadStartNs);
    m_cache.reset();
    decltype(m_fullEntries)().swap(m_fullEntries);
    decltype(m_cachedFullKeys)().swap(m_cachedFullKeys);
}

void DuplicateFileFinder::keyFolder(quint32 index)
{
    if (isStopRequested())
        return;
    const ScanTable::Folder &folder = m_table.folder(index);
    const quint32 end = folder.firstFile + folder.fileCount;
#ifdef Q_OS_UNIX
    // The folder is opened once; each file is then looked up by its name alone. A folder
    // that cannot be opened this way leaves its files to full paths.
    const int dirfd = ::open(folder.native.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
#endif
    for (quint32 i = folder.firstFile; i < end; ++i) {
        if (m_keyState[i] != 1)
            continue;
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
                = calculateFileHash(m_table.filePath(i), m_table.file(i).size, folder.driveType);
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
    }
#ifdef Q_OS_UNIX
    if (dirfd >= 0)
        ::close(dirfd);
#endif
    reportProgress(false);
}

void DuplicateFileFinder::noteUnread(quint32 file, int error)
{
    // An empty file holds nothing to compare; that is no failure.
    if (error == 0 || !m_problems)
        return;
    // A file removed since the walk is simply gone: it is no member, and nothing the
    // user could not read.
    m_problems->add(error == ENOENT ? ScanProblems::VanishedFile : ScanProblems::UnreadableFile,
        m_table.filePath(file));
}

bool DuplicateFileFinder::stillExists(quint32 file)
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

bool DuplicateFileFinder::groupByName(const SizeRun &run, std::vector<Found> &found)
{
    QHash<QByteArray, size_t> byText;
    for (quint32 i = run.begin; i < run.begin + run.count; ++i) {
        if (isStopRequested())
            return false;
        const quint32 file = m_order[i];
        // Names are compared without reading the files; a file must still be there
        // to be a member.
        if (!stillExists(file))
            continue;
        const QByteArray key = nameKey(m_table.fileName(file));
        const auto at = byText.constFind(key);
        if (at == byText.constEnd()) {
            byText.insert(key, found.size());
            found.push_back(Found {key, {file}});
        } else {
            found[at.value()].members.push_back(file);
        }
    }
    return true;
}

bool DuplicateFileFinder::wholeKeys(const std::vector<KeyRuns::Keyed> &keyed,
    const std::vector<KeyRuns::Range> &ranges, std::vector<KeyRuns::Keyed> &full)
{
    using Keyed = KeyRuns::Keyed;
    // Whole files are read only where the sampled keys already agree: files whose
    // samples differ cannot have equal contents, so the groups are the same as
    // from hashing every file whole.
    full.clear();
    for (const KeyRuns::Range &range : ranges) {
        if (range.end - range.begin < 2) {
            full.push_back(
                Keyed {keyed[range.begin].key, quint32(full.size()), keyed[range.begin].file});
            continue;
        }
        for (quint32 k = range.begin; k < range.end; ++k) {
            if (isStopRequested())
                return false;
            const quint32 file = keyed[k].file;
            const int driveType = m_table.folder(m_table.file(file).folder).driveType;
            quint64 key = 0;
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
                    continue;
                }
                noteFullKey(file, key, stampOf(opened));
            }
#else
            const QByteArray hex = streamHash(m_table.filePath(file), driveType);
            if (hex.isEmpty())
                continue;
            key = hex.toULongLong(nullptr, 16);
#endif
            full.push_back(Keyed {key, quint32(full.size()), file});
        }
    }
    return true;
}

bool DuplicateFileFinder::groupByContent(
    const SizeRun &run, qint64 size, std::vector<Found> &found, std::vector<quint32> &singles)
{
    using Keyed = KeyRuns::Keyed;
    using Range = KeyRuns::Range;
    thread_local std::vector<Keyed> keyed;
    thread_local std::vector<Keyed> full;
    thread_local std::vector<Range> ranges;
    thread_local std::vector<Range> fullRanges;
    keyed.clear();
    for (quint32 i = run.begin; i < run.begin + run.count; ++i) {
        const quint32 file = m_order[i];
        if (m_keyState[file] == 2)
            keyed.push_back(Keyed {m_keys[file], quint32(keyed.size()), file});
    }
    KeyRuns::group(keyed, ranges);
    std::vector<Keyed> *result = &keyed;
    std::vector<Range> *resultRanges = &ranges;
    if (scanMethod == scanAllContent && size > kWholeFileLimit) {
        if (!wholeKeys(keyed, ranges, full))
            return false;
        KeyRuns::group(full, fullRanges);
        result = &full;
        resultRanges = &fullRanges;
    }
    for (const Range &range : *resultRanges) {
        if (range.end - range.begin == 1) {
            singles.push_back((*result)[range.begin].file);
            continue;
        }
        Found entry {hexKey((*result)[range.begin].key), {}};
        for (quint32 k = range.begin; k < range.end; ++k)
            entry.members.push_back((*result)[k].file);
        found.push_back(std::move(entry));
    }
    return true;
}

bool DuplicateFileFinder::storeFound(qint64 size, const std::vector<Found> &found)
{
    for (const Found &entry : found) {
        if (entry.members.size() < 2)
            continue;
        // Members by path: the parallel walk meets them in a different order each time,
        // and the group is named after its first member, so the same tree always gives
        // the same groups, names and order.
        std::vector<std::pair<QString, quint32>> byPath;
        byPath.reserve(entry.members.size());
        for (quint32 file : entry.members)
            byPath.emplace_back(m_table.filePath(file), file);
        std::sort(byPath.begin(), byPath.end());
        QStringList paths;
        paths.reserve(qsizetype(byPath.size()));
        std::vector<quint32> members;
        members.reserve(byPath.size());
        for (auto &[path, file] : byPath) {
            paths.append(std::move(path));
            members.push_back(file);
        }
        storeGroup(size, entry.key, paths, members);
        if (isStopRequested())
            return false;
    }
    return true;
}

void DuplicateFileFinder::hashGroup(const SizeRun &run)
{
    if (isStopRequested() || run.count == 0)
        return;
    const qint64 size = m_table.file(m_order[run.begin]).size;
    // Empty files are never duplicates of one another, in any mode: they hold nothing
    // to recover.
    if (size < 1) {
        m_done.fetch_add(1);
        return;
    }
    // Files by key, keys in first-seen order, members in their order. Content keys are
    // the 64-bit digests, grouped by sorting (no allocation per file or key); the name
    // mode's keys are the MD5 texts.
    std::vector<Found> found;
    std::vector<quint32> singles;
    const bool grouped = scanMethod == scanName ? groupByName(run, found)
                                                : groupByContent(run, size, found, singles);
    if (!grouped)
        return;

    // Keys in first-seen order: a single file is only looked at as a picture.
    for (const Found &entry : found)
        if (entry.members.size() == 1)
            singles.push_back(entry.members.front());
    for (quint32 file : singles) {
        if (m_collectsPictures && isImage(file)) {
            QMutexLocker locker(&m_mutex);
            uniqueImages.append(m_table.filePath(file));
        }
    }
    if (!storeFound(size, found))
        return;

    const int done = m_done.fetch_add(1) + 1;
    reportProgress(done == int(m_runs.size()));
}

void DuplicateFileFinder::storeGroup(qint64 size, const QByteArray &contentKey,
    const QStringList &paths, const std::vector<quint32> &members)
{
    const QString groupKey = TFileData::groupKey(paths.first());
    if (scanDupDirectory && !m_folders.addGroupFiles(size, contentKey, groupKey, paths))
        return;
    TFileData *store = TFileData::instance();
    QList<FileStamp> stamps;
    if (m_keepsStamps)
        stamps.reserve(paths.size());
    // What each member looked like now, for the checks before any removal; the key
    // stands for the whole content in the full mode and for files read whole.
    const bool wholeContent
        = scanMethod == scanAllContent || (scanMethod == scanContent && size <= kWholeFileLimit);
    const quint64 key = contentKey.toULongLong(nullptr, 16);
    for (qsizetype i = 0; i < paths.size() && m_keepsStamps; ++i) {
        const QString &path = paths[i];
        const ScanBatch::Stat &stat = m_table.stat(members[size_t(i)]);
        if (stat.inode == 0) {
            stamps.append(
                wholeContent ? FileStamp::withContentKey(path, key) : FileStamp::of(path));
            continue;
        }
        // The walk's stat is the stamp: a file changed since then no longer matches it, so
        // a removal checks it again. The key goes with it only when no write after the
        // listing can have left both times as they were.
        const ScanTable::Folder &folder = m_table.folder(m_table.file(members[size_t(i)]).folder);
        FileStamp stamp;
        stamp.size = size;
        stamp.modifiedNs = stat.modifiedNs;
        stamp.changedNs = stat.changedNs;
        stamp.device = folder.device;
        stamp.inode = stat.inode;
        if (wholeContent && FileStamp::settled(stat.modifiedNs, stat.changedNs, folder.listedNs)) {
            stamp.contentKey = key;
            stamp.hasContentKey = true;
        }
        stamps.append(stamp);
    }
    store->insertGroup(groupKey, paths, stamps);
    if (scanMethod == scanName)
        store->setGroupMatch(groupKey, TFileData::MatchName);
    else if (!wholeContent)
        store->setGroupMatch(groupKey, TFileData::MatchSampled);
    // The "no selection" hint leaves the group without a selection entry.
    if (duplicateSelectHint != 8)
        GroupItemAutoSelector::applyToGroup(groupKey, paths, duplicateSelectHint, mapPriority);
    // What could go: every copy but one.
    duplicateFileCount.fetch_add(int(paths.size()) - 1);
    duplicateTotalSize.fetch_add(qint64(paths.size() - 1) * size);
}
