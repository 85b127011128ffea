// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <opencv2/core.hpp>

#include <QImage>
#include <QString>

// The one reading routine for pictures: the similar-image comparison and the thumbnails
// of the result views both go through readImage. Every result is a 3-channel 8-bit matrix
// in OpenCV's BGR order, never larger than the working size on a side; an empty matrix
// means the file could not be decoded (the reason is in the log). Nothing here throws.
class TReadImage
{
public:
    // Longest side of a picture as it is kept for comparing.
    static constexpr int kWorkingSize = 1024;
    // The last-resort reader refuses pictures with more pixels than this.
    static constexpr qint64 kMaxReaderPixels = 100000000;
    // Above this many pixels (per the file header) a full-size decode is not attempted:
    // the reduced or scaled decoders keep the buffer near the working size.
    static constexpr qint64 kMaxFullReadPixels = 50000000;
    // Files larger than this are not read whole into memory.
    static constexpr qint64 kMaxMemoryReadBytes = qint64(1) << 31;

    // Why a file gave no picture. Memory is named only when an allocation really failed:
    // a broken file is far more common, and blaming memory sends the reader of the log
    // the wrong way.
    enum class Failure {
        None,
        Empty,
        CannotOpen,
        NotAPicture,
        DecoderRefused,
        Truncated,
        TooLarge,
        OutOfMemory,
        ResizeFailed,
    };
    // Short text of a failure for log lines ("truncated", "file empty", ...).
    static const char *failureText(Failure failure);

    // Reads any supported picture (camera raw preview, HEIF/HEIC, ordinary formats) and
    // brings it to the working size. width/height receive the size of the picture as it
    // was decoded (before the working-size reduction); 0 on failure, and failure then
    // says why.
    static cv::Mat readImage(const QString &path, int *width = nullptr, int *height = nullptr,
        Failure *failure = nullptr);

    // What can be told about a file before decoding it: empty, unopenable, or a JPEG, PNG
    // or WebP whose own structure shows that its end is missing. Decoders fill the
    // missing part of a truncated JPEG with grey, and two such files then look alike;
    // they are refused here instead. None when nothing is known to be wrong.
    static Failure inspectFile(const QString &path);
    // True when the file starts with the signature of a picture format.
    static bool hasPictureSignature(const QString &path);

    // The readers below leave failure untouched unless they know better than "no
    // picture" (too large, out of memory).
    // Ordinary formats: OpenCV full read, OpenCV 1/8 reduced read, Qt's image reader.
    // Not yet reduced to the working size.
    static cv::Mat readOrdinary(const QString &path, Failure *failure = nullptr);
    // Embedded preview of a camera raw file through LibRaw.
    static cv::Mat readRaw(const QString &path, Failure *failure = nullptr);
    // First thumbnail, else the primary image, of a HEIF/HEIC file through libheif.
    static cv::Mat readHeif(const QString &path, Failure *failure = nullptr);
    // Whole file into memory, then cv::imdecode with the given flags (paths the codec
    // library cannot open by name).
    static cv::Mat imreadThroughMemory(const QString &path, int flags, Failure *failure = nullptr);

    // The picture's size as its header gives it; invalid when the header cannot be read.
    static QSize headerSize(const QString &path);
    // cv::imread with flags, through memory for paths the codec library cannot open.
    static cv::Mat imreadFlags(const QString &path, int flags, Failure *failure = nullptr);
    // True when the file starts with a JPEG's start-of-image marker.
    static bool isJpegFile(const QString &path);
    // True when the file's first 12 bytes hold the "ftyp" box of the ISO media format.
    static bool hasFtypBox(const QString &path);
    // Paths that do not survive the codec library's narrow-character file opening.
    static bool needsMemoryRoute(const QString &path);

    // Scales by min(1024 / width, 1024 / height) with area interpolation when a side
    // exceeds the working size; otherwise returns the matrix unchanged.
    static cv::Mat resizeToWorkingSize(const cv::Mat &mat);

    // Conversions for the thumbnails (8-bit 1, 3 (BGR) or 4 (BGRA) channels).
    static QImage mat2QImage(const cv::Mat &mat);
    // Any QImage to a 3-channel BGR matrix (deep copy).
    static cv::Mat qimage2Mat(const QImage &image);
};
