// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/TImageModel.h"

#include "engine/GroupMember.h"
#include "engine/TFileData.h"
#include "results/GroupBuilder.h"

#include <algorithm>
#include <cmath>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QImageReader>

namespace {

// A removed path takes every entry of its file with it; a removed similar-picture entry
// only itself.
void dropRemoved(QStringList &files, const QString &removed)
{
    const GroupMember gone = GroupMember::fromEntry(removed);
    files.removeIf([&gone](const QString &entry) {
        const GroupMember member = GroupMember::fromEntry(entry);
        return gone.isSimilar() ? member == gone : member.path == gone.path;
    });
}

} // namespace

QVariant TImageModel::cloudProperty(KvCloudObject *cloud, const QString &entry, const QString &name)
{
    return GroupBuilder::cloudProperty(cloud, entry, name);
}

TImageModel::TImageModel(DataModel mode, int thumbnailCacheSize)
    : QAbstractListModel(nullptr), m_mode(mode), m_thumbnails(thumbnailCacheSize, mode == ListView)
{
    connect(&m_thumbnails, &ThumbnailLoader::thumbnailStored, this, [this](int row) {
        if (row >= 0 && row < rowCount())
            emit dataChanged(index(row, 0), index(row, columnCount() - 1), {ThumbnailRole});
    });
}

TImageModel::~TImageModel() = default;

int TImageModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return int(m_mode == ListView ? m_groups.size() : m_items.size());
}

int TImageModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

Qt::ItemFlags TImageModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    // A protected copy's box takes no check: the store would refuse it anyway.
    const bool locked
        = m_mode == IconView && index.row() < m_items.size() && m_items.at(index.row()).locked;
    if (index.column() == 0 && !locked)
        return Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled;
}

QString TImageModel::protectedText()
{
    return tr("In a protected folder: this copy is always kept and cannot be selected.");
}

QString TImageModel::sizeText(qint64 bytes)
{
    static const qint64 kb = 1024, mb = 1048576, gb = 1073741824;
    auto shortest = [](qint64 value, qint64 unit) {
        const double truncated = std::floor(double(value) / double(unit) * 100.0) / 100.0;
        return QString::number(truncated);
    };
    if (bytes < kb)
        return QStringLiteral("%1 B").arg(bytes);
    if (bytes < mb)
        return QStringLiteral("%1 KB").arg(shortest(bytes, kb));
    if (bytes < gb)
        return QStringLiteral("%1 MB").arg(shortest(bytes, mb));
    return QStringLiteral("%1 GB").arg(shortest(bytes, gb));
}

QVariant TImageModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() < 0)
        return {};
    if (m_mode == ListView) {
        if (index.row() >= m_groups.size())
            return {};
        return groupData(m_groups.at(index.row()), role, index.row());
    }
    if (index.row() >= m_items.size())
        return {};
    return itemData(m_items.at(index.row()), index, role);
}

QVariant TImageModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || m_mode != IconView)
        return QAbstractListModel::headerData(section, orientation, role);
    switch (section) {
    case NameColumn:
        return m_nameMode == kPathNameMode ? tr("File") : tr("Name");
    case SizeColumn:
        return tr("Size");
    case DateColumn:
        return tr("Modified");
    case FolderColumn:
        return tr("Folder");
    default:
        return QString();
    }
}

QVariant TImageModel::groupData(const GroupItem &group, int role, int row) const
{
    if (group.files.isEmpty())
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return group.name;
    case FilePathRole:
        return group.firstFile;
    case KeyRole:
        return group.key;
    case FilesRole:
        return group.files;
    case ThumbnailRole:
        if (const QPixmap *cached = m_thumbnails.cached(group.firstFile))
            return *cached;
        requestThumbnail(row, group.type, group.firstFile);
        return QPixmap();
    case TypeRole:
        return group.type;
    case SizeTextRole:
        return sizeText(group.totalSize);
    case CountRole:
        return group.count;
    case SelectedCountRole:
        return group.selectedCount;
    case CheckedRole:
        return false;
    default:
        return {};
    }
}

