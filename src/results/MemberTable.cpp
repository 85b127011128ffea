// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/MemberTable.h"

#include "results/TImageModel.h"
#include "results/TTableViewDelegate.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>

MemberTable::MemberTable(QTableView *table, TImageModel *itemModel, QObject *parent)
    : QObject(parent), m_table(table), m_itemModel(itemModel)
{
    m_table->setModel(m_itemModel);
    m_delegate = new TTableViewDelegate(m_table);
    m_table->setItemDelegate(m_delegate);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(30);
    m_table->setTextElideMode(Qt::ElideMiddle);
    m_table->setWordWrap(false);
    m_table->setContextMenuPolicy(Qt::CustomContextMenu);
    QHeaderView *header = m_table->horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionResizeMode(QHeaderView::Interactive);
    // The name keeps a fixed share; the folder, where copies differ, takes the rest.
    header->setSectionResizeMode(TImageModel::NameColumn, QHeaderView::Interactive);
    m_table->setColumnWidth(TImageModel::NameColumn, 220);
    for (int column : {0, 4, 5}) {
        header->setSectionResizeMode(column, QHeaderView::Fixed);
        m_table->setColumnWidth(column, 40);
    }
    m_table->setColumnWidth(TImageModel::SizeColumn, 90);
    m_table->setColumnWidth(TImageModel::DateColumn, 150);
    // Where each copy lives, right after its name; any of the four text columns sorts the
    // list, a second click the other way round.
    header->moveSection(TImageModel::FolderColumn, TImageModel::SizeColumn);
    header->setSectionResizeMode(TImageModel::FolderColumn, QHeaderView::Stretch);
    header->setSectionsClickable(true);
    header->setSortIndicatorShown(false);
    connect(header, &QHeaderView::sectionClicked, this, [this, header](int column) {
        const bool sortable = column == TImageModel::NameColumn || column == TImageModel::SizeColumn
            || column == TImageModel::DateColumn || column == TImageModel::FolderColumn;
        if (sortable) {
            m_fileSortOrder = column == m_fileSortColumn && m_fileSortOrder == Qt::AscendingOrder
                ? Qt::DescendingOrder
                : Qt::AscendingOrder;
            m_fileSortColumn = column;
            m_itemModel->sort(column, m_fileSortOrder);
        }
        // The header turns its indicator on every click; it shows the list's order.
        header->setSortIndicatorShown(m_fileSortColumn >= 0);
        header->setSortIndicator(m_fileSortColumn, m_fileSortOrder);
    });
}

void MemberTable::applyOrder()
{
    if (m_fileSortColumn >= 0)
        m_itemModel->sort(m_fileSortColumn, m_fileSortOrder);
}

bool MemberTable::handleKey(QEvent *event)
{
    // Space in the file table checks or unchecks the selected rows (or the current one),
    // all to the opposite of the current row, as the thumbnail grid does.
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Space && !(key->modifiers() & ~Qt::KeypadModifier)) {
            QTableView *table = m_table;
            const QModelIndex current = table->currentIndex();
            QModelIndexList rows = table->selectionModel()->selectedRows(TImageModel::CheckColumn);
            if (rows.size() < 2 && current.isValid())
                rows = {current.siblingAtColumn(TImageModel::CheckColumn)};
            if (!rows.isEmpty()) {
                const QModelIndex lead = current.isValid() ? current : rows.first();
                const bool next = !lead.data(TImageModel::CheckedRole).toBool();
                for (const QModelIndex &row : std::as_const(rows))
                    m_itemModel->setData(row, next, TImageModel::CheckedRole, true);
            }
            return true;
        }
    }
    return false;
}
