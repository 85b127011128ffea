// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/SettingsTable.h"

// The ranged settings under their earlier names, for the code that still reads them so.
namespace PreferenceRanges {

using Range = SettingsTable::Setting;
inline constexpr const Range &MinFileSize = SettingsTable::MinFileSize;
inline constexpr const Range &MaxFileSize = SettingsTable::MaxFileSize;
inline constexpr const Range &SimilarityValue = SettingsTable::SimilarityValue;
inline constexpr const Range &FeaturesValue = SettingsTable::FeaturesValue;
inline constexpr const Range &imageMinSize = SettingsTable::imageMinSize;
using SettingsTable::sizeBoundsValid;

} // namespace PreferenceRanges
