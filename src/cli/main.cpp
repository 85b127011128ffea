// SPDX-License-Identifier: GPL-3.0-or-later
// Headless front end of the scan engine: the same controller, scanner and finder as the
// window, configured from the command line, printing the groups as text or JSON.
#include "app/FileTypeCatalogue.h"
#include "app/TLogger.h"
#include "cli/CliOptions.h"
#include "engine/FilePathCodec.h"
#include "engine/TFileData.h"
#include "fileops/TOpenSaveThread.h"
#include "mainwindow/TControlUI.h"
#include "engine/GroupItemAutoSelector.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

namespace {

struct OutputGroup
{
    QString key;
    QString kind;
    QStringList files;
    QStringList selected;
};

// JSON string with the bytes of names that are not valid UTF-8 kept as the escapes
// \udc80-\udcff, so a reader that decodes them the same way gets the exact file name.
void writeJsonString(std::FILE *out, const QString &text)
{
    QByteArray buffer;
    buffer.reserve(text.size() + 8);
    buffer.append('"');
    // Characters that need no escape are converted a run at a time: one conversion per
    // path instead of one per character.
    qsizetype run = 0;
    const auto flush = [&](qsizetype end) {
        if (end > run)
            buffer.append(QStringView(text).mid(run, end - run).toUtf8());
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text.at(i).unicode();
        if (c == '"' || c == '\\') {
            flush(i);
            buffer.append('\\').append(char(c));
            run = i + 1;
        } else if (c < 0x20) {
            flush(i);
            buffer.append(QStringLiteral("\\u%1").arg(int(c), 4, 16, QLatin1Char('0')).toLatin1());
            run = i + 1;
        } else if (QChar::isSurrogate(c)) {
            const bool paired = QChar::isHighSurrogate(c) && i + 1 < text.size()
                && QChar::isLowSurrogate(text.at(i + 1).unicode());
            if (paired) {
                ++i;
            } else {
                flush(i);
                buffer.append(
                    QStringLiteral("\\u%1").arg(int(c), 4, 16, QLatin1Char('0')).toLatin1());
                run = i + 1;
            }
        }
    }
    flush(text.size());
    buffer.append('"');
    std::fwrite(buffer.constData(), 1, size_t(buffer.size()), out);
}

void writeJsonList(std::FILE *out, const QStringList &items)
{
    std::fputc('[', out);
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (i)
            std::fputs(", ", out);
        writeJsonString(out, items.at(i));
    }
    std::fputc(']', out);
}

QList<OutputGroup> collectGroups()
{
    TFileData *store = TFileData::instance();
    QList<OutputGroup> groups;
    const TFileData::Groups files = store->groups();
    const TFileData::Groups selected = store->selected();
    for (auto it = files.begin(); it != files.end(); ++it) {
        const bool similar = std::any_of(it.value().begin(), it.value().end(),
            [](const QString &entry) { return isSimilarEntry(entry); });
        groups.append(
            OutputGroup {it.key(), similar ? QStringLiteral("similar") : QStringLiteral("files"),
                it.value(), selected.value(it.key())});
    }
    const TFileData::DirGroups folders = store->dirGroups();
    for (auto it = folders.begin(); it != folders.end(); ++it) {
        OutputGroup group {it.key(), QStringLiteral("folders"), {}, {}};
        for (const DirGroupEntry &entry : it.value())
            group.files.append(entry.folderPath);
        group.selected = selected.value(it.key());
        groups.append(group);
    }
    // A stable order: by kind, then by first member.
    std::sort(groups.begin(), groups.end(), [](const OutputGroup &a, const OutputGroup &b) {
        if (a.kind != b.kind)
            return a.kind < b.kind;
        return a.files.value(0) < b.files.value(0);
    });
    return groups;
}

void printJson(int scannedFiles, double seconds, const QList<OutputGroup> &groups)
{
    std::FILE *out = stdout;
    std::fprintf(
        out, "{\"scannedFiles\": %d, \"seconds\": %.3f, \"groups\": [", scannedFiles, seconds);
    for (qsizetype i = 0; i < groups.size(); ++i) {
        const OutputGroup &group = groups.at(i);
        std::fputs(i ? ",\n  {\"key\": " : "\n  {\"key\": ", out);
        writeJsonString(out, group.key);
        std::fputs(", \"kind\": ", out);
        writeJsonString(out, group.kind);
        std::fputs(", \"files\": ", out);
        writeJsonList(out, group.files);
        std::fputs(", \"selected\": ", out);
        writeJsonList(out, group.selected);
        std::fputc('}', out);
    }
    std::fputs(groups.isEmpty() ? "]}\n" : "\n]}\n", out);
}

