// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/GroupMember.h"
#include "engine/ScanTable.h"
#include "engine/TFileScanner.h"

#include <algorithm>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QMutex>
#include <QString>

// Writes real files into a test's temporary folder and reads them back.
namespace ScanTree {

inline QByteArray pattern(qint64 size, char seed)
{
    QByteArray data(size, Qt::Uninitialized);
    quint32 state = 2166136261u ^ static_cast<unsigned char>(seed);
    for (qint64 i = 0; i < size; ++i) {
        state = state * 1664525u + 1013904223u;
        data[i] = static_cast<char>(state >> 24);
    }
    return data;
}

inline QString write(const QString &root, const QString &relative, const QByteArray &data)
{
    const QString path = root + QLatin1Char('/') + relative;
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write(data);
    return QFileInfo(path).absoluteFilePath();
}

// The whole file, or nothing when it cannot be opened.
inline QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Paths relative to root, in sorted order.
inline QStringList relative(QStringList paths, const QString &root)
{
    for (QString &path : paths)
        path = path.mid(root.size() + 1);
    paths.sort();
    return paths;
}

// Groups (a map of member lists) as sorted lists of member paths relative to root, similar
// tags taken off, in sorted order.
template<typename Groups>
QList<QStringList> relativeGroups(const Groups &groups, const QString &root)
{
    QList<QStringList> out;
    for (const QStringList &members : groups)
        out.append(relative(GroupMember::paths(GroupMember::fromEntries(members)), root));
    std::sort(out.begin(), out.end());
    return out;
}

// The table of a walk of root, hidden files included, collected the way the scan
// controller does. Nothing takes the per-file signals, so the scanner builds its compact
// batches only.
inline ScanTable walk(const QString &root)
{
    TFileScanner scanner;
    scanner.applyConfig(QJsonObject {{"IgnoreSystemHidden", false}});
    ScanTable table;
    QMutex mutex;
    QObject::connect(
        &scanner, &TFileScanner::folderFilesFound, &scanner,
        [&](const QList<ScanBatch> &batches) {
            QMutexLocker locker(&mutex);
            for (const ScanBatch &batch : batches)
                table.append(batch);
        },
        Qt::DirectConnection);
    scanner.setRoots({root});
    scanner.start();
    scanner.wait();
    return table;
}

} // namespace ScanTree
