// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// Reports that a feature was used: at most three events per feature name over the life
// of the installation, counted under "sentry/<feature>" in the native settings.
// Returns true when an event was captured.
bool reportFeature(const QString &feature, const QString &message);
