// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QIcon>

// The look of protection, shared by every list that shows it (the folder list, the
// settings' list, the result table and grid): a closed lock for a protected folder or
// copy, an open one for a folder that could be locked, and the muted tint and text of a
// protected row. An icon is made anew at each call: a delegate keeps its own, so that its
// rendered sizes are cached across paints.
namespace LockArt {

QIcon closed();
QIcon open();
QColor tint();
QColor text();
// The lock's own colour, for a word set beside it.
QColor mark();

} // namespace LockArt
