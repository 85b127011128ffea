// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QStyledItemDelegate>

// Adds a delete button to the row under the mouse in a plain list view (the folder list
// of the main window), and a lock toggle to rows that carry kProtectedRole: closed and
// always shown on a protected row, open on the row under the mouse otherwise. Rows never
// show a focus frame.
class CListViewDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    static constexpr int kButtonSide = 20;
    // A bool: the row's folder is protected. Rows without it have no lock.
    static constexpr int kProtectedRole = Qt::UserRole + 1;

    explicit CListViewDelegate(QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
        const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
        const QModelIndex &index) override;

    // Where the delete picture is painted, and where a press deletes. The press area
    // sits five pixels left of the picture; the offset is intended.
    static QRect paintRect(const QRect &row);
    static QRect hitRect(const QRect &row);
    // Where the lock is painted and pressed, left of the delete button.
    static QRect lockRect(const QRect &row);
    // What the lock says it does.
    static QString lockToolTip(bool locked);

signals:
    void deleteItem(QModelIndex index);
    void lockToggled(QModelIndex index);

protected:
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
        const QModelIndex &index) override;

private:
    QPixmap m_clear;
    QIcon m_locked;
    QIcon m_unlocked;
};
