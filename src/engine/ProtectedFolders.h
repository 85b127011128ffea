// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

// The folders whose contents no selection and no removal may touch: a user's archive
// that a messy folder is cleaned against. Answers "is this path protected" without a
// disk access per question (protectsOnDisk excepted), so the selection rules, the result
// store and the result model can ask it for every member.
//
// A path is protected when it lies in a protected folder at any depth or is one ("/a/b"
// protects "/a/b/c" but not "/a/bc"), and, for a folder, also when it holds one: removing
// the folder would take the protected one with it.
class ProtectedFolders
{
public:
    ProtectedFolders() = default;
    // Relative folders are taken from the working folder.
    explicit ProtectedFolders(const QStringList &folders);

    // The absolute, cleaned form every folder is kept and compared in.
    static QString normalised(const QString &folder);

    // The folders as given, normalised, sorted and without repeats.
    QStringList folders() const { return m_given; }
    bool isEmpty() const { return m_given.isEmpty(); }

    // By the path as written (a store entry's path, which the scan made absolute); a
    // relative path (a cloud entry) is never protected.
    bool protects(const QString &path) const;
    // Whether every one of a group's entries (GroupMember entries or folder paths) is
    // protected: nothing in such a group can be acted on, so it is no result to show.
    bool protectsEvery(const QStringList &entries) const;
    // Also by the path's place on disk, every link in its folders resolved and every folder
    // above it compared by identity: the last word before something is removed, when a
    // link or a bind mount may lead into a protected folder.
    bool protectsOnDisk(const QString &path) const;

    friend bool operator==(const ProtectedFolders &a, const ProtectedFolders &b)
    {
        return a.m_given == b.m_given;
    }

private:
    bool liesIn(const QString &path) const;
    bool holds(const QString &path) const;

    QStringList m_given;
    // The folders as given and where they really are, for the ancestor look-up, and the
    // same sorted, for the look-up of folders held.
    QSet<QString> m_lookup;
    QStringList m_sorted;
};
