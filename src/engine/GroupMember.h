// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHashFunctions>
#include <QList>
#include <QString>
#include <QStringList>

// One member of a result group: the file (or folder) it is and, in a group of similar
// pictures, how similar it is to the picture the others were compared with.
// The result store and the project file keep each member as one tagged entry, the form
// saved projects have always had; everything else carries the fields and converts only
// where it reads or addresses the store.
struct GroupMember
{
    // A member of a group of identical files or folders, not of similar pictures.
    static constexpr int kNotSimilar = -1;

    QString path;
    // Percent; 0 marks the picture the others were compared with.
    int similarity = kNotSimilar;
    // Why a similar picture was grouped, where the measure tells ("robust, distance 4,
    // mirrored"); empty otherwise. Not part of the entry: the store keeps it beside it.
    QString reason;

    bool isSimilar() const { return similarity != kNotSimilar; }
    // The member as the store and the project file keep it.
    QString entry() const;

    // An entry that carries no well-formed tag is a plain member of that path; whatever it
    // reads, entry() gives back the same string.
    static GroupMember fromEntry(const QString &entry);
    static QList<GroupMember> fromEntries(const QStringList &entries);
    static QStringList entries(const QList<GroupMember> &members);
    static QStringList paths(const QList<GroupMember> &members);
    static bool anySimilar(const QList<GroupMember> &members);

    friend bool operator==(const GroupMember &a, const GroupMember &b)
    {
        return a.path == b.path && a.similarity == b.similarity;
    }
    friend bool operator!=(const GroupMember &a, const GroupMember &b) { return !(a == b); }
};

inline size_t qHash(const GroupMember &member, size_t seed = 0)
{
    return qHashMulti(seed, member.path, member.similarity);
}
