// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef _WIN32

#include "platform/linux/LinuxTrash.h"

#include "platform/linux/LinuxPlatform.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

    // ".trashinfo" goes after a trash name, and the whole must still fit one name.
    constexpr size_t kInfoSuffixLength = 10;
    // An extension at most this long (with its dot) is kept when a name is shortened.
    constexpr size_t kShortExtension = 16;

    // failed receives the folder that could not be made.
    int makeFolders(const std::string &path, mode_t mode, std::string &failed)
    {
        for (size_t slash = path.find('/', 1);; slash = path.find('/', slash + 1)) {
            const std::string part = slash == std::string::npos ? path : path.substr(0, slash);
            if (!part.empty() && ::mkdir(part.c_str(), mode) != 0 && errno != EEXIST) {
                failed = part;
                return errno;
            }
            if (slash == std::string::npos)
                return 0;
        }
    }

    // A trash folder must be a real folder, never a link an attacker laid into a shared
    // top folder.
    bool isPlainFolder(const std::string &path)
    {
        struct stat info
        {
        };
        return ::lstat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
    }

    int prepareTrash(const std::string &trash, std::string &failed)
    {
        for (const char *sub : {"", "/files", "/info"}) {
            const std::string folder = trash + sub;
            int error = 0;
            if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST)
                error = errno;
            else if (!isPlainFolder(folder))
                error = ENOTDIR;
            if (error) {
                failed = folder;
                return error;
            }
        }
        return 0;
    }

    std::string parentOf(const std::string &path)
    {
        const size_t slash = path.rfind('/');
        return slash == 0 || slash == std::string::npos ? std::string("/") : path.substr(0, slash);
    }

    std::string nameOf(const std::string &path)
    {
        return path.substr(path.rfind('/') + 1);
    }

    // The mount point holding path: the last folder upwards on the same device.
    std::string topFolderOf(const std::string &path, dev_t device)
    {
        std::string top = path;
        while (top != "/") {
            const std::string parent = parentOf(top);
            struct stat info
            {
            };
            if (::stat(parent.c_str(), &info) != 0 || info.st_dev != device)
                break;
            top = parent;
        }
        return top;
    }

    std::string localTimeText()
    {
        const std::time_t now = std::time(nullptr);
        std::tm local {};
        ::localtime_r(&now, &local);
        char text[32];
        std::strftime(text, sizeof(text), "%Y-%m-%dT%H:%M:%S", &local);
        return text;
    }

    // The longest name the trash's file system takes.
    size_t nameLimit(const std::string &folder)
    {
        const long limit = ::pathconf(folder.c_str(), _PC_NAME_MAX);
        return limit > 0 ? size_t(limit) : size_t(NAME_MAX);
    }

    // name with the counter, cut so that the whole takes at most limit bytes: the cut
    // falls on a character boundary of UTF-8 and spares a short extension.
    std::string fittedName(const std::string &name, const std::string &counter, size_t limit)
    {
        if (name.size() + counter.size() <= limit)
            return name + counter;
        const size_t dot = name.rfind('.');
        const bool keepExtension
            = dot != std::string::npos && dot > 0 && name.size() - dot <= kShortExtension;
        const std::string extension = keepExtension ? name.substr(dot) : std::string();
        const std::string stem = keepExtension ? name.substr(0, dot) : name;
        const size_t fixed = counter.size() + extension.size();
        size_t cut = std::min(stem.size(), limit > fixed ? limit - fixed : 0);
        // A UTF-8 character is at most four bytes: at most three continuation bytes to
        // step back over.
        for (int step = 0; step < 3 && cut > 0 && (stem[cut] & 0xC0) == 0x80; ++step)
            --cut;
        return stem.substr(0, cut) + extension + counter;
    }

    // The ".N" a trash name ends with when its name was taken; 1 without.
    unsigned long counterOf(const std::string &trashed)
    {
        const size_t dot = trashed.rfind('.');
        if (dot == std::string::npos || dot + 1 == trashed.size()
            || trashed.find_first_not_of("0123456789", dot + 1) != std::string::npos
            || trashed.size() - dot > 6)
            return 1;
        return std::stoul(trashed.substr(dot + 1));
    }

    struct TrashInfo
    {
        std::string path;
        std::string deletionDate;
        bool valid = false;
    };

    TrashInfo readTrashInfo(const std::string &infoPath)
    {
        TrashInfo info;
        std::ifstream in(infoPath);
        std::string line;
        bool inGroup = false;
        bool hasPath = false;
        while (std::getline(in, line)) {
            if (!line.empty() && line[0] == '[') {
                inGroup = line == "[Trash Info]";
                continue;
            }
            if (!inGroup)
                continue;
            if (line.compare(0, 5, "Path=") == 0)
                hasPath = LinuxTrash::percentDecode(line.substr(5), info.path);
            else if (line.compare(0, 13, "DeletionDate=") == 0)
                info.deletionDate = line.substr(13);
        }
        info.valid = hasPath && !info.path.empty();
        return info;
    }

} // namespace

