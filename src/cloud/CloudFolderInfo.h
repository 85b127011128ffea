// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

// One folder of a cloud account as the folder chooser shows it.
struct CloudFolderInfo
{
    // "remote:path", the form a scan takes.
    QString id;
    QString name;
    // Whether it may hold folders: not known before it is listed itself, so every folder
    // offers to be opened until then.
    bool hasSubFolders = true;
};
Q_DECLARE_METATYPE(CloudFolderInfo)
