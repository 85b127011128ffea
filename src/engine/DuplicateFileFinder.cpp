// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/DuplicateFileFinder.h"

#include "app/FileTypeCatalogue.h"
#include "app/TLogger.h"
#include "engine/FilePathCodec.h"
#include "engine/TFileData.h"
#include "results/GroupItemAutoSelector.h"

#include <algorithm>
#include <cstring>
#include <exception>

#include <QCryptographicHash>
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

constexpr qint64 kBlock = 4096;
constexpr qint64 kWholeFileLimit = 3 * kBlock;
constexpr qint64 kStreamPiece = 65536;
constexpr qint64 kMapLimit = 4294967296LL;
// Below this size a memory map costs more than the three small reads it replaces
// (mapping and unmapping dominate), so small files are read with pread; the keys are the
// same either way.
constexpr qint64 kSampledMapThreshold = 1 << 20;
// The same trade-off for whole-file hashing: maps pay off only for larger files.
constexpr qint64 kStreamMapThreshold = 1 << 20;
constexpr int kExternalDrive = 2;

QByteArray hexKey(XXH64_hash_t digest)
{
    char text[17];
    static const char digits[] = "0123456789abcdef";
    for (int i = 15; i >= 0; --i) {
        text[i] = digits[digest & 0xF];
        digest >>= 4;
    }
    return QByteArray(text, 16);
}

QString folderOf(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    if (slash <= 0)
        return QStringLiteral("/");
    return path.left(slash);
}

QString fileNameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

#ifdef Q_OS_UNIX
// Opens a regular file for reading; -1 for anything else. O_NONBLOCK keeps a file that
// was replaced by a pipe since the scan from blocking the read.
int openRegular(const QString &path, struct stat &info)
{
    const QByteArray native = FilePathCodec::encode(path);
    const int fd = ::open(native.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0)
        return -1;
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        ::close(fd);
        errno = EINVAL;
        return -1;
    }
    return fd;
}

qint64 readFully(int fd, char *buffer, qint64 length, qint64 offset)
{
    qint64 total = 0;
    while (total < length) {
        const ssize_t got = ::pread(fd, buffer + total, size_t(length - total), offset + total);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        total += got;
    }
    return total;
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
    const QJsonValue method = duplication.value(QStringLiteral("scanMethod"));
    if (method.isDouble())
        scanMethod = method.toInt();
    const QJsonValue folders = duplication.value(QStringLiteral("scanDupDirectory"));
    if (folders.isBool())
        scanDupDirectory = folders.toBool();
    const QJsonValue hint = duplication.value(QStringLiteral("duplicateSelectHint"));
    if (hint.isDouble())
        duplicateSelectHint = hint.toInt();
    if (duplicateSelectHint == 3) {
        const QJsonValue priorities = duplication.value(QStringLiteral("mapPriority"));
        if (priorities.isObject()) {
            mapPriority.clear();
            const QJsonObject map = priorities.toObject();
            for (auto it = map.begin(); it != map.end(); ++it)
                mapPriority.insert(it.key(), it.value().toInt());
        }
    }
}

