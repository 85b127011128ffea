// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CliProgram.h"

#include "app/SnapshotKeys.h"
#include "app/TLogger.h"
#include "cli/CliOptions.h"
#include "cli/CliText.h"
#include "cli/ProjectLoader.h"
#include "cli/RemovalCommands.h"
#include "cloud/KvCloudObject.h"
#include "engine/FilePathCodec.h"
#include "engine/GroupItemAutoSelector.h"
#include "engine/GroupMember.h"
#include "engine/PictureStage.h"
#include "engine/ProtectedFolders.h"
#include "engine/TFileData.h"
#include "fileops/CloudRemover.h"
#include "fileops/CsvExport.h"
#include "fileops/TOpenSaveThread.h"
#include "scancontrol/TControlUI.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QSet>
#include <QTimer>

namespace {

using CliText::lineText;
using CliText::writeJsonList;
using CliText::writeJsonString;

struct OutputGroup
{
    QString key;
    QString kind;
    // Members as stored (GroupMember entries), in the order the report sorts them by.
    QStringList files;
    QStringList selected;
    // Whole contents compared (false for groups of the sampled and the name mode).
    bool verified = true;
};

// The groups to report; leftOut counts those whose every member is protected.
QList<OutputGroup> collectGroups(qint64 &leftOut)
{
    TFileData *store = TFileData::instance();
    QList<OutputGroup> groups;
    const TFileData::Groups files = store->groups();
    const TFileData::Groups selected = store->selected();
    const ProtectedFolders sheltered = store->protectedFolders();
    leftOut = 0;
    for (auto it = files.begin(); it != files.end(); ++it) {
        if (sheltered.protectsEvery(it.value())) {
            ++leftOut;
            continue;
        }
        const bool similar = GroupMember::anySimilar(GroupMember::fromEntries(it.value()));
        groups.append(
            OutputGroup {it.key(), similar ? QStringLiteral("similar") : QStringLiteral("files"),
                it.value(), selected.value(it.key()),
                similar || store->groupMatch(it.key()) == TFileData::MatchContent});
    }
    const TFileData::DirGroups folders = store->dirGroups();
    for (auto it = folders.begin(); it != folders.end(); ++it) {
        OutputGroup group {it.key(), QStringLiteral("folders"), {}, {}};
        for (const DirGroupEntry &entry : it.value())
            group.files.append(entry.folderPath);
        if (sheltered.protectsEvery(group.files)) {
            ++leftOut;
            continue;
        }
        group.selected = selected.value(it.key());
        groups.append(group);
    }
    // A stable order: by kind, then by first member.
    // Compared in place: a copy of each first member per comparison costs more than the
    // comparisons themselves on a large report.
    const auto firstOf = [](const OutputGroup &group) {
        return group.files.isEmpty() ? QStringView() : QStringView(group.files.constFirst());
    };
    std::sort(groups.begin(), groups.end(), [&firstOf](const OutputGroup &a, const OutputGroup &b) {
        if (a.kind != b.kind)
            return a.kind < b.kind;
        return firstOf(a) < firstOf(b);
    });
    return groups;
}

// What a scan could not read, for the report; empty for a saved project.
struct Unread
{
    QStringList folders;
    QStringList files;
    QStringList links;
    qint64 folderCount = 0;
    qint64 fileCount = 0;
    qint64 linkCount = 0;
};

Unread unreadOf(const ScanProblems &problems)
{
    return Unread {problems.paths(ScanProblems::UnreadableFolder),
        problems.paths(ScanProblems::UnreadableFile),
        problems.paths(ScanProblems::LinkOutsideRoots),
        problems.count(ScanProblems::UnreadableFolder),
        problems.count(ScanProblems::UnreadableFile),
        problems.count(ScanProblems::LinkOutsideRoots)};
}

// Where a scan's content keys came from; negative when the groups come from no scan (a
// saved project).
struct KeySources
{
    // Taken from the key cache instead of reading files.
    qint64 cached = -1;
    // Read (or taken from the cache) while the walk went on.
    qint64 overlapped = -1;
};

void printJson(qint64 scannedFiles, double seconds, const QList<OutputGroup> &groups,
    const Unread &unread, const KeySources &keys, qint64 protectedLeftOut)
{
    std::FILE *out = stdout;
    std::fprintf(out, "{\"scannedFiles\": %lld, \"seconds\": %.3f,",
        static_cast<long long>(scannedFiles), seconds);
    std::fprintf(
        out, " \"protectedGroupsLeftOut\": %lld,", static_cast<long long>(protectedLeftOut));
    if (keys.cached >= 0)
        std::fprintf(out, " \"cachedKeys\": %lld, \"overlappedKeys\": %lld,",
            static_cast<long long>(keys.cached), static_cast<long long>(keys.overlapped));
    std::fprintf(out,
        " \"unreadableFolderCount\": %lld, \"unreadableFileCount\": %lld,"
        " \"linksNotFollowedCount\": %lld,",
        static_cast<long long>(unread.folderCount), static_cast<long long>(unread.fileCount),
        static_cast<long long>(unread.linkCount));
    std::fputs("\n \"unreadableFolders\": ", out);
    writeJsonList(out, unread.folders);
    std::fputs(",\n \"unreadableFiles\": ", out);
    writeJsonList(out, unread.files);
    std::fputs(",\n \"linksNotFollowed\": ", out);
    writeJsonList(out, unread.links);
    std::fputs(",\n \"groups\": [", out);
    for (qsizetype i = 0; i < groups.size(); ++i) {
        const OutputGroup &group = groups.at(i);
        std::fputs(i ? ",\n  {\"key\": " : "\n  {\"key\": ", out);
        writeJsonString(out, group.key);
        std::fputs(", \"kind\": ", out);
        writeJsonString(out, group.kind);
        const bool similar = group.kind == QLatin1String("similar");
        if (group.kind == QLatin1String("files"))
            std::fputs(group.verified ? ", \"verified\": true" : ", \"verified\": false", out);
        std::fputs(", \"files\": ", out);
        if (similar) {
            QStringList paths;
            QStringList percents;
            QStringList reasons;
            for (const QString &entry : group.files) {
                const GroupMember member = GroupMember::fromEntry(entry);
                paths.append(member.path);
                // A copy merged into a group of similar pictures is as its first: 0.
                percents.append(QString::number(member.isSimilar() ? member.similarity : 0));
                reasons.append(TFileData::instance()->matchReason(entry));
            }
            writeJsonList(out, paths);
            std::fprintf(
                out, ", \"similarity\": [%s]", qPrintable(percents.join(QStringLiteral(", "))));
            // Why each picture joined: the measure, its distance and how the copy differs
            // ("mirrored", "cropped"); empty for the first and where the measure does not say.
            std::fputs(", \"matched\": ", out);
            writeJsonList(out, reasons);
            QStringList chosen;
            for (const GroupMember &member : GroupMember::fromEntries(group.selected))
                chosen.append(member.path);
            std::fputs(", \"selected\": ", out);
            writeJsonList(out, chosen);
        } else {
            writeJsonList(out, group.files);
            std::fputs(", \"selected\": ", out);
            writeJsonList(out, group.selected);
        }
        std::fputc('}', out);
    }
    std::fputs(groups.isEmpty() ? "]}\n" : "\n]}\n", out);
}

void printText(const QList<OutputGroup> &groups)
{
    for (const OutputGroup &group : groups) {
        // Looked up per member: a list would cost a large group time in its size squared.
        const QSet<QString> selected(group.selected.cbegin(), group.selected.cend());
        for (const QString &path : group.files) {
            // The text shows a similar picture's real path and its percent beside it.
            const GroupMember member = GroupMember::fromEntry(path);
            const QByteArray bytes = lineText(member.path);
            std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
            if (member.isSimilar())
                std::fprintf(stdout, "\t[similar %d%%]", member.similarity);
            if (const QString reason = TFileData::instance()->matchReason(path); !reason.isEmpty())
                std::fprintf(stdout, "\t[%s]", qPrintable(reason));
            else if (!group.verified)
                std::fputs("\t[not verified]", stdout);
            if (selected.contains(path))
                std::fputs("\t[selected]", stdout);
            if (group.kind == QLatin1String("folders"))
                std::fputs("\t[folder]", stdout);
            std::fputc('\n', stdout);
        }
        std::fputc('\n', stdout);
    }
}

// The summary's lines about what was not read, with the first few paths of each kind.
void printUnread(const Unread &unread, const QString &summary)
{
    if (!summary.isEmpty())
        std::fprintf(stderr, "%s:\n", qPrintable(summary));
    static constexpr qsizetype kShown = 20;
    const auto list = [](const char *label, const QStringList &paths, qint64 count) {
        for (qsizetype i = 0; i < std::min(kShown, paths.size()); ++i)
            std::fprintf(stderr, "  %s: %s\n", label, lineText(paths.at(i)).constData());
        if (count > kShown)
            std::fprintf(stderr, "  ... and %lld more (--json lists up to %d)\n",
                static_cast<long long>(count - kShown), ScanProblems::kKeptPaths);
    };
    list("folder", unread.folders, unread.folderCount);
    list("file", unread.files, unread.fileCount);
    if (unread.linkCount > 0) {
        std::fprintf(stderr, "%lld %s outside the scanned folders not followed:\n",
            static_cast<long long>(unread.linkCount), unread.linkCount == 1 ? "link" : "links");
        list("link", unread.links, unread.linkCount);
    }
}

void printGroups(const CliOptions &options, qint64 scannedFiles, double seconds,
    const QList<OutputGroup> &groups, qint64 protectedLeftOut, const Unread &unread,
    const KeySources &keys = {})
{
    if (options.json())
        printJson(scannedFiles, seconds, groups, unread, keys, protectedLeftOut);
    else
        printText(groups);
    std::fflush(stdout);
    if (protectedLeftOut > 0 && (!options.json() || ::isatty(STDERR_FILENO) != 1))
        std::fprintf(stderr, "%lld %s left out: every member is in a protected folder\n",
            static_cast<long long>(protectedLeftOut), protectedLeftOut == 1 ? "group" : "groups");
}

// The report command: a saved project's groups and selection, read through the same
// project reader as the window's.
int runReport(const CliOptions &options)
{
    qint64 scanned = 0;
    QString scanTime;
    if (const int status = ProjectLoader::load(options.projectPath(), &scanned, &scanTime))
        return status;
    qint64 leftOut = 0;
    const QList<OutputGroup> groups = collectGroups(leftOut);
    if (options.csv()) {
        QStringList order;
        for (const OutputGroup &group : groups)
            order.append(group.key);
        QFile out;
        QString error;
        if (!out.open(stdout, QIODevice::WriteOnly) || !CsvExport::write(out, order, &error)) {
            std::fprintf(stderr, "veltrine-duplicate-finder-cli: cannot write the table: %s\n",
                qPrintable(error.isEmpty() ? out.errorString() : error));
            return 3;
        }
        return 0;
    }
    printGroups(options, scanned, 0.0, groups, leftOut, Unread());
    if (!options.json())
        std::fprintf(stderr, "%lld groups of a scan of %lld files (%s)\n",
            static_cast<long long>(groups.size()), static_cast<long long>(scanned),
            qPrintable(scanTime));
    return 0;
}

// scan --cloud: the folders of rclone remotes, listed and compared by the service's
// hashes, reported like a local scan.
int runCloudScan(const CliOptions &options)
{
    KvCloudObject *cloud = KvCloudObject::instance();
    if (!options.rcloneConfig().isEmpty())
        cloud->setRcloneSettings({QString(), options.rcloneConfig()});
    cloud->set_common_config(options.commonConfig());
    cloud->set_similar_config(options.similarConfig());
    QString failure;
    QElapsedTimer timer;
    timer.start();
    QEventLoop loop;
    QObject::connect(cloud, &KvCloudObject::onTraversalFailed,
        [&failure](const QString &reason) { failure = reason; });
    QObject::connect(cloud, &KvCloudObject::onFindedDuplicateItem,
        [](const QHash<QString, QList<QString>> &groups) {
            TFileData *store = TFileData::instance();
            for (auto it = groups.begin(); it != groups.end(); ++it)
                store->insertGroup(it.key(), it.value());
        });
    QObject::connect(cloud, &KvCloudObject::onAllComplate, &loop, &QEventLoop::quit);
    cloud->start_traversal_files(options.cloudFolders(), 20);
    loop.exec();
    const double seconds = timer.nsecsElapsed() / 1e9;
    if (!failure.isEmpty()) {
        std::fprintf(stderr, "veltrine-duplicate-finder-cli: %s\n", lineText(failure).constData());
        return 2;
    }
    QList<GroupItemAutoSelector::KeyedGroup> keyed;
    const TFileData::Groups all = TFileData::instance()->groups();
    for (auto it = all.begin(); it != all.end(); ++it)
        keyed.append({it.key(), it.value()});
    // "none" shares the hint of "all" but selects nothing.
    const QJsonObject duplication = options.duplicationConfig();
    const int rule = duplication.value(SnapshotKeys::duplicateSelectHint).toInt();
    if (options.selectAll() || rule != GroupItemAutoSelector::selectAllFiles) {
        QMap<QString, int> priorities;
        const QJsonObject map = duplication.value(SnapshotKeys::mapPriority).toObject();
        for (auto it = map.begin(); it != map.end(); ++it)
            priorities.insert(it.key(), it.value().toInt());
        GroupItemAutoSelector::autoSelectAllEx(
            keyed, rule,
            [cloud](const QString &entry, const QString &property) {
                return QVariant(cloud->getCFP(entry, property));
            },
            priorities);
    }
    qint64 leftOut = 0;
    const QList<OutputGroup> groups = collectGroups(leftOut);
    printGroups(options, cloud->scannedFileCount(), seconds, groups, leftOut, Unread());
    if (!options.json() || ::isatty(STDERR_FILENO) != 1)
        std::fprintf(stderr, "%d files listed, %lld groups, %.3f seconds\n",
            cloud->scannedFileCount(), static_cast<long long>(groups.size()), seconds);
    return 0;
}

// The folders to scan as absolute paths; exit status 2 when one is not a folder.
int scanRoots(const CliOptions &options, QStringList &roots)
{
    for (const QString &folder : options.folders()) {
        const QFileInfo info(folder);
        if (!info.isDir()) {
            std::fprintf(stderr, "veltrine-duplicate-finder-cli: %s: %s\n",
                lineText(folder).constData(),
                info.exists() ? "is a file, not a folder" : "no such folder");
            return 2;
        }
        roots.append(QDir::cleanPath(info.absoluteFilePath()));
    }
    return 0;
}

// Runs the scan to its end, showing its progress on a terminal; exit status 1 when the
// controller refused the options.
int runScan(TControlUI &controller, const CliOptions &options, const QStringList &roots)
{
    QTimer progressTimer;
    const bool terminal = ::isatty(STDERR_FILENO) == 1;
    double percent = 0.0;
    if (terminal) {
        QObject::connect(
            &controller, &TControlUI::processChange, [&percent](double value) { percent = value; });
        QObject::connect(&progressTimer, &QTimer::timeout, [&] {
            std::fprintf(stderr, "\r%d files scanned, %5.1f%%, elapsed %s   ",
                controller.scannedFileCount(), percent,
                qPrintable(TControlUI::formatSeconds(qint64(controller.elapsedSeconds()))));
            std::fflush(stderr);
        });
        progressTimer.start(250);
    }
    QEventLoop loop;
    QObject::connect(&controller, &TControlUI::onAllComplate, &loop, &QEventLoop::quit);
    const QString refused = controller.startScan(
        roots, options.commonConfig(), options.duplicationConfig(), options.similarConfig());
    if (!refused.isEmpty()) {
        std::fprintf(stderr, "veltrine-duplicate-finder-cli: %s\n", qPrintable(refused));
        return 1;
    }
    loop.exec();
    progressTimer.stop();
    if (terminal)
        std::fprintf(stderr, "\r%d files scanned, 100.0%%, elapsed %s   \n",
            controller.scannedFileCount(),
            qPrintable(TControlUI::formatSeconds(qint64(controller.elapsedSeconds()))));
    return 0;
}

// Saves the results as a project; exit status 3 when that failed.
int saveProject(const CliOptions &options, const TControlUI &controller, double seconds)
{
    int flag = -1;
    QEventLoop saveLoop;
    TOpenSaveThread writer;
    QObject::connect(&writer, &TOpenSaveThread::saveComplated, &saveLoop, [&](int result) {
        flag = result;
        saveLoop.quit();
    });
    if (writer.saveProject(options.savePath(), controller.scannedFileCount(),
            TControlUI::formatSeconds(qint64(seconds)))) {
        saveLoop.exec();
        writer.wait();
    }
    if (flag == TOpenSaveThread::ProjectSucceeded)
        return 0;
    std::fprintf(stderr, "veltrine-duplicate-finder-cli: the project was not saved: %s\n",
        qPrintable(TOpenSaveThread::resultText(flag)));
    return 3;
}

int runLocalScan(const CliOptions &options)
{
    QStringList roots;
    if (const int status = scanRoots(options, roots); status != 0)
        return status;
    // Before the scan: the finder's selection already leaves protected members alone.
    TFileData::instance()->setProtectedFolders(ProtectedFolders(options.protectedFolders()));
    TControlUI controller;
    if (!options.useCache())
        controller.finder()->setCacheOptions(ContentKeyCache::Options {});
    controller.setOverlappedReading(options.overlapsReading());
    // The members' stamps serve removals and saved projects only.
    controller.finder()->setKeepsStamps(!options.savePath().isEmpty());
    if (const int status = runScan(controller, options, roots); status != 0)
        return status;
    const double seconds = controller.elapsedSeconds();
    if (ContentKeyCache::busyGiveUps() > 0)
        std::fprintf(stderr,
            "veltrine-duplicate-finder-cli: the key cache was busy; the scan went on without it\n");

    if (options.selectAll()) {
        QList<GroupItemAutoSelector::KeyedGroup> groups;
        const TFileData::Groups all = TFileData::instance()->groups();
        for (auto it = all.begin(); it != all.end(); ++it)
            groups.append({it.key(), it.value()});
        GroupItemAutoSelector::autoSelectAllEx(groups, GroupItemAutoSelector::selectAllFiles);
    }

    qint64 leftOut = 0;
    const QList<OutputGroup> groups = collectGroups(leftOut);
    const Unread unread = unreadOf(controller.problems());
    printGroups(options, controller.scannedFileCount(), seconds, groups, leftOut, unread,
        KeySources {controller.finder()->keysFromCache(), controller.finder()->overlappedKeys()});

    int status = options.savePath().isEmpty() ? 0 : saveProject(options, controller, seconds);
    if (::isatty(STDERR_FILENO) != 1 || !options.json()) {
        printUnread(unread, controller.problems().unreadableSummary());
        if (controller.problems().allRootsUnreadable())
            std::fprintf(stderr, "None of the folders could be read: nothing was compared.\n");
        std::fprintf(stderr, "%d files scanned, %lld groups, %.3f seconds\n",
            controller.scannedFileCount(), static_cast<long long>(groups.size()), seconds);
    }
    // Nothing compared is no all-clear.
    if (status == 0 && controller.problems().allRootsUnreadable())
        status = 2;
    return status;
}

// The process-wide set-up that comes before the arguments are read.
void setUpProcess()
{
#ifdef __GLIBC__
    // A fixed threshold: the large arrays of a scan (the file table, the keys, the cache's
    // look-up order) are then mapped on their own and given back when freed. glibc would
    // otherwise raise the threshold after the first such block and keep the later ones
    // in its heap, where their room stays with the process until it ends.
    mallopt(M_MMAP_THRESHOLD, 256 * 1024);
#endif
    // A report of a large tree runs to tens of megabytes: written in large blocks, not
    // in the few kilobytes a pipe or file gets by default.
    static char outputBuffer[1 << 20];
    if (::isatty(STDOUT_FILENO) != 1)
        std::setvbuf(stdout, outputBuffer, _IOFBF, sizeof outputBuffer);
    // Standard error is the command line's own report; the library's debug lines would
    // only mix into it.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
}

// The plain build has no picture stage (it starts without loading the picture
// libraries): a run that compares pictures continues in the companion beside it, with
// the same arguments. Returns only when that could not be started (exit status 4).
int handOnToPictures(char *argv[])
{
    const QByteArray full = QFile::encodeName(
        QCoreApplication::applicationDirPath() + QStringLiteral("/" VELTRINE_CLI_PICTURE_BUILD));
    ::execv(full.constData(), argv);
    std::fprintf(stderr,
        "veltrine-duplicate-finder-cli: cannot start %s for the picture comparison: %s\n",
        full.constData(), std::strerror(errno));
    return 4;
}

} // namespace

