// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QObject>

class QNetworkAccessManager;
class QSettings;

// Sends one "run_success" usage event a day to the web analytics collector. Nothing is
// sent unless both the collector id and its secret were configured at build time. The
// client id and the date of the last report live in the native settings.
class DailyRunReport : public QObject
{
    Q_OBJECT
public:
    DailyRunReport(
        const QString &measurementId, const QString &apiSecret, QObject *parent = nullptr);

    bool isConfigured() const;
    // Returns whether a request went out.
    bool sendIfDue(const QDate &today = QDate::currentDate());
    // The stored client id, created on first use (a UUID without braces).
    QString clientId();
    QByteArray body(const QString &clientId) const;
    void setEndpoint(const QString &url) { m_endpoint = url; }

signals:
    void finished(bool success);

private:
    QString m_measurementId;
    QString m_apiSecret;
    QString m_endpoint;
    QNetworkAccessManager *m_network = nullptr;
};
