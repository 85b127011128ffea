// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/RemovalSequence.h"

#include "fileops/TImageDeleteWorker.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"

RemovalSequence::RemovalSequence(RemovalRequest request, bool crashMarker)
    : m_request(std::move(request)), m_crashMarker(crashMarker)
{ }

RemovalSequence::~RemovalSequence() = default;

bool RemovalSequence::begin()
{
    if (!m_request.dryRun) {
        qint64 items = 0;
        for (const QStringList &paths : std::as_const(m_request.selected))
            items += paths.size();
        // No journal, no removal: every item must be on record before it goes.
        if (!m_journal.begin(
                RemovalJournal::methodName(m_request.method), items, m_request.targetFolder))
            return false;
    }
    m_owned = std::make_unique<TImageDeleteWorker>(m_request);
    m_worker = m_owned.get();
    if (!m_request.dryRun)
        m_worker->setJournal(&m_journal);
    if (m_crashMarker)
        setCrashMarker(1);
    return true;
}

void RemovalSequence::run()
{
    m_worker->doDelete();
    collect(m_worker);
}

TImageDeleteWorker *RemovalSequence::takeWorker()
{
    QObject::connect(
        m_worker, &TImageDeleteWorker::finished, m_worker,
        [this, worker = m_worker] { collect(worker); }, Qt::DirectConnection);
    return m_owned.release();
}

void RemovalSequence::collect(const TImageDeleteWorker *worker)
{
    m_results = worker->results();
    m_journalError = worker->journalError();
}

void RemovalSequence::end(int signal)
{
    // After a failed write the end line most likely fails too; it is tried all the same,
    // and the batch without an end is what the next start reports.
    if (!m_request.dryRun)
        m_journal.end(signal);
    m_worker = nullptr;
    if (m_crashMarker)
        setCrashMarker(0);
}

void RemovalSequence::setCrashMarker(int value)
{
    DFPreferences::instance()->ignoreListPreferences()->setDeleteException(value);
    DFPreferences::instance()->save();
}
