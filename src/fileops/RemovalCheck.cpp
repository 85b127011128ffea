// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/RemovalCheck.h"

#include "engine/ContentHash.h"
#include "engine/FilePathCodec.h"
#include "engine/GroupMember.h"
#include "fileops/ContentCompare.h"
#include "platform/FolderReader.h"

#include <algorithm>
#include <functional>
#include <unistd.h>

const QString RemovalCheck::changedSinceScan = QStringLiteral("changed since the scan");
const QString RemovalCheck::noKeptCopyLeft = QStringLiteral("no kept copy left");
const QString RemovalCheck::contentDiffers = QStringLiteral("content differs from the kept copy");
const QString RemovalCheck::differentContent
    = QStringLiteral("content differs from every kept copy");
const QString RemovalCheck::notIdentical
    = QStringLiteral("not identical (only parts were compared)");
const QString RemovalCheck::folderNotCovered
    = QStringLiteral("not everything in it has a copy in the kept folder");
const QString RemovalCheck::inProtectedFolder = QStringLiteral("in a protected folder");

namespace {

enum class Kind { Missing, File, Folder, Other };

struct Entry
{
    Kind kind = Kind::Missing;
    FileStamp stamp;
};

using Identity = QPair<quint64, quint64>;

Entry entryOf(const QString &path)
{
    Entry entry;
    platform::EntryInfo info;
    if (const int error
        = platform::entryInfoOf(FilePathCodec::encode(path).toStdString(), false, info)) {
        entry.kind = platform::isNotFoundError(error) ? Kind::Missing : Kind::Other;
        return entry;
    }
    entry.kind = info.kind == platform::EntryInfo::Folder ? Kind::Folder
        : info.kind == platform::EntryInfo::File          ? Kind::File
                                                          : Kind::Other;
    entry.stamp = FileStamp::fromEntry(info);
    if (entry.kind != Kind::File)
        entry.stamp.size = -1;
    return entry;
}

Identity identityOf(const FileStamp &stamp)
{
    return {stamp.device, stamp.inode};
}

// The path with every link in it resolved; empty when it cannot be.
QString realPathOf(const QString &path)
{
    int error = 0;
    return FilePathCodec::decode(QByteArray::fromStdString(
        platform::realPathOf(FilePathCodec::encode(path).toStdString(), error)));
}

bool isInside(const QString &path, const QString &folder)
{
    return path.startsWith(folder)
        && (path.size() == folder.size() || path.at(folder.size()) == QLatin1Char('/'));
}

// Everything below a folder, hidden entries included, as read now.
struct FolderTree
{
    struct File
    {
        QString relative;
        QString path;
        qint64 size = 0;
    };
    // False when something in it is neither a file nor a folder (links, pipes, devices
    // have no copy and would be lost) or cannot be read.
    bool complete = true;
    QList<File> files;
    // Every folder in it, itself included, by device and inode: a bind mount or a linked
    // folder shows up here however its path reads.
    QSet<Identity> folders;
    quint64 device = 0;

    explicit FolderTree(const QString &root)
    {
        add(root, QString());
        std::sort(files.begin(), files.end(),
            [](const File &a, const File &b) { return a.relative < b.relative; });
    }

    // The same entries with the same sizes: nothing was added, removed or resized.
    bool sameAs(const FolderTree &other) const
    {
        if (complete != other.complete || files.size() != other.files.size()
            || folders != other.folders)
            return false;
        for (qsizetype i = 0; i < files.size(); ++i)
            if (files.at(i).relative != other.files.at(i).relative
                || files.at(i).size != other.files.at(i).size)
                return false;
        return true;
    }

private:
    void add(const QString &folder, const QString &relative)
    {
        const Entry self = entryOf(folder);
        if (self.kind != Kind::Folder) {
            complete = false;
            return;
        }
        // Another file system mounted inside goes with no folder: it is not the folder's.
        if (device == 0)
            device = self.stamp.device;
        if (self.stamp.device != device) {
            complete = false;
            return;
        }
        folders.insert(identityOf(self.stamp));
        platform::FolderReader reader(FilePathCodec::encode(folder).toStdString());
        if (reader.error()) {
            complete = false;
            return;
        }
        QStringList names;
        while (reader.next())
            names.append(FilePathCodec::decode(reader.name(), qsizetype(reader.nameLength())));
        for (const QString &name : std::as_const(names)) {
            const QString path = folder + QLatin1Char('/') + name;
            const QString inside = relative.isEmpty() ? name : relative + QLatin1Char('/') + name;
            const Entry entry = entryOf(path);
            if (entry.kind == Kind::File)
                files.append(File {inside, path, entry.stamp.size});
            else if (entry.kind == Kind::Folder)
                add(path, inside);
            else
                complete = false;
            if (!complete)
                return;
        }
    }
};

// Whether the open file still has the size and times it had before it was read: a write
// through another handle during the comparison moves them (the change time always).
bool unchangedSince(int fd, const FileStamp &before)
{
    const FileStamp after = FileStamp::ofOpenFile(fd);
    return after.isValid() && after.size == before.size && after.modifiedNs == before.modifiedNs
        && after.changedNs == before.changedNs;
}

// A folder's digest: its files' relative paths and content hashes, in path order.
QByteArray digestOfFiles(QList<QPair<QString, QByteArray>> &files)
{
    std::sort(files.begin(), files.end());
    ContentHash all;
    for (const auto &[relative, digest] : std::as_const(files)) {
        const QByteArray name = relative.toUtf8();
        all.add(name.constData(), size_t(name.size()) + 1);
        all.add(digest.constData(), size_t(digest.size()));
    }
    return all.result();
}

} // namespace

