// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QtGlobal>

// The duplicate finder's grouping of files by content key: the 64-bit digests are grouped
// by sorting, with no allocation per file or key.
class KeyRuns
{
public:
    struct Keyed
    {
        quint64 key;
        quint32 seq;
        quint32 file;
    };
    struct Range
    {
        quint32 begin;
        quint32 end;
    };

    // Sorts items by key (then arrival) and lists the runs of one key in first-seen order.
    static void group(std::vector<Keyed> &items, std::vector<Range> &out);
};
