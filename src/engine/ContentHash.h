// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

// The whole content of a file as a 128-bit XXH3 digest. The removal journal keeps it for
// each item, so that a restore puts back only what it removed; a copy made across drives
// is checked by it before the original goes.
class ContentHash
{
public:
    ContentHash();
    ~ContentHash();
    ContentHash(const ContentHash &) = delete;
    ContentHash &operator=(const ContentHash &) = delete;

    void add(const char *data, size_t size);
    // 16 bytes: the digest of everything added so far.
    QByteArray result() const;

    // 16 bytes, or empty when the file cannot be read (error: the system's code).
    static QByteArray ofFile(const QString &path, int *error = nullptr);
    // The same for an open file, read from its start.
    static QByteArray ofFd(int fd, int *error = nullptr);

private:
    void *m_state;
};
