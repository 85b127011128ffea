// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/LinkRestorer.h"

#include "app/TLogger.h"
#include "engine/ContentHash.h"
#include "engine/FilePathCodec.h"
#include "engine/FileStamp.h"
#include "fileops/ContentCompare.h"
#include "fileops/EntrySwap.h"
#include "fileops/TFileDeleter.h"
#include "platform/FileLinks.h"
#include "platform/FolderReader.h"
#include "platform/Platform.h"

#include <cerrno>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <QCoreApplication>

namespace {

const QString kTag = QStringLiteral("[LinkRestorer]: ");

std::string nativeOf(const QString &path)
{
    return FilePathCodec::encode(path).toStdString();
}

QString text(const char *source)
{
    return QCoreApplication::translate("LinkRestorer", source);
}

platform::EntryInfo infoOf(const QString &path)
{
    platform::EntryInfo info;
    if (platform::entryInfoOf(nativeOf(path), false, info) != 0)
        info.kind = platform::EntryInfo::Unknown;
    return info;
}

bool isSymlinkMethod(const QString &method)
{
    return method == RemovalJournal::methodName(TFileDeleter::replaceBySymlink);
}

// Whether the entry at path is a link this item's replacement made: a symbolic link whose
// text is the kept copy's path, or a regular file other than the item itself (for a hard
// link, given the identity the kept copy has now, that file).
bool isTheLink(const RemovalJournal::Item &item, const QString &path, bool sameAsKept)
{
    const platform::EntryInfo info = infoOf(path);
    if (isSymlinkMethod(item.method)) {
        std::string target;
        return info.kind == platform::EntryInfo::Link
            && platform::readSymbolicLink(nativeOf(path), target) == 0
            && QByteArray::fromStdString(target) == FilePathCodec::encode(item.destination);
    }
    if (info.kind != platform::EntryInfo::File
        || (info.device == item.device && info.inode == item.inode))
        return false;
    if (!sameAsKept || item.method != RemovalJournal::methodName(TFileDeleter::replaceByHardLink))
        return true;
    const platform::EntryInfo kept = infoOf(item.destination);
    return kept.device == info.device && kept.inode == info.inode;
}

// Whether the regular file at path reads the same bytes as the old item waiting at aside:
// a hard link's kept copy or a clone may have been written, or another file saved in its
// place, since the batch was cut; only an equal one can go without a loss.
bool readsAsOld(const QString &path, const QString &aside)
{
    const int fd = ContentCompare::openRegular(path);
    if (fd < 0)
        return false;
    const bool same = ContentCompare::compare(fd, aside) == ContentCompare::Same;
    ::close(fd);
    return same;
}

bool sameEntry(const platform::EntryInfo &a, const platform::EntryInfo &b)
{
    return a.kind == b.kind && a.device == b.device && a.inode == b.inode && a.size == b.size
        && a.modifiedNs == b.modifiedNs;
}

#ifdef Q_OS_UNIX
// Copies everything fd reads into out, hashing it: 0 or an errno value.
int copyHashed(int fd, int out, ContentHash &hash, qint64 &size)
{
    static thread_local QByteArray buffer(1 << 20, Qt::Uninitialized);
    size = 0;
    for (;;) {
        const ssize_t got = ::read(fd, buffer.data(), size_t(buffer.size()));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return errno;
        if (got == 0)
            return 0;
        hash.add(buffer.constData(), size_t(got));
        size += got;
        for (ssize_t written = 0; written < got;) {
            const ssize_t put = ::write(out, buffer.constData() + written, size_t(got - written));
            if (put < 0 && errno == EINTR)
                continue;
            if (put <= 0)
                return put < 0 ? errno : EIO;
            written += put;
        }
    }
}
#endif

} // namespace

bool LinkRestorer::handles(const QString &method)
{
    return method == RemovalJournal::methodName(TFileDeleter::replaceByHardLink)
        || method == RemovalJournal::methodName(TFileDeleter::replaceByReflink)
        || method == RemovalJournal::methodName(TFileDeleter::replaceBySymlink);
}

QString LinkRestorer::restore(const RemovalJournal::Item &item)
{
    if (!item.hasOutcome)
        return restoreIntended(item);
    if (item.digest.isEmpty() || !isTheLink(item, item.path, false))
        return text("what is at its place is no longer the link that replaced it");
    return copyBack(item, true);
}

