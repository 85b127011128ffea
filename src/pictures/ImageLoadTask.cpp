// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/ImageLoadTask.h"

#include "app/FileTypeCatalogue.h"
#include "engine/GroupMember.h"
#include "pictures/TReadImage.h"

#include <algorithm>
#include <opencv2/imgproc.hpp>

#include <QImageReader>

ImageLoadTask::ImageLoadTask(
    int row, int category, const QString &path, bool isGroup, QObject *parent)
    : QObject(parent), m_row(row), m_category(category), m_path(path), m_isGroup(isGroup)
{
    setAutoDelete(true);
}

QImage ImageLoadTask::loadThumbnail(const QString &path, int size)
{
    // The common formats are decoded straight at thumbnail size (a JPEG by scaled
    // decoding, several times faster than the whole picture); the others go through the
    // picture loader that the comparison uses.
    static const QList<QByteArray> direct = {"jpeg", "png", "webp", "bmp", "gif"};
    QImageReader reader(path);
    reader.setAutoTransform(true);
    if (direct.contains(reader.format())) {
        const QSize full = reader.size();
        if (full.isValid() && (full.width() > size || full.height() > size))
            reader.setScaledSize(full.scaled(size, size, Qt::KeepAspectRatio));
        QImage image = reader.read();
        if (!image.isNull())
            return image;
    }
    cv::Mat mat = TReadImage::readImage(path);
    if (mat.empty())
        return {};
    if (mat.cols > size || mat.rows > size) {
        const double scale = std::min(double(size) / mat.cols, double(size) / mat.rows);
        cv::Mat small;
        try {
            cv::resize(mat, small,
                cv::Size(std::max(1, int(mat.cols * scale)), std::max(1, int(mat.rows * scale))), 0,
                0, cv::INTER_AREA);
        } catch (...) {
            return {};
        }
        mat = small;
    }
    return TReadImage::mat2QImage(mat);
}

void ImageLoadTask::run()
{
    // The result model may pass a similar picture's entry; its file is the member's path.
    const QString file = GroupMember::fromEntry(m_path).path;
    if (isCancelled()) {
        emit finished(m_row, true, m_path, QImage());
        return;
    }
    QImage image;
    if (m_category == CategoryImages || isImageFile(file))
        image = loadThumbnail(file);
    // The view may have scrolled on while the file was decoded.
    const bool cancelled = isCancelled();
    emit finished(m_row, cancelled, m_path, cancelled ? QImage() : image);
}
