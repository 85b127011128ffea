// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/CloudRemover.h"

#include "app/LogTags.h"
#include "app/TLogger.h"
#include "cloud/CloudPath.h"
#include "cloud/KvCloudObject.h"
#include "cloud/RcloneClient.h"

#include <utility>

#include <QJsonArray>
#include <QJsonObject>
#include <QTimer>

namespace {
// The cloud source's own tag: these lines belong to its removals.
const QString &kTag = LogTags::cloud;
const QString kJournalSource = QStringLiteral("cloud");
} // namespace

struct CloudRemover::Run
{
    Run(const QList<DelParams> &requests, bool one, const QString &journalPath)
        : groups(requests), single(one), journal(journalPath)
    {
        for (const DelParams &group : groups)
            total += int(group.files.size());
    }
    const DelParams &group() const { return groups.at(groupIndex); }
    bool done() const { return groupIndex >= groups.size(); }
    QList<DelParams> groups;
    bool single = false;
    int groupIndex = 0;
    int next = 0;
    int total = 0;
    int handled = 0;
    QStringList deleted;
    QStringList failures;
    QList<DeleteResult> results;
    RemovalJournal journal;
};

void CloudRemover::install()
{
    CloudRemoval::setFactory(
        [](KvCloudObject *cloud) -> CloudRemoval * { return new CloudRemover(cloud); });
}

CloudRemover::CloudRemover(KvCloudObject *cloud) : QObject(cloud), m_cloud(cloud) { }

CloudRemover::~CloudRemover() = default;

void CloudRemover::start(const QList<DelParams> &groups, bool single)
{
    qsizetype count = 0;
    for (const DelParams &group : groups)
        count += group.files.size();
    if (m_run) {
        emit m_cloud->onDeletedCloudError(
            int(count), QStringLiteral("Another removal is still running."));
        return;
    }
    const QString journal = m_cloud->journalPath();
    m_run = std::make_unique<Run>(
        groups, single, journal.isEmpty() ? RemovalJournal::defaultPath() : journal);
    // Nothing goes unless it can be written down first.
    if (!m_run->journal.begin(kJournalSource, count)) {
        const QString reason = QStringLiteral("The removal journal cannot be written: %1")
                                   .arg(m_run->journal.error());
        m_run.reset();
        emit m_cloud->onDeletedCloudError(int(count), reason);
        return;
    }
    if (const QString problem = m_cloud->ensureStarted(); !problem.isEmpty()) {
        failRest(problem, false);
        QTimer::singleShot(0, this, [this] { finish(); });
        return;
    }
    // Answers always come after the call has returned, even when no check needs rclone.
    QTimer::singleShot(0, this, [this] { removeNext(); });
}

void CloudRemover::abort(const QString &reason, bool skipped)
{
    if (!m_run)
        return;
    failRest(reason, skipped);
    finish();
}

void CloudRemover::failRest(const QString &reason, bool skipped)
{
    for (; !m_run->done(); ++m_run->groupIndex, m_run->next = 0)
        for (; m_run->next < m_run->group().files.size(); ++m_run->next)
            failed(m_run->group().files.at(m_run->next), reason, skipped);
}

void CloudRemover::failed(const QString &file, const QString &reason, bool skipped)
{
    m_run->failures.append(QStringLiteral("%1: %2").arg(file, reason));
    DeleteResult result {file};
    result.success = false;
    result.errorCode = skipped ? DeleteResult::Skipped : DeleteResult::RemovalFailed;
    result.message = skipped ? QStringLiteral("Skipped.") : QStringLiteral("Deletion failed.");
    result.reason = reason;
    m_run->results.append(result);
    m_run->journal.record(
        kJournalSource, result, skipped ? RemovalJournal::skipped : RemovalJournal::failed);
}

