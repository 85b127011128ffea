// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/DuplicateFileFinder.h"

#include "app/FileTypeCatalogue.h"
#include "app/SnapshotKeys.h"
#include "app/TLogger.h"
#include "engine/FinderCommon.h"
#include "engine/GroupItemAutoSelector.h"
#include "engine/KeyRuns.h"
#include "engine/SampledKey.h"
#include "engine/TFileData.h"
#include "platform/Platform.h"
#include "preferences/DFSelectionPreferences.h"

#include <algorithm>
#include <string_view>

#include <QJsonValue>
#include <QMutexLocker>
#include <QtConcurrent>

namespace {

using FinderCommon::hexKey;
using SampledKey::kWholeFileLimit;
// Image suffixes up to this length are tested on the name's bytes.
constexpr size_t kShortSuffix = 16;

} // namespace

DuplicateFileFinder::DuplicateFileFinder(QObject *parent) : QThread(parent) { }

DuplicateFileFinder::~DuplicateFileFinder()
{
    requestStop();
    wait();
}

void DuplicateFileFinder::applyConfig(const QJsonObject &duplication)
{
    config = duplication;
    const QJsonValue method = duplication.value(SnapshotKeys::scanMethod);
    if (method.isDouble())
        scanMethod = method.toInt();
    const QJsonValue folders = duplication.value(SnapshotKeys::scanDupDirectory);
    if (folders.isBool())
        scanDupDirectory = folders.toBool();
    const QJsonValue io = duplication.value(SnapshotKeys::ioMode);
    if (io.isDouble())
        m_ioMode = io.toInt();
    const QJsonValue hint = duplication.value(SnapshotKeys::duplicateSelectHint);
    if (hint.isDouble())
        duplicateSelectHint = hint.toInt();
    if (duplicateSelectHint == 3) {
        const QJsonValue priorities = duplication.value(SnapshotKeys::mapPriority);
        if (priorities.isObject()) {
            mapPriority.clear();
            const QJsonObject map = priorities.toObject();
            for (auto it = map.begin(); it != map.end(); ++it)
                mapPriority.insert(it.key(), it.value().toInt());
        }
    }
}

void DuplicateFileFinder::setInput(const SizeTable &table, const QStringList &)
{
    m_table.clear();
    for (auto it = table.cbegin(); it != table.cend(); ++it)
        for (const FileMeta &meta : it.value())
            m_table.append(meta);
}

QStringList DuplicateFileFinder::uniqueImageFiles() const
{
    QMutexLocker locker(&m_mutex);
    return uniqueImages;
}

QByteArray DuplicateFileFinder::nameKey(const QString &filePath)
{
    return DuplicateKeyReader::nameKeyOf(filePath);
}

QByteArray DuplicateFileFinder::calculateFileHash(
    const QString &filePath, qint64 size, int driveType)
{
    return DuplicateKeyReader::sampledKeyOf(filePath, size, driveType);
}

QByteArray DuplicateFileFinder::streamHash(const QString &filePath, int driveType)
{
    return DuplicateKeyReader::wholeKeyOf(filePath, driveType);
}

void DuplicateFileFinder::run()
{
    stopRequested.store(0);
    {
        QMutexLocker locker(&m_mutex);
        uniqueImages.clear();
    }
    m_folders.clear();
    duplicateFileCount.store(0);
    duplicateTotalSize.store(0);
    processDuplicates();
    if (!isStopRequested() && scanDupDirectory) {
        m_folders.match(m_roots, duplicateSelectHint, mapPriority,
            [this](double percent) { emit progressUpdated(1, percent); });
        emit onFindItem(duplicateFileCount.load(), duplicateTotalSize.load());
    }
    m_table.clear();
    decltype(m_order)().swap(m_order);
    decltype(m_runs)().swap(m_runs);
    m_keyReader.release();
    m_folders.clear();
    emit scanFinished();
}

void DuplicateFileFinder::reportProgress(bool force)
{
    const qint64 now = m_timer.elapsed();
    if (!force && now - m_lastReportMs.load() <= 100)
        return;
    m_lastReportMs.store(now);
    const double total = double(m_keyReader.wantedFiles()) + double(m_runs.size());
    const double done = double(m_keyReader.keyedFiles()) + double(m_done.load());
    emit progressUpdated(0, total > 0 ? done * 100.0 / total : 100.0);
    emit onFindItem(duplicateFileCount.load(), duplicateTotalSize.load());
}

