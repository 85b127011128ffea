// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include <QCache>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QPixmap>
#include <QString>
#include <QThreadPool>

class ImageLoadTask;

// The thumbnails of one result model: the ones loaded so far (a cache counted in
// pictures) and the loads under way, one per row. A load's result comes back by a queued
// signal and is stored on this object's thread, which then names the row that has it.
class ThumbnailLoader : public QObject
{
    Q_OBJECT
public:
    // groupThumbnails: the rows are groups (the task then shows a group's picture).
    ThumbnailLoader(int cacheSize, bool groupThumbnails);
    ~ThumbnailLoader() override;

    // The stored thumbnail of a path, or nullptr.
    const QPixmap *cached(const QString &path) const { return m_thumbnails.object(path); }
    bool contains(const QString &path) const { return m_thumbnails.contains(path); }
    int pendingCount() const { return int(m_pending.size()); }

    // Starts a load for a row unless one is under way for it.
    void request(int row, int type, const QString &path);
    // A load's report; task is the one that reports (nullptr: any load of the row ends).
    void finish(int row, const QString &path, const QImage &image, const QObject *task);
    // Rows outside [firstRow, lastRow] lose their loads.
    void cancelOutside(int firstRow, int lastRow);
    void cancelAll();
    void clearCache() { m_thumbnails.clear(); }

signals:
    // A thumbnail for the row was stored (the row as it was when it was asked for).
    void thumbnailStored(int row);

private slots:
    void onTaskFinished(int row, bool cancel, const QString &imagefile, const QImage &image);

private:
    void store(int row, const QString &path, const QImage &image);

    bool m_groupThumbnails;
    QCache<QString, QPixmap> m_thumbnails;
    QHash<int, std::shared_ptr<ImageLoadTask>> m_pending;
    // Thumbnails load on a pool of their own: the raster paint engine splits large fills
    // across the global pool and waits for them, so loads queued there would hold up
    // every repaint of the views until they were all done.
    QThreadPool m_loader;
};
