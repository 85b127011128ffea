// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Unix only: the walk on other systems has no mode bits to read.
#ifndef _WIN32
#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

// Whether this process may read a file, told from the owner and mode bits of the stat
// the walk has anyway, instead of one more system call per file. Only a "no" is then
// confirmed by the system, since access lists can grant more than the bits show.
class ReadPermission
{
public:
    ReadPermission() : m_uid(::geteuid()), m_gid(::getegid())
    {
        const int count = ::getgroups(0, nullptr);
        if (count > 0) {
            m_groups.resize(size_t(count));
            m_groups.resize(size_t(std::max(0, ::getgroups(count, m_groups.data()))));
        }
    }

    bool byMode(const struct stat &info) const
    {
        if (m_uid == 0)
            return true;
        if (info.st_uid == m_uid)
            return info.st_mode & S_IRUSR;
        if (info.st_gid == m_gid
            || std::find(m_groups.begin(), m_groups.end(), info.st_gid) != m_groups.end())
            return info.st_mode & S_IRGRP;
        return info.st_mode & S_IROTH;
    }

private:
    uid_t m_uid;
    gid_t m_gid;
    std::vector<gid_t> m_groups;
};
#endif
