// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/GroupMember.h"
#include "results/GroupItem.h"
#include "results/ImageItem.h"
#include "results/ResultFilter.h"
#include "results/ThumbnailLoader.h"

#include <functional>

#include <QAbstractListModel>
#include <QHash>
#include <QImage>

class KvCloudObject;

// Order of the group list. The values are stored and passed around as integers.
enum SortRole {
    ByName = 0,
    BySize = 1,
    ByCount = 2,
    ByType = 3,
    BySelected = 4,
};

// The item model behind the result lists: one row per group (ListView) or one row per
// file of the open group (IconView). It keeps a master list of everything loaded and a
// displayed list that the filters cut down; views only ever see the displayed list.
class TImageModel : public QAbstractListModel
{
    Q_OBJECT
public:
    enum DataModel {
        ListView = 0,
        IconView = 1,
    };

    enum Roles {
        FilePathRole = Qt::UserRole + 1, // 257
        KeyRole = 258,
        FilesRole = 259,
        ThumbnailRole = 260,
        NameRole = 261, // group name; an item's extra text
        TypeRole = 262,
        DateRole = 263,
        SizeTextRole = 264,
        CountRole = 265,
        SelectedCountRole = 266,
        DimensionsRole = 267,
        CheckedRole = 270,
        HiddenRole = 271,
        GroupIndexRole = 272,
        SimilarityRole = 273,
        DisplayNameRole = 274,
        UnverifiedRole = 275,
        // The item's folder as shown, and where it differs from the other members'.
        FolderRole = 276,
        DistinctFromRole = 277,
        // Why a similar picture joined its group ("robust, distance 4, mirrored").
        MatchReasonRole = 278,
        // The item lies in a protected folder (ImageItem::locked).
        ProtectedRole = 279,
    };

    // The columns of the file list (IconView mode).
    enum Column {
        CheckColumn = 0,
        NameColumn = 1,
        SizeColumn = 2,
        DateColumn = 3,
        HideColumn = 4,
        OpenColumn = 5,
        FolderColumn = 6,
        ColumnCount = 7,
    };

    static constexpr int kPathNameMode = 20;

    // One property of a listed cloud file (its path as the group holds it, similar tag
    // and all); empty without a cloud source or for a file it does not know.
    static QVariant cloudProperty(KvCloudObject *cloud, const QString &entry, const QString &name);

    TImageModel(DataModel mode, int thumbnailCacheSize);
    ~TImageModel() override;

    DataModel mode() const { return m_mode; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(
        int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    // notify makes the model report the selection even when the value did not change.
    bool setData(const QModelIndex &index, const QVariant &value, int role, bool notify);
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;

    // Every group of the store as the group list shows it, with the sums of all groups.
    // Safe on any thread: it reads copies of the store's tables.
    struct BuiltGroups
    {
        QList<GroupItem> groups;
        qint64 totalSize = 0;
        int selectedCount = 0;
    };
    static BuiltGroups buildAllGroups(bool isCloud = false, KvCloudObject *cloud = nullptr);
    static void sortGroups(QList<GroupItem> &groups, SortRole role, bool descending);

    void loadAllGroups(SortRole role, bool isCloud = false, KvCloudObject *cloud = nullptr);
    // Adds groups at the end of both lists (loading in batches).
    void appendGroups(const QList<GroupItem> &groups);
    void setItems(const QList<ImageItem> &items);
    void clear();

    void sort(SortRole role, bool descending);
    // The file list by one of its columns (name, size, date or folder); other columns
    // leave it as it is.
    void sort(int column, Qt::SortOrder order) override;
    void filterByName(const QString &text);
    void filterByType(int type);
    // Both at once: a category (-1 for any) and a part of the name.
    void filterByTypeAndName(int type, const QString &text);
    void filterByShow(int mode, int minSimilarity);
    // Back to the whole master group list.
    void resetGroupFilter();
    // The similarity floor of the group filters above: a group takes part only while two
    // of its members reach it (identical copies and the picture the others were
    // compared with count as 100). 0: no floor.
    void setMinimumSimilarity(int percent) { m_filter.setMinimumSimilarity(percent); }
    // A member entry's similarity as the page shows and filters it.
    static int shownSimilarity(const GroupMember &member);

    void refreshGroupSelection(const QModelIndexList &indexes);
    void refreshItemSelection();
    void removeDeletedFile(const QString &key, const QString &path);
    // The same for a whole batch: group key -> removed entries.
    void removeDeletedFiles(const QHash<QString, QStringList> &removedByKey);
    // The group as the store holds it now, in place of the one listed (or added at the
    // end of both lists). Local groups only.
    void reloadGroup(const QString &key);
    // Takes one file out of the item lists (hidden or removed on its own).
    void removeItem(const QString &path);
    void cancelPendingLoads(int firstRow, int lastRow);
    QList<QPair<QString, QStringList>> displayedItemsByGroup() const;

    int nameMode() const { return m_nameMode; }
    void setNameMode(int mode);

    const QList<GroupItem> &displayedGroups() const { return m_groups; }
    const QList<GroupItem> &allGroups() const { return m_allGroups; }
    const QList<ImageItem> &displayedItems() const { return m_items; }
    const QList<ImageItem> &allItems() const { return m_allItems; }
    int pendingLoadCount() const { return m_thumbnails.pendingCount(); }
    bool hasThumbnail(const QString &path) const { return m_thumbnails.contains(path); }

    // Why a protected copy's check box cannot be used, as every view of it says.
    static QString protectedText();

    // Shared helpers, public for the pages that show the same texts.
    static QString sizeText(qint64 bytes);
    static bool lessThan(const GroupItem &a, const GroupItem &b, SortRole role);
    // Parallel filter in chunks of 1000 that keeps the source order.
    template<typename T>
    static QList<T> fastParallelFilter(
        const QList<T> &source, const std::function<bool(const T &)> &keep);

signals:
    void onItemSelectedChange(
        const QString &key, const QString &file, bool newValue, int groupIndex, bool notify);
    void onLoadComplated(int count, qint64 totalSize);
    void updateComplated();

public slots:
    void onImageLoadTaskFinash(int row, bool cancel, const QString &imagefile, const QImage &image);

private:
    void rebuildGroupIndex();
    void rebuildItemIndex();
    void setDisplayedGroups(const QList<GroupItem> &groups);
    void requestThumbnail(int row, int type, const QString &path) const;
    QVariant groupData(const GroupItem &group, int role, int row) const;
    QVariant itemData(const ImageItem &item, const QModelIndex &index, int role) const;

    DataModel m_mode;
    QList<GroupItem> m_allGroups;
    QList<GroupItem> m_groups;
    QHash<QString, int> m_groupRows;
    ResultFilter m_filter;
    QList<ImageItem> m_allItems;
    QList<ImageItem> m_items;
    QHash<QString, int> m_itemRows;
    int m_nameMode = kPathNameMode;
    // Declared last, so destroyed first: its loads end before the rest of the model goes.
    mutable ThumbnailLoader m_thumbnails;
};
