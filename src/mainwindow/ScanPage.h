// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class CRotateLabel;
class QLabel;
class RoundProgressBar;

// The scanning page: the ring, the running figures, what the scan is doing and the
// file-type filter in force. It only shows what the window hands it.
class ScanPage : public QWidget
{
    Q_OBJECT
public:
    explicit ScanPage(QWidget *parent = nullptr);

    // Ring, progress and counts back to zero (the elapsed time and stage stay).
    void showZero();
    // The page from zero for a scan that has just started.
    void showStarted(bool local);
    void setRotating(bool rotating);
    void setFilesScanned(int fileCount);
    void setProgress(double value);
    void setFound(int number, qint64 total);
    void setElapsed(const QString &time);
    void showStage(int stage);
    void showPicturesCounted(int progressType, int done, int total);
    void showEnd(bool stopped);
    void showTypeFilter();
    void hideTypeFilter();
    double ringValue() const;
    void setRingValue(double value);
    QString progressText() const;
    void setProgressText(const QString &text);

private:
    CRotateLabel *m_animation = nullptr;
    RoundProgressBar *m_ring = nullptr;
    QLabel *m_labFileNumber = nullptr;
    QLabel *m_labFindNumber = nullptr;
    QLabel *m_labFindSize = nullptr;
    QLabel *m_labProgress = nullptr;
    QLabel *m_labFindTime = nullptr;
    // What the scan is doing, or that it was stopped.
    QLabel *m_labStage = nullptr;
    // The file-type filter in force, when there is one.
    QLabel *m_labFilter = nullptr;
};
