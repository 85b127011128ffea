// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImageFixtures.h"
#include "ScanTree.h"
#include "engine/GroupItemAutoSelector.h"
#include "engine/TFileData.h"

#include <QDateTime>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

using Selector = GroupItemAutoSelector;
using Sizes = QList<QSize>;
using Numbers = QList<qint64>;
using Indices = QList<int>;
using PropertyTable = QHash<QString, QVariantHash>;

Q_DECLARE_METATYPE(PropertyTable)

namespace {

QStringList pick(const QStringList &paths, const Indices &indices)
{
    QStringList result;
    for (int i : indices)
        result.append(paths.at(i));
    return result;
}

CloudPropertyReader readerOver(const PropertyTable &table)
{
    return [table](const QString &entry, const QString &property) {
        return table.value(entry).value(property);
    };
}

void keyedRow(const char *tag, const Numbers &bytes, const Numbers &ages, const Sizes &pictures,
    int rule, const Indices &selected, bool tagged = false, const char *format = "png")
{
    QTest::newRow(tag) << bytes << ages << pictures << QString(format) << tagged << rule
                       << selected;
}

} // namespace

class TestGroupItemAutoSelector : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    int m_fileNumber = 0;

    // Makes one real file: a picture of the given size when size is given (an invalid
    // size gives a ".png" file whose header no reader understands), else `bytes` bytes;
    // its modification time is set `age` seconds before a fixed moment.
    QString makeFile(
        qint64 bytes, qint64 age, const QSize &picture, bool usePicture, const QString &format)
    {
        const QString name = QStringLiteral("f%1.%2")
                                 .arg(++m_fileNumber)
                                 .arg(usePicture ? format : QStringLiteral("bin"));
        const QString path = m_dir.filePath(name);
        bool written = false;
        if (usePicture && picture.isValid()) {
            QImage image(picture, QImage::Format_RGB32);
            image.fill(Qt::darkCyan);
            written = image.save(path, format.toLatin1().constData());
        } else {
            written = !ScanTree::write(m_dir.path(), name,
                usePicture ? QByteArray("this is not a picture") : QByteArray(bytes, 'x'))
                           .isEmpty();
        }
        if (!written)
            qFatal("cannot write %s", qPrintable(path));
        QFile file(path);
        file.open(QIODevice::ReadWrite);
        const QDateTime base = QDateTime::fromString("2024-05-01T12:00:00Z", Qt::ISODate);
        if (!file.setFileTime(base.addSecs(-age), QFileDevice::FileModificationTime))
            qFatal("cannot set the time of %s", qPrintable(path));
        return path;
    }

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    // Names are folded to lower case before matching: an upper-case keyword never matches.
    void keywordsAreLowerCase()
    {
        for (const QString &word : Selector::keywords())
            QCOMPARE(word, word.toLower());
    }

    void score_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<bool>("cloud");
        QTest::addColumn<int>("expected");
        QTest::newRow("plain name") << "/data/docs/report.pdf" << false << 100;
        QTest::newRow("copy number in brackets") << "/data/docs/report (1).pdf" << false << 50;
        QTest::newRow("new costs twenty") << "/data/docs/new report.pdf" << false << 80;
        QTest::newRow("copy and copy of both count")
            << "/data/docs/copy of report.pdf" << false << 0;
        QTest::newRow("keyword in local folder") << "/data/Backup/Photos/a.jpg" << false << 70;
        QTest::newRow("cloud folder ignored") << "/data/Backup/Photos/a.jpg" << true << 100;
        QTest::newRow("new in folder costs twenty") << "/data/new stuff/a.txt" << false << 80;
        QTest::newRow("underscore number") << "/data/docs/IMG_12.jpg" << false << 50;
        QTest::newRow("dash number") << "/data/docs/scan-7.png" << false << 50;
        QTest::newRow("four digits still match three") << "/data/docs/IMG_1234.jpg" << false << 50;
        QTest::newRow("two copy numbers") << "/data/docs/a (1) (2).txt" << false << 0;
        QTest::newRow("no floor") << "/data/docs/Copy of Backup (3).txt" << false << -100;
        QTest::newRow("upper case name") << "/data/docs/REPORT - COPY.PDF" << false << 50;
        QTest::newRow("cyrillic keyword") << "/data/docs/отчёт копия.txt" << false << 50;
        QTest::newRow("japanese keyword") << "/data/docs/写真 - コピー.jpg" << false << 50;
        QTest::newRow("similar tag stripped") << "/data/docs/report.pdf_simlar_87" << false << 100;
    }
    void score()
    {
        QFETCH(QString, entry);
        QFETCH(bool, cloud);
        QFETCH(int, expected);
        QCOMPARE(Selector::score(entry, cloud), expected);
    }

    // Rules that need no file contents: the score rule and the plain commands. Select by
    // Priority without priorities does what Select by Filename does.
    void nameRules_data()
    {
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<int>("rule");
        QTest::addColumn<Indices>("selected");
        const QStringList copyFirst = {"/d/report (1).pdf", "/d/report.pdf"};
        QTest::newRow("copy number loses") << copyFirst << 2 << Indices {0};
        QTest::newRow("equal scores keep first")
            << QStringList {"/d/a.txt", "/e/a.txt", "/f/a.txt"} << 2 << Indices {1, 2};
        QTest::newRow("first of best kept")
            << QStringList {"/d/copy.txt", "/d/a.txt", "/e/a.txt"} << 2 << Indices {0, 2};
        QTest::newRow("repeated path: one occurrence kept")
            << QStringList {"/d/a.txt", "/d/a.txt", "/d/copy.txt"} << 2 << Indices {1, 2};
        QTest::newRow("group of one") << QStringList {"/d/a.txt"} << 2 << Indices {};
        QTest::newRow("empty group") << QStringList {} << 2 << Indices {};
        QTest::newRow("select all includes first") << copyFirst << 8 << Indices {0, 1};
        QTest::newRow("deselect") << copyFirst << 9 << Indices {};
        QTest::newRow("priority needs its map") << copyFirst << 3 << Indices {};
        QTest::newRow("unknown rule") << copyFirst << 42 << Indices {};
        QTest::newRow("negative rule") << copyFirst << -1 << Indices {};
        QTest::newRow("similar entries returned tagged")
            << QStringList {"/d/b (2).jpg_simlar_91", "/d/b.jpg_simlar_100"} << 2 << Indices {0};
    }
    void nameRules()
    {
        QFETCH(QStringList, paths);
        QFETCH(int, rule);
        QFETCH(Indices, selected);
        QCOMPARE(Selector::selectGroup(paths, rule), pick(paths, selected));
        if (rule != 3)
            QCOMPARE(Selector::select(paths, rule), pick(paths, selected));
        QCOMPARE(Selector::selectByPriority(paths, {}), Selector::selectGroup(paths, 2));
        QCOMPARE(Selector::select(paths, 3), Selector::selectGroup(paths, 2));
    }

    void priority_data()
    {
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<Indices>("selected");
        QTest::newRow("most specific folder wins") << QStringList {"D:/Photos/b.jpg",
            "D:/Photos/Keep/a.jpg", "E:/x/a.jpg"} << Indices {0, 2};
        QTest::newRow("listed beats unlisted")
            << QStringList {"E:/x/a.jpg", "D:/Photos/b.jpg"} << Indices {0};
        QTest::newRow("equal priority keeps first")
            << QStringList {"D:/Photos/b.jpg", "D:/Photos/c.jpg"} << Indices {1};
        QTest::newRow("no listed folder keeps first")
            << QStringList {"E:/a.jpg", "F:/a.jpg"} << Indices {1};
        QTest::newRow("name prefix is not a folder")
            << QStringList {"D:/PhotosOld/a.jpg", "D:/Photos/a.jpg"} << Indices {0};
        QTest::newRow("case-sensitive")
            << QStringList {"d:/photos/keep/a.jpg", "D:/Photos/a.jpg"} << Indices {0};
        QTest::newRow("group of one") << QStringList {"D:/Photos/Keep/a.jpg"} << Indices {};
        QTest::newRow("empty group") << QStringList {} << Indices {};
    }
    void priority()
    {
        QFETCH(QStringList, paths);
        QFETCH(Indices, selected);
        const QMap<QString, int> priorities {{"D:/Photos", 1}, {"D:/Photos/Keep", 5}};
        QCOMPARE(Selector::selectByPriority(paths, priorities), pick(paths, selected));
        QCOMPARE(Selector::select(paths, 3, priorities), pick(paths, selected));
    }

    // Date, resolution and size rules on real files with real times and real pictures.
    void keyedRules_data()
    {
        QTest::addColumn<Numbers>("bytes");
        QTest::addColumn<Numbers>("ages");
        QTest::addColumn<Sizes>("pictures");
        QTest::addColumn<QString>("format");
        QTest::addColumn<bool>("tagged");
        QTest::addColumn<int>("rule");
        QTest::addColumn<Indices>("selected");
        const Numbers same3 {20, 20, 20};
        const Numbers ages3 {10, 300, 50};
        const Numbers equal3 {100, 100, 100};
        const Numbers sizes3 {10, 30, 30};
        const Numbers one2 {1, 1};
        const Sizes mixed3 {QSize(4, 3), QSize(2, 2), QSize(8, 8)};
        const Sizes unreadable3 {QSize(), QSize(), QSize(2, 2)};
        keyedRow("newest rule keeps oldest", same3, ages3, {}, 0, {0, 2});
        keyedRow("oldest rule keeps newest", same3, ages3, {}, 1, {1, 2});
        keyedRow("equal dates, newest rule keeps last", same3, equal3, {}, 0, {0, 1});
        keyedRow("equal dates, oldest rule keeps first", same3, equal3, {}, 1, {1, 2});
        keyedRow("equal sizes, high-quality keeps last", same3, equal3, {}, 6, {0, 1});
        keyedRow("equal sizes, low-quality keeps first", same3, equal3, {}, 7, {1, 2});
        keyedRow("low-quality keeps first largest", sizes3, equal3, {}, 7, {0, 2});
        keyedRow("high-quality keeps smallest", sizes3, equal3, {}, 6, {1, 2});
        keyedRow("empty file is smallest", {5, 0}, one2, {}, 6, {0});
        keyedRow("unreadable pictures count as 1, low-resolution", same3, equal3, unreadable3, 5,
            {0, 1});
        keyedRow("unreadable pictures count as 1, high-resolution", same3, equal3, unreadable3, 4,
            {1, 2});
        keyedRow("high-resolution keeps smallest picture", same3, equal3, mixed3, 4, {0, 2});
        keyedRow("low-resolution keeps largest picture", same3, equal3, mixed3, 5, {0, 1});
        keyedRow("pixel count, not width", one2, one2, {QSize(10, 1), QSize(3, 4)}, 5, {0});
        keyedRow("equal pictures, high-resolution keeps last", one2, one2,
            {QSize(3, 3), QSize(3, 3)}, 4, {0});
        keyedRow("equal pictures, low-resolution keeps first", one2, one2,
            {QSize(3, 3), QSize(3, 3)}, 5, {1});
        keyedRow("jpeg headers", one2, one2, {QSize(16, 16), QSize(64, 48)}, 5, {0}, false, "jpg");
        keyedRow("similar entries read through their path", sizes3, equal3, {}, 7, {0, 2}, true);
        keyedRow("similar entries, dates", same3, ages3, {}, 1, {1, 2}, true);
        keyedRow("group of one", {5}, {1}, {}, 6, {});
    }
    void keyedRules()
    {
        QFETCH(Numbers, bytes);
        QFETCH(Numbers, ages);
        QFETCH(Sizes, pictures);
        QFETCH(QString, format);
        QFETCH(bool, tagged);
        QFETCH(int, rule);
        QFETCH(Indices, selected);
        QStringList entries;
        for (int i = 0; i < bytes.size(); ++i) {
            const bool usePicture = !pictures.isEmpty();
            const QString path = makeFile(
                bytes.at(i), ages.at(i), usePicture ? pictures.at(i) : QSize(), usePicture, format);
            entries.append(tagged ? path + QStringLiteral("_simlar_%1").arg(90 + i) : path);
        }
        QCOMPARE(Selector::selectGroup(entries, rule), pick(entries, selected));
    }

    // HEIC has no Qt image plug-in here; its size comes from the container's header.
    void pictureSizeOfHeic()
    {
        const QString path = m_dir.filePath("picture.heic");
        QVERIFY(fixtures::writeHeic(path, fixtures::makeScene(64, 48, 3), 0));
        QCOMPARE(Selector::pictureSize(path), qMakePair(64, 48));
    }

    void cloudProperties_data()
    {
        QTest::addColumn<PropertyTable>("properties");
        QTest::addColumn<int>("rule");
        QTest::addColumn<Indices>("selected");
        const PropertyTable dates {
            {"c:a", {{"createdTime", "2023-01-02T10:00:00.000Z"}}},
            {"c:b", {{"createdTime", "2021-06-01T08:00:00Z"}}},
            {"c:c", {{"createdTime", "2024-03-04T00:00:00Z"}}},
        };
        QTest::newRow("cloud newest rule keeps oldest") << dates << 0 << Indices {0, 2};
        QTest::newRow("cloud oldest rule keeps newest") << dates << 1 << Indices {0, 1};
        const PropertyTable sizes {{"c:a", {{"size", "300"}}},
            {"c:b", {{"size", QVariant(qint64(5000000000))}}}, {"c:c", {{"size", 10}}}};
        QTest::newRow("cloud size low-quality") << sizes << 7 << Indices {0, 2};
        QTest::newRow("cloud size high-quality") << sizes << 6 << Indices {0, 1};
        const PropertyTable pixels {{"c:a", {{"width", 100}, {"height", 50}}},
            {"c:b", {{"width", "40"}}}, {"c:c", {{"width", 10}, {"height", 10}}}};
        QTest::newRow("cloud pixels, missing height counts as 1") << pixels << 4 << Indices {0, 2};
        QTest::newRow("cloud pixels low-resolution") << pixels << 5 << Indices {1, 2};
    }
    void cloudProperties()
    {
        QFETCH(PropertyTable, properties);
        QFETCH(int, rule);
        QFETCH(Indices, selected);
        const QStringList entries {"c:a", "c:b", "c:c"};
        QCOMPARE(
            Selector::selectGroup(entries, rule, readerOver(properties)), pick(entries, selected));
    }

    void cloudSimilarMembersLeftOut()
    {
        const PropertyTable properties {{"c:a", {{"size", 50}, {"similar", true}}},
            {"c:b", {{"size", 30}}}, {"c:c", {{"size", 20}}}};
        const QStringList entries {"c:a", "c:b", "c:c"};
        const auto reader = readerOver(properties);
        QCOMPARE(Selector::selectCloudGroup(entries, 7, {}, reader, true), QStringList {"c:c"});
        QCOMPARE(Selector::selectCloudGroup(entries, 7, {}, reader, false),
            (QStringList {"c:b", "c:c"}));
    }

    // Members 0 and 3 lie in the protected archive (3 deeper down), 1 in a folder whose
    // name only starts alike, 2 in the downloads. Sizes 40, 10, 20, 30; ages 10, 300, 50,
    // 200 seconds; none is a picture, so the resolution rules see equal pictures.
    void protectedMembers_data()
    {
        QTest::addColumn<int>("rule");
        QTest::addColumn<QStringList>("folders");
        QTest::addColumn<Indices>("selected");
        const QStringList archive {"archive"};
        QTest::newRow("newest: keeps the oldest, less the archive") << 0 << archive << Indices {2};
        QTest::newRow("oldest: keeps the newest") << 1 << archive << Indices {1, 2};
        QTest::newRow("filename: the archive is the kept copy") << 2 << archive << Indices {1, 2};
        QTest::newRow("priority: the archive is the kept copy") << 3 << archive << Indices {1, 2};
        QTest::newRow("high resolution: keeps the last") << 4 << archive << Indices {1, 2};
        QTest::newRow("low resolution: keeps the first") << 5 << archive << Indices {1, 2};
        QTest::newRow("high quality: keeps the smallest") << 6 << archive << Indices {2};
        QTest::newRow("low quality: keeps the largest") << 7 << archive << Indices {1, 2};
        QTest::newRow("all: every unprotected member") << 8 << archive << Indices {1, 2};
        QTest::newRow("deselect") << 9 << archive << Indices {};
        const QStringList everything {"archive", "archiveOld", "downloads"};
        for (int rule = 0; rule <= 9; ++rule)
            QTest::addRow("every member protected, rule %d", rule)
                << rule << everything << Indices {};
    }
    void protectedMembers()
    {
        QFETCH(int, rule);
        QFETCH(QStringList, folders);
        QFETCH(Indices, selected);
        const QString root = m_dir.filePath("protected");
        const QStringList names {
            "archive/a.bin", "archiveOld/b.bin", "downloads/c copy.bin", "archive/sub/d.bin"};
        const Numbers bytes {40, 10, 20, 30};
        const Numbers ages {10, 300, 50, 200};
        QStringList entries;
        const QDateTime base = QDateTime::fromString("2024-05-01T12:00:00Z", Qt::ISODate);
        for (int i = 0; i < names.size(); ++i) {
            entries.append(ScanTree::write(root, names.at(i), QByteArray(bytes.at(i), 'x')));
            QFile file(entries.last());
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(base.addSecs(-ages.at(i)), QFileDevice::FileModificationTime));
        }
        QStringList protectedFolders;
        for (const QString &folder : folders)
            protectedFolders.append(root + '/' + folder);
        TFileData *store = TFileData::instance();
        store->setProtectedFolders(ProtectedFolders(protectedFolders));
        const QMap<QString, int> priorities {{root + "/downloads", 5}};
        QCOMPARE(Selector::select(entries, rule, priorities), pick(entries, selected));
        // Through the store, whose own refusal must agree.
        Selector::applyToGroup("P", entries, rule, priorities);
        QCOMPARE(store->selectedOf("P"), pick(entries, selected));
        store->setProtectedFolders({});
        store->clear();
    }

    void autoSelectAllWritesTheStore_data()
    {
        QTest::addColumn<int>("rule");
        QTest::addColumn<bool>("expectFirstSelected");
        QTest::addColumn<int>("expectedCount");
        QTest::newRow("filename") << 2 << false << 1;
        QTest::newRow("select all") << 8 << true << 2;
        QTest::newRow("deselect removes entries") << 9 << false << 0;
        QTest::newRow("priority without map") << 3 << false << 1;
    }
    void autoSelectAllWritesTheStore()
    {
        QFETCH(int, rule);
        QFETCH(bool, expectFirstSelected);
        QFETCH(int, expectedCount);
        TFileData *store = TFileData::instance();
        store->clear();
        QList<Selector::KeyedGroup> groups;
        for (int i = 0; i < 50; ++i) {
            const QStringList paths {
                QStringLiteral("/g%1/a.txt").arg(i), QStringLiteral("/g%1/a (1).txt").arg(i)};
            const QString key = TFileData::groupKey(paths.first());
            store->insertGroup(key, paths);
            // A stale selection that every rule must replace or remove.
            store->setSelected(key, {paths.first()});
            groups.append({key, paths});
        }
        Selector::autoSelectAllEx(groups, rule);
        for (const auto &group : std::as_const(groups)) {
            QCOMPARE(store->selectedCount(group.first), expectedCount);
            QCOMPARE(store->isSelected(group.first, group.second.first()), expectFirstSelected);
        }
        QCOMPARE(store->selected().contains(groups.first().first), expectedCount > 0);
        store->clear();
    }
};

QTEST_GUILESS_MAIN(TestGroupItemAutoSelector)
#include "tst_GroupItemAutoSelector.moc"
