// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCache>
#include <QIcon>
#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

// Paints one file of the thumbnail grid: the picture on a rounded tile, a check box in
// its top-left corner, the similarity badge in its top-right corner, and below it the
// name and a line of size and resolution. A click on the check box area toggles the
// file's check through the model. The owning view tells it the thumbnail size, the
// width of grid cells and whether cells follow the picture's aspect ratio.
class TImageItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    static constexpr int kPadding = 8;
    static constexpr int kCheckSide = 20;
    static constexpr int kCheckMargin = 6;
    // Extra room around the painted box that still counts as a click on it.
    static constexpr int kCheckSlack = 6;

    explicit TImageItemDelegate(QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
        const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
        const QModelIndex &index) override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
        const QModelIndex &index) override;

    void setThumbnailSize(int side) { m_side = side; }
    int thumbnailSize() const { return m_side; }
    // 0 lets each cell take the width of its thumbnail tile.
    void setCellWidth(int width) { m_cellWidth = width; }
    void setFollowAspectRatio(bool follow) { m_followAspect = follow; }
    // Widths by row that the view worked out for cells following the aspect ratio;
    // rows past the list's end get their natural width.
    void setFlowWidths(const QList<int> &widths) { m_flowWidths = widths; }
    // The cell width before any widening to fill a line.
    int naturalWidth(const QModelIndex &index) const;
    // The resolution texts are read from the file headers; they are kept until the files
    // shown change.
    void forgetDimensions() { m_dimensions.clear(); }

    QRect tileRect(const QRect &cell) const;
    QRect checkRect(const QRect &cell) const;
    QRect checkHitRect(const QRect &cell) const;
    int cellHeight(const QFont &font) const;

private:
    void paintTile(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
        const QRect &tile) const;
    void paintCheck(QPainter *painter, const QRect &box, bool checked) const;
    // A protected copy's lock, where its check box would be.
    void paintLock(QPainter *painter, const QRect &box) const;
    void paintBadge(QPainter *painter, const QStyleOptionViewItem &option, const QRect &tile,
        int similarity) const;
    void paintTexts(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
        const QRect &cell) const;
    QString dimensionsOf(const QModelIndex &index) const;

    int m_side = 160;
    int m_cellWidth = 0;
    bool m_followAspect = false;
    QList<int> m_flowWidths;
    QPersistentModelIndex m_pressed;
    QIcon m_lock;
    mutable QCache<QString, QString> m_dimensions {4000};
};
