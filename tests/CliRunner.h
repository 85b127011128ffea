// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QStringList>

// The command-line program run as a real child process. The test target defines
// VELTRINE_CLI_PATH as the path of the built program.
struct CliRun
{
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

inline CliRun runCli(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(VELTRINE_CLI_PATH), arguments);
    CliRun run;
    if (!process.waitForFinished(120000))
        return run;
    run.exitCode = process.exitCode();
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}
