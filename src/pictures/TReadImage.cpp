// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/TReadImage.h"

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
#include <QtEndian>

namespace {

// The log tags of this file.
const QString kTag = QStringLiteral("[TReadImage]: ");
const QString kImageReadTag = QStringLiteral("[TImageRead]: ");

// Records why a reader gave up, unless an earlier step already knew better.
void note(TReadImage::Failure *failure, TReadImage::Failure value)
{
    if (failure && *failure == TReadImage::Failure::None)
        *failure = value;
}

// True when needle occurs in the file at or after offset; read in pieces, so that a large
// file never sits in memory whole.
bool containsFrom(QFile &file, qint64 offset, const QByteArray &needle)
{
    if (!file.seek(offset))
        return false;
    QByteArray carry;
    for (;;) {
        QByteArray piece = file.read(qint64(1) << 20);
        if (piece.isEmpty())
            return false;
        piece.prepend(carry);
        if (piece.contains(needle))
            return true;
        carry = piece.right(needle.size() - 1);
    }
}

// Walks the marker segments to the first scan, then looks for the end-of-image marker
// after it. Entropy-coded data never holds 0xFF 0xD9, so one found there is the end; an
// embedded thumbnail's end lies in a segment before the scan and does not count. A
// structure this walk does not understand is left to the decoders (false).
bool jpegIsTruncated(QFile &file)
{
    const qint64 size = file.size();
    qint64 pos = 2;
    for (;;) {
        if (!file.seek(pos))
            return true;
        const QByteArray marker = file.read(4);
        if (marker.size() < 2)
            return true;
        if (uchar(marker[0]) != 0xFF)
            return false;
        const uchar code = uchar(marker[1]);
        if (code == 0xFF) {
            ++pos; // fill byte
            continue;
        }
        if (code == 0xD9)
            return false;
        if (code == 0x01 || (code >= 0xD0 && code <= 0xD7)) {
            pos += 2;
            continue;
        }
        if (marker.size() < 4)
            return true;
        const int length = (uchar(marker[2]) << 8) | uchar(marker[3]);
        if (length < 2)
            return false;
        pos += 2 + length;
        if (pos > size)
            return true;
        if (code == 0xDA)
            break;
    }
    // Most files end with the marker; search the tail first and the whole scan only when
    // the tail lacks it (data appended after the picture, such as a video).
    const QByteArray end("\xFF\xD9", 2);
    const qint64 tail = std::max(pos, size - 65536);
    if (containsFrom(file, tail, end))
        return false;
    return tail == pos || !containsFrom(file, pos, end);
}

// Follows the chunks to IEND; a chunk running past the end of the file, or no IEND, is
// a cut file.
bool pngIsTruncated(QFile &file)
{
    const qint64 size = file.size();
    qint64 pos = 8;
    for (;;) {
        if (pos + 8 > size || !file.seek(pos))
            return true;
        const QByteArray header = file.read(8);
        if (header.size() < 8)
            return true;
        if (header.mid(4, 4) == "IEND")
            return false;
        const quint32 length = qFromBigEndian<quint32>(header.constData());
        if (length > 0x7FFFFFFFu)
            return false;
        pos += 12 + qint64(length);
        if (pos > size)
            return true;
    }
}

QString cvMessage(const cv::Exception &e)
{
    return QString::fromStdString(e.what());
}

} // namespace

QSize TReadImage::headerSize(const QString &path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return reader.size();
}

cv::Mat TReadImage::imreadFlags(const QString &path, int flags, Failure *failure)
{
    if (TReadImage::needsMemoryRoute(path))
        return TReadImage::imreadThroughMemory(path, flags, failure);
    return cv::imread(QFile::encodeName(path).toStdString(), flags);
}

bool TReadImage::isJpegFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray head = file.read(3);
    return head.size() == 3 && uchar(head[0]) == 0xFF && uchar(head[1]) == 0xD8
        && uchar(head[2]) == 0xFF;
}

