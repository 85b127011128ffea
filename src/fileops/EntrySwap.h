// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QString>

// Puts a new entry in the place of an existing one so that the name never stands empty,
// and looks at what it took out before anything is let go: with the file system's swap of
// two names where it has one, else by renaming the old entry to a private name first and
// only then the new one into its place (never over an entry another program put there).
class EntrySwap
{
public:
    enum Outcome {
        // The fresh entry is at path; the old one at displaced(), for the caller to remove.
        Swapped,
        // What was at path is not what the caller checked: everything is as before.
        NotExpected,
        // Nothing was swapped (error() says why); the old entry is at path, or beside it.
        Failed
    };

    // fresh: the new entry, under a private name in path's own folder.
    EntrySwap(const QString &fresh, const QString &path) : m_fresh(fresh), m_path(path) { }

    // expected: whether the entry taken out of path, now at the place given, is the one the
    // caller checked.
    Outcome swap(const std::function<bool(const QString &)> &expected);
    QString displaced() const { return m_displaced; }
    int error() const { return m_error; }
    // After Swapped: the old entry back at path (or beside it when another program took the
    // name meanwhile), the fresh one under its private name again. Where the old entry is.
    QString undo();

private:
    QString m_fresh;
    QString m_path;
    QString m_displaced;
    bool m_exchanged = false;
    int m_error = 0;
};
