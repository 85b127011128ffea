// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ReadPool.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

#include <QThread>

namespace {

// How long the bytes read are counted before the readers grow again, by how much they grow,
// and how much faster a growth must make the reading to earn the next one.
constexpr auto kWindow = std::chrono::milliseconds(50);
constexpr int kGrowth = 4;
constexpr double kWorthGrowing = 1.2;
// After a growth that did not pay, the readers stay as they are for this many windows, then
// try again: what the files ask of the device changes as the run goes on (large files read
// ahead well with few readers, small ones want many in flight).
constexpr int kPauseWindows = 8;
constexpr int kConfirmations = 2;

} // namespace

int ReadPool::startReaders() const
{
    if (m_fixed > 0)
        return std::min(m_fixed, kMaxReaders);
    switch (m_mode) {
    case Ssd:
        return kMaxReaders;
    case Hdd:
        return 1;
    case Auto:
    case Plain:
        break;
    }
    // One more than the processor has threads: the caller only watches, and a reader that
    // waits on a page or a call leaves its core to the spare one.
    return std::clamp(QThread::idealThreadCount() + 1, 1, kMaxReaders);
}

void ReadPool::run(size_t count, const std::function<void(size_t)> &work,
    const std::atomic<qint64> &bytesRead, const std::atomic<qint64> *stop)
{
    if (count == 0)
        return;
    std::atomic<size_t> next {0};
    std::atomic<int> running {0};
    // Readers above this number leave after their item: a growth that did not pay is undone.
    std::atomic<int> target {kMaxReaders};
    // The last reader out wakes the caller at once: a run of a warm tree takes a fraction
    // of a second, and a caller that only looked every few milliseconds would add to it.
    std::mutex ended;
    std::condition_variable allOut;
    const auto leave = [&] {
        if (running.fetch_sub(1) == 1) {
            std::lock_guard<std::mutex> lock(ended);
            allOut.notify_all();
        }
    };
    const auto reader = [&] {
        for (;;) {
            int now = running.load();
            if (now > target.load() && now > 1 && running.compare_exchange_strong(now, now - 1))
                return;
            if (stop && stop->load() != 0)
                break;
            const size_t item = next.fetch_add(1);
            if (item >= count)
                break;
            work(item);
        }
        leave();
    };
    // Threads of their own, joined before the run returns: a reader the system refuses to
    // start (no threads left) only means fewer readers, never a run waiting for one.
    std::vector<std::thread> threads;
    const auto add = [&](int readers) {
        int started = 0;
        for (; started < readers; ++started) {
            running.fetch_add(1);
            try {
                threads.emplace_back(reader);
            } catch (const std::system_error &) {
                running.fetch_sub(1);
                break;
            }
        }
        return started;
    };
    int readers = add(int(std::min<size_t>(size_t(startReaders()), count)));
    if (readers == 0) {
        // Not even one thread: the caller reads alone.
        running.fetch_add(1);
        reader();
        m_readers.store(1);
        return;
    }
    const bool grows = m_fixed == 0 && m_mode == Auto;
    // The rate before the last growth (0: none measured since the last pause).
    double before = 0;
    int previous = readers;
    int pause = 0;
    int confirmed = 0;
    auto windowStart = std::chrono::steady_clock::now();
    qint64 windowBytes = bytesRead.load();
    for (;;) {
        {
            std::unique_lock<std::mutex> lock(ended);
            if (allOut.wait_for(lock, std::chrono::milliseconds(10),
                    [&running] { return running.load() == 0; }))
                break;
        }
        if (!grows || next.load() >= count)
            continue;
        const auto now = std::chrono::steady_clock::now();
        if (now - windowStart < kWindow)
            continue;
        const qint64 bytes = bytesRead.load();
        const double rate = double(bytes - windowBytes)
            / std::chrono::duration<double>(now - windowStart).count();
        windowStart = now;
        windowBytes = bytes;
        if (pause > 0) {
            --pause;
            continue;
        }
        if (before > 0 && rate < before * kWorthGrowing) {
            // The last growth did not pay: back to the readers before it, for a while.
            readers = previous;
            target.store(readers);
            before = 0;
            confirmed = 0;
            pause = kPauseWindows;
            continue;
        }
        // A growth is kept only when it pays in two windows running: one window alone may
        // have been helped by another program leaving the processor or the disk for a moment.
        if (before > 0 && ++confirmed < kConfirmations)
            continue;
        confirmed = 0;
        const int more = std::min(readers * (kGrowth - 1), kMaxReaders - readers);
        if (more <= 0)
            continue;
        before = rate;
        previous = readers;
        target.store(readers + more);
        readers += add(more);
        target.store(readers);
    }
    for (std::thread &thread : threads)
        thread.join();
    m_readers.store(readers);
}
