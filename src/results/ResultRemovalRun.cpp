// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultRemovalRun.h"

#include "app/AppIdentity.h"
#include "app/LogTags.h"
#include "app/TLogger.h"
#include "cloud/KvCloudObject.h"
#include "engine/FileStamp.h"
#include "engine/GroupMember.h"
#include "engine/TFileData.h"
#include "fileops/LinkReplacer.h"
#include "fileops/RemovalCheck.h"
#include "fileops/RemovalJournal.h"
#include "fileops/RemovalRequest.h"
#include "fileops/RemovalSequence.h"
#include "fileops/TImageDeleteWorker.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "results/RemovalSummaryDialog.h"
#include "results/ResultForm.h"
#include "results/SelectionTotals.h"
#include "results/TImageModel.h"
#include "widgets/CustomProgressDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QStorageInfo>
#include <QThread>
#include <QTimer>
#include <QToolButton>

namespace {

const QString &kTag = LogTags::resultForm;

} // namespace

ResultRemovalRun::ResultRemovalRun(
    QWidget *page, QToolButton *deleteButton, bool isCloud, KvCloudObject *cloud)
    : QObject(page), m_page(page), m_deleteButton(deleteButton), m_isCloud(isCloud), m_cloud(cloud)
{
    if (m_isCloud && m_cloud) {
        connect(m_cloud, &KvCloudObject::onDeletedCloudGroupComplated, this,
            [this](const QStringList &deleted) { onCloudRemovalDone(deleted); });
        connect(m_cloud, &KvCloudObject::onDeletedCloudOneFileComplated, this,
            [this](const QStringList &deleted) { onCloudRemovalDone(deleted); });
        connect(m_cloud, &KvCloudObject::onDeletedCloudError, this,
            &ResultRemovalRun::onDeletedCloudError);
    }
}

ResultRemovalRun::~ResultRemovalRun()
{
    // A batch still running writes to the sequence's journal from its own thread, and the
    // page that goes cannot wait for it: the sequence is left to it.
    if (m_sequence)
        (void)m_sequence.release();
}

void ResultRemovalRun::showProgress(int complate, int total)
{
    if (m_progress)
        m_progress->setProgress(complate, total);
}

void ResultRemovalRun::cancel()
{
    if (m_progress)
        m_progress->cancel();
}

void ResultRemovalRun::removeOne(const QString &key, const QString &path)
{
    const auto [method, folder] = removalMethod();
    splog_d(kTag
        + QStringLiteral("onBtnDeletedClick. DeleteMode:%1. Remove Path:%2. File:%3")
              .arg(method)
              .arg(folder, path));
    if (m_isCloud) {
        startCloudRemoval({{key, {path}}}, CloudOne);
        return;
    }
    if (method == DFIgnoreListPreferences::removePermanently && !confirmRemoval({{key, {path}}}))
        return;
    const QList<DeleteResult> results = removeNow({{key, {path}}});
    const bool removed = std::any_of(results.cbegin(), results.cend(),
        [](const DeleteResult &r) { return r.success && r.errorCode == DeleteResult::NoError; });
    if (!removed) {
        const DeleteResult failed = results.isEmpty()
            ? DeleteResult {path, false, DeleteResult::RemovalFailed}
            : results.first();
        QMessageBox::warning(m_page, ResultForm::tr("Delete Failed"),
            ResultForm::tr("Failed to delete the file: %1").arg(failureText(failed, method)));
        return;
    }
    splog_d(kTag + QStringLiteral("Successfully deleted file: [%1].").arg(path));
}

