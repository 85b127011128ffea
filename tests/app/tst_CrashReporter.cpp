// SPDX-License-Identifier: GPL-3.0-or-later
#include "HttpReceiver.h"
#include "TestEnvironment.h"
#include "app/CrashReporter.h"
#include "app/FeatureReporter.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>
#include <QtTest>

static TestEnvironment environment;

class TestCrashReporter : public QObject
{
    Q_OBJECT
private:
    QTemporaryDir m_base;

    QString database() const { return m_base.filePath("sentrydb"); }
    QStringList files(const QString &folder, const QString &pattern) const
    {
        return QDir(database() + "/" + folder).entryList({pattern}, QDir::Files);
    }
    void initReporter(const QString &dsn)
    {
        CrashReporterOptions options;
        options.dsn = dsn;
        options.databasePath = database();
        options.release = "4.5.0";
        options.systemCrashReporter = false;
        QCOMPARE(CrashReporter::init(options), 0);
    }
    static QString dsnFor(const HttpReceiver &receiver)
    {
        return QString("http://0123456789abcdef0123456789abcdef@127.0.0.1:%1/1234567890123456")
            .arg(receiver.port());
    }

private slots:
    void cleanup() { CrashReporter::close(); }

    void crashOfAChildLeavesAReport()
    {
        QProcess child;
        child.start(CRASH_CHILD_PATH, {m_base.path()});
        QVERIFY(child.waitForFinished(60000));
        QCOMPARE(child.exitStatus(), QProcess::CrashExit);

        const QStringList reports = files("reports", "*.crash");
        QCOMPARE(reports.size(), 1);
        QFile report(database() + "/reports/" + reports.first());
        QVERIFY(report.open(QIODevice::ReadOnly));
        const QByteArray text = report.readAll();
        QVERIFY(text.contains("release: 4.5.0\n"));
        QVERIFY(text.contains("signal: 11\n"));
        QVERIFY(text.contains("attachment: " + m_base.path().toUtf8() + "/Log/log_"));
        QVERIFY2(text.contains("crashNow"), text.constData());

        QFile log(report.fileName() + ".log");
        QVERIFY(log.open(QIODevice::ReadOnly));
        QVERIFY(log.readAll().contains("[Child]: about to crash"));
    }

    void nothingIsSentWithoutADsn()
    {
        HttpReceiver receiver;
        initReporter(QString());
        QVERIFY(reportFeature("Deleted_Except", "first"));
        CrashReporter::sendPending();
        QTest::qWait(300);
        QVERIFY(receiver.requests.isEmpty());
        QCOMPARE(files("reports", "*.crash").size(), 1);
        QCOMPARE(files("events", "*.json").size(), 1);
    }

    void refusedEnvelopesStayOnDisk()
    {
        HttpReceiver receiver(500);
        initReporter(dsnFor(receiver));
        CrashReporter::sendPending();
        QVERIFY(CrashReporter::flush(10000));
        QCOMPARE(receiver.requests.size(), 2);
        QCOMPARE(files("reports", "*.crash").size(), 1);
        QCOMPARE(files("events", "*.json").size(), 1);
    }

    void pendingReportsAndEventsReachTheReceiver()
    {
        HttpReceiver receiver;
        initReporter(dsnFor(receiver));
        CrashReporter::sendPending();
        QVERIFY(CrashReporter::flush(10000));
        QCOMPARE(receiver.requests.size(), 2);
        for (const auto &request : receiver.requests) {
            QVERIFY(request.head.startsWith("POST /api/1234567890123456/envelope/ HTTP/1.1"));
            QVERIFY(request.head.contains("sentry_key=0123456789abcdef0123456789abcdef"));
        }
        const QByteArray all = receiver.requests[0].body + receiver.requests[1].body;
        QVERIFY(all.contains("\"SIGSEGV\""));
        QVERIFY(all.contains("crashNow"));
        QVERIFY(all.contains("[Child]: about to crash"));
        QVERIFY(all.contains("\"release\":\"4.5.0\""));
        QVERIFY(all.contains("User used feature: Deleted_Except. msg: first"));
        QVERIFY(files("reports", "*").isEmpty());
        QVERIFY(files("events", "*").isEmpty());
    }

    void aFeatureIsReportedThreeTimesAtMost()
    {
        HttpReceiver receiver;
        initReporter(dsnFor(receiver));
        for (const char *message : {"a", "b", "c"})
            QVERIFY(reportFeature("Incomplete_scan", message));
        QVERIFY(!reportFeature("Incomplete_scan", "d"));
        QVERIFY(CrashReporter::flush(10000));
        QCOMPARE(receiver.requests.size(), 3);
        QSettings settings("Veltrine", "Veltrine Duplicate Finder");
        QCOMPARE(settings.value("sentry/Incomplete_scan").toInt(), 3);

        const QByteArray body = receiver.requests.last().body;
        const QJsonObject event = QJsonDocument::fromJson(body.split('\n').value(2)).object();
        QCOMPARE(event.value("level").toString(), QString("info"));
        QCOMPARE(event.value("logger").toString(), QString("Incomplete_scan"));
        QCOMPARE(
            event.value("tags").toObject().value("feature").toString(), QString("Incomplete_scan"));
        QCOMPARE(event.value("extra").toObject().value("message").toString(), QString("c"));
        QCOMPARE(event.value("message").toObject().value("formatted").toString(),
            QString("User used feature: Incomplete_scan. msg: c"));
    }
};

QTEST_GUILESS_MAIN(TestCrashReporter)
#include "tst_CrashReporter.moc"
