// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/DailyRunReport.h"

#include "app/AppIdentity.h"
#include "app/BuildSettings.h"
#include "app/LogTags.h"
#include "app/TLogger.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QSettings>
#include <QUrl>
#include <QUrlQuery>
#include <QUuid>

namespace {

// The log tag of this file.
const QString &kTag = LogTags::mainWindow;
const QString kClientIdKey = QStringLiteral("ClientID");
const QString kLastDateKey = QStringLiteral("LastRunSuccessDate");
} // namespace

DailyRunReport::DailyRunReport(
    const QString &measurementId, const QString &apiSecret, QObject *parent)
    : QObject(parent)
    , m_measurementId(measurementId)
    , m_apiSecret(apiSecret)
    , m_endpoint(QStringLiteral(VELTRINE_ANALYTICS_URL))
{ }

bool DailyRunReport::isConfigured() const
{
    return !m_measurementId.isEmpty() && !m_apiSecret.isEmpty() && !m_endpoint.isEmpty();
}

QString DailyRunReport::clientId()
{
    QSettings settings(AppIdentity::organizationName, AppIdentity::applicationName);
    QString id = settings.value(kClientIdKey).toString();
    if (id.isEmpty()) {
        static const QRegularExpression braces(QStringLiteral("^[{]|[}]$"));
        id = QUuid::createUuid().toString().remove(braces);
        settings.setValue(kClientIdKey, id);
    }
    return id;
}

QByteArray DailyRunReport::body(const QString &clientId) const
{
    const QJsonObject params {{QStringLiteral("product_name"), AppIdentity::applicationName},
        {QStringLiteral("installer_version"), AppIdentity::version}};
    const QJsonObject event {{QStringLiteral("name"), QStringLiteral("run_success")},
        {QStringLiteral("params"), params}};
    const QJsonObject root {
        {QStringLiteral("client_id"), clientId}, {QStringLiteral("events"), QJsonArray {event}}};
    return QJsonDocument(root).toJson(QJsonDocument::Compact);
}

bool DailyRunReport::sendIfDue(const QDate &today)
{
    if (!isConfigured())
        return false;
    const QString id = clientId();
    QSettings settings(AppIdentity::organizationName, AppIdentity::applicationName);
    const QString day = today.toString(Qt::ISODate);
    if (settings.value(kLastDateKey).toString() == day) {
        splog_d(
            kTag + QStringLiteral("send_ga4_run_log:: Already sent today. clientId: %1").arg(id));
        return false;
    }
    if (!m_network)
        m_network = new QNetworkAccessManager(this);
    QUrl url(m_endpoint);
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("measurement_id"), m_measurementId);
    query.addQueryItem(QStringLiteral("api_secret"), m_apiSecret);
    url.setQuery(query);
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    request.setTransferTimeout(15000);
    QNetworkReply *reply = m_network->post(request, body(id));
    connect(reply, &QNetworkReply::finished, this, [this, reply, id, day] {
        reply->deleteLater();
        const bool ok = reply->error() == QNetworkReply::NoError;
        if (ok) {
            QSettings store(AppIdentity::organizationName, AppIdentity::applicationName);
            store.setValue(kLastDateKey, day);
            splog_d(kTag
                + QStringLiteral("send_ga4_run_log:: run_success event sent "
                                 "successfully. clientId:[%1]")
                      .arg(id));
        } else {
            splog_d(kTag
                + QStringLiteral("send_ga4_run_log:: run_success event sent "
                                 "failed. clientId: %1. error=%2")
                      .arg(id, reply->errorString()));
        }
        emit finished(ok);
    });
    return true;
}
