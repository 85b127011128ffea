// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

// The whole content of a file as a 128-bit XXH3 digest, read once from start to end.
// The removal compares an item with its kept copy by it, and checks a copy made across
// drives before the original goes.
class ContentHash
{
public:
    // 16 bytes, or empty when the file cannot be read (error: the system's code).
    static QByteArray ofFile(const QString &path, int *error = nullptr);
};