QString LinkRestorer::restoreIntended(const RemovalJournal::Item &item)
{
    if (item.destination.isEmpty() || item.inode == 0)
        return text("the journal does not say which copy it was linked to");
    const platform::EntryInfo atPath = infoOf(item.path);
    const bool untouched = atPath.kind == platform::EntryInfo::File && atPath.device == item.device
        && atPath.inode == item.inode;
    const platform::EntryInfo atPrivate = infoOf(item.privatePath);
    const bool oldAside = atPrivate.kind == platform::EntryInfo::File
        && atPrivate.device == item.device && atPrivate.inode == item.inode;
    if (untouched) {
        // Cut short before the swap: only the link made beside it may be left.
        if (!item.privatePath.isEmpty() && isTheLink(item, item.privatePath, false))
            platform::current().removePermanently(nativeOf(item.privatePath));
        return {};
    }
    if (oldAside) {
        // Cut short after the swap: the old item waits under the private name.
        if (atPath.kind == platform::EntryInfo::Unknown) {
            bool crossDevice = false;
            const int error = platform::current().renameNoReplace(
                nativeOf(item.privatePath), nativeOf(item.path), crossDevice);
            return error == 0 ? QString() : TFileDeleter::errorText(error);
        }
        if (!isSymlinkMethod(item.method) && !readsAsOld(item.path, item.privatePath))
            return text("what is at its place is no longer the link that replaced it");
        EntrySwap swap(item.privatePath, item.path);
        const EntrySwap::Outcome swapped = swap.swap([&item, &atPath](const QString &displaced) {
            return isTheLink(item, displaced, false) && sameEntry(infoOf(displaced), atPath);
        });
        if (swapped == EntrySwap::NotExpected)
            return text("what is at its place is no longer the link that replaced it");
        if (swapped == EntrySwap::Failed)
            return TFileDeleter::errorText(swap.error());
        platform::current().removePermanently(nativeOf(swap.displaced()));
        return {};
    }
    if (!isTheLink(item, item.path, true))
        return text("not found where the interrupted replacement would have left it");
    return copyBack(item, false);
}

QString LinkRestorer::copyBack(const RemovalJournal::Item &item, bool checkDigest)
{
#ifdef Q_OS_UNIX
    const bool symbolic = isSymlinkMethod(item.method);
    // What the link reads: through a symbolic link, the kept copy.
    const int fd = ::open(FilePathCodec::encode(item.path).constData(),
        O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK | (symbolic ? 0 : O_NOFOLLOW));
    if (fd < 0)
        return TFileDeleter::errorText(errno);
    const FileStamp before = FileStamp::ofOpenFile(fd);
    struct stat source
    {
    };
    if (!before.isValid() || ::fstat(fd, &source) != 0 || !S_ISREG(source.st_mode)) {
        ::close(fd);
        return text("what is at its place is no longer the link that replaced it");
    }
    const mode_t mode = item.mode >= 0 ? mode_t(item.mode) : (source.st_mode & 07777);
    const QString copy = TFileDeleter::privateNameFor(item.path, QStringLiteral("restoring"));
    const QByteArray copyName = FilePathCodec::encode(copy);
    const int out = ::open(copyName.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (out < 0) {
        const int error = errno;
        ::close(fd);
        return TFileDeleter::errorText(error);
    }
    ContentHash hash;
    qint64 size = 0;
    int error = copyHashed(fd, out, hash, size);
    const FileStamp after = FileStamp::ofOpenFile(fd);
    ::close(fd);
    if (error == 0 && ::fsync(out) != 0)
        error = errno;
    // The bits as the item had them, whatever this process's umask.
    if (error == 0 && ::fchmod(out, mode) != 0)
        error = errno;
    const struct timespec times[2] = {{0, UTIME_OMIT},
        {time_t(item.modifiedNs / 1000000000), long(item.modifiedNs % 1000000000)}};
    if (error == 0 && ::futimens(out, times) != 0)
        error = errno;
    if (::close(out) != 0 && error == 0)
        error = errno;
    const QByteArray digest = hash.result();
    QString failure;
    if (error != 0)
        failure = TFileDeleter::errorText(error);
    else if (!after.isValid() || after.size != before.size || after.modifiedNs != before.modifiedNs
        || after.changedNs != before.changedNs)
        failure = text("the copy it is linked to was written to while it was read");
    else if (size != item.size || (checkDigest && digest != item.digest))
        failure = text("the copy it is linked to has changed since; the content it had is gone");
    else if (ContentHash::ofFile(copy) != digest)
        failure = text("the restored copy reads back differently");
    if (failure.isEmpty()) {
        EntrySwap swap(copy, item.path);
        const EntrySwap::Outcome swapped = swap.swap([&item, &before](const QString &displaced) {
            if (isSymlinkMethod(item.method))
                return isTheLink(item, displaced, false);
            const platform::EntryInfo info = infoOf(displaced);
            return info.kind == platform::EntryInfo::File && info.device == before.device
                && info.inode == before.inode;
        });
        if (swapped == EntrySwap::Swapped) {
            if (const int removal
                = platform::current().removePermanently(nativeOf(swap.displaced())))
                splog_d(kTag
                    + QStringLiteral("Restored %1, but cannot remove the link now at %2: %3")
                          .arg(item.path, swap.displaced(), TFileDeleter::errorText(removal)));
            return {};
        }
        failure = swapped == EntrySwap::NotExpected
            ? text("what is at its place changed while it was restored")
            : TFileDeleter::errorText(swap.error());
    }
    ::unlink(copyName.constData());
    return failure;
#else
    Q_UNUSED(checkDigest)
    Q_UNUSED(item)
    return TFileDeleter::errorText(ENOSYS);
#endif
}
