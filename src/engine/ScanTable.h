// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/FileMeta.h"
#include "engine/ScanBatch.h"

#include <vector>

#include <QByteArray>
#include <QString>

// The files of one scan in compact form: one record per folder (path, bytes, drive type)
// and 40 bytes per file (size, folder, offset of its name in a shared byte arena, and
// the inode and times the walk's stat gave). The
// scan controller fills it from the scanner's batches; the duplicate finder reads it.
// Files keep the order they were appended in; bySize() groups them by size without
// changing that order inside a size.
class ScanTable
{
public:
    struct Folder
    {
        QString path;
        QByteArray native;
        int driveType = 3;
        // Start of the folder's names in the arena, and its first file.
        qint64 nameBase = 0;
        quint32 firstFile = 0;
        quint32 fileCount = 0;
        // The device of the folder's files, and when the walk listed it (see ScanBatch).
        quint64 device = 0;
        qint64 listedNs = 0;
    };
    struct File
    {
        qint64 size = 0;
        quint32 folder = 0;
        // Offset of the NUL-terminated name from the folder's nameBase.
        quint32 name = 0;
    };

    void append(const ScanBatch &batch);
    // One file given by its absolute path (the split into folder and name is done here;
    // consecutive files of one folder share its record).
    void append(const FileMeta &meta);
    void clear();
    // Gives back the slack of the growing arrays once the table is complete.
    void squeeze();

    qsizetype fileCount() const { return qsizetype(m_files.size()); }
    qsizetype folderCount() const { return qsizetype(m_folders.size()); }
    const File &file(quint32 index) const { return m_files[index]; }
    const Folder &folder(quint32 index) const { return m_folders[index]; }
    // The file's name as the file system's bytes, NUL-terminated.
    const char *nativeName(quint32 index) const
    {
        const File &entry = m_files[index];
        return m_names.data() + m_folders[entry.folder].nameBase + entry.name;
    }
    // What the walk's stat said of the file; inode 0 when it kept nothing.
    const ScanBatch::Stat &stat(quint32 index) const { return m_stats[index]; }
    QString fileName(quint32 index) const;
    QString filePath(quint32 index) const;
    QByteArray nativePath(quint32 index) const;
    // Indices of all files ordered by size; files of one size keep their order.
    std::vector<quint32> bySize() const;

private:
    quint32 startFolder(const QString &path, const QByteArray &native, int driveType);
    void addName(const char *name, qsizetype length, qint64 size, const ScanBatch::Stat &stat);

    std::vector<Folder> m_folders;
    std::vector<File> m_files;
    std::vector<ScanBatch::Stat> m_stats;
    std::vector<char> m_names;
};
