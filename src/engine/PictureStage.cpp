// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/PictureStage.h"

#include <atomic>

namespace {
std::atomic<PictureStage::Factory> g_factory {nullptr};
}

void PictureStage::setFactory(Factory factory)
{
    g_factory.store(factory);
}

PictureStage *PictureStage::create(QObject *parent)
{
    const Factory factory = g_factory.load();
    return factory ? factory(parent) : nullptr;
}

bool PictureStage::available()
{
    return g_factory.load() != nullptr;
}
