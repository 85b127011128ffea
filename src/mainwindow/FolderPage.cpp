// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/FolderPage.h"

#include "app/LanguageSetup.h"
#include "app/LogTags.h"
#include "app/TLogger.h"
#include "mainwindow/MainWindow.h"
#include "mainwindow/MainWindowArt.h"
#include "mainwindow/ScanRootList.h"
#include "results/CListViewDelegate.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QStandardItemModel>
#include <QVBoxLayout>

using MainWindowArt::iconButton;
using MainWindowArt::picture;

namespace {

const QString &kTag = LogTags::mainWindow;

} // namespace

FolderPage::FolderPage(QWidget *parent) : QWidget(parent)
{
    auto *page = this;
    page->setObjectName(QStringLiteral("page_folders"));
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(40, 24, 40, 8);
    m_background = new QLabel(page);
    m_background->setObjectName(QStringLiteral("lab_background"));
    m_background->setAlignment(Qt::AlignCenter);
    m_background->setPixmap(picture(LanguageSetup::current().noSelectionBackground.isEmpty()
            ? QStringLiteral("noSelection_bg.png")
            : LanguageSetup::current().noSelectionBackground));
    layout->addWidget(m_background, 1);

    auto *listRow = new QHBoxLayout;
    m_btnPre = iconButton(page, QStringLiteral("btn_pre"), QStringLiteral("btn_pre.png"));
    m_btnNext = iconButton(page, QStringLiteral("btn_next"), QStringLiteral("btn_next.png"));
    m_pathModel = new QStandardItemModel(this);
    m_pathView = new QListView(page);
    m_pathView->setObjectName(QStringLiteral("listview_path"));
    m_pathView->setModel(m_pathModel);
    m_pathView->setMouseTracking(true);
    m_pathView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_pathView->setIconSize(QSize(24, 24));
    m_pathView->setTextElideMode(Qt::ElideLeft);
    auto *delegate = new CListViewDelegate(m_pathView);
    m_pathView->setItemDelegate(delegate);
    connect(delegate, &CListViewDelegate::deleteItem, this, &FolderPage::deleteRequested,
        Qt::QueuedConnection);
    connect(delegate, &CListViewDelegate::lockToggled, this, [this](const QModelIndex &index) {
        setProtected(index.data(Qt::UserRole).toString(),
            !index.data(CListViewDelegate::kProtectedRole).toBool());
    });
    connect(m_pathView, &QListView::indexesMoved, this, &FolderPage::indexesMoved);
    connect(m_pathView->selectionModel(), &QItemSelectionModel::currentChanged, this,
        &FolderPage::currentChanged);
    connect(m_btnPre, &QPushButton::clicked, this, &FolderPage::previousClicked);
    connect(m_btnNext, &QPushButton::clicked, this, &FolderPage::nextClicked);
    listRow->addWidget(m_btnPre, 0, Qt::AlignVCenter);
    listRow->addWidget(m_pathView, 1);
    listRow->addWidget(m_btnNext, 0, Qt::AlignVCenter);
    layout->addLayout(listRow, 1);

    m_dragHint = new QLabel(page);
    m_dragHint->setObjectName(QStringLiteral("lab_dragHint"));
    m_dragHint->setAlignment(Qt::AlignCenter);
    m_dragHint->setPixmap(picture(LanguageSetup::current().noSelectionLiteBackground.isEmpty()
            ? QStringLiteral("noSelection_LiteBG.png")
            : LanguageSetup::current().noSelectionLiteBackground));
    layout->addWidget(m_dragHint);
    m_labNumber = new QLabel(page);
    m_labNumber->setObjectName(QStringLiteral("lab_number"));
    m_labNumber->setAlignment(Qt::AlignCenter);
    layout->addWidget(m_labNumber);
}

bool FolderPage::addFolder(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isDir())
        return false;
    const QString folder = QDir::cleanPath(info.absoluteFilePath());
    if (m_folders.contains(folder))
        return false;
    splog_d(kTag + QStringLiteral("Add a directory :%1").arg(folder));
    m_folders << folder;
    // The row shows the whole path, elided on the left by the view, so two folders of
    // one name stay apart and the folder's own name is always visible.
    auto *item = new QStandardItem(
        QIcon(QStringLiteral(":/resource/folder.png")), QDir::toNativeSeparators(folder));
    item->setToolTip(QDir::toNativeSeparators(folder));
    item->setData(folder, Qt::UserRole);
    item->setData(false, CListViewDelegate::kProtectedRole);
    m_pathModel->appendRow(item);
    selectLast();
    return true;
}

QStringList FolderPage::protectedFolders() const
{
    QStringList locked;
    for (int row = 0; row < m_pathModel->rowCount(); ++row) {
        const QStandardItem *item = m_pathModel->item(row);
        if (item->data(CListViewDelegate::kProtectedRole).toBool())
            locked.append(item->data(Qt::UserRole).toString());
    }
    return locked;
}

bool FolderPage::setProtected(const QString &folder, bool locked)
{
    for (int row = 0; row < m_pathModel->rowCount(); ++row) {
        QStandardItem *item = m_pathModel->item(row);
        if (item->data(Qt::UserRole).toString() != folder
            || !item->data(CListViewDelegate::kProtectedRole).isValid())
            continue;
        splog_d(kTag
            + QStringLiteral("%1 a directory :%2")
                  .arg(locked ? QStringLiteral("Protect") : QStringLiteral("Unprotect"), folder));
        item->setData(locked, CListViewDelegate::kProtectedRole);
        return true;
    }
    return false;
}

