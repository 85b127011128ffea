// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The drive type (TFileScanner::DriveType) of the drive holding a path, cached per drive
// for the process; failed queries are not cached, so they are tried again on the next
// scan.
class DriveTypeCache
{
public:
    static int query(const QString &path);
};
