// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

struct stat;

// What a file looked like when the scan read it: its size, modification time and
// identity (device and inode). The removal compares the file with it just before it acts,
// so a file edited or replaced since the scan is never removed on the scan's word.
struct FileStamp
{
    qint64 size = -1;
    qint64 modifiedNs = 0;
    quint64 device = 0;
    quint64 inode = 0;
    // The XXH3-64 digest of the whole content when the scan computed one (the full mode,
    // or a file small enough to be read whole), so that a removal can compare an
    // unchanged file without reading it again.
    quint64 contentKey = 0;
    bool hasContentKey = false;
    // The inode's change time: nobody can set it back, so a file whose content was edited
    // and whose modification time was restored still shows; only then is the key reused.
    qint64 changedNs = 0;

    bool isValid() const { return size >= 0; }
    bool sameContentStamp(const FileStamp &other) const
    {
        return size == other.size && modifiedNs == other.modifiedNs;
    }
    bool sameFile(const FileStamp &other) const
    {
        return device == other.device && inode == other.inode;
    }
    // Whether the key this (scan's) stamp carries still stands for current's content.
    bool keyStillHolds(const FileStamp &current) const
    {
        return hasContentKey && sameContentStamp(current) && sameFile(current)
            && changedNs == current.changedNs;
    }

    // The stamp of a regular file at path (the link itself is not followed); an invalid
    // stamp when there is no regular file there.
    static FileStamp of(const QString &path);
#ifdef Q_OS_UNIX
    // The stamp an lstat/fstat answer gives, whatever the kind of entry.
    static FileStamp fromStat(const struct stat &info);
#endif
    // The same, carrying the whole-content key the scan just computed, unless the file
    // was modified so recently that a later write could still share its time stamp.
    static FileStamp withContentKey(const QString &path, quint64 key);
};
