// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/ContentHash.h"

#include "engine/FilePathCodec.h"

#include <cerrno>

#include <QFile>

#define XXH_STATIC_LINKING_ONLY
#include <xxhash.h>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

QByteArray ContentHash::ofFile(const QString &path, int *error)
{
    XXH3_state_t state;
    XXH3_128bits_reset(&state);
    static thread_local QByteArray buffer(1 << 20, Qt::Uninitialized);
#ifdef Q_OS_UNIX
    const int fd = ::open(FilePathCodec::encode(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        if (error)
            *error = errno;
        return {};
    }
    for (;;) {
        const ssize_t got = ::read(fd, buffer.data(), size_t(buffer.size()));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            if (error)
                *error = errno;
            ::close(fd);
            return {};
        }
        if (got == 0)
            break;
        XXH3_128bits_update(&state, buffer.constData(), size_t(got));
    }
    ::close(fd);
#else
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = EACCES;
        return {};
    }
    while (!file.atEnd()) {
        const qint64 got = file.read(buffer.data(), buffer.size());
        if (got < 0) {
            if (error)
                *error = EIO;
            return {};
        }
        XXH3_128bits_update(&state, buffer.constData(), size_t(got));
    }
#endif
    const XXH128_hash_t digest = XXH3_128bits_digest(&state);
    QByteArray out(16, Qt::Uninitialized);
    for (int i = 0; i < 8; ++i) {
        out[i] = char(digest.high64 >> (56 - 8 * i));
        out[8 + i] = char(digest.low64 >> (56 - 8 * i));
    }
    return out;
}
