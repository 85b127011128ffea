// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/RobustMatcher.h"

#include "pictures/GreyPictureReader.h"
#include "pictures/HashIndex.h"
#include "pictures/PictureMeasures.h"
#include "pictures/RobustSignature.h"

#include <algorithm>
#include <bitset>
#include <numeric>
#include <opencv2/core.hpp>

#include <QtConcurrent>

namespace {

int distanceOf(quint64 a, quint64 b)
{
    return int(std::bitset<64>(a ^ b).count());
}

// Orders the reports of one pair so that the closest meeting comes first, the whole
// picture before its mirror image before the crops on a tie.
bool closer(const RobustMatcher::Pair &x, const RobustMatcher::Pair &y)
{
    if (x.a != y.a)
        return x.a < y.a;
    if (x.b != y.b)
        return x.b < y.b;
    if (x.distance != y.distance)
        return x.distance < y.distance;
    if (x.variant != y.variant)
        return x.variant < y.variant;
    return x.variantOfA < y.variantOfA;
}

} // namespace

int RobustMatcher::Pair::percent() const
{
    // A picture is never shown as 100 % similar to another one.
    return std::min(99, int(std::lround(100.0 * (64 - distance) / 64.0)));
}

QString RobustMatcher::Pair::reason() const
{
    QString text = QStringLiteral("robust, distance %1").arg(distance);
    if (variant == RobustSignature::Mirror)
        text += QStringLiteral(", mirrored");
    else if (variant >= RobustSignature::FirstCrop)
        text += QStringLiteral(", cropped");
    if (checked)
        text += QStringLiteral(", key points %1").arg(inliers);
    return text;
}

RobustMatcher::RobustMatcher(const Options &options, const std::atomic_int &cancel)
    : m_options(options), m_cancel(cancel)
{ }

RobustMatcher::~RobustMatcher() = default;

bool RobustMatcher::comparable(const ImageData &a, const ImageData &b) const
{
    if (a.fromEarlierResult && b.fromEarlierResult)
        return false;
    if (m_options.sameType && a.fileType != b.fileType)
        return false;
    return !m_options.sameRatio
        || PictureMeasures::aspectRatioCompatible(
            a.width, a.height, b.width, b.height, m_options.ratioLimit);
}

std::vector<RobustMatcher::Pair> RobustMatcher::candidates(
    const QList<ImageData> &images, QThreadPool *pool)
{
    const int n = int(images.size());
    const int variants = RobustSignature::variantCount();
    std::vector<std::vector<quint64>> signatures(size_t(std::max(n, 0)));
    std::vector<std::uint64_t> hashes;
    std::vector<int> owners;
    for (int k = 0; k < n; ++k) {
        signatures[size_t(k)] = RobustSignature::fromMat(images.at(k).hash);
        for (const quint64 hash : signatures[size_t(k)]) {
            hashes.push_back(hash);
            owners.push_back(k);
        }
    }
    const HashIndex index(hashes, m_options.looseDistance);

    std::vector<std::vector<Pair>> found(size_t(std::max(n, 0)));
    QList<int> order(n);
    std::iota(order.begin(), order.end(), 0);
    QtConcurrent::blockingMap(pool, order, [&](int i) {
        const std::vector<quint64> &mine = signatures[size_t(i)];
        if (m_cancel.load() || mine.empty())
            return;
        thread_local HashIndex::Scratch scratch;
        std::vector<int> hits;
        index.query(mine[RobustSignature::Whole], scratch, hits);
        std::vector<Pair> &out = found[size_t(i)];
        for (const int hit : hits) {
            const int j = owners[size_t(hit)];
            if (j == i || !comparable(images.at(i), images.at(j)))
                continue;
            Pair pair;
            pair.a = std::min(i, j);
            pair.b = std::max(i, j);
            pair.distance = distanceOf(mine[RobustSignature::Whole], hashes[size_t(hit)]);
            // Each picture's hashes lie side by side in the index.
            pair.variant = hit % variants;
            pair.variantOfA = j == pair.a;
            out.push_back(pair);
        }
    });
    std::vector<Pair> pairs;
    for (std::vector<Pair> &list : found)
        pairs.insert(pairs.end(), list.begin(), list.end());
    std::sort(pairs.begin(), pairs.end(), closer);
    pairs.erase(std::unique(pairs.begin(), pairs.end(),
                    [](const Pair &x, const Pair &y) { return x.a == y.a && x.b == y.b; }),
        pairs.end());
    return pairs;
}

const KeypointCheck::Features &RobustMatcher::featuresOf(
    const QList<ImageData> &images, int k, bool mirrored)
{
    Slot &slot = m_slots[size_t(2 * k + (mirrored ? 1 : 0))];
    std::call_once(slot.once, [&] {
        cv::Mat grey = GreyPictureReader::read(images.at(k).path, KeypointCheck::kCheckSide);
        if (grey.empty())
            return;
        if (mirrored)
            cv::flip(grey, grey, 1);
        slot.features = KeypointCheck::featuresOf(grey);
    });
    return slot.features;
}

std::vector<RobustMatcher::Pair> RobustMatcher::match(const QList<ImageData> &images,
    QThreadPool *pool, const std::function<void(int, int)> &progress)
{
    std::vector<Pair> pairs = candidates(images, pool);
    m_candidates = int(pairs.size());
    // Every pair but the near-identical whole pictures goes through the check.
    std::vector<char> accepted(pairs.size(), 0);
    QList<int> toCheck;
    for (size_t k = 0; k < pairs.size(); ++k) {
        const Pair &pair = pairs[k];
        if (pair.variant == RobustSignature::Whole && pair.distance <= m_options.strongDistance)
            accepted[k] = 1;
        else
            toCheck.append(int(k));
    }
    m_checked = int(toCheck.size());
    m_slots = std::make_unique<Slot[]>(size_t(2 * std::max<qsizetype>(images.size(), 0)));
    std::atomic_int done {0};
    const int total = int(toCheck.size());
    QtConcurrent::blockingMap(pool, toCheck, [&](int k) {
        if (m_cancel.load())
            return;
        Pair &pair = pairs[size_t(k)];
        // The mirror image is taken of the picture whose mirror met the other.
        const bool mirrored = pair.variant == RobustSignature::Mirror;
        const KeypointCheck::Features &a = featuresOf(images, pair.a, mirrored && pair.variantOfA);
        const KeypointCheck::Features &b = featuresOf(images, pair.b, mirrored && !pair.variantOfA);
        const KeypointCheck::Verdict verdict = KeypointCheck::compare(a, b);
        pair.checked = true;
        pair.inliers = verdict.inliers;
        accepted[size_t(k)] = verdict.same;
        if (progress)
            progress(done.fetch_add(1) + 1, total);
    });
    m_slots.reset();
    std::vector<Pair> out;
    for (size_t k = 0; k < pairs.size(); ++k)
        if (accepted[k] && pairs[k].percent() >= m_options.passPercent)
            out.push_back(pairs[k]);
    return out;
}
