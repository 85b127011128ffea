// SPDX-License-Identifier: GPL-3.0-or-later
#include "HttpReceiver.h"
#include "TestEnvironment.h"
#include "app/AppIdentity.h"
#include "app/DailyRunReport.h"
#include "app/EnvironmentLog.h"
#include "engine/ScanTree.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

static TestEnvironment environment;

class tst_StartupServices : public QObject
{
    Q_OBJECT
private slots:
    void init() { QSettings(AppIdentity::organizationName, AppIdentity::applicationName).clear(); }

    void cpuAndMemory_data()
    {
        QTest::addColumn<QByteArray>("cpuinfo");
        QTest::addColumn<QByteArray>("meminfo");
        QTest::addColumn<QString>("cpu");
        QTest::addColumn<qint64>("total");
        QTest::addColumn<qint64>("available");
        QTest::addColumn<int>("used");
        QTest::newRow("x86")
            << QByteArray(
                   "processor\t: 0\nvendor_id\t: GenuineIntel\nmodel name\t: Intel(R) Xeon(R) "
                   "CPU @ 2.20GHz\nprocessor\t: 1\nmodel name\t: other\n")
            << QByteArray(
                   "MemTotal:       16384000 kB\nMemFree:  100 kB\nMemAvailable:    4096000 kB\n")
            << "Intel(R) Xeon(R) CPU @ 2.20GHz" << qint64(16000) << qint64(4000) << 75;
        QTest::newRow("arm board") << QByteArray("processor : 0\nHardware : BCM2835\n")
                                   << QByteArray("MemTotal: 1024 kB\nMemAvailable: 1024 kB\n")
                                   << "BCM2835" << qint64(1) << qint64(1) << 0;
        QTest::newRow("unreadable files")
            << QByteArray() << QByteArray() << QString() << qint64(0) << qint64(0) << 0;
    }
    void cpuAndMemory()
    {
        QFETCH(QByteArray, cpuinfo);
        QFETCH(QByteArray, meminfo);
        QFETCH(QString, cpu);
        QFETCH(qint64, total);
        QFETCH(qint64, available);
        QFETCH(int, used);
        QTemporaryDir dir;
        const QString cpuPath = dir.filePath("cpuinfo");
        const QString memPath = dir.filePath("meminfo");
        if (!cpuinfo.isEmpty()) {
            ScanTree::write(dir.path(), "cpuinfo", cpuinfo);
            ScanTree::write(dir.path(), "meminfo", meminfo);
        }
        const QString name = EnvironmentLog::cpuName(cpuPath);
        // Without a readable file the architecture stands in for the name.
        QCOMPARE(name, cpu.isEmpty() ? QSysInfo::currentCpuArchitecture() : cpu);
        const auto memory = EnvironmentLog::memory(memPath);
        QCOMPARE(memory.totalMb, total);
        QCOMPARE(memory.availableMb, available);
        QCOMPARE(memory.usedPercent, used);
    }

    void reportSentOncePerDay_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("accepted") << 204 << true;
        QTest::newRow("refused: the day stays open") << 500 << false;
    }
    void reportSentOncePerDay()
    {
        QFETCH(int, status);
        QFETCH(bool, accepted);
        HttpReceiver server(status);
        DailyRunReport report("G-ABCDEFGHIJ", "secret");
        report.setEndpoint(QStringLiteral("http://127.0.0.1:%1/mp/collect").arg(server.port()));
        QSignalSpy finished(&report, &DailyRunReport::finished);
        const QDate day(2026, 3, 14);
        QVERIFY(report.sendIfDue(day));
        QVERIFY(finished.wait(10000));
        QCOMPARE(finished.at(0).at(0).toBool(), accepted);

        QCOMPARE(server.requests.size(), 1);
        const HttpReceiver::Request request = server.requests.first();
        QVERIFY(request.head.startsWith(
            "POST /mp/collect?measurement_id=G-ABCDEFGHIJ&api_secret=secret"));
        QVERIFY(request.head.toLower().contains("content-type: application/json"));
        const QJsonObject body = QJsonDocument::fromJson(request.body).object();
        const QString client = body.value("client_id").toString();
        QCOMPARE(client.size(), 36);
        QVERIFY(!client.contains(QLatin1Char('{')));
        const QJsonObject event = body.value("events").toArray().at(0).toObject();
        QCOMPARE(event.value("name").toString(), "run_success");
        QCOMPARE(event.value("params").toObject().value("installer_version").toString(),
            AppIdentity::version);

        QSettings settings(AppIdentity::organizationName, AppIdentity::applicationName);
        QCOMPARE(settings.value("ClientID").toString(), client);
        QCOMPARE(settings.value("LastRunSuccessDate").toString(),
            accepted ? QStringLiteral("2026-03-14") : QString());
        if (accepted) {
            // Same day: nothing goes out.
            QVERIFY(!report.sendIfDue(day));
            QCOMPARE(report.clientId(), client);
        }
    }

    void reportNeedsConfiguration()
    {
        DailyRunReport report(QString(), "secret");
        QVERIFY(!report.isConfigured());
        QVERIFY(!report.sendIfDue());
        QSettings settings(AppIdentity::organizationName, AppIdentity::applicationName);
        QVERIFY(settings.value("ClientID").toString().isEmpty());
    }
};

QTEST_MAIN(tst_StartupServices)
#include "tst_StartupServices.moc"
