// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultForm.h"

#include "app/AppIdentity.h"
#include "app/FeatureReporter.h"
#include "app/FileTypeCatalogue.h"
#include "app/LanguageSetup.h"
#include "app/LogTags.h"
#include "app/SettingsKeys.h"
#include "app/TLogger.h"
#include "cloud/KvCloudObject.h"
#include "engine/TFileData.h"
#include "results/CsvExportRun.h"
#include "results/GroupIgnorer.h"
#include "results/HiddenFiles.h"
#include "results/MemberTable.h"
#include "results/ResultChart.h"
#include "results/ResultGroupLoader.h"
#include "results/ResultMenus.h"
#include "results/ResultPageLayout.h"
#include "results/ResultRemovalRun.h"
#include "results/SelectionRule.h"
#include "results/ShowInFolder.h"
#include "results/TImageListView.h"
#include "results/TTableViewDelegate.h"
#include "ui_ResultForm.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>
#include <QSlider>
#include <QTimer>

namespace {

const QString &kTag = LogTags::resultForm;
} // namespace

ResultForm::ResultForm(QWidget *parent, bool isCloud, KvCloudObject *cloud)
    : QWidget(parent)
    , ui(new Ui::ResultForm)
    , m_groupModel(new TImageModel(TImageModel::ListView, 50))
    , m_itemModel(new TImageModel(TImageModel::IconView, 300))
    , m_isCloud(isCloud)
    , m_cloud(cloud)
    , m_showInFolder(this, isCloud, cloud)
{
    ui->setupUi(this);
    m_chartPart = new ResultChart(this, ui, m_groupModel, m_isCloud, m_cloud);
    connect(m_chartPart->pieChart(), &TPieChart::statsReady, this, &ResultForm::bulidPieChart);
    m_loader = new ResultGroupLoader(ui, m_groupModel, m_itemModel, m_isCloud, m_cloud, this);
    connect(m_loader, &ResultGroupLoader::progressChanged, this, &ResultForm::onLoadProgress);
    connect(m_loader, &ResultGroupLoader::loaded, this, &ResultForm::onLoadComplated);
    connect(m_loader, &ResultGroupLoader::membersShown, this, &ResultForm::arrangeMembers);
    connect(&m_totalsWatcher, &QFutureWatcherBase::finished, this, [this] {
        if (!m_totalsWatcher.isCanceled())
            m_totals = m_totalsWatcher.result();
        ui->lab_select_num->setText(QString::number(m_totals.count));
        ui->lab_select_size->setText(TImageModel::sizeText(m_totals.bytes));
        ui->btn_delete->setEnabled(m_totals.count >= 1 && !isRemoving());
        if (m_totalsAgain) {
            m_totalsAgain = false;
            updateSelectedAndSize();
        } else if (!m_totalsChecked) {
            // The sizes the scan saw are shown at once; the disk has the last word.
            m_totalsChecked = true;
            m_totalsWatcher.setFuture(
                SelectionTotals::start(TFileData::instance()->selected(), {}, m_isCloud, m_cloud));
        }
    });
    m_menus = new ResultMenus(this, ui);
    connect(m_menus, &ResultMenus::similarityChanged, this, &ResultForm::applySimilarityFloor);
    m_removal = new ResultRemovalRun(this, ui->btn_delete, m_isCloud, m_cloud);
    connect(m_removal, &ResultRemovalRun::progressChanged, this, &ResultForm::onItemFileDeleted);
    connect(m_removal, &ResultRemovalRun::removalApplied, this, &ResultForm::showRemoval);
    connect(m_removal, &ResultRemovalRun::totalsStale, this, &ResultForm::updateSelectedAndSize);
    if (m_isCloud && m_cloud)
        connect(m_cloud, &KvCloudObject::deleteProgress, this, &ResultForm::onItemFileDeleted);
    initUI();
    initMenu();
    initDelButtonMenu();
    setTitle();
    loadAllGroupsAsync();
}

ResultForm::~ResultForm()
{
    splog_d(kTag + QStringLiteral("~ResultForm()"));
    m_loader->stop();
    m_totalsWatcher.waitForFinished();
    m_chartPart->clear();
    delete ui;
    delete m_groupModel;
    delete m_itemModel;
}

