// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QEvent;
class QTableView;
class TImageModel;
class TTableViewDelegate;

// The table of a group's members: its columns, the order a click on a column's header
// chooses (kept for every group) and Space checking or unchecking rows.
class MemberTable : public QObject
{
    Q_OBJECT
public:
    MemberTable(QTableView *table, TImageModel *itemModel, QObject *parent);

    TTableViewDelegate *delegate() const { return m_delegate; }
    // Sorts a freshly filled list in the order the user chose, if any.
    void applyOrder();
    // A key pressed in the table: true when it was Space and the rows took it.
    bool handleKey(QEvent *event);

private:
    QTableView *m_table = nullptr;
    TImageModel *m_itemModel = nullptr;
    TTableViewDelegate *m_delegate = nullptr;
    // The file list's order: a column of TImageModel, -1 for the group's own order.
    int m_fileSortColumn = -1;
    Qt::SortOrder m_fileSortOrder = Qt::AscendingOrder;
};
