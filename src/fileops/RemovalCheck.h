// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/FileStamp.h"
#include "engine/GroupMember.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

// The checks that decide whether an item may go, in two steps around the moment of acting,
// so that nothing goes on the word of a scan, a cache or an earlier read:
// - look(), before anything is done: the item still has the size, modification time and
//   identity the scan saw, and members of its group that stay (not removed in this batch)
//   exist as separate regular files or folders;
// - confirm(), on the item under the private name it was given for the act (or its own
//   name in a dry run): it is still the file the look saw, and its whole content, read
//   now, equals that of one of those kept copies, read now too. A folder's every file must
//   equal a file of a kept folder that is another directory, neither inside the removed
//   one nor holding it.
// Similar pictures and files sharing a name differ by design: such a member goes only when
// it equals a kept copy, or when the caller allows different content.
class RemovalCheck
{
public:
    // Reasons an item is kept, as the user reads them.
    static const QString changedSinceScan;
    static const QString noKeptCopyLeft;
    static const QString contentDiffers;
    static const QString differentContent;
    static const QString notIdentical;
    static const QString folderNotCovered;
    static const QString inProtectedFolder;

    // SampledFiles: found alike by parts of their content only, meant to be identical.
    enum GroupKind { IdenticalFiles, NamedFiles, SimilarPictures, Folders, SampledFiles };

    // What the look before the act found.
    struct Look
    {
        // Not empty: the item stays, for this reason.
        QString reason;
        // Nothing is there any more: nothing to do.
        bool gone = false;
        // The item as seen now: size, times, device and inode (only the latter two for a
        // folder).
        FileStamp stamp;
        // The members that stay, to compare with; copies of the item's size first.
        QStringList kept;
        bool everyCopy = false;
    };

    // The item as confirmed at the moment of acting.
    struct Confirmed
    {
        QString reason;
        // The item's content: its ContentHash, for a folder the hash of its files' relative
        // paths and hashes.
        QByteArray digest;
        qint64 size = 0;
        qint64 modifiedNs = 0;
    };

    explicit RemovalCheck(const QHash<QString, FileStamp> &stamps) : m_stamps(stamps) { }

    // stays: the paths of the members of the item's group (files or folders) that this
    // batch leaves in place, as keptMembers() gives them; everyCopy: the caller allows this
    // group to lose every copy, so nothing needs to stay.
    Look look(GroupKind kind, const QStringList &stays, const QString &path,
        bool everyCopy = false) const;
    // The paths of the members of a group that stay: not removed by the batch (leaving:
    // every path and folder it removes in any group), and for folders nothing in them
    // removed either.
    static QStringList keptMembers(
        GroupKind kind, const QList<GroupMember> &members, const QSet<QString> &leaving);
    // current: where the item is now.
    Confirmed confirm(
        GroupKind kind, const Look &look, const QString &current, bool allowDifferentContent) const;

    // The digest confirm() gives a folder, for a restore's check of what it puts back;
    // empty when the folder cannot be read whole.
    static QByteArray folderDigest(const QString &folder, qint64 *size = nullptr);

private:
    Look lookFile(const QStringList &stays, const QString &path, bool everyCopy) const;
    Look lookFolder(const QStringList &stays, const QString &entry, bool everyCopy) const;
    Confirmed confirmFile(
        GroupKind kind, const Look &look, const QString &current, bool allowDifferentContent) const;
    Confirmed confirmFolder(const Look &look, const QString &current) const;

    QHash<QString, FileStamp> m_stamps;
};
