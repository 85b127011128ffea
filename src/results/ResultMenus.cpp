// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultMenus.h"

#include "engine/GroupItemAutoSelector.h"
#include "preferences/DFGenernalPreferences.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "results/MoveTargetDialog.h"
#include "results/ResultForm.h"
#include "results/TImageModel.h"
#include "ui_ResultForm.h"

#include <QAbstractItemView>
#include <QActionGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QSlider>
#include <QWidgetAction>

ResultMenus::ResultMenus(ResultForm *page, Ui::ResultForm *ui) : QObject(page), m_page(page), ui(ui)
{ }

void ResultMenus::buildSelectAndFilter()
{
    m_selectMenu = new QMenu(m_page);
    m_selectMenu->setObjectName(QStringLiteral("menu_select"));
    const QList<QPair<const char *, int>> rules = {
        {QT_TRANSLATE_NOOP("ResultForm", "Select by Filename"), GroupItemAutoSelector::autoSelect},
        {QT_TRANSLATE_NOOP("ResultForm", "Select by Priority"),
            GroupItemAutoSelector::selectPriority},
        {QT_TRANSLATE_NOOP("ResultForm", "Select Newest"), GroupItemAutoSelector::selectNewest},
        {QT_TRANSLATE_NOOP("ResultForm", "Select Oldest"), GroupItemAutoSelector::selectOldest},
        {QT_TRANSLATE_NOOP("ResultForm", "Select high-quality"),
            GroupItemAutoSelector::selectHighQuality},
        {QT_TRANSLATE_NOOP("ResultForm", "Select low-quality"),
            GroupItemAutoSelector::selectLowQuality},
        {QT_TRANSLATE_NOOP("ResultForm", "Select high-resolution"),
            GroupItemAutoSelector::selectHighResolution},
        {QT_TRANSLATE_NOOP("ResultForm", "Select low-resolution"),
            GroupItemAutoSelector::selectLowResolution},
        {QT_TRANSLATE_NOOP("ResultForm", "Select All"), GroupItemAutoSelector::selectAllFiles},
        {QT_TRANSLATE_NOOP("ResultForm", "Deselect"), GroupItemAutoSelector::deselectAll},
    };
    for (const auto &[text, rule] : rules) {
        if (rule == GroupItemAutoSelector::selectAllFiles)
            m_selectMenu->addSeparator();
        QAction *action = m_selectMenu->addAction(ResultForm::tr(text));
        action->setData(rule);
        action->setProperty("sourceText", QString::fromLatin1(text));
        connect(action, &QAction::triggered, m_page, &ResultForm::onTaskContextMenuEvent);
    }
    ui->btn_select->setMenu(m_selectMenu);

    m_filterMenu = new QMenu(m_page);
    m_filterMenu->setObjectName(QStringLiteral("menu_filter"));
    m_filterActions = new QActionGroup(m_page);
    m_filterActions->setExclusive(true);
    const QList<QPair<const char *, int>> filters = {
        {QT_TRANSLATE_NOOP("ResultForm", "Show Only Duplicate Files"), 0},
        {QT_TRANSLATE_NOOP("ResultForm", "Show Only Selected Files"), 1},
        {QT_TRANSLATE_NOOP("ResultForm", "Show All Files"), 2},
    };
    for (const auto &[text, mode] : filters) {
        QAction *action = m_filterMenu->addAction(ResultForm::tr(text));
        action->setCheckable(true);
        action->setData(mode);
        action->setProperty("sourceText", QString::fromLatin1(text));
        action->setChecked(mode == 2);
        m_filterActions->addAction(action);
        connect(action, &QAction::triggered, m_page, &ResultForm::onTaskFilterMenuEvent);
    }
    m_filterMenu->addSeparator();

    // The slider never goes below the threshold the scan used: lower values would
    // promise pictures the scan never compared.
    const int threshold
        = std::clamp(DFPreferences::instance()->generalPreferences()->SimilarityValue(), 1, 100);
    auto *line = new QWidget(m_filterMenu);
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(12, 6, 12, 6);
    auto *title = new QLabel(ResultForm::tr("Similarity"), line);
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
        emit similarityChanged(v);
    });
    ui->btn_filter->setMenu(m_filterMenu);
}

