// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/DriveTypeCache.h"

#include "engine/FilePathCodec.h"
#include "platform/Platform.h"

#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QMutexLocker>

namespace {

QMutex &driveCacheMutex()
{
    static QMutex mutex;
    return mutex;
}

QHash<QString, int> &driveCache()
{
    static QHash<QString, int> cache;
    return cache;
}

} // namespace

int DriveTypeCache::query(const QString &path)
{
    const std::string native
        = FilePathCodec::encode(QFileInfo(path).absoluteFilePath()).toStdString();
    const platform::Platform &os = platform::current();
    const QString key = QString::fromStdString(os.driveCacheKey(native)).toUpper();
    {
        QMutexLocker locker(&driveCacheMutex());
        const auto found = driveCache().constFind(key);
        if (!key.isEmpty() && found != driveCache().constEnd())
            return found.value();
    }
    const int type = os.driveTypeOf(native);
    // A failed query is not remembered: the drive may answer on the next scan.
    if (!key.isEmpty() && type != platform::Platform::DriveUnknown) {
        QMutexLocker locker(&driveCacheMutex());
        driveCache().insert(key, type);
    }
    return type;
}
