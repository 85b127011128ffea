// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImageFixtures.h"
#include "TestEnvironment.h"
#include "cloud/CloudService.h"
#include "cloud/KvCloudObject.h"
#include "cloud/RcloneClient.h"
#include "cloud/RcloneProcess.h"
#include "engine/GroupMember.h"
#include "engine/ScanTree.h"
#include "fileops/CloudRemover.h"
#include "pictures/ImageCompareStage.h"
#include "preferences/DFGenernalPreferences.h"

#include <csignal>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

static TestEnvironment environment;

using Groups = QHash<QString, QList<QString>>;

// Files as "relative path=seed:size"; a seed of 0 writes an empty file.
using TreeFiles = QStringList;

// A cloud object whose rclone keeps its configuration in the test's data folder.
struct TestCloud : KvCloudObject
{
    explicit TestCloud(const QString &data) { initialization(data); }
};

class TestKvCloudObject : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_data;
    // A remote of the local backend, made by the same sign-in call as a real account.
    QString m_remote = QStringLiteral("here");
    // The same folders seen through a remote that offers no hashes.
    QString m_plain = QStringLiteral("plain");

    static void writeTree(const QString &root, const TreeFiles &files)
    {
        for (const QString &line : files) {
            const QStringList parts = line.split(QLatin1Char('='));
            const QStringList content = parts.at(1).split(QLatin1Char(':'));
            const char seed = content.at(0).at(0).toLatin1();
            ScanTree::write(root, parts.at(0),
                seed == '0' ? QByteArray() : ScanTree::pattern(content.at(1).toLongLong(), seed));
        }
    }

    QString folder(const QString &root) const { return m_remote + QLatin1Char(':') + root; }

    // One scan of folders (by default top alone) to its end; the groups as sorted lists of
    // paths relative to top, similar tags taken off. raw: the groups as they came.
    static QList<QStringList> scan(KvCloudObject &cloud, const QString &top,
        QStringList folders = {}, bool *aborted = nullptr, Groups *raw = nullptr)
    {
        QSignalSpy found(&cloud, &KvCloudObject::onFindedDuplicateItem);
        QSignalSpy done(&cloud, &KvCloudObject::onAllComplate);
        cloud.start_traversal_files(folders.isEmpty() ? QStringList {top} : folders, 20);
        if (!done.wait(60000) || found.isEmpty())
            return {{QStringLiteral("no end")}};
        if (aborted)
            *aborted = done.first().first().toBool();
        const Groups all = found.last().first().value<Groups>();
        if (raw)
            *raw = all;
        return ScanTree::relativeGroups(all, top);
    }
    // A stand-in for rclone in bin: a shell script of body.
    static QString fakeRclone(const QTemporaryDir &bin, const QByteArray &body)
    {
        const QString path = ScanTree::write(bin.path(), "rclone", "#!/bin/sh\n" + body + "\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
        return path;
    }

private slots:
    void initTestCase()
    {
        ImageCompareStage::install();
        CloudRemover::install();
        TestCloud cloud(m_data.path());
        QSignalSpy success(&cloud, &KvCloudObject::onAuthorizedSuccess);
        QVERIFY(cloud.start_authorization(m_remote, CloudService::kLocalFolder));
        QVERIFY(success.wait(20000));
        QCOMPARE(success.first().at(1).toInt(), CloudService::kLocalFolder);
        QVERIFY(cloud.start_authorization(m_plain, CloudService::kLocalFolderWithoutHashes));
        QVERIFY(success.wait(20000));
    }

    void downloadsWhereServiceKeepsNoHash()
    {
        QTemporaryDir root;
        writeTree(root.path(), {"a=x:5000", "b/c=x:5000", "d=y:5000", "e=z:10"});
        TestCloud cloud(m_data.path());
        const QString folder = m_plain + ':' + root.path();
        QCOMPARE(scan(cloud, folder), (QList<QStringList> {{"a", "b/c"}}));
        QCOMPARE(QDir(cloud.get_download_dir()).entryList(QDir::Files), QStringList());
        // Without a hash of the service's the kept copy cannot be confirmed: nothing goes.
        QSignalSpy complete(&cloud, &KvCloudObject::onDeletedCloudGroupComplated);
        cloud.start_delete_group_files({"key", {folder + "/b/c"}, folder + "/a"});
        QVERIFY(complete.wait(20000));
        QVERIFY(QFile::exists(root.filePath("b/c")));
    }

    void groupsByServiceHash_data()
    {
        QTest::addColumn<TreeFiles>("tree");
        QTest::addColumn<QList<QStringList>>("expected");
        QTest::newRow("copies in sub-folders, full paths") << TreeFiles {
            "a=x:5000", "deep/er/b=x:5000", "c=y:5000"} << QList<QStringList> {{"a", "deep/er/b"}};
        QTest::newRow("same size, other content")
            << TreeFiles {"a=x:4096", "b=y:4096"} << QList<QStringList> {};
        QTest::newRow("empty files are not compared")
            << TreeFiles {"a=0:0", "b=0:0"} << QList<QStringList> {};
        QTest::newRow("three copies and a pair")
            << TreeFiles {"p/1=q:100", "p/2=q:100", "r/3=q:100", "s=w:70000", "t/s=w:70000"}
            << QList<QStringList> {{"p/1", "p/2", "r/3"}, {"s", "t/s"}};
        QTest::newRow("hidden files left out")
            << TreeFiles {"a=x:10", ".h/a=x:10", ".b=x:10"} << QList<QStringList> {};
    }

    void groupsByServiceHash()
    {
        QFETCH(TreeFiles, tree);
        QFETCH(QList<QStringList>, expected);
        QTemporaryDir root;
        writeTree(root.path(), tree);
        TestCloud cloud(m_data.path());
        bool aborted = true;
        QCOMPARE(scan(cloud, folder(root.path()), {}, &aborted), expected);
        QVERIFY(!aborted);
        // Properties come from the listing, the time to the millisecond.
        if (!expected.isEmpty()) {
            const QString relative = expected.first().first();
            const QString member = folder(root.path()) + QLatin1Char('/') + relative;
            const QFileInfo file(root.filePath(relative));
            QCOMPARE(cloud.getCFP(member, "size").toLongLong(), file.size());
            QCOMPARE(QDateTime::fromString(cloud.getCFP(member, "createdTime"), Qt::ISODateWithMs),
                file.lastModified().toUTC());
        }
    }

    void nestedFoldersAndIgnoredFiles()
    {
        // A folder chosen inside another is listed once (its files are no copies of
        // themselves), and a file the user ignored stays out.
        QTemporaryDir root;
        writeTree(root.path(), {"a=x:900", "p/b=x:900", "p/c=x:900"});
        TestCloud cloud(m_data.path());
        const QString top = folder(root.path());
        cloud.set_common_config(
            {{"IgnorePathFile", QJsonArray {QStringLiteral("here:c:%1/p/c").arg(top)}}});
        QCOMPARE(scan(cloud, top, {top + "/p/", top}), (QList<QStringList> {{"a", "p/b"}}));
    }

    void similarPicturesFetchedAndCompared()
    {
        // Pictures are fetched, compared as local ones are, named by their cloud paths,
        // and one similar to the kept picture can go.
        QTemporaryDir root;
        const cv::Mat scene = fixtures::makeScene(640, 480, 1);
        QVERIFY(fixtures::writeBytes(root.filePath("a.jpg"), fixtures::encode(scene, ".jpg")));
        QVERIFY(QDir(root.path()).mkpath("sub"));
        QVERIFY(fixtures::writeBytes(root.filePath("sub/b.jpg"),
            fixtures::encode(scene, ".jpg", {cv::IMWRITE_JPEG_QUALITY, 60})));
        QVERIFY(fixtures::writeBytes(
            root.filePath("c.jpg"), fixtures::encode(fixtures::makeScene(640, 480, 2), ".jpg")));
        TestCloud cloud(m_data.path());
        DFGenernalPreferences similar;
        similar.setHasSimilar(true);
        cloud.set_similar_config(similar.toJson());
        const QString top = folder(root.path());
        bool aborted = true;
        Groups groups;
        QCOMPARE(
            scan(cloud, top, {}, &aborted, &groups), (QList<QStringList> {{"a.jpg", "sub/b.jpg"}}));
        QVERIFY(!aborted);
        QVERIFY(GroupMember::fromEntry(groups.begin().value().first()).isSimilar());
        QCOMPARE(cloud.getCFP(top + "/sub/b.jpg", "size").toLongLong(),
            QFileInfo(root.filePath("sub/b.jpg")).size());
        QVERIFY(QDir(cloud.get_download_dir() + "pictures").isEmpty());

        QSignalSpy complete(&cloud, &KvCloudObject::onDeletedCloudGroupComplated);
        DelParams request {groups.begin().key(), {top + "/sub/b.jpg"}, top + "/a.jpg"};
        request.similar = true;
        cloud.start_delete_group_files(request);
        QVERIFY(complete.wait(20000));
        QVERIFY(!QFile::exists(root.filePath("sub/b.jpg")));
        QVERIFY(QFile::exists(root.filePath("a.jpg")));
    }

    void earlierRemoteUsedAgain()
    {
        // The remote made at the start is found in the configuration: no new sign-in
        // unless one is asked for.
        TestCloud cloud(m_data.path());
        QSignalSpy completed(&cloud, &KvCloudObject::onAuthorizedCompleted);
        QVERIFY(cloud.start_authorization(m_remote, CloudService::kLocalFolder));
        QVERIFY(completed.wait(20000));
        QVERIFY(cloud.start_authorization(
            m_remote, CloudService::kLocalFolder, KvCloudObject::kNewSignIn));
        QVERIFY(completed.wait(20000));
        QCOMPARE(completed.at(0).first().toBool(), false);
        QCOMPARE(completed.at(1).first().toBool(), true);
    }

    void signInLinkReported()
    {
        // rclone tells on its error output where a browser sign-in waits.
        QTemporaryDir bin;
        const QString script = fakeRclone(bin,
            "[ \"$1\" = rcd ] && echo 'NOTICE: If your browser does not open automatically go "
            "to the following link: http://127.0.0.1:53682/auth?state=x' >&2\n"
            "exec rclone \"$@\"");
        TestCloud cloud(m_data.path());
        cloud.setRcloneSettings({script, m_data.filePath("rclone/rclone.conf")});
        QSignalSpy link(&cloud, &KvCloudObject::authorizationLink);
        QCOMPARE(cloud.ensureStarted(), QString());
        QTRY_COMPARE(link.size(), 1);
        QCOMPARE(link.first().first().toUrl(), QUrl("http://127.0.0.1:53682/auth?state=x"));
    }

    void foldersListedOneLevelAtATime()
    {
        QTemporaryDir root;
        writeTree(root.path(), {"b/inner/f=x:10", "a/f=x:10", "top=x:10"});
        TestCloud cloud(m_data.path());
        QSignalSpy signedIn(&cloud, &KvCloudObject::onAuthorizedSuccess);
        QSignalSpy folders(&cloud, &KvCloudObject::onFindedFolders);
        cloud.start_authorization(m_remote, CloudService::kLocalFolder);
        QVERIFY(signedIn.wait(20000));
        cloud.init_traversal_folder();
        cloud.start_traversal_folders(CloudService::kLocalFolder, folder(root.path()));
        QVERIFY(folders.wait(20000));
        const auto listed = folders.first().first().value<QList<CloudFolderInfo>>();
        QCOMPARE(folders.first().at(1).toString(), folder(root.path()));
        QCOMPARE(listed.size(), 2);
        QCOMPARE(listed.at(0).name, "a");
        QCOMPARE(listed.at(1).id, folder(root.path()) + "/b");
    }

    void stopEndsWithAborted()
    {
        QTemporaryDir root;
        for (int i = 0; i < 300; ++i)
            ScanTree::write(root.path(), QStringLiteral("d%1/f%2").arg(i % 7).arg(i),
                ScanTree::pattern(20000, char('a' + i % 20)));
        TestCloud cloud(m_data.path());
        QSignalSpy done(&cloud, &KvCloudObject::onAllComplate);
        cloud.start_traversal_files({folder(root.path())}, 20);
        cloud.stop_all_tasks();
        QCOMPARE(done.size(), 1);
        QCOMPARE(done.first().first().toBool(), true);
        // Nothing of the stopped listing arrives afterwards, and the next scan works.
        QTest::qWait(300);
        QCOMPARE(done.size(), 1);
        QCOMPARE(scan(cloud, folder(root.path())).size(), 20);
    }

    void removalKeepsConfirmedCopy_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<bool>("removed");
        QTest::newRow("kept copy unchanged") << QString() << true;
        QTest::newRow("kept copy gone") << "delete keep" << false;
        QTest::newRow("kept copy changed, same size") << "rewrite keep" << false;
        QTest::newRow("copy to remove changed") << "rewrite item" << false;
        QTest::newRow("service refuses the deletion") << "lock item" << false;
    }

    void removalKeepsConfirmedCopy()
    {
        QFETCH(QString, change);
        QFETCH(bool, removed);
        QTemporaryDir root;
        const QString keepFile = ScanTree::write(root.path(), "keep", ScanTree::pattern(9000, 'k'));
        const QString itemFile
            = ScanTree::write(root.path(), "sub/item", ScanTree::pattern(9000, 'k'));
        TestCloud cloud(m_data.path());
        const QString journal = root.filePath("journal.jsonl");
        cloud.setJournalPath(journal);
        QCOMPARE(scan(cloud, folder(root.path())).size(), 1);
        if (change == "delete keep")
            QFile::remove(keepFile);
        else if (change == "rewrite keep")
            ScanTree::write(root.path(), "keep", ScanTree::pattern(9000, 'z'));
        else if (change == "rewrite item")
            ScanTree::write(root.path(), "sub/item", ScanTree::pattern(9000, 'z'));
        // Even root cannot delete an immutable file; others cannot delete from a folder
        // without write permission.
        const bool root0 = ::geteuid() == 0;
        const auto lock = [&](bool on) {
            if (root0)
                QProcess::execute("chattr", {on ? "+i" : "-i", itemFile});
            else
                QFile::setPermissions(root.filePath("sub"),
                    on ? QFile::ReadOwner | QFile::ExeOwner
                       : QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        };
        if (change == "lock item")
            lock(true);

        QSignalSpy complete(&cloud, &KvCloudObject::onDeletedCloudGroupComplated);
        QSignalSpy error(&cloud, &KvCloudObject::onDeletedCloudError);
        const QString base = folder(root.path()) + QLatin1Char('/');
        cloud.start_delete_group_files({"key", {base + "sub/item"}, base + "keep"});
        QVERIFY(complete.wait(20000));
        QCOMPARE(QFile::exists(itemFile), !removed);
        QCOMPARE(complete.first().first().toStringList().size(), removed ? 1 : 0);
        if (change == "lock item") {
            lock(false);
            QVERIFY2(error.first().at(1).toString().contains("operations/deletefile failed: "),
                qPrintable(error.first().at(1).toString()));
        }
        QCOMPARE(error.size(), removed ? 0 : 1);
        const QByteArray lines = ScanTree::read(journal);
        // A copy kept by a check is "skipped"; one the service would not delete "failed".
        const char *outcome = removed ? "\"removed\""
            : change == "lock item"   ? "\"failed\""
                                      : "\"skipped\"";
        QVERIFY(lines.contains(outcome));
    }

    void rcloneKilledMidScan_data()
    {
        QTest::addColumn<int>("delay");
        QTest::newRow("while the folder is looked up") << 0;
        QTest::newRow("while the listing runs") << 150;
    }

    void rcloneKilledMidScan()
    {
        QFETCH(int, delay);
        QTemporaryDir root;
        for (int i = 0; i < 2000; ++i)
            ScanTree::write(
                root.path(), QStringLiteral("f%1").arg(i), ScanTree::pattern(30000, char(i)));
        TestCloud cloud(m_data.path());
        QSignalSpy failed(&cloud, &KvCloudObject::onTraversalFailed);
        QSignalSpy done(&cloud, &KvCloudObject::onAllComplate);
        cloud.start_traversal_files({folder(root.path())}, 20);
        QVERIFY(cloud.rcloneProcessId() > 0);
        if (delay > 0)
            QTest::qWait(delay);
        QVERIFY(cloud.isScanning());
        ::kill(pid_t(cloud.rcloneProcessId()), SIGKILL);
        QVERIFY(done.wait(20000));
        QCOMPARE(done.first().first().toBool(), true);
        QCOMPARE(failed.size(), 1);
        const QString reason = failed.first().first().toString();
        QVERIFY2(reason.contains("rclone stopped unexpectedly")
                || reason.contains("rclone did not answer"),
            qPrintable(reason));
    }

    void credentialsStayOffTheCommandLine()
    {
        // Any local user can read a command line.
        RcloneProcess daemon;
        QCOMPARE(daemon.start({QString(), m_data.filePath("rclone/rclone.conf")}), QString());
        QFile commandLine(QStringLiteral("/proc/%1/cmdline").arg(daemon.processId()));
        QVERIFY(commandLine.open(QIODevice::ReadOnly));
        const QByteArray arguments = commandLine.readAll();
        QVERIFY(arguments.contains("rcd"));
        QVERIFY(!arguments.contains(daemon.password()) && !arguments.contains(daemon.user()));
        // rclone took them all the same: it answers with them only.
        const auto answer = [&](const QByteArray &password) {
            RcloneClient client;
            client.setEndpoint(daemon.baseUrl(), daemon.user(), password);
            QString error = QStringLiteral("no answer");
            client.call("rc/noop", {}, [&](const QJsonObject &, const QString &e) { error = e; });
            return QTest::qWaitFor([&] { return error != "no answer"; }, 20000) ? error : "";
        };
        QCOMPARE(answer(daemon.password()), QString());
        QVERIFY(answer("wrong").contains("401"));
    }

    void deathQuotesRclonesError()
    {
        // The error rclone logged says why it stopped, not a notice logged after it.
        QTemporaryDir bin;
        const QString script = fakeRclone(bin,
            "[ \"$1\" = rcd ] && echo '2024/01/01 00:00:00 ERROR : here: token expired' >&2 "
            "&& echo '2024/01/01 00:00:01 NOTICE: here: retrying' >&2\n"
            "exec rclone \"$@\"");
        RcloneProcess daemon;
        QSignalSpy died(&daemon, &RcloneProcess::died);
        QCOMPARE(daemon.start({script, m_data.filePath("rclone/rclone.conf")}), QString());
        ::kill(pid_t(daemon.processId()), SIGKILL);
        QVERIFY(died.wait(20000));
        const QString reason = died.first().first().toString();
        QVERIFY2(reason.endsWith("ERROR : here: token expired"), qPrintable(reason));
    }

    void unusableRclone_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("message");
        QTest::newRow("missing") << QByteArray() << "rclone could not be started";
        QTest::newRow("too old") << QByteArray("echo 'rclone v1.45.0'") << "rclone 1.45 is too old";
        QTest::newRow("not rclone") << QByteArray("echo hello") << "does not look like rclone";
        QTest::newRow("fails to start")
            << QByteArray("[ \"$1\" = version ] && echo 'rclone v1.60.1' && exit 0\n"
                          "echo 'Fatal error: bad rc address' >&2; exit 1")
            << "rclone failed to start: Fatal error: bad rc address";
        QTest::newRow("fails to start, a notice after its error")
            << QByteArray("[ \"$1\" = version ] && echo 'rclone v1.60.1' && exit 0\n"
                          "echo 'ERROR : here: bad flag' >&2; echo 'NOTICE: exiting' >&2; exit 1")
            << "rclone failed to start: ERROR : here: bad flag";
    }

    void unusableRclone()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, message);
        QTemporaryDir bin;
        const QString program = script.isEmpty() ? bin.filePath("rclone") : fakeRclone(bin, script);
        TestCloud cloud(m_data.path());
        cloud.setRcloneSettings({program, m_data.filePath("rclone/rclone.conf")});
        QSignalSpy failed(&cloud, &KvCloudObject::onTraversalFailed);
        QSignalSpy done(&cloud, &KvCloudObject::onAllComplate);
        cloud.start_traversal_files({"here:/tmp"}, 20);
        QVERIFY(done.wait(20000));
        QCOMPARE(failed.size(), 1);
        QVERIFY2(failed.first().first().toString().contains(message),
            qPrintable(failed.first().first().toString()));
    }
};

QTEST_GUILESS_MAIN(TestKvCloudObject)
#include "tst_KvCloudObject.moc"
