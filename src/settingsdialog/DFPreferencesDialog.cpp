// SPDX-License-Identifier: GPL-3.0-or-later
#include "settingsdialog/DFPreferencesDialog.h"

#include "preferences/DFGenernalPreferences.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "preferences/DFSelectionPreferences.h"
#include "ui_DFPreferencesDialog.h"

#include <QEvent>
#include <QMessageBox>
#include <QShowEvent>

DFPreferencesDialog::DFPreferencesDialog(
    DFPreferences *store, std::function<bool()> scanRunning, QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::DFPreferencesDialog>())
    , m_store(store)
    , m_scanRunning(std::move(scanRunning))
{
    ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    connect(this, &DFPreferencesDialog::retranslateSignal, ui->tabGeneral,
        &DFIgnoreListWidget::retranslate);
    connect(this, &DFPreferencesDialog::retranslateSignal, ui->tabDuplicateFiles,
        &DFSelectionWidget::retranslate);
    connect(this, &DFPreferencesDialog::retranslateSignal, ui->tabSimilarImages,
        &DFGeneralWidget::retranslate);
    copyFromStore();
}

DFPreferencesDialog::~DFPreferencesDialog() = default;

DFIgnoreListWidget *DFPreferencesDialog::ignoreListWidget() const
{
    return ui->tabGeneral;
}

DFSelectionWidget *DFPreferencesDialog::selectionWidget() const
{
    return ui->tabDuplicateFiles;
}

DFGeneralWidget *DFPreferencesDialog::generalWidget() const
{
    return ui->tabSimilarImages;
}

void DFPreferencesDialog::showEvent(QShowEvent *event)
{
    // Every opening starts from the store as it is now: the result page may have changed
    // the removal method or the ignore list since the last time.
    if (!event->spontaneous())
        copyFromStore();
    QDialog::showEvent(event);
}

void DFPreferencesDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void DFPreferencesDialog::retranslate()
{
    ui->retranslateUi(this);
    emit retranslateSignal();
}

void DFPreferencesDialog::copyFromStore()
{
    ui->tabGeneral->setPreferences(*m_store->ignoreListPreferences());
    ui->tabDuplicateFiles->setPreferences(*m_store->selectionPreferences());
    ui->tabSimilarImages->setPreferences(*m_store->generalPreferences());
}

void DFPreferencesDialog::copyToStore()
{
    // The removal's crash marker and the remembered folders are kept by other parts and
    // may change while the dialog is open; the dialog shows none of them.
    DFIgnoreListPreferences common = ui->tabGeneral->preferences();
    const DFIgnoreListPreferences *stored = m_store->ignoreListPreferences();
    common.setDeleteException(stored->deleteException());
    common.setOpenFolder(stored->OpenFolder());
    common.setSaveFolder(stored->SaveFolder());
    *m_store->ignoreListPreferences() = common;
    *m_store->selectionPreferences() = ui->tabDuplicateFiles->preferences();
    *m_store->generalPreferences() = ui->tabSimilarImages->preferences();
    m_store->save();
}

bool DFPreferencesDialog::refusedDuringScan()
{
    if (!m_scanRunning || !m_scanRunning())
        return false;
    QMessageBox::information(this, tr("Note"),
        tr("You cannot change settings of preferences while the scan is in progress."));
    return true;
}

void DFPreferencesDialog::on_btnOK_clicked()
{
    if (refusedDuringScan())
        return;
    if (!ui->tabGeneral->validate()) {
        ui->tabWidget->setCurrentWidget(ui->tabGeneral);
        return;
    }
    copyToStore();
    accept();
}

void DFPreferencesDialog::on_btnCancel_clicked()
{
    reject();
}

void DFPreferencesDialog::on_btnDefault_clicked()
{
    if (refusedDuringScan())
        return;
    // Every value of the tab shown goes back to what a new settings file holds, its lists
    // and table included; the other tabs keep theirs. The folders the file dialogs
    // remember and the removal marker are no values of a tab and stay.
    QWidget *tab = ui->tabWidget->currentWidget();
    if (tab == ui->tabGeneral) {
        DFIgnoreListPreferences &common = ui->tabGeneral->preferences();
        DFIgnoreListPreferences defaults;
        defaults.setOpenFolder(common.OpenFolder());
        defaults.setSaveFolder(common.SaveFolder());
        defaults.setDeleteException(common.deleteException());
        common = defaults;
        ui->tabGeneral->refresh();
    } else if (tab == ui->tabDuplicateFiles) {
        ui->tabDuplicateFiles->preferences() = DFSelectionPreferences();
        ui->tabDuplicateFiles->refresh();
    } else if (tab == ui->tabSimilarImages) {
        ui->tabSimilarImages->preferences() = DFGenernalPreferences();
        ui->tabSimilarImages->refresh();
    }
    // Default takes effect at once, without OK; Cancel afterwards does not undo it.
    copyToStore();
}
