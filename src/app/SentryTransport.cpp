// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SentryTransport.h"

#include "app/CrashReporter.h"

#include <csignal>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <QUuid>

namespace {

const QString kClientName = QStringLiteral("veltrine-crash/1.0");

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray item(const QJsonObject &header, const QByteArray &payload)
{
    QJsonObject h = header;
    h.insert(QStringLiteral("length"), payload.size());
    return QJsonDocument(h).toJson(QJsonDocument::Compact) + '\n' + payload + '\n';
}

QByteArray envelopeHeader(const QString &eventId, const QString &dsn)
{
    const QJsonObject header {{QStringLiteral("event_id"), eventId}, {QStringLiteral("dsn"), dsn},
        {QStringLiteral("sent_at"), QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs)}};
    return QJsonDocument(header).toJson(QJsonDocument::Compact) + '\n';
}

QString signalName(int signo)
{
    switch (signo) {
    case SIGSEGV:
        return QStringLiteral("SIGSEGV");
    case SIGABRT:
        return QStringLiteral("SIGABRT");
    case SIGBUS:
        return QStringLiteral("SIGBUS");
    case SIGFPE:
        return QStringLiteral("SIGFPE");
    case SIGILL:
        return QStringLiteral("SIGILL");
    default:
        return QStringLiteral("signal %1").arg(signo);
    }
}

bool belongsToLiveProcess(const QString &reportPath)
{
    const qint64 pid
        = QFileInfo(reportPath).fileName().section(QLatin1Char('-'), 0, 0).toLongLong();
    return pid <= 0 || pid == QCoreApplication::applicationPid() || ::kill(pid, 0) == 0;
}

} // namespace

SentryTransport::SentryTransport(
    const SentryDsn &dsn, const QString &databasePath, const QString &release, QObject *parent)
    : QObject(parent)
    , m_dsn(dsn)
    , m_databasePath(databasePath)
    , m_release(release)
    , m_network(new QNetworkAccessManager(this))
{ }

QByteArray SentryTransport::crashEnvelope(
    const QString &reportPath, const QString &dsn, const QString &release)
{
    const QByteArray report = readFile(reportPath);
    const int split = report.indexOf("\n\n");
    const QByteArray headerText = split < 0 ? report : report.left(split);
    const QByteArray trace = split < 0 ? QByteArray() : report.mid(split + 2);

    QHash<QString, QString> fields;
    for (const QByteArray &line : headerText.split('\n')) {
        const int colon = line.indexOf(':');
        if (colon > 0)
            fields.insert(QString::fromUtf8(line.left(colon)),
                QString::fromUtf8(line.mid(colon + 1)).trimmed());
    }
    const QString eventId = QUuid::createUuid().toString(QUuid::Id128);
    const int signo = fields.value(QStringLiteral("signal")).toInt();
    const qint64 seconds = fields.value(QStringLiteral("timestamp")).toLongLong();
    const QJsonObject exception {{QStringLiteral("type"), signalName(signo)},
        {QStringLiteral("value"), QStringLiteral("Fatal signal %1").arg(signo)},
        {QStringLiteral("mechanism"),
            QJsonObject {{QStringLiteral("type"), QStringLiteral("signalhandler")},
                {QStringLiteral("handled"), false}}}};
    const QJsonObject event {{QStringLiteral("event_id"), eventId},
        {QStringLiteral("timestamp"),
            QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC).toString(Qt::ISODate)},
        {QStringLiteral("level"), QStringLiteral("fatal")},
        {QStringLiteral("platform"), QStringLiteral("native")},
        {QStringLiteral("release"), fields.value(QStringLiteral("release"), release)},
        {QStringLiteral("exception"),
            QJsonObject {{QStringLiteral("values"), QJsonArray {exception}}}},
        {QStringLiteral("extra"),
            QJsonObject {{QStringLiteral("stacktrace"), QString::fromUtf8(trace)}}}};

    QByteArray envelope = envelopeHeader(eventId, dsn);
    envelope += item({{QStringLiteral("type"), QStringLiteral("event")}},
        QJsonDocument(event).toJson(QJsonDocument::Compact));
    envelope += item({{QStringLiteral("type"), QStringLiteral("attachment")},
                         {QStringLiteral("filename"), QStringLiteral("stacktrace.txt")},
                         {QStringLiteral("content_type"), QStringLiteral("text/plain")}},
        trace);
    const QString logCopy = reportPath + QStringLiteral(".log");
    if (QFileInfo::exists(logCopy)) {
        const QString name = QFileInfo(fields.value(QStringLiteral("attachment"))).fileName();
        envelope += item(
            {{QStringLiteral("type"), QStringLiteral("attachment")},
                {QStringLiteral("filename"), name.isEmpty() ? QStringLiteral("log.log") : name},
                {QStringLiteral("content_type"), QStringLiteral("text/plain")}},
            readFile(logCopy));
    }
    return envelope;
}

