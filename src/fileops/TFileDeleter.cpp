// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/TFileDeleter.h"

#include "app/TLogger.h"
#include "engine/ContentHash.h"
#include "engine/FilePathCodec.h"
#include "platform/Platform.h"

#include <cerrno>

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>

#ifdef Q_OS_UNIX
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

// The log tags of this file.
const QString kTag = QStringLiteral("[TFileDeleter]: ");
const QString kShortTag = QStringLiteral("[TFileDeleter] ");

std::string nativeOf(const QString &path)
{
    return FilePathCodec::encode(path).toStdString();
}

enum class Kind { Missing, File, Folder, Other };

Kind kindOf(const QString &path)
{
#ifdef Q_OS_UNIX
    struct stat info
    {
    };
    if (::lstat(nativeOf(path).c_str(), &info) != 0)
        return errno == ENOENT ? Kind::Missing : Kind::Other;
    if (S_ISDIR(info.st_mode))
        return Kind::Folder;
    return S_ISREG(info.st_mode) ? Kind::File : Kind::Other;
#else
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return Kind::Missing;
    if (info.isSymLink())
        return Kind::Other;
    return info.isDir() ? Kind::Folder : (info.isFile() ? Kind::File : Kind::Other);
#endif
}

QString nameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

#ifdef Q_OS_UNIX
// Copies one file into a new entry (never over an existing one) and checks the copy's
// size and content against the original. 0 or an errno value; nothing is left behind on
// failure.
int copyFileChecked(const std::string &from, const std::string &to)
{
    const int in = ::open(from.c_str(), O_RDONLY | O_CLOEXEC);
    if (in < 0)
        return errno;
    struct stat info
    {
    };
    ::fstat(in, &info);
    const int out
        = ::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, info.st_mode & 07777);
    if (out < 0) {
        const int error = errno;
        ::close(in);
        return error;
    }
    static thread_local std::string buffer(1 << 20, '\0');
    int error = 0;
    for (;;) {
        const ssize_t got = ::read(in, buffer.data(), buffer.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0) {
            error = got < 0 ? errno : 0;
            break;
        }
        for (ssize_t written = 0; written < got;) {
            const ssize_t put = ::write(out, buffer.data() + written, size_t(got - written));
            if (put < 0 && errno == EINTR)
                continue;
            if (put <= 0) {
                error = put < 0 ? errno : EIO;
                break;
            }
            written += put;
        }
        if (error)
            break;
    }
    if (!error && ::fsync(out) != 0)
        error = errno;
    ::close(in);
    if (::close(out) != 0 && !error)
        error = errno;
    if (!error) {
        const struct timespec times[2] = {info.st_atim, info.st_mtim};
        ::utimensat(AT_FDCWD, to.c_str(), times, 0);
        struct stat copied
        {
        };
        const QString fromPath = FilePathCodec::decode(from.c_str(), qsizetype(from.size()));
        const QString toPath = FilePathCodec::decode(to.c_str(), qsizetype(to.size()));
        if (::stat(to.c_str(), &copied) != 0 || copied.st_size != info.st_size
            || ContentHash::ofFile(fromPath) != ContentHash::ofFile(toPath))
            error = EIO;
    }
    if (error)
        ::unlink(to.c_str());
    return error;
}

// A folder copied entry by entry (links as links), every file checked. 0 or an errno
// value; the partial copy is removed on failure.
int copyTreeChecked(const std::string &from, const std::string &to)
{
    struct stat info
    {
    };
    if (::lstat(from.c_str(), &info) != 0)
        return errno;
    if (::mkdir(to.c_str(), info.st_mode & 07777) != 0)
        return errno;
    DIR *dir = ::opendir(from.c_str());
    if (!dir) {
        const int error = errno;
        ::rmdir(to.c_str());
        return error;
    }
    int error = 0;
    while (const dirent *entry = ::readdir(dir)) {
        const std::string name = entry->d_name;
        if (name == "." || name == "..")
            continue;
        const std::string source = from + "/" + name;
        const std::string target = to + "/" + name;
        struct stat item
        {
        };
        if (::lstat(source.c_str(), &item) != 0) {
            error = errno;
        } else if (S_ISDIR(item.st_mode)) {
            error = copyTreeChecked(source, target);
        } else if (S_ISREG(item.st_mode)) {
            error = copyFileChecked(source, target);
        } else if (S_ISLNK(item.st_mode)) {
            std::string link(size_t(item.st_size) + 1, '\0');
            const ssize_t length = ::readlink(source.c_str(), link.data(), link.size());
            error = length < 0
                    || ::symlink(link.substr(0, size_t(length)).c_str(), target.c_str()) != 0
                ? errno
                : 0;
        } else {
            // Pipes and devices cannot be carried over.
            error = ENOTSUP;
        }
        if (error)
            break;
    }
    ::closedir(dir);
    if (error)
        platform::current().removePermanently(to);
    return error;
}
#endif

} // namespace

QString TFileDeleter::errorText(int code)
{
    return QString::fromLocal8Bit(platform::current().errorText(code).c_str());
}

