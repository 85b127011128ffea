// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDirIterator>
#include <QFile>
#include <QString>
#include <QStringList>

// Everything the logger wrote under folder: every daily log file, oldest first, so that a
// test run that crosses midnight still reads the lines in the order they were written.
inline QString logText(const QString &folder)
{
    QStringList files;
    QDirIterator it(folder, {QStringLiteral("*.log")}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        files.append(it.next());
    files.sort();
    QString text;
    for (const QString &path : std::as_const(files)) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            text += QString::fromUtf8(file.readAll());
    }
    return text;
}
