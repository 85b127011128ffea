// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/ContentKeyCache.h"
#include "pictures/ImageData.h"
#include "pictures/RobustMatcher.h"

#include <optional>
#include <vector>

#include <QList>

class QThreadPool;

// The robust measure's check, remembered between scans in the picture cache: the verdict
// of each pair it checked, kept with the pair's first picture and the stamp of the second.
// A rescan of unchanged pictures then checks no pair again (and reads no picture for it); a
// picture whose stamp changed loses its verdicts (its own record no longer matches, and the
// stamp kept with its partners does not either). What the check needs of a picture is not
// kept: at some 32 KB a picture it would make the cache grow with the collection, and a
// new pair's pictures decode at a fraction of their size anyway.
class RobustCheckCache
{
public:
    // Stamps every picture and looks up the verdicts kept with them.
    RobustCheckCache(ContentKeyCache &cache, const QList<ImageData> &images, QThreadPool *pool);

    // The kept verdict of a pair (filling its check fields), if both pictures are unchanged.
    std::optional<bool> recall(RobustMatcher::Pair &pair) const;
    // Keeps the verdicts of the pairs the matcher checked, for the pictures whose stamps
    // have not changed since they were taken.
    void store(const RobustMatcher &matcher, qint64 readNs);

    int recalled() const { return m_recalled.load(); }

private:
    struct Verdict
    {
        ContentKeyCache::Stamp other;
        RobustMatcher::Pair pair;
    };
    bool unchanged(int k) const;

    ContentKeyCache &m_cache;
    const QList<ImageData> &m_images;
    // The stamp of each picture, as the run began.
    std::vector<ContentKeyCache::Stamp> m_stamps;
    std::vector<ContentKeyCache::Picture> m_verdictRecords;
    std::vector<std::vector<Verdict>> m_verdicts;
    mutable std::atomic_int m_recalled {0};
};
