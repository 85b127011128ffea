// SPDX-License-Identifier: GPL-3.0-or-later
#include "TestEnvironment.h"
#include "app/FileTypeCatalogue.h"
#include "engine/GroupMember.h"
#include "engine/ScanTree.h"
#include "engine/TFileData.h"
#include "results/PathElider.h"
#include "results/TImageModel.h"

#include <QDir>
#include <QFile>
#include <QFontMetrics>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

static TestEnvironment environment;

static GroupItem group(const QString &name, qint64 size, int count, int selected, int type)
{
    GroupItem g;
    g.key = name;
    g.name = name;
    g.totalSize = size;
    g.count = count;
    g.selectedCount = selected;
    g.type = type;
    return g;
}

static QList<ImageItem> showItems()
{
    QList<ImageItem> items;
    for (int i = 0; i < 6; ++i) {
        ImageItem item;
        item.key = QStringLiteral("K");
        item.path = QStringLiteral("/p/%1").arg(i);
        item.hidden = i == 1;
        item.checked = i % 2 == 0;
        item.similarity = i * 20; // 0 20 40 60 80 100
        items << item;
    }
    return items;
}

class tst_TImageModel : public QObject
{
    Q_OBJECT
private slots:
    void init() { TFileData::instance()->clear(); }

    void groupRoles()
    {
        const QString a = writeFile(QStringLiteral("one/report.txt"), QByteArray(1500, 'x'));
        const QString b = writeFile(QStringLiteral("two/report.txt"), QByteArray(1500, 'x'));
        const QString c = writeFile(QStringLiteral("three/report.txt"), QByteArray(1500, 'x'));
        const QString key = TFileData::groupKey(a);
        TFileData::instance()->insertGroup(key, {a, b, c});
        TFileData::instance()->setSelected(key, {b, c});

        TImageModel model(TImageModel::ListView, 50);
        QSignalSpy loaded(&model, &TImageModel::onLoadComplated);
        model.loadAllGroups(ByName);
        QCOMPARE(loaded.count(), 1);
        QCOMPARE(loaded.at(0).at(0).toInt(), 2);
        QCOMPARE(loaded.at(0).at(1).toLongLong(), 4500);

        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.columnCount(), int(TImageModel::ColumnCount));
        QCOMPARE(model.rowCount(model.index(0, 0)), 0);
        const QModelIndex row = model.index(0, 0);
        QCOMPARE(row.data(257).toString(), a);
        QCOMPARE(row.data(258).toString(), key);
        QCOMPARE(row.data(259).toStringList(), QStringList({a, b, c}));
        QCOMPARE(row.data(261).toString(), "report.txt");
        QCOMPARE(row.data(262).toInt(), int(CategoryDocuments));
        QCOMPARE(row.data(264).toString(), "4.39 KB");
        QCOMPARE(row.data(265).toInt(), 3);
        QCOMPARE(row.data(266).toInt(), 2);
        QCOMPARE(row.data(270).toBool(), false);
        QVERIFY(!model.index(1, 0).data(257).isValid());
        QCOMPARE(
            model.flags(row), Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
        QCOMPARE(model.flags(model.index(0, 3)), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        QCOMPARE(model.flags(QModelIndex()), Qt::NoItemFlags);
    }

    void groupOfMissingOrFolder()
    {
        const QString gone = m_dir.filePath(QStringLiteral("gone.jpg"));
        const QString other = writeFile(QStringLiteral("kept.jpg"), "abc");
        TFileData::instance()->insertGroup(TFileData::groupKey(gone), {gone, other});

        const QString folderA = m_dir.filePath(QStringLiteral("fa"));
        const QString folderB = m_dir.filePath(QStringLiteral("fb"));
        QDir().mkpath(folderA);
        QDir().mkpath(folderB);
        const QString folderKey = TFileData::groupKey(folderA);
        TFileData::instance()->insertGroup(folderKey, {folderA, folderB});
        TFileData::instance()->insertDirGroup(folderKey, {{folderA, 2, 300}, {folderB, 2, 300}});

        TImageModel model(TImageModel::ListView, 50);
        model.loadAllGroups(ByType);
        QCOMPARE(model.rowCount(), 2);
        // Descending by type: others (7) before folders (6).
        QCOMPARE(model.index(0, 0).data(262).toInt(), 7);
        QCOMPARE(model.index(0, 0).data(264).toString(), "0 B");
        QCOMPARE(model.index(1, 0).data(262).toInt(), 6);
        QCOMPARE(model.index(1, 0).data(264).toString(), "600 B");
    }

    void pathElision_data()
    {
        QTest::addColumn<QStringList>("folders");
        QTest::addColumn<int>("width");
        // What each folder of the group shows in a cell of that many average characters.
        QTest::addColumn<QStringList>("shown");
        const QStringList deep {"/home/ann/Pictures/Holidays 2019/Mountains/Day one",
            "/home/ann/Backup of the old laptop/Pictures/Holidays 2019/Mountains/Day one"};
        QTest::newRow("wide enough: whole") << deep << 200 << deep;
        QTest::newRow("narrow: the shared start goes, the difference stays")
            << deep << 48
            << QStringList {"…/ann/Pictures/Holidays 2019/Mountains/Day one",
                   "…/Backup of the old laptop/Pictures/Holidays 20…"};
        QTest::newRow("one folder for all: the middle goes")
            << QStringList {"/data/a/very/long/folder/name/here",
                   "/data/a/very/long/folder/name/here"}
            << 20 << QStringList {"/data/a/v…name/here", "/data/a/v…name/here"};
        QTest::newRow("different from the first segment") << QStringList {"/mnt/one/shared/part",
            "/srv/two/shared/part"} << 12 << QStringList {"/mnt/one/s…", "/srv/two/s…"};
    }
    void pathElision()
    {
        QFETCH(QStringList, folders);
        QFETCH(int, width);
        QFETCH(QStringList, shown);
        // A font whose every character has the same advance, so that widths are counts.
        QFont font(QStringLiteral("monospace"));
        font.setStyleHint(QFont::TypeWriter);
        const QFontMetrics metrics(font);
        const int from = PathElider::distinctFrom(folders);
        QStringList actual;
        for (const QString &folder : folders)
            actual << PathElider::elide(
                folder, from, metrics, metrics.horizontalAdvance(QString(width, QLatin1Char('x'))));
        if (metrics.horizontalAdvance(QStringLiteral("iiii"))
            != metrics.horizontalAdvance(QStringLiteral("MMMM")))
            QSKIP("no fixed-width font here");
        QCOMPARE(actual, shown);
    }

    void sizeText_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("bytes") << qint64(1023) << "1023 B";
        QTest::newRow("one KB") << qint64(1024) << "1 KB";
        QTest::newRow("truncated not rounded") << qint64(1024 + 1023) << "1.99 KB";
        QTest::newRow("MB") << qint64(1572864) << "1.5 MB";
        QTest::newRow("GB") << qint64(1073741824) * 3 << "3 GB";
    }
    void sizeText()
    {
        QFETCH(qint64, bytes);
        QFETCH(QString, text);
        QCOMPARE(TImageModel::sizeText(bytes), text);
    }

