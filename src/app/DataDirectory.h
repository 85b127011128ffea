// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The per-user data folder: "<generic config location>/Veltrine/Veltrine Duplicate Finder/".
namespace DataDirectory {

// Always ends with "/".
QString base();
QString crashDatabasePath();
QString logDirectory();
// "Log/log_YYYY-MM-DD.log" for today's local date: the file the daily sink writes.
QString todaysLogFile();

} // namespace DataDirectory
