// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/TReadImage.h"

#include "app/FileTypeCatalogue.h"
#include "app/TLogger.h"

#include <algorithm>
#include <cmath>
#include <libheif/heif.h>
#include <libraw/libraw.h>
#include <memory>
#include <new>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>
#include <vector>

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace {

QString cvMessage(const cv::Exception &e)
{
    return QString::fromStdString(e.what());
}

// Size from the file header without decoding; invalid when the header is unknown.
QSize headerSize(const QString &path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return reader.size();
}

cv::Mat imreadFlags(const QString &path, int flags)
{
    if (TReadImage::needsMemoryRoute(path))
        return TReadImage::imreadThroughMemory(path, flags);
    return cv::imread(QFile::encodeName(path).toStdString(), flags);
}

bool isJpegFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray head = file.read(3);
    return head.size() == 3 && uchar(head[0]) == 0xFF && uchar(head[1]) == 0xD8
        && uchar(head[2]) == 0xFF;
}

cv::Mat fullRead(const QString &path)
{
    cv::Mat mat;
    try {
        mat = imreadFlags(path, cv::IMREAD_COLOR);
        if (!mat.empty())
            splog_d(QStringLiteral("[TReadImage]: Full read success. File: %1, Size: %2x%3")
                        .arg(path)
                        .arg(mat.cols)
                        .arg(mat.rows));
    } catch (const cv::Exception &e) {
        mat.release();
        splog_d(QStringLiteral("[TReadImage]: cv::imread Exception full read. File: %1, Error: %2")
                    .arg(path, cvMessage(e)));
    } catch (const std::bad_alloc &) {
        mat.release();
        splog_d(
            QStringLiteral("[TReadImage]: cv::imread Out of memory full read. File: %1").arg(path));
    } catch (...) {
        mat.release();
        splog_d(QStringLiteral("[TReadImage]: Unknown exception full read. File: %1").arg(path));
    }
    return mat;
}

cv::Mat reducedRead(const QString &path)
{
    cv::Mat mat;
    try {
        mat = imreadFlags(path, cv::IMREAD_REDUCED_COLOR_8);
    } catch (...) {
        mat.release();
    }
    if (mat.empty())
        splog_d(QStringLiteral("[TReadImage]: Exception or out of memory on reduced read. File: %1")
                    .arg(path));
    else
        splog_d(QStringLiteral("[TReadImage]: Reduced read success (1/8). File: %1, Size: %2x%3")
                    .arg(path)
                    .arg(mat.cols)
                    .arg(mat.rows));
    return mat;
}

cv::Mat qtReaderRead(const QString &path)
{
    try {
        QImageReader reader(path);
        reader.setDecideFormatFromContent(true);
        const QSize size = reader.size();
        splog_d(QStringLiteral("[TReadImage]: QImageReader size. File: %1, Size: %2x%3")
                    .arg(path)
                    .arg(size.width())
                    .arg(size.height()));
        if (size.isValid() && qint64(size.width()) * size.height() > TReadImage::kMaxReaderPixels) {
            splog_d(QStringLiteral("[TReadImage]: Image too large, skip. File: %1, Size: %2x%3")
                        .arg(path)
                        .arg(size.width())
                        .arg(size.height()));
            return {};
        }
        if (size.isValid()
            && (size.width() > TReadImage::kWorkingSize
                || size.height() > TReadImage::kWorkingSize)) {
            const QSize scaled = size.scaled(TReadImage::kWorkingSize, TReadImage::kWorkingSize,
                                         Qt::KeepAspectRatio)
                                     .expandedTo(QSize(1, 1));
            reader.setScaledSize(scaled);
            splog_d(QStringLiteral("[TReadImage]: QImageReader scaled size. File: %1, Scaled Size: "
                                   "%2x%3")
                        .arg(path)
                        .arg(scaled.width())
                        .arg(scaled.height()));
        }
        QImage image;
        if (!reader.read(&image) || image.isNull()) {
            splog_d(QStringLiteral("[TReadImage]: QImageReader failed. File: %1").arg(path));
            return {};
        }
        return TReadImage::qimage2Mat(image);
    } catch (...) {
        splog_d(QStringLiteral("[TReadImage]: QImageReader failed. File: %1").arg(path));
        return {};
    }
}

} // namespace

bool TReadImage::needsMemoryRoute(const QString &path)
{
    for (const QChar c : path) {
        if (c.unicode() > 0x7F)
            return true;
    }
    return false;
}

