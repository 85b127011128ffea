// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/DeleteResult.h"
#include "results/HiddenFiles.h"
#include "results/ResultChart.h"
#include "results/ResultGroupLoader.h"
#include "results/ResultMenus.h"
#include "results/ResultRemovalRun.h"
#include "results/SelectionTotals.h"
#include "results/ShowInFolder.h"
#include "results/TImageModel.h"
#include "results/TPieChart.h"

#include <QFutureWatcher>
#include <QHash>
#include <QItemSelection>
#include <QWidget>

namespace Ui {
class ResultForm;
}

class CsvExportRun;
class KvCloudObject;
class QAction;
class QChart;
class QMenu;
class QSlider;
class MemberTable;
class TImageListView;

// The page of a scan's outcome: the groups on the left, the files of the current group in
// the middle (a table, a thumbnail grid or a flow of large thumbnails), the duplicates by
// type on the right, and below the selection totals and the removal button. It reads and
// changes the groups only through the result store and its two models. The page keeps
// the views in step and answers its form's slots; the work is done by its parts: the
// loader (ResultGroupLoader), the removal (ResultRemovalRun), the menus (ResultMenus), the
// chart (ResultChart), the member table (MemberTable) and the hidden files (HiddenFiles).
class ResultForm : public QWidget
{
    Q_OBJECT
public:
    enum ViewMode { ListMode = 0, GridMode = 1, FlowMode = 2 };
    // Category value that shows every group.
    static constexpr int kAllCategories = 9;

    explicit ResultForm(
        QWidget *parent = nullptr, bool isCloud = false, KvCloudObject *cloud = nullptr);
    ~ResultForm() override;

    bool isDataLoaded() const { return m_loader->isLoaded(); }
    TImageModel *groupModel() const { return m_groupModel; }
    TImageModel *itemModel() const { return m_itemModel; }
    int currentCategory() const { return m_category; }
    int viewMode() const { return m_viewMode; }
    int showFilter() const { return m_showFilter; }
    SelectionTotals totals() const { return m_totals; }
    bool isRemoving() const { return m_removal->isRemoving(); }
    QMenu *selectionMenu() const { return m_menus->selectMenu(); }
    QMenu *filterMenu() const { return m_menus->filterMenu(); }
    QMenu *deleteMenu() const { return m_menus->deleteMenu(); }
    CsvExportRun *csvExport() const { return m_csvExport; }
    QSlider *similaritySlider() const { return m_menus->similaritySlider(); }
    QChart *chart() const { return m_chartPart->chart(); }
    // Category code -> (count, bytes) as the chart shows it.
    FileCategoryStatsMap chartStats() const { return m_chartPart->stats(); }
    // Every item of the last batch, the one-file and one-group removals included.
    QList<DeleteResult> lastRemoval() const { return m_removal->lastRemoval(); }
    // A line about what the scan could not read, with its own "Details" link.
    void setProblemText(const QString &html);
    // The project file the results were saved to or opened from (empty: none), named in
    // the title.
    void setProjectName(const QString &name);
    // The picture comparison stopped before it was done: the notice shows once loaded.
    void setIncompleteScan(bool incomplete) { m_incompleteScan = incomplete; }

    // Kept for the overview button that the page does not show; logs only.
    void on_btn_over_clicked();

    // The removal "method" of cloud files: the service's own trash, where it has one.
    static constexpr int kCloudRemoval = 100;
    // Reason words shown for a removal that did not happen.
    static QString failureText(const DeleteResult &result, int method);
    // Bytes the removed items of a removal held, as the scan saw them.
    static qint64 removedBytes(const QList<DeleteResult> &results);
    // The selection covers every copy of some content: removing it keeps nothing.
    static bool removesEveryCopy(
        const QHash<QString, QStringList> &groups, const QHash<QString, QStringList> &selected);

signals:
    void updateWindows(bool update);
    // The Save button: the window saves the results (to their project file, when they
    // have one).
    void saveRequested();
    void onDeleteFileProcess(int value);
    void onLoadProgress(int progress);
    void problemDetailsRequested();

public slots:
    void initUI();
    void initMenu();
    void initDelButtonMenu();
    void setTitle();

