// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/ContentKeyCache.h"
#include "engine/DuplicateFolderMatcher.h"
#include "engine/DuplicateKeyReader.h"
#include "engine/FileMeta.h"
#include "engine/KeyRuns.h"
#include "engine/OverlappedKeyReader.h"
#include "engine/ScanProblems.h"
#include "engine/ScanTable.h"

#include <atomic>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include <QByteArray>
#include <QElapsedTimer>
#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QMutex>
#include <QReadWriteLock>
#include <QSet>
#include <QStringList>
#include <QThread>

// Second stage of a local scan: splits the same-size files reported by the scanner into
// groups of identical files (sampled content key, whole-content key or file name), stores
// each group with its initial selection in the result store, optionally matches whole
// folders of duplicates, and sets aside the single pictures for the similar-image stage.
// Runs on its own thread; the per-group work runs on the global thread pool.
class DuplicateFileFinder : public QThread
{
    Q_OBJECT
public:
    using FileMeta = ::FileMeta;
    using SizeTable = QHash<qint64, QList<FileMeta>>;

    // One folder holding duplicate files, for the folder matching.
    using DirMatchInfo = DuplicateFolderMatcher::DirMatchInfo;

    enum ScanMethod : int { scanContent = 0, scanName = 1, scanAllContent = 2 };

    explicit DuplicateFileFinder(QObject *parent = nullptr);
    ~DuplicateFileFinder() override;

    void applyConfig(const QJsonObject &duplication);
    // The scan table as size groups of paths (converted into the compact table here);
    // called before start().
    void setInput(const SizeTable &table, const QStringList &files);
    // The controller's compact scan table, handed over before start().
    void setInput(ScanTable table) { m_table = std::move(table); }
    // The scan's root folders: duplicate folders are looked for up to them, not above.
    void setRoots(const QStringList &roots) { m_roots = roots; }
    // Where files that cannot be read or have vanished are counted; may be null.
    void setProblems(ScanProblems *problems) { m_problems = problems; }
    // Whether (and where) keys of earlier scans are reused; off unless set.
    void setCacheOptions(const ContentKeyCache::Options &options) { m_cacheOptions = options; }
    ContentKeyCache::Options cacheOptions() const { return m_cacheOptions; }
    // Keys the last scan took from the cache instead of reading the file.
    qint64 keysFromCache() const { return m_keyReader.keysFromCache(); }
    // The reader that took sampled keys while the walk went on; its keys are taken over at
    // the start of run(). Null: every key is read here.
    void setOverlappedReader(OverlappedKeyReader *reader) { m_reader = reader; }
    // Sampled keys of the last scan that were read (or taken from the cache) during the walk.
    qint64 overlappedKeys() const { return m_keyReader.overlappedKeys(); }

    void requestStop()
    {
        stopRequested.store(1);
        if (m_reader)
            m_reader->cancel();
    }
    bool isStopRequested() const { return stopRequested.load() != 0; }

    QStringList uniqueImageFiles() const;
    // Whether the single pictures are collected for a similar-picture stage (on unless
    // set); a scan without that stage spares the test and the paths.
    void setCollectsPictures(bool collects) { m_collectsPictures = collects; }
    // Whether each member's stamp goes into the result store (on unless set): the checks
    // before a removal and a saved project need them; a scan that only reports its
    // groups does not.
    void setKeepsStamps(bool keeps) { m_keepsStamps = keeps; }
    // The copies found that could go (every copy of a group but one), and their bytes.
    int duplicateFiles() const { return duplicateFileCount.load(); }
    qint64 duplicateSize() const { return duplicateTotalSize.load(); }
    int scanMethodInUse() const { return scanMethod; }
    // The readers of contents: their mode follows the "ioMode" snapshot value; tests and
    // benchmarks may fix their number.
    ReadPool &readPool() { return m_keyReader.readPool(); }
    bool matchesFolders() const { return scanDupDirectory; }
    int selectHint() const { return duplicateSelectHint; }
    QJsonObject configuration() const { return config; }

