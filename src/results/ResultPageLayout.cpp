// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultPageLayout.h"

#include "results/GroupRowDelegate.h"
#include "results/TImageModel.h"
#include "ui_ResultForm.h"

#include <QButtonGroup>
#include <QStyle>

namespace ResultPageLayout {

void arrangeButtons(QWidget *page, Ui::ResultForm *ui)
{
    page->setWindowFlag(Qt::Window);
    page->setMinimumSize(1000, 600);

    auto *categories = new QButtonGroup(page);
    for (QPushButton *button : {ui->btn_all, ui->btn_image, ui->btn_document, ui->btn_music,
             ui->btn_videos, ui->btn_archives, ui->btn_packages, ui->btn_others})
        categories->addButton(button);
    categories->setExclusive(true);
    ui->btn_all->setChecked(true);

    auto *modes = new QButtonGroup(page);
    for (QToolButton *button : {ui->btn_right_list, ui->btn_right_grid, ui->btn_right_flow}) {
        modes->addButton(button);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setAutoRaise(true);
    }
    ui->btn_right_list->setIcon(page->style()->standardIcon(QStyle::SP_FileDialogDetailedView));
    ui->btn_right_grid->setIcon(page->style()->standardIcon(QStyle::SP_FileDialogListView));
    ui->btn_right_flow->setIcon(page->style()->standardIcon(QStyle::SP_FileDialogContentsView));
    ui->btnBack->setIcon(page->style()->standardIcon(QStyle::SP_ArrowBack));
    ui->btn_save->setIcon(page->style()->standardIcon(QStyle::SP_DialogSaveButton));
    ui->btn_export->setIcon(page->style()->standardIcon(QStyle::SP_FileDialogDetailedView));
}

void arrangeGroupList(Ui::ResultForm *ui, TImageModel *groupModel)
{
    ui->listView_groups->setModel(groupModel);
    ui->listView_groups->setItemDelegate(new GroupRowDelegate(ui->listView_groups));
    ui->listView_groups->setSelectionMode(QAbstractItemView::SingleSelection);
    // Laid out a slice at a time: a list of a hundred thousand groups would otherwise
    // hold the window for the whole layout after every reset.
    ui->listView_groups->setLayoutMode(QListView::Batched);
    ui->listView_groups->setBatchSize(2000);
}

void arrangeTools(QWidget *page, Ui::ResultForm *ui)
{
    ui->comboBox->setCurrentIndex(BySize);
    ui->splitter_2->setStretchFactor(0, 0);
    ui->splitter_2->setStretchFactor(1, 1);
    ui->splitter_2->setStretchFactor(2, 0);
    ui->splitter_2->setSizes({320, 700, 280});
    ui->lab_problems->hide();
    ui->btn_delete->setPopupMode(QToolButton::MenuButtonPopup);
    ui->btn_delete->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    ui->btn_delete->setIcon(page->style()->standardIcon(QStyle::SP_TrashIcon));
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
}

} // namespace ResultPageLayout