void DuplicateFileFinder::processDuplicates()
{
    m_timer.start();
    m_lastReportMs.store(0);
    m_done.store(0);
    m_table.squeeze();
    m_order = m_table.bySize();
    prepareImageTest();

    // Stage A: single files are never opened; single pictures wait for the similar stage.
    m_runs.clear();
    const size_t count = m_order.size();
    for (size_t begin = 0; begin < count;) {
        const qint64 size = m_table.file(m_order[begin]).size;
        size_t end = begin + 1;
        while (end < count && m_table.file(m_order[end]).size == size)
            ++end;
        if (end - begin == 1) {
            if (m_collectsPictures && isImage(m_order[begin])) {
                QMutexLocker locker(&m_mutex);
                uniqueImages.append(m_table.filePath(m_order[begin]));
            }
        } else {
            m_runs.push_back(SizeRun {quint32(begin), quint32(end - begin)});
        }
        begin = end;
    }
    // Large groups first, so that the last chunk does not leave one thread hashing a
    // big file alone.
    std::sort(m_runs.begin(), m_runs.end(), [this](const SizeRun &a, const SizeRun &b) {
        return m_table.file(m_order[a.begin]).size * a.count
            > m_table.file(m_order[b.begin]).size * b.count;
    });

    // Drives on an external bus keep plain reads: their bridges answer many reads in flight
    // badly, and a user's unplugging one should find few reads to cut.
    static_assert(int(ReadPool::Ssd) == DFSelectionPreferences::ioSsd
        && int(ReadPool::Hdd) == DFSelectionPreferences::ioHdd);
    ReadPool::Mode mode = ReadPool::Mode(m_ioMode);
    if (mode == ReadPool::Auto) {
        bool external = m_table.folderCount() > 0;
        for (quint32 f = 0; f < quint32(m_table.folderCount()) && external; ++f)
            external = m_table.folder(f).driveType == platform::Platform::DriveExternal;
        if (external)
            mode = ReadPool::Plain;
    }
    m_keyReader.readPool().setMode(mode);
    m_keyReader.setProblems(m_problems);
    m_keyReader.setProgress([this] { reportProgress(false); });
    m_keyReader.begin(m_cacheOptions, scanMethod != scanName, scanMethod == scanAllContent);
    if (scanMethod != scanName)
        m_keyReader.computeSampledKeys(m_order, m_runs, m_reader);

    m_keyReader.beginWholeReads();
    // Stage B on the readers; a stop takes effect at the next group. One reader on a disk
    // that seeks takes the groups in the disk's order instead.
    ReadPool &readers = m_keyReader.readPool();
    if (readers.mode() == ReadPool::Hdd)
        std::sort(m_runs.begin(), m_runs.end(), [this](const SizeRun &a, const SizeRun &b) {
            return m_table.stat(m_order[a.begin]).inode < m_table.stat(m_order[b.begin]).inode;
        });
    readers.run(
        m_runs.size(), [this](size_t at) { hashGroup(m_runs[at]); }, m_keyReader.bytesRead(),
        &stopRequested);
    splog_d(FinderCommon::kTag
        + QStringLiteral("Contents read by %1 readers (mode %2).")
              .arg(readers.readers())
              .arg(int(readers.mode())));
    m_keyReader.storeKeys();
    emit progressUpdated(0, isStopRequested() ? 0.0 : 100.0);
    emit onFindItem(duplicateFileCount.load(), duplicateTotalSize.load());
}

void DuplicateFileFinder::prepareImageTest()
{
    m_imageSuffixes.clear();
    m_longestImageSuffix = 0;
    m_asciiImageTest = true;
    for (const QString &suffix : FileTypeCatalogue::categoryExtensions().value(CategoryImages)) {
        for (QChar c : suffix)
            m_asciiImageTest = m_asciiImageTest && c.unicode() < 0x80;
        m_imageSuffixes.push_back(suffix.toLatin1().toLower().toStdString());
        m_longestImageSuffix = std::max(m_longestImageSuffix, m_imageSuffixes.back().size());
    }
    m_asciiImageTest = m_asciiImageTest && m_longestImageSuffix <= kShortSuffix;
    m_packedImageSuffixes.clear();
    for (const std::string &suffix : m_imageSuffixes) {
        if (suffix.size() > 8)
            continue;
        quint64 packed = 0;
        std::memcpy(&packed, suffix.data(), suffix.size());
        m_packedImageSuffixes.push_back(packed);
    }
    std::sort(m_packedImageSuffixes.begin(), m_packedImageSuffixes.end());
}

