// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>

#include <QString>

namespace platform {
struct EntryInfo;
}

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

    // A key of a file's content stands for it later only when the file was left alone
    // long enough before the read: a write through a shared memory mapping to a page that
    // is dirty already changes the file without moving either time until the page has been
    // written back, while a write after that moves the change time, which nobody can set
    // back. The margin covers the time stamps' step and the write-back's own lag.
    static constexpr qint64 kSettleMarginNs = 5'000'000'000LL;
    // The platform's dirty-page delay plus the margin, read once. Tests of the cache set it
    // (in milliseconds) through this environment variable: they cannot set a change time
    // back, and would otherwise wait out the kernel's delay after writing their files.
    static constexpr const char *kSettleOverride = "VELTRINE_KEY_SETTLE_MS";
    static qint64 settleNs();
    // Whether a key of content read at readNs from a file with these times may be kept.
    static bool settled(qint64 modifiedNs, qint64 changedNs, qint64 readNs)
    {
        return readNs - std::max(modifiedNs, changedNs) > settleNs();
    }

    // The stamp of a regular file at path (the link itself is not followed); an invalid
    // stamp when there is no regular file there.
    static FileStamp of(const QString &path);
    // The stamp of an entry as the system told of it, whatever its kind.
    static FileStamp fromEntry(const platform::EntryInfo &info);
    // The stamp of the file open as fd; an invalid stamp when the system cannot tell.
    static FileStamp ofOpenFile(int fd);
    // The same, carrying the whole-content key the scan just computed, unless the file
    // has not settled().
    static FileStamp withContentKey(const QString &path, quint64 key);
};
