// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/GroupItemAutoSelector.h"

#include "app/FileTypeCatalogue.h"
#include "engine/GroupMember.h"
#include "engine/ProtectedFolders.h"
#include "engine/TFileData.h"

#include <algorithm>
#include <libheif/heif.h>
#include <libraw/libraw.h>
#include <limits>
#include <map>
#include <memory>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>
#include <QtConcurrent>

namespace {

// Matches "(12)", "_12" and "-12" as the copy numbers that file managers and cameras
// append to names. Compiled once; QRegularExpression may be used from many threads.
const QRegularExpression &copyNumberPattern()
{
    static const QRegularExpression pattern(QStringLiteral("(\\(\\d{1,3}\\)|_\\d{1,3}|-\\d{1,3})"));
    return pattern;
}

// Selects every entry except the one at keepIndex (only that one occurrence is left out,
// so a path listed twice still has its second copy selected).
QStringList allBut(const QStringList &paths, qsizetype keepIndex)
{
    QStringList selection;
    selection.reserve(paths.size());
    for (qsizetype i = 0; i < paths.size(); ++i) {
        if (i != keepIndex)
            selection.append(paths.at(i));
    }
    return selection;
}

// The common routine of the keyed rules. An ordered map from key to the indices with
// that key keeps group order inside a key. When all keys are equal the kept member is
// the last one (flag clear) or the first one (flag set); this asymmetry is deliberate
// and users rely on it.
template<typename Key, typename KeyOf>
QStringList selectByKey(const QStringList &paths, bool keepLargest, KeyOf keyOf)
{
    if (paths.size() < 2)
        return {};
    std::map<Key, QList<qsizetype>> byKey;
    for (qsizetype i = 0; i < paths.size(); ++i)
        byKey[keyOf(paths.at(i))].append(i);
    if (byKey.size() == 1)
        return allBut(paths, keepLargest ? 0 : paths.size() - 1);
    const qsizetype keep
        = keepLargest ? byKey.rbegin()->second.first() : byKey.begin()->second.first();
    return allBut(paths, keep);
}

// The file behind an entry, which may be a similar picture's.
QString filePathOf(const QString &entry)
{
    return GroupMember::fromEntry(entry).path;
}

qint64 dateKey(const QString &entry, const CloudPropertyReader &cloud)
{
    QDateTime time;
    if (cloud) {
        time = QDateTime::fromString(
            cloud(entry, QStringLiteral("createdTime")).toString(), Qt::ISODateWithMs);
    } else {
        time = QFileInfo(filePathOf(entry)).lastModified();
    }
    // A date that cannot be read sorts before every real date.
    return time.isValid() ? time.toMSecsSinceEpoch() : std::numeric_limits<qint64>::min();
}

qint32 pixelKey(const QString &entry, const CloudPropertyReader &cloud)
{
    qint32 width = -1;
    qint32 height = -1;
    if (cloud) {
        bool okWidth = false;
        bool okHeight = false;
        const int w = cloud(entry, QStringLiteral("width")).toInt(&okWidth);
        const int h = cloud(entry, QStringLiteral("height")).toInt(&okHeight);
        if (okWidth && okHeight) {
            width = w;
            height = h;
        }
    } else {
        const auto size = GroupItemAutoSelector::pictureSize(filePathOf(entry));
        width = size.first;
        height = size.second;
    }
    // Multiplied as 32-bit integers; the wrap-around of huge sizes is kept on purpose so
    // that every caller orders pictures alike. Unsigned arithmetic avoids undefined
    // behaviour while giving the same bits.
    return qint32(quint32(width) * quint32(height));
}

qint64 sizeKey(const QString &entry, const CloudPropertyReader &cloud)
{
    if (cloud)
        return cloud(entry, QStringLiteral("size")).toLongLong();
    return QFileInfo(filePathOf(entry)).size();
}

QSize heifSize(const QString &path)
{
    QSize size(-1, -1);
    heif_context *context = heif_context_alloc();
    if (!context)
        return size;
    const QByteArray native = QFile::encodeName(path);
    heif_image_handle *handle = nullptr;
    if (heif_context_read_from_file(context, native.constData(), nullptr).code == heif_error_Ok
        && heif_context_get_primary_image_handle(context, &handle).code == heif_error_Ok) {
        size = QSize(heif_image_handle_get_width(handle), heif_image_handle_get_height(handle));
        heif_image_handle_release(handle);
    }
    heif_context_free(context);
    return size;
}

QSize rawSize(const QString &path)
{
    // LibRaw's open_file reads the metadata only; nothing is unpacked.
    auto raw = std::make_unique<LibRaw>();
    const QByteArray native = QFile::encodeName(path);
    if (raw->open_file(native.constData()) != LIBRAW_SUCCESS)
        return QSize(-1, -1);
    const QSize size(raw->imgdata.sizes.width, raw->imgdata.sizes.height);
    raw->recycle();
    return size.isValid() && !size.isEmpty() ? size : QSize(-1, -1);
}

} // namespace

