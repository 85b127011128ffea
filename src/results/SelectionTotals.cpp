// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/SelectionTotals.h"

#include "engine/GroupMember.h"
#include "results/TImageModel.h"

#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtConcurrent>
#include <qplatformdefs.h>

qint64 SelectionTotals::bytesOf(const QString &entry)
{
    // One stat per item, without the file-information cache: the totals run over every
    // selected item after each change of the selection.
    const QString path = GroupMember::fromEntry(entry).path;
    QT_STATBUF status;
    if (QT_STAT(QFile::encodeName(path).constData(), &status) != 0)
        return 0;
    if (S_ISREG(status.st_mode))
        return qint64(status.st_size);
    if (!S_ISDIR(status.st_mode))
        return 0;
    const QFileInfo info(path);
    qint64 bytes = 0;
    const QFileInfoList files
        = QDir(info.filePath()).entryInfoList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QFileInfo &file : files)
        bytes += file.size();
    return bytes;
}

QFuture<SelectionTotals> SelectionTotals::start(const QHash<QString, QStringList> &selected,
    const QHash<QString, FileStamp> &stamps, bool isCloud, KvCloudObject *cloud)
{
    // Whole groups per task keep the scheduling cost well below the stat calls.
    const QList<QStringList> lists = selected.values();
    auto map = [isCloud, cloud, stamps](const QStringList &paths) {
        SelectionTotals part;
        part.count = int(paths.size());
        for (const QString &path : paths) {
            if (isCloud)
                part.bytes
                    += TImageModel::cloudProperty(cloud, path, QStringLiteral("size")).toLongLong();
            else if (const auto stamp = stamps.constFind(GroupMember::fromEntry(path).path);
                     stamp != stamps.cend() && stamp->isValid())
                part.bytes += stamp->size;
            else
                part.bytes += bytesOf(path);
        }
        return part;
    };
    auto reduce = [](SelectionTotals &total, const SelectionTotals &part) {
        total.count += part.count;
        total.bytes += part.bytes;
    };
    return QtConcurrent::mappedReduced<SelectionTotals>(lists,
        std::function<SelectionTotals(const QStringList &)>(map),
        std::function<void(SelectionTotals &, const SelectionTotals &)>(reduce),
        QtConcurrent::UnorderedReduce);
}
