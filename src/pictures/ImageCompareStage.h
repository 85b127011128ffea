// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/PictureStage.h"
#include "pictures/ImageCompareThread.h"

// The picture stage of this build: an ImageCompareThread behind the engine's interface.
class ImageCompareStage : public PictureStage
{
    Q_OBJECT
public:
    // Makes PictureStage::create() build this stage; called once by each program that
    // links the picture libraries, before any scan.
    static void install();

    explicit ImageCompareStage(QObject *parent = nullptr);
    ~ImageCompareStage() override;

    void applyConfig(const QJsonObject &similar) override;
    void setInput(const TFileData::Groups &earlierGroups, const QStringList &imagePaths) override;
    void setCacheOptions(const ContentKeyCache::Options &options) override;
    void start() override;
    void cancel() override;
    bool isRunning() const override;
    void wait() override;

    ImageCompareThread *thread() { return &m_thread; }

private:
    ImageCompareThread m_thread;
};
