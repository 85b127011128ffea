// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/LinkReplacer.h"

#include "app/TLogger.h"
#include "engine/FilePathCodec.h"
#include "fileops/EntrySwap.h"
#include "fileops/TFileDeleter.h"
#include "platform/FileLinks.h"
#include "platform/FolderReader.h"
#include "platform/Platform.h"

#include <algorithm>
#include <cerrno>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

#include <QDir>

const QString LinkReplacer::foldersNotLinked
    = QStringLiteral("a folder is not replaced by a link (files only)");
const QString LinkReplacer::noHardLinkCopy
    = QStringLiteral("no kept copy on the same file system for a hard link");
const QString LinkReplacer::noReflinkCopy
    = QStringLiteral("no kept copy on the same file system for a reflink");
const QString LinkReplacer::cannotClone
    = QStringLiteral("the file system cannot clone files (reflink)");
const QString LinkReplacer::keptCopyMoved
    = QStringLiteral("the kept copy changed while the link was made");

namespace {

const QString kTag = QStringLiteral("[LinkReplacer]: ");

std::string nativeOf(const QString &path)
{
    return FilePathCodec::encode(path).toStdString();
}

// The entry at path itself (a link is not followed); kind Unknown when there is none.
platform::EntryInfo infoOf(const QString &path)
{
    platform::EntryInfo info;
    if (platform::entryInfoOf(nativeOf(path), false, info) != 0)
        info.kind = platform::EntryInfo::Unknown;
    return info;
}

bool sameFile(const platform::EntryInfo &info, quint64 device, quint64 inode)
{
    return info.kind == platform::EntryInfo::File && info.device == device && info.inode == inode;
}

// Whether the file at path is still the one seen before, unchanged: its times move with
// every write. The change time is compared only where no rename or link of ours moves it.
bool unchanged(const QString &path, const platform::EntryInfo &before, bool changeTime)
{
    const platform::EntryInfo now = infoOf(path);
    return sameFile(now, before.device, before.inode) && now.size == before.size
        && now.modifiedNs == before.modifiedNs
        && (!changeTime || now.changedNs == before.changedNs);
}

// Removes the link made under the private name, and nothing else: only the entry that was
// made there (its kind, device and inode), never the item nor a file another program has
// renamed to that name since.
void discard(const QString &privatePath, const platform::EntryInfo &made)
{
    const platform::EntryInfo info = infoOf(privatePath);
    if (info.kind == platform::EntryInfo::Unknown || info.kind != made.kind
        || info.device != made.device || info.inode != made.inode)
        return;
    if (const int error = platform::current().removePermanently(nativeOf(privatePath)))
        splog_d(kTag
            + QStringLiteral("Cannot remove the link %1: %2")
                  .arg(privatePath, TFileDeleter::errorText(error)));
}

void keep(DeleteResult &result, const QString &reason, bool failed = false)
{
    result.success = false;
    result.errorCode = failed ? DeleteResult::RemovalFailed : DeleteResult::Skipped;
    result.message
        = failed ? QStringLiteral("Replacing by a link failed.") : QStringLiteral("Skipped.");
    result.reason = reason;
}

} // namespace

bool LinkReplacer::handles(int method)
{
    return method == TFileDeleter::replaceByHardLink || method == TFileDeleter::replaceByReflink
        || method == TFileDeleter::replaceBySymlink;
}

int LinkReplacer::modeOf(const QString &path)
{
#ifdef Q_OS_UNIX
    struct stat info
    {
    };
    if (::lstat(FilePathCodec::encode(path).constData(), &info) == 0)
        return int(info.st_mode & 07777);
#else
    Q_UNUSED(path)
#endif
    return -1;
}

QString LinkReplacer::chooseKept(
    const RemovalCheck::Look &look, const ProtectedFolders &protectedFolders, QString &reason) const
{
    // A copy outside the protected folders first: a write through a hard link, or through a
    // symbolic link that is followed, changes the copy it leads to.
    QStringList candidates = look.kept;
    std::stable_partition(candidates.begin(), candidates.end(),
        [&protectedFolders](const QString &kept) { return !protectedFolders.protects(kept); });
    for (const QString &kept : std::as_const(candidates)) {
        // A hard link or a clone shares blocks, which only one file system can.
        if (m_method == TFileDeleter::replaceBySymlink || infoOf(kept).device == look.stamp.device)
            return kept;
    }
    reason = look.kept.isEmpty()                      ? RemovalCheck::noKeptCopyLeft
        : m_method == TFileDeleter::replaceByHardLink ? noHardLinkCopy
                                                      : noReflinkCopy;
    return {};
}

