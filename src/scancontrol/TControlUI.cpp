// SPDX-License-Identifier: GPL-3.0-or-later
#include "scancontrol/TControlUI.h"

#include "app/SnapshotKeys.h"
#include "app/TLogger.h"
#include "engine/PictureStage.h"
#include "engine/ScanConfigCheck.h"
#include "engine/TFileData.h"
#include "preferences/DFGenernalPreferences.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "preferences/DFSelectionPreferences.h"

#include <QJsonDocument>

namespace {

// The log tag of this file.
const QString kTag = QStringLiteral("[TControlUI]: ");

} // namespace

TControlUI *TControlUI::instance()
{
    static TControlUI controller;
    return &controller;
}

TControlUI::TControlUI(QObject *parent) : QObject(parent)
{
    qRegisterMetaType<FileMeta>("FileMeta");
    qRegisterMetaType<QList<FileMeta>>("QList<FileMeta>");
    qRegisterMetaType<ScanBatch>("ScanBatch");
    // The engines emit from their own threads (the scanner also from its pool); every
    // report is queued into this object's thread. The scanner's compact per-folder batches
    // are taken, so that it need not build a path string per file.
    connect(&m_scanner, &TFileScanner::folderFilesFound, this, &TControlUI::onFolderFilesFound,
        Qt::QueuedConnection);
    connect(&m_scanner, &TFileScanner::scanFinished, this, &TControlUI::onScannerFinished,
        Qt::QueuedConnection);
    connect(&m_finder, &DuplicateFileFinder::progressUpdated, this, &TControlUI::onFinderProgress,
        Qt::QueuedConnection);
    connect(&m_finder, &DuplicateFileFinder::onFindItem, this, &TControlUI::onFinderItems,
        Qt::QueuedConnection);
    connect(&m_finder, &DuplicateFileFinder::scanFinished, this, &TControlUI::onFinderFinished,
        Qt::QueuedConnection);
    m_compare = PictureStage::create(this);
    if (m_compare) {
        connect(m_compare, &PictureStage::finished, this, &TControlUI::onCompareFinished,
            Qt::QueuedConnection);
        connect(m_compare, &PictureStage::progressChanged, this, &TControlUI::onCompareProgress,
            Qt::QueuedConnection);
        connect(m_compare, &PictureStage::progressCounted, this, &TControlUI::picturesCounted,
            Qt::QueuedConnection);
        connect(m_compare, &PictureStage::similarFound, this, &TControlUI::onCompareFound,
            Qt::QueuedConnection);
    }
    m_scanner.setProblems(&m_problems);
    m_finder.setProblems(&m_problems);
    // Scans of the program reuse the keys of earlier ones; the command line can say no.
    m_finder.setCacheOptions(ContentKeyCache::Options {true, {}});
    m_finder.setOverlappedReader(&m_reader);
    m_timer.setInterval(250);
    connect(&m_timer, &QTimer::timeout, this, &TControlUI::onTimerTick);
}

TControlUI::~TControlUI()
{
    m_scanner.requestStop();
    m_finder.requestStop();
    if (m_compare)
        m_compare->cancel();
    m_scanner.wait();
    m_finder.wait();
    if (m_compare)
        m_compare->wait();
}

double TControlUI::elapsedSeconds() const
{
    return m_clock.isValid() ? m_clock.elapsed() / 1000.0 : 0.0;
}

QString TControlUI::seconds() const
{
    return QString::number(elapsedSeconds(), 'f', 3);
}

