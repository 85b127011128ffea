// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/RemovalRequest.h"

RemovalRequest RemovalRequest::fromStore(int method, const QString &targetFolder)
{
    const TFileData *store = TFileData::instance();
    RemovalRequest request;
    request.method = method;
    request.targetFolder = targetFolder;
    request.groups = store->groups();
    request.dirGroups = store->dirGroups();
    request.selected = store->selected();
    request.stamps = store->stamps();
    for (auto it = request.groups.cbegin(); it != request.groups.cend(); ++it)
        if (store->groupMatch(it.key()) == TFileData::MatchName)
            request.nameGroups.insert(it.key());
    return request;
}