QVariant TImageModel::itemData(const ImageItem &item, const QModelIndex &index, int role) const
{
    const int column = index.column();
    if (role == Qt::DisplayRole || role == Qt::DecorationRole) {
        if (column == HideColumn)
            return QIcon(QStringLiteral(":/resource/hideFile.png"));
        if (column == OpenColumn)
            return QIcon(QStringLiteral(":/resource/openInFinder.png"));
        if (role == Qt::DecorationRole)
            return {};
        switch (column) {
        case CheckColumn:
            return item.checked ? 2 : 0;
        case NameColumn:
            return m_nameMode == kPathNameMode ? item.path : item.displayName;
        case SizeColumn:
            return sizeText(item.size);
        case DateColumn:
            return itemData(item, index, DateRole);
        case FolderColumn:
            return itemData(item, index, FolderRole);
        default:
            return {};
        }
    }
    switch (role) {
    case Qt::ToolTipRole:
        // Every cell names the whole file; the two buttons say what they do.
        if (column == HideColumn)
            return tr("Hide from results");
        if (column == OpenColumn)
            return tr("Show in the file manager");
        if (item.locked)
            return column == CheckColumn
                ? protectedText()
                : QDir::toNativeSeparators(item.path) + QLatin1Char('\n') + protectedText();
        return QDir::toNativeSeparators(item.path);
    case FolderRole:
        return QDir::toNativeSeparators(QFileInfo(item.path).path());
    case DistinctFromRole:
        return item.distinctFrom;
    case Qt::CheckStateRole:
        if (column == 0)
            return item.checked ? 2 : 0;
        return {};
    case FilePathRole:
        return item.path;
    case KeyRole:
        return item.key;
    case ThumbnailRole:
        if (const QPixmap *cached = m_thumbnails.cached(item.path))
            return *cached;
        requestThumbnail(index.row(), item.type, item.path);
        return QPixmap();
    case NameRole:
        return item.extra;
    case TypeRole:
        return item.type;
    case DateRole: {
        if (!item.dateText.isEmpty())
            return item.dateText;
        const QFileInfo info(item.path);
        if (!info.exists())
            return QString();
        return info.lastModified().toString(QStringLiteral("yyyy/MM/dd HH:mm:ss"));
    }
    case SizeTextRole:
        return sizeText(item.size);
    case DimensionsRole: {
        // The header alone gives the size; the picture is not decoded.
        const QSize size = QFileInfo::exists(item.path) ? QImageReader(item.path).size() : QSize();
        if (size.width() < 1 || size.height() < 1)
            return QStringLiteral("%1x%2").arg(QStringLiteral("-"), QStringLiteral("-"));
        return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
    }
    case CheckedRole:
        return item.checked;
    case ProtectedRole:
        return item.locked;
    case HiddenRole:
        return item.hidden;
    case GroupIndexRole:
        return item.groupIndex;
    case SimilarityRole:
        return item.similarity;
    case MatchReasonRole:
        return item.reason;
    case DisplayNameRole:
        return item.displayName;
    case UnverifiedRole:
        return item.unverified;
    default:
        return {};
    }
}

bool TImageModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    return setData(index, value, role, false);
}

bool TImageModel::setData(const QModelIndex &index, const QVariant &value, int role, bool notify)
{
    if (m_mode != IconView || !index.isValid() || index.row() < 0 || index.row() >= m_items.size())
        return false;
    if (role != CheckedRole && !(role == Qt::CheckStateRole && index.column() == 0))
        return false;
    const bool checked = value.toBool();
    ImageItem &item = m_items[index.row()];
    if (checked && item.locked)
        return false;
    if (item.checked == checked) {
        if (notify)
            emit onItemSelectedChange(item.key, item.path, checked, item.groupIndex, notify);
        return false;
    }
    item.checked = checked;
    const auto master = m_itemRows.constFind(item.path);
    if (master != m_itemRows.constEnd())
        m_allItems[*master].checked = checked;
    emit dataChanged(index, index, {role});
    emit onItemSelectedChange(item.key, item.path, checked, item.groupIndex, notify);
    return true;
}

bool TImageModel::removeRows(int row, int count, const QModelIndex &parent)
{
    if (parent.isValid() || row < 0 || count < 1)
        return false;
    const int size = rowCount();
    if (row + count > size)
        return false;
    beginRemoveRows(QModelIndex(), row, row + count - 1);
    QList<int> masterRows;
    if (m_mode == ListView) {
        for (int i = 0; i < count; ++i) {
            const auto found = m_groupRows.constFind(m_groups.at(row + i).key);
            if (found != m_groupRows.constEnd())
                masterRows << *found;
        }
        m_groups.remove(row, count);
    } else {
        for (int i = 0; i < count; ++i) {
            const auto found = m_itemRows.constFind(m_items.at(row + i).path);
            if (found != m_itemRows.constEnd())
                masterRows << *found;
        }
        m_items.remove(row, count);
    }
    std::sort(masterRows.begin(), masterRows.end(), std::greater<int>());
    for (int masterRow : std::as_const(masterRows)) {
        if (m_mode == ListView)
            m_allGroups.removeAt(masterRow);
        else
            m_allItems.removeAt(masterRow);
    }
    if (m_mode == ListView)
        rebuildGroupIndex();
    else
        rebuildItemIndex();
    endRemoveRows();
    return true;
}

