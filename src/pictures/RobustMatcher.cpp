// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/RobustMatcher.h"

#include "pictures/BackgroundWork.h"
#include "pictures/GreyPictureReader.h"
#include "pictures/HashIndex.h"
#include "pictures/PictureMeasures.h"
#include "pictures/RobustSignature.h"

#include <algorithm>
#include <bitset>
#include <numeric>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

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
    if (alignedByHash)
        text += QStringLiteral(", aligned by its hashes, pixels agree %1 %").arg(agreement);
    else if (checked)
        text += QStringLiteral(", key points %1, pixels agree %2 %").arg(inliers).arg(agreement);
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
    const HashIndex index(hashes, m_options.looseDistance, !m_options.allPairs);

    std::vector<std::vector<Pair>> found(size_t(std::max(n, 0)));
    QList<int> order(n);
    std::iota(order.begin(), order.end(), 0);
    QtConcurrent::blockingMap(pool, order, [&](int i) {
        BackgroundWork::lower();
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

RobustMatcher::Slot &RobustMatcher::slotOf(const QList<ImageData> &images, int k, bool mirrored)
{
    Slot &slot = m_slots[size_t(2 * k + (mirrored ? 1 : 0))];
    std::call_once(slot.once, [&] {
        cv::Mat grey = GreyPictureReader::read(images.at(k).path, RobustSignature::kHashSide);
        if (grey.empty())
            return;
        if (mirrored)
            cv::flip(grey, grey, 1);
        slot.picture = KeypointCheck::prepare(grey);
    });
    return slot;
}

cv::Mat RobustMatcher::hashTransform(
    const Pair &pair, const KeypointCheck::Picture &a, const KeypointCheck::Picture &b)
{
    // The whole frame of one picture met a variant (a crop, or all) of the other: the frame
    // goes onto that part, as the hashes saw it.
    const cv::Size owner = pair.variantOfA ? a.size : b.size;
    const cv::Size other = pair.variantOfA ? b.size : a.size;
    const cv::Size hashed = RobustSignature::hashedSize(owner);
    const cv::Rect crop = RobustSignature::cropOf(pair.variant, hashed);
    const double up = double(owner.width) / hashed.width;
    cv::Mat onto = (cv::Mat_<double>(2, 3) << crop.width * up / other.width, 0.0, crop.x * up, 0.0,
        crop.height * up / other.height, crop.y * up);
    if (!pair.variantOfA)
        return onto;
    cv::Mat back;
    cv::invertAffineTransform(onto, back);
    return back;
}

void RobustMatcher::check(const QList<ImageData> &images, std::vector<Pair> &pairs,
    std::vector<char> &accepted, QThreadPool *pool, const std::function<void(int, int)> &progress)
{
    // Components so far: a pair whose pictures are joined already cannot change them and is
    // not checked. The pairs go in a fixed order (closest first) and in batches of a fixed
    // size, so which pairs are checked does not depend on the threads.
    std::vector<int> parent(size_t(images.size()));
    std::iota(parent.begin(), parent.end(), 0);
    const auto root = [&parent](int k) {
        while (parent[size_t(k)] != k)
            k = parent[size_t(k)] = parent[size_t(parent[size_t(k)])];
        return k;
    };
    const auto join = [&](int x, int y) {
        const int rx = root(x);
        const int ry = root(y);
        if (rx != ry)
            parent[size_t(std::max(rx, ry))] = std::min(rx, ry);
    };
    std::vector<int> order;
    for (size_t k = 0; k < pairs.size(); ++k) {
        if (accepted[k])
            join(pairs[k].a, pairs[k].b);
        else
            order.push_back(int(k));
    }
    std::stable_sort(order.begin(), order.end(),
        [&pairs](int x, int y) { return pairs[size_t(x)].distance < pairs[size_t(y)].distance; });
    const int total = int(order.size());
    constexpr int kBatch = 32;
    size_t next = 0;
    int done = 0;
    // The pairs still to decide per slot: a slot whose last pair is decided lets its
    // picture go, so a run holds the pictures of the open pairs, not of every picture.
    const auto slotsOf = [](const Pair &pair) {
        const bool mirrored = pair.variant == RobustSignature::Mirror;
        return std::pair<size_t, size_t>(size_t(2 * pair.a + (mirrored && pair.variantOfA)),
            size_t(2 * pair.b + (mirrored && !pair.variantOfA)));
    };
    std::vector<int> open(size_t(2 * images.size()), 0);
    for (const int k : order) {
        const auto [a, b] = slotsOf(pairs[size_t(k)]);
        ++open[a];
        ++open[b];
    }
    const auto decided = [&](int k) {
        const auto [a, b] = slotsOf(pairs[size_t(k)]);
        for (const size_t slot : {a, b})
            if (--open[slot] == 0)
                m_slots[slot].picture = KeypointCheck::Picture();
    };
    while (next < order.size() && !m_cancel.load()) {
        QList<int> batch;
        QList<int> recalled;
        // A pair whose verdict is kept counts in the batch as a checked one: the batches,
        // and so the pairs looked at, are those of a run without the cache.
        for (int taken = 0; next < order.size() && taken < kBatch; ++next) {
            Pair &pair = pairs[size_t(order[next])];
            ++done;
            if (root(pair.a) == root(pair.b)) {
                decided(order[next]);
                continue;
            }
            ++taken;
            if (const std::optional<bool> known = m_recall ? m_recall(pair) : std::nullopt) {
                accepted[size_t(order[next])] = *known;
                recalled.append(order[next]);
            } else {
                batch.append(order[next]);
            }
        }
        QtConcurrent::blockingMap(pool, batch, [&](int k) {
            BackgroundWork::lower();
            if (m_cancel.load())
                return;
            Pair &pair = pairs[size_t(k)];
            // The mirror image is taken of the picture whose mirror met the other.
            const bool mirrored = pair.variant == RobustSignature::Mirror;
            const KeypointCheck::Picture &a
                = slotOf(images, pair.a, mirrored && pair.variantOfA).picture;
            const KeypointCheck::Picture &b
                = slotOf(images, pair.b, mirrored && !pair.variantOfA).picture;
            if (a.empty() || b.empty())
                return;
            const KeypointCheck::Verdict verdict
                = KeypointCheck::compare(a, b, hashTransform(pair, a, b));
            pair.checked = true;
            pair.inliers = verdict.inliers;
            pair.agreement = int(std::lround(verdict.agreement * 100.0));
            pair.alignedByHash = verdict.alignedByHash;
            pair.passed = verdict.same;
            accepted[size_t(k)] = verdict.same;
        });
        m_checked += int(batch.size());
        for (const int k : std::as_const(batch)) {
            if (pairs[size_t(k)].checked)
                m_checkedPairs.push_back(pairs[size_t(k)]);
        }
        for (const int k : batch + recalled) {
            if (accepted[size_t(k)])
                join(pairs[size_t(k)].a, pairs[size_t(k)].b);
            decided(k);
        }
        if (progress)
            progress(done, total);
    }
}

std::vector<RobustMatcher::Pair> RobustMatcher::match(const QList<ImageData> &images,
    QThreadPool *pool, const std::function<void(int, int)> &progress)
{
    std::vector<Pair> pairs = candidates(images, pool);
    m_candidates = int(pairs.size());
    m_checked = 0;
    m_checkedPairs.clear();
    // Near-identical whole pictures (or mirror images) are taken as they are; every other
    // candidate goes through the check.
    std::vector<char> accepted(pairs.size(), 0);
    for (size_t k = 0; k < pairs.size(); ++k)
        accepted[k] = pairs[k].variant < RobustSignature::FirstCrop
            && pairs[k].distance <= m_options.strongDistance;
    m_slots = std::make_unique<Slot[]>(size_t(2 * std::max<qsizetype>(images.size(), 0)));
    check(images, pairs, accepted, pool, progress);
    m_slots.reset();
    std::vector<Pair> out;
    for (size_t k = 0; k < pairs.size(); ++k)
        if (accepted[k] && pairs[k].percent() >= m_options.passPercent)
            out.push_back(pairs[k]);
    return out;
}
