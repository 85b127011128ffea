// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/CListViewDelegate.h"

#include <QMouseEvent>
#include <QPainter>

CListViewDelegate::CListViewDelegate(QObject *parent)
    : QStyledItemDelegate(parent), m_clear(QStringLiteral(":/resource/btn_clear.png"))
{ }

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
    plain.state &= ~QStyle::State_HasFocus;
    QStyledItemDelegate::paint(painter, plain, index);
    if (option.state & QStyle::State_MouseOver)
        painter->drawPixmap(paintRect(option.rect), m_clear);
}

bool CListViewDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
    const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() == QEvent::MouseButtonPress) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (hitRect(option.rect).contains(mouse->position().toPoint()))
            emit deleteItem(index);
    }
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}
