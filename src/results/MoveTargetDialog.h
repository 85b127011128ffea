// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QPushButton;

// The question a move into a folder asks first: the folder the items go into, and
// whether each keeps its folders below the scanned folder that holds it, so that
// thousands of moved files keep their context.
class MoveTargetDialog : public QDialog
{
    Q_OBJECT
public:
    MoveTargetDialog(const QString &folder, bool keepStructure, QWidget *parent = nullptr);

    // A clean absolute path; empty until one is given.
    QString folder() const;
    bool keepStructure() const;

private:
    void browse();
    void updateButtons();

    QLineEdit *m_folder = nullptr;
    QCheckBox *m_keepStructure = nullptr;
    QPushButton *m_move = nullptr;
};