namespace {

cv::Mat fullRead(const QString &path, TReadImage::Failure *failure)
{
    cv::Mat mat;
    try {
        mat = TReadImage::imreadFlags(path, cv::IMREAD_COLOR, failure);
        if (!mat.empty())
            splog_d(kTag
                + QStringLiteral("Full read success. File: %1, Size: %2x%3")
                      .arg(path)
                      .arg(mat.cols)
                      .arg(mat.rows));
    } catch (const cv::Exception &e) {
        mat.release();
        splog_repeated("[TReadImage]: cv::imread Exception full read",
            kTag
                + QStringLiteral("cv::imread Exception full read. File: %1, Error: %2")
                      .arg(path, cvMessage(e)));
    } catch (const std::bad_alloc &) {
        mat.release();
        note(failure, TReadImage::Failure::OutOfMemory);
        splog_repeated("[TReadImage]: cv::imread Out of memory full read",
            kTag + QStringLiteral("cv::imread Out of memory full read. File: %1").arg(path));
    } catch (...) {
        mat.release();
        splog_repeated("[TReadImage]: Unknown exception full read",
            kTag + QStringLiteral("Unknown exception full read. File: %1").arg(path));
    }
    return mat;
}

cv::Mat reducedRead(const QString &path, TReadImage::Failure *failure)
{
    cv::Mat mat;
    // Only an allocation that failed is reported as memory; a file the decoder cannot
    // make sense of gives an empty result or a library exception.
    try {
        mat = TReadImage::imreadFlags(path, cv::IMREAD_REDUCED_COLOR_8, failure);
    } catch (const std::bad_alloc &) {
        mat.release();
        note(failure, TReadImage::Failure::OutOfMemory);
        splog_repeated("[TReadImage]: Exception or out of memory on reduced read",
            kTag
                + QStringLiteral("Exception or out of memory on reduced read. File: %1").arg(path));
        return mat;
    } catch (const cv::Exception &e) {
        mat.release();
        splog_repeated("[TReadImage]: cv::imread Exception reduced read",
            kTag
                + QStringLiteral("cv::imread Exception reduced read. File: %1, Error: %2")
                      .arg(path, cvMessage(e)));
        return mat;
    } catch (...) {
        mat.release();
        splog_repeated("[TReadImage]: Unknown exception reduced read",
            kTag + QStringLiteral("Unknown exception reduced read. File: %1").arg(path));
        return mat;
    }
    if (mat.empty())
        splog_repeated("[TReadImage]: Reduced read gave no picture",
            kTag + QStringLiteral("Reduced read gave no picture. File: %1").arg(path));
    else
        splog_d(kTag
            + QStringLiteral("Reduced read success (1/8). File: %1, Size: %2x%3")
                  .arg(path)
                  .arg(mat.cols)
                  .arg(mat.rows));
    return mat;
}

cv::Mat qtReaderRead(const QString &path, TReadImage::Failure *failure)
{
    try {
        QImageReader reader(path);
        reader.setDecideFormatFromContent(true);
        const QSize size = reader.size();
        splog_repeated("[TReadImage]: QImageReader size",
            kTag
                + QStringLiteral("QImageReader size. File: %1, Size: %2x%3")
                      .arg(path)
                      .arg(size.width())
                      .arg(size.height()));
        if (size.isValid() && qint64(size.width()) * size.height() > TReadImage::kMaxReaderPixels) {
            note(failure, TReadImage::Failure::TooLarge);
            splog_repeated("[TReadImage]: Image too large, skip",
                kTag
                    + QStringLiteral("Image too large, skip. File: %1, Size: %2x%3")
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
            splog_d(kTag
                + QStringLiteral("QImageReader scaled size. File: %1, Scaled Size: "
                                 "%2x%3")
                      .arg(path)
                      .arg(scaled.width())
                      .arg(scaled.height()));
        }
        QImage image;
        if (!reader.read(&image) || image.isNull()) {
            splog_repeated("[TReadImage]: QImageReader failed",
                kTag + QStringLiteral("QImageReader failed. File: %1").arg(path));
            return {};
        }
        return TReadImage::qimage2Mat(image);
    } catch (const std::bad_alloc &) {
        note(failure, TReadImage::Failure::OutOfMemory);
    } catch (...) { }
    splog_repeated("[TReadImage]: QImageReader failed",
        kTag + QStringLiteral("QImageReader failed. File: %1").arg(path));
    return {};
}

} // namespace

const char *TReadImage::failureText(Failure failure)
{
    switch (failure) {
    case Failure::None:
        return "read";
    case Failure::Empty:
        return "file empty";
    case Failure::CannotOpen:
        return "cannot open the file";
    case Failure::NotAPicture:
        return "not a picture";
    case Failure::DecoderRefused:
        return "the decoder refused it";
    case Failure::Truncated:
        return "truncated";
    case Failure::TooLarge:
        return "too large";
    case Failure::OutOfMemory:
        return "out of memory";
    case Failure::ResizeFailed:
        return "could not be reduced to the working size";
    }
    return "unknown";
}

TReadImage::Failure TReadImage::inspectFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Failure::CannotOpen;
    const qint64 size = file.size();
    if (size == 0)
        return Failure::Empty;
    const QByteArray head = file.read(12);
    if (head.startsWith("\xFF\xD8\xFF"))
        return jpegIsTruncated(file) ? Failure::Truncated : Failure::None;
    if (head.startsWith("\x89PNG\r\n\x1A\n"))
        return pngIsTruncated(file) ? Failure::Truncated : Failure::None;
    if (head.size() == 12 && head.startsWith("RIFF") && head.mid(8, 4) == "WEBP") {
        const quint32 riffSize = qFromLittleEndian<quint32>(head.constData() + 4);
        return size < qint64(riffSize) + 8 ? Failure::Truncated : Failure::None;
    }
    return Failure::None;
}

