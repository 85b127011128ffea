// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fileops/DeleteResult.h"
#include "fileops/RemovalJournal.h"

#include <QList>

// Undoes the last removal batch of a journal: every item that went to the trash or into a
// folder goes back to its original path, never over an existing entry. Items removed for
// good cannot come back and are listed as failures. The restore is journalled as a batch
// of its own, so the next restore takes the batch before.
class RemovalRestorer
{
public:
    explicit RemovalRestorer(RemovalJournal &journal) : m_journal(journal) { }

    // One result per item of the batch (path: the original place); false when there was
    // no batch left to restore or the journal cannot be written.
    bool restoreLastBatch(QList<DeleteResult> &results);
    QString error() const { return m_error; }

private:
    RemovalJournal &m_journal;
    QString m_error;
};
