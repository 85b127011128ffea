// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/TTableViewDelegate.h"

#include "results/PathElider.h"
#include "results/TImageModel.h"
#include "widgets/LockArt.h"

#include <QApplication>
#include <QIcon>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

TTableViewDelegate::TTableViewDelegate(QObject *parent)
    : QStyledItemDelegate(parent), m_lock(LockArt::closed())
{ }

QRect TTableViewDelegate::iconRect(const QRect &cell, bool pressed) const
{
    QRect square(0, 0, kIconSide, kIconSide);
    if (pressed)
        square.setSize(QSize(int(kIconSide * 0.9), int(kIconSide * 0.9)));
    square.moveCenter(cell.center());
    return square;
}

void TTableViewDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    painter->save();
    const int column = index.column();
    const bool locked = index.data(TImageModel::ProtectedRole).toBool();
    QStyleOptionViewItem muted(option);
    if (locked) {
        if (!(option.state & QStyle::State_Selected))
            painter->fillRect(option.rect, LockArt::tint());
        muted.palette.setColor(QPalette::Text, LockArt::text());
    }
    if (locked && column == kCheckColumn) {
        QRect lock(0, 0, 16, 16);
        lock.moveCenter(option.rect.center());
        m_lock.paint(painter, lock);
    } else if (column == kHideColumn || column == kOpenColumn) {
        const QIcon icon(column == kHideColumn ? QStringLiteral(":/resource/hideFile.png")
                                               : QStringLiteral(":/resource/openInFinder.png"));
        const bool pressed = m_pressed.isValid() && m_pressed == index;
        icon.paint(painter, iconRect(option.rect, pressed), Qt::AlignCenter, QIcon::Normal);
    } else if (column == kCheckColumn) {
        const int state = index.data(Qt::CheckStateRole).toInt();
        QStyleOptionButton box;
        box.state = QStyle::State_Enabled | (state == 2 ? QStyle::State_On : QStyle::State_Off);
        const QWidget *widget = option.widget;
        QStyle *style = widget ? widget->style() : QApplication::style();
        QRect indicator = style->subElementRect(QStyle::SE_CheckBoxIndicator, &box, widget);
        indicator.moveCenter(option.rect.center());
        box.rect = indicator;
        style->drawControl(QStyle::CE_CheckBox, &box, painter, widget);
    } else if (column == TImageModel::FolderColumn) {
        // Shortened so that what tells the copies apart stays in view.
        QStyleOptionViewItem cell(muted);
        initStyleOption(&cell, index);
        const QWidget *widget = option.widget;
        QStyle *style = widget ? widget->style() : QApplication::style();
        const QRect textRect = style->subElementRect(QStyle::SE_ItemViewItemText, &cell, widget);
        cell.text = PathElider::elide(cell.text, index.data(TImageModel::DistinctFromRole).toInt(),
            cell.fontMetrics, textRect.width() - 8);
        style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, widget);
    } else {
        QStyledItemDelegate::paint(painter, muted, index);
    }
    painter->restore();
}

bool TTableViewDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
    const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const int column = index.column();
    const bool iconColumn = column == kHideColumn || column == kOpenColumn;
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (iconColumn && option.rect.contains(mouse->position().toPoint())) {
            m_pressed = index;
            return true;
        }
        break;
    }
    case QEvent::MouseButtonRelease: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const bool inside = option.rect.contains(mouse->position().toPoint());
        if (iconColumn && inside) {
            // Only a press that stayed on this cell counts as a click.
            const bool wasPressed = m_pressed.isValid() && m_pressed == index;
            m_pressed = QPersistentModelIndex();
            if (wasPressed) {
                if (column == kHideColumn)
                    emit hideClicked(index);
                else
                    emit openClicked(index);
            }
            return true;
        }
        if (column == kCheckColumn && inside) {
            if (index.data(TImageModel::ProtectedRole).toBool())
                return true;
            const int state = index.data(Qt::CheckStateRole).toInt();
            const int next = state == 2 ? 0 : 2;
            if (auto *images = qobject_cast<TImageModel *>(model))
                images->setData(index, next, Qt::CheckStateRole, true);
            else
                model->setData(index, next, Qt::CheckStateRole);
            return true;
        }
        break;
    }
    case QEvent::MouseButtonDblClick:
        return true;
    case QEvent::MouseMove: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (m_pressed.isValid()
            && (m_pressed != index || !option.rect.contains(mouse->position().toPoint())))
            m_pressed = QPersistentModelIndex();
        break;
    }
    default:
        break;
    }
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}
