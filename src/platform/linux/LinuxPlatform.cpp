// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef _WIN32

#include "platform/linux/LinuxPlatform.h"

#include "platform/linux/LinuxTrash.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <ftw.h>
#include <fstream>
#include <sstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace platform {

namespace {

std::string readSmallFile(const std::string &path)
{
    std::ifstream in(path);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::string decodeMountField(const std::string &field)
{
    std::string out;
    out.reserve(field.size());
    for (size_t i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && i + 3 < field.size()
            && std::isdigit(static_cast<unsigned char>(field[i + 1]))) {
            const std::string octal = field.substr(i + 1, 3);
            out.push_back(static_cast<char>(std::stoi(octal, nullptr, 8)));
            i += 3;
        } else {
            out.push_back(field[i]);
        }
    }
    return out;
}

bool isInside(const std::string &path, const std::string &root)
{
    if (root == "/")
        return !path.empty() && path[0] == '/';
    return path == root || (path.size() > root.size() && path.compare(0, root.size(), root) == 0
                            && path[root.size()] == '/');
}

} // namespace

std::string LinuxPlatform::executableDir() const
{
    char buffer[PATH_MAX];
    const ssize_t length = ::readlink("/proc/self/exe", buffer, sizeof(buffer) - 1);
    if (length <= 0)
        return {};
    std::string path(buffer, static_cast<size_t>(length));
    const size_t slash = path.rfind('/');
    return slash == 0 ? std::string("/") : path.substr(0, slash);
}

std::vector<MountEntry> LinuxPlatform::parseMounts(const std::string &text)
{
    std::vector<MountEntry> mounts;
    std::istringstream lines(text);
    std::string line;
    while (std::getline(lines, line)) {
        std::istringstream fields(line);
        MountEntry entry;
        if (!(fields >> entry.device >> entry.mountPoint >> entry.fsType))
            continue;
        entry.device = decodeMountField(entry.device);
        entry.mountPoint = decodeMountField(entry.mountPoint);
        mounts.push_back(entry);
    }
    return mounts;
}

std::vector<MountEntry> LinuxPlatform::readMounts()
{
    return parseMounts(readSmallFile("/proc/self/mounts"));
}

bool LinuxPlatform::isFixedBlockDevice(const std::string &devicePath)
{
    struct stat info {};
    if (::stat(devicePath.c_str(), &info) != 0 || !S_ISBLK(info.st_mode))
        return false;
    const std::string sysDir = "/sys/dev/block/" + std::to_string(major(info.st_rdev)) + ":"
        + std::to_string(minor(info.st_rdev));
    char resolved[PATH_MAX];
    if (!::realpath(sysDir.c_str(), resolved))
        return false;
    std::string disk = resolved;
    // A partition has no "removable" file of its own; its disk is the parent folder.
    if (::access((disk + "/removable").c_str(), R_OK) != 0)
        disk = disk.substr(0, disk.rfind('/'));
    const std::string removable = readSmallFile(disk + "/removable");
    if (removable.empty() || removable[0] != '0')
        return false;
    for (const char *bus : {"/usb", "/mmc", "/memstick"}) {
        if (disk.find(bus) != std::string::npos)
            return false;
    }
    return true;
}

std::vector<std::string> LinuxPlatform::fixedDiskRoots() const
{
    std::vector<std::string> roots;
    for (const MountEntry &mount : readMounts()) {
        if (mount.device.rfind("/dev/", 0) != 0 || !isFixedBlockDevice(mount.device))
            continue;
        if (std::find(roots.begin(), roots.end(), mount.mountPoint) == roots.end())
            roots.push_back(mount.mountPoint);
    }
    return roots;
}

std::string LinuxPlatform::diskRootOf(const std::string &path) const
{
    std::string best;
    for (const MountEntry &mount : readMounts()) {
        if (isInside(path, mount.mountPoint) && mount.mountPoint.size() > best.size())
            best = mount.mountPoint;
    }
    return best;
}

