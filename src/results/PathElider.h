// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

class QFontMetrics;

// Shortens folder paths for narrow cells without losing what tells copies apart: copies
// of one file usually share the start of their folders ("/home/ann/Pictures/...") and
// differ further on, where a plain middle elision cuts.
class PathElider
{
public:
    // Where the folders of a group's members begin to differ: the length of the path
    // segments they all share (0 when they share none or there is one folder).
    static int distinctFrom(const QStringList &folders);
    // folder shortened to width: from the segment that holds distinctFrom on, after an
    // ellipsis, and cut at the end when even that is too wide.
    static QString elide(
        const QString &folder, int distinctFrom, const QFontMetrics &metrics, int width);
};