    void sortTieBreaks_data()
    {
        QTest::addColumn<int>("role");
        QTest::addColumn<bool>("descending");
        QTest::addColumn<QStringList>("order");
        // a: 3 files, 1 checked, type 1; b: 4, 2, type 1; c: 2, 2, type 2; d: 3, 2, type 3
        QTest::newRow("count ties by selected, ascending")
            << int(ByCount) << false << QStringList {"c", "a", "d", "b"};
        QTest::newRow("count ties by selected, descending")
            << int(ByCount) << true << QStringList {"b", "d", "a", "c"};
        QTest::newRow("type ties by count, descending")
            << int(ByType) << true << QStringList {"d", "c", "b", "a"};
        QTest::newRow("selected ties by count")
            << int(BySelected) << false << QStringList {"a", "c", "d", "b"};
        QTest::newRow("size") << int(BySize) << false << QStringList {"a", "c", "b", "d"};
        QTest::newRow("name") << int(ByName) << true << QStringList {"d", "c", "b", "a"};
    }
    void sortTieBreaks()
    {
        QFETCH(int, role);
        QFETCH(bool, descending);
        QFETCH(QStringList, order);
        TFileData *store = TFileData::instance();
        const QList<GroupItem> groups {group("b", 30, 4, 2, 1), group("a", 10, 3, 1, 1),
            group("d", 40, 3, 2, 3), group("c", 20, 2, 2, 2)};
        // Real groups in the store, so the model's own sort is what is checked.
        for (const GroupItem &g : groups) {
            // The suffix decides the type: 1 picture, 2 document, 3 audio.
            const QString suffix = g.type == 1 ? "png" : g.type == 2 ? "txt" : "mp3";
            QStringList paths;
            for (int i = 0; i < g.count; ++i)
                paths << writeFile(
                    QStringLiteral("sort/%1/%2/%1.%3").arg(g.name).arg(i).arg(suffix),
                    QByteArray(int(g.totalSize / g.count), char('a' + g.type)));
            store->insertGroup(g.name, paths);
            store->setSelected(g.name, paths.mid(0, g.selectedCount));
        }
        TImageModel model(TImageModel::ListView, 50);
        model.loadAllGroups(SortRole(role));
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        model.sort(SortRole(role), descending);
        QCOMPARE(changed.count(), 1);
        QStringList names;
        for (int i = 0; i < model.rowCount(); ++i)
            names << model.index(i, 0).data(258).toString();
        QCOMPARE(names, order);
        QVERIFY(!TImageModel::lessThan(groups[1], groups[0], SortRole(99)));
    }

