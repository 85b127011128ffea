// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ScanTree.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct CliRun
{
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

CliRun runCli(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(VELTRINE_CLI_PATH), arguments);
    CliRun run;
    if (!process.waitForFinished(120000))
        return run;
    run.exitCode = process.exitCode();
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

// Groups of a JSON report as sorted lists of names relative to root, with their kind.
QStringList groupsOf(const QByteArray &json, const QString &root)
{
    QStringList out;
    const QJsonArray groups = QJsonDocument::fromJson(json).object().value("groups").toArray();
    for (const QJsonValue &value : groups) {
        const QJsonObject group = value.toObject();
        QStringList names;
        for (const QJsonValue &file : group.value("files").toArray())
            names.append(file.toString().mid(root.size() + 1));
        names.sort();
        QStringList selected;
        for (const QJsonValue &file : group.value("selected").toArray())
            selected.append(file.toString().mid(root.size() + 1));
        selected.sort();
        out.append(
            group.value("kind").toString() + ":" + names.join(",") + " sel:" + selected.join(","));
    }
    out.sort();
    return out;
}

} // namespace

class TestCli : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void badArguments_data();
    void badArguments();
    void jsonReport_data();
    void jsonReport();
    void savesProject();

private:
    QTemporaryDir m_dir;
    QString m_root;
};

void TestCli::initTestCase()
{
    m_root = m_dir.path();
    const QByteArray big = ScanTree::pattern(30000, 1);
    QByteArray trap = big;
    trap[20000] = char(trap[20000] ^ 1); // outside the three sampled blocks
    ScanTree::write(m_root, "A/x.bin", big);
    ScanTree::write(m_root, "A/y.txt", "same text");
    ScanTree::write(m_root, "B/x.bin", big);
    ScanTree::write(m_root, "B/y.txt", "same text");
    ScanTree::write(m_root, "C/trap.bin", trap);
    ScanTree::write(m_root, "C/.hidden.txt", "same text");
}

void TestCli::badArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("no command") << QStringList {} << 1;
    QTest::newRow("unknown command") << QStringList {"find", "."} << 1;
    QTest::newRow("no folder") << QStringList {"scan", "--json"} << 1;
    QTest::newRow("unknown method") << QStringList {"scan", "--method", "fast", "."} << 1;
    QTest::newRow("unknown selection") << QStringList {"scan", "--select", "best", "."} << 1;
    QTest::newRow("negative size") << QStringList {"scan", "--min-size", "-1", "."} << 1;
    QTest::newRow("missing value") << QStringList {"scan", ".", "--max-size"} << 1;
    QTest::newRow("unknown option") << QStringList {"scan", "--fast", "."} << 1;
    QTest::newRow("folder does not exist") << QStringList {"scan", "/no/such/folder"} << 2;
    QTest::newRow("help") << QStringList {"--help"} << 0;
}

void TestCli::badArguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    const CliRun run = runCli(arguments);
    QCOMPARE(run.exitCode, exitCode);
    if (exitCode == 1)
        QVERIFY(run.err.contains("usage: veltrine-duplicate-finder-cli scan"));
}

void TestCli::jsonReport_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("sampled: the trap groups")
        << QStringList {"--select", "none"}
        << QStringList {"files:A/x.bin,B/x.bin,C/trap.bin sel:", "files:A/y.txt,B/y.txt sel:"};
    QTest::newRow("full: the trap stays out") << QStringList {"--method", "full", "--select",
        "none"} << QStringList {"files:A/x.bin,B/x.bin sel:", "files:A/y.txt,B/y.txt sel:"};
    QTest::newRow("hidden included")
        << QStringList {"--method", "full", "--select", "none", "--include-hidden"}
        << QStringList {"files:A/x.bin,B/x.bin sel:", "files:A/y.txt,B/y.txt,C/.hidden.txt sel:"};
    QTest::newRow("only list") << QStringList {"--method", "full", "--select", "none", "--only",
        "TXT"} << QStringList {"files:A/y.txt,B/y.txt sel:"};
    QTest::newRow("minimum size in KiB") << QStringList {"--method", "full", "--select", "none",
        "--min-size", "1"} << QStringList {"files:A/x.bin,B/x.bin sel:"};
    QTest::newRow("select all") << QStringList {"--method", "full", "--select", "all", "--only",
        "txt"} << QStringList {"files:A/y.txt,B/y.txt sel:A/y.txt,B/y.txt"};
    QTest::newRow("duplicate folders") << QStringList {"--method", "full", "--select", "none",
        "--folders"} << QStringList {"folders:A,B sel:"};
}

void TestCli::jsonReport()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, expected);
    const CliRun run = runCli(QStringList {"scan", "--json"} + options + QStringList {m_root});
    QCOMPARE(run.exitCode, 0);
    const QJsonObject report = QJsonDocument::fromJson(run.out).object();
    QVERIFY(report.value("scannedFiles").toInt() >= 2);
    QVERIFY(report.contains("seconds"));
    QCOMPARE(groupsOf(run.out, m_root), expected);
}

void TestCli::savesProject()
{
    QTemporaryDir out;
    const QString project = out.path() + "/result.dupproj";
    const CliRun run = runCli({"scan", "--method", "full", "--save", project, m_root});
    QCOMPARE(run.exitCode, 0);
    QFile file(project);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QVERIFY(text.contains("A/x.bin"));
    QVERIFY(text.contains("B/y.txt"));
}

QTEST_GUILESS_MAIN(TestCli)
#include "tst_Cli.moc"
