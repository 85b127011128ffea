// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScanTree.h"
#include "engine/FilePathCodec.h"
#include "engine/TFileScanner.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QMutex>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct ScanOutcome
{
    QStringList files;
    QStringList perFileSignals;
    QStringList folders;
    int finished = 0;
};

ScanOutcome runScan(TFileScanner &scanner, const QStringList &roots)
{
    ScanOutcome outcome;
    QMutex mutex;
    // Pool threads emit concurrently, so the test collects under its own lock.
    QObject::connect(
        &scanner, &TFileScanner::filesFound, &scanner,
        [&](const QList<FileMeta> &files) {
            QMutexLocker locker(&mutex);
            for (const FileMeta &meta : files)
                outcome.files.append(meta.filePath);
        },
        Qt::DirectConnection);
    QObject::connect(
        &scanner, &TFileScanner::fileFound, &scanner,
        [&](qint64, const QString &path, int) {
            QMutexLocker locker(&mutex);
            outcome.perFileSignals.append(path);
        },
        Qt::DirectConnection);
    QObject::connect(
        &scanner, &TFileScanner::pathFound, &scanner,
        [&](const QString &path) {
            QMutexLocker locker(&mutex);
            outcome.folders.append(path);
        },
        Qt::DirectConnection);
    QObject::connect(
        &scanner, &TFileScanner::scanFinished, &scanner, [&] { ++outcome.finished; },
        Qt::DirectConnection);
    scanner.setRoots(roots);
    scanner.start();
    scanner.wait();
    outcome.files.sort();
    outcome.perFileSignals.sort();
    outcome.folders.sort();
    return outcome;
}

} // namespace

static void filterRow(
    const char *tag, const QJsonObject &config, const QStringList &expected, qint64 mode = 1)
{
    QTest::newRow(tag) << config << expected << mode;
}

class TestFileScanner : public QObject
{
    Q_OBJECT
private slots:
    void filters_data()
    {
        QTest::addColumn<QJsonObject>("config");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<qint64>("mode"); // 0: the plain walk of folder comparison

        // The tree every row scans (see filters()).
        const QStringList everything {
            "a.txt", "b.JPG", "big.bin", "kib.bin", "noext", "sub/c.txt", "Skip/d.txt"};
        const QStringList withHidden = QStringList {".dot/e.txt", ".hidden.txt"} + everything;
        filterRow("defaults: hidden skipped, everything else", {}, everything);
        filterRow("hidden included", {{"IgnoreSystemHidden", false}}, withHidden);
        // 1 KiB minimum: kib.bin (exactly 1,024 bytes) stays, the tiny files go.
        filterRow("minimum in KiB, inclusive", {{"MinFileSize", 1}}, {"big.bin", "kib.bin"});
        // 1 MiB maximum: big.bin (exactly 1,048,576 bytes) stays.
        filterRow("maximum in MiB, inclusive", {{"MaxFileSize", 1}}, everything);
        filterRow("maximum below the big file", {{"MinFileSize", 1.9}, {"MaxFileSize", 0.99}}, {});
        filterRow("only list, suffix lower-cased, no-dot file skipped",
            {{"OnlyFileType", QJsonArray {"jpg", "bin"}}}, {"b.JPG", "big.bin", "kib.bin"});
        // The lists hold what the user typed.
        filterRow("only list in upper case", {{"OnlyFileType", QJsonArray {"JPG", "Txt"}}},
            {"a.txt", "b.JPG", "sub/c.txt", "Skip/d.txt"});
        filterRow("ignore list in upper case",
            {{"ScanFileType", 1}, {"IgnoreFileType", QJsonArray {"TXT", "BIN", "jpg"}}}, {"noext"});
        filterRow("ignore list has no effect in only mode",
            {{"ScanFileType", 0}, {"IgnoreFileType", QJsonArray {"txt"}}}, everything);
        filterRow("ignore list governs when ScanFileType > 0",
            {{"ScanFileType", 1}, {"IgnoreFileType", QJsonArray {"txt"}},
                {"OnlyFileType", QJsonArray {"bin"}}},
            {"b.JPG", "big.bin", "kib.bin", "noext"});
        filterRow("ignored folder in other letter case",
            {{"IgnorePathFile", QJsonArray {"@ROOT@/skip"}}},
            {"a.txt", "b.JPG", "big.bin", "kib.bin", "noext", "sub/c.txt"});
        filterRow("ignored file", {{"IgnorePathFile", QJsonArray {"@ROOT@/A.TXT"}}},
            {"b.JPG", "big.bin", "kib.bin", "noext", "sub/c.txt", "Skip/d.txt"});
        filterRow("root itself ignored", {{"IgnorePathFile", QJsonArray {"@ROOT@"}}}, {});
        filterRow("plain walk applies no filter",
            {{"MinFileSize", 10}, {"OnlyFileType", QJsonArray {"jpg"}}}, withHidden, 0);
    }
    void filters()
    {
        QFETCH(QJsonObject, config);
        QFETCH(QStringList, expected);
        QFETCH(qint64, mode);
        QTemporaryDir dir;
        const QString root = QFileInfo(dir.path()).canonicalFilePath();
        ScanTree::write(root, "a.txt", "aaa");
        ScanTree::write(root, "b.JPG", "bbb");
        ScanTree::write(root, "big.bin", ScanTree::pattern(1 << 20, 1));
        ScanTree::write(root, "kib.bin", ScanTree::pattern(1024, 2));
        ScanTree::write(root, "noext", "n");
        ScanTree::write(root, "sub/c.txt", "c");
        ScanTree::write(root, "Skip/d.txt", "d");
        ScanTree::write(root, ".hidden.txt", "h");
        ScanTree::write(root, ".dot/e.txt", "e");
        if (config.contains("IgnorePathFile")) {
            QJsonArray paths;
            for (const QJsonValue &value : config.value("IgnorePathFile").toArray())
                paths.append(value.toString().replace("@ROOT@", root));
            config.insert("IgnorePathFile", paths);
        }

        TFileScanner scanner;
        scanner.applyConfig(config);
        scanner.setScanMode(mode);
        const ScanOutcome outcome = runScan(scanner, {root});
        QCOMPARE(outcome.finished, 1);
        QStringList want = expected;
        want.sort();
        QCOMPARE(ScanTree::relative(outcome.files, root), want);
        QCOMPARE(outcome.perFileSignals, outcome.files);
        // The plain walk reports no folders; nor does a scan whose root is ignored.
        if (mode == 0 || config.value("IgnorePathFile").toArray().contains(QJsonValue(root)))
            QVERIFY(outcome.folders.isEmpty());
    }

