// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/TFileData.h"

#include "app/FileTypeCatalogue.h"
#include "engine/GroupMember.h"

#include <algorithm>

#include <QCryptographicHash>
#include <QFileInfo>

namespace {

QHash<QString, QSet<QString>> lookupOf(const TFileData::Groups &selected)
{
    QHash<QString, QSet<QString>> lookup;
    lookup.reserve(selected.size());
    for (auto it = selected.cbegin(); it != selected.cend(); ++it)
        lookup.insert(it.key(), QSet<QString>(it->cbegin(), it->cend()));
    return lookup;
}

// The entries of a selection that no protected folder holds.
QStringList unprotected(const QStringList &entries, const ProtectedFolders &folders)
{
    if (folders.isEmpty())
        return entries;
    QStringList open;
    open.reserve(entries.size());
    for (const QString &entry : entries)
        if (!folders.protects(GroupMember::fromEntry(entry).path))
            open.append(entry);
    return open;
}

// The same for every group; groups left with nothing selected drop out.
TFileData::Groups unprotected(const TFileData::Groups &selected, const ProtectedFolders &folders)
{
    if (folders.isEmpty())
        return selected;
    TFileData::Groups open;
    for (auto it = selected.cbegin(); it != selected.cend(); ++it)
        if (QStringList entries = unprotected(it.value(), folders); !entries.isEmpty())
            open.insert(it.key(), entries);
    return open;
}

} // namespace

TFileData::TFileData(QObject *parent) : QObject(parent) { }

TFileData *TFileData::instance()
{
    // Function-local statics are created once, thread-safely.
    static TFileData store;
    return &store;
}

QString TFileData::groupKey(const QString &firstPath)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(firstPath.toUtf8(), QCryptographicHash::Md5).toHex().toUpper());
}

bool TFileData::insertGroup(const QString &key, const QStringList &paths)
{
    QWriteLocker locker(&m_lock);
    ++m_revision;
    m_groups.insert(key, paths);
    return true;
}

void TFileData::insertGroup(
    const QString &key, const QStringList &paths, const QList<FileStamp> &stamps)
{
    QWriteLocker locker(&m_lock);
    ++m_revision;
    m_groups.insert(key, paths);
    for (qsizetype i = 0; i < paths.size() && i < stamps.size(); ++i)
        m_stamps.insert(paths[i], stamps[i]);
}

bool TFileData::replaceGroup(const QString &key, const QStringList &paths)
{
    QWriteLocker locker(&m_lock);
    ++m_revision;
    m_groups.remove(key);
    m_groups.insert(key, paths);
    return true;
}

void TFileData::insertDirGroup(const QString &key, const QList<DirGroupEntry> &entries)
{
    QWriteLocker locker(&m_lock);
    ++m_revision;
    m_dirGroups.insert(key, entries);
}

bool TFileData::setSelected(const QString &key, const QStringList &paths)
{
    QWriteLocker locker(&m_lock);
    ++m_revision;
    const QStringList open = unprotected(paths, m_protected);
    // A selection of protected members only is no selection.
    if (open.isEmpty() && !paths.isEmpty()) {
        m_selected.remove(key);
        m_selectedLookup.remove(key);
        return true;
    }
    m_selected.insert(key, open);
    m_selectedLookup.insert(key, QSet<QString>(open.cbegin(), open.cend()));
    return true;
}

bool TFileData::removeSelected(const QString &key)
{
    QWriteLocker locker(&m_lock);
    ++m_revision;
    m_selectedLookup.remove(key);
    return m_selected.remove(key) > 0;
}

int TFileData::updateSelected(const QString &key, const QString &path, bool add)
{
    QWriteLocker locker(&m_lock);
    if (add && m_protected.protects(GroupMember::fromEntry(path).path))
        return int(m_selected.value(key).size());
    auto it = m_selected.find(key);
    if (it == m_selected.end()) {
        // A group without a selection yet gets one with its first checked member.
        if (!add || (!m_groups.contains(key) && !m_dirGroups.contains(key)))
            return 0;
        it = m_selected.insert(key, {});
        ++m_revision;
    }
    QSet<QString> &lookup = m_selectedLookup[key];
    if (!add) {
        if (lookup.remove(path)) {
            it->removeAll(path);
            ++m_revision;
        }
        if (it->isEmpty()) {
            m_selected.erase(it);
            m_selectedLookup.remove(key);
            return 0;
        }
        return int(it->size());
    }
    if (!lookup.contains(path)) {
        it->append(path);
        lookup.insert(path);
        ++m_revision;
    }
    return int(it->size());
}

bool TFileData::isSelected(const QString &key, const QString &path) const
{
    QReadLocker locker(&m_lock);
    auto it = m_selectedLookup.constFind(key);
    return it != m_selectedLookup.constEnd() && it->contains(path);
}

int TFileData::selectedCount(const QString &key) const
{
    QReadLocker locker(&m_lock);
    return int(m_selected.value(key).size());
}

