// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QByteArray>
#include <QJsonObject>

// Splits an answer such as {"list": [{...}, {...}]} into its entries while it arrives, so
// that a listing of a million files never sits in memory whole: only the entry being
// received and the answer around the entries are kept, each within kMaxPending.
class JsonEntryStream
{
public:
    using Entry = std::function<void(const QJsonObject &entry)>;

    // Far beyond one entry (a few hundred bytes) or the answer around the entries; an
    // answer that holds more never ends its entry, and would otherwise take all memory.
    static constexpr qsizetype kMaxPending = 16 << 20;

    // The entries are the objects of arrays listDepth levels down: 1 for {"list": [...]},
    // 2 for a job's {"output": {"list": [...]}}. More than maxEntries ends the stream.
    JsonEntryStream(Entry entry, int listDepth, qint64 maxEntries)
        : m_entry(std::move(entry)), m_listDepth(listDepth), m_maxEntries(maxEntries)
    { }

    // False once the text is not JSON of that form or is past a limit; then error() says
    // where.
    bool feed(const QByteArray &bytes);
    // True when the text ended as one complete object.
    bool finish();
    QString error() const { return m_error; }
    // The error is a limit, not malformed text.
    bool overLimit() const { return m_overLimit; }
    qint64 entries() const { return m_entries; }
    // After finish(): the answer without its entries (their arrays left empty).
    QJsonObject rest() const;

private:
    bool fail(const QString &why);
    void keep(char c);

    Entry m_entry;
    int m_listDepth;
    qint64 m_maxEntries;
    QByteArray m_pending;
    QByteArray m_skeleton;
    QString m_error;
    qint64 m_entries = 0;
    qint64 m_offset = 0;
    int m_depth = 0;
    // The container kinds of the open levels, as '{' or '['; deep nesting is not part of
    // the answer's form and is refused.
    char m_open[16] = {};
    bool m_inString = false;
    bool m_escape = false;
    bool m_started = false;
    bool m_closed = false;
    bool m_overLimit = false;
};
