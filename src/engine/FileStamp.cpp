// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/FileStamp.h"

#include "engine/FilePathCodec.h"

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
    stamp.size = info.st_size;
    stamp.modifiedNs = qint64(info.st_mtim.tv_sec) * 1000000000LL + info.st_mtim.tv_nsec;
    stamp.device = quint64(info.st_dev);
    stamp.inode = quint64(info.st_ino);
#else
    const QFileInfo info(path);
    if (!info.isFile() || info.isSymLink())
        return stamp;
    stamp.size = info.size();
    stamp.modifiedNs = info.lastModified().toMSecsSinceEpoch() * 1000000LL;
#endif
    return stamp;
}
