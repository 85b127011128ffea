// SPDX-License-Identifier: GPL-3.0-or-later
// The folder reader on Linux: readdir, with fstatat on the folder's descriptor so that
// the kernel resolves each name within the folder instead of walking the whole path.
#ifndef _WIN32

#include "platform/FolderReader.h"
#include "platform/Platform.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

    EntryInfo::Kind kindOfMode(mode_t mode)
    {
        if (S_ISREG(mode))
            return EntryInfo::File;
        if (S_ISDIR(mode))
            return EntryInfo::Folder;
        if (S_ISLNK(mode))
            return EntryInfo::Link;
        return EntryInfo::Other;
    }

    void fill(const struct stat &status, EntryInfo &info)
    {
        info.kind = kindOfMode(status.st_mode);
        info.size = static_cast<long long>(status.st_size);
        info.device = static_cast<unsigned long long>(status.st_dev);
        info.inode = static_cast<unsigned long long>(status.st_ino);
        info.links = static_cast<unsigned long long>(status.st_nlink);
        info.modifiedNs = nanosecondsOf(status.st_mtim);
        info.changedNs = nanosecondsOf(status.st_ctim);
    }

} // namespace

ReadAccess::ReadAccess() : m_uid(::geteuid()), m_gid(::getegid())
{
    const int count = ::getgroups(0, nullptr);
    if (count > 0) {
        std::vector<gid_t> groups(static_cast<size_t>(count));
        groups.resize(static_cast<size_t>(std::max(0, ::getgroups(count, groups.data()))));
        m_groups.assign(groups.begin(), groups.end());
    }
}

ReadAccess::~ReadAccess() = default;

struct FolderReader::State
{
    DIR *dir = nullptr;
    int fd = -1;
    int error = 0;
    const dirent *entry = nullptr;
    // The current entry's stat, once asked.
    struct stat status
    {
    };
    bool haveStatus = false;
};

FolderReader::FolderReader(const std::string &path) : m_state(std::make_unique<State>())
{
    m_state->dir = ::opendir(path.c_str());
    if (!m_state->dir) {
        m_state->error = errno;
        return;
    }
    m_state->fd = ::dirfd(m_state->dir);
}

FolderReader::~FolderReader()
{
    if (m_state->dir)
        ::closedir(m_state->dir);
}

int FolderReader::error() const
{
    return m_state->error;
}

int FolderReader::folderInfo(EntryInfo &info) const
{
    if (!m_state->dir)
        return m_state->error;
    struct stat status
    {
    };
    if (::fstat(m_state->fd, &status) != 0)
        return errno;
    fill(status, info);
    return 0;
}

bool FolderReader::next()
{
    if (!m_state->dir)
        return false;
    m_state->haveStatus = false;
    while (const dirent *entry = ::readdir(m_state->dir)) {
        const char *name = entry->d_name;
        if (name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0')))
            continue;
        m_state->entry = entry;
        return true;
    }
    m_state->entry = nullptr;
    return false;
}

const char *FolderReader::name() const
{
    return m_state->entry ? m_state->entry->d_name : "";
}

std::size_t FolderReader::nameLength() const
{
    return std::strlen(name());
}

EntryInfo::Kind FolderReader::listedKind() const
{
    if (!m_state->entry)
        return EntryInfo::Unknown;
    switch (m_state->entry->d_type) {
    case DT_REG:
        return EntryInfo::File;
    case DT_DIR:
        return EntryInfo::Folder;
    case DT_LNK:
        return EntryInfo::Link;
    case DT_UNKNOWN:
        return EntryInfo::Unknown;
    default:
        return EntryInfo::Other;
    }
}

int FolderReader::stat(EntryInfo &info)
{
    if (!m_state->entry)
        return ENOENT;
    if (::fstatat(m_state->fd, m_state->entry->d_name, &m_state->status, AT_SYMLINK_NOFOLLOW) != 0)
        return errno;
    m_state->haveStatus = true;
    fill(m_state->status, info);
    return 0;
}

bool FolderReader::mayRead(const ReadAccess &access) const
{
    if (!m_state->entry)
        return false;
    if (m_state->haveStatus) {
        const struct stat &status = m_state->status;
        if (access.m_uid == 0)
            return true;
        bool byMode = false;
        if (status.st_uid == access.m_uid)
            byMode = status.st_mode & S_IRUSR;
        else if (status.st_gid == access.m_gid
            || std::find(access.m_groups.begin(), access.m_groups.end(), status.st_gid)
                != access.m_groups.end())
            byMode = status.st_mode & S_IRGRP;
        else
            byMode = status.st_mode & S_IROTH;
        if (byMode)
            return true;
    }
    return ::faccessat(m_state->fd, m_state->entry->d_name, R_OK, AT_EACCESS) == 0;
}

int entryInfoOf(const std::string &path, bool followLinks, EntryInfo &info)
{
    struct stat status
    {
    };
    if ((followLinks ? ::stat(path.c_str(), &status) : ::lstat(path.c_str(), &status)) != 0)
        return errno;
    fill(status, info);
    return 0;
}

int entryInfoOfOpenFile(int fd, EntryInfo &info)
{
    struct stat status
    {
    };
    if (::fstat(fd, &status) != 0)
        return errno;
    fill(status, info);
    return 0;
}

std::string realPathOf(const std::string &path, int &error)
{
    error = 0;
    char *real = ::realpath(path.c_str(), nullptr);
    if (!real) {
        error = errno;
        return {};
    }
    std::string resolved(real);
    std::free(real);
    return resolved;
}

bool isNotFoundError(int error)
{
    return error == ENOENT;
}

int accessDeniedError()
{
    return EACCES;
}

} // namespace platform

#endif
