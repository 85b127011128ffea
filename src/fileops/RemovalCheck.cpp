// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/RemovalCheck.h"

#include "app/FileTypeCatalogue.h"
#include "engine/FilePathCodec.h"
#include "fileops/ContentHash.h"

#include <algorithm>
#include <functional>

#include <QDirIterator>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <dirent.h>
#include <sys/stat.h>
#endif

const QString RemovalCheck::changedSinceScan = QStringLiteral("changed since the scan");
const QString RemovalCheck::noKeptCopyLeft = QStringLiteral("no kept copy left");
const QString RemovalCheck::contentDiffers = QStringLiteral("content differs from the kept copy");
const QString RemovalCheck::folderNotCovered
    = QStringLiteral("not everything in it has a copy in the kept folder");

namespace {

enum class Kind { Missing, File, Folder, Other };

struct Entry
{
    Kind kind = Kind::Missing;
    FileStamp stamp;
    quint64 device = 0;
    quint64 inode = 0;
};

Entry entryOf(const QString &path)
{
    Entry entry;
#ifdef Q_OS_UNIX
    struct stat info
    {
    };
    if (::lstat(FilePathCodec::encode(path).constData(), &info) != 0) {
        entry.kind = errno == ENOENT ? Kind::Missing : Kind::Other;
        return entry;
    }
    entry.device = quint64(info.st_dev);
    entry.inode = quint64(info.st_ino);
    entry.kind = S_ISDIR(info.st_mode) ? Kind::Folder
        : S_ISREG(info.st_mode)        ? Kind::File
                                       : Kind::Other;
    // The stamp from the same look, not a second one.
    if (entry.kind == Kind::File) {
        entry.stamp.size = info.st_size;
        entry.stamp.modifiedNs = qint64(info.st_mtim.tv_sec) * 1000000000LL + info.st_mtim.tv_nsec;
        entry.stamp.changedNs = qint64(info.st_ctim.tv_sec) * 1000000000LL + info.st_ctim.tv_nsec;
        entry.stamp.device = entry.device;
        entry.stamp.inode = entry.inode;
    }
    return entry;
#else
    const QFileInfo info(path);
    entry.kind = info.isSymLink() ? Kind::Other
        : info.isDir()            ? Kind::Folder
        : info.isFile()           ? Kind::File
                                  : Kind::Missing;
#endif
    if (entry.kind == Kind::File)
        entry.stamp = FileStamp::of(path);
    return entry;
}

// The path with every link in it resolved; empty when it cannot be.
QString realPathOf(const QString &path)
{
#ifdef Q_OS_UNIX
    char *real = ::realpath(FilePathCodec::encode(path).constData(), nullptr);
    if (!real)
        return {};
    const QString out = FilePathCodec::decode(QByteArray(real));
    std::free(real);
    return out;
#else
    return QFileInfo(path).canonicalFilePath();
#endif
}

bool isInside(const QString &path, const QString &folder)
{
    return path.startsWith(folder)
        && (path.size() == folder.size() || path.at(folder.size()) == QLatin1Char('/'));
}

// Calls file(path) for every regular file below folder, hidden ones included; false when
// the folder holds anything else (links, pipes, devices) or cannot be read, or when file
// says stop.
bool forEachFile(const QString &folder, const std::function<bool(const QString &)> &file)
{
#ifdef Q_OS_UNIX
    DIR *dir = ::opendir(FilePathCodec::encode(folder).constData());
    if (!dir)
        return false;
    bool ok = true;
    while (const dirent *item = ::readdir(dir)) {
        const char *name = item->d_name;
        if (name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0')))
            continue;
        const QString path = folder + QLatin1Char('/') + FilePathCodec::decode(QByteArray(name));
        const Kind kind = entryOf(path).kind;
        if (kind == Kind::File)
            ok = file(path);
        else if (kind == Kind::Folder)
            ok = forEachFile(path, file);
        else
            ok = false;
        if (!ok)
            break;
    }
    ::closedir(dir);
    return ok;
#else
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
        QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        const QFileInfo info = it.fileInfo();
        if (info.isSymLink() || !(info.isDir() || info.isFile()))
            return false;
        if (info.isFile() && !file(info.filePath()))
            return false;
    }
    return true;
#endif
}

} // namespace

QString RemovalCheck::check(GroupKind kind, const QStringList &members, const QString &entry,
    const QSet<QString> &leaving, bool everyCopy)
{
    if (kind == Folders)
        return checkFolder(members, entry, leaving, everyCopy);
    return checkFile(kind, members, entry, leaving, everyCopy);
}

