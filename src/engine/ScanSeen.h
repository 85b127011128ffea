// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FolderReader.h"

#include <unordered_set>
#include <vector>

#include <QMutex>
#include <QtGlobal>

// A file or folder's identity on its file system.
struct Identity
{
    quint64 device = 0;
    quint64 inode = 0;
    bool operator==(const Identity &other) const
    {
        return device == other.device && inode == other.inode;
    }
};

struct IdentityHash
{
    size_t operator()(const Identity &id) const noexcept
    {
        return std::hash<quint64>()(id.inode * 0x9E3779B97F4A7C15ULL ^ id.device);
    }
};

using IdentitySet = std::unordered_set<Identity, IdentityHash>;

// Identities (device, inode) of the folders walked and of the files reported during one
// run of the scanner; they persist across the roots of one scan. Shared by the walking
// threads under its lock.
struct ScanSeen
{
    QMutex mutex;
    IdentitySet folders;
    // Files with more than one name: checked as they are met, so only one name is
    // reported.
    IdentitySet multiLinkFiles;
    // Files with one name: only a link can reach them a second time, and links are
    // resolved after the ordinary entries, so they are only collected here and looked up
    // when links are resolved.
    std::vector<Identity> singleFiles;
    // Files with one name reported as targets of links: a folder the walk could not list
    // (searchable but not readable) is walked once a link leads into it, and must not
    // report them again.
    IdentitySet linkedFiles;
    // Device numbers of pseudo file systems, never entered.
    std::vector<unsigned long long> pseudoDevices;
    // This process's credentials, for telling a file it may read from the walk's stat.
    platform::ReadAccess permission;
};
