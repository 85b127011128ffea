// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultFilter.h"

#include "engine/GroupMember.h"

#include <algorithm>

#include <QtConcurrent>

namespace {

bool reachesFloor(const GroupItem &group, int floor)
{
    if (floor <= 0)
        return true;
    int reaching = 0;
    for (const QString &entry : group.files)
        if (ResultFilter::shownSimilarity(GroupMember::fromEntry(entry)) >= floor
            && ++reaching >= 2)
            return true;
    return false;
}

} // namespace

template<typename T>
QList<T> ResultFilter::parallelFilter(
    const QList<T> &source, const std::function<bool(const T &)> &keep)
{
    constexpr qsizetype chunkSize = 1000;
    QList<QFuture<QList<T>>> chunks;
    for (qsizetype begin = 0; begin < source.size(); begin += chunkSize) {
        const qsizetype end = std::min(source.size(), begin + chunkSize);
        chunks << QtConcurrent::run([&source, &keep, begin, end] {
            QList<T> kept;
            for (qsizetype i = begin; i < end; ++i)
                if (keep(source.at(i)))
                    kept.append(source.at(i));
            return kept;
        });
    }
    QList<T> result;
    // Joined in chunk order, so the result keeps the source order.
    for (auto &chunk : chunks)
        result.append(chunk.result());
    return result;
}

template QList<GroupItem> ResultFilter::parallelFilter<GroupItem>(
    const QList<GroupItem> &, const std::function<bool(const GroupItem &)> &);
template QList<ImageItem> ResultFilter::parallelFilter<ImageItem>(
    const QList<ImageItem> &, const std::function<bool(const ImageItem &)> &);

int ResultFilter::shownSimilarity(const GroupMember &member)
{
    if (!member.isSimilar())
        return 100;
    // 0 marks the picture the others were compared with.
    return member.similarity == 0 ? 100 : member.similarity;
}

QList<GroupItem> ResultFilter::groupsOfType(const QList<GroupItem> &all, int type) const
{
    const int floor = m_minSimilarity;
    return parallelFilter<GroupItem>(all,
        [type, floor](const GroupItem &g) { return g.type == type && reachesFloor(g, floor); });
}

QList<GroupItem> ResultFilter::groupsOfTypeAndName(
    const QList<GroupItem> &all, int type, const QString &text) const
{
    const int floor = m_minSimilarity;
    return parallelFilter<GroupItem>(all, [type, &text, floor](const GroupItem &g) {
        return (type < 0 || g.type == type) && g.name.contains(text, Qt::CaseInsensitive)
            && reachesFloor(g, floor);
    });
}

QList<GroupItem> ResultFilter::allGroups(const QList<GroupItem> &all) const
{
    if (m_minSimilarity > 0)
        return groupsOfTypeAndName(all, -1, QString());
    return all;
}

std::function<bool(const ImageItem &)> ResultFilter::showFilter(int mode, int minSimilarity)
{
    switch (mode) {
    case 0:
        return [minSimilarity](
                   const ImageItem &i) { return !i.hidden && i.similarity >= minSimilarity; };
    case 1:
        return [minSimilarity](
                   const ImageItem &i) { return i.checked && i.similarity >= minSimilarity; };
    case 2:
        return [minSimilarity](const ImageItem &i) { return i.similarity >= minSimilarity; };
    default:
        return {};
    }
}
