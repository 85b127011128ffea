// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/DeleteResult.h"
#include "fileops/RemovalJournal.h"
#include "fileops/RemovalRequest.h"

#include <memory>

#include <QList>
#include <QString>

class TImageDeleteWorker;

// One removal batch as the window and the command line both run it: the journal opened
// before anything goes, the worker run, its results and journal error taken as it ends,
// then the journal's end. The window also keeps the preferences' crash marker set while
// the batch runs; the command line leaves that marker alone (it is the window's own: a
// batch the command line leaves without an end is told of by the journal).
class RemovalSequence
{
public:
    // crashMarker: sets "deleteException" in the preferences from begin() to end().
    RemovalSequence(RemovalRequest request, bool crashMarker);
    ~RemovalSequence();
    RemovalSequence(const RemovalSequence &) = delete;
    RemovalSequence &operator=(const RemovalSequence &) = delete;

    // Opens the journal (a dry run keeps none), makes the worker and sets the marker. False,
    // with nothing begun, when the journal cannot be written: journal() says where and why.
    bool begin();
    const RemovalJournal &journal() const { return m_journal; }
    // The worker begin() made; the sequence owns it until takeWorker().
    TImageDeleteWorker *worker() const { return m_worker; }
    // Runs the batch on the calling thread.
    void run();
    // Hands the worker over for a thread of its own. Its results are taken on that thread
    // as it finishes, before any connection made afterwards hears of the end: the worker
    // may be deleted with its thread before a queued end is handled. The sequence must
    // outlive the run (the worker writes to its journal).
    TImageDeleteWorker *takeWorker();
    // Writes the journal's end (signal: the one that stopped the batch, 0 when it ran to
    // its end) and clears the marker.
    void end(int signal = 0);
    // Every item handled, once the worker has finished.
    QList<DeleteResult> results() const { return m_results; }
    // Not empty when the journal could not be written and the batch stopped.
    QString journalError() const { return m_journalError; }

    // The preferences' crash marker: 1 while the window removes (through the cloud too), so
    // that its next start tells of a batch that was cut short.
    static void setCrashMarker(int value);

private:
    void collect(const TImageDeleteWorker *worker);

    RemovalRequest m_request;
    bool m_crashMarker = false;
    RemovalJournal m_journal;
    std::unique_ptr<TImageDeleteWorker> m_owned;
    TImageDeleteWorker *m_worker = nullptr;
    QList<DeleteResult> m_results;
    QString m_journalError;
};
