// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/MountTable.h"

namespace platform {

// A Windows volume is reached at its drive letter or its mounted folders, never a folder
// of one at another place: nothing to see through, every place is taken as written.
std::vector<MountPlace> mountPlacesOf(const std::vector<std::string> &folders)
{
    return std::vector<MountPlace>(folders.size());
}

} // namespace platform
