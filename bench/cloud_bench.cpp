// SPDX-License-Identifier: GPL-3.0-or-later
// Listing and grouping a folder of an rclone remote of the local backend, against
// `rclone lsjson -R --hash` over the same folder in the same run.
//
// usage: cloud_bench TREE [RUNS]
// Prints per run the wall time of both, and the memory the scan added to this process
// (peak resident set during the scan less the resident set before it) per listed file.
#include "cloud/CloudService.h"
#include "cloud/KvCloudObject.h"

#include <algorithm>
#include <cstdio>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

qint64 statusKiB(const char *field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith(field))
            return line.mid(qstrlen(field)).trimmed().split(' ').first().toLongLong();
    return -1;
}

// Lets the peak resident set start again from the current one.
void resetPeak()
{
    QFile clear(QStringLiteral("/proc/self/clear_refs"));
    if (clear.open(QIODevice::WriteOnly))
        clear.write("5");
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0 : values.at(values.size() / 2);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: cloud_bench TREE [RUNS]\n");
        return 1;
    }
    const QString tree = QString::fromLocal8Bit(argv[1]);
    const int runs = argc > 2 ? std::max(1, atoi(argv[2])) : 3;
    QTemporaryDir data;
    KvCloudObject cloud;
    cloud.initialization(data.path());

    QElapsedTimer timer;
    timer.start();
    QEventLoop signIn;
    QObject::connect(&cloud, &KvCloudObject::onAuthorizedSuccess, &signIn, &QEventLoop::quit);
    QObject::connect(&cloud, &KvCloudObject::onAuthorizedFailed, [&](const QString &reason) {
        std::fprintf(stderr, "%s\n", qPrintable(reason));
        signIn.quit();
    });
    cloud.start_authorization(QStringLiteral("bench"), CloudService::kLocalFolder);
    signIn.exec();
    std::printf("daemon started and remote made in %.3f s\n", timer.nsecsElapsed() / 1e9);
    const QString folder = QStringLiteral("bench:") + tree;

    const auto lsjson = [&]() {
        QProcess process;
        process.setStandardOutputFile(QProcess::nullDevice());
        QElapsedTimer clock;
        clock.start();
        process.start(QStringLiteral("rclone"),
            {"lsjson", "-R", "--hash", "--hash-type", "md5", "--files-only", "--config",
                cloud.rcloneSettings().configFile, folder});
        process.waitForFinished(-1);
        return clock.nsecsElapsed() / 1e9;
    };
    int groups = 0;
    const auto scan = [&](double &perFile) {
        QEventLoop loop;
        const auto found = QObject::connect(&cloud, &KvCloudObject::onFindedDuplicateItem,
            [&](const QHash<QString, QList<QString>> &all) { groups = int(all.size()); });
        const auto done
            = QObject::connect(&cloud, &KvCloudObject::onAllComplate, &loop, &QEventLoop::quit);
        const auto progress
            = QObject::connect(&cloud, &KvCloudObject::onFilesFetchCount, [&](int count) {
                  if (qEnvironmentVariableIsSet("CLOUD_BENCH_TRACE") && count % 20000 == 0)
                      std::printf("  %d files: resident %lld KiB, peak %lld KiB\n", count,
                          statusKiB("VmRSS:"), statusKiB("VmHWM:"));
              });
        resetPeak();
        const qint64 before = statusKiB("VmRSS:");
        QElapsedTimer clock;
        clock.start();
        cloud.start_traversal_files({folder}, 20);
        loop.exec();
        const double seconds = clock.nsecsElapsed() / 1e9;
        perFile = (statusKiB("VmHWM:") - before) * 1024.0 / std::max(1, cloud.scannedFileCount());
        QObject::disconnect(found);
        QObject::disconnect(progress);
        QObject::disconnect(done);
        return seconds;
    };

    lsjson(); // both start from a warm page cache
    QList<double> ours, theirs, memory;
    for (int run = 0; run < runs; ++run) {
        double perFile = 0;
        ours.append(scan(perFile));
        memory.append(perFile);
        theirs.append(lsjson());
        std::printf("run %d: scan %.3f s, lsjson %.3f s, ratio %.3f, %.0f B per listed file\n",
            run + 1, ours.last(), theirs.last(), ours.last() / theirs.last(), perFile);
    }
    std::printf("files listed %d, groups %d\n", cloud.scannedFileCount(), groups);
    std::printf("median: scan %.3f s, lsjson %.3f s, ratio %.3f; memory max %.0f B per file\n",
        median(ours), median(theirs), median(ours) / median(theirs),
        *std::max_element(memory.begin(), memory.end()));
    return 0;
}
