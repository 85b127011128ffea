// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/PicturePreviewDialog.h"

#include "results/PicturePreviewPane.h"
#include "results/TImageModel.h"

#include <algorithm>

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

PicturePreviewDialog::PicturePreviewDialog(TImageModel *model, int row, QWidget *parent)
    : QDialog(parent), m_model(model)
{
    setObjectName(QStringLiteral("PicturePreviewDialog"));
    setWindowTitle(tr("Preview"));

    // The group's other files in the order of the list, starting after the chosen one,
    // so the first comparison is with its neighbour in the grid.
    const QString key = model->index(row, 0).data(TImageModel::KeyRole).toString();
    const int rows = model->rowCount();
    for (int step = 1; step < rows; ++step) {
        const int other = (row + step) % rows;
        if (model->index(other, 0).data(TImageModel::KeyRole).toString() == key)
            m_others << other;
    }

    m_chosen = new PicturePreviewPane(tr("Chosen copy"), this);
    m_chosen->setObjectName(QStringLiteral("pane_chosen"));
    m_other = new PicturePreviewPane(tr("Compared with"), this);
    m_other->setObjectName(QStringLiteral("pane_other"));

    m_previous = new QToolButton(this);
    m_previous->setObjectName(QStringLiteral("btn_previousCopy"));
    m_previous->setArrowType(Qt::LeftArrow);
    m_previous->setToolTip(tr("Previous copy (Left arrow)"));
    m_previous->setFixedSize(28, 28);
    m_counter = new QLabel(this);
    m_counter->setObjectName(QStringLiteral("lab_copyCounter"));
    m_counter->setStyleSheet(QStringLiteral("color: #6b7385;"));
    m_next = new QToolButton(this);
    m_next->setObjectName(QStringLiteral("btn_nextCopy"));
    m_next->setArrowType(Qt::RightArrow);
    m_next->setToolTip(tr("Next copy (Right arrow)"));
    m_next->setFixedSize(28, 28);
    m_other->headerLayout()->addWidget(m_previous);
    m_other->headerLayout()->addSpacing(4);
    m_other->headerLayout()->addWidget(m_counter);
    m_other->headerLayout()->addSpacing(4);
    m_other->headerLayout()->addWidget(m_next);
    connect(m_previous, &QToolButton::clicked, this, &PicturePreviewDialog::showPreviousCopy);
    connect(m_next, &QToolButton::clicked, this, &PicturePreviewDialog::showNextCopy);
    // Shortcuts rather than key handling: a focused check box or button would take the
    // arrow keys to move the focus.
    connect(new QShortcut(QKeySequence(Qt::Key_Left), this), &QShortcut::activated, this,
        &PicturePreviewDialog::showPreviousCopy);
    connect(new QShortcut(QKeySequence(Qt::Key_Right), this), &QShortcut::activated, this,
        &PicturePreviewDialog::showNextCopy);

    auto *panes = new QHBoxLayout;
    panes->setSpacing(24);
    panes->addWidget(m_chosen, 1);
    panes->addWidget(m_other, 1);

    auto *hint = new QLabel(m_others.size() > 1
            ? tr("Left and Right arrow keys show the other copies of the group.")
            : QString(),
        this);
    hint->setObjectName(QStringLiteral("lab_previewHint"));
    hint->setStyleSheet(QStringLiteral("color: #6b7385;"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(hint, 1);
    bottom->addWidget(buttons);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(14);
    layout->addLayout(panes, 1);
    layout->addLayout(bottom);

    m_chosen->showRow(model, row);
    if (m_others.isEmpty()) {
        m_other->hide();
    } else {
        showOther(0);
    }
    m_previous->setEnabled(m_others.size() > 1);
    m_next->setEnabled(m_others.size() > 1);

    // Rows are numbers into the model: once it changes under the dialog they may name
    // other files, so the dialog does not stay open on them.
    connect(model, &QAbstractItemModel::modelReset, this, &QDialog::reject);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &QDialog::reject);
    connect(model, &QAbstractItemModel::rowsInserted, this, &QDialog::reject);

    const QSize room = screen() ? screen()->availableSize() : QSize(1280, 800);
    resize(std::min(room.width() * 9 / 10, 1500), std::min(room.height() * 9 / 10, 940));
}

int PicturePreviewDialog::otherRow() const
{
    return m_position >= 0 ? m_others.at(m_position) : -1;
}

void PicturePreviewDialog::showNextCopy()
{
    if (!m_others.isEmpty())
        showOther((m_position + 1) % int(m_others.size()));
}

void PicturePreviewDialog::showPreviousCopy()
{
    if (!m_others.isEmpty())
        showOther((m_position + int(m_others.size()) - 1) % int(m_others.size()));
}

void PicturePreviewDialog::showOther(int position)
{
    if (!m_model)
        return;
    m_position = position;
    m_counter->setText(tr("%1 of %2").arg(position + 1).arg(m_others.size()));
    m_other->showRow(m_model, m_others.at(position));
}
