// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ContentHash.h"

#include "engine/FilePathCodec.h"

#include <cerrno>

#define XXH_STATIC_LINKING_ONLY
#include <xxhash.h>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#else
#include <io.h>
#endif

namespace {

XXH3_state_t *stateOf(void *state)
{
    return static_cast<XXH3_state_t *>(state);
}

} // namespace

ContentHash::ContentHash() : m_state(XXH3_createState())
{
    XXH3_128bits_reset(stateOf(m_state));
}

ContentHash::~ContentHash()
{
    XXH3_freeState(stateOf(m_state));
}

void ContentHash::add(const char *data, size_t size)
{
    XXH3_128bits_update(stateOf(m_state), data, size);
}

QByteArray ContentHash::result() const
{
    const XXH128_hash_t digest = XXH3_128bits_digest(stateOf(m_state));
    QByteArray out(16, Qt::Uninitialized);
    for (int i = 0; i < 8; ++i) {
        out[i] = char(digest.high64 >> (56 - 8 * i));
        out[8 + i] = char(digest.low64 >> (56 - 8 * i));
    }
    return out;
}

QByteArray ContentHash::ofFd(int fd, int *error)
{
    if (::lseek(fd, 0, SEEK_SET) != 0) {
        if (error)
            *error = errno;
        return {};
    }
    ContentHash hash;
    static thread_local QByteArray buffer(1 << 20, Qt::Uninitialized);
    for (;;) {
        const auto got = ::read(fd, buffer.data(), unsigned(buffer.size()));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            if (error)
                *error = errno;
            return {};
        }
        if (got == 0)
            return hash.result();
        hash.add(buffer.constData(), size_t(got));
    }
}

QByteArray ContentHash::ofFile(const QString &path, int *error)
{
#ifdef Q_OS_UNIX
    const int fd = ::open(FilePathCodec::encode(path).constData(), O_RDONLY | O_CLOEXEC);
#else
    const int fd = ::_wopen(reinterpret_cast<const wchar_t *>(path.utf16()), _O_RDONLY | _O_BINARY);
#endif
    if (fd < 0) {
        if (error)
            *error = errno;
        return {};
    }
    const QByteArray digest = ofFd(fd, error);
    ::close(fd);
    return digest;
}
