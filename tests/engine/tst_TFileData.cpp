// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/TFileData.h"

#include <QtConcurrent>
#include <QtTest>

class TestTFileData : public QObject
{
    Q_OBJECT
private:
    TFileData *store() { return TFileData::instance(); }

private slots:
    void init() { store()->clear(); }

    // The count returned is that of the selection left; a group left with none loses its key.
    void updateSelected_data()
    {
        QTest::addColumn<QStringList>("initial"); // empty: nothing selected yet
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("add");
        QTest::addColumn<QStringList>("after");
        using L = QStringList;
        QTest::newRow("add to unselected group does nothing") << L() << "/a" << true << L();
        QTest::newRow("remove from unselected group") << L() << "/a" << false << L();
        QTest::newRow("add appends") << L {"/a"} << "/b" << true << L {"/a", "/b"};
        QTest::newRow("add twice keeps one") << L {"/a"} << "/a" << true << L {"/a"};
        QTest::newRow("add is case-sensitive") << L {"/a"} << "/A" << true << L {"/a", "/A"};
        QTest::newRow("remove one of two") << L {"/a", "/b"} << "/a" << false << L {"/b"};
        QTest::newRow("remove the last drops the key") << L {"/a"} << "/a" << false << L();
    }
    void updateSelected()
    {
        QFETCH(QStringList, initial);
        QFETCH(QString, path);
        QFETCH(bool, add);
        QFETCH(QStringList, after);
        if (!initial.isEmpty())
            store()->setSelected("K", initial);
        QCOMPARE(store()->updateSelected("K", path, add), int(after.size()));
        QCOMPARE(store()->selectedOf("K"), after);
        QCOMPARE(store()->selected().contains("K"), !after.isEmpty());
        QCOMPARE(store()->selectedCount("K"), int(after.size()));
        QCOMPARE(store()->isSelected("K", path), after.contains(path));
    }

    void imageGroupsLookAtTheFirstPathOnly()
    {
        store()->insertGroup("A", {"/x/a.JPG", "/x/a.txt"});
        store()->insertGroup("B", {"/x/b.txt", "/x/b.png"});
        store()->insertGroup("C", {"/x/c.heic", "/y/c.heic"});
        const auto images = store()->imageGroups();
        QCOMPARE(images.keys().size(), 2);
        QCOMPARE(images.value("A"), QStringList({"/x/a.JPG", "/x/a.txt"}));
        QVERIFY(images.contains("C") && !images.contains("B"));
    }

    void removePathDropsGroupsOfOne()
    {
        store()->insertGroup("G", {"/a", "/b", "/c"});
        store()->setSelected("G", {"/b", "/c"});
        QVERIFY(store()->removePath("G", "/b"));
        QCOMPARE(store()->selectedOf("G"), QStringList {"/c"});
        QVERIFY(!store()->isSelected("G", "/b") && store()->isSelected("G", "/c"));
        QVERIFY(!store()->removePath("G", "/c"));
        QVERIFY(!store()->isSelected("G", "/c"));
        QVERIFY(!store()->groups().contains("G"));
        QVERIFY(!store()->selected().contains("G"));
    }

    void concurrentWritersAllLand()
    {
        QList<int> ids(2000);
        std::iota(ids.begin(), ids.end(), 0);
        QtConcurrent::blockingMap(ids, [this](int id) {
            const QString key = QString::number(id);
            store()->insertGroup(key, {"/a/" + key, "/b/" + key});
            store()->setSelected(key, {"/b/" + key});
            store()->updateSelected(key, "/a/" + key, true);
        });
        QCOMPARE(store()->groups().size(), 2000);
        for (int id : {0, 999, 1999})
            QCOMPARE(store()->selectedCount(QString::number(id)), 2);
    }
};

QTEST_GUILESS_MAIN(TestTFileData)
#include "tst_TFileData.moc"
