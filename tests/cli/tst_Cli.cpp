// SPDX-License-Identifier: GPL-3.0-or-later
#include "CliRunner.h"
#include "CsvTable.h"
#include "ReportGroups.h"
#include "TestEnvironment.h"
#include "engine/ContentKeyCache.h"
#include "engine/FileStamp.h"
#include "engine/ScanTree.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

// The scans' key cache goes to a temporary data folder, never the user's.
static TestEnvironment environment;

// Every command refuses what it cannot use, names the fault and writes nothing to stdout.
static void badRow(const char *tag, const QStringList &arguments, int exitCode, const char *message)
{
    QTest::newRow(tag) << arguments << exitCode << QByteArray(message);
}

class TestCli : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        // The scans this test runs store the keys of files two seconds old.
        qputenv(FileStamp::kSettleOverride, "2000");
        m_root = m_dir.path();
        const QByteArray big = ScanTree::pattern(30000, 1);
        QByteArray trap = big;
        trap[20000] = char(trap[20000] ^ 1); // outside the three sampled blocks
        ScanTree::write(m_root, "A/x.bin", big);
        ScanTree::write(m_root, "A/y.txt", "same text");
        ScanTree::write(m_root, "B/x.bin", big);
        ScanTree::write(m_root, "B/y.txt", "same text");
        ScanTree::write(m_root, "C/trap.bin", trap);
        ScanTree::write(m_root, "C/.hidden.txt", "same text");
    }

    void badArguments_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QByteArray>("message");
        badRow("no command", {}, 1, "no command");
        badRow("unknown command", {"find", "."}, 1, "unknown");
        badRow("no folder", {"scan", "--json"}, 1, "no folder");
        badRow("unknown method", {"scan", "--method", "fast", "."}, 1, "unknown method");
        badRow("unknown selection", {"scan", "--select", "best", "."}, 1, "selection rule");
        badRow("negative size", {"scan", "--min-size", "-1", "."}, 1, "zero or more");
        badRow("infinite size", {"scan", "--max-size", "inf", "."}, 1, "zero or more");
        badRow("size not a number", {"scan", "--min-size", "nan", "."}, 1, "zero or more");
        badRow("maximum overflows bytes", {"scan", "--max-size", "1e13", "."}, 1,
            "--max-size needs a number from 1");
        badRow("maximum below one megabyte", {"scan", "--max-size", "0.5", "."}, 1,
            "to 100000 (MiB), not 0.5");
        badRow("minimum overflows bytes", {"scan", "--min-size", "1e16", "."}, 1,
            "--min-size needs a number from 0");
        badRow("minimum above maximum", {"scan", "--min-size", "2048", "--max-size", "1", "."}, 1,
            "is not below --max-size");
        badRow("minimum equal to maximum", {"scan", "--min-size", "1024", "--max-size", "1", "."},
            1, "is not below --max-size");
        badRow("missing value", {"scan", ".", "--max-size"}, 1, "needs a value");
        badRow("unknown option", {"scan", "--fast", "."}, 1, "unknown option");
        // The similar-picture options; a pass mark of 0 would link every pair of pictures.
        badRow("threshold 0", {"scan", ".", "--threshold", "0"}, 1, "--threshold needs a percent");
        badRow("threshold above 100", {"scan", ".", "--threshold", "101"}, 1, "not \"101\"");
        badRow("threshold inline", {"scan", ".", "--threshold=150"}, 1, "not \"150\"");
        badRow("threshold without value", {"scan", ".", "--threshold"}, 1,
            "--threshold needs a value");
        badRow("features beyond the re-check's range", {"scan", ".", "--features", "100"}, 1,
            "--features needs a percent");
        badRow("features not a number", {"scan", ".", "--features", "nan"}, 1, "not \"nan\"");
        badRow("unknown algorithm", {"scan", ".", "--algorithm", "orb"}, 1, "unknown algorithm");
        badRow(
            "algorithm in capitals", {"scan", ".", "--algorithm", "PHASH"}, 1, "unknown algorithm");
        badRow("switch given a value", {"scan", ".", "--any-type=yes"}, 1, "unknown option");
        badRow("folder does not exist", {"scan", "/no/such/folder"}, 2, "no such folder");
        badRow("file given as a folder", {"scan", VELTRINE_CLI_PATH}, 2, "is a file, not a folder");
        badRow("report without project", {"report"}, 1, "no project");
        badRow("report of a missing project", {"report", "/no/such.dupproj"}, 3,
            "no such project file");
        badRow("report of a folder", {"report", QDir::tempPath()}, 3, "is a folder");
        badRow("report of a file that is no project", {"report", VELTRINE_CLI_PATH}, 3,
            "could not be read");
        badRow("remove: no method", {"remove", "p.dupproj"}, 1, "--method");
        badRow("remove: unknown method", {"remove", "p.dupproj", "--method", "shred"}, 1, "shred");
        badRow("remove: move without a folder", {"remove", "p.dupproj", "--method", "move"}, 1,
            "--to");
        badRow("remove: folder without move",
            {"remove", "p.dupproj", "--method", "trash", "--to", "/tmp"}, 1, "--to goes with");
        badRow("remove: keep structure without a move",
            {"remove", "p.dupproj", "--method", "trash", "--keep-structure"}, 1,
            "--keep-structure goes with");
        badRow("report: CSV and JSON", {"report", "--csv", "--json", "p.dupproj"}, 1, "not both");
        badRow("remove: project missing", {"remove", "/no/such.dupproj", "--method", "trash"}, 3,
            "no such project");
        badRow("help", {"--help"}, 0, "");
    }
    void badArguments()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QByteArray, message);
        const CliRun run = runCli(arguments);
        QCOMPARE(run.exitCode, exitCode);
        QVERIFY2(run.err.contains(message), run.err.constData());
        if (exitCode == 1)
            QVERIFY(run.err.contains("usage: veltrine-duplicate-finder-cli scan"));
        if (exitCode != 0)
            QVERIFY(run.out.isEmpty());
    }

    void oddNamesRoundTrip()
    {
        // Names a scan can meet that are no plain text: a line feed, a carriage return, a tab,
        // a terminal escape, bytes that are not UTF-8, a percent sign and a backslash.
        const QList<QByteArray> names {"line\nfeed", "carriage\rreturn", "tab\there",
            "esc\x1b[31mred", "bad\xff\xfe", "100%25", "back\\slash", "comma, \"quoted\""};
        QTemporaryDir dir;
        const QByteArray base = QFile::encodeName(dir.path());
        for (const char *folder : {"/one", "/two"}) {
            QVERIFY(::mkdir((base + folder).constData(), 0755) == 0);
            for (const QByteArray &name : names) {
                const int fd
                    = ::open((base + folder + "/" + name).constData(), O_CREAT | O_WRONLY, 0644);
                QVERIFY(fd >= 0);
                QCOMPARE(::write(fd, name.constData(), size_t(name.size())), ssize_t(name.size()));
                ::close(fd);
            }
        }
        const QString project = dir.path() + "/odd.dupproj";
        const CliRun scan = runCli({"scan", "--json", "--save", project, dir.path()});
        QCOMPARE(scan.exitCode, 0);
        QCOMPARE(QJsonDocument::fromJson(scan.out).object().value("groups").toArray().size(),
            names.size());
        // The bytes that are not UTF-8 travel as lone surrogates, the controls as escapes.
        QVERIFY(scan.out.contains("bad\\udcff\\udcfe"));
        QVERIFY(scan.out.contains("line\\u000afeed"));
        QVERIFY(scan.out.contains("esc\\u001b[31mred"));

        // The saved project gives back every name exactly.
        const CliRun report = runCli({"report", "--json", project});
        QCOMPARE(report.exitCode, 0);
        const auto groupsPart
            = [](const QByteArray &json) { return json.mid(json.indexOf("\"groups\"")); };
        QCOMPARE(groupsPart(report.out), groupsPart(scan.out));

        // The text report keeps one record per line and sends no control character.
        const CliRun text = runCli({"report", project});
        QCOMPARE(text.exitCode, 0);
        QCOMPARE(text.out.count('\n'), qsizetype(names.size() * 3));
        for (char c = 1; c < 0x20; ++c)
            if (c != '\n' && c != '\t')
                QVERIFY(!text.out.contains(c));
        for (const char *escaped : {"line\\nfeed", "carriage\\rreturn", "tab\\there",
                 "esc\\x1b[31mred", "bad\\xff\\xfe", "back\\\\slash"})
            QVERIFY2(text.out.contains(escaped), escaped);

        // The table names every member by its exact bytes, whatever a field holds.
        const CliRun csv = runCli({"report", "--csv", project});
        QCOMPARE(csv.exitCode, 0);
        const QList<QList<QByteArray>> rows = csvRows(csv.out);
        QCOMPARE(rows.value(0),
            QByteArrayList({"group", "match", "path", "size", "modified", "selected", "protected",
                "similarity"}));
        QCOMPARE(rows.size(), 1 + 2 * names.size());
        QMultiHash<QByteArray, QByteArray> groupsOf;
        for (const QList<QByteArray> &row : rows.mid(1)) {
            QCOMPARE(row.size(), 8);
            QVERIFY2(::access(row.at(2).constData(), F_OK) == 0, row.at(2).constData());
            QCOMPARE(row.at(1), QByteArray("identical"));
            QCOMPARE(row.at(3).toLongLong(), row.at(2).mid(row.at(2).lastIndexOf('/') + 1).size());
            QVERIFY(QDateTime::fromString(QString::fromLatin1(row.at(4)), Qt::ISODate).isValid());
            groupsOf.insert(row.at(0), row.at(2).mid(row.at(2).lastIndexOf('/') + 1));
        }
        // Each group holds the two copies of one name.
        QCOMPARE(groupsOf.uniqueKeys().size(), names.size());
        for (const QByteArray &group : groupsOf.uniqueKeys())
            QCOMPARE(groupsOf.values(group).first(), groupsOf.values(group).last());
    }

    void unreadableCounted()
    {
        if (::geteuid() == 0)
            QSKIP("permission bits do not stop the superuser (the unprivileged run covers it)");
        QTemporaryDir dir;
        ScanTree::write(dir.path(), "open/a.txt", "same");
        ScanTree::write(dir.path(), "open/b.txt", "same");
        ScanTree::write(dir.path(), "open/locked.txt", "same");
        ScanTree::write(dir.path(), "shut/c.txt", "same");
        QFile::setPermissions(dir.path() + "/open/locked.txt", QFileDevice::WriteOwner);
        QFile::setPermissions(dir.path() + "/shut", QFileDevice::Permissions());
        const CliRun mixed = runCli({"scan", "--json", dir.path()});
        const CliRun none = runCli({"scan", dir.path() + "/shut"});
        const CliRun summary = runCli({"scan", dir.path()});
        QFile::setPermissions(dir.path() + "/shut",
            QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        QCOMPARE(mixed.exitCode, 0);
        const QJsonObject report = QJsonDocument::fromJson(mixed.out).object();
        QCOMPARE(report.value("unreadableFolderCount").toInt(), 1);
        QCOMPARE(report.value("unreadableFileCount").toInt(), 1);
        QCOMPARE(
            report.value("unreadableFolders").toArray().first().toString(), dir.path() + "/shut");
        QVERIFY(summary.err.contains("1 folder and 1 file could not be read"));
        // Nothing read is no all-clear.
        QCOMPARE(none.exitCode, 2);
        QVERIFY(none.err.contains("None of the folders could be read"));
    }

    void jsonReport_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QStringList>("expected");
        const QStringList full {"--method", "full", "--select", "none"};
        const QString pair = QStringLiteral("files:A/x.bin,B/x.bin sel:");
        const QString texts = QStringLiteral("files:A/y.txt,B/y.txt sel:");
        QTest::newRow("sampled: the trap groups, not verified")
            << QStringList {"--method", "sampled", "--select", "none"}
            << QStringList {"files (not verified):A/x.bin,B/x.bin,C/trap.bin sel:",
                   "files:A/y.txt,B/y.txt sel:"};
        QTest::newRow("full: the trap stays out") << full << QStringList {pair, texts};
        // A user who names no method gets groups of real duplicates.
        QTest::newRow("default method: the trap stays out")
            << QStringList {"--select", "none"} << QStringList {pair, texts};
        QTest::newRow("hidden included")
            << full + QStringList {"--include-hidden"}
            << QStringList {pair, "files:A/y.txt,B/y.txt,C/.hidden.txt sel:"};
        QTest::newRow("only list") << full + QStringList {"--only", "TXT"} << QStringList {texts};
        QTest::newRow("minimum size in KiB")
            << full + QStringList {"--min-size", "1"} << QStringList {pair};
        QTest::newRow("select all") << QStringList {"--method", "full", "--select", "all", "--only",
            "txt"} << QStringList {"files:A/y.txt,B/y.txt sel:A/y.txt,B/y.txt"};
        QTest::newRow("duplicate folders")
            << full + QStringList {"--folders"} << QStringList {"folders:A,B sel:"};
    }
    void jsonReport()
    {
        QFETCH(QStringList, options);
        QFETCH(QStringList, expected);
        const CliRun run = runCli(QStringList {"scan", "--json"} + options + QStringList {m_root});
        QCOMPARE(run.exitCode, 0);
        const QJsonObject report = QJsonDocument::fromJson(run.out).object();
        QVERIFY(report.value("scannedFiles").toInt() >= 2);
        QVERIFY(report.contains("seconds"));
        QCOMPARE(reportGroups(run.out, m_root, true), expected);
    }

    void cacheKeepsGroups_data()
    {
        QTest::addColumn<QString>("method");
        QTest::newRow("sampled") << "sampled";
        QTest::newRow("full") << "full";
    }
    void cacheKeepsGroups()
    {
        QFETCH(QString, method);
        // The benchmark tree with every trap (near copies that only a whole read tells apart,
        // block edges, odd names), aged past the window in which keys are not kept.
        static QTemporaryDir dir;
        const QString tree = dir.filePath("tree");
        if (!QFileInfo::exists(tree)) {
            QCOMPARE(QProcess::execute("python3",
                         {qEnvironmentVariable("VELTRINE_TEST_SHARED") + "/bench/make_tree.py",
                             "--preset", "small", "-q", tree}),
                0);
            QThread::msleep(FileStamp::settleNs() / 1'000'000 + 100);
        }
        const QStringList scan {"scan", "--json", "--select", "none", "--method", method, tree};
        const auto keys = [](const CliRun &run, const char *source) {
            return QJsonDocument::fromJson(run.out).object().value(QLatin1String(source)).toInt();
        };
        // Every file read after the walk, then while it goes on.
        const CliRun reference = runCli(scan + QStringList {"--no-cache", "--no-overlap"});
        QCOMPARE(reference.exitCode, 0);
        QCOMPARE(keys(reference, "cachedKeys") + keys(reference, "overlappedKeys"), 0);
        const QStringList expected = reportGroups(reference.out, tree, false);
        QVERIFY(expected.size() > 100);
        // However the parallel walk met the files, the report is the same: group names
        // and the order of groups and members included.
        const auto groupsOf = [](const CliRun &run) {
            return QJsonDocument::fromJson(run.out).object().value(QLatin1String("groups"));
        };
        // Best effort: some keys are read during the walk, the finder reads the rest. The
        // reader runs at idle priority and may get no turn while other tests keep the
        // cores busy, so it is given a few scans to take part in one.
        CliRun overlapped;
        for (int scans = 0; scans < 10 && keys(overlapped, "overlappedKeys") == 0; ++scans) {
            overlapped = runCli(scan + QStringList {"--no-cache"});
            QCOMPARE(reportGroups(overlapped.out, tree, false), expected);
            QVERIFY(groupsOf(overlapped) == groupsOf(reference));
        }
        QVERIFY(keys(overlapped, "overlappedKeys") > 0);
        // Two processes fill one cache at the same time; a third takes its keys from it.
        QProcess first;
        QProcess second;
        for (QProcess *process : {&first, &second})
            process->start(QStringLiteral(VELTRINE_CLI_PATH), scan);
        for (QProcess *process : {&first, &second}) {
            QVERIFY(process->waitForFinished(120000));
            QCOMPARE(process->exitCode(), 0);
            QCOMPARE(reportGroups(process->readAllStandardOutput(), tree, false), expected);
        }
        QVERIFY(ContentKeyCache::sizeOnDisk(ContentKeyCache::defaultPath()) > 0);
        QVERIFY(!QFileInfo::exists(ContentKeyCache::setAsidePath(ContentKeyCache::defaultPath())));
        const CliRun cached = runCli(scan);
        QCOMPARE(cached.exitCode, 0);
        QVERIFY(groupsOf(cached) == groupsOf(reference));
        // What the two wrote is there: the third takes the keys of the tree's 900 or so
        // candidates from it.
        QVERIFY(keys(cached, "cachedKeys") > 800);
    }

private:
    QTemporaryDir m_dir;
    QString m_root;
};

QTEST_GUILESS_MAIN(TestCli)
#include "tst_Cli.moc"
