// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/RcloneClient.h"

#include "cloud/JsonEntryStream.h"

#include <memory>

namespace {
constexpr qint64 kListBuffer = 256 * 1024;
}

#include <QHostAddress>
#include <QJsonDocument>
#include <QJsonParseError>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTcpSocket>

RcloneClient::RcloneClient(QObject *parent)
    : QObject(parent), m_network(new QNetworkAccessManager(this))
{
    // The daemon is local: a proxy of the user's environment must never see its password.
    m_network->setProxy(QNetworkProxy::NoProxy);
}

void RcloneClient::setEndpoint(const QUrl &base, const QByteArray &user, const QByteArray &password)
{
    m_base = base;
    m_authorization = "Basic " + (user + ':' + password).toBase64();
}

QNetworkReply *RcloneClient::post(const QString &method, const QJsonObject &input)
{
    QNetworkRequest request(m_base.resolved(QUrl(method)));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("application/json"));
    request.setRawHeader("Authorization", m_authorization);
    // A listing of a large tree can take as long as the service needs to walk it.
    request.setTransferTimeout(0);
    QNetworkReply *reply
        = m_network->post(request, QJsonDocument(input).toJson(QJsonDocument::Compact));
    m_replies.removeAll(nullptr);
    m_replies.append(reply);
    return reply;
}

QString RcloneClient::failure(const QString &method, QNetworkReply *reply, const QByteArray &body)
{
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status == 0)
        return QStringLiteral("rclone did not answer %1: %2").arg(method, reply->errorString());
    // rclone sends {"error": "...", "status": N} with its reason.
    const QJsonObject answer = QJsonDocument::fromJson(body).object();
    const QString words = answer.value(QLatin1String("error")).toString();
    if (!words.isEmpty())
        return QStringLiteral("%1 failed: %2").arg(method, words);
    return QStringLiteral("%1 failed with HTTP status %2").arg(method).arg(status);
}

void RcloneClient::call(const QString &method, const QJsonObject &input, Done done)
{
    QNetworkReply *reply = post(method, input);
    connect(reply, &QNetworkReply::finished, this, [reply, method, done = std::move(done)] {
        reply->deleteLater();
        const QByteArray body = reply->readAll();
        if (reply->error() != QNetworkReply::NoError) {
            done({}, failure(method, reply, body));
            return;
        }
        QJsonParseError parseError;
        const QJsonDocument document = QJsonDocument::fromJson(body, &parseError);
        if (parseError.error != QJsonParseError::NoError || !document.isObject()) {
            done({},
                QStringLiteral("rclone answered %1 with malformed JSON (%2)")
                    .arg(method, parseError.errorString()));
            return;
        }
        done(document.object(), {});
    });
}

namespace {

// One HTTP/1.1 answer read off a socket as it arrives: the status, then the body, whole
// or in chunks, handed on piece by piece.
struct ListAnswer
{
    QByteArray head;
    bool headDone = false;
    int status = 0;
    bool chunked = false;
    qint64 chunkLeft = -1; // -1: a chunk-size line is due
    bool complete = false;
    QByteArray pending;
    QByteArray errorBody;

    // Returns the body bytes found in data.
    QByteArray take(const QByteArray &data)
    {
        QByteArray body;
        pending += data;
        if (!headDone) {
            const qsizetype end = pending.indexOf("\r\n\r\n");
            if (end < 0)
                return body;
            head = pending.left(end);
            pending.remove(0, end + 4);
            headDone = true;
            const QList<QByteArray> lines = head.split('\n');
            const QList<QByteArray> statusLine = lines.value(0).split(' ');
            status = statusLine.value(1).toInt();
            for (const QByteArray &line : lines)
                if (line.toLower().startsWith("transfer-encoding:")
                    && line.toLower().contains("chunked"))
                    chunked = true;
        }
        if (!chunked) {
            body = std::exchange(pending, {});
            return body;
        }
        while (!complete) {
            if (chunkLeft < 0) {
                const qsizetype end = pending.indexOf("\r\n");
                if (end < 0)
                    break;
                bool ok = false;
                chunkLeft = pending.left(end).split(';').first().trimmed().toLongLong(&ok, 16);
                pending.remove(0, end + 2);
                if (!ok)
                    chunkLeft = 0;
                if (chunkLeft == 0)
                    complete = true;
                continue;
            }
            const qint64 n = std::min<qint64>(chunkLeft, pending.size());
            body += pending.left(n);
            pending.remove(0, n);
            chunkLeft -= n;
            if (chunkLeft > 0 || pending.size() < 2)
                break;
            pending.remove(0, 2);
            chunkLeft = -1;
        }
        return body;
    }
};

} // namespace

