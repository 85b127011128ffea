// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/FilePathCodec.h"
#include "engine/FileStamp.h"
#include "engine/ScanTree.h"
#include "fileops/RemovalJournal.h"
#include "fileops/RemovalRestorer.h"
#include "fileops/TFileDeleter.h"
#include "platform/Platform.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestRemovalJournal : public QObject
{
    Q_OBJECT
private slots:
    // A journal line's paths come back byte for byte; one holding a NUL byte is never
    // cut short there and acted on.
    void pathsReadBack_data()
    {
        QTest::addColumn<QByteArray>("fields"); // of the item line
        QTest::addColumn<QString>("result");
        QTest::addColumn<QByteArray>("path");
        QTest::newRow("bytes that are not UTF-8")
            << QByteArray(R"("path":"/a/caf?","pathBytes":"/a/caf%E9","to":"/t/x")") << "removed"
            << QByteArray("/a/caf\xe9");
        QTest::newRow("NUL in pathBytes")
            << QByteArray(R"("path":"/a/x","pathBytes":"/a/x%00/y","to":"/t/x")") << "failed"
            << QByteArray();
        QTest::newRow("NUL in toBytes")
            << QByteArray(R"("path":"/a/x","to":"/t/x","toBytes":"/t/x%00y")") << "failed"
            << QByteArray("/a/x");
        QTest::newRow("NUL in plain path")
            << QByteArray(R"("path":"/a/x\u0000y","to":"/t/x")") << "failed" << QByteArray();
    }
    void pathsReadBack()
    {
        QFETCH(QByteArray, fields);
        QFETCH(QString, result);
        QFETCH(QByteArray, path);
        QTemporaryDir dir;
        QFile file(dir.filePath("journal.jsonl"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(R"({"batch":"B","event":"begin","method":"trash","items":1})"
                   "\n"
                   R"({"batch":"B","event":"item","method":"trash","result":"removed",)"
            + fields + "}\n" + R"({"batch":"B","event":"end"})" + "\n");
        file.close();
        const RemovalJournal::Batch batch = RemovalJournal(file.fileName()).batches().value(0);
        QCOMPARE(batch.items.size(), 1);
        const RemovalJournal::Item &item = batch.items.first();
        QCOMPARE(item.result, result);
        QCOMPARE(FilePathCodec::encode(item.path), path);
        QVERIFY(!item.destination.contains(QChar(0)));
    }

    // A batch cut off between an item's intent and its outcome: restore looks for the item
    // where the act would have left it.
    void restoreWithoutOutcome_data()
    {
        QTest::addColumn<QString>("where");
        QTest::newRow("under its private name") << "private";
        QTest::newRow("in the trash") << "trash";
        QTest::newRow("in the target folder, name taken there") << "move";
        QTest::newRow("never moved") << "place";
    }
    void restoreWithoutOutcome()
    {
        QFETCH(QString, where);
        QTemporaryDir dir;
        qputenv("XDG_DATA_HOME", QFile::encodeName(dir.filePath("data")));
        const QByteArray bytes = ScanTree::pattern(7000, 4);
        const QString path = ScanTree::write(dir.path(), "a/photo.jpg", bytes);
        const QString hidden = dir.filePath("a/.veltrine-removing-00");
        const QString target = dir.filePath("moved");
        const FileStamp stamp = FileStamp::of(path);
        const QString method = where == "trash" ? "trash" : "move";
        RemovalJournal journal(dir.filePath("journal.jsonl"));
        QVERIFY(journal.begin(method, 1, where == "move" ? target : QString()));
        QVERIFY(journal.intent(0, method, path, hidden, stamp.size, stamp.modifiedNs));
        journal.end(15);
        int error = 0;
        QString placed;
        if (where == "private") {
            QVERIFY(QFile::rename(path, hidden));
        } else if (where == "trash") {
            QVERIFY(QFile::rename(path, hidden));
            std::string trashed;
            QCOMPARE(platform::current().moveToTrash(QFile::encodeName(hidden).toStdString(),
                         trashed, QFile::encodeName(path).toStdString()),
                0);
        } else if (where == "move") {
            ScanTree::write(target, "photo.jpg", "another photo.jpg, not ours");
            QVERIFY(TFileDeleter::moveIntoFolder(path, target, placed, error));
            QCOMPARE(placed, target + "/photo (2).jpg");
        }
        QList<DeleteResult> results;
        RemovalRestorer restorer(journal);
        QVERIFY2(restorer.restore({}, results), qPrintable(restorer.error()));
        QCOMPARE(results.size(), 1);
        QVERIFY2(results.first().success, qPrintable(results.first().reason));
        QCOMPARE(ScanTree::read(path), bytes);
        if (where == "move")
            QCOMPARE(
                ScanTree::read(target + "/photo.jpg"), QByteArray("another photo.jpg, not ours"));
        // Done once: nothing is left to restore.
        QVERIFY(!restorer.restore({}, results));
    }

    // A line a full disk or a crash cut short does not swallow the next batch's first line.
    void unfinishedLineLeavesTheNextBatchWhole()
    {
        QTemporaryDir dir;
        QFile file(dir.filePath("journal.jsonl"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        // The first batch's second line ends in the middle of a key.
        file.write("{\"batch\":\"cut\",\"event\":\"begin\",\"method\":\"trash\",\"items\":1}\n"
                   "{\"batch\":\"cut\",\"ev");
        file.close();
        RemovalJournal journal(file.fileName());
        QVERIFY(journal.begin("trash", 1));
        DeleteResult trashed {"/a/x"};
        trashed.destination = "/t/files/x";
        QVERIFY(journal.record("trash", trashed, RemovalJournal::removed, 0));
        QVERIFY(journal.end());
        QCOMPARE(journal.lastBatch().id, journal.batchId());
    }

    // A batch that removed for good is listed but never restored, and does not hide an
    // earlier batch that can be.
    void permanentBatchDoesNotShadow()
    {
        QTemporaryDir dir;
        RemovalJournal journal(dir.filePath("journal.jsonl"));
        QVERIFY(journal.begin("trash", 1));
        DeleteResult trashed {"/a/x"};
        trashed.destination = "/t/files/x";
        QVERIFY(journal.record("trash", trashed, RemovalJournal::removed, 0));
        QVERIFY(journal.end());
        QVERIFY(journal.begin("permanent", 1));
        QVERIFY(journal.record("permanent", DeleteResult {"/a/y"}, RemovalJournal::removed, 0));
        QVERIFY(journal.end());
        const QList<RemovalJournal::Batch> batches = journal.batches();
        QCOMPARE(batches.size(), 2);
        QVERIFY(!batches.last().restorable());
        QCOMPARE(journal.lastBatch().id, batches.first().id);
    }
};

QTEST_GUILESS_MAIN(TestRemovalJournal)
#include "tst_RemovalJournal.moc"
