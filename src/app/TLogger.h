// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include <QString>

namespace spdlog {
class logger;
}

// The process-wide logger ("m_logger"): empty until initLogger succeeded.
std::shared_ptr<spdlog::logger> loggerInstance();

// Daily log files dated more than this many days before today are deleted at start.
constexpr int kLogKeepDays = 30;

// Creates base + "/Log" if needed, deletes the daily files older than kLogKeepDays
// there, and installs a daily file logger writing "log_YYYY-MM-DD.log", flushing on
// every line. Returns false (and leaves the logger empty) when the logging library
// refused.
bool initLogger(const QString &base);

// Drops the logger; later splog_d calls do nothing.
void shutdownLogger();

// The one logging call of the program: white space collapsed, one line at level info.
void splog_d(const QString &message);

// A message that can come once per file (a file that cannot be read, a picture that
// cannot be decoded). The first kRepeatedInFull messages of one kind are written as they
// come; later ones are only counted, and splog_flush_repeated() writes one line per kind
// with the count. kind is the message's fixed beginning, e.g. "[TFileScanner]: Cannot read
// file".
constexpr int kRepeatedInFull = 20;
void splog_repeated(const char *kind, const QString &message);
// Writes the counts of the held-back messages and starts counting afresh; called when a
// scan or a run of the command line ends.
void splog_flush_repeated();
