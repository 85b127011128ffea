// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/TFileScanner.h"

#include "app/SnapshotKeys.h"
#include "app/TLogger.h"
#include "engine/FilePathCodec.h"
#include "platform/Platform.h"
#include "preferences/PreferenceRanges.h"

#include <algorithm>
#include <cstring>
#include <deque>
#include <exception>
#include <unordered_set>
#include <vector>

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QMetaMethod>
#include <QMutexLocker>
#include <QScopeGuard>
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

// The log tags of this file.
const QString kTag = QStringLiteral("[TFileScanner]: ");
const QString kShortTag = QStringLiteral("[TFileScanner] ");

// A walking thread sends what it gathered once it holds this many files, or once its
// oldest folder has waited this long: the receiver then wakes once per few thousand
// files instead of once per folder, and a slow disk still shows progress.
constexpr qsizetype kOutboxFiles = 4096;
constexpr qint64 kOutboxMs = 20;

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

#ifdef Q_OS_UNIX
// Whether this process may read a file, told from the owner and mode bits of the stat
// the walk has anyway, instead of one more system call per file. Only a "no" is then
// confirmed by the system, since access lists can grant more than the bits show.
class ReadPermission
{
public:
    ReadPermission() : m_uid(::geteuid()), m_gid(::getegid())
    {
        const int count = ::getgroups(0, nullptr);
        if (count > 0) {
            m_groups.resize(size_t(count));
            m_groups.resize(size_t(std::max(0, ::getgroups(count, m_groups.data()))));
        }
    }

    bool byMode(const struct stat &info) const
    {
        if (m_uid == 0)
            return true;
        if (info.st_uid == m_uid)
            return info.st_mode & S_IRUSR;
        if (info.st_gid == m_gid
            || std::find(m_groups.begin(), m_groups.end(), info.st_gid) != m_groups.end())
            return info.st_mode & S_IRGRP;
        return info.st_mode & S_IROTH;
    }

private:
    uid_t m_uid;
    gid_t m_gid;
    std::vector<gid_t> m_groups;
};
#endif

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
    int driveType = DriveUnknown;
    // A chosen root: when it cannot be listed, the scan read nothing of it.
    bool root = false;
    // Reached only through a link: some of its files may have been reported already, as
    // targets of other links.
    bool linked = false;
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
    // Files with one name reported as targets of links: a folder the walk could not list
    // (searchable but not readable) is walked once a link leads into it, and must not
    // report them again.
    IdentitySet linkedFiles;
    // Device numbers of pseudo file systems, never entered.
    std::vector<unsigned long long> pseudoDevices;
#ifdef Q_OS_UNIX
    ReadPermission permission;
#endif
};

// A root as the file system resolves it (no link in it), with its drive type: links are
// followed only to places inside one of these.
struct TFileScanner::Root
{
    QString path;
    QByteArray native;
    int driveType = DriveUnknown;
};

struct TFileScanner::WalkState
{
    QMutex mutex;
    // Idle walking threads wait here for folders; the thread that watches for the walk's
    // end waits on its own condition, so that a folder's wake-up always reaches a thread
    // that can take it.
    QWaitCondition wake;
    QWaitCondition ended;
    std::deque<Folder> queue;
    int busy = 0;
    bool done = false;
    std::vector<Folder> links;
};

// The batches one walking thread has gathered and not sent yet.
struct TFileScanner::Outbox
{
    QList<ScanBatch> batches;
    qsizetype files = 0;
    // Since the oldest batch waiting was put in.
    QElapsedTimer age;
};

TFileScanner::TFileScanner(QObject *parent) : QThread(parent)
{
    qRegisterMetaType<FileMeta>("FileMeta");
    qRegisterMetaType<QList<FileMeta>>("QList<FileMeta>");
    qRegisterMetaType<ScanBatch>("ScanBatch");
    qRegisterMetaType<QList<ScanBatch>>("QList<ScanBatch>");
}

TFileScanner::~TFileScanner()
{
    requestStop();
    wait();
}

