// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef _WIN32

#include "platform/FileLinks.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

int makeHardLink(const std::string &target, const std::string &link)
{
    // Never through a link in target's last part: the kept copy itself gets the name.
    return ::linkat(AT_FDCWD, target.c_str(), AT_FDCWD, link.c_str(), 0) == 0 ? 0 : errno;
}

int makeSymbolicLink(const std::string &target, const std::string &link)
{
    return ::symlink(target.c_str(), link.c_str()) == 0 ? 0 : errno;
}

int cloneFile(const std::string &source, const std::string &clone)
{
    const int in = ::open(source.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (in < 0)
        return errno;
    struct stat info
    {
    };
    if (::fstat(in, &info) != 0 || !S_ISREG(info.st_mode)) {
        ::close(in);
        return EINVAL;
    }
    const int out
        = ::open(clone.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, info.st_mode & 07777);
    if (out < 0) {
        const int error = errno;
        ::close(in);
        return error;
    }
    int error = ::ioctl(out, FICLONE, in) == 0 ? 0 : errno;
    ::close(in);
    if (::close(out) != 0 && error == 0)
        error = errno;
    if (error != 0)
        ::unlink(clone.c_str());
    return error;
}

int exchangeEntries(const std::string &a, const std::string &b)
{
    return ::renameat2(AT_FDCWD, a.c_str(), AT_FDCWD, b.c_str(), RENAME_EXCHANGE) == 0 ? 0 : errno;
}

int readSymbolicLink(const std::string &path, std::string &target)
{
    // A link's text can be as long as a path; the buffer grows until it fits.
    for (std::string buffer(256, '\0');; buffer.resize(buffer.size() * 2)) {
        const ssize_t length = ::readlink(path.c_str(), buffer.data(), buffer.size());
        if (length < 0)
            return errno;
        if (size_t(length) < buffer.size()) {
            target.assign(buffer.data(), size_t(length));
            return 0;
        }
    }
}

bool isCrossDeviceError(int error)
{
    return error == EXDEV;
}

bool cloneUnsupported(int error)
{
    // ext4 and tmpfs answer "not supported" (some kernels "invalid argument" or "not a
    // typewriter" for an ioctl they do not know); across file systems it is "cross-device".
    return error == EOPNOTSUPP || error == EINVAL || error == ENOTTY || error == ENOSYS
        || error == EXDEV;
}

bool exchangeUnsupported(int error)
{
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP;
}

} // namespace platform

#endif
