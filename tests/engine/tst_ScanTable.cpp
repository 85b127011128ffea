// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScanTree.h"
#include "engine/DuplicateFileFinder.h"
#include "engine/FilePathCodec.h"
#include "engine/ScanTable.h"
#include "engine/TFileData.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <QtTest>

namespace {

// Creates folder/name with the given bytes; the name is raw file-system bytes.
bool writeRaw(const QByteArray &folder, const QByteArray &name, const QByteArray &data)
{
    ::mkdir(folder.constData(), 0755);
    const QByteArray path = folder + '/' + name;
    const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd < 0)
        return false;
    const bool ok = ::write(fd, data.constData(), size_t(data.size())) == data.size();
    ::close(fd);
    return ok;
}

} // namespace

class TestScanTable : public QObject
{
    Q_OBJECT
private slots:
    void oddNames_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("plain") << QByteArray("plain.bin");
        QTest::newRow("spaces and shell characters") << QByteArray(" a b;$(x)&'\"`.txt");
        QTest::newRow("emoji") << QByteArray("photo \xF0\x9F\x98\x80.jpg");
        QTest::newRow("decomposed accent") << QByteArray("e\xCC\x81t\xC3\xA9");
        QTest::newRow("not UTF-8") << QByteArray("bad \xFF\xFE\x80 byte");
        QTest::newRow("lone continuation byte at the end") << QByteArray("tail\xC3");
        QTest::newRow("leading dash") << QByteArray("-rf");
        QTest::newRow("255 bytes") << QByteArray(251, 'n') + ".bin";
        QTest::newRow("new line") << QByteArray("two\nlines");
    }
    void oddNames()
    {
        QFETCH(QByteArray, name);
        QTemporaryDir dir;
        const QByteArray root = QFile::encodeName(dir.path());
        const QByteArray content = ScanTree::pattern(20000, 5);
        QVERIFY(writeRaw(root + "/a", name, content));
        QVERIFY(writeRaw(root + "/b", name, content));
        QVERIFY(writeRaw(root + "/b", "other", ScanTree::pattern(20000, 6)));

        ScanTable table = ScanTree::walk(dir.path());
        QCOMPARE(table.fileCount(), qsizetype(3));
        QStringList expected;
        for (quint32 i = 0; i < quint32(table.fileCount()); ++i) {
            // The path shown and the bytes opened stay one and the same file.
            QCOMPARE(FilePathCodec::encode(table.filePath(i)), table.nativePath(i));
            QCOMPARE(FilePathCodec::encode(table.fileName(i)), QByteArray(table.nativeName(i)));
            QVERIFY2(::access(table.nativePath(i).constData(), R_OK) == 0,
                table.nativePath(i).constData());
            if (QByteArray(table.nativeName(i)) == name)
                expected.append(table.filePath(i));
        }
        QCOMPARE(expected.size(), 2);
        expected.sort();
        QCOMPARE(expected.first(), FilePathCodec::decode(root + "/a/" + name));

        // The finder opens every file by the table's bytes: the pair is found in both modes.
        for (int method : {0, 2}) {
            TFileData::instance()->clear();
            DuplicateFileFinder finder;
            finder.applyConfig({{"scanMethod", method}, {"duplicateSelectHint", 8}});
            finder.setInput(table);
            finder.start();
            finder.wait();
            const QList<QStringList> groups = TFileData::instance()->groups().values();
            QCOMPARE(groups.size(), 1);
            QStringList found = groups.first();
            found.sort();
            QCOMPARE(found, expected);
        }
    }

    void pathsGivenWhole_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("nested") << QStringLiteral("/tmp/x/y/z.bin");
        QTest::newRow("file in the root folder") << QStringLiteral("/z.bin");
        QTest::newRow("escaped byte") << FilePathCodec::decode(QByteArray("/tmp/\xFF/n\xFE"));
        QTest::newRow("surrogate pair") << QString::fromUtf8("/tmp/\xF0\x9F\x98\x80/a");
    }
    void pathsGivenWhole()
    {
        QFETCH(QString, path);
        ScanTable table;
        table.append(FileMeta {10, path, 2});
        table.append(FileMeta {5, path + QStringLiteral(".2"), 2});
        table.append(FileMeta {10, QStringLiteral("/elsewhere/f"), 0});
        QCOMPARE(table.fileCount(), qsizetype(3));
        QCOMPARE(table.folderCount(), qsizetype(2));
        QCOMPARE(table.filePath(0), path);
        QCOMPARE(table.nativePath(0), FilePathCodec::encode(path));
        QCOMPARE(table.filePath(1), path + QStringLiteral(".2"));
        QCOMPARE(table.folder(table.file(2).folder).driveType, 0);
        // Grouped by size, arrival order kept within a size.
        QCOMPARE(table.bySize(), (std::vector<quint32> {1, 0, 2}));
    }
};

QTEST_GUILESS_MAIN(TestScanTable)
#include "tst_ScanTable.moc"
