// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QMetaType>
#include <QString>

// The accepted files of one folder, reported by the scanner in one queued call. Names are
// kept as the file system's bytes (each followed by a NUL) rather than one QString path
// per file: a scan of half a million files then costs a few bytes per name instead of a
// UTF-16 copy of the whole path, and the hashing code can open each file relative to its
// folder.
struct ScanBatch
{
    // What the walk's stat of a file said: the key cache and the removal checks take the
    // file's stamp from here instead of asking the file system again. inode 0: no stamp
    // (the file lies on another device than its folder, or was reached through a link).
    struct Stat
    {
        quint64 inode = 0;
        qint64 modifiedNs = 0;
        qint64 changedNs = 0;
    };

    // Absolute folder path as reported to the user, and the same path as bytes.
    QString folder;
    QByteArray nativeFolder;
    int driveType = 3;
    QByteArray names;
    QList<qint64> sizes;
    // One per size (or none at all); the device is the folder's.
    QList<Stat> stats;
    quint64 device = 0;
    // When the folder's listing began (ns since the epoch): a file changed well before it
    // cannot have been written again since without its times moving.
    qint64 listedNs = 0;
};
Q_DECLARE_METATYPE(ScanBatch)
