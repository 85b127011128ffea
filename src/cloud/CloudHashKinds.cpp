// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudHashKinds.h"

const QStringList &CloudHashKinds::preferred()
{
    static const QStringList kinds {QStringLiteral("md5"), QStringLiteral("sha1"),
        QStringLiteral("dropbox"), QStringLiteral("quickxor"), QStringLiteral("sha256"),
        QStringLiteral("crc32")};
    return kinds;
}

QString CloudHashKinds::choose(const QJsonArray &offered)
{
    for (const QString &kind : preferred())
        if (offered.contains(kind))
            return kind;
    return {};
}

QString CloudHashKinds::name(int kind)
{
    return kind < preferred().size() ? preferred().at(kind) : downloaded();
}

const QString &CloudHashKinds::downloaded()
{
    static const QString kind = QStringLiteral("xxh128");
    return kind;
}
