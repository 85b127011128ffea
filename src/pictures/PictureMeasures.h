// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictures/ImageData.h"

#include <opencv2/core.hpp>

// The measures of the similar-picture stage, each of one picture or one pair: the fast
// measures (perceptual hash, colour histogram) and their pair score, the aspect-ratio
// filter, and the ORB feature points with their pair score. Safe on any thread.
class PictureMeasures
{
public:
    // Fast-measure matrix of one decoded picture for the given measure.
    static cv::Mat makeHistogram(const cv::Mat &bgr);
    static cv::Mat makePHash(const cv::Mat &bgr);
    // 1 / (1 + e^(6 (d / 64 - 0.25))) for a Hamming distance d of two 64-bit hashes.
    static double hashSimilarity(int distance);
    // Whether two pictures pass the aspect-ratio filter with the given limit.
    static bool aspectRatioCompatible(int wa, int ha, int wb, int hb, double limit);
    // Pair score of the fast measures, 0..1 (hashMeasure: the pictures carry hashes, else
    // histograms).
    static double compareFast(const ImageData &a, const ImageData &b, bool hashMeasure);

    // ORB descriptors of a picture (copied, resized to at most 512 x 512); empty when the
    // picture is too small or has no key points.
    static cv::Mat computeDescriptors(const cv::Mat &bgr);
    // Pair score of two pictures' descriptors, 0..1.
    static double compareFeatures(const cv::Mat &descriptorsA, const cv::Mat &descriptorsB);
};
