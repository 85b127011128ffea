// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// Keys of the few values kept in the native settings store (organisation "Veltrine",
// application "Veltrine Duplicate Finder"), apart from "preferences.cfg".
namespace SettingsKeys {

// Index of the interface language (1 English ... 7 Japanese).
inline const QString language = QStringLiteral("Language");
// Size of the result window when it was last closed.
inline const QString resultFormSize = QStringLiteral("ResultForm.size");
// Count of reports of one usage feature; %1 is the feature's name.
inline const QString featureCount = QStringLiteral("sentry/%1");

} // namespace SettingsKeys
