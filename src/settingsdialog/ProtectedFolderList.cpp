// SPDX-License-Identifier: GPL-3.0-or-later
#include "settingsdialog/ProtectedFolderList.h"

#include "settingsdialog/DroppedPaths.h"
#include "widgets/LockArt.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

ProtectedFolderList::ProtectedFolderList(QWidget *parent)
    : QGroupBox(parent), m_lock(LockArt::closed())
{
    setObjectName(QStringLiteral("groupProtectedFolders"));
    auto *layout = new QHBoxLayout(this);
    m_list = new QListWidget(this);
    m_list->setObjectName(QStringLiteral("lwProtectedFolders"));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setIconSize(QSize(16, 16));
    // As the ignore list beside it: the start and the end of a path stay in view.
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setAcceptDrops(true);
    m_list->viewport()->installEventFilter(this);
    layout->addWidget(m_list, 1);
    auto *buttons = new QVBoxLayout;
    m_add = new QPushButton(this);
    m_add->setObjectName(QStringLiteral("btnAddProtected"));
    m_remove = new QPushButton(this);
    m_remove->setObjectName(QStringLiteral("btnRemoveProtected"));
    buttons->addWidget(m_add);
    buttons->addWidget(m_remove);
    buttons->addStretch(1);
    layout->addLayout(buttons);

    connect(m_add, &QPushButton::clicked, this, [this] {
        const QString folder
            = QFileDialog::getExistingDirectory(this, tr("Select Folder"), QStringLiteral("/"));
        if (!folder.isEmpty())
            addFolders({folder});
    });
    connect(m_remove, &QPushButton::clicked, this, &ProtectedFolderList::removeSelected);
    connect(m_list, &QListWidget::itemSelectionChanged, this,
        [this] { m_remove->setEnabled(!m_list->selectedItems().isEmpty()); });
    retranslate();
    fill();
}

void ProtectedFolderList::setFolders(const QStringList &folders)
{
    m_folders = folders;
    fill();
}

void ProtectedFolderList::addFolders(const QStringList &folders)
{
    for (const QString &folder : folders) {
        const QFileInfo info(folder);
        const QString clean = QDir::cleanPath(info.absoluteFilePath());
        if (info.isDir() && !m_folders.contains(clean))
            m_folders.append(clean);
    }
    fill();
    emit foldersChanged(m_folders);
}

void ProtectedFolderList::removeSelected()
{
    for (const QListWidgetItem *item : m_list->selectedItems())
        m_folders.removeAll(item->data(Qt::UserRole).toString());
    fill();
    emit foldersChanged(m_folders);
}

void ProtectedFolderList::fill()
{
    m_list->clear();
    for (const QString &folder : std::as_const(m_folders)) {
        auto *item = new QListWidgetItem(m_lock, QDir::toNativeSeparators(folder), m_list);
        item->setData(Qt::UserRole, folder);
        item->setToolTip(QDir::toNativeSeparators(folder));
    }
    m_remove->setEnabled(false);
}

void ProtectedFolderList::retranslate()
{
    setTitle(tr("Protected folders"));
    setToolTip(tr("Nothing in these folders is ever selected or removed. Their copies still "
                  "count as the ones that stay."));
    m_add->setText(tr("Add folder"));
    m_remove->setText(tr("Remove"));
}

bool ProtectedFolderList::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list->viewport()
        && takeDrop(event, true, [this](const QStringList &folders) { addFolders(folders); }))
        return true;
    return QGroupBox::eventFilter(watched, event);
}