void CloudRemover::removeNext()
{
    if (!m_run)
        return;
    if (m_run->handled > 0)
        emit m_cloud->deleteProgress(m_run->handled, m_run->total);
    while (!m_run->done() && m_run->next >= m_run->group().files.size()) {
        ++m_run->groupIndex;
        m_run->next = 0;
    }
    if (m_run->done()) {
        finish();
        return;
    }
    const DelParams &params = m_run->group();
    const QString file = params.files.at(m_run->next++);
    ++m_run->handled;
    const CloudFile *item = m_cloud->recorded(file);
    const CloudFile *kept = m_cloud->recorded(params.keep);
    const bool sameContent
        = item && kept && item->hash == kept->hash && item->hashType == kept->hashType;
    if (file == params.keep || !item || !kept || item->hash.isEmpty() || kept->hash.isEmpty()
        || (!params.similar && !sameContent)) {
        failed(file, QStringLiteral("no copy of it known to stay"), true);
        removeNext();
        return;
    }
    if (KvCloudObject::isDownloadedHash(item->hashType)
        || KvCloudObject::isDownloadedHash(kept->hashType)) {
        failed(file,
            QStringLiteral("the service keeps no hash by which the kept copy can be confirmed"),
            true);
        removeNext();
        return;
    }
    removeChecked(file, *item, *kept, params.keep);
}

void CloudRemover::check(const CloudFile &seen, std::function<void(const QString &problem)> next)
{
    const QString hashType = seen.hashType;
    const qint64 size = seen.size;
    const QByteArray hash = seen.hash;
    const CloudPath where = CloudPath::split(seen.path);
    m_cloud->client()->call(QStringLiteral("operations/stat"),
        {{"fs", where.fs}, {"remote", where.remote},
            {"opt", QJsonObject {{"showHash", true}, {"hashTypes", QJsonArray {hashType}}}}},
        [size, hash, hashType, next](const QJsonObject &answer, const QString &error) {
            if (!error.isEmpty()) {
                next(error);
                return;
            }
            const QJsonObject found = answer.value(QLatin1String("item")).toObject();
            if (found.isEmpty())
                next(QStringLiteral("it no longer exists"));
            else if (found.value(QLatin1String("Size")).toInteger(-1) != size
                || QByteArray::fromHex(found.value(QLatin1String("Hashes"))
                                           .toObject()
                                           .value(hashType)
                                           .toString()
                                           .toLatin1())
                    != hash)
                next(QStringLiteral("its content changed since the scan"));
            else
                next({});
        });
}

void CloudRemover::removeChecked(
    const QString &file, const CloudFile &item, const CloudFile &kept, const QString &keep)
{
    // Both are looked at again just before: the kept one must still be there with the
    // content the scan saw, and so must the one to go.
    check(kept, [this, file, keep, item](const QString &keptProblem) {
        if (!keptProblem.isEmpty()) {
            failed(file,
                QStringLiteral("the kept copy %1 cannot be confirmed: %2").arg(keep, keptProblem),
                true);
            removeNext();
            return;
        }
        check(item, [this, file](const QString &problem) {
            if (!problem.isEmpty()) {
                failed(file, problem, true);
                removeNext();
                return;
            }
            const CloudPath where = CloudPath::split(file);
            m_cloud->client()->call(QStringLiteral("operations/deletefile"),
                {{"fs", where.fs}, {"remote", where.remote}},
                [this, file](const QJsonObject &, const QString &error) {
                    if (!m_run)
                        return;
                    if (!error.isEmpty()) {
                        failed(file, error, false);
                    } else {
                        m_run->deleted.append(file);
                        m_run->results.append(DeleteResult {file});
                        m_run->journal.record(
                            kJournalSource, DeleteResult {file}, RemovalJournal::removed);
                        m_cloud->forget(file);
                    }
                    removeNext();
                });
        });
    });
}

void CloudRemover::finish()
{
    if (!m_run)
        return;
    std::unique_ptr<Run> run = std::move(m_run);
    run->journal.end();
    m_lastResults = run->results;
    splog_d(kTag
        + QStringLiteral("removed %1 of %2 cloud files").arg(run->deleted.size()).arg(run->total));
    DelParams asked = run->groups.value(0);
    if (run->groups.size() > 1) {
        asked = DelParams();
        for (const DelParams &group : std::as_const(run->groups))
            asked.files << group.files;
    }
    if (run->single)
        emit m_cloud->onDeletedCloudOneFileComplated(run->deleted, asked);
    else
        emit m_cloud->onDeletedCloudGroupComplated(run->deleted, asked);
    if (!run->failures.isEmpty())
        emit m_cloud->onDeletedCloudError(
            int(run->failures.size()), run->failures.join(QLatin1Char('\n')));
}
