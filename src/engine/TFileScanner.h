// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/FileMeta.h"
#include "engine/ScanBatch.h"
#include "engine/ScanFilters.h"
#include "engine/ScanProblems.h"
#include "engine/ScanRoots.h"

#include <atomic>

#include <QFutureInterface>
#include <QJsonObject>
#include <QList>
#include <QMutex>
#include <QStringList>
#include <QThread>

class QWaitCondition;
namespace platform {
struct EntryInfo;
}
struct ScanSeen;

// First stage of a local scan: walks the root folders, applies the scan filters and
// reports every accepted file. Runs on its own thread; the default walk fans out over a
// private pool of idealThreadCount() workers.
//
// Roots are walked by their real paths. Links are followed only where they lead inside
// the roots, and always stand for their target under its real path: each folder (device
// and inode) is walked at most once per scan, so link loops end, and each file (device
// and inode) is reported at most once, so a hard link or a link to a file never turns up
// as a copy of itself and no group ever holds a link. Links are resolved after every
// root's ordinary walk. While hidden entries are skipped, a link whose target is hidden or
// lies in a hidden folder below its root is not followed. Links leading outside the
// roots, unreadable folders and files, and pseudo file systems (never entered) are
// counted in the scan's problems.
class TFileScanner : public QThread
{
    Q_OBJECT
public:
    enum DriveType : int { DriveSsd = 0, DriveHdd = 1, DriveExternal = 2, DriveUnknown = 3 };

    explicit TFileScanner(QObject *parent = nullptr);
    ~TFileScanner() override;

    // Copies the common configuration (the ignore-list preferences snapshot).
    void applyConfig(const QJsonObject &common);

    void setRoots(const QStringList &newRoots) { roots = newRoots; }
    void setScanMode(qint64 mode) { scanMode = mode; }
    // Where unreadable folders and files, links leading outside the roots and pseudo file
    // systems are counted; owned by the caller, may be null.
    void setProblems(ScanProblems *problems) { m_problems = problems; }
    void requestStop() { stopRequested.store(1); }
    bool isStopRequested() const { return stopRequested.load() != 0; }

    qint64 minimumSize() const { return m_filters.minimumSize(); }
    qint64 maximumSize() const { return m_filters.maximumSize(); }
    QStringList onlyFileTypes() const { return m_filters.onlyFileTypes(); }
    QStringList ignoredFileTypes() const { return m_filters.ignoredFileTypes(); }
    bool skipsHiddenAndSystem() const { return m_filters.skipsHiddenAndSystem(); }
    QJsonObject configuration() const { return config; }

    // Drive type of the drive holding path, cached per drive for the process (failed
    // queries are not cached, so they are tried again on the next scan).
    static int queryDriveType(const QString &path);

signals:
    void fileFound(qint64 key, const QString &filePath, int driveType);
    // The files of one folder at once: the same reports as fileFound, bundled so that
    // a receiver on another thread takes one queued call per folder instead of one per
    // file.
    void filesFound(const QList<FileMeta> &files);
    // The same files again, in compact form: the folder once and the names as bytes, a
    // few folders at a time (each walking thread gathers a few thousand files or a few
    // milliseconds' worth before it sends), so that the receiver wakes seldom. The scan
    // controller takes this one. The per-file forms above are only built while something
    // is connected to them.
    void folderFilesFound(const QList<ScanBatch> &batches);
    void pathFound(const QString &path);
    void progressUpdated(int scannedCount);
    void scanFinished();

protected:
    void run() override;

private:
    struct WalkState;
    struct Folder;
    using Root = ScanRoots::Root;
    struct Outbox;

    void scanWithQtRecursive(WalkState &state, const Root &root);
    void scanIncrementalParallel(WalkState &state, const Root &root);
    void processDir(WalkState &state, const Folder &folder, bool filtered, Outbox &outbox);
    // Lists one folder into batch: its files reported, its folders queued, its links kept
    // for later; false when it was not listed at all (unreadable, gone, already walked).
    // completed is set when every entry was read.
    bool listFolder(WalkState &state, const Folder &folder, bool filtered, ScanBatch &batch,
        QList<FileMeta> &metas, bool &completed);
    struct Listing;
    bool openListing(Listing &listing);
    // False when a stop cut the listing short.
    bool listEntries(WalkState &state, Listing &listing);
    // A regular file that passed the filters: reported unless unreadable or met before.
    void acceptFile(Listing &listing, const char *name, qsizetype nameLength,
        const platform::EntryInfo &info, const QString &path);
    void drainWithPool(WalkState &state);
    void drainInOrder(WalkState &state);
    // Turns the links met so far into their targets: folders are queued, files reported;
    // true when folders were queued.
    bool resolveLinks(WalkState &state, bool filtered);
    struct Target;
    // Where one link leads, when it is to be followed: false for a dangling link, one
    // leading outside the roots, to an ignored or hidden place, or to neither a folder
    // nor a file.
    bool resolveTarget(const Folder &link, bool filtered, Target &target);
    Root resolveRoot(const QString &root) const;
    void noteProblem(ScanProblems::Kind kind, const QString &path);
    void unreadableFile(const QString &path, int error);
    // Adds one accepted file to the folder's batch and counts it; path is only needed
    // (and only built) while the per-file signals are connected.
    void reportFile(ScanBatch &batch, QList<FileMeta> &metas, qint64 size, const char *name,
        const QString &path, bool filtered, const ScanBatch::Stat &stat = {});
    // Sends the per-file reports at once and puts the batch in the outbox, which is sent
    // when it is full or old enough.
    void emitBatch(ScanBatch &batch, QList<FileMeta> &metas, Outbox &outbox);
    void send(Outbox &outbox);

    QStringList roots;
    qint64 scanMode = 1;
    ScanFilters m_filters;
    std::atomic<int> stopRequested {0};
    std::atomic<int> scannedCount {0};
    QFutureInterface<void> m_future;
    QJsonObject config;
    ScanProblems *m_problems = nullptr;

    // Whether fileFound and filesFound have receivers, decided once per run: their
    // per-file path strings are the most costly part of a walk.
    bool m_perFileSignals = true;
    // The roots by their real paths, for the duration of a run.
    ScanRoots m_roots;
    // Identities (device, inode) of the folders walked and of the files with several
    // names reported during the current run; they persist across the roots of one scan.
    ScanSeen *m_seen = nullptr;
};
