// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/DeleteResult.h"
#include "fileops/RemovalJournal.h"

#include <QList>

// Undoes a removal batch of a journal: every item that went to the trash or into a folder
// goes back to its original path under its own name, never over an existing entry, and
// only when what is found there is what went (size, modification time and content hash as
// the journal has them). An item whose outcome was never written (the batch was cut short)
// is looked for where it would be: at its place, under its private name, in the trash or
// in the target folder. An item replaced by a link becomes a separate file again
// (LinkRestorer). Items removed for good cannot come back. The restore is journalled
// as a batch of its own, item by item, so a restore that failed in part can be run again
// and finishes the rest.
class RemovalRestorer
{
public:
    explicit RemovalRestorer(RemovalJournal &journal) : m_journal(journal) { }

    // batchId: the batch to restore; empty for the newest one that can be. One result per
    // item still to restore (path: the original place); false when there was no such batch
    // or the journal cannot be written.
    bool restore(const QString &batchId, QList<DeleteResult> &results);
    QString error() const { return m_error; }

private:
    // 0, or the reason the item stays where it is.
    QString restoreItem(
        const RemovalJournal::Batch &batch, const RemovalJournal::Item &item, DeleteResult &result);
    QString restoreIntended(
        const RemovalJournal::Batch &batch, const RemovalJournal::Item &item, DeleteResult &result);
    QString moveBack(const QString &method, const QString &from, const QString &to);

    RemovalJournal &m_journal;
    QString m_error;
};
