// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/KeyRuns.h"

#include <algorithm>

void KeyRuns::group(std::vector<Keyed> &items, std::vector<Range> &out)
{
    std::sort(items.begin(), items.end(), [](const Keyed &a, const Keyed &b) {
        return a.key != b.key ? a.key < b.key : a.seq < b.seq;
    });
    out.clear();
    for (quint32 b = 0; b < quint32(items.size());) {
        quint32 e = b + 1;
        while (e < quint32(items.size()) && items[e].key == items[b].key)
            ++e;
        out.push_back(Range {b, e});
        b = e;
    }
    std::sort(out.begin(), out.end(), [&items](const Range &a, const Range &b) {
        return items[a.begin].seq < items[b.begin].seq;
    });
}
