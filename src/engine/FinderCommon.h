// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/LogTags.h"

#include <QByteArray>
#include <QString>

// What the duplicate finder's parts (key reading, grouping, folder matching) share: their
// log tag and the path and key texts they all form the same way.
namespace FinderCommon {

// The log tag of the duplicate finder's parts.
inline const QString &kTag = LogTags::duplicateFinder;

inline QByteArray hexKey(quint64 digest)
{
    char text[17];
    static const char digits[] = "0123456789abcdef";
    for (int i = 15; i >= 0; --i) {
        text[i] = digits[digest & 0xF];
        digest >>= 4;
    }
    return QByteArray(text, 16);
}

inline QString folderOf(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    if (slash <= 0)
        return QStringLiteral("/");
    return path.left(slash);
}

inline QString fileNameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

} // namespace FinderCommon
