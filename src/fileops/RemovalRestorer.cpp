// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/RemovalRestorer.h"

#include "app/TLogger.h"
#include "engine/ContentHash.h"
#include "engine/FilePathCodec.h"
#include "engine/FileStamp.h"
#include "fileops/LinkRestorer.h"
#include "fileops/RemovalCheck.h"
#include "fileops/TFileDeleter.h"
#include "platform/Platform.h"

#include <cerrno>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

const QString kTag = QStringLiteral("[RemovalRestorer]: ");

std::string nativeOf(const QString &path)
{
    return FilePathCodec::encode(path).toStdString();
}

QString text(const char *source)
{
    return QCoreApplication::translate("RemovalRestorer", source);
}

// Names are looked at by their bytes: a name that is not UTF-8 is found as it is.
enum class Kind { Missing, File, Folder, Other };

Kind kindOf(const QString &path)
{
#ifdef Q_OS_UNIX
    struct stat info
    {
    };
    if (::lstat(FilePathCodec::encode(path).constData(), &info) != 0)
        return errno == ENOENT ? Kind::Missing : Kind::Other;
    return S_ISDIR(info.st_mode) ? Kind::Folder : S_ISREG(info.st_mode) ? Kind::File : Kind::Other;
#else
    const QFileInfo info(path);
    if (info.isSymLink())
        return Kind::Other;
    return !info.exists() ? Kind::Missing : info.isDir() ? Kind::Folder : Kind::File;
#endif
}

bool exists(const QString &path)
{
    return kindOf(path) != Kind::Missing;
}

// Whether what lies at path is the item the journal describes: for a file its size,
// modification time and, where the journal has it, content hash; for a folder the hash
// of its files.
bool isTheItem(const RemovalJournal::Item &item, const QString &path, bool checkContent)
{
    const Kind kind = kindOf(path);
    if (kind == Kind::Folder) {
        if (!checkContent || item.digest.isEmpty())
            return item.size < 0;
        return RemovalCheck::folderDigest(path) == item.digest;
    }
    if (kind != Kind::File)
        return false;
    const FileStamp stamp = FileStamp::of(path);
    if (!stamp.isValid() || (item.size >= 0 && stamp.size != item.size)
        || (item.modifiedNs != 0 && stamp.modifiedNs != item.modifiedNs))
        return false;
    return !checkContent || item.digest.isEmpty() || ContentHash::ofFile(path) == item.digest;
}

} // namespace

QString RemovalRestorer::moveBack(const QString &method, const QString &from, const QString &to)
{
    const platform::Platform &os = platform::current();
    if (exists(to))
        return TFileDeleter::errorText(EEXIST);
    int error = 0;
    if (method == RemovalJournal::methodName(TFileDeleter::moveToTrash)) {
        error = os.restoreFromTrash(nativeOf(from), nativeOf(to));
    } else {
        QDir().mkpath(QFileInfo(to).absolutePath());
        bool crossDevice = false;
        error = os.renameNoReplace(nativeOf(from), nativeOf(to), crossDevice);
        if (crossDevice) {
            // Back across drives: the same checked copy as the move, under the item's own
            // name (never over an entry that took it meanwhile).
            QString placed;
            const QFileInfo target(to);
            if (TFileDeleter::moveIntoFolder(
                    from, target.absolutePath(), placed, error, target.fileName())
                && placed != to) {
                // Someone took the name in between: the item goes back where it was.
                TFileDeleter::moveIntoFolder(placed, QFileInfo(from).absolutePath(), placed, error,
                    QFileInfo(from).fileName());
                error = EEXIST;
            }
        }
    }
    return error == 0 ? QString() : TFileDeleter::errorText(error);
}

