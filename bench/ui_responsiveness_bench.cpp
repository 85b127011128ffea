// SPDX-License-Identifier: GPL-3.0-or-later
// Responsiveness of the user-interface thread, measured on the real widgets:
//
//   ui_responsiveness_bench scan  <tree>       scans the tree through the main window's
//                                              buttons and reports the longest gap between
//                                              ticks of a 5 ms timer (the event loop's
//                                              worst stall) and the number of progress
//                                              signals the window received;
//   ui_responsiveness_bench model <tree> [n]   stores n groups (default 100000) whose first
//                                              members are real files of the tree and times
//                                              the group model's loadAllGroups, sort and
//                                              filters.
//
// Run on the offscreen platform: QT_QPA_PLATFORM=offscreen.
#include "app/DataDirectory.h"
#include "app/TLogger.h"
#include "engine/TFileData.h"
#include "mainwindow/MainWindow.h"
#include "mainwindow/TControlUI.h"
#include "results/TImageModel.h"

#include <QApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <cstdio>

namespace {

int scanBench(const QString &tree)
{
    MainWindow window({QStringLiteral("bench")});
    window.setShowResultsWhenDone(false);
    window.show();
    window.addFolder(tree);

    QElapsedTimer clock;
    qint64 last = 0;
    qint64 worst = 0;
    qint64 ticks = 0;
    QList<qint64> gaps;
    QTimer probe;
    probe.setInterval(5);
    QObject::connect(&probe, &QTimer::timeout, [&] {
        const qint64 now = clock.nsecsElapsed();
        const qint64 gap = now - last;
        worst = std::max(worst, gap);
        gaps << gap;
        last = now;
        ++ticks;
    });
    int countSignals = 0;
    int progressSignals = 0;
    QObject::connect(TControlUI::instance(), &TControlUI::filesScaningChange,
                     [&](int) { ++countSignals; });
    QObject::connect(TControlUI::instance(), &TControlUI::processChange,
                     [&](double) { ++progressSignals; });
    QEventLoop loop;
    QObject::connect(TControlUI::instance(), &TControlUI::onAllComplate, &loop, &QEventLoop::quit);

    clock.start();
    probe.start();
    window.findChild<QPushButton *>(QStringLiteral("btn_scan"))->click();
    loop.exec();
    const double seconds = clock.nsecsElapsed() / 1e9;
    probe.stop();
    std::sort(gaps.begin(), gaps.end());
    const qint64 p99 = gaps.isEmpty() ? 0 : gaps.at(int(gaps.size() * 0.99));
    std::printf("scan: %.3f s, files %s, groups %d\n", seconds,
                qPrintable(window.findChild<QLabel *>(QStringLiteral("lab_fileNumber"))->text()),
                TFileData::instance()->groupCount());
    std::printf("event loop: %lld ticks of 5 ms, worst gap %.1f ms, 99th percentile %.1f ms\n",
                ticks, worst / 1e6, p99 / 1e6);
    std::printf("signals to the window: %d file counts, %d progress values\n", countSignals,
                progressSignals);
    TFileData::instance()->clear();
    return worst / 1e6 <= 100.0 ? 0 : 1;
}

int modelBench(const QString &tree, int groups)
{
    QStringList files;
    QDirIterator it(tree, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (it.hasNext() && files.size() < 200000)
        files << it.next();
    if (files.size() < 2) {
        std::fprintf(stderr, "no files under %s\n", qPrintable(tree));
        return 2;
    }
    TFileData *store = TFileData::instance();
    for (int i = 0; i < groups; ++i) {
        const QString first = files.at((2 * i) % files.size());
        const QString second = files.at((2 * i + 1) % files.size());
        const QString key = QStringLiteral("%1").arg(i, 32, 16, QLatin1Char('0'));
        store->insertGroup(key, {first, second});
        if (i % 3 == 0)
            store->setSelected(key, {second});
    }
    TImageModel model(TImageModel::ListView, 50);
    QElapsedTimer clock;
    clock.start();
    model.loadAllGroups(BySize);
    const double load = clock.nsecsElapsed() / 1e9;
    clock.restart();
    model.sort(ByName, false);
    const double sort = clock.nsecsElapsed() / 1e9;
    clock.restart();
    model.filterByName(QStringLiteral("a"));
    const double filter = clock.nsecsElapsed() / 1e9;
    const int shown = model.rowCount();
    clock.restart();
    model.filterByType(7);
    const double typeFilter = clock.nsecsElapsed() / 1e9;
    std::printf("model: %d groups loaded in %.3f s; sort by name %.3f s; name filter %.3f s "
                "(%d rows); type filter %.3f s (%d rows)\n",
                int(model.allGroups().size()), load, sort, filter, shown, typeFilter,
                model.rowCount());
    store->clear();
    return load < 2.0 ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s scan|model <tree> [groups]\n", argv[0]);
        return 2;
    }
    initLogger(DataDirectory::base());
    const QString mode = QString::fromLocal8Bit(argv[1]);
    const QString tree = QString::fromLocal8Bit(argv[2]);
    if (mode == QLatin1String("scan"))
        return scanBench(tree);
    return modelBench(tree, argc > 3 ? QString::fromLocal8Bit(argv[3]).toInt() : 100000);
}
