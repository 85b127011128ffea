// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudPath.h"

CloudPath CloudPath::split(const QString &path)
{
    const qsizetype colon = path.indexOf(QLatin1Char(':'));
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    if (slash <= colon)
        return {path.left(colon + 1), path.mid(colon + 1)};
    return {path.left(slash), path.mid(slash + 1)};
}

QString CloudPath::join(const QString &folder, const QString &relative)
{
    if (folder.endsWith(QLatin1Char(':')) || folder.endsWith(QLatin1Char('/')))
        return folder + relative;
    return folder + QLatin1Char('/') + relative;
}
