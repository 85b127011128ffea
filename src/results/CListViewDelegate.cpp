// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/CListViewDelegate.h"

#include "widgets/LockArt.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

CListViewDelegate::CListViewDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , m_clear(QStringLiteral(":/resource/btn_clear.png"))
    , m_locked(LockArt::closed())
    , m_unlocked(LockArt::open())
{ }

QRect CListViewDelegate::lockRect(const QRect &row)
{
    // Centred on the row's text, whose name it belongs to.
    return QRect(row.right() - 19 - kButtonSide - 8, row.center().y() - kButtonSide / 2 + 1,
        kButtonSide, kButtonSide);
}

QString CListViewDelegate::lockToolTip(bool locked)
{
    return locked ? tr("Protected: nothing in this folder is selected or removed. Click to "
                       "lift the protection.")
                  : tr("Protect this folder: nothing in it will be selected or removed.");
}

QRect CListViewDelegate::paintRect(const QRect &row)
{
    return QRect(row.right() - 19, row.top(), kButtonSide, kButtonSide);
}

QRect CListViewDelegate::hitRect(const QRect &row)
{
    return QRect(row.right() - 24, row.top(), kButtonSide, kButtonSide);
}

void CListViewDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (!index.isValid())
        return;
    QStyleOptionViewItem plain(option);
    initStyleOption(&plain, index);
    plain.state &= ~QStyle::State_HasFocus;
    const QVariant locked = index.data(kProtectedRole);
    const bool hover = option.state & QStyle::State_MouseOver;
    // The text ends before the buttons, so that neither ever covers the folder's name.
    const QWidget *widget = option.widget;
    QStyle *style = widget ? widget->style() : QApplication::style();
    const QRect textRect = style->subElementRect(QStyle::SE_ItemViewItemText, &plain, widget);
    // A protected row says so in words beside its lock.
    QFont small(option.font);
    if (small.pixelSize() > 0)
        small.setPixelSize(std::max(9, small.pixelSize() - 1));
    else
        small.setPointSizeF(small.pointSizeF() * 0.9);
    const QString caption = locked.toBool() ? tr("Protected") : QString();
    const int captionWidth
        = caption.isEmpty() ? 0 : QFontMetrics(small).horizontalAdvance(caption) + 4;
    const int buttonsLeft = (locked.isValid() ? lockRect(option.rect) : hitRect(option.rect)).left()
        - 8 - captionWidth;
    const int room = std::min(textRect.width(), buttonsLeft - textRect.left());
    plain.text = plain.fontMetrics.elidedText(plain.text, Qt::ElideLeft, std::max(0, room));
    style->drawControl(QStyle::CE_ItemViewItem, &plain, painter, widget);
    if (hover)
        painter->drawPixmap(paintRect(option.rect), m_clear);
    if (locked.toBool()) {
        const QRect lock = lockRect(option.rect);
        m_locked.paint(painter, lock.adjusted(2, 2, -2, -2));
        painter->save();
        painter->setFont(small);
        painter->setPen(LockArt::mark());
        painter->drawText(
            QRect(lock.left() - captionWidth, lock.top(), captionWidth, lock.height()),
            Qt::AlignRight | Qt::AlignVCenter, caption);
        painter->restore();
    } else if (locked.isValid() && hover)
        m_unlocked.paint(painter, lockRect(option.rect).adjusted(2, 2, -2, -2));
}

bool CListViewDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
    const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const QVariant locked = index.data(kProtectedRole);
    if (event->type() == QEvent::ToolTip && locked.isValid()
        && lockRect(option.rect).contains(event->pos())) {
        QToolTip::showText(
            event->globalPos(), lockToolTip(locked.toBool()), view, lockRect(option.rect));
        return true;
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}

bool CListViewDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
    const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() == QEvent::MouseButtonPress) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const QPoint at = mouse->position().toPoint();
        if (index.data(kProtectedRole).isValid() && lockRect(option.rect).contains(at)) {
            emit lockToggled(index);
            return true;
        }
        if (hitRect(option.rect).contains(at))
            emit deleteItem(index);
    }
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}