LinuxTrash::LinuxTrash(std::string homeTrash) : m_homeTrash(std::move(homeTrash)) { }

LinuxTrash LinuxTrash::forCurrentUser()
{
    const char *dataHome = std::getenv("XDG_DATA_HOME");
    if (dataHome && dataHome[0] == '/')
        return LinuxTrash(std::string(dataHome) + "/Trash");
    const char *home = std::getenv("HOME");
    return LinuxTrash(std::string(home && home[0] ? home : "/") + "/.local/share/Trash");
}

std::string LinuxTrash::percentEncode(const std::string &bytes)
{
    static const char digits[] = "0123456789ABCDEF";
    std::string out;
    for (const unsigned char c : bytes) {
        const bool plain = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')
            || (c >= '0' && c <= '9') || c == '-' || c == '_' || c == '.' || c == '~' || c == '/';
        if (plain) {
            out.push_back(char(c));
        } else {
            out.push_back('%');
            out.push_back(digits[c >> 4]);
            out.push_back(digits[c & 0xF]);
        }
    }
    return out;
}

bool LinuxTrash::percentDecode(const std::string &text, std::string &bytes)
{
    const auto hex = [](char c) {
        return c >= '0' && c <= '9' ? c - '0'
            : c >= 'A' && c <= 'F'  ? c - 'A' + 10
            : c >= 'a' && c <= 'f'  ? c - 'a' + 10
                                    : -1;
    };
    bytes.clear();
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            bytes.push_back(text[i]);
            continue;
        }
        const int first = i + 1 < text.size() ? hex(text[i + 1]) : -1;
        const int second = i + 2 < text.size() ? hex(text[i + 2]) : -1;
        // A NUL byte would end the path where the system reads it, at another file; a
        // broken escape has no byte at all.
        if (first < 0 || second < 0 || (first == 0 && second == 0))
            return false;
        bytes.push_back(char(first * 16 + second));
        i += 2;
    }
    return true;
}

int LinuxTrash::trashFor(const std::string &path, std::string &trash, std::string &topdir) const
{
    struct stat item
    {
    };
    if (::lstat(path.c_str(), &item) != 0)
        return errno;
    topdir.clear();
    // The home trash serves every item on its own file system.
    if (const int error = makeFolders(parentOf(m_homeTrash), 0700, trash))
        return error;
    struct stat home
    {
    };
    if (::stat(parentOf(m_homeTrash).c_str(), &home) == 0 && home.st_dev == item.st_dev) {
        if (const int error = prepareTrash(m_homeTrash, trash))
            return error;
        trash = m_homeTrash;
        return 0;
    }
    topdir = topFolderOf(parentOf(path), item.st_dev);
    int error = ENOENT;
    for (const std::string &candidate : topTrashes(topdir)) {
        error = prepareTrash(candidate, trash);
        if (error == 0) {
            trash = candidate;
            return 0;
        }
    }
    return error;
}

std::vector<std::string> LinuxTrash::topTrashes(const std::string &topdir)
{
    const std::string uid = std::to_string(::getuid());
    const std::string base = topdir == "/" ? std::string() : topdir;
    std::vector<std::string> trashes;
    // An administrator's shared trash counts only when it is a sticky folder, not a link.
    struct stat shared
    {
    };
    if (::lstat((base + "/.Trash").c_str(), &shared) == 0 && S_ISDIR(shared.st_mode)
        && (shared.st_mode & S_ISVTX))
        trashes.push_back(base + "/.Trash/" + uid);
    trashes.push_back(base + "/.Trash-" + uid);
    return trashes;
}

