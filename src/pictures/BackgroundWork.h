// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"

#include <QCoreApplication>
#include <QThread>

namespace BackgroundWork {

// Every worker of the picture stage runs below the window: on two processors, decoding and
// comparing at the window's priority left it (and the display server) waiting for whole
// seconds. Called first in each task; a caller on the program's main thread (a test
// driving one stage) keeps its own priority.
inline void lower()
{
    thread_local bool lowered = false;
    if (lowered)
        return;
    lowered = true;
    if (QCoreApplication::instance()
        && QThread::currentThread() == QCoreApplication::instance()->thread())
        return;
    platform::current().lowerThreadPriority();
}

} // namespace BackgroundWork
