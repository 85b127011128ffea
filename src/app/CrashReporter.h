// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdarg>
#include <functional>

#include <QJsonObject>
#include <QString>
#include <QStringList>

// Options of the crash reporter, set in this order at start-up.
struct CrashReporterOptions
{
    QString dsn; // empty: reports and events stay in the database
    QString databasePath; // "<data folder>/sentrydb"
    QString release;
    bool systemCrashReporter = true;
    bool debug = false;
    QString handlerPath; // kept for the Windows out-of-process handler; unused on Linux
    // Receives the reporter's own diagnostics, printf-style, when debug is on.
    std::function<void(const char *format, va_list args)> logger;
    QStringList attachments;
};

// Crash reports and usage events, kept in the database folder and sent as envelopes
// over HTTP when a DSN is configured. Layout of the database:
//   reports/<pid>-<id>.crash      header and symbolised stack trace of a crash
//   reports/<pid>-<id>.crash.log  the log file of the crashed run
//   events/<id>.json              one captured event
class CrashReporter
{
public:
    // Returns 0 on success, non-zero when the database cannot be used.
    static int init(const CrashReporterOptions &options);
    // Restores the signal handlers and waits briefly for envelopes still in flight.
    static void close();

    // Stores the event (filling id, time, release) and sends it when possible.
    // Returns the event id, empty when it could not be stored.
    static QString captureEvent(QJsonObject event);
    // Sends every pending report and event. Needs an application object (it uses the
    // network stack); does nothing without a valid DSN.
    static void sendPending();
    // Waits until sent envelopes were answered, at most msecs. True when none is left.
    static bool flush(int msecs);

    static bool isInitialized();
    static QString databasePath();
    static QString dsn();

    // Used by the transport; prints "<LEVEL> message" through the logger callback.
    static void log(const char *level, const char *format, ...);
};