    void on_btn_all_clicked();
    void on_btn_image_clicked();
    void on_btn_document_clicked();
    void on_btn_music_clicked();
    void on_btn_videos_clicked();
    void on_btn_archives_clicked();
    void on_btn_packages_clicked();
    void on_btn_others_clicked();
    void on_btn_right_list_clicked();
    void on_btn_right_grid_clicked();
    void on_btn_right_flow_clicked();
    void on_horizontalSlider_valueChanged(int value);
    void on_splitter_2_splitterMoved(int pos, int index);
    void onTableViewSelectChanged();
    void groupSelectionChanged(const QItemSelection &selected, const QItemSelection &deSelection);
    void itemCheckedChanged(const QString &key, const QString &file, bool newValue, int groupIndex,
        bool updateComplated);
    void onBtnHideFileClick(const QModelIndex &index);
    void onBtnOpenFinderClick(const QModelIndex &index);
    void onBtnDeletedClick(const QModelIndex &index);
    void onMenuIgnoreGroup(const QString &key, int row, int count);
    void onMenuDeleteGroup(const QString &key, int row, int count);
    void on_lineEdit_textChanged(const QString &arg1);
    void onTaskContextMenuEvent();
    void onTaskFilterMenuEvent();
    void on_comboBox_activated(int index);
    void on_btn_delete_clicked();
    void setActiveDeleteAction(QAction *newAction);
    void onItemFileDeleted(int complate, int total);
    void onDeletedComplated(const QHash<QString, QStringList> &files,
        const QHash<QString, QStringList> &dirs, const QHash<QString, QStringList> &selected);
    void loadAllGroupsAsync();
    void onLoadComplated(int selectCount, qlonglong selectSize, int progress);
    void startAnalytics();
    void bulidPieChart(const FileCategoryStatsMap &result, int count, qlonglong totalSize);
    void showInfoDialog();
    void on_btnBack_clicked();

    // Applies one selection rule to every group (the selection menu's work).
    void applySelectionRule(int rule);
    // The show filter (0 duplicates, 1 selected, 2 all) with the slider's floor.
    void applyShowFilter(int mode);
    void setViewMode(int mode);
    void updateSelectedAndSize();

protected:
    void closeEvent(QCloseEvent *event) override;
    // Brings the file hidden last back into its group.
    void undoHide();
    // Row of a group in the displayed list, -1 when it is not there.
    int rowOfGroup(const QString &key) const;
    // Makes the row current, visible and the group on show.
    void showGroupRow(int row);
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    bool guardLoading();
    void loadAllData(int category);
    // The member views after a fill: the list's order, the show filter and the group's title.
    void arrangeMembers(int match);
    void refreshAfterSelection();
    void removeGroupFromViews(const QString &key);
    QModelIndex currentGroupIndex() const;
    // The views after a removal: the removed items leave them.
    void showRemoval(const QHash<QString, QStringList> &removed);
    void onGroupContextMenu(const QPoint &pos);
    void onMemberContextMenu(const QPoint &pos);
    // The similarity slider's floor: groups and members below it leave the views.
    void applySimilarityFloor(int value);
    void retranslate();

    Ui::ResultForm *ui = nullptr;
    TImageModel *m_groupModel = nullptr;
    TImageModel *m_itemModel = nullptr;
    TImageListView *m_imageView = nullptr;
    ResultChart *m_chartPart = nullptr;

    ResultMenus *m_menus = nullptr;

    bool m_isCloud = false;
    KvCloudObject *m_cloud = nullptr;
    ShowInFolder m_showInFolder;
    bool m_incompleteScan = false;
    bool m_left = false;
    bool m_sizeRestored = false;
    // Something was removed or taken out of the result since the page opened.
    bool m_changed = false;
    QString m_projectName;
    // The last file hidden from the results: Undo brings it back.
    HiddenFiles m_hidden;
    MemberTable *m_memberTable = nullptr;
    CsvExportRun *m_csvExport = nullptr;
    int m_category = kAllCategories;
    int m_viewMode = GridMode;
    int m_selectRule = -1;
    int m_showFilter = 2;
    bool m_descending = true;

    QFutureWatcher<SelectionTotals> m_totalsWatcher;
    SelectionTotals m_totals;
    bool m_totalsAgain = false;
    // The totals shown were confirmed against the disk (not only the scan's sizes).
    bool m_totalsChecked = false;

    ResultGroupLoader *m_loader = nullptr;
    ResultRemovalRun *m_removal = nullptr;
};
