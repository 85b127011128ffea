// SPDX-License-Identifier: GPL-3.0-or-later
#include "CliRunner.h"
#include "TestEnvironment.h"
#include "engine/ScanTree.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

// The careful workflow as a user runs it: scan and save, look, act, and take it back.
class TestCliRemove : public QObject
{
    Q_OBJECT
private slots:
    void scanSaveRemoveRestore_data()
    {
        QTest::addColumn<QStringList>("method");
        QTest::newRow("trash") << QStringList {"--method", "trash"};
        QTest::newRow("move") << QStringList {"--method", "move", "--to", "moved"};
        QTest::newRow("permanent") << QStringList {"--method", "permanent"};
    }
    void scanSaveRemoveRestore()
    {
        QFETCH(QStringList, method);
        QTemporaryDir dir;
        const QString root = dir.path() + "/tree";
        const QByteArray x = ScanTree::pattern(40000, 1);
        const QByteArray y = ScanTree::pattern(30000, 2);
        for (const char *folder : {"a", "b", "c"})
            ScanTree::write(root, QString("%1/x.bin").arg(folder), x);
        ScanTree::write(root, "a/y.bin", y);
        ScanTree::write(root, "b/y.bin", y);
        const QString project = dir.path() + "/p.dupproj";
        QCOMPARE(runCli({"scan", "--method", "full", "--save", project, root}).exitCode, 0);
        // Edited after the scan: this copy must survive, and so must its partner.
        QByteArray edited = y;
        edited[5] = char(edited[5] ^ 1);
        ScanTree::write(root, "a/y.bin", edited);
        if (method.contains("--to"))
            method.last() = dir.path() + "/moved";

        const CliRun dry = runCli(QStringList {"remove", project, "--dry-run"} + method);
        QCOMPARE(dry.exitCode, 5);
        QVERIFY(dry.out.contains("would remove"));
        QVERIFY(dry.err.contains("would skip"));
        QVERIFY(QFileInfo::exists(root + "/c/x.bin"));

        const CliRun remove = runCli(QStringList {"remove", project, "--json"} + method);
        QCOMPARE(remove.exitCode, 5);
        const QJsonObject report = QJsonDocument::fromJson(remove.out).object();
        QCOMPARE(report.value("handled").toInt(), 2);
        QCOMPARE(report.value("notHandled").toInt(), 1);
        // Whichever y the rule selected, the edit keeps both: the edited one has changed
        // since the scan, the other's kept copy no longer matches.
        QVERIFY2(remove.err.contains("changed since the scan")
                || remove.err.contains("content differs from the kept copy"),
            remove.err.constData());
        // The default rule keeps one x, and both y stay.
        int xLeft = 0;
        for (const char *folder : {"a", "b", "c"})
            xLeft += QFileInfo::exists(QString("%1/%2/x.bin").arg(root, folder)) ? 1 : 0;
        QCOMPARE(xLeft, 1);
        QCOMPARE(ScanTree::read(root + "/a/y.bin"), edited);
        QCOMPARE(ScanTree::read(root + "/b/y.bin"), y);

        const CliRun restore = runCli({"restore"});
        if (method.at(1) == "permanent") {
            // Nothing to put back: removed for good.
            QCOMPARE(restore.exitCode, 5);
            return;
        }
        QCOMPARE(restore.exitCode, 0);
        for (const char *folder : {"a", "b", "c"})
            QCOMPARE(ScanTree::read(QString("%1/%2/x.bin").arg(root, folder)), x);
        // A batch is restored once.
        QCOMPARE(runCli({"restore"}).exitCode, 5);
    }

private:
    TestEnvironment m_environment;
};

QTEST_GUILESS_MAIN(TestCliRemove)
#include "tst_CliRemove.moc"
