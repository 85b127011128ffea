// SPDX-License-Identifier: GPL-3.0-or-later
#include "HttpReceiver.h"
#include "TestEnvironment.h"
#include "cloud/RcloneClient.h"

#include <QTcpServer>
#include <QtTest>

static TestEnvironment environment;

class TestRcloneClient : public QObject
{
    Q_OBJECT
private slots:
    void clearFailures_data()
    {
        QTest::addColumn<QByteArray>("response");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("entries");
        QTest::newRow("service error passes rclone's words")
            << HttpReceiver::answer(
                   500, "{\"error\": \"couldn't list directory: 403 rate limit\", \"status\": 500}")
            << "operations/list failed: couldn't list directory: 403 rate limit" << 0;
        QTest::newRow("error without a body")
            << HttpReceiver::answer(401, "") << "operations/list failed with HTTP status 401" << 0;
        QTest::newRow("not JSON") << HttpReceiver::answer(200, "<html>busy</html>")
                                  << "malformed JSON (not JSON" << 0;
        QTest::newRow("answer cut short") << HttpReceiver::answer(
            200, "{\"list\": [{\"Path\": \"a\", \"Size\": 1}, {\"Path\": \"b\", \"Si", false)
                                          << "malformed JSON (the answer ended early" << 1;
        QTest::newRow("broken entry") << HttpReceiver::answer(
            200, "{\"list\": [{\"Path\": \"a\", \"Size\": 1}, {\"Path\": , \"Size\": 2}]}")
                                      << "malformed JSON (an entry is not valid JSON" << 1;
        QTest::newRow("brackets in names are not structure") << HttpReceiver::answer(200,
            "{\"list\": [{\"Path\": \"a}]\\\"{\", \"Size\": 1}, {\"Path\": \"b\", \"Size\": 2}]}")
                                                             << QString() << 2;
    }

    void clearFailures()
    {
        QFETCH(QByteArray, response);
        QFETCH(QString, message);
        QFETCH(int, entries);
        HttpReceiver server(response);
        RcloneClient client;
        client.setEndpoint(
            QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(server.port())), "user", "secret");
        int received = 0;
        QString error = QStringLiteral("no answer");
        bool answered = false;
        client.list(
            {{"fs", "x:"}}, [&](const QJsonObject &) { ++received; },
            [&](const QJsonObject &, const QString &failure) {
                error = failure;
                answered = true;
            });
        QTRY_VERIFY_WITH_TIMEOUT(answered, 10000);
        QVERIFY2(message.isEmpty() ? error.isEmpty() : error.contains(message), qPrintable(error));
        QCOMPARE(received, entries);
        QVERIFY(server.requests.value(0).head.contains("Authorization: Basic dXNlcjpzZWNyZXQ="));
    }

    void noDaemon()
    {
        quint16 port = 0;
        {
            QTcpServer probe;
            probe.listen(QHostAddress::LocalHost, 0);
            port = probe.serverPort();
        }
        RcloneClient client;
        client.setEndpoint(QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(port)), "u", "p");
        QString error;
        client.call("operations/fsinfo", {},
            [&](const QJsonObject &, const QString &failure) { error = failure; });
        QTRY_VERIFY_WITH_TIMEOUT(!error.isEmpty(), 10000);
        QVERIFY2(error.startsWith("rclone did not answer operations/fsinfo"), qPrintable(error));
    }
};

QTEST_GUILESS_MAIN(TestRcloneClient)
#include "tst_RcloneClient.moc"