bool TReadImage::hasPictureSignature(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray head = file.peek(12);
    // JPEG, PNG, GIF, BMP, TIFF (both byte orders), JPEG 2000.
    static const QByteArray kSignatures[]
        = {QByteArray("\xFF\xD8\xFF"), QByteArray("\x89PNG"), QByteArray("GIF8"), QByteArray("BM"),
            QByteArray("II*\0", 4), QByteArray("MM\0*", 4), QByteArray("\0\0\0\x0CjP", 6)};
    for (const QByteArray &signature : kSignatures) {
        if (head.startsWith(signature))
            return true;
    }
    // WebP inside RIFF; HEIF and AVIF by their "ftyp" box.
    if (head.size() >= 12 && head.startsWith("RIFF") && head.mid(8, 4) == "WEBP")
        return true;
    if (head.size() >= 12 && head.mid(4, 4) == "ftyp")
        return true;
    // Everything else Qt's readers recognise by content (PNM, ICO, ...).
    return !QImageReader::imageFormat(&file).isEmpty();
}

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

cv::Mat TReadImage::imreadThroughMemory(const QString &path, int flags, Failure *failure)
{
    try {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            note(failure, Failure::CannotOpen);
            splog_repeated("[TImageRead]: Cannot open file",
                kImageReadTag + QStringLiteral("Cannot open file: %1").arg(path));
            return {};
        }
        const qint64 size = file.size();
        if (size < 0) {
            note(failure, Failure::CannotOpen);
            splog_repeated("[TImageRead]: Failed to get file size",
                kImageReadTag + QStringLiteral("Failed to get file size: %1").arg(path));
            return {};
        }
        if (size == 0 || size > kMaxMemoryReadBytes) {
            note(failure, size == 0 ? Failure::Empty : Failure::TooLarge);
            splog_repeated("[TImageRead]: File too large or empty",
                kImageReadTag + QStringLiteral("File too large or empty: %1").arg(path));
            return {};
        }
        std::vector<uchar> buffer;
        try {
            buffer.resize(size_t(size));
        } catch (const std::bad_alloc &) {
            note(failure, Failure::OutOfMemory);
            splog_repeated("[TImageRead]: Memory allocation failed",
                kImageReadTag + QStringLiteral("Memory allocation failed: %1").arg(path));
            return {};
        }
        if (file.read(reinterpret_cast<char *>(buffer.data()), size) != size) {
            note(failure, Failure::CannotOpen);
            splog_repeated("[TImageRead]: ReadFile failed",
                kImageReadTag + QStringLiteral("ReadFile failed: %1").arg(path));
            return {};
        }
        cv::Mat mat = cv::imdecode(buffer, flags);
        if (mat.empty())
            splog_repeated("[TImageRead]: imdecode returned empty",
                kImageReadTag + QStringLiteral("imdecode returned empty: %1").arg(path));
        return mat;
    } catch (const std::bad_alloc &) {
        note(failure, Failure::OutOfMemory);
        splog_repeated("[TImageRead]: Exception",
            kImageReadTag + QStringLiteral("Exception: out of memory | File: %1").arg(path));
    } catch (const std::exception &e) {
        splog_repeated("[TImageRead]: Exception",
            kImageReadTag
                + QStringLiteral("Exception: %1 | File: %2")
                      .arg(QString::fromLocal8Bit(e.what()), path));
    } catch (...) {
        splog_repeated("[TImageRead]: Unknown exception occurred",
            kImageReadTag + QStringLiteral("Unknown exception occurred: %1").arg(path));
    }
    return {};
}

