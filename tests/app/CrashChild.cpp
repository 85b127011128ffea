// SPDX-License-Identifier: GPL-3.0-or-later
// Starts logging and crash reporting in the folder given as first argument, writes one
// log line and then dies of a segmentation fault.
#include "app/CrashReporter.h"
#include "app/TLogger.h"

#include <QCoreApplication>
#include <QDate>

__attribute__((noinline)) void crashNow()
{
    volatile int *nowhere = nullptr;
    *nowhere = 42;
}

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QString base = app.arguments().value(1);
    initLogger(base);
    CrashReporterOptions options;
    options.databasePath = base + "/sentrydb";
    options.release = QStringLiteral("4.5.0");
    options.attachments << base + "/Log/log_" + QDate::currentDate().toString("yyyy-MM-dd")
            + ".log";
    if (CrashReporter::init(options) != 0)
        return 3;
    splog_d("[Child]: about to crash");
    crashNow();
    return 0;
}
