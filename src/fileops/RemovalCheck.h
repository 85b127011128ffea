// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/FileStamp.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

// The checks made just before an item is removed, so that nothing goes on the word of a
// scan that the disk no longer bears out:
// - the item still has the size, modification time and identity the scan saw;
// - a member of its group that stays (not removed in this batch) still exists, is a
//   regular file, is not the item under another name (hard link) and does not lead to it
//   through links;
// - in a group of identical files, the item's whole content still equals such a kept
//   copy's (the scan's sampled key is no proof);
// - a folder goes only while a kept partner folder exists that holds a same-content copy
//   of everything in it, sub-folders and hidden files included.
// A kept copy's content is read once per batch, however many items it vouches for.
class RemovalCheck
{
public:
    // Reasons an item is kept, as the user reads them.
    static const QString changedSinceScan;
    static const QString noKeptCopyLeft;
    static const QString contentDiffers;
    static const QString folderNotCovered;

    enum GroupKind { IdenticalFiles, NamedFiles, SimilarPictures, Folders };

    explicit RemovalCheck(const QHash<QString, FileStamp> &stamps) : m_stamps(stamps) { }

    // Empty when entry may go now, else the reason it stays. members: the group's entries
    // (paths, tagged paths for similar pictures, folders); leaving: every path (untagged)
    // and folder the whole batch removes, in any group; everyCopy: the caller allows this
    // group to lose every copy, so only the item's own stamp is checked.
    QString check(GroupKind kind, const QStringList &members, const QString &entry,
        const QSet<QString> &leaving, bool everyCopy = false);

private:
    QString checkFile(GroupKind kind, const QStringList &members, const QString &entry,
        const QSet<QString> &leaving, bool everyCopy);
    QString checkFolder(const QStringList &members, const QString &entry,
        const QSet<QString> &leaving, bool everyCopy);
    QByteArray keptHash(const QString &path);
    // Content digests of every file below a kept folder (empty set and false when some
    // entry cannot be read).
    const QSet<QByteArray> *keptFolderContent(const QString &folder);

    QHash<QString, FileStamp> m_stamps;
    QHash<QString, QByteArray> m_keptHashes;
    QHash<QString, QSet<QByteArray>> m_keptFolders;
    QSet<QString> m_unreadableFolders;
};