// ----------------------------------------------------------------------------- building

void ResultForm::initUI()
{
    ResultPageLayout::arrangeButtons(this, ui);
    ui->lab_undo->setVisible(false);
    connect(ui->lab_undo, &QLabel::linkActivated, this, [this] { undoHide(); });
    // Cloud results cannot be saved as a project.
    ui->btn_save->setVisible(!m_isCloud);
    connect(ui->btn_save, &QPushButton::clicked, this, &ResultForm::saveRequested);
    m_csvExport = new CsvExportRun(this);
    connect(ui->btn_export, &QPushButton::clicked, this, [this] {
        QStringList order;
        for (int row = 0; row < m_groupModel->rowCount(); ++row)
            order.append(m_groupModel->index(row, 0).data(TImageModel::KeyRole).toString());
        m_csvExport->start(order);
    });

    ResultPageLayout::arrangeGroupList(ui, m_groupModel);
    connect(ui->listView_groups->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &ResultForm::groupSelectionChanged);
    connect(ui->listView_groups, &QWidget::customContextMenuRequested, this,
        &ResultForm::onGroupContextMenu);

    QTableView *table = ui->tableView_files;
    m_memberTable = new MemberTable(table, m_itemModel, this);
    TTableViewDelegate *delegate = m_memberTable->delegate();
    // Space checks or unchecks the rows, as in the thumbnail grid.
    table->installEventFilter(this);
    connect(delegate, &TTableViewDelegate::hideClicked, this, &ResultForm::onBtnHideFileClick);
    connect(delegate, &TTableViewDelegate::openClicked, this, &ResultForm::onBtnOpenFinderClick);
    connect(table, &QWidget::customContextMenuRequested, this, &ResultForm::onMemberContextMenu);

    m_imageView = new TImageListView(ui->page_grid);
    m_imageView->setObjectName(QStringLiteral("listView_images"));
    m_imageView->setModel(m_itemModel);
    m_imageView->setContextMenuPolicy(Qt::CustomContextMenu);
    ui->verticalLayout_grid->addWidget(m_imageView);
    connect(
        m_imageView, &QWidget::customContextMenuRequested, this, &ResultForm::onMemberContextMenu);

    connect(m_itemModel, &TImageModel::onItemSelectedChange, this, &ResultForm::itemCheckedChanged);

    m_chartPart->build();
    ResultPageLayout::arrangeTools(this, ui);
    connect(ui->lab_problems, &QLabel::linkActivated, this, &ResultForm::problemDetailsRequested);
    setViewMode(GridMode);
}

void ResultForm::initMenu()
{
    m_menus->buildSelectAndFilter();
}

void ResultForm::initDelButtonMenu()
{
    m_menus->buildDelete();
}

void ResultForm::setTitle()
{
    setWindowTitle(m_projectName.isEmpty()
            ? AppIdentity::applicationName
            : QStringLiteral("%1 – %2").arg(m_projectName, AppIdentity::applicationName));
    ui->lab_title->setText(
        m_projectName.isEmpty() ? tr("Scan Results") : tr("Scan Results – %1").arg(m_projectName));
}

void ResultForm::setProjectName(const QString &name)
{
    m_projectName = name;
    setTitle();
}

void ResultForm::setActiveDeleteAction(QAction *newAction)
{
    m_menus->setActiveDeleteAction(newAction);
}

void ResultForm::setProblemText(const QString &html)
{
    ui->lab_problems->setText(html);
    ui->lab_problems->setVisible(!html.isEmpty());
}

// ----------------------------------------------------------------------------- loading

bool ResultForm::guardLoading()
{
    if (m_loader->isLoaded())
        return false;
    QMessageBox::warning(this, tr("Loading Data"), tr("Data is still loading, please wait..."));
    return true;
}

void ResultForm::loadAllGroupsAsync()
{
    m_loader->start();
}

