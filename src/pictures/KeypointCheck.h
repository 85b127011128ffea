// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <opencv2/core.hpp>
#include <vector>

// The robust measure's check of a pair whose hashes came close. ORB key points of both
// pictures, matched with the ratio test, give one similarity transform (turn, scale, shift;
// RANSAC); the pictures must then agree pixel by pixel under it, over most of the smaller
// one. Key points alone do not tell a copy from a second shot of one scene or a collage
// holding a tile of the picture: those reach hundreds of agreeing points, but their pixels
// differ. A picture with too little texture for key points is aligned by what its hashes
// found instead (the crop that met the other picture), and must agree more closely.
class KeypointCheck
{
public:
    struct Features
    {
        std::vector<cv::Point2f> points;
        cv::Mat descriptors;
    };
    // What the check needs of one picture, prepared once: its key points (at the measure's
    // size), the small grey picture its pixels are compared at, and its size at the measure.
    struct Picture
    {
        Features features;
        cv::Mat small;
        cv::Size size;
        bool empty() const { return small.empty(); }
    };
    struct Verdict
    {
        bool same = false;
        // Matches that agree with the transform (0 when aligned by the hashes).
        int inliers = 0;
        // Normalised correlation of the aligned pixels, 0..1.
        double agreement = 0.0;
        bool alignedByHash = false;
    };

    // Features of a grey picture at the measure's size.
    static Features featuresOf(const cv::Mat &grey);
    static Picture prepare(const cv::Mat &grey);

    // hashTransform maps a onto b as the hashes suggest (2 x 3, CV_64F, at the measure's
    // size), used when the key points give no transform.
    static Verdict compare(const Picture &a, const Picture &b, const cv::Mat &hashTransform);

    // How well a agrees with b once a is moved by transform (a onto b, at the measure's
    // size): the normalised correlation over the overlap; overlap receives the share of the
    // smaller picture covered.
    static double pixelAgreement(
        const Picture &a, const Picture &b, const cv::Mat &transform, double &overlap);
};
