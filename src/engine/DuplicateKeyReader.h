// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/ContentKeyCache.h"
#include "engine/OverlappedKeyReader.h"
#include "engine/ReadPool.h"
#include "engine/ScanProblems.h"
#include "engine/ScanTable.h"

#include <atomic>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include <QByteArray>
#include <QList>
#include <QMutex>
#include <QString>

// The duplicate finder's key reading: the sampled key of every file of a size group (from
// the overlapped reader, the key cache or the file itself, folder by folder), the
// whole-content keys where the sampled ones agree, the name keys, and what goes back into
// the cache. Its per-file tables are written by the pool threads, each file by one thread
// only; the cache's shared lists are under m_cacheLock.
class DuplicateKeyReader
{
public:
    // One size group: a run of the file order.
    struct SizeRun
    {
        quint32 begin = 0;
        quint32 count = 0;
    };

    // table: the finder's scan table; stop: its stop flag.
    DuplicateKeyReader(const ScanTable &table, const std::atomic<qint64> &stop);

    // The key of one file. Sampled: the whole file up to 12,288 bytes, else 4 KiB at 0,
    // n/2-2048 and n-4096; whole: the whole content; both as 16 hexadecimal digits,
    // empty when the file cannot be read (or is empty). Name: the upper-case hexadecimal
    // MD5 of the file name.
    static QByteArray sampledKeyOf(const QString &filePath, qint64 size, int driveType);
    static QByteArray wholeKeyOf(const QString &filePath, int driveType);
    static QByteArray nameKeyOf(const QString &filePath);

    void setProblems(ScanProblems *problems) { m_problems = problems; }
    // The readers the files are read on, apart from the processor's pool; the finder's
    // whole-content reads go through them too.
    ReadPool &readPool() { return m_readPool; }
    // Bytes read from files so far, by every reader: how fast the reading goes.
    const std::atomic<qint64> &bytesRead() const { return m_bytesRead; }
    // Called after each folder read, from the pool threads.
    void setProgress(std::function<void()> progress) { m_progress = std::move(progress); }
    // Starts a scan: counters back to zero, the cache opened where options ask for it
    // and the keys are of content.
    void begin(const ContentKeyCache::Options &options, bool contentKeys, bool allContent);
    // Sampled keys of every file of a size group, computed folder by folder so that each
    // file is opened relative to its folder (one short look-up instead of a walk of the
    // whole path); the grouping then only compares them.
    void computeSampledKeys(const std::vector<quint32> &order, const std::vector<SizeRun> &runs,
        OverlappedKeyReader *reader);
    // The moment the whole-content reads begin: a key read after it is stored only when
    // its file was last modified well before.
    void beginWholeReads();
    // The whole-content key of a file, from the cache or read; false (counted as unread)
    // when the file cannot be read to its end.
    bool wholeKey(quint32 file, quint64 &key);
    // Writes the whole-content keys read into the cache and closes it.
    void storeKeys();
    // Frees the per-file tables.
    void release();

    bool isKeyed(quint32 file) const { return m_keyState[file] == 2; }
    quint64 key(quint32 file) const { return m_keys[file]; }
    qint64 wantedFiles() const { return m_wantedFiles; }
    qint64 keyedFiles() const { return m_keyedFiles.load(); }
    qint64 keysFromCache() const { return m_keysFromCache.load(); }
    qint64 overlappedKeys() const { return m_overlappedKeys; }

    // Counts a file that could not be read (error: its errno; 0 for an empty file, which
    // is no failure) as unreadable, or as vanished when it is gone.
    void noteUnread(quint32 file, int error);
    // For the name mode, which reads no file: whether the file is still a regular file.
    bool stillExists(quint32 file);

private:
    bool isStopRequested() const { return m_stop.load() != 0; }
    void keyFolder(quint32 folder);
    // keyFolder (or, stampOnly, stampFolder) of every folder, on the readers.
    void readFolders(QList<quint32> folders, bool stampOnly);
    // The cache's part: the stamps of the wanted files of a folder, before any is read.
    void keyFoldersWithCache(const QList<quint32> &folders);
    void stampFolder(quint32 folder);
    // Looks up every wanted file the walk kept a stat of, in one pass over the cache,
    // before anything is read.
    void lookUpWalkStamps();
    void takeOverlappedKeys(OverlappedKeyReader *reader);
    void takeCachedSampledKeys();
    // The cached whole-content key of a file whose stamp matched; false when there is none.
    bool cachedFullKey(quint32 file, quint64 &key);
    // A whole-content key just read, with the status of the file it was read from.
    void noteFullKey(quint32 file, quint64 key, const ContentKeyCache::Stamp &read);
    void keepOnlyIfStamped(quint32 file, const ContentKeyCache::Stamp &read);

    const ScanTable &m_table;
    const std::atomic<qint64> &m_stop;
    ScanProblems *m_problems = nullptr;
    ReadPool m_readPool;
    std::atomic<qint64> m_bytesRead {0};
    std::function<void()> m_progress;
    // Whole-content keys are wanted (the full mode): the cache gives those it holds.
    bool m_allContent = false;

    // Per file: the sampled key and its state (0 not wanted, 1 wanted, 2 keyed, 3 unreadable).
    std::vector<quint64> m_keys;
    std::vector<quint8> m_keyState;
    // Files keyed, out of m_wantedFiles, shared by the pool threads.
    qint64 m_wantedFiles = 0;
    std::atomic<qint64> m_keyedFiles {0};
    // The key cache of the running scan. The sampled keys go through it one run of
    // folders at a time: an entry per wanted file of the run (m_cachedFiles, ascending file
    // indices, gives each entry's file). The whole-content keys found in it wait in
    // m_cachedFullKeys (only read by the pool threads), those read in m_fullEntries (under
    // m_cacheLock).
    std::unique_ptr<ContentKeyCache> m_cache;
    std::vector<quint32> m_cachedFiles;
    std::vector<ContentKeyCache::Entry> m_cacheEntries;
    // (file, whole-content key) pairs, sorted by file once the sampled keys are known.
    std::vector<std::pair<quint32, quint64>> m_cachedFullKeys;
    std::vector<ContentKeyCache::Entry> m_fullEntries;
    QMutex m_cacheLock;
    qint64 m_readStartNs = 0;
    qint64 m_fullReadStartNs = 0;
    std::atomic<qint64> m_keysFromCache {0};
    qint64 m_overlappedKeys = 0;
};
