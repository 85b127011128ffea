// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ScanTree.h"
#include "mainwindow/ScanRootList.h"

#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

class tst_ScanRootList : public QObject
{
    Q_OBJECT
private slots:
    void pruneNested_data()
    {
        QTest::addColumn<QStringList>("roots");
        QTest::addColumn<QStringList>("kept");
        QTest::newRow("child after parent") << QStringList {"/a", "/a/b"} << QStringList {"/a"};
        QTest::newRow("child before parent")
            << QStringList {"/a/b/c", "/x", "/a"} << QStringList {"/x", "/a"};
        QTest::newRow("name prefix is not a parent")
            << QStringList {"/data", "/data2"} << QStringList {"/data", "/data2"};
        QTest::newRow("case-sensitive")
            << QStringList {"/Photos", "/photos/2020"} << QStringList {"/Photos", "/photos/2020"};
        QTest::newRow("several children")
            << QStringList {"/a/1", "/a", "/a/2", "/b"} << QStringList {"/a", "/b"};
        QTest::newRow("the file system root") << QStringList {"/", "/home"} << QStringList {"/"};
    }
    void pruneNested()
    {
        QFETCH(QStringList, roots);
        QFETCH(QStringList, kept);
        QCOMPARE(ScanRootList::pruneNested(roots), kept);
    }

    // The window's drop tests cover folders, files and missing paths; these are the drops that
    // never come from a local file manager.
    void droppedFolders()
    {
        QTemporaryDir dir;
        const QString file = ScanTree::write(dir.path(), QStringLiteral("file.txt"), "x");
        const ScanRootList::SortedPaths sorted
            = ScanRootList::sortPaths({file, dir.filePath(QStringLiteral("missing"))});
        QCOMPARE(sorted.files, QStringList {file});
        QCOMPARE(sorted.missing, QStringList {dir.filePath(QStringLiteral("missing"))});

        QMimeData remote;
        remote.setUrls({QUrl(QStringLiteral("https://example.org/folder/"))});
        QVERIFY(!ScanRootList::acceptsDrag(&remote));
        QMimeData text;
        text.setText(dir.path());
        QVERIFY(!ScanRootList::acceptsDrag(&text));
    }
};

QTEST_MAIN(tst_ScanRootList)
#include "tst_ScanRootList.moc"