bool TReadImage::hasFtypBox(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray head = file.read(12);
    return head.size() == 12 && head.mid(4, 4) == "ftyp";
}

cv::Mat TReadImage::imreadThroughMemory(const QString &path, int flags)
{
    try {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            splog_d(QStringLiteral("[TImageRead]: Cannot open file: %1").arg(path));
            return {};
        }
        const qint64 size = file.size();
        if (size < 0) {
            splog_d(QStringLiteral("[TImageRead]: Failed to get file size: %1").arg(path));
            return {};
        }
        if (size == 0 || size > kMaxMemoryReadBytes) {
            splog_d(QStringLiteral("[TImageRead]: File too large or empty: %1").arg(path));
            return {};
        }
        std::vector<uchar> buffer;
        try {
            buffer.resize(size_t(size));
        } catch (const std::bad_alloc &) {
            splog_d(QStringLiteral("[TImageRead]: Memory allocation failed: %1").arg(path));
            return {};
        }
        if (file.read(reinterpret_cast<char *>(buffer.data()), size) != size) {
            splog_d(QStringLiteral("[TImageRead]: ReadFile failed: %1").arg(path));
            return {};
        }
        cv::Mat mat = cv::imdecode(buffer, flags);
        if (mat.empty())
            splog_d(QStringLiteral("[TImageRead]: imdecode returned empty: %1").arg(path));
        return mat;
    } catch (const std::exception &e) {
        splog_d(QStringLiteral("[TImageRead]: Exception: %1 | File: %2")
                    .arg(QString::fromLocal8Bit(e.what()), path));
    } catch (...) {
        splog_d(QStringLiteral("[TImageRead]: Unknown exception occurred: %1").arg(path));
    }
    return {};
}

cv::Mat TReadImage::readOrdinary(const QString &path)
{
    // A full decode of a huge picture would allocate its whole size; the header says
    // beforehand, and such files go to the decoders that reduce while decoding: JPEG
    // through the 1/8 read, everything else through the image reader (with its refusal).
    const QSize header = headerSize(path);
    const bool huge
        = header.isValid() && qint64(header.width()) * header.height() > kMaxFullReadPixels;
    cv::Mat mat;
    if (!huge)
        mat = fullRead(path);
    else
        splog_d(QStringLiteral("[TReadImage]: Large image, skip full read. File: %1, Size: %2x%3")
                    .arg(path)
                    .arg(header.width())
                    .arg(header.height()));
    if (mat.empty() && (!huge || isJpegFile(path)))
        mat = reducedRead(path);
    if (mat.empty())
        mat = qtReaderRead(path);
    return mat;
}

cv::Mat TReadImage::readRaw(const QString &path)
{
    cv::Mat mat;
    std::unique_ptr<LibRaw> raw;
    try {
        raw = std::make_unique<LibRaw>(0);
#ifdef _WIN32
        const int openResult = raw->open_file(reinterpret_cast<const wchar_t *>(path.utf16()));
#else
        const int openResult = raw->open_file(QFile::encodeName(path).constData());
#endif
        if (openResult != LIBRAW_SUCCESS) {
            splog_d(QStringLiteral("[TReadImage]: LibRaw open_file failed,error code %1. fies:%2")
                        .arg(openResult)
                        .arg(path));
            return {};
        }
        if (raw->unpack_thumb() != LIBRAW_SUCCESS) {
            splog_d(QStringLiteral("[TReadImage]: LibRaw unpack_thumb failed. fies:%1").arg(path));
            return {};
        }
        const libraw_thumbnail_t &thumb = raw->imgdata.thumbnail;
        switch (thumb.tformat) {
        case LIBRAW_THUMBNAIL_JPEG:
            if (thumb.thumb && thumb.tlength > 0) {
                const cv::Mat buffer(1, int(thumb.tlength), CV_8UC1, thumb.thumb);
                mat = cv::imdecode(buffer, cv::IMREAD_COLOR);
            }
            break;
        case LIBRAW_THUMBNAIL_BITMAP: {
            const int w = thumb.twidth;
            const int h = thumb.theight;
            const int colors = thumb.tcolors;
            if (thumb.thumb && w > 0 && h > 0 && (colors == 3 || colors == 1)
                && qint64(thumb.tlength) >= qint64(w) * h * colors) {
                const cv::Mat rgb(h, w, colors == 3 ? CV_8UC3 : CV_8UC1, thumb.thumb);
                cv::cvtColor(rgb, mat, colors == 3 ? cv::COLOR_RGB2BGR : cv::COLOR_GRAY2BGR);
            }
            break;
        }
        case LIBRAW_THUMBNAIL_UNKNOWN:
            splog_d(QStringLiteral("[TReadImage]: LIBRAW_THUMBNAIL_UNKNOWN. fies:%1").arg(path));
            break;
        default:
            splog_d(QStringLiteral("[TReadImage]: UNKNOWN. fies:%1").arg(path));
            break;
        }
    } catch (const std::exception &e) {
        mat.release();
        splog_d(QStringLiteral("[TReadImage]: LibRaw exception: %1. fies:%2")
                    .arg(QString::fromLocal8Bit(e.what()), path));
    } catch (...) {
        mat.release();
        splog_d(QStringLiteral("[TReadImage]: LibRaw unknown exception. fies:%1").arg(path));
    }
    // The LibRaw object frees its buffers (recycle) in its destructor.
    return mat;
}

