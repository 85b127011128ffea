// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScanTree.h"
#include "engine/DuplicateFileFinder.h"
#include "engine/ReadPool.h"
#include "engine/TFileData.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QByteArray withByteChanged(QByteArray data, qint64 offset)
{
    data[offset] = char(data[offset] ^ 0x5A);
    return data;
}

// Runs the finder over real files and returns its groups as sorted lists of names.
QList<QStringList> findGroups(const QString &root, const QStringList &names, int method,
    int driveType = 0, bool folders = false, int hint = 8, QStringList *uniqueImages = nullptr,
    int *duplicateFiles = nullptr, int ioMode = 0, int readers = 0)
{
    TFileData::instance()->clear();
    DuplicateFileFinder::SizeTable table;
    QStringList all;
    for (const QString &name : names) {
        const QString path = root + QLatin1Char('/') + name;
        const qint64 size = QFileInfo(path).size();
        table[size].append(FileMeta {size, path, driveType});
        all.append(path);
    }
    DuplicateFileFinder finder;
    finder.applyConfig({{"scanMethod", method}, {"scanDupDirectory", folders},
        {"duplicateSelectHint", hint}, {"ioMode", ioMode}});
    finder.readPool().setFixedReaders(readers);
    finder.setInput(table, all);
    finder.setRoots({root});
    finder.start();
    finder.wait();
    if (uniqueImages)
        *uniqueImages = finder.uniqueImageFiles();
    if (duplicateFiles)
        *duplicateFiles = finder.duplicateFiles();
    return ScanTree::relativeGroups(TFileData::instance()->groups(), root);
}

} // namespace

class TestDuplicateFileFinder : public QObject
{
    Q_OBJECT
private slots:
    void keys_data()
    {
        QTest::addColumn<int>("method");
        QTest::addColumn<int>("driveType");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QByteArrayList>("contents");
        QTest::addColumn<QList<QStringList>>("expected");

        const QByteArray whole = ScanTree::pattern(12288, 1);
        const QByteArray sampled = ScanTree::pattern(12289, 2);
        const QByteArray large = ScanTree::pattern(100000, 3);
        const QByteArray mapped = ScanTree::pattern(2 << 20, 4);
        const QList<QStringList> pair {{"a", "b"}};
        const QList<QStringList> none;
        for (int method : {0, 2}) {
            const char *m = method == 0 ? "sampled" : "full";
            const auto ab = [&](const char *what, const QByteArray &a, const QByteArray &b,
                                bool same) {
                QTest::addRow("%s: %s", m, what) << method << 0 << QStringList {"a", "b"}
                                                 << QByteArrayList {a, b} << (same ? pair : none);
            };
            ab("12,288 bytes equal", whole, whole, true);
            ab("12,288 bytes, middle byte differs", whole, withByteChanged(whole, 6000), false);
            ab("12,289 bytes equal", sampled, sampled, true);
            // Byte 8192 of a 12,289-byte file is the one byte the three blocks miss.
            ab("12,289 bytes, unsampled byte differs", sampled, withByteChanged(sampled, 8192),
                method == 0);
            ab("large, differs outside the blocks", large, withByteChanged(large, 20000),
                method == 0);
            ab("large, differs in the middle block", large,
                withByteChanged(large, 100000 / 2 - 2048), false);
            ab("large, differs in the last byte", large, withByteChanged(large, 99999), false);
            for (int drive : {0, 2}) {
                QTest::addRow("%s: mapped size, drive %d, differs outside", m, drive)
                    << method << drive << QStringList {"a", "b", "c"}
                    << QByteArrayList {mapped, withByteChanged(mapped, 300000), mapped}
                    << (method == 0 ? QList<QStringList> {{"a", "b", "c"}}
                                    : QList<QStringList> {{"a", "c"}});
            }
            ab("empty files never grouped", "", "", false);
        }
        QTest::newRow("name: same name and size, other content")
            << 1 << 0 << QStringList {"x/same.txt", "y/same.txt", "z/other.txt"}
            << QByteArrayList {"abc", "xyz", "abc"}
            << QList<QStringList> {{"x/same.txt", "y/same.txt"}};
        QTest::newRow("name: same name, other size")
            << 1 << 0 << QStringList {"x/same.txt", "y/same.txt"} << QByteArrayList {"abc", "abcd"}
            << none;
        QTest::newRow("name: names differ in case only")
            << 1 << 0 << QStringList {"x/A.txt", "y/a.txt"} << QByteArrayList {"abc", "abc"}
            << none;
        QTest::newRow("name: empty files never grouped")
            << 1 << 0 << QStringList {"x/e", "y/e"} << QByteArrayList {"", ""} << none;
    }
    void keys()
    {
        QFETCH(int, method);
        QFETCH(int, driveType);
        QFETCH(QStringList, names);
        QFETCH(QByteArrayList, contents);
        QFETCH(QList<QStringList>, expected);
        QTemporaryDir dir;
        for (int i = 0; i < names.size(); ++i)
            QVERIFY(!ScanTree::write(dir.path(), names.at(i), contents.at(i)).isEmpty());
        QCOMPARE(findGroups(dir.path(), names, method, driveType), expected);
    }

