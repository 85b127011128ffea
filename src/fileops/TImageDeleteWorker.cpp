// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/TImageDeleteWorker.h"

#include "app/TLogger.h"
#include "engine/FilePathCodec.h"
#include "engine/GroupMember.h"
#include "fileops/LinkReplacer.h"
#include "fileops/RemovalCheck.h"
#include "fileops/RemovalJournal.h"
#include "fileops/TFileDeleter.h"
#include "platform/Platform.h"

#include <algorithm>
#include <cerrno>

#include <QCoreApplication>
#include <QSet>

const QString TImageDeleteWorker::keptLastCopy
    = QStringLiteral("kept: every copy of its group was selected");
const QString TImageDeleteWorker::notRecorded
    = QStringLiteral("not handled: the removal journal cannot be written");

namespace {

const QString kTag = QStringLiteral("[TImageDeleteWorker]: ");

std::string nativeOf(const QString &path)
{
    return FilePathCodec::encode(path).toStdString();
}

void keep(DeleteResult &result, const QString &reason, const QString &placed = {})
{
    result.success = false;
    result.errorCode = DeleteResult::Skipped;
    result.message = QStringLiteral("Skipped.");
    result.reason = reason;
    if (!placed.isEmpty() && placed != result.path)
        result.reason += QStringLiteral(" (kept as %1)").arg(placed);
}

} // namespace

struct TImageDeleteWorker::Plan
{
    QString key;
    bool folders = false;
    RemovalCheck::GroupKind kind = RemovalCheck::IdenticalFiles;
    QList<GroupMember> members;
    QStringList selection;
    // The members that go, and the paths of those that stay.
    QList<GroupMember> leaving;
    QStringList stays;
    // A selected path's members: one, or in a group of similar pictures each entry of it.
    QHash<QString, QList<GroupMember>> entriesOf;
    bool everyCopy = false;
};

TImageDeleteWorker::TImageDeleteWorker(RemovalRequest request, QObject *parent)
    : QObject(parent), m_request(std::move(request))
{
    qRegisterMetaType<TFileData::Groups>("TFileData::Groups");
    qRegisterMetaType<DeleteResult>("DeleteResult");
}

bool TImageDeleteWorker::stopping() const
{
    return m_cancelled.load() || (m_stopFlag && m_stopFlag->load() != 0);
}

bool TImageDeleteWorker::record(const DeleteResult &result, const QString &outcome, qint64 seq)
{
    m_results.append(result);
    if (!m_journal || m_request.dryRun)
        return true;
    if (m_journal->record(RemovalJournal::methodName(m_request.method), result, outcome, seq))
        return true;
    m_journalError = m_journal->error();
    splog_d(kTag
        + QStringLiteral("The journal cannot be written, the batch stops: %1").arg(m_journalError));
    return false;
}

bool TImageDeleteWorker::intended(bool written, DeleteResult &result)
{
    if (written)
        return true;
    m_journalError = m_journal ? m_journal->error() : QStringLiteral("no journal");
    result.success = false;
    result.errorCode = DeleteResult::NotRecorded;
    result.reason = notRecorded;
    m_results.append(result);
    return false;
}

QList<TImageDeleteWorker::Plan> TImageDeleteWorker::plan(QSet<QString> &batchLeaving)
{
    // Per group its members and the entries that go. The whole batch's leaving paths are
    // known before anything is removed, so that no item counts as kept a copy that another
    // group of the same batch removes.
    QList<Plan> plans;
    // A fixed order, so that the same selection is always handled the same way.
    QStringList keys = m_request.selected.keys();
    keys.sort();
    for (const QString &key : std::as_const(keys)) {
        Plan plan;
        plan.key = key;
        plan.folders = m_request.dirGroups.contains(key);
        if (plan.folders) {
            for (const DirGroupEntry &entry : m_request.dirGroups.value(key))
                plan.members.append(GroupMember {entry.folderPath});
            plan.kind = RemovalCheck::Folders;
        } else if (m_request.groups.contains(key)) {
            plan.members = GroupMember::fromEntries(m_request.groups.value(key));
            if (GroupMember::anySimilar(plan.members))
                plan.kind = RemovalCheck::SimilarPictures;
            else if (m_request.nameGroups.contains(key))
                plan.kind = RemovalCheck::NamedFiles;
            else if (m_request.sampledGroups.contains(key))
                plan.kind = RemovalCheck::SampledFiles;
        } else {
            continue;
        }
        for (const GroupMember &member : std::as_const(plan.members))
            plan.entriesOf[plan.kind == RemovalCheck::SimilarPictures ? member.path
                                                                      : member.entry()]
                .append(member);
        plan.selection = m_request.selected.value(key);
        QSet<GroupMember> leaving;
        // A protected member is refused before anything else is judged: it stays, and so
        // counts as a kept copy for the rest of its group.
        QSet<GroupMember> refused;
        for (const QString &path : std::as_const(plan.selection))
            for (const GroupMember &member : plan.entriesOf.value(path)) {
                if (leaving.contains(member) || refused.contains(member))
                    continue;
                if (refuseProtected(member)) {
                    refused.insert(member);
                    continue;
                }
                leaving.insert(member);
                plan.leaving.append(member);
            }
        if (!m_journalError.isEmpty())
            return {};
        plan.everyCopy = !plan.members.isEmpty()
            && leaving.size() == QSet(plan.members.cbegin(), plan.members.cend()).size();
        // A selection of every copy keeps the first one, unless the caller said otherwise.
        if (plan.everyCopy && !m_request.allowAllCopies) {
            const GroupMember first = plan.members.first();
            plan.leaving.removeAll(first);
            plan.everyCopy = false;
            if (!record(DeleteResult {first.path, false, DeleteResult::Skipped,
                            QStringLiteral("Skipped."), keptLastCopy},
                    RemovalJournal::skipped))
                return {};
            splog_d(kTag
                + QStringLiteral("Every copy selected, the first is kept: %1").arg(first.entry()));
        }
        for (const GroupMember &member : std::as_const(plan.leaving))
            batchLeaving.insert(member.path);
        plans.append(plan);
    }
    for (Plan &plan : plans)
        plan.stays = RemovalCheck::keptMembers(plan.kind, plan.members, batchLeaving);
    return plans;
}