bool DuplicateFileFinder::isImage(quint32 file) const
{
    if (m_asciiImageTest) {
        // The suffix as QFileInfo::suffix() takes it: the text after the last dot.
        const char *name = m_table.nativeName(file);
        const char *dot = std::strrchr(name, '.');
        char lower[kShortSuffix];
        size_t length = 0;
        bool ascii = true;
        for (const char *c = dot ? dot + 1 : ""; *c; ++c) {
            const unsigned char byte = static_cast<unsigned char>(*c);
            if (byte >= 0x80) {
                ascii = false;
                break;
            }
            // For ASCII text a case-insensitive comparison is a comparison of lower case.
            if (length < kShortSuffix)
                lower[length] = char(byte >= 'A' && byte <= 'Z' ? byte + ('a' - 'A') : byte);
            ++length;
        }
        if (ascii) {
            if (length > m_longestImageSuffix)
                return false;
            if (length <= 8) {
                quint64 packed = 0;
                std::memcpy(&packed, lower, length);
                return std::binary_search(
                    m_packedImageSuffixes.begin(), m_packedImageSuffixes.end(), packed);
            }
            const std::string_view suffix(lower, length);
            return std::find(m_imageSuffixes.begin(), m_imageSuffixes.end(), suffix)
                != m_imageSuffixes.end();
        }
    }
    return isImageFile(m_table.fileName(file));
}

bool DuplicateFileFinder::groupByName(const SizeRun &run, std::vector<Found> &found)
{
    QHash<QByteArray, size_t> byText;
    for (quint32 i = run.begin; i < run.begin + run.count; ++i) {
        if (isStopRequested())
            return false;
        const quint32 file = m_order[i];
        // Names are compared without reading the files; a file must still be there
        // to be a member.
        if (!m_keyReader.stillExists(file))
            continue;
        const QByteArray key = nameKey(m_table.fileName(file));
        const auto at = byText.constFind(key);
        if (at == byText.constEnd()) {
            byText.insert(key, found.size());
            found.push_back(Found {key, {file}});
        } else {
            found[at.value()].members.push_back(file);
        }
    }
    return true;
}

bool DuplicateFileFinder::wholeKeys(const std::vector<KeyRuns::Keyed> &keyed,
    const std::vector<KeyRuns::Range> &ranges, std::vector<KeyRuns::Keyed> &full)
{
    using Keyed = KeyRuns::Keyed;
    // Whole files are read only where the sampled keys already agree: files whose
    // samples differ cannot have equal contents, so the groups are the same as
    // from hashing every file whole.
    full.clear();
    for (const KeyRuns::Range &range : ranges) {
        if (range.end - range.begin < 2) {
            full.push_back(
                Keyed {keyed[range.begin].key, quint32(full.size()), keyed[range.begin].file});
            continue;
        }
        for (quint32 k = range.begin; k < range.end; ++k) {
            if (isStopRequested())
                return false;
            const quint32 file = keyed[k].file;
            quint64 key = 0;
            if (!m_keyReader.wholeKey(file, key))
                continue;
            full.push_back(Keyed {key, quint32(full.size()), file});
        }
    }
    return true;
}

bool DuplicateFileFinder::groupByContent(
    const SizeRun &run, qint64 size, std::vector<Found> &found, std::vector<quint32> &singles)
{
    using Keyed = KeyRuns::Keyed;
    using Range = KeyRuns::Range;
    thread_local std::vector<Keyed> keyed;
    thread_local std::vector<Keyed> full;
    thread_local std::vector<Range> ranges;
    thread_local std::vector<Range> fullRanges;
    keyed.clear();
    for (quint32 i = run.begin; i < run.begin + run.count; ++i) {
        const quint32 file = m_order[i];
        if (m_keyReader.isKeyed(file))
            keyed.push_back(Keyed {m_keyReader.key(file), quint32(keyed.size()), file});
    }
    KeyRuns::group(keyed, ranges);
    std::vector<Keyed> *result = &keyed;
    std::vector<Range> *resultRanges = &ranges;
    if (scanMethod == scanAllContent && size > kWholeFileLimit) {
        if (!wholeKeys(keyed, ranges, full))
            return false;
        KeyRuns::group(full, fullRanges);
        result = &full;
        resultRanges = &fullRanges;
    }
    for (const Range &range : *resultRanges) {
        if (range.end - range.begin == 1) {
            singles.push_back((*result)[range.begin].file);
            continue;
        }
        Found entry {hexKey((*result)[range.begin].key), {}};
        for (quint32 k = range.begin; k < range.end; ++k)
            entry.members.push_back((*result)[k].file);
        found.push_back(std::move(entry));
    }
    return true;
}

