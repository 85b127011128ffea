// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace platform {

// The desktop trash in the freedesktop.org layout that desktops share, so that any
// file manager can list and restore what the program put there: the item in "files/",
// a "NAME.trashinfo" in "info/" with its original Path (percent-encoded bytes) and
// DeletionDate. Items on the home file system go to $XDG_DATA_HOME/Trash; items on other
// mounts to $topdir/.Trash/$uid (when an administrator made $topdir/.Trash, sticky and
// not a link) or else $topdir/.Trash-$uid. Names are handled as bytes throughout, so a
// name that is not UTF-8 goes to the trash and back unchanged.
//
// Every call returns 0 or an errno value.
class LinuxTrash
{
public:
    // homeTrash: the home trash folder ($XDG_DATA_HOME/Trash, or ~/.local/share/Trash).
    explicit LinuxTrash(std::string homeTrash);
    static LinuxTrash forCurrentUser();

    // recordedPath: the item's own place when it sits at path under a private name; its
    // name and Path= come from it (empty: path).
    int moveToTrash(const std::string &path, std::string &trashedPath,
        const std::string &recordedPath = {}) const;
    int restore(const std::string &trashedPath, const std::string &original) const;
    // The items in the trashes that serve original's place (home and its mount's top
    // folder) whose info file records original, newest first.
    std::vector<std::string> trashedCopiesOf(const std::string &original) const;

    // The trash folder for an item on the device of path, made if needed.
    int trashFor(const std::string &path, std::string &trash, std::string &topdir) const;
    // "Path=" value: bytes outside the unreserved set and "/" as %XX.
    static std::string percentEncode(const std::string &bytes);
    static std::string percentDecode(const std::string &text);

private:
    std::string m_homeTrash;
};

} // namespace platform