    // The same groups whatever the number of readers and their order: copies, files that
    // differ only outside the sampled blocks, and singles, spread over many folders.
    void sameGroupsWhateverTheReaders_data()
    {
        QTest::addColumn<int>("method");
        QTest::addColumn<int>("ioMode");
        QTest::addColumn<int>("readers");
        for (int method : {0, 2})
            for (int ioMode : {0, 2})
                for (int readers : {1, 4, 64})
                    QTest::addRow("%s, %s, %d readers", method ? "full" : "sampled",
                        ioMode ? "disk order" : "walk order", readers)
                        << method << ioMode << readers;
    }
    void sameGroupsWhateverTheReaders()
    {
        QFETCH(int, method);
        QFETCH(int, ioMode);
        QFETCH(int, readers);
        QTemporaryDir dir;
        QStringList names;
        QList<QStringList> expected;
        for (int i = 0; i < 60; ++i) {
            const QByteArray copy = ScanTree::pattern(20000 + i, char(i));
            const QString a = QStringLiteral("f%1/copy%2.bin").arg(i % 17).arg(i);
            const QString b = QStringLiteral("g%1/copy%2.bin").arg(i % 13).arg(i);
            const QString trap = QStringLiteral("h%1/trap%2.bin").arg(i % 11).arg(i);
            ScanTree::write(dir.path(), a, copy);
            ScanTree::write(dir.path(), b, copy);
            ScanTree::write(dir.path(), trap, withByteChanged(copy, 14000));
            ScanTree::write(dir.path(), QStringLiteral("h%1/single%2.bin").arg(i % 7).arg(i),
                ScanTree::pattern(90000 + i, char(i)));
            names << a << b << trap << QStringLiteral("h%1/single%2.bin").arg(i % 7).arg(i);
            QStringList group {a, b};
            if (method == 0)
                group << trap;
            group.sort();
            expected << group;
        }
        std::sort(expected.begin(), expected.end());
        QCOMPARE(
            findGroups(dir.path(), names, method, 0, false, 8, nullptr, nullptr, ioMode, readers),
            expected);
    }

    // Auto adds readers while they read more per moment: on a device that serves reads in
    // parallel (each read waits, the waits overlap) it grows to many; on one that serves one
    // read at a time it stays at few.
    void readersFollowWhatTheDeviceDoes_data()
    {
        QTest::addColumn<bool>("parallel");
        QTest::newRow("device serving reads in parallel") << true;
        QTest::newRow("device serving one read at a time") << false;
    }
    void readersFollowWhatTheDeviceDoes()
    {
        QFETCH(bool, parallel);
        QMutex device;
        std::atomic<qint64> bytes {0};
        ReadPool pool;
        pool.run(
            3000,
            [&](size_t) {
                if (parallel) {
                    QThread::usleep(2000);
                } else {
                    QMutexLocker locker(&device);
                    QThread::usleep(300);
                }
                bytes.fetch_add(4096);
            },
            bytes);
        if (parallel)
            QVERIFY2(pool.readers() >= 32, qPrintable(QString::number(pool.readers())));
        else
            QVERIFY2(pool.readers() <= 4 * (QThread::idealThreadCount() + 1),
                qPrintable(QString::number(pool.readers())));
    }

