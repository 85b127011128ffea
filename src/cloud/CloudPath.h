// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

// A cloud path "remote:folder/name" cut the way rclone's calls take it: the folder as
// the file system ("remote:folder") and the name inside it.
struct CloudPath
{
    QString fs;
    QString remote;

    static CloudPath split(const QString &path);
    // The path of an entry listed under folder (whose listing gives paths relative to it).
    static QString join(const QString &folder, const QString &relative);
    // The folders without those inside (or equal to) another of them, in their order.
    static QStringList outermost(const QStringList &folders);
};
