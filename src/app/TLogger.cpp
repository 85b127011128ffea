// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLogger.h"

#include <spdlog/sinks/daily_file_sink.h>
#include <spdlog/spdlog.h>

#include <QDate>
#include <QDebug>
#include <QDir>
#include <QHash>
#include <QMutex>
#include <QRegularExpression>

namespace {

// The log tag of this file.
const QString kTag = QStringLiteral("[TLogger]: ");

// Guards the pointer itself; each call takes its own counted reference, so a message
// written while another thread shuts the logger down stays safe.
QMutex g_loggerMutex;
std::shared_ptr<spdlog::logger> g_logger;

// Messages per kind since the last flush, in the order the kinds first came.
QMutex g_repeatMutex;
QHash<QByteArray, qint64> g_repeatCounts;
QList<QByteArray> g_repeatOrder;

// Deletes the daily files dated more than kLogKeepDays before today. The date is taken
// from the name, not the file time: a copied or touched file keeps its day. Files of
// other names are not ours and stay. Returns the number removed.
int removeOldDailyLogs(const QString &logDir)
{
    static const QRegularExpression dailyName(QStringLiteral(R"(^log_(\d{4}-\d{2}-\d{2})\.log$)"));
    const QDate oldestKept = QDate::currentDate().addDays(-kLogKeepDays);
    QDir dir(logDir);
    int removed = 0;
    const QStringList names = dir.entryList({QStringLiteral("log_*.log")}, QDir::Files);
    for (const QString &name : names) {
        const QRegularExpressionMatch match = dailyName.match(name);
        if (!match.hasMatch())
            continue;
        const QDate day = QDate::fromString(match.captured(1), QStringLiteral("yyyy-MM-dd"));
        if (day.isValid() && day < oldestKept && dir.remove(name))
            ++removed;
    }
    return removed;
}

} // namespace

std::shared_ptr<spdlog::logger> loggerInstance()
{
    QMutexLocker lock(&g_loggerMutex);
    return g_logger;
}

bool initLogger(const QString &base)
{
    const QString logDir = base + QStringLiteral("/Log");
    QDir dir(logDir);
    if (!dir.exists() && !dir.mkpath(QStringLiteral(".")))
        qDebug() << "Failed to create writable directory:" << logDir;

    const int removed = removeOldDailyLogs(logDir);
    const QString logFile = QStringLiteral("%1/log.log").arg(logDir);
    try {
        spdlog::drop("m_logger");
        // Rotates at 00:00 local time, keeps every file, never truncates.
        auto logger = spdlog::daily_logger_mt("m_logger", logFile.toStdString(), 0, 0, false, 0);
        logger->set_pattern("[%H:%M:%S.%e]:%v");
        logger->set_level(spdlog::level::info);
        // Every line reaches the disk at once: a crash report attaches the log file.
        logger->flush_on(spdlog::level::info);
        {
            QMutexLocker lock(&g_loggerMutex);
            g_logger = std::move(logger);
        }
        if (removed > 0)
            splog_d(kTag
                + QStringLiteral("Removed [%1] daily log files older than %2 days.")
                      .arg(removed)
                      .arg(kLogKeepDays));
        return true;
    } catch (const spdlog::spdlog_ex &error) {
        qDebug() << "Log init failed: " << error.what();
        return false;
    }
}

void shutdownLogger()
{
    QMutexLocker lock(&g_loggerMutex);
    g_logger.reset();
    spdlog::drop("m_logger");
}

void splog_d(const QString &message)
{
    const std::shared_ptr<spdlog::logger> logger = loggerInstance();
    if (!logger)
        return;
    const QByteArray text = message.simplified().toUtf8();
    logger->log(spdlog::source_loc {"TLogger", 15, "splog_d"}, spdlog::level::info,
        spdlog::string_view_t(text.constData(), static_cast<size_t>(text.size())));
}

void splog_repeated(const char *kind, const QString &message)
{
    qint64 seen = 0;
    {
        QMutexLocker lock(&g_repeatMutex);
        const QByteArray key(kind);
        qint64 &count = g_repeatCounts[key];
        if (count == 0)
            g_repeatOrder.append(key);
        seen = ++count;
    }
    if (seen <= kRepeatedInFull)
        splog_d(message);
}

void splog_flush_repeated()
{
    QHash<QByteArray, qint64> counts;
    QList<QByteArray> order;
    {
        QMutexLocker lock(&g_repeatMutex);
        counts.swap(g_repeatCounts);
        order.swap(g_repeatOrder);
    }
    for (const QByteArray &kind : std::as_const(order)) {
        const qint64 held = counts.value(kind) - kRepeatedInFull;
        if (held > 0)
            splog_d(QStringLiteral("%1: %2 more like this, not logged one by one.")
                        .arg(QString::fromUtf8(kind))
                        .arg(held));
    }
}