RemovalCheck::Confirmed LinkReplacer::confirm(
    const RemovalCheck::Look &look, const QString &path, const QString &kept) const
{
    RemovalCheck::Look narrowed = look;
    narrowed.kept = QStringList {kept};
    narrowed.everyCopy = false;
    return m_check.confirm(m_kind, narrowed, path, false);
}

int LinkReplacer::make(const QString &kept, const QString &privatePath) const
{
    const std::string link = nativeOf(privatePath);
    if (m_method == TFileDeleter::replaceByHardLink)
        return platform::makeHardLink(nativeOf(kept), link);
    if (m_method == TFileDeleter::replaceByReflink)
        return platform::cloneFile(nativeOf(kept), link);
    // Absolute, so that the link reads the same wherever the item's folder is reached from.
    return platform::makeSymbolicLink(
        nativeOf(QDir::isRelativePath(kept) ? QDir::current().absoluteFilePath(kept) : kept), link);
}

QString LinkReplacer::refusalOf(int error) const
{
    if (m_method == TFileDeleter::replaceByHardLink && platform::isCrossDeviceError(error))
        return noHardLinkCopy;
    if (m_method == TFileDeleter::replaceByReflink && platform::isCrossDeviceError(error))
        return noReflinkCopy;
    if (m_method == TFileDeleter::replaceByReflink && platform::cloneUnsupported(error))
        return cannotClone;
    return {};
}

DeleteResult LinkReplacer::replace(const QString &path, const RemovalCheck::Look &look,
    const QString &kept, const QString &privatePath) const
{
    DeleteResult result {path};
    if (const int error = make(kept, privatePath)) {
        const QString refusal = refusalOf(error);
        keep(result, refusal.isEmpty() ? TFileDeleter::errorText(error) : refusal,
            refusal.isEmpty());
        return result;
    }
    const platform::EntryInfo made = infoOf(privatePath);
    // What the item's path will read once the link is in place: the kept copy itself (a hard
    // link is one more name of it), or the clone.
    const bool clone = m_method == TFileDeleter::replaceByReflink;
    const QString read = clone ? privatePath : kept;
    const platform::EntryInfo linked = infoOf(read);
    if (linked.kind != platform::EntryInfo::File
        || (m_method == TFileDeleter::replaceByHardLink
            && !sameFile(made, linked.device, linked.inode))) {
        discard(privatePath, made);
        keep(result, keptCopyMoved);
        return result;
    }
    // The item at its own place, still the file the look saw, against what the link reads.
    const RemovalCheck::Confirmed confirmed = confirm(look, path, read);
    if (!confirmed.reason.isEmpty()) {
        discard(privatePath, made);
        keep(result, confirmed.reason);
        return result;
    }
    result.mode = modeOf(path);
    EntrySwap swap(privatePath, path);
    const EntrySwap::Outcome swapped = swap.swap([&look](const QString &displaced) {
        const platform::EntryInfo info = infoOf(displaced);
        return sameFile(info, look.stamp.device, look.stamp.inode) && info.size == look.stamp.size
            && info.modifiedNs == look.stamp.modifiedNs;
    });
    if (swapped != EntrySwap::Swapped) {
        discard(privatePath, made);
        keep(result,
            swapped == EntrySwap::NotExpected ? RemovalCheck::changedSinceScan
                                              : TFileDeleter::errorText(swap.error()),
            swapped == EntrySwap::Failed);
        return result;
    }
    // A rename moves the change time of what it renames: only the clone, which nobody else
    // knows, and the kept copy behind a hard link are spared that comparison.
    const bool changeTime = m_method == TFileDeleter::replaceBySymlink;
    const platform::EntryInfo displaced = infoOf(swap.displaced());
    if (!unchanged(clone ? path : kept, linked, changeTime)) {
        swap.undo();
        discard(privatePath, made);
        keep(result, keptCopyMoved);
        return result;
    }
    if (const int error = platform::current().removePermanently(nativeOf(swap.displaced()))) {
        swap.undo();
        discard(privatePath, made);
        keep(result, TFileDeleter::errorText(error), true);
        return result;
    }
    result.destination = kept;
    result.size = confirmed.size;
    result.modifiedNs = confirmed.modifiedNs;
    result.digest = confirmed.digest;
    // Another name of the old file keeps its blocks.
    result.freedBytes = displaced.links <= 1 ? confirmed.size : 0;
    return result;
}
