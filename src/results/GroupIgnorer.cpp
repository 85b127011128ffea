// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/GroupIgnorer.h"

#include "cloud/KvCloudObject.h"
#include "engine/GroupMember.h"
#include "engine/TFileData.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"

#include <QFileInfo>

void GroupIgnorer::ignore(const QString &key, bool isCloud, KvCloudObject *cloud)
{
    QStringList members = GroupMember::paths(TFileData::instance()->groupMembers(key));
    for (const DirGroupEntry &entry : TFileData::instance()->dirGroup(key))
        members.append(entry.folderPath);
    DFIgnoreListPreferences *prefs = DFPreferences::instance()->ignoreListPreferences();
    QStringList ignored = prefs->IgnorePathFile();
    for (const QString &member : std::as_const(members)) {
        const QString entry = isCloud && cloud
            ? QStringLiteral("%1:%2:%3")
                  .arg(cloud->account(), QFileInfo(member).completeBaseName(), member)
            : member;
        if (!ignored.contains(entry))
            ignored << entry;
    }
    prefs->setIgnorePathFile(ignored);
    DFPreferences::instance()->save();
    TFileData::instance()->removeGroup(key);
}
