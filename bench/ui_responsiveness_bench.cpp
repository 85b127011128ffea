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
//                                              filters;
//   ui_responsiveness_bench page <tree> [n]    the same n groups opened in the result page:
//                                              time until the first groups show and until
//                                              all are in, the worst event-loop stall while
//                                              loading, and the selection totals after
//                                              "Select by Filename" over every group;
//   ui_responsiveness_bench thumbnails <dir>   one group of the pictures in dir opened in the
//                                              page's thumbnail grid: time until every cell
//                                              of the first screen has its thumbnail;
//   ui_responsiveness_bench pictures <dir>     scans dir with similar pictures on through the
//                                              window twice, once to the end and once stopped
//                                              in the middle of the picture stage: the longest
//                                              gap between two paints of the scan page while
//                                              the scan runs, and how long Stop took.
//
// Run on the offscreen platform (QT_QPA_PLATFORM=offscreen); "pictures" is meant for a real
// display server: xvfb-run -a -s "-screen 0 1920x1080x24" ... with QT_QPA_PLATFORM=xcb.
#include "app/DataDirectory.h"
#include "app/FileTypeCatalogue.h"
#include "app/TLogger.h"
#include "engine/ContentKeyCache.h"
#include "engine/GroupItemAutoSelector.h"
#include "engine/TFileData.h"
#include "mainwindow/MainWindow.h"
#include "pictures/ImageCompareStage.h"
#include "preferences/DFGenernalPreferences.h"
#include "preferences/DFPreferences.h"
#include "results/ResultForm.h"
#include "results/TImageListView.h"
#include "results/TImageModel.h"
#include "scancontrol/TControlUI.h"

#include <algorithm>
#include <cstdio>
#include <functional>

#include <QApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QThreadPool>
#include <QTimer>

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
    QObject::connect(
        TControlUI::instance(), &TControlUI::filesScaningChange, [&](int) { ++countSignals; });
    QObject::connect(
        TControlUI::instance(), &TControlUI::processChange, [&](double) { ++progressSignals; });
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

// Gaps between ticks of a 5 ms timer: the longest time the event loop was busy.
class StallProbe
{
public:
    StallProbe()
    {
        m_timer.setInterval(5);
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            const qint64 now = m_clock.nsecsElapsed();
            if (now - m_last > m_worst) {
                m_worst = now - m_last;
                m_worstEnd = now;
            }
            m_last = now;
        });
        m_clock.start();
        m_timer.start();
    }
    double worstMs() const { return m_worst / 1e6; }
    // When the worst stall ended, in seconds since the probe started.
    double worstEndS() const { return m_worstEnd / 1e9; }

private:
    QElapsedTimer m_clock;
    QTimer m_timer;
    qint64 m_last = 0;
    qint64 m_worst = 0;
    qint64 m_worstEnd = 0;
};

