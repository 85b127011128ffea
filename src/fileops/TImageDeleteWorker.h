// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/DeleteResult.h"
#include "engine/GroupMember.h"
#include "engine/TFileData.h"
#include "fileops/RemovalRequest.h"

#include <atomic>
#include <functional>

#include <QList>
#include <QObject>

class RemovalJournal;

// Removes a batch of selected files and folders off the GUI thread: moved to a worker
// thread and driven through its slots. Each item in turn:
// 1. is looked at (RemovalCheck::look): as the scan saw it, with a copy that stays;
// 2. has its intent written to the journal; no record, no act;
// 3. is renamed to a private name in its own folder, so that nothing another program puts
//    at its place meanwhile can be taken for it;
// 4. is compared, whole, with a kept copy read now (RemovalCheck::confirm);
// 5. goes (trash, for good, into a folder), or is renamed back when the comparison or the
//    removal fails, keeping its place and its selection;
// 6. has its outcome written to the journal.
// The link methods follow the same order with the link made beside the item (LinkReplacer).
// A journal write that fails stops the batch before the next item.
class TImageDeleteWorker : public QObject
{
    Q_OBJECT
public:
    // The reason given for the member kept when a whole group was selected.
    static const QString keptLastCopy;
    static const QString notRecorded;

    explicit TImageDeleteWorker(RemovalRequest request, QObject *parent = nullptr);

    // Where the items are recorded; a batch that removes needs one (a dry run does not).
    // Not owned.
    void setJournal(RemovalJournal *journal) { m_journal = journal; }
    // A flag set from elsewhere (a signal handler) that stops the batch like setCancelled,
    // after the item in hand.
    void setStopFlag(const std::atomic<int> *flag) { m_stopFlag = flag; }
    // Called between the look and the act of each item, on the worker's thread: lets a
    // test change the files at the worst moment.
    void setBeforeActHook(std::function<void(const QString &)> hook)
    {
        m_beforeAct = std::move(hook);
    }
    // Every item handled, in order, once finished has been sent.
    QList<DeleteResult> results() const { return m_results; }
    // Not empty when the journal could not be written and the batch stopped.
    QString journalError() const { return m_journalError; }

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
    struct Plan;
    QList<Plan> plan(QSet<QString> &batchLeaving);
    // Records a member in a protected folder as skipped; true when it is one.
    bool refuseProtected(const GroupMember &member);
    // One item from its look to its outcome; false when the journal failed.
    bool handle(const Plan &plan, const GroupMember &member, class RemovalCheck &check, qint64 seq,
        bool &removed);
    // The same for the methods that replace a file by a link to a copy that stays.
    bool handleLink(const Plan &plan, const GroupMember &member, class RemovalCheck &check,
        qint64 seq, bool &removed);
    bool record(const DeleteResult &result, const QString &outcome, qint64 seq = -1);
    // written: whether the item's intent reached the journal. When it did not, the item is
    // noted as not handled and the batch must stop: false.
    bool intended(bool written, DeleteResult &result);
    bool stopping() const;

    RemovalRequest m_request;
    RemovalJournal *m_journal = nullptr;
    const std::atomic<int> *m_stopFlag = nullptr;
    std::function<void(const QString &)> m_beforeAct;
    QList<DeleteResult> m_results;
    QString m_journalError;
    std::atomic<bool> m_cancelled {false};
};
