// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/RemovalCommands.h"

#include "cli/CliOptions.h"
#include "cli/CliText.h"
#include "cli/ProjectLoader.h"
#include "fileops/RemovalJournal.h"
#include "fileops/RemovalRestorer.h"
#include "fileops/TImageDeleteWorker.h"

#include <cstdio>

namespace {

constexpr int kSomeNotHandled = 5;

QString outcomeOf(const DeleteResult &result, bool dryRun)
{
    if (result.errorCode == DeleteResult::Skipped)
        return dryRun ? QStringLiteral("would skip") : QStringLiteral("skipped");
    if (!result.success)
        return QStringLiteral("failed");
    return dryRun ? QStringLiteral("would remove") : QStringLiteral("removed");
}

// Handled items on standard output (or everything as one JSON object there); items not
// handled are always listed on standard error with their reason. Gives the exit status.
int report(const QList<DeleteResult> &results, bool json, bool dryRun, const QString &done)
{
    int notHandled = 0;
    if (json)
        std::fputs("{\"items\": [", stdout);
    for (qsizetype i = 0; i < results.size(); ++i) {
        const DeleteResult &result = results.at(i);
        const bool handled = result.success;
        notHandled += handled ? 0 : 1;
        const QString outcome = handled && !dryRun ? done : outcomeOf(result, dryRun);
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
    if (json)
        std::fprintf(stdout, "%s], \"handled\": %lld, \"notHandled\": %d}\n",
            results.isEmpty() ? "" : "\n", static_cast<long long>(results.size() - notHandled),
            notHandled);
    std::fflush(stdout);
    std::fprintf(stderr, "%lld handled, %d skipped or failed\n",
        static_cast<long long>(results.size() - notHandled), notHandled);
    return notHandled ? kSomeNotHandled : 0;
}

} // namespace

int RemovalCommands::remove(const CliOptions &options)
{
    if (const int status = ProjectLoader::load(options.projectPath(), nullptr, nullptr, false))
        return status;
    RemovalRequest request
        = RemovalRequest::fromStore(options.removalMethod(), options.targetFolder());
    request.allowAllCopies = options.allowAllCopies();
    request.dryRun = options.dryRun();
    TImageDeleteWorker worker(request);
    RemovalJournal journal;
    if (!options.dryRun()) {
        qint64 items = 0;
        for (const QStringList &paths : std::as_const(request.selected))
            items += paths.size();
        // No journal, no removal: every item must be on record before it goes.
        if (!journal.begin(RemovalJournal::methodName(options.removalMethod()), items)) {
            std::fprintf(stderr, "veltrine-duplicate-finder-cli: cannot write the journal %s: %s\n",
                CliText::lineText(journal.path()).constData(), qPrintable(journal.error()));
            return 1;
        }
        worker.setJournal(&journal);
    }
    worker.doDelete();
    if (!options.dryRun()) {
        journal.end();
        std::fprintf(stderr, "journal: %s\n", CliText::lineText(journal.path()).constData());
    }
    return report(worker.results(), options.json(), options.dryRun(), QStringLiteral("removed"));
}

int RemovalCommands::restore(const CliOptions &options)
{
    RemovalJournal journal;
    RemovalRestorer restorer(journal);
    QList<DeleteResult> results;
    if (!restorer.restoreLastBatch(results)) {
        std::fprintf(stderr, "veltrine-duplicate-finder-cli: nothing restored: %s\n",
            qPrintable(restorer.error()));
        return kSomeNotHandled;
    }
    return report(results, options.json(), false, QStringLiteral("restored"));
}
