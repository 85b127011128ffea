// SPDX-License-Identifier: GPL-3.0-or-later
#include "settingsdialog/DFIgnoreListWidget.h"

#include "engine/ContentKeyCache.h"
#include "preferences/SettingsTable.h"
#include "settingsdialog/DroppedPaths.h"
#include "settingsdialog/ProtectedFolderList.h"
#include "ui_IgnoreList.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QStyle>

namespace {

QStringList extensionsOf(const QString &text)
{
    return text.split(QLatin1Char(','), Qt::SkipEmptyParts);
}

} // namespace

DFIgnoreListWidget::DFIgnoreListWidget(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::IgnoreList>())
{
    ui->setupUi(this);
    ui->sbMinimumFileSize->setRange(
        int(SettingsTable::MinFileSize.minimum), int(SettingsTable::MinFileSize.maximum));
    ui->sbMaximumFileSize->setRange(
        int(SettingsTable::MaxFileSize.minimum), int(SettingsTable::MaxFileSize.maximum));
    // Letters, digits and commas only: a dot or a blank in an extension would never match.
    const QRegularExpression extensions(QStringLiteral("[a-zA-Z0-9,]+$"));
    ui->linEditOnly->setValidator(new QRegularExpressionValidator(extensions, this));
    ui->linEditIgnore->setValidator(new QRegularExpressionValidator(extensions, this));

    const auto method
        = [this](QRadioButton *button, DFIgnoreListPreferences::DFRemovalMethod value) {
              connect(button, &QRadioButton::toggled, this, [this, value](bool on) {
                  if (!on || m_filling)
                      return;
                  m_preferences.setRemovealMethod(value);
                  showMoveFolder();
              });
          };
    method(ui->rbMoveToTrash, DFIgnoreListPreferences::moveToTrash);
    method(ui->rbRemovePermanently, DFIgnoreListPreferences::removePermanently);
    method(ui->rbMoveToFolder, DFIgnoreListPreferences::moveToFolder);
    method(ui->rbHardLink, DFIgnoreListPreferences::replaceByHardLink);
    method(ui->rbReflink, DFIgnoreListPreferences::replaceByReflink);
    method(ui->rbSymlink, DFIgnoreListPreferences::replaceBySymlink);
    connect(ui->lineEdit, &QLineEdit::textEdited, this,
        [this](const QString &text) { m_preferences.setTrashFolder(text); });
    connect(ui->sbMinimumFileSize, &QSpinBox::valueChanged, this, [this](int value) {
        if (!m_filling)
            m_preferences.setMinFileSize(quint64(value));
    });
    connect(ui->sbMaximumFileSize, &QSpinBox::valueChanged, this, [this](int value) {
        if (!m_filling)
            m_preferences.setMaxFileSize(quint64(value));
    });
    ui->lwIgnoreList->setIconSize(QSize(16, 16));
    ui->lwIgnoreList->setAcceptDrops(true);
    ui->lwIgnoreList->viewport()->installEventFilter(this);
    connect(ui->lwIgnoreList, &QListWidget::itemSelectionChanged, this,
        &DFIgnoreListWidget::updateListButtons);
    connect(ui->radBtnOnly, &QRadioButton::toggled, this, [this](bool on) {
        if (m_filling)
            return;
        m_preferences.setScanFileType(on ? 0 : 1);
        showFormatMode(!on);
        (on ? ui->linEditOnly : ui->linEditIgnore)->setFocus();
    });
    connect(ui->linEditOnly, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (!m_filling)
            m_preferences.setOnlyFileType(extensionsOf(text));
    });
    connect(ui->linEditIgnore, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (!m_filling)
            m_preferences.setIgnoreFileType(extensionsOf(text));
    });
    connect(ui->chkIgnoreSystemHidden, &QCheckBox::toggled, this,
        [this](bool on) { m_preferences.setHideSystemFile(on); });

    // Beside the ignore list, which it resembles: both say what a scan must leave alone.
    m_protected = new ProtectedFolderList(this);
    const int listsAt = ui->verticalLayout->indexOf(ui->groupIgnoreList);
    ui->verticalLayout->removeWidget(ui->groupIgnoreList);
    auto *listsRow = new QHBoxLayout;
    listsRow->addWidget(ui->groupIgnoreList, 3);
    listsRow->addWidget(m_protected, 2);
    ui->verticalLayout->insertLayout(listsAt, listsRow, 1);
    connect(m_protected, &ProtectedFolderList::foldersChanged, this,
        [this](const QStringList &folders) { m_preferences.setProtectedFolderList(folders); });

    // The key cache is no setting: clearing it acts at once, whatever the dialog's answer.
    auto *cacheRow = new QHBoxLayout;
    m_cacheSize = new QLabel(this);
    m_cacheSize->setObjectName(QStringLiteral("lblKeyCacheSize"));
    m_clearCache = new QPushButton(this);
    m_clearCache->setObjectName(QStringLiteral("btnClearKeyCache"));
    cacheRow->addWidget(m_cacheSize, 1);
    cacheRow->addWidget(m_clearCache);
    ui->verticalLayout->addLayout(cacheRow);
    connect(m_clearCache, &QPushButton::clicked, this, [this] {
        if (!ContentKeyCache::clear(ContentKeyCache::defaultPath()))
            QMessageBox::warning(this, tr("Clear cache"),
                tr("The cache is in use by a running scan. Try again when it has ended."));
        showCacheSize();
    });
    refresh();
}

