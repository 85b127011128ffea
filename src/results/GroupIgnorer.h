// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class KvCloudObject;

// "Ignore Group": every member of a group goes onto the ignore list of the preferences
// (a cloud file with its account), which later scans leave out, and the group leaves the
// store.
class GroupIgnorer
{
public:
    static void ignore(const QString &key, bool isCloud, KvCloudObject *cloud);
};
