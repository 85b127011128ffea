// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/SampledKey.h"

#include "app/LogTags.h"
#include "app/TLogger.h"
#include "platform/Platform.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#define XXH_STATIC_LINKING_ONLY
#include <xxhash.h>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

// The log tag of this file.
const QString &kTag = LogTags::duplicateFinder;

} // namespace

namespace SampledKey {

#ifdef Q_OS_UNIX
namespace {

    qint64 readFully(int fd, char *buffer, qint64 length, qint64 offset)
    {
        qint64 total = 0;
        while (total < length) {
            const ssize_t got = ::pread(fd, buffer + total, size_t(length - total), offset + total);
            if (got < 0 && errno == EINTR)
                continue;
            if (got <= 0)
                break;
            total += got;
        }
        return total;
    }

} // namespace

bool readAt(int dirfd, const char *name, qint64 size, quint64 &key,
    const std::function<QString()> &pathOf, int &error, struct stat *opened)
{
    error = 0;
    const int fd = ::openat(dirfd, name, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) {
        error = errno;
        splog_repeated("[TDuplicateFinleFinder]: Cannot read file",
            kTag
                + QStringLiteral("Cannot read file, skipped: [%1]. %2")
                      .arg(pathOf(), QString::fromLocal8Bit(std::strerror(error))));
        return false;
    }
    qint64 n = size;
    bool checked = false;
    // Asks the file for its size; false when it is no regular file.
    const auto check = [&]() {
        checked = true;
        struct stat info
        {
        };
        if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
            error = EINVAL;
            splog_repeated("[TDuplicateFinleFinder]: Cannot read file",
                kTag
                    + QStringLiteral("Cannot read file, skipped: [%1]. %2")
                          .arg(pathOf(), QString::fromLocal8Bit(std::strerror(EINVAL))));
            return false;
        }
        n = std::min<qint64>(info.st_size, size);
        if (opened)
            *opened = info;
        return true;
    };
    if (opened && !check()) {
        ::close(fd);
        return false;
    }
    char buffer[kWholeFileLimit];
    for (;;) {
        if (n < 1) {
            ::close(fd);
            return false;
        }
        if (n <= kWholeFileLimit) {
            const qint64 got = readFully(fd, buffer, n, 0);
            if (got < n && !checked) {
                if (!check()) {
                    ::close(fd);
                    return false;
                }
                continue;
            }
            ::close(fd);
            key = XXH3_64bits(buffer, size_t(got));
            return true;
        }
        const qint64 offsets[3] = {0, std::clamp<qint64>(n / 2 - 2048, 0, n - kBlock), n - kBlock};
        XXH3_state_t state;
        XXH3_64bits_reset(&state);
#ifdef POSIX_FADV_RANDOM
        // Three blocks are wanted, not the read-ahead around each: on a cold cache that
        // would read up to three windows of the file and push other pages out.
        ::posix_fadvise(fd, 0, 0, POSIX_FADV_RANDOM);
#endif
        bool restart = false;
        for (qint64 offset : offsets) {
            const qint64 got = readFully(fd, buffer, kBlock, offset);
            if (got < kBlock && !checked) {
                restart = true;
                break;
            }
            if (got > 0)
                XXH3_64bits_update(&state, buffer, size_t(got));
        }
        if (restart) {
            if (!check()) {
                ::close(fd);
                return false;
            }
            continue;
        }
        ::close(fd);
        key = XXH3_64bits_digest(&state);
        return true;
    }
}

ContentKeyCache::Stamp stampOf(const struct stat &info)
{
    return ContentKeyCache::Stamp {quint64(info.st_dev), quint64(info.st_ino), qint64(info.st_size),
        platform::nanosecondsOf(info.st_mtim), platform::nanosecondsOf(info.st_ctim)};
}
#endif

} // namespace SampledKey
