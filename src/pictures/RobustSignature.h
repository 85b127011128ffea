// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <opencv2/core.hpp>
#include <vector>

#include <QtGlobal>

// The robust measure's signature of one picture: 64-bit perceptual hashes of the grey
// picture as a whole, of its mirror image and of central crops at several sizes and small
// offsets. A copy cut down from the picture looks, as a whole, like one of the picture's
// crops; a mirrored copy like its mirror image. Each hash is taken after an area reduction
// to 32 x 32, so that a large picture does not alias into the hash.
class RobustSignature
{
public:
    enum Variant { Whole = 0, Mirror = 1, FirstCrop = 2 };
    // Long side of the grey picture read for the measure (and for the pair check).
    static constexpr int kHashSide = 256;
    // Long side the hashes are taken at: the crops of a smaller picture lose nothing a
    // 32 x 32 hash could see, and take half the time.
    static constexpr int kHashedSide = 128;

    // Number of hashes in a signature (whole, mirror, every crop).
    static int variantCount();
    // Kept share of each side of a crop variant (1 for the whole and the mirror).
    static double keptShare(int variant);

    // The hashes of a grey picture, in variant order; empty when it is too small to crop.
    static std::vector<quint64> of(const cv::Mat &grey);
    // The grey picture at the hashed size (never enlarged), and that size for a picture of
    // this size.
    static cv::Mat hashPicture(const cv::Mat &grey);
    static cv::Size hashedSize(const cv::Size &size);
    // The part of a picture of this size a variant hashes (all of it for whole and mirror).
    static cv::Rect cropOf(int variant, const cv::Size &size);
    // The 64-bit perceptual hash of a grey picture (or part of one).
    static quint64 hashOf(const cv::Mat &grey);

    // A signature as one row of bytes (the form the picture cache stores), and back.
    static cv::Mat toMat(const std::vector<quint64> &hashes);
    static std::vector<quint64> fromMat(const cv::Mat &mat);
};
