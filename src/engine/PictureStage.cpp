// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/PictureStage.h"

#include "engine/ImageCompareThread.h"

QThread *PictureStage::create(QObject *parent)
{
    return new ImageCompareThread(parent);
}

void PictureStage::applyConfig(QThread *stage, const QJsonObject &similar)
{
    static_cast<ImageCompareThread *>(stage)->applyConfig(similar);
}

void PictureStage::setInput(
    QThread *stage, const TFileData::Groups &earlierGroups, const QStringList &imagePaths)
{
    auto *compare = static_cast<ImageCompareThread *>(stage);
    compare->setEarlierGroups(earlierGroups);
    compare->setImagePaths(imagePaths);
}

void PictureStage::setCacheOptions(QThread *stage, const ContentKeyCache::Options &options)
{
    static_cast<ImageCompareThread *>(stage)->setCacheOptions(options);
}

void PictureStage::cancel(QThread *stage)
{
    static_cast<ImageCompareThread *>(stage)->cancel();
}
