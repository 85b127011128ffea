// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace platform {

// Where a folder lies inside its file system: the file system's device (as the mount table
// names it, "major:minor" on Linux) and the path from that file system's own root. Two
// paths in one file system compare by these whatever mounts lead to them: a folder reached
// through a bind mount of a folder inside another is known to be inside it.
struct MountPlace
{
    // Empty where the system keeps no such table (no bind mounts to see through).
    std::string device;
    std::string path;
};

// The places of absolute, clean folder paths (UTF-8 on Windows, the system's bytes on
// Linux), in their order.
std::vector<MountPlace> mountPlacesOf(const std::vector<std::string> &folders);

} // namespace platform
