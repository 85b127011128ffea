// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/RcloneClient.h"

#include "cloud/HttpAnswer.h"
#include "cloud/JsonEntryStream.h"

#include <algorithm>
#include <utility>

#include <QHostAddress>
#include <QJsonDocument>
#include <QJsonParseError>
#include <QTcpSocket>
#include <QTimer>

namespace {

// rclone writes a listing in one piece once it has it all; with a small read buffer the
// rest waits in rclone's socket until the entries before it are read.
constexpr qint64 kReadBuffer = 256 * 1024;
// A job is asked after soon, then less often: a short call (a stat) ends within a few
// polls, and a listing that takes minutes costs a request every half second.
constexpr int kFirstPollMs = 10;
constexpr int kLongestPollMs = 500;

QString malformed(const QString &method, const QString &why)
{
    return QStringLiteral("rclone answered %1 with malformed JSON (%2)").arg(method, why);
}

QString givenUp(const QString &method, const QString &why)
{
    return QStringLiteral("rclone's answer to %1 was given up: %2").arg(method, why);
}

// A small answer, collected whole.
std::function<QString(const QByteArray &)> collect(
    const std::shared_ptr<QByteArray> &body, const QString &method)
{
    return [body, method](const QByteArray &bytes) {
        body->append(bytes);
        if (body->size() <= JsonEntryStream::kMaxPending)
            return QString();
        return givenUp(
            method, QStringLiteral("more than %1 MiB").arg(JsonEntryStream::kMaxPending >> 20));
    };
}

} // namespace

struct RcloneClient::Job
{
    QString method;
    // Empty for a call; a listing's entries are handed over as they arrive.
    Entry entry;
    Done done;
    qint64 id = 0;
    int delayMs = kFirstPollMs;
    bool dropped = false;
};

RcloneClient::RcloneClient(QObject *parent, int idleTimeoutMs, qint64 maxEntries)
    : QObject(parent), m_idleTimeoutMs(idleTimeoutMs), m_maxEntries(maxEntries)
{ }

void RcloneClient::setEndpoint(const QUrl &base, const QByteArray &user, const QByteArray &password)
{
    m_base = base;
    m_authorization = "Basic " + (user + ':' + password).toBase64();
}

void RcloneClient::call(const QString &method, const QJsonObject &input, Done done)
{
    startJob(method, input, {}, std::move(done));
}

void RcloneClient::list(const QJsonObject &input, Entry entry, Done done)
{
    startJob(QStringLiteral("operations/list"), input, std::move(entry), std::move(done));
}

void RcloneClient::startJob(const QString &method, const QJsonObject &input, Entry entry, Done done)
{
    auto job = std::make_shared<Job>();
    job->method = method;
    job->entry = std::move(entry);
    job->done = std::move(done);
    m_jobs.append(job);
    QJsonObject asJob = input;
    asJob.insert(QStringLiteral("_async"), true);
    auto body = std::make_shared<QByteArray>();
    send(method, method, asJob, collect(body, method), [this, job, body](QString error) {
        if (job->dropped)
            return;
        job->id = QJsonDocument::fromJson(*body).object().value(QLatin1String("jobid")).toInteger();
        if (error.isEmpty() && job->id <= 0)
            error = malformed(job->method, QStringLiteral("no job number"));
        if (!error.isEmpty()) {
            endJob(job, {}, error);
            return;
        }
        poll(job);
    });
}

void RcloneClient::poll(const std::shared_ptr<Job> &job)
{
    QTimer::singleShot(job->delayMs, this, [this, job] {
        if (job->dropped)
            return;
        job->delayMs = std::min(job->delayMs * 2, kLongestPollMs);
        static const QString path = QStringLiteral("job/status");
        const QJsonObject input {{"jobid", job->id}};
        if (!job->entry) {
            auto body = std::make_shared<QByteArray>();
            send(path, job->method, input, collect(body, job->method),
                [this, job, body](QString error) {
                    if (job->dropped)
                        return;
                    QJsonParseError parseError;
                    const QJsonDocument status = QJsonDocument::fromJson(*body, &parseError);
                    if (error.isEmpty() && !status.isObject())
                        error = malformed(job->method, parseError.errorString());
                    endJob(job, status.object(), error);
                });
            return;
        }
        // The entries are in the finished job's {"output": {"list": [...]}}.
        auto stream = std::make_shared<JsonEntryStream>(job->entry, 2, m_maxEntries);
        send(
            path, job->method, input,
            [stream, method = job->method](const QByteArray &bytes) {
                if (stream->feed(bytes))
                    return QString();
                return stream->overLimit() ? givenUp(method, stream->error())
                                           : malformed(method, stream->error());
            },
            [this, job, stream](QString error) {
                if (job->dropped)
                    return;
                if (error.isEmpty() && !stream->finish())
                    error = malformed(job->method, stream->error());
                endJob(job, stream->rest(), error);
            });
    });
}

