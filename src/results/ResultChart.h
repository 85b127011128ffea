// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "results/TPieChart.h"

#include <QElapsedTimer>
#include <QObject>

namespace Ui {
class ResultForm;
}

class KvCloudObject;
class QChart;
class QChartView;
class QWidget;
class TImageModel;

// The result page's duplicates by type: the ring chart, the count and size of each type
// beside it and the totals below, counted on the pool by TPieChart.
class ResultChart : public QObject
{
    Q_OBJECT
public:
    ResultChart(QWidget *page, Ui::ResultForm *ui, TImageModel *groupModel, bool isCloud,
        KvCloudObject *cloud);

    TPieChart *pieChart() const { return m_pieChart; }
    QChart *chart() const { return m_chart; }
    // Category code -> (count, bytes) as the chart shows it.
    FileCategoryStatsMap stats() const { return m_chartStats; }
    // Puts the chart and the type colours in their place on the page.
    void build();
    // Counts the store's groups again; show() gets the figures.
    void start();
    void show(const FileCategoryStatsMap &result, int count, qlonglong totalSize);
    // Before the page goes: the chart lets go of its series.
    void clear();

private:
    QWidget *m_page = nullptr;
    Ui::ResultForm *ui = nullptr;
    TImageModel *m_groupModel = nullptr;
    bool m_isCloud = false;
    KvCloudObject *m_cloud = nullptr;
    QChartView *m_chartView = nullptr;
    QChart *m_chart = nullptr;
    TPieChart *m_pieChart = nullptr;
    QElapsedTimer m_analyticsTimer;
    FileCategoryStatsMap m_chartStats;
};
