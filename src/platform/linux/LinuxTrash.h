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

    // The item at path goes to the trash as recordedPath (empty: path): named after it,
    // and restored there. A name too long for the trash's "NAME.trashinfo" is shortened;
    // the info file keeps the whole path. failedFolder, when given, receives the trash
    // folder that could not be made.
    int moveToTrash(const std::string &path, std::string &trashedPath,
        const std::string &recordedPath = {}, std::string *failedFolder = nullptr) const;
    int restore(const std::string &trashedPath, const std::string &original) const;
    // Trashed items (their place in "files/") whose info file names original, in the
    // trashes of original's device, the newest first.
    std::vector<std::string> trashedCopiesOf(const std::string &original) const;

    // The trash folder for an item on the device of path, made if needed. When it cannot
    // be made, trash names the folder that failed (empty when path itself failed).
    int trashFor(const std::string &path, std::string &trash, std::string &topdir) const;
    // "Path=" value: bytes outside the unreserved set and "/" as %XX.
    static std::string percentEncode(const std::string &bytes);
    // False for a broken escape and for %00, which would cut the path short.
    static bool percentDecode(const std::string &text, std::string &bytes);

private:
    // The trash folders of a mount's top folder, in the order they are tried.
    static std::vector<std::string> topTrashes(const std::string &topdir);

    std::string m_homeTrash;
};

} // namespace platform