void TImageModel::rebuildGroupIndex()
{
    m_groupRows.clear();
    m_groupRows.reserve(m_allGroups.size());
    for (int i = 0; i < m_allGroups.size(); ++i)
        m_groupRows.insert(m_allGroups.at(i).key, i);
}

void TImageModel::rebuildItemIndex()
{
    m_itemRows.clear();
    m_itemRows.reserve(m_allItems.size());
    for (int i = 0; i < m_allItems.size(); ++i)
        m_itemRows.insert(m_allItems.at(i).path, i);
}

TImageModel::BuiltGroups TImageModel::buildAllGroups(bool isCloud, KvCloudObject *cloud)
{
    BuiltGroups built;
    built.groups = GroupBuilder::buildAll(isCloud, cloud, built.totalSize, built.selectedCount);
    return built;
}

void TImageModel::sortGroups(QList<GroupItem> &groups, SortRole role, bool descending)
{
    if (descending)
        std::sort(groups.begin(), groups.end(),
            [role](const GroupItem &a, const GroupItem &b) { return lessThan(b, a, role); });
    else
        std::sort(groups.begin(), groups.end(),
            [role](const GroupItem &a, const GroupItem &b) { return lessThan(a, b, role); });
}

void TImageModel::loadAllGroups(SortRole role, bool isCloud, KvCloudObject *cloud)
{
    const BuiltGroups built = buildAllGroups(isCloud, cloud);
    beginResetModel();
    m_allGroups = built.groups;
    m_groups = built.groups;
    rebuildGroupIndex();
    sortGroups(m_groups, role, true);
    endResetModel();
    emit onLoadComplated(built.selectedCount, built.totalSize);
}

void TImageModel::appendGroups(const QList<GroupItem> &groups)
{
    if (groups.isEmpty())
        return;
    const int first = int(m_groups.size());
    beginInsertRows(QModelIndex(), first, first + int(groups.size()) - 1);
    m_groups.append(groups);
    m_allGroups.append(groups);
    for (qsizetype i = m_allGroups.size() - groups.size(); i < m_allGroups.size(); ++i)
        m_groupRows.insert(m_allGroups.at(i).key, int(i));
    endInsertRows();
}

void TImageModel::setItems(const QList<ImageItem> &items)
{
    beginResetModel();
    m_items = items;
    m_allItems = items;
    rebuildItemIndex();
    endResetModel();
}

void TImageModel::clear()
{
    m_thumbnails.cancelAll();
    beginResetModel();
    m_allGroups.clear();
    m_groups.clear();
    m_groupRows.clear();
    m_allItems.clear();
    m_items.clear();
    m_itemRows.clear();
    m_thumbnails.clearCache();
    endResetModel();
}

bool TImageModel::lessThan(const GroupItem &a, const GroupItem &b, SortRole role)
{
    switch (role) {
    case ByName:
        return a.name < b.name;
    case BySize:
        return a.totalSize < b.totalSize;
    case ByCount:
        return a.count != b.count ? a.count < b.count : a.selectedCount < b.selectedCount;
    case ByType:
        return a.type != b.type ? a.type < b.type : a.count < b.count;
    case BySelected:
        return a.selectedCount != b.selectedCount ? a.selectedCount < b.selectedCount
                                                  : a.count < b.count;
    }
    return false;
}

void TImageModel::sort(SortRole role, bool descending)
{
    sortGroups(m_groups, role, descending);
    if (!m_groups.isEmpty())
        emit dataChanged(index(0, 0), index(int(m_groups.size()) - 1, columnCount() - 1));
}