void DuplicateFileFinder::setInput(const SizeTable &table, const QStringList &files)
{
    sizeTable = table;
    allFiles = files;
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
        struct stat info
        {
        };
        const int fd = openRegular(filePath, info);
        if (fd < 0) {
            splog_d(QStringLiteral("[TDuplicateFinleFinder]: Cannot read file, skipped: [%1]. %2")
                        .arg(filePath, QString::fromLocal8Bit(std::strerror(errno))));
            return {};
        }
        const qint64 n = std::min<qint64>(info.st_size, size);
        if (info.st_size < 1 || n < 1) {
            ::close(fd);
            return {};
        }
        char buffer[kWholeFileLimit];
        if (n <= kWholeFileLimit) {
            const qint64 got = readFully(fd, buffer, n, 0);
            ::close(fd);
            return hexKey(XXH3_64bits(buffer, size_t(got)));
        }
        const qint64 offsets[3] = {0, std::clamp<qint64>(n / 2 - 2048, 0, n - kBlock), n - kBlock};
        XXH3_state_t state;
        XXH3_64bits_reset(&state);
        bool hashed = false;
        if (driveType != kExternalDrive && n >= kSampledMapThreshold) {
            void *map = ::mmap(nullptr, size_t(n), PROT_READ, MAP_SHARED, fd, 0);
            if (map == MAP_FAILED) {
                splog_d(QStringLiteral("[TDuplicateFinleFinder]: file.map failed.: [%1].")
                            .arg(filePath));
            } else {
                for (qint64 offset : offsets)
                    XXH3_64bits_update(&state, static_cast<const char *>(map) + offset, kBlock);
                ::munmap(map, size_t(n));
                hashed = true;
            }
        }
        if (!hashed) {
            // External drives are never mapped: a drive pulled out while mapped pages are
            // read ends the process.
            for (qint64 offset : offsets) {
                const qint64 got = readFully(fd, buffer, kBlock, offset);
                if (got > 0)
                    XXH3_64bits_update(&state, buffer, size_t(got));
            }
        }
        ::close(fd);
        return hexKey(XXH3_64bits_digest(&state));
#else
        QFile file(filePath);
        if (!file.open(QIODevice::ReadOnly)) {
            splog_d(QStringLiteral("[TDuplicateFinleFinder]: Cannot read file, skipped: [%1]. %2")
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
            splog_d(
                QStringLiteral("[TDuplicateFinleFinder]: file.map failed.: [%1].").arg(filePath));
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
        splog_d(QStringLiteral("[TDuplicateFinleFinder]: Exception in calculateFileHash: [%1].")
                    .arg(QString::fromLocal8Bit(error.what())));
    } catch (...) {
        splog_d(QStringLiteral("[TDuplicateFinleFinder]: Unknown exception in calculateFileHash."));
    }
    return {};
}

QByteArray DuplicateFileFinder::streamHash(const QString &filePath, int driveType)
{
    XXH3_state_t *state = XXH3_createState();
    if (!state) {
        splog_d(QStringLiteral("[streamHash] Failed to create XXH3 state"));
        return {};
    }
    XXH3_64bits_reset(state);
    QByteArray key;
#ifdef Q_OS_UNIX
    struct stat info
    {
    };
    const int fd = openRegular(filePath, info);
    if (fd < 0 || info.st_size < 1) {
        if (fd >= 0)
            ::close(fd);
        splog_d(QStringLiteral("[streamHash] File not accessible: %1").arg(fileNameOf(filePath)));
        XXH3_freeState(state);
        return {};
    }
    const qint64 size = info.st_size;
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
                splog_d(QStringLiteral("[streamHash] Failed to read file or reached EOF: %1")
                            .arg(fileNameOf(filePath)));
                ::close(fd);
                XXH3_freeState(state);
                return {};
            }
            XXH3_64bits_update(state, buffer.constData(), size_t(got));
            offset += got;
        }
    }
    ::close(fd);
#else
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly) || file.size() < 1) {
        splog_d(QStringLiteral("[streamHash] File not accessible: %1").arg(fileNameOf(filePath)));
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
                splog_d(QStringLiteral("[streamHash] Failed to read file or reached EOF: %1")
                            .arg(fileNameOf(filePath)));
                XXH3_freeState(state);
                return {};
            }
            XXH3_64bits_update(state, buffer.constData(), size_t(got));
        }
    }
#endif
    key = hexKey(XXH3_64bits_digest(state));
    XXH3_freeState(state);
    return key;
}

void DuplicateFileFinder::run()
{
    stopRequested.store(0);
    {
        QMutexLocker locker(&m_mutex);
        dirTable.clear();
        uniqueImages.clear();
        m_signatureTable.clear();
        m_candidates.clear();
    }
    duplicateFileCount.store(0);
    duplicateTotalSize.store(0);
    processDuplicates();
    if (!isStopRequested() && scanDupDirectory)
        processDirectories();
    sizeTable = SizeTable();
    allFiles = QStringList();
    {
        QMutexLocker locker(&m_mutex);
        dirTable.clear();
        m_signatureTable.clear();
        m_candidates.clear();
    }
    emit scanFinished();
}

