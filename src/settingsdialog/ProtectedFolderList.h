// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>
#include <QIcon>
#include <QStringList>

class QListWidget;
class QPushButton;

// The settings' list of protected folders, beside the ignore list: nothing in them is
// ever selected or removed, in any scan. Folders are added by the chooser or dropped from
// a file manager, and taken out again.
class ProtectedFolderList : public QGroupBox
{
    Q_OBJECT
public:
    explicit ProtectedFolderList(QWidget *parent = nullptr);

    QStringList folders() const { return m_folders; }
    // Shows these folders; sends no foldersChanged.
    void setFolders(const QStringList &folders);
    // Adds folders (existing ones only, each once) and sends foldersChanged.
    void addFolders(const QStringList &folders);

    void retranslate();

signals:
    void foldersChanged(const QStringList &folders);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fill();
    void removeSelected();

    QStringList m_folders;
    QListWidget *m_list = nullptr;
    QPushButton *m_add = nullptr;
    QPushButton *m_remove = nullptr;
    QIcon m_lock;
};
