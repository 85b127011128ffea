// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QByteArray>
#include <QJsonObject>

// Splits an answer of the form {"list": [{...}, {...}]} into its entries while it
// arrives, so that a listing of a million files never sits in memory whole: only the
// entry being received is kept.
class JsonEntryStream
{
public:
    using Entry = std::function<void(const QJsonObject &entry)>;

    explicit JsonEntryStream(Entry entry) : m_entry(std::move(entry)) { }

    // False once the text is not JSON of that form; then error() says where.
    bool feed(const QByteArray &bytes);
    // True when the text ended as one complete object.
    bool finish();
    QString error() const { return m_error; }
    qint64 entries() const { return m_entries; }

private:
    bool fail(const QString &why);

    Entry m_entry;
    QByteArray m_pending;
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
};