QString TControlUI::formatSeconds(qint64 seconds)
{
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600, 2, 10, QLatin1Char('0'))
        .arg((seconds / 60) % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

QString TControlUI::elapsedText() const
{
    return formatSeconds(m_seconds);
}

QString TControlUI::startScan(const QStringList &roots)
{
    DFPreferences *preferences = DFPreferences::instance();
    return startScan(roots, preferences->ignoreListPreferences()->toJson(),
        preferences->selectionPreferences()->toJson(), preferences->generalPreferences()->toJson());
}

QString TControlUI::startScan(const QStringList &roots, const QJsonObject &common,
    const QJsonObject &duplication, const QJsonObject &similar)
{
    const QStringList refused = ScanConfigCheck::problems(common, similar);
    if (!refused.isEmpty()) {
        splog_d(kTag + QStringLiteral("Scan refused: %1").arg(refused.join(QLatin1Char(' '))));
        return refused.join(QLatin1Char('\n'));
    }
    // A scan still running (the caller did not stop it) is stopped first, so that no
    // engine is reconfigured while it works.
    if (m_scanner.isRunning() || m_finder.isRunning() || (m_compare && m_compare->isRunning()))
        stop();
    m_clock.start();
    m_roots = roots;
    TFileData::instance()->setScanRoots(roots);
    m_problems.clear(int(roots.size()));
    m_table.clear();
    m_scannedFiles = 0;
    m_timer.start();
    m_seconds = 0;
    m_similarCount = 0;
    m_similarSize = 0;
    m_duplicateCount = 0;
    m_duplicateSize = 0;
    m_stoppedStage = 0;
    m_runState = Running;
    setStage(StageScanning);
    m_cloudMode = false;
    m_projectPath.clear();

    const auto indented = [](const QJsonObject &object) {
        return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Indented));
    };
    splog_d(kTag + QStringLiteral("Common configuration information: [%1].").arg(indented(common)));
    splog_d(kTag
        + QStringLiteral("Duplication configuration information: [%1].")
              .arg(indented(duplication)));
    splog_d(
        kTag + QStringLiteral("Similar configuration information: [%1].").arg(indented(similar)));
    m_scanner.applyConfig(common);
    m_finder.applyConfig(duplication);
    if (m_compare)
        m_compare->applyConfig(similar);
    m_similarEnabled = similar.value(SnapshotKeys::hasSimilar).toBool(false);
    if (m_overlapped && m_finder.scanMethodInUse() != DuplicateFileFinder::scanName)
        m_reader.start(m_finder.cacheOptions(),
            m_finder.scanMethodInUse() == DuplicateFileFinder::scanAllContent);

    splog_d(kTag + QStringLiteral("Start Scan: [%1]...").arg(roots.join(QLatin1Char(';'))));
    m_scanner.setRoots(roots);
    m_scanner.start(QThread::InheritPriority);
    return QString();
}

void TControlUI::stop()
{
    if (m_runState == Running)
        m_stoppedStage = m_stage;
    m_runState = Stopped;
    m_timer.stop();
    switch (m_stage) {
    case StageScanning:
        m_scanner.requestStop();
        m_scanner.wait();
        m_reader.cancel();
        m_reader.finish();
        break;
    case StageMatching:
        m_finder.requestStop();
        m_finder.wait();
        break;
    case StageSimilar:
        if (m_compare) {
            m_compare->cancel();
            m_compare->wait();
        }
        break;
    default:
        break;
    }
}

void TControlUI::onFolderFilesFound(const QList<ScanBatch> &batches)
{
    const int before = m_scannedFiles;
    for (const ScanBatch &batch : batches) {
        const quint32 firstFile = quint32(m_table.fileCount());
        m_table.append(batch);
        m_reader.add(batch, firstFile);
        m_scannedFiles += int(batch.sizes.size());
    }
    // The window's counter follows in steps of 100 files.
    if (before / 100 != m_scannedFiles / 100)
        emit filesScaningChange(m_scannedFiles);
}

