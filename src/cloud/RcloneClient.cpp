// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/RcloneClient.h"

#include "cloud/JsonEntryStream.h"

#include <memory>

namespace {
constexpr qint64 kListBuffer = 256 * 1024;
}

#include <QJsonDocument>
#include <QJsonParseError>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>

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

void RcloneClient::list(const QJsonObject &input, Entry entry, Done done)
{
    static const QString method = QStringLiteral("operations/list");
    QNetworkReply *reply = post(method, input);
    // rclone writes a listing in one piece once it has it all; without a limit the
    // network thread would hold all of it (some 300 bytes a file) before the entries are
    // read. With one, the rest waits in rclone's socket.
    reply->setReadBufferSize(kListBuffer);
    auto stream = std::make_shared<JsonEntryStream>(std::move(entry));
    // An error answer is small and read whole at the end; only a good one is streamed.
    const auto streaming = [reply] {
        return reply->error() == QNetworkReply::NoError
            && reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() == 200;
    };
    connect(reply, &QNetworkReply::readyRead, this, [reply, stream, streaming] {
        if (streaming() && stream->error().isEmpty())
            stream->feed(reply->readAll());
    });
    connect(
        reply, &QNetworkReply::finished, this, [reply, stream, streaming, done = std::move(done)] {
            reply->deleteLater();
            if (!streaming()) {
                done({}, failure(method, reply, reply->readAll()));
                return;
            }
            stream->feed(reply->readAll());
            if (!stream->finish()) {
                done({},
                    QStringLiteral("rclone answered %1 with malformed JSON (%2)")
                        .arg(method, stream->error()));
                return;
            }
            done({}, {});
        });
}

void RcloneClient::abortAll()
{
    const QList<QPointer<QNetworkReply>> replies = std::exchange(m_replies, {});
    for (const QPointer<QNetworkReply> &reply : replies) {
        if (!reply)
            continue;
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
}