    // A stop while the readers wait on a cold, slow disk (its reads throttled to 400 a
    // second for this process) takes effect within a second, and what was found by then
    // is whole.
    void stopDuringColdReads()
    {
        if (::geteuid() != 0)
            QSKIP("throttling a disk needs root");
        QTemporaryDir dir;
        QStringList names;
        for (int i = 0; i < 1500; ++i) {
            names << QStringLiteral("d%1/a%2.bin").arg(i % 40).arg(i)
                  << QStringLiteral("e%1/b%2.bin").arg(i % 40).arg(i);
            for (const QString &name : names.mid(names.size() - 2))
                ScanTree::write(dir.path(), name, ScanTree::pattern(40000 + i, char(i)));
        }
        struct stat info
        {
        };
        QCOMPARE(::stat(QFile::encodeName(dir.path()).constData(), &info), 0);
        const QString cgroup = QStringLiteral("/sys/fs/cgroup/blkio/veltrine-test-%1")
                                   .arg(QCoreApplication::applicationPid());
        if (!QDir().mkpath(cgroup))
            QSKIP("no blkio control group to throttle the disk with");
        const auto put = [](const QString &file, const QByteArray &text) {
            QFile out(file);
            return out.open(QIODevice::WriteOnly) && out.write(text) == text.size() && out.flush();
        };
        const QByteArray device
            = QByteArray::number(major(info.st_dev)) + ':' + QByteArray::number(minor(info.st_dev));
        const QByteArray self = QByteArray::number(QCoreApplication::applicationPid());
        const bool throttled = put(cgroup + "/blkio.throttle.read_iops_device", device + " 400")
            && put(cgroup + "/cgroup.procs", self);
        // Only this test's files leave the page cache: the other tests running beside it
        // keep theirs.
        ::sync();
        for (const QString &name : std::as_const(names)) {
            const int fd
                = ::open(QFile::encodeName(dir.path() + QLatin1Char('/') + name).constData(),
                    O_RDONLY | O_CLOEXEC);
            if (fd >= 0) {
                ::posix_fadvise(fd, 0, 0, POSIX_FADV_DONTNEED);
                ::close(fd);
            }
        }
        TFileData::instance()->clear();
        DuplicateFileFinder::SizeTable table;
        QStringList all;
        for (const QString &name : std::as_const(names)) {
            const QString path = dir.path() + QLatin1Char('/') + name;
            table[QFileInfo(path).size()].append(FileMeta {QFileInfo(path).size(), path, 0});
            all.append(path);
        }
        DuplicateFileFinder finder;
        finder.applyConfig({{"scanMethod", 2}, {"duplicateSelectHint", 8}});
        finder.setInput(table, all);
        finder.start();
        QThread::msleep(400);
        finder.requestStop();
        QElapsedTimer stopping;
        stopping.start();
        const bool ended = finder.wait(5000);
        const qint64 took = stopping.elapsed();
        put("/sys/fs/cgroup/blkio/cgroup.procs", self);
        QDir().rmdir(cgroup);
        if (!throttled)
            QSKIP("the disk could not be throttled");
        QVERIFY(ended);
        QVERIFY2(took < 1000, qPrintable(QStringLiteral("the stop took %1 ms").arg(took)));
        // Stopped before the end, and every group found is a pair of real copies.
        const QList<QStringList> groups
            = ScanTree::relativeGroups(TFileData::instance()->groups(), dir.path());
        QVERIFY(groups.size() < 1500);
        for (const QStringList &group : groups) {
            QCOMPARE(group.size(), 2);
            QCOMPARE(group.at(0).mid(group.at(0).indexOf('a') + 1),
                group.at(1).mid(group.at(1).indexOf('b') + 1));
        }
    }

    void selectionFollowsHint()
    {
        QTemporaryDir dir;
        const QStringList names {"a.bin", "b.bin", "c.bin"};
        for (const QString &name : names)
            ScanTree::write(dir.path(), name, "same bytes");
        findGroups(dir.path(), names, 0, 0, false, 8);
        const QString key = TFileData::instance()->groups().keys().value(0);
        QCOMPARE(TFileData::instance()->selectedCount(key), 0);
        // Select high-quality keeps the last of equal sizes and selects the others.
        findGroups(dir.path(), names, 0, 0, false, 6);
        QCOMPARE(TFileData::instance()->selectedCount(key), 2);
        QVERIFY(!TFileData::instance()->isSelected(key, dir.path() + "/c.bin"));
    }

