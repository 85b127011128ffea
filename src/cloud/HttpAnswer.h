// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

// One HTTP/1.1 answer read off a socket as it arrives: the status, then the body, whole
// or in chunks, handed on piece by piece.
class HttpAnswer
{
public:
    // A head or chunk-size line longer than this is no answer of rclone's; without the
    // bound a peer that never ends one would fill the memory.
    static constexpr qsizetype kMaxLine = 64 * 1024;

    // Returns the body bytes found in data.
    QByteArray take(const QByteArray &data);

    // 0 until the head has arrived.
    int status() const { return m_status; }
    bool chunked() const { return m_chunked; }
    // The last chunk arrived (chunked answers only; others end when the connection does).
    bool complete() const { return m_complete; }
    // A head or chunk-size line ran past kMaxLine; the answer is to be given up.
    bool overlong() const { return m_overlong; }

private:
    QByteArray m_pending;
    bool m_headDone = false;
    int m_status = 0;
    bool m_chunked = false;
    qint64 m_chunkLeft = -1; // -1: a chunk-size line is due
    bool m_complete = false;
    bool m_overlong = false;
};
