// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ShowInFolder.h"

#include "app/LogTags.h"
#include "app/TLogger.h"
#include "platform/Platform.h"
#include "results/ResultForm.h"
#include "results/TImageModel.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QUrl>

namespace {

const QString &kTag = LogTags::resultForm;

} // namespace

ShowInFolder::ShowInFolder(QWidget *page, bool isCloud, KvCloudObject *cloud)
    : m_page(page), m_isCloud(isCloud), m_cloud(cloud)
{ }

void ShowInFolder::show(const QString &path) const
{
    if (m_isCloud) {
        const QString link
            = TImageModel::cloudProperty(m_cloud, path, QStringLiteral("webViewLink")).toString();
        if (link.isEmpty()) {
            splog_d(
                kTag + QStringLiteral("onBtnOpenFinderClick. webLink is empty. file:%1").arg(path));
            QMessageBox::warning(m_page, ResultForm::tr("Open Link Failed"),
                ResultForm::tr("Failed to get the web link for the file."));
            return;
        }
        QDesktopServices::openUrl(QUrl(link));
        return;
    }
    const QFileInfo info(path);
    if (!info.exists()) {
        splog_d(kTag + QStringLiteral("onBtnOpenFinderClick. File does not exist:%1").arg(path));
        QMessageBox::warning(
            m_page, ResultForm::tr("Show in Folder"), ResultForm::tr("The file was not found."));
        return;
    }
    // The file manager selects the file when it offers that; otherwise its folder opens.
    const QString uri = QUrl::fromLocalFile(info.absoluteFilePath()).toString(QUrl::FullyEncoded);
    const std::vector<std::string> command = platform::current().showItemCommand(
        info.absoluteFilePath().toStdString(), uri.toStdString());
    const QUrl folder = QUrl::fromLocalFile(info.absolutePath());
    if (command.empty()) {
        QDesktopServices::openUrl(folder);
        return;
    }
    auto *process = new QProcess(m_page);
    QStringList arguments;
    for (size_t i = 1; i < command.size(); ++i)
        arguments << QString::fromStdString(command[i]);
    QObject::connect(process, &QProcess::finished, m_page,
        [process, folder](int code, QProcess::ExitStatus status) {
            if (code != 0 || status != QProcess::NormalExit)
                QDesktopServices::openUrl(folder);
            process->deleteLater();
        });
    QObject::connect(
        process, &QProcess::errorOccurred, m_page, [process, folder](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart) {
                QDesktopServices::openUrl(folder);
                process->deleteLater();
            }
        });
    process->start(QString::fromStdString(command.front()), arguments);
}
