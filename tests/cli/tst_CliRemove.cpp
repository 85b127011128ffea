// SPDX-License-Identifier: GPL-3.0-or-later
#include "CliRunner.h"
#include "TestEnvironment.h"
#include "engine/ScanTree.h"

#include <csignal>
#include <sys/stat.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
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
        QTest::newRow("move keeping the folders")
            << QStringList {"--method", "move", "--keep-structure", "--to", "moved"};
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
        // Moved items keep the folders below the scanned one, which the project recorded.
        if (method.contains("--keep-structure")) {
            QVERIFY(!QFileInfo::exists(dir.path() + "/moved/x.bin"));
            for (const char *folder : {"a", "b", "c"})
                QCOMPARE(QFileInfo::exists(QString("%1/moved/%2/x.bin").arg(dir.path(), folder)),
                    !QFileInfo::exists(QString("%1/%2/x.bin").arg(root, folder)));
        }
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

    // Copies replaced by hard links to the one that stays, then made separate files again.
    void hardLinkThenRestore()
    {
        QTemporaryDir dir;
        const QString root = dir.path() + "/tree";
        const QByteArray x = ScanTree::pattern(40000, 1);
        for (const char *folder : {"a", "b", "c"})
            ScanTree::write(root, QString("%1/x.bin").arg(folder), x);
        const QString project = dir.path() + "/p.dupproj";
        QCOMPARE(runCli({"scan", "--method", "full", "--save", project, root}).exitCode, 0);
        const CliRun remove = runCli({"remove", project, "--method", "hardlink", "--json"});
        QCOMPARE(remove.exitCode, 0);
        const QJsonObject report = QJsonDocument::fromJson(remove.out).object();
        QCOMPARE(report.value("handled").toInt(), 2);
        QCOMPARE(report.value("freedBytes").toInt(), 2 * x.size());
        QCOMPARE(report.value("items").toArray().at(0).toObject().value("result").toString(),
            QString("linked"));
        QVERIFY2(remove.err.contains("share one set of permissions"), remove.err.constData());
        const auto inodeOf = [&root](const char *folder) {
            struct stat info
            {
            };
            ::stat(QFile::encodeName(QString("%1/%2/x.bin").arg(root, folder)).constData(), &info);
            return info.st_ino;
        };
        QCOMPARE(inodeOf("a"), inodeOf("b"));
        QCOMPARE(inodeOf("b"), inodeOf("c"));

        QCOMPARE(runCli({"restore"}).exitCode, 0);
        QVERIFY(inodeOf("a") != inodeOf("b") && inodeOf("b") != inodeOf("c")
            && inodeOf("a") != inodeOf("c"));
        for (const char *folder : {"a", "b", "c"})
            QCOMPARE(ScanTree::read(QString("%1/%2/x.bin").arg(root, folder)), x);
        QCOMPARE(runCli({"restore"}).exitCode, 5);
    }

    // SIGTERM in the middle of a batch: the item in hand is finished, the end is written,
    // and restore brings back every item that went.
    void stopSignalThenRestore()
    {
        QTemporaryDir dir;
        const QString root = dir.path() + "/tree";
        for (int i = 0; i < 1500; ++i)
            for (const char *copy : {"a", "b"})
                ScanTree::write(
                    root, QString("%1/%2.bin").arg(copy).arg(i), ScanTree::pattern(600, i));
        const QString project = dir.path() + "/p.dupproj";
        QCOMPARE(runCli({"scan", "--method", "full", "--save", project, root}).exitCode, 0);
        const QString journal = m_environment.path()
            + "/config/Veltrine/Veltrine Duplicate Finder/removal-journal.jsonl";
        const qint64 before = QFileInfo(journal).size();
        QProcess cli;
        cli.start(QStringLiteral(VELTRINE_CLI_PATH), {"remove", project, "--method", "trash"});
        QVERIFY(cli.waitForStarted());
        // Stopped, signalled and let go once the batch is under way, so the signal meets
        // it mid-batch however fast this machine is.
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(journal).size() > before + 4000, 30000);
        ::kill(pid_t(cli.processId()), SIGSTOP);
        ::kill(pid_t(cli.processId()), SIGTERM);
        ::kill(pid_t(cli.processId()), SIGCONT);
        QVERIFY(cli.waitForFinished(60000));
        QCOMPARE(cli.exitCode(), 143);
        int gone = 0;
        for (int i = 0; i < 1500; ++i)
            gone += QFileInfo::exists(QString("%1/a/%2.bin").arg(root).arg(i))
                    && QFileInfo::exists(QString("%1/b/%2.bin").arg(root).arg(i))
                ? 0
                : 1;
        QVERIFY2(gone > 0 && gone < 1500, qPrintable(QString::number(gone)));
        const CliRun list = runCli({"restore", "--list"});
        QVERIFY2(list.out.contains("stopped by signal 15"), list.out.constData());
        QCOMPARE(runCli({"restore"}).exitCode, 0);
        for (int i = 0; i < 1500; ++i)
            for (const char *copy : {"a", "b"})
                QVERIFY(QFileInfo::exists(QString("%1/%2/%3.bin").arg(root, copy).arg(i)));
    }

    // Restore puts back what went and nothing else, under its own name, and finishes on a
    // second run what it could not do on the first.
    void restoreChecksWhatItPutsBack()
    {
        QTemporaryDir dir;
        const QString root = dir.path() + "/tree";
        for (int i = 0; i < 3; ++i)
            for (const char *copy : {"a", "b"})
                ScanTree::write(
                    root, QString("%1/f%2.bin").arg(copy).arg(i), ScanTree::pattern(5000, i));
        const QString project = dir.path() + "/p.dupproj";
        QCOMPARE(runCli({"scan", "--method", "full", "--select", "oldest", "--save", project, root})
                     .exitCode,
            0);
        // An earlier trash batch must not be shadowed by a later permanent one.
        const CliRun removed = runCli({"remove", project, "--method", "trash", "--json"});
        QCOMPARE(removed.exitCode, 0);
        const QJsonArray items
            = QJsonDocument::fromJson(removed.out).object().value("items").toArray();
        QCOMPARE(items.size(), 3);
        const QString first = items.at(0).toObject().value("path").toString();
        const QString firstTrashed = items.at(0).toObject().value("to").toString();
        const QString second = items.at(1).toObject().value("path").toString();
        const QString third = items.at(2).toObject().value("path").toString();

        // An unrelated file of the same size took the first item's place in the trash; the
        // second item's own place is taken.
        QByteArray impostor = ScanTree::read(QFileInfo(first).dir().path() == root + "/a"
                ? QString(first).replace("/a/", "/b/")
                : QString(first).replace("/b/", "/a/"));
        impostor[10] = char(impostor[10] ^ 1);
        QVERIFY(QFile::remove(firstTrashed));
        ScanTree::write(
            QFileInfo(firstTrashed).absolutePath(), QFileInfo(firstTrashed).fileName(), impostor);
        ScanTree::write(
            QFileInfo(second).absolutePath(), QFileInfo(second).fileName(), "in the way");
        const CliRun partial = runCli({"restore"});
        QCOMPARE(partial.exitCode, 5);
        QVERIFY(partial.err.contains("not the removed item"));
        QCOMPARE(ScanTree::read(firstTrashed), impostor);
        QVERIFY(!QFileInfo::exists(first));
        const auto patternOf = [](const QString &path) {
            return ScanTree::pattern(5000, QFileInfo(path).baseName().mid(1).toInt());
        };
        QCOMPARE(ScanTree::read(third), patternOf(third));
        // Once the way is clear, a second run finishes the second item and leaves the rest.
        QVERIFY(QFile::remove(second));
        const CliRun again = runCli({"restore", "--json"});
        QCOMPARE(again.exitCode, 5);
        QCOMPARE(ScanTree::read(second), patternOf(second));
        QVERIFY(QJsonDocument::fromJson(again.out).object().value("notHandled").toInt() == 1);
    }

    void targetFileRefusedBeforeAnythingMoves()
    {
        QTemporaryDir dir;
        const QString root = dir.path() + "/tree";
        for (const char *folder : {"a/F", "b/F"})
            ScanTree::write(root, QString("%1/one.bin").arg(folder), ScanTree::pattern(3000, 1));
        const QString project = dir.path() + "/p.dupproj";
        QCOMPARE(
            runCli({"scan", "--folders", "--select", "all", "--save", project, root}).exitCode, 0);
        const QString target = ScanTree::write(dir.path(), "target", "a file");
        const CliRun run
            = runCli({"remove", project, "--method", "move", "--to", target, "--allow-all-copies"});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("nothing removed"), run.err.constData());
        for (const char *folder : {"a/F", "b/F"})
            QVERIFY(QFileInfo::exists(QString("%1/%2/one.bin").arg(root, folder)));
    }

    // Downloads cleaned against a protected archive, the archive named at the scan (saved
    // with the project) or only at the removal: whatever is selected, nothing in the
    // archive moves, and a group that lies wholly in it is no result.
    void protectedArchive_data()
    {
        QTest::addColumn<bool>("atScan");
        QTest::addColumn<int>("removeExit");
        QTest::newRow("protected at the scan") << true << 0;
        QTest::newRow("protected only at the removal") << false << 5;
    }
    void protectedArchive()
    {
        QFETCH(bool, atScan);
        QFETCH(int, removeExit);
        QTemporaryDir dir;
        const QString root = dir.path() + "/tree";
        const QString archive = root + "/archive";
        const QByteArray x = ScanTree::pattern(20000, 1);
        const QByteArray z = ScanTree::pattern(9000, 2);
        for (const char *name :
            {"archive/x.bin", "archive/sub/x.bin", "down/x.bin", "down/x (1).bin"})
            ScanTree::write(root, name, x);
        ScanTree::write(root, "archive/z.bin", z);
        ScanTree::write(root, "archive/sub/z.bin", z);
        const QStringList protect {"--protect", archive};
        const QString project = dir.path() + "/p.dupproj";
        const CliRun scan = runCli(QStringList {"scan", "--select", "all", "--save", project, root}
            + (atScan ? protect : QStringList()));
        QCOMPARE(scan.exitCode, 0);
        QCOMPARE(scan.out.contains("z.bin"), !atScan);
        QCOMPARE(scan.err.contains("1 group left out"), atScan);
        if (atScan) {
            const CliRun report = runCli({"report", "--json", project});
            QCOMPARE(QJsonDocument::fromJson(report.out).object().value("protectedGroupsLeftOut"),
                QJsonValue(1));
        }
        const CliRun remove = runCli(QStringList {"remove", project, "--method", "permanent"}
            + (atScan ? QStringList() : protect));
        QCOMPARE(remove.exitCode, removeExit);
        QCOMPARE(remove.err.contains("in a protected folder"), !atScan);
        for (const char *name : {"archive/x.bin", "archive/sub/x.bin"})
            QCOMPARE(ScanTree::read(root + '/' + name), x);
        for (const char *name : {"archive/z.bin", "archive/sub/z.bin"})
            QCOMPARE(ScanTree::read(root + '/' + name), z);
        QVERIFY(!QFileInfo::exists(root + "/down/x.bin"));
        QVERIFY(!QFileInfo::exists(root + "/down/x (1).bin"));
    }

private:
    TestEnvironment m_environment;
};

QTEST_GUILESS_MAIN(TestCliRemove)
#include "tst_CliRemove.moc"
