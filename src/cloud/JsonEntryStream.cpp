// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/JsonEntryStream.h"

#include <QJsonDocument>
#include <QJsonParseError>

bool JsonEntryStream::fail(const QString &why)
{
    if (m_error.isEmpty())
        m_error = QStringLiteral("%1 at byte %2").arg(why).arg(m_offset);
    return false;
}

bool JsonEntryStream::feed(const QByteArray &bytes)
{
    if (!m_error.isEmpty())
        return false;
    // The entry in progress starts at the beginning of m_pending; the bytes before an
    // entry are structure only and are not kept.
    const qsizetype base = m_pending.size();
    m_pending.append(bytes);
    qsizetype entryStart = m_depth >= 3 ? 0 : -1;
    qsizetype i = base;
    for (; i < m_pending.size(); ++i, ++m_offset) {
        const char c = m_pending.at(i);
        if (m_inString) {
            if (m_escape)
                m_escape = false;
            else if (c == '\\')
                m_escape = true;
            else if (c == '"')
                m_inString = false;
            continue;
        }
        switch (c) {
        case '"':
            m_inString = true;
            break;
        case '{':
        case '[':
            if (m_closed)
                return fail(QStringLiteral("text after the end"));
            if (m_depth == int(sizeof(m_open)))
                return fail(QStringLiteral("nesting too deep"));
            if (m_depth == 0 && c != '{')
                return fail(QStringLiteral("not an object"));
            if (m_depth == 2 && c == '{' && m_open[1] == '[')
                entryStart = i;
            m_open[m_depth++] = c;
            m_started = true;
            break;
        case '}':
        case ']': {
            if (m_depth == 0 || m_open[m_depth - 1] != (c == '}' ? '{' : '['))
                return fail(QStringLiteral("unbalanced brackets"));
            --m_depth;
            if (m_depth == 2 && entryStart >= 0) {
                QJsonParseError parseError;
                const QJsonDocument document = QJsonDocument::fromJson(
                    QByteArray::fromRawData(m_pending.constData() + entryStart, i + 1 - entryStart),
                    &parseError);
                if (parseError.error != QJsonParseError::NoError || !document.isObject())
                    return fail(QStringLiteral("an entry is not valid JSON (%1)")
                                    .arg(parseError.errorString()));
                ++m_entries;
                m_entry(document.object());
                entryStart = -1;
            }
            if (m_depth == 0)
                m_closed = true;
            break;
        }
        default:
            if (m_depth == 0 && c != ' ' && c != '\n' && c != '\r' && c != '\t')
                return fail(QStringLiteral("not JSON"));
            break;
        }
    }
    if (entryStart >= 0)
        m_pending.remove(0, entryStart);
    else
        m_pending.clear();
    return true;
}

bool JsonEntryStream::finish()
{
    if (!m_error.isEmpty())
        return false;
    if (!m_started || !m_closed || m_inString)
        return fail(QStringLiteral("the answer ended early"));
    return true;
}
