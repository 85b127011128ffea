// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/RobustCheckCache.h"

#include "engine/FileStamp.h"
#include "pictures/BackgroundWork.h"

#include <cstring>

#include <QtConcurrent>

namespace {

// The cache's measure number of the verdicts of a picture's pairs (its signature is 4; 5
// was never used outside development and stays free).
constexpr int kVerdictMeasure = 6;

// One kept verdict: the partner's stamp, the meeting and the outcome.
struct Stored
{
    quint64 device;
    quint64 inode;
    qint64 size;
    qint64 modifiedNs;
    qint64 changedNs;
    qint32 variant;
    qint32 distance;
    qint32 inliers;
    qint32 agreement;
    qint32 flags;
    qint32 unused;
};
enum Flags { VariantOfA = 1, Same = 2, AlignedByHash = 4 };

Stored storedOf(const ContentKeyCache::Stamp &other, const RobustMatcher::Pair &pair)
{
    return Stored {other.device, other.inode, other.size, other.modifiedNs, other.changedNs,
        pair.variant, pair.distance, pair.inliers, pair.agreement,
        (pair.variantOfA ? VariantOfA : 0) | (pair.passed ? Same : 0)
            | (pair.alignedByHash ? AlignedByHash : 0),
        0};
}

ContentKeyCache::Stamp stampOf(const QString &path)
{
    const FileStamp file = FileStamp::of(path);
    return ContentKeyCache::Stamp {
        file.device, file.inode, file.size, file.modifiedNs, file.changedNs};
}

} // namespace

RobustCheckCache::RobustCheckCache(
    ContentKeyCache &cache, const QList<ImageData> &images, QThreadPool *pool)
    : m_cache(cache)
    , m_images(images)
    , m_verdictRecords(size_t(images.size()))
    , m_verdicts(size_t(images.size()))
{
    QtConcurrent::blockingMap(pool, m_verdictRecords, [&](ContentKeyCache::Picture &record) {
        BackgroundWork::lower();
        record.stamp = stampOf(images.at(qsizetype(&record - m_verdictRecords.data())).path);
        record.measure = kVerdictMeasure;
    });
    m_stamps.reserve(m_verdictRecords.size());
    for (const ContentKeyCache::Picture &record : m_verdictRecords)
        m_stamps.push_back(record.stamp);
    m_cache.lookupPictures(m_verdictRecords);
    for (size_t k = 0; k < m_verdictRecords.size(); ++k) {
        ContentKeyCache::Picture &record = m_verdictRecords[k];
        if (!record.found || record.data.size() % qsizetype(sizeof(Stored)) != 0)
            continue;
        const qsizetype count = record.data.size() / qsizetype(sizeof(Stored));
        for (qsizetype i = 0; i < count; ++i) {
            Stored stored;
            std::memcpy(
                &stored, record.data.constData() + i * qsizetype(sizeof(Stored)), sizeof(Stored));
            Verdict verdict;
            verdict.other = ContentKeyCache::Stamp {
                stored.device, stored.inode, stored.size, stored.modifiedNs, stored.changedNs};
            verdict.pair.variant = stored.variant;
            verdict.pair.distance = stored.distance;
            verdict.pair.inliers = stored.inliers;
            verdict.pair.agreement = stored.agreement;
            verdict.pair.variantOfA = stored.flags & VariantOfA;
            verdict.pair.passed = stored.flags & Same;
            verdict.pair.alignedByHash = stored.flags & AlignedByHash;
            verdict.pair.checked = true;
            m_verdicts[k].push_back(verdict);
        }
        record.data.clear();
    }
}

std::optional<bool> RobustCheckCache::recall(RobustMatcher::Pair &pair) const
{
    // Kept under the pair's first picture; the order of the pictures may have changed since,
    // so the second picture's verdicts are looked at too, seen from the other side.
    for (const bool fromA : {true, false}) {
        const int owner = fromA ? pair.a : pair.b;
        const int other = fromA ? pair.b : pair.a;
        if (!m_verdictRecords[size_t(owner)].found)
            continue;
        for (const Verdict &verdict : m_verdicts[size_t(owner)]) {
            const bool variantOfA = fromA ? verdict.pair.variantOfA : !verdict.pair.variantOfA;
            if (!(verdict.other == m_stamps[size_t(other)]) || verdict.pair.variant != pair.variant
                || variantOfA != pair.variantOfA || verdict.pair.distance != pair.distance)
                continue;
            pair.checked = true;
            pair.inliers = verdict.pair.inliers;
            pair.agreement = verdict.pair.agreement;
            pair.alignedByHash = verdict.pair.alignedByHash;
            pair.passed = verdict.pair.passed;
            m_recalled.fetch_add(1);
            return verdict.pair.passed;
        }
    }
    return std::nullopt;
}

bool RobustCheckCache::unchanged(int k) const
{
    const ContentKeyCache::Stamp &before = m_stamps[size_t(k)];
    return before.size >= 0 && stampOf(m_images.at(k).path) == before;
}

void RobustCheckCache::store(const RobustMatcher &matcher, qint64 readNs)
{
    std::vector<char> same(m_stamps.size(), -1);
    const auto isUnchanged = [&](int k) {
        if (same[size_t(k)] < 0)
            same[size_t(k)] = unchanged(k) ? 1 : 0;
        return same[size_t(k)] == 1;
    };
    // The verdicts of this run's checks join those kept with the pair's first picture.
    bool any = false;
    for (const RobustMatcher::Pair &pair : matcher.checkedPairs()) {
        if (!isUnchanged(pair.a) || !isUnchanged(pair.b))
            continue;
        ContentKeyCache::Picture &record = m_verdictRecords[size_t(pair.a)];
        const ContentKeyCache::Stamp &other = m_stamps[size_t(pair.b)];
        const Stored stored = storedOf(other, pair);
        if (!record.fresh) {
            // Starts from the verdicts kept before, which still hold for their partners.
            record.data.clear();
            for (const Verdict &kept : m_verdicts[size_t(pair.a)]) {
                const Stored old = storedOf(kept.other, kept.pair);
                record.data.append(reinterpret_cast<const char *>(&old), sizeof(old));
            }
        }
        record.data.append(reinterpret_cast<const char *>(&stored), sizeof(stored));
        record.rows = 1;
        record.cols = int(record.data.size());
        record.type = CV_8UC1;
        record.fresh = true;
        any = true;
    }
    if (any)
        m_cache.storePictures(m_verdictRecords, readNs);
}
