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
    RemovalCheck check(m_request.stamps);
    TFileData::Groups removedFiles;
    TFileData::Groups removedDirs;
    TFileData::Groups remaining = m_request.selected;
    int count = 0;
    // A fixed order, so that the same selection is always handled the same way.
    QStringList keys = m_request.selected.keys();
    keys.sort();
    for (const QString &key : std::as_const(keys)) {
        if (m_cancelled.load())
            break;
        const bool folders = m_request.dirGroups.contains(key);
        QStringList members;
        if (folders) {
            for (const DirGroupEntry &entry : m_request.dirGroups.value(key))
                members.append(entry.folderPath);
        } else if (m_request.groups.contains(key)) {
            members = m_request.groups.value(key);
        } else {
            continue;
        }
        const QStringList selection = m_request.selected.value(key);
        QStringList leaving;
        for (const QString &path : selection)
            for (const QString &member : membersFor(path, members))
                if (!leaving.contains(member))
                    leaving.append(member);
        RemovalCheck::GroupKind kind = RemovalCheck::IdenticalFiles;
        if (folders)
            kind = RemovalCheck::Folders;
        else if (std::any_of(members.begin(), members.end(), isSimilarEntry))
            kind = RemovalCheck::SimilarPictures;
        else if (m_request.nameGroups.contains(key))
            kind = RemovalCheck::NamedFiles;
        // A selection of every copy keeps the first one, unless the caller said otherwise.
        const bool everyCopy = !members.isEmpty()
            && std::all_of(members.begin(), members.end(),
                [&leaving](const QString &member) { return leaving.contains(member); });
        if (everyCopy && !m_request.allowAllCopies) {
            const QString first = members.first();
            leaving.removeAll(first);
            DeleteResult kept {stripSimilarTag(first), false, DeleteResult::Skipped,
                QStringLiteral("Skipped."), keptLastCopy};
            record(kept, RemovalJournal::skipped);
            splog_d(
                QStringLiteral("[TImageDeleteWorker]: Every copy selected, the first is kept: %1")
                    .arg(first));
        }
        const QSet<QString> leavingSet(leaving.begin(), leaving.end());
        QStringList gone;
        for (const QString &entry : std::as_const(leaving)) {
            if (m_cancelled.load())
                break;
            const QString path = folders ? entry : stripSimilarTag(entry);
            const QString reason = check.check(
                kind, members, entry, leavingSet, everyCopy && m_request.allowAllCopies);
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
                    (folders ? removedDirs : removedFiles)[key].append(entry);
                }
            }
            ++count;
            emit progressChanged(count);
            if (count % 10 == 0)
                QCoreApplication::processEvents();
        }
        // What was not removed stays selected; a group reduced below two members goes.
        QStringList stays;
        for (const QString &path : selection) {
            const QStringList entries = membersFor(path, members);
            if (std::any_of(entries.begin(), entries.end(),
                    [&gone](const QString &entry) { return !gone.contains(entry); }))
                stays.append(path);
        }
        if (members.size() - gone.size() < 2 || stays.isEmpty())
            remaining.remove(key);
        else
            remaining.insert(key, stays);
    }
    emit finished(removedFiles, removedDirs, remaining);
}
