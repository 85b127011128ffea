// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/DataDirectory.h"

#include "app/AppIdentity.h"

#include <QDate>
#include <QStandardPaths>

namespace DataDirectory {

QString base()
{
    return QStringLiteral("%1/%2/%3/")
        .arg(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
            AppIdentity::organizationName, AppIdentity::applicationName);
}

QString crashDatabasePath()
{
    return base() + QStringLiteral("sentrydb");
}

QString logDirectory()
{
    return base() + QStringLiteral("Log");
}

QString todaysLogFile()
{
    return logDirectory() + QStringLiteral("/log_")
        + QDate::currentDate().toString(QStringLiteral("yyyy-MM-dd")) + QStringLiteral(".log");
}

} // namespace DataDirectory
