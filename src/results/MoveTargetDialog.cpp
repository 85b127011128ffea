// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/MoveTargetDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QStyle>
#include <QVBoxLayout>

MoveTargetDialog::MoveTargetDialog(const QString &folder, bool keepStructure, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("MoveTargetDialog"));
    setWindowTitle(tr("Move to Folder"));
    setMinimumWidth(560);

    auto *prompt = new QLabel(tr("Move the selected items into this folder:"), this);
    m_folder = new QLineEdit(QDir::toNativeSeparators(folder), this);
    m_folder->setObjectName(QStringLiteral("lineEdit_folder"));
    m_folder->setPlaceholderText(tr("Choose a folder"));
    m_folder->setClearButtonEnabled(true);
    auto *browse = new QPushButton(tr("Browse…"), this);
    browse->setObjectName(QStringLiteral("btn_browse"));
    auto *row = new QHBoxLayout;
    row->addWidget(m_folder, 1);
    row->addWidget(browse);

    m_keepStructure = new QCheckBox(tr("Keep the folder structure"), this);
    m_keepStructure->setObjectName(QStringLiteral("check_keepStructure"));
    m_keepStructure->setChecked(keepStructure);
    auto *hint = new QLabel(tr("Each item goes into the same sub-folders below the target "
                               "as below the scanned folder that holds it, so that moved files "
                               "keep their context. Without it, every item lands in the target "
                               "itself."),
        this);
    hint->setWordWrap(true);
    hint->setIndent(22);
    hint->setForegroundRole(QPalette::PlaceholderText);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_move = buttons->addButton(tr("Move"), QDialogButtonBox::AcceptRole);
    m_move->setObjectName(QStringLiteral("btn_move"));
    m_move->setDefault(true);
    m_move->setIcon(style()->standardIcon(QStyle::SP_DialogOkButton));

    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(10);
    layout->addWidget(prompt);
    layout->addLayout(row);
    layout->addSpacing(4);
    layout->addWidget(m_keepStructure);
    layout->addWidget(hint);
    layout->addStretch(1);
    layout->addWidget(buttons);

    connect(browse, &QPushButton::clicked, this, &MoveTargetDialog::browse);
    connect(m_folder, &QLineEdit::textChanged, this, &MoveTargetDialog::updateButtons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    updateButtons();
}

QString MoveTargetDialog::folder() const
{
    const QString text = m_folder->text().trimmed();
    if (text.isEmpty())
        return {};
    return QDir::cleanPath(QFileInfo(QDir::fromNativeSeparators(text)).absoluteFilePath());
}

bool MoveTargetDialog::keepStructure() const
{
    return m_keepStructure->isChecked();
}

void MoveTargetDialog::browse()
{
    const QString start = folder().isEmpty()
        ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
        : folder();
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Select Folder"), start,
        QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    if (!chosen.isEmpty())
        m_folder->setText(QDir::toNativeSeparators(chosen));
}

void MoveTargetDialog::updateButtons()
{
    // A path that names a file cannot take the items; one still to be made can.
    const QString target = folder();
    const QFileInfo info(target);
    m_move->setEnabled(!target.isEmpty() && (!info.exists() || info.isDir()));
}
