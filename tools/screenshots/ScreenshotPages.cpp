// SPDX-License-Identifier: GPL-3.0-or-later
// Saves pictures of the main window's pages and of the settings dialog's tabs into the
// folder given as argument, in every language of the program and at two window sizes, and
// one strip of the round button's captions in all languages; with "settings" as second
// argument only the settings dialog. Run it through tools/screenshots.sh (under Xvfb) to look at
// the real rendering.
#include "ScreenshotSupport.h"
#include "app/LanguageSetup.h"
#include "cloud/CloudService.h"
#include "cloud/KvCloudObject.h"
#include "engine/ScanProblems.h"
#include "engine/ScanTree.h"
#include "engine/TFileData.h"
#include "mainwindow/MainWindow.h"
#include "mainwindow/TCloudFolderDialog.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "preferences/DFSelectionPreferences.h"
#include "results/CListViewDelegate.h"
#include "results/ResultForm.h"
#include "scancontrol/TControlUI.h"
#include "settingsdialog/DFPreferencesDialog.h"
#include "widgets/ProblemListDialog.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

namespace {

using namespace ScreenshotSupport;

// A scan that met every kind of problem, with more unreadable files than it keeps.
void fillProblems(ScanProblems &problems, const QString &root)
{
    problems.clear(3);
    problems.add(ScanProblems::UnreadableFolder, root + QStringLiteral("/Photos/private"));
    problems.add(ScanProblems::UnreadableFolder, root + QStringLiteral("/Documents/.cache/locked"));
    for (int i = 0; i < 1200; ++i)
        problems.add(ScanProblems::UnreadableFile,
            root + QStringLiteral("/Music archive/side %1/track %2.flac").arg(i / 12).arg(i % 12));
    problems.add(ScanProblems::LinkOutsideRoots, root + QStringLiteral("/Documents/shared link"));
    problems.add(ScanProblems::PseudoFileSystem, QStringLiteral("/proc"));
}

void shootLanguage(const Language &language, const QSize &size, const QString &root,
    const QString &out, QImage *buttonStrip, int column)
{
    const QString prefix = namePrefix(language, size);
    MainWindow window({QStringLiteral("program")});
    window.resize(size);
    window.show();
    (void)QTest::qWaitForWindowExposed(&window);
    save(&window, out, prefix + QStringLiteral("1-folders-empty"));

    for (const char *name : {"Photos", "Documents", "Music archive"})
        window.addFolder(QDir(root).filePath(QString::fromLatin1(name)));
    window.addFolder(QDir(root).filePath(QStringLiteral(
        "Archive of the family pictures taken between 1998 and 2012/Holidays in the mountains")));
    // The photo archive locked, as a user cleaning the other folders against it has it.
    auto *folders = window.findChild<QListView *>(QStringLiteral("listview_path"));
    folders->model()->setData(
        folders->model()->index(0, 0), true, CListViewDelegate::kProtectedRole);
    save(&window, out, prefix + QStringLiteral("2-folders-added"));

    auto *pages = window.findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    pages->setCurrentIndex(1);
    window.setStatus(MainWindow::StateScanning);
    window.filesCountChange(0);
    window.onItemFound(0, 0);
    window.onProcessChange(0);
    save(&window, out, prefix + QStringLiteral("3-scanning-start"));
    window.filesCountChange(48211);
    window.onProcessChange(62.5);
    window.onItemFound(1375, qint64(3) * 1024 * 1024 * 1024 + 400 * 1024 * 1024);
    window.onUpdateTimer(QStringLiteral("00:01:37"));
    save(&window, out, prefix + QStringLiteral("4-scanning"));
    window.onStageChanged(TControlUI::StageSimilar);
    window.onPicturesCounted(3, 412, 1050);
    DFIgnoreListPreferences *common = DFPreferences::instance()->ignoreListPreferences();
    const DFIgnoreListPreferences saved(*common);
    common->setScanFileType(0);
    common->setOnlyFileType({QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("png"),
        QStringLiteral("heic")});
    window.showTypeFilter();
    *common = saved;
    save(&window, out, prefix + QStringLiteral("4-scanning-pictures"));

    // The scanning page in its finished state, with what the scan could not read.
    ScanProblems problems;
    fillProblems(problems, root);
    window.onProcessChange(100);
    window.setStatus(MainWindow::StateFinished);
    window.showScanProblems(problems);
    save(&window, out, prefix + QStringLiteral("5-finished-problems"));
    auto *button = window.findChild<QPushButton *>(QStringLiteral("btnAdd"));
    if (buttonStrip) {
        // Taken from the window, so the round face shows on the page behind it.
        QPainter painter(buttonStrip);
        painter.drawPixmap(column * 140 + 10, 10,
            window.grab(QRect(button->mapTo(&window, QPoint()), button->size())));
        painter.drawText(
            QRect(column * 140, 135, 140, 20), Qt::AlignCenter, QString::fromLatin1(language.code));
    }

    // Nothing found: the way a real scan ends without groups.
    TFileData::instance()->clear();
    window.allThreadComplate();
    save(&window, out, prefix + QStringLiteral("6-no-duplicates"));
    window.showScanProblems(problems);
    save(&window, out, prefix + QStringLiteral("6-no-duplicates-problems"));

    ScanProblems unreadable;
    unreadable.clear(1);
    unreadable.addUnreadableRoot(root + QStringLiteral("/Photos"));
    window.showScanProblems(unreadable);
    save(&window, out, prefix + QStringLiteral("7-roots-unreadable"));
    window.showScanProblems(ScanProblems());
    window.showStoppedWithoutResults(false);
    save(&window, out, prefix + QStringLiteral("7-stopped-without-results"));

    if (size == kSizes[0]) {
        window.showScanProblems(problems);
        window.showProblemDetails();
        QTest::qWait(200);
        if (auto *dialog = window.findChild<ProblemListDialog *>()) {
            save(dialog, out, prefix + QStringLiteral("8-problem-details"));
            dialog->close();
        }
        window.systemMenu()->popup(window.mapToGlobal(QPoint(600, 48)));
        QTest::qWait(200);
        save(window.systemMenu(), out, prefix + QStringLiteral("9-system-menu"));
        window.systemMenu()->hide();
        window.addMenu()->popup(window.mapToGlobal(QPoint(400, 500)));
        QTest::qWait(200);
        save(window.addMenu(), out, prefix + QStringLiteral("9-add-menu"));
        window.addMenu()->hide();
    }
}

// A dialog over its window, dimmed behind it, the way it opens on the screen.
void saveOverWindow(QWidget *dialog, QWidget *window, const QString &out, const QString &name)
{
    QPixmap screen = window->grab();
    const QPixmap face = dialog->grab();
    QPainter painter(&screen);
    painter.fillRect(screen.rect(), QColor(0, 0, 0, 60));
    painter.drawPixmap(
        (screen.width() - face.width()) / 2, (screen.height() - face.height()) / 2, face);
    painter.end();
    screen.save(QDir(out).filePath(name + QStringLiteral("-on-window.png")));
}

// The settings dialog's three tabs, each alone and over the window of the given size, the
// way the dialog opens on the screen.
void shootSettings(const Language &language, const QSize &size, const QString &out)
{
    const QString prefix = namePrefix(language, size);
    MainWindow window({QStringLiteral("program")});
    window.resize(size);
    window.show();
    (void)QTest::qWaitForWindowExposed(&window);
    DFPreferencesDialog dialog(
        DFPreferences::instance(), [] { return false; }, &window);
    dialog.show();
    (void)QTest::qWaitForWindowExposed(&dialog);
    auto *tabs = dialog.findChild<QTabWidget *>(QStringLiteral("tabWidget"));
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        const QString name = prefix + QStringLiteral("settings-%1").arg(i + 1);
        save(&dialog, out, name);
        saveOverWindow(&dialog, &window, out, name);
    }
}