int CliProgram::run(int argc, char *argv[])
{
    setUpProcess();
    QCoreApplication app(argc, argv);
    CloudRemover::install();
    QCoreApplication::setOrganizationName(QStringLiteral("Veltrine"));
    QCoreApplication::setApplicationName(QStringLiteral("Veltrine Duplicate Finder"));

    CliOptions options;
    switch (options.parse(app.arguments().mid(1))) {
    case CliOptions::Help:
        std::fputs(qPrintable(CliOptions::usage()), stdout);
        return 0;
    case CliOptions::BadArguments:
        std::fprintf(stderr, "veltrine-duplicate-finder-cli: %s\n\n%s", qPrintable(options.error()),
            qPrintable(CliOptions::usage()));
        return 1;
    case CliOptions::Ok:
        break;
    }
    if (!PictureStage::available()
        && options.similarConfig().value(SnapshotKeys::hasSimilar).toBool())
        return handOnToPictures(argv);
    if (!options.logDirectory().isEmpty() && !initLogger(options.logDirectory()))
        std::fprintf(stderr, "veltrine-duplicate-finder-cli: cannot write the log into %s\n",
            qPrintable(options.logDirectory()));
    int status = 0;
    if (options.command() == CliOptions::Report)
        status = runReport(options);
    else if (options.command() == CliOptions::Remove)
        status = RemovalCommands::remove(options);
    else if (options.command() == CliOptions::Restore)
        status = RemovalCommands::restore(options);
    else if (!options.cloudFolders().isEmpty())
        status = runCloudScan(options);
    else
        status = runLocalScan(options);
    splog_flush_repeated();
    shutdownLogger();
    return status;
}
