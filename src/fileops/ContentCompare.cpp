// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/ContentCompare.h"

#include "engine/ContentHash.h"
#include "engine/FilePathCodec.h"

#include <cerrno>
#include <cstring>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <io.h>
#endif

namespace {

constexpr size_t kChunk = 256 * 1024;

// Fills buffer as far as the file goes: the count read, or -1 on an error.
qint64 readFull(int fd, char *buffer, size_t size)
{
    size_t done = 0;
    while (done < size) {
        const auto got = ::read(fd, buffer + done, unsigned(size - done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return -1;
        if (got == 0)
            break;
        done += size_t(got);
    }
    return qint64(done);
}

bool rewind(int fd)
{
    return ::lseek(fd, 0, SEEK_SET) == 0;
}

} // namespace

int ContentCompare::openRegular(const QString &path)
{
#ifdef Q_OS_UNIX
    // Never waits: a pipe put in a file's place would block the open until a writer came.
    const int fd = ::open(FilePathCodec::encode(path).constData(),
        O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NOCTTY | O_NONBLOCK);
    if (fd < 0)
        return -1;
    struct stat info
    {
    };
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        ::close(fd);
        errno = EINVAL;
        return -1;
    }
    return fd;
#else
    return ::_wopen(reinterpret_cast<const wchar_t *>(path.utf16()), _O_RDONLY | _O_BINARY);
#endif
}

ContentCompare::Outcome ContentCompare::compare(int itemFd, const QString &kept, QByteArray *digest)
{
    const int keptFd = openRegular(kept);
    if (keptFd < 0)
        return KeptUnreadable;
#ifdef Q_OS_UNIX
    struct stat item
    {
    };
    struct stat copy
    {
    };
    // One file under two names (a hard link, or a folder reached twice) is no copy of
    // itself, however equal its bytes.
    if (::fstat(itemFd, &item) != 0 || ::fstat(keptFd, &copy) != 0) {
        ::close(keptFd);
        return ItemUnreadable;
    }
    if (item.st_dev == copy.st_dev && item.st_ino == copy.st_ino) {
        ::close(keptFd);
        return SameFile;
    }
    if (item.st_size != copy.st_size) {
        ::close(keptFd);
        return Differs;
    }
    // Larger files are read ahead: both are read once, from start to end.
    if (item.st_size > qint64(kChunk)) {
        ::posix_fadvise(itemFd, 0, 0, POSIX_FADV_SEQUENTIAL);
        ::posix_fadvise(keptFd, 0, 0, POSIX_FADV_SEQUENTIAL);
    }
#endif
    if (!rewind(itemFd)) {
        ::close(keptFd);
        return ItemUnreadable;
    }
    ContentHash hash;
    static thread_local QByteArray ours(int(kChunk), Qt::Uninitialized);
    static thread_local QByteArray theirs(int(kChunk), Qt::Uninitialized);
    Outcome outcome = Same;
    for (;;) {
        const qint64 got = readFull(itemFd, ours.data(), kChunk);
        if (got < 0) {
            outcome = ItemUnreadable;
            break;
        }
        const qint64 other = readFull(keptFd, theirs.data(), kChunk);
        if (other < 0) {
            outcome = KeptUnreadable;
            break;
        }
        // Either file may have grown or shrunk since the sizes were compared.
        if (got != other || std::memcmp(ours.constData(), theirs.constData(), size_t(got)) != 0) {
            outcome = Differs;
            break;
        }
        hash.add(ours.constData(), size_t(got));
        if (got < qint64(kChunk))
            break;
    }
    ::close(keptFd);
    if (outcome == Same && digest)
        *digest = hash.result();
    return outcome;
}
