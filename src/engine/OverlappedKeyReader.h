// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/ContentKeyCache.h"
#include "engine/ScanBatch.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <utility>
#include <vector>

#include <QByteArray>
#include <QList>
#include <QThread>

// Reads the sampled keys of same-size files while the walk goes on. The files of a size
// are queued as soon as a second file of that size turns up, and worker threads read
// them (or take them from the key cache) meanwhile; nothing is read for a size held by
// one file. The workers run at idle priority, so they only use what the walk leaves of the
// processor (on Linux their reads also fall into the idle I/O class, so an I/O scheduler
// that honours classes serves the walk first on a rotating disk). The reading is best
// effort: what the workers have not reached when the walk
// ends (or when too much waits) is left to the finder, which reads it on every core.
//
// add() is called on the thread that fills the scan table, with each batch's first file
// index in that table; finish() (on any one thread) lets the workers end the file at hand
// and hands the keys over by those indices.
class OverlappedKeyReader
{
public:
    struct Result
    {
        quint32 file = 0;
        // The errno of a failed read (0 for a file found empty).
        qint16 error = 0;
        bool keyed = false;
        // Taken from the key cache, not read.
        bool cached = false;
        quint64 key = 0;
    };
    struct Outcome
    {
        std::vector<Result> results;
        // With the cache: the whole-content keys it held for files whose sampled key it gave.
        std::vector<std::pair<quint32, quint64>> fullKeys;
    };

    OverlappedKeyReader() = default;
    ~OverlappedKeyReader();
    OverlappedKeyReader(const OverlappedKeyReader &) = delete;
    OverlappedKeyReader &operator=(const OverlappedKeyReader &) = delete;

    // Starts the workers for one scan; wantsFullKeys: the scan compares whole contents,
    // so the cache's whole-content keys are handed over too.
    void start(const ContentKeyCache::Options &cache, bool wantsFullKeys);
    bool isRunning() const { return !m_workers.empty(); }
    void add(const ScanBatch &batch, quint32 firstFile);
    // Makes the workers drop what is queued; finish() still has to be called.
    void cancel();
    // Ends the workers after the file at hand and gives their keys; empty when not running.
    Outcome finish();

private:
    struct Item
    {
        quint32 file = 0;
        quint32 nameOffset = 0;
        qint64 size = 0;
        // Index into the job's stats; -1 when the walk kept none.
        qint32 stat = -1;
    };
    struct Job
    {
        QByteArray folder;
        QByteArray names;
        QList<ScanBatch::Stat> stats;
        quint64 device = 0;
        std::vector<Item> items;
    };
    // The first file of a size, kept until a second one turns up.
    struct Pending
    {
        quint32 file = kQueued;
        QByteArray folder;
        QByteArray name;
        ScanBatch::Stat stat;
        bool hasStat = false;
        quint64 device = 0;
    };
    // Per worker: what it found, merged by finish().
    struct Harvest
    {
        std::vector<Result> results;
        std::vector<std::pair<quint32, quint64>> fullKeys;
        std::vector<ContentKeyCache::Entry> fresh;
        std::vector<ContentKeyCache::Stamp> seenBefore;
    };
    static constexpr quint32 kQueued = 0xFFFFFFFFu;

    void enqueue(Job job);
    void work(Harvest &harvest);
    void runJob(const Job &job, ContentKeyCache *cache, Harvest &harvest);

    ContentKeyCache::Options m_cacheOptions;
    bool m_wantsFullKeys = false;
    qint64 m_startNs = 0;
    qint32 m_today = 0;
    std::unordered_map<qint64, Pending> m_sizes;

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<Job> m_queue;
    // Workers waiting for a job.
    int m_idle = 0;
    std::atomic<bool> m_stop {false};
    // Set when the walk has ended: a worker stops at the next file and takes no further
    // job; the rest is left to the finder, which reads on every core instead of waiting.
    std::atomic<bool> m_closing {false};
    std::atomic<bool> m_cacheDamaged {false};
    std::vector<std::unique_ptr<QThread>> m_workers;
    std::vector<Harvest> m_harvests;
};
