// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

#include <QByteArray>
#include <QJsonObject>
#include <QObject>
#include <QPointer>
#include <QUrl>

class QTcpSocket;

// The rclone daemon's remote-control calls: JSON in, JSON out, over HTTP on the loopback
// interface. Every answer comes back on the thread this object lives on; a failure comes
// as one sentence that names the call and carries rclone's own words when it sent any.
//
// Each call runs as a job of the daemon's, asked after until it has finished: a call
// may wait minutes for the service (a listing of a large tree) or for the user (a sign-in
// in the browser), but every single request is answered by rclone at once. So a request
// that stays without a byte for idleTimeoutMs finds rclone itself hung, and fails.
class RcloneClient : public QObject
{
    Q_OBJECT
public:
    using Done = std::function<void(const QJsonObject &result, const QString &error)>;
    using Entry = std::function<void(const QJsonObject &entry)>;

    static constexpr int kIdleTimeoutMs = 30000;
    // Entries one listing may hand over: more files than an account of the offered
    // services holds, and few enough that the listing they fill stays within memory.
    static constexpr qint64 kMaxEntries = 10'000'000;

    // The bounds may be made smaller, for tests.
    explicit RcloneClient(QObject *parent = nullptr, int idleTimeoutMs = kIdleTimeoutMs,
        qint64 maxEntries = kMaxEntries);

    void setEndpoint(const QUrl &base, const QByteArray &user, const QByteArray &password);

    void call(const QString &method, const QJsonObject &input, Done done);
    // operations/list with each entry handed over as soon as it has arrived.
    void list(const QJsonObject &input, Entry entry, Done done);
    // Drops every call in flight, and stops its job; their callbacks are not called.
    void abortAll();

private:
    struct Job;
    // Body bytes of a 200 answer as they arrive; returns why to give up, or nothing.
    using Part = std::function<QString(const QByteArray &bytes)>;
    // Empty, or why the request failed, in words that name the call.
    using End = std::function<void(const QString &error)>;

    void startJob(const QString &method, const QJsonObject &input, Entry entry, Done done);
    void poll(const std::shared_ptr<Job> &job);
    void endJob(const std::shared_ptr<Job> &job, const QJsonObject &status, const QString &error);
    // One request on a connection of its own; method names the call in the words of End.
    void send(
        const QString &path, const QString &method, const QJsonObject &input, Part part, End end);

    QUrl m_base;
    QByteArray m_authorization;
    int m_idleTimeoutMs;
    qint64 m_maxEntries;
    QList<QPointer<QTcpSocket>> m_sockets;
    QList<std::shared_ptr<Job>> m_jobs;
};
