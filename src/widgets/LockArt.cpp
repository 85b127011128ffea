// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/LockArt.h"

namespace LockArt {

QIcon closed()
{
    return QIcon(QStringLiteral(":/resource/lock.svg"));
}

QIcon open()
{
    return QIcon(QStringLiteral(":/resource/lock_open.svg"));
}

QColor tint()
{
    return QColor(0xf3, 0xf5, 0xf9);
}

QColor text()
{
    return QColor(0x6b, 0x73, 0x85);
}

QColor mark()
{
    return QColor(0x2f, 0x6f, 0xae);
}

} // namespace LockArt
