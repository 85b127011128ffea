// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/KeypointCheck.h"

#include <algorithm>
#include <cmath>
#include <opencv2/calib3d.hpp>
#include <opencv2/features2d.hpp>
#include <opencv2/imgproc.hpp>

namespace {

constexpr int kFeatures = 1000;
// Lowe's ratio: the best match must be clearly better than the second best.
constexpr float kRatio = 0.8f;
constexpr double kRansacPixels = 4.0;
constexpr int kMinInliers = 20;
constexpr double kMinCover = 0.30;
// A copy is at most this much larger or smaller, once both are at the check size.
constexpr double kMaxScale = 3.0;

double coverOf(const std::vector<cv::Point2f> &points, const cv::Size &size)
{
    if (points.size() < 3 || size.area() == 0)
        return 0.0;
    const cv::Rect2f box = cv::boundingRect(points);
    return double(box.width) * box.height / (double(size.width) * size.height);
}

} // namespace

KeypointCheck::Features KeypointCheck::featuresOf(const cv::Mat &grey)
{
    Features features;
    if (grey.empty())
        return features;
    const double scale = double(kCheckSide) / std::max(grey.cols, grey.rows);
    cv::Mat picture;
    cv::resize(grey, picture,
        cv::Size(std::max(1, int(std::lround(grey.cols * scale))),
            std::max(1, int(std::lround(grey.rows * scale)))),
        0, 0, scale < 1.0 ? cv::INTER_AREA : cv::INTER_LINEAR);
    // Small patches and a low corner threshold: the pictures are small, and a copy cut down
    // to a quarter of its size must still give enough points.
    const cv::Ptr<cv::ORB> orb
        = cv::ORB::create(kFeatures, 1.2f, 8, 15, 0, 2, cv::ORB::HARRIS_SCORE, 15, 10);
    std::vector<cv::KeyPoint> keyPoints;
    orb->detectAndCompute(picture, cv::noArray(), keyPoints, features.descriptors);
    features.points.reserve(keyPoints.size());
    for (const cv::KeyPoint &point : keyPoints)
        features.points.push_back(point.pt);
    features.size = picture.size();
    return features;
}

KeypointCheck::Verdict KeypointCheck::compare(const Features &a, const Features &b)
{
    Verdict verdict;
    if (a.descriptors.rows < 8 || b.descriptors.rows < 8)
        return verdict;
    cv::BFMatcher matcher(cv::NORM_HAMMING);
    std::vector<std::vector<cv::DMatch>> knn;
    matcher.knnMatch(a.descriptors, b.descriptors, knn, 2);
    std::vector<cv::Point2f> from;
    std::vector<cv::Point2f> to;
    for (const auto &pair : knn) {
        if (pair.size() == 2 && pair[0].distance < kRatio * pair[1].distance) {
            from.push_back(a.points[size_t(pair[0].queryIdx)]);
            to.push_back(b.points[size_t(pair[0].trainIdx)]);
        }
    }
    if (int(from.size()) < kMinInliers)
        return verdict;
    std::vector<uchar> inlierMask;
    const cv::Mat transform
        = cv::estimateAffinePartial2D(from, to, inlierMask, cv::RANSAC, kRansacPixels, 2000, 0.99);
    if (transform.empty())
        return verdict;
    const double scale = std::hypot(transform.at<double>(0, 0), transform.at<double>(1, 0));
    std::vector<cv::Point2f> inA;
    std::vector<cv::Point2f> inB;
    for (size_t k = 0; k < inlierMask.size(); ++k) {
        if (inlierMask[k]) {
            inA.push_back(from[k]);
            inB.push_back(to[k]);
        }
    }
    verdict.inliers = int(inA.size());
    if (scale < 1.0 / kMaxScale || scale > kMaxScale)
        return verdict;
    verdict.cover = std::min(coverOf(inA, a.size), coverOf(inB, b.size));
    verdict.same = verdict.inliers >= kMinInliers && verdict.cover >= kMinCover;
    return verdict;
}
