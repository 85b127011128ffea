// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QByteArray>
#include <QJsonObject>
#include <QObject>
#include <QPointer>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;
class QTcpSocket;

// The rclone daemon's remote-control calls: JSON in, JSON out, over HTTP on the loopback
// interface. Every answer comes back on the thread this object lives on; a failure comes
// as one sentence that names the call and carries rclone's own words when it sent any.
class RcloneClient : public QObject
{
    Q_OBJECT
public:
    using Done = std::function<void(const QJsonObject &result, const QString &error)>;
    using Entry = std::function<void(const QJsonObject &entry)>;

    explicit RcloneClient(QObject *parent = nullptr);

    void setEndpoint(const QUrl &base, const QByteArray &user, const QByteArray &password);

    void call(const QString &method, const QJsonObject &input, Done done);
    // operations/list with each entry handed over as soon as it has arrived.
    void list(const QJsonObject &input, Entry entry, Done done);
    // Drops every call in flight; their callbacks are not called.
    void abortAll();

private:
    QNetworkReply *post(const QString &method, const QJsonObject &input);
    static QString failure(const QString &method, QNetworkReply *reply, const QByteArray &body);

    QNetworkAccessManager *m_network;
    QUrl m_base;
    QByteArray m_authorization;
    QList<QPointer<QNetworkReply>> m_replies;
    QList<QPointer<QTcpSocket>> m_sockets;
};
