// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/ContentKeyCache.h"
#include "engine/TFileData.h"

#include <QJsonObject>
#include <QStringList>

class QObject;
class QThread;

// The similar-picture stage (an ImageCompareThread) as the scan controller drives it,
// without naming the class: the controller then needs none of the picture libraries to
// link. The program and the tests link the implementation in PictureStage.cpp; the
// command line links one without the stage (cli/PictureStageAbsent.cpp) and hands runs
// that compare pictures to its full build, so that a plain duplicate scan does not pay
// for loading OpenCV and its codecs at start.
class PictureStage
{
public:
    // The stage thread, owned by parent; nullptr where this build has no picture stage.
    // It emits finished(int count, qint64 size) and progressChanged(int type, int percent).
    static QThread *create(QObject *parent);
    static void applyConfig(QThread *stage, const QJsonObject &similar);
    static void setInput(
        QThread *stage, const TFileData::Groups &earlierGroups, const QStringList &imagePaths);
    // Where the pictures' measures are kept between scans (as the duplicate finder's keys).
    static void setCacheOptions(QThread *stage, const ContentKeyCache::Options &options);
    static void cancel(QThread *stage);
};
