// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/RemovalCommands.h"

#include "cli/CliOptions.h"
#include "cli/CliText.h"
#include "cli/ProjectLoader.h"
#include "engine/ProtectedFolders.h"
#include "fileops/LinkReplacer.h"
#include "fileops/RemovalCheck.h"
#include "fileops/RemovalJournal.h"
#include "fileops/RemovalRestorer.h"
#include "fileops/RemovalSequence.h"
#include "fileops/TFileDeleter.h"
#include "fileops/TImageDeleteWorker.h"

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdio>

namespace {

constexpr int kBadArguments = 1;
constexpr int kSomeNotHandled = 5;
constexpr int kJournalFailed = 6;

// The signal that asked the batch to stop; the worker finishes the item in hand.
std::atomic<int> g_stopSignal {0};

extern "C" void onStopSignal(int signal)
{
    g_stopSignal.store(signal);
}

// SIGINT and SIGTERM stop a batch between two items instead of killing it mid-item; the
// previous handlers come back when it ends.
class StopSignals
{
public:
    StopSignals()
    {
        struct sigaction action
        {
        };
        action.sa_handler = onStopSignal;
        sigemptyset(&action.sa_mask);
        ::sigaction(SIGINT, &action, &m_int);
        ::sigaction(SIGTERM, &action, &m_term);
    }
    ~StopSignals()
    {
        ::sigaction(SIGINT, &m_int, nullptr);
        ::sigaction(SIGTERM, &m_term, nullptr);
    }

private:
    struct sigaction m_int
    {
    };
    struct sigaction m_term
    {
    };
};

QString outcomeOf(const DeleteResult &result, bool dryRun)
{
    if (result.alreadyGone)
        return RemovalJournal::gone;
    if (result.errorCode == DeleteResult::Skipped)
        return dryRun ? QStringLiteral("would skip") : QStringLiteral("skipped");
    if (result.errorCode == DeleteResult::NotRecorded)
        return QStringLiteral("not handled");
    if (!result.success)
        return QStringLiteral("failed");
    return dryRun ? QStringLiteral("would remove") : QStringLiteral("removed");
}

// The space that replacing files by links freed: an item's size, unless another name of
// it kept its blocks.
qint64 freedByLinks(const QList<DeleteResult> &results)
{
    qint64 bytes = 0;
    for (const DeleteResult &result : results)
        if (result.success && !result.alreadyGone)
            bytes += result.freedBytes >= 0 ? result.freedBytes : std::max<qint64>(result.size, 0);
    return bytes;
}

// Handled items on standard output (or everything as one JSON object there); items not
// handled are always listed on standard error with their reason. Gives the exit status.
// method: a removal's method (-1 for a restore).
int report(const QList<DeleteResult> &results, bool json, bool dryRun, const QString &done,
    int method = -1)
{
    const bool links = !dryRun && LinkReplacer::handles(method);
    int notHandled = 0;
    int gone = 0;
    int differing = 0;
    if (json)
        std::fputs("{\"items\": [", stdout);
    for (qsizetype i = 0; i < results.size(); ++i) {
        const DeleteResult &result = results.at(i);
        const bool handled = result.success;
        notHandled += handled ? 0 : 1;
        gone += result.alreadyGone ? 1 : 0;
        differing += result.reason.startsWith(RemovalCheck::differentContent) ? 1 : 0;
        const QString outcome
            = handled && !dryRun && !result.alreadyGone ? done : outcomeOf(result, dryRun);
        if (!handled || !json) {
            std::FILE *out = handled ? stdout : stderr;
            std::fprintf(
                out, "%s\t%s", qPrintable(outcome), CliText::lineText(result.path).constData());
            if (!result.destination.isEmpty())
                std::fprintf(out, "\t-> %s", CliText::lineText(result.destination).constData());
            if (!result.reason.isEmpty())
                std::fprintf(out, "\t(%s)", CliText::lineText(result.reason).constData());
            std::fputc('\n', out);
        }
        if (!json)
            continue;
        std::fputs(i ? ",\n  {\"path\": " : "\n  {\"path\": ", stdout);
        CliText::writeJsonString(stdout, result.path);
        std::fputs(", \"result\": ", stdout);
        CliText::writeJsonString(stdout, outcome);
        if (!result.destination.isEmpty()) {
            std::fputs(", \"to\": ", stdout);
            CliText::writeJsonString(stdout, result.destination);
        }
        if (!result.reason.isEmpty()) {
            std::fputs(", \"reason\": ", stdout);
            CliText::writeJsonString(stdout, result.reason);
        }
        std::fputc('}', stdout);
    }
    const auto handled = static_cast<long long>(results.size() - notHandled);
    const auto freed = static_cast<long long>(freedByLinks(results));
    if (json) {
        std::fprintf(stdout, "%s], \"handled\": %lld, \"alreadyGone\": %d, \"notHandled\": %d",
            results.isEmpty() ? "" : "\n", handled, gone, notHandled);
        if (links)
            std::fprintf(stdout, ", \"freedBytes\": %lld", freed);
        std::fputs("}\n", stdout);
    }
    std::fflush(stdout);
    std::fprintf(stderr, "%lld handled (%d of them already gone), %d skipped or failed\n", handled,
        gone, notHandled);
    if (links)
        std::fprintf(stderr, "%lld bytes freed by replacing files by links\n", freed);
    if (links && method == TFileDeleter::replaceByHardLink && handled > gone)
        std::fputs("each file replaced by a hard link is now another name of the copy that "
                   "stays: both names share one set of permissions and one owner\n",
            stderr);
    if (differing)
        std::fprintf(stderr,
            "%d items differ in content from every copy that stays (similar pictures or files "
            "sharing a name); --allow-different-content removes them too\n",
            differing);
    return notHandled ? kSomeNotHandled : 0;
}

int listBatches(bool json)
{
    const QList<RemovalJournal::Batch> batches = RemovalJournal().batches();
    if (json)
        std::fputs("{\"batches\": [", stdout);
    for (qsizetype i = 0; i < batches.size(); ++i) {
        const RemovalJournal::Batch &batch = batches.at(i);
        const qsizetype left = batch.restorableCount();
        const QString state = batch.method == QLatin1String("permanent")
            ? QStringLiteral("not restorable (removed for good)")
            : left ? QStringLiteral("restorable")
                   : QStringLiteral("nothing left to restore");
        const QString ended = !batch.ended ? QStringLiteral(", cut short")
            : batch.signal ? QStringLiteral(", stopped by signal %1").arg(batch.signal)
                           : QString();
        if (!json) {
            std::printf("%s\t%s\t%s\t%lld removed, %lld skipped or failed, %lld to restore\t%s%s\n",
                qPrintable(batch.id), qPrintable(batch.time), qPrintable(batch.method),
                static_cast<long long>(batch.count(RemovalJournal::removed)),
                static_cast<long long>(
                    batch.count(RemovalJournal::skipped) + batch.count(RemovalJournal::failed)),
                static_cast<long long>(left), qPrintable(state), qPrintable(ended));
            continue;
        }
        std::printf("%s\n  {\"batch\": \"%s\", \"time\": \"%s\", \"method\": \"%s\", \"removed\": "
                    "%lld, \"toRestore\": %lld, \"restorable\": %s, \"ended\": %s}",
            i ? "," : "", qPrintable(batch.id), qPrintable(batch.time), qPrintable(batch.method),
            static_cast<long long>(batch.count(RemovalJournal::removed)),
            static_cast<long long>(left), left ? "true" : "false", batch.ended ? "true" : "false");
    }
    if (json)
        std::printf("%s]}\n", batches.isEmpty() ? "" : "\n");
    return 0;
}

} // namespace

