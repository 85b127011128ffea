// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/SnapshotKeys.h"

#include <cstring>

#include <QtGlobal>

// The bounds and defaults of the numeric settings, in the units the settings hold. The
// preferences dialog offers exactly these, the store clamps a loaded value into them, and
// a scan refuses a snapshot outside them: a value the dialog cannot produce must not reach
// an engine by a hand-edited file or the command line either. A new settings file, the
// command line and an engine given no value all take the default.
namespace PreferenceRanges {

struct Range
{
    // The property name, which is also the key in "preferences.cfg" and in the snapshot.
    const char *key;
    qint64 minimum;
    qint64 maximum;
    qint64 byDefault;

    constexpr bool contains(double value) const { return value >= minimum && value <= maximum; }
    constexpr qint64 clamp(qint64 value) const
    {
        return value < minimum ? minimum : (value > maximum ? maximum : value);
    }
};

// Kilobytes.
inline constexpr Range MinFileSize {SnapshotKeys::minFileSize.data(), 0, 10000000, 0};
// Megabytes. The top keeps the byte count far from overflowing when shifted.
inline constexpr Range MaxFileSize {SnapshotKeys::maxFileSize.data(), 1, 100000, 100000};
// Percent. At 0 every pair of pictures would pass and all pictures would form one group.
inline constexpr Range SimilarityValue {SnapshotKeys::similarityValue.data(), 1, 100, 55};
// Percent.
inline constexpr Range FeaturesValue {SnapshotKeys::featuresValue.data(), 20, 60, 50};
// Times: how far two aspect ratios may differ.
inline constexpr Range imageMinSize {SnapshotKeys::imageMinSize.data(), 1, 10, 4};

inline constexpr Range all[]
    = {MinFileSize, MaxFileSize, SimilarityValue, FeaturesValue, imageMinSize};

// The range of a key, or nullptr for a setting without one.
inline const Range *find(const char *key)
{
    for (const Range &range : all) {
        if (std::strcmp(range.key, key) == 0)
            return &range;
    }
    return nullptr;
}

// A minimum not below the maximum would let no file through.
constexpr bool sizeBoundsValid(double minimumKb, double maximumMb)
{
    return minimumKb < maximumMb * 1024.0;
}

} // namespace PreferenceRanges
