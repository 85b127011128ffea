// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/TFileScanner.h"

#include "app/TLogger.h"
#include "engine/FilePathCodec.h"
#include "platform/Platform.h"

#include <algorithm>
#include <cstring>
#include <deque>
#include <exception>
#include <unordered_set>
#include <vector>

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QMetaMethod>
#include <QMutexLocker>
#include <QThreadPool>
#include <QWaitCondition>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

// A file or folder's identity on its file system.
struct Identity
{
    quint64 device = 0;
    quint64 inode = 0;
    bool operator==(const Identity &other) const
    {
        return device == other.device && inode == other.inode;
    }
};

struct IdentityHash
{
    size_t operator()(const Identity &id) const noexcept
    {
        return std::hash<quint64>()(id.inode * 0x9E3779B97F4A7C15ULL ^ id.device);
    }
};

using IdentitySet = std::unordered_set<Identity, IdentityHash>;

QString joinPath(const QString &folder, const QString &name)
{
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

QByteArray joinNative(const QByteArray &folder, const char *name)
{
    QByteArray out = folder;
    if (!out.endsWith('/'))
        out.append('/');
    out.append(name);
    return out;
}

QMutex &driveCacheMutex()
{
    static QMutex mutex;
    return mutex;
}

QHash<QString, int> &driveCache()
{
    static QHash<QString, int> cache;
    return cache;
}

} // namespace

struct TFileScanner::Folder
{
    QString path;
    QByteArray native;
};

struct TFileScanner::Seen
{
    QMutex mutex;
    IdentitySet folders;
    // Files with more than one name: checked as they are met, so only one name is
    // reported.
    IdentitySet multiLinkFiles;
    // Files with one name: only a link can reach them a second time, and links are
    // resolved after the ordinary entries, so they are only collected here and looked up
    // when links are resolved.
    std::vector<Identity> singleFiles;
};

struct TFileScanner::WalkState
{
    int driveType = DriveUnknown;
    QMutex mutex;
    QWaitCondition wake;
    std::deque<Folder> queue;
    int busy = 0;
    bool done = false;
    std::vector<Folder> links;
};

TFileScanner::TFileScanner(QObject *parent) : QThread(parent)
{
    qRegisterMetaType<FileMeta>("FileMeta");
    qRegisterMetaType<QList<FileMeta>>("QList<FileMeta>");
    qRegisterMetaType<ScanBatch>("ScanBatch");
}

TFileScanner::~TFileScanner()
{
    requestStop();
    wait();
}

void TFileScanner::applyConfig(const QJsonObject &common)
{
    config = common;
    minSize = static_cast<qint64>(common.value(QStringLiteral("MinFileSize")).toDouble(0.0)) << 10;
    maxSize = static_cast<qint64>(common.value(QStringLiteral("MaxFileSize")).toDouble(100000.0))
        << 20;
    skipHiddenSystem = common.value(QStringLiteral("IgnoreSystemHidden")).toBool(true);
    scanFileType = common.value(QStringLiteral("ScanFileType")).toInt(0);
    const auto readList = [&common](const char *key, QStringList &target) {
        const QJsonValue value = common.value(QLatin1String(key));
        if (!value.isArray())
            return;
        target.clear();
        for (const QJsonValue &item : value.toArray())
            target.append(item.toVariant().toString());
    };
    readList("IgnorePathFile", ignorePaths);
    readList("IgnoreFileType", ignoreTypes);
    readList("OnlyFileType", onlyTypes);
    // Exactly one of the two type lists is in force.
    if (scanFileType > 0)
        onlyTypes.clear();
    else
        ignoreTypes.clear();
}

int TFileScanner::queryDriveType(const QString &path)
{
    const std::string native
        = FilePathCodec::encode(QFileInfo(path).absoluteFilePath()).toStdString();
    const platform::Platform &os = platform::current();
    const QString key = QString::fromStdString(os.driveCacheKey(native)).toUpper();
    {
        QMutexLocker locker(&driveCacheMutex());
        const auto found = driveCache().constFind(key);
        if (!key.isEmpty() && found != driveCache().constEnd())
            return found.value();
    }
    const int type = os.driveTypeOf(native);
    // A failed query is not remembered: the drive may answer on the next scan.
    if (!key.isEmpty() && type != DriveUnknown) {
        QMutexLocker locker(&driveCacheMutex());
        driveCache().insert(key, type);
    }
    return type;
}

