// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"

#include <vector>

#include <QByteArray>
#include <QString>

// The roots of one scanner run by their real paths: links are followed only to places
// inside one of them.
class ScanRoots
{
public:
    // A root as the file system resolves it (no link in it), with its drive type: links are
    // followed only to places inside one of these.
    struct Root
    {
        QString path;
        QByteArray native;
        int driveType = platform::Platform::DriveUnknown;
    };

    void clear() { m_roots.clear(); }
    void add(const Root &root) { m_roots.push_back(root); }
    const std::vector<Root> &list() const { return m_roots; }
    // The innermost root whose real path holds native, or null.
    const Root *holding(const QByteArray &native) const;
    // Whether native, a path inside root, or one of its folders below root is hidden.
    static bool isHiddenBelow(const Root &root, const QByteArray &native);

private:
    std::vector<Root> m_roots;
};
