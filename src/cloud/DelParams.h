// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QString>
#include <QStringList>

// One removal request of cloud files: the copies to remove and the copy of their group
// that stays. Every copy is removed only while the kept one still exists with the hash
// the scan saw.
struct DelParams
{
    QString groupKey;
    QStringList files;
    QString keep;
    // The files are pictures similar to the kept one, not copies of it: each must still be
    // what the scan saw, and the kept one must still be there unchanged.
    bool similar = false;
};
Q_DECLARE_METATYPE(DelParams)
