// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/ScanPage.h"

#include "mainwindow/MainWindow.h"
#include "mainwindow/MainWindowArt.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "results/TImageModel.h"
#include "scancontrol/TControlUI.h"
#include "widgets/CRotateLabel.h"
#include "widgets/RoundProgressBar.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

ScanPage::ScanPage(QWidget *parent) : QWidget(parent)
{
    auto *page = this;
    page->setObjectName(QStringLiteral("page_scan"));
    auto *layout = new QHBoxLayout(page);
    layout->setContentsMargins(60, 24, 60, 8);
    // Ring and figures stay together in the middle on wide windows.
    layout->addStretch(1);

    auto *ringBox = new QWidget(page);
    ringBox->setFixedSize(240, 240);
    m_ring = new RoundProgressBar(ringBox);
    m_ring->setObjectName(QStringLiteral("progress_ring"));
    m_ring->setGeometry(0, 0, 240, 240);
    // The track is drawn around the outside of the arc; at two pixels its outer edge is
    // the widget's edge, any wider and the circle is cut flat on four sides. No end dot:
    // it marks the top of the ring and would show as a lone speck before any progress.
    m_ring->setWidths(2.0, 14.0);
    m_ring->setPaintFlags(RoundProgressBar::Ring | RoundProgressBar::GradientArc);
    m_ring->setColors(QColor(194, 220, 255), QColor(69, 146, 220), QColor(49, 120, 200));
    m_animation = new CRotateLabel(ringBox);
    m_animation->setObjectName(QStringLiteral("lab_animation"));
    m_animation->setPixmap(MainWindowArt::picture(QStringLiteral("scan_rotate.png")));
    m_animation->setGeometry(40, 40, 160, 160);
    layout->addWidget(ringBox, 0, Qt::AlignCenter);

    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(18);
    grid->setHorizontalSpacing(32);
    // Room for the widest figure ("1023.99 GB"), so the block does not shift as the
    // figures grow during a scan.
    grid->setColumnMinimumWidth(1, 170);
    auto addRow = [&](int row, const QString &objectName, const QString &caption, QLabel *&value) {
        auto *label = new QLabel(caption, page);
        label->setObjectName(objectName + QStringLiteral("_caption"));
        value = new QLabel(page);
        value->setObjectName(objectName);
        value->setProperty("scanValue", true);
        grid->addWidget(label, row, 0);
        grid->addWidget(value, row, 1);
    };
    addRow(0, QStringLiteral("lab_fileNumber"), MainWindow::tr("Files scanned"), m_labFileNumber);
    addRow(
        1, QStringLiteral("lab_findNumber"), MainWindow::tr("Duplicates found"), m_labFindNumber);
    addRow(2, QStringLiteral("lab_findSize"), MainWindow::tr("Size of duplicates"), m_labFindSize);
    addRow(3, QStringLiteral("lab_progress"), MainWindow::tr("Progress"), m_labProgress);
    addRow(4, QStringLiteral("lab_findTime"), MainWindow::tr("Elapsed time"), m_labFindTime);
    m_labFindTime->setText(QStringLiteral("00:00:00"));
    m_labStage = new QLabel(page);
    m_labStage->setObjectName(QStringLiteral("lab_stage"));
    m_labFilter = new QLabel(page);
    m_labFilter->setObjectName(QStringLiteral("lab_filter"));
    m_labFilter->setWordWrap(true);
    m_labFilter->setMaximumWidth(420);
    m_labFilter->setVisible(false);
    layout->addSpacing(48);
    auto *column = new QVBoxLayout;
    column->addStretch(1);
    column->addLayout(grid);
    column->addSpacing(22);
    column->addWidget(m_labStage);
    column->addSpacing(6);
    column->addWidget(m_labFilter);
    column->addStretch(1);
    layout->addLayout(column);
    layout->addStretch(1);
}

void ScanPage::showZero()
{
    m_ring->setValue(0);
    m_labProgress->setText(QStringLiteral("0.00%"));
    m_labFileNumber->setText(QStringLiteral("0"));
    m_labFindNumber->setText(QStringLiteral("0"));
    m_labFindSize->setText(TImageModel::sizeText(0));
}

void ScanPage::showStarted(bool local)
{
    showZero();
    m_labFindTime->setText(QStringLiteral("00:00:00"));
    m_labStage->setText(local ? MainWindow::tr("Looking for files…")
                              : MainWindow::tr("Listing the cloud folders…"));
    showTypeFilter();
}

void ScanPage::setRotating(bool rotating)
{
    m_animation->setRotating(rotating);
}

void ScanPage::showTypeFilter()
{
    const DFIgnoreListPreferences *common = DFPreferences::instance()->ignoreListPreferences();
    const bool onlyList = common->ScanFileType() == 0;
    const QStringList types = onlyList ? common->OnlyFileType() : common->IgnoreFileType();
    const QString listed = types.join(QStringLiteral(", "));
    m_labFilter->setText(onlyList
            ? MainWindow::tr("Only these file types are scanned: %1").arg(listed)
            : MainWindow::tr("These file types are skipped: %1").arg(listed));
    m_labFilter->setToolTip(m_labFilter->text());
    m_labFilter->setVisible(!types.isEmpty());
}

void ScanPage::hideTypeFilter()
{
    m_labFilter->setVisible(false);
}

void ScanPage::setFilesScanned(int fileCount)
{
    m_labFileNumber->setText(QString::number(fileCount));
}

void ScanPage::setProgress(double value)
{
    m_labProgress->setText(QString::number(value, 'f', 2) + QLatin1Char('%'));
    m_ring->setValue(value);
}

void ScanPage::setFound(int number, qint64 total)
{
    m_labFindNumber->setText(QString::number(number));
    m_labFindSize->setText(TImageModel::sizeText(total));
}

void ScanPage::setElapsed(const QString &time)
{
    m_labFindTime->setText(time);
}

void ScanPage::showStage(int stage)
{
    switch (stage) {
    case TControlUI::StageScanning:
        m_labStage->setText(MainWindow::tr("Looking for files…"));
        break;
    case TControlUI::StageMatching:
        m_labStage->setText(MainWindow::tr("Comparing files of the same size…"));
        break;
    case TControlUI::StageSimilar:
        m_labStage->setText(MainWindow::tr("Reading pictures…"));
        break;
    default:
        break;
    }
}

void ScanPage::showPicturesCounted(int progressType, int done, int total)
{
    const QLocale locale;
    const QString counted
        = QStringLiteral("%1 / %2").arg(locale.toString(done), locale.toString(total));
    switch (progressType) {
    case 2:
        m_labStage->setText(MainWindow::tr("Reading pictures %1").arg(counted));
        break;
    case 3:
        m_labStage->setText(MainWindow::tr("Comparing pictures %1").arg(counted));
        break;
    case 4:
        m_labStage->setText(MainWindow::tr("Checking picture details %1").arg(counted));
        break;
    default:
        break;
    }
}

void ScanPage::showEnd(bool stopped)
{
    m_labStage->setText(stopped ? MainWindow::tr("Scan stopped – results are incomplete")
                                : MainWindow::tr("Scan complete"));
}

double ScanPage::ringValue() const
{
    return m_ring->value();
}

void ScanPage::setRingValue(double value)
{
    m_ring->setValue(value);
}

QString ScanPage::progressText() const
{
    return m_labProgress->text();
}

void ScanPage::setProgressText(const QString &text)
{
    m_labProgress->setText(text);
}
