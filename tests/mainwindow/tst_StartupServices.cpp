// SPDX-License-Identifier: GPL-3.0-or-later
#include "TestEnvironment.h"
#include "app/AppIdentity.h"
#include "mainwindow/DailyRunReport.h"
#include "mainwindow/EnvironmentLog.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

static TestEnvironment environment;

// A one-request HTTP server: keeps the request and answers with the given status.
class OneShotServer : public QTcpServer
{
public:
    explicit OneShotServer(int status) : m_status(status)
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                m_request += socket->readAll();
                const int headerEnd = int(m_request.indexOf("\r\n\r\n"));
                if (headerEnd < 0)
                    return;
                const QByteArray header = m_request.left(headerEnd).toLower();
                const int at = int(header.indexOf("content-length:"));
                const int length
                    = at < 0 ? 0 : header.mid(at + 15).split('\r').first().trimmed().toInt();
                if (m_request.size() < headerEnd + 4 + length)
                    return;
                socket->write(QByteArray("HTTP/1.1 ") + QByteArray::number(m_status)
                    + " X\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
                socket->disconnectFromHost();
            });
        });
        listen(QHostAddress::LocalHost);
    }
    QByteArray request() const { return m_request; }
    QByteArray body() const { return m_request.mid(m_request.indexOf("\r\n\r\n") + 4); }

private:
    int m_status;
    QByteArray m_request;
};

class tst_StartupServices : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cpuAndMemory_data();
    void cpuAndMemory();
    void reportSentOncePerDay();
    void reportFailureKeepsDateOpen();
    void reportNeedsConfiguration();
};

void tst_StartupServices::init()
{
    QSettings(AppIdentity::organizationName, AppIdentity::applicationName).clear();
}

void tst_StartupServices::cpuAndMemory_data()
{
    QTest::addColumn<QByteArray>("cpuinfo");
    QTest::addColumn<QByteArray>("meminfo");
    QTest::addColumn<QString>("cpu");
    QTest::addColumn<qint64>("total");
    QTest::addColumn<qint64>("available");
    QTest::addColumn<int>("used");
    QTest::newRow("x86")
        << QByteArray("processor\t: 0\nvendor_id\t: GenuineIntel\nmodel name\t: Intel(R) Xeon(R) "
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

void tst_StartupServices::cpuAndMemory()
{
    QFETCH(QByteArray, cpuinfo);
    QFETCH(QByteArray, meminfo);
    QFETCH(QString, cpu);
    QFETCH(qint64, total);
    QFETCH(qint64, available);
    QFETCH(int, used);
    QTemporaryDir dir;
    const QString cpuPath = dir.filePath(QStringLiteral("cpuinfo"));
    const QString memPath = dir.filePath(QStringLiteral("meminfo"));
    if (!cpuinfo.isEmpty()) {
        QFile c(cpuPath);
        QVERIFY(c.open(QIODevice::WriteOnly));
        c.write(cpuinfo);
        QFile m(memPath);
        QVERIFY(m.open(QIODevice::WriteOnly));
        m.write(meminfo);
    }
    const QString name = EnvironmentLog::cpuName(cpuPath);
    // Without a readable file the architecture stands in for the name.
    QCOMPARE(name, cpu.isEmpty() ? QSysInfo::currentCpuArchitecture() : cpu);
    const auto memory = EnvironmentLog::memory(memPath);
    QCOMPARE(memory.totalMb, total);
    QCOMPARE(memory.availableMb, available);
    QCOMPARE(memory.usedPercent, used);
}

void tst_StartupServices::reportSentOncePerDay()
{
    OneShotServer server(204);
    DailyRunReport report(QStringLiteral("G-ABCDEFGHIJ"), QStringLiteral("secret"));
    report.setEndpoint(QStringLiteral("http://127.0.0.1:%1/mp/collect").arg(server.serverPort()));
    QSignalSpy finished(&report, &DailyRunReport::finished);
    const QDate day(2026, 3, 14);
    QVERIFY(report.sendIfDue(day));
    QVERIFY(finished.wait(10000));
    QCOMPARE(finished.at(0).at(0).toBool(), true);

    QVERIFY(server.request().startsWith(
        "POST /mp/collect?measurement_id=G-ABCDEFGHIJ&api_secret=secret"));
    QVERIFY(server.request().toLower().contains("content-type: application/json"));
    const QJsonObject body = QJsonDocument::fromJson(server.body()).object();
    const QString client = body.value(QStringLiteral("client_id")).toString();
    QCOMPARE(client.size(), 36);
    QVERIFY(!client.contains(QLatin1Char('{')));
    const QJsonObject event = body.value(QStringLiteral("events")).toArray().at(0).toObject();
    QCOMPARE(event.value(QStringLiteral("name")).toString(), QStringLiteral("run_success"));
    QCOMPARE(event.value(QStringLiteral("params"))
                 .toObject()
                 .value(QStringLiteral("installer_version"))
                 .toString(),
        AppIdentity::version);

    QSettings settings(AppIdentity::organizationName, AppIdentity::applicationName);
    QCOMPARE(settings.value(QStringLiteral("ClientID")).toString(), client);
    QCOMPARE(settings.value(QStringLiteral("LastRunSuccessDate")).toString(),
        QStringLiteral("2026-03-14"));
    // Same day: nothing goes out; the next day it does, with the same client id.
    QVERIFY(!report.sendIfDue(day));
    QCOMPARE(report.clientId(), client);
}

void tst_StartupServices::reportFailureKeepsDateOpen()
{
    OneShotServer server(500);
    DailyRunReport report(QStringLiteral("G-ABCDEFGHIJ"), QStringLiteral("secret"));
    report.setEndpoint(QStringLiteral("http://127.0.0.1:%1/mp/collect").arg(server.serverPort()));
    QSignalSpy finished(&report, &DailyRunReport::finished);
    QVERIFY(report.sendIfDue(QDate(2026, 3, 15)));
    QVERIFY(finished.wait(10000));
    QCOMPARE(finished.at(0).at(0).toBool(), false);
    QSettings settings(AppIdentity::organizationName, AppIdentity::applicationName);
    QVERIFY(settings.value(QStringLiteral("LastRunSuccessDate")).toString().isEmpty());
}

void tst_StartupServices::reportNeedsConfiguration()
{
    DailyRunReport report(QString(), QStringLiteral("secret"));
    QVERIFY(!report.isConfigured());
    QVERIFY(!report.sendIfDue());
    QSettings settings(AppIdentity::organizationName, AppIdentity::applicationName);
    QVERIFY(settings.value(QStringLiteral("ClientID")).toString().isEmpty());
}

QTEST_MAIN(tst_StartupServices)
#include "tst_StartupServices.moc"
