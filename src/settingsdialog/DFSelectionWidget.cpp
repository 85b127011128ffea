// SPDX-License-Identifier: GPL-3.0-or-later
#include "settingsdialog/DFSelectionWidget.h"

#include "settingsdialog/DroppedPaths.h"
#include "ui_Selection.h"

#include <algorithm>

#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QStyle>
#include <QTimer>

namespace {

enum Column { PriorityColumn = 0, PathColumn = 1 };

} // namespace

DFSelectionWidget::DFSelectionWidget(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::Selection>())
{
    ui->setupUi(this);
    ui->tableWidget->horizontalHeader()->setSectionResizeMode(
        PriorityColumn, QHeaderView::ResizeToContents);
    ui->tableWidget->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    ui->tableWidget->setIconSize(QSize(16, 16));

    const auto method = [this](QRadioButton *button, DFSelectionPreferences::DFScanMethod value) {
        connect(button, &QRadioButton::toggled, this, [this, value](bool on) {
            if (on && !m_filling)
                m_preferences.setScanMethod(value);
        });
    };
    method(ui->rbFileContent, DFSelectionPreferences::scanContent);
    method(ui->rbAllFileContent, DFSelectionPreferences::scanAllContent);
    method(ui->rbFileName, DFSelectionPreferences::scanName);
    const auto rule = [this](QRadioButton *button, DFSelectionPreferences::DFSelectionHint value) {
        connect(button, &QRadioButton::toggled, this, [this, value](bool on) {
            if (on && !m_filling)
                m_preferences.setSelectDuplicate(value);
        });
    };
    rule(ui->rbSelectionNewest, DFSelectionPreferences::selectNewest);
    rule(ui->rbSelectionOldest, DFSelectionPreferences::selectOldest);
    rule(ui->rbAutoSelection, DFSelectionPreferences::autoSelect);
    rule(ui->rbSelectionPriority, DFSelectionPreferences::selectPriority);
    ui->tableWidget->setAcceptDrops(true);
    ui->tableWidget->viewport()->installEventFilter(this);
    connect(ui->tableWidget, &QTableWidget::itemSelectionChanged, this,
        [this] { ui->btnRemovePrior->setEnabled(!ui->tableWidget->selectedItems().isEmpty()); });
    connect(ui->chkScanDupDir, &QCheckBox::toggled, this,
        [this](bool on) { m_preferences.setScanDupDirectory(on); });
    refresh();
}

DFSelectionWidget::~DFSelectionWidget() = default;

void DFSelectionWidget::setPreferences(const DFSelectionPreferences &preferences)
{
    m_preferences = preferences;
    refresh();
}

void DFSelectionWidget::refresh()
{
    m_filling = true;
    switch (m_preferences.scanMethod()) {
    case DFSelectionPreferences::scanAllContent:
        ui->rbAllFileContent->setChecked(true);
        break;
    case DFSelectionPreferences::scanName:
        ui->rbFileName->setChecked(true);
        break;
    default:
        ui->rbFileContent->setChecked(true);
        break;
    }

    // The result page can set a rule this page has no button for (for instance no
    // selection at all); then none of the four is checked.
    const QList<QRadioButton *> rules {
        ui->rbSelectionNewest, ui->rbSelectionOldest, ui->rbAutoSelection, ui->rbSelectionPriority};
    const int hint = int(m_preferences.selectDuplicate());
    for (QRadioButton *button : rules)
        button->setAutoExclusive(false);
    for (int i = 0; i < rules.size(); ++i)
        rules.at(i)->setChecked(i == hint);
    for (QRadioButton *button : rules)
        button->setAutoExclusive(true);

    // By number, so that the table reads as the order of the rule.
    const QMap<QString, qint32> priorities = m_preferences.mapPriority();
    QList<QPair<qint32, QString>> rows;
    for (auto it = priorities.cbegin(); it != priorities.cend(); ++it)
        rows.append({it.value(), it.key()});
    std::sort(rows.begin(), rows.end(), [](const auto &a, const auto &b) {
        return a.first != b.first ? a.first < b.first : a.second < b.second;
    });
    ui->tableWidget->clearContents();
    ui->tableWidget->setRowCount(int(rows.size()));
    for (int row = 0; row < rows.size(); ++row) {
        const QString &folder = rows.at(row).second;
        auto *priority = new QTableWidgetItem(QString::number(rows.at(row).first));
        priority->setData(Qt::UserRole, folder);
        priority->setTextAlignment(Qt::AlignCenter);
        auto *path = new QTableWidgetItem(
            style()->standardIcon(QStyle::SP_DirIcon), QDir::toNativeSeparators(folder));
        path->setFlags(path->flags() & ~Qt::ItemIsEditable);
        path->setToolTip(QDir::toNativeSeparators(folder));
        ui->tableWidget->setItem(row, PriorityColumn, priority);
        ui->tableWidget->setItem(row, PathColumn, path);
    }
    ui->btnRemovePrior->setEnabled(!ui->tableWidget->selectedItems().isEmpty());
    ui->chkScanDupDir->setChecked(m_preferences.scanDupDirectory());
    m_filling = false;
}

