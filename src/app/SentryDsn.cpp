// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SentryDsn.h"

SentryDsn::SentryDsn(const QString &text) : m_text(text.trimmed()), m_url(m_text, QUrl::StrictMode)
{
    if (m_text.isEmpty() || !m_url.isValid() || m_url.host().isEmpty()
        || (m_url.scheme() != QLatin1String("http") && m_url.scheme() != QLatin1String("https")))
        return;
    m_publicKey = m_url.userName();
    QString path = m_url.path();
    while (path.endsWith(QLatin1Char('/')))
        path.chop(1);
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    m_projectId = path.mid(slash + 1);
    m_pathPrefix = path.left(slash);
    bool numeric = false;
    m_projectId.toULongLong(&numeric);
    m_valid = !m_publicKey.isEmpty() && numeric;
}

QUrl SentryDsn::envelopeUrl() const
{
    QUrl url;
    url.setScheme(m_url.scheme());
    url.setHost(m_url.host());
    url.setPort(m_url.port());
    url.setPath(QStringLiteral("%1/api/%2/envelope/").arg(m_pathPrefix, m_projectId));
    return url;
}

QByteArray SentryDsn::authHeader(const QString &clientName) const
{
    return QStringLiteral("Sentry sentry_version=7, sentry_client=%1, sentry_key=%2")
        .arg(clientName, m_publicKey)
        .toUtf8();
}
