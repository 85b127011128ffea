// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/FileStamp.h"

#include "engine/FilePathCodec.h"
#include "platform/FolderReader.h"
#include "platform/Platform.h"

#include <chrono>

#include <QtGlobal>

FileStamp FileStamp::of(const QString &path)
{
    platform::EntryInfo info;
    if (platform::entryInfoOf(FilePathCodec::encode(path).toStdString(), false, info) != 0
        || info.kind != platform::EntryInfo::File)
        return {};
    return fromEntry(info);
}

FileStamp FileStamp::fromEntry(const platform::EntryInfo &info)
{
    FileStamp stamp;
    stamp.size = info.size;
    stamp.modifiedNs = info.modifiedNs;
    stamp.changedNs = info.changedNs;
    stamp.device = quint64(info.device);
    stamp.inode = quint64(info.inode);
    return stamp;
}

FileStamp FileStamp::ofOpenFile(int fd)
{
    platform::EntryInfo info;
    if (platform::entryInfoOfOpenFile(fd, info) != 0)
        return {};
    return fromEntry(info);
}

qint64 FileStamp::settleNs()
{
    static const qint64 settle = [] {
        bool overridden = false;
        const qint64 ms = qEnvironmentVariableIntValue(kSettleOverride, &overridden);
        if (overridden && ms >= 0)
            return ms * 1'000'000LL;
        return platform::current().dirtyPageDelayMs() * 1'000'000LL + kSettleMarginNs;
    }();
    return settle;
}

FileStamp FileStamp::withContentKey(const QString &path, quint64 key)
{
    FileStamp stamp = of(path);
    const qint64 now = std::chrono::duration_cast<std::chrono::nanoseconds>(
        std::chrono::system_clock::now().time_since_epoch())
                           .count();
    if (stamp.isValid() && settled(stamp.modifiedNs, stamp.changedNs, now)) {
        stamp.contentKey = key;
        stamp.hasContentKey = true;
    }
    return stamp;
}