bool DuplicateFileFinder::storeFound(qint64 size, const std::vector<Found> &found)
{
    for (const Found &entry : found) {
        if (entry.members.size() < 2)
            continue;
        // Members by path: the parallel walk meets them in a different order each time,
        // and the group is named after its first member, so the same tree always gives
        // the same groups, names and order.
        std::vector<std::pair<QString, quint32>> byPath;
        byPath.reserve(entry.members.size());
        for (quint32 file : entry.members)
            byPath.emplace_back(m_table.filePath(file), file);
        std::sort(byPath.begin(), byPath.end());
        QStringList paths;
        paths.reserve(qsizetype(byPath.size()));
        std::vector<quint32> members;
        members.reserve(byPath.size());
        for (auto &[path, file] : byPath) {
            paths.append(std::move(path));
            members.push_back(file);
        }
        storeGroup(size, entry.key, paths, members);
        if (isStopRequested())
            return false;
    }
    return true;
}

void DuplicateFileFinder::hashGroup(const SizeRun &run)
{
    if (isStopRequested() || run.count == 0)
        return;
    const qint64 size = m_table.file(m_order[run.begin]).size;
    // Empty files are never duplicates of one another, in any mode: they hold nothing
    // to recover.
    if (size < 1) {
        m_done.fetch_add(1);
        return;
    }
    // Files by key, keys in first-seen order, members in their order. Content keys are
    // the 64-bit digests, grouped by sorting (no allocation per file or key); the name
    // mode's keys are the MD5 texts.
    std::vector<Found> found;
    std::vector<quint32> singles;
    const bool grouped = scanMethod == scanName ? groupByName(run, found)
                                                : groupByContent(run, size, found, singles);
    if (!grouped)
        return;

    // Keys in first-seen order: a single file is only looked at as a picture.
    for (const Found &entry : found)
        if (entry.members.size() == 1)
            singles.push_back(entry.members.front());
    for (quint32 file : singles) {
        if (m_collectsPictures && isImage(file)) {
            QMutexLocker locker(&m_mutex);
            uniqueImages.append(m_table.filePath(file));
        }
    }
    if (!storeFound(size, found))
        return;

    const int done = m_done.fetch_add(1) + 1;
    reportProgress(done == int(m_runs.size()));
}

void DuplicateFileFinder::storeGroup(qint64 size, const QByteArray &contentKey,
    const QStringList &paths, const std::vector<quint32> &members)
{
    const QString groupKey = TFileData::groupKey(paths.first());
    if (scanDupDirectory && !m_folders.addGroupFiles(size, contentKey, groupKey, paths))
        return;
    TFileData *store = TFileData::instance();
    QList<FileStamp> stamps;
    if (m_keepsStamps)
        stamps.reserve(paths.size());
    // What each member looked like now, for the checks before any removal; the key
    // stands for the whole content in the full mode and for files read whole.
    const bool wholeContent
        = scanMethod == scanAllContent || (scanMethod == scanContent && size <= kWholeFileLimit);
    const quint64 key = contentKey.toULongLong(nullptr, 16);
    for (qsizetype i = 0; i < paths.size() && m_keepsStamps; ++i) {
        const QString &path = paths[i];
        const ScanBatch::Stat &stat = m_table.stat(members[size_t(i)]);
        if (stat.inode == 0) {
            stamps.append(
                wholeContent ? FileStamp::withContentKey(path, key) : FileStamp::of(path));
            continue;
        }
        // The walk's stat is the stamp: a file changed since then no longer matches it, so
        // a removal checks it again. The key goes with it only when no write after the
        // listing can have left both times as they were.
        const ScanTable::Folder &folder = m_table.folder(m_table.file(members[size_t(i)]).folder);
        FileStamp stamp;
        stamp.size = size;
        stamp.modifiedNs = stat.modifiedNs;
        stamp.changedNs = stat.changedNs;
        stamp.device = folder.device;
        stamp.inode = stat.inode;
        if (wholeContent && FileStamp::settled(stat.modifiedNs, stat.changedNs, folder.listedNs)) {
            stamp.contentKey = key;
            stamp.hasContentKey = true;
        }
        stamps.append(stamp);
    }
    store->insertGroup(groupKey, paths, stamps);
    if (scanMethod == scanName)
        store->setGroupMatch(groupKey, TFileData::MatchName);
    else if (!wholeContent)
        store->setGroupMatch(groupKey, TFileData::MatchSampled);
    // The "no selection" hint leaves the group without a selection entry.
    if (duplicateSelectHint != 8)
        GroupItemAutoSelector::applyToGroup(groupKey, paths, duplicateSelectHint, mapPriority);
    // What could go: every copy but one.
    duplicateFileCount.fetch_add(int(paths.size()) - 1);
    duplicateTotalSize.fetch_add(qint64(paths.size() - 1) * size);
}