    void links_data()
    {
        QTest::addColumn<QStringList>("roots");
        QTest::addColumn<qint64>("mode");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<int>("outside");
        const QStringList both {
            "A/loop/a/b/file.bin", "A/own.bin", "B/sub/deep.bin", "B/target.bin"};
        // A links to a file and a folder of B, to "/", to a folder outside and into a loop.
        for (qint64 mode : {0, 1}) {
            const QByteArray suffix = mode ? " (filtered walk)" : " (plain walk)";
            QTest::newRow("A then B" + suffix) << QStringList {"A", "B"} << mode << both << 2;
            QTest::newRow("B then A" + suffix) << QStringList {"B", "A"} << mode << both << 2;
            QTest::newRow("A alone" + suffix)
                << QStringList {"A"} << mode << QStringList {"A/loop/a/b/file.bin", "A/own.bin"}
                << 4;
        }
    }
    void links()
    {
        QFETCH(QStringList, roots);
        QFETCH(qint64, mode);
        QFETCH(QStringList, expected);
        QFETCH(int, outside);
        QTemporaryDir dir;
        QTemporaryDir far;
        const QString base = QFileInfo(dir.path()).canonicalFilePath();
        ScanTree::write(base, "A/own.bin", "o");
        ScanTree::write(base, "A/loop/a/b/file.bin", "x");
        ScanTree::write(base, "B/target.bin", "t");
        ScanTree::write(base, "B/sub/deep.bin", "d");
        ScanTree::write(far.path(), "far.bin", "f");
        QVERIFY(QFile::link(base + "/B/target.bin", base + "/A/to_file.bin"));
        QVERIFY(QFile::link(base + "/B/sub", base + "/A/to_folder"));
        QVERIFY(QFile::link("/", base + "/A/to_machine_root"));
        QVERIFY(QFile::link(far.path(), base + "/A/to_outside"));
        QVERIFY(QFile::link(base + "/A/loop", base + "/A/loop/a/b/up"));
        QVERIFY(QFile::link(base + "/A/missing.bin", base + "/A/dangling.bin"));
        ::mkfifo(QFile::encodeName(base + "/A/pipe").constData(), 0600);

        QStringList rootPaths;
        for (const QString &root : roots)
            rootPaths.append(base + "/" + root);
        ScanProblems problems;
        TFileScanner scanner;
        scanner.setScanMode(mode);
        scanner.setProblems(&problems);
        const ScanOutcome outcome = runScan(scanner, rootPaths);
        // Each file once, always under its real path: a link is never a member.
        QCOMPARE(ScanTree::relative(outcome.files, base), expected);
        QCOMPARE(problems.count(ScanProblems::LinkOutsideRoots), qint64(outside));
    }