void ResultForm::onLoadComplated(int selectCount, qlonglong selectSize, int progress)
{
    Q_UNUSED(selectCount)
    Q_UNUSED(selectSize)
    Q_UNUSED(progress)
    m_loader->setLoaded();
    ui->stackedWidget->setCurrentWidget(ui->page_result);
    m_loader->updateCategoryButtons(m_category);
    loadAllData(m_category);
    updateSelectedAndSize();
    startAnalytics();
    if (m_incompleteScan)
        QTimer::singleShot(0, this, &ResultForm::showInfoDialog);
}

void ResultForm::loadAllData(int category)
{
    splog_d(kTag + QStringLiteral("loadAllData :%1").arg(category));
    m_category = category;
    ui->stackedWidget->setCurrentWidget(ui->page_result);
    const QString text = ui->lineEdit->text();
    if (category == kAllCategories && text.isEmpty())
        m_groupModel->resetGroupFilter();
    else if (text.isEmpty())
        m_groupModel->filterByType(category);
    else
        m_groupModel->filterByTypeAndName(category == kAllCategories ? -1 : category, text);
    m_groupModel->sort(SortRole(ui->comboBox->currentIndex()), m_descending);
    m_loader->updateGroupTitle();
    if (m_groupModel->rowCount() > 0) {
        // The group on show stays on show (and highlighted) while it is in the list.
        showGroupRow(std::max(0, rowOfGroup(m_loader->memberKey())));
    } else {
        m_loader->clearMembers();
        m_itemModel->setItems({});
        ui->lab_group_title->clear();
        const QPixmap placeholder(LanguageSetup::current().noSelectionLiteBackground.isEmpty()
                ? QStringLiteral(":/resource/noSelection_LiteBG.png")
                : LanguageSetup::current().noSelectionLiteBackground);
        ui->lab_preview->setPixmap(
            placeholder.scaled(QSize(420, 420), Qt::KeepAspectRatio, Qt::SmoothTransformation));
        ui->stackedWidget_members->setCurrentWidget(ui->page_empty);
    }
}

void ResultForm::undoHide()
{
    if (m_hidden.isEmpty() || guardLoading())
        return;
    ui->lab_undo->setVisible(false);
    const QString key = m_hidden.undo();
    if (key.isEmpty())
        return;
    splog_d(kTag + QStringLiteral("undoHide. group:[%1]").arg(key));
    m_groupModel->reloadGroup(key);
    m_loader->setMemberKey(key);
    loadAllData(m_category);
    m_loader->updateCategoryButtons(m_category);
    updateSelectedAndSize();
    startAnalytics();
}

int ResultForm::rowOfGroup(const QString &key) const
{
    const QList<GroupItem> &shown = m_groupModel->displayedGroups();
    for (int row = 0; row < shown.size(); ++row)
        if (shown.at(row).key == key)
            return row;
    return -1;
}

void ResultForm::showGroupRow(int row)
{
    const QModelIndex index = m_groupModel->index(row, 0);
    ui->listView_groups->setCurrentIndex(index);
    ui->listView_groups->scrollTo(index);
    // Shown even when the row was current already: its group may have changed.
    onTableViewSelectChanged();
}

// ----------------------------------------------------------------------------- categories

void ResultForm::on_btn_all_clicked()
{
    if (!guardLoading())
        loadAllData(kAllCategories);
}

void ResultForm::on_btn_image_clicked()
{
    if (!guardLoading())
        loadAllData(CategoryImages);
}

void ResultForm::on_btn_document_clicked()
{
    if (!guardLoading())
        loadAllData(CategoryDocuments);
}

void ResultForm::on_btn_music_clicked()
{
    if (!guardLoading())
        loadAllData(CategoryAudio);
}

void ResultForm::on_btn_videos_clicked()
{
    if (!guardLoading())
        loadAllData(CategoryVideos);
}

void ResultForm::on_btn_archives_clicked()
{
    if (!guardLoading())
        loadAllData(CategoryFolders);
}

void ResultForm::on_btn_packages_clicked()
{
    if (!guardLoading())
        loadAllData(8);
}

void ResultForm::on_btn_others_clicked()
{
    if (!guardLoading())
        loadAllData(CategoryOthers);
}

