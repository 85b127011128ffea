// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/CsvExportRun.h"

#include "fileops/CsvExport.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QSaveFile>
#include <QWidget>
#include <QtConcurrent/QtConcurrentRun>

CsvExportRun::CsvExportRun(QWidget *page) : QObject(page), m_page(page)
{
    connect(&m_watcher, &QFutureWatcher<QString>::finished, this, [this] {
        const QString error = m_watcher.result();
        if (!error.isEmpty() && m_page)
            QMessageBox::warning(m_page, tr("Export Failed"),
                tr("The table could not be written to %1:\n%2")
                    .arg(QDir::toNativeSeparators(m_path), error));
        emit finished(m_path, error);
    });
}

void CsvExportRun::start(const QStringList &order)
{
    if (isRunning())
        return;
    const QString folder = DFPreferences::instance()->ignoreListPreferences()->SaveFolder();
    const QString path = QFileDialog::getSaveFileName(m_page, tr("Export as CSV"),
        QDir(folder.isEmpty() ? QDir::homePath() : folder).filePath(QStringLiteral("results.csv")),
        tr("CSV tables (*.csv)"));
    if (!path.isEmpty())
        writeTo(path, order);
}

void CsvExportRun::writeTo(const QString &path, const QStringList &order)
{
    if (isRunning())
        return;
    m_path = path;
    m_watcher.setFuture(QtConcurrent::run([path, order]() -> QString {
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return file.errorString();
        QString error;
        if (!CsvExport::write(file, order, &error)) {
            file.cancelWriting();
            return error;
        }
        return file.commit() ? QString() : file.errorString();
    }));
}
