// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/DirGroupEntry.h"
#include "engine/FileStamp.h"
#include "engine/GroupMember.h"
#include "engine/ProtectedFolders.h"

#include <atomic>

#include <QHash>
#include <QObject>
#include <QReadWriteLock>
#include <QSet>
#include <QStringList>

// The process-wide store of a scan's results: groups of identical (or similar) files
// under their group key, groups of duplicate folders, and the selected (to be removed)
// paths of each group. One read-write lock guards the three tables: readers take it
// shared, every change takes it exclusively.
//
// The protected folders live here too, under the same lock: a member inside one (see
// ProtectedFolders) is never part of a selection, whoever hands it in.
class TFileData : public QObject
{
    Q_OBJECT
public:
    using Groups = QHash<QString, QStringList>;
    using DirGroups = QHash<QString, QList<DirGroupEntry>>;
    using Stamps = QHash<QString, FileStamp>;
    // What the members of a file group were found to share: their whole content (the
    // default), only their name (the name mode), or the parts of their content the sampled
    // mode reads. Only the first is verified: the others may hold different files.
    enum GroupMatch : int { MatchContent = 0, MatchName = 1, MatchSampled = 2 };

    static TFileData *instance();

    // Group key: upper-case hexadecimal MD5 of the UTF-8 bytes of the first member.
    static QString groupKey(const QString &firstPath);

    bool insertGroup(const QString &key, const QStringList &paths);
    // The group with the stamp of each member (stamps[i] of paths[i]), under one lock.
    void insertGroup(const QString &key, const QStringList &paths, const QList<FileStamp> &stamps);
    bool replaceGroup(const QString &key, const QStringList &paths);
    void insertDirGroup(const QString &key, const QList<DirGroupEntry> &entries);

    // Protected members are left out of paths.
    bool setSelected(const QString &key, const QStringList &paths);
    bool removeSelected(const QString &key);
    // Adds path to (or takes it from) the group's selection, starting one where the group
    // has none; returns how many of the group are selected. A protected path is never
    // added.
    int updateSelected(const QString &key, const QString &path, bool add);
    bool isSelected(const QString &key, const QString &path) const;
    int selectedCount(const QString &key) const;

    Groups imageGroups() const;
    Groups groupsFor(const QStringList &keys) const;

    // Copies for readers (read lock).
    Groups groups() const;
    DirGroups dirGroups() const;
    Groups selected() const;
    QStringList group(const QString &key) const;
    // The same group, each member as its path and similarity.
    QList<GroupMember> groupMembers(const QString &key) const;
    QStringList selectedOf(const QString &key) const;
    QList<DirGroupEntry> dirGroup(const QString &key) const;
    int groupCount() const;
    bool isEmpty() const;

    // Removes one path from its group and selection after the file was deleted or moved.
    // A group left with fewer than two members is dropped. Returns whether the group
    // still exists afterwards.
    bool removePath(const QString &key, const QString &path);
    // A group of files or of folders, with its selection.
    bool removeGroup(const QString &key);
    bool removeDirGroup(const QString &key);
    // The keys of groups and dirGroups: those listed in order first (a page's order), then
    // the file groups and then the folder groups by their first member, so that what is
    // written from them does not depend on hash order.
    static QStringList orderedKeys(
        const Groups &groups, const DirGroups &dirGroups, const QStringList &order = {});
    // Replaces all three tables at once (opening a project); protected members are left
    // out of the selection.
    void replaceAll(const Groups &groups, const DirGroups &dirGroups, const Groups &selected);

    // The file stamps the scan saw, per member path (absent for members it never stamped).
    void insertStamp(const QString &path, const FileStamp &stamp);
    FileStamp stamp(const QString &path) const;
    Stamps stamps() const;
    void setStamps(const Stamps &stamps);
    // Why each similar picture was grouped, by its entry (see GroupMember::reason).
    void setMatchReason(const QString &entry, const QString &reason);
    QString matchReason(const QString &entry) const;
    void setGroupMatch(const QString &key, GroupMatch match);
    GroupMatch groupMatch(const QString &key) const;
    // The folders the scan started from, as it was given them: a move that keeps the
    // folder structure places each item relative to the one that holds it.
    void setScanRoots(const QStringList &roots);
    QStringList scanRoots() const;
    // Empties the results; the protected folders are the user's and stay.
    void clear();

    // Replaces the protected folders and drops what they protect from the selection.
    void setProtectedFolders(const ProtectedFolders &folders);
    ProtectedFolders protectedFolders() const;
    // The copies that could go (every member of a group but the first; for a folder
    // group the files of every folder but the first; where a group has protected members,
    // every member but those) and their bytes, as a scan counts them. Sizes come from the stamps
    // the scan kept, else from the disk.
    struct Removable
    {
        qint64 count = 0;
        qint64 bytes = 0;
    };
    Removable removable() const;
    // Grows with every change of the groups, their selection or their kind: a result
    // whose revision is the one saved has not changed since.
    quint64 revision() const { return m_revision.load(); }

    QReadWriteLock &lock() { return m_lock; }

private:
    explicit TFileData(QObject *parent = nullptr);

    mutable QReadWriteLock m_lock;
    Groups m_groups;
    DirGroups m_dirGroups;
    Groups m_selected;
    // The same selection as sets, so that asking after one member of a large group does
    // not read the whole list.
    QHash<QString, QSet<QString>> m_selectedLookup;
    Stamps m_stamps;
    std::atomic<quint64> m_revision {0};
    // Groups whose match is not MatchContent.
    QHash<QString, GroupMatch> m_groupMatches;
    QHash<QString, QString> m_matchReasons;
    QStringList m_scanRoots;
    ProtectedFolders m_protected;
};