bool waitFor(const std::function<bool()> &done, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    while (!done()) {
        if (clock.elapsed() > timeoutMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    return true;
}

void storeGroups(const QString &tree, int groups);

// Times between paints of one widget and its children: how long the user saw a frozen
// picture of it.
class PaintProbe : public QObject
{
public:
    explicit PaintProbe(QWidget *watched) : m_watched(watched)
    {
        qApp->installEventFilter(this);
        m_clock.start();
    }
    ~PaintProbe() override { qApp->removeEventFilter(this); }
    void arm()
    {
        m_armed = true;
        m_last = m_clock.nsecsElapsed();
        m_worst = 0;
    }
    void disarm() { m_armed = false; }
    double worstMs() const { return m_worst / 1e6; }
    double worstEndS() const { return m_worstEnd / 1e9; }
    qint64 paints() const { return m_paints; }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (m_armed && event->type() == QEvent::Paint && object->isWidgetType()
            && (object == m_watched || m_watched->isAncestorOf(static_cast<QWidget *>(object)))) {
            const qint64 now = m_clock.nsecsElapsed();
            if (now - m_last > m_worst) {
                m_worst = now - m_last;
                m_worstEnd = now;
            }
            m_last = now;
            ++m_paints;
        }
        return false;
    }

private:
    QWidget *m_watched;
    QElapsedTimer m_clock;
    bool m_armed = false;
    qint64 m_last = 0;
    qint64 m_worst = 0;
    qint64 m_worstEnd = 0;
    qint64 m_paints = 0;
};

struct PictureRun
{
    double seconds = 0;
    double worstStallMs = 0;
    double stopMs = -1;
    qint64 paints = 0;
    int groups = 0;
};

// One scan of dir through a fresh window; stopAfterMs >= 0 presses Stop that long after
// the picture stage began. The pictures' stored measures are removed first, so that
// every run decodes them.
PictureRun pictureRun(const QString &dir, int stopAfterMs)
{
    QFile::remove(ContentKeyCache::defaultPath());
    TFileData::instance()->clear();
    PictureRun run;
    MainWindow window({QStringLiteral("bench")});
    window.setShowResultsWhenDone(false);
    window.resize(1366, 768);
    window.show();
    window.addFolder(dir);
    auto *page = window.findChild<QWidget *>(QStringLiteral("page_scan"));
    auto *stopButton = window.findChild<QPushButton *>(QStringLiteral("btnAdd"));
    PaintProbe probe(page);
    QEventLoop loop;
    bool ended = false;
    QElapsedTimer clock;
    QElapsedTimer stopClock;
    QMetaObject::Connection end
        = QObject::connect(TControlUI::instance(), &TControlUI::onAllComplate, &loop, [&] {
              ended = true;
              probe.disarm();
              if (stopClock.isValid())
                  run.stopMs = stopClock.nsecsElapsed() / 1e6;
              loop.quit();
          });
    QTimer stopper;
    QElapsedTimer stageClock;
    if (stopAfterMs >= 0) {
        stopper.setInterval(10);
        QObject::connect(&stopper, &QTimer::timeout, [&] {
            if (TControlUI::instance()->stage() != TControlUI::StageSimilar)
                return;
            if (!stageClock.isValid())
                stageClock.start();
            if (stageClock.elapsed() < stopAfterMs || stopClock.isValid())
                return;
            stopper.stop();
            stopClock.start();
            stopButton->click();
        });
        stopper.start();
    }
    clock.start();
    probe.arm();
    window.findChild<QPushButton *>(QStringLiteral("btn_scan"))->click();
    if (!ended)
        loop.exec();
    QObject::disconnect(end);
    run.seconds = clock.nsecsElapsed() / 1e9;
    run.worstStallMs = probe.worstMs();
    run.paints = probe.paints();
    run.groups = TFileData::instance()->groupCount();
    TFileData::instance()->clear();
    return run;
}

int pictureBench(const QString &dir)
{
    DFGenernalPreferences *similar = DFPreferences::instance()->generalPreferences();
    similar->setHasSimilar(true);
    const PictureRun full = pictureRun(dir, -1);
    std::printf("full scan: %.3f s, %d groups, %lld paints of the scan page\n", full.seconds,
        full.groups, full.paints);
    // Stopped in the middle of the picture stage, as far as the first run tells where
    // that lies.
    const int stageMs = std::max(200, int(full.seconds * 1000 / 3));
    const PictureRun stopped = pictureRun(dir, stageMs);
    std::printf("stopped scan: %.3f s (Stop pressed %d ms into the picture stage), %d groups\n",
        stopped.seconds, stageMs, stopped.groups);
    std::printf("worst stall: %.0f ms\n", std::max(full.worstStallMs, stopped.worstStallMs));
    std::printf("stop: %.0f ms\n", stopped.stopMs);
    return std::max(full.worstStallMs, stopped.worstStallMs) <= 100.0 && stopped.stopMs >= 0
            && stopped.stopMs <= 1000.0
        ? 0
        : 1;
}

int pageBench(const QString &tree, int groups)
{
    storeGroups(tree, groups);
    QElapsedTimer clock;
    double firstShown = 0;
    double loaded = 0;
    double worst = 0;
    double worstEnd = 0;
    {
        StallProbe probe;
        clock.start();
        ResultForm page;
        page.resize(1366, 768);
        page.show();
        auto *stack = page.findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
        waitFor(
            [&] { return stack->currentWidget()->objectName() == QLatin1String("page_result"); },
            60000);
        firstShown = clock.nsecsElapsed() / 1e9;
        waitFor([&] { return page.isDataLoaded(); }, 60000);
        loaded = clock.nsecsElapsed() / 1e9;
        worst = probe.worstMs();
        worstEnd = probe.worstEndS();

        // Totals of the selection after a rule that selects all copies but one in every
        // group.
        page.applySelectionRule(GroupItemAutoSelector::autoSelect);
        waitFor([&] { return page.totals().count >= groups; }, 1000);
        // Let the page's own passes end, so the timing below has the pool to itself.
        waitFor([] { return QThreadPool::globalInstance()->activeThreadCount() == 0; }, 5000);
        // The first answer uses the sizes the scan saw; the second asks the disk.
        clock.restart();
        const SelectionTotals sums = SelectionTotals::start(
            TFileData::instance()->selected(), TFileData::instance()->stamps())
                                         .result();
        const double totalsMs = clock.nsecsElapsed() / 1e6;
        clock.restart();
        const SelectionTotals checked
            = SelectionTotals::start(TFileData::instance()->selected()).result();
        const double checkedMs = clock.nsecsElapsed() / 1e6;
        std::printf("page: %d groups; first groups shown after %.3f s, all in after %.3f s; "
                    "worst event-loop stall %.1f ms (ended at %.3f s); selection totals of %d "
                    "items (%.1f MB) "
                    "in %.1f ms (confirmed on disk after %.1f ms%s)\n",
            groups, firstShown, loaded, worst, worstEnd, sums.count, sums.bytes / 1048576.0,
            totalsMs, checkedMs, checked.bytes == sums.bytes ? "" : ", different");
        TFileData::instance()->clear();
        return firstShown < 2.0 && worst <= 100.0 && totalsMs <= 100.0 ? 0 : 1;
    }
}

int thumbnailBench(const QString &folder)
{
    QStringList pictures;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext() && pictures.size() < 1000) {
        const QString path = it.next();
        if (isImageFile(path))
            pictures << path;
    }
    if (pictures.size() < 2) {
        std::fprintf(stderr, "no pictures under %s\n", qPrintable(folder));
        return 2;
    }
    TFileData::instance()->insertGroup(TFileData::groupKey(pictures.first()), pictures);
    ResultForm page;
    page.resize(1366, 768);
    page.show();
    waitFor([&] { return page.isDataLoaded(); }, 60000);
    auto *grid = page.findChild<TImageListView *>(QStringLiteral("listView_images"));
    // Time from the group's members reaching the grid to a full first screen.
    QElapsedTimer clock;
    clock.start();
    page.groupModel()->sort(ByName, false);
    page.onTableViewSelectChanged();
    waitFor([&] { return page.itemModel()->rowCount() == pictures.size(); }, 10000);
    const double membersMs = clock.nsecsElapsed() / 1e6;
    int visible = 0;
    const bool complete = waitFor(
        [&] {
            visible = 0;
            for (int row = 0; row < page.itemModel()->rowCount(); ++row) {
                const QRect cell = grid->visualRect(page.itemModel()->index(row, 0));
                if (!cell.isValid() || !grid->viewport()->rect().intersects(cell))
                    continue;
                ++visible;
                if (!page.itemModel()->hasThumbnail(pictures.value(row)))
                    return false;
            }
            return visible > 0;
        },
        10000);
    const double screenMs = clock.nsecsElapsed() / 1e6;
    std::printf("thumbnails: group of %lld pictures; members in the grid after %.1f ms, "
                "first screen (%d cells) complete after %.1f ms%s\n",
        static_cast<long long>(pictures.size()), membersMs, visible, screenMs,
        complete ? "" : " (not complete)");
    TFileData::instance()->clear();
    return complete && screenMs <= 200.0 ? 0 : 1;
}