cv::Mat TReadImage::readHeif(const QString &path)
{
    heif_context *context = heif_context_alloc();
    heif_image_handle *primary = nullptr;
    heif_image_handle *thumbHandle = nullptr;
    heif_image *image = nullptr;
    cv::Mat mat;
    const QByteArray file = QFile::encodeName(path);
    // One exit, so that every handle and image is released on every path.
    [&] {
        if (!context)
            return;
        heif_error err = heif_context_read_from_file(context, file.constData(), nullptr);
        if (err.code != heif_error_Ok) {
            splog_d(QStringLiteral("[TReadImage]: Failed to read HEIF. message=%1. fies:%2")
                        .arg(QString::fromUtf8(err.message), path));
            return;
        }
        err = heif_context_get_primary_image_handle(context, &primary);
        if (err.code != heif_error_Ok || !primary) {
            splog_d(QStringLiteral("[TReadImage]: Failed to get primary image handle:=%1. fies:%2")
                        .arg(QString::fromUtf8(err.message), path));
            return;
        }
        if (heif_image_handle_get_number_of_thumbnails(primary) > 0) {
            heif_item_id id = 0;
            if (heif_image_handle_get_list_of_thumbnail_IDs(primary, &id, 1) != 1) {
                splog_d(
                    QStringLiteral("[TReadImage]: Failed to get thumbnail IDs. fies:%1").arg(path));
                return;
            }
            err = heif_image_handle_get_thumbnail(primary, id, &thumbHandle);
            if (err.code != heif_error_Ok || !thumbHandle) {
                splog_d(QStringLiteral("[TReadImage]: Failed to get thumbnail handle. fies:%1")
                            .arg(path));
                return;
            }
            err = heif_decode_image(
                thumbHandle, &image, heif_colorspace_RGB, heif_chroma_interleaved_RGB, nullptr);
            if (err.code != heif_error_Ok) {
                splog_d(
                    QStringLiteral("[TReadImage]: Failed to decode thumbnail. message=%1. fies:%2")
                        .arg(QString::fromUtf8(err.message), path));
                return;
            }
        } else {
            err = heif_decode_image(
                primary, &image, heif_colorspace_RGB, heif_chroma_interleaved_RGB, nullptr);
            if (err.code != heif_error_Ok) {
                splog_d(QStringLiteral("[TReadImage]: Failed to decode primary image. message=%1. "
                                       "fies:%2")
                            .arg(QString::fromUtf8(err.message), path));
                return;
            }
        }
        if (!image) {
            splog_d(QStringLiteral("[TReadImage]: Image is nullptr. fies:%1").arg(path));
            return;
        }
        int stride = 0;
        const uint8_t *plane
            = heif_image_get_plane_readonly(image, heif_channel_interleaved, &stride);
        const int w = heif_image_get_width(image, heif_channel_interleaved);
        const int h = heif_image_get_height(image, heif_channel_interleaved);
        if (!plane || w <= 0 || h <= 0 || stride < w * 3) {
            splog_d(QStringLiteral("[TReadImage]: Failed to get image plane or invalid image size. "
                                   "fies:%1")
                        .arg(path));
            return;
        }
        try {
            const cv::Mat rgb(h, w, CV_8UC3, const_cast<uint8_t *>(plane), size_t(stride));
            cv::cvtColor(rgb, mat, cv::COLOR_RGB2BGR);
        } catch (...) {
            mat.release();
            splog_d(QStringLiteral("[TReadImage]: Failed to get image plane or invalid image size. "
                                   "fies:%1")
                        .arg(path));
        }
    }();
    if (image)
        heif_image_release(image);
    if (thumbHandle)
        heif_image_handle_release(thumbHandle);
    if (primary)
        heif_image_handle_release(primary);
    if (context)
        heif_context_free(context);
    return mat;
}

