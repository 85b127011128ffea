// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudRemoval.h"

#include <atomic>

namespace {
std::atomic<CloudRemoval::Factory> g_factory {nullptr};
}

void CloudRemoval::setFactory(Factory factory)
{
    g_factory.store(factory);
}

CloudRemoval *CloudRemoval::create(KvCloudObject *cloud)
{
    const Factory factory = g_factory.load();
    return factory ? factory(cloud) : nullptr;
}
