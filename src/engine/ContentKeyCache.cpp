// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ContentKeyCache.h"

#include "app/DataDirectory.h"
#include "app/LogTags.h"
#include "app/TLogger.h"
#include "engine/FileStamp.h"

#include <algorithm>
#include <chrono>
#include <sqlite3.h>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#define XXH_STATIC_LINKING_ONLY
#include <xxhash.h>

namespace {

// The log tag of this file.
const QString &kTag = LogTags::keyCache;

constexpr int kSampledFlag = 1;
constexpr int kFullFlag = 2;

qint32 today()
{
    return qint32(QDateTime::currentSecsSinceEpoch() / 86400);
}

// Every field that decides what a row says; a row whose digest differs was damaged.
qint64 rowCheck(const ContentKeyCache::Stamp &stamp, quint64 sampled, quint64 full, int flags)
{
    const quint64 fields[] = {stamp.device, stamp.inode, quint64(stamp.size),
        quint64(stamp.modifiedNs), quint64(stamp.changedNs), sampled, full, quint64(flags)};
    return qint64(XXH3_64bits(fields, sizeof fields));
}

qint64 nowNs()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
        std::chrono::system_clock::now().time_since_epoch())
        .count();
}

} // namespace

QString ContentKeyCache::defaultPath()
{
    return DataDirectory::base() + QStringLiteral("content-keys.sqlite");
}

QString ContentKeyCache::setAsidePath(const QString &path)
{
    return path + QStringLiteral(".set-aside");
}

qint64 ContentKeyCache::sizeOnDisk(const QString &path)
{
    qint64 total = 0;
    for (const char *suffix : {"", "-wal"})
        total += QFileInfo(path + QLatin1String(suffix)).size();
    return total;
}

int ContentKeyCache::busyGiveUps()
{
    return ContentKeyCacheFile::busyGiveUps();
}

bool ContentKeyCache::clear(const QString &path)
{
    if (!QFileInfo::exists(path))
        return true;
    ContentKeyCache cache(path);
    if (!cache.isOpen() || !cache.exec("DELETE FROM keys") || !cache.exec("DELETE FROM pictures"))
        return false;
    // The file shrinks only when no other process reads it at the moment; the keys are
    // gone in any case.
    cache.exec("PRAGMA wal_checkpoint(TRUNCATE)");
    cache.exec("VACUUM");
    return true;
}

ContentKeyCache::ContentKeyCache(const QString &path) : m_file(path) { }

ContentKeyCache::~ContentKeyCache() = default;

// Entries in the table's own order (signed, as SQLite compares), so that look-ups and
// writes walk the tree forwards instead of jumping about it.
std::vector<quint32> ContentKeyCache::tableOrder(
    size_t count, const std::function<Stamp(size_t)> &stampOf)
{
    struct Key
    {
        qint64 device;
        qint64 inode;
        quint32 index;
    };
    std::vector<Key> keys;
    keys.reserve(count);
    for (quint32 i = 0; i < quint32(count); ++i) {
        const Stamp stamp = stampOf(i);
        if (stamp.size >= 0)
            keys.push_back(Key {qint64(stamp.device), qint64(stamp.inode), i});
    }
    std::sort(keys.begin(), keys.end(), [](const Key &x, const Key &y) {
        return x.device != y.device ? x.device < y.device : x.inode < y.inode;
    });
    std::vector<quint32> order;
    order.reserve(keys.size());
    for (const Key &key : keys)
        order.push_back(key.index);
    return order;
}

void ContentKeyCache::lookup(std::vector<Entry> &entries)
{
    for (Entry &entry : entries)
        entry.found = false;
    const bool sound = lookup(
        entries.size(), [&entries](size_t i) { return entries[i].stamp; },
        [&entries](size_t i, const Entry &found) { entries[i] = found; });
    if (!sound)
        for (Entry &entry : entries)
            entry = Entry {entry.stamp};
}