    void chunkedFilterKeepsOrder()
    {
        // 2500 groups cut into chunks of 1000, 1000 and 500; every third one matches.
        TFileData *store = TFileData::instance();
        for (int i = 0; i < 2500; ++i) {
            const QString path
                = m_dir.filePath(QString::asprintf("%s_%04d.bin", i % 3 == 0 ? "Keep" : "drop", i));
            store->insertGroup(TFileData::groupKey(path), {path, path + QStringLiteral("x")});
        }
        TImageModel model(TImageModel::ListView, 50);
        model.loadAllGroups(ByName);
        model.sort(ByName, false);
        QCOMPARE(model.rowCount(), 2500);
        // The filters work on the master list, whose order is the load order.
        QStringList expected;
        for (const GroupItem &g : model.allGroups())
            if (g.name.contains(QStringLiteral("keep"), Qt::CaseInsensitive))
                expected << g.name;
        QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
        model.filterByName(QStringLiteral("kEEp"));
        QCOMPARE(reset.count(), 1);
        QStringList shown;
        for (int i = 0; i < model.rowCount(); ++i)
            shown << model.index(i, 0).data(261).toString();
        QCOMPARE(shown.size(), 834);
        QCOMPARE(shown, expected);

        model.filterByType(int(CategoryOthers));
        QCOMPARE(model.rowCount(), 2500);
        model.filterByType(int(CategoryImages));
        QCOMPARE(model.rowCount(), 0);
    }