void RcloneClient::list(const QJsonObject &input, Entry entry, Done done)
{
    // The listing is read off a socket of its own rather than through the network access
    // manager: rclone writes a listing in one piece once it has it all, and the manager
    // would hold all of it (about 300 bytes a file, twice) however small its read buffer.
    // A socket with a small read buffer leaves the rest in rclone's socket until the
    // entries before it are read.
    static const QString method = QStringLiteral("operations/list");
    auto *socket = new QTcpSocket(this);
    socket->setReadBufferSize(kListBuffer);
    m_sockets.removeAll(nullptr);
    m_sockets.append(socket);
    auto stream = std::make_shared<JsonEntryStream>(std::move(entry));
    auto answer = std::make_shared<ListAnswer>();
    auto finished = std::make_shared<bool>(false);
    const QByteArray body = QJsonDocument(input).toJson(QJsonDocument::Compact);
    const QByteArray request = "POST /" + method.toLatin1()
        + " HTTP/1.1\r\nHost: " + m_base.host().toLatin1() + ':' + QByteArray::number(m_base.port())
        + "\r\nAuthorization: " + m_authorization
        + "\r\nContent-Type: application/json\r\nContent-Length: " + QByteArray::number(body.size())
        + "\r\nConnection: close\r\n\r\n" + body;
    const auto end = [socket, stream, answer, finished, done](const QString &socketError) {
        if (std::exchange(*finished, true))
            return;
        socket->disconnect();
        socket->deleteLater();
        if (answer->status == 0) {
            done({}, QStringLiteral("rclone did not answer %1: %2").arg(method, socketError));
            return;
        }
        if (answer->status != 200) {
            const QString words = QJsonDocument::fromJson(answer->errorBody)
                                      .object()
                                      .value(QLatin1String("error"))
                                      .toString();
            done({},
                words.isEmpty() ? QStringLiteral("%1 failed with HTTP status %2")
                                      .arg(method)
                                      .arg(answer->status)
                                : QStringLiteral("%1 failed: %2").arg(method, words));
            return;
        }
        if (answer->chunked && !answer->complete) {
            done(
                {}, QStringLiteral("rclone's answer to %1 broke off: %2").arg(method, socketError));
            return;
        }
        if (!stream->finish()) {
            done({},
                QStringLiteral("rclone answered %1 with malformed JSON (%2)")
                    .arg(method, stream->error()));
            return;
        }
        done({}, {});
    };
    connect(socket, &QTcpSocket::connected, socket, [socket, request] { socket->write(request); });
    connect(socket, &QTcpSocket::readyRead, this, [socket, stream, answer, end] {
        const QByteArray bytes = answer->take(socket->readAll());
        if (answer->status == 200)
            stream->feed(bytes);
        else
            answer->errorBody += bytes;
        if (answer->complete)
            end({});
    });
    connect(socket, &QTcpSocket::disconnected, this,
        [socket, answer, end] { end(socket->errorString()); });
    connect(socket, &QTcpSocket::errorOccurred, this,
        [socket, end](QAbstractSocket::SocketError error) {
            // The daemon closing the connection after the answer is the normal end.
            if (error != QAbstractSocket::RemoteHostClosedError)
                end(socket->errorString());
        });
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
    const QList<QPointer<QNetworkReply>> replies = std::exchange(m_replies, {});
    for (const QPointer<QNetworkReply> &reply : replies) {
        if (!reply)
            continue;
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
}