RemovalCheck::Look RemovalCheck::look(
    GroupKind kind, const QStringList &stays, const QString &path, bool everyCopy) const
{
    if (kind == Folders)
        return lookFolder(stays, path, everyCopy);
    return lookFile(stays, path, everyCopy);
}

QStringList RemovalCheck::keptMembers(
    GroupKind kind, const QList<GroupMember> &members, const QSet<QString> &leaving)
{
    QStringList stays;
    for (const GroupMember &groupMember : members) {
        const QString &member = groupMember.path;
        if (kind != Folders) {
            if (!leaving.contains(member))
                stays.append(member);
            continue;
        }
        // A kept folder must keep everything: not one thing in it may go in this batch.
        const QString prefix = member + QLatin1Char('/');
        if (!leaving.contains(member)
            && std::none_of(leaving.begin(), leaving.end(),
                [&prefix](const QString &path) { return path.startsWith(prefix); }))
            stays.append(member);
    }
    return stays;
}

RemovalCheck::Confirmed RemovalCheck::confirm(
    GroupKind kind, const Look &look, const QString &current, bool allowDifferentContent) const
{
    if (kind == Folders)
        return confirmFolder(look, current);
    return confirmFile(kind, look, current, allowDifferentContent);
}

RemovalCheck::Look RemovalCheck::lookFile(
    const QStringList &stays, const QString &path, bool everyCopy) const
{
    Look look;
    look.everyCopy = everyCopy;
    const Entry item = entryOf(path);
    // Already gone: nothing to remove, and nothing lost by saying so.
    if (item.kind == Kind::Missing) {
        look.gone = true;
        return look;
    }
    if (item.kind != Kind::File) {
        look.reason = changedSinceScan;
        return look;
    }
    const FileStamp seen = m_stamps.value(path);
    if (seen.isValid() && (!seen.sameContentStamp(item.stamp) || !seen.sameFile(item.stamp))) {
        look.reason = changedSinceScan;
        return look;
    }
    look.stamp = item.stamp;
    if (everyCopy)
        return look;
    QStringList otherSize;
    QSet<QString> listed;
    for (const QString &keptPath : stays) {
        if (keptPath == path || listed.contains(keptPath))
            continue;
        listed.insert(keptPath);
        const Entry kept = entryOf(keptPath);
        // A regular file (a link is no copy) that is not the item itself: one file under
        // two names, or reached through linked folders, has one device and inode.
        if (kept.kind != Kind::File || kept.stamp.sameFile(item.stamp))
            continue;
        (kept.stamp.size == item.stamp.size ? look.kept : otherSize).append(keptPath);
    }
    look.kept << otherSize;
    if (look.kept.isEmpty())
        look.reason = noKeptCopyLeft;
    return look;
}

RemovalCheck::Confirmed RemovalCheck::confirmFile(
    GroupKind kind, const Look &look, const QString &current, bool allowDifferentContent) const
{
    Confirmed out;
    const int fd = ContentCompare::openRegular(current);
    if (fd < 0) {
        out.reason = changedSinceScan;
        return out;
    }
    // Still the file the look saw: nothing was renamed over it in between.
    const FileStamp now = FileStamp::ofOpenFile(fd);
    out.size = now.size;
    out.modifiedNs = now.modifiedNs;
    if (!now.isValid() || !now.sameFile(look.stamp) || !now.sameContentStamp(look.stamp)) {
        ::close(fd);
        out.reason = changedSinceScan;
        return out;
    }
    if (look.everyCopy) {
        out.digest = ContentHash::ofFd(fd);
        if (out.digest.isEmpty() || !unchangedSince(fd, now))
            out.reason = changedSinceScan;
        ::close(fd);
        return out;
    }
    bool anyKept = false;
    for (const QString &kept : look.kept) {
        switch (ContentCompare::compare(fd, kept, &out.digest)) {
        case ContentCompare::Same:
            // Written to while it was read (through a handle another program holds open):
            // what was compared is no longer what would go.
            if (!unchangedSince(fd, now)) {
                out.reason = changedSinceScan;
                out.digest.clear();
            }
            ::close(fd);
            return out;
        case ContentCompare::Differs:
            anyKept = true;
            break;
        case ContentCompare::ItemUnreadable:
            ::close(fd);
            out.reason = changedSinceScan;
            return out;
        case ContentCompare::KeptUnreadable:
        case ContentCompare::SameFile:
            break;
        }
    }
    if (anyKept && (kind == NamedFiles || kind == SimilarPictures) && allowDifferentContent) {
        out.digest = ContentHash::ofFd(fd);
        if (out.digest.isEmpty() || !unchangedSince(fd, now))
            out.reason = changedSinceScan;
        ::close(fd);
        return out;
    }
    ::close(fd);
    out.reason = !anyKept        ? noKeptCopyLeft
        : kind == IdenticalFiles ? contentDiffers
        : kind == SampledFiles   ? notIdentical
                                 : differentContent;
    return out;
}

