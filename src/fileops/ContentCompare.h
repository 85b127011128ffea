// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

// Reads an item and a kept copy whole, side by side, and says whether they hold the same
// bytes. A removal decides on this and nothing else: stored keys only choose which copy to
// compare with, since a file can change without its time stamps showing it (a write
// through a shared memory mapping to a page that is already dirty).
class ContentCompare
{
public:
    enum Outcome { Same, Differs, ItemUnreadable, KeptUnreadable, SameFile };

    // item: the file to be removed, opened for reading; kept: the path of the copy that
    // stays, opened here without following a link in its last part. digest receives the
    // item's ContentHash when the outcome is Same.
    static Outcome compare(int itemFd, const QString &kept, QByteArray *digest = nullptr);
    // Opens a regular file for reading without following a link in the last part; -1 and
    // errno otherwise.
    static int openRegular(const QString &path);
};