    void filterByShow_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("minimum");
        QTest::addColumn<QStringList>("paths");
        QTest::newRow("not hidden")
            << 0 << 0 << QStringList {"/p/0", "/p/2", "/p/3", "/p/4", "/p/5"};
        QTest::newRow("checked above 30") << 1 << 30 << QStringList {"/p/2", "/p/4"};
        QTest::newRow("all above 60") << 2 << 60 << QStringList {"/p/3", "/p/4", "/p/5"};
        QTest::newRow("unknown mode leaves the list")
            << 9 << 0 << QStringList {"/p/0", "/p/1", "/p/2", "/p/3", "/p/4", "/p/5"};
    }
    void filterByShow()
    {
        QFETCH(int, mode);
        QFETCH(int, minimum);
        QFETCH(QStringList, paths);
        TImageModel model(TImageModel::IconView, 300);
        model.setItems(showItems());
        model.filterByShow(mode, minimum);
        QStringList shown;
        for (int i = 0; i < model.rowCount(); ++i)
            shown << model.index(i, 0).data(257).toString();
        QCOMPARE(shown, paths);
    }

    void removeDeletedFile_data()
    {
        QTest::addColumn<int>("members");
        QTest::addColumn<bool>("similarEntries");
        QTest::addColumn<int>("rowsLeft");
        QTest::addColumn<int>("countLeft");
        QTest::addColumn<bool>("restProtected");
        QTest::newRow("group of three keeps two") << 3 << false << 1 << 2 << false;
        QTest::newRow("last but one removes the group") << 2 << false << 0 << 0 << false;
        QTest::newRow("similar entries of the file go too") << 3 << true << 0 << 0 << false;
        QTest::newRow("protected copies only are left") << 3 << false << 0 << 0 << true;
    }
    void removeDeletedFile()
    {
        QFETCH(int, members);
        QFETCH(bool, similarEntries);
        QFETCH(int, rowsLeft);
        QFETCH(int, countLeft);
        QFETCH(bool, restProtected);
        QStringList paths;
        for (int i = 0; i < members; ++i)
            paths << writeFile(QStringLiteral("rm%1/f.dat").arg(i), QByteArray(100, 'q'));
        if (restProtected)
            TFileData::instance()->setProtectedFolders(
                ProtectedFolders({QFileInfo(paths[1]).path(), QFileInfo(paths[2]).path()}));
        const QString removed = paths.first();
        if (similarEntries)
            paths = {paths[0], GroupMember {paths[0], 97}.entry(), paths[1]};
        const QString key = TFileData::groupKey(paths.first());
        TFileData::instance()->insertGroup(key, paths);
        // A second group keeps the model from being empty by accident.
        const QString x = writeFile(QStringLiteral("other/x.dat"), "xx");
        const QString y = writeFile(QStringLiteral("other/y.dat"), "xx");
        TFileData::instance()->insertGroup(TFileData::groupKey(x), {x, y});

        TImageModel model(TImageModel::ListView, 50);
        model.loadAllGroups(ByName);
        QCOMPARE(model.rowCount(), 2);
        QFile::remove(removed);
        model.removeDeletedFile(key, removed);
        model.removeDeletedFile(QStringLiteral("no such key"), removed);
        int rows = 0;
        int count = 0;
        for (const GroupItem &g : model.displayedGroups()) {
            if (g.key == key) {
                ++rows;
                count = g.count;
                QCOMPARE(g.totalSize, 200);
                QVERIFY(!g.files.contains(removed));
            }
        }
        QCOMPARE(rows, rowsLeft);
        QCOMPARE(count, countLeft);
        QCOMPARE(model.allGroups().size(), model.displayedGroups().size());
        TFileData::instance()->setProtectedFolders({});
    }

    void removeRowsRange_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("negative row") << -1 << 1 << false;
        QTest::newRow("past the end") << 2 << 2 << false;
        QTest::newRow("last two") << 1 << 2 << true;
    }
    void removeRowsRange()
    {
        QFETCH(int, row);
        QFETCH(int, count);
        QFETCH(bool, accepted);
        TImageModel model(TImageModel::IconView, 300);
        model.setItems(showItems().mid(0, 3));
        QCOMPARE(model.removeRows(row, count), accepted);
        QCOMPARE(model.rowCount(), accepted ? 3 - count : 3);
        QCOMPARE(model.allItems().size(), model.rowCount());
    }

    void itemRolesAndCheckState()
    {
        const QString picture = writePicture(QStringLiteral("shot.png"), 64, 48);
        QList<ImageItem> items;
        ImageItem a;
        a.key = QStringLiteral("G");
        a.groupIndex = 4;
        a.path = picture;
        a.size = 2048;
        a.type = CategoryImages;
        a.similarity = 93;
        a.displayName = QStringLiteral("shot");
        ImageItem b = a;
        b.path = m_dir.filePath(QStringLiteral("missing.png"));
        b.dateText = QStringLiteral("2020/01/02 03:04:05");
        b.checked = true;
        items << a << b;
        TImageModel model(TImageModel::IconView, 300);
        model.setItems(items);

        QCOMPARE(model.index(0, 0).data().toInt(), 0);
        QCOMPARE(model.index(1, 0).data().toInt(), 2);
        QCOMPARE(model.index(1, 0).data(Qt::CheckStateRole).toInt(), 2);
        QCOMPARE(model.index(0, 1).data().toString(), picture);
        QCOMPARE(model.index(0, 2).data().toString(), "2 KB");
        QCOMPARE(model.index(0, 3).data().toString(),
            QFileInfo(picture).lastModified().toString(QStringLiteral("yyyy/MM/dd HH:mm:ss")));
        QCOMPARE(model.index(1, 3).data().toString(), b.dateText);
        QVERIFY(model.index(0, 4).data(Qt::DecorationRole).canConvert<QIcon>());
        QCOMPARE(model.index(0, 0).data(267).toString(), "64x48");
        QCOMPARE(model.index(1, 0).data(267).toString(), "-x-");
        QCOMPARE(model.index(0, 2).data(273).toInt(), 93);
        model.setNameMode(1);
        QCOMPARE(model.index(0, 1).data().toString(), "shot");

        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        QSignalSpy selected(&model, &TImageModel::onItemSelectedChange);
        // Same value: refused and silent.
        QVERIFY(!model.setData(model.index(1, 0), 2, Qt::CheckStateRole));
        QCOMPARE(changed.count(), 0);
        QCOMPARE(selected.count(), 0);
        // Check state only in column 0; role 270 anywhere.
        QVERIFY(!model.setData(model.index(0, 2), 2, Qt::CheckStateRole));
        QVERIFY(model.setData(model.index(0, 2), true, 270));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected.at(0).at(1).toString(), picture);
        QCOMPARE(selected.at(0).at(3).toInt(), 4);
        QVERIFY(model.allItems().at(0).checked);
        // With notify the selection is reported although nothing changed.
        QVERIFY(!model.setData(model.index(0, 0), 2, Qt::CheckStateRole, true));
        QCOMPARE(selected.count(), 2);
        QCOMPARE(changed.count(), 1);
    }

    void refreshSelectionFromStore()
    {
        const QString a = writeFile(QStringLiteral("s/a.txt"), "same");
        const QString b = writeFile(QStringLiteral("s/b.txt"), "same");
        const QString key = TFileData::groupKey(a);
        TFileData::instance()->insertGroup(key, {a, b});
        TImageModel groups(TImageModel::ListView, 50);
        groups.loadAllGroups(ByName);
        QCOMPARE(groups.index(0, 0).data(266).toInt(), 0);

        TImageModel items(TImageModel::IconView, 300);
        items.setItems({ImageItem {key, 0, a}, ImageItem {key, 0, b}});

        TFileData::instance()->setSelected(key, {b});
        groups.refreshGroupSelection({groups.index(0, 0)});
        QCOMPARE(groups.index(0, 0).data(266).toInt(), 1);
        QCOMPARE(groups.allGroups().at(0).selectedCount, 1);
        QSignalSpy changed(&items, &QAbstractItemModel::dataChanged);
        items.refreshItemSelection();
        QCOMPARE(changed.count(), 1);
        QVERIFY(!items.index(0, 0).data(270).toBool());
        QVERIFY(items.index(1, 0).data(270).toBool());
    }

    void thumbnailLoadsAndCancels()
    {
        const QString picture = writePicture(QStringLiteral("thumb.png"), 300, 200);
        QList<ImageItem> list;
        for (int i = 0; i < 3; ++i) {
            ImageItem item;
            item.key = QStringLiteral("T");
            item.path = i == 0 ? picture : m_dir.filePath(QStringLiteral("none%1.png").arg(i));
            item.type = CategoryImages;
            list << item;
        }
        TImageModel model(TImageModel::IconView, 300);
        model.setItems(list);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        const QVariant first = model.index(0, 0).data(260);
        QVERIFY(first.value<QPixmap>().isNull());
        QCOMPARE(model.pendingLoadCount(), 1);
        QTRY_VERIFY(model.hasThumbnail(picture));
        QTRY_COMPARE(model.pendingLoadCount(), 0);
        QVERIFY(!changed.isEmpty());
        QVERIFY(!model.index(0, 0).data(260).value<QPixmap>().isNull());

        // Rows that left the view lose their pending loads.
        model.index(1, 0).data(260);
        model.index(2, 0).data(260);
        model.cancelPendingLoads(2, 2);
        QVERIFY(model.pendingLoadCount() <= 1);
        QTRY_COMPARE(model.pendingLoadCount(), 0);
    }

private:
    QString writeFile(const QString &name, const QByteArray &content)
    {
        return ScanTree::write(m_dir.path(), name, content);
    }
    QString writePicture(const QString &name, int w, int h)
    {
        QImage image(w, h, QImage::Format_RGB32);
        image.fill(QColor(30, 140, 200));
        const QString path = m_dir.filePath(name);
        if (!image.save(path))
            qFatal("cannot save %s", qPrintable(path));
        return path;
    }
    QTemporaryDir m_dir;
};

QTEST_MAIN(tst_TImageModel)
#include "tst_TImageModel.moc"
