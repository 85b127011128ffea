// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/PathPool.h"

#include <array>

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>

// One file of a listing while the scan runs, kept small: a listing may hold millions of
// them, and most turn out to have no copy. Names and types are indices into the scan's
// own tables.
struct ListedFile
{
    // Larger hashes are not kept; the kinds the scan asks for all fit.
    static constexpr int kMaxHash = 32;

    // UTF-8, relative to its folder, in the scan's pool.
    PathPool::Ref relativePath;
    qint64 size = -1;
    // Milliseconds since the epoch, UTC.
    qint64 modTime = 0;
    std::array<char, kMaxHash> hash {};
    quint16 folder = 0;
    quint16 mimeType = 0;
    quint8 hashLength = 0;
    quint8 hashType = 0;

    QByteArrayView hashBytes() const { return QByteArrayView(hash.data(), hashLength); }
    // False when the hexadecimal text is not a hash that fits.
    bool setHash(QStringView hex, quint8 type);
    // ISO 8601 as the services send it, to milliseconds since the epoch (0 when unreadable).
    static qint64 parseTime(QStringView text);
};
