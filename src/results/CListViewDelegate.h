// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QStyledItemDelegate>

// Adds a delete button to the row under the mouse in a plain list view (the folder list
// of the main window). Rows never show a focus frame.
class CListViewDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    static constexpr int kButtonSide = 20;

    explicit CListViewDelegate(QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
        const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
        const QModelIndex &index) override;

    // Where the delete picture is painted, and where a press deletes. The press area
    // sits five pixels left of the picture; the offset is intended.
    static QRect paintRect(const QRect &row);
    static QRect hitRect(const QRect &row);

signals:
    void deleteItem(QModelIndex index);

private:
    QPixmap m_clear;
};
