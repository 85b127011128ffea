// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/InstalledFactory.h"
#include "engine/ContentKeyCache.h"
#include "engine/TFileData.h"

#include <QJsonObject>
#include <QObject>
#include <QStringList>

// The similar-picture stage as the scan controller and the cloud scan drive it. The
// pictures library implements it (ImageCompareStage over an ImageCompareThread); a program
// that links that library installs its factory at start. The plain command line links
// none of the picture libraries and installs nothing: create() then gives nullptr and a
// run that compares pictures is handed to its companion before any stage is wanted.
class PictureStage : public QObject
{
    Q_OBJECT
public:
    using Factory = InstalledFactory<PictureStage, QObject *>;
    static void setFactory(Factory::Function factory) { Factory::install(factory); }
    static bool available() { return Factory::installed(); }
    // A new stage owned by parent; nullptr where no factory is installed.
    static PictureStage *create(QObject *parent) { return Factory::create(parent); }

    using QObject::QObject;

    virtual void applyConfig(const QJsonObject &similar) = 0;
    // Pictures of an earlier result (each group by its first member) and the new ones.
    virtual void setInput(const TFileData::Groups &earlierGroups, const QStringList &imagePaths)
        = 0;
    // Where the pictures' measures are kept between scans (as the duplicate finder's keys).
    virtual void setCacheOptions(const ContentKeyCache::Options &options) = 0;
    virtual void start() = 0;
    // Raises the stop flag; the run then stores what it found and ends.
    virtual void cancel() = 0;
    virtual bool isRunning() const = 0;
    // Blocks until the run has returned.
    virtual void wait() = 0;

signals:
    // The run stored its groups: new files that could go and their bytes.
    void finished(int count, qint64 size);
    // progressType: 2 loading the pictures, 3 comparing them in pairs, 4 the feature
    // re-check; progress in percent.
    void progressChanged(int progressType, int progress);
    void progressCounted(int progressType, int done, int total);
    // Pictures found similar to another one so far and their bytes.
    void similarFound(int count, qint64 size);
    // The run's thread has returned (after finished).
    void ended();
};