void TFileScanner::applyConfig(const QJsonObject &common)
{
    config = common;
    minSize = static_cast<qint64>(common.value(SnapshotKeys::minFileSize).toDouble(0.0)) << 10;
    maxSize = static_cast<qint64>(common.value(SnapshotKeys::maxFileSize)
                                      .toDouble(double(PreferenceRanges::MaxFileSize.byDefault)))
        << 20;
    skipHiddenSystem = common.value(SnapshotKeys::ignoreSystemHidden).toBool(true);
    scanFileType = common.value(SnapshotKeys::scanFileType).toInt(0);
    const auto readList = [&common](QLatin1String key, QStringList &target) {
        const QJsonValue value = common.value(key);
        if (!value.isArray())
            return;
        target.clear();
        for (const QJsonValue &item : value.toArray())
            target.append(item.toVariant().toString());
    };
    readList(SnapshotKeys::ignorePathFile, ignorePaths);
    readList(SnapshotKeys::ignoreFileType, ignoreTypes);
    readList(SnapshotKeys::onlyFileType, onlyTypes);
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
    seen.pseudoDevices = platform::current().pseudoFileSystemDevices();
    m_seen = &seen;
    m_roots.clear();
    for (const QString &root : std::as_const(roots)) {
        const Root resolved = resolveRoot(root);
        if (!resolved.path.isEmpty())
            m_roots.push_back(resolved);
    }
    // Links are resolved only once every root has been walked: a file reachable both
    // directly and through a link is then always met under its own path first, whatever
    // the order of the roots.
    WalkState state;
    const bool filtered = scanMode == 1;
    for (const Root &root : std::as_const(m_roots)) {
        if (isStopRequested())
            break;
        if (scanMode == 0)
            scanWithQtRecursive(state, root);
        else if (scanMode == 1)
            scanIncrementalParallel(state, root);
    }
    if (scanMode == 0 || scanMode == 1) {
        while (!isStopRequested() && resolveLinks(state, filtered)) {
            if (filtered)
                drainWithPool(state);
            else
                drainInOrder(state);
        }
    }
    m_seen = nullptr;
    emit scanFinished();
}

TFileScanner::Root TFileScanner::resolveRoot(const QString &root) const
{
    Root resolved;
    resolved.path = QDir::cleanPath(QFileInfo(root).absoluteFilePath());
    resolved.native = FilePathCodec::encode(resolved.path);
#ifdef Q_OS_UNIX
    // The walk runs on the real path, so every reported path is free of links and a
    // link's target can be told to lie inside a root by its path alone.
    if (char *real = ::realpath(resolved.native.constData(), nullptr)) {
        const QByteArray native(real);
        std::free(real);
        if (native != resolved.native) {
            splog_d(kTag
                + QStringLiteral("Root [%1] is scanned as [%2].")
                      .arg(resolved.path, FilePathCodec::decode(native)));
            resolved.native = native;
            resolved.path = FilePathCodec::decode(native);
        }
    }
#else
    const QString canonical = QFileInfo(resolved.path).canonicalFilePath();
    if (!canonical.isEmpty())
        resolved.path = canonical;
    resolved.native = FilePathCodec::encode(resolved.path);
#endif
    return resolved;
}

const TFileScanner::Root *TFileScanner::rootHolding(const QByteArray &native) const
{
    const Root *best = nullptr;
    for (const Root &root : m_roots) {
        const QByteArray &prefix = root.native;
        const bool inside = native == prefix
            || (native.startsWith(prefix)
                && (prefix.endsWith('/') || native.at(prefix.size()) == '/'));
        if (inside && (!best || prefix.size() > best->native.size()))
            best = &root;
    }
    return best;
}

bool TFileScanner::isHiddenBelow(const Root &root, const QByteArray &native) const
{
    const platform::Platform &os = platform::current();
    // Each folder below the root in turn, then the entry itself; the root and what lies
    // above it were chosen by the user and count as visible.
    qsizetype end = root.native.endsWith('/') ? root.native.size() - 1 : root.native.size();
    while (end < native.size()) {
        const qsizetype next = native.indexOf('/', end + 1);
        end = next < 0 ? native.size() : next;
        if (os.isHiddenOrSystem(native.left(end).toStdString()))
            return true;
    }
    return false;
}

void TFileScanner::noteProblem(ScanProblems::Kind kind, const QString &path)
{
    if (m_problems)
        m_problems->add(kind, path);
}

void TFileScanner::unreadableFile(const QString &path, int error)
{
    splog_repeated("[TFileScanner]: Cannot read file",
        kTag
            + QStringLiteral("Cannot read file, skipped: [%1]. %2")
                  .arg(path, QString::fromLocal8Bit(std::strerror(error))));
    noteProblem(ScanProblems::UnreadableFile, path);
}

