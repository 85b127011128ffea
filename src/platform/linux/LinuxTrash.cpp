// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef _WIN32

#include "platform/linux/LinuxTrash.h"

#include "platform/linux/LinuxPlatform.h"

#include <algorithm>
#include <cerrno>
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

    int makeFolders(const std::string &path, mode_t mode)
    {
        for (size_t slash = path.find('/', 1);; slash = path.find('/', slash + 1)) {
            const std::string part = slash == std::string::npos ? path : path.substr(0, slash);
            if (!part.empty() && ::mkdir(part.c_str(), mode) != 0 && errno != EEXIST)
                return errno;
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

    int prepareTrash(const std::string &trash)
    {
        for (const char *sub : {"", "/files", "/info"}) {
            const std::string folder = trash + sub;
            if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST)
                return errno;
            if (!isPlainFolder(folder))
                return ENOTDIR;
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

std::string LinuxTrash::percentDecode(const std::string &text)
{
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 2 < text.size()) {
            out.push_back(char(std::strtol(text.substr(i + 1, 2).c_str(), nullptr, 16)));
            i += 2;
        } else {
            out.push_back(text[i]);
        }
    }
    return out;
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
    if (const int error = makeFolders(parentOf(m_homeTrash), 0700))
        return error;
    struct stat home
    {
    };
    if (::stat(parentOf(m_homeTrash).c_str(), &home) == 0 && home.st_dev == item.st_dev) {
        trash = m_homeTrash;
        return prepareTrash(trash);
    }
    topdir = topFolderOf(parentOf(path), item.st_dev);
    const std::string uid = std::to_string(::getuid());
    const std::string shared = (topdir == "/" ? std::string() : topdir) + "/.Trash";
    struct stat sharedInfo
    {
    };
    if (::lstat(shared.c_str(), &sharedInfo) == 0 && S_ISDIR(sharedInfo.st_mode)
        && (sharedInfo.st_mode & S_ISVTX)) {
        trash = shared + "/" + uid;
        if (prepareTrash(trash) == 0)
            return 0;
    }
    trash = (topdir == "/" ? std::string() : topdir) + "/.Trash-" + uid;
    return prepareTrash(trash);
}

int LinuxTrash::moveToTrash(
    const std::string &path, std::string &trashedPath, const std::string &recordedPath) const
{
    std::string trash;
    std::string topdir;
    if (const int error = trashFor(path, trash, topdir))
        return error;
    const std::string &original = recordedPath.empty() ? path : recordedPath;
    // Items in a top folder's trash record their path relative to that folder.
    std::string recorded = original;
    if (!topdir.empty() && topdir != "/"
        && original.compare(0, topdir.size() + 1, topdir + "/") == 0)
        recorded = original.substr(topdir.size() + 1);
    const std::string name = nameOf(original);
    const std::string info = "[Trash Info]\nPath=" + percentEncode(recorded)
        + "\nDeletionDate=" + localTimeText() + "\n";
    // The info file is made first and exclusively: it reserves the name, so two
    // programs trashing at once never take the same one.
    for (int attempt = 1; attempt < 10000; ++attempt) {
        const std::string candidate = attempt == 1 ? name : name + "." + std::to_string(attempt);
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
    // (trash, top folder its Path= values are relative to) for every trash that could hold it.
    std::vector<std::pair<std::string, std::string>> trashes {{m_homeTrash, std::string()}};
    struct stat parent
    {
    };
    if (::stat(parentOf(original).c_str(), &parent) == 0) {
        const std::string topdir = topFolderOf(parentOf(original), parent.st_dev);
        const std::string base = topdir == "/" ? std::string() : topdir;
        const std::string uid = std::to_string(::getuid());
        trashes.emplace_back(base + "/.Trash/" + uid, topdir);
        trashes.emplace_back(base + "/.Trash-" + uid, topdir);
    }
    std::vector<std::pair<std::string, std::string>> found; // (deletion date, trashed path)
    for (const auto &[trash, topdir] : trashes) {
        DIR *dir = ::opendir((trash + "/info").c_str());
        if (!dir)
            continue;
        while (const dirent *entry = ::readdir(dir)) {
            const std::string infoName = entry->d_name;
            const std::string suffix = ".trashinfo";
            if (infoName.size() <= suffix.size()
                || infoName.compare(infoName.size() - suffix.size(), suffix.size(), suffix) != 0)
                continue;
            std::ifstream info(trash + "/info/" + infoName);
            std::string line;
            std::string path;
            std::string date;
            while (std::getline(info, line)) {
                if (line.rfind("Path=", 0) == 0)
                    path = percentDecode(line.substr(5));
                else if (line.rfind("DeletionDate=", 0) == 0)
                    date = line.substr(13);
            }
            if (!path.empty() && path[0] != '/' && !topdir.empty())
                path = (topdir == "/" ? std::string() : topdir) + "/" + path;
            const std::string item
                = trash + "/files/" + infoName.substr(0, infoName.size() - suffix.size());
            struct stat there
            {
            };
            if (path == original && ::lstat(item.c_str(), &there) == 0)
                found.emplace_back(date, item);
        }
        ::closedir(dir);
    }
    std::sort(found.begin(), found.end(), [](const auto &a, const auto &b) { return a > b; });
    std::vector<std::string> out;
    for (const auto &entry : found)
        out.push_back(entry.second);
    return out;
}

int LinuxTrash::restore(const std::string &trashedPath, const std::string &original) const
{
    if (const int error = makeFolders(parentOf(original), 0755))
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
