// SPDX-License-Identifier: GPL-3.0-or-later
// The command line's build without the similar-picture stage: it links none of the
// picture libraries and so starts in a few milliseconds. main() hands every run that
// compares pictures to the full build before a controller exists, so these are only
// reached by a controller that never starts that stage.
#include "engine/PictureStage.h"

QThread *PictureStage::create(QObject *)
{
    return nullptr;
}

void PictureStage::applyConfig(QThread *, const QJsonObject &) { }

void PictureStage::setInput(QThread *, const TFileData::Groups &, const QStringList &) { }

void PictureStage::setCacheOptions(QThread *, const ContentKeyCache::Options &) { }

void PictureStage::cancel(QThread *) { }
