// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImageFixtures.h"
#include "ScanTree.h"
#include "app/FileTypeCatalogue.h"
#include "engine/ContentKeyCache.h"
#include "engine/DuplicateFileFinder.h"
#include "engine/FileStamp.h"
#include "engine/TFileData.h"
#include "pictures/ImageCompareThread.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>

#include <QDirIterator>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

namespace {

// a and b are copies; c differs from them outside the three sampled blocks only, so the
// full mode tells it apart by its whole-content key alone.
const QByteArray kCopy = ScanTree::pattern(30000, 7);
QByteArray trapContent()
{
    QByteArray trap = kCopy;
    trap[20000] = char(trap[20000] ^ 1);
    return trap;
}

void writeTree(const QString &root)
{
    ScanTree::write(root, "a.bin", kCopy);
    ScanTree::write(root, "b.bin", kCopy);
    ScanTree::write(root, "c.bin", trapContent());
}

// Full-mode groups of the tree (names sorted), and how many keys came from the cache.
// walked: the table comes from the scanner, whose stat of each file is its stamp; else
// from a plain listing, and the finder takes the stamps itself.
QList<QStringList> scan(
    const QString &root, const QString &cachePath, qint64 *fromCache = nullptr, bool walked = false)
{
    TFileData::instance()->clear();
    DuplicateFileFinder finder;
    if (walked) {
        finder.setInput(ScanTree::walk(root));
    } else {
        DuplicateFileFinder::SizeTable table;
        QDirIterator it(root, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            const qint64 size = QFileInfo(path).size();
            table[size].append(FileMeta {size, path, 0});
        }
        finder.setInput(table, {});
    }
    finder.applyConfig(
        {{"scanMethod", DuplicateFileFinder::scanAllContent}, {"duplicateSelectHint", 8}});
    finder.setCacheOptions({true, cachePath});
    finder.start();
    finder.wait();
    if (fromCache)
        *fromCache = finder.keysFromCache();
    return ScanTree::relativeGroups(TFileData::instance()->groups(), root);
}

void setModified(const QString &path, const timespec &when)
{
    const timespec times[2] = {when, when};
    QVERIFY(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0) == 0);
}

timespec modifiedOf(const QString &path)
{
    struct stat info
    {
    };
    ::stat(QFile::encodeName(path).constData(), &info);
    return info.st_mtim;
}

bool runSql(const QString &database, const char *sql)
{
    sqlite3 *db = nullptr;
    bool ok = sqlite3_open(QFile::encodeName(database).constData(), &db) == SQLITE_OK
        && sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
    sqlite3_close(db);
    return ok;
}

// Similar-picture groups of the pictures (names sorted) with the feature re-check, and
// how many measures came from the cache.
QList<QStringList> similar(
    const QString &root, int algorithm, const QString &cachePath, int *fromCache = nullptr)
{
    TFileData::instance()->clear();
    QStringList paths;
    for (const QString &name : QDir(root).entryList(QDir::Files, QDir::Name))
        paths.append(root + "/" + name);
    ImageCompareThread thread;
    thread.applyConfig(QJsonObject {{"SimilarityValue", 55}, {"FeaturesValue", 20},
        {"algorithmHint", algorithm}, {"isAddFeatures", true}, {"isImageType", false},
        {"isImageSize", false}, {"selectionHint", 8}});
    thread.setCacheOptions(cachePath.isEmpty() ? ContentKeyCache::Options {}
                                               : ContentKeyCache::Options {true, cachePath});
    thread.setImagePaths(paths);
    thread.start();
    thread.wait();
    if (fromCache)
        *fromCache = thread.measuresFromCache();
    return ScanTree::relativeGroups(TFileData::instance()->groups(), root);
}

} // namespace

