// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/KeypointCheck.h"

#include "pictures/GreyPictureReader.h"

#include <algorithm>
#include <cmath>
#include <opencv2/calib3d.hpp>
#include <opencv2/features2d.hpp>
#include <opencv2/imgproc.hpp>

namespace {

constexpr int kFeatures = 500;
// Lowe's ratio: the best match must be clearly better than the second best.
constexpr float kRatio = 0.8f;
constexpr double kRansacPixels = 4.0;
constexpr int kMinInliers = 12;
// A copy is at most this much larger or smaller, at the measure's size.
constexpr double kMaxScale = 3.0;
// The pixels are compared at this long side, after a light blur: enough to tell a copy
// from a second shot, and blind to recompression and resampling.
constexpr int kCompareSide = 128;
constexpr double kMinOverlap = 0.80;
constexpr double kMinAgreement = 0.95;
// Aligned by the hashes only, the pictures must agree more closely.
constexpr double kMinAgreementByHash = 0.97;

// The transform found by the key points, or an empty matrix.
cv::Mat keypointTransform(
    const KeypointCheck::Features &a, const KeypointCheck::Features &b, int &inliers)
{
    inliers = 0;
    if (a.descriptors.rows < 2 || b.descriptors.rows < 2)
        return {};
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
        return {};
    std::vector<uchar> mask;
    const cv::Mat transform
        = cv::estimateAffinePartial2D(from, to, mask, cv::RANSAC, kRansacPixels, 2000, 0.99);
    if (transform.empty())
        return {};
    inliers = int(std::count(mask.begin(), mask.end(), uchar(1)));
    const double scale = std::hypot(transform.at<double>(0, 0), transform.at<double>(1, 0));
    if (inliers < kMinInliers || scale < 1.0 / kMaxScale || scale > kMaxScale)
        return {};
    return transform;
}

} // namespace

KeypointCheck::Features KeypointCheck::featuresOf(const cv::Mat &grey)
{
    Features features;
    if (grey.empty())
        return features;
    // Small patches and a low corner threshold: the pictures are small, and a copy cut down
    // to a quarter of its size must still give enough points.
    const cv::Ptr<cv::ORB> orb
        = cv::ORB::create(kFeatures, 1.2f, 8, 15, 0, 2, cv::ORB::HARRIS_SCORE, 15, 10);
    std::vector<cv::KeyPoint> keyPoints;
    orb->detectAndCompute(grey, cv::noArray(), keyPoints, features.descriptors);
    features.points.reserve(keyPoints.size());
    for (const cv::KeyPoint &point : keyPoints)
        features.points.push_back(point.pt);
    return features;
}

KeypointCheck::Picture KeypointCheck::prepare(const cv::Mat &grey)
{
    Picture picture;
    if (grey.empty())
        return picture;
    picture.features = featuresOf(grey);
    picture.small = GreyPictureReader::fit(grey, kCompareSide);
    picture.size = grey.size();
    return picture;
}

double KeypointCheck::pixelAgreement(
    const Picture &a, const Picture &b, const cv::Mat &transform, double &overlap)
{
    overlap = 0.0;
    const double scaleA = double(a.small.cols) / a.size.width;
    const double scaleB = double(b.small.cols) / b.size.width;
    const cv::Mat &smallA = a.small;
    const cv::Mat &smallB = b.small;
    // The transform between the small pictures: undo a's scale, apply it, take b's.
    cv::Mat moved = transform.clone();
    moved.colRange(0, 2) *= scaleB / scaleA;
    moved.col(2) *= scaleB;
    cv::Mat warped;
    cv::warpAffine(smallA, warped, moved, smallB.size(), cv::INTER_LINEAR, cv::BORDER_CONSTANT);
    cv::Mat mask;
    cv::warpAffine(cv::Mat(smallA.size(), CV_8UC1, cv::Scalar(255)), mask, moved, smallB.size(),
        cv::INTER_NEAREST, cv::BORDER_CONSTANT);
    cv::erode(mask, mask, cv::Mat::ones(3, 3, CV_8UC1));
    const double determinant = std::abs(moved.at<double>(0, 0) * moved.at<double>(1, 1)
        - moved.at<double>(0, 1) * moved.at<double>(1, 0));
    const double smaller = std::min(double(smallA.total()) * determinant, double(smallB.total()));
    if (smaller <= 0.0)
        return 0.0;
    overlap = cv::countNonZero(mask) / smaller;
    cv::Mat blurredA;
    cv::Mat blurredB;
    cv::GaussianBlur(warped, blurredA, cv::Size(5, 5), 0);
    cv::GaussianBlur(smallB, blurredB, cv::Size(5, 5), 0);
    blurredA.convertTo(blurredA, CV_64F);
    blurredB.convertTo(blurredB, CV_64F);
    const cv::Scalar meanA = cv::mean(blurredA, mask);
    const cv::Scalar meanB = cv::mean(blurredB, mask);
    cv::Mat centredA = blurredA - meanA[0];
    cv::Mat centredB = blurredB - meanB[0];
    const cv::Mat outside = mask == 0;
    centredA.setTo(0.0, outside);
    centredB.setTo(0.0, outside);
    const double cross = centredA.dot(centredB);
    const double energy = std::sqrt(centredA.dot(centredA) * centredB.dot(centredB));
    return energy > 0.0 ? cross / energy : 0.0;
}

KeypointCheck::Verdict KeypointCheck::compare(
    const Picture &a, const Picture &b, const cv::Mat &hashTransform)
{
    Verdict verdict;
    if (a.empty() || b.empty())
        return verdict;
    double overlap = 0.0;
    const cv::Mat transform = keypointTransform(a.features, b.features, verdict.inliers);
    if (!transform.empty()) {
        verdict.agreement = pixelAgreement(a, b, transform, overlap);
        verdict.same = overlap >= kMinOverlap && verdict.agreement >= kMinAgreement;
        return verdict;
    }
    if (hashTransform.empty())
        return verdict;
    verdict.alignedByHash = true;
    verdict.agreement = pixelAgreement(a, b, hashTransform, overlap);
    verdict.same = overlap >= kMinOverlap && verdict.agreement >= kMinAgreementByHash;
    return verdict;
}
