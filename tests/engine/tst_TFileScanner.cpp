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

QStringList relative(const QStringList &paths, const QString &root)
{
    QStringList out;
    for (const QString &path : paths)
        out.append(path.mid(root.size() + 1));
    out.sort();
    return out;
}

} // namespace

class TestFileScanner : public QObject
{
    Q_OBJECT
private slots:
    void filters_data();
    void filters();
    void linksAndLoops();
    void hardLinksReportedOnce();
    void undecodableNameStillOpens();
    void plainModeAppliesNoFilter();
    void stopMidWalkFinishesOnce();
    void unreadableFolderIsSkipped();
};

void TestFileScanner::filters_data()
{
    QTest::addColumn<QJsonObject>("config");
    QTest::addColumn<QStringList>("expected");

    // The tree every row scans (see filters()).
    const QStringList everything {
        "a.txt", "b.JPG", "big.bin", "kib.bin", "noext", "sub/c.txt", "Skip/d.txt"};
    QTest::newRow("defaults: hidden skipped, everything else") << QJsonObject {} << everything;
    QTest::newRow("hidden included")
        << QJsonObject {{"IgnoreSystemHidden", false}}
        << QStringList {".dot/e.txt", ".hidden.txt", "a.txt", "b.JPG", "big.bin", "kib.bin",
               "noext", "sub/c.txt", "Skip/d.txt"};
    // 1 KiB minimum: kib.bin (exactly 1,024 bytes) stays, the tiny files go.
    QTest::newRow("minimum in KiB, inclusive")
        << QJsonObject {{"MinFileSize", 1}} << QStringList {"big.bin", "kib.bin"};
    // 1 MiB maximum: big.bin (exactly 1,048,576 bytes) stays.
    QTest::newRow("maximum in MiB, inclusive") << QJsonObject {{"MaxFileSize", 1}} << everything;
    QTest::newRow("maximum below the big file")
        << QJsonObject {{"MinFileSize", 1.9}, {"MaxFileSize", 0.99}} << QStringList {};
    QTest::newRow("only list, suffix lower-cased, no-dot file skipped") << QJsonObject {
        {"OnlyFileType", QJsonArray {"jpg", "bin"}}} << QStringList {"b.JPG", "big.bin", "kib.bin"};
    QTest::newRow("ignore list has no effect in only mode")
        << QJsonObject {{"ScanFileType", 0}, {"IgnoreFileType", QJsonArray {"txt"}}} << everything;
    QTest::newRow("ignore list governs when ScanFileType > 0")
        << QJsonObject {{"ScanFileType", 1}, {"IgnoreFileType", QJsonArray {"txt"}},
               {"OnlyFileType", QJsonArray {"bin"}}}
        << QStringList {"b.JPG", "big.bin", "kib.bin", "noext"};
    QTest::newRow("ignored folder in other letter case")
        << QJsonObject {{"IgnorePathFile", QJsonArray {"@ROOT@/skip"}}}
        << QStringList {"a.txt", "b.JPG", "big.bin", "kib.bin", "noext", "sub/c.txt"};
    QTest::newRow("ignored file") << QJsonObject {{"IgnorePathFile", QJsonArray {"@ROOT@/A.TXT"}}}
                                  << QStringList {"b.JPG", "big.bin", "kib.bin", "noext",
                                         "sub/c.txt", "Skip/d.txt"};
    QTest::newRow("root itself ignored")
        << QJsonObject {{"IgnorePathFile", QJsonArray {"@ROOT@"}}} << QStringList {};
}

void TestFileScanner::filters()
{
    QFETCH(QJsonObject, config);
    QFETCH(QStringList, expected);
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
    const ScanOutcome outcome = runScan(scanner, {root});
    QCOMPARE(outcome.finished, 1);
    QStringList want = expected;
    want.sort();
    QCOMPARE(relative(outcome.files, root), want);
    QCOMPARE(outcome.perFileSignals, outcome.files);
    if (expected.isEmpty() && config.value("IgnorePathFile").toArray().contains(QJsonValue(root)))
        QVERIFY(outcome.folders.isEmpty());
}

void TestFileScanner::linksAndLoops()
{
    QTemporaryDir dir;
    QTemporaryDir outside;
    const QString root = QFileInfo(dir.path()).canonicalFilePath();
    ScanTree::write(root, "loop/a/b/file.bin", "x");
    ScanTree::write(root, "target.bin", "t");
    ScanTree::write(root, "realdir/inside.bin", "i");
    ScanTree::write(outside.path(), "far.bin", "f");
    QVERIFY(QFile::link(root + "/loop", root + "/loop/a/b/up"));
    QVERIFY(QFile::link(root + "/target.bin", root + "/a_link_to_file.bin"));
    QVERIFY(QFile::link(root + "/realdir", root + "/a_link_to_dir"));
    QVERIFY(QFile::link(outside.path(), root + "/outside_link"));
    QVERIFY(QFile::link(root + "/missing.bin", root + "/dangling.bin"));
    ::mkfifo(QFile::encodeName(root + "/pipe").constData(), 0600);

    for (qint64 mode : {0, 1}) {
        TFileScanner scanner;
        scanner.setScanMode(mode);
        const ScanOutcome outcome = runScan(scanner, {root});
        // Each file once, under its own path; the outside folder is reached only
        // through its link and is reported there.
        QCOMPARE(relative(outcome.files, root),
            (QStringList {
                "loop/a/b/file.bin", "outside_link/far.bin", "realdir/inside.bin", "target.bin"}));
    }
}

void TestFileScanner::hardLinksReportedOnce()
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

void TestFileScanner::undecodableNameStillOpens()
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

void TestFileScanner::plainModeAppliesNoFilter()
{
    QTemporaryDir dir;
    const QString root = QFileInfo(dir.path()).canonicalFilePath();
    ScanTree::write(root, ".hidden", "h");
    ScanTree::write(root, "x/tiny.txt", "t");
    TFileScanner scanner;
    scanner.applyConfig({{"MinFileSize", 10}, {"OnlyFileType", QJsonArray {"jpg"}}});
    scanner.setScanMode(0);
    const ScanOutcome outcome = runScan(scanner, {root});
    QCOMPARE(relative(outcome.files, root), (QStringList {".hidden", "x/tiny.txt"}));
    QVERIFY(outcome.folders.isEmpty());
}

void TestFileScanner::stopMidWalkFinishesOnce()
{
    QTemporaryDir dir;
    const QString root = QFileInfo(dir.path()).canonicalFilePath();
    for (int i = 0; i < 300; ++i)
        ScanTree::write(root, QString("d%1/e%2/f.txt").arg(i % 30).arg(i), "x");
    TFileScanner scanner;
    int finished = 0;
    int reported = 0;
    QObject::connect(
        &scanner, &TFileScanner::scanFinished, &scanner, [&] { ++finished; }, Qt::DirectConnection);
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

void TestFileScanner::unreadableFolderIsSkipped()
{
    if (::geteuid() == 0)
        QSKIP("permission bits do not stop the superuser");
    QTemporaryDir dir;
    const QString root = QFileInfo(dir.path()).canonicalFilePath();
    ScanTree::write(root, "locked/in.txt", "x");
    ScanTree::write(root, "open.txt", "y");
    QFile::setPermissions(root + "/locked", QFileDevice::Permissions());
    TFileScanner scanner;
    const ScanOutcome outcome = runScan(scanner, {root});
    QFile::setPermissions(
        root + "/locked", QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    QCOMPARE(relative(outcome.files, root), QStringList {"open.txt"});
}

QTEST_GUILESS_MAIN(TestFileScanner)
#include "tst_TFileScanner.moc"
