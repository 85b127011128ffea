// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/ScanRootList.h"

#include <QDir>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace ScanRootList {

SortedPaths sortPaths(const QStringList &paths)
{
    SortedPaths sorted;
    for (const QString &path : paths) {
        const QFileInfo info(path);
        if (info.isDir())
            sorted.folders << QDir::cleanPath(info.absoluteFilePath());
        else if (info.exists())
            sorted.files << path;
        else
            sorted.missing << path;
    }
    return sorted;
}

QStringList droppedPaths(const QMimeData *data)
{
    QStringList paths;
    if (!data || !data->hasUrls())
        return paths;
    for (const QUrl &url : data->urls())
        if (url.isLocalFile())
            paths << url.toLocalFile();
    return paths;
}

QStringList droppedFolders(const QMimeData *data)
{
    return sortPaths(droppedPaths(data)).folders;
}

bool acceptsDrag(const QMimeData *data)
{
    const SortedPaths sorted = sortPaths(droppedPaths(data));
    return !sorted.folders.isEmpty() || !sorted.files.isEmpty();
}

bool isAncestor(const QString &ancestor, const QString &path)
{
    QString current = QDir::cleanPath(path);
    const QString target = QDir::cleanPath(ancestor);
    // Walk up the parents of path; stops at the root, whose parent is itself.
    while (true) {
        const QString parent = QFileInfo(current).path();
        if (parent == current || parent.isEmpty() || parent == QLatin1String("."))
            return false;
        if (parent == target)
            return true;
        current = parent;
    }
}

QStringList pruneNested(const QStringList &roots)
{
    QList<bool> marked(roots.size(), false);
    for (int i = 0; i < roots.size(); ++i)
        for (int j = 0; j < roots.size(); ++j)
            if (i != j && isAncestor(roots.at(i), roots.at(j)))
                marked[j] = true;
    QStringList kept = roots;
    for (int i = int(roots.size()) - 1; i >= 0; --i)
        if (marked.at(i))
            kept.removeAt(i);
    return kept;
}

} // namespace ScanRootList
