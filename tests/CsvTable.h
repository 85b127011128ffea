// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>

// A CSV text read back as other tools read it (RFC 4180): quoted fields may hold commas,
// doubled quotes and line breaks; lines end in CRLF. A line that does not end so, or a
// stray quote, gives an empty table.
inline QList<QList<QByteArray>> csvRows(const QByteArray &text)
{
    QList<QList<QByteArray>> rows;
    QList<QByteArray> row;
    QByteArray field;
    bool quoted = false;
    bool wasQuoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char c = text.at(i);
        if (quoted) {
            if (c == '"' && i + 1 < text.size() && text.at(i + 1) == '"') {
                field += '"';
                ++i;
            } else if (c == '"') {
                quoted = false;
            } else {
                field += c;
            }
        } else if (c == '"' && field.isEmpty() && !wasQuoted) {
            quoted = wasQuoted = true;
        } else if (c == ',') {
            row.append(field);
            field.clear();
            wasQuoted = false;
        } else if (c == '\r' && i + 1 < text.size() && text.at(i + 1) == '\n') {
            row.append(field);
            rows.append(row);
            row.clear();
            field.clear();
            wasQuoted = false;
            ++i;
        } else if (c == '"' || c == '\n' || c == '\r') {
            return {};
        } else {
            field += c;
        }
    }
    if (quoted || !field.isEmpty() || !row.isEmpty())
        return {};
    return rows;
}
