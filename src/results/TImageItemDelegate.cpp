// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/TImageItemDelegate.h"

#include "app/FileTypeCatalogue.h"
#include "results/PathElider.h"
#include "results/TImageModel.h"
#include "widgets/LockArt.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

namespace {

const QColor kAccent(0x3b, 0x99, 0xfc);
const QColor kTile(0xee, 0xf1, 0xf6);
const QColor kMuted(0x6b, 0x73, 0x85);
const QColor kSelected(0xe3, 0xee, 0xfd);
const QColor kHover(0xf1, 0xf5, 0xfa);
const QColor kBoxBorder(0x9a, 0xa3, 0xb5);
constexpr int kTextGap = 6;
constexpr int kLineGap = 2;
constexpr qreal kCellRadius = 10;
constexpr qreal kTileRadius = 8;
// A cell of unknown shape is given the most common photo shape until its thumbnail comes.
constexpr double kDefaultAspect = 4.0 / 3.0;

QFont detailFont(const QFont &base)
{
    QFont font(base);
    if (base.pixelSize() > 0)
        font.setPixelSize(std::max(9, base.pixelSize() - 2));
    else
        font.setPointSizeF(std::max(7.0, base.pointSizeF() * 0.85));
    return font;
}

QString nameOf(const QModelIndex &index)
{
    const QString shown = index.data(TImageModel::DisplayNameRole).toString();
    if (!shown.isEmpty())
        return shown;
    return QFileInfo(index.data(TImageModel::FilePathRole).toString()).fileName();
}

} // namespace

TImageItemDelegate::TImageItemDelegate(QObject *parent)
    : QStyledItemDelegate(parent), m_lock(LockArt::closed())
{ }

QRect TImageItemDelegate::tileRect(const QRect &cell) const
{
    return QRect(cell.x() + kPadding, cell.y() + kPadding, cell.width() - 2 * kPadding, m_side);
}

QRect TImageItemDelegate::checkRect(const QRect &cell) const
{
    const QRect tile = tileRect(cell);
    return QRect(tile.x() + kCheckMargin, tile.y() + kCheckMargin, kCheckSide, kCheckSide);
}

QRect TImageItemDelegate::checkHitRect(const QRect &cell) const
{
    return checkRect(cell).adjusted(-kCheckSlack, -kCheckSlack, kCheckSlack, kCheckSlack);
}

int TImageItemDelegate::cellHeight(const QFont &font) const
{
    // The name, the folder, then size and resolution.
    return kPadding + m_side + kTextGap + QFontMetrics(font).height() + kLineGap
        + 2 * (QFontMetrics(detailFont(font)).height() + kLineGap) - kLineGap + kPadding;
}

int TImageItemDelegate::naturalWidth(const QModelIndex &index) const
{
    if (!m_followAspect)
        return m_cellWidth > 0 ? m_cellWidth : m_side + 2 * kPadding;
    // Only a thumbnail already at hand gives the shape: asking for one here would load
    // the thumbnails of every row each time the view lays out its cells.
    double aspect = kDefaultAspect;
    const auto *images = qobject_cast<const TImageModel *>(index.model());
    const QString path = index.data(TImageModel::FilePathRole).toString();
    if (images && images->hasThumbnail(path)) {
        const QPixmap thumbnail = index.data(TImageModel::ThumbnailRole).value<QPixmap>();
        if (!thumbnail.isNull())
            aspect = double(thumbnail.width()) / thumbnail.height();
    }
    // Tall pictures still get a square cell, so the texts under them have room.
    return std::clamp(int(m_side * aspect), m_side, m_side * 2) + 2 * kPadding;
}

QSize TImageItemDelegate::sizeHint(
    const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const int row = index.row();
    const int width = m_followAspect && row >= 0 && row < m_flowWidths.size() ? m_flowWidths.at(row)
                                                                              : naturalWidth(index);
    return QSize(width, cellHeight(option.font));
}

void TImageItemDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF cell = QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -1.5);
    const bool checked = index.data(TImageModel::CheckedRole).toBool();
    const bool locked = index.data(TImageModel::ProtectedRole).toBool();
    if (option.state & QStyle::State_Selected) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(kSelected);
        painter->drawRoundedRect(cell, kCellRadius, kCellRadius);
    } else if (option.state & QStyle::State_MouseOver) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(kHover);
        painter->drawRoundedRect(cell, kCellRadius, kCellRadius);
    } else if (locked) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(LockArt::tint());
        painter->drawRoundedRect(cell, kCellRadius, kCellRadius);
    }

    const QRect tile = tileRect(option.rect);
    paintTile(painter, option, index, tile);
    if (locked)
        paintLock(painter, checkRect(option.rect));
    else
        paintCheck(painter, checkRect(option.rect), checked);
    const int similarity = index.data(TImageModel::SimilarityRole).toInt();
    // Identical copies count as 100 % similar; only a near match is worth a badge.
    if (similarity > 0 && similarity < 100)
        paintBadge(painter, option, tile, similarity);
    paintTexts(painter, option, index, option.rect);

    if (checked) {
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(kAccent, 2.5));
        painter->drawRoundedRect(cell, kCellRadius, kCellRadius);
    } else if ((option.state & QStyle::State_HasFocus)
        && !(option.state & QStyle::State_Selected)) {
        // The keyboard's place must show even on an unselected cell, in a colour that
        // cannot be taken for the frame of a checked one.
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(kBoxBorder, 1));
        painter->drawRoundedRect(cell, kCellRadius, kCellRadius);
    }
    painter->restore();
}

void TImageItemDelegate::paintTile(QPainter *painter, const QStyleOptionViewItem &option,
    const QModelIndex &index, const QRect &tile) const
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(kTile);
    painter->drawRoundedRect(QRectF(tile), kTileRadius, kTileRadius);

    const QPixmap thumbnail = index.data(TImageModel::ThumbnailRole).value<QPixmap>();
    if (!thumbnail.isNull()) {
        const QSize room = tile.size() - QSize(8, 8);
        QSize shown = thumbnail.size().scaled(room, Qt::KeepAspectRatio);
        // Tiny pictures stay recognisably small rather than turning into blocks.
        if (shown.width() > thumbnail.width() * 2)
            shown = thumbnail.size() * 2;
        QRect target(QPoint(), shown);
        target.moveCenter(tile.center());
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawPixmap(target, thumbnail);
        return;
    }
    const QWidget *widget = option.widget;
    QStyle *style = widget ? widget->style() : QApplication::style();
    const bool folder = index.data(TImageModel::TypeRole).toInt() == CategoryFolders;
    const QIcon icon = style->standardIcon(folder ? QStyle::SP_DirIcon : QStyle::SP_FileIcon);
    const int side = std::min(48, tile.height() / 2);
    QRect target(0, 0, side, side);
    target.moveCenter(tile.center());
    icon.paint(painter, target, Qt::AlignCenter, QIcon::Disabled);
}

void TImageItemDelegate::paintCheck(QPainter *painter, const QRect &box, bool checked) const
{
    const QRectF frame = QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5);
    if (!checked) {
        // Nearly opaque, so the box reads on dark and busy pictures alike.
        painter->setPen(QPen(kBoxBorder, 1.2));
        painter->setBrush(QColor(255, 255, 255, 235));
        painter->drawRoundedRect(frame, 5, 5);
        return;
    }
    painter->setPen(Qt::NoPen);
    painter->setBrush(kAccent);
    painter->drawRoundedRect(frame, 5, 5);
    QPainterPath tick;
    tick.moveTo(frame.left() + frame.width() * 0.26, frame.top() + frame.height() * 0.52);
    tick.lineTo(frame.left() + frame.width() * 0.43, frame.top() + frame.height() * 0.69);
    tick.lineTo(frame.left() + frame.width() * 0.75, frame.top() + frame.height() * 0.33);
    painter->setPen(QPen(Qt::white, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(tick);
}

void TImageItemDelegate::paintLock(QPainter *painter, const QRect &box) const
{
    // The place of the check box, so that a protected copy reads as one that cannot be
    // checked; a white disc keeps the lock legible on any picture.
    const QRectF frame = QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->setPen(QPen(kBoxBorder, 1.2));
    painter->setBrush(QColor(255, 255, 255, 235));
    painter->drawRoundedRect(frame, 5, 5);
    const int side = std::max(8, box.width() - 6);
    QRect lock(0, 0, side, side);
    lock.moveCenter(box.center());
    m_lock.paint(painter, lock);
}

void TImageItemDelegate::paintBadge(
    QPainter *painter, const QStyleOptionViewItem &option, const QRect &tile, int similarity) const
{
    QFont font = detailFont(option.font);
    font.setBold(true);
    const QFontMetrics metrics(font);
    const QString text = tr("%1%").arg(similarity);
    const int height = metrics.height() + 4;
    const int width = metrics.horizontalAdvance(text) + 14;
    const QRect badge(tile.right() - kCheckMargin - width + 1, tile.top() + kCheckMargin, width,
        std::max(height, kCheckSide));
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(0x1f, 0x24, 0x30, 190));
    painter->drawRoundedRect(QRectF(badge), badge.height() / 2.0, badge.height() / 2.0);
    painter->setFont(font);
    painter->setPen(Qt::white);
    painter->drawText(badge, Qt::AlignCenter, text);
}

