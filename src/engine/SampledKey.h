// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/ContentKeyCache.h"

#include <functional>

#include <QString>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

// The sampled content key: an XXH3-64 digest of the whole file up to kWholeFileLimit
// bytes, else of kBlock bytes at 0, n/2-2048 and n-kBlock. Read by the duplicate finder
// and, while the walk goes on, by the overlapped key reader; both must give one key.
namespace SampledKey {

constexpr qint64 kBlock = 4096;
constexpr qint64 kWholeFileLimit = 3 * kBlock;
constexpr int kExternalDrive = 2;

#ifdef Q_OS_UNIX
// Sampled key of the file `name`, opened relative to the folder descriptor `dirfd`
// (AT_FDCWD with a full path). The blocks are chosen from the size the scanner recorded,
// so no fstat is needed on the common path; only when a read comes back short (the file
// shrank since the scan, or is no regular file any more) is the file asked for its size,
// and the blocks are then chosen again from the smaller size, exactly as if it had been
// asked first. pathOf() builds the path for messages only. With `opened`, the file is
// asked first and its status is left there, so the caller can tell whether the file it
// stamped earlier is the one that was read.
bool readAt(int dirfd, const char *name, qint64 size, quint64 &key,
    const std::function<QString()> &pathOf, int &error, struct stat *opened = nullptr);

// The cache stamp of a file's status.
ContentKeyCache::Stamp stampOf(const struct stat &info);
#endif

} // namespace SampledKey
