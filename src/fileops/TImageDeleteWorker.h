// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/TFileData.h"
#include "fileops/DeleteResult.h"
#include "fileops/RemovalRequest.h"

#include <atomic>

#include <QList>
#include <QObject>

class RemovalJournal;

// Removes a batch of selected files and folders off the GUI thread: moved to a worker
// thread and driven through its slots. Every item passes the checks of RemovalCheck just
// before it goes; an item that fails them, or whose removal fails, keeps its place and
// its selection. Each item is written to the journal as it is handled.
class TImageDeleteWorker : public QObject
{
    Q_OBJECT
public:
    // The reason given for the member kept when a whole group was selected.
    static const QString keptLastCopy;

    explicit TImageDeleteWorker(RemovalRequest request, QObject *parent = nullptr);

    // Where the items are recorded; none for a dry run. Not owned.
    void setJournal(RemovalJournal *journal) { m_journal = journal; }
    // Every item handled, in order, once finished has been sent.
    QList<DeleteResult> results() const { return m_results; }

signals:
    void progressChanged(int value);
    // The removed files by group, the removed folders by folder group, and the selection
    // that remains (groups left with fewer than two members are dropped from it).
    void finished(const TFileData::Groups &files, const TFileData::Groups &dirs,
        const TFileData::Groups &selected);

public slots:
    void doDelete();
    void setCancelled() { m_cancelled.store(true); }

private:
    void record(const DeleteResult &result, const QString &outcome);

    RemovalRequest m_request;
    RemovalJournal *m_journal = nullptr;
    QList<DeleteResult> m_results;
    std::atomic<bool> m_cancelled {false};
};
