// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "results/GroupItem.h"

#include <QList>
#include <QString>
#include <QVariant>

class KvCloudObject;

// Makes the group list's rows out of the result store's groups: name, category, member
// count, selected count and size, from the disk or from a cloud listing.
class GroupBuilder
{
public:
    // One property of a listed cloud file (its path as the group holds it, similar tag
    // and all); empty without a cloud source or for a file it does not know.
    static QVariant cloudProperty(KvCloudObject *cloud, const QString &entry, const QString &name);

    // Every group of the store, with the sums of all groups. Safe on any thread: it reads
    // copies of the store's tables.
    static QList<GroupItem> buildAll(
        bool isCloud, KvCloudObject *cloud, qint64 &totalSize, int &selectedCount);
    // One local group as the store holds it now.
    static GroupItem buildFromStore(const QString &key);
    // Count, first member, selected count and size of a group that lost members.
    static void refreshAfterRemoval(GroupItem &group);
};
