// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

// One file as the service's listing describes it; nothing of it is downloaded.
struct CloudFile
{
    // "remote:folder/name", the form rclone and the result pages use.
    QString path;
    qint64 size = -1;
    // Milliseconds since the epoch, UTC.
    qint64 modTime = 0;
    // Shared between the files of one type.
    QString mimeType;
    // The raw bytes of the service's hash of kind hashType; empty when it has none.
    QByteArray hash;
    QString hashType;
};
