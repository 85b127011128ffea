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

    void stripSimilarTag_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("stripped");
        const char *const rows[][3]
            = {{"tagged", "abc_simlar_12", "abc"}, {"path", "/p/q r.jpg_simlar_100", "/p/q r.jpg"},
                {"no digits", "abc_simlar_", "abc_simlar_"},
                {"trailing letter", "abc_simlar_1x", "abc_simlar_1x"},
                {"plain", "/a/b.jpg", "/a/b.jpg"},
                {"tag twice keeps first", "a_simlar_1_simlar_2", "a_simlar_1"},
                {"case-sensitive", "abc_SIMLAR_3", "abc_SIMLAR_3"}};
        for (const auto &row : rows)
            QTest::newRow(row[0]) << QString(row[1]) << QString(row[2]);
    }
    void stripSimilarTag()
    {
        QFETCH(QString, entry);
        QFETCH(QString, stripped);
        QCOMPARE(::stripSimilarTag(entry), stripped);
        QStringList list {entry, QStringLiteral("plain")};
        ::stripSimilarTag(list);
        QCOMPARE(list, QStringList({stripped, QStringLiteral("plain")}));
    }
};

QTEST_GUILESS_MAIN(TestFileTypeCatalogue)
#include "tst_FileTypeCatalogue.moc"
