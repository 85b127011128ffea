// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/CloudFolderInfo.h"

#include <QDialog>
#include <QHash>
#include <QList>

class QDialogButtonBox;
class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

// Chooses the folders of one signed-in cloud account. The tree opens lazily: each folder
// is listed by the cloud source once, the first time it is expanded. A checked folder
// stands for everything under it; a folder some of whose sub-folders are unchecked shows
// half-checked and stands only for its checked sub-folders.
class TCloudFolderDialog : public QDialog
{
    Q_OBJECT
public:
    TCloudFolderDialog(const QString &account, int cloudType, QWidget *parent = nullptr);
    ~TCloudFolderDialog() override;

    // The outermost checked folders ("remote:path"), the account's top as "remote:".
    QList<CloudFolderInfo> selectedFolders() const;
    QTreeWidget *tree() const { return m_tree; }
    // The folders asked of the cloud source so far.
    int listingsAsked() const { return m_listingsAsked; }
    bool isLoading() const { return m_pending > 0; }
    // Closed because the service refused a listing: the account wants a new sign-in.
    bool listingFailed() const { return m_listingFailed; }

    // The service's icon in the add menu and at the top of the tree; empty for none.
    static QString smallIcon(int cloudType);

private:
    void onFindedFolders(const QList<CloudFolderInfo> &folders, const QString &parentId);
    void onAuthorizedFailed(const QString &reason);
    void onItemExpanded(QTreeWidgetItem *item);
    void requestChildren(QTreeWidgetItem *item);
    void updateState();
    static void collect(QTreeWidgetItem *item, QList<CloudFolderInfo> &out);

    QString m_account;
    int m_cloudType = 0;
    int m_listingsAsked = 0;
    int m_pending = 0;
    bool m_listingFailed = false;
    QTreeWidget *m_tree = nullptr;
    QLabel *m_status = nullptr;
    QDialogButtonBox *m_buttons = nullptr;
    QHash<QString, QTreeWidgetItem *> m_items;
};
