// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ScanTable.h"

#include "engine/FilePathCodec.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

QString joined(const QString &folder, const QString &name)
{
    if (folder.isEmpty())
        return name;
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

} // namespace

quint32 ScanTable::startFolder(const QString &path, const QByteArray &native, int driveType)
{
    Folder folder;
    folder.path = path;
    folder.native = native;
    folder.driveType = driveType;
    folder.nameBase = qint64(m_names.size());
    folder.firstFile = quint32(m_files.size());
    m_folders.push_back(std::move(folder));
    return quint32(m_folders.size() - 1);
}

void ScanTable::addName(
    const char *name, qsizetype length, qint64 size, const ScanBatch::Stat &stat)
{
    Folder &folder = m_folders.back();
    File entry;
    entry.size = size;
    entry.folder = quint32(m_folders.size() - 1);
    entry.name = quint32(qint64(m_names.size()) - folder.nameBase);
    m_names.insert(m_names.end(), name, name + length);
    m_names.push_back('\0');
    m_files.push_back(entry);
    m_stats.push_back(stat);
    ++folder.fileCount;
}

void ScanTable::append(const ScanBatch &batch)
{
    if (batch.sizes.isEmpty())
        return;
    startFolder(batch.folder, batch.nativeFolder, batch.driveType);
    m_folders.back().device = batch.device;
    m_folders.back().listedNs = batch.listedNs;
    const bool stats = batch.stats.size() == batch.sizes.size();
    const char *cursor = batch.names.constData();
    const char *end = cursor + batch.names.size();
    for (qsizetype i = 0; i < batch.sizes.size(); ++i) {
        if (cursor >= end)
            break;
        const qsizetype length = qsizetype(std::strlen(cursor));
        addName(cursor, length, batch.sizes[i], stats ? batch.stats[i] : ScanBatch::Stat {});
        cursor += length + 1;
    }
}

void ScanTable::append(const FileMeta &meta)
{
    const QString &path = meta.filePath;
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    const QString folderPath = slash < 0 ? QString()
        : slash == 0                     ? QStringLiteral("/")
                                         : path.left(slash);
    const QByteArray name = FilePathCodec::encode(path.mid(slash + 1));
    if (m_folders.empty() || m_folders.back().path != folderPath
        || m_folders.back().driveType != meta.driveType)
        startFolder(folderPath, FilePathCodec::encode(folderPath), meta.driveType);
    addName(name.constData(), name.size(), meta.size, ScanBatch::Stat {});
}

void ScanTable::clear()
{
    // Swapped with empty arrays: an assignment of {} would keep their room.
    decltype(m_folders)().swap(m_folders);
    decltype(m_files)().swap(m_files);
    decltype(m_stats)().swap(m_stats);
    decltype(m_names)().swap(m_names);
}

void ScanTable::squeeze()
{
    m_folders.shrink_to_fit();
    m_files.shrink_to_fit();
    m_stats.shrink_to_fit();
    m_names.shrink_to_fit();
}

QString ScanTable::fileName(quint32 index) const
{
    const char *name = nativeName(index);
    return FilePathCodec::decode(name, qsizetype(std::strlen(name)));
}

QString ScanTable::filePath(quint32 index) const
{
    const QString &folder = m_folders[m_files[index].folder].path;
    const char *name = nativeName(index);
    const qsizetype length = qsizetype(std::strlen(name));
    // Plain ASCII names (nearly all) are appended in place: one allocation per path.
    bool ascii = true;
    for (qsizetype i = 0; i < length && ascii; ++i)
        ascii = static_cast<unsigned char>(name[i]) < 0x80;
    if (!ascii || folder.isEmpty())
        return joined(folder, fileName(index));
    const bool slash = folder.endsWith(QLatin1Char('/'));
    QString out;
    out.reserve(folder.size() + (slash ? 0 : 1) + length);
    out.append(folder);
    if (!slash)
        out.append(QLatin1Char('/'));
    out.append(QLatin1String(name, length));
    return out;
}

QByteArray ScanTable::nativePath(quint32 index) const
{
    const QByteArray &folder = m_folders[m_files[index].folder].native;
    QByteArray out;
    if (!folder.isEmpty()) {
        out = folder;
        if (!out.endsWith('/'))
            out.append('/');
    }
    out.append(nativeName(index));
    return out;
}

std::vector<quint32> ScanTable::bySize() const
{
    // Sorted as (size, index) pairs side by side: the same order as a stable sort by size,
    // without a look into the table at every comparison.
    std::vector<std::pair<qint64, quint32>> keyed(m_files.size());
    for (quint32 i = 0; i < quint32(m_files.size()); ++i)
        keyed[i] = {m_files[i].size, i};
    std::sort(keyed.begin(), keyed.end());
    std::vector<quint32> order(keyed.size());
    for (size_t i = 0; i < keyed.size(); ++i)
        order[i] = keyed[i].second;
    return order;
}
