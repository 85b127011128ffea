// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ctime>
#include <string>
#include <vector>

namespace platform {

// A file time of the system (as stat gives it) in nanoseconds since the epoch: the one
// form the stamps of scans, caches, journals and the trash compare.
inline long long nanosecondsOf(const struct timespec &time)
{
    return static_cast<long long>(time.tv_sec) * 1000000000LL + time.tv_nsec;
}

// Operating-system services that differ between Windows and Linux. The interface is
// Qt-free so that the Windows implementation can be compile-checked with mingw-w64
// without a Qt build for that target. Paths are UTF-8 with forward slashes.
class Platform
{
public:
    virtual ~Platform() = default;

    // Folder of the running executable, without a trailing separator.
    virtual std::string executableDir() const = 0;

    // Roots of the machine's fixed (internal, non-removable) disks, in a stable order.
    // On Windows these are drive roots such as "C:/"; on Linux mount points.
    virtual std::vector<std::string> fixedDiskRoots() const = 0;

    // Root of the disk that holds path: its drive root on Windows, the mount point on
    // Linux. An empty string when it cannot be told.
    virtual std::string diskRootOf(const std::string &path) const = 0;

    // Kinds of drive, as the scanner reports them: 0 internal solid-state, 1 internal
    // spinning disk, 2 removable or on an external bus (never memory-mapped), 3 unknown.
    enum DriveKind { DriveSsd = 0, DriveHdd = 1, DriveExternal = 2, DriveUnknown = 3 };

    // Identity of the drive that holds path, used as the key of the drive-type cache:
    // the upper-cased drive prefix ("C:") on Windows, the device number on Linux. Empty
    // when the path cannot be examined.
    virtual std::string driveCacheKey(const std::string &path) const = 0;

    // Kind of the drive that holds path (a DriveKind value); DriveUnknown when the
    // drive cannot be queried.
    virtual int driveTypeOf(const std::string &path) const = 0;

    // True when the entry at path is hidden or a system file: the hidden or system
    // attribute on Windows, a name beginning with "." on Linux.
    virtual bool isHiddenOrSystem(const std::string &path) const = 0;

    // Device numbers of the mounted pseudo file systems (process and kernel tables,
    // device nodes, control groups): a scan never enters them, since their "files" are
    // endless, change while read, or block. Empty where there is no such thing.
    virtual std::vector<unsigned long long> pseudoFileSystemDevices() const = 0;

    // How long, in milliseconds, writes through a shared memory mapping can go on changing
    // a file without moving its modification or change time: the times are set when a page
    // first turns dirty, and a write to a page that is dirty already sets nothing until the
    // page has been written back (Linux: the dirty expiry plus the write-back interval).
    virtual long long dirtyPageDelayMs() const = 0;

    // Lowers the calling thread's share of the processors below the program's other
    // threads (and the display server's), for work the user waits on but does not watch:
    // the window keeps painting while it runs. Lasts for the thread's life.
    virtual void lowerThreadPriority() const = 0;

    // Removal. Each call returns 0 on success or the system's error code (errno on
    // Linux, a Win32 error on Windows), which errorText() turns into the system's words.

    // Moves a file or folder to the user's trash, from where the desktop can restore it;
    // trashedPath receives its place in the trash where the system tells it (empty
    // otherwise). The item now at path (a private temporary name) goes as if it were
    // recordedPath: the trash names it after recordedPath and restores it there (empty
    // recordedPath: path). trashFolder receives the trash folder that could not be made
    // when the failure lies there (empty otherwise).
    virtual int moveToTrash(const std::string &path, std::string &trashedPath,
        const std::string &recordedPath, std::string &trashFolder) const = 0;
    int moveToTrash(const std::string &path, std::string &trashedPath,
        const std::string &recordedPath = {}) const
    {
        std::string trashFolder;
        return moveToTrash(path, trashedPath, recordedPath, trashFolder);
    }
    // The places in the trash (as moveToTrash gives them) of the items trashed from
    // original, in every trash the user has on original's drive, the newest first; empty
    // where the system does not tell where trashed items went.
    virtual std::vector<std::string> trashedCopiesOf(const std::string &original) const = 0;
    // Puts an item moved to the trash by moveToTrash back at original, never over an
    // existing entry.
    virtual int restoreFromTrash(
        const std::string &trashedPath, const std::string &original) const = 0;
    // Removes a file, or a folder with everything in it.
    virtual int removePermanently(const std::string &path) const = 0;
    // Renames, never replacing an existing entry; crossDevice is set when from and to lie
    // on different drives (nothing is done then).
    virtual int renameNoReplace(
        const std::string &from, const std::string &to, bool &crossDevice) const = 0;
    virtual std::string errorText(int code) const = 0;
    // The command (program first) that shows a file selected in the desktop's file
    // manager; empty when the platform has none. uri is the file's encoded file:// URL.
    virtual std::vector<std::string> showItemCommand(
        const std::string &path, const std::string &uri) const = 0;
};

// The implementation for the platform this program was built for.
const Platform &current();

} // namespace platform
