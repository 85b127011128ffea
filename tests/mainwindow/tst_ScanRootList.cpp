// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/ScanRootList.h"

#include <QDir>
#include <QFile>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

class tst_ScanRootList : public QObject
{
    Q_OBJECT
private slots:
    void pruneNested_data();
    void pruneNested();
    void droppedFolders();
};

void tst_ScanRootList::pruneNested_data()
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

void tst_ScanRootList::pruneNested()
{
    QFETCH(QStringList, roots);
    QFETCH(QStringList, kept);
    QCOMPARE(ScanRootList::pruneNested(roots), kept);
}

void tst_ScanRootList::droppedFolders()
{
    QTemporaryDir dir;
    QDir(dir.path()).mkpath(QStringLiteral("folder"));
    const QString file = dir.filePath(QStringLiteral("file.txt"));
    QFile(file).open(QIODevice::WriteOnly);
    const QString folder = dir.filePath(QStringLiteral("folder"));

    // A drop of a file enters, so that the window can say it is not a folder; a drop of
    // nothing that exists does not.
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(file), QUrl::fromLocalFile(dir.filePath("missing"))});
    QVERIFY(ScanRootList::acceptsDrag(&files));
    QVERIFY(ScanRootList::droppedFolders(&files).isEmpty());
    const ScanRootList::SortedPaths sorted
        = ScanRootList::sortPaths(ScanRootList::droppedPaths(&files));
    QCOMPARE(sorted.files, QStringList {file});
    QCOMPARE(sorted.missing, QStringList {dir.filePath("missing")});
    QMimeData missing;
    missing.setUrls({QUrl::fromLocalFile(dir.filePath("missing"))});
    QVERIFY(!ScanRootList::acceptsDrag(&missing));

    QMimeData remote;
    remote.setUrls({QUrl(QStringLiteral("https://example.org/folder/"))});
    QVERIFY(!ScanRootList::acceptsDrag(&remote));

    QMimeData mixed;
    mixed.setUrls({QUrl::fromLocalFile(file), QUrl::fromLocalFile(folder)});
    QVERIFY(ScanRootList::acceptsDrag(&mixed));
    QCOMPARE(ScanRootList::droppedFolders(&mixed), QStringList {folder});

    QMimeData text;
    text.setText(folder);
    QVERIFY(!ScanRootList::acceptsDrag(&text));
}

QTEST_MAIN(tst_ScanRootList)
#include "tst_ScanRootList.moc"
