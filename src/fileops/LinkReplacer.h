// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/DeleteResult.h"
#include "engine/ProtectedFolders.h"
#include "fileops/RemovalCheck.h"

#include <QString>

// Replaces one looked-at file by a link to a copy that stays: another name of it (a hard
// link), a copy-on-write clone of it (a reflink) or a symbolic link to its absolute path.
// The link is made under a private name in the item's folder, the item is confirmed
// against what that link reads, read now, and only then do the two swap places; what was
// taken out must be the item the look saw and the kept copy must not have moved meanwhile,
// or everything goes back as it was. Nothing is left behind on any failure. A link never
// changes what the item's path reads, so content that differs is never allowed.
class LinkReplacer
{
public:
    // Reasons an item stays, as the user reads them.
    static const QString foldersNotLinked;
    static const QString noHardLinkCopy;
    static const QString noReflinkCopy;
    static const QString cannotClone;
    static const QString keptCopyMoved;

    // Whether method is one of the link methods.
    static bool handles(int method);
    // The permission bits of the entry at path, which its link will not keep; -1 where
    // there are none.
    static int modeOf(const QString &path);

    LinkReplacer(int method, const RemovalCheck &check, RemovalCheck::GroupKind kind)
        : m_method(method), m_check(check), m_kind(kind)
    { }

    // The kept copy a link of this method can point at: the first of the look's on the
    // item's file system (any, for a symbolic link), one outside the protected folders
    // where there is one. Empty, with reason, when there is none.
    QString chooseKept(const RemovalCheck::Look &look, const ProtectedFolders &protectedFolders,
        QString &reason) const;
    // What a dry run can tell: the item at path, compared whole with kept, read now.
    RemovalCheck::Confirmed confirm(
        const RemovalCheck::Look &look, const QString &path, const QString &kept) const;
    // The act, once its intent is journalled: privatePath is the name the link takes first.
    DeleteResult replace(const QString &path, const RemovalCheck::Look &look, const QString &kept,
        const QString &privatePath) const;

private:
    int make(const QString &kept, const QString &privatePath) const;
    QString refusalOf(int error) const;

    int m_method;
    const RemovalCheck &m_check;
    RemovalCheck::GroupKind m_kind;
};
