// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The log tag of the cloud source's parts (session, folder browser, scan).
namespace KvCloudLog {

inline const QString kTag = QStringLiteral("[KvCloudObject]: ");

} // namespace KvCloudLog
