// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/SentryDsn.h"

#include <QObject>
#include <QSet>

class QNetworkAccessManager;
class QNetworkReply;

// Sends the pending crash reports and events of the database as envelopes and removes
// each one the receiver accepted. Lives on the thread of the application object.
class SentryTransport : public QObject
{
    Q_OBJECT
public:
    SentryTransport(const SentryDsn &dsn, const QString &databasePath, const QString &release,
        QObject *parent = nullptr);

    void sendPending();
    bool waitForFinished(int msecs);

    // Envelope of a crash report (header and trace file, plus its log copy if present).
    static QByteArray crashEnvelope(
        const QString &reportPath, const QString &dsn, const QString &release);
    // Envelope of one stored event.
    static QByteArray eventEnvelope(const QByteArray &eventJson, const QString &dsn);

signals:
    void finished();

private:
    void post(const QByteArray &envelope, const QStringList &filesToRemove);
    void onReplyFinished(QNetworkReply *reply, const QStringList &filesToRemove);

    SentryDsn m_dsn;
    QString m_databasePath;
    QString m_release;
    QNetworkAccessManager *m_network;
    QSet<QString> m_inFlight;
};
