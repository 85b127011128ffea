// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/ContentKeyCache.h"
#include "pictures/ImageData.h"
#include "pictures/RobustMatcher.h"

#include <optional>
#include <vector>

#include <QList>

class QThreadPool;

// The robust measure's check, remembered between scans in the picture cache: what the
// check needs of each picture (its key points and small grey picture), and the verdict of
// each pair it checked, kept with the picture of the pair's first member and the stamp of
// the second. A rescan of unchanged pictures then reads no picture and checks no pair again;
// a picture whose stamp changed loses both (its own records no longer match, and the
// stamp kept with its partners does not either).
class RobustCheckCache
{
public:
    // Stamps every picture and looks up both kinds of record.
    RobustCheckCache(ContentKeyCache &cache, const QList<ImageData> &images, QThreadPool *pool);

    // What the check needs of each picture, packed, by picture (empty where none is kept).
    std::vector<cv::Mat> takePictures();
    // The kept verdict of a pair (filling its check fields), if both pictures are unchanged.
    std::optional<bool> recall(RobustMatcher::Pair &pair) const;
    // Keeps what the matcher prepared and checked, for the pictures whose stamps have not
    // changed since they were taken.
    void store(RobustMatcher &matcher, qint64 readNs);

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
    std::vector<ContentKeyCache::Picture> m_pictures;
    std::vector<ContentKeyCache::Picture> m_verdictRecords;
    std::vector<std::vector<Verdict>> m_verdicts;
    mutable std::atomic_int m_recalled {0};
};