void TImageItemDelegate::paintTexts(QPainter *painter, const QStyleOptionViewItem &option,
    const QModelIndex &index, const QRect &cell) const
{
    const QFontMetrics nameMetrics(option.font);
    const QFont smaller = detailFont(option.font);
    const QFontMetrics detailMetrics(smaller);
    const int width = cell.width() - 2 * kPadding;
    const QRect nameLine(
        cell.x() + kPadding, tileRect(cell).bottom() + 1 + kTextGap, width, nameMetrics.height());
    const QRect folderLine(
        nameLine.x(), nameLine.bottom() + 1 + kLineGap, width, detailMetrics.height());
    const QRect detailLine(
        nameLine.x(), folderLine.bottom() + 1 + kLineGap, width, detailMetrics.height());

    painter->setFont(option.font);
    painter->setPen(option.palette.color(QPalette::Text));
    painter->drawText(nameLine, Qt::AlignCenter,
        nameMetrics.elidedText(nameOf(index), Qt::ElideMiddle, nameLine.width()));

    // Where the copy lives, shortened so that what tells it from the others stays.
    painter->setFont(smaller);
    painter->setPen(kMuted);
    painter->drawText(folderLine, Qt::AlignCenter,
        PathElider::elide(index.data(TImageModel::FolderRole).toString(),
            index.data(TImageModel::DistinctFromRole).toInt(), detailMetrics, folderLine.width()));

    // A number cut short reads as a wrong number: the resolution is left out whole when
    // both do not fit.
    QString detail = index.data(TImageModel::SizeTextRole).toString();
    const QString dimensions = dimensionsOf(index);
    const QString both = detail + QStringLiteral("  ·  ") + dimensions;
    if (!dimensions.isEmpty() && detailMetrics.horizontalAdvance(both) <= detailLine.width())
        detail = both;
    painter->setFont(smaller);
    painter->setPen(kMuted);
    painter->drawText(detailLine, Qt::AlignCenter,
        detailMetrics.elidedText(detail, Qt::ElideRight, detailLine.width()));
}

QString TImageItemDelegate::dimensionsOf(const QModelIndex &index) const
{
    const QString path = index.data(TImageModel::FilePathRole).toString();
    if (const QString *known = m_dimensions.object(path))
        return *known;
    // "WxH" from the model, "-x-" when the file has no readable picture header.
    const QString raw = index.data(TImageModel::DimensionsRole).toString();
    QString text;
    const int cross = int(raw.indexOf(QLatin1Char('x')));
    if (cross > 0 && !raw.startsWith(QLatin1Char('-')))
        text = QStringLiteral("%1 × %2").arg(raw.left(cross), raw.mid(cross + 1));
    m_dimensions.insert(path, new QString(text));
    return text;
}

bool TImageItemDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
    const QStyleOptionViewItem &option, const QModelIndex &index)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        // A second quick click on the box is a second toggle, never a selection change.
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() == Qt::LeftButton
            && checkHitRect(option.rect).contains(mouse->position().toPoint())) {
            m_pressed = index;
            return true;
        }
        break;
    }
    case QEvent::MouseButtonRelease: {
        if (!m_pressed.isValid())
            break;
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const bool click
            = m_pressed == index && checkHitRect(option.rect).contains(mouse->position().toPoint());
        m_pressed = QPersistentModelIndex();
        if (!click)
            break;
        const bool next = !index.data(TImageModel::CheckedRole).toBool();
        if (auto *images = qobject_cast<TImageModel *>(model))
            images->setData(index, next, TImageModel::CheckedRole, true);
        else
            model->setData(index, next, TImageModel::CheckedRole);
        return true;
    }
    default:
        break;
    }
    // Not the base class: it would toggle the check from its own idea of where a check
    // box sits in a cell, and on Space, which the view handles for whole selections.
    return false;
}

bool TImageItemDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
    const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString path = index.data(TImageModel::FilePathRole).toString();
    QString text = QDir::toNativeSeparators(path);
    if (index.data(TImageModel::ProtectedRole).toBool())
        text += QLatin1Char('\n') + TImageModel::protectedText();
    QToolTip::showText(event->globalPos(), text, view, option.rect);
    return true;
}
