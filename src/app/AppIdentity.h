// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/BuildSettings.h"

#include <QString>

// The program's identity: names of the settings store and data folder, version and
// the document identifier of project files.
namespace AppIdentity {

inline const QString organizationName = QStringLiteral("Veltrine");
inline const QString applicationName = QStringLiteral("Veltrine Duplicate Finder");
inline const QString version = QStringLiteral(VELTRINE_VERSION);
inline const QString buildDate = QStringLiteral("2025-11-18");
inline const QString documentIdentifier = QStringLiteral("VeltrineDuplicateFinder");

// Names of the usage features reported at most three times per installation.
inline const QString featureDeletedExcept = QStringLiteral("Deleted_Except");
inline const QString featureDeletedFailed = QStringLiteral("Deleted_Failed");
inline const QString featureIncompleteScan = QStringLiteral("Incomplete_scan");

} // namespace AppIdentity
