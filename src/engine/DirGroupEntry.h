// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QString>

// One folder of a group of duplicate folders.
struct DirGroupEntry
{
    QString folderPath;
    int fileCount = 0;
    qint64 totalSize = 0;

    bool operator==(const DirGroupEntry &other) const
    {
        return folderPath == other.folderPath && fileCount == other.fileCount
            && totalSize == other.totalSize;
    }
};
Q_DECLARE_METATYPE(DirGroupEntry)