// The cloud folder chooser over the window, and the window with the chosen folders; the
// "drive" is a local folder behind the same rclone calls as a real account.
void shootCloud(const QString &out)
{
    QTemporaryDir drive;
    for (const char *name : {"Photos/2019 Summer", "Photos/2020 Wedding", "Photos/Phone backup",
             "Documents/Taxes", "Documents/Letters", "Music", "Shared with me"})
        QDir(drive.path()).mkpath(QString::fromLatin1(name));
    const QByteArray picture(480000, 'p');
    const QByteArray letter(136000, 'l');
    ScanTree::write(drive.path(), QStringLiteral("Photos/2019 Summer/IMG_2041.jpg"), picture);
    ScanTree::write(drive.path(), QStringLiteral("Photos/Phone backup/IMG_2041.jpg"), picture);
    ScanTree::write(drive.path(), QStringLiteral("Documents/Taxes/receipt scan.jpg"), letter);
    ScanTree::write(
        drive.path(), QStringLiteral("Photos/Phone backup/receipt scan (1).jpg"), letter);
    // rclone starts here, so the drive's top is this folder.
    QDir::setCurrent(drive.path());
    KvCloudObject *cloud = KvCloudObject::instance();
    QSignalSpy signedIn(cloud, &KvCloudObject::onAuthorizedSuccess);
    cloud->start_authorization(QStringLiteral("GoogleDrive"), CloudService::kLocalFolder);
    if (!signedIn.wait(20000))
        return;
    for (const QSize &size : kSizes) {
        const QString prefix = namePrefix(kLanguages[0], size);
        MainWindow window({QStringLiteral("program")});
        window.resize(size);
        window.show();
        (void)QTest::qWaitForWindowExposed(&window);
        QTimer::singleShot(100, &window, [&window, &out, &prefix] {
            auto *dialog = qobject_cast<TCloudFolderDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            const auto loaded = [dialog] {
                return QTest::qWaitFor([dialog] { return !dialog->isLoading(); }, 10000);
            };
            loaded();
            QTreeWidgetItem *root = dialog->tree()->topLevelItem(0);
            for (int i = 0; i < root->childCount(); ++i) {
                QTreeWidgetItem *folder = root->child(i);
                if (folder->text(0) == QLatin1String("Photos")) {
                    folder->setExpanded(true);
                    loaded();
                    folder->setCheckState(0, Qt::Checked);
                    folder->child(1)->setCheckState(0, Qt::Unchecked);
                } else if (folder->text(0) == QLatin1String("Documents")) {
                    folder->setCheckState(0, Qt::Checked);
                }
            }
            QTest::qWait(100);
            save(dialog, out, prefix + QStringLiteral("cloud-1-chooser"));
            saveOverWindow(dialog, &window, out, prefix + QStringLiteral("cloud-1-chooser"));
            dialog->accept();
        });
        window.showSelectFolderDialog(QStringLiteral("GoogleDrive"), 1);
        save(&window, out, prefix + QStringLiteral("cloud-2-folders-added"));
        if (size != kSizes[0])
            continue;
        // The result page of a cloud scan.
        window.setShowResultsWhenDone(true);
        window.findChild<QPushButton *>(QStringLiteral("btn_scan"))->click();
        if (!QTest::qWaitFor([&window] { return window.resultPage() != nullptr; }, 20000))
            continue;
        ResultForm *page = window.resultPage();
        page->resize(size);
        (void)QTest::qWaitFor([page] { return page->isDataLoaded(); }, 10000);
        QTest::qWait(500);
        save(page, out, prefix + QStringLiteral("cloud-3-results"));
        page->close();
    }
}

