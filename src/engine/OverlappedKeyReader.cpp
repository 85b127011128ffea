// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/OverlappedKeyReader.h"

#include "engine/SampledKey.h"

#include <cstring>
#include <memory>

#include <QDateTime>
#include <QThread>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

// Jobs waiting beyond this many are not queued: their files are left to the finder, so
// that a walk far ahead of the reads does not keep its batches in memory.
constexpr size_t kMaxQueued = 64;
// Fresh keys are written to the cache in transactions of this many, so that the part of
// memory they take stays the same however large the tree.
constexpr size_t kStoreBatch = 32768;

} // namespace

OverlappedKeyReader::~OverlappedKeyReader()
{
    cancel();
    finish();
}

void OverlappedKeyReader::start(const ContentKeyCache::Options &cache, bool wantsFullKeys)
{
    cancel();
    finish();
#ifdef Q_OS_UNIX
    m_cacheOptions = cache;
    m_wantsFullKeys = wantsFullKeys;
    // Keys are cached only for files last changed well before this moment.
    m_startNs = QDateTime::currentMSecsSinceEpoch() * 1'000'000LL;
    m_today = qint32(QDateTime::currentSecsSinceEpoch() / 86400);
    m_stop.store(false);
    m_closing.store(false);
    m_cacheDamaged.store(false);
    // The workers run at idle priority: they take only the time the walk leaves, while it
    // waits for the disk or has too few folders to keep every core busy, and never slow it.
    const int threads = std::max(1, QThread::idealThreadCount());
    m_harvests.resize(size_t(threads));
    for (Harvest &harvest : m_harvests) {
        m_workers.emplace_back(QThread::create([this, &harvest] { work(harvest); }));
        m_workers.back()->start(QThread::IdlePriority);
    }
#else
    Q_UNUSED(cache)
    Q_UNUSED(wantsFullKeys)
#endif
}

void OverlappedKeyReader::add(const ScanBatch &batch, quint32 firstFile)
{
    if (m_workers.empty())
        return;
    const bool stats = batch.stats.size() == batch.sizes.size();
    Job job {batch.nativeFolder, batch.names, stats ? batch.stats : QList<ScanBatch::Stat> {},
        batch.device, {}};
    const char *names = batch.names.constData();
    const char *cursor = names;
    const char *end = cursor + batch.names.size();
    for (qsizetype i = 0; i < batch.sizes.size() && cursor < end; ++i) {
        const char *name = cursor;
        const size_t length = std::strlen(cursor);
        cursor += length + 1;
        const qint64 size = batch.sizes[i];
        // Empty files are never opened: they are never duplicates.
        if (size < 1)
            continue;
        const quint32 file = firstFile + quint32(i);
        const bool hasStat = stats && batch.stats[i].inode != 0;
        const auto [slot, first] = m_sizes.try_emplace(size);
        Pending &pending = slot->second;
        if (first) {
            pending = Pending {file, batch.nativeFolder, QByteArray(name, qsizetype(length)),
                hasStat ? batch.stats[i] : ScanBatch::Stat {}, hasStat, batch.device};
            continue;
        }
        if (pending.file != kQueued) {
            // The second file of the size: the first one is read now too.
            Job single {pending.folder, pending.name + '\0',
                pending.hasStat ? QList<ScanBatch::Stat> {pending.stat} : QList<ScanBatch::Stat> {},
                pending.device, {Item {pending.file, 0, size, pending.hasStat ? 0 : -1}}};
            enqueue(std::move(single));
            pending = Pending {};
        }
        job.items.push_back(Item {file, quint32(name - names), size, hasStat ? qint32(i) : -1});
    }
    if (!job.items.empty())
        enqueue(std::move(job));
}

void OverlappedKeyReader::enqueue(Job job)
{
    bool idle = false;
    {
        // A worker at idle priority may be holding the lock while the walk keeps the cores
        // busy: then the job is not waited for but left to the finder.
        std::unique_lock<std::mutex> locker(m_mutex, std::try_to_lock);
        if (!locker.owns_lock() || m_queue.size() >= kMaxQueued)
            return;
        idle = m_idle > 0;
        m_queue.push_back(std::move(job));
    }
    // Only a waiting worker needs waking; a busy one takes the job when it is done.
    if (idle)
        m_wake.notify_one();
}

void OverlappedKeyReader::cancel()
{
    m_stop.store(true);
    m_wake.notify_all();
}

OverlappedKeyReader::Outcome OverlappedKeyReader::finish()
{
    Outcome outcome;
    if (m_workers.empty())
        return outcome;
    m_closing.store(true);
    // At idle priority a worker could wait for ever on a machine busy with other work, and
    // the lock below with it: the workers are raised first.
    for (const std::unique_ptr<QThread> &worker : m_workers)
        if (worker->isRunning())
            worker->setPriority(QThread::NormalPriority);
    // Taking the lock once makes sure no worker is between its look at the flag and its
    // wait, so none misses the wake-up.
    {
        std::lock_guard<std::mutex> locker(m_mutex);
    }
    m_wake.notify_all();
    for (const std::unique_ptr<QThread> &worker : m_workers)
        worker->wait();
    m_workers.clear();
    decltype(m_sizes)().swap(m_sizes);
    m_queue.clear();
    size_t total = 0;
    for (const Harvest &harvest : m_harvests)
        total += harvest.results.size();
    outcome.results.reserve(total);
    // A cache found damaged gives nothing, not even what it gave before the damage showed:
    // those files are left to the finder to read.
    const bool trustCache = !m_cacheDamaged.load();
    for (Harvest &harvest : m_harvests) {
        for (const Result &result : harvest.results)
            if (trustCache || !result.cached)
                outcome.results.push_back(result);
        if (trustCache)
            outcome.fullKeys.insert(
                outcome.fullKeys.end(), harvest.fullKeys.begin(), harvest.fullKeys.end());
    }
    decltype(m_harvests)().swap(m_harvests);
    return outcome;
}

