// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/ImageCompareStage.h"

void ImageCompareStage::install()
{
    PictureStage::setFactory(
        [](QObject *parent) -> PictureStage * { return new ImageCompareStage(parent); });
}

ImageCompareStage::ImageCompareStage(QObject *parent) : PictureStage(parent)
{
    // Passed on in the emitting thread, so that a receiver's connection type decides,
    // as it would on the thread itself.
    connect(&m_thread, qOverload<int, qint64>(&ImageCompareThread::finished), this,
        &PictureStage::finished, Qt::DirectConnection);
    connect(&m_thread, &ImageCompareThread::progressChanged, this, &PictureStage::progressChanged,
        Qt::DirectConnection);
    connect(&m_thread, &ImageCompareThread::progressCounted, this, &PictureStage::progressCounted,
        Qt::DirectConnection);
    connect(&m_thread, &ImageCompareThread::similarFound, this, &PictureStage::similarFound,
        Qt::DirectConnection);
    connect(&m_thread, &QThread::finished, this, &PictureStage::ended, Qt::DirectConnection);
}

ImageCompareStage::~ImageCompareStage()
{
    m_thread.cancel();
    m_thread.wait();
}

void ImageCompareStage::applyConfig(const QJsonObject &similar)
{
    m_thread.applyConfig(similar);
}

void ImageCompareStage::setInput(
    const TFileData::Groups &earlierGroups, const QStringList &imagePaths)
{
    m_thread.setEarlierGroups(earlierGroups);
    m_thread.setImagePaths(imagePaths);
}

void ImageCompareStage::setCacheOptions(const ContentKeyCache::Options &options)
{
    m_thread.setCacheOptions(options);
}

void ImageCompareStage::start()
{
    m_thread.start(QThread::InheritPriority);
}

void ImageCompareStage::cancel()
{
    m_thread.cancel();
}

bool ImageCompareStage::isRunning() const
{
    return m_thread.isRunning();
}

void ImageCompareStage::wait()
{
    m_thread.wait();
}
