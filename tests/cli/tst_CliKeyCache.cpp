// SPDX-License-Identifier: GPL-3.0-or-later
#include "CliRunner.h"
#include "ReportGroups.h"
#include "TestEnvironment.h"
#include "engine/ContentKeyCache.h"
#include "engine/FileStamp.h"
#include "engine/ScanTree.h"

#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

// The scans' key cache goes to a temporary data folder, never the user's.
static TestEnvironment environment;

class TestCliKeyCache : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QStringList scanOf(const QString &root) const
    {
        return {"scan", "--json", "--select", "none", "--method", "full", root};
    }

private slots:
    void busyCacheGivenUp_data()
    {
        // Run in the other program, which then holds its lock until its input closes.
        QTest::addColumn<QString>("sql");
        QTest::addColumn<bool>("cacheFirst");
        QTest::newRow("rollback journal, exclusive lock")
            << "PRAGMA journal_mode=DELETE; BEGIN EXCLUSIVE; CREATE TABLE t(x)" << false;
        QTest::newRow("write-ahead log, exclusive locking mode")
            << "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE; SELECT count(*) FROM keys" << true;
        QTest::newRow("write-ahead log, a writer") << "PRAGMA journal_mode=WAL; CREATE TABLE t(x); "
                                                      "BEGIN IMMEDIATE; INSERT INTO t VALUES (1)"
                                                   << false;
    }
    void busyCacheGivenUp()
    {
        QFETCH(QString, sql);
        QFETCH(bool, cacheFirst);
        // Keys of files just written are stored, so that the scan has something to write.
        qputenv(FileStamp::kSettleOverride, "0");
        QTemporaryDir root;
        const QByteArray copy = ScanTree::pattern(30000, 2);
        QByteArray trap = copy;
        trap[20000] = char(trap[20000] ^ 1);
        ScanTree::write(root.path(), "a.bin", copy);
        ScanTree::write(root.path(), "b.bin", copy);
        ScanTree::write(root.path(), "c.bin", trap);
        const QString cache = ContentKeyCache::defaultPath();
        for (const QString &file : {cache, cache + "-wal", cache + "-shm"})
            QFile::remove(file);
        QDir().mkpath(QFileInfo(cache).absolutePath());
        if (cacheFirst)
            QCOMPARE(runCli(scanOf(root.path()) + QStringList {"--no-overlap"}).exitCode, 0);
        const QStringList expected = reportGroups(
            runCli(scanOf(root.path()) + QStringList {"--no-cache"}).out, root.path(), false);
        QCOMPARE(expected, QStringList {"files:a.bin,b.bin"});

        QProcess holder;
        holder.start("python3",
            {"-c",
                "import sqlite3, sys\n"
                "db = sqlite3.connect(sys.argv[1], isolation_level=None)\n"
                "for statement in sys.argv[2].split(';'): db.execute(statement).fetchall()\n"
                "print('locked', flush=True)\n"
                "sys.stdin.read()\n",
                cache, sql});
        QVERIFY2(holder.waitForReadyRead(20000), holder.readAllStandardError());
        QVERIFY(holder.readAllStandardOutput().startsWith("locked"));
        QProcess scan;
        scan.start(QStringLiteral(VELTRINE_CLI_PATH), scanOf(root.path()));
        // Well past the cache's own bound, far short of a wait for the other program.
        const bool ended = scan.waitForFinished(20000);
        holder.closeWriteChannel();
        QVERIFY(holder.waitForFinished(20000));
        QVERIFY(ended);
        QCOMPARE(scan.exitCode(), 0);
        QCOMPARE(reportGroups(scan.readAllStandardOutput(), root.path(), false), expected);
        const QByteArray err = scan.readAllStandardError();
        QVERIFY2(err.contains("the key cache was busy; the scan went on without it"), err);
    }

    void keyFollowsWriteToDirtyPage()
    {
        // The scans wait out the kernel's own write-back delay.
        qunsetenv(FileStamp::kSettleOverride);
        const QString root = m_dir.filePath("mapped");
        const QByteArray content = ScanTree::pattern(20000, 5);
        ScanTree::write(root, "a.bin", content);
        const QString b = ScanTree::write(root, "b.bin", QByteArray(content.size(), '\0'));
        const int fd = ::open(QFile::encodeName(b).constData(), O_RDWR);
        QVERIFY(fd >= 0);
        void *mapped
            = ::mmap(nullptr, size_t(content.size()), PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
        QVERIFY(mapped != MAP_FAILED);
        char *bytes = static_cast<char *>(mapped);
        std::memcpy(bytes, content.constData(), size_t(content.size()));
        // Older than the time stamps' step: only the dirty pages can hide the next write.
        QThread::msleep(2500);
        QCOMPARE(
            reportGroups(runCli(scanOf(root)).out, root, false), QStringList {"files:a.bin,b.bin"});
        const auto changed = [&b] {
            struct stat info
            {
            };
            ::stat(QFile::encodeName(b).constData(), &info);
            return qint64(info.st_ctim.tv_sec) * 1000000000LL + info.st_ctim.tv_nsec;
        };
        const qint64 before = changed();
        // The page is dirty already: the change moves no time.
        bytes[100] = char(bytes[100] ^ 1);
        const bool unmoved = changed() == before;
        const QStringList cached = reportGroups(runCli(scanOf(root)).out, root, false);
        const QStringList reference
            = reportGroups(runCli(scanOf(root) + QStringList {"--no-cache"}).out, root, false);
        ::munmap(mapped, size_t(content.size()));
        ::close(fd);
        if (!unmoved)
            QSKIP("the page was written back between the two writes");
        QCOMPARE(reference, QStringList());
        QCOMPARE(cached, reference);
    }
};

QTEST_GUILESS_MAIN(TestCliKeyCache)
#include "tst_CliKeyCache.moc"
