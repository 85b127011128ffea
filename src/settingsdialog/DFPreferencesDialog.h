// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

#include <QDialog>

class DFGeneralWidget;
class DFIgnoreListWidget;
class DFPreferences;
class DFSelectionWidget;

namespace Ui {
class DFPreferencesDialog;
}

// The settings dialog: three tabs, each editing a copy of one group of the store. OK
// checks the copies and hands them to the store, Default resets the tab shown at once,
// Cancel leaves the store as it was. While a scan runs nothing is changed: the engines
// were configured from the store when the scan started.
class DFPreferencesDialog : public QDialog
{
    Q_OBJECT
public:
    // store is DFPreferences::instance() in the program. scanRunning tells whether a scan
    // runs or is paused; the dialog cannot see the scan controller itself.
    DFPreferencesDialog(
        DFPreferences *store, std::function<bool()> scanRunning, QWidget *parent = nullptr);
    ~DFPreferencesDialog() override;

    DFIgnoreListWidget *ignoreListWidget() const;
    DFSelectionWidget *selectionWidget() const;
    DFGeneralWidget *generalWidget() const;

signals:
    void retranslateSignal();

public slots:
    void on_btnOK_clicked();
    void on_btnCancel_clicked();
    void on_btnDefault_clicked();
    void retranslate();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    // Shows the note and returns true while a scan runs.
    bool refusedDuringScan();
    void copyFromStore();
    void copyToStore();

    std::unique_ptr<Ui::DFPreferencesDialog> ui;
    DFPreferences *m_store;
    std::function<bool()> m_scanRunning;
};
