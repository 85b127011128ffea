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
    // Absolute folder path as reported to the user, and the same path as bytes.
    QString folder;
    QByteArray nativeFolder;
    int driveType = 3;
    QByteArray names;
    QList<qint64> sizes;
};
Q_DECLARE_METATYPE(ScanBatch)