int RemovalCommands::remove(const CliOptions &options)
{
    if (const int status = ProjectLoader::load(options.projectPath(), nullptr, nullptr, false))
        return status;
    RemovalRequest request
        = RemovalRequest::fromStore(options.removalMethod(), options.targetFolder());
    // The project's protected folders and this run's together. The selection stays as
    // saved, so that each item the run's folders hold back is listed with its reason.
    request.protectedFolders
        = ProtectedFolders(request.protectedFolders.folders() + options.protectedFolders());
    request.allowAllCopies = options.allowAllCopies();
    request.keepStructure = options.keepStructure();
    request.allowDifferentContent = options.allowDifferentContent();
    request.dryRun = options.dryRun();
    const QString refusal = request.refusal();
    if (!refusal.isEmpty()) {
        std::fprintf(stderr, "veltrine-duplicate-finder-cli: nothing removed: %s\n",
            CliText::lineText(refusal).constData());
        return kBadArguments;
    }
    RemovalSequence sequence(request, false);
    if (!sequence.begin()) {
        std::fprintf(stderr, "veltrine-duplicate-finder-cli: cannot write the journal %s: %s\n",
            CliText::lineText(sequence.journal().path()).constData(),
            qPrintable(sequence.journal().error()));
        return kJournalFailed;
    }
    g_stopSignal.store(0);
    const StopSignals stopSignals;
    sequence.worker()->setStopFlag(&g_stopSignal);
    sequence.run();
    const int signal = g_stopSignal.load();
    const bool journalFailed = !sequence.journalError().isEmpty();
    sequence.end(signal);
    if (!options.dryRun())
        std::fprintf(
            stderr, "journal: %s\n", CliText::lineText(sequence.journal().path()).constData());
    const int status = report(sequence.results(), options.json(), options.dryRun(),
        LinkReplacer::handles(options.removalMethod()) ? QStringLiteral("linked")
                                                       : QStringLiteral("removed"),
        options.removalMethod());
    if (journalFailed) {
        std::fprintf(stderr,
            "veltrine-duplicate-finder-cli: the removal stopped: the journal %s cannot be "
            "written: %s\n",
            CliText::lineText(sequence.journal().path()).constData(),
            CliText::lineText(sequence.journalError()).constData());
        return kJournalFailed;
    }
    if (signal) {
        std::fprintf(stderr,
            "veltrine-duplicate-finder-cli: stopped by signal %d after %lld items\n", signal,
            static_cast<long long>(sequence.results().size()));
        return 128 + signal;
    }
    return status;
}

int RemovalCommands::restore(const CliOptions &options)
{
    if (options.listBatches())
        return listBatches(options.json());
    RemovalJournal journal;
    RemovalRestorer restorer(journal);
    QList<DeleteResult> results;
    if (!restorer.restore(options.batchId(), results)) {
        std::fprintf(stderr, "veltrine-duplicate-finder-cli: nothing restored: %s\n",
            qPrintable(restorer.error()));
        return kSomeNotHandled;
    }
    return report(results, options.json(), false, RemovalJournal::restored);
}