    void duplicateFolders_data()
    {
        // Files as "path:seed" (equal seeds, equal content); a leading "!" writes the file
        // without handing it to the finder, as a scan that skips hidden files would.
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QStringList>("folderGroups");
        QTest::addColumn<QList<QStringList>>("fileGroups");
        const QStringList twins {"A/x:1", "A/y:2", "B/x:1", "B/y:2"};
        QTest::newRow("two alike") << twins << QStringList {"A|B"} << QList<QStringList> {};
        QTest::newRow("extra scanned hidden file")
            << twins + QStringList {"D/x:1", "D/y:2", "D/.h:9"} << QStringList {"A|B"}
            << QList<QStringList> {{"A/x", "D/x"}, {"A/y", "D/y"}};
        QTest::newRow("extra hidden file not scanned")
            << twins + QStringList {"D/x:1", "D/y:2", "!D/.h:9"} << QStringList {"A|B"}
            << QList<QStringList> {{"A/x", "D/x"}, {"A/y", "D/y"}};
        QTest::newRow("extra sub-folder")
            << twins + QStringList {"E/x:1", "E/y:2", "E/sub/z:3"} << QStringList {"A|B"}
            << QList<QStringList> {{"A/x", "E/x"}, {"A/y", "E/y"}};
        QTest::newRow("alike with sub-folders, outermost reported") << QStringList {"F/sub/x:1",
            "F/y:2", "G/sub/x:1", "G/y:2"} << QStringList {"F|G"} << QList<QStringList> {};
        QTest::newRow("folder holding only its look-alike's content") << QStringList {"P/Q/x:1",
            "P/Q/y:2", "R/x:1", "R/y:2"} << QStringList {"P|R"} << QList<QStringList> {};
        QTest::newRow("copy outside the folders stays reported")
            << twins + QStringList {"loose/x-copy:1"} << QStringList {"A|B"}
            << QList<QStringList> {{"A/x", "loose/x-copy"}};
    }
    void duplicateFolders()
    {
        QFETCH(QStringList, files);
        QFETCH(QStringList, folderGroups);
        QFETCH(QList<QStringList>, fileGroups);
        QTemporaryDir dir;
        QStringList names;
        for (QString file : files) {
            const bool scanned = !file.startsWith('!');
            file.remove(0, scanned ? 0 : 1);
            const QString name = file.section(':', 0, 0);
            const int seed = file.section(':', 1).toInt();
            ScanTree::write(dir.path(), name, ScanTree::pattern(5000 + seed, char(seed)));
            if (scanned)
                names.append(name);
        }
        int counted = 0;
        const QList<QStringList> groups
            = findGroups(dir.path(), names, 0, 0, true, 8, nullptr, &counted);
        // The running total counts what the groups list: files of file groups and of
        // matched folders.
        // The count is of copies that could go: all but one of each group, and the files
        // of all folders but the first of each folder group.
        int listed = 0;
        for (const QStringList &group : groups)
            listed += int(group.size()) - 1;
        QStringList matched;
        for (const QList<DirGroupEntry> &entries : TFileData::instance()->dirGroups()) {
            QStringList folders;
            for (const DirGroupEntry &entry : entries) {
                folders.append(entry.folderPath.mid(dir.path().size() + 1));
                if (&entry != &entries.first())
                    listed += entry.fileCount;
            }
            matched.append(folders.join('|'));
        }
        matched.sort();
        QCOMPARE(matched, folderGroups);
        QCOMPARE(groups, fileGroups);
        QCOMPARE(counted, listed);
    }