void FolderPage::tellRefused(const ScanRootList::SortedPaths &sorted)
{
    const QStringList refused = sorted.files + sorted.missing;
    if (refused.isEmpty())
        return;
    for (const QString &path : refused)
        splog_d(kTag + QStringLiteral("Not a folder, not added :%1").arg(path));
    const auto name = [](const QString &path) { return QDir::toNativeSeparators(path); };
    QString text;
    if (refused.size() == 1 && sorted.files.size() == 1)
        text = MainWindow::tr("\"%1\" is a file, not a folder. Only folders can be scanned: add "
                              "the folder that holds it instead.")
                   .arg(name(refused.first()));
    else if (refused.size() == 1)
        text = MainWindow::tr("\"%1\" could not be found. It may have been moved or removed.")
                   .arg(name(refused.first()));
    else
        text = MainWindow::tr("%n item(s) were not added because they are not folders:", nullptr,
            int(refused.size()));
    QMessageBox box(
        QMessageBox::Information, MainWindow::tr("Note"), text, QMessageBox::Ok, window());
    box.setObjectName(QStringLiteral("box_notFolders"));
    if (refused.size() > 1) {
        // The names go in the box itself when they are few; a long drop lists them all
        // in the details, so the box stays on the screen.
        constexpr int kShown = 5;
        QStringList lines;
        for (int i = 0; i < std::min<int>(kShown, int(refused.size())); ++i)
            lines << name(refused.at(i));
        box.setInformativeText(lines.join(QLatin1Char('\n')));
        if (refused.size() > kShown)
            box.setDetailedText(QStringList(refused).join(QLatin1Char('\n')));
    }
    box.exec();
}

void FolderPage::addCloudRow(const CloudFolderInfo &folder)
{
    if (m_cloudFolders.contains(folder.id))
        return;
    splog_d(kTag + QStringLiteral("Add a cloud directory :%1").arg(folder.id));
    m_cloudFolders << folder.id;
    auto *item
        = new QStandardItem(QIcon(QStringLiteral(":/resource/cloudfolder128.png")), folder.id);
    item->setToolTip(folder.id);
    item->setData(folder.id, Qt::UserRole);
    m_pathModel->appendRow(item);
    selectLast();
}

void FolderPage::takeCloudFolders()
{
    m_folders.clear();
    if (m_cloudFolders.isEmpty())
        m_pathModel->removeRows(0, m_pathModel->rowCount());
}

QString FolderPage::removeRow(const QModelIndex &index)
{
    const QString folder = index.data(Qt::UserRole).toString();
    m_folders.removeAll(folder);
    m_cloudFolders.removeAll(folder);
    m_pathModel->removeRow(index.row());
    return folder;
}

void FolderPage::clear()
{
    m_folders.clear();
    m_cloudFolders.clear();
    m_pathModel->removeRows(0, m_pathModel->rowCount());
}

void FolderPage::selectLast()
{
    m_pathView->setCurrentIndex(m_pathModel->index(m_pathModel->rowCount() - 1, 0));
}

void FolderPage::selectPrevious()
{
    const int row = m_pathView->currentIndex().row();
    if (row > 0)
        m_pathView->setCurrentIndex(m_pathModel->index(row - 1, 0));
}

void FolderPage::selectNext()
{
    const int row = m_pathView->currentIndex().row();
    if (row + 1 < m_pathModel->rowCount())
        m_pathView->setCurrentIndex(m_pathModel->index(row + 1, 0));
}

void FolderPage::updateArrows()
{
    const int row = m_pathView->currentIndex().row();
    const int rows = m_pathModel->rowCount();
    m_btnPre->setEnabled(rows > 0 && row > 0);
    m_btnNext->setEnabled(rows > 0 && row + 1 < rows);
}

void FolderPage::refreshCountLabel(bool cloudMode, const QString &account)
{
    if (cloudMode)
        m_labNumber->setText(account);
    else
        m_labNumber->setText(MainWindow::tr("%n folder(s) added", nullptr, int(m_folders.size())));
}

void FolderPage::updateView(bool cloudMode)
{
    const bool empty = m_pathModel->rowCount() == 0;
    m_background->setVisible(empty);
    m_pathView->setVisible(!empty);
    m_btnPre->setVisible(!empty);
    m_btnNext->setVisible(!empty);
    // Cloud folders take no local folders beside them, dropped or not.
    m_dragHint->setVisible(!empty && !cloudMode);
}

bool FolderPage::acceptsDrag(QDragEnterEvent *event)
{
    return event->mimeData()->hasUrls() && ScanRootList::acceptsDrag(event->mimeData());
}

bool FolderPage::refuseLocalBesideCloud()
{
    if (m_cloudFolders.isEmpty())
        return false;
    QMessageBox::information(window(), MainWindow::tr("Note"),
        MainWindow::tr("After adding cloud accounts and directories, local "
                       "directories can no longer be added."));
    return true;
}

QString FolderPage::chooseLocalFolder()
{
    return QFileDialog::getExistingDirectory(window(), MainWindow::tr("Select Folder"));
}
