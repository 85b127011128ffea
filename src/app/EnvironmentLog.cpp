// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EnvironmentLog.h"

#include "app/LogTags.h"
#include "app/TLogger.h"

#include <QFile>
#include <QRegularExpression>
#include <QSysInfo>
#include <QThread>
#include <QThreadPool>

namespace {

// The log tag of this file.
const QString &kTag = LogTags::mainWindow;

} // namespace

namespace EnvironmentLog {

namespace {

    QString cpuField(const QString &cpuinfoPath, const QString &field)
    {
        QFile file(cpuinfoPath);
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
            return QString();
        while (!file.atEnd()) {
            const QString line = QString::fromUtf8(file.readLine());
            const int colon = int(line.indexOf(QLatin1Char(':')));
            if (colon > 0 && line.left(colon).trimmed() == field)
                return line.mid(colon + 1).trimmed();
        }
        return QString();
    }

} // namespace

QString cpuName(const QString &cpuinfoPath)
{
    QString name = cpuField(cpuinfoPath, QStringLiteral("model name"));
    if (name.isEmpty())
        name = cpuField(cpuinfoPath, QStringLiteral("Hardware"));
    return name.isEmpty() ? QSysInfo::currentCpuArchitecture() : name;
}

MemoryInfo memory(const QString &meminfoPath)
{
    MemoryInfo info;
    QFile file(meminfoPath);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return info;
    static const QRegularExpression entry(QStringLiteral("^(\\w+):\\s+(\\d+)\\s*kB"));
    qint64 totalKb = 0;
    qint64 availableKb = 0;
    while (!file.atEnd()) {
        const auto match = entry.match(QString::fromUtf8(file.readLine()));
        if (!match.hasMatch())
            continue;
        if (match.captured(1) == QLatin1String("MemTotal"))
            totalKb = match.captured(2).toLongLong();
        else if (match.captured(1) == QLatin1String("MemAvailable"))
            availableKb = match.captured(2).toLongLong();
    }
    info.totalMb = totalKb / 1024;
    info.availableMb = availableKb / 1024;
    if (totalKb > 0)
        info.usedPercent = int((totalKb - availableKb) * 100 / totalKb);
    return info;
}

void write()
{
    const QString tag = kTag;
    splog_d(tag
        + QStringLiteral("Global Thread Pool Max Thread Count: %1")
              .arg(QThreadPool::globalInstance()->maxThreadCount()));
    splog_d(tag + QStringLiteral("buildAbi: %1").arg(QSysInfo::buildAbi()));
    splog_d(tag + QStringLiteral("kernelType: %1").arg(QSysInfo::kernelType()));
    splog_d(tag + QStringLiteral("kernelVersion: %1").arg(QSysInfo::kernelVersion()));
    splog_d(tag + QStringLiteral("prettyProductName: %1").arg(QSysInfo::prettyProductName()));
    splog_d(tag + QStringLiteral("CPU Info: %1").arg(cpuName()));
    splog_d(tag + QStringLiteral("CPU Count: %1").arg(QThread::idealThreadCount()));
    splog_d(tag + QStringLiteral("CPU Type: %1").arg(QSysInfo::currentCpuArchitecture()));
    const QString family = cpuField(QStringLiteral("/proc/cpuinfo"), QStringLiteral("cpu family"));
    splog_d(
        tag + QStringLiteral("CPU Level: %1").arg(family.isEmpty() ? QStringLiteral("-") : family));
    const QString model = cpuField(QStringLiteral("/proc/cpuinfo"), QStringLiteral("model"));
    const QString stepping = cpuField(QStringLiteral("/proc/cpuinfo"), QStringLiteral("stepping"));
    splog_d(tag
        + QStringLiteral("CPU Version: %1")
              .arg(model.isEmpty() ? QStringLiteral("-") : model + QLatin1Char('.') + stepping));
    const MemoryInfo mem = memory();
    splog_d(tag + QStringLiteral("Memory used (%): %1").arg(mem.usedPercent));
    splog_d(tag + QStringLiteral("Memory (MB): %1").arg(mem.totalMb));
    splog_d(tag + QStringLiteral("Available memory (MB): %1").arg(mem.availableMb));
}

} // namespace EnvironmentLog
