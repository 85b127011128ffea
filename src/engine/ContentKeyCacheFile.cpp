// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ContentKeyCacheFile.h"

#include "app/LogTags.h"
#include "app/TLogger.h"
#include "engine/ContentKeyCache.h"

#include <algorithm>
#include <atomic>
#include <limits>
#include <sqlite3.h>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

namespace {

// The log tag of this file.
const QString &kTag = LogTags::keyCache;

constexpr int kBusyBudgetMs = ContentKeyCache::kBusyBudgetMs;
constexpr int kBusyQuietMs = ContentKeyCache::kBusyQuietMs;

// "VKC1" in the file header: a file without it was not written by this program.
constexpr int kApplicationId = 0x564B4331;
// 1: content keys only; 2: picture measures beside them; 3: the same, stored only from
// files that had settled when read. The rows of 1 and 2 may hold keys of files a mapped
// write changed behind their times: they are dropped, the tables kept.
constexpr int kSchemaVersion = 3;
const char *const kPictureTable
    = "CREATE TABLE pictures(device INTEGER NOT NULL, inode INTEGER NOT NULL, measure INTEGER "
      "NOT NULL, size INTEGER NOT NULL, mtime INTEGER NOT NULL, ctime INTEGER NOT NULL, width "
      "INTEGER NOT NULL, height INTEGER NOT NULL, rows INTEGER NOT NULL, cols INTEGER NOT NULL, "
      "type INTEGER NOT NULL, data BLOB NOT NULL, seen INTEGER NOT NULL, checksum INTEGER NOT "
      "NULL, PRIMARY KEY(device, inode, measure))";
// Short, so that a lock let go is taken soon after.
constexpr int kBusyStepMs = 10;
std::atomic<int> busyGiveUpCount {0};
std::atomic<qint64> lastBusyGiveUpMs {std::numeric_limits<qint64>::min() / 2};
const char *const kSuffixes[] = {"", "-wal", "-shm"};

// (device, inode) of the file at path; zeros when there is none or it cannot be told.
std::pair<quint64, quint64> identityOf(const QString &path)
{
#ifdef Q_OS_UNIX
    struct stat info
    {
    };
    if (::stat(QFile::encodeName(path).constData(), &info) == 0)
        return {quint64(info.st_dev), quint64(info.st_ino)};
#else
    Q_UNUSED(path)
#endif
    return {0, 0};
}

} // namespace

ContentKeyCacheFile::ContentKeyCacheFile(const QString &path) : m_path(path)
{
    open();
}

ContentKeyCacheFile::~ContentKeyCacheFile()
{
    close();
}

int ContentKeyCacheFile::busyGiveUps()
{
    return busyGiveUpCount.load();
}

bool ContentKeyCacheFile::isDamage(int code)
{
    const int primary = code & 0xFF;
    return primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB || primary == SQLITE_FORMAT;
}

int ContentKeyCacheFile::busyLeftMs() const
{
    return std::max(0, kBusyBudgetMs - m_busyWaitedMs);
}

bool ContentKeyCacheFile::exec(const char *sql)
{
    const int code = sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr);
    if (code == SQLITE_OK)
        return true;
    splog_d(kTag
        + QStringLiteral("%1: %2").arg(
            QLatin1String(sql), QString::fromUtf8(sqlite3_errmsg(m_db))));
    if (isDamage(code))
        reject("damaged");
    return false;
}

int ContentKeyCacheFile::onBusy(void *self, int)
{
    return static_cast<ContentKeyCacheFile *>(self)->waitForLock() ? 1 : 0;
}