    void vanishedFileLeavesItsGroup_data()
    {
        QTest::addColumn<int>("method");
        QTest::newRow("sampled") << 0;
        QTest::newRow("name") << 1;
        QTest::newRow("full") << 2;
    }
    void vanishedFileLeavesItsGroup()
    {
        QFETCH(int, method);
        QTemporaryDir dir;
        TFileData::instance()->clear();
        DuplicateFileFinder::SizeTable table;
        const QByteArray data = ScanTree::pattern(20000, 5);
        for (const QString &name : {"a/f.bin", "b/f.bin", "c/f.bin"}) {
            const QString path = ScanTree::write(dir.path(), name, data);
            table[data.size()].append(FileMeta {data.size(), path, 0});
        }
        // Removed after the walk reported it, before the finder reads it.
        QVERIFY(QFile::remove(dir.path() + "/c/f.bin"));
        ScanProblems problems;
        DuplicateFileFinder finder;
        finder.applyConfig({{"scanMethod", method}});
        finder.setProblems(&problems);
        finder.setInput(table, {});
        finder.start();
        finder.wait();
        const TFileData::Groups groups = TFileData::instance()->groups();
        QCOMPARE(groups.size(), 1);
        QCOMPARE(groups.begin().value(),
            (QStringList {dir.path() + "/a/f.bin", dir.path() + "/b/f.bin"}));
        // Two copies: one could go.
        QCOMPARE(finder.duplicateFiles(), 1);
        QCOMPARE(problems.count(ScanProblems::VanishedFile), qint64(1));
        QCOMPARE(problems.count(ScanProblems::UnreadableFile), qint64(0));
    }

    void singlePicturesSetAside()
    {
        // The suffix test is case-insensitive and takes the text after the last dot only. p1 and
        // p2 are of one size and differ; every other file is of a size of its own.
        QTemporaryDir dir;
        const QStringList names {"photo.jpg", "note.txt", "p1.png", "p2.png", "UPPER.JPEG", "png",
            "archive.png.txt", QString::fromUtf8("caf\xC3\xA9.jpg"),
            QString::fromUtf8("x.j\xC3\xA9g")};
        for (int i = 0; i < names.size(); ++i)
            ScanTree::write(
                dir.path(), names.at(i), QByteArray(i == 3 ? 12 : 10 + i, char('a' + i)));
        QStringList images;
        findGroups(dir.path(), names, 0, 0, false, 8, &images);
        images.sort();
        QCOMPARE(images,
            (QStringList {dir.path() + "/UPPER.JPEG",
                dir.path() + QString::fromUtf8("/caf\xC3\xA9.jpg"), dir.path() + "/p1.png",
                dir.path() + "/p2.png", dir.path() + "/photo.jpg"}));
    }

    void keyOfChangedFile_data()
    {
        // The sampled key trusts the size recorded by the scan and only asks the file again
        // when a read comes back short: a file that shrank since must still get the key of its
        // current content, as if its size had been asked first.
        QTest::addColumn<qint64>("actual");
        QTest::addColumn<qint64>("recorded");
        QTest::addColumn<int>("driveType");
        QTest::newRow("whole file, shrank") << qint64(5000) << qint64(9000) << 0;
        QTest::newRow("whole file, shrank below the block limit")
            << qint64(9000) << qint64(20000) << 0;
        QTest::newRow("three blocks, shrank") << qint64(20000) << qint64(30000) << 0;
        QTest::newRow("three blocks, shrank by one byte") << qint64(20000) << qint64(20001) << 2;
        QTest::newRow("mapped, shrank") << qint64(2000000) << qint64(3000000) << 0;
        QTest::newRow("grew: the recorded size counts") << qint64(30000) << qint64(20000) << 0;
    }
    void keyOfChangedFile()
    {
        QFETCH(qint64, actual);
        QFETCH(qint64, recorded);
        QFETCH(int, driveType);
        QTemporaryDir dir;
        const QByteArray data = ScanTree::pattern(actual, 7);
        const QString path = ScanTree::write(dir.path(), "f.bin", data);
        const QString reference
            = ScanTree::write(dir.path(), "ref.bin", data.left(std::min(actual, recorded)));
        const QByteArray key = DuplicateFileFinder::calculateFileHash(path, recorded, driveType);
        QVERIFY(!key.isEmpty());
        QCOMPARE(key,
            DuplicateFileFinder::calculateFileHash(
                reference, std::min(actual, recorded), driveType));
    }
};

QTEST_GUILESS_MAIN(TestDuplicateFileFinder)
#include "tst_DuplicateFileFinder.moc"
