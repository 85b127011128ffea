// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ScanRoots.h"

#include "platform/Platform.h"

const ScanRoots::Root *ScanRoots::holding(const QByteArray &native) const
{
    const Root *best = nullptr;
    for (const Root &root : m_roots) {
        const QByteArray &prefix = root.native;
        const bool inside = native == prefix
            || (native.startsWith(prefix)
                && (prefix.endsWith('/') || native.at(prefix.size()) == '/'));
        if (inside && (!best || prefix.size() > best->native.size()))
            best = &root;
    }
    return best;
}

bool ScanRoots::isHiddenBelow(const Root &root, const QByteArray &native)
{
    const platform::Platform &os = platform::current();
    // Each folder below the root in turn, then the entry itself; the root and what lies
    // above it were chosen by the user and count as visible.
    qsizetype end = root.native.endsWith('/') ? root.native.size() - 1 : root.native.size();
    while (end < native.size()) {
        const qsizetype next = native.indexOf('/', end + 1);
        end = next < 0 ? native.size() : next;
        if (os.isHiddenOrSystem(native.left(end).toStdString()))
            return true;
    }
    return false;
}
