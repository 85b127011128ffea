// SPDX-License-Identifier: GPL-3.0-or-later
#include "CliRunner.h"
#include "TestEnvironment.h"
#include "engine/ScanTree.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

static TestEnvironment environment;

// scan --cloud run as the real program, against a remote of rclone's local backend that
// the user's own configuration file names.
class TestCliCloud : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_tree;
    QString m_config;

private slots:
    void initTestCase()
    {
        ScanTree::write(m_tree.path(), "a", ScanTree::pattern(3000, 'a'));
        ScanTree::write(m_tree.path(), "x/b", ScanTree::pattern(3000, 'a'));
        ScanTree::write(m_tree.path(), "c", ScanTree::pattern(3000, 'c'));
        m_config = ScanTree::write(m_tree.path(), ".conf/rclone.conf", "[mine]\ntype = local\n");
    }

    void reportsGroupsLikeALocalScan()
    {
        const QString folder = "mine:" + m_tree.path();
        const CliRun run = runCli(
            {"scan", "--json", "--select", "none", "--cloud", folder, "--rclone-config", m_config});
        QCOMPARE(run.exitCode, 0);
        const QJsonObject report = QJsonDocument::fromJson(run.out).object();
        QCOMPARE(report.value("scannedFiles").toInt(), 4);
        const QJsonArray groups = report.value("groups").toArray();
        QCOMPARE(groups.size(), 1);
        QCOMPARE(groups.at(0)["files"].toArray(), QJsonArray({folder + "/a", folder + "/x/b"}));
        QCOMPARE(groups.at(0)["selected"].toArray(), QJsonArray());
    }

    void failuresAreClear_data()
    {
        QTest::addColumn<QString>("rclone");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("message");
        QTest::newRow("rclone missing") << "/nonexistent/rclone"
                                        << "mine:/tmp"
                                        << "rclone could not be started (/nonexistent/rclone)";
        QTest::newRow("unknown remote")
            << QString() << "other:/tmp"
            << "other:/tmp: operations/fsinfo failed: didn't find section";
    }

    void failuresAreClear()
    {
        QFETCH(QString, rclone);
        QFETCH(QString, folder);
        QFETCH(QString, message);
        qputenv("VELTRINE_RCLONE", rclone.toUtf8());
        const CliRun run = runCli({"scan", "--cloud", folder, "--rclone-config", m_config});
        qunsetenv("VELTRINE_RCLONE");
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.contains(message.toUtf8()), run.err.constData());
        QVERIFY(run.out.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestCliCloud)
#include "tst_CliCloud.moc"
