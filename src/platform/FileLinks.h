// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace platform {

// The file system calls that replace a file by a link to another one. Each makes a new
// entry and never replaces an existing one; each returns 0 or the system's error code
// (errno on Linux, a Win32 error on Windows), which Platform::errorText() words.

// A second name, link, for the file target: both names are then one file.
int makeHardLink(const std::string &target, const std::string &link);
// A symbolic link at link whose text is target.
int makeSymbolicLink(const std::string &target, const std::string &link);
// A new file at clone that shares the blocks of source (copy on write): two separate
// files with one content until either is written. Where the file system cannot clone,
// nothing is made and the error is one cloneUnsupported() recognises.
int cloneFile(const std::string &source, const std::string &clone);
// Swaps the entries at a and b in one step: nobody ever sees either name missing. Where the
// file system cannot, nothing is done and the error is one exchangeUnsupported()
// recognises.
int exchangeEntries(const std::string &a, const std::string &b);
// What the symbolic link at path points at: its text on Linux, the path it resolves to on
// Windows (which keeps no plain text for it).
int readSymbolicLink(const std::string &path, std::string &target);

// Whether error (as the calls above give it) says that the two paths lie on different
// file systems.
bool isCrossDeviceError(int error);
// Whether error says that the file system cannot clone files.
bool cloneUnsupported(int error);
// Whether error says that the file system cannot swap two entries.
bool exchangeUnsupported(int error);

} // namespace platform
