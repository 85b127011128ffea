// SPDX-License-Identifier: GPL-3.0-or-later
#include "HttpReceiver.h"
#include "TestEnvironment.h"
#include "cloud/RcloneClient.h"

#include <QTcpServer>
#include <QTimer>
#include <QtTest>

static TestEnvironment environment;

namespace {
const QByteArray kSilent = "(silent)";
const QByteArray kStarted = HttpReceiver::answer(200, "{\"jobid\": 7}");
const QByteArray kRunning = HttpReceiver::answer(200, "{\"finished\": false, \"id\": 7}");
const QByteArray kListed = "{\"finished\": true, \"success\": true, \"output\": {\"list\": [";
const QByteArray kHead = "HTTP/1.1 200 X\r\nConnection: close\r\n\r\n";
constexpr int kIdleMs = 1000;
constexpr qint64 kEntries = 1000;
} // namespace

class TestRcloneClient : public QObject
{
    Q_OBJECT

    // The client against server, one listing to its end: the error, the entries.
    static QString list(HttpReceiver &server, int *received)
    {
        RcloneClient client(nullptr, kIdleMs, kEntries);
        client.setEndpoint(
            QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(server.port())), "user", "secret");
        QString error = QStringLiteral("no answer");
        bool answered = false;
        client.list(
            {{"fs", "x:"}}, [&](const QJsonObject &) { ++*received; },
            [&](const QJsonObject &, const QString &failure) {
                error = failure;
                answered = true;
            });
        if (!QTest::qWaitFor([&] { return answered; }, 60000))
            return QStringLiteral("no end");
        return error;
    }

private slots:
    void answers_data()
    {
        // The n-th request (0: the job's start, then its polls) gets answers[n], the last
        // one again and again; endless is then written after it for as long as it is read.
        QTest::addColumn<QByteArrayList>("answers");
        QTest::addColumn<QByteArray>("endless");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("entries");
        QTest::newRow("service error passes rclone's words")
            << QByteArrayList {kStarted,
                   HttpReceiver::answer(200,
                       "{\"finished\": true, \"success\": false, \"error\": \"couldn't list "
                       "directory: 403 rate limit\"}")}
            << QByteArray() << "operations/list failed: couldn't list directory: 403 rate limit"
            << 0;
        QTest::newRow("refused before a job")
            << QByteArrayList {HttpReceiver::answer(401, "")} << QByteArray()
            << "operations/list failed with HTTP status 401" << 0;
        QTest::newRow("not JSON") << QByteArrayList {kStarted,
            HttpReceiver::answer(200, "<html>busy</html>")}
                                  << QByteArray() << "malformed JSON (not JSON" << 0;
        QTest::newRow("answer cut short") << QByteArrayList {kStarted,
            HttpReceiver::answer(
                200, kListed + "{\"Path\": \"a\", \"Size\": 1}, {\"Path\": \"b\", \"Si", false)}
                                          << QByteArray()
                                          << "malformed JSON (the answer ended early" << 1;
        QTest::newRow("broken entry") << QByteArrayList {kStarted,
            HttpReceiver::answer(
                200, kListed + "{\"Path\": \"a\", \"Size\": 1}, {\"Path\": , \"Size\": 2}]}}")}
                                      << QByteArray()
                                      << "malformed JSON (an entry is not valid JSON" << 1;
        QTest::newRow("brackets in names are not structure") << QByteArrayList {kStarted,
            HttpReceiver::answer(200,
                kListed
                    + "{\"Path\": \"a}]\\\"{\", \"Size\": 1}, {\"Path\": \"b\", \"Size\": "
                      "2}]}}")} << QByteArray() << QString() << 2;
        QTest::newRow("job asked after until it ends")
            << QByteArrayList {kStarted, kRunning, kRunning,
                   HttpReceiver::answer(200, kListed + "{\"Path\": \"a\"}, {\"Path\": \"b\"}]}}")}
            << QByteArray() << QString() << 2;
        QTest::newRow("silent on the start")
            << QByteArrayList {kSilent} << QByteArray()
            << "rclone did not answer operations/list for 1 s" << 0;
        QTest::newRow("silent once the job runs")
            << QByteArrayList {kStarted, kRunning, kSilent} << QByteArray()
            << "rclone did not answer operations/list for 1 s" << 0;
        QTest::newRow("an entry that never ends")
            << QByteArrayList {kStarted, kHead + kListed + "{\"Path\": \""}
            << QByteArray(64 * 1024, 'a')
            << "answer to operations/list was given up: more than 16 MiB" << 0;
        QTest::newRow("a list that never ends")
            << QByteArrayList {kStarted, kHead + kListed}
            << QByteArray("{\"Path\": \"a\", \"Size\": 1}, ")
            << "answer to operations/list was given up: more than 1000 entries" << int(kEntries);
        QTest::newRow("a head that never ends")
            << QByteArrayList {kStarted, "HTTP/1.1 200 X\r\n"} << QByteArray("X-Pad: aaaa\r\n")
            << "answer to operations/list was given up: a line longer than 64 KiB" << 0;
    }

    void answers()
    {
        QFETCH(QByteArrayList, answers);
        QFETCH(QByteArray, endless);
        QFETCH(QString, message);
        QFETCH(int, entries);
        HttpReceiver server;
        server.respond = [&](QTcpSocket *socket, int n) {
            const bool last = n >= answers.size() - 1;
            const QByteArray answer = answers.at(std::min(n, int(answers.size()) - 1));
            if (answer == kSilent)
                return;
            socket->write(answer);
            if (!last || endless.isEmpty()) {
                socket->disconnectFromHost();
                return;
            }
            const auto more = [socket, endless] {
                while (socket->bytesToWrite() < (1 << 20))
                    socket->write(endless);
            };
            connect(socket, &QTcpSocket::bytesWritten, socket, more);
            more();
        };
        int received = 0;
        const QString error = list(server, &received);
        QVERIFY2(message.isEmpty() ? error.isEmpty() : error.contains(message), qPrintable(error));
        QCOMPARE(received, entries);
        QVERIFY(server.requests.value(0).head.contains("Authorization: Basic dXNlcjpzZWNyZXQ="));
        QVERIFY(server.requests.value(0).body.contains("\"_async\":true"));
        if (server.requests.size() > 1)
            QVERIFY(server.requests.at(1).body.contains("\"jobid\":7"));
    }

    void steadyAnswerGoesOn()
    {
        // Bytes keep coming, each well within the idle bound, for longer than the bound.
        HttpReceiver server;
        server.respond = [](QTcpSocket *socket, int n) {
            if (n == 0) {
                socket->write(kStarted);
                socket->disconnectFromHost();
                return;
            }
            socket->write(kHead + kListed);
            auto *timer = new QTimer(socket);
            connect(timer, &QTimer::timeout, socket, [socket, timer, sent = 0]() mutable {
                if (++sent < 3 * kIdleMs / 100) {
                    socket->write("{\"Path\": \"a\"}, ");
                    return;
                }
                timer->stop();
                socket->write("{\"Path\": \"b\"}]}}");
                socket->disconnectFromHost();
            });
            timer->start(100);
        };
        int received = 0;
        QCOMPARE(list(server, &received), QString());
        QCOMPARE(received, 3 * kIdleMs / 100);
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