void TControlUI::onScannerFinished()
{
    emit filesScaningChange(m_scannedFiles);
    if (m_runState == Stopped) {
        splog_d(kTag
            + QStringLiteral("The user clicks Stop during the scanning process. "
                             "This task takes:[%1] seconds.")
                  .arg(seconds()));
        endScan();
        return;
    }
    splog_d(kTag
        + QStringLiteral("Scan is complete, start matching duplicate files. Total "
                         "number of files: [%1]. This task takes:[%2] seconds.")
              .arg(m_table.fileCount())
              .arg(seconds()));
    // The finder holds the only copy from here on and releases it when it ends.
    m_finder.setRoots(m_roots);
    m_finder.setInput(std::move(m_table));
    m_table.clear();
    m_finder.setCollectsPictures(m_similarEnabled && m_compare);
    setStage(StageMatching);
    m_finder.start(QThread::InheritPriority);
}

void TControlUI::onFinderProgress(int, double percent)
{
    emit processChange(percent);
}

void TControlUI::onFinderItems(int number, qint64 total)
{
    m_duplicateCount = number;
    m_duplicateSize = total;
    emit onDuplicateItemFound(number, total);
}

void TControlUI::onFinderFinished()
{
    if (m_runState == Stopped) {
        splog_d(kTag
            + QStringLiteral("The user clicks Stop during the matching process. "
                             "This task takes: [%1] seconds.")
                  .arg(seconds()));
        endScan();
        return;
    }
    if (m_similarEnabled && !m_compare)
        splog_d(kTag
            + QStringLiteral("This build has no similar-picture stage; the "
                             "scan ends with the duplicate files."));
    if (m_similarEnabled && m_compare) {
        const QStringList uniqueImages = m_finder.uniqueImageFiles();
        const TFileData::Groups imageGroups = TFileData::instance()->imageGroups();
        splog_d(kTag
            + QStringLiteral("Matching duplicate files ends, and the process of "
                             "matching similar images begins. Duplicate Group: [%1]; Unique "
                             "Image: [%2]. This task takes: [%3] seconds.")
                  .arg(TFileData::instance()->groupCount())
                  .arg(uniqueImages.size())
                  .arg(seconds()));
        m_compare->setInput(imageGroups, uniqueImages);
        m_compare->setCacheOptions(m_finder.cacheOptions());
        setStage(StageSimilar);
        m_compare->start();
        return;
    }
    endScan();
}

void TControlUI::onCompareFinished(int count, qint64 size)
{
    if (m_runState != Stopped) {
        m_runState = Stopped;
        splog_d(kTag
            + QStringLiteral("The process of matching similar images ends "
                             "normally."));
    } else {
        splog_d(kTag
            + QStringLiteral("User clicks to stop the matching similar images "
                             "process."));
    }
    m_similarCount += count;
    m_similarSize += size;
    emit onDuplicateItemFound(m_duplicateCount + m_similarCount, m_duplicateSize + m_similarSize);
    endScan();
}

void TControlUI::onCompareProgress(int, int progress)
{
    emit processChange(progress);
}

void TControlUI::onCompareFound(int count, qint64 size)
{
    if (m_runState == Running)
        emit onDuplicateItemFound(m_duplicateCount + count, m_duplicateSize + size);
}

void TControlUI::setStage(int stage)
{
    m_stage = stage;
    emit stageChanged(stage);
}

void TControlUI::endScan()
{
    splog_d(kTag
        + QStringLiteral("All tasks are completed. This task takes:[%1] seconds.").arg(seconds()));
    const QString unreadable = m_problems.unreadableSummary();
    if (!unreadable.isEmpty())
        splog_d(kTag + QStringLiteral("%1.").arg(unreadable));
    if (const qint64 links = m_problems.count(ScanProblems::LinkOutsideRoots))
        splog_d(kTag
            + QStringLiteral("%1 links lead outside the scanned folders and were "
                             "not followed.")
                  .arg(links));
    splog_flush_repeated();
    m_timer.stop();
    m_runState = Stopped;
    emit onAllComplate();
}

void TControlUI::onTimerTick()
{
    if (m_runState != Running)
        return;
    const qint64 seconds = m_clock.elapsed() / 1000;
    if (seconds == m_seconds)
        return;
    m_seconds = seconds;
    emit onUpdateTimer(formatSeconds(m_seconds));
}
