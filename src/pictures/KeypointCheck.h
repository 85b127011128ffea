// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <opencv2/core.hpp>
#include <vector>

// The robust measure's geometric check of a pair whose hashes came close: ORB key points
// of both pictures, matched with the ratio test, must agree on one similarity transform
// (turn, scale, shift; RANSAC) for many points spread over a good part of both frames. A
// copy cropped, turned or scaled keeps its points where the transform puts them; two shots
// of one scene, or a collage holding a tile of the picture, agree only in part of the frame
// or not at all.
class KeypointCheck
{
public:
    // Long side of the grey picture the points are found on (small copies are enlarged).
    static constexpr int kCheckSide = 512;

    struct Features
    {
        std::vector<cv::Point2f> points;
        cv::Mat descriptors;
        cv::Size size;
        bool empty() const { return descriptors.empty(); }
    };
    struct Verdict
    {
        bool same = false;
        // Matches that agree with the transform found.
        int inliers = 0;
        // Share of the smaller frame covered by the agreeing points (their bounding box).
        double cover = 0.0;
    };

    // Features of a grey picture, brought to the check size first.
    static Features featuresOf(const cv::Mat &grey);
    static Verdict compare(const Features &a, const Features &b);
};
