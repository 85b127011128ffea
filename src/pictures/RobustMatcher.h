// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictures/ImageData.h"
#include "pictures/KeypointCheck.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include <QList>
#include <QString>

class QThreadPool;

// The robust measure's pair stage. Candidates come from a hash index, not from all pairs:
// the whole-picture hash of each picture is looked up among every hash variant (whole,
// mirror image, crops) of the others. A pair whose whole pictures' hashes nearly agree is
// taken as it is; every other candidate (farther apart, or met through the mirror image or
// a crop) must pass the key-point check. The outcome does not depend on the order of the
// pictures or on which task finished first.
class RobustMatcher
{
public:
    struct Options
    {
        // Whole against whole at most this far apart: taken without the check.
        int strongDistance = 6;
        // Any variant pair at most this far apart: a candidate for the check.
        int looseDistance = 12;
        bool sameType = false;
        bool sameRatio = true;
        double ratioLimit = 4.0;
        // Pairs that would show below this percent are left out.
        int passPercent = 0;
        // Candidates from one pass over all hashes per picture instead of the index: the
        // same pairs, slower; the benchmark's reference.
        bool allPairs = false;
    };
    struct Pair
    {
        int a = 0;
        int b = 0;
        int distance = 64;
        // The variant of one picture that met the other's whole picture, and whether that
        // variant belongs to a (else b).
        int variant = 0;
        bool variantOfA = false;
        bool checked = false;
        int inliers = 0;
        // Percent of the pixel agreement the check found.
        int agreement = 0;
        bool alignedByHash = false;
        // The check's outcome.
        bool passed = false;

        // Share of the hash bits that agree, as the percent shown.
        int percent() const;
        // Why the pair matched, for the report and the preview: "robust, distance 4",
        // "..., mirrored", "..., cropped", "..., key points 57".
        QString reason() const;
    };

    RobustMatcher(const Options &options, const std::atomic_int &cancel);
    ~RobustMatcher();

    // The pairs that match among images (whose hash is a robust signature), a < b, sorted.
    // progress(done, total) is called as candidates are checked.
    std::vector<Pair> match(const QList<ImageData> &images, QThreadPool *pool,
        const std::function<void(int, int)> &progress);

    // The outcome of a pair's check as kept from an earlier run (filling its check fields),
    // if there is one; such a pair is not checked again.
    void setRecall(std::function<std::optional<bool>(Pair &)> recall)
    {
        m_recall = std::move(recall);
    }
    // The pairs the last run checked itself, with their outcome.
    const std::vector<Pair> &checkedPairs() const { return m_checkedPairs; }

    // The candidate pairs alone (before any check), a < b, sorted.
    std::vector<Pair> candidates(const QList<ImageData> &images, QThreadPool *pool);

    // Counts of the last run, for the log.
    int candidateCount() const { return m_candidates; }
    int checkedCount() const { return m_checked; }

private:
    bool comparable(const ImageData &a, const ImageData &b) const;
    struct Slot;
    Slot &slotOf(const QList<ImageData> &images, int k, bool mirrored);
    // Where the hashes put picture a onto picture b (2 x 3), for pictures without key points.
    static cv::Mat hashTransform(
        const Pair &pair, const KeypointCheck::Picture &a, const KeypointCheck::Picture &b);
    void check(const QList<ImageData> &images, std::vector<Pair> &pairs,
        std::vector<char> &accepted, QThreadPool *pool,
        const std::function<void(int, int)> &progress);

    Options m_options;
    const std::atomic_int &m_cancel;
    // What the check needs of each picture (and of its mirror image), read once, when
    // first asked, and let go once the picture's last pair is decided.
    struct Slot
    {
        std::once_flag once;
        KeypointCheck::Picture picture;
    };
    std::unique_ptr<Slot[]> m_slots;
    std::function<std::optional<bool>(Pair &)> m_recall;
    std::vector<Pair> m_checkedPairs;
    int m_candidates = 0;
    int m_checked = 0;
};