bool TFileScanner::isIgnoredPath(const QString &path) const
{
    return !m_ignoredLower.isEmpty() && m_ignoredLower.contains(path.toLower());
}

bool TFileScanner::isUnderIgnoredPath(const QString &path) const
{
    if (m_ignoredLower.isEmpty())
        return false;
    const QString lower = path.toLower();
    for (const QString &ignored : m_ignoredLower)
        if (lower == ignored
            || (lower.startsWith(ignored) && lower.at(ignored.size()) == QLatin1Char('/')))
            return true;
    return false;
}

bool TFileScanner::passesFileFilters(const QString &fileName, qint64 size) const
{
    if (size < minSize || size > maxSize)
        return false;
    if (onlyTypes.isEmpty() && ignoreTypes.isEmpty())
        return true;
    const qsizetype dot = fileName.lastIndexOf(QLatin1Char('.'));
    const QString suffix = dot < 0 ? QString() : fileName.mid(dot + 1).toLower();
    // The lists hold what the user typed: "JPG" and "jpg" are one format.
    if (!onlyTypes.isEmpty() && !onlyTypes.contains(suffix, Qt::CaseInsensitive))
        return false;
    return !ignoreTypes.contains(suffix, Qt::CaseInsensitive);
}

void TFileScanner::reportFile(ScanBatch &batch, QList<FileMeta> &metas, qint64 size,
    const char *name, const QString &path, bool filtered, const ScanBatch::Stat &stat)
{
    batch.names.append(name, qsizetype(std::strlen(name) + 1));
    batch.sizes.append(size);
    batch.stats.append(stat);
    if (m_perFileSignals) {
        metas.append(FileMeta {size, path, batch.driveType});
        emit fileFound(size, path, batch.driveType);
    }
    const int before = scannedCount.fetch_add(1);
    // The parallel walk tests the count before the increment, the plain walk the count
    // after it.
    const int tested = filtered ? before : before + 1;
    if (tested % 100 == 0)
        emit progressUpdated(tested);
}

void TFileScanner::emitBatch(ScanBatch &batch, QList<FileMeta> &metas, Outbox &outbox)
{
    if (!metas.isEmpty())
        emit filesFound(metas);
    if (batch.sizes.isEmpty())
        return;
    if (outbox.batches.isEmpty())
        outbox.age.start();
    outbox.files += batch.sizes.size();
    outbox.batches.append(std::move(batch));
    batch = ScanBatch();
    if (outbox.files >= kOutboxFiles || outbox.age.elapsed() >= kOutboxMs)
        send(outbox);
}

void TFileScanner::send(Outbox &outbox)
{
    if (outbox.batches.isEmpty())
        return;
    emit folderFilesFound(outbox.batches);
    outbox.batches.clear();
    outbox.files = 0;
}