QByteArray RemovalCheck::keptHash(const QString &path)
{
    auto found = m_keptHashes.constFind(path);
    if (found == m_keptHashes.constEnd())
        found = m_keptHashes.insert(path, ContentHash::ofFile(path));
    return found.value();
}

QString RemovalCheck::checkFile(GroupKind kind, const QStringList &members, const QString &entry,
    const QSet<QString> &leaving, bool everyCopy)
{
    const QString path = stripSimilarTag(entry);
    const Entry item = entryOf(path);
    // Already gone: nothing to remove, and nothing lost by saying so.
    if (item.kind == Kind::Missing)
        return {};
    if (item.kind != Kind::File)
        return changedSinceScan;
    const FileStamp seen = m_stamps.value(path);
    if (seen.isValid() && (!seen.sameContentStamp(item.stamp) || !seen.sameFile(item.stamp)))
        return changedSinceScan;
    if (everyCopy)
        return {};

    QByteArray itemHash;
    bool anyKept = false;
    for (const QString &member : members) {
        const QString keptPath = stripSimilarTag(member);
        if (member == entry || leaving.contains(keptPath))
            continue;
        const Entry kept = entryOf(keptPath);
        // A regular file (a link is no copy) that is not the item itself: one file under
        // two names, or reached through linked folders, has one device and inode.
        if (kept.kind != Kind::File || kept.stamp.sameFile(item.stamp))
            continue;
        anyKept = true;
        // Similar pictures and files sharing a name differ by design: the copy only has
        // to be there.
        if (kind != IdenticalFiles)
            return {};
        if (kept.stamp.size != item.stamp.size)
            continue;
        // Both untouched since the scan read them whole: their keys decide without
        // reading them again.
        const FileStamp keptSeen = m_stamps.value(keptPath);
        if (seen.keyStillHolds(item.stamp) && keptSeen.keyStillHolds(kept.stamp)) {
            if (seen.contentKey == keptSeen.contentKey)
                return {};
            continue;
        }
        if (itemHash.isEmpty())
            itemHash = ContentHash::ofFile(path);
        if (itemHash.isEmpty())
            return changedSinceScan;
        if (keptHash(keptPath) == itemHash)
            return {};
    }
    return anyKept ? contentDiffers : noKeptCopyLeft;
}

const QSet<QByteArray> *RemovalCheck::keptFolderContent(const QString &folder)
{
    if (m_unreadableFolders.contains(folder))
        return nullptr;
    auto found = m_keptFolders.constFind(folder);
    if (found != m_keptFolders.constEnd())
        return &found.value();
    QSet<QByteArray> content;
    const bool ok = forEachFile(folder, [&content](const QString &file) {
        const QByteArray hash = ContentHash::ofFile(file);
        content.insert(hash);
        return !hash.isEmpty();
    });
    if (!ok) {
        m_unreadableFolders.insert(folder);
        return nullptr;
    }
    return &m_keptFolders.insert(folder, content).value();
}

QString RemovalCheck::checkFolder(
    const QStringList &members, const QString &entry, const QSet<QString> &leaving, bool everyCopy)
{
    const Entry item = entryOf(entry);
    if (item.kind == Kind::Missing)
        return {};
    if (item.kind != Kind::Folder)
        return changedSinceScan;
    if (everyCopy)
        return {};
    const QString itemReal = realPathOf(entry);
    bool anyKept = false;
    for (const QString &member : members) {
        if (member == entry || leaving.contains(member))
            continue;
        // A kept folder must keep everything: not one thing in it may go in this batch.
        const QString prefix = member + QLatin1Char('/');
        if (std::any_of(leaving.begin(), leaving.end(),
                [&prefix](const QString &path) { return path.startsWith(prefix); }))
            continue;
        const Entry kept = entryOf(member);
        const QString keptReal = realPathOf(member);
        // A partner inside the item (or holding it) goes with it, or takes it along.
        if (kept.kind != Kind::Folder || keptReal.isEmpty() || isInside(keptReal, itemReal)
            || isInside(itemReal, keptReal))
            continue;
        anyKept = true;
        const QSet<QByteArray> *content = keptFolderContent(member);
        if (!content)
            continue;
        const bool covered = forEachFile(entry, [content](const QString &file) {
            return content->contains(ContentHash::ofFile(file));
        });
        if (covered)
            return {};
    }
    return anyKept ? folderNotCovered : noKeptCopyLeft;
}