void printText(const QList<OutputGroup> &groups)
{
    for (const OutputGroup &group : groups) {
        for (const QString &path : group.files) {
            // Similar entries carry their percent as a tag; the text shows the real path
            // and the percent beside it.
            const QString file = isSimilarEntry(path) ? stripSimilarTag(path) : path;
            const QByteArray bytes = FilePathCodec::encode(file);
            std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
            if (file.size() != path.size())
                std::fprintf(stdout, "\t[similar %s%%]",
                    qPrintable(path.mid(file.size() + kSimilarTag.size() + 1)));
            if (group.selected.contains(path))
                std::fputs("\t[selected]", stdout);
            if (group.kind == QLatin1String("folders"))
                std::fputs("\t[folder]", stdout);
            std::fputc('\n', stdout);
        }
        std::fputc('\n', stdout);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
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
#ifdef VELTRINE_CLI_PICTURE_BUILD
    // This build has no picture stage (it starts without loading the picture libraries):
    // a run that compares pictures continues in the full build beside it, with the same
    // arguments.
    if (options.similarConfig().value(QStringLiteral("hasSimilar")).toBool()) {
        const QByteArray full = QFile::encodeName(QCoreApplication::applicationDirPath()
            + QStringLiteral("/" VELTRINE_CLI_PICTURE_BUILD));
        ::execv(full.constData(), argv);
        std::fprintf(stderr,
            "veltrine-duplicate-finder-cli: cannot start %s for the picture comparison: %s\n",
            full.constData(), std::strerror(errno));
        return 4;
    }
#endif
    QStringList roots;
    for (const QString &folder : options.folders()) {
        const QFileInfo info(folder);
        if (!info.isDir()) {
            std::fprintf(stderr, "veltrine-duplicate-finder-cli: folder does not exist: %s\n",
                qPrintable(folder));
            return 2;
        }
        roots.append(QDir::cleanPath(info.absoluteFilePath()));
    }
    if (!options.logDirectory().isEmpty() && !initLogger(options.logDirectory()))
        std::fprintf(stderr, "veltrine-duplicate-finder-cli: cannot write the log into %s\n",
            qPrintable(options.logDirectory()));

    TControlUI controller;
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
    controller.startScan(
        roots, options.commonConfig(), options.duplicationConfig(), options.similarConfig());
    loop.exec();
    progressTimer.stop();
    const double seconds = controller.elapsedSeconds();
    if (terminal)
        std::fprintf(stderr, "\r%d files scanned, 100.0%%, elapsed %s   \n",
            controller.scannedFileCount(), qPrintable(TControlUI::formatSeconds(qint64(seconds))));

    if (options.selectAll()) {
        QList<GroupItemAutoSelector::KeyedGroup> groups;
        const TFileData::Groups all = TFileData::instance()->groups();
        for (auto it = all.begin(); it != all.end(); ++it)
            groups.append({it.key(), it.value()});
        GroupItemAutoSelector::autoSelectAllEx(groups, GroupItemAutoSelector::selectAllFiles);
    }

    const QList<OutputGroup> groups = collectGroups();
    if (options.json())
        printJson(controller.scannedFileCount(), seconds, groups);
    else
        printText(groups);
    std::fflush(stdout);

    int status = 0;
    if (!options.savePath().isEmpty()) {
        int flag = -1;
        QEventLoop saveLoop;
        QObject::connect(&controller, &TControlUI::saveComplated, &saveLoop, [&](int result) {
            flag = result;
            saveLoop.quit();
        });
        if (controller.openSaveThread()->saveProject(options.savePath(),
                controller.scannedFileCount(), TControlUI::formatSeconds(qint64(seconds))))
            saveLoop.exec();
        if (flag != TOpenSaveThread::ProjectSucceeded) {
            std::fprintf(stderr, "veltrine-duplicate-finder-cli: the project was not saved: %s\n",
                qPrintable(TOpenSaveThread::resultText(flag)));
            status = 3;
        }
    }
    if (!terminal || !options.json())
        std::fprintf(stderr, "%d files scanned, %lld groups, %.3f seconds\n",
            controller.scannedFileCount(), static_cast<long long>(groups.size()), seconds);
    shutdownLogger();
    return status;
}
