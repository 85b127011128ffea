// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QMimeData;

// The rules for the folders a local scan starts from: which drops are folders, which
// folders are already listed, and which roots are covered by another root.
namespace ScanRootList {

// Paths given where folders are expected, sorted by what they turned out to be; each
// list keeps the given order. Folders are cleaned absolute paths.
struct SortedPaths
{
    QStringList folders;
    QStringList files;
    QStringList missing;
};
SortedPaths sortPaths(const QStringList &paths);

// Local paths of the dropped URLs, in drop order.
QStringList droppedPaths(const QMimeData *data);
// Local paths of the dropped URLs that are existing folders, in drop order.
QStringList droppedFolders(const QMimeData *data);
// A drag may enter when it carries at least one existing local path: folders are
// added, and a dropped file is answered with a message instead of a refused drop.
bool acceptsDrag(const QMimeData *data);
// Drops every root that lies inside another root of the list (compared by the chain of
// parent folders, case-sensitive); the remaining roots keep their order.
QStringList pruneNested(const QStringList &roots);
// True when ancestor is a parent (at any depth) of path.
bool isAncestor(const QString &ancestor, const QString &path);

} // namespace ScanRootList