void DuplicateFileFinder::processDuplicates()
{
    m_timer.start();
    m_lastReportMs.store(0);
    m_done.store(0);
    QList<QList<FileMeta>> sizeGroups = sizeTable.values();

    // Stage A: single files are never opened; single pictures wait for the similar stage.
    QtConcurrent::blockingMap(sizeGroups, [this](QList<FileMeta> &group) {
        if (group.isEmpty())
            return;
        if (group.size() == 1) {
            if (isImageFile(group.first().filePath)) {
                QMutexLocker locker(&m_mutex);
                uniqueImages.append(group.first().filePath);
            }
            return;
        }
        QMutexLocker locker(&m_mutex);
        m_candidates.append(group);
    });
    sizeGroups.clear();
    // Large groups first, so that the last chunk does not leave one thread hashing a
    // big file alone.
    std::sort(m_candidates.begin(), m_candidates.end(),
        [](const QList<FileMeta> &a, const QList<FileMeta> &b) {
            return a.first().size * a.size() > b.first().size * b.size();
        });

    // Stage B, in chunks so that a stop takes effect between them.
    const qsizetype candidates = m_candidates.size();
    const qsizetype chunk
        = std::max<qsizetype>(10, candidates / std::max(1, QThread::idealThreadCount()));
    for (qsizetype start = 0; start < candidates; start += chunk) {
        QList<QList<FileMeta>> part = m_candidates.mid(start, chunk);
        QtConcurrent::blockingMap(part, [this](QList<FileMeta> &group) { hashGroup(group); });
        if (isStopRequested())
            break;
    }
    emit progressUpdated(0, isStopRequested() ? 0.0 : 100.0);
    emit onFindItem(duplicateFileCount.load(), duplicateTotalSize.load());
}

void DuplicateFileFinder::hashGroup(const QList<FileMeta> &sizeGroup)
{
    if (isStopRequested() || sizeGroup.isEmpty())
        return;
    const qint64 size = sizeGroup.first().size;
    // Empty files are never duplicates of one another, in any mode: they hold nothing
    // to recover.
    if (size < 1) {
        m_done.fetch_add(1);
        return;
    }
    // Key -> indices into sizeGroup, keys in first-seen order.
    QHash<QByteArray, QList<int>> keyed;
    QList<QByteArray> order;
    const auto add = [&](const QByteArray &key, int index) {
        auto it = keyed.find(key);
        if (it == keyed.end()) {
            order.append(key);
            keyed.insert(key, QList<int> {index});
        } else {
            it->append(index);
        }
    };
    for (int i = 0; i < sizeGroup.size(); ++i) {
        if (isStopRequested())
            return;
        const FileMeta &meta = sizeGroup.at(i);
        QByteArray key;
        if (scanMethod == scanName)
            key = nameKey(meta.filePath);
        else
            key = calculateFileHash(meta.filePath, meta.size, meta.driveType);
        if (!key.isEmpty())
            add(key, i);
    }

    if (scanMethod == scanAllContent && size > kWholeFileLimit) {
        // Whole files are read only where the sampled keys already agree: files whose
        // samples differ cannot have equal contents, so the groups are the same as from
        // hashing every file whole.
        QHash<QByteArray, QList<int>> full;
        QList<QByteArray> fullOrder;
        for (const QByteArray &sampled : std::as_const(order)) {
            const QList<int> members = keyed.value(sampled);
            if (members.size() < 2) {
                fullOrder.append(sampled);
                full.insert(sampled, members);
                continue;
            }
            for (int index : members) {
                if (isStopRequested())
                    return;
                const FileMeta &meta = sizeGroup.at(index);
                const QByteArray key = streamHash(meta.filePath, meta.driveType);
                if (key.isEmpty())
                    continue;
                auto it = full.find(key);
                if (it == full.end()) {
                    fullOrder.append(key);
                    full.insert(key, QList<int> {index});
                } else {
                    it->append(index);
                }
            }
        }
        keyed.swap(full);
        order.swap(fullOrder);
    }

    for (const QByteArray &key : std::as_const(order)) {
        const QList<int> members = keyed.value(key);
        if (members.size() == 1) {
            const QString &path = sizeGroup.at(members.first()).filePath;
            if (isImageFile(path)) {
                QMutexLocker locker(&m_mutex);
                uniqueImages.append(path);
            }
            continue;
        }
        if (members.size() < 2)
            continue;
        QStringList paths;
        paths.reserve(members.size());
        for (int index : members)
            paths.append(sizeGroup.at(index).filePath);
        storeGroup(sizeGroup, key, paths);
        if (isStopRequested())
            return;
    }

    const int done = m_done.fetch_add(1) + 1;
    const qint64 now = m_timer.elapsed();
    const qsizetype total = m_candidates.size();
    if (done != total && now - m_lastReportMs.load() <= 100)
        return;
    m_lastReportMs.store(now);
    emit progressUpdated(0, total > 0 ? done * 100.0 / total : 100.0);
    emit onFindItem(duplicateFileCount.load(), duplicateTotalSize.load());
}