cv::Mat TReadImage::readOrdinary(const QString &path, Failure *failure)
{
    // A full decode of a huge picture would allocate its whole size; the header says
    // beforehand, and such files go to the decoders that reduce while decoding: JPEG
    // through the 1/8 read, everything else through the image reader (with its refusal).
    const QSize header = headerSize(path);
    const bool huge
        = header.isValid() && qint64(header.width()) * header.height() > kMaxFullReadPixels;
    cv::Mat mat;
    if (!huge)
        mat = fullRead(path, failure);
    else
        splog_d(kTag
            + QStringLiteral("Large image, skip full read. File: %1, Size: %2x%3")
                  .arg(path)
                  .arg(header.width())
                  .arg(header.height()));
    if (mat.empty() && (!huge || TReadImage::isJpegFile(path)))
        mat = reducedRead(path, failure);
    if (mat.empty())
        mat = qtReaderRead(path, failure);
    return mat;
}

cv::Mat TReadImage::readRaw(const QString &path, Failure *failure)
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
            if (openResult == LIBRAW_UNSUFFICIENT_MEMORY)
                note(failure, Failure::OutOfMemory);
            else if (openResult == LIBRAW_TOO_BIG)
                note(failure, Failure::TooLarge);
            splog_repeated("[TReadImage]: LibRaw open_file failed",
                kTag
                    + QStringLiteral("LibRaw open_file failed,error code %1. fies:%2")
                          .arg(openResult)
                          .arg(path));
            return {};
        }
        const int unpackResult = raw->unpack_thumb();
        if (unpackResult != LIBRAW_SUCCESS) {
            if (unpackResult == LIBRAW_UNSUFFICIENT_MEMORY)
                note(failure, Failure::OutOfMemory);
            splog_repeated("[TReadImage]: LibRaw unpack_thumb failed",
                kTag + QStringLiteral("LibRaw unpack_thumb failed. fies:%1").arg(path));
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
            splog_repeated("[TReadImage]: LIBRAW_THUMBNAIL_UNKNOWN",
                kTag + QStringLiteral("LIBRAW_THUMBNAIL_UNKNOWN. fies:%1").arg(path));
            break;
        default:
            splog_repeated(
                "[TReadImage]: UNKNOWN", kTag + QStringLiteral("UNKNOWN. fies:%1").arg(path));
            break;
        }
    } catch (const std::bad_alloc &) {
        mat.release();
        note(failure, Failure::OutOfMemory);
        splog_repeated("[TReadImage]: LibRaw exception",
            kTag + QStringLiteral("LibRaw exception: out of memory. fies:%1").arg(path));
    } catch (const std::exception &e) {
        mat.release();
        splog_repeated("[TReadImage]: LibRaw exception",
            kTag
                + QStringLiteral("LibRaw exception: %1. fies:%2")
                      .arg(QString::fromLocal8Bit(e.what()), path));
    } catch (...) {
        mat.release();
        splog_repeated("[TReadImage]: LibRaw unknown exception",
            kTag + QStringLiteral("LibRaw unknown exception. fies:%1").arg(path));
    }
    // The LibRaw object frees its buffers (recycle) in its destructor.
    return mat;
}

