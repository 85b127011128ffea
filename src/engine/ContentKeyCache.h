// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/ContentKeyCacheFile.h"

#include <functional>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QtGlobal>

// Content keys of files read by earlier scans, kept in an SQLite file in the data folder so
// that a second scan of an unchanged tree reads nothing again. An entry stands only for the
// exact file it was computed from: same device and inode, same size, and the same
// modification and change times to the nanosecond (the change time cannot be set back, so
// an edit hidden behind a restored modification time still misses), and only for a file
// that had settled (FileStamp::settled) when it was read. Every row carries its own check
// digest; a file that is no cache of ours, has a newer layout, or fails a check is renamed
// aside and a new one started: a cache can only spare reads, never decide a group. Several
// processes may use one file at once (write-ahead log, busy wait of at most kBusyBudgetMs).
// One object belongs to one thread. The file itself (opening, layout, lock waits, setting
// aside) is its ContentKeyCacheFile's; this class reads and writes the entries.
class ContentKeyCache
{
public:
    // How a scan uses the cache.
    struct Options
    {
        bool enabled = false;
        // Empty: defaultPath().
        QString path;
    };

    struct Stamp
    {
        quint64 device = 0;
        quint64 inode = 0;
        qint64 size = -1;
        qint64 modifiedNs = 0;
        qint64 changedNs = 0;

        bool operator==(const Stamp &other) const
        {
            return device == other.device && inode == other.inode && size == other.size
                && modifiedNs == other.modifiedNs && changedNs == other.changedNs;
        }
    };

    // One file of a batch. lookup() fills the keys of a matching entry; store() writes the
    // keys the entry has.
    struct Entry
    {
        Stamp stamp;
        quint64 sampledKey = 0;
        quint64 fullKey = 0;
        bool hasSampled = false;
        bool hasFull = false;
        // Set by lookup(): an entry with this exact stamp was found, last seen on seenDay.
        bool found = false;
        qint32 seenDay = 0;
        // Set by the caller when it computed a key the cache did not give.
        bool fresh = false;
    };

    // The similar-picture stage's measure of one picture file (its perceptual hash or its
    // histogram as the raw bytes of a rows x cols matrix of OpenCV type `type`), under the
    // same stamp rules as the keys, one entry per file and measure.
    struct Picture
    {
        Stamp stamp;
        int measure = 0;
        qint32 width = 0;
        qint32 height = 0;
        qint32 rows = 0;
        qint32 cols = 0;
        qint32 type = 0;
        QByteArray data;
        // Set by lookupPictures(): an entry with this exact stamp and measure was found.
        bool found = false;
        qint32 seenDay = 0;
        // Set by the caller when it measured the picture itself, from the file it stamped.
        bool fresh = false;
    };

    // The waits for another's lock, summed over an object's life, end here; the scan then
    // goes on without the cache, since the other may hold the lock for hours.
    static constexpr int kBusyBudgetMs = 2000;
    // After one object gave up, the others of this process do not wait for this long: the
    // several users of the cache in one scan share one wait.
    static constexpr int kBusyQuietMs = 60000;
    // Entries of files not seen by any scan for this long are dropped.
    static constexpr int kKeepDays = 90;

    static QString defaultPath();
    // Where a rejected cache file is moved: beside it, under this suffix.
    static QString setAsidePath(const QString &path);
    // The cache file with its write-ahead log, in bytes.
    static qint64 sizeOnDisk(const QString &path);
    // Empties the cache and gives its room back, through the same locks as every scan;
    // false when it could not (a scan of another process kept it busy).
    static bool clear(const QString &path);
    // How often an object of this process gave the cache up for another's lock.
    static int busyGiveUps();

    explicit ContentKeyCache(const QString &path);
    ~ContentKeyCache();
    ContentKeyCache(const ContentKeyCache &) = delete;
    ContentKeyCache &operator=(const ContentKeyCache &) = delete;

    bool isOpen() const { return m_file.isOpen(); }
    // Whether this object had to set a cache file aside.
    bool setAside() const { return m_file.setAside(); }

    // Fills every entry whose exact stamp is stored (and has settled by now), in one read
    // transaction. A damaged cache is set aside and leaves every entry unfound.
    void lookup(std::vector<Entry> &entries);
    // The same for count files whose stamps stampOf(i) gives (size -1: not looked up),
    // without an entry per file: found(i, entry) is called for each stored one, from two
    // threads at once when the files are many (each i once). False when
    // the cache turned out damaged (and was set aside): then the caller forgets every
    // entry it was given by this call.
    bool lookup(size_t count, const std::function<Stamp(size_t)> &stampOf,
        const std::function<void(size_t, const Entry &)> &found);
    // Fills every picture whose exact stamp and measure are stored, in one read
    // transaction; a damaged cache is set aside and leaves every picture unfound.
    void lookupPictures(std::vector<Picture> &pictures);
    // Writes the fresh pictures (unless not settled at readNs, the time their stamps were
    // taken) and marks found ones as seen today, in one write transaction.
    void storePictures(const std::vector<Picture> &pictures, qint64 readNs);
    // Marks the stored entries of these files as seen today (an entry not seen for
    // kKeepDays is dropped), in one write transaction, and drops the old ones.
    void touch(size_t count, const std::function<Stamp(size_t)> &stampOf);
    // Writes the entries with a key (unless not settled at readNs, the time their reading
    // began) and marks found ones as seen today, in one write
    // transaction; then drops entries not seen for kKeepDays. Failure leaves the cache as
    // it was.
    void store(const std::vector<Entry> &entries, qint64 readNs);

private:
    sqlite3 *db() const { return m_file.db(); }
    bool usable() { return m_file.usable(); }
    bool exec(const char *sql) { return m_file.exec(sql); }
    void reject(const char *why) { m_file.reject(why); }
    static std::vector<quint32> tableOrder(
        size_t count, const std::function<Stamp(size_t)> &stampOf);
    // The two ways lookup() reads a batch: one pass over the table in key order (split
    // between two threads when large), or a search per file. Each returns the last
    // SQLite result, SQLITE_CORRUPT for a row failing its check.
    int passOverTable(const std::vector<quint32> &order, qint64 readNs,
        const std::function<Stamp(size_t)> &stampOf,
        const std::function<void(size_t, const Entry &)> &found);
    int searchEach(const std::vector<quint32> &order, qint64 readNs,
        const std::function<Stamp(size_t)> &stampOf,
        const std::function<void(size_t, const Entry &)> &found);
    // Drops the entries not seen for kKeepDays, inside the caller's write transaction.
    bool prune(qint32 day);

    ContentKeyCacheFile m_file;
};