const QStringList &GroupItemAutoSelector::keywords()
{
    // Words that mark a file or folder as a copy, a temporary or a download, in the
    // languages of the program. A function-local static is built once, thread-safely.
    static const QStringList table = {
        QStringLiteral("copy"),
        QStringLiteral("copia"),
        QStringLiteral("copie"),
        QStringLiteral("kopie"),
        QStringLiteral("copy of"),
        QStringLiteral("копия"),
        QStringLiteral("duplikat"),
        QStringLiteral("duplicado"),
        QStringLiteral("cópia"),
        QStringLiteral("new"),
        QStringLiteral("コピー"),
        QStringLiteral("副本"),
        QStringLiteral("còpia"),
        QStringLiteral("nouveau dossier"),
        QStringLiteral("neuer ordner"),
        QStringLiteral("新しいフォルダー"),
        QStringLiteral("新建文件夹"),
        QStringLiteral("tmp"),
        QStringLiteral("nuova cartella"),
        QStringLiteral("nueva carpeta"),
        QStringLiteral("nova pasta"),
        QStringLiteral("autosave"),
        QStringLiteral("backup"),
        QStringLiteral("bak"),
        QStringLiteral("temp"),
        QStringLiteral("downloads"),
        QStringLiteral("export"),
        QStringLiteral("edited"),
        QStringLiteral("auto save"),
        QStringLiteral("回收站"),
        QStringLiteral("trash"),
        QStringLiteral("desktop"),
    };
    return table;
}

int GroupItemAutoSelector::score(const QString &entry, bool cloud)
{
    static const QString newWord = QStringLiteral("new");
    const QString path = filePathOf(entry);
    const QFileInfo info(path);
    const QString name = info.fileName().toLower();
    int result = 100;
    for (const QString &word : keywords()) {
        if (name.contains(word))
            result -= word == newWord ? 20 : 50;
    }
    // A cloud path's folders are the service's, not the user's naming, so only local
    // folders count.
    if (!cloud) {
        const QString folder = info.absolutePath().toLower();
        for (const QString &word : keywords()) {
            if (folder.contains(word))
                result -= word == newWord ? 20 : 30;
        }
    }
    auto matches = copyNumberPattern().globalMatch(name);
    while (matches.hasNext()) {
        matches.next();
        result -= 50;
    }
    return result;
}

int GroupItemAutoSelector::priorityOf(const QString &path, const QMap<QString, int> &mapPriority)
{
    QStringList folders = mapPriority.keys();
    // Longest first, so the most specific listed folder wins.
    std::stable_sort(folders.begin(), folders.end(),
        [](const QString &a, const QString &b) { return a.size() > b.size(); });
    for (const QString &folder : std::as_const(folders)) {
        if (folder.isEmpty() || !path.startsWith(folder))
            continue;
        // "D:/Photos" holds "D:/Photos/a.jpg" but not "D:/PhotosOld/a.jpg".
        const bool endsWithSeparator
            = folder.endsWith(QLatin1Char('/')) || folder.endsWith(QLatin1Char('\\'));
        const QChar next = path.size() > folder.size() ? path.at(folder.size()) : QChar();
        if (endsWithSeparator || next.isNull() || next == QLatin1Char('/')
            || next == QLatin1Char('\\'))
            return mapPriority.value(folder);
    }
    return 0;
}

QPair<int, int> GroupItemAutoSelector::pictureSize(const QString &path)
{
    // QImageReader reads the header only when asked for the size.
    QSize size = QImageReader(path).size();
    if (!size.isValid()) {
        const QString suffix = QFileInfo(path).suffix();
        if (isHeifFormat(suffix) || suffix.compare(QLatin1String("avif"), Qt::CaseInsensitive) == 0)
            size = heifSize(path);
        else if (isRawFormat(suffix))
            size = rawSize(path);
    }
    if (!size.isValid())
        return {-1, -1};
    return {size.width(), size.height()};
}

QStringList GroupItemAutoSelector::selectOpen(
    const QStringList &paths, int rule, const CloudPropertyReader &cloud)
{
    switch (rule) {
    case selectNewest:
    case selectOldest:
        return selectByKey<qint64>(
            paths, rule == selectOldest, [&cloud](const QString &p) { return dateKey(p, cloud); });
    case selectHighResolution:
    case selectLowResolution:
        return selectByKey<qint32>(paths, rule == selectLowResolution,
            [&cloud](const QString &p) { return pixelKey(p, cloud); });
    case selectHighQuality:
    case selectLowQuality:
        return selectByKey<qint64>(paths, rule == selectLowQuality,
            [&cloud](const QString &p) { return sizeKey(p, cloud); });
    case autoSelect: {
        if (paths.size() < 2)
            return {};
        // Equal scores keep group order, so the first of the best-scored members stays;
        // when all scores are equal that is the group's first member.
        qsizetype keep = 0;
        int best = std::numeric_limits<int>::min();
        for (qsizetype i = 0; i < paths.size(); ++i) {
            const int value = score(paths.at(i), bool(cloud));
            if (value > best) {
                best = value;
                keep = i;
            }
        }
        return allBut(paths, keep);
    }
    case selectAllFiles:
        return paths;
    default:
        // Rule 3 needs the priorities; "Deselect" and unknown values select nothing.
        return {};
    }
}