namespace {

// Merges one stretch of a key-ordered pass over the table (statement: the row columns of
// the select below) with the files order[begin, end) in the same order; calls found for
// each stored one that has settled at readNs. The step's last result, or SQLITE_CORRUPT for a row
// failing its check.
int mergeRows(sqlite3_stmt *statement, const std::vector<quint32> &order, size_t begin, size_t end,
    qint64 readNs, const std::function<ContentKeyCache::Stamp(size_t)> &stampOf,
    const std::function<void(size_t, const ContentKeyCache::Entry &)> &found)
{
    size_t next = begin;
    if (next >= end)
        return SQLITE_DONE;
    ContentKeyCache::Stamp current = stampOf(order[next]);
    int code = SQLITE_DONE;
    while (next < end && (code = sqlite3_step(statement)) == SQLITE_ROW) {
        const qint64 device = sqlite3_column_int64(statement, 8);
        const qint64 inode = sqlite3_column_int64(statement, 9);
        while (qint64(current.device) < device
            || (qint64(current.device) == device && qint64(current.inode) < inode)) {
            if (++next == end)
                return SQLITE_DONE;
            current = stampOf(order[next]);
        }
        if (qint64(current.device) != device || qint64(current.inode) != inode)
            continue;
        ContentKeyCache::Stamp stored = current;
        stored.size = sqlite3_column_int64(statement, 0);
        stored.modifiedNs = sqlite3_column_int64(statement, 1);
        stored.changedNs = sqlite3_column_int64(statement, 2);
        const quint64 sampled = quint64(sqlite3_column_int64(statement, 3));
        const quint64 full = quint64(sqlite3_column_int64(statement, 4));
        const int flags = sqlite3_column_int(statement, 5);
        if (rowCheck(stored, sampled, full, flags) != sqlite3_column_int64(statement, 7))
            return SQLITE_CORRUPT;
        if (stored == current
            && FileStamp::settled(current.modifiedNs, current.changedNs, readNs)) {
            ContentKeyCache::Entry entry {current};
            entry.found = true;
            entry.seenDay = qint32(sqlite3_column_int(statement, 6));
            entry.hasSampled = flags & kSampledFlag;
            entry.sampledKey = entry.hasSampled ? sampled : 0;
            entry.hasFull = flags & kFullFlag;
            entry.fullKey = entry.hasFull ? full : 0;
            found(order[next], entry);
        }
        if (++next == end)
            return SQLITE_DONE;
        current = stampOf(order[next]);
    }
    return code == SQLITE_ROW ? SQLITE_DONE : code;
}

const char *const kScanRows = "SELECT size, mtime, ctime, sampled, full, flags, seen, checksum, "
                              "device, inode FROM keys";

} // namespace