QString TFileDeleter::freeName(const QString &folder, const QString &name, bool isFolder)
{
    const QString base = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    if (kindOf(base + name) == Kind::Missing)
        return base + name;
    // "photo.jpg" becomes "photo (2).jpg"; a folder or a name without a suffix gets the
    // number at its end.
    const qsizetype dot = isFolder ? -1 : name.lastIndexOf(QLatin1Char('.'));
    const QString stem = dot > 0 ? name.left(dot) : name;
    const QString suffix = dot > 0 ? name.mid(dot) : QString();
    // A name at the length limit has no room for " (n)": its stem is shortened, a whole
    // character at a time.
    constexpr qsizetype kNameMax = 255;
    for (int n = 2; n < 100000; ++n) {
        QString shortened = stem;
        QString name = QStringLiteral("%1 (%2)%3").arg(shortened).arg(n).arg(suffix);
        while (FilePathCodec::encode(name).size() > kNameMax && !shortened.isEmpty()) {
            shortened.chop(shortened.size() >= 2 && shortened.back().isLowSurrogate() ? 2 : 1);
            name = QStringLiteral("%1 (%2)%3").arg(shortened).arg(n).arg(suffix);
        }
        if (kindOf(base + name) == Kind::Missing)
            return base + name;
    }
    return {};
}

DeleteResult TFileDeleter::deleteOne(
    const QString &path, int method, const QString &targetFolder, const QString &recordedPath)
{
    DeleteResult gone {recordedPath.isEmpty() ? path : recordedPath};
    gone.alreadyGone = true;
    // A file is the common case: removed outright, the kind asked only when that fails.
    if (method == removePermanently) {
        const int error = platform::current().removePermanently(nativeOf(path));
        if (error == 0)
            return DeleteResult {gone.path};
        if (error == ENOENT)
            return gone;
    }
    switch (kindOf(path)) {
    case Kind::Missing:
        return gone;
    case Kind::Folder:
        return deleteFolder(path, method, targetFolder, recordedPath);
    default:
        return deleteFile(path, method, targetFolder, recordedPath);
    }
}

DeleteResult TFileDeleter::deleteFile(
    const QString &path, int method, const QString &targetFolder, const QString &recordedPath)
{
    const QString original = recordedPath.isEmpty() ? path : recordedPath;
    DeleteResult result {original};
    const Kind kind = kindOf(path);
    if (kind == Kind::Missing) {
        result.alreadyGone = true;
        return result;
    }
    if (kind != Kind::File) {
        result.success = false;
        result.errorCode = DeleteResult::NotAFile;
        result.message = QStringLiteral("Target is not a file.");
        return result;
    }
    int error = 0;
    bool done = false;
    if (method == removePermanently) {
        done = removeFile(path, error);
    } else if (method == moveToFolder) {
        done = moveIntoFolder(path, targetFolder, result.destination, error, nameOf(original));
        if (!done)
            result.errorCode = DeleteResult::MoveFailed;
    } else {
        done = moveFileToTrash(path, result.destination, error, recordedPath, &result.reason);
    }
    if (!done) {
        result.success = false;
        if (result.errorCode == DeleteResult::NoError)
            result.errorCode = DeleteResult::RemovalFailed;
        result.message = QStringLiteral("Deletion failed.");
        if (result.reason.isEmpty())
            result.reason = errorText(error);
    }
    return result;
}

DeleteResult TFileDeleter::deleteFolder(
    const QString &path, int method, const QString &targetFolder, const QString &recordedPath)
{
    const QString original = recordedPath.isEmpty() ? path : recordedPath;
    DeleteResult result {original};
    const Kind kind = kindOf(path);
    if (kind == Kind::Missing) {
        result.alreadyGone = true;
        return result;
    }
    if (kind != Kind::Folder) {
        result.success = false;
        result.errorCode = DeleteResult::NotAFolder;
        result.message = QStringLiteral("Target is not a folder.");
        return result;
    }
    int error = 0;
    bool done = false;
    if (method == removePermanently) {
        error = platform::current().removePermanently(nativeOf(path));
        done = error == 0;
        if (!done)
            splog_d(kTag
                + QStringLiteral("Delete failed. Reason: %1. File: %2")
                      .arg(errorText(error), path));
    } else if (method == moveToFolder) {
        done = moveIntoFolder(path, targetFolder, result.destination, error, nameOf(original));
        if (!done)
            result.errorCode = DeleteResult::MoveFailed;
    } else {
        done = moveFileToTrash(path, result.destination, error, recordedPath, &result.reason);
    }
    if (!done) {
        result.success = false;
        if (result.errorCode == DeleteResult::NoError)
            result.errorCode = DeleteResult::RemovalFailed;
        result.message = QStringLiteral("Folder deletion failed.");
        if (result.reason.isEmpty())
            result.reason = errorText(error);
        // A move across drives that could not remove all of the original: nothing is lost,
        // the checked copy is whole.
        if (!result.destination.isEmpty())
            result.reason = QStringLiteral("moved in part (%1); the whole copy is at %2")
                                .arg(result.reason, result.destination);
    }
    return result;
}