bool ContentKeyCacheFile::waitForLock()
{
    if (m_busyWaitedMs < kBusyBudgetMs) {
        QElapsedTimer slept;
        slept.start();
        QThread::msleep(std::min(kBusyStepMs, kBusyBudgetMs - m_busyWaitedMs));
        m_busyWaitedMs += std::max(1, int(slept.elapsed()));
        return true;
    }
    if (!std::exchange(m_busyGivenUp, true)) {
        busyGiveUpCount.fetch_add(1);
        lastBusyGiveUpMs.store(QDateTime::currentMSecsSinceEpoch());
        splog_d(kTag
            + QStringLiteral("%1 stayed locked for %2 ms (by another scan or "
                             "program); this scan goes on without it.")
                  .arg(m_path)
                  .arg(kBusyBudgetMs));
    }
    return false;
}

bool ContentKeyCacheFile::usable()
{
    // Given up inside a call of SQLite's, closed at the next one.
    if (m_busyGivenUp && m_db)
        close();
    return m_db != nullptr;
}

void ContentKeyCacheFile::close()
{
    sqlite3_finalize(m_select);
    m_select = nullptr;
    sqlite3_close_v2(m_db);
    m_db = nullptr;
}

bool ContentKeyCacheFile::open()
{
    ++m_generation;
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    if (sqlite3_open_v2(QFile::encodeName(m_path).constData(), &m_db,
            SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr)
        != SQLITE_OK) {
        splog_d(kTag + QStringLiteral("cannot open %1").arg(m_path));
        close();
        return false;
    }
    m_identity = identityOf(m_path);
    sqlite3_extended_result_codes(m_db, 1);
    if (QDateTime::currentMSecsSinceEpoch() - lastBusyGiveUpMs.load() < kBusyQuietMs)
        m_busyWaitedMs = kBusyBudgetMs;
    sqlite3_busy_handler(m_db, &ContentKeyCacheFile::onBusy, this);
    // A cache lost with the last commit before a power cut costs only reads: the log is
    // not flushed at every commit.
    sqlite3_exec(m_db, "PRAGMA synchronous=NORMAL", nullptr, nullptr, nullptr);
    return prepareSchema();
}

