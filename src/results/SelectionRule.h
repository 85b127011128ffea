// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class KvCloudObject;

// A selection rule of the selection menu applied to every group of the store, folder
// groups included, with the priorities of the preferences.
class SelectionRule
{
public:
    // rule: a GroupItemAutoSelector rule. Shows the wait cursor while it runs.
    static void applyToAll(int rule, bool isCloud, KvCloudObject *cloud);
};
