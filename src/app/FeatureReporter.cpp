// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/FeatureReporter.h"

#include "app/AppIdentity.h"
#include "app/CrashReporter.h"
#include "app/SettingsKeys.h"

#include <QDebug>
#include <QJsonObject>
#include <QSettings>

bool reportFeature(const QString &feature, const QString &message)
{
    QSettings settings(AppIdentity::organizationName, AppIdentity::applicationName);
    const QString key = SettingsKeys::featureCount.arg(feature);
    const int count = settings.value(key, 0).toInt();
    if (count >= 3) {
        qDebug() << "Sentry log skipped due to max send count:" << feature;
        return false;
    }
    const QJsonObject event {{QStringLiteral("level"), QStringLiteral("info")},
        {QStringLiteral("logger"), feature},
        {QStringLiteral("message"),
            QJsonObject {{QStringLiteral("formatted"),
                QStringLiteral("User used feature: %1. msg: %2").arg(feature, message)}}},
        {QStringLiteral("tags"), QJsonObject {{QStringLiteral("feature"), feature}}},
        {QStringLiteral("extra"), QJsonObject {{QStringLiteral("message"), message}}}};
    CrashReporter::captureEvent(event);
    settings.setValue(key, count + 1);
    return true;
}
