// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QIODevice;

// The result store as a table for other tools (spreadsheets, scripts): one row per
// member, in the order of RFC 4180 (a header line, commas, quotes where a field needs
// them, CRLF line ends). Paths are written as the system's bytes, so that a name that is
// not UTF-8 still names its file. Columns:
//   group       the group's number, from 1, in the order given
//   match       identical, sampled, name, similar or folder
//   path        the member's real path
//   size        bytes (a folder: its files' total)
//   modified    UTC, ISO 8601, to the second (empty when unknown)
//   selected    1 when the member is selected for removal
//   protected   1 when it lies in a protected folder
//   similarity  a similar picture's percent (0 for the one the others were compared with)
class CsvExport
{
public:
    // Writes every group of the store, those listed in order first, but for groups of
    // protected copies only (the result page does not show them either); false (with
    // error) when the device refused a write.
    static bool write(QIODevice &out, const QStringList &order = {}, QString *error = nullptr);
    // One field as it appears in a line: quoted when it holds a comma, a quote or a line
    // break, its quotes doubled.
    static QByteArray field(const QByteArray &value);
};
