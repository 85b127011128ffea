// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/SelectionRule.h"

#include "engine/GroupItemAutoSelector.h"
#include "engine/TFileData.h"
#include "preferences/DFPreferences.h"
#include "preferences/DFSelectionPreferences.h"
#include "results/TImageModel.h"

#include <QApplication>

void SelectionRule::applyToAll(int rule, bool isCloud, KvCloudObject *cloud)
{
    const TFileData::Groups groups = TFileData::instance()->groups();
    QList<QPair<QString, QStringList>> pairs;
    pairs.reserve(groups.size());
    for (auto it = groups.cbegin(); it != groups.cend(); ++it)
        pairs.append({it.key(), it.value()});
    // Folder groups follow the rule too: their members are their folders.
    const TFileData::DirGroups folders = TFileData::instance()->dirGroups();
    for (auto it = folders.cbegin(); it != folders.cend(); ++it) {
        QStringList paths;
        for (const DirGroupEntry &entry : it.value())
            paths.append(entry.folderPath);
        pairs.append({it.key(), paths});
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    CloudPropertyReader reader;
    if (isCloud) {
        reader = [cloud](const QString &entry, const QString &name) {
            return TImageModel::cloudProperty(cloud, entry, name);
        };
    }
    GroupItemAutoSelector::autoSelectAllEx(
        pairs, rule, reader, DFPreferences::instance()->selectionPreferences()->mapPriority());
    QApplication::restoreOverrideCursor();
}