std::vector<unsigned long long> LinuxPlatform::pseudoFileSystemDevices() const
{
    // Kernel tables and device nodes. Only these mount points are examined, so no
    // network or removable mount is ever touched here.
    static const char *const kinds[] = {"proc", "sysfs", "devtmpfs", "devpts", "cgroup",
        "cgroup2", "debugfs", "tracefs", "securityfs", "pstore", "bpf", "configfs", "fusectl",
        "efivarfs", "mqueue", "binfmt_misc", "hugetlbfs", "rpc_pipefs", "nsfs"};
    std::vector<unsigned long long> devices;
    for (const MountEntry &mount : readMounts()) {
        if (std::find_if(std::begin(kinds), std::end(kinds),
                [&mount](const char *kind) { return mount.fsType == kind; })
            == std::end(kinds))
            continue;
        struct stat info {};
        if (::stat(mount.mountPoint.c_str(), &info) == 0
            && std::find(devices.begin(), devices.end(), info.st_dev) == devices.end())
            devices.push_back(info.st_dev);
    }
    return devices;
}

void LinuxPlatform::lowerThreadPriority() const
{
    // The nice value is the thread's own on Linux (setpriority with a thread id). Ten
    // steps give the thread about a tenth of the weight of a normal one: it still runs
    // at full speed on idle processors, but the window and the display server go first.
    constexpr int kBackgroundNice = 10;
    const auto thread = id_t(syscall(SYS_gettid));
    errno = 0;
    const int current = getpriority(PRIO_PROCESS, thread);
    if (errno == 0 && current < kBackgroundNice)
        setpriority(PRIO_PROCESS, thread, kBackgroundNice);
}

long long LinuxPlatform::dirtyPageDelayMs() const
{
    // Read once: the settings change rarely, and a scan asks for every file.
    static const long long delay = [] {
        const auto centiseconds = [](const char *path, long long fallback) {
            std::ifstream in(path);
            long long value = 0;
            // 0 switches the periodic write-back off, and then no time bounds the delay;
            // the kernel's default is the best guess left.
            return (in >> value) && value > 0 ? value : fallback;
        };
        return (centiseconds("/proc/sys/vm/dirty_expire_centisecs", 3000)
                   + centiseconds("/proc/sys/vm/dirty_writeback_centisecs", 500))
            * 10;
    }();
    return delay;
}