void TFileScanner::processDir(WalkState &state, const Folder &folder, bool filtered, Outbox &outbox)
{
    if (isStopRequested() || (filtered && isIgnoredPath(folder.path)))
        return;
    ScanBatch batch;
    batch.folder = folder.path;
    batch.nativeFolder = folder.native;
    batch.driveType = folder.driveType;
    batch.listedNs = QDateTime::currentMSecsSinceEpoch() * 1'000'000LL;
    QList<FileMeta> metas;
    bool completed = false;
    try {
#ifdef Q_OS_UNIX
        DIR *dir = ::opendir(folder.native.constData());
        if (!dir) {
            const int error = errno;
            // A sub-folder removed while the walk ran held nothing to lose; anything else
            // is a folder the user will want to hear about.
            if (error == ENOENT && !folder.root)
                return;
            splog_repeated("[TFileScanner]: Cannot read folder",
                kTag
                    + QStringLiteral("Cannot read folder, skipped: [%1]. %2")
                          .arg(folder.path, QString::fromLocal8Bit(std::strerror(error))));
            if (folder.root && m_problems)
                m_problems->addUnreadableRoot(folder.path);
            else
                noteProblem(ScanProblems::UnreadableFolder, folder.path);
            return;
        }
        const int fd = ::dirfd(dir);
        struct stat info
        {
        };
        if (::fstat(fd, &info) == 0) {
            batch.device = quint64(info.st_dev);
            const Identity id {
                static_cast<quint64>(info.st_dev), static_cast<quint64>(info.st_ino)};
            const auto &pseudo = m_seen->pseudoDevices;
            if (std::find(pseudo.begin(), pseudo.end(), info.st_dev) != pseudo.end()) {
                ::closedir(dir);
                splog_d(kTag
                    + QStringLiteral("Pseudo file system, not entered: [%1].").arg(folder.path));
                noteProblem(ScanProblems::PseudoFileSystem, folder.path);
                return;
            }
            QMutexLocker locker(&m_seen->mutex);
            if (!m_seen->folders.insert(id).second) {
                locker.unlock();
                ::closedir(dir);
                splog_d(kTag
                    + QStringLiteral("Folder already scanned, skipped: [%1].").arg(folder.path));
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
                    const int error = errno;
                    if (error != ENOENT)
                        unreadableFile(pathOf(), error);
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
                state.queue.push_back(
                    Folder {pathOf(), joinNative(folder.native, name), folder.driveType});
                state.wake.wakeOne();
            } else if (type == DT_LNK) {
                QMutexLocker locker(&state.mutex);
                state.links.push_back(
                    Folder {pathOf(), joinNative(folder.native, name), folder.driveType});
            } else if (type == DT_REG && haveStat) {
                const qint64 size = info.st_size;
                if (filtered && (size < minSize || size > maxSize))
                    continue;
                if (typeFilters
                    && !passesFileFilters(FilePathCodec::decode(name, nameLength), size))
                    continue;
                // A file nobody may read can never be compared: it is counted, not
                // reported.
                if (!m_seen->permission.byMode(info)
                    && ::faccessat(fd, name, R_OK, AT_EACCESS) != 0) {
                    unreadableFile(pathOf(), EACCES);
                    continue;
                }
                const Identity id {
                    static_cast<quint64>(info.st_dev), static_cast<quint64>(info.st_ino)};
                if (info.st_nlink > 1) {
                    QMutexLocker locker(&m_seen->mutex);
                    if (!m_seen->multiLinkFiles.insert(id).second)
                        continue;
                } else if (folder.linked) {
                    QMutexLocker locker(&m_seen->mutex);
                    if (m_seen->linkedFiles.count(id))
                        continue;
                    singles.push_back(id);
                } else {
                    singles.push_back(id);
                }
                ScanBatch::Stat stat;
                if (id.device == batch.device && batch.device != 0) {
                    stat.inode = id.inode;
                    stat.modifiedNs = platform::nanosecondsOf(info.st_mtim);
                    stat.changedNs = platform::nanosecondsOf(info.st_ctim);
                }
                reportFile(batch, metas, size, name, path, filtered, stat);
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
        if (!QFileInfo(folder.path).isReadable()) {
            splog_repeated("[TFileScanner]: Cannot read folder",
                kTag + QStringLiteral("Cannot read folder, skipped: [%1].").arg(folder.path));
            if (folder.root && m_problems)
                m_problems->addUnreadableRoot(folder.path);
            else
                noteProblem(ScanProblems::UnreadableFolder, folder.path);
            return;
        }
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
                state.links.push_back(Folder {path, FilePathCodec::encode(path), folder.driveType});
            } else if (entry.isDir()) {
                QMutexLocker locker(&state.mutex);
                state.queue.push_back(Folder {path, FilePathCodec::encode(path), folder.driveType});
                state.wake.wakeOne();
            } else if (entry.isFile()) {
                const qint64 size = entry.size();
                if (filtered && !passesFileFilters(entry.fileName(), size))
                    continue;
                reportFile(batch, metas, size, FilePathCodec::encode(entry.fileName()).constData(),
                    path, filtered);
            }
        }
        completed = !cut;
#endif
    } catch (const std::exception &error) {
        splog_d(kShortTag
            + QStringLiteral("Exception in processDir: %1")
                  .arg(QString::fromLocal8Bit(error.what())));
    } catch (...) {
        splog_d(kShortTag + QStringLiteral("Unknown exception in processDir."));
    }
    emitBatch(batch, metas, outbox);
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
            Outbox outbox;
            const auto sendRest = qScopeGuard([&] { send(outbox); });
            try {
                for (;;) {
                    QMutexLocker locker(&state.mutex);
                    while (state.queue.empty() && !state.done) {
                        // Nothing queued and nobody working who could queue more: the
                        // walk is over.
                        if (state.busy == 0)
                            return;
                        // What this thread gathered goes out before it waits.
                        if (!outbox.batches.isEmpty()) {
                            locker.unlock();
                            send(outbox);
                            locker.relock();
                            continue;
                        }
                        state.wake.wait(&state.mutex);
                    }
                    if (state.done || state.queue.empty())
                        return;
                    const Folder folder = std::move(state.queue.front());
                    state.queue.pop_front();
                    ++state.busy;
                    locker.unlock();
                    processDir(state, folder, true, outbox);
                    locker.relock();
                    --state.busy;
                    if (state.busy == 0 && state.queue.empty()) {
                        state.wake.wakeAll();
                        state.ended.wakeAll();
                    }
                }
            } catch (const std::exception &error) {
                splog_d(kShortTag
                    + QStringLiteral("Exception in worker: %1")
                          .arg(QString::fromLocal8Bit(error.what())));
            } catch (...) {
                splog_d(kShortTag + QStringLiteral("Unknown exception in worker."));
            }
        });
    }
    // The scanner thread watches for the end: woken by the last busy worker, and
    // checking every 50 ms in any case.
    {
        QMutexLocker locker(&state.mutex);
        while (!(state.queue.empty() && state.busy == 0))
            state.ended.wait(&state.mutex, 50);
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
    // Each link stands for its target, under the target's real path: a file reached
    // through a link is the same item as the file itself, and the link is never a member
    // of a group (removing a link keeps nothing, removing its target leaves it dangling).
    struct Target
    {
        Folder link;
        Folder real;
        qint64 size = 0;
        bool isFolder = false;
        Identity id;
        bool multiLink = false;
    };
    std::vector<Target> targets;
    targets.reserve(links.size());
    for (Folder &link : links) {
        if (isStopRequested())
            break;
        Target target;
#ifdef Q_OS_UNIX
        char *real = ::realpath(link.native.constData(), nullptr);
        if (!real) {
            splog_repeated("[TFileScanner]: Dangling link",
                kTag
                    + QStringLiteral("Dangling link, skipped: [%1]. %2")
                          .arg(link.path, QString::fromLocal8Bit(std::strerror(errno))));
            continue;
        }
        target.real.native = QByteArray(real);
        std::free(real);
        target.real.path = FilePathCodec::decode(target.real.native);
#else
        target.real.path = QFileInfo(link.path).canonicalFilePath();
        if (target.real.path.isEmpty())
            continue;
        target.real.native = FilePathCodec::encode(target.real.path);
#endif
        const Root *root = rootHolding(target.real.native);
        if (!root) {
            splog_repeated("[TFileScanner]: Link leads outside the scanned folders",
                kTag
                    + QStringLiteral("Link leads outside the scanned folders, not "
                                     "followed: [%1] -> [%2].")
                          .arg(link.path, target.real.path));
            noteProblem(ScanProblems::LinkOutsideRoots, link.path);
            continue;
        }
        target.real.driveType = root->driveType;
        // The ordinary walk never enters an ignored folder; neither does a link.
        if (filtered && isUnderIgnoredPath(target.real.path))
            continue;
        // Nor is a link a way round the hidden-files setting: followed, it would report
        // a hidden copy as if it were visible, or a hidden folder's file twice (through
        // the link to the file and through the link to its folder).
        if (filtered && skipHiddenSystem && isHiddenBelow(*root, target.real.native)) {
            splog_repeated("[TFileScanner]: Link leads to a hidden entry",
                kTag
                    + QStringLiteral("Link leads to a hidden entry, not followed: "
                                     "[%1] -> [%2].")
                          .arg(link.path, target.real.path));
            continue;
        }
#ifdef Q_OS_UNIX
        struct stat info
        {
        };
        if (::stat(target.real.native.constData(), &info) != 0)
            continue;
        target.id = Identity {static_cast<quint64>(info.st_dev), static_cast<quint64>(info.st_ino)};
        target.isFolder = S_ISDIR(info.st_mode);
        if (!target.isFolder && !S_ISREG(info.st_mode))
            continue;
        target.size = info.st_size;
        target.multiLink = info.st_nlink > 1;
#else
        const QFileInfo info(target.real.path);
        target.isFolder = info.isDir();
        if (!target.isFolder && !info.isFile())
            continue;
        target.size = info.size();
#endif
        target.link = std::move(link);
        targets.push_back(std::move(target));
    }
    // Resolved in a fixed order, so that the same tree always gives the same report;
    // targets of one folder are then adjacent and go out as one batch.
    std::sort(targets.begin(), targets.end(),
        [](const Target &a, const Target &b) { return a.real.native < b.real.native; });

    // Files with one name met so far are only collected as a list; of them, only those a
    // link points to are looked up, so no table of every file is built here.
    IdentitySet wanted;
    for (const Target &target : targets)
        if (!target.isFolder && !target.multiLink)
            wanted.insert(target.id);
    IdentitySet singles;
    if (!wanted.empty()) {
        QMutexLocker locker(&m_seen->mutex);
        for (const Identity &id : m_seen->singleFiles)
            if (wanted.count(id))
                singles.insert(id);
    }

    ScanBatch batch;
    QList<FileMeta> metas;
    Outbox outbox;
    for (const Target &target : targets) {
        if (isStopRequested())
            break;
        if (target.isFolder) {
#ifdef Q_OS_UNIX
            QMutexLocker seenLocker(&m_seen->mutex);
            if (m_seen->folders.count(target.id))
                continue;
            seenLocker.unlock();
#endif
            QMutexLocker locker(&state.mutex);
            state.queue.push_back(target.real);
            state.queue.back().linked = true;
            continue;
        }
        const qsizetype slash = target.real.path.lastIndexOf(QLatin1Char('/'));
        const QString name = target.real.path.mid(slash + 1);
        if (filtered && !passesFileFilters(name, target.size))
            continue;
#ifdef Q_OS_UNIX
        {
            QMutexLocker seenLocker(&m_seen->mutex);
            const bool fresh = target.multiLink ? m_seen->multiLinkFiles.insert(target.id).second
                                                : singles.insert(target.id).second;
            if (!fresh)
                continue;
            if (!target.multiLink) {
                m_seen->singleFiles.push_back(target.id);
                m_seen->linkedFiles.insert(target.id);
            }
        }
#endif
        const QString folder = slash <= 0 ? QStringLiteral("/") : target.real.path.left(slash);
        if (batch.folder != folder) {
            emitBatch(batch, metas, outbox);
            metas.clear();
            batch.folder = folder;
            const qsizetype nativeSlash = target.real.native.lastIndexOf('/');
            batch.nativeFolder
                = nativeSlash <= 0 ? QByteArray("/") : target.real.native.left(nativeSlash);
            batch.driveType = target.real.driveType;
        }
        const QByteArray nativeName
            = target.real.native.mid(target.real.native.lastIndexOf('/') + 1);
        splog_repeated("[TFileScanner]: Link followed",
            kTag
                + QStringLiteral("Link followed, reported as its target: [%1] -> [%2].")
                      .arg(target.link.path, target.real.path));
        reportFile(batch, metas, target.size, nativeName.constData(), target.real.path, filtered);
    }
    emitBatch(batch, metas, outbox);
    send(outbox);
    QMutexLocker locker(&state.mutex);
    return !state.queue.empty();
}

