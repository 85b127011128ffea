// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>

#include <QByteArray>
#include <QString>
#include <QStringList>

// How the command line writes names: as safe one-line text, or as JSON strings that keep
// every byte.
namespace CliText {

// JSON string with the bytes of names that are not valid UTF-8 kept as the escapes
// \udc80-\udcff, so a reader that decodes them the same way gets the exact file name.
void writeJsonString(std::FILE *out, const QString &text);
void writeJsonList(std::FILE *out, const QStringList &items);
// A name as one safe line of text: a backslash doubled, control characters (C0, DEL
// and C1) and bytes that are not UTF-8 written as escapes, so that a name can neither
// split a record nor send escape sequences to the terminal.
QByteArray lineText(const QString &text);

} // namespace CliText
