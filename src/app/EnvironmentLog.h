// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The description of the machine written to the log once at start-up, so a report
// from a user carries the processor, the memory and the system it ran on.
namespace EnvironmentLog {

struct MemoryInfo
{
    qint64 totalMb = 0;
    qint64 availableMb = 0;
    int usedPercent = 0;
};

// Processor name as the system reports it (Linux: "model name" of /proc/cpuinfo).
QString cpuName(const QString &cpuinfoPath = QStringLiteral("/proc/cpuinfo"));
// Linux: MemTotal and MemAvailable of /proc/meminfo.
MemoryInfo memory(const QString &meminfoPath = QStringLiteral("/proc/meminfo"));
// Writes every "[MainWindows]: ..." environment line.
void write();

} // namespace EnvironmentLog
