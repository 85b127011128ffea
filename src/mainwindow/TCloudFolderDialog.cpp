// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/TCloudFolderDialog.h"

#include "app/TLogger.h"
#include "cloud/KvCloudObject.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

// The log tag of this file.
const QString kTag = QStringLiteral("[TCloudFolderDialog]: ");

const QString kRootId = QStringLiteral("root");

enum ItemRole {
    IdRole = Qt::UserRole,
    NameRole,
    // Listed (its children are in the tree) or asked for.
    LoadedRole,
    AskedRole,
};

} // namespace

QString TCloudFolderDialog::smallIcon(int cloudType)
{
    switch (cloudType) {
    case 1:
        return QStringLiteral(":/resource/googledrive.png");
    case 2:
        return QStringLiteral(":/resource/dropbox.png");
    case 5:
        return QStringLiteral(":/resource/google_photos.png");
    case 7:
        return QStringLiteral(":/resource/onedrive.png");
    default:
        return {};
    }
}

TCloudFolderDialog::TCloudFolderDialog(const QString &account, int cloudType, QWidget *parent)
    : QDialog(parent), m_account(account), m_cloudType(cloudType)
{
    setObjectName(QStringLiteral("TCloudFolderDialog"));
    setWindowTitle(tr("Select Folder"));
    setFixedSize(480, 560);

    auto *hint = new QLabel(
        tr("Check the folders to scan in %1. A checked folder includes everything inside it.")
            .arg(account.toHtmlEscaped()),
        this);
    hint->setWordWrap(true);

    m_tree = new QTreeWidget(this);
    m_tree->setObjectName(QStringLiteral("tree_folders"));
    m_tree->setColumnCount(1);
    m_tree->setHeaderHidden(true);
    m_tree->setStyleSheet(QStringLiteral("QTreeWidget::item { height: 28px; }"));
    m_tree->setIconSize(QSize(20, 20));

    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("lab_status"));

    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_buttons->button(QDialogButtonBox::Ok)->setText(tr("Add"));
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(10);
    layout->addWidget(hint);
    layout->addWidget(m_tree, 1);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_status, 1);
    bottom->addWidget(m_buttons);
    layout->addLayout(bottom);

    KvCloudObject *cloud = KvCloudObject::instance();
    connect(cloud, &KvCloudObject::onFindedFolders, this, &TCloudFolderDialog::onFindedFolders);
    connect(
        cloud, &KvCloudObject::onAuthorizedFailed, this, &TCloudFolderDialog::onAuthorizedFailed);
    connect(m_tree, &QTreeWidget::itemExpanded, this, &TCloudFolderDialog::onItemExpanded);
    connect(m_tree, &QTreeWidget::itemChanged, this, &TCloudFolderDialog::updateState);

    auto *root = new QTreeWidgetItem(m_tree, {kRootId});
    root->setIcon(0,
        QIcon(smallIcon(cloudType).isEmpty() ? QStringLiteral(":/resource/cloudfolder.png")
                                             : smallIcon(cloudType)));
    root->setToolTip(0, account);
    root->setData(0, IdRole, kRootId);
    root->setData(0, NameRole, account);
    root->setFlags(Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled
        | Qt::ItemIsAutoTristate);
    root->setCheckState(0, Qt::Unchecked);
    root->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    m_items.insert(kRootId, root);

    cloud->init_traversal_folder();
    requestChildren(root);
    root->setExpanded(true);
}

TCloudFolderDialog::~TCloudFolderDialog()
{
    KvCloudObject::instance()->end_traversal_folders();
}

void TCloudFolderDialog::onItemExpanded(QTreeWidgetItem *item)
{
    if (!item->data(0, LoadedRole).toBool() && !item->data(0, AskedRole).toBool())
        requestChildren(item);
}

void TCloudFolderDialog::requestChildren(QTreeWidgetItem *item)
{
    {
        const QSignalBlocker blocker(m_tree);
        item->setData(0, AskedRole, true);
    }
    ++m_listingsAsked;
    ++m_pending;
    updateState();
    KvCloudObject::instance()->start_traversal_folders(
        m_cloudType, item->data(0, IdRole).toString());
}

void TCloudFolderDialog::onFindedFolders(
    const QList<CloudFolderInfo> &folders, const QString &parentId)
{
    QTreeWidgetItem *parent = m_items.value(parentId);
    if (!parent || parent->data(0, LoadedRole).toBool())
        return;
    m_pending = std::max(0, m_pending - 1);
    {
        // Adding children must not look like the user checking them.
        const QSignalBlocker blocker(m_tree);
        const Qt::CheckState state
            = parent->checkState(0) == Qt::Checked ? Qt::Checked : Qt::Unchecked;
        for (const CloudFolderInfo &folder : folders) {
            auto *child = new QTreeWidgetItem(parent, {folder.name});
            child->setIcon(0, QIcon(QStringLiteral(":/resource/cloudfolder.png")));
            child->setToolTip(0, folder.id);
            child->setData(0, IdRole, folder.id);
            child->setData(0, NameRole, folder.name);
            child->setFlags(Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled
                | Qt::ItemIsAutoTristate);
            child->setCheckState(0, state);
            child->setChildIndicatorPolicy(folder.hasSubFolders
                    ? QTreeWidgetItem::ShowIndicator
                    : QTreeWidgetItem::DontShowIndicatorWhenChildless);
            m_items.insert(folder.id, child);
        }
        parent->setData(0, LoadedRole, true);
        if (folders.isEmpty())
            parent->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
    }
    m_tree->viewport()->update();
    updateState();
}

void TCloudFolderDialog::onAuthorizedFailed(const QString &reason)
{
    splog_d(kTag + QStringLiteral("listing failed: %1").arg(reason));
    m_listingFailed = true;
    QMessageBox::warning(this, tr("Network Request Error"),
        tr("The network request failed. Please log in again to re-authorize your account."));
    reject();
}

void TCloudFolderDialog::updateState()
{
    const int chosen = int(selectedFolders().size());
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(chosen > 0);
    m_status->setText(
        m_pending > 0 ? tr("Loading folders…") : tr("%n folder(s) chosen", nullptr, chosen));
}

void TCloudFolderDialog::collect(QTreeWidgetItem *item, QList<CloudFolderInfo> &out)
{
    switch (item->checkState(0)) {
    case Qt::Checked:
        // Everything below is listed with it: its sub-folders are not taken again.
        out.append({item->data(0, IdRole).toString(), item->data(0, NameRole).toString()});
        return;
    case Qt::PartiallyChecked:
        for (int i = 0; i < item->childCount(); ++i)
            collect(item->child(i), out);
        return;
    default:
        return;
    }
}

QList<CloudFolderInfo> TCloudFolderDialog::selectedFolders() const
{
    QList<CloudFolderInfo> folders;
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i)
        collect(m_tree->topLevelItem(i), folders);
    for (CloudFolderInfo &folder : folders)
        if (folder.id == kRootId)
            folder.id = m_account + QLatin1Char(':');
    return folders;
}
