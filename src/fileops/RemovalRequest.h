// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/ProtectedFolders.h"
#include "engine/TFileData.h"

#include <QSet>
#include <QString>
#include <QStringList>

// Everything one batch removal works from: the method, the groups and their selection as
// the store holds them when the batch starts, and what the scan saw of each file.
struct RemovalRequest
{
    int method = 0;
    QString targetFolder;
    // A move recreates each item's folders below the scanned folder that holds it under
    // the target folder, so that moved files keep their context.
    bool keepStructure = false;
    QStringList scanRoots;
    // Lets a group lose every copy when its whole membership is selected; otherwise the
    // first member in group order stays.
    bool allowAllCopies = false;
    // Lets a member of a group of similar pictures or of files sharing a name go although
    // its content differs from every copy that stays (such groups differ by design; the
    // user has said yes to that).
    bool allowDifferentContent = false;
    // Checks every item and reports what would happen, removing nothing.
    bool dryRun = false;

    TFileData::Groups groups;
    TFileData::DirGroups dirGroups;
    TFileData::Groups selected;
    TFileData::Stamps stamps;
    QSet<QString> nameGroups;
    // Groups the sampled mode found: their members may differ outside the parts it read.
    QSet<QString> sampledGroups;
    // Nothing in these goes, whatever the selection says; their members count as copies
    // that stay.
    ProtectedFolders protectedFolders;

    // Why the batch cannot start at all, before anything moves (empty: it can): a target
    // folder that is a file, or a selected folder that holds the target folder.
    QString refusal() const;
    // The folder a move puts the item at path into: the target folder, or with the
    // structure kept, the item's folder relative to the innermost scanned folder holding
    // it below the target (an item outside every scanned folder keeps its whole path).
    QString folderFor(const QString &path) const;

    // The store's current groups, selection, stamps and protected folders.
    static RemovalRequest fromStore(int method, const QString &targetFolder);
};