bool DFSelectionWidget::addPriorityFolders(const QStringList &folders)
{
    QMap<QString, qint32> priorities = m_preferences.mapPriority();
    // Priorities of 0 or below never raise the next one: the first folder gets 1.
    qint32 largest = 0;
    for (const qint32 value : std::as_const(priorities))
        largest = std::max(largest, value);
    bool refused = false;
    for (const QString &folder : folders) {
        const QString clean = QDir::cleanPath(folder);
        if (priorities.contains(clean)) {
            refused = true;
            continue;
        }
        priorities.insert(clean, ++largest);
    }
    m_preferences.setMapPriority(priorities);
    refresh();
    if (refused)
        QMessageBox::information(this, tr("Already Added"), tr("The folder has been added."));
    return !refused;
}

bool DFSelectionWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->tableWidget->viewport()
        && takeDrop(event, true, [this](const QStringList &folders) {
               // A message box inside the drop would hold the file manager's drag open.
               QTimer::singleShot(0, this, [this, folders] { addPriorityFolders(folders); });
           }))
        return true;
    return QWidget::eventFilter(watched, event);
}

void DFSelectionWidget::retranslate()
{
    ui->retranslateUi(this);
    refresh();
}

void DFSelectionWidget::on_btnAddPrior_clicked()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Select Folder"));
    if (!folder.isEmpty())
        addPriorityFolders({folder});
}

void DFSelectionWidget::on_btnRemovePrior_clicked()
{
    // The remaining folders keep their numbers: a gap does no harm to the rule.
    QMap<QString, qint32> priorities = m_preferences.mapPriority();
    for (const QTableWidgetItem *item : ui->tableWidget->selectedItems()) {
        const QTableWidgetItem *priority = ui->tableWidget->item(item->row(), PriorityColumn);
        if (priority)
            priorities.remove(priority->data(Qt::UserRole).toString());
    }
    m_preferences.setMapPriority(priorities);
    refresh();
}

void DFSelectionWidget::on_tableWidget_itemChanged(QTableWidgetItem *item)
{
    if (m_filling || item->column() != PriorityColumn)
        return;
    const QString folder = item->data(Qt::UserRole).toString();
    QMap<QString, qint32> priorities = m_preferences.mapPriority();
    const qint32 old = priorities.value(folder);
    const QString text = item->text().trimmed();
    bool number = false;
    const qint32 value = text.toInt(&number, 10);
    if (number && value == old)
        return;
    const auto restore = [&] {
        m_filling = true;
        item->setText(QString::number(old));
        m_filling = false;
    };
    if (!number) {
        restore();
        QMessageBox::critical(this, tr("Error"), tr("%1 is not a number.").arg(text));
        return;
    }
    // Each number names one folder: the rule could not tell two folders of one number
    // apart, and the file keeps only one of them.
    for (auto it = priorities.cbegin(); it != priorities.cend(); ++it) {
        if (it.value() == value && it.key() != folder) {
            restore();
            QMessageBox::critical(this, tr("Error"), tr("%1 is added.").arg(value));
            return;
        }
    }
    priorities.insert(folder, value);
    m_preferences.setMapPriority(priorities);
    m_filling = true;
    item->setText(QString::number(value));
    m_filling = false;
}