void ResultForm::on_lineEdit_textChanged(const QString &arg1)
{
    splog_d(kTag + QStringLiteral("on_lineEdit_textChanged. Text :%1").arg(arg1));
    if (!m_loader->isLoaded())
        return;
    loadAllData(m_category);
}

void ResultForm::on_comboBox_activated(int index)
{
    if (guardLoading())
        return;
    m_groupModel->sort(SortRole(index), m_descending);
    // The highlighted group is the one on show, wherever the new order put it.
    if (m_groupModel->rowCount() > 0)
        showGroupRow(std::max(0, rowOfGroup(m_loader->memberKey())));
}

// ----------------------------------------------------------------------------- members

void ResultForm::on_btn_right_list_clicked()
{
    setViewMode(ListMode);
}

void ResultForm::on_btn_right_grid_clicked()
{
    setViewMode(GridMode);
}

void ResultForm::on_btn_right_flow_clicked()
{
    setViewMode(FlowMode);
}

void ResultForm::setViewMode(int mode)
{
    m_viewMode = mode;
    ui->btn_right_list->setChecked(mode == ListMode);
    ui->btn_right_grid->setChecked(mode == GridMode);
    ui->btn_right_flow->setChecked(mode == FlowMode);
    ui->horizontalSlider->setEnabled(mode != ListMode);
    if (mode != ListMode)
        m_imageView->setArrangement(mode == FlowMode ? TImageListView::Arrangement::Flow
                                                     : TImageListView::Arrangement::Grid);
    if (ui->stackedWidget_members->currentWidget() != ui->page_empty)
        ui->stackedWidget_members->setCurrentWidget(
            mode == ListMode ? ui->page_list : ui->page_grid);
}

void ResultForm::on_horizontalSlider_valueChanged(int value)
{
    m_imageView->setThumbnailSize(value);
}

void ResultForm::on_splitter_2_splitterMoved(int pos, int index)
{
    Q_UNUSED(pos)
    Q_UNUSED(index)
    m_imageView->doItemsLayout();
    ui->listView_groups->doItemsLayout();
}

QModelIndex ResultForm::currentGroupIndex() const
{
    return ui->listView_groups->currentIndex();
}

void ResultForm::groupSelectionChanged(
    const QItemSelection &selected, const QItemSelection &deSelection)
{
    Q_UNUSED(selected)
    Q_UNUSED(deSelection)
    onTableViewSelectChanged();
}

void ResultForm::onTableViewSelectChanged()
{
    const QModelIndex index = currentGroupIndex();
    if (!index.isValid() || index.row() >= m_groupModel->displayedGroups().size())
        return;
    m_loader->loadMembers(m_groupModel->displayedGroups().at(index.row()));
}

void ResultForm::arrangeMembers(int match)
{
    // The order the user chose for the list holds for every group.
    m_memberTable->applyOrder();
    if (m_showFilter != 2 || similaritySlider()->value() > similaritySlider()->minimum())
        m_itemModel->filterByShow(m_showFilter, similaritySlider()->value());
    ui->stackedWidget_members->setCurrentWidget(
        m_viewMode == ListMode ? ui->page_list : ui->page_grid);
    m_loader->updateGroupTitle();
    const int row = currentGroupIndex().row();
    if (row >= 0 && row < m_groupModel->displayedGroups().size()) {
        const GroupItem &group = m_groupModel->displayedGroups().at(row);
        QString title = tr("%1 · %n copies · %2", nullptr, group.count)
                            .arg(group.name, TImageModel::sizeText(group.totalSize));
        if (match == int(TFileData::MatchSampled))
            title += tr(" · not verified: only parts of the files were compared");
        else if (match == int(TFileData::MatchName))
            title += tr(" · not verified: only the names were compared");
        ui->lab_group_title->setToolTip(title);
        ui->lab_group_title->setText(ui->lab_group_title->fontMetrics().elidedText(
            title, Qt::ElideMiddle, std::max(200, ui->widget_members->width() - 20)));
    }
}