void TImageModel::sort(int column, Qt::SortOrder order)
{
    if (m_mode != IconView)
        return;
    std::function<bool(const ImageItem &, const ImageItem &)> less;
    switch (column) {
    case NameColumn:
        less = [this](const ImageItem &a, const ImageItem &b) {
            return m_nameMode == kPathNameMode
                ? a.path.localeAwareCompare(b.path) < 0
                : a.displayName.localeAwareCompare(b.displayName) < 0;
        };
        break;
    case SizeColumn:
        less = [](const ImageItem &a, const ImageItem &b) { return a.size < b.size; };
        break;
    case DateColumn:
        // "yyyy/MM/dd HH:mm:ss" orders as text.
        less = [](const ImageItem &a, const ImageItem &b) { return a.dateText < b.dateText; };
        break;
    case FolderColumn:
        less = [](const ImageItem &a, const ImageItem &b) {
            return QFileInfo(a.path).path().localeAwareCompare(QFileInfo(b.path).path()) < 0;
        };
        break;
    default:
        return;
    }
    const auto ordered = [&less, order](const ImageItem &a, const ImageItem &b) {
        return order == Qt::AscendingOrder ? less(a, b) : less(b, a);
    };
    emit layoutAboutToBeChanged();
    // The views' current and selected files stay theirs after the rows move.
    const QModelIndexList before = persistentIndexList();
    QStringList paths;
    for (const QModelIndex &at : before)
        paths.append(at.row() < m_items.size() ? m_items.at(at.row()).path : QString());
    std::stable_sort(m_items.begin(), m_items.end(), ordered);
    std::stable_sort(m_allItems.begin(), m_allItems.end(), ordered);
    rebuildItemIndex();
    QHash<QString, int> rowOf;
    for (int row = 0; row < m_items.size(); ++row)
        rowOf.insert(m_items.at(row).path, row);
    QModelIndexList after;
    for (qsizetype k = 0; k < before.size(); ++k) {
        const auto row = rowOf.constFind(paths.at(k));
        after.append(row == rowOf.cend() ? QModelIndex() : index(*row, before.at(k).column()));
    }
    changePersistentIndexList(before, after);
    emit layoutChanged();
}

template<typename T>
QList<T> TImageModel::fastParallelFilter(
    const QList<T> &source, const std::function<bool(const T &)> &keep)
{
    return ResultFilter::parallelFilter<T>(source, keep);
}

template QList<GroupItem> TImageModel::fastParallelFilter<GroupItem>(
    const QList<GroupItem> &, const std::function<bool(const GroupItem &)> &);
template QList<ImageItem> TImageModel::fastParallelFilter<ImageItem>(
    const QList<ImageItem> &, const std::function<bool(const ImageItem &)> &);

void TImageModel::setDisplayedGroups(const QList<GroupItem> &groups)
{
    beginResetModel();
    m_groups = groups;
    endResetModel();
}

int TImageModel::shownSimilarity(const GroupMember &member)
{
    return ResultFilter::shownSimilarity(member);
}

void TImageModel::filterByName(const QString &text)
{
    filterByTypeAndName(-1, text);
}

void TImageModel::filterByType(int type)
{
    setDisplayedGroups(m_filter.groupsOfType(m_allGroups, type));
}

void TImageModel::filterByTypeAndName(int type, const QString &text)
{
    setDisplayedGroups(m_filter.groupsOfTypeAndName(m_allGroups, type, text));
}

void TImageModel::resetGroupFilter()
{
    setDisplayedGroups(m_filter.allGroups(m_allGroups));
}

void TImageModel::filterByShow(int mode, int minSimilarity)
{
    const std::function<bool(const ImageItem &)> keep
        = ResultFilter::showFilter(mode, minSimilarity);
    if (!keep)
        return;
    const QList<ImageItem> shown = fastParallelFilter<ImageItem>(m_allItems, keep);
    beginResetModel();
    m_items = shown;
    endResetModel();
}

void TImageModel::refreshGroupSelection(const QModelIndexList &indexes)
{
    TFileData *store = TFileData::instance();
    for (const QModelIndex &index : indexes) {
        if (!index.isValid() || index.row() >= m_groups.size())
            continue;
        GroupItem &group = m_groups[index.row()];
        group.selectedCount = store->selectedCount(group.key);
        const auto master = m_groupRows.constFind(group.key);
        if (master != m_groupRows.constEnd())
            m_allGroups[*master].selectedCount = group.selectedCount;
        emit dataChanged(index, index);
    }
}

void TImageModel::refreshItemSelection()
{
    TFileData *store = TFileData::instance();
    for (int row = 0; row < m_items.size(); ++row) {
        ImageItem &item = m_items[row];
        const bool checked = store->isSelected(item.key, item.path);
        if (checked == item.checked)
            continue;
        item.checked = checked;
        const auto master = m_itemRows.constFind(item.path);
        if (master != m_itemRows.constEnd())
            m_allItems[*master].checked = checked;
        emit dataChanged(index(row, 0), index(row, columnCount() - 1), {CheckedRole});
    }
    // Items filtered out of view follow the store as well.
    for (ImageItem &item : m_allItems)
        item.checked = store->isSelected(item.key, item.path);
}

