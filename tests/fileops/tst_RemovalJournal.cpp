// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/FilePathCodec.h"
#include "fileops/RemovalJournal.h"

#include <QFile>
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
};

QTEST_GUILESS_MAIN(TestRemovalJournal)
#include "tst_RemovalJournal.moc"
