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

void JsonEntryStream::keep(char c)
{
    // The separators of the entries would grow with their number.
    if (!m_inString
        && (c == ' ' || c == '\n' || c == '\r' || c == '\t'
            || (c == ',' && m_depth == m_listDepth + 1 && m_open[m_listDepth] == '[')))
        return;
    m_skeleton.append(c);
}

bool JsonEntryStream::feed(const QByteArray &bytes)
{
    if (!m_error.isEmpty())
        return false;
    // The entry in progress starts at the beginning of m_pending; the bytes around the
    // entries go to m_skeleton.
    const qsizetype base = m_pending.size();
    m_pending.append(bytes);
    qsizetype entryStart = base > 0 ? 0 : -1;
    for (qsizetype i = base; i < m_pending.size(); ++i, ++m_offset) {
        const char c = m_pending.at(i);
        const bool outside = entryStart < 0;
        if (m_inString) {
            if (m_escape)
                m_escape = false;
            else if (c == '\\')
                m_escape = true;
            else if (c == '"')
                m_inString = false;
        } else {
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
                if (m_depth == m_listDepth + 1 && c == '{' && m_open[m_listDepth] == '[')
                    entryStart = i;
                m_open[m_depth++] = c;
                m_started = true;
                break;
            case '}':
            case ']': {
                if (m_depth == 0 || m_open[m_depth - 1] != (c == '}' ? '{' : '['))
                    return fail(QStringLiteral("unbalanced brackets"));
                --m_depth;
                if (m_depth == m_listDepth + 1 && entryStart >= 0) {
                    QJsonParseError parseError;
                    const QJsonDocument document = QJsonDocument::fromJson(
                        QByteArray::fromRawData(
                            m_pending.constData() + entryStart, i + 1 - entryStart),
                        &parseError);
                    if (parseError.error != QJsonParseError::NoError || !document.isObject())
                        return fail(QStringLiteral("an entry is not valid JSON (%1)")
                                        .arg(parseError.errorString()));
                    if (++m_entries > m_maxEntries) {
                        m_overLimit = true;
                        return fail(QStringLiteral("more than %1 entries").arg(m_maxEntries));
                    }
                    m_entry(document.object());
                    entryStart = -1;
                    continue;
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
        if (outside && entryStart < 0)
            keep(c);
    }
    if (entryStart >= 0)
        m_pending.remove(0, entryStart);
    else
        m_pending.clear();
    if (m_pending.size() + m_skeleton.size() > kMaxPending) {
        m_overLimit = true;
        return fail(
            QStringLiteral("more than %1 MiB without the end of an entry").arg(kMaxPending >> 20));
    }
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

QJsonObject JsonEntryStream::rest() const
{
    return QJsonDocument::fromJson(m_skeleton).object();
}