    // Content keys: 16 lower-case hexadecimal digits of an XXH3-64 digest; empty when the
    // file cannot be read (or is empty).
    // Sampled: the whole file up to 12,288 bytes, else 4 KiB at 0, n/2-2048 and n-4096.
    static QByteArray calculateFileHash(const QString &filePath, qint64 size, int driveType);
    // The whole content.
    static QByteArray streamHash(const QString &filePath, int driveType);
    // Upper-case hexadecimal MD5 of the file name (the name mode).
    static QByteArray nameKey(const QString &filePath);

signals:
    void progressUpdated(int progressType, double percent);
    void onFindItem(int number, qint64 totalSize);
    void scanFinished();

protected:
    void run() override;

private:
    // One size group: a run of m_order.
    using SizeRun = DuplicateKeyReader::SizeRun;

    void processDuplicates();
    void hashGroup(const SizeRun &run);
    // A group found in a size group: members in order, with the content key of each.
    struct Found
    {
        QByteArray key;
        std::vector<quint32> members;
    };
    // The steps of hashGroup; each is false when a stop cut it short.
    bool groupByName(const SizeRun &run, std::vector<Found> &found);
    bool groupByContent(
        const SizeRun &run, qint64 size, std::vector<Found> &found, std::vector<quint32> &singles);
    // Whole-content keys of the files whose sampled keys agree with another's.
    bool wholeKeys(const std::vector<KeyRuns::Keyed> &keyed,
        const std::vector<KeyRuns::Range> &ranges, std::vector<KeyRuns::Keyed> &full);
    bool storeFound(qint64 size, const std::vector<Found> &found);
    void reportProgress(bool force);
    // The file-type catalogue's image test on a file of the table, answered from the
    // name's bytes where the suffix is plain ASCII (nearly always), without building a
    // string per file.
    void prepareImageTest();
    bool isImage(quint32 file) const;
    // members: the paths' files in the table, whose walk stat gives their stamps.
    void storeGroup(qint64 size, const QByteArray &contentKey, const QStringList &paths,
        const std::vector<quint32> &members);

    ScanTable m_table;
    QStringList m_roots;
    ScanProblems *m_problems = nullptr;
    QStringList uniqueImages;
    mutable QMutex m_mutex;
    std::atomic<qint64> stopRequested {0};
    // A ReadPool::Mode value; Auto falls back to Plain on external drives.
    int m_ioMode = 0;
    QElapsedTimer m_timer;
    std::atomic<int> duplicateFileCount {0};
    std::atomic<qint64> duplicateTotalSize {0};
    QJsonObject config;
    int scanMethod = scanContent;
    bool scanDupDirectory = false;
    int duplicateSelectHint = 2;
    QMap<QString, int> mapPriority;

    // File indices of m_table ordered by size, and the size groups of two or more files.
    std::vector<quint32> m_order;
    std::vector<SizeRun> m_runs;
    // Lower-case image suffixes for isImage(); empty m_asciiImageTest when the catalogue
    // lists a suffix that is not plain ASCII (then every test goes through the catalogue).
    std::vector<std::string> m_imageSuffixes;
    size_t m_longestImageSuffix = 0;
    // The suffixes of up to eight characters packed into one number each, sorted.
    std::vector<quint64> m_packedImageSuffixes;
    bool m_asciiImageTest = false;
    bool m_collectsPictures = true;
    bool m_keepsStamps = true;
    // Progress of the file phase, shared by the pool threads: size groups done, out of
    // m_runs.size() (the files keyed are the key reader's count).
    std::atomic<int> m_done {0};
    std::atomic<qint64> m_lastReportMs {0};
    ContentKeyCache::Options m_cacheOptions;
    OverlappedKeyReader *m_reader = nullptr;
    DuplicateFolderMatcher m_folders {stopRequested, duplicateFileCount, duplicateTotalSize};
    DuplicateKeyReader m_keyReader {m_table, stopRequested};
};
