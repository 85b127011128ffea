// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QString>

// One file of the open group, a row of the thumbnail grid or the detail table.
struct ImageItem
{
    QString key;
    int groupIndex = 0;
    QString path;
    QString extra;
    qint64 size = 0;
    // Preformatted modification date; when empty the model formats it itself.
    QString dateText;
    bool hidden = false;
    bool checked = false;
    // In a protected folder: kept whatever happens, never checked.
    bool locked = false;
    int type = 7;
    int similarity = 0;
    // Why a similar picture joined its group, where the measure tells.
    QString reason;
    // A member of a group whose files were compared only in part (or by name): its
    // similarity to the others is not known.
    bool unverified = false;
    QString displayName;
    // Where the folders of the group's members begin to differ (PathElider).
    int distinctFrom = 0;
};

Q_DECLARE_METATYPE(ImageItem)
