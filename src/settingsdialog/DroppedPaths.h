// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QStringList>
#include <QUrl>

// The existing local folders (and, unless foldersOnly, files) among the URLs dragged from
// a file manager, as clean absolute paths in drop order.
inline QStringList droppedPaths(const QMimeData *data, bool foldersOnly)
{
    QStringList paths;
    if (!data || !data->hasUrls())
        return paths;
    for (const QUrl &url : data->urls()) {
        if (!url.isLocalFile())
            continue;
        const QFileInfo info(url.toLocalFile());
        if (info.isDir() || (!foldersOnly && info.exists()))
            paths << QDir::cleanPath(info.absoluteFilePath());
    }
    return paths;
}

// Accepts a drag or a drop as a link (or else a copy): a file manager that is told the
// items were moved may delete its originals.
inline void acceptWithoutMove(QDropEvent *event)
{
    event->setDropAction(
        event->possibleActions() & Qt::LinkAction ? Qt::LinkAction : Qt::CopyAction);
    event->accept();
}