QByteArray SentryTransport::eventEnvelope(const QByteArray &eventJson, const QString &dsn)
{
    const QString eventId = QJsonDocument::fromJson(eventJson)
                                .object()
                                .value(QStringLiteral("event_id"))
                                .toString(QUuid::createUuid().toString(QUuid::Id128));
    return envelopeHeader(eventId, dsn)
        + item({{QStringLiteral("type"), QStringLiteral("event")}}, eventJson);
}

void SentryTransport::sendPending()
{
    const QDir reports(QDir(m_databasePath).filePath(QStringLiteral("reports")));
    for (const QFileInfo &file : reports.entryInfoList({QStringLiteral("*.crash")}, QDir::Files)) {
        const QString path = file.absoluteFilePath();
        if (file.size() == 0 || belongsToLiveProcess(path) || m_inFlight.contains(path))
            continue;
        post(crashEnvelope(path, m_dsn.text(), m_release), {path, path + QStringLiteral(".log")});
    }
    const QDir events(QDir(m_databasePath).filePath(QStringLiteral("events")));
    for (const QFileInfo &file : events.entryInfoList({QStringLiteral("*.json")}, QDir::Files)) {
        const QString path = file.absoluteFilePath();
        if (m_inFlight.contains(path))
            continue;
        post(eventEnvelope(readFile(path), m_dsn.text()), {path});
    }
}

void SentryTransport::post(const QByteArray &envelope, const QStringList &filesToRemove)
{
    QNetworkRequest request(m_dsn.envelopeUrl());
    request.setHeader(
        QNetworkRequest::ContentTypeHeader, QStringLiteral("application/x-sentry-envelope"));
    request.setRawHeader("X-Sentry-Auth", m_dsn.authHeader(kClientName));
    request.setTransferTimeout(10000);
    m_inFlight.insert(filesToRemove.first());
    CrashReporter::log("INFO", "sending envelope for \"%s\"",
        qUtf8Printable(QFileInfo(filesToRemove.first()).fileName()));
    QNetworkReply *reply = m_network->post(request, envelope);
    connect(reply, &QNetworkReply::finished, this,
        [this, reply, filesToRemove] { onReplyFinished(reply, filesToRemove); });
}

void SentryTransport::onReplyFinished(QNetworkReply *reply, const QStringList &filesToRemove)
{
    reply->deleteLater();
    m_inFlight.remove(filesToRemove.first());
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (reply->error() == QNetworkReply::NoError && status >= 200 && status < 300) {
        for (const QString &file : filesToRemove)
            QFile::remove(file);
    } else {
        // Kept on disk and tried again at the next start.
        CrashReporter::log("WARN", "sending \"%s\" failed: %s",
            qUtf8Printable(QFileInfo(filesToRemove.first()).fileName()),
            qUtf8Printable(reply->errorString()));
    }
    if (m_inFlight.isEmpty())
        emit finished();
}

bool SentryTransport::waitForFinished(int msecs)
{
    if (m_inFlight.isEmpty())
        return true;
    QEventLoop loop;
    QTimer::singleShot(msecs, &loop, &QEventLoop::quit);
    connect(this, &SentryTransport::finished, &loop, &QEventLoop::quit);
    loop.exec();
    return m_inFlight.isEmpty();
}
