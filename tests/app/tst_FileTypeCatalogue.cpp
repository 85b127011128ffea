// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/FileTypeCatalogue.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

class TestFileTypeCatalogue : public QObject
{
    Q_OBJECT
private slots:
    void getFileType_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<int>("category");
        QTest::newRow("lower") << "jpg" << 1;
        QTest::newRow("upper") << "JPG" << 1;
        QTest::newRow("mixed") << "Jpg" << 1;
        QTest::newRow("ra is an image, not audio") << "ra" << 1;
        QTest::newRow("document repeat") << "rtf" << 2;
        QTest::newRow("audio") << "FLAC" << 3;
        QTest::newRow("video") << "m2ts" << 5;
        QTest::newRow("exr is in no list") << "exr" << 7;
        QTest::newRow("me2 raw only") << "me2" << 7;
        QTest::newRow("unknown") << "xyz" << 7;
        QTest::newRow("empty") << "" << 7;
    }
    void getFileType()
    {
        QFETCH(QString, suffix);
        QFETCH(int, category);
        QCOMPARE(::getFileType(suffix), category);
    }

    void categoryOfMimeType_data()
    {
        QTest::addColumn<QString>("mimeType");
        QTest::addColumn<int>("category");
        QTest::newRow("folder") << "inode/directory" << 6;
        QTest::newRow("picture") << "image/jpeg" << 1;
        QTest::newRow("sound in a video container") << "audio/mpeg" << 3;
        QTest::newRow("video in a sound container") << "video/ogg" << 5;
        QTest::newRow("subtype names the extension") << "application/pdf" << 2;
        QTest::newRow("x- prefix and + suffix") << "application/x-epub+zip" << 2;
        QTest::newRow("text") << "text/plain" << 2;
        QTest::newRow("unknown") << "application/octet-stream" << 7;
        QTest::newRow("empty") << "" << 7;
    }
    void categoryOfMimeType()
    {
        QFETCH(QString, mimeType);
        QFETCH(int, category);
        QCOMPARE(::categoryOfMimeType(mimeType), category);
    }

    void imageFilesAndFormatSets()
    {
        QVERIFY(isImageFile("/a/b/photo.HEIC"));
        QVERIFY(isImageFile("C:/x/y.raw"));
        QVERIFY(!isImageFile("/a/b/photo"));
        QVERIFY(!isImageFile("/a/b.jpg/notes.txt"));
        QVERIFY(isRawFormat("DNG") && isRawFormat("me2") && !isRawFormat("raw"));
        QVERIFY(isHeifFormat("heif") && !isHeifFormat("avif"));
        QVERIFY(isSimilarExcludedFormat("EXR") && isSimilarExcludedFormat("gif"));
        QVERIFY(!isSimilarExcludedFormat("jpg"));
        QVERIFY(!FileTypeCatalogue::categoryExtensions().contains(4));
    }

    void directoriesAreFolders()
    {
        QTemporaryDir root;
        QVERIFY(QDir(root.path()).mkdir("album.jpg"));
        QCOMPARE(getPathCategory(root.filePath("album.jpg")), int(CategoryFolders));
        QCOMPARE(getPathCategory(root.filePath("missing.jpg")), int(CategoryImages));
    }
};

QTEST_GUILESS_MAIN(TestFileTypeCatalogue)
#include "tst_FileTypeCatalogue.moc"