void DFIgnoreListWidget::showCacheSize()
{
    if (!m_cacheSize)
        return;
    const qint64 size = ContentKeyCache::sizeOnDisk(ContentKeyCache::defaultPath());
    m_cacheSize->setText(
        tr("Content keys kept from earlier scans: %1")
            .arg(QLocale().formattedDataSize(size, 2, QLocale::DataSizeTraditionalFormat)));
    m_clearCache->setText(tr("Clear cache"));
    m_clearCache->setEnabled(size > 0);
}

DFIgnoreListWidget::~DFIgnoreListWidget() = default;

void DFIgnoreListWidget::setPreferences(const DFIgnoreListPreferences &preferences)
{
    m_preferences = preferences;
    refresh();
}

void DFIgnoreListWidget::refresh()
{
    m_filling = true;
    switch (m_preferences.RemovealMethod()) {
    case DFIgnoreListPreferences::removePermanently:
        ui->rbRemovePermanently->setChecked(true);
        break;
    case DFIgnoreListPreferences::moveToFolder:
        ui->rbMoveToFolder->setChecked(true);
        break;
    case DFIgnoreListPreferences::replaceByHardLink:
        ui->rbHardLink->setChecked(true);
        break;
    case DFIgnoreListPreferences::replaceByReflink:
        ui->rbReflink->setChecked(true);
        break;
    case DFIgnoreListPreferences::replaceBySymlink:
        ui->rbSymlink->setChecked(true);
        break;
    default:
        ui->rbMoveToTrash->setChecked(true);
        break;
    }
    showMoveFolder();
    ui->lineEdit->setText(m_preferences.TrashFolder());
    // The spin boxes keep a value within their ranges themselves.
    ui->sbMinimumFileSize->setValue(int(qMin<quint64>(m_preferences.MinFileSize(), INT_MAX)));
    ui->sbMaximumFileSize->setValue(int(qMin<quint64>(m_preferences.MaxFileSize(), INT_MAX)));

    ui->lwIgnoreList->clear();
    for (const QString &path : m_preferences.IgnorePathFile()) {
        const QIcon icon = style()->standardIcon(
            QFileInfo(path).isFile() ? QStyle::SP_FileIcon : QStyle::SP_DirIcon);
        auto *item = new QListWidgetItem(icon, QDir::toNativeSeparators(path), ui->lwIgnoreList);
        item->setData(Qt::UserRole, path);
        item->setToolTip(QDir::toNativeSeparators(path));
    }
    updateListButtons();
    m_protected->setFolders(m_preferences.ProtectedFolderList());

    ui->linEditIgnore->setText(m_preferences.IgnoreFileType().join(QLatin1Char(',')));
    ui->linEditOnly->setText(m_preferences.OnlyFileType().join(QLatin1Char(',')));
    const bool ignoreMode = m_preferences.ScanFileType() != 0;
    (ignoreMode ? ui->radBtnUgnore : ui->radBtnOnly)->setChecked(true);
    showFormatMode(ignoreMode);
    ui->chkIgnoreSystemHidden->setChecked(m_preferences.HideSystemFile());
    m_filling = false;
    showCacheSize();
}

