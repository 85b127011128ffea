// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"

namespace platform {

// One mounted file system as /proc/self/mounts lists it.
struct MountEntry
{
    std::string device;
    std::string mountPoint;
    std::string fsType;
};

// rename() that never replaces an existing entry; 0 or an errno value (EEXIST when to
// exists).
int renameNoReplace(const std::string &from, const std::string &to);

class LinuxPlatform final : public Platform
{
public:
    std::string executableDir() const override;
    std::vector<std::string> fixedDiskRoots() const override;
    std::string diskRootOf(const std::string &path) const override;
    std::string driveCacheKey(const std::string &path) const override;
    int driveTypeOf(const std::string &path) const override;
    bool isHiddenOrSystem(const std::string &path) const override;
    std::vector<unsigned long long> pseudoFileSystemDevices() const override;
    long long dirtyPageDelayMs() const override;
    void lowerThreadPriority() const override;
    std::vector<std::string> showItemCommand(
        const std::string &path, const std::string &uri) const override;
    using Platform::moveToTrash;
    int moveToTrash(const std::string &path, std::string &trashedPath,
        const std::string &recordedPath, std::string &trashFolder) const override;
    std::vector<std::string> trashedCopiesOf(const std::string &original) const override;
    int restoreFromTrash(
        const std::string &trashedPath, const std::string &original) const override;
    int removePermanently(const std::string &path) const override;
    int renameNoReplace(
        const std::string &from, const std::string &to, bool &crossDevice) const override;
    std::string errorText(int code) const override;

    // Drive kind of a block device given by its sysfs folder (/sys/dev/block/M:N after
    // resolving links): removable or on a USB/MMC/memory-stick bus gives DriveExternal,
    // then the queue's rotational flag gives DriveHdd or DriveSsd; DriveUnknown when the
    // flags cannot be read.
    static int driveTypeOfSysfsDevice(const std::string &sysDevicePath);

    // Parses the text of a mounts table (the /proc/self/mounts format, octal escapes
    // such as "\040" decoded).
    static std::vector<MountEntry> parseMounts(const std::string &text);

    // True when the block device file belongs to an internal, non-removable disk,
    // judged from sysfs: the "removable" flag of the disk and a USB/MMC/SD bus.
    static bool isFixedBlockDevice(const std::string &devicePath);

private:
    static std::vector<MountEntry> readMounts();
};

} // namespace platform
