// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/HttpAnswer.h"

#include <algorithm>
#include <utility>

#include <QList>

QByteArray HttpAnswer::take(const QByteArray &data)
{
    QByteArray body;
    m_pending += data;
    if (!m_headDone) {
        const qsizetype end = m_pending.indexOf("\r\n\r\n");
        if (end < 0) {
            m_overlong = m_pending.size() > kMaxLine;
            return body;
        }
        const QByteArray head = m_pending.left(end);
        m_pending.remove(0, end + 4);
        m_headDone = true;
        const QList<QByteArray> lines = head.split('\n');
        m_status = lines.value(0).split(' ').value(1).toInt();
        for (const QByteArray &line : lines)
            if (line.toLower().startsWith("transfer-encoding:")
                && line.toLower().contains("chunked"))
                m_chunked = true;
    }
    if (!m_chunked)
        return std::exchange(m_pending, {});
    while (!m_complete) {
        if (m_chunkLeft < 0) {
            const qsizetype end = m_pending.indexOf("\r\n");
            if (end < 0) {
                m_overlong = m_pending.size() > kMaxLine;
                break;
            }
            bool ok = false;
            m_chunkLeft = m_pending.left(end).split(';').first().trimmed().toLongLong(&ok, 16);
            m_pending.remove(0, end + 2);
            if (!ok)
                m_chunkLeft = 0;
            if (m_chunkLeft == 0)
                m_complete = true;
            continue;
        }
        const qint64 n = std::min<qint64>(m_chunkLeft, m_pending.size());
        body += m_pending.left(n);
        m_pending.remove(0, n);
        m_chunkLeft -= n;
        if (m_chunkLeft > 0 || m_pending.size() < 2)
            break;
        m_pending.remove(0, 2);
        m_chunkLeft = -1;
    }
    return body;
}