void TImageModel::reloadGroup(const QString &key)
{
    const GroupItem group = GroupBuilder::buildFromStore(key);
    beginResetModel();
    const auto master = m_groupRows.constFind(key);
    if (master != m_groupRows.constEnd())
        m_allGroups[*master] = group;
    else
        m_allGroups.append(group);
    const auto shown = std::find_if(
        m_groups.begin(), m_groups.end(), [&key](const GroupItem &g) { return g.key == key; });
    if (shown != m_groups.end())
        *shown = group;
    else
        m_groups.append(group);
    rebuildGroupIndex();
    endResetModel();
}

void TImageModel::removeDeletedFile(const QString &key, const QString &path)
{
    int row = -1;
    for (int i = 0; i < m_groups.size(); ++i) {
        if (m_groups.at(i).key == key) {
            row = i;
            break;
        }
    }
    if (row < 0)
        return;
    GroupItem &group = m_groups[row];
    dropRemoved(group.files, path);

    if (group.files.size() > 1
        && !TFileData::instance()->protectedFolders().protectsEvery(group.files)) {
        GroupBuilder::refreshAfterRemoval(group);
        const auto master = m_groupRows.constFind(key);
        if (master != m_groupRows.constEnd())
            m_allGroups[*master] = group;
        emit dataChanged(index(row, 0), index(row, columnCount() - 1));
        return;
    }

    // One copy left is no longer a duplicate, and protected copies only offer nothing to
    // remove: the group leaves the list.
    beginRemoveRows(QModelIndex(), row, row);
    m_groups.removeAt(row);
    const auto master = m_groupRows.constFind(key);
    if (master != m_groupRows.constEnd())
        m_allGroups.removeAt(*master);
    rebuildGroupIndex();
    endRemoveRows();
}

void TImageModel::removeDeletedFiles(const QHash<QString, QStringList> &removedByKey)
{
    if (removedByKey.isEmpty())
        return;
    // One pass over both lists and one reset: a batch can touch every group, and a
    // search per removed file would cost the square of the group count.
    // A group left with protected copies only has nothing more to offer: it goes too.
    const ProtectedFolders sheltered = TFileData::instance()->protectedFolders();
    auto update = [&removedByKey, &sheltered](GroupItem &group) {
        const auto removed = removedByKey.constFind(group.key);
        if (removed == removedByKey.constEnd())
            return true;
        for (const QString &path : *removed)
            dropRemoved(group.files, path);
        if (group.files.size() < 2 || sheltered.protectsEvery(group.files))
            return false;
        GroupBuilder::refreshAfterRemoval(group);
        return true;
    };
    auto keepUpdated = [&update](QList<GroupItem> &groups) {
        QList<GroupItem> kept;
        kept.reserve(groups.size());
        for (GroupItem &group : groups)
            if (update(group))
                kept.append(std::move(group));
        groups = std::move(kept);
    };
    beginResetModel();
    keepUpdated(m_groups);
    keepUpdated(m_allGroups);
    rebuildGroupIndex();
    endResetModel();
}

void TImageModel::removeItem(const QString &path)
{
    const auto shown = std::find_if(m_items.cbegin(), m_items.cend(),
        [&path](const ImageItem &item) { return item.path == path; });
    if (shown != m_items.cend()) {
        const int row = int(shown - m_items.cbegin());
        removeRows(row, 1);
        return;
    }
    const auto master = m_itemRows.constFind(path);
    if (master != m_itemRows.constEnd()) {
        m_allItems.removeAt(*master);
        rebuildItemIndex();
    }
}

QList<QPair<QString, QStringList>> TImageModel::displayedItemsByGroup() const
{
    QHash<QString, QStringList> byKey;
    for (const ImageItem &item : m_items)
        byKey[item.key].append(item.path);
    QList<QPair<QString, QStringList>> result;
    result.reserve(byKey.size());
    for (auto it = byKey.cbegin(); it != byKey.cend(); ++it)
        result.append({it.key(), it.value()});
    return result;
}

void TImageModel::setNameMode(int mode)
{
    if (m_nameMode == mode)
        return;
    m_nameMode = mode;
    if (m_mode == IconView && !m_items.isEmpty())
        emit dataChanged(index(0, 1), index(int(m_items.size()) - 1, 1));
}

void TImageModel::requestThumbnail(int row, int type, const QString &path) const
{
    m_thumbnails.request(row, type, path);
}

void TImageModel::onImageLoadTaskFinash(
    int row, bool cancel, const QString &imagefile, const QImage &image)
{
    Q_UNUSED(cancel)
    m_thumbnails.finish(row, imagefile, image, sender());
}

void TImageModel::cancelPendingLoads(int firstRow, int lastRow)
{
    m_thumbnails.cancelOutside(firstRow, lastRow);
}
