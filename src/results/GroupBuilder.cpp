// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/GroupBuilder.h"

#include "app/FileTypeCatalogue.h"
#include "cloud/KvCloudObject.h"
#include "engine/FileStamp.h"
#include "engine/GroupMember.h"
#include "engine/TFileData.h"

#include <algorithm>
#include <atomic>

#include <QFileInfo>
#include <QtConcurrent>

namespace {

struct GroupSource
{
    TFileData::Groups groups;
    TFileData::Groups selected;
    TFileData::DirGroups dirGroups;
    bool isCloud = false;
    KvCloudObject *cloud = nullptr;
};

GroupItem buildGroup(const GroupSource &source, const QString &key)
{
    GroupItem item;
    item.key = key;
    // A folder group's members are its folders.
    const auto folders = source.dirGroups.constFind(key);
    if (folders != source.dirGroups.cend() && !source.groups.contains(key))
        for (const DirGroupEntry &entry : folders.value())
            item.files.append(entry.folderPath);
    else
        item.files = source.groups.value(key);
    const QList<GroupMember> members = GroupMember::fromEntries(item.files);
    item.count = int(members.size());
    item.firstFile = members.isEmpty() ? QString() : members.first().path;
    item.selectedCount = int(source.selected.value(key).size());
    if (source.isCloud) {
        const auto property = [&](const char *name) {
            return GroupBuilder::cloudProperty(
                source.cloud, item.firstFile, QString::fromLatin1(name));
        };
        item.name = property("name").toString();
        item.totalSize = property("size").toLongLong() * item.count;
        item.type = categoryOfMimeType(property("mimeType").toString());
        return item;
    }
    const QFileInfo info(item.firstFile);
    item.name = info.fileName();
    if (!info.exists()) {
        item.type = CategoryOthers;
        item.totalSize = 0;
    } else if (info.isDir()) {
        item.type = CategoryFolders;
        for (const DirGroupEntry &entry : source.dirGroups.value(key))
            item.totalSize += entry.totalSize;
    } else if (GroupMember::anySimilar(members)) {
        // Similar pictures differ in size: each is counted as it is.
        item.type = getFileType(info.suffix());
        for (const GroupMember &member : members)
            item.totalSize += std::max<qint64>(0, FileStamp::of(member.path).size);
    } else {
        item.type = getFileType(info.suffix());
        item.totalSize = info.size() * item.count;
    }
    return item;
}

} // namespace

QVariant GroupBuilder::cloudProperty(
    KvCloudObject *cloud, const QString &entry, const QString &name)
{
    if (!cloud)
        return {};
    const QString value = cloud->getCFP(GroupMember::fromEntry(entry).path, name);
    return value.isEmpty() ? QVariant() : QVariant(value);
}

QList<GroupItem> GroupBuilder::buildAll(
    bool isCloud, KvCloudObject *cloud, qint64 &totalSize, int &selectedCount)
{
    GroupSource source;
    TFileData *store = TFileData::instance();
    source.groups = store->groups();
    source.selected = store->selected();
    source.dirGroups = store->dirGroups();
    source.isCloud = isCloud;
    source.cloud = cloud;
    // A group whose every member is protected offers nothing to remove: it is not shown.
    const ProtectedFolders sheltered = store->protectedFolders();
    QStringList keys;
    for (auto it = source.groups.cbegin(); it != source.groups.cend(); ++it)
        if (!sheltered.protectsEvery(it.value()))
            keys.append(it.key());
    for (auto it = source.dirGroups.cbegin(); it != source.dirGroups.cend(); ++it) {
        if (source.groups.contains(it.key()))
            continue;
        QStringList folders;
        for (const DirGroupEntry &entry : it.value())
            folders.append(entry.folderPath);
        if (!sheltered.protectsEvery(folders))
            keys.append(it.key());
    }

    std::atomic<qint64> sizeTotal {0};
    std::atomic<int> selectedTotal {0};
    auto map = [&source, &sizeTotal, &selectedTotal](const QString &key) {
        GroupItem item = buildGroup(source, key);
        sizeTotal.fetch_add(item.totalSize, std::memory_order_relaxed);
        selectedTotal.fetch_add(item.selectedCount, std::memory_order_relaxed);
        return item;
    };
    auto reduce = [](QList<GroupItem> &result, const GroupItem &item) { result.append(item); };
    QList<GroupItem> groups = QtConcurrent::blockingMappedReduced<QList<GroupItem>>(keys,
        std::function<GroupItem(const QString &)>(map),
        std::function<void(QList<GroupItem> &, const GroupItem &)>(reduce),
        QtConcurrent::OrderedReduce);
    totalSize = sizeTotal.load();
    selectedCount = selectedTotal.load();
    return groups;
}

GroupItem GroupBuilder::buildFromStore(const QString &key)
{
    TFileData *store = TFileData::instance();
    GroupSource source;
    source.selected.insert(key, store->selectedOf(key));
    const QList<DirGroupEntry> folders = store->dirGroup(key);
    if (folders.isEmpty())
        source.groups.insert(key, store->group(key));
    else
        source.dirGroups.insert(key, folders);
    return buildGroup(source, key);
}

void GroupBuilder::refreshAfterRemoval(GroupItem &group)
{
    const QList<GroupMember> members = GroupMember::fromEntries(group.files);
    group.count = int(members.size());
    group.firstFile = members.first().path;
    // The store has already let the member go, with its selection.
    group.selectedCount = TFileData::instance()->selectedCount(group.key);
    const bool similar = GroupMember::anySimilar(members);
    const QFileInfo first(group.firstFile);
    const QList<DirGroupEntry> folders = TFileData::instance()->dirGroup(group.key);
    if (!folders.isEmpty()) {
        group.totalSize = 0;
        for (const DirGroupEntry &entry : folders)
            group.totalSize += entry.totalSize;
    } else if (similar) {
        group.totalSize = 0;
        for (const GroupMember &member : members)
            group.totalSize += std::max<qint64>(0, FileStamp::of(member.path).size);
    } else if (first.isFile()) {
        group.totalSize = first.size() * group.count;
    }
}