QString RemovalRestorer::restoreIntended(
    const RemovalJournal::Batch &batch, const RemovalJournal::Item &item, DeleteResult &result)
{
    // The batch stopped between the intent and the outcome: the item is at its place
    // (nothing was done), under its private name, or where the act took it.
    if (isTheItem(item, item.path, false))
        return {};
    QStringList places;
    if (!item.privatePath.isEmpty())
        places.append(item.privatePath);
    const QString name = QFileInfo(item.path).fileName();
    // A folder cut off before its outcome has nothing recorded to tell it from another
    // folder of the same name: only its private name, which nothing else has, is taken.
    const bool isFile = item.size >= 0;
    if (isFile && item.method == RemovalJournal::methodName(TFileDeleter::moveToTrash)) {
        for (const std::string &trashed : platform::current().trashedCopiesOf(nativeOf(item.path)))
            places.append(FilePathCodec::decode(trashed.c_str(), qsizetype(trashed.size())));
    } else if (isFile && item.method == RemovalJournal::methodName(TFileDeleter::moveToFolder)
        && !batch.target.isEmpty()) {
        const QString folder = item.into.isEmpty() ? batch.target : item.into;
        places.append(folder + QLatin1Char('/') + name);
        // The names a move gives when the first is taken: "name (2).ext" and on.
        const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
        const QString stem = dot > 0 ? name.left(dot) : name;
        const QString suffix = dot > 0 ? name.mid(dot) : QString();
        for (int n = 2; n < 10000; ++n) {
            const QString candidate
                = folder + QStringLiteral("/%1 (%2)%3").arg(stem).arg(n).arg(suffix);
            if (!exists(candidate))
                break;
            places.append(candidate);
        }
    }
    for (const QString &place : std::as_const(places)) {
        if (!isTheItem(item, place, false))
            continue;
        result.destination = place;
        const QString method = place == item.privatePath
            ? RemovalJournal::methodName(TFileDeleter::moveToFolder)
            : item.method;
        return moveBack(method, place, item.path);
    }
    return text("not found where the interrupted removal would have put it");
}

QString RemovalRestorer::restoreItem(
    const RemovalJournal::Batch &batch, const RemovalJournal::Item &item, DeleteResult &result)
{
    if (LinkRestorer::handles(item.method))
        return LinkRestorer::restore(item);
    if (!item.hasOutcome)
        return restoreIntended(batch, item, result);
    result.destination = item.destination;
    // Only what went comes back: an unrelated file that has taken its name in the trash
    // or the target folder since stays there.
    if (!isTheItem(item, item.destination, true))
        return exists(item.destination) ? text("what is there now is not the removed item")
                                        : TFileDeleter::errorText(ENOENT);
    return moveBack(item.method, item.destination, item.path);
}

bool RemovalRestorer::restore(const QString &batchId, QList<DeleteResult> &results)
{
    RemovalJournal::Batch batch;
    if (batchId.isEmpty()) {
        batch = m_journal.lastBatch();
    } else {
        int matches = 0;
        for (const RemovalJournal::Batch &candidate : m_journal.batches()) {
            if (candidate.id == batchId) {
                batch = candidate;
                matches = 1;
                break;
            }
            if (candidate.id.startsWith(batchId)) {
                batch = candidate;
                ++matches;
            }
        }
        if (matches > 1) {
            m_error = text("%1 starts the ids of several batches; give more of it").arg(batchId);
            return false;
        }
    }
    if (batch.id.isEmpty()) {
        m_error = batchId.isEmpty() ? text("the journal holds no removal to restore")
                                    : text("the journal holds no batch %1").arg(batchId);
        return false;
    }
    if (!batch.restorable()) {
        m_error = batch.method == RemovalJournal::methodName(TFileDeleter::removePermanently)
            ? text("batch %1 removed its files for good; they cannot be restored").arg(batch.id)
            : text("batch %1 has nothing left to restore").arg(batch.id);
        return false;
    }
    if (!m_journal.begin(QStringLiteral("restore"), batch.restorableCount(), {}, batch.id)) {
        m_error = m_journal.error();
        return false;
    }
    for (const RemovalJournal::Item &item : batch.items) {
        const bool pending = (item.result == RemovalJournal::removed && !item.destination.isEmpty())
            || (item.intended && !item.hasOutcome);
        if (item.restored || !pending)
            continue;
        DeleteResult result {item.path};
        const QString failure = restoreItem(batch, item, result);
        if (!failure.isEmpty()) {
            result.success = false;
            result.errorCode = DeleteResult::MoveFailed;
            result.message = QStringLiteral("Restore failed.");
            result.reason = failure;
            splog_d(kTag
                + QStringLiteral("Restore failed. Reason: %1. File: %2").arg(failure, item.path));
        }
        results.append(result);
        if (!m_journal.record(QStringLiteral("restore"), result,
                result.success ? RemovalJournal::restored : RemovalJournal::failed, item.seq,
                batch.id)
            || !m_journal.flush()) {
            m_error = m_journal.error();
            m_journal.end();
            return false;
        }
    }
    m_journal.end();
    return true;
}
