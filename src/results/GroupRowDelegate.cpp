// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/GroupRowDelegate.h"

#include "app/FileTypeCatalogue.h"
#include "results/TImageModel.h"

#include <QApplication>
#include <QFileIconProvider>
#include <QPainter>
#include <QPainterPath>

namespace {

QIcon categoryIcon(int type)
{
    static const QFileIconProvider provider;
    return type == CategoryFolders ? provider.icon(QFileIconProvider::Folder)
                                   : provider.icon(QFileIconProvider::File);
}

} // namespace

void GroupRowDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem plain(option);
    initStyleOption(&plain, index);
    plain.text.clear();
    plain.icon = QIcon();
    plain.state &= ~QStyle::State_HasFocus;
    const QWidget *widget = option.widget;
    QStyle *style = widget ? widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &plain, painter, widget);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect row = option.rect.adjusted(8, 0, -10, 0);
    const QRect thumb(
        row.left(), row.top() + (row.height() - kThumbSide) / 2, kThumbSide, kThumbSide);
    QPainterPath tile;
    tile.addRoundedRect(thumb, 6, 6);
    painter->fillPath(tile, QColor(0xee, 0xf1, 0xf5));
    const QPixmap pixmap = index.data(TImageModel::ThumbnailRole).value<QPixmap>();
    if (!pixmap.isNull()) {
        const QPixmap scaled
            = pixmap.scaled(thumb.size(), Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
        painter->setClipPath(tile);
        painter->drawPixmap(thumb, scaled,
            QRect((scaled.width() - thumb.width()) / 2, (scaled.height() - thumb.height()) / 2,
                thumb.width(), thumb.height()));
        painter->setClipping(false);
    } else {
        categoryIcon(index.data(TImageModel::TypeRole).toInt())
            .paint(painter, thumb.adjusted(9, 9, -9, -9));
    }

    const bool selected = option.state & QStyle::State_Selected;
    const QColor text = option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    QColor secondary = text;
    secondary.setAlphaF(0.62f);

    const QString size = index.data(TImageModel::SizeTextRole).toString();
    QFont bold = option.font;
    bold.setBold(true);
    const QFontMetrics boldMetrics(bold);
    const int sizeWidth = option.fontMetrics.horizontalAdvance(size) + 4;
    const int left = thumb.right() + 12;
    const QRect nameRect(
        left, row.top() + 9, row.right() - left - sizeWidth - 8, boldMetrics.height());
    painter->setFont(bold);
    painter->setPen(text);
    painter->drawText(nameRect, Qt::AlignLeft | Qt::AlignVCenter,
        boldMetrics.elidedText(
            index.data(TImageModel::NameRole).toString(), Qt::ElideMiddle, nameRect.width()));

    painter->setFont(option.font);
    painter->drawText(QRect(row.right() - sizeWidth, nameRect.top(), sizeWidth, nameRect.height()),
        Qt::AlignRight | Qt::AlignVCenter, size);

    const int count = index.data(TImageModel::CountRole).toInt();
    const int chosen = index.data(TImageModel::SelectedCountRole).toInt();
    QString detail = TImageModel::tr("%n copies", nullptr, count);
    if (chosen > 0)
        detail += QStringLiteral(" · ") + TImageModel::tr("%n selected", nullptr, chosen);
    painter->setPen(secondary);
    const QRect detailRect(
        left, nameRect.bottom() + 4, row.right() - left, option.fontMetrics.height());
    painter->drawText(detailRect, Qt::AlignLeft | Qt::AlignVCenter,
        option.fontMetrics.elidedText(detail, Qt::ElideRight, detailRect.width()));
    painter->restore();
}

QSize GroupRowDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return QSize(QStyledItemDelegate::sizeHint(option, index).width(), kRowHeight);
}
