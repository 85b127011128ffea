// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

// One scanned file as the scanner reports it: size in bytes, absolute path and the
// drive type of the root it was found under.
struct FileMeta
{
    qint64 size = 0;
    QString filePath;
    int driveType = 3;
};
Q_DECLARE_METATYPE(FileMeta)
