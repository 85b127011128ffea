// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QStringList>

// The last guard before the engines are configured: whatever way the snapshots came (the
// preferences, the command line, a caller of the controller), a size limit or a pass
// mark outside its range (SettingsTable) would make the scan find nothing or group
// unrelated pictures, so the scan is refused instead. A key that is absent leaves the
// engine's default and is not checked.
namespace ScanConfigCheck {

// One sentence for each value that stops the scan; empty when the scan may start.
QStringList problems(const QJsonObject &common, const QJsonObject &similar);

} // namespace ScanConfigCheck
