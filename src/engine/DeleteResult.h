// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QMetaType>
#include <QString>

// The outcome of one item of a removal.
struct DeleteResult
{
    enum Code : int {
        NoError = 0,
        NotAFile = 2,
        NotAFolder = 3,
        MoveFailed = 6,
        RemovalFailed = 9,
        // A check just before the removal kept the item; reason says which.
        Skipped = 10,
        // The batch stopped before this item: its record could not be written.
        NotRecorded = 11,
    };

    QString path;
    // True when the item is gone from its place (an item already missing counts).
    bool success = true;
    int errorCode = NoError;
    // "Target is not a file.", "Target is not a folder.", "Deletion failed.", "Folder
    // deletion failed." or "Skipped."; empty on success.
    QString message;
    // The system's words for a failure, or the check that kept a skipped item.
    QString reason;
    // Where the item went: its place in the trash, or its new path after a move.
    QString destination;
    // Nothing was there any more when its turn came.
    bool alreadyGone = false;
    // What went, as read just before it went: for a restore's check that it puts back
    // this and nothing else.
    qint64 size = -1;
    qint64 modifiedNs = 0;
    QByteArray digest;
    // Its permission bits, for a restore that makes it a separate file again (-1: none).
    int mode = -1;
    // The space its going freed, where only the act could tell (-1: its size).
    qint64 freedBytes = -1;
};
Q_DECLARE_METATYPE(DeleteResult)
