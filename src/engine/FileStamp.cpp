// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/FileStamp.h"

#include "engine/FilePathCodec.h"
#include "platform/Platform.h"

#include <chrono>

#include <QDateTime>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

FileStamp FileStamp::of(const QString &path)
{
    FileStamp stamp;
#ifdef Q_OS_UNIX
    struct stat info
    {
    };
    if (::lstat(FilePathCodec::encode(path).constData(), &info) != 0 || !S_ISREG(info.st_mode))
        return stamp;
    return fromStat(info);
#else
    const QFileInfo info(path);
    if (!info.isFile() || info.isSymLink())
        return stamp;
    stamp.size = info.size();
    stamp.modifiedNs = info.lastModified().toMSecsSinceEpoch() * 1000000LL;
#endif
    return stamp;
}

#ifdef Q_OS_UNIX
FileStamp FileStamp::fromStat(const struct stat &info)
{
    FileStamp stamp;
    stamp.size = info.st_size;
    stamp.modifiedNs = platform::nanosecondsOf(info.st_mtim);
    stamp.changedNs = platform::nanosecondsOf(info.st_ctim);
    stamp.device = quint64(info.st_dev);
    stamp.inode = quint64(info.st_ino);
    return stamp;
}
#endif

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
