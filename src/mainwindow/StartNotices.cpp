// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/StartNotices.h"

#include "app/AppIdentity.h"
#include "app/FeatureReporter.h"
#include "app/LogTags.h"
#include "app/TLogger.h"
#include "fileops/RemovalJournal.h"
#include "mainwindow/MainWindow.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>

namespace {

const QString &kTag = LogTags::mainWindow;

} // namespace

namespace StartNotices {

void explainBadProjectArgument(QWidget *over, const QString &path)
{
    const QFileInfo info(path);
    splog_d(kTag + QStringLiteral("Project argument is not a file: %1").arg(path));
    const QString shown = QDir::toNativeSeparators(info.absoluteFilePath());
    QMessageBox::warning(over, MainWindow::tr("Open File"),
        info.isDir() ? MainWindow::tr("\"%1\" is a folder, not a project file. To scan it, add it "
                                      "with the + button.")
                           .arg(shown)
                     : MainWindow::tr("The project file \"%1\" does not exist.").arg(shown));
}

void showAbnormalExit(QWidget *over)
{
    reportFeature(AppIdentity::featureDeletedExcept, QString());
    RemovalJournal journal;
    const RemovalJournal::Batch batch = journal.interruptedBatch();
    QString text;
    if (batch.id.isEmpty() || batch.signal == 0) {
        text = MainWindow::tr(
            "The program exited unexpectedly during the last batch deletion,<br>possibly "
            "due to interference from antivirus software.<br><br>Please disable your "
            "antivirus temporarily or add this application<br>to its whitelist to avoid "
            "deletion failures or crashes.");
    } else {
        text = MainWindow::tr("The last batch removal was stopped before it finished (signal %1).")
                   .arg(batch.signal);
    }
    // The journal tells how far the interrupted batch got, item by item.
    if (!batch.id.isEmpty()) {
        const qsizetype removed = batch.count(RemovalJournal::removed);
        const qsizetype unfinished = std::count_if(batch.items.cbegin(), batch.items.cend(),
            [](const RemovalJournal::Item &item) { return item.intended && !item.hasOutcome; });
        text += QStringLiteral("<br><br>")
            + MainWindow::tr(
                "Items handled before it stopped: %1 of %2 (%3 removed, %4 cut off in the "
                "middle).<br>The removal journal lists each one and where it went:<br>%5")
                  .arg(batch.items.size())
                  .arg(batch.planned)
                  .arg(removed)
                  .arg(unfinished)
                  .arg(QDir::toNativeSeparators(journal.path()).toHtmlEscaped());
        if (batch.restorable())
            text += QStringLiteral("<br><br>")
                + MainWindow::tr("The command line's \"restore %1\" puts its items back.")
                      .arg(batch.id);
        journal.markNoticed(batch.id);
    }
    QMessageBox::information(
        over, MainWindow::tr("Abnormal Exit Detected During Last Deletion"), text);
    DFPreferences::instance()->ignoreListPreferences()->setDeleteException(0);
    DFPreferences::instance()->save();
}

void explainSettingsNotLoaded(QWidget *over, const QString &problem)
{
    QMessageBox::warning(over, MainWindow::tr("Settings Not Loaded"),
        MainWindow::tr("The settings file cannot be used: %1\n\nThe program runs with the default "
                       "settings and will not save any changes there.")
            .arg(problem));
}

} // namespace StartNotices
