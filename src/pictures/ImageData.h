// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <opencv2/core.hpp>

#include <QMetaType>
#include <QString>

// One picture of a similar-image run: a value type kept in a list and copied into the
// groups. The decoded pixels themselves are not kept (a run of thousands of pictures
// would hold gigabytes); the feature stage reads the few grouped files again.
struct ImageData
{
    QString path;
    // The picture's format by its suffix (pictureFormatOf: one spelling per format),
    // compared when only pictures of one type may be compared.
    QString fileType;
    // Size of the picture as decoded, before the reduction to the working size.
    qint32 width = 0;
    qint32 height = 0;
    // Size of the file in bytes, for the running total of similar pictures found.
    qint64 bytes = 0;
    // Entry of an earlier result (a group of identical pictures); key is that group's key.
    bool fromEarlierResult = false;
    QString key;
    // Perceptual hash (1 x 8 bytes) or normalised histogram, depending on the run's measure.
    cv::Mat hash;
    // The same 64-bit perceptual hash as one integer, for the all-pairs loop.
    quint64 hashBits = 0;
    // ORB descriptors, filled by the feature stage.
    cv::Mat descriptors;
    // Percent similarity to the group, written by the pair comparison.
    qint32 similarity = 0;
    // Why it joined the group, where the measure tells (the robust measure does).
    QString reason;
};

Q_DECLARE_METATYPE(ImageData)