int LinuxTrash::moveToTrash(const std::string &path, std::string &trashedPath,
    const std::string &recordedPath, std::string *failedFolder) const
{
    std::string trash;
    std::string topdir;
    if (const int error = trashFor(path, trash, topdir)) {
        if (failedFolder && !trash.empty())
            *failedFolder = trash;
        return error;
    }
    const std::string &original = recordedPath.empty() ? path : recordedPath;
    // Items in a top folder's trash record their path relative to that folder.
    std::string recorded = original;
    if (!topdir.empty() && topdir != "/"
        && original.compare(0, topdir.size() + 1, topdir + "/") == 0)
        recorded = original.substr(topdir.size() + 1);
    const std::string name = nameOf(original);
    const size_t limit = nameLimit(trash + "/info") - kInfoSuffixLength;
    const std::string info = "[Trash Info]\nPath=" + percentEncode(recorded)
        + "\nDeletionDate=" + localTimeText() + "\n";
    // The info file is made first and exclusively: it reserves the name, so two
    // programs trashing at once never take the same one.
    for (int attempt = 1; attempt < 10000; ++attempt) {
        const std::string candidate
            = fittedName(name, attempt == 1 ? std::string() : "." + std::to_string(attempt), limit);
        const std::string infoPath = trash + "/info/" + candidate + ".trashinfo";
        const int fd = ::open(infoPath.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        if (fd < 0) {
            if (errno == EEXIST)
                continue;
            return errno;
        }
        const bool written = ::write(fd, info.data(), info.size()) == ssize_t(info.size());
        const int writeError = errno;
        ::close(fd);
        if (!written) {
            ::unlink(infoPath.c_str());
            return writeError ? writeError : EIO;
        }
        const std::string target = trash + "/files/" + candidate;
        const int error = renameNoReplace(path, target);
        if (error != 0) {
            ::unlink(infoPath.c_str());
            // A leftover item without its info file holds the name: try the next.
            if (error == EEXIST)
                continue;
            return error;
        }
        trashedPath = target;
        return 0;
    }
    return EEXIST;
}

std::vector<std::string> LinuxTrash::trashedCopiesOf(const std::string &original) const
{
    // The original is gone; its nearest folder still on disk tells the device.
    std::string folder = parentOf(original);
    struct stat place
    {
    };
    while (::stat(folder.c_str(), &place) != 0) {
        if (folder == "/")
            return {};
        folder = parentOf(folder);
    }
    std::vector<std::pair<std::string, std::string>> trashes; // trash folder, top folder
    struct stat home
    {
    };
    if (::stat(parentOf(m_homeTrash).c_str(), &home) == 0 && home.st_dev == place.st_dev) {
        trashes.emplace_back(m_homeTrash, std::string());
    } else {
        const std::string topdir = topFolderOf(folder, place.st_dev);
        for (const std::string &trash : topTrashes(topdir))
            trashes.emplace_back(trash, topdir == "/" ? std::string() : topdir);
    }
    struct Found
    {
        std::string path;
        std::string deletionDate;
        long long infoModifiedNs = 0;
    };
    std::vector<Found> found;
    for (const auto &[trash, topdir] : trashes) {
        if (!isPlainFolder(trash + "/info"))
            continue;
        DIR *dir = ::opendir((trash + "/info").c_str());
        if (!dir)
            continue;
        static const std::string suffix = ".trashinfo";
        while (const dirent *entry = ::readdir(dir)) {
            const std::string infoName = entry->d_name;
            if (infoName.size() <= suffix.size()
                || infoName.compare(infoName.size() - suffix.size(), suffix.size(), suffix) != 0)
                continue;
            const std::string infoPath = trash + "/info/" + infoName;
            const TrashInfo info = readTrashInfo(infoPath);
            if (!info.valid)
                continue;
            const std::string path = info.path[0] == '/' ? info.path : topdir + "/" + info.path;
            const std::string trashed
                = trash + "/files/" + infoName.substr(0, infoName.size() - suffix.size());
            struct stat infoStat
            {
            }, item {};
            if (path != original || ::lstat(trashed.c_str(), &item) != 0
                || ::stat(infoPath.c_str(), &infoStat) != 0)
                continue;
            found.push_back(Found {trashed, info.deletionDate,
                nanosecondsOf(infoStat.st_mtim)});
        }
        ::closedir(dir);
    }
    // Dates are to the second; within one second the info file's own time decides, and
    // within one tick of the file system's clock the name's counter, which grows as
    // copies of one name come in.
    std::sort(found.begin(), found.end(), [](const Found &a, const Found &b) {
        if (a.deletionDate != b.deletionDate)
            return a.deletionDate > b.deletionDate;
        if (a.infoModifiedNs != b.infoModifiedNs)
            return a.infoModifiedNs > b.infoModifiedNs;
        return counterOf(a.path) > counterOf(b.path);
    });
    std::vector<std::string> paths;
    for (const Found &item : found)
        paths.push_back(item.path);
    return paths;
}

int LinuxTrash::restore(const std::string &trashedPath, const std::string &original) const
{
    std::string failed;
    if (const int error = makeFolders(parentOf(original), 0755, failed))
        return error;
    if (const int error = renameNoReplace(trashedPath, original))
        return error;
    // files/NAME pairs with info/NAME.trashinfo.
    const std::string files = parentOf(trashedPath);
    const std::string infoPath = parentOf(files) + "/info/" + nameOf(trashedPath) + ".trashinfo";
    ::unlink(infoPath.c_str());
    return 0;
}

} // namespace platform

#endif