bool ContentKeyCacheFile::prepareSchema()
{
    const auto pragma = [this](const char *sql, int &value) {
        sqlite3_stmt *statement = nullptr;
        int result = sqlite3_prepare_v2(m_db, sql, -1, &statement, nullptr);
        if (result == SQLITE_OK) {
            result = sqlite3_step(statement);
            value = result == SQLITE_ROW ? sqlite3_column_int(statement, 0) : 0;
            result = result == SQLITE_ROW ? SQLITE_OK : result;
        }
        sqlite3_finalize(statement);
        return result;
    };
    // Read and, for a new file, written in one write transaction: two processes creating
    // the cache at once must not both lay out its tables. The file is still in whatever
    // journal mode it came in, so one that is refused is set aside as it was found.
    const int generation = m_generation;
    if (!exec("BEGIN IMMEDIATE")) {
        // Busy past the wait: this scan does without. Damaged: exec() started anew.
        if (generation == m_generation)
            close();
        return m_db != nullptr;
    }
    int id = 0;
    int version = 0;
    int tables = 0;
    int pictureTables = 0;
    int code = pragma("PRAGMA application_id", id);
    if (code == SQLITE_OK)
        code = pragma("PRAGMA user_version", version);
    if (code == SQLITE_OK)
        code = pragma("SELECT count(*) FROM sqlite_master", tables);
    if (code == SQLITE_OK)
        code = pragma("SELECT count(*) FROM sqlite_master WHERE name = 'pictures'", pictureTables);
    if (code != SQLITE_OK) {
        exec("ROLLBACK");
        // Only damage sets the file aside; a passing read error leaves it for the next scan.
        if (m_db && isDamage(code))
            reject("damaged");
        else
            close();
        return m_db != nullptr;
    }
    const QByteArray setVersion = "PRAGMA user_version=" + QByteArray::number(kSchemaVersion);
    const char *refusal = nullptr;
    bool laidOut = true;
    if (id == 0 && version == 0 && tables == 0) {
        laidOut = exec("CREATE TABLE keys(device INTEGER NOT NULL, inode INTEGER NOT "
                       "NULL, size INTEGER NOT NULL, mtime INTEGER NOT NULL, ctime "
                       "INTEGER NOT NULL, sampled INTEGER NOT NULL, full INTEGER NOT "
                       "NULL, flags INTEGER NOT NULL, seen INTEGER NOT NULL, "
                       "checksum INTEGER NOT NULL, PRIMARY KEY(device, inode)) "
                       "WITHOUT ROWID")
            && exec(kPictureTable)
            && exec(QByteArray("PRAGMA application_id=" + QByteArray::number(kApplicationId))
                        .constData())
            && exec(setVersion.constData()) && exec("COMMIT");
    } else if (id != kApplicationId) {
        refusal = "not a cache of this program";
    } else if (version > kSchemaVersion) {
        refusal = "written by a newer version";
    } else if (version < 1 || (version == 1 && pictureTables != 0)
        || (version == 2 && pictureTables == 0)) {
        // Never written so by any version: to be extended it would have to be guessed at.
        refusal = "of an unknown layout";
    } else if (version < kSchemaVersion) {
        splog_d(kTag
            + QStringLiteral("%1 is of layout %2; its entries are dropped.")
                  .arg(m_path)
                  .arg(version));
        laidOut = (version > 1 || exec(kPictureTable)) && exec("DELETE FROM keys")
            && exec("DELETE FROM pictures") && exec(setVersion.constData()) && exec("COMMIT");
    } else {
        exec("ROLLBACK");
    }
    if (refusal) {
        exec("ROLLBACK");
        reject(refusal);
        return m_db != nullptr;
    }
    if (!laidOut) {
        if (m_db)
            exec("ROLLBACK");
        close();
        return false;
    }
    if (!m_db)
        return false;
    // The switch to the write-ahead log takes an exclusive lock without waiting for a
    // busy one, so a second process starting at the same moment tries again.
    code = sqlite3_exec(m_db, "PRAGMA journal_mode=WAL", nullptr, nullptr, nullptr);
    while ((code & 0xFF) == SQLITE_BUSY && waitForLock())
        code = sqlite3_exec(m_db, "PRAGMA journal_mode=WAL", nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) {
        if (isDamage(code))
            reject("damaged");
        else
            close();
        return m_db != nullptr;
    }
    code = sqlite3_prepare_v3(m_db,
        "SELECT size, mtime, ctime, sampled, full, flags, seen, checksum FROM keys WHERE "
        "device = ? AND inode = ?",
        -1, SQLITE_PREPARE_PERSISTENT, &m_select, nullptr);
    if (code != SQLITE_OK) {
        reject("no key table");
        return m_db != nullptr;
    }
    return true;
}

void ContentKeyCacheFile::reject(const char *why)
{
    close();
    if (m_setAside)
        return; // A file just created and still refused: do without a cache this time.
    m_setAside = true;
    // Another user of the cache (a second connection of this scan, another program) that
    // met the same fault may have set the file aside and started a new one already: the
    // new one must not go aside in place of the original.
    const bool replaced
        = m_identity.second != 0 && QFileInfo::exists(m_path) && identityOf(m_path) != m_identity;
    if (replaced) {
        splog_d(kTag
            + QStringLiteral("%1 is %2, and was set aside already.")
                  .arg(m_path, QLatin1String(why)));
    } else {
        splog_d(kTag
            + QStringLiteral("%1 is %2; set aside and started anew.")
                  .arg(m_path, QLatin1String(why)));
        const QString aside = ContentKeyCache::setAsidePath(m_path);
        for (const char *suffix : kSuffixes) {
            const QString from = m_path + QLatin1String(suffix);
            const QString to = aside + QLatin1String(suffix);
            QFile::remove(to);
            if (QFileInfo::exists(from) && !QFile::rename(from, to))
                QFile::remove(from);
        }
    }
    // A file that can neither be moved nor removed is never opened again by this object.
    if (replaced || !QFileInfo::exists(m_path))
        open();
}