void ResultMenus::buildDelete()
{
    m_deleteMenu = new QMenu(m_page);
    m_deleteMenu->setObjectName(QStringLiteral("menu_delete"));
    m_actTrash = m_deleteMenu->addAction(ResultForm::tr("Move to Recycle Bin"));
    m_actPermanent = m_deleteMenu->addAction(ResultForm::tr("Remove permanently"));
    m_actFolder = m_deleteMenu->addAction(ResultForm::tr("Move to Folder"));
    m_deleteMenu->addSeparator();
    m_actHardLink = m_deleteMenu->addAction(ResultForm::tr("Replace by Hard Link"));
    m_actReflink = m_deleteMenu->addAction(ResultForm::tr("Replace by Reflink (Copy-on-Write)"));
    m_actSymlink = m_deleteMenu->addAction(ResultForm::tr("Replace by Symbolic Link"));
    m_actTrash->setData(DFIgnoreListPreferences::moveToTrash);
    m_actPermanent->setData(DFIgnoreListPreferences::removePermanently);
    m_actFolder->setData(DFIgnoreListPreferences::moveToFolder);
    m_actHardLink->setData(DFIgnoreListPreferences::replaceByHardLink);
    m_actReflink->setData(DFIgnoreListPreferences::replaceByReflink);
    m_actSymlink->setData(DFIgnoreListPreferences::replaceBySymlink);

    DFIgnoreListPreferences *prefs = DFPreferences::instance()->ignoreListPreferences();
    QAction *active = m_actTrash;
    for (QAction *action :
        {m_actTrash, m_actPermanent, m_actFolder, m_actHardLink, m_actReflink, m_actSymlink}) {
        action->setCheckable(true);
        if (action->data().toInt() == prefs->RemovealMethod())
            active = action;
    }
    setActiveDeleteAction(active);
    for (QAction *action : {m_actHardLink, m_actReflink, m_actSymlink})
        connect(action, &QAction::triggered, this, [this, prefs, action] {
            prefs->setRemovealMethod(
                DFIgnoreListPreferences::DFRemovalMethod(action->data().toInt()));
            DFPreferences::instance()->save();
            setActiveDeleteAction(action);
            m_page->on_btn_delete_clicked();
        });

    connect(m_actTrash, &QAction::triggered, this, [this, prefs] {
        prefs->setRemovealMethod(DFIgnoreListPreferences::moveToTrash);
        DFPreferences::instance()->save();
        setActiveDeleteAction(m_actTrash);
        m_page->on_btn_delete_clicked();
    });
    connect(m_actPermanent, &QAction::triggered, this, [this, prefs] {
        prefs->setRemovealMethod(DFIgnoreListPreferences::removePermanently);
        DFPreferences::instance()->save();
        setActiveDeleteAction(m_actPermanent);
        m_page->on_btn_delete_clicked();
    });
    connect(m_actFolder, &QAction::triggered, this, [this, prefs] {
        // The folder question comes every time: it shows where the items go, and how.
        QAction *previous = m_activeDeleteAction;
        MoveTargetDialog question(prefs->TrashFolder(), prefs->KeepFolderStructure(), m_page);
        if (question.exec() != QDialog::Accepted || question.folder().isEmpty()) {
            setActiveDeleteAction(previous);
            return;
        }
        prefs->setTrashFolder(question.folder());
        prefs->setKeepFolderStructure(question.keepStructure());
        prefs->setRemovealMethod(DFIgnoreListPreferences::moveToFolder);
        DFPreferences::instance()->save();
        setActiveDeleteAction(m_actFolder);
        m_page->on_btn_delete_clicked();
    });
    ui->btn_delete->setMenu(m_deleteMenu);
}

void ResultMenus::setActiveDeleteAction(QAction *newAction)
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
        ui->btn_delete->setText(ResultForm::tr("Remove permanently…"));
        ui->btn_delete->setIcon(m_page->style()->standardIcon(QStyle::SP_DialogDiscardButton));
    } else if (newAction == m_actFolder) {
        ui->btn_delete->setText(ResultForm::tr("Move to folder…"));
        ui->btn_delete->setIcon(m_page->style()->standardIcon(QStyle::SP_DirIcon));
    } else if (newAction && newAction != m_actTrash) {
        ui->btn_delete->setText(ResultForm::tr("Replace by links…"));
        ui->btn_delete->setIcon(m_page->style()->standardIcon(QStyle::SP_FileLinkIcon));
    } else {
        ui->btn_delete->setText(ResultForm::tr("Remove Selected"));
        ui->btn_delete->setIcon(m_page->style()->standardIcon(QStyle::SP_TrashIcon));
    }
}

void ResultMenus::showGroupMenu(const QPoint &pos)
{
    const QModelIndex index = ui->listView_groups->indexAt(pos);
    if (!index.isValid())
        return;
    const QString key = index.data(TImageModel::KeyRole).toString();
    const int count = index.data(TImageModel::CountRole).toInt();
    QMenu menu(m_page);
    menu.addAction(ResultForm::tr("Ignore Group"), m_page,
        [this, key, index, count] { m_page->onMenuIgnoreGroup(key, index.row(), count); });
    QAction *remove = menu.addAction(ResultForm::tr("Remove Selected Files of This Group"), m_page,
        [this, key, index, count] { m_page->onMenuDeleteGroup(key, index.row(), count); });
    remove->setEnabled(index.data(TImageModel::SelectedCountRole).toInt() > 0);
    menu.exec(ui->listView_groups->viewport()->mapToGlobal(pos));
}

void ResultMenus::showMemberMenu(QAbstractItemView *view, const QPoint &pos)
{
    const QModelIndex index = view->indexAt(pos);
    if (!index.isValid())
        return;
    const QPersistentModelIndex member(index);
    QMenu menu(m_page);
    menu.addAction(ResultForm::tr("Show in Folder"), m_page,
        [this, member] { m_page->onBtnOpenFinderClick(member); });
    menu.addAction(ResultForm::tr("Hide from Results"), m_page,
        [this, member] { m_page->onBtnHideFileClick(member); });
    menu.addSeparator();
    menu.addAction(m_page->style()->standardIcon(QStyle::SP_TrashIcon),
        ResultForm::tr("Remove This File"), m_page,
        [this, member] { m_page->onBtnDeletedClick(member); });
    menu.exec(view->viewport()->mapToGlobal(pos));
}

void ResultMenus::retranslate()
{
    for (QMenu *menu : {m_selectMenu, m_filterMenu})
        for (QAction *action : menu->actions())
            if (action->property("sourceText").isValid())
                action->setText(ResultForm::tr(
                    action->property("sourceText").toString().toLatin1().constData()));
    m_actTrash->setText(ResultForm::tr("Move to Recycle Bin"));
    m_actPermanent->setText(ResultForm::tr("Remove permanently"));
    m_actFolder->setText(ResultForm::tr("Move to Folder"));
    m_actHardLink->setText(ResultForm::tr("Replace by Hard Link"));
    m_actReflink->setText(ResultForm::tr("Replace by Reflink (Copy-on-Write)"));
    m_actSymlink->setText(ResultForm::tr("Replace by Symbolic Link"));
}