void DFIgnoreListWidget::showFormatMode(bool ignoreMode)
{
    ui->linEditIgnore->setEnabled(ignoreMode);
    ui->linEditOnly->setEnabled(!ignoreMode);
}

void DFIgnoreListWidget::showMoveFolder()
{
    // The folder only matters to the move; greyed out otherwise, it still shows the
    // folder a later move would use.
    const bool moving = ui->rbMoveToFolder->isChecked();
    ui->lineEdit->setEnabled(moving);
    ui->btn_selectPath->setEnabled(moving);
}

void DFIgnoreListWidget::updateListButtons()
{
    ui->btnRemoveIgnore->setEnabled(!ui->lwIgnoreList->selectedItems().isEmpty());
    ui->btnClear->setEnabled(ui->lwIgnoreList->count() > 0);
}

bool DFIgnoreListWidget::validate()
{
    // Kilobytes against megabytes: equal bounds are refused too, as they leave no room.
    const int minimum = ui->sbMinimumFileSize->value();
    const int maximum = ui->sbMaximumFileSize->value();
    if (!SettingsTable::sizeBoundsValid(minimum, maximum)) {
        QMessageBox::critical(this, tr("Error"),
            tr("The maximum file size cannot be less than the minimum file size."));
        return false;
    }
    // The spin box's range is the cap of the maximum.
    m_preferences.setMaxFileSize(quint64(maximum));
    m_preferences.setMinFileSize(quint64(minimum));
    if (ui->rbMoveToFolder->isChecked() && ui->lineEdit->text().trimmed().isEmpty()) {
        QMessageBox::critical(this, tr("Error"),
            tr("Please select the folder where the deleted files will be moved to."));
        return false;
    }
    return true;
}

void DFIgnoreListWidget::addIgnorePaths(const QStringList &paths)
{
    QStringList list = m_preferences.IgnorePathFile();
    for (const QString &path : paths) {
        const QString clean = QDir::cleanPath(path);
        if (!clean.isEmpty() && !list.contains(clean))
            list.append(clean);
    }
    m_preferences.setIgnorePathFile(list);
    refresh();
}

bool DFIgnoreListWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->lwIgnoreList->viewport()
        && takeDrop(event, false, [this](const QStringList &paths) { addIgnorePaths(paths); }))
        return true;
    return QWidget::eventFilter(watched, event);
}

void DFIgnoreListWidget::retranslate()
{
    ui->retranslateUi(this);
    m_protected->retranslate();
    refresh();
}

void DFIgnoreListWidget::on_btn_selectPath_clicked()
{
    const QString current = ui->lineEdit->text();
    const QString start = QFileInfo(current).isDir() ? current : QStringLiteral("/");
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Select folder"), start);
    if (folder.isEmpty())
        return;
    m_preferences.setTrashFolder(QDir::cleanPath(folder));
    ui->lineEdit->setText(m_preferences.TrashFolder());
}

void DFIgnoreListWidget::on_btnAddIgnore_clicked()
{
    const QString folder
        = QFileDialog::getExistingDirectory(this, tr("Select Folder"), QStringLiteral("/"));
    if (!folder.isEmpty())
        addIgnorePaths({folder});
}

void DFIgnoreListWidget::on_btn_addFiles_clicked()
{
#ifdef Q_OS_WIN
    const QString filter = tr("All Files (*.*)");
#else
    // "*.*" would hide the many files without an extension here.
    const QString filter = tr("All Files (*)");
#endif
    const QStringList files
        = QFileDialog::getOpenFileNames(this, tr("Select Files"), QString(), filter);
    if (!files.isEmpty())
        addIgnorePaths(files);
}

void DFIgnoreListWidget::on_btnRemoveIgnore_clicked()
{
    QStringList list = m_preferences.IgnorePathFile();
    for (const QListWidgetItem *item : ui->lwIgnoreList->selectedItems())
        list.removeAll(item->data(Qt::UserRole).toString());
    m_preferences.setIgnorePathFile(list);
    refresh();
}

void DFIgnoreListWidget::on_btnClear_clicked()
{
    m_preferences.setIgnorePathFile({});
    refresh();
}