void RcloneClient::endJob(
    const std::shared_ptr<Job> &job, const QJsonObject &status, const QString &error)
{
    if (error.isEmpty() && !status.value(QLatin1String("finished")).toBool()) {
        poll(job);
        return;
    }
    m_jobs.removeOne(job);
    QString failure = error;
    if (failure.isEmpty() && !status.value(QLatin1String("success")).toBool()) {
        const QString words = status.value(QLatin1String("error")).toString();
        failure = words.isEmpty() ? QStringLiteral("%1 failed").arg(job->method)
                                  : QStringLiteral("%1 failed: %2").arg(job->method, words);
    }
    job->done(failure.isEmpty() ? status.value(QLatin1String("output")).toObject() : QJsonObject(),
        failure);
}

void RcloneClient::send(
    const QString &path, const QString &method, const QJsonObject &input, Part part, End end)
{
    auto *socket = new QTcpSocket(this);
    socket->setReadBufferSize(kReadBuffer);
    m_sockets.removeAll(nullptr);
    m_sockets.append(socket);
    // Restarted by every byte either way: a long answer goes on as long as it flows.
    auto *idle = new QTimer(socket);
    idle->setSingleShot(true);
    idle->setInterval(m_idleTimeoutMs);
    auto answer = std::make_shared<HttpAnswer>();
    auto errorBody = std::make_shared<QByteArray>();
    auto finished = std::make_shared<bool>(false);
    const QByteArray body = QJsonDocument(input).toJson(QJsonDocument::Compact);
    const QByteArray request = "POST /" + path.toLatin1()
        + " HTTP/1.1\r\nHost: " + m_base.host().toLatin1() + ':' + QByteArray::number(m_base.port())
        + "\r\nAuthorization: " + m_authorization
        + "\r\nContent-Type: application/json\r\nContent-Length: " + QByteArray::number(body.size())
        + "\r\nConnection: close\r\n\r\n" + body;
    const auto finish = [socket, idle, finished, end = std::move(end)](const QString &error) {
        if (std::exchange(*finished, true))
            return;
        idle->stop();
        socket->disconnect();
        socket->abort();
        socket->deleteLater();
        end(error);
    };
    // What the answer amounts to once the connection has ended.
    const auto outcome = [answer, errorBody, method](const QString &socketError) {
        if (answer->status() == 0)
            return QStringLiteral("rclone did not answer %1: %2").arg(method, socketError);
        if (answer->status() != 200) {
            // rclone sends {"error": "...", "status": N} with its reason.
            const QString words = QJsonDocument::fromJson(*errorBody)
                                      .object()
                                      .value(QLatin1String("error"))
                                      .toString();
            return words.isEmpty()
                ? QStringLiteral("%1 failed with HTTP status %2").arg(method).arg(answer->status())
                : QStringLiteral("%1 failed: %2").arg(method, words);
        }
        if (answer->chunked() && !answer->complete())
            return QStringLiteral("rclone's answer to %1 broke off: %2").arg(method, socketError);
        return QString();
    };
    connect(idle, &QTimer::timeout, this, [this, finish, method] {
        finish(QStringLiteral("rclone did not answer %1 for %2 s")
                   .arg(method)
                   .arg(m_idleTimeoutMs / 1000.0));
    });
    connect(socket, &QTcpSocket::connected, this, [socket, idle, request] {
        idle->start();
        socket->write(request);
    });
    connect(socket, &QTcpSocket::bytesWritten, idle, qOverload<>(&QTimer::start));
    connect(socket, &QTcpSocket::readyRead, this,
        [socket, idle, answer, errorBody, part, finish, outcome, method] {
            idle->start();
            const QByteArray bytes = answer->take(socket->readAll());
            if (answer->overlong()) {
                finish(givenUp(method,
                    QStringLiteral("a line longer than %1 KiB").arg(HttpAnswer::kMaxLine >> 10)));
                return;
            }
            if (answer->status() == 200) {
                if (const QString error = part(bytes); !error.isEmpty()) {
                    finish(error);
                    return;
                }
            } else if (errorBody->size() < JsonEntryStream::kMaxPending) {
                errorBody->append(bytes);
            }
            if (answer->complete())
                finish(outcome({}));
        });
    connect(socket, &QTcpSocket::disconnected, this,
        [socket, finish, outcome] { finish(outcome(socket->errorString())); });
    connect(socket, &QTcpSocket::errorOccurred, this,
        [socket, finish, outcome](QAbstractSocket::SocketError error) {
            // The daemon closing the connection after the answer is the normal end.
            if (error != QAbstractSocket::RemoteHostClosedError)
                finish(outcome(socket->errorString()));
        });
    idle->start();
    socket->connectToHost(QHostAddress(m_base.host()), quint16(m_base.port()));
}

void RcloneClient::abortAll()
{
    const QList<QPointer<QTcpSocket>> sockets = std::exchange(m_sockets, {});
    for (const QPointer<QTcpSocket> &socket : sockets) {
        if (!socket)
            continue;
        socket->disconnect();
        socket->abort();
        socket->deleteLater();
    }
    const QList<std::shared_ptr<Job>> jobs = std::exchange(m_jobs, {});
    for (const std::shared_ptr<Job> &job : jobs) {
        job->dropped = true;
        // The job would otherwise go on in the daemon, listing or fetching for nobody.
        if (job->id > 0)
            send(
                QStringLiteral("job/stop"), job->method, {{"jobid", job->id}},
                [](const QByteArray &) { return QString(); }, [](const QString &) {});
    }
}
