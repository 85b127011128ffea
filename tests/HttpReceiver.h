// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTcpServer>
#include <QTcpSocket>

// A minimal HTTP receiver on 127.0.0.1 that records every request and answers each
// with a fixed status: the crash reports' and the daily run report's far end.
class HttpReceiver : public QObject
{
public:
    struct Request
    {
        QByteArray head;
        QByteArray body;
    };

    explicit HttpReceiver(int status = 200) : m_status(status)
    {
        m_server.listen(QHostAddress::LocalHost);
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = m_server.nextPendingConnection())
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        });
    }

    quint16 port() const { return m_server.serverPort(); }
    QList<Request> requests;

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
        // 204 carries no body.
        const QByteArray body = m_status == 204 ? QByteArray() : QByteArray("{}");
        socket->write("HTTP/1.1 " + QByteArray::number(m_status) + " X\r\nContent-Length: "
            + QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body);
        socket->disconnectFromHost();
    }

    QTcpServer m_server;
    QHash<QTcpSocket *, QByteArray> m_buffers;
    int m_status;
};