TFileData::Groups TFileData::imageGroups() const
{
    QReadLocker locker(&m_lock);
    Groups images;
    for (auto it = m_groups.constBegin(); it != m_groups.constEnd(); ++it) {
        if (!it->isEmpty() && isImageFile(it->first()))
            images.insert(it.key(), it.value());
    }
    return images;
}

TFileData::Groups TFileData::groupsFor(const QStringList &keys) const
{
    QReadLocker locker(&m_lock);
    Groups found;
    for (const QString &key : keys) {
        auto it = m_groups.constFind(key);
        if (it != m_groups.constEnd())
            found.insert(key, it.value());
    }
    return found;
}

TFileData::Groups TFileData::groups() const
{
    QReadLocker locker(&m_lock);
    return m_groups;
}

TFileData::DirGroups TFileData::dirGroups() const
{
    QReadLocker locker(&m_lock);
    return m_dirGroups;
}

TFileData::Groups TFileData::selected() const
{
    QReadLocker locker(&m_lock);
    return m_selected;
}

QStringList TFileData::group(const QString &key) const
{
    QReadLocker locker(&m_lock);
    return m_groups.value(key);
}

QList<GroupMember> TFileData::groupMembers(const QString &key) const
{
    QReadLocker locker(&m_lock);
    const QStringList entries = m_groups.value(key);
    QList<GroupMember> members;
    members.reserve(entries.size());
    for (const QString &entry : entries) {
        members.append(GroupMember::fromEntry(entry));
        if (members.constLast().isSimilar())
            members.last().reason = m_matchReasons.value(entry);
    }
    return members;
}

void TFileData::setMatchReason(const QString &entry, const QString &reason)
{
    QWriteLocker locker(&m_lock);
    m_matchReasons.insert(entry, reason);
}

QString TFileData::matchReason(const QString &entry) const
{
    QReadLocker locker(&m_lock);
    return m_matchReasons.value(entry);
}

QStringList TFileData::selectedOf(const QString &key) const
{
    QReadLocker locker(&m_lock);
    return m_selected.value(key);
}

QList<DirGroupEntry> TFileData::dirGroup(const QString &key) const
{
    QReadLocker locker(&m_lock);
    return m_dirGroups.value(key);
}

int TFileData::groupCount() const
{
    QReadLocker locker(&m_lock);
    return int(m_groups.size() + m_dirGroups.size());
}

bool TFileData::isEmpty() const
{
    return groupCount() == 0;
}

bool TFileData::removePath(const QString &key, const QString &path)
{
    QWriteLocker locker(&m_lock);
    ++m_revision;
    auto selected = m_selected.find(key);
    if (selected != m_selected.end() && m_selectedLookup[key].remove(path)) {
        selected->removeAll(path);
        if (selected->isEmpty()) {
            m_selected.erase(selected);
            m_selectedLookup.remove(key);
        }
    }
    auto group = m_groups.find(key);
    if (group == m_groups.end()) {
        // A folder group loses the folder; with one left it is no group any more.
        auto folders = m_dirGroups.find(key);
        if (folders == m_dirGroups.end())
            return false;
        folders->removeIf([&path](const DirGroupEntry &entry) { return entry.folderPath == path; });
        if (folders->size() >= 2)
            return true;
        m_dirGroups.erase(folders);
        m_selected.remove(key);
        m_selectedLookup.remove(key);
        return false;
    }
    group->removeAll(path);
    if (group->size() >= 2)
        return true;
    m_groups.erase(group);
    m_selected.remove(key);
    m_selectedLookup.remove(key);
    return false;
}

bool TFileData::removeGroup(const QString &key)
{
    QWriteLocker locker(&m_lock);
    ++m_revision;
    m_selected.remove(key);
    m_selectedLookup.remove(key);
    m_groupMatches.remove(key);
    const bool folders = m_dirGroups.remove(key) > 0;
    return m_groups.remove(key) > 0 || folders;
}

bool TFileData::removeDirGroup(const QString &key)
{
    QWriteLocker locker(&m_lock);
    ++m_revision;
    m_selected.remove(key);
    m_selectedLookup.remove(key);
    return m_dirGroups.remove(key) > 0;
}

void TFileData::replaceAll(const Groups &groups, const DirGroups &dirGroups, const Groups &selected)
{
    QWriteLocker locker(&m_lock);
    ++m_revision;
    m_groups = groups;
    m_dirGroups = dirGroups;
    m_selected = unprotected(selected, m_protected);
    m_selectedLookup = lookupOf(m_selected);
    m_stamps.clear();
    m_groupMatches.clear();
    m_matchReasons.clear();
}