void TFileScanner::run()
{
    stopRequested.store(0);
    scannedCount.store(0);
    roots.detach();
    m_ignoredLower.clear();
    for (const QString &path : std::as_const(ignorePaths)) {
        QString cleaned = path;
        while (cleaned.size() > 1
            && (cleaned.endsWith(QLatin1Char('/')) || cleaned.endsWith(QLatin1Char('\\'))))
            cleaned.chop(1);
        m_ignoredLower.append(cleaned.toLower());
    }
    m_perFileSignals = isSignalConnected(QMetaMethod::fromSignal(&TFileScanner::fileFound))
        || isSignalConnected(QMetaMethod::fromSignal(&TFileScanner::filesFound));
    Seen seen;
    m_seen = &seen;
    for (const QString &root : std::as_const(roots)) {
        if (isStopRequested())
            break;
        const QString absolute = QDir::cleanPath(QFileInfo(root).absoluteFilePath());
        if (scanMode == 0)
            scanWithQtRecursive(absolute);
        else if (scanMode == 1)
            scanIncrementalParallel(absolute);
    }
    m_seen = nullptr;
    emit scanFinished();
}

bool TFileScanner::isIgnoredPath(const QString &path) const
{
    return !m_ignoredLower.isEmpty() && m_ignoredLower.contains(path.toLower());
}

bool TFileScanner::passesFileFilters(const QString &fileName, qint64 size) const
{
    if (size < minSize || size > maxSize)
        return false;
    if (onlyTypes.isEmpty() && ignoreTypes.isEmpty())
        return true;
    const qsizetype dot = fileName.lastIndexOf(QLatin1Char('.'));
    const QString suffix = dot < 0 ? QString() : fileName.mid(dot + 1).toLower();
    if (!onlyTypes.isEmpty() && !onlyTypes.contains(suffix))
        return false;
    return !ignoreTypes.contains(suffix);
}

void TFileScanner::reportFile(WalkState &state, ScanBatch &batch, QList<FileMeta> &metas,
    qint64 size, const char *name, const QString &path, bool filtered)
{
    batch.names.append(name, qsizetype(std::strlen(name) + 1));
    batch.sizes.append(size);
    if (m_perFileSignals) {
        metas.append(FileMeta {size, path, state.driveType});
        emit fileFound(size, path, state.driveType);
    }
    const int before = scannedCount.fetch_add(1);
    // The parallel walk tests the count before the increment, the plain walk the count
    // after it.
    const int tested = filtered ? before : before + 1;
    if (tested % 100 == 0)
        emit progressUpdated(tested);
}

void TFileScanner::emitBatch(ScanBatch &batch, QList<FileMeta> &metas)
{
    if (!metas.isEmpty())
        emit filesFound(metas);
    if (!batch.sizes.isEmpty())
        emit folderFilesFound(batch);
}

