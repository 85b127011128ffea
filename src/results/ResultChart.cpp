// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultChart.h"

#include "app/FileTypeCatalogue.h"
#include "app/LogTags.h"
#include "app/TLogger.h"
#include "engine/TFileData.h"
#include "results/TImageModel.h"
#include "ui_ResultForm.h"

#include <algorithm>

#include <QChart>
#include <QChartView>
#include <QGraphicsLayout>
#include <QLabel>
#include <QPieSeries>
#include <QPieSlice>

namespace {

const QString &kTag = LogTags::resultForm;

// Middle part of the names of a category's count and size labels beside the chart
// ("lab_images_num"): fixed, whatever the language.
QString chartLabelKey(int code)
{
    switch (code) {
    case CategoryImages:
        return QStringLiteral("images");
    case CategoryDocuments:
        return QStringLiteral("documents");
    case CategoryAudio:
        return QStringLiteral("musics");
    case CategoryVideos:
        return QStringLiteral("videos");
    case CategoryFolders:
        return QStringLiteral("folder");
    case CategoryOthers:
        return QStringLiteral("others");
    default:
        return QString();
    }
}

} // namespace

ResultChart::ResultChart(
    QWidget *page, Ui::ResultForm *ui, TImageModel *groupModel, bool isCloud, KvCloudObject *cloud)
    : QObject(page)
    , m_page(page)
    , ui(ui)
    , m_groupModel(groupModel)
    , m_isCloud(isCloud)
    , m_cloud(cloud)
    , m_pieChart(new TPieChart(this))
{ }

void ResultChart::build()
{
    m_chart = new QChart;
    m_chart->legend()->hide();
    m_chart->setBackgroundVisible(false);
    m_chart->setMargins(QMargins(0, 0, 0, 0));
    m_chart->layout()->setContentsMargins(0, 0, 0, 0);
    m_chart->setAnimationOptions(QChart::NoAnimation);
    m_chartView = new QChartView(m_chart, ui->widget_chart);
    m_chartView->setObjectName(QStringLiteral("chartView"));
    m_chartView->setRenderHint(QPainter::Antialiasing);
    m_chartView->setStyleSheet(QStringLiteral("background: transparent;"));
    ui->verticalLayout_chart->addWidget(m_chartView);
    const QList<QPair<QLabel *, int>> dots
        = {{ui->lab_images_dot, CategoryImages}, {ui->lab_documents_dot, CategoryDocuments},
            {ui->lab_musics_dot, CategoryAudio}, {ui->lab_videos_dot, CategoryVideos},
            {ui->lab_folder_dot, CategoryFolders}, {ui->lab_others_dot, CategoryOthers}};
    for (const auto &[label, code] : dots)
        label->setStyleSheet(QStringLiteral("background:%1; border-radius:6px;")
                                 .arg(TPieChart::categoryColour(code).name()));
}

void ResultChart::clear()
{
    if (m_chart)
        m_chart->removeAllSeries();
}

void ResultChart::start()
{
    m_analyticsTimer.start();
    TFileData::Groups groups = TFileData::instance()->groups();
    // Folder groups count as groups of their folders.
    const TFileData::DirGroups folders = TFileData::instance()->dirGroups();
    for (auto it = folders.cbegin(); it != folders.cend(); ++it) {
        QStringList paths;
        for (const DirGroupEntry &entry : it.value())
            paths.append(entry.folderPath);
        groups.insert(it.key() + QStringLiteral("/folders"), paths);
    }
    splog_d(kTag + QStringLiteral("startAnalytics :%1").arg(groups.size()));
    m_pieChart->start(groups, m_cloud, m_isCloud);
}

void ResultChart::show(const FileCategoryStatsMap &result, int count, qlonglong totalSize)
{
    splog_d(kTag + QStringLiteral("statistics ready in %1 ms").arg(m_analyticsTimer.elapsed()));
    m_chartStats = result;
    m_chartView->setRenderHint(QPainter::Antialiasing);
    m_chart->removeAllSeries();
    auto *series = new QPieSeries;
    series->setHoleSize(0.45);
    series->setPieSize(0.8);
    for (QLabel *label : ui->widget_stats->findChildren<QLabel *>()) {
        const QString name = label->objectName();
        if (name.contains(QLatin1String("num")) && name != QLatin1String("lab_total_num"))
            label->setText(QStringLiteral("0"));
        else if (name.contains(QLatin1String("size"))
            && !name.startsWith(QLatin1String("lab_total")))
            label->setText(TImageModel::sizeText(0));
    }
    ui->lab_total_num->setText(QString::number(count));
    ui->lab_total_size->setText(TImageModel::sizeText(totalSize));
    // What a removal of all but one copy of each group would free.
    qint64 reclaimable = 0;
    for (const GroupItem &group : m_groupModel->allGroups())
        if (group.count > 0)
            reclaimable += group.totalSize - group.totalSize / group.count;
    ui->lab_total_size_2->setText(TImageModel::sizeText(reclaimable));
    // In category order: the table's hash order changes from run to run, and the slices
    // would trade places with it.
    QList<int> categories = result.keys();
    std::sort(categories.begin(), categories.end());
    for (const int category : std::as_const(categories)) {
        const auto it = result.constFind(category);
        const QString name = TPieChart::categoryName(it.key());
        const QString lower = chartLabelKey(it.key());
        splog_d(kTag + QStringLiteral("bulidPieChart %1 %2").arg(name, lower));
        if (it->count == 0)
            continue;
        QPieSlice *slice = series->append(
            QStringLiteral("%1  %2").arg(name, TImageModel::sizeText(it->size)), double(it->size));
        slice->setColor(TPieChart::categoryColour(it.key()));
        slice->setBorderColor(Qt::white);
        if (auto *num = m_page->findChild<QLabel *>(QStringLiteral("lab_%1_num").arg(lower)))
            num->setText(QString::number(it->count));
        if (auto *size = m_page->findChild<QLabel *>(QStringLiteral("lab_%1_size").arg(lower)))
            size->setText(TImageModel::sizeText(it->size));
    }
    m_chart->addSeries(series);
}