cv::Mat TReadImage::resizeToWorkingSize(const cv::Mat &mat)
{
    if (mat.empty())
        return mat;
    const int w = mat.cols;
    const int h = mat.rows;
    if (w <= 0 || h <= 0) {
        splog_d(QStringLiteral("[TReadImage]: Invalid image size, skip resize."));
        return mat;
    }
    if (w <= kWorkingSize && h <= kWorkingSize)
        return mat;
    const double scale = std::min(double(kWorkingSize) / w, double(kWorkingSize) / h);
    // The tiny margin keeps exact quotients (4000 x 0.256) from truncating one short.
    const int nw = std::max(1, int(w * scale + 1e-9));
    const int nh = std::max(1, int(h * scale + 1e-9));
    try {
        cv::Mat out;
        cv::resize(mat, out, cv::Size(nw, nh), 0, 0, cv::INTER_AREA);
        splog_d(QStringLiteral("[TReadImage]: Resized image from %1x%2 to %3x%4")
                    .arg(w)
                    .arg(h)
                    .arg(nw)
                    .arg(nh));
        return out;
    } catch (const cv::Exception &e) {
        splog_d(QStringLiteral("[TReadImage]: cv::resize failed: %1").arg(cvMessage(e)));
    } catch (const std::exception &e) {
        splog_d(QStringLiteral("[TReadImage]: cv::resize failed: %1")
                    .arg(QString::fromLocal8Bit(e.what())));
    }
    return {};
}

cv::Mat TReadImage::readImage(const QString &path, int *width, int *height)
{
    if (width)
        *width = 0;
    if (height)
        *height = 0;
    const QString suffix = QFileInfo(path).suffix();
    cv::Mat mat;
    if (isRawFormat(suffix))
        mat = readRaw(path);
    else if (isHeifFormat(suffix) && hasFtypBox(path))
        mat = readHeif(path);
    else
        mat = readOrdinary(path);
    if (mat.empty())
        return {};
    if (mat.type() != CV_8UC3) {
        try {
            cv::Mat converted;
            if (mat.channels() == 1)
                cv::cvtColor(mat, converted, cv::COLOR_GRAY2BGR);
            else if (mat.channels() == 4)
                cv::cvtColor(mat, converted, cv::COLOR_BGRA2BGR);
            mat = converted;
        } catch (...) {
            mat.release();
        }
        if (mat.empty() || mat.type() != CV_8UC3)
            return {};
    }
    if (width)
        *width = mat.cols;
    if (height)
        *height = mat.rows;
    return resizeToWorkingSize(mat);
}

QImage TReadImage::mat2QImage(const cv::Mat &mat)
{
    try {
        switch (mat.type()) {
        case CV_8UC1:
            return QImage(mat.data, mat.cols, mat.rows, int(mat.step), QImage::Format_Grayscale8)
                .copy();
        case CV_8UC3:
            return QImage(mat.data, mat.cols, mat.rows, int(mat.step), QImage::Format_BGR888)
                .copy();
        case CV_8UC4:
            return QImage(mat.data, mat.cols, mat.rows, int(mat.step), QImage::Format_ARGB32)
                .copy();
        default:
            splog_d(QStringLiteral("[TReadImage]: mat2QImage: Unsupported cv::Mat type: %1")
                        .arg(mat.type()));
            return {};
        }
    } catch (const std::exception &e) {
        splog_d(QStringLiteral("[TReadImage]: mat2QImage exception: %1")
                    .arg(QString::fromLocal8Bit(e.what())));
    }
    return {};
}

cv::Mat TReadImage::qimage2Mat(const QImage &image)
{
    try {
        const QImage rgb = image.convertToFormat(QImage::Format_RGB888);
        cv::Mat result;
        if (!rgb.isNull()) {
            // Row stride taken from the image: QImage pads rows to 4 bytes.
            const cv::Mat view(rgb.height(), rgb.width(), CV_8UC3,
                const_cast<uchar *>(rgb.constBits()), size_t(rgb.bytesPerLine()));
            cv::cvtColor(view, result, cv::COLOR_RGB2BGR);
        }
        if (result.empty())
            splog_d(QStringLiteral("[TReadImage]: qimage2Mat: result is empty!"));
        return result;
    } catch (const std::exception &e) {
        splog_d(QStringLiteral("[TReadImage]: qimage2Mat exception: %1")
                    .arg(QString::fromLocal8Bit(e.what())));
    }
    return {};
}
