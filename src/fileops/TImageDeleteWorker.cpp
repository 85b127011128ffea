// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/TImageDeleteWorker.h"

#include "app/FileTypeCatalogue.h"
#include "app/TLogger.h"
#include "fileops/RemovalCheck.h"
#include "fileops/RemovalJournal.h"
#include "fileops/TFileDeleter.h"

#include <algorithm>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>

const QString TImageDeleteWorker::keptLastCopy
    = QStringLiteral("kept: every copy of its group was selected");

namespace {

// The members a selected path stands for: itself, or in a group of similar pictures the
// tagged entries of that file.
QStringList membersFor(const QString &selected, const QStringList &members)
{
    if (members.contains(selected))
        return {selected};
    const QRegularExpression pattern(
        QStringLiteral("^%1%2_\\d+$").arg(QRegularExpression::escape(selected), kSimilarTag));
    QStringList out;
    for (const QString &member : members)
        if (pattern.match(member).hasMatch())
            out.append(member);
    return out;
}

} // namespace

TImageDeleteWorker::TImageDeleteWorker(RemovalRequest request, QObject *parent)
    : QObject(parent), m_request(std::move(request))
{
    qRegisterMetaType<TFileData::Groups>("TFileData::Groups");
    qRegisterMetaType<DeleteResult>("DeleteResult");
}

void TImageDeleteWorker::record(const DeleteResult &result, const QString &outcome)
{
    m_results.append(result);
    if (m_journal && !m_request.dryRun)
        m_journal->record(RemovalJournal::methodName(m_request.method), result, outcome);
}

void TImageDeleteWorker::doDelete()
{
    m_results.clear();
    // First the plan: per group its members and the entries that go. The whole batch's
    // leaving paths are known before anything is removed, so that no item counts as kept
    // a copy that another group of the same batch removes.
    struct Plan
    {
        QString key;
        bool folders = false;
        RemovalCheck::GroupKind kind = RemovalCheck::IdenticalFiles;
        QStringList members;
        QStringList selection;
        QStringList leaving;
        bool everyCopy = false;
    };
    QList<Plan> plans;
    QSet<QString> batchLeaving;
    // A fixed order, so that the same selection is always handled the same way.
    QStringList keys = m_request.selected.keys();
    keys.sort();
    for (const QString &key : std::as_const(keys)) {
        Plan plan;
        plan.key = key;
        plan.folders = m_request.dirGroups.contains(key);
        if (plan.folders) {
            for (const DirGroupEntry &entry : m_request.dirGroups.value(key))
                plan.members.append(entry.folderPath);
            plan.kind = RemovalCheck::Folders;
        } else if (m_request.groups.contains(key)) {
            plan.members = m_request.groups.value(key);
            if (std::any_of(plan.members.begin(), plan.members.end(), isSimilarEntry))
                plan.kind = RemovalCheck::SimilarPictures;
            else if (m_request.nameGroups.contains(key))
                plan.kind = RemovalCheck::NamedFiles;
        } else {
            continue;
        }
        plan.selection = m_request.selected.value(key);
        for (const QString &path : std::as_const(plan.selection))
            for (const QString &member : membersFor(path, plan.members))
                if (!plan.leaving.contains(member))
                    plan.leaving.append(member);
        plan.everyCopy = !plan.members.isEmpty()
            && std::all_of(plan.members.begin(), plan.members.end(),
                [&plan](const QString &member) { return plan.leaving.contains(member); });
        // A selection of every copy keeps the first one, unless the caller said otherwise.
        if (plan.everyCopy && !m_request.allowAllCopies) {
            const QString first = plan.members.first();
            plan.leaving.removeAll(first);
            plan.everyCopy = false;
            record(DeleteResult {stripSimilarTag(first), false, DeleteResult::Skipped,
                       QStringLiteral("Skipped."), keptLastCopy},
                RemovalJournal::skipped);
            splog_d(
                QStringLiteral("[TImageDeleteWorker]: Every copy selected, the first is kept: %1")
                    .arg(first));
        }
        for (const QString &entry : std::as_const(plan.leaving))
            batchLeaving.insert(stripSimilarTag(entry));
        plans.append(plan);
    }

    RemovalCheck check(m_request.stamps);
    TFileData::Groups removedFiles;
    TFileData::Groups removedDirs;
    TFileData::Groups remaining = m_request.selected;
    int count = 0;
    for (const Plan &plan : std::as_const(plans)) {
        if (m_cancelled.load())
            break;
        QStringList gone;
        for (const QString &entry : plan.leaving) {
            if (m_cancelled.load())
                break;
            const QString path = plan.folders ? entry : stripSimilarTag(entry);
            const QString reason
                = check.check(plan.kind, plan.members, entry, batchLeaving, plan.everyCopy);
            DeleteResult result {path};
            if (!reason.isEmpty()) {
                result.success = false;
                result.errorCode = DeleteResult::Skipped;
                result.message = QStringLiteral("Skipped.");
                result.reason = reason;
                record(result, RemovalJournal::skipped);
                splog_d(QStringLiteral("[TImageDeleteWorker]: Skipped, %1: %2").arg(reason, path));
            } else if (m_request.dryRun) {
                record(result, RemovalJournal::removed);
            } else {
                result = TFileDeleter::deleteOne(path, m_request.method, m_request.targetFolder);
                record(result, result.success ? RemovalJournal::removed : RemovalJournal::failed);
                if (result.success) {
                    gone.append(entry);
                    (plan.folders ? removedDirs : removedFiles)[plan.key].append(entry);
                }
            }
            ++count;
            emit progressChanged(count);
            if (count % 10 == 0)
                QCoreApplication::processEvents();
        }
        // What was not removed stays selected; a group reduced below two members goes.
        QStringList stays;
        for (const QString &path : plan.selection) {
            const QStringList entries = membersFor(path, plan.members);
            if (std::any_of(entries.begin(), entries.end(),
                    [&gone](const QString &entry) { return !gone.contains(entry); }))
                stays.append(path);
        }
        if (plan.members.size() - gone.size() < 2 || stays.isEmpty())
            remaining.remove(plan.key);
        else
            remaining.insert(plan.key, stays);
    }
    emit finished(removedFiles, removedDirs, remaining);
}