void ResultRemovalRun::removeGroup(const QString &key)
{
    const QStringList selected = TFileData::instance()->selectedOf(key);
    if (selected.isEmpty()) {
        QMessageBox::warning(m_page, ResultForm::tr("No selected"),
            ResultForm::tr("The current group has no selected files."));
        return;
    }
    const auto [method, folder] = removalMethod();
    if ((m_isCloud || method == DFIgnoreListPreferences::removePermanently)
        && !confirmRemoval({{key, selected}}))
        return;
    splog_d(kTag
        + QStringLiteral("onMenuDeleteGroup. DeleteMode:%1. Remove Path:%2. files:[%3]")
              .arg(method)
              .arg(folder, selected.join(QLatin1Char(','))));
    if (m_isCloud) {
        startCloudRemoval({{key, selected}}, CloudGroup);
        return;
    }
    const QList<DeleteResult> results = removeNow({{key, selected}});
    QStringList removed, failed;
    for (const DeleteResult &result : results)
        (result.success && result.errorCode == DeleteResult::NoError ? removed : failed)
            << result.path;
    splog_d(kTag
        + QStringLiteral("Successfully deleted from group: [%1]. Failed to delete: [%2].")
              .arg(removed.join(QLatin1Char(',')), failed.join(QLatin1Char(','))));
    if (!failed.isEmpty())
        showRemovalSummary(results, method);
}

QPair<int, QString> ResultRemovalRun::removalMethod() const
{
    DFIgnoreListPreferences *prefs = DFPreferences::instance()->ignoreListPreferences();
    const int method = prefs->RemovealMethod();
    return {
        method, method == DFIgnoreListPreferences::moveToFolder ? prefs->TrashFolder() : QString()};
}

RemovalRequest ResultRemovalRun::requestFor(const QHash<QString, QStringList> &selection) const
{
    const auto [method, folder] = removalMethod();
    RemovalRequest request = RemovalRequest::fromStore(method, folder);
    request.selected = selection;
    request.keepStructure
        = DFPreferences::instance()->ignoreListPreferences()->KeepFolderStructure();
    return request;
}

bool ResultRemovalRun::confirmRemoval(const QHash<QString, QStringList> &selection)
{
    const int method = removalMethod().first;
    QString question;
    if (m_isCloud)
        question = ResultForm::tr(
            "Selected files will be moved into the Cloud Drive's Recycle Bin, and they "
            "may be permanently deleted if the files' size is too large. Are you sure "
            "you want to delete them?");
    else if (method == DFIgnoreListPreferences::removePermanently)
        question = ResultForm::tr(
            "The selected files will be permanently deleted, are you sure to delete?");
    else if (method == DFIgnoreListPreferences::moveToTrash)
        question = ResultForm::tr(
            "Selected files will be moved into the Recycle Bin, and it may be "
            "permanently deleted if the files' size is too large. Are you sure you want "
            "to delete them?");
    else
        return true;
    // What the answer is about: the number of items and their size as the scan saw them.
    TFileData *store = TFileData::instance();
    QHash<QString, qint64> folders;
    for (const QList<DirGroupEntry> &entries : store->dirGroups())
        for (const DirGroupEntry &entry : entries)
            folders.insert(entry.folderPath, entry.totalSize);
    qint64 count = 0;
    qint64 bytes = 0;
    for (const QStringList &entries : selection) {
        for (const GroupMember &member : GroupMember::fromEntries(entries)) {
            const QString &path = member.path;
            ++count;
            const FileStamp stamp = store->stamp(path);
            if (m_isCloud)
                bytes += TImageModel::cloudProperty(m_cloud, path, QStringLiteral("size"))
                             .toLongLong();
            else if (folders.contains(path))
                bytes += folders.value(path);
            else
                bytes += stamp.isValid() ? stamp.size : SelectionTotals::bytesOf(path);
        }
    }
    question += QStringLiteral("\n\n")
        + ResultForm::tr("%n item(s), %1.", nullptr, int(std::min<qint64>(count, INT_MAX)))
              .arg(TImageModel::sizeText(bytes));
    // Losing files for good is never the default answer.
    const auto defaultAnswer = method == DFIgnoreListPreferences::removePermanently && !m_isCloud
        ? QMessageBox::No
        : QMessageBox::Yes;
    return QMessageBox::question(m_page, AppIdentity::applicationName, question,
               QMessageBox::Yes | QMessageBox::No, defaultAnswer)
        == QMessageBox::Yes;
}