void OverlappedKeyReader::work(Harvest &harvest)
{
    std::unique_ptr<ContentKeyCache> cache;
    if (m_cacheOptions.enabled) {
        cache = std::make_unique<ContentKeyCache>(
            m_cacheOptions.path.isEmpty() ? ContentKeyCache::defaultPath() : m_cacheOptions.path);
        if (!cache->isOpen())
            cache.reset();
    }
    for (;;) {
        Job job;
        {
            std::unique_lock<std::mutex> locker(m_mutex);
            ++m_idle;
            m_wake.wait(
                locker, [this] { return !m_queue.empty() || m_closing.load() || m_stop.load(); });
            --m_idle;
            // Once closed, what is still queued is left to the finder, which reads it on
            // every core instead of waiting for this thread.
            if (m_stop.load() || m_closing.load())
                break;
            job = std::move(m_queue.front());
            m_queue.pop_front();
        }
        runJob(job, cache.get(), harvest);
        if (cache && harvest.fresh.size() >= kStoreBatch) {
            cache->store(harvest.fresh, m_startNs);
            harvest.fresh.clear();
        }
    }
    if (!cache)
        return;
    if (!m_stop.load()) {
        cache->store(harvest.fresh, m_startNs);
        cache->touch(
            harvest.seenBefore.size(), [&harvest](size_t at) { return harvest.seenBefore[at]; });
    }
    if (cache->setAside())
        m_cacheDamaged.store(true);
    decltype(harvest.fresh)().swap(harvest.fresh);
    decltype(harvest.seenBefore)().swap(harvest.seenBefore);
}

void OverlappedKeyReader::runJob(const Job &job, ContentKeyCache *cache, Harvest &harvest)
{
#ifdef Q_OS_UNIX
    // The files the walk stamped are looked up first, all of the job in one transaction.
    std::vector<bool> done(job.items.size(), false);
    if (cache) {
        std::vector<ContentKeyCache::Entry> entries;
        std::vector<size_t> positions;
        for (size_t at = 0; at < job.items.size(); ++at) {
            const Item &item = job.items[at];
            if (item.stat < 0)
                continue;
            const ScanBatch::Stat &stat = job.stats[item.stat];
            ContentKeyCache::Entry entry;
            entry.stamp = ContentKeyCache::Stamp {
                job.device, stat.inode, item.size, stat.modifiedNs, stat.changedNs};
            entries.push_back(entry);
            positions.push_back(at);
        }
        if (!entries.empty())
            cache->lookup(entries);
        for (size_t i = 0; i < entries.size(); ++i) {
            const ContentKeyCache::Entry &entry = entries[i];
            if (!entry.found || !entry.hasSampled)
                continue;
            const Item &item = job.items[positions[i]];
            harvest.results.push_back(Result {item.file, 0, true, true, entry.sampledKey});
            if (entry.hasFull && m_wantsFullKeys)
                harvest.fullKeys.emplace_back(item.file, entry.fullKey);
            if (entry.seenDay < m_today)
                harvest.seenBefore.push_back(entry.stamp);
            done[positions[i]] = true;
        }
    }
    // The folder is opened once; each file is then looked up by its name alone.
    const int dirfd = job.folder.isEmpty()
        ? -1
        : ::open(job.folder.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    for (size_t at = 0; at < job.items.size(); ++at) {
        if (done[at])
            continue;
        if (m_stop.load() || m_closing.load(std::memory_order_relaxed))
            break;
        const Item &item = job.items[at];
        const char *name = job.names.constData() + item.nameOffset;
        const auto pathOf
            = [&job, name] { return QString::fromLocal8Bit(job.folder + '/' + QByteArray(name)); };
        quint64 key = 0;
        int error = 0;
        struct stat opened
        {
        };
        bool keyed = false;
        if (dirfd >= 0) {
            keyed = SampledKey::readAt(
                dirfd, name, item.size, key, pathOf, error, cache ? &opened : nullptr);
        } else {
            const QByteArray path = job.folder + '/' + QByteArray(name);
            keyed = SampledKey::readAt(AT_FDCWD, path.constData(), item.size, key, pathOf, error,
                cache ? &opened : nullptr);
        }
        harvest.results.push_back(Result {item.file, qint16(error), keyed, false, key});
        if (keyed && cache) {
            ContentKeyCache::Entry entry;
            entry.stamp = SampledKey::stampOf(opened);
            entry.sampledKey = key;
            entry.hasSampled = true;
            entry.fresh = true;
            harvest.fresh.push_back(entry);
        }
    }
    if (dirfd >= 0)
        ::close(dirfd);
#else
    Q_UNUSED(job)
    Q_UNUSED(cache)
    Q_UNUSED(harvest)
#endif
}
