// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictures/TReadImage.h"

#include <opencv2/core.hpp>

#include <QString>

// Reads a picture as a small grey matrix for measuring, as cheaply as the format allows:
// a JPEG is decoded at the coarsest of its DCT scales (1/2, 1/4, 1/8) that still gives the
// long side asked for, which skips most of the decoding work; a HEIF file gives its
// embedded thumbnail; other formats go through the one reading routine. Grey, because a
// grey copy must measure like its colour original.
class GreyPictureReader
{
public:
    // The picture with its long side at most longSide (never enlarged); width and height
    // receive the picture's own size (the header's for a JPEG). Empty on failure, and
    // failure then says why.
    static cv::Mat read(const QString &path, int longSide, int *width = nullptr,
        int *height = nullptr, TReadImage::Failure *failure = nullptr);

    // Scales down with area interpolation so that the long side is at most longSide.
    static cv::Mat fit(const cv::Mat &grey, int longSide);
};