    // Links into hidden places are not followed while hidden entries are skipped; a
    // folder the walk could not list but a link leads into reports each file once.
    void linksIntoHidden_data()
    {
        QTest::addColumn<bool>("hidden");
        QTest::addColumn<bool>("lock");
        QTest::addColumn<QStringList>("expected");
        const QStringList visible {"a.txt", "shut/sub/f.txt"};
        const QStringList all = QStringList {".dot.txt", ".h/copy.txt", ".h/deep/d.txt"} + visible;
        QTest::newRow("hidden skipped") << false << false << visible;
        QTest::newRow("hidden included") << true << false << all;
        // Permission bits do not stop the superuser.
        if (::geteuid() != 0)
            QTest::newRow("searchable, unlistable folder") << true << true << all;
    }
    void linksIntoHidden()
    {
        QFETCH(bool, hidden);
        QFETCH(bool, lock);
        QFETCH(QStringList, expected);
        QTemporaryDir dir;
        const QString root = QFileInfo(dir.path()).canonicalFilePath();
        ScanTree::write(root, "a.txt", "same");
        ScanTree::write(root, ".h/copy.txt", "same");
        ScanTree::write(root, ".h/deep/d.txt", "d");
        ScanTree::write(root, ".dot.txt", "same");
        ScanTree::write(root, "shut/sub/f.txt", "f");
        const QStringList links {
            ".h", ".h/copy.txt", ".h/deep", ".dot.txt", "shut/sub", "shut/sub/f.txt"};
        for (qsizetype i = 0; i < links.size(); ++i)
            QVERIFY(QFile::link(root + "/" + links.at(i), root + QString("/link%1").arg(i)));
        if (lock)
            QFile::setPermissions(root + "/shut", QFileDevice::ExeOwner | QFileDevice::WriteOwner);
        TFileScanner scanner;
        scanner.applyConfig({{"IgnoreSystemHidden", !hidden}});
        const ScanOutcome outcome = runScan(scanner, {root});
        QFile::setPermissions(root + "/shut",
            QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        QCOMPARE(ScanTree::relative(outcome.files, root), expected);
    }

    void pseudoFileSystemsNotEntered()
    {
        QTemporaryDir dir;
        const QString root = QFileInfo(dir.path()).canonicalFilePath();
        ScanTree::write(root, "plain.bin", "p");
        ScanProblems problems;
        TFileScanner scanner;
        scanner.setProblems(&problems);
        QStringList roots {root};
        for (const QString &pseudo : {QStringLiteral("/proc"), QStringLiteral("/sys")})
            if (QFileInfo::exists(pseudo + "/self") || QFileInfo::exists(pseudo + "/kernel"))
                roots.append(pseudo);
        const ScanOutcome outcome = runScan(scanner, roots);
        QCOMPARE(ScanTree::relative(outcome.files, root), QStringList {"plain.bin"});
        QCOMPARE(problems.count(ScanProblems::PseudoFileSystem), qint64(roots.size() - 1));
    }

    void hardLinksReportedOnce()
    {
        QTemporaryDir dir;
        const QString root = QFileInfo(dir.path()).canonicalFilePath();
        ScanTree::write(root, "one/a.bin", "same");
        QVERIFY(::link(QFile::encodeName(root + "/one/a.bin").constData(),
                    QFile::encodeName(root + "/b.bin").constData())
            == 0);
        QVERIFY(QFile::link(root + "/b.bin", root + "/c_link.bin"));
        TFileScanner scanner;
        const ScanOutcome outcome = runScan(scanner, {root, root + "/one"});
        QCOMPARE(outcome.files.size(), 1);
        QVERIFY(!outcome.files.first().endsWith("c_link.bin"));
    }

    void undecodableNameStillOpens()
    {
        QTemporaryDir dir;
        const QByteArray nativeRoot = QFile::encodeName(QFileInfo(dir.path()).canonicalFilePath());
        const QByteArray name = nativeRoot + "/bad-\xff\xfe-name.txt";
        const int fd = ::open(name.constData(), O_CREAT | O_WRONLY, 0644);
        QVERIFY(fd >= 0);
        QCOMPARE(::write(fd, "abc", 3), ssize_t(3));
        ::close(fd);

        TFileScanner scanner;
        const ScanOutcome outcome = runScan(scanner, {QFile::decodeName(nativeRoot)});
        QCOMPARE(outcome.files.size(), 1);
        QVERIFY(FilePathCodec::hasEscapedBytes(outcome.files.first()));
        QCOMPARE(FilePathCodec::encode(outcome.files.first()), name);
    }

    void stopMidWalkFinishesOnce()
    {
        QTemporaryDir dir;
        const QString root = QFileInfo(dir.path()).canonicalFilePath();
        for (int i = 0; i < 300; ++i)
            ScanTree::write(root, QString("d%1/e%2/f.txt").arg(i % 30).arg(i), "x");
        TFileScanner scanner;
        int finished = 0;
        int reported = 0;
        QObject::connect(
            &scanner, &TFileScanner::scanFinished, &scanner, [&] { ++finished; },
            Qt::DirectConnection);
        // Stop as soon as the first file is reported, from inside the walk.
        QObject::connect(
            &scanner, &TFileScanner::fileFound, &scanner,
            [&](qint64, const QString &, int) {
                ++reported;
                scanner.requestStop();
            },
            Qt::DirectConnection);
        scanner.setRoots({root, root});
        scanner.start();
        QVERIFY(scanner.wait(60000));
        QCOMPARE(finished, 1);
        QVERIFY(reported < 300);
    }

    void unreadable_data()
    {
        QTest::addColumn<QStringList>("roots");
        QTest::addColumn<bool>("lock");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<qint64>("folders");
        QTest::addColumn<qint64>("files");
        QTest::addColumn<bool>("allRootsUnreadable");
        using L = QStringList;
        QTest::newRow("only root missing") << L {"gone"} << false << L {} << 1LL << 0LL << true;
        QTest::newRow("one of two roots missing")
            << L {"tree", "gone"} << false
            << L {"tree/locked.txt", "tree/open.txt", "tree/shut/in.txt"} << 1LL << 0LL << false;
        // Permission bits do not stop the superuser; those rows run for other users only.
        if (::geteuid() != 0) {
            QTest::newRow("locked folder and file")
                << L {"tree"} << true << L {"tree/open.txt"} << 1LL << 1LL << false;
            QTest::newRow("locked root") << L {"tree/shut"} << true << L {} << 1LL << 0LL << true;
        }
    }
    void unreadable()
    {
        QFETCH(QStringList, roots);
        QFETCH(bool, lock);
        QFETCH(QStringList, expected);
        QFETCH(qint64, folders);
        QFETCH(qint64, files);
        QFETCH(bool, allRootsUnreadable);
        QTemporaryDir dir;
        const QString base = QFileInfo(dir.path()).canonicalFilePath();
        ScanTree::write(base, "tree/shut/in.txt", "x");
        ScanTree::write(base, "tree/open.txt", "y");
        ScanTree::write(base, "tree/locked.txt", "z");
        if (lock) {
            QFile::setPermissions(base + "/tree/shut", QFileDevice::Permissions());
            QFile::setPermissions(base + "/tree/locked.txt", QFileDevice::WriteOwner);
        }
        QStringList rootPaths;
        for (const QString &root : roots)
            rootPaths.append(base + "/" + root);
        ScanProblems problems;
        problems.clear(int(rootPaths.size()));
        TFileScanner scanner;
        scanner.setProblems(&problems);
        const ScanOutcome outcome = runScan(scanner, rootPaths);
        QFile::setPermissions(base + "/tree/shut",
            QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        QCOMPARE(ScanTree::relative(outcome.files, base), expected);
        QCOMPARE(problems.count(ScanProblems::UnreadableFolder), folders);
        QCOMPARE(problems.count(ScanProblems::UnreadableFile), files);
        QCOMPARE(problems.allRootsUnreadable(), allRootsUnreadable);
    }
};

QTEST_GUILESS_MAIN(TestFileScanner)
#include "tst_TFileScanner.moc"
