// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/GreyPictureReader.h"

#include "app/FileTypeCatalogue.h"

#include <algorithm>
#include <cmath>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>

#include <QFileInfo>
#include <QSize>

namespace {

// The coarsest DCT scale that keeps the long side at least longSide.
int reducedFlag(const QSize &size, int longSide)
{
    const int side = std::max(size.width(), size.height());
    if (side / 8 >= longSide)
        return cv::IMREAD_REDUCED_GRAYSCALE_8;
    if (side / 4 >= longSide)
        return cv::IMREAD_REDUCED_GRAYSCALE_4;
    if (side / 2 >= longSide)
        return cv::IMREAD_REDUCED_GRAYSCALE_2;
    return cv::IMREAD_GRAYSCALE;
}

cv::Mat greyOf(const cv::Mat &mat)
{
    if (mat.empty() || mat.channels() == 1)
        return mat;
    cv::Mat grey;
    cv::cvtColor(mat, grey, mat.channels() == 4 ? cv::COLOR_BGRA2GRAY : cv::COLOR_BGR2GRAY);
    return grey;
}

} // namespace

cv::Mat GreyPictureReader::fit(const cv::Mat &grey, int longSide)
{
    const int side = std::max(grey.cols, grey.rows);
    if (grey.empty() || side <= longSide)
        return grey;
    const double scale = double(longSide) / side;
    cv::Mat out;
    cv::resize(grey, out,
        cv::Size(std::max(1, int(std::lround(grey.cols * scale))),
            std::max(1, int(std::lround(grey.rows * scale)))),
        0, 0, cv::INTER_AREA);
    return out;
}

cv::Mat GreyPictureReader::read(
    const QString &path, int longSide, int *width, int *height, TReadImage::Failure *failure)
{
    if (width)
        *width = 0;
    if (height)
        *height = 0;
    const QString suffix = QFileInfo(path).suffix();
    cv::Mat grey;
    QSize size;
    if (!isRawFormat(suffix) && !isHeifFormat(suffix) && TReadImage::isJpegFile(path)) {
        // The structure check first: the decoder fills a truncated JPEG's end with grey,
        // and two such files would measure alike.
        const TReadImage::Failure why = TReadImage::inspectFile(path);
        if (why != TReadImage::Failure::None) {
            if (failure)
                *failure = why;
            return {};
        }
        size = TReadImage::headerSize(path);
        if (size.isValid()
            && qint64(size.width()) * size.height() <= TReadImage::kMaxFullReadPixels) {
            try {
                grey = TReadImage::imreadFlags(path, reducedFlag(size, longSide), failure);
            } catch (const cv::Exception &) {
                grey.release();
            } catch (const std::bad_alloc &) {
                grey.release();
            }
        }
    }
    int w = size.width();
    int h = size.height();
    if (grey.empty()) {
        // Everything else, and a JPEG the scaled decode refused, through the one routine.
        TReadImage::Failure why = TReadImage::Failure::None;
        grey = greyOf(TReadImage::readImage(path, &w, &h, &why));
        if (grey.empty()) {
            if (failure)
                *failure = why;
            return {};
        }
    } else if ((grey.cols > grey.rows) != (w > h)) {
        // The decoder turned the picture by its orientation tag.
        std::swap(w, h);
    }
    if (width)
        *width = w;
    if (height)
        *height = h;
    if (failure)
        *failure = TReadImage::Failure::None;
    return fit(grey, longSide);
}
