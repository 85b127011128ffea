// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

// Lossless conversion between file names as the file system stores them (bytes, in
// practice UTF-8 on Linux) and QString. Qt's own conversion replaces bytes that are not
// valid UTF-8 by U+FFFD, which yields a path that no longer opens the file. Here each
// such byte becomes the lone surrogate U+DC00 + byte (the convention of other
// languages' "surrogate escape"), and encode() turns it back into the same byte, so
// every name the scanner reports can be opened again by the hashing code.
class FilePathCodec
{
public:
    static QString decode(const char *bytes, qsizetype length);
    static QString decode(const QByteArray &bytes)
    {
        return decode(bytes.constData(), bytes.size());
    }
    static QByteArray encode(const QString &path);

    // True when path carries an escaped byte (Qt's QFile cannot open it).
    static bool hasEscapedBytes(const QString &path);
};