void storeGroups(const QString &tree, int groups)
{
    QStringList files;
    QDirIterator it(tree, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (it.hasNext() && files.size() < 200000)
        files << it.next();
    TFileData *store = TFileData::instance();
    for (int i = 0; i < groups && files.size() >= 2; ++i) {
        const QString first = files.at((2 * i) % files.size());
        const QString second = files.at((2 * i + 1) % files.size());
        const QString key = QStringLiteral("%1").arg(i, 32, 16, QLatin1Char('0'));
        store->insertGroup(key, {first, second});
        if (i % 3 == 0)
            store->setSelected(key, {second});
    }
    // As a scan leaves them: every member stamped.
    for (const QString &path : std::as_const(files))
        store->insertStamp(path, FileStamp::of(path));
}

int modelBench(const QString &tree, int groups)
{
    storeGroups(tree, groups);
    TFileData *store = TFileData::instance();
    if (store->isEmpty()) {
        std::fprintf(stderr, "no files under %s\n", qPrintable(tree));
        return 2;
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
        int(model.allGroups().size()), load, sort, filter, shown, typeFilter, model.rowCount());
    store->clear();
    return load < 2.0 ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(
            stderr, "usage: %s scan|model|page|thumbnails|pictures <tree> [groups]\n", argv[0]);
        return 2;
    }
    initLogger(DataDirectory::base());
    ImageCompareStage::install();
    const QString mode = QString::fromLocal8Bit(argv[1]);
    const QString tree = QString::fromLocal8Bit(argv[2]);
    if (mode == QLatin1String("scan"))
        return scanBench(tree);
    if (mode == QLatin1String("page"))
        return pageBench(tree, argc > 3 ? QString::fromLocal8Bit(argv[3]).toInt() : 100000);
    if (mode == QLatin1String("thumbnails"))
        return thumbnailBench(tree);
    if (mode == QLatin1String("pictures"))
        return pictureBench(tree);
    return modelBench(tree, argc > 3 ? QString::fromLocal8Bit(argv[3]).toInt() : 100000);
}
