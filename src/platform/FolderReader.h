// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace platform {

// What the system tells of one entry of the file system.
struct EntryInfo
{
    // Unknown: the listing did not say, and the entry has not been asked.
    enum Kind { Unknown = 0, File, Folder, Link, Other };
    Kind kind = Unknown;
    long long size = 0;
    // Identity of the entry: device and file number on Linux, volume serial and file
    // index on Windows. Both 0 where the system did not tell them.
    unsigned long long device = 0;
    unsigned long long inode = 0;
    unsigned long long links = 1;
    // Times in nanoseconds since the epoch; the change time is the modification time
    // where the system keeps no change time.
    long long modifiedNs = 0;
    long long changedNs = 0;

    bool hasIdentity() const { return inode != 0 || device != 0; }
};

// This process's credentials, taken once per walk: whether a file may be read is then
// told from the owner and mode bits the walk has anyway, instead of one more system
// call per file. Only a "no" is confirmed by the system, since access lists can grant
// more than the bits show. Where there are no mode bits every answer is "ask".
class ReadAccess
{
public:
    ReadAccess();
    ~ReadAccess();
    ReadAccess(const ReadAccess &) = delete;
    ReadAccess &operator=(const ReadAccess &) = delete;

private:
    friend class FolderReader;
    unsigned int m_uid = 0;
    unsigned int m_gid = 0;
    std::vector<unsigned int> m_groups;
};

// Lists one folder, entry by entry, never following a link. Names are the bytes the
// file system stores (UTF-8 on Windows); "." and ".." are never listed.
class FolderReader
{
public:
    explicit FolderReader(const std::string &path);
    ~FolderReader();
    FolderReader(const FolderReader &) = delete;
    FolderReader &operator=(const FolderReader &) = delete;

    // 0 once open, else the system's error code (errno on Linux, a Win32 error on
    // Windows), which Platform::errorText() words.
    int error() const;
    // The folder itself: 0 or the system's error code.
    int folderInfo(EntryInfo &info) const;

    // Moves to the next entry; false at the end of the listing.
    bool next();
    // The current entry's name, valid until the next call of next().
    const char *name() const;
    std::size_t nameLength() const;
    // The current entry's kind as far as the listing tells it without asking the entry:
    // Unknown where the file system does not say.
    EntryInfo::Kind listedKind() const;
    // Asks the system about the current entry (a link is not followed): 0 or the
    // system's error code.
    int stat(EntryInfo &info);
    // Whether this process may read the current entry, once stat() has told of it.
    bool mayRead(const ReadAccess &access) const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

// What the system tells of the entry at path, following links (followLinks) or not: 0
// or the system's error code.
int entryInfoOf(const std::string &path, bool followLinks, EntryInfo &info);

// What the system tells of the file open as descriptor fd (as open() or _open() give it):
// 0 or the system's error code.
int entryInfoOfOpenFile(int fd, EntryInfo &info);

// The path with every link resolved, made absolute; empty when it cannot be resolved,
// error then holds the system's error code.
std::string realPathOf(const std::string &path, int &error);

// Whether error (as the calls above give it) says that the entry is not there (any
// more): a walk meets entries removed while it runs.
bool isNotFoundError(int error);
// The system's error code for a refused read.
int accessDeniedError();

} // namespace platform
