// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultForm.h"

#include "app/AppIdentity.h"
#include "app/FeatureReporter.h"
#include "app/FileTypeCatalogue.h"
#include "app/LanguageSetup.h"
#include "app/SettingsKeys.h"
#include "app/TLogger.h"
#include "cloud/KvCloudObject.h"
#include "engine/FileStamp.h"
#include "engine/GroupItemAutoSelector.h"
#include "engine/TFileData.h"
#include "fileops/RemovalCheck.h"
#include "fileops/RemovalJournal.h"
#include "fileops/RemovalRequest.h"
#include "fileops/TImageDeleteWorker.h"
#include "platform/Platform.h"
#include "preferences/DFGenernalPreferences.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "preferences/DFSelectionPreferences.h"
#include "results/GroupRowDelegate.h"
#include "results/PathElider.h"
#include "results/RemovalSummaryDialog.h"
#include "results/TImageListView.h"
#include "results/TTableViewDelegate.h"
#include "ui_ResultForm.h"
#include "widgets/CustomProgressDialog.h"

#include <QActionGroup>
#include <QButtonGroup>
#include <QChart>
#include <QChartView>
#include <QCloseEvent>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGraphicsLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPieSeries>
#include <QPieSlice>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QSettings>
#include <QSlider>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <QWidgetAction>
#include <QtConcurrent>

