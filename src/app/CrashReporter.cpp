// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CrashReporter.h"

#include "app/CrashSignalHandler.h"
#include "app/SentryDsn.h"
#include "app/SentryTransport.h"

#include <csignal>
#include <cstdio>
#include <unistd.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QUuid>

namespace {

struct ReporterState
{
    CrashReporterOptions options;
    bool initialized = false;
    SentryTransport *transport = nullptr;
};

ReporterState &reporter()
{
    static ReporterState state;
    return state;
}

QString newId()
{
    return QUuid::createUuid().toString(QUuid::Id128);
}

bool processAlive(qint64 pid)
{
    return ::kill(static_cast<pid_t>(pid), 0) == 0 || errno == EPERM;
}

// A report file stays empty unless its process crashed. Empty ones left by processes
// that are gone (killed without a clean exit) are removed; those of running
// instances are left alone.
void removeStaleEmptyReports(const QDir &reports)
{
    for (const QFileInfo &file : reports.entryInfoList({QStringLiteral("*.crash")}, QDir::Files)) {
        const qint64 pid = file.fileName().section(QLatin1Char('-'), 0, 0).toLongLong();
        if (file.size() == 0 && pid > 0 && !processAlive(pid))
            QFile::remove(file.absoluteFilePath());
    }
}

SentryTransport *transport()
{
    ReporterState &s = reporter();
    if (s.transport || !QCoreApplication::instance())
        return s.transport;
    const SentryDsn dsn(s.options.dsn);
    if (!dsn.isValid())
        return nullptr;
    s.transport = new SentryTransport(dsn, s.options.databasePath, s.options.release);
    QObject::connect(
        QCoreApplication::instance(), &QObject::destroyed, [] { reporter().transport = nullptr; });
    s.transport->setParent(QCoreApplication::instance());
    return s.transport;
}

} // namespace

void CrashReporter::log(const char *level, const char *format, ...)
{
    const ReporterState &s = reporter();
    if (!s.options.debug || !s.options.logger)
        return;
    char line[1024];
    std::snprintf(line, sizeof(line), "%s %s", level, format);
    va_list args;
    va_start(args, format);
    s.options.logger(line, args);
    va_end(args);
}

int CrashReporter::init(const CrashReporterOptions &options)
{
    ReporterState &s = reporter();
    if (s.initialized)
        close();
    // A transport belongs to one DSN and database.
    delete s.transport;
    s.transport = nullptr;
    s.options = options;

    QDir database(options.databasePath);
    if (options.databasePath.isEmpty() || !database.mkpath(QStringLiteral("reports"))
        || !database.mkpath(QStringLiteral("events"))) {
        log("ERROR", "failed to create database directory \"%s\"",
            qUtf8Printable(options.databasePath));
        return 1;
    }
    log("INFO", "using database path \"%s\"", qUtf8Printable(database.absolutePath()));

    QDir reports(database.filePath(QStringLiteral("reports")));
    removeStaleEmptyReports(reports);

    if (options.systemCrashReporter) {
        const QString stem = reports.filePath(
            QStringLiteral("%1-%2.crash").arg(QCoreApplication::applicationPid()).arg(newId()));
        CrashSignalHandler::Setup setup;
        setup.reportPath = QFile::encodeName(stem).toStdString();
        setup.attachmentCopy = QFile::encodeName(stem + QStringLiteral(".log")).toStdString();
        setup.logFile = options.attachments.isEmpty()
            ? std::string()
            : QFile::encodeName(options.attachments.first()).toStdString();
        setup.release = options.release.toStdString();
        if (!CrashSignalHandler::install(setup)) {
            log("ERROR", "failed to open crash report \"%s\"", qUtf8Printable(stem));
            return 1;
        }
        log("INFO", "crash handler installed for release \"%s\"", qUtf8Printable(options.release));
    }

    if (SentryDsn(options.dsn).isValid())
        log("INFO", "sending reports to \"%s\"",
            qUtf8Printable(SentryDsn(options.dsn).envelopeUrl().toString()));
    else
        log("INFO", "no valid DSN configured, reports and events stay in the database");
    s.initialized = true;
    return 0;
}

void CrashReporter::close()
{
    ReporterState &s = reporter();
    if (!s.initialized)
        return;
    CrashSignalHandler::uninstall();
    flush(2000);
    s.initialized = false;
}

QString CrashReporter::captureEvent(QJsonObject event)
{
    ReporterState &s = reporter();
    if (!s.initialized)
        return {};
    const QString id = newId();
    event.insert(QStringLiteral("event_id"), id);
    event.insert(
        QStringLiteral("timestamp"), QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs));
    event.insert(QStringLiteral("release"), s.options.release);
    event.insert(QStringLiteral("platform"), QStringLiteral("native"));

    QFile file(QDir(s.options.databasePath).filePath(QStringLiteral("events/%1.json").arg(id)));
    if (!file.open(QIODevice::WriteOnly)
        || file.write(QJsonDocument(event).toJson(QJsonDocument::Compact)) < 0) {
        log("ERROR", "failed to store event \"%s\"", qUtf8Printable(file.fileName()));
        return {};
    }
    file.close();
    log("INFO", "captured event %s", qUtf8Printable(id));
    sendPending();
    return id;
}

void CrashReporter::sendPending()
{
    if (!reporter().initialized)
        return;
    if (SentryTransport *t = transport())
        t->sendPending();
}

bool CrashReporter::flush(int msecs)
{
    SentryTransport *t = reporter().transport;
    return !t || t->waitForFinished(msecs);
}

bool CrashReporter::isInitialized()
{
    return reporter().initialized;
}
QString CrashReporter::databasePath()
{
    return reporter().options.databasePath;
}
QString CrashReporter::dsn()
{
    return reporter().options.dsn;
}
