// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QTcpServer>
#include <QTcpSocket>

// A minimal HTTP receiver on 127.0.0.1 that records every request and gives each the
// same answer: the crash reports', the daily run report's and the rclone client's far end.
class HttpReceiver : public QObject
{
public:
    struct Request
    {
        QByteArray head;
        QByteArray body;
    };

    // 204 carries no body.
    explicit HttpReceiver(int status = 200)
        : HttpReceiver(answer(status, status == 204 ? QByteArray() : QByteArray("{}")))
    { }
    explicit HttpReceiver(QByteArray response) : m_response(std::move(response))
    {
        m_server.listen(QHostAddress::LocalHost);
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = m_server.nextPendingConnection())
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        });
    }

    quint16 port() const { return m_server.serverPort(); }
    QList<Request> requests;
    // When set, answers each request in place of the fixed answer (n counts from 0): it
    // may write what it likes, when it likes, or nothing at all.
    std::function<void(QTcpSocket *socket, int n)> respond;

    // A JSON answer; without its length, the body is known to end only when the
    // connection closes.
    static QByteArray answer(int status, const QByteArray &body, bool withLength = true)
    {
        QByteArray head
            = "HTTP/1.1 " + QByteArray::number(status) + " X\r\nContent-Type: application/json\r\n";
        if (withLength)
            head += "Content-Length: " + QByteArray::number(body.size()) + "\r\n";
        return head + "Connection: close\r\n\r\n" + body;
    }

private:
    void read(QTcpSocket *socket)
    {
        QByteArray &buffer = m_buffers[socket];
        buffer += socket->readAll();
        const int end = buffer.indexOf("\r\n\r\n");
        if (end < 0)
            return;
        const QByteArray head = buffer.left(end);
        int length = 0;
        for (const QByteArray &line : head.split('\n')) {
            if (line.toLower().startsWith("content-length:"))
                length = line.mid(15).trimmed().toInt();
        }
        if (buffer.size() < end + 4 + length)
            return;
        requests.append({head, buffer.mid(end + 4, length)});
        m_buffers.remove(socket);
        if (respond) {
            respond(socket, int(requests.size()) - 1);
            return;
        }
        socket->write(m_response);
        socket->disconnectFromHost();
    }

    QTcpServer m_server;
    QHash<QTcpSocket *, QByteArray> m_buffers;
    QByteArray m_response;
};
