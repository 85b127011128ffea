// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QList>
#include <QPointer>

class PicturePreviewPane;
class QLabel;
class QToolButton;
class TImageModel;

// The large side-by-side preview of a group's files, so that near-duplicates can be told
// apart before choosing which to remove. The file it was opened on stays on the left;
// the right side steps through the other files of its group (Left and Right arrow keys,
// or the arrow buttons), starting with the one after it. Each side's check box marks
// that file for removal in the model, as the grid's check boxes do.
class PicturePreviewDialog : public QDialog
{
    Q_OBJECT
public:
    PicturePreviewDialog(TImageModel *model, int row, QWidget *parent = nullptr);

    PicturePreviewPane *chosenPane() const { return m_chosen; }
    PicturePreviewPane *otherPane() const { return m_other; }
    // Model rows of the group's other files, in the order the right side shows them.
    QList<int> otherRows() const { return m_others; }
    // Row shown on the right; -1 when the group has no other file.
    int otherRow() const;

public slots:
    void showNextCopy();
    void showPreviousCopy();

private:
    void showOther(int position);

    QPointer<TImageModel> m_model;
    QList<int> m_others;
    int m_position = -1;
    PicturePreviewPane *m_chosen = nullptr;
    PicturePreviewPane *m_other = nullptr;
    QToolButton *m_previous = nullptr;
    QToolButton *m_next = nullptr;
    QLabel *m_counter = nullptr;
};
