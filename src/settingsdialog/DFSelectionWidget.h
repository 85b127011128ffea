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
    // Enters folders with the next free priorities (one above the largest), in the given
    // order. Folders already in the table are refused with one error box; returns whether
    // all of them entered.
    bool addPriorityFolders(const QStringList &folders);

public slots:
    void retranslate();

private slots:
    void on_btnAddPrior_clicked();
    void on_btnRemovePrior_clicked();
    void on_tableWidget_itemChanged(QTableWidgetItem *item);

protected:
    // Folders dragged onto the table enter it as by "Add".
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::unique_ptr<Ui::Selection> ui;
    DFSelectionPreferences m_preferences;
    bool m_filling = false;
};
