// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/GroupMember.h"
#include "results/GroupItem.h"
#include "results/ImageItem.h"

#include <functional>

#include <QList>
#include <QString>

// Which rows of the result lists are shown: the groups of a category, of a part of the
// name and at the similarity floor, and the files of the open group by the show mode.
// It picks from the master lists it is given; the model keeps the lists and the rows.
class ResultFilter
{
public:
    // The similarity floor of the group filters: a group takes part only while two of its
    // members reach it (identical copies and the picture the others were compared with
    // count as 100). 0: no floor.
    void setMinimumSimilarity(int percent) { m_minSimilarity = percent; }

    QList<GroupItem> groupsOfType(const QList<GroupItem> &all, int type) const;
    // A category (-1 for any) and a part of the name.
    QList<GroupItem> groupsOfTypeAndName(
        const QList<GroupItem> &all, int type, const QString &text) const;
    // Every group that the floor lets through (the whole list without a floor).
    QList<GroupItem> allGroups(const QList<GroupItem> &all) const;

    // The files a show mode keeps (0: not hidden, 1: selected, 2: all), each at
    // minSimilarity or above; empty for an unknown mode.
    static std::function<bool(const ImageItem &)> showFilter(int mode, int minSimilarity);

    // A member entry's similarity as the page shows and filters it.
    static int shownSimilarity(const GroupMember &member);

    // Parallel filter in chunks of 1000 that keeps the source order.
    template<typename T>
    static QList<T> parallelFilter(
        const QList<T> &source, const std::function<bool(const T &)> &keep);

private:
    int m_minSimilarity = 0;
};
