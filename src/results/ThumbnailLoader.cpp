// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ThumbnailLoader.h"

#include "pictures/ImageLoadTask.h"

ThumbnailLoader::ThumbnailLoader(int cacheSize, bool groupThumbnails)
    : m_groupThumbnails(groupThumbnails)
{
    m_thumbnails.setMaxCost(cacheSize);
}

ThumbnailLoader::~ThumbnailLoader()
{
    for (const auto &task : std::as_const(m_pending))
        task->cancel();
    // Loads not yet started are dropped; the ones under way end before the model does.
    m_loader.clear();
    m_loader.waitForDone();
}

void ThumbnailLoader::request(int row, int type, const QString &path)
{
    if (m_pending.contains(row))
        return;
    // The pool must not delete the task: the pending table shares it. The last owner
    // hands it back to the model's thread for deletion, so its signal connections are
    // never torn down on a worker thread.
    std::shared_ptr<ImageLoadTask> task(new ImageLoadTask(row, type, path, m_groupThumbnails),
        [](ImageLoadTask *t) { t->deleteLater(); });
    task->setAutoDelete(false);
    connect(task.get(), &ImageLoadTask::finished, this, &ThumbnailLoader::onTaskFinished,
        Qt::QueuedConnection);
    m_pending.insert(row, task);
    m_loader.start([task] { task->run(); });
}

void ThumbnailLoader::onTaskFinished(
    int row, bool cancel, const QString &imagefile, const QImage &image)
{
    Q_UNUSED(cancel)
    finish(row, imagefile, image, sender());
}

void ThumbnailLoader::finish(int row, const QString &path, const QImage &image, const QObject *task)
{
    if (!image.isNull() && image.width() > 0 && image.height() > 0) {
        QMetaObject::invokeMethod(
            this, [this, row, path, image] { store(row, path, image); }, Qt::QueuedConnection);
    }
    // A newer request for the same row may have replaced a cancelled one.
    const auto pending = m_pending.find(row);
    if (pending != m_pending.end() && (!task || pending->get() == task))
        m_pending.erase(pending);
}

void ThumbnailLoader::store(int row, const QString &path, const QImage &image)
{
    m_thumbnails.insert(path, new QPixmap(QPixmap::fromImage(image)), 1);
    emit thumbnailStored(row);
}

void ThumbnailLoader::cancelOutside(int firstRow, int lastRow)
{
    for (auto it = m_pending.begin(); it != m_pending.end();) {
        if (it.key() < firstRow || it.key() > lastRow) {
            it.value()->cancel();
            it = m_pending.erase(it);
        } else {
            ++it;
        }
    }
}

void ThumbnailLoader::cancelAll()
{
    for (const auto &task : std::as_const(m_pending))
        task->cancel();
    m_pending.clear();
}