bool TImageDeleteWorker::refuseProtected(const GroupMember &member)
{
    if (!m_request.protectedFolders.protectsOnDisk(member.path))
        return false;
    splog_d(
        kTag + QStringLiteral("Skipped, %1: %2").arg(RemovalCheck::inProtectedFolder, member.path));
    record(DeleteResult {member.path, false, DeleteResult::Skipped, QStringLiteral("Skipped."),
               RemovalCheck::inProtectedFolder},
        RemovalJournal::skipped);
    return true;
}

bool TImageDeleteWorker::handle(
    const Plan &plan, const GroupMember &member, RemovalCheck &check, qint64 seq, bool &removed)
{
    removed = false;
    if (LinkReplacer::handles(m_request.method))
        return handleLink(plan, member, check, seq, removed);
    const QString path = member.path;
    const RemovalCheck::Look look = check.look(plan.kind, plan.stays, path, plan.everyCopy);
    DeleteResult result {path};
    if (look.gone) {
        result.alreadyGone = true;
        return record(result, RemovalJournal::gone, seq);
    }
    if (!look.reason.isEmpty()) {
        keep(result, look.reason);
        splog_d(kTag + QStringLiteral("Skipped, %1: %2").arg(look.reason, path));
        return record(result, RemovalJournal::skipped, seq);
    }
    const bool allowDifferent = m_request.allowDifferentContent;
    if (m_request.dryRun) {
        const RemovalCheck::Confirmed confirmed
            = check.confirm(plan.kind, look, path, allowDifferent);
        if (!confirmed.reason.isEmpty())
            keep(result, confirmed.reason);
        return record(result,
            confirmed.reason.isEmpty() ? RemovalJournal::removed : RemovalJournal::skipped, seq);
    }
    // No record, no act.
    const QString privatePath = TFileDeleter::privateNameFor(path);
    const QString method = RemovalJournal::methodName(m_request.method);
    const QString into = m_request.folderFor(path);
    if (!intended(m_journal
                && m_journal->intent(seq, method, path, privatePath,
                    plan.folders ? -1 : look.stamp.size, look.stamp.modifiedNs,
                    into == m_request.targetFolder ? QString() : into),
            result))
        return false;
    if (m_beforeAct)
        m_beforeAct(path);
    bool crossDevice = false;
    const int error
        = platform::current().renameNoReplace(nativeOf(path), nativeOf(privatePath), crossDevice);
    if (error == ENOENT) {
        result.alreadyGone = true;
        return record(result, RemovalJournal::gone, seq);
    }
    if (error != 0) {
        result.success = false;
        result.errorCode = DeleteResult::RemovalFailed;
        result.message = plan.folders ? QStringLiteral("Folder deletion failed.")
                                      : QStringLiteral("Deletion failed.");
        result.reason = TFileDeleter::errorText(error);
        return record(result, RemovalJournal::failed, seq);
    }
    const RemovalCheck::Confirmed confirmed
        = check.confirm(plan.kind, look, privatePath, allowDifferent);
    if (!confirmed.reason.isEmpty()) {
        keep(result, confirmed.reason, TFileDeleter::putBack(privatePath, path, plan.folders));
        splog_d(kTag + QStringLiteral("Skipped, %1: %2").arg(confirmed.reason, path));
        return record(result, RemovalJournal::skipped, seq);
    }
    result = TFileDeleter::deleteOne(privatePath, m_request.method, into, path);
    result.size = confirmed.size;
    result.modifiedNs = confirmed.modifiedNs;
    result.digest = confirmed.digest;
    if (!result.success) {
        const QString placed = TFileDeleter::putBack(privatePath, path, plan.folders);
        if (placed != path)
            result.reason += QStringLiteral(" (kept as %1)").arg(placed);
        return record(result, RemovalJournal::failed, seq);
    }
    removed = true;
    return record(result, RemovalJournal::removed, seq);
}