bool ResultRemovalRun::removesEveryCopy(
    const QHash<QString, QStringList> &groups, const QHash<QString, QStringList> &selected)
{
    for (auto it = selected.cbegin(); it != selected.cend(); ++it) {
        const QList<GroupMember> members = GroupMember::fromEntries(groups.value(it.key()));
        if (members.isEmpty())
            continue;
        QSet<QString> chosen;
        for (const GroupMember &member : GroupMember::fromEntries(it.value()))
            chosen.insert(member.path);
        const bool keepsOne = std::any_of(members.cbegin(), members.cend(),
            [&chosen](const GroupMember &member) { return !chosen.contains(member.path); });
        if (!keepsOne)
            return true;
    }
    return false;
}

void ResultRemovalRun::removeSelection()
{
    const TFileData::Groups selection = TFileData::instance()->selected();
    qint64 count = 0;
    for (const QStringList &paths : selection)
        count += paths.size();
    if (count == 0) {
        QMessageBox::warning(
            m_page, ResultForm::tr("Warning"), ResultForm::tr("No Selected Files!"));
        return;
    }
    if (!confirmRemoval(selection))
        return;
    if (m_isCloud) {
        // A cloud group always keeps a copy: the service's copies cannot be compared
        // again once they are gone.
        startCloudRemoval(selection, CloudBatch);
        return;
    }
    bool allowAllCopies = false;
    // A link needs a copy that stays to point at: nothing to ask.
    if (!LinkReplacer::handles(removalMethod().first)
        && removesEveryCopy(TFileData::instance()->groups(), selection)) {
        // Losing the last copy is never the default answer.
        allowAllCopies
            = QMessageBox::warning(m_page, AppIdentity::applicationName,
                  ResultForm::tr("In some groups every copy is selected, so nothing of them "
                                 "would be kept.\n\nRemove every copy of those files too? With "
                                 "\"No\" one copy of each stays."),
                  QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
            == QMessageBox::Yes;
    }
    startBatch(selection, allowAllCopies);
}

void ResultRemovalRun::startBatch(
    const QHash<QString, QStringList> &selection, bool allowAllCopies, bool allowDifferentContent)
{
    RemovalRequest request = requestFor(selection);
    const int method = request.method;
    request.allowAllCopies = allowAllCopies;
    request.allowDifferentContent = allowDifferentContent;
    if (const QString refusal = request.refusal(); !refusal.isEmpty()) {
        QMessageBox::warning(m_page, ResultForm::tr("Delete Failed"),
            ResultForm::tr("Nothing was removed: %1").arg(refusal));
        return;
    }
    m_batchMethod = method;
    m_batchAllowsDifferent = allowDifferentContent;
    qint64 count = 0;
    QStringList paths;
    for (const QStringList &list : selection) {
        count += list.size();
        paths << list;
    }
    auto sequence = std::make_unique<RemovalSequence>(request, true);
    if (!sequence->begin()) {
        QMessageBox::warning(m_page, ResultForm::tr("Delete Failed"),
            ResultForm::tr("Nothing was removed: the removal record %1 cannot be written (%2).")
                .arg(QDir::toNativeSeparators(sequence->journal().path()),
                    sequence->journal().error()));
        return;
    }
    splog_d(kTag
        + QStringLiteral("on_btn_delete_clicked. DeleteMode:%1. Remove Path:%2. files.count:[%3]")
              .arg(method)
              .arg(request.targetFolder)
              .arg(paths.size()));

    m_progress = new CustomProgressDialog(ResultForm::tr("Removing files"), m_page);
    m_progress->setWindowModality(Qt::ApplicationModal);
    m_progress->setText(ResultForm::tr("Removing the selected files…"));
    m_progress->setProgress(0, double(count));

    auto *thread = new QThread;
    // The results are taken on the worker's thread as it finishes: the worker is deleted
    // with its thread, possibly before the page handles the queued end.
    TImageDeleteWorker *worker = sequence->takeWorker();
    m_sequence = std::move(sequence);
    worker->moveToThread(thread);
    connect(thread, &QThread::started, worker, &TImageDeleteWorker::doDelete);
    connect(worker, &TImageDeleteWorker::progressChanged, this, [this, count](int value) {
        emit progressChanged(value, int(std::min<qint64>(count, INT_MAX)));
    });
    connect(worker, &TImageDeleteWorker::finished, thread, &QThread::quit);
    connect(worker, &TImageDeleteWorker::finished, this, &ResultRemovalRun::batchEnded);
    connect(m_progress, &CustomProgressDialog::canceled, worker, &TImageDeleteWorker::setCancelled,
        Qt::DirectConnection);
    connect(thread, &QThread::finished, worker, &QObject::deleteLater);
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    m_deleteButton->setEnabled(false);
    thread->start(QThread::InheritPriority);
    // Short batches end before the dialog would show; it must not appear after the end.
    QTimer::singleShot(200, m_progress.data(), [this, progress = m_progress] {
        if (progress && progress == m_progress)
            progress->show();
    });
}

void ResultRemovalRun::batchEnded(
    const QHash<QString, QStringList> &files, const QHash<QString, QStringList> &dirs)
{
    const std::unique_ptr<RemovalSequence> sequence = std::move(m_sequence);
    const QList<DeleteResult> results = sequence ? sequence->results() : QList<DeleteResult>();
    const QString journalError = sequence ? sequence->journalError() : QString();
    if (sequence)
        sequence->end();
    else
        RemovalSequence::setCrashMarker(0);
    if (m_progress) {
        m_progress->finish();
        m_progress->deleteLater();
        m_progress.clear();
    }
    finishRemoval(files, dirs, results, true);
    if (!journalError.isEmpty()) {
        QMessageBox::warning(m_page, ResultForm::tr("Delete Failed"),
            ResultForm::tr(
                "The removal stopped: the removal record %1 cannot be written (%2). Nothing "
                "more was removed.")
                .arg(QDir::toNativeSeparators(RemovalJournal::defaultPath()), journalError));
        return;
    }
    offerDifferentContent(results);
}

bool ResultRemovalRun::confirmDifferentContent(qsizetype count)
{
    return QMessageBox::question(m_page, ResultForm::tr("Remove Different Files?"),
               ResultForm::tr(
                   "%n selected file(s) differ in content from every copy that stays: they are "
                   "similar pictures or files that only share a name. They were kept.\n\nRemove "
                   "them too?",
                   nullptr, int(count)),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        == QMessageBox::Yes;
}

void ResultRemovalRun::offerDifferentContent(const QList<DeleteResult> &results)
{
    if (m_batchAllowsDifferent)
        return;
    // Similar pictures and files that share a name differ by design: the first batch kept
    // those that differ from every copy that stays, and only the user's yes lets them go.
    QSet<QString> differing;
    for (const DeleteResult &result : results)
        if (result.errorCode == DeleteResult::Skipped
            && result.reason == RemovalCheck::differentContent)
            differing.insert(result.path);
    if (differing.isEmpty())
        return;
    QHash<QString, QStringList> selection;
    const TFileData::Groups selected = TFileData::instance()->selected();
    for (auto it = selected.cbegin(); it != selected.cend(); ++it)
        for (const QString &entry : it.value())
            if (differing.contains(GroupMember::fromEntry(entry).path))
                selection[it.key()].append(entry);
    if (selection.isEmpty())
        return;
    if (confirmDifferentContent(differing.size()))
        startBatch(selection, false, true);
}

QList<DeleteResult> ResultRemovalRun::removeNow(
    const QHash<QString, QStringList> &selection, bool allowDifferentContent)
{
    RemovalRequest request = requestFor(selection);
    const int method = request.method;
    request.allowDifferentContent = allowDifferentContent;
    const QString refusal = request.refusal();
    RemovalSequence sequence(request, true);
    if (!refusal.isEmpty() || !sequence.begin()) {
        DeleteResult refused {
            selection.cbegin().value().value(0), false, DeleteResult::RemovalFailed};
        refused.reason = !refusal.isEmpty()
            ? refusal
            : ResultForm::tr("the removal record cannot be written: %1")
                  .arg(sequence.journal().error());
        return {refused};
    }
    TFileData::Groups removedFiles, removedDirs;
    connect(sequence.worker(), &TImageDeleteWorker::finished, this,
        [&removedFiles, &removedDirs](const TFileData::Groups &files, const TFileData::Groups &dirs,
            const TFileData::Groups &) {
            removedFiles = files;
            removedDirs = dirs;
        });
    sequence.run();
    sequence.end();
    const QList<DeleteResult> results = sequence.results();
    finishRemoval(removedFiles, removedDirs, results, false);
    const auto differing = std::count_if(results.cbegin(), results.cend(),
        [](const DeleteResult &result) { return result.reason == RemovalCheck::differentContent; });
    if (differing && !allowDifferentContent && confirmDifferentContent(differing))
        return removeNow(selection, true);
    return results;
}

void ResultRemovalRun::finishRemoval(const QHash<QString, QStringList> &files,
    const QHash<QString, QStringList> &dirs, const QList<DeleteResult> &results, bool showSummary)
{
    m_lastRemoval = results;
    TFileData *store = TFileData::instance();
    QHash<QString, QStringList> removed = files;
    for (auto it = dirs.cbegin(); it != dirs.cend(); ++it)
        removed[it.key()] << it.value();
    for (auto it = removed.cbegin(); it != removed.cend(); ++it)
        for (const QString &entry : it.value())
            store->removePath(it.key(), entry);
    // A group the removal found not to be identical (the sampled mode compared parts of
    // its files) is no group of copies: it leaves the page whole.
    QSet<QString> notIdentical;
    for (const DeleteResult &result : results)
        if (result.reason == RemovalCheck::notIdentical)
            notIdentical.insert(result.path);
    if (!notIdentical.isEmpty()) {
        const TFileData::Groups groups = store->groups();
        for (auto it = groups.cbegin(); it != groups.cend(); ++it) {
            if (std::none_of(it.value().cbegin(), it.value().cend(),
                    [&](const QString &member) { return notIdentical.contains(member); }))
                continue;
            removed[it.key()] << it.value();
            store->removeGroup(it.key());
        }
    }
    emit removalApplied(removed);
    if (showSummary)
        showRemovalSummary(results, m_batchMethod);
}

QString ResultRemovalRun::failureText(const DeleteResult &result, int method)
{
    // The cloud source words its reasons itself, the service's words included.
    if (method == ResultForm::kCloudRemoval)
        return result.reason.isEmpty() ? ResultForm::tr("The cloud service did not remove it.")
                                       : result.reason;
    if (result.errorCode == DeleteResult::Skipped) {
        // The checks give their reasons in the journal's words; the user reads them here.
        if (result.reason == RemovalCheck::changedSinceScan)
            return ResultForm::tr("The file changed after the scan.");
        if (result.reason == RemovalCheck::noKeptCopyLeft)
            return ResultForm::tr("No other copy of it would be left.");
        if (result.reason == RemovalCheck::contentDiffers)
            return ResultForm::tr("Its content no longer matches the copy that stays.");
        if (result.reason == RemovalCheck::differentContent)
            return ResultForm::tr("Its content differs from every copy that stays.");
        if (result.reason == RemovalCheck::notIdentical)
            return ResultForm::tr("Not identical (only parts were compared).");
        if (result.reason == RemovalCheck::folderNotCovered)
            return ResultForm::tr("Not everything in it has a copy in the folder that stays.");
        if (result.reason == TImageDeleteWorker::keptLastCopy)
            return ResultForm::tr("Every copy of its group was selected; this one stays.");
        if (result.reason == LinkReplacer::foldersNotLinked)
            return ResultForm::tr("A folder is not replaced by a link; only files are.");
        if (result.reason == LinkReplacer::noHardLinkCopy)
            return ResultForm::tr("No copy that stays is on the same drive, as a hard link needs.");
        if (result.reason == LinkReplacer::noReflinkCopy)
            return ResultForm::tr("No copy that stays is on the same drive, as a reflink needs.");
        if (result.reason == LinkReplacer::cannotClone)
            return ResultForm::tr("The file system cannot clone files (reflink).");
        if (result.reason == LinkReplacer::keptCopyMoved)
            return ResultForm::tr("The copy that stays changed while the link was made.");
        return result.reason;
    }
    if (!QFileInfo::exists(GroupMember::fromEntry(result.path).path) && !result.success)
        return ResultForm::tr("The file was not found.");
    switch (result.errorCode) {
    case DeleteResult::NotAFile:
        return ResultForm::tr("The item is not a file.");
    case DeleteResult::NotAFolder:
        return ResultForm::tr("The item is not a directory.");
    case DeleteResult::MoveFailed:
        return ResultForm::tr("Failed to move the file.");
    default:
        break;
    }
    const QString reason = result.reason.toLower();
    if (reason.contains(QLatin1String("permission")) || reason.contains(QLatin1String("read-only")))
        return ResultForm::tr("Permission denied. Please check the file's access rights.");
    if (reason.contains(QLatin1String("busy")) || reason.contains(QLatin1String("in use")))
        return ResultForm::tr("The file is currently in use and cannot be deleted.");
    if (method == DFIgnoreListPreferences::moveToTrash)
        return ResultForm::tr("Failed to move the file to the recycle bin.");
    if (!result.reason.isEmpty())
        return result.reason;
    return ResultForm::tr("An unknown error occurred while deleting the file.");
}

qint64 ResultRemovalRun::removedBytes(const QList<DeleteResult> &results)
{
    // Sizes as the scan saw them: the items are gone and cannot be asked any more.
    TFileData *store = TFileData::instance();
    QHash<QString, qint64> folders;
    const TFileData::DirGroups dirGroups = store->dirGroups();
    for (const QList<DirGroupEntry> &entries : dirGroups)
        for (const DirGroupEntry &entry : entries)
            folders.insert(entry.folderPath, entry.totalSize);
    qint64 bytes = 0;
    for (const DeleteResult &result : results) {
        if (!result.success || result.errorCode != DeleteResult::NoError || result.alreadyGone)
            continue;
        // A file replaced by a link frees its blocks only when it was their last name.
        if (result.freedBytes >= 0) {
            bytes += result.freedBytes;
            continue;
        }
        const QString path = GroupMember::fromEntry(result.path).path;
        const auto folder = folders.constFind(path);
        if (folder != folders.cend())
            bytes += *folder;
        else if (const FileStamp stamp = store->stamp(path); stamp.isValid())
            bytes += stamp.size;
        else if (!result.destination.isEmpty())
            bytes += SelectionTotals::bytesOf(result.destination);
    }
    return bytes;
}

void ResultRemovalRun::showRemovalSummary(const QList<DeleteResult> &results, int method)
{
    qint64 bytes = 0;
    if (method == ResultForm::kCloudRemoval) {
        for (const DeleteResult &result : results)
            if (result.success && result.errorCode == DeleteResult::NoError)
                bytes += m_cloudSizes.value(result.path);
    } else {
        bytes = removedBytes(results);
    }
    // A move within one disk frees nothing: the files only have another place.
    bool freed = method != DFIgnoreListPreferences::moveToFolder;
    for (const DeleteResult &result : results) {
        if (freed || !result.success || result.destination.isEmpty())
            continue;
        const QStorageInfo target(QFileInfo(result.destination).absolutePath());
        const QStorageInfo source(QFileInfo(result.path).absolutePath());
        freed = !target.isValid() || !source.isValid() || target.device() != source.device();
    }
    RemovalSummaryDialog dialog(results, method, bytes, freed, m_page);
    dialog.exec();
}

void ResultRemovalRun::startCloudRemoval(
    const QHash<QString, QStringList> &selection, CloudRemoval kind)
{
    if (!m_cloud)
        return;
    TFileData *store = TFileData::instance();
    QList<DelParams> requests;
    qsizetype count = 0;
    m_cloudKeys.clear();
    m_cloudSizes.clear();
    for (auto it = selection.cbegin(); it != selection.cend(); ++it) {
        const QList<GroupMember> groupMembers = store->groupMembers(it.key());
        const bool similar = GroupMember::anySimilar(groupMembers);
        const QStringList members = GroupMember::paths(groupMembers);
        QSet<QString> chosen;
        for (const GroupMember &member : GroupMember::fromEntries(it.value()))
            chosen.insert(member.path);
        DelParams request;
        request.groupKey = it.key();
        request.similar = similar;
        // The first copy not chosen stays; with every copy chosen, the first one.
        for (const QString &member : std::as_const(members))
            if (!chosen.contains(member)) {
                request.keep = member;
                break;
            }
        if (request.keep.isEmpty() && !members.isEmpty())
            request.keep = members.first();
        for (const QString &member : std::as_const(members)) {
            if (!chosen.contains(member) || member == request.keep)
                continue;
            request.files << member;
            m_cloudKeys.insert(member, it.key());
            m_cloudSizes.insert(member,
                TImageModel::cloudProperty(m_cloud, member, QStringLiteral("size")).toLongLong());
        }
        count += request.files.size();
        if (!request.files.isEmpty())
            requests << request;
    }
    if (requests.isEmpty()) {
        QMessageBox::warning(m_page, ResultForm::tr("Delete Failed"),
            ResultForm::tr(
                "Nothing was removed: every selected file is the last copy of its group."));
        return;
    }
    m_cloudRemoval = kind;
    m_batchMethod = ResultForm::kCloudRemoval;
    RemovalSequence::setCrashMarker(1);
    m_deleteButton->setEnabled(false);
    if (kind == CloudOne) {
        m_cloud->start_delete_one_file(requests.first());
        return;
    }
    if (kind == CloudGroup) {
        m_cloud->start_delete_group_files(requests.first());
        return;
    }
    splog_d(kTag
        + QStringLiteral("on_btn_delete_clicked. DeleteMode:cloud. files.count:[%1]").arg(count));
    m_progress = new CustomProgressDialog(ResultForm::tr("Removing files"), m_page);
    m_progress->setWindowModality(Qt::ApplicationModal);
    m_progress->setText(ResultForm::tr("Removing the selected files…"));
    m_progress->setProgress(0, double(count));
    connect(m_progress, &CustomProgressDialog::canceled, m_cloud, &KvCloudObject::stop_deleted);
    m_cloud->start_delete_all_files(requests);
    QTimer::singleShot(200, m_progress.data(), [this, progress = m_progress] {
        if (progress && progress == m_progress)
            progress->show();
    });
}

void ResultRemovalRun::onCloudRemovalDone(const QStringList &deleted)
{
    const CloudRemoval kind = std::exchange(m_cloudRemoval, NoCloudRemoval);
    if (kind == NoCloudRemoval)
        return;
    RemovalSequence::setCrashMarker(0);
    if (m_progress) {
        m_progress->finish();
        m_progress->deleteLater();
        m_progress.clear();
    }
    QHash<QString, QStringList> removed;
    for (const QString &path : deleted)
        removed[m_cloudKeys.value(path)] << path;
    const QList<DeleteResult> results = m_cloud->lastRemovalResults();
    splog_d(kTag
        + QStringLiteral("Cloud removal ended: %1 of %2 removed.")
              .arg(deleted.size())
              .arg(results.size()));
    const bool failed = deleted.size() < results.size();
    finishRemoval(removed, {}, results, kind == CloudBatch || (kind == CloudGroup && failed));
    if (kind == CloudOne && failed) {
        const DeleteResult first = results.isEmpty() ? DeleteResult() : results.first();
        QMessageBox::warning(m_page, ResultForm::tr("Delete Failed"),
            ResultForm::tr("Failed to delete the file: %1")
                .arg(failureText(first, ResultForm::kCloudRemoval)));
    }
}

void ResultRemovalRun::onDeletedCloudError(int failedCount, const QString &errorMsg)
{
    splog_d(
        kTag + QStringLiteral("onDeletedCloudError. failed:%1. %2").arg(failedCount).arg(errorMsg));
    // Failures of a removal that ended are in its summary; this is a removal refused
    // before anything was tried.
    if (failedCount <= 0 || m_cloudRemoval == NoCloudRemoval)
        return;
    m_cloudRemoval = NoCloudRemoval;
    RemovalSequence::setCrashMarker(0);
    if (m_progress) {
        m_progress->finish();
        m_progress->deleteLater();
        m_progress.clear();
    }
    emit totalsStale();
    const QString text
        = QStringLiteral("%1 %2. ").arg(ResultForm::tr("Failed to delete the files. "), errorMsg);
    QTimer::singleShot(100, m_page,
        [this, text] { QMessageBox::warning(m_page, ResultForm::tr("Delete Failed"), text); });
}
