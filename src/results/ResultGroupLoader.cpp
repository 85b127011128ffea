// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultGroupLoader.h"

#include "app/FileTypeCatalogue.h"
#include "engine/FileStamp.h"
#include "engine/GroupMember.h"
#include "engine/TFileData.h"
#include "results/PathElider.h"
#include "results/ResultForm.h"
#include "ui_ResultForm.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTimer>
#include <QtConcurrent>

namespace {

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

} // namespace

ResultGroupLoader::ResultGroupLoader(Ui::ResultForm *ui, TImageModel *groupModel,
    TImageModel *itemModel, bool isCloud, KvCloudObject *cloud, QObject *parent)
    : QObject(parent)
    , ui(ui)
    , m_groupModel(groupModel)
    , m_itemModel(itemModel)
    , m_isCloud(isCloud)
    , m_cloud(cloud)
{
    connect(&m_buildWatcher, &QFutureWatcherBase::finished, this, [this] {
        m_loadSums = m_buildWatcher.result();
        m_pendingGroups = std::move(m_loadSums.groups);
        m_loadSums.groups.clear();
        m_nextBatch = 0;
        feedBatches();
    });
    connect(&m_memberWatcher, &QFutureWatcherBase::finished, this, [this] {
        if (!m_memberWatcher.isCanceled())
            showMembers(m_members);
    });
}

void ResultGroupLoader::clearMembers()
{
    m_memberWatcher.cancel();
    m_memberKey.clear();
}

void ResultGroupLoader::stop()
{
    m_memberWatcher.cancel();
    m_memberWatcher.waitForFinished();
    m_buildWatcher.waitForFinished();
}

void ResultGroupLoader::start()
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

void ResultGroupLoader::feedBatches()
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
        emit progressChanged(progress);
        ui->progressBar_loading->setValue(progress);
        if (begin == 0) {
            ui->stackedWidget->setCurrentWidget(ui->page_result);
            ui->listView_groups->setCurrentIndex(m_groupModel->index(0, 0));
        }
        if (turn.elapsed() >= kBatchBudgetMs && end < total) {
            updateGroupTitle();
            QTimer::singleShot(0, this, &ResultGroupLoader::feedBatches);
            return;
        }
    }
    m_pendingGroups.clear();
    m_pendingGroups.squeeze();
    emit loaded(m_loadSums.selectedCount, m_loadSums.totalSize, 100);
}

void ResultGroupLoader::updateCategoryButtons(int category)
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
    ui->btn_all->setText(label(ResultForm::tr("All"), int(m_groupModel->allGroups().size()), all));
    const QList<QPair<QPushButton *, int>> buttons = {{ui->btn_image, CategoryImages},
        {ui->btn_document, CategoryDocuments}, {ui->btn_music, CategoryAudio},
        {ui->btn_videos, CategoryVideos}, {ui->btn_archives, CategoryFolders},
        {ui->btn_packages, 8}, {ui->btn_others, CategoryOthers}};
    for (const auto &[button, code] : buttons) {
        const auto entry = byType.value(code);
        button->setText(label(categoryTitle(code), entry.first, entry.second));
        // Empty categories stay out of the way, unless the user is looking at one.
        button->setVisible(entry.first > 0 || category == code);
    }
}

void ResultGroupLoader::updateGroupTitle()
{
    const int shown = m_groupModel->rowCount();
    QString text = ResultForm::tr("%n group(s)", nullptr, shown);
    if (!m_dataLoaded)
        text += QStringLiteral(" · ") + ResultForm::tr("loading…");
    ui->lab_groups_title->setText(text);
}

void ResultGroupLoader::loadMembers(const GroupItem &group)
{
    // A newer pick replaces the fill of the previous one.
    m_memberWatcher.cancel();
    m_memberWatcher.waitForFinished();
    m_memberKey = group.key;
    m_members.clear();
    m_members.reserve(group.files.size());
    for (const QString &entry : group.files) {
        m_members.append(IndexFileGroup {group.key, GroupMember::fromEntry(entry)});
        if (m_members.constLast().file.isSimilar())
            m_members.last().file.reason = TFileData::instance()->matchReason(entry);
    }
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
            // Identical copies are as similar as files can be: the slider's floor never
            // hides them, nor the picture the others were compared with.
            member.similarity = TImageModel::shownSimilarity(member.file);
            if (isCloud) {
                auto property = [cloud, &member](const char *name) {
                    return TImageModel::cloudProperty(
                        cloud, member.file.path, QString::fromLatin1(name));
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
            const QFileInfo info(member.file.path);
            member.name = info.fileName();
            const auto folder = folders.constFind(member.file.path);
            if (folder != folders.cend()) {
                member.size = folder->totalSize;
                return;
            }
            // Read through the path codec: a name that is not valid UTF-8 still shows
            // its real size and date.
            const FileStamp stamp = FileStamp::of(member.file.path);
            member.size = stamp.isValid() ? stamp.size : 0;
            if (stamp.isValid())
                member.createdTime = QDateTime::fromMSecsSinceEpoch(stamp.modifiedNs / 1'000'000)
                                         .toString(QStringLiteral("yyyy/MM/dd HH:mm:ss"));
        }));
}

void ResultGroupLoader::showMembers(const QList<IndexFileGroup> &members)
{
    int groupIndex = ui->listView_groups->currentIndex().row();
    TFileData *store = TFileData::instance();
    const QStringList selected = store->selectedOf(m_memberKey);
    const TFileData::GroupMatch match = store->groupMatch(m_memberKey);
    const bool unverified = match != TFileData::MatchContent;
    const ProtectedFolders sheltered = store->protectedFolders();
    QList<ImageItem> items;
    items.reserve(members.size());
    QStringList folders;
    for (const IndexFileGroup &member : members)
        folders.append(QDir::toNativeSeparators(QFileInfo(member.file.path).path()));
    const int distinctFrom = PathElider::distinctFrom(folders);
    for (const IndexFileGroup &member : members) {
        ImageItem item;
        item.key = member.key;
        item.groupIndex = groupIndex;
        item.path = member.file.path;
        item.size = member.size;
        item.dateText = member.createdTime;
        item.checked
            = selected.contains(member.file.path) || selected.contains(member.file.entry());
        item.locked = !m_isCloud && sheltered.protects(member.file.path);
        item.type = m_isCloud ? getFileType(QFileInfo(member.name).suffix())
                              : getPathCategory(member.file.path);
        item.similarity = member.similarity;
        item.reason = member.file.reason;
        item.unverified = unverified;
        item.distinctFrom = distinctFrom;
        item.displayName = member.name;
        if (member.file.isSimilar())
            item.extra = member.file.similarity == 0
                ? ResultForm::tr("the picture compared with")
                : ResultForm::tr("%1% similar").arg(member.similarity);
        else if (unverified)
            item.extra = ResultForm::tr("not verified");
        items.append(item);
    }
    m_itemModel->setItems(items);
    emit membersShown(int(match));
}
