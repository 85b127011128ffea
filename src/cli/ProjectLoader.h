// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// Opens a saved project into the result store through the window's own project reader.
namespace ProjectLoader {

// 0, or 3 after a message on standard error (no such file, a folder, not a project).
// checkMembers: leave out members gone since the save (off for the removal, which checks
// every member itself just before it acts).
int load(const QString &path, qint64 *scannedFiles = nullptr, QString *scanTime = nullptr,
    bool checkMembers = true);

} // namespace ProjectLoader