void DuplicateFileFinder::storeGroup(
    const QList<FileMeta> &sizeGroup, const QByteArray &contentKey, const QStringList &paths)
{
    const QString groupKey = TFileData::groupKey(paths.first());
    const qint64 size = sizeGroup.first().size;
    if (scanDupDirectory) {
        for (const QString &path : paths) {
            if (isStopRequested())
                return;
            QMutexLocker locker(&m_mutex);
            DirMatchInfo &info = dirTable[folderOf(path)];
            info.contentKeys.append(contentKey);
            info.groupKeys.append(groupKey);
            ++info.fileCount;
            info.totalSize += size;
        }
    }
    TFileData::instance()->insertGroup(groupKey, paths);
    // The "no selection" hint leaves the group without a selection entry.
    if (duplicateSelectHint != 8)
        GroupItemAutoSelector::applyToGroup(groupKey, paths, duplicateSelectHint, mapPriority);
    duplicateFileCount.fetch_add(int(paths.size()));
    duplicateTotalSize.fetch_add(qint64(paths.size()) * size);
}

void DuplicateFileFinder::processDirectories()
{
    QStringList folders;
    {
        QMutexLocker locker(&m_mutex);
        folders = dirTable.keys();
    }
    splog_d(QStringLiteral("[TDuplicateFinleFinder]: Start matching duplicate directories. Number "
                           "of groups to match [%1].")
                .arg(folders.size()));
    std::atomic<int> processed {0};
    const qsizetype total = folders.size();
    QtConcurrent::blockingMap(folders, [&](QString &folder) {
        if (isStopRequested())
            return;
        const int done = processed.fetch_add(1) + 1;
        DirMatchInfo info;
        {
            QMutexLocker locker(&m_mutex);
            info = dirTable.value(folder);
        }
        // A folder that also holds files without a copy is not a duplicate folder.
        if (countPlainFiles(folder) != info.fileCount)
            return;
        std::sort(info.contentKeys.begin(), info.contentKeys.end());
        QCryptographicHash md5(QCryptographicHash::Md5);
        md5.addData(QByteArray::number(info.fileCount));
        for (const QByteArray &key : std::as_const(info.contentKeys))
            md5.addData(key);
        const QByteArray signature = md5.result().toHex();
        {
            QMutexLocker locker(&m_mutex);
            m_signatureTable[signature].append(folder);
        }
        emit progressUpdated(1, done * 100.0 / total);
    });

    TFileData *store = TFileData::instance();
    for (auto it = m_signatureTable.begin(); it != m_signatureTable.end(); ++it) {
        QStringList matched = it.value();
        if (matched.size() < 2)
            continue;
        // The pool finishes folders in any order; a fixed order keeps the key stable.
        matched.sort();
        const QString dirGroupKey = TFileData::groupKey(matched.first());
        QList<DirGroupEntry> entries;
        for (const QString &folder : std::as_const(matched)) {
            const DirMatchInfo &info = dirTable[folder];
            entries.append(DirGroupEntry {folder, info.fileCount, info.totalSize});
        }
        store->insertDirGroup(dirGroupKey, entries);
        QWriteLocker locker(&store->lock());
        for (const QString &folder : std::as_const(matched))
            store->pruneFolderMembers(folder, dirTable[folder].groupKeys);
    }
    if (isStopRequested())
        emit progressUpdated(1, 0.0);
}