void ResultForm::itemCheckedChanged(
    const QString &key, const QString &file, bool newValue, int groupIndex, bool updateComplated)
{
    Q_UNUSED(groupIndex)
    Q_UNUSED(updateComplated)
    TFileData *store = TFileData::instance();
    store->updateSelected(key, file, newValue);
    const bool now = store->isSelected(key, file);
    // The view may have toggled an item the store already held: show what it holds.
    const QModelIndexList found = m_itemModel->match(m_itemModel->index(0, 0),
        TImageModel::FilePathRole, file, 1, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (!found.isEmpty() && found.first().data(TImageModel::CheckedRole).toBool() != now)
        m_itemModel->setData(found.first(), now, TImageModel::CheckedRole);
    m_groupModel->refreshGroupSelection({currentGroupIndex()});
    updateSelectedAndSize();
}

void ResultForm::refreshAfterSelection()
{
    QModelIndexList shown;
    shown.reserve(m_groupModel->rowCount());
    for (int row = 0; row < m_groupModel->rowCount(); ++row)
        shown << m_groupModel->index(row, 0);
    m_groupModel->refreshGroupSelection(shown);
    m_itemModel->refreshItemSelection();
    if (m_showFilter == 1)
        applyShowFilter(m_showFilter);
    updateSelectedAndSize();
}

void ResultForm::updateSelectedAndSize()
{
    // Every change of the results passes here: a hide whose results changed since can
    // no longer be undone.
    if (m_hidden.forgetIfChanged())
        ui->lab_undo->setVisible(false);
    if (m_totalsWatcher.isRunning()) {
        m_totalsAgain = true;
        return;
    }
    TFileData *store = TFileData::instance();
    m_totalsChecked = m_isCloud;
    m_totalsWatcher.setFuture(SelectionTotals::start(
        store->selected(), m_isCloud ? TFileData::Stamps() : store->stamps(), m_isCloud, m_cloud));
}

// ----------------------------------------------------------------------------- menus

void ResultForm::onTaskContextMenuEvent()
{
    auto *action = qobject_cast<QAction *>(sender());
    if (!action)
        return;
    applySelectionRule(action->data().toInt());
}

void ResultForm::applySelectionRule(int rule)
{
    splog_d(kTag + QStringLiteral("onTaskContextMenuEvent. Role :%1").arg(rule));
    if (guardLoading())
        return;
    m_selectRule = rule;
    SelectionRule::applyToAll(rule, m_isCloud, m_cloud);
    refreshAfterSelection();
}

void ResultForm::onTaskFilterMenuEvent()
{
    auto *action = qobject_cast<QAction *>(sender());
    if (!action)
        return;
    if (guardLoading())
        return;
    for (QAction *other : m_menus->filterActions()->actions())
        other->setChecked(other == action);
    applyShowFilter(action->data().toInt());
}

void ResultForm::applyShowFilter(int mode)
{
    splog_d(kTag + QStringLiteral("onTaskFilter. Role :%1").arg(mode));
    m_showFilter = mode;
    m_itemModel->filterByShow(mode, similaritySlider()->value());
    if (m_viewMode == FlowMode) {
        splog_d(kTag
            + QStringLiteral("rebuildGroupHeadersFromImageList. images count:[%1]")
                  .arg(m_itemModel->rowCount()));
        m_imageView->doItemsLayout();
        m_imageView->viewport()->update();
    }
}

void ResultForm::onGroupContextMenu(const QPoint &pos)
{
    m_menus->showGroupMenu(pos);
}

void ResultForm::onMemberContextMenu(const QPoint &pos)
{
    auto *view = qobject_cast<QAbstractItemView *>(sender());
    if (!view)
        return;
    m_menus->showMemberMenu(view, pos);
}

void ResultForm::applySimilarityFloor(int value)
{
    if (guardLoading())
        return;
    // Groups left with fewer than two members at or above the floor leave the list.
    m_groupModel->setMinimumSimilarity(value > similaritySlider()->minimum() ? value : 0);
    loadAllData(m_category);
    applyShowFilter(m_showFilter);
}

// ----------------------------------------------------------------------------- one row

void ResultForm::onBtnHideFileClick(const QModelIndex &index)
{
    if (guardLoading() || !index.isValid())
        return;
    const QString path = index.data(TImageModel::FilePathRole).toString();
    const QString key = index.data(TImageModel::KeyRole).toString();
    splog_d(kTag + QStringLiteral("onBtnHideFileClick. file:[%1]").arg(path));
    const int row = index.row();
    const QString entry = m_hidden.hide(key, path, !m_isCloud);
    if (!m_hidden.isEmpty())
        ui->lab_undo->setText(tr("“%1” is hidden from the results. <a href=\"undo\">Undo</a>")
                                  .arg(m_hidden.lastName().toHtmlEscaped()));
    ui->lab_undo->setVisible(!m_hidden.isEmpty());
    m_changed = true;
    m_groupModel->removeDeletedFile(key, entry);
    m_itemModel->removeItem(path);
    if (m_groupModel->rowCount() > 0 && !currentGroupIndex().isValid())
        ui->listView_groups->setCurrentIndex(m_groupModel->index(0, 0));
    if (!TFileData::instance()->group(key).isEmpty() && m_itemModel->rowCount() > 0) {
        const QModelIndex next = m_itemModel->index(std::min(row, m_itemModel->rowCount() - 1), 0);
        ui->tableView_files->setCurrentIndex(next);
        m_imageView->setCurrentIndex(next);
    }
    m_loader->updateCategoryButtons(m_category);
    m_loader->updateGroupTitle();
    updateSelectedAndSize();
    startAnalytics();
}

void ResultForm::onBtnOpenFinderClick(const QModelIndex &index)
{
    if (guardLoading() || !index.isValid())
        return;
    m_showInFolder.show(index.data(TImageModel::FilePathRole).toString());
}

void ResultForm::onBtnDeletedClick(const QModelIndex &index)
{
    if (guardLoading() || !index.isValid() || isRemoving())
        return;
    const QString path = index.data(TImageModel::FilePathRole).toString();
    const QString key = index.data(TImageModel::KeyRole).toString();
    m_removal->removeOne(key, path);
}

void ResultForm::onMenuIgnoreGroup(const QString &key, int row, int count)
{
    Q_UNUSED(row)
    Q_UNUSED(count)
    splog_d(kTag + QStringLiteral("onMenuIgnoreGroup"));
    if (guardLoading() || key.isEmpty())
        return;
    GroupIgnorer::ignore(key, m_isCloud, m_cloud);
    m_changed = true;
    removeGroupFromViews(key);
}

void ResultForm::removeGroupFromViews(const QString &key)
{
    const QList<GroupItem> &shown = m_groupModel->displayedGroups();
    for (int row = 0; row < shown.size(); ++row) {
        if (shown.at(row).key == key) {
            m_groupModel->removeRows(row, 1);
            break;
        }
    }
    if (m_groupModel->rowCount() > 0)
        ui->listView_groups->setCurrentIndex(m_groupModel->index(0, 0));
    else
        loadAllData(m_category);
    m_loader->updateCategoryButtons(m_category);
    m_loader->updateGroupTitle();
    updateSelectedAndSize();
    startAnalytics();
}

void ResultForm::onMenuDeleteGroup(const QString &key, int row, int count)
{
    Q_UNUSED(row)
    if (key.isEmpty() || count < 1 || guardLoading() || isRemoving())
        return;
    m_removal->removeGroup(key);
}

// ----------------------------------------------------------------------------- removal

bool ResultForm::removesEveryCopy(
    const QHash<QString, QStringList> &groups, const QHash<QString, QStringList> &selected)
{
    return ResultRemovalRun::removesEveryCopy(groups, selected);
}

void ResultForm::on_btn_delete_clicked()
{
    if (guardLoading() || isRemoving())
        return;
    m_removal->removeSelection();
}

void ResultForm::onItemFileDeleted(int complate, int total)
{
    emit onDeleteFileProcess(complate);
    m_removal->showProgress(complate, total);
}

void ResultForm::onDeletedComplated(const QHash<QString, QStringList> &files,
    const QHash<QString, QStringList> &dirs, const QHash<QString, QStringList> &selected)
{
    Q_UNUSED(selected)
    m_removal->batchEnded(files, dirs);
}

void ResultForm::showRemoval(const QHash<QString, QStringList> &removed)
{
    const QString current = m_loader->memberKey();
    m_groupModel->removeDeletedFiles(removed);
    // Groups that the removal emptied leave the list; the others show their new members.
    loadAllData(m_category);
    for (int row = 0; row < m_groupModel->rowCount(); ++row) {
        if (m_groupModel->displayedGroups().at(row).key == current) {
            ui->listView_groups->setCurrentIndex(m_groupModel->index(row, 0));
            ui->listView_groups->scrollTo(m_groupModel->index(row, 0));
            break;
        }
    }
    m_loader->updateCategoryButtons(m_category);
    updateSelectedAndSize();
    startAnalytics();
    m_changed = true;
}

QString ResultForm::failureText(const DeleteResult &result, int method)
{
    return ResultRemovalRun::failureText(result, method);
}

qint64 ResultForm::removedBytes(const QList<DeleteResult> &results)
{
    return ResultRemovalRun::removedBytes(results);
}

// ----------------------------------------------------------------------------- chart

void ResultForm::startAnalytics()
{
    m_chartPart->start();
}

void ResultForm::bulidPieChart(const FileCategoryStatsMap &result, int count, qlonglong totalSize)
{
    m_chartPart->show(result, count, totalSize);
}

// ----------------------------------------------------------------------------- window

void ResultForm::showInfoDialog()
{
    splog_d(kTag + QStringLiteral("****************This scan is incomplete.*****************"));
    reportFeature(AppIdentity::featureIncompleteScan, QString());
    // The scan ends short only when the user stops it: the page says what that means for
    // what it shows.
    QMessageBox box(QMessageBox::Information, tr("Incomplete scan"),
        tr("The scan was stopped before it ended.<br>These results hold only what it found "
           "until then: files it had not yet compared may have copies that are not shown "
           "here.<br>Scan again and let it finish to see them all."),
        QMessageBox::Ok, this);
    box.setTextFormat(Qt::RichText);
    box.exec();
}

void ResultForm::on_btnBack_clicked()
{
    splog_d(kTag + QStringLiteral("on_btnBack_clicked"));
    m_left = true;
    disconnect(ui->btnBack, nullptr, this, nullptr);
    close();
}

void ResultForm::on_btn_over_clicked()
{
    splog_d(kTag + QStringLiteral("on_btn_over_clicked"));
}

bool ResultForm::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->tableView_files && m_memberTable->handleKey(event))
        return true;
    return QWidget::eventFilter(watched, event);
}

