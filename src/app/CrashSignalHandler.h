// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// Writes a crash report when the process dies of a fatal signal: a short header
// (release, signal, time, the log file of the start day), a symbolised stack trace and
// a copy of that log file beside it. Everything the handler needs (file descriptors,
// paths, the alternate stack) is prepared by install(), so the handler itself only
// writes to descriptors that are already open.
namespace CrashSignalHandler {

struct Setup
{
    std::string reportPath; // receives header and trace
    std::string attachmentCopy; // receives a copy of the log file
    std::string logFile; // the day's log file, named when the process started
    std::string release;
};

// Returns false when the report file cannot be opened or the handlers not installed.
bool install(const Setup &setup);
// Restores the previous handlers and removes the report file if nothing was written.
void uninstall();
bool isInstalled();

} // namespace CrashSignalHandler
