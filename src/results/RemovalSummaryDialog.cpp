// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/RemovalSummaryDialog.h"

#include "engine/GroupMember.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "results/ResultForm.h"
#include "results/TImageModel.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

RemovalSummaryDialog::RemovalSummaryDialog(
    const QList<DeleteResult> &results, int method, qint64 bytes, bool freed, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("RemovalSummaryDialog"));
    setWindowTitle(tr("Removal finished"));
    setMinimumSize(760, 420);
    resize(900, 520);

    m_items = new QTreeWidget(this);
    m_items->setObjectName(QStringLiteral("tree_items"));
    m_items->setRootIsDecorated(false);
    m_items->setUniformRowHeights(true);
    m_items->setAlternatingRowColors(true);
    m_items->setTextElideMode(Qt::ElideMiddle);
    m_items->setHeaderLabels({tr("Item"), tr("Result"), tr("Details")});
    m_items->header()->setStretchLastSection(true);
    m_items->header()->setSectionResizeMode(0, QHeaderView::Interactive);
    m_items->setColumnWidth(0, 380);
    m_items->setColumnWidth(1, 110);

    m_linked = method == DFIgnoreListPreferences::replaceByHardLink
        || method == DFIgnoreListPreferences::replaceByReflink
        || method == DFIgnoreListPreferences::replaceBySymlink;
    const bool links = m_linked;
    QList<QTreeWidgetItem *> kept;
    QList<QTreeWidgetItem *> removed;
    for (const DeleteResult &result : results) {
        const QString path = QDir::toNativeSeparators(GroupMember::fromEntry(result.path).path);
        const bool gone = result.success && result.errorCode == DeleteResult::NoError;
        QString outcome;
        QString details;
        if (gone && result.alreadyGone) {
            ++m_alreadyGone;
            outcome = tr("Already gone");
            details = tr("It was no longer there when its turn came.");
        } else if (gone) {
            ++m_removed;
            if (links) {
                outcome = tr("Replaced by a link");
                details = tr("Now reads %1").arg(QDir::toNativeSeparators(result.destination));
            } else if (result.destination.isEmpty()) {
                outcome = tr("Removed");
            } else {
                outcome = method == DFIgnoreListPreferences::moveToFolder ? tr("Moved")
                                                                          : tr("In the trash");
                details = QDir::toNativeSeparators(result.destination);
            }
        } else {
            ++m_kept;
            outcome = result.errorCode == DeleteResult::Skipped ? tr("Kept") : tr("Failed");
            details = ResultForm::failureText(result, method);
        }
        auto *item = new QTreeWidgetItem({path, outcome, details});
        for (int column = 0; column < 3; ++column)
            item->setToolTip(column, item->text(column));
        if (!gone) {
            item->setForeground(1, QColor(0xb2, 0x3b, 0x1e));
            item->setForeground(2, QColor(0xb2, 0x3b, 0x1e));
        }
        (gone ? removed : kept).append(item);
    }
    // What stayed comes first: that is what the user has to look at.
    m_items->addTopLevelItems(kept);
    m_items->addTopLevelItems(removed);

    QString text = QStringLiteral("<b>%1</b><br>%2")
                       .arg(headline().toHtmlEscaped(),
                           (freed ? tr("Space freed: %1") : tr("Moved: %1, on the same disk"))
                               .arg(TImageModel::sizeText(bytes)));
    // A hard link is one file under two names: a change of its permissions or owner through
    // either name shows under both.
    if (method == DFIgnoreListPreferences::replaceByHardLink && m_removed > 0)
        text += QStringLiteral("<br>")
            + tr("Each file replaced by a hard link is now another name of the copy that stays: "
                 "both names share one set of permissions and one owner.")
                  .toHtmlEscaped();
    m_headline = new QLabel(text, this);
    m_headline->setObjectName(QStringLiteral("lab_summary"));
    m_headline->setTextFormat(Qt::RichText);
    m_headline->setWordWrap(true);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 16, 18, 14);
    layout->setSpacing(12);
    layout->addWidget(m_headline);
    layout->addWidget(m_items, 1);
    layout->addWidget(buttons);
}

QString RemovalSummaryDialog::headline() const
{
    QString text = m_linked ? tr("%n item(s) replaced by a link.", nullptr, m_removed)
                            : tr("%n item(s) removed.", nullptr, m_removed);
    if (m_alreadyGone > 0)
        text += QLatin1Char(' ') + tr("%n item(s) were already gone.", nullptr, m_alreadyGone);
    if (m_kept > 0)
        text += QLatin1Char(' ')
            + tr("%n item(s) stayed in place; the reasons are listed below.", nullptr, m_kept);
    return text;
}