void ResultForm::closeEvent(QCloseEvent *event)
{
    if (isRemoving()) {
        // The batch must end (or be cancelled) before its page goes.
        m_removal->cancel();
        event->ignore();
        return;
    }
    splog_d(kTag + QStringLiteral("closeEvent."));
    QSettings().setValue(SettingsKeys::resultFormSize, size());
    m_left = true;
    QWidget::closeEvent(event);
    emit updateWindows(m_changed);
}

void ResultForm::showEvent(QShowEvent *event)
{
    if (!m_sizeRestored) {
        m_sizeRestored = true;
        const QScreen *screen = this->screen() ? this->screen() : QGuiApplication::primaryScreen();
        const QRect available = screen->availableGeometry();
        const QSize stored = QSettings().value(SettingsKeys::resultFormSize).toSize();
        // A size saved on a larger screen is not brought back: the window's own, fitted to
        // this screen, serves instead.
        QSize wanted = size();
        if (stored.isValid() && stored.width() <= available.width()
            && stored.height() <= available.height())
            wanted = stored;
        wanted = wanted.expandedTo(minimumSize()).boundedTo(available.size());
        resize(wanted);
        move(available.center() - QPoint(wanted.width() / 2, wanted.height() / 2));
    }
    QWidget::showEvent(event);
}

void ResultForm::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void ResultForm::retranslate()
{
    ui->retranslateUi(this);
    setTitle();
    m_menus->retranslate();
    if (m_loader->isLoaded())
        m_loader->updateCategoryButtons(m_category);
    m_loader->updateGroupTitle();
}