RemovalCheck::Look RemovalCheck::lookFolder(
    const QStringList &stays, const QString &entry, bool everyCopy) const
{
    Look look;
    look.everyCopy = everyCopy;
    const Entry item = entryOf(entry);
    if (item.kind == Kind::Missing) {
        look.gone = true;
        return look;
    }
    if (item.kind != Kind::Folder) {
        look.reason = changedSinceScan;
        return look;
    }
    look.stamp = item.stamp;
    if (everyCopy)
        return look;
    const QString itemReal = realPathOf(entry);
    for (const QString &member : stays) {
        if (member == entry)
            continue;
        const Entry kept = entryOf(member);
        const QString keptReal = realPathOf(member);
        // A partner inside the item (or holding it) goes with it, or takes it along.
        if (kept.kind != Kind::Folder || keptReal.isEmpty() || isInside(keptReal, itemReal)
            || isInside(itemReal, keptReal) || kept.stamp.sameFile(item.stamp))
            continue;
        look.kept.append(member);
    }
    if (look.kept.isEmpty())
        look.reason = noKeptCopyLeft;
    return look;
}

RemovalCheck::Confirmed RemovalCheck::confirmFolder(const Look &look, const QString &current) const
{
    Confirmed out;
    const FolderTree item(current);
    const Identity self = identityOf(look.stamp);
    if (!item.folders.contains(self) || !item.complete) {
        out.reason = item.folders.contains(self) ? folderNotCovered : changedSinceScan;
        return out;
    }
    // (relative path, content hash) of every file, sorted, make the folder's digest.
    QList<QPair<QString, QByteArray>> hashes;
    bool anyKept = look.everyCopy;
    bool covered = look.everyCopy;
    for (const QString &keptFolder : look.kept) {
        const FolderTree kept(keptFolder);
        // The kept folder must be another directory, neither the removed one under another
        // path (a bind mount), nor inside it, nor holding it.
        const bool distinct = !kept.folders.isEmpty()
            && !item.folders.contains(*kept.folders.cbegin()) && !kept.folders.contains(self);
        if (!distinct || !kept.complete)
            continue;
        anyKept = true;
        QHash<QString, qsizetype> byRelative;
        QMultiHash<qint64, qsizetype> bySize;
        for (qsizetype i = 0; i < kept.files.size(); ++i) {
            byRelative.insert(kept.files.at(i).relative, i);
            bySize.insert(kept.files.at(i).size, i);
        }
        hashes.clear();
        covered = true;
        for (const FolderTree::File &file : item.files) {
            // The partner of the same place first, then any of the same size.
            QList<qsizetype> partners;
            const qsizetype same = byRelative.value(file.relative, -1);
            if (same >= 0 && kept.files.at(same).size == file.size)
                partners.append(same);
            for (auto it = bySize.constFind(file.size);
                 it != bySize.cend() && it.key() == file.size; ++it)
                if (it.value() != same)
                    partners.append(it.value());
            const int fd = ContentCompare::openRegular(file.path);
            bool matched = false;
            QByteArray digest;
            for (qsizetype partner : std::as_const(partners)) {
                if (fd >= 0
                    && ContentCompare::compare(fd, kept.files.at(partner).path, &digest)
                        == ContentCompare::Same) {
                    matched = true;
                    break;
                }
            }
            if (fd >= 0)
                ::close(fd);
            if (!matched) {
                covered = false;
                break;
            }
            hashes.append({file.relative, digest});
            out.size += file.size;
        }
        if (covered)
            break;
        out.size = 0;
    }
    if (!covered) {
        out.reason = anyKept ? folderNotCovered : noKeptCopyLeft;
        return out;
    }
    // Something added to it while it was compared has no copy anywhere.
    if (!FolderTree(current).sameAs(item)) {
        out.reason = changedSinceScan;
        return out;
    }
    if (look.everyCopy) {
        out.digest = folderDigest(current, &out.size);
        if (out.digest.isEmpty())
            out.reason = changedSinceScan;
        return out;
    }
    out.digest = digestOfFiles(hashes);
    return out;
}

QByteArray RemovalCheck::folderDigest(const QString &folder, qint64 *size)
{
    const FolderTree tree(folder);
    if (!tree.complete || tree.folders.isEmpty())
        return {};
    QList<QPair<QString, QByteArray>> hashes;
    qint64 total = 0;
    for (const FolderTree::File &file : tree.files) {
        const QByteArray digest = ContentHash::ofFile(file.path);
        if (digest.isEmpty())
            return {};
        hashes.append({file.relative, digest});
        total += file.size;
    }
    if (size)
        *size = total;
    return digestOfFiles(hashes);
}
