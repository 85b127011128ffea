// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/DeleteResult.h"
#include "fileops/RemovalJournal.h"

#include <QString>

// Turns a file that a removal batch replaced by a link back into a separate file with the
// content it had: only when what is at its place is the link made (a symbolic link reading
// the kept copy's path, or a regular file for a hard link or a clone) and reads the content
// the journal recorded. That content is copied to a private name in the folder, checked,
// given the recorded modification time and permission bits, and swapped in. A batch cut
// short is looked at where it may have stopped: the item untouched, the old item still under
// the private name, or the link in place.
class LinkRestorer
{
public:
    // Whether the journal's method word is one of the link methods.
    static bool handles(const QString &method);

    // Empty, or the reason the item stays as it is.
    static QString restore(const RemovalJournal::Item &item);

private:
    static QString restoreIntended(const RemovalJournal::Item &item);
    // Copies what path reads into a separate file and swaps it in; checkDigest: the content
    // must hash to the recorded digest (an intent has only the size).
    static QString copyBack(const RemovalJournal::Item &item, bool checkDigest);
};
