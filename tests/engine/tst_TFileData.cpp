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

    // "/a/b" protects what lies in it at any depth and a folder that holds it, nothing
    // that merely shares its name's start.
    void protectedPaths_data()
    {
        QTest::addColumn<QStringList>("folders");
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("protects");
        const QStringList ab {"/a/b"};
        QTest::newRow("the folder itself") << ab << "/a/b" << true;
        QTest::newRow("deep inside") << ab << "/a/b/c/d.jpg" << true;
        QTest::newRow("a name that starts alike") << ab << "/a/bc" << false;
        QTest::newRow("a name that starts alike, inside") << ab << "/a/bc/d" << false;
        QTest::newRow("a folder holding it") << ab << "/a" << true;
        QTest::newRow("a sibling") << ab << "/a/c" << false;
        QTest::newRow("a given folder is cleaned") << QStringList {"/a/./b/"} << "/a/b/x" << true;
        QTest::newRow("a path is cleaned") << ab << "/a/c/../b/x" << true;
        QTest::newRow("the root protects all") << QStringList {"/"} << "/x/y" << true;
        QTest::newRow("nothing protected") << QStringList() << "/a/b/c" << false;
    }
    void protectedPaths()
    {
        QFETCH(QStringList, folders);
        QFETCH(QString, path);
        QFETCH(bool, protects);
        QCOMPARE(ProtectedFolders(folders).protects(path), protects);
        store()->setProtectedFolders(ProtectedFolders(folders));
        QCOMPARE(store()->protectedFolders().protectsEvery({path + "_simlar_90"}), protects);
        store()->setProtectedFolders({});
    }

    // The store keeps protected members out of every selection, whichever way it comes.
    void protectedMembersAreNeverSelected()
    {
        const QStringList group {"/archive/a", "/down/a", "/down/b (1)"};
        store()->insertGroup("G", group);
        store()->setSelected("G", {"/archive/a", "/down/a"});
        store()->setProtectedFolders(ProtectedFolders({"/archive"}));
        QCOMPARE(store()->selectedOf("G"), QStringList {"/down/a"});
        QCOMPARE(store()->updateSelected("G", "/archive/a", true), 1);
        QVERIFY(!store()->isSelected("G", "/archive/a"));
        store()->setSelected("G", group);
        QCOMPARE(store()->selectedOf("G"), (QStringList {"/down/a", "/down/b (1)"}));
        store()->setSelected("G", {"/archive/a"});
        QVERIFY(!store()->selected().contains("G"));
        store()->replaceAll({{"G", group}}, {}, {{"G", group}});
        QCOMPARE(store()->selectedCount("G"), 2);
        // Only the unprotected copies could go: the archive's both stay.
        store()->insertGroup("H", {"/archive/x", "/archive/sub/x", "/down/x"});
        QCOMPARE(store()->removable().count, 2 + 1);
        store()->clear();
        QCOMPARE(store()->protectedFolders().folders(), QStringList {"/archive"});
        store()->setProtectedFolders({});
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