QStringList TFileData::orderedKeys(
    const Groups &groups, const DirGroups &dirGroups, const QStringList &order)
{
    QStringList keys;
    QSet<QString> placed;
    for (const QString &key : order) {
        if ((groups.contains(key) || dirGroups.contains(key)) && !placed.contains(key)) {
            keys.append(key);
            placed.insert(key);
        }
    }
    QStringList rest = groups.keys();
    const auto byFirstFile = [&groups](const QString &a, const QString &b) {
        return groups.value(a).value(0) < groups.value(b).value(0);
    };
    std::sort(rest.begin(), rest.end(), byFirstFile);
    QStringList restDirs = dirGroups.keys();
    const auto byFirstFolder = [&dirGroups](const QString &a, const QString &b) {
        return dirGroups.value(a).value(0).folderPath < dirGroups.value(b).value(0).folderPath;
    };
    std::sort(restDirs.begin(), restDirs.end(), byFirstFolder);
    for (const QString &key : std::as_const(rest) + std::as_const(restDirs)) {
        if (!placed.contains(key))
            keys.append(key);
    }
    return keys;
}

TFileData::Removable TFileData::removable() const
{
    Groups groups;
    DirGroups folders;
    Stamps stamps;
    ProtectedFolders sheltered;
    {
        QReadLocker locker(&m_lock);
        groups = m_groups;
        folders = m_dirGroups;
        stamps = m_stamps;
        sheltered = m_protected;
    }
    const auto sizeOf = [&stamps](const GroupMember &member) {
        const QString &path = member.path;
        const auto stamp = stamps.constFind(path);
        const qint64 size
            = stamp != stamps.cend() && stamp->isValid() ? stamp->size : FileStamp::of(path).size;
        return std::max<qint64>(0, size);
    };
    Removable totals;
    for (const QStringList &entries : std::as_const(groups)) {
        if (entries.size() < 2)
            continue;
        const QList<GroupMember> members = GroupMember::fromEntries(entries);
        // A protected member is the copy that stays; without one the first stays.
        QList<GroupMember> going;
        for (const GroupMember &member : members)
            if (!sheltered.protects(member.path))
                going.append(member);
        if (going.size() == members.size())
            going.removeFirst();
        totals.count += going.size();
        if (GroupMember::anySimilar(members)) {
            // Similar pictures differ in size: each that could go counts its own.
            for (const GroupMember &member : std::as_const(going))
                totals.bytes += sizeOf(member);
        } else {
            totals.bytes += going.size() * sizeOf(members.first());
        }
    }
    for (QList<DirGroupEntry> entries : std::as_const(folders)) {
        const qsizetype size = entries.size();
        entries.removeIf([&sheltered](const DirGroupEntry &entry) {
            return sheltered.protects(entry.folderPath);
        });
        if (entries.size() == size && !entries.isEmpty())
            entries.removeFirst();
        for (const DirGroupEntry &entry : std::as_const(entries)) {
            totals.count += entry.fileCount;
            totals.bytes += entry.totalSize;
        }
    }
    return totals;
}

void TFileData::clear()
{
    QWriteLocker locker(&m_lock);
    ++m_revision;
    m_groups.clear();
    m_dirGroups.clear();
    m_selected.clear();
    m_selectedLookup.clear();
    m_stamps.clear();
    m_groupMatches.clear();
    m_matchReasons.clear();
    m_scanRoots.clear();
}

void TFileData::setScanRoots(const QStringList &roots)
{
    QWriteLocker locker(&m_lock);
    m_scanRoots = roots;
}

QStringList TFileData::scanRoots() const
{
    QReadLocker locker(&m_lock);
    return m_scanRoots;
}

void TFileData::insertStamp(const QString &path, const FileStamp &stamp)
{
    QWriteLocker locker(&m_lock);
    m_stamps.insert(path, stamp);
}

FileStamp TFileData::stamp(const QString &path) const
{
    QReadLocker locker(&m_lock);
    return m_stamps.value(path);
}

TFileData::Stamps TFileData::stamps() const
{
    QReadLocker locker(&m_lock);
    return m_stamps;
}

void TFileData::setStamps(const Stamps &stamps)
{
    QWriteLocker locker(&m_lock);
    m_stamps = stamps;
}

void TFileData::setGroupMatch(const QString &key, GroupMatch match)
{
    QWriteLocker locker(&m_lock);
    ++m_revision;
    if (match == MatchContent)
        m_groupMatches.remove(key);
    else
        m_groupMatches.insert(key, match);
}

TFileData::GroupMatch TFileData::groupMatch(const QString &key) const
{
    QReadLocker locker(&m_lock);
    return m_groupMatches.value(key, MatchContent);
}

void TFileData::setProtectedFolders(const ProtectedFolders &folders)
{
    QWriteLocker locker(&m_lock);
    ++m_revision;
    m_protected = folders;
    m_selected = unprotected(m_selected, m_protected);
    m_selectedLookup = lookupOf(m_selected);
}

ProtectedFolders TFileData::protectedFolders() const
{
    QReadLocker locker(&m_lock);
    return m_protected;
}