namespace {

const QString kTag = QStringLiteral("[TResultForm]: ");
// Groups handed to the views per batch, and the time one turn of the event loop may
// spend on them, so that the window keeps answering while a large result loads.
constexpr int kBatchSize = 100;
constexpr int kBatchBudgetMs = 12;

// Caption of a category button.
QString categoryTitle(int code)
{
    switch (code) {
    case CategoryImages:
        return ResultForm::tr("Images");
    case CategoryDocuments:
        return ResultForm::tr("Documents");
    case CategoryAudio:
        return ResultForm::tr("Music");
    case CategoryVideos:
        return ResultForm::tr("Videos");
    case CategoryFolders:
        return ResultForm::tr("Folders");
    case 8:
        return ResultForm::tr("Packages");
    default:
        return ResultForm::tr("Others");
    }
}

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

ResultForm::ResultForm(QWidget *parent, bool isCloud, KvCloudObject *cloud)
    : QWidget(parent)
    , ui(new Ui::ResultForm)
    , m_groupModel(new TImageModel(TImageModel::ListView, 50))
    , m_itemModel(new TImageModel(TImageModel::IconView, 300))
    , m_pieChart(new TPieChart(this))
    , m_isCloud(isCloud)
    , m_cloud(cloud)
{
    ui->setupUi(this);
    connect(m_pieChart, &TPieChart::statsReady, this, &ResultForm::bulidPieChart);
    connect(&m_buildWatcher, &QFutureWatcherBase::finished, this, [this] {
        m_loadSums = m_buildWatcher.result();
        m_pendingGroups = std::move(m_loadSums.groups);
        m_loadSums.groups.clear();
        m_nextBatch = 0;
        feedBatches();
    });
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
    connect(&m_memberWatcher, &QFutureWatcherBase::finished, this, [this] {
        if (!m_memberWatcher.isCanceled())
            showMembers(m_members);
    });
    if (m_isCloud && m_cloud) {
        connect(m_cloud, &KvCloudObject::onDeletedCloudGroupComplated, this,
            [this](const QStringList &deleted) { onCloudRemovalDone(deleted); });
        connect(m_cloud, &KvCloudObject::onDeletedCloudOneFileComplated, this,
            [this](const QStringList &deleted) { onCloudRemovalDone(deleted); });
        connect(
            m_cloud, &KvCloudObject::onDeletedCloudError, this, &ResultForm::onDeletedCloudError);
        connect(m_cloud, &KvCloudObject::deleteProgress, this, &ResultForm::onItemFileDeleted);
    }
    initUI();
    initMenu();
    initDelButtonMenu();
    setTitle();
    loadAllGroupsAsync();
}

ResultForm::~ResultForm()
{
    splog_d(kTag + QStringLiteral("~ResultForm()"));
    m_memberWatcher.cancel();
    m_memberWatcher.waitForFinished();
    m_totalsWatcher.waitForFinished();
    m_buildWatcher.waitForFinished();
    if (m_chart)
        m_chart->removeAllSeries();
    delete ui;
    delete m_groupModel;
    delete m_itemModel;
}

// ----------------------------------------------------------------------------- building

void ResultForm::initUI()
{
    setWindowFlag(Qt::Window);
    setMinimumSize(1000, 600);

    auto *categories = new QButtonGroup(this);
    for (QPushButton *button : {ui->btn_all, ui->btn_image, ui->btn_document, ui->btn_music,
             ui->btn_videos, ui->btn_archives, ui->btn_packages, ui->btn_others})
        categories->addButton(button);
    categories->setExclusive(true);
    ui->btn_all->setChecked(true);

    auto *modes = new QButtonGroup(this);
    for (QToolButton *button : {ui->btn_right_list, ui->btn_right_grid, ui->btn_right_flow}) {
        modes->addButton(button);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setAutoRaise(true);
    }
    ui->btn_right_list->setIcon(style()->standardIcon(QStyle::SP_FileDialogDetailedView));
    ui->btn_right_grid->setIcon(style()->standardIcon(QStyle::SP_FileDialogListView));
    ui->btn_right_flow->setIcon(style()->standardIcon(QStyle::SP_FileDialogContentsView));
    ui->btnBack->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    ui->btn_save->setIcon(style()->standardIcon(QStyle::SP_DialogSaveButton));
    ui->lab_undo->setVisible(false);
    connect(ui->lab_undo, &QLabel::linkActivated, this, [this] { undoHide(); });
    // Cloud results cannot be saved as a project.
    ui->btn_save->setVisible(!m_isCloud);
    connect(ui->btn_save, &QPushButton::clicked, this, &ResultForm::saveRequested);

    ui->listView_groups->setModel(m_groupModel);
    ui->listView_groups->setItemDelegate(new GroupRowDelegate(ui->listView_groups));
    ui->listView_groups->setSelectionMode(QAbstractItemView::SingleSelection);
    // Laid out a slice at a time: a list of a hundred thousand groups would otherwise
    // hold the window for the whole layout after every reset.
    ui->listView_groups->setLayoutMode(QListView::Batched);
    ui->listView_groups->setBatchSize(2000);
    connect(ui->listView_groups->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &ResultForm::groupSelectionChanged);
    connect(ui->listView_groups, &QWidget::customContextMenuRequested, this,
        &ResultForm::onGroupContextMenu);

    QTableView *table = ui->tableView_files;
    table->setModel(m_itemModel);
    auto *delegate = new TTableViewDelegate(table);
    table->setItemDelegate(delegate);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(30);
    table->setTextElideMode(Qt::ElideMiddle);
    table->setWordWrap(false);
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    QHeaderView *header = table->horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionResizeMode(QHeaderView::Interactive);
    // The name keeps a fixed share; the folder, where copies differ, takes the rest.
    header->setSectionResizeMode(TImageModel::NameColumn, QHeaderView::Interactive);
    table->setColumnWidth(TImageModel::NameColumn, 220);
    for (int column : {0, 4, 5}) {
        header->setSectionResizeMode(column, QHeaderView::Fixed);
        table->setColumnWidth(column, 40);
    }
    table->setColumnWidth(TImageModel::SizeColumn, 90);
    table->setColumnWidth(TImageModel::DateColumn, 150);
    // Where each copy lives, right after its name; any of the four text columns sorts the
    // list, a second click the other way round.
    header->moveSection(TImageModel::FolderColumn, TImageModel::SizeColumn);
    header->setSectionResizeMode(TImageModel::FolderColumn, QHeaderView::Stretch);
    header->setSectionsClickable(true);
    header->setSortIndicatorShown(false);
    connect(header, &QHeaderView::sectionClicked, this, [this, header](int column) {
        const bool sortable = column == TImageModel::NameColumn || column == TImageModel::SizeColumn
            || column == TImageModel::DateColumn || column == TImageModel::FolderColumn;
        if (sortable) {
            m_fileSortOrder = column == m_fileSortColumn && m_fileSortOrder == Qt::AscendingOrder
                ? Qt::DescendingOrder
                : Qt::AscendingOrder;
            m_fileSortColumn = column;
            m_itemModel->sort(column, m_fileSortOrder);
        }
        // The header turns its indicator on every click; it shows the list's order.
        header->setSortIndicatorShown(m_fileSortColumn >= 0);
        header->setSortIndicator(m_fileSortColumn, m_fileSortOrder);
    });
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

    ui->comboBox->setCurrentIndex(BySize);
    ui->splitter_2->setStretchFactor(0, 0);
    ui->splitter_2->setStretchFactor(1, 1);
    ui->splitter_2->setStretchFactor(2, 0);
    ui->splitter_2->setSizes({320, 700, 280});
    ui->lab_problems->hide();
    connect(ui->lab_problems, &QLabel::linkActivated, this, &ResultForm::problemDetailsRequested);
    ui->btn_delete->setPopupMode(QToolButton::MenuButtonPopup);
    ui->btn_delete->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    ui->btn_delete->setIcon(style()->standardIcon(QStyle::SP_TrashIcon));
    ui->btn_delete->setEnabled(false);
    ui->btn_select->setPopupMode(QToolButton::InstantPopup);
    ui->btn_filter->setPopupMode(QToolButton::InstantPopup);
    for (QToolButton *button : {ui->btn_select, ui->btn_filter}) {
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        // Room for the menu arrow beside the text rather than over it.
        button->setStyleSheet(
            QStringLiteral("QToolButton { padding: 3px 18px 3px 10px; }"
                           "QToolButton::menu-indicator { subcontrol-origin: padding;"
                           " subcontrol-position: center right; right: 5px; }"));
    }
    ui->lab_preview->setMinimumSize(200, 200);
    ui->horizontalSlider->setMinimumWidth(90);
    // The group's title has a line of its own above the view's tools: long names and long
    // translations of the tools then never squeeze each other.
    ui->horizontalLayout_members->removeWidget(ui->lab_group_title);
    ui->verticalLayout_members->insertWidget(0, ui->lab_group_title);
    ui->lab_group_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QFont titleFont = ui->lab_group_title->font();
    titleFont.setBold(true);
    ui->lab_group_title->setFont(titleFont);
    setViewMode(GridMode);
}

void ResultForm::initMenu()
{
    m_selectMenu = new QMenu(this);
    m_selectMenu->setObjectName(QStringLiteral("menu_select"));
    const QList<QPair<const char *, int>> rules = {
        {QT_TR_NOOP("Select by Filename"), GroupItemAutoSelector::autoSelect},
        {QT_TR_NOOP("Select by Priority"), GroupItemAutoSelector::selectPriority},
        {QT_TR_NOOP("Select Newest"), GroupItemAutoSelector::selectNewest},
        {QT_TR_NOOP("Select Oldest"), GroupItemAutoSelector::selectOldest},
        {QT_TR_NOOP("Select high-quality"), GroupItemAutoSelector::selectHighQuality},
        {QT_TR_NOOP("Select low-quality"), GroupItemAutoSelector::selectLowQuality},
        {QT_TR_NOOP("Select high-resolution"), GroupItemAutoSelector::selectHighResolution},
        {QT_TR_NOOP("Select low-resolution"), GroupItemAutoSelector::selectLowResolution},
        {QT_TR_NOOP("Select All"), GroupItemAutoSelector::selectAllFiles},
        {QT_TR_NOOP("Deselect"), GroupItemAutoSelector::deselectAll},
    };
    for (const auto &[text, rule] : rules) {
        if (rule == GroupItemAutoSelector::selectAllFiles)
            m_selectMenu->addSeparator();
        QAction *action = m_selectMenu->addAction(tr(text));
        action->setData(rule);
        action->setProperty("sourceText", QString::fromLatin1(text));
        connect(action, &QAction::triggered, this, &ResultForm::onTaskContextMenuEvent);
    }
    ui->btn_select->setMenu(m_selectMenu);

    m_filterMenu = new QMenu(this);
    m_filterMenu->setObjectName(QStringLiteral("menu_filter"));
    m_filterActions = new QActionGroup(this);
    m_filterActions->setExclusive(true);
    const QList<QPair<const char *, int>> filters = {
        {QT_TR_NOOP("Show Only Duplicate Files"), 0},
        {QT_TR_NOOP("Show Only Selected Files"), 1},
        {QT_TR_NOOP("Show All Files"), 2},
    };
    for (const auto &[text, mode] : filters) {
        QAction *action = m_filterMenu->addAction(tr(text));
        action->setCheckable(true);
        action->setData(mode);
        action->setProperty("sourceText", QString::fromLatin1(text));
        action->setChecked(mode == 2);
        m_filterActions->addAction(action);
        connect(action, &QAction::triggered, this, &ResultForm::onTaskFilterMenuEvent);
    }
    m_filterMenu->addSeparator();

    // The slider never goes below the threshold the scan used: lower values would
    // promise pictures the scan never compared.
    const int threshold
        = std::clamp(DFPreferences::instance()->generalPreferences()->SimilarityValue(), 1, 100);
    auto *line = new QWidget(m_filterMenu);
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(12, 6, 12, 6);
    auto *title = new QLabel(tr("Similarity"), line);
    title->setObjectName(QStringLiteral("lab_similarity"));
    m_similaritySlider = new QSlider(Qt::Horizontal, line);
    m_similaritySlider->setObjectName(QStringLiteral("slider_similarity"));
    m_similaritySlider->setRange(threshold, 100);
    m_similaritySlider->setValue(threshold);
    m_similaritySlider->setMinimumWidth(140);
    m_similaritySlider->setStyleSheet(QStringLiteral(
        "QSlider::groove:horizontal { height: 4px; background: #d0d0d0; border-radius: 2px; }"
        "QSlider::sub-page:horizontal { background: #3b99fc; border-radius: 2px; }"
        "QSlider::handle:horizontal { background: white; border: 1px solid #3b99fc;"
        " width: 12px; margin: -5px 0; border-radius: 6px; }"));
    auto *value = new QLabel(QString::number(threshold), line);
    value->setObjectName(QStringLiteral("lab_similarity_value"));
    value->setMinimumWidth(30);
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout->addWidget(title);
    layout->addWidget(m_similaritySlider, 1);
    layout->addWidget(value);
    auto *holder = new QWidgetAction(m_filterMenu);
    holder->setDefaultWidget(line);
    m_filterMenu->addAction(holder);
    connect(m_similaritySlider, &QSlider::valueChanged, this, [this, value](int v) {
        value->setText(QString::number(v));
        if (guardLoading())
            return;
        // Groups left with fewer than two members at or above the floor leave the list.
        m_groupModel->setMinimumSimilarity(v > m_similaritySlider->minimum() ? v : 0);
        loadAllData(m_category);
        applyShowFilter(m_showFilter);
    });
    ui->btn_filter->setMenu(m_filterMenu);
}

void ResultForm::initDelButtonMenu()
{
    m_deleteMenu = new QMenu(this);
    m_deleteMenu->setObjectName(QStringLiteral("menu_delete"));
    m_actTrash = m_deleteMenu->addAction(tr("Move to Recycle Bin"));
    m_actPermanent = m_deleteMenu->addAction(tr("Remove permanently"));
    m_actFolder = m_deleteMenu->addAction(tr("Move to Folder"));
    for (QAction *action : {m_actTrash, m_actPermanent, m_actFolder})
        action->setCheckable(true);
    m_actTrash->setData(DFIgnoreListPreferences::moveToTrash);
    m_actPermanent->setData(DFIgnoreListPreferences::removePermanently);
    m_actFolder->setData(DFIgnoreListPreferences::moveToFolder);

    DFIgnoreListPreferences *prefs = DFPreferences::instance()->ignoreListPreferences();
    switch (prefs->RemovealMethod()) {
    case DFIgnoreListPreferences::removePermanently:
        setActiveDeleteAction(m_actPermanent);
        break;
    case DFIgnoreListPreferences::moveToFolder:
        setActiveDeleteAction(m_actFolder);
        break;
    default:
        setActiveDeleteAction(m_actTrash);
    }

    connect(m_actTrash, &QAction::triggered, this, [this, prefs] {
        prefs->setRemovealMethod(DFIgnoreListPreferences::moveToTrash);
        DFPreferences::instance()->save();
        setActiveDeleteAction(m_actTrash);
        on_btn_delete_clicked();
    });
    connect(m_actPermanent, &QAction::triggered, this, [this, prefs] {
        prefs->setRemovealMethod(DFIgnoreListPreferences::removePermanently);
        DFPreferences::instance()->save();
        setActiveDeleteAction(m_actPermanent);
        on_btn_delete_clicked();
    });
    connect(m_actFolder, &QAction::triggered, this, [this, prefs] {
        QString folder = prefs->TrashFolder();
        if (folder.isEmpty() || !QFileInfo(folder).isDir()) {
            QAction *previous = m_activeDeleteAction;
            folder = QFileDialog::getExistingDirectory(this, tr("Select Folder"),
                QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
            if (folder.isEmpty()) {
                setActiveDeleteAction(previous);
                return;
            }
            prefs->setTrashFolder(folder);
        }
        prefs->setRemovealMethod(DFIgnoreListPreferences::moveToFolder);
        setActiveDeleteAction(m_actFolder);
        on_btn_delete_clicked();
    });
    ui->btn_delete->setMenu(m_deleteMenu);
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
    // A checkable action checks itself when triggered, even when the choice is then
    // cancelled: every other one is cleared here, not only the previous one.
    for (QAction *action : m_deleteMenu->actions()) {
        if (action != newAction) {
            action->setChecked(false);
            action->setIcon(QIcon());
        }
    }
    m_activeDeleteAction = newAction;
    if (newAction) {
        // The style sheet draws a checked item's indicator with ":/resource/check.svg"; an
        // icon of its own would take the indicator's place and hide the mark.
        newAction->setChecked(true);
    }
    // The button says what a click does.
    if (newAction == m_actPermanent) {
        ui->btn_delete->setText(tr("Remove permanently…"));
        ui->btn_delete->setIcon(style()->standardIcon(QStyle::SP_DialogDiscardButton));
    } else if (newAction == m_actFolder) {
        ui->btn_delete->setText(tr("Move to folder…"));
        ui->btn_delete->setIcon(style()->standardIcon(QStyle::SP_DirIcon));
    } else {
        ui->btn_delete->setText(tr("Remove Selected"));
        ui->btn_delete->setIcon(style()->standardIcon(QStyle::SP_TrashIcon));
    }
}

void ResultForm::setProblemText(const QString &html)
{
    ui->lab_problems->setText(html);
    ui->lab_problems->setVisible(!html.isEmpty());
}

// ----------------------------------------------------------------------------- loading

bool ResultForm::guardLoading()
{
    if (m_dataLoaded)
        return false;
    QMessageBox::warning(this, tr("Loading Data"), tr("Data is still loading, please wait..."));
    return true;
}

void ResultForm::loadAllGroupsAsync()
{
    if (m_buildWatcher.isRunning())
        return;
    m_dataLoaded = false;
    m_pendingGroups.clear();
    m_nextBatch = 0;
    m_groupModel->clear();
    ui->progressBar_loading->setValue(0);
    ui->stackedWidget->setCurrentWidget(ui->page_loading);
    const SortRole role = SortRole(ui->comboBox->currentIndex());
    const bool isCloud = m_isCloud;
    KvCloudObject *cloud = m_cloud;
    // Building reads the disk for every group, so it runs on the pool; the views then
    // take the sorted groups in batches.
    m_buildWatcher.setFuture(QtConcurrent::run([isCloud, cloud, role] {
        TImageModel::BuiltGroups built = TImageModel::buildAllGroups(isCloud, cloud);
        TImageModel::sortGroups(built.groups, role, true);
        return built;
    }));
}

void ResultForm::feedBatches()
{
    // As many batches as fit in this turn's budget; the rest in the next turns.
    QElapsedTimer turn;
    turn.start();
    const qsizetype total = m_pendingGroups.size();
    while (m_nextBatch * kBatchSize < total) {
        const qsizetype begin = m_nextBatch * kBatchSize;
        const qsizetype end = std::min<qsizetype>(begin + kBatchSize, total);
        m_groupModel->appendGroups(m_pendingGroups.mid(begin, end - begin));
        ++m_nextBatch;
        const int progress = int(end * 100 / total);
        emit onLoadProgress(progress);
        ui->progressBar_loading->setValue(progress);
        if (begin == 0) {
            ui->stackedWidget->setCurrentWidget(ui->page_result);
            ui->listView_groups->setCurrentIndex(m_groupModel->index(0, 0));
        }
        if (turn.elapsed() >= kBatchBudgetMs && end < total) {
            updateGroupTitle();
            QTimer::singleShot(0, this, &ResultForm::feedBatches);
            return;
        }
    }
    m_pendingGroups.clear();
    m_pendingGroups.squeeze();
    onLoadComplated(m_loadSums.selectedCount, m_loadSums.totalSize, 100);
}

void ResultForm::onLoadComplated(int selectCount, qlonglong selectSize, int progress)
{
    Q_UNUSED(selectCount)
    Q_UNUSED(selectSize)
    Q_UNUSED(progress)
    m_dataLoaded = true;
    ui->stackedWidget->setCurrentWidget(ui->page_result);
    updateCategoryButtons();
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
    updateGroupTitle();
    if (m_groupModel->rowCount() > 0) {
        // The group on show stays on show (and highlighted) while it is in the list.
        showGroupRow(std::max(0, rowOfGroup(m_memberKey)));
    } else {
        m_memberWatcher.cancel();
        m_memberKey.clear();
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
    const HiddenFile hidden = m_hidden.takeLast();
    TFileData *store = TFileData::instance();
    ui->lab_undo->setVisible(false);
    if (store->revision() != hidden.revision)
        return;
    // The group as it was, whether the hide left it smaller or took it off the list.
    if (hidden.folders.isEmpty())
        store->replaceGroup(hidden.key, hidden.members);
    else
        store->insertDirGroup(hidden.key, hidden.folders);
    store->setGroupMatch(hidden.key, TFileData::GroupMatch(hidden.match));
    if (hidden.selection.isEmpty())
        store->removeSelected(hidden.key);
    else
        store->setSelected(hidden.key, hidden.selection);
    splog_d(kTag + QStringLiteral("undoHide. group:[%1]").arg(hidden.key));
    m_groupModel->reloadGroup(hidden.key);
    m_memberKey = hidden.key;
    loadAllData(m_category);
    updateCategoryButtons();
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

void ResultForm::updateCategoryButtons()
{
    QHash<int, QPair<int, qint64>> byType;
    qint64 all = 0;
    for (const GroupItem &group : m_groupModel->allGroups()) {
        auto &entry = byType[group.type];
        ++entry.first;
        entry.second += group.totalSize;
        all += group.totalSize;
    }
    const auto label = [](const QString &name, int groups, qint64 bytes) {
        return QStringLiteral("%1  %2 · %3")
            .arg(name)
            .arg(groups)
            .arg(TImageModel::sizeText(bytes));
    };
    ui->btn_all->setText(label(tr("All"), int(m_groupModel->allGroups().size()), all));
    const QList<QPair<QPushButton *, int>> buttons = {{ui->btn_image, CategoryImages},
        {ui->btn_document, CategoryDocuments}, {ui->btn_music, CategoryAudio},
        {ui->btn_videos, CategoryVideos}, {ui->btn_archives, CategoryFolders},
        {ui->btn_packages, 8}, {ui->btn_others, CategoryOthers}};
    for (const auto &[button, code] : buttons) {
        const auto entry = byType.value(code);
        button->setText(label(categoryTitle(code), entry.first, entry.second));
        // Empty categories stay out of the way, unless the user is looking at one.
        button->setVisible(entry.first > 0 || m_category == code);
    }
}

void ResultForm::updateGroupTitle()
{
    const int shown = m_groupModel->rowCount();
    QString text = tr("%n group(s)", nullptr, shown);
    if (!m_dataLoaded)
        text += QStringLiteral(" · ") + tr("loading…");
    ui->lab_groups_title->setText(text);
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
    if (!m_dataLoaded)
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
        showGroupRow(std::max(0, rowOfGroup(m_memberKey)));
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
    loadGroupMembers(m_groupModel->displayedGroups().at(index.row()));
}

void ResultForm::loadGroupMembers(const GroupItem &group)
{
    // A newer pick replaces the fill of the previous one.
    m_memberWatcher.cancel();
    m_memberWatcher.waitForFinished();
    m_memberKey = group.key;
    m_members.clear();
    m_members.reserve(group.files.size());
    for (const QString &entry : group.files)
        m_members.append(IndexFileGroup {group.key, entry});
    const QHash<QString, DirGroupEntry> folders = [&group] {
        QHash<QString, DirGroupEntry> byPath;
        for (const DirGroupEntry &entry : TFileData::instance()->dirGroup(group.key))
            byPath.insert(entry.folderPath, entry);
        return byPath;
    }();
    const bool isCloud = m_isCloud;
    KvCloudObject *cloud = m_cloud;
    m_memberWatcher.setFuture(
        QtConcurrent::map(m_members, [folders, isCloud, cloud](IndexFileGroup &member) {
            member.path = stripSimilarTag(member.entry);
            // Identical copies are as similar as files can be: the slider's floor never
            // hides them, nor the picture the others were compared with.
            member.similarity = TImageModel::shownSimilarity(member.entry);
            if (isCloud) {
                auto property = [cloud, &member](const char *name) {
                    return TImageModel::cloudProperty(
                        cloud, member.path, QString::fromLatin1(name));
                };
                member.name = property("name").toString();
                member.size = property("size").toLongLong();
                member.createdTime = property("createdTime").toString();
                member.mimeType = property("mimeType").toString();
                member.cloudPath = property("cloudPath").toString();
                if (const int similar = property("similarValue").toInt())
                    member.similarity = similar;
                return;
            }
            const QFileInfo info(member.path);
            member.name = info.fileName();
            const auto folder = folders.constFind(member.path);
            if (folder != folders.cend()) {
                member.size = folder->totalSize;
                return;
            }
            // Read through the path codec: a name that is not valid UTF-8 still shows
            // its real size and date.
            const FileStamp stamp = FileStamp::of(member.path);
            member.size = stamp.isValid() ? stamp.size : 0;
            if (stamp.isValid())
                member.createdTime = QDateTime::fromMSecsSinceEpoch(stamp.modifiedNs / 1'000'000)
                                         .toString(QStringLiteral("yyyy/MM/dd HH:mm:ss"));
        }));
}

void ResultForm::showMembers(const QList<IndexFileGroup> &members)
{
    int groupIndex = currentGroupIndex().row();
    TFileData *store = TFileData::instance();
    const QStringList selected = store->selectedOf(m_memberKey);
    const TFileData::GroupMatch match = store->groupMatch(m_memberKey);
    const bool unverified = match != TFileData::MatchContent;
    QList<ImageItem> items;
    items.reserve(members.size());
    QStringList folders;
    for (const IndexFileGroup &member : members)
        folders.append(QDir::toNativeSeparators(QFileInfo(member.path).path()));
    const int distinctFrom = PathElider::distinctFrom(folders);
    for (const IndexFileGroup &member : members) {
        ImageItem item;
        item.key = member.key;
        item.groupIndex = groupIndex;
        item.path = member.path;
        item.size = member.size;
        item.dateText = member.createdTime;
        item.checked = selected.contains(member.path) || selected.contains(member.entry);
        item.type = m_isCloud ? getFileType(QFileInfo(member.name).suffix())
                              : getPathCategory(member.path);
        item.similarity = member.similarity;
        item.unverified = unverified;
        item.distinctFrom = distinctFrom;
        item.displayName = member.name;
        if (isSimilarEntry(member.entry))
            item.extra = similarityOfEntry(member.entry) == 0
                ? tr("the picture compared with")
                : tr("%1% similar").arg(member.similarity);
        else if (unverified)
            item.extra = tr("not verified");
        items.append(item);
    }
    m_itemModel->setItems(items);
    // The order the user chose for the list holds for every group.
    if (m_fileSortColumn >= 0)
        m_itemModel->sort(m_fileSortColumn, m_fileSortOrder);
    if (m_showFilter != 2 || m_similaritySlider->value() > m_similaritySlider->minimum())
        m_itemModel->filterByShow(m_showFilter, m_similaritySlider->value());
    ui->stackedWidget_members->setCurrentWidget(
        m_viewMode == ListMode ? ui->page_list : ui->page_grid);
    updateGroupTitle();
    const int row = currentGroupIndex().row();
    if (row >= 0 && row < m_groupModel->displayedGroups().size()) {
        const GroupItem &group = m_groupModel->displayedGroups().at(row);
        QString title = tr("%1 · %n copies · %2", nullptr, group.count)
                            .arg(group.name, TImageModel::sizeText(group.totalSize));
        if (match == TFileData::MatchSampled)
            title += tr(" · not verified: only parts of the files were compared");
        else if (match == TFileData::MatchName)
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
    if (!m_hidden.isEmpty() && TFileData::instance()->revision() != m_hidden.last().revision) {
        m_hidden.clear();
        ui->lab_undo->setVisible(false);
    }
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
    const TFileData::Groups groups = TFileData::instance()->groups();
    QList<QPair<QString, QStringList>> pairs;
    pairs.reserve(groups.size());
    for (auto it = groups.cbegin(); it != groups.cend(); ++it)
        pairs.append({it.key(), it.value()});
    // Folder groups follow the rule too: their members are their folders.
    const TFileData::DirGroups folders = TFileData::instance()->dirGroups();
    for (auto it = folders.cbegin(); it != folders.cend(); ++it) {
        QStringList paths;
        for (const DirGroupEntry &entry : it.value())
            paths.append(entry.folderPath);
        pairs.append({it.key(), paths});
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    CloudPropertyReader reader;
    if (m_isCloud) {
        KvCloudObject *cloud = m_cloud;
        reader = [cloud](const QString &entry, const QString &name) {
            return TImageModel::cloudProperty(cloud, entry, name);
        };
    }
    GroupItemAutoSelector::autoSelectAllEx(
        pairs, rule, reader, DFPreferences::instance()->selectionPreferences()->mapPriority());
    QApplication::restoreOverrideCursor();
    refreshAfterSelection();
}

void ResultForm::onTaskFilterMenuEvent()
{
    auto *action = qobject_cast<QAction *>(sender());
    if (!action)
        return;
    if (guardLoading())
        return;
    for (QAction *other : m_filterActions->actions())
        other->setChecked(other == action);
    applyShowFilter(action->data().toInt());
}

void ResultForm::applyShowFilter(int mode)
{
    splog_d(kTag + QStringLiteral("onTaskFilter. Role :%1").arg(mode));
    m_showFilter = mode;
    m_itemModel->filterByShow(mode, m_similaritySlider->value());
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
    const QModelIndex index = ui->listView_groups->indexAt(pos);
    if (!index.isValid())
        return;
    const QString key = index.data(TImageModel::KeyRole).toString();
    const int count = index.data(TImageModel::CountRole).toInt();
    QMenu menu(this);
    menu.addAction(tr("Ignore Group"), this,
        [this, key, index, count] { onMenuIgnoreGroup(key, index.row(), count); });
    QAction *remove = menu.addAction(tr("Remove Selected Files of This Group"), this,
        [this, key, index, count] { onMenuDeleteGroup(key, index.row(), count); });
    remove->setEnabled(index.data(TImageModel::SelectedCountRole).toInt() > 0);
    menu.exec(ui->listView_groups->viewport()->mapToGlobal(pos));
}

void ResultForm::onMemberContextMenu(const QPoint &pos)
{
    auto *view = qobject_cast<QAbstractItemView *>(sender());
    if (!view)
        return;
    const QModelIndex index = view->indexAt(pos);
    if (!index.isValid())
        return;
    const QPersistentModelIndex member(index);
    QMenu menu(this);
    menu.addAction(tr("Show in Folder"), this, [this, member] { onBtnOpenFinderClick(member); });
    menu.addAction(tr("Hide from Results"), this, [this, member] { onBtnHideFileClick(member); });
    menu.addSeparator();
    menu.addAction(style()->standardIcon(QStyle::SP_TrashIcon), tr("Remove This File"), this,
        [this, member] { onBtnDeletedClick(member); });
    menu.exec(view->viewport()->mapToGlobal(pos));
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
    QString entry = path;
    for (const QString &member : TFileData::instance()->group(key))
        if (stripSimilarTag(member) == path)
            entry = member;
    TFileData *store = TFileData::instance();
    HiddenFile hidden {key, QFileInfo(path).fileName(), store->group(key), store->selectedOf(key),
        store->dirGroup(key), int(store->groupMatch(key)), 0};
    store->removePath(key, entry);
    // Undo puts back exactly what was there, so it is offered only until anything else
    // changes the results. Cloud groups are not rebuilt here.
    hidden.revision = store->revision();
    m_hidden.clear();
    if (!m_isCloud) {
        m_hidden.append(hidden);
        ui->lab_undo->setText(tr("“%1” is hidden from the results. <a href=\"undo\">Undo</a>")
                                  .arg(hidden.name.toHtmlEscaped()));
    }
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
    updateCategoryButtons();
    updateGroupTitle();
    updateSelectedAndSize();
    startAnalytics();
}

void ResultForm::onBtnOpenFinderClick(const QModelIndex &index)
{
    if (guardLoading() || !index.isValid())
        return;
    const QString path = index.data(TImageModel::FilePathRole).toString();
    if (m_isCloud) {
        const QString link
            = TImageModel::cloudProperty(m_cloud, path, QStringLiteral("webViewLink")).toString();
        if (link.isEmpty()) {
            splog_d(
                kTag + QStringLiteral("onBtnOpenFinderClick. webLink is empty. file:%1").arg(path));
            QMessageBox::warning(
                this, tr("Open Link Failed"), tr("Failed to get the web link for the file."));
            return;
        }
        QDesktopServices::openUrl(QUrl(link));
        return;
    }
    const QFileInfo info(path);
    if (!info.exists()) {
        splog_d(kTag + QStringLiteral("onBtnOpenFinderClick. File does not exist:%1").arg(path));
        QMessageBox::warning(this, tr("Show in Folder"), tr("The file was not found."));
        return;
    }
    // The file manager selects the file when it offers that; otherwise its folder opens.
    const QString uri = QUrl::fromLocalFile(info.absoluteFilePath()).toString(QUrl::FullyEncoded);
    const std::vector<std::string> command = platform::current().showItemCommand(
        info.absoluteFilePath().toStdString(), uri.toStdString());
    const QUrl folder = QUrl::fromLocalFile(info.absolutePath());
    if (command.empty()) {
        QDesktopServices::openUrl(folder);
        return;
    }
    auto *process = new QProcess(this);
    QStringList arguments;
    for (size_t i = 1; i < command.size(); ++i)
        arguments << QString::fromStdString(command[i]);
    connect(process, &QProcess::finished, this,
        [process, folder](int code, QProcess::ExitStatus status) {
            if (code != 0 || status != QProcess::NormalExit)
                QDesktopServices::openUrl(folder);
            process->deleteLater();
        });
    connect(
        process, &QProcess::errorOccurred, this, [process, folder](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart) {
                QDesktopServices::openUrl(folder);
                process->deleteLater();
            }
        });
    process->start(QString::fromStdString(command.front()), arguments);
}

void ResultForm::onBtnDeletedClick(const QModelIndex &index)
{
    if (guardLoading() || !index.isValid() || isRemoving())
        return;
    const QString path = index.data(TImageModel::FilePathRole).toString();
    const QString key = index.data(TImageModel::KeyRole).toString();
    const auto [method, folder] = removalMethod();
    splog_d(kTag
        + QStringLiteral("onBtnDeletedClick. DeleteMode:%1. Remove Path:%2. File:%3")
              .arg(method)
              .arg(folder, path));
    if (m_isCloud) {
        startCloudRemoval({{key, {path}}}, CloudOne);
        return;
    }
    if (method == DFIgnoreListPreferences::removePermanently && !confirmRemoval({{key, {path}}}))
        return;
    const QList<DeleteResult> results = removeNow({{key, {path}}});
    const bool removed = std::any_of(results.cbegin(), results.cend(),
        [](const DeleteResult &r) { return r.success && r.errorCode == DeleteResult::NoError; });
    if (!removed) {
        const DeleteResult failed = results.isEmpty()
            ? DeleteResult {path, false, DeleteResult::RemovalFailed}
            : results.first();
        QMessageBox::warning(this, tr("Delete Failed"),
            tr("Failed to delete the file: %1").arg(failureText(failed, method)));
        return;
    }
    splog_d(kTag + QStringLiteral("Successfully deleted file: [%1].").arg(path));
}

void ResultForm::onMenuIgnoreGroup(const QString &key, int row, int count)
{
    Q_UNUSED(row)
    Q_UNUSED(count)
    splog_d(kTag + QStringLiteral("onMenuIgnoreGroup"));
    if (guardLoading() || key.isEmpty())
        return;
    QStringList members = TFileData::instance()->group(key);
    for (const DirGroupEntry &entry : TFileData::instance()->dirGroup(key))
        members.append(entry.folderPath);
    stripSimilarTag(members);
    DFIgnoreListPreferences *prefs = DFPreferences::instance()->ignoreListPreferences();
    QStringList ignored = prefs->IgnorePathFile();
    for (const QString &member : std::as_const(members)) {
        const QString entry = m_isCloud && m_cloud
            ? QStringLiteral("%1:%2:%3")
                  .arg(m_cloud->account(), QFileInfo(member).completeBaseName(), member)
            : member;
        if (!ignored.contains(entry))
            ignored << entry;
    }
    prefs->setIgnorePathFile(ignored);
    DFPreferences::instance()->save();
    TFileData::instance()->removeGroup(key);
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
    updateCategoryButtons();
    updateGroupTitle();
    updateSelectedAndSize();
    startAnalytics();
}

void ResultForm::onMenuDeleteGroup(const QString &key, int row, int count)
{
    Q_UNUSED(row)
    if (key.isEmpty() || count < 1 || guardLoading() || isRemoving())
        return;
    const QStringList selected = TFileData::instance()->selectedOf(key);
    if (selected.isEmpty()) {
        QMessageBox::warning(
            this, tr("No selected"), tr("The current group has no selected files."));
        return;
    }
    const auto [method, folder] = removalMethod();
    if ((m_isCloud || method == DFIgnoreListPreferences::removePermanently)
        && !confirmRemoval({{key, selected}}))
        return;
    splog_d(kTag
        + QStringLiteral("onMenuDeleteGroup. DeleteMode:%1. Remove Path:%2. files:[%3]")
              .arg(method)
              .arg(folder, selected.join(QLatin1Char(','))));
    if (m_isCloud) {
        startCloudRemoval({{key, selected}}, CloudGroup);
        return;
    }
    const QList<DeleteResult> results = removeNow({{key, selected}});
    QStringList removed, failed;
    for (const DeleteResult &result : results)
        (result.success && result.errorCode == DeleteResult::NoError ? removed : failed)
            << result.path;
    splog_d(kTag
        + QStringLiteral("Successfully deleted from group: [%1]. Failed to delete: [%2].")
              .arg(removed.join(QLatin1Char(',')), failed.join(QLatin1Char(','))));
    if (!failed.isEmpty())
        showRemovalSummary(results, method);
}

// ----------------------------------------------------------------------------- removal

QPair<int, QString> ResultForm::removalMethod() const
{
    DFIgnoreListPreferences *prefs = DFPreferences::instance()->ignoreListPreferences();
    const int method = prefs->RemovealMethod();
    return {
        method, method == DFIgnoreListPreferences::moveToFolder ? prefs->TrashFolder() : QString()};
}

bool ResultForm::confirmRemoval(const QHash<QString, QStringList> &selection)
{
    const int method = removalMethod().first;
    QString question;
    if (m_isCloud)
        question = tr("Selected files will be moved into the Cloud Drive's Recycle Bin, and they "
                      "may be permanently deleted if the files' size is too large. Are you sure "
                      "you want to delete them?");
    else if (method == DFIgnoreListPreferences::removePermanently)
        question = tr("The selected files will be permanently deleted, are you sure to delete?");
    else if (method == DFIgnoreListPreferences::moveToTrash)
        question = tr("Selected files will be moved into the Recycle Bin, and it may be "
                      "permanently deleted if the files' size is too large. Are you sure you want "
                      "to delete them?");
    else
        return true;
    // What the answer is about: the number of items and their size as the scan saw them.
    TFileData *store = TFileData::instance();
    QHash<QString, qint64> folders;
    for (const QList<DirGroupEntry> &entries : store->dirGroups())
        for (const DirGroupEntry &entry : entries)
            folders.insert(entry.folderPath, entry.totalSize);
    qint64 count = 0;
    qint64 bytes = 0;
    for (const QStringList &entries : selection) {
        for (const QString &entry : entries) {
            const QString path = stripSimilarTag(entry);
            ++count;
            const FileStamp stamp = store->stamp(path);
            if (m_isCloud)
                bytes += TImageModel::cloudProperty(m_cloud, path, QStringLiteral("size"))
                             .toLongLong();
            else if (folders.contains(path))
                bytes += folders.value(path);
            else
                bytes += stamp.isValid() ? stamp.size : SelectionTotals::bytesOf(path);
        }
    }
    question += QStringLiteral("\n\n")
        + tr("%n item(s), %1.", nullptr, int(std::min<qint64>(count, INT_MAX)))
              .arg(TImageModel::sizeText(bytes));
    // Losing files for good is never the default answer.
    const auto defaultAnswer = method == DFIgnoreListPreferences::removePermanently && !m_isCloud
        ? QMessageBox::No
        : QMessageBox::Yes;
    return QMessageBox::question(this, AppIdentity::applicationName, question,
               QMessageBox::Yes | QMessageBox::No, defaultAnswer)
        == QMessageBox::Yes;
}

bool ResultForm::removesEveryCopy(
    const QHash<QString, QStringList> &groups, const QHash<QString, QStringList> &selected)
{
    for (auto it = selected.cbegin(); it != selected.cend(); ++it) {
        const QStringList members = groups.value(it.key());
        if (members.isEmpty())
            continue;
        QSet<QString> chosen;
        for (const QString &entry : it.value())
            chosen.insert(stripSimilarTag(entry));
        const bool keepsOne = std::any_of(members.cbegin(), members.cend(),
            [&chosen](const QString &member) { return !chosen.contains(stripSimilarTag(member)); });
        if (!keepsOne)
            return true;
    }
    return false;
}

void ResultForm::setDeletionMarker(int value)
{
    DFPreferences::instance()->ignoreListPreferences()->setDeleteException(value);
    DFPreferences::instance()->save();
}

void ResultForm::on_btn_delete_clicked()
{
    if (guardLoading() || isRemoving())
        return;
    const TFileData::Groups selection = TFileData::instance()->selected();
    qint64 count = 0;
    for (const QStringList &paths : selection)
        count += paths.size();
    if (count == 0) {
        QMessageBox::warning(this, tr("Warning"), tr("No Selected Files!"));
        return;
    }
    if (!confirmRemoval(selection))
        return;
    if (m_isCloud) {
        // A cloud group always keeps a copy: the service's copies cannot be compared
        // again once they are gone.
        startCloudRemoval(selection, CloudBatch);
        return;
    }
    bool allowAllCopies = false;
    if (removesEveryCopy(TFileData::instance()->groups(), selection)) {
        // Losing the last copy is never the default answer.
        allowAllCopies = QMessageBox::warning(this, AppIdentity::applicationName,
                             tr("In some groups every copy is selected, so nothing of them "
                                "would be kept.\n\nRemove every copy of those files too? With "
                                "\"No\" one copy of each stays."),
                             QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
            == QMessageBox::Yes;
    }
    startBatch(selection, allowAllCopies);
}

void ResultForm::startBatch(
    const QHash<QString, QStringList> &selection, bool allowAllCopies, bool allowDifferentContent)
{
    const auto [method, folder] = removalMethod();
    RemovalRequest request = RemovalRequest::fromStore(method, folder);
    request.selected = selection;
    request.allowAllCopies = allowAllCopies;
    request.allowDifferentContent = allowDifferentContent;
    if (const QString refusal = request.refusal(); !refusal.isEmpty()) {
        QMessageBox::warning(this, tr("Delete Failed"), tr("Nothing was removed: %1").arg(refusal));
        return;
    }
    m_batchMethod = method;
    m_batchAllowsDifferent = allowDifferentContent;
    qint64 count = 0;
    QStringList paths;
    for (const QStringList &list : selection) {
        count += list.size();
        paths << list;
    }
    m_journal = new RemovalJournal;
    if (!m_journal->begin(RemovalJournal::methodName(method), count, folder)) {
        QMessageBox::warning(this, tr("Delete Failed"),
            tr("Nothing was removed: the removal record %1 cannot be written (%2).")
                .arg(QDir::toNativeSeparators(m_journal->path()), m_journal->error()));
        delete m_journal;
        m_journal = nullptr;
        return;
    }
    setDeletionMarker(1);
    splog_d(kTag
        + QStringLiteral("on_btn_delete_clicked. DeleteMode:%1. Remove Path:%2. files.count:[%3]")
              .arg(method)
              .arg(folder)
              .arg(paths.size()));

    m_progress = new CustomProgressDialog(tr("Removing files"), this);
    m_progress->setWindowModality(Qt::ApplicationModal);
    m_progress->setText(tr("Removing the selected files…"));
    m_progress->setProgress(0, double(count));

    m_deleteThread = new QThread;
    m_worker = new TImageDeleteWorker(request);
    m_worker->setJournal(m_journal);
    m_worker->moveToThread(m_deleteThread);
    connect(m_deleteThread, &QThread::started, m_worker, &TImageDeleteWorker::doDelete);
    connect(m_worker, &TImageDeleteWorker::progressChanged, this, [this, count](int value) {
        onItemFileDeleted(value, int(std::min<qint64>(count, INT_MAX)));
    });
    // The results are taken on the worker's thread as it finishes: the worker is deleted
    // with its thread, possibly before the page handles the queued end.
    auto results = std::make_shared<QList<DeleteResult>>();
    auto journalError = std::make_shared<QString>();
    m_batchResults = results;
    m_batchJournalError = journalError;
    TImageDeleteWorker *worker = m_worker;
    connect(
        m_worker, &TImageDeleteWorker::finished, m_worker,
        [worker, results, journalError] {
            *results = worker->results();
            *journalError = worker->journalError();
        },
        Qt::DirectConnection);
    connect(m_worker, &TImageDeleteWorker::finished, m_deleteThread, &QThread::quit);
    connect(m_worker, &TImageDeleteWorker::finished, this, &ResultForm::onDeletedComplated);
    connect(m_progress, &CustomProgressDialog::canceled, m_worker,
        &TImageDeleteWorker::setCancelled, Qt::DirectConnection);
    connect(m_deleteThread, &QThread::finished, m_worker, &QObject::deleteLater);
    connect(m_deleteThread, &QThread::finished, m_deleteThread, &QObject::deleteLater);
    ui->btn_delete->setEnabled(false);
    m_deleteThread->start(QThread::InheritPriority);
    // Short batches end before the dialog would show; it must not appear after the end.
    QTimer::singleShot(200, m_progress.data(), [this, progress = m_progress] {
        if (progress && progress == m_progress)
            progress->show();
    });
}

void ResultForm::onItemFileDeleted(int complate, int total)
{
    emit onDeleteFileProcess(complate);
    if (m_progress)
        m_progress->setProgress(complate, total);
}

void ResultForm::onDeletedComplated(const QHash<QString, QStringList> &files,
    const QHash<QString, QStringList> &dirs, const QHash<QString, QStringList> &selected)
{
    Q_UNUSED(selected)
    const QList<DeleteResult> results = m_batchResults ? *m_batchResults : QList<DeleteResult>();
    const QString journalError = m_batchJournalError ? *m_batchJournalError : QString();
    m_batchResults.reset();
    m_batchJournalError.reset();
    if (m_journal) {
        m_journal->end();
        delete m_journal;
        m_journal = nullptr;
    }
    m_worker = nullptr;
    m_deleteThread = nullptr;
    setDeletionMarker(0);
    if (m_progress) {
        m_progress->finish();
        m_progress->deleteLater();
        m_progress.clear();
    }
    finishRemoval(files, dirs, results, true);
    if (!journalError.isEmpty()) {
        QMessageBox::warning(this, tr("Delete Failed"),
            tr("The removal stopped: the removal record %1 cannot be written (%2). Nothing "
               "more was removed.")
                .arg(QDir::toNativeSeparators(RemovalJournal::defaultPath()), journalError));
        return;
    }
    offerDifferentContent(results);
}

bool ResultForm::confirmDifferentContent(qsizetype count)
{
    return QMessageBox::question(this, tr("Remove Different Files?"),
               tr("%n selected file(s) differ in content from every copy that stays: they are "
                  "similar pictures or files that only share a name. They were kept.\n\nRemove "
                  "them too?",
                   nullptr, int(count)),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        == QMessageBox::Yes;
}

void ResultForm::offerDifferentContent(const QList<DeleteResult> &results)
{
    if (m_batchAllowsDifferent)
        return;
    // Similar pictures and files that share a name differ by design: the first batch kept
    // those that differ from every copy that stays, and only the user's yes lets them go.
    QSet<QString> differing;
    for (const DeleteResult &result : results)
        if (result.errorCode == DeleteResult::Skipped
            && result.reason == RemovalCheck::differentContent)
            differing.insert(result.path);
    if (differing.isEmpty())
        return;
    QHash<QString, QStringList> selection;
    const TFileData::Groups selected = TFileData::instance()->selected();
    for (auto it = selected.cbegin(); it != selected.cend(); ++it)
        for (const QString &path : it.value())
            if (differing.contains(stripSimilarTag(path)))
                selection[it.key()].append(path);
    if (selection.isEmpty())
        return;
    if (confirmDifferentContent(differing.size()))
        startBatch(selection, false, true);
}

QList<DeleteResult> ResultForm::removeNow(
    const QHash<QString, QStringList> &selection, bool allowDifferentContent)
{
    const auto [method, folder] = removalMethod();
    RemovalRequest request = RemovalRequest::fromStore(method, folder);
    request.selected = selection;
    request.allowDifferentContent = allowDifferentContent;
    const QString refusal = request.refusal();
    qint64 count = 0;
    for (const QStringList &paths : selection)
        count += paths.size();
    RemovalJournal journal;
    if (!refusal.isEmpty() || !journal.begin(RemovalJournal::methodName(method), count, folder)) {
        DeleteResult refused {
            selection.cbegin().value().value(0), false, DeleteResult::RemovalFailed};
        refused.reason = !refusal.isEmpty()
            ? refusal
            : tr("the removal record cannot be written: %1").arg(journal.error());
        return {refused};
    }
    setDeletionMarker(1);
    TImageDeleteWorker worker(request);
    worker.setJournal(&journal);
    TFileData::Groups removedFiles, removedDirs;
    connect(&worker, &TImageDeleteWorker::finished, this,
        [&removedFiles, &removedDirs](const TFileData::Groups &files, const TFileData::Groups &dirs,
            const TFileData::Groups &) {
            removedFiles = files;
            removedDirs = dirs;
        });
    worker.doDelete();
    journal.end();
    setDeletionMarker(0);
    const QList<DeleteResult> results = worker.results();
    finishRemoval(removedFiles, removedDirs, results, false);
    const auto differing = std::count_if(results.cbegin(), results.cend(),
        [](const DeleteResult &result) { return result.reason == RemovalCheck::differentContent; });
    if (differing && !allowDifferentContent && confirmDifferentContent(differing))
        return removeNow(selection, true);
    return results;
}

void ResultForm::finishRemoval(const QHash<QString, QStringList> &files,
    const QHash<QString, QStringList> &dirs, const QList<DeleteResult> &results, bool showSummary)
{
    m_lastRemoval = results;
    TFileData *store = TFileData::instance();
    QHash<QString, QStringList> removed = files;
    for (auto it = dirs.cbegin(); it != dirs.cend(); ++it)
        removed[it.key()] << it.value();
    for (auto it = removed.cbegin(); it != removed.cend(); ++it)
        for (const QString &entry : it.value())
            store->removePath(it.key(), entry);
    // A group the removal found not to be identical (the sampled mode compared parts of
    // its files) is no group of copies: it leaves the page whole.
    QSet<QString> notIdentical;
    for (const DeleteResult &result : results)
        if (result.reason == RemovalCheck::notIdentical)
            notIdentical.insert(result.path);
    if (!notIdentical.isEmpty()) {
        const TFileData::Groups groups = store->groups();
        for (auto it = groups.cbegin(); it != groups.cend(); ++it) {
            if (std::none_of(it.value().cbegin(), it.value().cend(),
                    [&](const QString &member) { return notIdentical.contains(member); }))
                continue;
            removed[it.key()] << it.value();
            store->removeGroup(it.key());
        }
    }
    const QString current = m_memberKey;
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
    updateCategoryButtons();
    updateSelectedAndSize();
    startAnalytics();
    m_changed = true;
    if (showSummary)
        showRemovalSummary(results, m_batchMethod);
}

QString ResultForm::failureText(const DeleteResult &result, int method)
{
    // The cloud source words its reasons itself, the service's words included.
    if (method == kCloudRemoval)
        return result.reason.isEmpty() ? tr("The cloud service did not remove it.") : result.reason;
    if (result.errorCode == DeleteResult::Skipped) {
        // The checks give their reasons in the journal's words; the user reads them here.
        if (result.reason == RemovalCheck::changedSinceScan)
            return tr("The file changed after the scan.");
        if (result.reason == RemovalCheck::noKeptCopyLeft)
            return tr("No other copy of it would be left.");
        if (result.reason == RemovalCheck::contentDiffers)
            return tr("Its content no longer matches the copy that stays.");
        if (result.reason == RemovalCheck::differentContent)
            return tr("Its content differs from every copy that stays.");
        if (result.reason == RemovalCheck::notIdentical)
            return tr("Not identical (only parts were compared).");
        if (result.reason == RemovalCheck::folderNotCovered)
            return tr("Not everything in it has a copy in the folder that stays.");
        if (result.reason == TImageDeleteWorker::keptLastCopy)
            return tr("Every copy of its group was selected; this one stays.");
        return result.reason;
    }
    if (!QFileInfo::exists(stripSimilarTag(result.path)) && !result.success)
        return tr("The file was not found.");
    switch (result.errorCode) {
    case DeleteResult::NotAFile:
        return tr("The item is not a file.");
    case DeleteResult::NotAFolder:
        return tr("The item is not a directory.");
    case DeleteResult::MoveFailed:
        return tr("Failed to move the file.");
    default:
        break;
    }
    const QString reason = result.reason.toLower();
    if (reason.contains(QLatin1String("permission")) || reason.contains(QLatin1String("read-only")))
        return tr("Permission denied. Please check the file's access rights.");
    if (reason.contains(QLatin1String("busy")) || reason.contains(QLatin1String("in use")))
        return tr("The file is currently in use and cannot be deleted.");
    if (method == DFIgnoreListPreferences::moveToTrash)
        return tr("Failed to move the file to the recycle bin.");
    if (!result.reason.isEmpty())
        return result.reason;
    return tr("An unknown error occurred while deleting the file.");
}

qint64 ResultForm::removedBytes(const QList<DeleteResult> &results)
{
    // Sizes as the scan saw them: the items are gone and cannot be asked any more.
    TFileData *store = TFileData::instance();
    QHash<QString, qint64> folders;
    const TFileData::DirGroups dirGroups = store->dirGroups();
    for (const QList<DirGroupEntry> &entries : dirGroups)
        for (const DirGroupEntry &entry : entries)
            folders.insert(entry.folderPath, entry.totalSize);
    qint64 bytes = 0;
    for (const DeleteResult &result : results) {
        if (!result.success || result.errorCode != DeleteResult::NoError || result.alreadyGone)
            continue;
        const QString path = stripSimilarTag(result.path);
        const auto folder = folders.constFind(path);
        if (folder != folders.cend())
            bytes += *folder;
        else if (const FileStamp stamp = store->stamp(path); stamp.isValid())
            bytes += stamp.size;
        else if (!result.destination.isEmpty())
            bytes += SelectionTotals::bytesOf(result.destination);
    }
    return bytes;
}

void ResultForm::showRemovalSummary(const QList<DeleteResult> &results, int method)
{
    qint64 bytes = 0;
    if (method == kCloudRemoval) {
        for (const DeleteResult &result : results)
            if (result.success && result.errorCode == DeleteResult::NoError)
                bytes += m_cloudSizes.value(result.path);
    } else {
        bytes = removedBytes(results);
    }
    // A move within one disk frees nothing: the files only have another place.
    bool freed = method != DFIgnoreListPreferences::moveToFolder;
    for (const DeleteResult &result : results) {
        if (freed || !result.success || result.destination.isEmpty())
            continue;
        const QStorageInfo target(QFileInfo(result.destination).absolutePath());
        const QStorageInfo source(QFileInfo(result.path).absolutePath());
        freed = !target.isValid() || !source.isValid() || target.device() != source.device();
    }
    RemovalSummaryDialog dialog(results, method, bytes, freed, this);
    dialog.exec();
}

void ResultForm::startCloudRemoval(const QHash<QString, QStringList> &selection, CloudRemoval kind)
{
    if (!m_cloud)
        return;
    TFileData *store = TFileData::instance();
    QList<DelParams> requests;
    qsizetype count = 0;
    m_cloudKeys.clear();
    m_cloudSizes.clear();
    for (auto it = selection.cbegin(); it != selection.cend(); ++it) {
        QStringList members = store->group(it.key());
        const bool similar = std::any_of(members.cbegin(), members.cend(), isSimilarEntry);
        stripSimilarTag(members);
        QSet<QString> chosen;
        for (const QString &entry : it.value())
            chosen.insert(stripSimilarTag(entry));
        DelParams request;
        request.groupKey = it.key();
        request.similar = similar;
        // The first copy not chosen stays; with every copy chosen, the first one.
        for (const QString &member : std::as_const(members))
            if (!chosen.contains(member)) {
                request.keep = member;
                break;
            }
        if (request.keep.isEmpty() && !members.isEmpty())
            request.keep = members.first();
        for (const QString &member : std::as_const(members)) {
            if (!chosen.contains(member) || member == request.keep)
                continue;
            request.files << member;
            m_cloudKeys.insert(member, it.key());
            m_cloudSizes.insert(member,
                TImageModel::cloudProperty(m_cloud, member, QStringLiteral("size")).toLongLong());
        }
        count += request.files.size();
        if (!request.files.isEmpty())
            requests << request;
    }
    if (requests.isEmpty()) {
        QMessageBox::warning(this, tr("Delete Failed"),
            tr("Nothing was removed: every selected file is the last copy of its group."));
        return;
    }
    m_cloudRemoval = kind;
    m_batchMethod = kCloudRemoval;
    setDeletionMarker(1);
    ui->btn_delete->setEnabled(false);
    if (kind == CloudOne) {
        m_cloud->start_delete_one_file(requests.first());
        return;
    }
    if (kind == CloudGroup) {
        m_cloud->start_delete_group_files(requests.first());
        return;
    }
    splog_d(kTag
        + QStringLiteral("on_btn_delete_clicked. DeleteMode:cloud. files.count:[%1]").arg(count));
    m_progress = new CustomProgressDialog(tr("Removing files"), this);
    m_progress->setWindowModality(Qt::ApplicationModal);
    m_progress->setText(tr("Removing the selected files…"));
    m_progress->setProgress(0, double(count));
    connect(m_progress, &CustomProgressDialog::canceled, m_cloud, &KvCloudObject::stop_deleted);
    m_cloud->start_delete_all_files(requests);
    QTimer::singleShot(200, m_progress.data(), [this, progress = m_progress] {
        if (progress && progress == m_progress)
            progress->show();
    });
}

void ResultForm::onCloudRemovalDone(const QStringList &deleted)
{
    const CloudRemoval kind = std::exchange(m_cloudRemoval, NoCloudRemoval);
    if (kind == NoCloudRemoval)
        return;
    setDeletionMarker(0);
    if (m_progress) {
        m_progress->finish();
        m_progress->deleteLater();
        m_progress.clear();
    }
    QHash<QString, QStringList> removed;
    for (const QString &path : deleted)
        removed[m_cloudKeys.value(path)] << path;
    const QList<DeleteResult> results = m_cloud->lastRemovalResults();
    splog_d(kTag
        + QStringLiteral("Cloud removal ended: %1 of %2 removed.")
              .arg(deleted.size())
              .arg(results.size()));
    const bool failed = deleted.size() < results.size();
    finishRemoval(removed, {}, results, kind == CloudBatch || (kind == CloudGroup && failed));
    if (kind == CloudOne && failed) {
        const DeleteResult first = results.isEmpty() ? DeleteResult() : results.first();
        QMessageBox::warning(this, tr("Delete Failed"),
            tr("Failed to delete the file: %1").arg(failureText(first, kCloudRemoval)));
    }
}

void ResultForm::onDeletedCloudError(int failedCount, const QString &errorMsg)
{
    splog_d(
        kTag + QStringLiteral("onDeletedCloudError. failed:%1. %2").arg(failedCount).arg(errorMsg));
    // Failures of a removal that ended are in its summary; this is a removal refused
    // before anything was tried.
    if (failedCount <= 0 || m_cloudRemoval == NoCloudRemoval)
        return;
    m_cloudRemoval = NoCloudRemoval;
    setDeletionMarker(0);
    if (m_progress) {
        m_progress->finish();
        m_progress->deleteLater();
        m_progress.clear();
    }
    updateSelectedAndSize();
    const QString text
        = QStringLiteral("%1 %2. ").arg(tr("Failed to delete the files. "), errorMsg);
    QTimer::singleShot(
        100, this, [this, text] { QMessageBox::warning(this, tr("Delete Failed"), text); });
}

// ----------------------------------------------------------------------------- chart

void ResultForm::startAnalytics()
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

void ResultForm::bulidPieChart(const FileCategoryStatsMap &result, int count, qlonglong totalSize)
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
    for (auto it = result.cbegin(); it != result.cend(); ++it) {
        const QString name = TPieChart::categoryName(it.key());
        const QString lower = chartLabelKey(it.key());
        splog_d(kTag + QStringLiteral("bulidPieChart %1 %2").arg(name, lower));
        if (it->count == 0)
            continue;
        QPieSlice *slice = series->append(
            QStringLiteral("%1  %2").arg(name, TImageModel::sizeText(it->size)), double(it->size));
        slice->setColor(TPieChart::categoryColour(it.key()));
        slice->setBorderColor(Qt::white);
        if (auto *num = findChild<QLabel *>(QStringLiteral("lab_%1_num").arg(lower)))
            num->setText(QString::number(it->count));
        if (auto *size = findChild<QLabel *>(QStringLiteral("lab_%1_size").arg(lower)))
            size->setText(TImageModel::sizeText(it->size));
    }
    m_chart->addSeries(series);
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
    // Space in the file table checks or unchecks the selected rows (or the current one),
    // all to the opposite of the current row, as the thumbnail grid does.
    if (watched == ui->tableView_files && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Space && !(key->modifiers() & ~Qt::KeypadModifier)) {
            QTableView *table = ui->tableView_files;
            const QModelIndex current = table->currentIndex();
            QModelIndexList rows = table->selectionModel()->selectedRows(TImageModel::CheckColumn);
            if (rows.size() < 2 && current.isValid())
                rows = {current.siblingAtColumn(TImageModel::CheckColumn)};
            if (!rows.isEmpty()) {
                const QModelIndex lead = current.isValid() ? current : rows.first();
                const bool next = !lead.data(TImageModel::CheckedRole).toBool();
                for (const QModelIndex &row : std::as_const(rows))
                    m_itemModel->setData(row, next, TImageModel::CheckedRole, true);
            }
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ResultForm::closeEvent(QCloseEvent *event)
{
    if (isRemoving()) {
        // The batch must end (or be cancelled) before its page goes.
        if (m_progress)
            m_progress->cancel();
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
    for (QMenu *menu : {m_selectMenu, m_filterMenu})
        for (QAction *action : menu->actions())
            if (action->property("sourceText").isValid())
                action->setText(
                    tr(action->property("sourceText").toString().toLatin1().constData()));
    m_actTrash->setText(tr("Move to Recycle Bin"));
    m_actPermanent->setText(tr("Remove permanently"));
    m_actFolder->setText(tr("Move to Folder"));
    if (m_dataLoaded)
        updateCategoryButtons();
    updateGroupTitle();
}
