// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/DFIgnoreListPreferences.h"

#include <memory>

#include <QWidget>

class ProtectedFolderList;
class QLabel;
class QPushButton;

namespace Ui {
class IgnoreList;
}

// Tab "General" of the preferences dialog: removal method and its folder, size bounds,
// the ignore list and beside it the protected folders, the extension lists, the hidden-file switch,
// and the size of the key cache with a button that clears it. Edits a private copy of the common
// settings; the dialog takes the copy over on OK.
class DFIgnoreListWidget : public QWidget
{
    Q_OBJECT
public:
    explicit DFIgnoreListWidget(QWidget *parent = nullptr);
    ~DFIgnoreListWidget() override;

    const DFIgnoreListPreferences &preferences() const { return m_preferences; }
    DFIgnoreListPreferences &preferences() { return m_preferences; }
    // Replaces the copy and shows it.
    void setPreferences(const DFIgnoreListPreferences &preferences);
    // Shows the copy in the controls.
    void refresh();
    // The checks of OK: the size bounds and the folder of the move. A refusal is shown in
    // an error box and the edits stay.
    bool validate();
    // Appends folders and files to the ignore list, each once.
    void addIgnorePaths(const QStringList &paths);

public slots:
    void retranslate();

private slots:
    void on_btn_selectPath_clicked();
    void on_btnAddIgnore_clicked();
    void on_btn_addFiles_clicked();
    void on_btnRemoveIgnore_clicked();
    void on_btnClear_clicked();

protected:
    // Folders and files dragged onto the ignore list join it.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void updateListButtons();
    void showFormatMode(bool ignoreMode);
    void showMoveFolder();
    void showCacheSize();

    std::unique_ptr<Ui::IgnoreList> ui;
    QLabel *m_cacheSize = nullptr;
    QPushButton *m_clearCache = nullptr;
    ProtectedFolderList *m_protected = nullptr;
    DFIgnoreListPreferences m_preferences;
    // Set while refresh() puts values into the controls, so that they are not written
    // back half-filled.
    bool m_filling = false;
};
