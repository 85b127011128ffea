// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>

#include <QImage>
#include <QObject>
#include <QRunnable>
#include <QString>

// One thumbnail request of the result model, run on the model's own thread pool; the
// model's ThumbnailLoader owns it (shared with the running job) and connects `finished`
// to its own slot with a queued connection and calls cancel() when the row leaves the view; a
// cancelled task still reports, with cancel set and no image, so the model can forget the request.
class ImageLoadTask : public QObject, public QRunnable
{
    Q_OBJECT
public:
    // Longest side of the thumbnails handed to the views.
    static constexpr int kThumbnailSize = 256;

    ImageLoadTask(
        int row, int category, const QString &path, bool isGroup, QObject *parent = nullptr);

    void run() override;
    void cancel() { m_cancel.store(true); }
    bool isCancelled() const { return m_cancel.load(); }

    int row() const { return m_row; }
    int category() const { return m_category; }
    QString path() const { return m_path; }
    bool isGroup() const { return m_isGroup; }

    // Thumbnail of a picture file, fit within size x size; null when unreadable.
    static QImage loadThumbnail(const QString &path, int size = kThumbnailSize);

signals:
    void finished(int row, bool cancel, const QString &imagefile, const QImage &image);

private:
    int m_row;
    int m_category;
    QString m_path;
    bool m_isGroup;
    std::atomic_bool m_cancel {false};
};