// Settings as a user who has used the program a while has them.
void fillSettings(const QString &root)
{
    DFPreferences *store = DFPreferences::instance();
    store->ignoreListPreferences()->setIgnorePathFile({root + QStringLiteral("/Documents/.cache"),
        root + QStringLiteral("/Music archive/Podcasts"),
        root
            + QStringLiteral("/Archive of the family pictures taken between 1998 and "
                             "2012/Holidays in the mountains/raw exports")});
    store->ignoreListPreferences()->setProtectedFolderList({root + QStringLiteral("/Photos"),
        root
            + QStringLiteral("/Archive of the family pictures taken between 1998 and "
                             "2012")});
    store->ignoreListPreferences()->setOnlyFileType(
        {QStringLiteral("jpg"), QStringLiteral("png"), QStringLiteral("heic")});
    store->ignoreListPreferences()->setIgnoreFileType({QStringLiteral("tmp")});
    store->selectionPreferences()->setMapPriority({{root + QStringLiteral("/Photos"), 1},
        {root + QStringLiteral("/Documents"), 2}, {root + QStringLiteral("/Music archive"), 3}});
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QString out = outputFolder(argc, argv);
    useProgramStyle(app);

    QTemporaryDir tree;
    for (const char *name : {"Photos", "Documents", "Music archive",
             "Archive of the family pictures taken between 1998 and 2012/Holidays in the "
             "mountains"})
        QDir(tree.path()).mkpath(QString::fromLatin1(name));

    fillSettings(tree.path());
    const QString only = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QString();
    if (only == QLatin1String("cloud")) {
        shootCloud(out);
        return 0;
    }
    if (only == QLatin1String("settings")) {
        for (const Language &language : kLanguages) {
            useLanguage(language.index);
            for (const QSize &size : kSizes)
                shootSettings(language, size, out);
        }
        return 0;
    }

    const int count = int(std::size(kLanguages));
    QImage strip(count * 140, 160, QImage::Format_ARGB32);
    strip.fill(QColor(246, 247, 251));
    for (int i = 0; i < count; ++i) {
        useLanguage(kLanguages[i].index);
        for (const QSize &size : kSizes) {
            shootLanguage(
                kLanguages[i], size, tree.path(), out, size == kSizes[0] ? &strip : nullptr, i);
            shootSettings(kLanguages[i], size, out);
        }
    }
    strip.save(QDir(out).filePath(QStringLiteral("round-button-all-languages.png")));
    useLanguage(1);
    shootCloud(out);

    // A finished scan with results opens the group list.
    useLanguage(1);
    MainWindow window({QStringLiteral("program")});
    window.show();
    (void)QTest::qWaitForWindowExposed(&window);
    const QByteArray bytes(250000, 'x');
    const QString a = ScanTree::write(tree.path(), QStringLiteral("Photos/beach.jpg"), bytes);
    const QString b = ScanTree::write(tree.path(), QStringLiteral("Documents/beach.jpg"), bytes);
    TFileData::instance()->insertGroup(TFileData::groupKey(a), {a, b});
    window.allThreadComplate();
    if (window.resultPage())
        save(window.resultPage(), out, QStringLiteral("results"));
    TFileData::instance()->clear();
    return 0;
}