QString TFileDeleter::privateNameFor(const QString &path, const QString &purpose)
{
    // Short, whatever the length of the item's name, and hidden from file managers for the
    // moment it exists.
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    return path.left(slash + 1)
        + QStringLiteral(".veltrine-%1-%2")
              .arg(purpose)
              .arg(QRandomGenerator::global()->generate64(), 16, 16, QLatin1Char('0'));
}

QString TFileDeleter::putBack(const QString &privatePath, const QString &path, bool isFolder)
{
    const platform::Platform &os = platform::current();
    bool crossDevice = false;
    int error = os.renameNoReplace(nativeOf(privatePath), nativeOf(path), crossDevice);
    if (error == 0)
        return path;
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    for (int attempt = 0; error == EEXIST && attempt < 100; ++attempt) {
        const QString free = freeName(path.left(slash), path.mid(slash + 1), isFolder);
        if (free.isEmpty())
            break;
        error = os.renameNoReplace(nativeOf(privatePath), nativeOf(free), crossDevice);
        if (error == 0)
            return free;
    }
    splog_d(kTag
        + QStringLiteral("Cannot put back %1 from %2: %3")
              .arg(path, privatePath, errorText(error)));
    return privatePath;
}

bool TFileDeleter::moveFileToTrash(const QString &path, QString &destination, int &error,
    const QString &recordedPath, QString *reason)
{
    std::string trashed;
    std::string trashFolder;
    error = platform::current().moveToTrash(nativeOf(path), trashed,
        recordedPath.isEmpty() ? std::string() : nativeOf(recordedPath), trashFolder);
    if (error != 0) {
        // The system's words alone would not tell which folder the trash needed.
        const QString words = trashFolder.empty()
            ? errorText(error)
            : QStringLiteral("cannot make the trash folder %1: %2")
                  .arg(FilePathCodec::decode(trashFolder.c_str(), qsizetype(trashFolder.size())),
                      errorText(error));
        if (reason)
            *reason = words;
        splog_d(kTag + QStringLiteral("moveToTrash Failed. file: %1").arg(path));
        splog_d(kTag
            + QStringLiteral("RecycleBin Delete Failed. reason: %1. file: %2").arg(words, path));
        return false;
    }
    destination = FilePathCodec::decode(trashed.c_str(), qsizetype(trashed.size()));
    return true;
}

bool TFileDeleter::removeFile(const QString &path, int &error)
{
    error = platform::current().removePermanently(nativeOf(path));
    if (error == 0)
        return true;
    splog_d(kShortTag + QStringLiteral("QFile::remove failed: %1").arg(path));
    splog_d(
        kTag + QStringLiteral("Delete failed. Reason: %1. File: %2").arg(errorText(error), path));
    return false;
}

bool TFileDeleter::moveIntoFolder(const QString &path, const QString &folder, QString &destination,
    int &error, const QString &name)
{
    const Kind kind = kindOf(path);
    if (kind == Kind::Missing) {
        error = ENOENT;
        return false;
    }
    if (folder.isEmpty() || !QDir().mkpath(folder)) {
        error = folder.isEmpty() ? EINVAL : EACCES;
        splog_d(kTag + QStringLiteral("Cannot make the target folder: %1").arg(folder));
        return false;
    }
    const platform::Platform &os = platform::current();
    // Another program can take a free name between the look and the rename: the rename
    // never replaces, so the next free name is tried then.
    for (int attempt = 0; attempt < 100; ++attempt) {
        destination = freeName(folder, name.isEmpty() ? nameOf(path) : name, kind == Kind::Folder);
        if (destination.isEmpty()) {
            error = ENAMETOOLONG;
            break;
        }
        bool crossDevice = false;
        error = os.renameNoReplace(nativeOf(path), nativeOf(destination), crossDevice);
        if (error == 0)
            return true;
        if (error == EEXIST)
            continue;
        if (!crossDevice)
            break;
#ifdef Q_OS_UNIX
        // Another drive: copy, check, and only then remove the original.
        error = kind == Kind::Folder ? copyTreeChecked(nativeOf(path), nativeOf(destination))
                                     : copyFileChecked(nativeOf(path), nativeOf(destination));
        if (error == EEXIST)
            continue;
        if (error == 0) {
            error = os.removePermanently(nativeOf(path));
            if (error == 0)
                return true;
            // A folder may have lost part of its content before the failure: the checked
            // copy is then the only whole one, and it stays. A file that could not be
            // removed is still whole, and its copy goes again.
            if (kind == Kind::Folder) {
                splog_d(kTag
                    + QStringLiteral("Moved in part: the copy %1 is whole, "
                                     "the original %2 could not be removed: %3")
                          .arg(destination, path, errorText(error)));
                return false;
            }
            os.removePermanently(nativeOf(destination));
        }
#endif
        break;
    }
    splog_d(kTag
        + QStringLiteral("Move failed. Reason: %1. File: %2 -> %3")
              .arg(errorText(error), path, destination));
    destination.clear();
    return false;
}