bool TImageDeleteWorker::handleLink(
    const Plan &plan, const GroupMember &member, RemovalCheck &check, qint64 seq, bool &removed)
{
    const QString path = member.path;
    DeleteResult result {path};
    if (plan.folders) {
        keep(result, LinkReplacer::foldersNotLinked);
        return record(result, RemovalJournal::skipped, seq);
    }
    // A link needs a copy to point at, whatever the caller allows.
    const RemovalCheck::Look look = check.look(plan.kind, plan.stays, path, false);
    if (look.gone) {
        result.alreadyGone = true;
        return record(result, RemovalJournal::gone, seq);
    }
    const LinkReplacer replacer(m_request.method, check, plan.kind);
    QString reason = look.reason;
    const QString kept = reason.isEmpty()
        ? replacer.chooseKept(look, m_request.protectedFolders, reason)
        : QString();
    if (!reason.isEmpty()) {
        keep(result, reason);
        splog_d(kTag + QStringLiteral("Skipped, %1: %2").arg(reason, path));
        return record(result, RemovalJournal::skipped, seq);
    }
    if (m_request.dryRun) {
        const RemovalCheck::Confirmed confirmed = replacer.confirm(look, path, kept);
        if (!confirmed.reason.isEmpty())
            keep(result, confirmed.reason);
        else
            result.destination = kept;
        return record(result,
            confirmed.reason.isEmpty() ? RemovalJournal::removed : RemovalJournal::skipped, seq);
    }
    const QString privatePath = TFileDeleter::privateNameFor(path, QStringLiteral("linking"));
    if (!intended(m_journal
                && m_journal->intent(seq, RemovalJournal::methodName(m_request.method), path,
                    privatePath, look.stamp.size, look.stamp.modifiedNs, {}, kept,
                    look.stamp.device, look.stamp.inode, LinkReplacer::modeOf(path)),
            result))
        return false;
    if (m_beforeAct)
        m_beforeAct(path);
    result = replacer.replace(path, look, kept, privatePath);
    if (!result.success)
        splog_d(kTag + QStringLiteral("Not replaced by a link, %1: %2").arg(result.reason, path));
    removed = result.success;
    return record(result,
        result.success                                  ? RemovalJournal::removed
            : result.errorCode == DeleteResult::Skipped ? RemovalJournal::skipped
                                                        : RemovalJournal::failed,
        seq);
}

void TImageDeleteWorker::doDelete()
{
    m_results.clear();
    m_journalError.clear();
    const QString refusal = m_request.refusal();
    QSet<QString> batchLeaving;
    const QList<Plan> plans = refusal.isEmpty() ? plan(batchLeaving) : QList<Plan>();
    if (!refusal.isEmpty())
        splog_d(kTag + QStringLiteral("Refused: %1").arg(refusal));

    RemovalCheck check(m_request.stamps);
    TFileData::Groups removedFiles;
    TFileData::Groups removedDirs;
    TFileData::Groups remaining = m_request.selected;
    int count = 0;
    qint64 seq = 0;
    bool journalOk = m_journalError.isEmpty();
    for (const Plan &plan : std::as_const(plans)) {
        if (stopping() || !journalOk)
            break;
        QSet<GroupMember> gone;
        for (const GroupMember &member : plan.leaving) {
            if (stopping())
                break;
            bool removed = false;
            journalOk = handle(plan, member, check, seq++, removed);
            // An item already gone leaves the results as one removed now does.
            if (removed || m_results.constLast().alreadyGone) {
                gone.insert(member);
                (plan.folders ? removedDirs : removedFiles)[plan.key].append(member.entry());
            }
            ++count;
            emit progressChanged(count);
            if (count % 10 == 0)
                QCoreApplication::processEvents();
            if (!journalOk)
                break;
        }
        // What was not removed stays selected; a group reduced below two members goes.
        QStringList stays;
        for (const QString &path : plan.selection) {
            const QList<GroupMember> entries = plan.entriesOf.value(path);
            if (std::any_of(entries.begin(), entries.end(),
                    [&gone](const GroupMember &member) { return !gone.contains(member); }))
                stays.append(path);
        }
        if (plan.members.size() - gone.size() < 2 || stays.isEmpty())
            remaining.remove(plan.key);
        else
            remaining.insert(plan.key, stays);
    }
    emit finished(removedFiles, removedDirs, remaining);
}
