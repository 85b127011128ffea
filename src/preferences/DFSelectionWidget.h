// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/DFSelectionPreferences.h"

#include <memory>

#include <QWidget>

class QTableWidgetItem;

namespace Ui {
class Selection;
}

// Tab "Duplicate files" of the preferences dialog: scan method, the rule of the automatic
// selection with its folder priorities, and the folder groups switch. Edits a private
// copy of the duplicate-file settings.
class DFSelectionWidget : public QWidget
{
    Q_OBJECT
public:
    explicit DFSelectionWidget(QWidget *parent = nullptr);
    ~DFSelectionWidget() override;

    const DFSelectionPreferences &preferences() const { return m_preferences; }
    DFSelectionPreferences &preferences() { return m_preferences; }
    void setPreferences(const DFSelectionPreferences &preferences);
    void refresh();
    // Enters a folder with the next free priority (one above the largest). A folder that
    // is already in the table is refused with an error box; returns whether it entered.
    bool addPriorityFolder(const QString &folder);

public slots:
    void retranslate();

private slots:
    void on_btnAddPrior_clicked();
    void on_btnRemovePrior_clicked();
    void on_tableWidget_itemChanged(QTableWidgetItem *item);

private:
    std::unique_ptr<Ui::Selection> ui;
    DFSelectionPreferences m_preferences;
    bool m_filling = false;
};
