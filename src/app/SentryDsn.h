// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

// A crash-reporting DSN, "scheme://publickey@host[:port][/prefix]/projectid".
class SentryDsn
{
public:
    explicit SentryDsn(const QString &text = {});

    bool isValid() const { return m_valid; }
    QString publicKey() const { return m_publicKey; }
    QString projectId() const { return m_projectId; }
    QString text() const { return m_text; }
    // Where envelopes are posted: "<scheme>://<host>[:port][/prefix]/api/<project>/envelope/".
    QUrl envelopeUrl() const;
    // Value of the "X-Sentry-Auth" header.
    QByteArray authHeader(const QString &clientName) const;

private:
    QString m_text;
    QUrl m_url;
    QString m_publicKey;
    QString m_projectId;
    QString m_pathPrefix;
    bool m_valid = false;
};
