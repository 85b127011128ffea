// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLogger.h"

#include <spdlog/sinks/daily_file_sink.h>
#include <spdlog/spdlog.h>

#include <QDebug>
#include <QDir>
#include <QMutex>

namespace {

// Guards the pointer itself; each call takes its own counted reference, so a message
// written while another thread shuts the logger down stays safe.
QMutex g_loggerMutex;
std::shared_ptr<spdlog::logger> g_logger;

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

    const QString logFile = QStringLiteral("%1/log.log").arg(logDir);
    try {
        spdlog::drop("m_logger");
        // Rotates at 00:00 local time, keeps every file, never truncates.
        auto logger = spdlog::daily_logger_mt("m_logger", logFile.toStdString(), 0, 0, false, 0);
        logger->set_pattern("[%H:%M:%S.%e]:%v");
        logger->set_level(spdlog::level::info);
        // Every line reaches the disk at once: a crash report attaches the log file.
        logger->flush_on(spdlog::level::info);
        QMutexLocker lock(&g_loggerMutex);
        g_logger = std::move(logger);
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
