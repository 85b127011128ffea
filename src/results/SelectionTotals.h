// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/FileStamp.h"

#include <QFuture>
#include <QHash>
#include <QStringList>

class KvCloudObject;

// The number and the bytes of the items selected for removal, summed off the GUI thread.
// A selected folder counts once and adds the files directly in it; a path that has gone
// still counts but adds nothing.
struct SelectionTotals
{
    int count = 0;
    qint64 bytes = 0;

    // Group key -> selected entries, as the result store holds them. With stamps, a file
    // the scan stamped counts the size the scan saw, without asking the disk: the answer
    // is immediate, and a pass without stamps then confirms it against the disk.
    static QFuture<SelectionTotals> start(const QHash<QString, QStringList> &selected,
        const QHash<QString, FileStamp> &stamps = {}, bool isCloud = false,
        KvCloudObject *cloud = nullptr);
    // Bytes of one selected entry on disk (a folder's direct files).
    static qint64 bytesOf(const QString &entry);
};