void TFileScanner::drainInOrder(WalkState &state)
{
    Outbox outbox;
    while (!state.queue.empty() && !isStopRequested()) {
        const Folder folder = std::move(state.queue.front());
        state.queue.pop_front();
        processDir(state, folder, false, outbox);
    }
    send(outbox);
    state.queue.clear();
}

void TFileScanner::scanIncrementalParallel(WalkState &state, const Root &root)
{
    if (isStopRequested())
        return;
    const int driveType = queryDriveType(root.path);
    scannedCount.store(0);
    splog_d(kTag
        + QStringLiteral("scanIncrementalParallel: %1. driveType:[%2].")
              .arg(root.path)
              .arg(driveType));
    state.queue.push_back(Folder {root.path, root.native, driveType, true});
    drainWithPool(state);
    emit progressUpdated(scannedCount.load());
}

void TFileScanner::scanWithQtRecursive(WalkState &state, const Root &root)
{
    if (isStopRequested())
        return;
    const int driveType = queryDriveType(root.path);
    splog_d(kTag
        + QStringLiteral("scanWithQtRecursive: [%1]. driveType: [%2].")
              .arg(root.path)
              .arg(driveType));
    state.queue.push_back(Folder {root.path, root.native, driveType, true});
    drainInOrder(state);
}
