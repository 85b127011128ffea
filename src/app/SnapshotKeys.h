// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1String>

// The keys of the settings snapshots: the JSON objects the preferences hand to the scan
// engines and the cloud source, and the command line builds from its options. The same
// names are the keys of "preferences.cfg".
namespace SnapshotKeys {

// Common settings: what a scan takes in.
inline constexpr QLatin1String minFileSize {"MinFileSize"};
inline constexpr QLatin1String maxFileSize {"MaxFileSize"};
inline constexpr QLatin1String ignoreSystemHidden {"IgnoreSystemHidden"};
inline constexpr QLatin1String scanFileType {"ScanFileType"};
inline constexpr QLatin1String ignorePathFile {"IgnorePathFile"};
inline constexpr QLatin1String ignoreFileType {"IgnoreFileType"};
inline constexpr QLatin1String onlyFileType {"OnlyFileType"};

// Duplicate settings: how files are compared and selected.
inline constexpr QLatin1String scanMethod {"scanMethod"};
inline constexpr QLatin1String duplicateSelectHint {"duplicateSelectHint"};
inline constexpr QLatin1String scanDupDirectory {"scanDupDirectory"};
inline constexpr QLatin1String mapPriority {"mapPriority"};
inline constexpr QLatin1String ioMode {"ioMode"};

// Similar-picture settings.
inline constexpr QLatin1String hasSimilar {"hasSimilar"};
inline constexpr QLatin1String similarityValue {"SimilarityValue"};
inline constexpr QLatin1String featuresValue {"FeaturesValue"};
inline constexpr QLatin1String selectedSimilar {"selectedSimilar"};
inline constexpr QLatin1String scanPriority {"scanPriority"};
inline constexpr QLatin1String selectionHint {"selectionHint"};
inline constexpr QLatin1String algorithmHint {"algorithmHint"};
inline constexpr QLatin1String isAddFeatures {"isAddFeatures"};
inline constexpr QLatin1String isImageType {"isImageType"};
inline constexpr QLatin1String isImageSize {"isImageSize"};
inline constexpr QLatin1String imageMinSize {"imageMinSize"};

} // namespace SnapshotKeys
