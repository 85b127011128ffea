// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/RobustSignature.h"

#include "pictures/GreyPictureReader.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <opencv2/img_hash.hpp>
#include <opencv2/imgproc.hpp>

namespace {

// Kept share of each side for the crop variants. A copy trimmed by 5 to 12 % a side, or
// straightened after a small turn, lands near one of them.
constexpr double kCropShares[] = {0.90, 0.83, 0.76, 0.70};
// Each crop also at the eight neighbouring offsets, (1 - share) / 6 of the side away: a
// copy trimmed unevenly has its centre moved by up to a quarter of what was trimmed.
constexpr double kOffsetDivisor = 6.0;
constexpr int kOffsets = 9;
constexpr int kCropSizes = int(sizeof(kCropShares) / sizeof(kCropShares[0]));
// The smallest picture cropped; smaller ones (icons) have no detail to crop into.
constexpr int kMinSide = 16;

} // namespace

int RobustSignature::variantCount()
{
    return FirstCrop + kCropSizes * kOffsets;
}

double RobustSignature::keptShare(int variant)
{
    return variant < FirstCrop ? 1.0 : kCropShares[(variant - FirstCrop) / kOffsets];
}

quint64 RobustSignature::hashOf(const cv::Mat &grey)
{
    cv::Mat small;
    cv::resize(grey, small, cv::Size(32, 32), 0, 0, cv::INTER_AREA);
    cv::Mat hash;
    cv::img_hash::pHash(small, hash);
    quint64 bits = 0;
    if (hash.total() == sizeof(bits) && hash.isContinuous())
        std::memcpy(&bits, hash.ptr(), sizeof(bits));
    return bits;
}

cv::Rect RobustSignature::cropOf(int variant, const cv::Size &size)
{
    const int w = size.width;
    const int h = size.height;
    if (variant < FirstCrop)
        return cv::Rect(0, 0, w, h);
    const int index = variant - FirstCrop;
    const double share = kCropShares[index / kOffsets];
    const int dx = index % kOffsets % 3 - 1;
    const int dy = index % kOffsets / 3 - 1;
    const double step = (1.0 - share) / kOffsetDivisor;
    const int cw = std::min(w, std::max(8, int(std::lround(w * share))));
    const int ch = std::min(h, std::max(8, int(std::lround(h * share))));
    const int x = std::clamp(int(std::lround((w - cw) / 2.0 + dx * step * w)), 0, w - cw);
    const int y = std::clamp(int(std::lround((h - ch) / 2.0 + dy * step * h)), 0, h - ch);
    return cv::Rect(x, y, cw, ch);
}

cv::Size RobustSignature::hashedSize(const cv::Size &size)
{
    const int side = std::max(size.width, size.height);
    if (side <= kHashedSide)
        return size;
    const double scale = double(kHashedSide) / side;
    return cv::Size(std::max(1, int(std::lround(size.width * scale))),
        std::max(1, int(std::lround(size.height * scale))));
}

cv::Mat RobustSignature::hashPicture(const cv::Mat &grey)
{
    // The same rounding as hashedSize(): the check maps crops by that size.
    return GreyPictureReader::fit(grey, kHashedSide);
}

std::vector<quint64> RobustSignature::of(const cv::Mat &picture)
{
    if (picture.empty() || picture.cols < kMinSide || picture.rows < kMinSide)
        return {};
    const cv::Mat grey = hashPicture(picture);
    std::vector<quint64> hashes;
    hashes.reserve(size_t(variantCount()));
    hashes.push_back(hashOf(grey));
    cv::Mat mirror;
    cv::flip(grey, mirror, 1);
    hashes.push_back(hashOf(mirror));
    for (int variant = FirstCrop; variant < variantCount(); ++variant)
        hashes.push_back(hashOf(grey(cropOf(variant, grey.size()))));
    return hashes;
}

cv::Mat RobustSignature::toMat(const std::vector<quint64> &hashes)
{
    cv::Mat mat(1, int(hashes.size() * sizeof(quint64)), CV_8UC1);
    if (!hashes.empty())
        std::memcpy(mat.ptr(), hashes.data(), hashes.size() * sizeof(quint64));
    return mat;
}

std::vector<quint64> RobustSignature::fromMat(const cv::Mat &mat)
{
    if (mat.empty() || mat.type() != CV_8UC1 || !mat.isContinuous()
        || mat.total() != size_t(variantCount()) * sizeof(quint64))
        return {};
    std::vector<quint64> hashes(static_cast<size_t>(variantCount()));
    std::memcpy(hashes.data(), mat.ptr(), mat.total());
    return hashes;
}
