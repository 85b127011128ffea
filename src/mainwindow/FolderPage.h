// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/CloudFolderInfo.h"
#include "mainwindow/ScanRootList.h"

#include <QModelIndexList>
#include <QStringList>
#include <QWidget>

class QDragEnterEvent;
class QDropEvent;
class QLabel;
class QListView;
class QPushButton;
class QStandardItemModel;

// The folders page: the list of the folders to scan (local ones, or the cloud folders of
// one account), its arrows, the count under it, and what a drop or the folder chooser adds.
class FolderPage : public QWidget
{
    Q_OBJECT
public:
    explicit FolderPage(QWidget *parent = nullptr);

    QStringList folders() const { return m_folders; }
    QStringList cloudFolders() const { return m_cloudFolders; }
    bool isEmpty() const { return m_folders.isEmpty() && m_cloudFolders.isEmpty(); }
    // The listed folders whose lock is closed: a scan selects nothing in them.
    QStringList protectedFolders() const;
    // Closes or opens a listed folder's lock; false when it is not listed.
    bool setProtected(const QString &folder, bool locked);

    // Adds one folder to the list; false when it is already listed or not a folder.
    bool addFolder(const QString &path);
    // Tells the user, in one message over the page's window, which of the paths given
    // where folders are expected are files or missing.
    void tellRefused(const ScanRootList::SortedPaths &sorted);
    // One row for a chosen cloud folder.
    void addCloudRow(const CloudFolderInfo &folder);
    // Cloud folders replace whatever local ones there were.
    void takeCloudFolders();
    // Takes the row out of the list; the folder it held.
    QString removeRow(const QModelIndex &index);
    // No folders, no rows.
    void clear();

    void selectPrevious();
    void selectNext();
    void updateArrows();
    // The count under the list: the account's name for cloud folders.
    void refreshCountLabel(bool cloudMode, const QString &account);
    void updateView(bool cloudMode);

    // Cloud folders take no local folders beside them; tells the user so. True when
    // refused.
    bool refuseLocalBesideCloud();
    // The folder chooser; an empty path when the user cancels.
    QString chooseLocalFolder();

    // Whether a drag may end here.
    static bool acceptsDrag(QDragEnterEvent *event);

signals:
    void deleteRequested(const QModelIndex &index);
    void previousClicked();
    void nextClicked();
    void currentChanged();
    void indexesMoved(const QModelIndexList &indexes);

private:
    void selectLast();

    QStringList m_folders;
    QStringList m_cloudFolders;
    QLabel *m_background = nullptr;
    QLabel *m_dragHint = nullptr;
    QListView *m_pathView = nullptr;
    QStandardItemModel *m_pathModel = nullptr;
    QLabel *m_labNumber = nullptr;
    QPushButton *m_btnPre = nullptr;
    QPushButton *m_btnNext = nullptr;
};
