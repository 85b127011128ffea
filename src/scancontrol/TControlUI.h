// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/DuplicateFileFinder.h"
#include "engine/FileMeta.h"
#include "engine/PictureStage.h"
#include "engine/ScanProblems.h"
#include "engine/ScanTable.h"
#include "engine/TFileScanner.h"

#include <QElapsedTimer>
#include <QHash>
#include <QJsonObject>
#include <QObject>
#include <QStringList>
#include <QTimer>

// The scan controller: chains the file scanner, the duplicate finder and, when the
// similar-photo option is on, the picture comparison; keeps the scan table the scanner
// fills; reports counts, progress, elapsed time and the end of a scan to the window (or
// to the command line). Lives on the GUI thread; the engines report by queued signals.
class TControlUI : public QObject
{
    Q_OBJECT
public:
    enum Stage : int { StageScanning = 1, StageMatching = 2, StageSimilar = 4 };
    enum RunState : int { Running = 1, Stopped = 2 };

    static TControlUI *instance();

    explicit TControlUI(QObject *parent = nullptr);
    ~TControlUI() override;

    // Starts a local scan with the three snapshots of the stored preferences.
    QString startScan(const QStringList &roots);
    // Starts a local scan with the given snapshots (common, duplication, similar). A
    // snapshot with a value outside its range (ScanConfigCheck) starts nothing, not even
    // onAllComplate follows, and a running scan goes on: the returned text says why, one
    // line per value. Empty when the scan started.
    QString startScan(const QStringList &roots, const QJsonObject &common,
        const QJsonObject &duplication, const QJsonObject &similar);
    // Stops the running stage and waits for its thread; the scan then ends through the
    // usual chain, with onAllComplate().
    void stop();
    // Whether the current (or last) scan was stopped before its end, and in which stage:
    // its results are then those found until the stop.
    bool wasStopped() const { return m_stoppedStage != 0; }
    int stoppedStage() const { return m_stoppedStage; }

    int stage() const { return m_stage; }
    int runState() const { return m_runState; }
    bool isRunning() const { return m_runState == Running; }
    QStringList scanRoots() const { return m_roots; }
    // Files reported by the scanner in the current (or last) scan.
    int scannedFileCount() const { return m_scannedFiles; }
    double elapsedSeconds() const;
    // "hh:mm:ss" of the elapsed clock, as last shown.
    QString elapsedText() const;
    static QString formatSeconds(qint64 seconds);

    bool cloudMode() const { return m_cloudMode; }
    void setCloudMode(bool cloud) { m_cloudMode = cloud; }
    QString projectPath() const { return m_projectPath; }
    void setProjectPath(const QString &path) { m_projectPath = path; }

    // What the current (or last) scan could not read or did not follow.
    const ScanProblems &problems() const { return m_problems; }

    // Whether the sampled keys of same-size files are read while the walk goes on (on
    // unless set); off, every file is read after the walk.
    void setOverlappedReading(bool overlapped) { m_overlapped = overlapped; }

    TFileScanner *scanner() { return &m_scanner; }
    DuplicateFileFinder *finder() { return &m_finder; }
    // The similar-picture stage; nullptr in a build without it.
    PictureStage *comparison() { return m_compare; }

signals:
    void filesScaningChange(int fileCount);
    void processChange(double value);
    void onDuplicateItemFound(int number, qint64 total);
    void onUpdateTimer(const QString &time);
    // The scan entered a stage (a Stage value).
    void stageChanged(int stage);
    // Progress of the picture stage counted: progressType 2 loading, 3 comparing, 4 the
    // feature re-check; pictures handled and the stage's total.
    void picturesCounted(int progressType, int done, int total);
    void onAllComplate();

private slots:
    void onFolderFilesFound(const QList<ScanBatch> &batches);
    void onScannerFinished();
    void onFinderFinished();
    void onCompareFinished(int count, qint64 size);
    void onCompareProgress(int progressType, int progress);
    void onCompareFound(int count, qint64 size);
    void onFinderProgress(int progressType, double percent);
    void onFinderItems(int number, qint64 total);
    void onTimerTick();

private:
    void endScan();
    void setStage(int stage);
    QString seconds() const;

    TFileScanner m_scanner;
    // Declared before the finder, which uses it, so that it outlives the finder.
    OverlappedKeyReader m_reader;
    DuplicateFileFinder m_finder;
    // Made by the installed factory (none in the plain command line); owned as a child.
    PictureStage *m_compare = nullptr;

    ScanProblems m_problems;
    QStringList m_roots;
    // The scanned files in compact form; the finder groups them by size.
    ScanTable m_table;
    int m_scannedFiles = 0;
    int m_stage = StageScanning;
    int m_runState = Stopped;
    QElapsedTimer m_clock;
    // Shows the clock's seconds; it reads the clock at each tick, so a late tick never
    // makes the time shown fall behind.
    QTimer m_timer;
    qint64 m_seconds = 0;
    int m_stoppedStage = 0;
    int m_similarCount = 0;
    qint64 m_similarSize = 0;
    int m_duplicateCount = 0;
    qint64 m_duplicateSize = 0;
    bool m_similarEnabled = false;
    bool m_cloudMode = false;
    bool m_overlapped = true;
    QString m_projectPath;
};