class TestContentKeyCache : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        qputenv(FileStamp::kSettleOverride, "2000");
        for (const char *row : {"unchanged", "rewritten", "replaced", "racy"})
            for (const char *how : {"", " walked"})
                writeTree(m_dir.filePath(QLatin1String(row) + QLatin1String(how)));
        for (const char *row : {"not a database", "foreign database", "newer layout", "damaged row",
                 "keys only", "layout 2", "keys only with pictures"})
            writeTree(m_dir.filePath(QLatin1String(row)));
        // More candidates than one run of folders takes, in 170 folders of 200 files: 17,000
        // pairs of one size.
        for (int k = 0; k < 34000; ++k)
            ScanTree::write(m_dir.filePath("large"), QString("d%1/f%2").arg(k / 200).arg(k),
                QByteArray::number(100000000 + k / 2));
        for (const char *tree :
            {"pictures 1 0", "pictures 2 0", "pictures 2 1", "pictures 3 0", "pictures 3 1"}) {
            const QString root = m_dir.filePath(QLatin1String(tree));
            QDir().mkpath(root);
            const cv::Mat scene = fixtures::makeScene(320, 240, 11);
            QVERIFY(cv::imwrite(QFile::encodeName(root + "/a.png").toStdString(), scene));
            // For the robust measure b is cut from a, so that the pair goes through its check.
            const cv::Mat b = QByteArray(tree).startsWith("pictures 3")
                ? cv::Mat(scene(cv::Rect(16, 12, 288, 216)))
                : scene;
            QVERIFY(cv::imwrite(QFile::encodeName(root + "/b.jpg").toStdString(), b));
            QVERIFY(cv::imwrite(QFile::encodeName(root + "/c.png").toStdString(),
                fixtures::makeScene(320, 240, 12)));
        }
        // Files that have not settled are never stored; the trees must age past it.
        QThread::msleep(FileStamp::settleNs() / 1'000'000 + 100);
    }

    void stampDecides_data()
    {
        QTest::addColumn<int>("field");
        QTest::addColumn<bool>("found");
        QTest::addColumn<int>("batch");
        // A batch of one is searched for; a batch of most of the table is merged with it.
        for (int batch : {1, 400}) {
            QTest::addRow("same stamp, batch %d", batch) << -1 << true << batch;
            QTest::addRow("other device, batch %d", batch) << 0 << false << batch;
            QTest::addRow("other inode, batch %d", batch) << 1 << false << batch;
            QTest::addRow("other size, batch %d", batch) << 2 << false << batch;
            QTest::addRow("other modification time, batch %d", batch) << 3 << false << batch;
            QTest::addRow("other change time, batch %d", batch) << 4 << false << batch;
        }
    }
    void stampDecides()
    {
        QFETCH(int, field);
        QFETCH(bool, found);
        QFETCH(int, batch);
        const QString path = m_dir.filePath(QString("stamps-%1.sqlite").arg(batch));
        // Neighbours in key order on both sides of the entry looked at.
        std::vector<ContentKeyCache::Entry> stored;
        for (int i = 0; i < 400; ++i) {
            ContentKeyCache::Stamp stamp {
                5, quint64(i), 4096, 1'000'000'000'123LL, 1'000'000'000'456LL};
            stored.push_back(
                ContentKeyCache::Entry {stamp, quint64(i), quint64(1000 + i), true, true});
            stored.back().fresh = true;
        }
        if (!QFileInfo::exists(path))
            ContentKeyCache(path).store(
                stored, stored[0].stamp.changedNs + FileStamp::settleNs() + 1);
        ContentKeyCache::Stamp stamp = stored[200].stamp;
        qint64 *fields[]
            = {reinterpret_cast<qint64 *>(&stamp.device), reinterpret_cast<qint64 *>(&stamp.inode),
                &stamp.size, &stamp.modifiedNs, &stamp.changedNs};
        if (field >= 0)
            *fields[field] += field == 1 ? 1000 : 1;
        std::vector<ContentKeyCache::Entry> entries;
        for (int i = 400 - batch; i < 400; ++i)
            entries.push_back(
                ContentKeyCache::Entry {i == 200 || batch == 1 ? stamp : stored[i].stamp});
        ContentKeyCache cache(path);
        cache.lookup(entries);
        const ContentKeyCache::Entry &looked = entries[batch == 1 ? 0 : 200];
        QCOMPARE(looked.found, found);
        QCOMPARE(looked.fullKey, quint64(found ? 1200 : 0));
        QCOMPARE(std::count_if(entries.begin(), entries.end(),
                     [](const ContentKeyCache::Entry &entry) { return entry.found; }),
            qsizetype(batch - 1 + found));
    }

    void changedFilesReadAgain_data()
    {
        QTest::addColumn<QString>("row");
        QTest::addColumn<bool>("walked");
        QTest::addColumn<QList<QStringList>>("groups");
        QTest::addColumn<qint64>("fromCache");
        // b now holds the trap's content: trusting its old keys would keep it with a.
        const QList<QStringList> withTrap {{"b.bin", "c.bin"}};
        // Stamps taken by the finder, or the walk's own stat of each file.
        for (bool walked : {false, true}) {
            const char *how = walked ? ", walk stat" : "";
            // Sampled and full key of each file not read again.
            QTest::addRow("unchanged%s", how)
                << "unchanged" << walked << QList<QStringList> {{"a.bin", "b.bin"}} << qint64(6);
            QTest::addRow("rewritten, same size, time put back%s", how)
                << "rewritten" << walked << withTrap << qint64(4);
            QTest::addRow("replaced by another file%s", how)
                << "replaced" << walked << withTrap << qint64(4);
            QTest::addRow("modified within the racy window%s", how)
                << "racy" << walked << QList<QStringList> {{"a.bin", "b.bin"}} << qint64(4);
        }
    }
    void changedFilesReadAgain()
    {
        QFETCH(QString, row);
        QFETCH(bool, walked);
        QFETCH(QList<QStringList>, groups);
        QFETCH(qint64, fromCache);
        const QString tree = walked ? row + " walked" : row;
        const QString root = m_dir.filePath(tree);
        const QString b = root + "/b.bin";
        const QString cache = m_dir.filePath(tree + ".sqlite");
        if (row == "racy")
            ScanTree::write(root, "b.bin", kCopy);
        QCOMPARE(scan(root, cache, nullptr, walked), (QList<QStringList> {{"a.bin", "b.bin"}}));
        const timespec before = modifiedOf(b);
        if (row == "rewritten") {
            // Only the whole-content key can see this edit, and only the change time shows it.
            ScanTree::write(root, "b.bin", trapContent());
            setModified(b, before);
        } else if (row == "replaced") {
            ScanTree::write(root, "new.tmp", trapContent());
            setModified(root + "/new.tmp", before);
            QVERIFY(QFile::remove(b) && QFile::rename(root + "/new.tmp", b));
        }
        qint64 taken = -1;
        QCOMPARE(scan(root, cache, &taken, walked), groups);
        QCOMPARE(taken, fromCache);
    }

    void rejectedCacheSetAside_data()
    {
        QTest::addColumn<QString>("row");
        QTest::addColumn<QByteArray>("damage");
        QTest::addColumn<bool>("setAside");
        QTest::newRow("not a database") << "not a database" << QByteArray() << true;
        QTest::newRow("foreign database")
            << "foreign database"
            << QByteArray("CREATE TABLE keys(device, inode); PRAGMA user_version=1") << true;
        QTest::newRow("newer layout")
            << "newer layout" << QByteArray("PRAGMA user_version=99") << true;
        // Damage that, if believed, would join the trap to the copies.
        QTest::newRow("damaged row")
            << "damaged row"
            << QByteArray("UPDATE keys SET full = (SELECT full FROM keys WHERE full != 0 LIMIT "
                          "1), sampled = (SELECT sampled FROM keys LIMIT 1)")
            << true;
        QTest::newRow("layout 1 holding a picture table")
            << "keys only with pictures" << QByteArray("PRAGMA user_version=1") << true;
        // The earlier layouts keep their tables and lose their entries: those may have been
        // stored from files a mapped write changed behind their times.
        QTest::newRow("layout 1 extended")
            << "keys only" << QByteArray("DROP TABLE pictures; PRAGMA user_version=1") << false;
        QTest::newRow("layout 2 taken on")
            << "layout 2" << QByteArray("PRAGMA user_version=2") << false;
    }
    void rejectedCacheSetAside()
    {
        QFETCH(QString, row);
        QFETCH(QByteArray, damage);
        QFETCH(bool, setAside);
        const QString root = m_dir.filePath(row);
        const QString cache = m_dir.filePath(row + ".sqlite");
        const QList<QStringList> expected {{"a.bin", "b.bin"}};
        if (row == "not a database") {
            ScanTree::write(m_dir.path(), row + ".sqlite", QByteArray(8192, 'x'));
        } else {
            if (row != "foreign database")
                QCOMPARE(scan(root, cache), expected);
            QVERIFY(runSql(cache, damage.constData()));
        }
        const QByteArray original = ScanTree::read(cache);
        qint64 taken = -1;
        QCOMPARE(scan(root, cache, &taken), expected);
        QCOMPARE(taken, 0);
        QCOMPARE(QFile::exists(ContentKeyCache::setAsidePath(cache)), setAside);
        if (setAside)
            QVERIFY(ScanTree::read(ContentKeyCache::setAsidePath(cache)) == original);
        // The new (or extended) cache works.
        QCOMPARE(scan(root, cache, &taken), expected);
        QCOMPARE(taken, 6);
        QVERIFY(runSql(cache, "SELECT count(*) FROM pictures"));
    }

    void largeTreeInRuns()
    {
        const QString root = m_dir.filePath("large");
        const QString cache = m_dir.filePath("large.sqlite");
        const QList<QStringList> first = scan(root, cache);
        QCOMPARE(first.size(), 17000);
        qint64 taken = 0;
        QCOMPARE(scan(root, cache, &taken), first);
        QCOMPARE(taken, 34000);
        // The same through the walk's stamps, which are looked up in one pass.
        QCOMPARE(scan(root, cache, &taken, true), first);
        QCOMPARE(taken, 34000);
    }

    void picturesFromCache_data()
    {
        // The trees are "pictures ALGORITHM REWRITE", written by initTestCase.
        QTest::addColumn<int>("algorithm");
        QTest::addColumn<bool>("rewrite");
        QTest::addColumn<QList<QStringList>>("groups");
        QTest::addColumn<int>("fromCache");
        // a and b show one scene, c another. Unchanged: the perceptual hash of all three and
        // the feature points of the pair come from the cache. c rewritten with a's scene and
        // its time put back: its measures are taken again and it joins the pair. The
        // histograms (a measure of their own) group none of these, and all three come back.
        const QList<QStringList> pair {{"a.png", "b.jpg"}};
        QTest::addRow("perceptual hash, unchanged") << 2 << false << pair << 5;
        QTest::addRow("perceptual hash, picture rewritten")
            << 2 << true << QList<QStringList> {{"a.png", "b.jpg", "c.png"}} << 4;
        QTest::addRow("histogram, unchanged") << 1 << false << QList<QStringList> {} << 3;
        // The robust measure keeps its signatures and the verdict of the checked pair: an
        // unchanged rescan reads no picture; a rewritten c is measured and checked again,
        // while the verdict of a and b still holds.
        QTest::addRow("robust, unchanged") << 3 << false << pair << 4;
        QTest::addRow("robust, picture rewritten")
            << 3 << true << QList<QStringList> {{"a.png", "b.jpg", "c.png"}} << 3;
    }
    void picturesFromCache()
    {
        QFETCH(int, algorithm);
        QFETCH(bool, rewrite);
        QFETCH(QList<QStringList>, groups);
        QFETCH(int, fromCache);
        const QList<QStringList> pairOnly {{"a.png", "b.jpg"}};
        const QString root = m_dir.filePath(QString("pictures %1 %2").arg(algorithm).arg(rewrite));
        const QString cache = root + ".sqlite";
        int taken = -1;
        QCOMPARE(similar(root, algorithm, cache, &taken), rewrite ? pairOnly : groups);
        QCOMPARE(taken, 0);
        if (rewrite) {
            QVERIFY(QFile::remove(root + "/c.png"));
            QVERIFY(QFile::copy(root + "/a.png", root + "/c.png"));
            setModified(root + "/c.png", modifiedOf(root + "/a.png"));
        }
        QCOMPARE(similar(root, algorithm, cache, &taken), groups);
        QCOMPARE(taken, fromCache);
        // Without the cache, the same groups.
        QCOMPARE(similar(root, algorithm, QString(), nullptr), groups);
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(TestContentKeyCache)
#include "tst_ContentKeyCache.moc"
