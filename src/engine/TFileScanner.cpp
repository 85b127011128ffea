// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/TFileScanner.h"

#include "app/TLogger.h"
#include "engine/DriveTypeCache.h"
#include "engine/FilePathCodec.h"
#include "engine/ScanSeen.h"
#include "platform/FolderReader.h"
#include "platform/Platform.h"

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
#include <QMetaMethod>
#include <QMutexLocker>
#include <QScopeGuard>
#include <QThreadPool>
#include <QWaitCondition>

namespace {

// The log tags of this file.
const QString kTag = QStringLiteral("[TFileScanner]: ");
const QString kShortTag = QStringLiteral("[TFileScanner] ");

// A walking thread sends what it gathered once it holds this many files, or once its
// oldest folder has waited this long: the receiver then wakes once per few thousand
// files instead of once per folder, and a slow disk still shows progress.
constexpr qsizetype kOutboxFiles = 4096;
constexpr qint64 kOutboxMs = 20;

QString joinPath(const QString &folder, const QString &name)
{
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

// The system's words for an error code of the platform layer.
QString systemText(int error)
{
    return QString::fromLocal8Bit(platform::current().errorText(error).c_str());
}

QByteArray joinNative(const QByteArray &folder, const char *name)
{
    QByteArray out = folder;
    if (!out.endsWith('/'))
        out.append('/');
    out.append(name);
    return out;
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
    m_filters.apply(common);
}

int TFileScanner::queryDriveType(const QString &path)
{
    return DriveTypeCache::query(path);
}

void TFileScanner::run()
{
    stopRequested.store(0);
    scannedCount.store(0);
    roots.detach();
    m_filters.prepare();
    m_perFileSignals = isSignalConnected(QMetaMethod::fromSignal(&TFileScanner::fileFound))
        || isSignalConnected(QMetaMethod::fromSignal(&TFileScanner::filesFound));
    ScanSeen seen;
    seen.pseudoDevices = platform::current().pseudoFileSystemDevices();
    m_seen = &seen;
    m_roots.clear();
    for (const QString &root : std::as_const(roots)) {
        const Root resolved = resolveRoot(root);
        if (!resolved.path.isEmpty())
            m_roots.add(resolved);
    }
    // Links are resolved only once every root has been walked: a file reachable both
    // directly and through a link is then always met under its own path first, whatever
    // the order of the roots.
    WalkState state;
    const bool filtered = scanMode == 1;
    for (const Root &root : m_roots.list()) {
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
    // The walk runs on the real path, so every reported path is free of links and a
    // link's target can be told to lie inside a root by its path alone.
    int error = 0;
    const std::string real = platform::realPathOf(resolved.native.toStdString(), error);
    if (!real.empty()) {
        const QByteArray native = QByteArray::fromStdString(real);
        if (native != resolved.native) {
            splog_d(kTag
                + QStringLiteral("Root [%1] is scanned as [%2].")
                      .arg(resolved.path, FilePathCodec::decode(native)));
            resolved.native = native;
            resolved.path = FilePathCodec::decode(native);
        }
    }
    return resolved;
}

void TFileScanner::noteProblem(ScanProblems::Kind kind, const QString &path)
{
    if (m_problems)
        m_problems->add(kind, path);
}

void TFileScanner::unreadableFile(const QString &path, int error)
{
    splog_repeated("[TFileScanner]: Cannot read file",
        kTag + QStringLiteral("Cannot read file, skipped: [%1]. %2").arg(path, systemText(error)));
    noteProblem(ScanProblems::UnreadableFile, path);
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

// One folder being listed: what its entries share.
struct TFileScanner::Listing
{
    const Folder &folder;
    ScanBatch &batch;
    QList<FileMeta> &metas;
    bool filtered = false;
    platform::FolderReader reader;
    QString prefix;
    std::vector<Identity> singles;
};

bool TFileScanner::openListing(Listing &listing)
{
    const Folder &folder = listing.folder;
    if (const int error = listing.reader.error()) {
        // A sub-folder removed while the walk ran held nothing to lose; anything else
        // is a folder the user will want to hear about.
        if (platform::isNotFoundError(error) && !folder.root)
            return false;
        splog_repeated("[TFileScanner]: Cannot read folder",
            kTag
                + QStringLiteral("Cannot read folder, skipped: [%1]. %2")
                      .arg(folder.path, systemText(error)));
        if (folder.root && m_problems)
            m_problems->addUnreadableRoot(folder.path);
        else
            noteProblem(ScanProblems::UnreadableFolder, folder.path);
        return false;
    }
    platform::EntryInfo info;
    if (listing.reader.folderInfo(info) == 0) {
        listing.batch.device = quint64(info.device);
        const auto &pseudo = m_seen->pseudoDevices;
        if (std::find(pseudo.begin(), pseudo.end(), info.device) != pseudo.end()) {
            splog_d(
                kTag + QStringLiteral("Pseudo file system, not entered: [%1].").arg(folder.path));
            noteProblem(ScanProblems::PseudoFileSystem, folder.path);
            return false;
        }
        QMutexLocker locker(&m_seen->mutex);
        if (info.hasIdentity()
            && !m_seen->folders.insert(Identity {info.device, info.inode}).second) {
            locker.unlock();
            splog_d(
                kTag + QStringLiteral("Folder already scanned, skipped: [%1].").arg(folder.path));
            return false;
        }
    }
    listing.prefix
        = folder.path.endsWith(QLatin1Char('/')) ? folder.path : folder.path + QLatin1Char('/');
    return true;
}

bool TFileScanner::listEntries(WalkState &state, Listing &listing)
{
    using platform::EntryInfo;
    const Folder &folder = listing.folder;
    const bool filtered = listing.filtered;
    const platform::Platform &os = platform::current();
    platform::FolderReader &reader = listing.reader;
    // A file's full path string is only built when something needs it: the ignore
    // list, the per-file signals or a message.
    const bool pathPerEntry = (filtered && m_filters.hasIgnoredPaths()) || m_perFileSignals;
    const bool typeFilters = filtered && m_filters.hasTypeFilters();
    EntryInfo info;
    while (reader.next()) {
        if (isStopRequested())
            return false;
        const char *name = reader.name();
        const qsizetype nameLength = qsizetype(reader.nameLength());
        const auto pathOf
            = [&] { return listing.prefix + FilePathCodec::decode(name, nameLength); };
        const QString path = pathPerEntry ? pathOf() : QString();
        if (filtered && m_filters.isIgnoredPath(path))
            continue;
        if (filtered && m_filters.skipsHiddenAndSystem()
            && os.isHiddenOrSystem(joinNative(folder.native, name).toStdString()))
            continue;
        EntryInfo::Kind kind = reader.listedKind();
        bool haveStat = false;
        if (kind == EntryInfo::Unknown || kind == EntryInfo::File) {
            if (const int error = reader.stat(info)) {
                if (!platform::isNotFoundError(error))
                    unreadableFile(pathOf(), error);
                continue;
            }
            haveStat = true;
            kind = info.kind;
        }
        if (kind == EntryInfo::Folder) {
            QMutexLocker locker(&state.mutex);
            state.queue.push_back(
                Folder {pathOf(), joinNative(folder.native, name), folder.driveType});
            state.wake.wakeOne();
        } else if (kind == EntryInfo::Link) {
            QMutexLocker locker(&state.mutex);
            state.links.push_back(
                Folder {pathOf(), joinNative(folder.native, name), folder.driveType});
        } else if (kind == EntryInfo::File && haveStat) {
            if (filtered && m_filters.isOutsideSizeRange(info.size))
                continue;
            if (typeFilters
                && !m_filters.passesFileFilters(FilePathCodec::decode(name, nameLength), info.size))
                continue;
            acceptFile(listing, name, nameLength, info, path);
        }
        // Pipes, sockets and devices are never reported: reading them can block.
    }
    return true;
}

void TFileScanner::acceptFile(Listing &listing, const char *name, qsizetype nameLength,
    const platform::EntryInfo &info, const QString &path)
{
    ScanBatch &batch = listing.batch;
    // A file nobody may read can never be compared: it is counted, not
    // reported.
    if (!listing.reader.mayRead(m_seen->permission)) {
        unreadableFile(listing.prefix + FilePathCodec::decode(name, nameLength),
            platform::accessDeniedError());
        return;
    }
    const Identity id {info.device, info.inode};
    if (info.links > 1) {
        QMutexLocker locker(&m_seen->mutex);
        if (!m_seen->multiLinkFiles.insert(id).second)
            return;
    } else if (listing.folder.linked) {
        QMutexLocker locker(&m_seen->mutex);
        if (m_seen->linkedFiles.count(id))
            return;
        listing.singles.push_back(id);
    } else if (info.hasIdentity()) {
        listing.singles.push_back(id);
    }
    ScanBatch::Stat stat;
    if (id.device == batch.device && batch.device != 0) {
        stat.inode = id.inode;
        stat.modifiedNs = info.modifiedNs;
        stat.changedNs = info.changedNs;
    }
    reportFile(batch, listing.metas, info.size, name, path, listing.filtered, stat);
}

bool TFileScanner::listFolder(WalkState &state, const Folder &folder, bool filtered,
    ScanBatch &batch, QList<FileMeta> &metas, bool &completed)
{
    Listing listing {
        folder, batch, metas, filtered, platform::FolderReader(folder.native.toStdString())};
    if (!openListing(listing))
        return false;
    const bool cut = !listEntries(state, listing);
    if (!listing.singles.empty()) {
        QMutexLocker locker(&m_seen->mutex);
        m_seen->singleFiles.insert(
            m_seen->singleFiles.end(), listing.singles.begin(), listing.singles.end());
    }
    completed = !cut;
    return true;
}

void TFileScanner::processDir(WalkState &state, const Folder &folder, bool filtered, Outbox &outbox)
{
    if (isStopRequested() || (filtered && m_filters.isIgnoredPath(folder.path)))
        return;
    ScanBatch batch;
    batch.folder = folder.path;
    batch.nativeFolder = folder.native;
    batch.driveType = folder.driveType;
    batch.listedNs = QDateTime::currentMSecsSinceEpoch() * 1'000'000LL;
    QList<FileMeta> metas;
    bool completed = false;
    try {
        if (!listFolder(state, folder, filtered, batch, metas, completed))
            return;
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
    // Four walkers a processor thread: on a cold tree each waits on the disk for folders
    // and inodes most of the time, and the disk answers many such reads at once.
    const int workers = std::max(1, QThread::idealThreadCount()) * 4;
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

// Each link stands for its target, under the target's real path: a file reached
// through a link is the same item as the file itself, and the link is never a member
// of a group (removing a link keeps nothing, removing its target leaves it dangling).
struct TFileScanner::Target
{
    Folder link;
    Folder real;
    qint64 size = 0;
    bool isFolder = false;
    Identity id;
    bool multiLink = false;
};

bool TFileScanner::resolveTarget(const Folder &link, bool filtered, Target &target)
{
    int error = 0;
    const std::string real = platform::realPathOf(link.native.toStdString(), error);
    if (real.empty()) {
        splog_repeated("[TFileScanner]: Dangling link",
            kTag
                + QStringLiteral("Dangling link, skipped: [%1]. %2")
                      .arg(link.path, systemText(error)));
        return false;
    }
    target.real.native = QByteArray::fromStdString(real);
    target.real.path = FilePathCodec::decode(target.real.native);
    const Root *root = m_roots.holding(target.real.native);
    if (!root) {
        splog_repeated("[TFileScanner]: Link leads outside the scanned folders",
            kTag
                + QStringLiteral("Link leads outside the scanned folders, not "
                                 "followed: [%1] -> [%2].")
                      .arg(link.path, target.real.path));
        noteProblem(ScanProblems::LinkOutsideRoots, link.path);
        return false;
    }
    target.real.driveType = root->driveType;
    // The ordinary walk never enters an ignored folder; neither does a link.
    if (filtered && m_filters.isUnderIgnoredPath(target.real.path))
        return false;
    // Nor is a link a way round the hidden-files setting: followed, it would report
    // a hidden copy as if it were visible, or a hidden folder's file twice (through
    // the link to the file and through the link to its folder).
    if (filtered && m_filters.skipsHiddenAndSystem()
        && ScanRoots::isHiddenBelow(*root, target.real.native)) {
        splog_repeated("[TFileScanner]: Link leads to a hidden entry",
            kTag
                + QStringLiteral("Link leads to a hidden entry, not followed: "
                                 "[%1] -> [%2].")
                      .arg(link.path, target.real.path));
        return false;
    }
    platform::EntryInfo info;
    if (platform::entryInfoOf(target.real.native.toStdString(), true, info) != 0)
        return false;
    target.id = Identity {info.device, info.inode};
    target.isFolder = info.kind == platform::EntryInfo::Folder;
    if (!target.isFolder && info.kind != platform::EntryInfo::File)
        return false;
    target.size = info.size;
    target.multiLink = info.links > 1;
    return true;
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
    std::vector<Target> targets;
    targets.reserve(links.size());
    for (Folder &link : links) {
        if (isStopRequested())
            break;
        Target target;
        if (!resolveTarget(link, filtered, target))
            continue;
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
            QMutexLocker seenLocker(&m_seen->mutex);
            if (m_seen->folders.count(target.id))
                continue;
            seenLocker.unlock();
            QMutexLocker locker(&state.mutex);
            state.queue.push_back(target.real);
            state.queue.back().linked = true;
            continue;
        }
        const qsizetype slash = target.real.path.lastIndexOf(QLatin1Char('/'));
        const QString name = target.real.path.mid(slash + 1);
        if (filtered && !m_filters.passesFileFilters(name, target.size))
            continue;
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