QStringList GroupItemAutoSelector::byPriorityOpen(const QStringList &paths,
    const QMap<QString, int> &mapPriority, const CloudPropertyReader &cloud)
{
    if (paths.isEmpty())
        return {};
    // Without priorities "Select by Priority" must still do something sensible: it
    // behaves like "Select by Filename".
    if (mapPriority.isEmpty())
        return selectOpen(paths, autoSelect, cloud);
    qsizetype keep = 0;
    int best = std::numeric_limits<int>::min();
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const int priority = priorityOf(filePathOf(paths.at(i)), mapPriority);
        if (priority > best) {
            best = priority;
            keep = i;
        }
    }
    return allBut(paths, keep);
}

QStringList GroupItemAutoSelector::selectGroup(
    const QStringList &paths, int rule, const CloudPropertyReader &cloud)
{
    if (rule == selectPriority)
        return {};
    return select(paths, rule, {}, cloud);
}

QStringList GroupItemAutoSelector::selectByPriority(const QStringList &paths,
    const QMap<QString, int> &mapPriority, const CloudPropertyReader &cloud)
{
    return select(paths, selectPriority, mapPriority, cloud);
}

QStringList GroupItemAutoSelector::select(const QStringList &paths, int rule,
    const QMap<QString, int> &mapPriority, const CloudPropertyReader &cloud)
{
    const auto plain = [&](const QStringList &members) {
        return rule == selectPriority ? byPriorityOpen(members, mapPriority, cloud)
                                      : selectOpen(members, rule, cloud);
    };
    const ProtectedFolders folders = TFileData::instance()->protectedFolders();
    if (folders.isEmpty())
        return plain(paths);
    QStringList open;
    QSet<QString> sheltered;
    for (const QString &entry : paths) {
        if (folders.protects(filePathOf(entry)))
            sheltered.insert(entry);
        else
            open.append(entry);
    }
    if (sheltered.isEmpty())
        return plain(paths);
    // A protected member always stays, so a group that holds one already keeps a copy.
    // The rules whose only aim is to choose the one copy that stays (by name, by folder
    // priority) have nothing left to choose: every unprotected member is selected, which
    // is what cleaning a download folder against a protected archive asks for. The
    // rules that select by a criterion (date, resolution, size, all) judge the whole
    // group as always and only lose the protected members from what they pick, so the
    // copy their criterion keeps stays kept.
    if (rule == autoSelect || rule == selectPriority)
        return open;
    QStringList picked = plain(paths);
    picked.removeIf([&sheltered](const QString &entry) { return sheltered.contains(entry); });
    return picked;
}

QStringList GroupItemAutoSelector::selectCloudGroup(const QStringList &paths, int rule,
    const QMap<QString, int> &mapPriority, const CloudPropertyReader &cloud, bool excludeSimilar)
{
    if (!excludeSimilar || !cloud)
        return select(paths, rule, mapPriority, cloud);
    QStringList considered;
    for (const QString &path : paths) {
        if (!cloud(path, QStringLiteral("similar")).toBool())
            considered.append(path);
    }
    return select(considered, rule, mapPriority, cloud);
}

void GroupItemAutoSelector::storeSelection(const QString &key, const QStringList &selection)
{
    if (selection.isEmpty())
        TFileData::instance()->removeSelected(key);
    else
        TFileData::instance()->setSelected(key, selection);
}

QStringList GroupItemAutoSelector::applyToGroup(const QString &key, const QStringList &paths,
    int rule, const QMap<QString, int> &mapPriority, const CloudPropertyReader &cloud)
{
    const QStringList selection = select(paths, rule, mapPriority, cloud);
    storeSelection(key, selection);
    return selection;
}

void GroupItemAutoSelector::autoSelectAllEx(const QList<KeyedGroup> &groups, int rule,
    const CloudPropertyReader &cloud, const QMap<QString, int> &mapPriority)
{
    // Reading dates, sizes and picture headers is I/O bound per group; the global pool
    // overlaps it. blockingMap returns when every group is stored.
    QtConcurrent::blockingMap(groups, [&](const KeyedGroup &group) {
        applyToGroup(group.first, group.second, rule, mapPriority, cloud);
    });
}
