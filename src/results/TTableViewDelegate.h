// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "results/TImageModel.h"

#include <QIcon>
#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

// Draws the check box and the two action icons of the detail table of a group's files
// and turns clicks on them into a check-state change or a signal. An icon fires only
// when the button goes down and comes up on the same cell. A protected copy's row is
// tinted and muted, and a lock stands where its check box would be.
class TTableViewDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    static constexpr int kCheckColumn = TImageModel::CheckColumn;
    static constexpr int kHideColumn = TImageModel::HideColumn;
    static constexpr int kOpenColumn = TImageModel::OpenColumn;
    static constexpr int kIconSide = 20;

    explicit TTableViewDelegate(QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
        const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
        const QModelIndex &index) override;

    QModelIndex pressedIndex() const { return m_pressed; }
    // Square the icon of a cell is painted in (shrunk while the cell is pressed).
    QRect iconRect(const QRect &cell, bool pressed) const;

signals:
    void hideClicked(QModelIndex index);
    void openClicked(QModelIndex index);

private:
    QPersistentModelIndex m_pressed;
    QIcon m_lock;
};
