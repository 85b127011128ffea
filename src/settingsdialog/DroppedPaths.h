// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

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

// The drag-and-drop part of a list's event filter: a drag over it is taken only when it
// carries paths the list accepts, and a drop hands them to take. False for any other event.
inline bool takeDrop(QEvent *event, bool foldersOnly, const std::function<void(QStringList)> &take)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: {
        auto *drag = static_cast<QDragMoveEvent *>(event);
        if (droppedPaths(drag->mimeData(), foldersOnly).isEmpty())
            drag->ignore();
        else
            acceptWithoutMove(drag);
        return true;
    }
    case QEvent::Drop: {
        auto *drop = static_cast<QDropEvent *>(event);
        const QStringList paths = droppedPaths(drop->mimeData(), foldersOnly);
        acceptWithoutMove(drop);
        take(paths);
        return true;
    }
    default:
        return false;
    }
}