int ContentKeyCache::passOverTable(const std::vector<quint32> &order, qint64 readNs,
    const std::function<Stamp(size_t)> &stampOf,
    const std::function<void(size_t, const Entry &)> &found)
{
    // A large pass is split in two at a file's key, the upper half read on a second
    // connection by another thread (each row is checked on its own, so the two
    // snapshots need not be one).
    constexpr size_t kSplitFrom = 16384;
    const size_t half = order.size() >= kSplitFrom ? order.size() / 2 : order.size();
    int upperCode = SQLITE_DONE;
    QThread *upper = nullptr;
    // Its own connection waits as long as this object may still wait in all.
    const int busyLeftMs = m_file.busyLeftMs();
    if (half < order.size()) {
        const Stamp from = stampOf(order[half]);
        upper = QThread::create([&, from, busyLeftMs] {
            sqlite3 *db = nullptr;
            sqlite3_stmt *statement = nullptr;
            upperCode = sqlite3_open_v2(QFile::encodeName(m_file.path()).constData(), &db,
                SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
            if (upperCode == SQLITE_OK) {
                sqlite3_extended_result_codes(db, 1);
                sqlite3_busy_timeout(db, busyLeftMs);
                upperCode = sqlite3_prepare_v2(db,
                    (QByteArray(kScanRows)
                        + " WHERE (device, inode) >= (?, ?) ORDER BY device, inode")
                        .constData(),
                    -1, &statement, nullptr);
            }
            if (upperCode == SQLITE_OK) {
                sqlite3_bind_int64(statement, 1, sqlite3_int64(from.device));
                sqlite3_bind_int64(statement, 2, sqlite3_int64(from.inode));
                upperCode = mergeRows(statement, order, half, order.size(), readNs, stampOf, found);
            }
            sqlite3_finalize(statement);
            sqlite3_close_v2(db);
        });
        upper->start();
    }
    sqlite3_stmt *statement = nullptr;
    int code = sqlite3_prepare_v2(db(),
        (QByteArray(kScanRows) + " ORDER BY device, inode").constData(), -1, &statement, nullptr);
    if (code == SQLITE_OK)
        code = mergeRows(statement, order, 0, half, readNs, stampOf, found);
    sqlite3_finalize(statement);
    if (upper) {
        upper->wait();
        delete upper;
        // A second connection that could not read leaves its half unfound; damage it
        // saw counts as damage.
        if (ContentKeyCacheFile::isDamage(upperCode))
            code = upperCode;
    }
    return code;
}

int ContentKeyCache::searchEach(const std::vector<quint32> &order, qint64 readNs,
    const std::function<Stamp(size_t)> &stampOf,
    const std::function<void(size_t, const Entry &)> &found)
{
    sqlite3_stmt *const select = m_file.keySelect();
    int code = SQLITE_DONE;
    const auto search = [&](size_t at) {
        const Stamp stamp = stampOf(order[at]);
        sqlite3_bind_int64(select, 1, sqlite3_int64(stamp.device));
        sqlite3_bind_int64(select, 2, sqlite3_int64(stamp.inode));
    };
    for (size_t at = 0; at < order.size(); ++at) {
        search(at);
        code = sqlite3_step(select);
        if (code == SQLITE_ROW) {
            const Stamp current = stampOf(order[at]);
            Stamp stored = current;
            stored.size = sqlite3_column_int64(select, 0);
            stored.modifiedNs = sqlite3_column_int64(select, 1);
            stored.changedNs = sqlite3_column_int64(select, 2);
            const quint64 sampled = quint64(sqlite3_column_int64(select, 3));
            const quint64 full = quint64(sqlite3_column_int64(select, 4));
            const int flags = sqlite3_column_int(select, 5);
            if (rowCheck(stored, sampled, full, flags) != sqlite3_column_int64(select, 7)) {
                code = SQLITE_CORRUPT;
            } else if (stored == current
                && FileStamp::settled(current.modifiedNs, current.changedNs, readNs)) {
                Entry entry {current};
                entry.found = true;
                entry.seenDay = qint32(sqlite3_column_int(select, 6));
                entry.hasSampled = flags & kSampledFlag;
                entry.sampledKey = entry.hasSampled ? sampled : 0;
                entry.hasFull = flags & kFullFlag;
                entry.fullKey = entry.hasFull ? full : 0;
                found(order[at], entry);
            }
        }
        sqlite3_reset(select);
        if (code != SQLITE_ROW && code != SQLITE_DONE)
            break;
    }
    if (code == SQLITE_ROW)
        code = SQLITE_DONE;
    return code;
}

bool ContentKeyCache::lookup(size_t count, const std::function<Stamp(size_t)> &stampOf,
    const std::function<void(size_t, const Entry &)> &found)
{
    if (!usable() || count == 0)
        return true;
    const qint64 readNs = nowNs();
    const std::vector<quint32> order = tableOrder(count, stampOf);
    // One snapshot for the whole batch: no lock is taken per row.
    if (order.empty() || !exec("BEGIN"))
        return true; // Nothing given.
    // When the batch asks for a good part of the table, one pass over the table in key
    // order costs less than a search per file.
    int pages = 0;
    {
        sqlite3_stmt *pageCount = nullptr;
        if (sqlite3_prepare_v2(db(), "PRAGMA page_count", -1, &pageCount, nullptr) == SQLITE_OK
            && sqlite3_step(pageCount) == SQLITE_ROW)
            pages = sqlite3_column_int(pageCount, 0);
        sqlite3_finalize(pageCount);
    }
    constexpr qint64 kRowsPerPage = 50;
    int code = SQLITE_DONE;
    if (qint64(pages) * kRowsPerPage <= qint64(order.size()) * 4) {
        code = passOverTable(order, readNs, stampOf, found);
    } else {
        code = searchEach(order, readNs, stampOf, found);
    }
    const bool damaged = ContentKeyCacheFile::isDamage(code);
    if (code != SQLITE_DONE && code != SQLITE_OK)
        splog_d(kTag
            + QStringLiteral("look-up failed: %1")
                  .arg(damaged ? QStringLiteral("damaged row")
                               : QString::fromUtf8(sqlite3_errmsg(db()))));
    exec("COMMIT");
    if (damaged || !db()) {
        if (db())
            reject("damaged");
        return false;
    }
    return true;
}

bool ContentKeyCache::prune(qint32 day)
{
    // One pass over the table (no index on the day: it would cost every write more).
    const QByteArray sql
        = QByteArray("DELETE FROM keys WHERE seen < ") + QByteArray::number(day - kKeepDays);
    const QByteArray pictures
        = QByteArray("DELETE FROM pictures WHERE seen < ") + QByteArray::number(day - kKeepDays);
    return exec(sql.constData()) && exec(pictures.constData());
}

void ContentKeyCache::touch(size_t count, const std::function<Stamp(size_t)> &stampOf)
{
    if (!usable() || count == 0)
        return;
    const qint32 day = today();
    const std::vector<quint32> order = tableOrder(count, stampOf);
    sqlite3_stmt *update = nullptr;
    // The day is no part of a row's check digest: only it changes here.
    if (sqlite3_prepare_v2(
            db(), "UPDATE keys SET seen = ? WHERE device = ? AND inode = ?", -1, &update, nullptr)
        != SQLITE_OK)
        return;
    if (!exec("BEGIN IMMEDIATE")) {
        sqlite3_finalize(update);
        return;
    }
    bool failed = false;
    for (quint32 index : order) {
        const Stamp stamp = stampOf(index);
        sqlite3_bind_int(update, 1, day);
        sqlite3_bind_int64(update, 2, sqlite3_int64(stamp.device));
        sqlite3_bind_int64(update, 3, sqlite3_int64(stamp.inode));
        const int code = sqlite3_step(update);
        sqlite3_reset(update);
        if (code != SQLITE_DONE) {
            failed = true;
            break;
        }
    }
    sqlite3_finalize(update);
    if (failed || !prune(day)) {
        if (db())
            exec("ROLLBACK");
        return;
    }
    exec("COMMIT");
}

void ContentKeyCache::store(const std::vector<Entry> &entries, qint64 readNs)
{
    if (!usable())
        return;
    const qint32 day = today();
    std::vector<quint32> rows
        = tableOrder(entries.size(), [&entries](size_t i) { return entries[i].stamp; });
    rows.erase(std::remove_if(rows.begin(), rows.end(),
                   [&](quint32 index) {
                       const Entry &entry = entries[index];
                       return !(entry.hasSampled || entry.hasFull)
                           || (!entry.fresh && (!entry.found || entry.seenDay >= day))
                           || !FileStamp::settled(
                               entry.stamp.modifiedNs, entry.stamp.changedNs, readNs);
                   }),
        rows.end());
    // Nothing new: a scan of an unchanged tree writes nothing (and the pruning ran the day
    // its entries were written).
    if (rows.empty())
        return;
    sqlite3_stmt *insert = nullptr;
    if (sqlite3_prepare_v2(db(),
            "INSERT OR REPLACE INTO keys(device, inode, size, mtime, ctime, sampled, full, "
            "flags, seen, checksum) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
            -1, &insert, nullptr)
        != SQLITE_OK)
        return;
    // A write lock from the start: a read that turns into a write cannot wait for it.
    if (!exec("BEGIN IMMEDIATE")) {
        sqlite3_finalize(insert);
        return;
    }
    bool failed = false;
    bool damaged = false;
    for (quint32 index : rows) {
        const Entry &entry = entries[index];
        const int flags = (entry.hasSampled ? kSampledFlag : 0) | (entry.hasFull ? kFullFlag : 0);
        const quint64 sampled = entry.hasSampled ? entry.sampledKey : 0;
        const quint64 full = entry.hasFull ? entry.fullKey : 0;
        sqlite3_bind_int64(insert, 1, sqlite3_int64(entry.stamp.device));
        sqlite3_bind_int64(insert, 2, sqlite3_int64(entry.stamp.inode));
        sqlite3_bind_int64(insert, 3, entry.stamp.size);
        sqlite3_bind_int64(insert, 4, entry.stamp.modifiedNs);
        sqlite3_bind_int64(insert, 5, entry.stamp.changedNs);
        sqlite3_bind_int64(insert, 6, sqlite3_int64(sampled));
        sqlite3_bind_int64(insert, 7, sqlite3_int64(full));
        sqlite3_bind_int(insert, 8, flags);
        sqlite3_bind_int(insert, 9, day);
        sqlite3_bind_int64(insert, 10, rowCheck(entry.stamp, sampled, full, flags));
        const int code = sqlite3_step(insert);
        sqlite3_reset(insert);
        if (code != SQLITE_DONE) {
            splog_d(kTag
                + QStringLiteral("store failed: %1").arg(QString::fromUtf8(sqlite3_errmsg(db()))));
            failed = true;
            damaged = ContentKeyCacheFile::isDamage(code);
            break;
        }
    }
    sqlite3_finalize(insert);
    if (damaged) {
        exec("ROLLBACK");
        reject("damaged");
        return;
    }
    if (failed || !prune(day)) {
        if (db())
            exec("ROLLBACK");
        return;
    }
    exec("COMMIT");
}

namespace {

qint64 pictureCheck(const ContentKeyCache::Picture &picture)
{
    const quint64 fields[]
        = {picture.stamp.device, picture.stamp.inode, quint64(picture.stamp.size),
            quint64(picture.stamp.modifiedNs), quint64(picture.stamp.changedNs),
            quint64(picture.measure), quint64(picture.width), quint64(picture.height),
            quint64(picture.rows), quint64(picture.cols), quint64(picture.type)};
    return qint64(XXH3_64bits_withSeed(
        picture.data.constData(), size_t(picture.data.size()), XXH3_64bits(fields, sizeof fields)));
}

} // namespace

void ContentKeyCache::lookupPictures(std::vector<Picture> &pictures)
{
    for (Picture &picture : pictures)
        picture.found = false;
    if (!usable() || pictures.empty())
        return;
    const qint64 readNs = nowNs();
    sqlite3_stmt *select = nullptr;
    if (sqlite3_prepare_v2(db(),
            "SELECT size, mtime, ctime, width, height, rows, cols, type, data, seen, checksum "
            "FROM pictures WHERE device = ? AND inode = ? AND measure = ?",
            -1, &select, nullptr)
        != SQLITE_OK)
        return;
    const std::vector<quint32> order
        = tableOrder(pictures.size(), [&pictures](size_t i) { return pictures[i].stamp; });
    if (!exec("BEGIN")) {
        sqlite3_finalize(select);
        return;
    }
    bool damaged = false;
    int code = SQLITE_DONE;
    for (quint32 index : order) {
        Picture &picture = pictures[index];
        sqlite3_bind_int64(select, 1, sqlite3_int64(picture.stamp.device));
        sqlite3_bind_int64(select, 2, sqlite3_int64(picture.stamp.inode));
        sqlite3_bind_int(select, 3, picture.measure);
        code = sqlite3_step(select);
        if (code == SQLITE_ROW) {
            Picture stored = picture;
            stored.stamp.size = sqlite3_column_int64(select, 0);
            stored.stamp.modifiedNs = sqlite3_column_int64(select, 1);
            stored.stamp.changedNs = sqlite3_column_int64(select, 2);
            stored.width = sqlite3_column_int(select, 3);
            stored.height = sqlite3_column_int(select, 4);
            stored.rows = sqlite3_column_int(select, 5);
            stored.cols = sqlite3_column_int(select, 6);
            stored.type = sqlite3_column_int(select, 7);
            stored.data = QByteArray(static_cast<const char *>(sqlite3_column_blob(select, 8)),
                sqlite3_column_bytes(select, 8));
            stored.seenDay = sqlite3_column_int(select, 9);
            if (pictureCheck(stored) != sqlite3_column_int64(select, 10)) {
                damaged = true;
            } else if (stored.stamp == picture.stamp
                && FileStamp::settled(picture.stamp.modifiedNs, picture.stamp.changedNs, readNs)) {
                picture = stored;
                picture.found = true;
            }
            code = SQLITE_DONE;
        }
        sqlite3_reset(select);
        if (damaged || code != SQLITE_DONE)
            break;
    }
    sqlite3_finalize(select);
    if (code != SQLITE_DONE) {
        damaged = damaged || ContentKeyCacheFile::isDamage(code);
        splog_d(kTag
            + QStringLiteral("picture look-up failed: %1")
                  .arg(QString::fromUtf8(sqlite3_errmsg(db()))));
    }
    exec("COMMIT");
    if (damaged || !db()) {
        for (Picture &picture : pictures) {
            picture.found = false;
            picture.data.clear();
        }
        if (db())
            reject("damaged");
    }
}

void ContentKeyCache::storePictures(const std::vector<Picture> &pictures, qint64 readNs)
{
    if (!usable())
        return;
    const qint32 day = today();
    std::vector<quint32> rows
        = tableOrder(pictures.size(), [&pictures](size_t i) { return pictures[i].stamp; });
    rows.erase(std::remove_if(rows.begin(), rows.end(),
                   [&](quint32 index) {
                       const Picture &picture = pictures[index];
                       if (picture.found)
                           return picture.seenDay >= day;
                       return !picture.fresh || picture.data.isEmpty()
                           || !FileStamp::settled(
                               picture.stamp.modifiedNs, picture.stamp.changedNs, readNs);
                   }),
        rows.end());
    if (rows.empty())
        return;
    sqlite3_stmt *insert = nullptr;
    sqlite3_stmt *seen = nullptr;
    if (sqlite3_prepare_v2(db(),
            "INSERT OR REPLACE INTO pictures(device, inode, measure, size, mtime, ctime, width, "
            "height, rows, cols, type, data, seen, checksum) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, "
            "?, ?, ?, ?)",
            -1, &insert, nullptr)
            != SQLITE_OK
        || sqlite3_prepare_v2(db(),
               "UPDATE pictures SET seen = ? WHERE device = ? AND inode = ? AND measure = ?", -1,
               &seen, nullptr)
            != SQLITE_OK
        || !exec("BEGIN IMMEDIATE")) {
        sqlite3_finalize(insert);
        sqlite3_finalize(seen);
        return;
    }
    int code = SQLITE_DONE;
    for (quint32 index : rows) {
        const Picture &picture = pictures[index];
        if (picture.found) {
            sqlite3_bind_int(seen, 1, day);
            sqlite3_bind_int64(seen, 2, sqlite3_int64(picture.stamp.device));
            sqlite3_bind_int64(seen, 3, sqlite3_int64(picture.stamp.inode));
            sqlite3_bind_int(seen, 4, picture.measure);
            code = sqlite3_step(seen);
            sqlite3_reset(seen);
        } else {
            sqlite3_bind_int64(insert, 1, sqlite3_int64(picture.stamp.device));
            sqlite3_bind_int64(insert, 2, sqlite3_int64(picture.stamp.inode));
            sqlite3_bind_int(insert, 3, picture.measure);
            sqlite3_bind_int64(insert, 4, picture.stamp.size);
            sqlite3_bind_int64(insert, 5, picture.stamp.modifiedNs);
            sqlite3_bind_int64(insert, 6, picture.stamp.changedNs);
            sqlite3_bind_int(insert, 7, picture.width);
            sqlite3_bind_int(insert, 8, picture.height);
            sqlite3_bind_int(insert, 9, picture.rows);
            sqlite3_bind_int(insert, 10, picture.cols);
            sqlite3_bind_int(insert, 11, picture.type);
            sqlite3_bind_blob(
                insert, 12, picture.data.constData(), int(picture.data.size()), SQLITE_STATIC);
            sqlite3_bind_int(insert, 13, day);
            sqlite3_bind_int64(insert, 14, pictureCheck(picture));
            code = sqlite3_step(insert);
            sqlite3_reset(insert);
        }
        if (code != SQLITE_DONE)
            break;
    }
    sqlite3_finalize(insert);
    sqlite3_finalize(seen);
    if (code != SQLITE_DONE) {
        splog_d(kTag
            + QStringLiteral("picture store failed: %1")
                  .arg(QString::fromUtf8(sqlite3_errmsg(db()))));
        exec("ROLLBACK");
        if (ContentKeyCacheFile::isDamage(code))
            reject("damaged");
        return;
    }
    if (!prune(day)) {
        if (db())
            exec("ROLLBACK");
        return;
    }
    exec("COMMIT");
}
