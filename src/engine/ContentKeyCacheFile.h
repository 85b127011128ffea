// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>

#include <QString>
#include <QtGlobal>

struct sqlite3;
struct sqlite3_stmt;

// The SQLite file behind one ContentKeyCache: opens it, checks or lays out its tables,
// waits a bounded time for another's lock, and sets a file that is no cache of ours, of
// a newer or unknown layout, or damaged aside to start a new one. The reads and writes
// of entries stay with ContentKeyCache. One object belongs to one thread.
class ContentKeyCacheFile
{
public:
    explicit ContentKeyCacheFile(const QString &path);
    ~ContentKeyCacheFile();
    ContentKeyCacheFile(const ContentKeyCacheFile &) = delete;
    ContentKeyCacheFile &operator=(const ContentKeyCacheFile &) = delete;

    // How often an object of this process gave the cache up for another's lock.
    static int busyGiveUps();
    // Whether an SQLite result code says the file is damaged.
    static bool isDamage(int code);

    const QString &path() const { return m_path; }
    sqlite3 *db() const { return m_db; }
    // The look-up of one file's key row (size, mtime, ctime, sampled, full, flags, seen,
    // checksum by device and inode).
    sqlite3_stmt *keySelect() const { return m_select; }
    bool isOpen() const { return m_db != nullptr; }
    // Whether this object had to set a cache file aside.
    bool setAside() const { return m_setAside; }
    // What is left of the lock waits this object may still make.
    int busyLeftMs() const;

    // Closes a connection given up for another's lock; whether one is open.
    bool usable();
    // Runs one statement; logs a failure and sets a damaged file aside.
    bool exec(const char *sql);
    // Renames the file (and its log) aside and starts a new one.
    void reject(const char *why);

private:
    bool open();
    bool prepareSchema();
    void close();
    // SQLite's busy handler: waits a step while the budget lasts.
    static int onBusy(void *self, int count);
    bool waitForLock();

    QString m_path;
    sqlite3 *m_db = nullptr;
    sqlite3_stmt *m_select = nullptr;
    bool m_setAside = false;
    // The file this object opened (device, inode), told from one put in its place since.
    std::pair<quint64, quint64> m_identity;
    int m_busyWaitedMs = 0;
    bool m_busyGivenUp = false;
    // Counts the files opened, so that a caller can tell whether a failure started anew.
    int m_generation = 0;
};
