// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ProtectedFolders.h"

#include "engine/FilePathCodec.h"
#include "engine/GroupMember.h"
#include "platform/FolderReader.h"
#include "platform/MountTable.h"

#include <algorithm>

#include <QDir>
#include <QFileInfo>
#include <QList>
#include <QPair>
#include <QSet>

namespace {

using Identity = QPair<unsigned long long, unsigned long long>;

bool identityOf(const QString &entry, bool followLinks, Identity &identity)
{
    platform::EntryInfo info;
    if (platform::entryInfoOf(FilePathCodec::encode(entry).toStdString(), followLinks, info) != 0
        || info.kind != platform::EntryInfo::Folder || !info.hasIdentity())
        return false;
    identity = {info.device, info.inode};
    return true;
}

// Whether the folder, or any folder below it (links not followed), is one of shielded: a
// protected folder mounted inside it goes with it.
bool holdsAny(const std::string &folder, const QSet<Identity> &shielded)
{
    platform::FolderReader reader(folder);
    platform::EntryInfo info;
    if (reader.error() != 0 || reader.folderInfo(info) != 0)
        return false;
    if (shielded.contains(Identity {info.device, info.inode}))
        return true;
    while (reader.next()) {
        platform::EntryInfo::Kind kind = reader.listedKind();
        if (kind == platform::EntryInfo::Unknown && reader.stat(info) == 0)
            kind = info.kind;
        if (kind == platform::EntryInfo::Folder
            && holdsAny(folder + '/' + std::string(reader.name(), reader.nameLength()), shielded))
            return true;
    }
    return false;
}

// Where folders lie inside their file systems, by the mount table (see MountTable.h).
std::vector<platform::MountPlace> placesOf(const QStringList &folders)
{
    std::vector<std::string> native;
    for (const QString &folder : folders)
        native.push_back(FilePathCodec::encode(folder).toStdString());
    return platform::mountPlacesOf(native);
}

} // namespace

ProtectedFolders::ProtectedFolders(const QStringList &folders)
{
    for (const QString &folder : folders) {
        if (folder.trimmed().isEmpty())
            continue;
        const QString given = normalised(folder);
        m_given.append(given);
        m_lookup.insert(given);
        // The scan may list a member by its real path: a protected folder reached through a
        // link must protect it under either name.
        const QString real = QFileInfo(given).canonicalFilePath();
        if (!real.isEmpty())
            m_lookup.insert(real);
    }
    m_given.sort();
    m_given.removeDuplicates();
    m_sorted = QStringList(m_lookup.cbegin(), m_lookup.cend());
    m_sorted.sort();
}

QString ProtectedFolders::normalised(const QString &folder)
{
    return QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
}

bool ProtectedFolders::protects(const QString &path) const
{
    if (m_lookup.isEmpty() || path.isEmpty())
        return false;
    // Only local members have absolute paths; a cloud entry is never in a local folder.
    if (!QDir::isAbsolutePath(path))
        return false;
    const QString clean = QDir::cleanPath(path);
    return liesIn(clean) || holds(clean);
}

bool ProtectedFolders::protectsEvery(const QStringList &entries) const
{
    return !m_lookup.isEmpty() && !entries.isEmpty()
        && std::all_of(entries.cbegin(), entries.cend(),
            [this](const QString &entry) { return protects(GroupMember::fromEntry(entry).path); });
}

bool ProtectedFolders::protectsOnDisk(const QString &path) const
{
    if (protects(path))
        return true;
    if (m_lookup.isEmpty())
        return false;
    // The entry itself is what goes, not what a link at its place leads to: only its
    // folder is resolved.
    const QFileInfo info(normalised(path));
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    if (!folder.isEmpty() && protects(folder + QLatin1Char('/') + info.fileName()))
        return true;
    // A bind mount shows a protected folder under a path no link resolution leads from:
    // only the folders' identities tell, those above the item and, for a folder, in it,
    // and for a folder inside a protected one mounted elsewhere, the mount table.
    QSet<Identity> shielded;
    for (const QString &given : m_given) {
        Identity identity;
        if (identityOf(given, true, identity))
            shielded.insert(identity);
    }
    if (shielded.isEmpty())
        return false;
    Identity identity;
    if (identityOf(info.absoluteFilePath(), false, identity)
        && holdsAny(FilePathCodec::encode(info.absoluteFilePath()).toStdString(), shielded))
        return true;
    for (QString ancestor = folder; !ancestor.isEmpty();) {
        if (identityOf(ancestor, true, identity) && shielded.contains(identity))
            return true;
        const qsizetype slash = ancestor.lastIndexOf(QLatin1Char('/'));
        if (ancestor == QLatin1String("/") || slash < 0)
            break;
        ancestor.truncate(slash == 0 ? 1 : slash);
    }
    // A bind mount of a folder inside a protected one: the same file system, and inside the
    // protected folder's path on it.
    QStringList real;
    for (const QString &given : m_given) {
        const QString canonical = QFileInfo(given).canonicalFilePath();
        if (!canonical.isEmpty())
            real.append(canonical);
    }
    if (folder.isEmpty() || real.isEmpty())
        return false;
    const std::vector<platform::MountPlace> places = placesOf(
        QStringList {QDir::cleanPath(folder + QLatin1Char('/') + info.fileName())} + real);
    const platform::MountPlace &item = places.front();
    return !item.device.empty()
        && std::any_of(
            places.cbegin() + 1, places.cend(), [&item](const platform::MountPlace &shelter) {
                const std::string &inside = shelter.path;
                return shelter.device == item.device
                    && (item.path == inside || inside == "/"
                        || (item.path.size() > inside.size()
                            && item.path.compare(0, inside.size(), inside) == 0
                            && item.path[inside.size()] == '/'));
            });
}

bool ProtectedFolders::liesIn(const QString &path) const
{
    QString ancestor = path;
    while (!ancestor.isEmpty()) {
        if (m_lookup.contains(ancestor))
            return true;
        const qsizetype slash = ancestor.lastIndexOf(QLatin1Char('/'));
        if (slash < 0)
            break;
        // "/a" ends at the root "/", which is a folder of its own.
        ancestor.truncate(slash == 0 && ancestor.size() > 1 ? 1 : slash);
        if (slash == 0 && ancestor == QLatin1String("/"))
            return m_lookup.contains(ancestor);
    }
    return false;
}

bool ProtectedFolders::holds(const QString &path) const
{
    const QString prefix = path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/');
    const auto next = std::lower_bound(m_sorted.cbegin(), m_sorted.cend(), prefix);
    return next != m_sorted.cend() && next->startsWith(prefix);
}
