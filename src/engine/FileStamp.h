// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// What a file looked like when the scan read it: its size, modification time and
// identity (device and inode). The removal compares the file with it just before it acts,
// so a file edited or replaced since the scan is never removed on the scan's word.
struct FileStamp
{
    qint64 size = -1;
    qint64 modifiedNs = 0;
    quint64 device = 0;
    quint64 inode = 0;

    bool isValid() const { return size >= 0; }
    bool sameContentStamp(const FileStamp &other) const
    {
        return size == other.size && modifiedNs == other.modifiedNs;
    }
    bool sameFile(const FileStamp &other) const
    {
        return device == other.device && inode == other.inode;
    }

    // The stamp of a regular file at path (the link itself is not followed); an invalid
    // stamp when there is no regular file there.
    static FileStamp of(const QString &path);
};