int renameNoReplace(const std::string &from, const std::string &to)
{
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // File systems without the flag: a hard link fails on an existing name, and only
    // then is the old name dropped. Folders cannot be linked; they take the checked
    // rename.
    if (::link(from.c_str(), to.c_str()) == 0)
        return ::unlink(from.c_str()) == 0 ? 0 : errno;
    if (errno == EEXIST)
        return EEXIST;
    struct stat existing {};
    if (::lstat(to.c_str(), &existing) == 0)
        return EEXIST;
    return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

int LinuxPlatform::moveToTrash(const std::string &path, std::string &trashedPath,
    const std::string &recordedPath, std::string &trashFolder) const
{
    trashFolder.clear();
    return LinuxTrash::forCurrentUser().moveToTrash(path, trashedPath, recordedPath, &trashFolder);
}

std::vector<std::string> LinuxPlatform::trashedCopiesOf(const std::string &original) const
{
    return LinuxTrash::forCurrentUser().trashedCopiesOf(original);
}

int LinuxPlatform::restoreFromTrash(const std::string &trashedPath, const std::string &original) const
{
    return LinuxTrash::forCurrentUser().restore(trashedPath, original);
}

int LinuxPlatform::removePermanently(const std::string &path) const
{
    // Nearly every item is a file: unlink first, look only when it was a folder.
    if (::unlink(path.c_str()) == 0)
        return 0;
    if (errno != EISDIR && errno != EPERM)
        return errno;
    struct stat info {};
    if (::lstat(path.c_str(), &info) != 0)
        return errno;
    if (!S_ISDIR(info.st_mode))
        return EPERM;
    // Depth first, links never followed: what a link points to stays.
    static thread_local int failure;
    failure = 0;
    const int walked = ::nftw(
        path.c_str(),
        [](const char *entry, const struct stat *, int type, struct FTW *) {
            const int done = type == FTW_DP ? ::rmdir(entry) : ::unlink(entry);
            if (done != 0) {
                failure = errno;
                return 1;
            }
            return 0;
        },
        // Another file system mounted inside is not part of the folder: never entered.
        32, FTW_DEPTH | FTW_PHYS | FTW_MOUNT);
    if (walked != 0)
        return failure ? failure : errno;
    return 0;
}

int LinuxPlatform::renameNoReplace(
    const std::string &from, const std::string &to, bool &crossDevice) const
{
    const int error = platform::renameNoReplace(from, to);
    crossDevice = error == EXDEV;
    return error;
}

std::string LinuxPlatform::errorText(int code) const
{
    return std::strerror(code);
}

std::string LinuxPlatform::driveCacheKey(const std::string &path) const
{
    struct stat info {};
    if (::stat(path.c_str(), &info) != 0)
        return {};
    return std::to_string(major(info.st_dev)) + ":" + std::to_string(minor(info.st_dev));
}

int LinuxPlatform::driveTypeOfSysfsDevice(const std::string &sysDevicePath)
{
    char resolved[PATH_MAX];
    if (!::realpath(sysDevicePath.c_str(), resolved))
        return DriveUnknown;
    std::string disk = resolved;
    // A partition carries neither "removable" nor "queue/rotational"; its disk is the
    // parent folder.
    if (::access((disk + "/partition").c_str(), F_OK) == 0)
        disk = disk.substr(0, disk.rfind('/'));
    for (const char *bus : {"/usb", "/mmc", "/memstick"}) {
        if (disk.find(bus) != std::string::npos)
            return DriveExternal;
    }
    const std::string removable = readSmallFile(disk + "/removable");
    if (!removable.empty() && removable[0] == '1')
        return DriveExternal;
    const std::string rotational = readSmallFile(disk + "/queue/rotational");
    if (rotational.empty())
        return DriveUnknown;
    return rotational[0] == '1' ? DriveHdd : DriveSsd;
}

int LinuxPlatform::driveTypeOf(const std::string &path) const
{
    struct stat info {};
    if (::stat(path.c_str(), &info) != 0)
        return DriveUnknown;
    // File systems without a block device (tmpfs, overlay, network) have no sysfs entry
    // and stay unknown.
    return driveTypeOfSysfsDevice("/sys/dev/block/" + std::to_string(major(info.st_dev)) + ":"
                                  + std::to_string(minor(info.st_dev)));
}

bool LinuxPlatform::isHiddenOrSystem(const std::string &path) const
{
    size_t end = path.size();
    while (end > 1 && path[end - 1] == '/')
        --end;
    if (end == 0)
        return false;
    const size_t slash = path.rfind('/', end - 1);
    const size_t start = slash == std::string::npos ? 0 : slash + 1;
    return start < end && path[start] == '.';
}

std::vector<std::string> LinuxPlatform::showItemCommand(
    const std::string &path, const std::string &uri) const
{
    (void)path;
    // The freedesktop.org file manager interface; gdbus fails when no file manager on
    // the session bus offers it, and the caller then opens the folder instead.
    return {"gdbus", "call", "--session", "--dest", "org.freedesktop.FileManager1",
        "--object-path", "/org/freedesktop/FileManager1", "--method",
        "org.freedesktop.FileManager1.ShowItems", "['" + uri + "']", ""};
}

const Platform &current()
{
    static const LinuxPlatform instance;
    return instance;
}

} // namespace platform

#endif
