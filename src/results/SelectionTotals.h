// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

    // Group key -> selected entries, as the result store holds them.
    static QFuture<SelectionTotals> start(const QHash<QString, QStringList> &selected,
        bool isCloud = false, KvCloudObject *cloud = nullptr);
    // Bytes of one selected entry on disk (a folder's direct files).
    static qint64 bytesOf(const QString &entry);
};