cv::Mat TReadImage::readHeif(const QString &path, Failure *failure)
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
        // The one libheif error that is about memory; every other one is about the file.
        const auto failed = [failure](const heif_error &error) {
            if (error.code == heif_error_Memory_allocation_error)
                note(failure, Failure::OutOfMemory);
        };
        heif_error err = heif_context_read_from_file(context, file.constData(), nullptr);
        if (err.code != heif_error_Ok) {
            failed(err);
            splog_repeated("[TReadImage]: Failed to read HEIF",
                kTag
                    + QStringLiteral("Failed to read HEIF. message=%1. fies:%2")
                          .arg(QString::fromUtf8(err.message), path));
            return;
        }
        err = heif_context_get_primary_image_handle(context, &primary);
        if (err.code != heif_error_Ok || !primary) {
            failed(err);
            splog_repeated("[TReadImage]: Failed to get primary image handle",
                kTag
                    + QStringLiteral("Failed to get primary image handle:=%1. fies:%2")
                          .arg(QString::fromUtf8(err.message), path));
            return;
        }
        if (heif_image_handle_get_number_of_thumbnails(primary) > 0) {
            heif_item_id id = 0;
            if (heif_image_handle_get_list_of_thumbnail_IDs(primary, &id, 1) != 1) {
                splog_repeated("[TReadImage]: Failed to get thumbnail IDs",
                    kTag + QStringLiteral("Failed to get thumbnail IDs. fies:%1").arg(path));
                return;
            }
            err = heif_image_handle_get_thumbnail(primary, id, &thumbHandle);
            if (err.code != heif_error_Ok || !thumbHandle) {
                failed(err);
                splog_repeated("[TReadImage]: Failed to get thumbnail handle",
                    kTag + QStringLiteral("Failed to get thumbnail handle. fies:%1").arg(path));
                return;
            }
            err = heif_decode_image(
                thumbHandle, &image, heif_colorspace_RGB, heif_chroma_interleaved_RGB, nullptr);
            if (err.code != heif_error_Ok) {
                failed(err);
                splog_repeated("[TReadImage]: Failed to decode thumbnail",
                    kTag
                        + QStringLiteral("Failed to decode thumbnail. message=%1. fies:%2")
                              .arg(QString::fromUtf8(err.message), path));
                return;
            }
        } else {
            err = heif_decode_image(
                primary, &image, heif_colorspace_RGB, heif_chroma_interleaved_RGB, nullptr);
            if (err.code != heif_error_Ok) {
                failed(err);
                splog_repeated("[TReadImage]: Failed to decode primary image",
                    kTag
                        + QStringLiteral("Failed to decode primary image. message=%1. "
                                         "fies:%2")
                              .arg(QString::fromUtf8(err.message), path));
                return;
            }
        }
        if (!image) {
            splog_repeated("[TReadImage]: Image is nullptr",
                kTag + QStringLiteral("Image is nullptr. fies:%1").arg(path));
            return;
        }
        int stride = 0;
        const uint8_t *plane
            = heif_image_get_plane_readonly(image, heif_channel_interleaved, &stride);
        const int w = heif_image_get_width(image, heif_channel_interleaved);
        const int h = heif_image_get_height(image, heif_channel_interleaved);
        if (!plane || w <= 0 || h <= 0 || stride < w * 3) {
            splog_repeated("[TReadImage]: Failed to get image plane or invalid image size",
                kTag
                    + QStringLiteral("Failed to get image plane or invalid image size. "
                                     "fies:%1")
                          .arg(path));
            return;
        }
        try {
            const cv::Mat rgb(h, w, CV_8UC3, const_cast<uint8_t *>(plane), size_t(stride));
            cv::cvtColor(rgb, mat, cv::COLOR_RGB2BGR);
        } catch (...) {
            mat.release();
            splog_repeated("[TReadImage]: Failed to get image plane or invalid image size",
                kTag
                    + QStringLiteral("Failed to get image plane or invalid image size. "
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
        splog_d(kTag + QStringLiteral("Invalid image size, skip resize."));
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
        splog_d(kTag
            + QStringLiteral("Resized image from %1x%2 to %3x%4").arg(w).arg(h).arg(nw).arg(nh));
        return out;
    } catch (const cv::Exception &e) {
        splog_d(kTag + QStringLiteral("cv::resize failed: %1").arg(cvMessage(e)));
    } catch (const std::exception &e) {
        splog_d(
            kTag + QStringLiteral("cv::resize failed: %1").arg(QString::fromLocal8Bit(e.what())));
    }
    return {};
}

cv::Mat TReadImage::readImage(const QString &path, int *width, int *height, Failure *failure)
{
    if (width)
        *width = 0;
    if (height)
        *height = 0;
    const QString suffix = QFileInfo(path).suffix();
    Failure why = inspectFile(path);
    cv::Mat mat;
    if (why == Failure::None) {
        if (isRawFormat(suffix))
            mat = readRaw(path, &why);
        else if (isHeifFormat(suffix) && hasFtypBox(path))
            mat = readHeif(path, &why);
        else
            mat = readOrdinary(path, &why);
    }
    if (!mat.empty() && mat.type() != CV_8UC3) {
        try {
            cv::Mat converted;
            if (mat.channels() == 1)
                cv::cvtColor(mat, converted, cv::COLOR_GRAY2BGR);
            else if (mat.channels() == 4)
                cv::cvtColor(mat, converted, cv::COLOR_BGRA2BGR);
            mat = converted;
        } catch (const std::bad_alloc &) {
            mat.release();
            note(&why, Failure::OutOfMemory);
        } catch (...) {
            mat.release();
        }
        if (!mat.empty() && mat.type() != CV_8UC3)
            mat.release();
    }
    cv::Mat result;
    if (!mat.empty()) {
        result = resizeToWorkingSize(mat);
        if (result.empty())
            note(&why, Failure::ResizeFailed);
    }
    if (result.empty()) {
        // A dedicated reader that failed on a file of its own type was refused by its
        // decoder; an ordinary file nobody could decode may not be a picture at all.
        if (why == Failure::None)
            why = isRawFormat(suffix) || hasPictureSignature(path) ? Failure::DecoderRefused
                                                                   : Failure::NotAPicture;
        if (failure)
            *failure = why;
        return {};
    }
    if (width)
        *width = mat.cols;
    if (height)
        *height = mat.rows;
    if (failure)
        *failure = Failure::None;
    return result;
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
            splog_d(
                kTag + QStringLiteral("mat2QImage: Unsupported cv::Mat type: %1").arg(mat.type()));
            return {};
        }
    } catch (const std::exception &e) {
        splog_d(kTag
            + QStringLiteral("mat2QImage exception: %1").arg(QString::fromLocal8Bit(e.what())));
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
            splog_d(kTag + QStringLiteral("qimage2Mat: result is empty!"));
        return result;
    } catch (const std::exception &e) {
        splog_d(kTag
            + QStringLiteral("qimage2Mat exception: %1").arg(QString::fromLocal8Bit(e.what())));
    }
    return {};
}