void TFileScanner::processDir(WalkState &state, const Folder &folder, bool filtered)
{
    if (isStopRequested() || (filtered && isIgnoredPath(folder.path)))
        return;
    ScanBatch batch;
    batch.folder = folder.path;
    batch.nativeFolder = folder.native;
    batch.driveType = state.driveType;
    QList<FileMeta> metas;
    bool completed = false;
    try {
#ifdef Q_OS_UNIX
        DIR *dir = ::opendir(folder.native.constData());
        if (!dir) {
            splog_d(QStringLiteral("[TFileScanner]: Cannot read folder, skipped: [%1]. %2")
                        .arg(folder.path, QString::fromLocal8Bit(std::strerror(errno))));
            return;
        }
        const int fd = ::dirfd(dir);
        struct stat info
        {
        };
        if (::fstat(fd, &info) == 0) {
            const Identity id {
                static_cast<quint64>(info.st_dev), static_cast<quint64>(info.st_ino)};
            QMutexLocker locker(&m_seen->mutex);
            if (!m_seen->folders.insert(id).second) {
                locker.unlock();
                ::closedir(dir);
                splog_d(QStringLiteral("[TFileScanner]: Folder already scanned, skipped: [%1].")
                            .arg(folder.path));
                return;
            }
        }
        const platform::Platform &os = platform::current();
        std::vector<Identity> singles;
        const QString prefix
            = folder.path.endsWith(QLatin1Char('/')) ? folder.path : folder.path + QLatin1Char('/');
        // A file's full path string is only built when something needs it: the ignore
        // list, the per-file signals or a message.
        const bool pathPerEntry = (filtered && !m_ignoredLower.isEmpty()) || m_perFileSignals;
        const bool typeFilters = filtered && !(onlyTypes.isEmpty() && ignoreTypes.isEmpty());
        bool cut = false;
        while (const dirent *entry = ::readdir(dir)) {
            if (isStopRequested()) {
                cut = true;
                break;
            }
            const char *name = entry->d_name;
            if (name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0')))
                continue;
            const qsizetype nameLength = qsizetype(std::strlen(name));
            const auto pathOf = [&] { return prefix + FilePathCodec::decode(name, nameLength); };
            const QString path = pathPerEntry ? pathOf() : QString();
            if (filtered && isIgnoredPath(path))
                continue;
            if (filtered && skipHiddenSystem
                && os.isHiddenOrSystem(joinNative(folder.native, name).toStdString()))
                continue;
            unsigned char type = entry->d_type;
            bool haveStat = false;
            if (type == DT_UNKNOWN || type == DT_REG) {
                if (::fstatat(fd, name, &info, AT_SYMLINK_NOFOLLOW) != 0) {
                    splog_d(QStringLiteral("[TFileScanner]: Cannot read file, skipped: [%1]. %2")
                                .arg(pathOf(), QString::fromLocal8Bit(std::strerror(errno))));
                    continue;
                }
                haveStat = true;
                if (S_ISDIR(info.st_mode))
                    type = DT_DIR;
                else if (S_ISLNK(info.st_mode))
                    type = DT_LNK;
                else if (S_ISREG(info.st_mode))
                    type = DT_REG;
                else
                    type = DT_UNKNOWN;
            }
            if (type == DT_DIR) {
                QMutexLocker locker(&state.mutex);
                state.queue.push_back(Folder {pathOf(), joinNative(folder.native, name)});
                state.wake.wakeOne();
            } else if (type == DT_LNK) {
                QMutexLocker locker(&state.mutex);
                state.links.push_back(Folder {pathOf(), joinNative(folder.native, name)});
            } else if (type == DT_REG && haveStat) {
                const qint64 size = info.st_size;
                if (filtered && (size < minSize || size > maxSize))
                    continue;
                if (typeFilters
                    && !passesFileFilters(FilePathCodec::decode(name, nameLength), size))
                    continue;
                const Identity id {
                    static_cast<quint64>(info.st_dev), static_cast<quint64>(info.st_ino)};
                if (info.st_nlink > 1) {
                    QMutexLocker locker(&m_seen->mutex);
                    if (!m_seen->multiLinkFiles.insert(id).second)
                        continue;
                } else {
                    singles.push_back(id);
                }
                reportFile(state, batch, metas, size, name, path, filtered);
            }
            // Pipes, sockets and devices are never reported: reading them can block.
        }
        ::closedir(dir);
        if (!singles.empty()) {
            QMutexLocker locker(&m_seen->mutex);
            m_seen->singleFiles.insert(m_seen->singleFiles.end(), singles.begin(), singles.end());
        }
        completed = !cut;
#else
        const QFileInfoList entries = QDir(folder.path)
                                          .entryInfoList(QDir::AllEntries | QDir::Hidden
                                                  | QDir::System | QDir::NoDotAndDotDot,
                                              QDir::Unsorted);
        const platform::Platform &os = platform::current();
        bool cut = false;
        for (const QFileInfo &entry : entries) {
            if (isStopRequested()) {
                cut = true;
                break;
            }
            const QString path = entry.absoluteFilePath();
            if (filtered && isIgnoredPath(path))
                continue;
            if (filtered && skipHiddenSystem && os.isHiddenOrSystem(path.toStdString()))
                continue;
            if (entry.isSymLink() || entry.isJunction()) {
                QMutexLocker locker(&state.mutex);
                state.links.push_back(Folder {path, FilePathCodec::encode(path)});
            } else if (entry.isDir()) {
                QMutexLocker locker(&state.mutex);
                state.queue.push_back(Folder {path, FilePathCodec::encode(path)});
                state.wake.wakeOne();
            } else if (entry.isFile()) {
                const qint64 size = entry.size();
                if (filtered && !passesFileFilters(entry.fileName(), size))
                    continue;
                reportFile(state, batch, metas, size,
                    FilePathCodec::encode(entry.fileName()).constData(), path, filtered);
            }
        }
        completed = !cut;
#endif
    } catch (const std::exception &error) {
        splog_d(QStringLiteral("[TFileScanner] Exception in processDir: %1")
                    .arg(QString::fromLocal8Bit(error.what())));
    } catch (...) {
        splog_d(QStringLiteral("[TFileScanner] Unknown exception in processDir."));
    }
    emitBatch(batch, metas);
    if (completed && filtered && !isStopRequested())
        emit pathFound(folder.path);
}

void TFileScanner::drainWithPool(WalkState &state)
{
    const int workers = std::max(1, QThread::idealThreadCount());
    QThreadPool pool;
    pool.setMaxThreadCount(workers);
    state.done = false;
    state.busy = 0;
    for (int i = 0; i < workers; ++i) {
        pool.start([this, &state] {
            try {
                for (;;) {
                    QMutexLocker locker(&state.mutex);
                    while (state.queue.empty() && !state.done) {
                        // Nothing queued and nobody working who could queue more: the
                        // walk is over.
                        if (state.busy == 0)
                            return;
                        state.wake.wait(&state.mutex);
                    }
                    if (state.done || state.queue.empty())
                        return;
                    const Folder folder = std::move(state.queue.front());
                    state.queue.pop_front();
                    ++state.busy;
                    locker.unlock();
                    processDir(state, folder, true);
                    locker.relock();
                    --state.busy;
                    if (state.busy == 0 && state.queue.empty())
                        state.wake.wakeAll();
                }
            } catch (const std::exception &error) {
                splog_d(QStringLiteral("[TFileScanner] Exception in worker: %1")
                            .arg(QString::fromLocal8Bit(error.what())));
            } catch (...) {
                splog_d(QStringLiteral("[TFileScanner] Unknown exception in worker."));
            }
        });
    }
    // The scanner thread watches for the end: woken by the last busy worker, and
    // checking every 50 ms in any case.
    {
        QMutexLocker locker(&state.mutex);
        while (!(state.queue.empty() && state.busy == 0))
            state.wake.wait(&state.mutex, 50);
        state.done = true;
        state.wake.wakeAll();
    }
    pool.waitForDone();
    // A stop can leave folders queued; they are dropped.
    state.queue.clear();
}

bool TFileScanner::resolveLinks(WalkState &state, bool filtered)
{
    std::vector<Folder> links;
    {
        QMutexLocker locker(&state.mutex);
        links.swap(state.links);
    }
    if (links.empty() || isStopRequested())
        return false;
    // Resolve in a fixed order so that the same tree always gives the same report.
    std::sort(links.begin(), links.end(),
        [](const Folder &a, const Folder &b) { return a.native < b.native; });
    // Links of one folder are adjacent after the sort; each folder's files go out as one
    // batch.
    ScanBatch batch;
    QList<FileMeta> metas;
    const auto batchFor = [&](const Folder &link) -> ScanBatch & {
        const qsizetype slash = link.path.lastIndexOf(QLatin1Char('/'));
        const QString folder = slash <= 0 ? QStringLiteral("/") : link.path.left(slash);
        if (batch.folder != folder) {
            emitBatch(batch, metas);
            batch = ScanBatch();
            metas.clear();
            batch.folder = folder;
            const qsizetype nativeSlash = link.native.lastIndexOf('/');
            batch.nativeFolder = nativeSlash <= 0 ? QByteArray("/") : link.native.left(nativeSlash);
            batch.driveType = state.driveType;
        }
        return batch;
    };
    const auto nativeNameOf
        = [](const Folder &link) { return link.native.mid(link.native.lastIndexOf('/') + 1); };
#ifdef Q_OS_UNIX
    struct Target
    {
        bool exists = false;
        struct stat info
        {
        };
    };
    std::vector<Target> targets(links.size());
    // Files with one name met so far are only collected as a list; of them, only those a
    // link points to are looked up, so no table of every file is built here.
    IdentitySet wanted;
    for (size_t i = 0; i < links.size() && !isStopRequested(); ++i) {
        Target &target = targets[i];
        // A dangling link does not exist.
        target.exists = ::stat(links[i].native.constData(), &target.info) == 0;
        if (target.exists && S_ISREG(target.info.st_mode) && target.info.st_nlink <= 1)
            wanted.insert(Identity {static_cast<quint64>(target.info.st_dev),
                static_cast<quint64>(target.info.st_ino)});
    }
    IdentitySet singles;
    if (!wanted.empty()) {
        QMutexLocker locker(&m_seen->mutex);
        for (const Identity &id : m_seen->singleFiles)
            if (wanted.count(id))
                singles.insert(id);
    }
    for (size_t i = 0; i < links.size(); ++i) {
        if (isStopRequested())
            break;
        const Folder &link = links[i];
        if (!targets[i].exists)
            continue;
        const struct stat &info = targets[i].info;
        const Identity id {static_cast<quint64>(info.st_dev), static_cast<quint64>(info.st_ino)};
        if (S_ISDIR(info.st_mode)) {
            QMutexLocker seenLocker(&m_seen->mutex);
            if (m_seen->folders.count(id))
                continue;
            seenLocker.unlock();
            QMutexLocker locker(&state.mutex);
            state.queue.push_back(link);
        } else if (S_ISREG(info.st_mode)) {
            const qsizetype slash = link.path.lastIndexOf(QLatin1Char('/'));
            if (filtered && !passesFileFilters(link.path.mid(slash + 1), info.st_size))
                continue;
            QMutexLocker seenLocker(&m_seen->mutex);
            const bool fresh = info.st_nlink > 1 ? m_seen->multiLinkFiles.insert(id).second
                                                 : singles.insert(id).second;
            if (!fresh)
                continue;
            if (info.st_nlink <= 1)
                m_seen->singleFiles.push_back(id);
            seenLocker.unlock();
            reportFile(state, batchFor(link), metas, info.st_size, nativeNameOf(link).constData(),
                link.path, filtered);
        }
    }
#else
    for (const Folder &link : links) {
        if (isStopRequested())
            break;
        const QFileInfo target(link.path);
        if (target.isDir()) {
            QMutexLocker locker(&state.mutex);
            state.queue.push_back(link);
        } else if (target.isFile()) {
            if (filtered && !passesFileFilters(target.fileName(), target.size()))
                continue;
            reportFile(state, batchFor(link), metas, target.size(), nativeNameOf(link).constData(),
                link.path, filtered);
        }
    }
#endif
    emitBatch(batch, metas);
    QMutexLocker locker(&state.mutex);
    return !state.queue.empty();
}

void TFileScanner::scanIncrementalParallel(const QString &root)
{
    if (isStopRequested())
        return;
    WalkState state;
    state.driveType = queryDriveType(root);
    scannedCount.store(0);
    splog_d(QStringLiteral("[TFileScanner]: scanIncrementalParallel: %1. driveType:[%2].")
                .arg(root)
                .arg(state.driveType));
    state.queue.push_back(Folder {root, FilePathCodec::encode(root)});
    do {
        drainWithPool(state);
    } while (!isStopRequested() && resolveLinks(state, true));
    emit progressUpdated(scannedCount.load());
}

void TFileScanner::scanWithQtRecursive(const QString &root)
{
    if (isStopRequested())
        return;
    WalkState state;
    state.driveType = queryDriveType(root);
    splog_d(QStringLiteral("[TFileScanner]: scanWithQtRecursive: [%1]. driveType: [%2].")
                .arg(root)
                .arg(state.driveType));
    state.queue.push_back(Folder {root, FilePathCodec::encode(root)});
    do {
        while (!state.queue.empty() && !isStopRequested()) {
            const Folder folder = std::move(state.queue.front());
            state.queue.pop_front();
            processDir(state, folder, false);
        }
    } while (!isStopRequested() && resolveLinks(state, false));
}
