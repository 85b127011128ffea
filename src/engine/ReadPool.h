// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <functional>

#include <QtGlobal>

// The readers of file contents, apart from the processor's pool: a cold disk answers many
// reads in flight far faster than one at a time, whatever it says it is, while a warm page
// cache or a spinning disk gains nothing from more than a few. How many read at once
// follows what the device does:
// - Auto starts with one reader more than the processor has threads and multiplies them
//   while the bytes read per moment keep growing (up to kMaxReaders);
// - Ssd runs kMaxReaders from the start;
// - Hdd runs one reader, in the order given (the caller's physical order);
// - Plain, for drives on an external bus, keeps that first count and never grows.
// A run hands out items one at a time, so every reader stays busy to the end; a stop is up
// to the work, which the items are handed to until it says stop.
class ReadPool
{
public:
    enum Mode : int { Auto = 0, Ssd = 1, Hdd = 2, Plain = 3 };
    static constexpr int kMaxReaders = 64;

    ReadPool() = default;
    ReadPool(const ReadPool &) = delete;
    ReadPool &operator=(const ReadPool &) = delete;

    void setMode(Mode mode) { m_mode = mode; }
    Mode mode() const { return m_mode; }
    // A fixed number of readers whatever the mode (0: by the mode), for tests and
    // benchmarks.
    void setFixedReaders(int readers) { m_fixed = readers; }

    // Calls work(i) for every i below count on the readers and returns when all are done.
    // bytesRead is what the work adds to as it reads: the measure by which Auto decides.
    // stop, when set, makes the readers take no further item.
    void run(size_t count, const std::function<void(size_t)> &work,
        const std::atomic<qint64> &bytesRead, const std::atomic<qint64> *stop = nullptr);
    // The readers the last run ended with.
    int readers() const { return m_readers.load(); }

private:
    int startReaders() const;

    Mode m_mode = Auto;
    int m_fixed = 0;
    std::atomic<int> m_readers {0};
};
