// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include <QString>

namespace spdlog {
class logger;
}

// The process-wide logger ("m_logger"): empty until initLogger succeeded.
std::shared_ptr<spdlog::logger> loggerInstance();

// Creates base + "/Log" if needed and installs a daily file logger writing
// "log_YYYY-MM-DD.log" there, flushing on every line. Returns false (and leaves the
// logger empty) when the logging library refused.
bool initLogger(const QString &base);

// Drops the logger; later splog_d calls do nothing.
void shutdownLogger();

// The one logging call of the program: white space collapsed, one line at level info.
void splog_d(const QString &message);
