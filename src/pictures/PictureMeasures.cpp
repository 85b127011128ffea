// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/PictureMeasures.h"

#include "app/LogTags.h"
#include "app/TLogger.h"

#include <algorithm>
#include <cmath>
#include <opencv2/features2d.hpp>
#include <opencv2/flann.hpp>
#include <opencv2/img_hash.hpp>
#include <opencv2/imgproc.hpp>
#include <vector>

namespace {

// The log tags of this file.
const QString &kTag = LogTags::imageCompare;
const QString &kOpenCvTag = LogTags::openCv;
const QString kImageDataTag = QStringLiteral("[ImageData] ");

// Fixed seed of OpenCV's generator before each LSH index, so that re-runs agree.
constexpr uint64_t kLshSeed = 0x5eed1234u;

QString what(const std::exception &e)
{
    return QString::fromLocal8Bit(e.what()).simplified();
}

} // namespace

cv::Mat PictureMeasures::makeHistogram(const cv::Mat &bgr)
{
    cv::Mat hist;
    if (bgr.empty())
        return hist;
    if (bgr.channels() == 1) {
        const int channels[] = {0};
        const int bins[] = {256};
        const float range[] = {0, 256};
        const float *ranges[] = {range};
        cv::calcHist(&bgr, 1, channels, cv::Mat(), hist, 1, bins, ranges);
    } else {
        cv::Mat hsv;
        cv::cvtColor(bgr, hsv, cv::COLOR_BGR2HSV);
        const int channels[] = {0, 1};
        const int bins[] = {50, 60};
        const float hueRange[] = {0, 180};
        const float satRange[] = {0, 256};
        const float *ranges[] = {hueRange, satRange};
        cv::calcHist(&hsv, 1, channels, cv::Mat(), hist, 2, bins, ranges);
    }
    cv::normalize(hist, hist, 0, 1, cv::NORM_MINMAX);
    return hist;
}

cv::Mat PictureMeasures::makePHash(const cv::Mat &bgr)
{
    cv::Mat hash;
    if (!bgr.empty())
        cv::img_hash::pHash(bgr, hash);
    return hash;
}

double PictureMeasures::hashSimilarity(int distance)
{
    return 1.0 / (1.0 + std::exp(6.0 * (double(distance) / 64.0 - 0.25)));
}

bool PictureMeasures::aspectRatioCompatible(int wa, int ha, int wb, int hb, double limit)
{
    const double ratioA = ha != 0 ? double(wa) / ha : 0.0;
    const double ratioB = hb != 0 ? double(wb) / hb : 0.0;
    if (ratioA == 0.0 || ratioB == 0.0)
        return false;
    const double r = ratioA / ratioB;
    return r >= 1.0 / limit && r <= limit;
}

double PictureMeasures::compareFast(const ImageData &a, const ImageData &b, bool hashMeasure)
{
    if (a.hash.empty() || b.hash.empty())
        return 0.0;
    try {
        if (hashMeasure) {
            if (a.hash.cols != b.hash.cols)
                return 0.0;
            const int d = int(cv::norm(a.hash, b.hash, cv::NORM_HAMMING));
            return hashSimilarity(d);
        }
        const int typeA = a.hash.depth();
        const int typeB = b.hash.depth();
        if (typeA != CV_32F && typeA != CV_64F) {
            splog_d(kOpenCvTag
                + QStringLiteral("img1 type invalid for compareHist: %1").arg(a.hash.type()));
            return 0.0;
        }
        if (typeB != CV_32F && typeB != CV_64F) {
            splog_d(kOpenCvTag
                + QStringLiteral("img2 type invalid for compareHist: %1").arg(b.hash.type()));
            return 0.0;
        }
        return 1.0 - cv::compareHist(a.hash, b.hash, cv::HISTCMP_BHATTACHARYYA);
    } catch (const cv::Exception &e) {
        splog_d(kOpenCvTag + QStringLiteral("OpenCV exception: %1").arg(what(e)));
    } catch (...) {
        splog_d(kOpenCvTag + QStringLiteral("Unknown exception occurred."));
    }
    return 0.0;
}

cv::Mat PictureMeasures::computeDescriptors(const cv::Mat &bgr)
{
    if (bgr.empty())
        return {};
    cv::Mat picture = bgr.clone();
    if (picture.cols < 5 || picture.rows < 5)
        cv::resize(picture, picture, cv::Size(), 5.0, 5.0, cv::INTER_LINEAR);
    if (picture.cols > 512 || picture.rows > 512) {
        const double scale = std::min(512.0 / picture.cols, 512.0 / picture.rows);
        const int w = std::max(1, int(picture.cols * scale));
        const int h = std::max(1, int(picture.rows * scale));
        if (w <= 5 || h <= 5) {
            splog_d(kImageDataTag
                + QStringLiteral("Invalid resize dimensions calculated: width or "
                                 "height <= 5"));
            return {};
        }
        cv::resize(picture, picture, cv::Size(w, h), 0, 0, cv::INTER_LINEAR);
    }
    cv::Ptr<cv::ORB> orb = cv::ORB::create(500, 1.2f, 8, 31, 0, 2, cv::ORB::HARRIS_SCORE, 31, 20);
    std::vector<cv::KeyPoint> keyPoints;
    cv::Mat descriptors;
    orb->detectAndCompute(picture, cv::noArray(), keyPoints, descriptors);
    return descriptors;
}

double PictureMeasures::compareFeatures(const cv::Mat &descriptorsA, const cv::Mat &descriptorsB)
{
    if (descriptorsA.empty() || descriptorsB.empty())
        return 0.0;
    if (descriptorsA.rows < 2) {
        splog_d(kTag
            + QStringLiteral("img1 descriptor count less than 2, skipping "
                             "knnSearch."));
        return 0.0;
    }
    try {
        // The LSH tables draw their bit selections from OpenCV's (per-thread) generator.
        cv::theRNG() = cv::RNG(kLshSeed);
        cv::flann::Index index(
            descriptorsA, cv::flann::LshIndexParams(12, 20, 2), cvflann::FLANN_DIST_HAMMING);
        cv::Mat indices;
        cv::Mat distances;
        index.knnSearch(descriptorsB, indices, distances, 2, cv::flann::SearchParams(32, 0, true));
        int good = 0;
        for (int r = 0; r < indices.rows; ++r) {
            if (indices.at<int>(r, 0) < 0 || indices.at<int>(r, 1) < 0)
                continue;
            const float d1 = float(distances.at<int>(r, 0));
            const float d2 = float(distances.at<int>(r, 1));
            if (d2 <= 0.0f)
                continue;
            const float ratio = d1 / d2;
            if (double(ratio) < 0.9)
                ++good;
        }
        return double(good) / double(std::max(descriptorsA.rows, descriptorsB.rows));
    } catch (const cv::Exception &e) {
        splog_d(kOpenCvTag + QStringLiteral("OpenCV exception: %1").arg(what(e)));
    } catch (...) {
        splog_d(kOpenCvTag + QStringLiteral("Unknown exception occurred."));
    }
    return 0.0;
}
