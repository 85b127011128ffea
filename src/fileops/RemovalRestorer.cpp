// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/RemovalRestorer.h"

#include "app/TLogger.h"
#include "engine/FilePathCodec.h"
#include "fileops/TFileDeleter.h"
#include "platform/Platform.h"

#include <cerrno>

#include <QDir>
#include <QFileInfo>

bool RemovalRestorer::restoreLastBatch(QList<DeleteResult> &results)
{
    const RemovalJournal::Batch batch = m_journal.lastBatch();
    if (batch.id.isEmpty()) {
        m_error = QStringLiteral("the journal holds no removal to restore");
        return false;
    }
    if (!m_journal.begin(QStringLiteral("restore"), batch.items.size(), batch.id)) {
        m_error = m_journal.error();
        return false;
    }
    const platform::Platform &os = platform::current();
    for (const RemovalJournal::Item &item : batch.items) {
        if (item.result != RemovalJournal::removed)
            continue;
        DeleteResult result {item.path};
        result.destination = item.destination;
        int error = 0;
        const std::string from = FilePathCodec::encode(item.destination).toStdString();
        const std::string to = FilePathCodec::encode(item.path).toStdString();
        if (item.destination.isEmpty()) {
            // Removed for good, or sent where the system does not say.
            error = ENOENT;
        } else if (item.method == RemovalJournal::methodName(TFileDeleter::moveToTrash)) {
            error = os.restoreFromTrash(from, to);
        } else {
            QDir().mkpath(QFileInfo(item.path).absolutePath());
            bool crossDevice = false;
            error = os.renameNoReplace(from, to, crossDevice);
            if (crossDevice) {
                // Back across drives: the same checked move. It never replaces either, so
                // a name taken meanwhile gives a free one, which the result names.
                QString placed;
                if (TFileDeleter::moveIntoFolder(
                        item.destination, QFileInfo(item.path).absolutePath(), placed, error)
                    && placed != item.path)
                    result.reason = QStringLiteral("restored as %1").arg(placed);
            }
        }
        if (error != 0) {
            result.success = false;
            result.errorCode = DeleteResult::MoveFailed;
            result.message = QStringLiteral("Restore failed.");
            result.reason = TFileDeleter::errorText(error);
            splog_d(QStringLiteral("[RemovalRestorer]: Restore failed. Reason: %1. File: %2")
                        .arg(result.reason, item.path));
        }
        m_journal.record(QStringLiteral("restore"), result,
            result.success ? QStringLiteral("restored") : RemovalJournal::failed);
        results.append(result);
    }
    m_journal.end();
    return true;
}
