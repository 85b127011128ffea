// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/DeleteResult.h"

#include <QDialog>

class QLabel;
class QTreeWidget;

// What a removal did, shown when it ends: the space freed, the items removed (and where
// they went) and every item that stayed, with the reason it stayed.
class RemovalSummaryDialog : public QDialog
{
    Q_OBJECT
public:
    // bytes: the size of what was removed, as the scan saw it; freed: whether that space
    // came free (not after a move to another folder of the same disk).
    RemovalSummaryDialog(const QList<DeleteResult> &results, int method, qint64 bytes,
        bool freed = true, QWidget *parent = nullptr);

    int removedCount() const { return m_removed; }
    int keptCount() const { return m_kept; }
    int alreadyGoneCount() const { return m_alreadyGone; }
    QString headline() const;

private:
    int m_removed = 0;
    int m_kept = 0;
    int m_alreadyGone = 0;
    // The items were replaced by links to the copies that stay, not removed.
    bool m_linked = false;
    QLabel *m_headline = nullptr;
    QTreeWidget *m_items = nullptr;
};
