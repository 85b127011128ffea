// SPDX-License-Identifier: GPL-3.0-or-later
#include "DialogAnswerer.h"
#include "TestEnvironment.h"
#include "app/DataDirectory.h"
#include "app/FileTypeCatalogue.h"
#include "app/LanguageSetup.h"
#include "app/TLogger.h"
#include "engine/GroupItemAutoSelector.h"
#include "engine/ScanProblems.h"
#include "engine/ScanTree.h"
#include "engine/TFileData.h"
#include "fileops/CloudRemover.h"
#include "fileops/RemovalJournal.h"
#include "fileops/TOpenSaveThread.h"
#include "mainwindow/MainWindow.h"
#include "pictures/ImageCompareStage.h"
#include "preferences/DFGenernalPreferences.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "preferences/DFSelectionPreferences.h"
#include "results/CListViewDelegate.h"
#include "results/TImageModel.h"
#include "scancontrol/TControlUI.h"
#include "settingsdialog/DFPreferencesDialog.h"
#include "widgets/ProblemListDialog.h"
#include "widgets/RoundTextButton.h"

#include <unistd.h>

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

static TestEnvironment environment;

using Flags = QList<bool>;

class tst_MainWindow : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        ImageCompareStage::install();
        CloudRemover::install();
        initLogger(DataDirectory::base());
        // English texts come from the catalogue as in the program: it holds the plural forms.
        LanguageSetup::setupLanguage(1);
        QCoreApplication::installTranslator(&LanguageSetup::appTranslator());
        // A small tree: three copies of one file, two of another, and unique files.
        makeFile("a/one.bin", QByteArray(5000, 'a'));
        makeFile("a/sub/one-copy.bin", QByteArray(5000, 'a'));
        makeFile("b/one-again.bin", QByteArray(5000, 'a'));
        makeFile("b/two.txt", QByteArray(3000, 't'));
        makeFile("a/sub/two.txt", QByteArray(3000, 't'));
        for (int i = 0; i < 5; ++i)
            makeFile(QStringLiteral("b/unique%1.dat").arg(i), QByteArray(100 + i, char('k' + i)));
        QDir(m_tree.path()).mkpath("empty");
    }

    void init()
    {
        TFileData::instance()->clear();
        m_window = new MainWindow({"program"});
        m_window->setShowResultsWhenDone(false);
        m_window->show();
    }

    void cleanup()
    {
        TControlUI::instance()->stop();
        TFileData::instance()->clear();
        delete m_window;
        m_window = nullptr;
    }

    void statesAndButtonTexts_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("mainText");
        QTest::addColumn<bool>("mainEnabled");
        QTest::addColumn<Flags>("actions");
        QTest::newRow("ready") << 1 << QString() << true << Flags {true, true, false, false};
        QTest::newRow("scanning") << 2 << "Stop" << true << Flags {false, false, false, false};
        QTest::newRow("continue") << 3 << "Continue" << true << Flags {false, true, true, true};
        QTest::newRow("finished") << 4 << "New Scan" << true << Flags {true, true, true, true};
        QTest::newRow("opening") << 5 << QString() << false << Flags {true, false, false, false};
    }
    void statesAndButtonTexts()
    {
        QFETCH(int, state);
        QFETCH(QString, mainText);
        QFETCH(bool, mainEnabled);
        QFETCH(Flags, actions);
        auto *add = child<QPushButton>("btnAdd");
        auto *scan = child<QPushButton>("btn_scan");
        QVERIFY(add && scan);
        QCOMPARE(m_window->state(), 1);
        QVERIFY(!add->icon().isNull() || add->text().isEmpty());
        QCOMPARE(scan->text(), "Scan");
        QVERIFY(!scan->isEnabled());
        QCOMPARE(child<QLabel>("lab_number")->text(), "0 folders added");

        m_window->setStatus(state);
        QCOMPARE(add->text(), mainText);
        QCOMPARE(add->isEnabled(), mainEnabled);
        const QList<QAction *> stateActions {child<QAction>("action_openProject"),
            m_window->findChild<QMenu *>("menu_language")->menuAction(),
            child<QAction>("action_saveProject"), child<QAction>("action_showResults")};
        for (int i = 0; i < 4; ++i)
            QCOMPARE(stateActions.at(i)->isEnabled(), actions.at(i));
        if (state == 1) {
            QCOMPARE(child<QLabel>("lab_progress")->text(), "0.00%");
            QCOMPARE(child<QLabel>("lab_findSize")->text(), "0 B");
        }
        if (state == 4)
            QCOMPARE(scan->text(), "Show results");
        if (state == 5)
            QCOMPARE(child<QStackedWidget>("stackedWidget")->currentIndex(), 1);
    }

    void dragEnter_data()
    {
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("a folder") << QStringList {"a"} << 1 << true;
        // Files are let in so that the drop can say why they are not added.
        QTest::newRow("files only") << QStringList {"a/one.bin", "b/two.txt"} << 1 << true;
        QTest::newRow("a file and a folder") << QStringList {"b/two.txt", "b"} << 1 << true;
        QTest::newRow("a folder while scanning") << QStringList {"a"} << 2 << false;
        QTest::newRow("a missing folder") << QStringList {"nowhere"} << 1 << false;
    }
    void dragEnter()
    {
        QFETCH(QStringList, paths);
        QFETCH(int, state);
        QFETCH(bool, accepted);
        m_window->setStatus(state);
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &p : paths)
            urls << QUrl::fromLocalFile(m_tree.filePath(p));
        data.setUrls(urls);
        QDragEnterEvent event(
            QPoint(10, 10), Qt::CopyAction | Qt::LinkAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_window, &event);
        QCOMPARE(event.isAccepted(), accepted);
        QCOMPARE(event.dropAction(), Qt::LinkAction);
    }

    void dropAddsFoldersOnce()
    {
        DialogAnswerer boxes;
        QMimeData single;
        single.setUrls({QUrl::fromLocalFile(m_tree.filePath("a"))});
        dropOnWindow(&single);
        QTRY_COMPARE(child<QLabel>("lab_number")->text(), "1 folder added");
        QVERIFY(boxes.texts.isEmpty());

        // A file among the folders is not added, and the user is told why.
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(m_tree.filePath("a")),
            QUrl::fromLocalFile(m_tree.filePath("b/two.txt")),
            QUrl::fromLocalFile(m_tree.filePath("a/sub")),
            QUrl::fromLocalFile(m_tree.filePath("a"))});
        dropOnWindow(&data);
        QTRY_COMPARE(boxes.texts.size(), 1);
        QCOMPARE(boxes.texts.first(),
            QStringLiteral("\"%1\" is a file, not a folder. Only folders can be scanned: add the "
                           "folder that holds it instead.")
                .arg(m_tree.filePath("b/two.txt")));
        QCOMPARE(
            m_window->folders(), QStringList({m_tree.filePath("a"), m_tree.filePath("a/sub")}));
        QCOMPARE(child<QLabel>("lab_number")->text(), "2 folders added");
        QVERIFY(child<QPushButton>("btn_scan")->isEnabled());

        // Several at once: one message that counts them.
        m_window->addFolders({m_tree.filePath("a/one.bin"), m_tree.filePath("nowhere")});
        QCOMPARE(boxes.texts.size(), 2);
        QCOMPARE(boxes.texts.last(), "2 items were not added because they are not folders:");
        QCOMPARE(m_window->folders().size(), 2);
    }

    void scanThroughButtons()
    {
        // The nested folder a/sub is dropped from the roots before the scan.
        m_window->addFolder(m_tree.filePath("a"));
        m_window->addFolder(m_tree.filePath("a/sub"));
        m_window->addFolder(m_tree.filePath("b"));
        QSignalSpy done(TControlUI::instance(), &TControlUI::onAllComplate);
        QTest::mouseClick(child<QPushButton>("btn_scan"), Qt::LeftButton);
        QCOMPARE(
            m_window->lastScanRoots(), QStringList({m_tree.filePath("a"), m_tree.filePath("b")}));
        QCOMPARE(child<QPushButton>("btnAdd")->text(), "Stop");
        QCOMPARE(child<QStackedWidget>("stackedWidget")->currentIndex(), 1);
        QVERIFY(done.wait(60000));
        QCOMPARE(m_window->state(), 4);
        QCOMPARE(child<QPushButton>("btnAdd")->text(), "New Scan");
        QCOMPARE(child<QLabel>("lab_fileNumber")->text(), "10");
        QCOMPARE(child<QLabel>("lab_progress")->text(), "100.00%");
        QCOMPARE(TFileData::instance()->groupCount(), 2);
        // The count is of copies that could go: two of three, one of two.
        QCOMPARE(child<QLabel>("lab_findNumber")->text(), "3");
        QCOMPARE(child<QLabel>("lab_findSize")->text(), TImageModel::sizeText(2 * 5000 + 3000));
        QVERIFY(child<QPushButton>("btn_scan")->isEnabled());
        QCOMPARE(child<QPushButton>("btn_scan")->text(), "Show results");

        // "Show results" opens the group list with both groups.
        QTest::mouseClick(child<QPushButton>("btn_scan"), Qt::LeftButton);
        QVERIFY(m_window->resultPage());
        QTRY_VERIFY(m_window->resultPage()->isDataLoaded());
        ResultForm *page = m_window->resultPage();
        QCOMPARE(page->groupModel()->rowCount(), 2);
        // A copy hidden on the result page: the finished page counts one copy less.
        QTRY_VERIFY(page->itemModel()->rowCount() >= 2);
        const QModelIndex member = page->itemModel()->index(1, TImageModel::HideColumn);
        const qint64 hiddenSize
            = QFileInfo(member.data(TImageModel::FilePathRole).toString()).size();
        page->onBtnHideFileClick(member);
        page->close();
        QVERIFY(m_window->isVisible());
        QCOMPARE(child<QLabel>("lab_findNumber")->text(), "2");
        QCOMPARE(child<QLabel>("lab_findSize")->text(),
            TImageModel::sizeText(2 * 5000 + 3000 - hiddenSize));

        // New Scan after saving returns to an empty folder page.
        TControlUI::instance()->setProjectPath("saved");
        TFileData::instance()->clear();
        QTest::mouseClick(child<QPushButton>("btnAdd"), Qt::LeftButton);
        QCOMPARE(m_window->state(), 1);
        QVERIFY(m_window->folders().isEmpty());
        QCOMPARE(child<QLabel>("lab_findTime")->text(), "00:00:00");
        QCOMPARE(child<QStackedWidget>("stackedWidget")->currentIndex(), 0);
    }

    void stopDuringScan()
    {
        // Enough files that the scan is still walking when Stop is pressed.
        for (int i = 0; i < 3000; ++i)
            makeFile(QStringLiteral("many/%1/f%2.txt").arg(i % 30).arg(i), QByteArray::number(i));
        m_window->addFolder(m_tree.filePath("many"));
        QSignalSpy done(TControlUI::instance(), &TControlUI::onAllComplate);
        QTest::mouseClick(child<QPushButton>("btn_scan"), Qt::LeftButton);
        QTest::mouseClick(child<QPushButton>("btnAdd"), Qt::LeftButton);
        QCOMPARE(m_window->state(), 4);
        QVERIFY(done.count() == 1 || done.wait(30000));
        QCOMPARE(m_window->state(), 4);
        const QString log = QString::fromUtf8(ScanTree::read(DataDirectory::todaysLogFile()));
        QVERIFY(
            log.contains(QStringLiteral("[TControlUI]: The user clicks Stop during the scanning "
                                        "process.")));
        QVERIFY(log.lastIndexOf("All tasks are completed")
            > log.lastIndexOf("The user clicks Stop during the scanning"));
        // Nothing was compared: no all-clear, and the page says why.
        QCOMPARE(child<QStackedWidget>("stackedWidget")->currentIndex(), 2);
        QVERIFY(!child<QLabel>("lab_noDuplicates")->isVisible());
        QVERIFY(child<QLabel>("lab_rootsUnreadable")
                    ->text()
                    .contains("Scan stopped – results are incomplete"));
        QCOMPARE(child<QLabel>("lab_stage")->text(), "Scan stopped – results are incomplete");
        QDir(m_tree.filePath("many")).removeRecursively();
    }

    // Folder "a" protected by its lock on the folder list or by the settings' list: the
    // scan selects only the copies in "b", with the default rule every one of them.
    void protectedFolder_data()
    {
        QTest::addColumn<bool>("byLock");
        QTest::newRow("the lock on the folder list") << true;
        QTest::newRow("the settings' list") << false;
    }
    void protectedFolder()
    {
        QFETCH(bool, byLock);
        const QString a = m_tree.filePath("a");
        DFIgnoreListPreferences *common = DFPreferences::instance()->ignoreListPreferences();
        common->setProtectedFolderList(byLock ? QStringList() : QStringList {a});
        QVERIFY(m_window->addFolder(a));
        QVERIFY(m_window->addFolder(m_tree.filePath("b")));
        if (byLock) {
            auto *list = child<QListView>("listview_path");
            const QModelIndex row = list->model()->index(0, 0);
            const QRect lock = CListViewDelegate::lockRect(list->visualRect(row));
            QTest::mouseMove(list->viewport(), lock.center());
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, lock.center());
            QVERIFY(row.data(CListViewDelegate::kProtectedRole).toBool());
        }
        QSignalSpy done(TControlUI::instance(), &TControlUI::onAllComplate);
        QTest::mouseClick(child<QPushButton>("btn_scan"), Qt::LeftButton);
        QVERIFY(done.wait(30000));
        common->setProtectedFolderList({});
        const TFileData::Groups groups = TFileData::instance()->groups();
        QCOMPARE(groups.size(), 2);
        for (auto it = groups.cbegin(); it != groups.cend(); ++it) {
            QStringList inB = it.value().filter(m_tree.filePath("b/"));
            QStringList selected = TFileData::instance()->selectedOf(it.key());
            inB.sort();
            selected.sort();
            QCOMPARE(selected, inB);
        }
    }

    void defaultMethodGroupsOnlyIdenticalFiles()
    {
        // Two files that agree wherever a sampled read looks (start, middle, end) and differ
        // elsewhere, beside two true copies: a fresh settings file compares whole files.
        QByteArray content = ScanTree::pattern(60000, 'q');
        QByteArray trap = content;
        trap[20000] = char(trap[20000] ^ 1);
        makeFile("trap/a/data.bin", content);
        makeFile("trap/b/data.bin", trap);
        makeFile("trap/a/copy.bin", ScanTree::pattern(7000, 'c'));
        makeFile("trap/b/copy.bin", ScanTree::pattern(7000, 'c'));
        QCOMPARE(DFSelectionPreferences().scanMethod(), DFSelectionPreferences::scanAllContent);
        DFSelectionPreferences *duplicates = DFPreferences::instance()->selectionPreferences();
        const DFSelectionPreferences saved(*duplicates);
        *duplicates = DFSelectionPreferences();
        QVERIFY(m_window->addFolder(m_tree.filePath("trap")));
        QSignalSpy done(TControlUI::instance(), &TControlUI::onAllComplate);
        QTest::mouseClick(child<QPushButton>("btn_scan"), Qt::LeftButton);
        QVERIFY(done.wait(30000));
        *duplicates = saved;
        const TFileData::Groups groups = TFileData::instance()->groups();
        QCOMPARE(groups.size(), 1);
        QCOMPARE(groups.begin()->size(), 2);
        QVERIFY(groups.begin()->first().endsWith("copy.bin"));
        QCOMPARE(TFileData::instance()->groupMatch(groups.begin().key()), TFileData::MatchContent);
        QDir(m_tree.filePath("trap")).removeRecursively();
    }

    void typeFilterShownWhileScanning_data()
    {
        QTest::addColumn<int>("scanFileType");
        QTest::addColumn<QStringList>("only");
        QTest::addColumn<QStringList>("ignored");
        QTest::addColumn<QString>("shown");
        QTest::newRow("no filter") << 0 << QStringList() << QStringList {"tmp"} << QString();
        QTest::newRow("only list") << 0 << QStringList {"JPG", "png"} << QStringList()
                                   << "Only these file types are scanned: JPG, png";
        QTest::newRow("ignore list") << 1 << QStringList {"jpg"} << QStringList {"tmp"}
                                     << "These file types are skipped: tmp";
    }
    void typeFilterShownWhileScanning()
    {
        QFETCH(int, scanFileType);
        QFETCH(QStringList, only);
        QFETCH(QStringList, ignored);
        QFETCH(QString, shown);
        DFIgnoreListPreferences *common = DFPreferences::instance()->ignoreListPreferences();
        const DFIgnoreListPreferences saved(*common);
        common->setScanFileType(scanFileType);
        common->setOnlyFileType(only);
        common->setIgnoreFileType(ignored);
        QVERIFY(m_window->addFolder(m_tree.filePath("a")));
        QSignalSpy done(TControlUI::instance(), &TControlUI::onAllComplate);
        QTest::mouseClick(child<QPushButton>("btn_scan"), Qt::LeftButton);
        *common = saved;
        QCOMPARE(child<QLabel>("lab_filter")->isVisible(), !shown.isEmpty());
        if (!shown.isEmpty())
            QCOMPARE(child<QLabel>("lab_filter")->text(), shown);
        QVERIFY(done.count() > 0 || done.wait(30000));
    }

    void folderGroupShownAndRemoved()
    {
        // Two folders with the same files: with folder matching on, the result is one
        // folder group, shown in the Folders category and removed as a folder.
        for (const char *folder : {"twins/A", "twins/B"}) {
            makeFile(QStringLiteral("%1/x.bin").arg(QLatin1String(folder)), QByteArray(3000, 'x'));
            makeFile(QStringLiteral("%1/y.txt").arg(QLatin1String(folder)), QByteArray(2000, 'y'));
        }
        DFSelectionPreferences *duplicates = DFPreferences::instance()->selectionPreferences();
        const bool matchedFolders = duplicates->scanDupDirectory();
        duplicates->setScanDupDirectory(true);
        QVERIFY(m_window->addFolder(m_tree.filePath("twins")));
        QSignalSpy done(TControlUI::instance(), &TControlUI::onAllComplate);
        QTest::mouseClick(child<QPushButton>("btn_scan"), Qt::LeftButton);
        QVERIFY(done.wait(30000));
        duplicates->setScanDupDirectory(matchedFolders);
        QCOMPARE(TFileData::instance()->dirGroups().size(), 1);
        QTest::mouseClick(child<QPushButton>("btn_scan"), Qt::LeftButton);
        ResultForm *page = m_window->resultPage();
        QVERIFY(page);
        QTRY_VERIFY(page->isDataLoaded());
        auto *folders = page->findChild<QPushButton *>("btn_archives");
        QVERIFY(folders->isVisible());
        QVERIFY2(folders->text().startsWith("Folders  1 ·"), qPrintable(folders->text()));
        // The chart counts the four files of the two folders.
        QTRY_COMPARE(page->findChild<QLabel *>("lab_folder_num")->text(), "4");
        QTest::mouseClick(folders, Qt::LeftButton);
        QCOMPARE(page->groupModel()->rowCount(), 1);
        QCOMPARE(page->groupModel()->displayedGroups().first().type, int(CategoryFolders));
        QTRY_COMPARE(page->itemModel()->rowCount(), 2);
        const QString folderKey = page->groupModel()->displayedGroups().first().key;
        // The page's rules reach folder groups: Deselect leaves nothing to remove.
        page->applySelectionRule(GroupItemAutoSelector::deselectAll);
        QVERIFY(TFileData::instance()->selectedOf(folderKey).isEmpty());
        page->applySelectionRule(GroupItemAutoSelector::autoSelect);
        const QString removed = TFileData::instance()->selected().value(folderKey).value(0);
        QVERIFY(removed.endsWith("/twins/B") || removed.endsWith("/twins/A"));
        DialogAnswerer answers({QMessageBox::Yes, QMessageBox::NoButton});
        answers.closeOtherDialogs = true;
        page->on_btn_delete_clicked();
        QTRY_VERIFY(!answers.titles.isEmpty());
        QTRY_VERIFY(!page->isRemoving());
        QVERIFY(!QFileInfo::exists(removed));
        const QString kept
            = removed.endsWith("B") ? m_tree.filePath("twins/A") : m_tree.filePath("twins/B");
        QCOMPARE(ScanTree::read(kept + "/x.bin"), QByteArray(3000, 'x'));
        QTRY_COMPARE(page->groupModel()->rowCount(), 0);
        page->close();
        QDir(m_tree.filePath("twins")).removeRecursively();
    }

    void stopInThePictureStage()
    {
        // Pictures alike enough to form one group, so that the feature re-check runs long
        // enough to be stopped in its middle, and a pair of identical files found before.
        const QString root = m_tree.filePath("photos");
        QVERIFY(QDir().mkpath(root));
        for (int i = 0; i < 150; ++i)
            QVERIFY(alikePicture(i).save(QStringLiteral("%1/p%2.jpg").arg(root).arg(i), "JPG", 90));
        makeFile("photos/copy-a.bin", QByteArray(4000, 'p'));
        makeFile("photos/copy-b.bin", QByteArray(4000, 'p'));
        DFGenernalPreferences *similar = DFPreferences::instance()->generalPreferences();
        const DFGenernalPreferences saved(*similar);
        similar->setHasSimilar(true);
        QVERIFY(m_window->addFolder(root));
        QSignalSpy done(TControlUI::instance(), &TControlUI::onAllComplate);
        QSignalSpy counted(TControlUI::instance(), &TControlUI::picturesCounted);
        // The longest time the event loop did not turn while the pictures were compared.
        QElapsedTimer clock;
        clock.start();
        qint64 last = 0;
        qint64 worst = 0;
        QTimer probe;
        connect(&probe, &QTimer::timeout, this, [&] {
            const qint64 now = clock.elapsed();
            if (TControlUI::instance()->stage() == TControlUI::StageSimilar)
                worst = std::max(worst, now - last);
            last = now;
        });
        probe.start(5);
        QTest::mouseClick(child<QPushButton>("btn_scan"), Qt::LeftButton);
        const auto inFeatureCheck = [&] {
            return std::any_of(counted.cbegin(), counted.cend(), [](const QList<QVariant> &row) {
                return row.at(0).toInt() == 4 && row.at(1).toInt() > 0
                    && row.at(1).toInt() < row.at(2).toInt();
            });
        };
        QTRY_VERIFY_WITH_TIMEOUT(inFeatureCheck() || done.count() > 0, 120000);
        *similar = saved;
        if (done.count() > 0)
            QSKIP("the pictures were compared before the test could stop them");
        QVERIFY(std::any_of(counted.cbegin(), counted.cend(), [](const QList<QVariant> &row) {
            return row.at(0).toInt() == 2 && row.at(2).toInt() == 150;
        }));
        QCOMPARE(child<QLabel>("lab_stage")->text().left(24), "Checking picture details");
        QVERIFY(child<QLabel>("lab_findNumber")->text().toInt() > 2);
        clock.restart();
        last = 0;
        QTest::mouseClick(child<QPushButton>("btnAdd"), Qt::LeftButton);
        QVERIFY(done.count() == 1 || done.wait(5000));
        const qint64 stopMs = clock.elapsed();
        probe.stop();
        QVERIFY2(stopMs < 2000, qPrintable(QString::number(stopMs)));
        QVERIFY2(worst < 1000, qPrintable(QString::number(worst)));

        // The identical pair found before the stop is shown, under the stopped wording.
        QCOMPARE(m_window->state(), 4);
        QCOMPARE(child<QLabel>("lab_stage")->text(), "Scan stopped – results are incomplete");
        QVERIFY(child<QLabel>("lab_progress")->text() != "100.00%");
        QCOMPARE(child<QPushButton>("btn_scan")->text(), "Show results");
        QVERIFY(TFileData::instance()->groupCount() >= 1);
        DialogAnswerer boxes;
        QTest::mouseClick(child<QPushButton>("btn_scan"), Qt::LeftButton);
        QTRY_VERIFY(m_window->resultPage() && m_window->resultPage()->isDataLoaded());
        QTRY_COMPARE(boxes.titles, QStringList {"Incomplete scan"});
        m_window->resultPage()->close();
        QDir(root).removeRecursively();
    }

    void projectFromCommandLine()
    {
        const QString a = m_tree.filePath("a/one.bin");
        const QString b = m_tree.filePath("b/one-again.bin");
        const QString key = TFileData::groupKey(a);
        TFileData::instance()->insertGroup(key, {a, b});
        TFileData::instance()->setSelected(key, {b});
        const QString project = m_tree.filePath("saved.dupproj");
        {
            TOpenSaveThread writer;
            QSignalSpy saved(&writer, &TOpenSaveThread::saveComplated);
            QVERIFY(writer.saveProject(project, 7, "00:00:05"));
            QVERIFY(saved.wait(10000));
            QCOMPARE(saved.at(0).at(0).toInt(), int(TOpenSaveThread::ProjectSucceeded));
        }
        TFileData::instance()->clear();

        MainWindow window({"program", project});
        QCOMPARE(window.state(), 5);
        QTRY_COMPARE_WITH_TIMEOUT(window.state(), 4, 10000);
        QCOMPARE(TFileData::instance()->group(key), QStringList({a, b}));
        QCOMPARE(window.projectPath(), project);
        QCOMPARE(DFPreferences::instance()->ignoreListPreferences()->SaveFolder(), m_tree.path());
        QCOMPARE(window.findChild<QLabel *>("lab_fileNumber")->text(), "7");
        QCOMPARE(window.findChild<QLabel *>("lab_findTime")->text(), "00:00:05");
        // The project opens onto the result page, with its selection.
        QTRY_VERIFY(window.resultPage() && window.resultPage()->isDataLoaded());
        ResultForm *page = window.resultPage();
        QCOMPARE(page->groupModel()->rowCount(), 1);
        QTRY_COMPARE(page->totals().count, 1);
        QTRY_COMPARE(page->itemModel()->rowCount(), 2);
        QCOMPARE(page->windowTitle(), "saved.dupproj – Veltrine Duplicate Finder");
        QVERIFY(page->findChild<QPushButton *>("btn_save")->isVisible());
        page->close();
        // Opened and unchanged: closing asks nothing.
        {
            DialogAnswerer answers({QMessageBox::Cancel});
            QVERIFY(window.close());
            QVERIFY(answers.titles.isEmpty());
        }
        // A selection change marks the results as changed: closing asks, Cancel keeps the
        // window, Yes saves into the same project.
        window.show();
        TFileData::instance()->setSelected(key, {a});
        {
            DialogAnswerer answers({QMessageBox::Cancel});
            QVERIFY(!window.close());
            QCOMPARE(answers.texts,
                QStringList {"The changes to the results have not been saved to saved.dupproj. "
                             "Do you want to save them?"});
        }
        {
            DialogAnswerer answers({QMessageBox::Yes});
            QVERIFY(window.close());
            QCOMPARE(answers.titles.size(), 1);
        }
        const QString text = QString::fromUtf8(ScanTree::read(project));
        QVERIFY(text.contains(QStringLiteral("<Item selected=\"1\">%1</Item>").arg(a)));
        QVERIFY(text.contains(QStringLiteral("<Item selected=\"0\">%1</Item>").arg(b)));
        TFileData::instance()->clear();
    }

    void damagedProjectLeavesResults()
    {
        // Results on show, then a project that cannot be read: the window, its page and
        // its results stay as they were.
        QVERIFY(m_window->addFolder(m_tree.filePath("a")));
        QSignalSpy done(TControlUI::instance(), &TControlUI::onAllComplate);
        QTest::mouseClick(child<QPushButton>("btn_scan"), Qt::LeftButton);
        QVERIFY(done.wait(30000));
        const TFileData::Groups before = TFileData::instance()->groups();
        QVERIFY(!before.isEmpty());
        const int page = child<QStackedWidget>("stackedWidget")->currentIndex();
        const QString damaged = m_tree.filePath("damaged.dupproj");
        QVERIFY(!ScanTree::write(m_tree.path(), "damaged.dupproj", "<?xml version=\"1.0\"?><Veltr")
                     .isEmpty());
        QSignalSpy opened(
            m_window->findChild<TOpenSaveThread *>(), &TOpenSaveThread::openProjectComplated);
        DialogAnswerer answers;
        m_window->openProject(damaged);
        QVERIFY(opened.count() > 0 || opened.wait(10000));
        QTRY_COMPARE(answers.titles, QStringList {"Open File"});
        QCOMPARE(TFileData::instance()->groups(), before);
        QCOMPARE(m_window->state(), 4);
        QCOMPARE(child<QStackedWidget>("stackedWidget")->currentIndex(), page);
        QVERIFY(m_window->projectPath().isEmpty());
        QCOMPARE(child<QPushButton>("btn_scan")->text(), "Show results");
        QFile::remove(damaged);
    }

    void projectArgumentNotAFile_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QString>("message");
        QTest::newRow("missing file") << "missing.dupproj"
                                      << "The project file \"%1\" does not exist.";
        QTest::newRow("a folder") << "a"
                                  << "\"%1\" is a folder, not a project file. To scan it, add it "
                                     "with the + button.";
    }
    void projectArgumentNotAFile()
    {
        QFETCH(QString, argument);
        QFETCH(QString, message);
        DialogAnswerer boxes;
        MainWindow window({"program", m_tree.filePath(argument)});
        window.show();
        QTRY_COMPARE(boxes.texts.size(), 1);
        QCOMPARE(boxes.texts.first(), message.arg(m_tree.filePath(argument)));
        QCOMPARE(boxes.titles.first(), "Open File");
        QCOMPARE(window.state(), 1);
        QVERIFY(window.projectPath().isEmpty());
    }

    void unreadableText_data()
    {
        QTest::addColumn<int>("folders");
        QTest::addColumn<int>("files");
        QTest::addColumn<QString>("text");
        QTest::newRow("everything read") << 0 << 0 << QString();
        QTest::newRow("one folder") << 1 << 0 << "1 folder could not be read.";
        QTest::newRow("folders") << 4 << 0 << "4 folders could not be read.";
        QTest::newRow("one file") << 0 << 1 << "1 file could not be read.";
        QTest::newRow("both, singular and plural")
            << 3 << 1 << "3 folders and 1 file could not be read.";
        QTest::newRow("both, plural and singular")
            << 1 << 12 << "1 folder and 12 files could not be read.";
    }
    void unreadableText()
    {
        QFETCH(int, folders);
        QFETCH(int, files);
        QFETCH(QString, text);
        QCOMPARE(MainWindow::unreadableText(folders, files), text);
    }

    void problemLineAndDetails()
    {
        auto *line = child<QLabel>("lab_scanProblems");
        QVERIFY(line && !line->isVisible());
        ScanProblems problems;
        problems.clear(2);
        problems.add(ScanProblems::UnreadableFolder, m_tree.filePath("a/locked"));
        for (int i = 0; i < ScanProblems::kKeptPaths + 5; ++i)
            problems.add(ScanProblems::UnreadableFile, m_tree.filePath("b/f%1").arg(i));
        problems.add(ScanProblems::LinkOutsideRoots, m_tree.filePath("b/elsewhere"));
        m_window->setStatus(4);
        m_window->showScanProblems(problems);
        QVERIFY(line->isVisible());
        QVERIFY2(line->text().contains("1 folder and 1005 files could not be read."),
            qPrintable(line->text()));
        QVERIFY(
            line->text().contains("1 link leading outside the chosen folders was not followed."));
        // Some roots were read: "nothing found" stays an all-clear.
        auto *warning = child<QLabel>("lab_rootsUnreadable");
        auto *allClear = child<QLabel>("lab_noDuplicates");
        QVERIFY(warning->isHidden() && !allClear->isHidden());
        ScanProblems none;
        none.clear(1);
        none.addUnreadableRoot(m_tree.filePath("gone"));
        m_window->showScanProblems(none);
        QVERIFY(!warning->isHidden() && allClear->isHidden());
        QVERIFY(warning->text().contains("The chosen folder could not be read."));
        m_window->showScanProblems(problems);
        QVERIFY(warning->isHidden() && !allClear->isHidden());

        emit line->linkActivated("details");
        auto *dialog = m_window->findChild<ProblemListDialog *>();
        QVERIFY(dialog);
        const QString list = dialog->text();
        QVERIFY(list.contains(
            "Folders that could not be read (1)\n    " + m_tree.filePath("a/locked")));
        QVERIFY(list.contains("Files that could not be read (1005)"));
        QVERIFY(list.contains("... and 5 more"));
        QVERIFY(list.contains(m_tree.filePath("b/elsewhere")));
        dialog->copyAll();
        QCOMPARE(QApplication::clipboard()->text(), list);
        dialog->close();

        // A new scan starts without the old problems.
        TControlUI::instance()->setProjectPath("saved");
        QTest::mouseClick(child<QPushButton>("btnAdd"), Qt::LeftButton);
        QCOMPARE(m_window->state(), 1);
        QVERIFY(!line->isVisible());
    }

    void noDuplicatesPage_data()
    {
        // An unreadable root must not be reported as an all-clear.
        QTest::addColumn<QString>("how");
        QTest::newRow("readable folder of one file") << "readable";
        QTest::newRow("folder removed after it was added") << "removed";
        QTest::newRow("folder without permissions") << "chmod";
    }
    void noDuplicatesPage()
    {
        QFETCH(QString, how);
        const QString root = m_tree.filePath("closed");
        QDir().mkpath(root);
        makeFile("closed/x.txt", "x");
        QVERIFY(m_window->addFolder(root));
        if (how == QLatin1String("removed")) {
            QDir(root).removeRecursively();
        } else if (how == QLatin1String("chmod")) {
            QFile::setPermissions(root, QFileDevice::Permissions());
            if (::access(QFile::encodeName(root).constData(), R_OK | X_OK) == 0) {
                QFile::setPermissions(
                    root, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
                QDir(root).removeRecursively();
                QSKIP("this user reads folders without permission (root)");
            }
        }
        QSignalSpy done(TControlUI::instance(), &TControlUI::onAllComplate);
        QTest::mouseClick(child<QPushButton>("btn_scan"), Qt::LeftButton);
        QVERIFY(done.wait(30000));
        QFile::setPermissions(
            root, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        QDir(root).removeRecursively();
        QCOMPARE(m_window->state(), 4);
        QCOMPARE(m_window->resultKind(), 2);
        QCOMPARE(child<QStackedWidget>("stackedWidget")->currentIndex(), 2);
        QVERIFY(!child<QPushButton>("btn_scan")->isEnabled());
        const bool readable = how == QLatin1String("readable");
        if (!readable && !TControlUI::instance()->problems().allRootsUnreadable())
            QSKIP("the scanner of this build does not report unreadable roots");
        auto *warning = child<QLabel>("lab_rootsUnreadable");
        QCOMPARE(warning->isVisible(), !readable);
        QCOMPARE(child<QLabel>("lab_noDuplicates")->isVisible(), readable);
        if (readable)
            return;
        QVERIFY(warning->text().contains("The chosen folder could not be read."));
        QVERIFY(child<QLabel>("lab_scanProblems")->text().contains("1 folder could not be read."));
    }

    void roundButtonFitsEveryLanguage_data()
    {
        QTest::addColumn<int>("language");
        int language = 0;
        for (const char *name :
            {"English", "French", "Portuguese", "Italian", "German", "Spanish", "Japanese"})
            QTest::newRow(name) << ++language;
    }
    void roundButtonFitsEveryLanguage()
    {
        QFETCH(int, language);
        QFile style(":resource/Style.qss");
        QVERIFY(style.open(QIODevice::ReadOnly));
        qApp->setStyleSheet(QString::fromUtf8(style.readAll()));
        LanguageSetup::setupLanguage(language);
        auto *button = qobject_cast<RoundTextButton *>(child<QPushButton>("btnAdd"));
        QVERIFY(button);
        // The styled size, not the default one, is the size that has to fit.
        QCOMPARE(button->font().pixelSize(), 18);
        for (int state : {2, 4}) {
            m_window->setStatus(state);
            QVERIFY2(button->captionFits(), qPrintable(button->text()));
            // Only a space may break a caption: no word is split.
            const QString lines = button->captionLines();
            QCOMPARE(QString(lines).replace(QLatin1Char('\n'), QLatin1Char(' ')), button->text());
        }
        LanguageSetup::setupLanguage(1);
        qApp->setStyleSheet(QString());
    }

    void abnormalExitNoticeOnce_data()
    {
        QTest::addColumn<bool>("marker");
        QTest::addColumn<int>("signal");
        QTest::newRow("the window's own batch, cut off") << true << 0;
        // The command line's batch stopped by SIGTERM: no marker of the window's.
        QTest::newRow("a command-line batch stopped by a signal") << false << 15;
    }
    void abnormalExitNoticeOnce()
    {
        QFETCH(bool, marker);
        QFETCH(int, signal);
        DFPreferences::instance()->ignoreListPreferences()->setDeleteException(marker ? 1 : 0);
        DFPreferences::instance()->save();
        // A batch of three cut off after its first item.
        RemovalJournal journal;
        QVERIFY(journal.begin("trash", 3));
        journal.record("trash", DeleteResult {"/gone/one.jpg"}, RemovalJournal::removed);
        QVERIFY(journal.flush());
        if (signal)
            journal.end(signal);
        DialogAnswerer boxes;
        const QStringList &titles = boxes.titles;
        {
            MainWindow window({"program"});
            window.show();
            QTRY_COMPARE(titles.size(), 1);
        }
        QCOMPARE(titles.first(), "Abnormal Exit Detected During Last Deletion");
        QVERIFY(boxes.texts.first().contains("1 of 3"));
        QVERIFY(boxes.texts.first().contains(QFileInfo(journal.path()).fileName()));
        QCOMPARE(DFPreferences::instance()->ignoreListPreferences()->deleteException(), 0);
        {
            MainWindow again({"program"});
            again.show();
            QTest::qWait(200);
        }
        QCOMPARE(titles.size(), 1);
    }

    void settingsRefusedWhileScanning()
    {
        // The dialog learns of the scan from the window: the window's state must reach it.
        DialogAnswerer boxes;
        m_window->setStatus(MainWindow::StateScanning);
        bool opened = false;
        QTimer::singleShot(100, this, [&opened] {
            auto *dialog = qobject_cast<DFPreferencesDialog *>(QApplication::activeModalWidget());
            opened = dialog != nullptr;
            if (!dialog)
                return;
            dialog->findChild<QPushButton *>("btnOK")->click();
            dialog->reject();
        });
        QTest::mouseClick(child<QPushButton>("btn_set"), Qt::LeftButton);
        m_window->setStatus(MainWindow::StateReady);
        QVERIFY(opened);
        QCOMPARE(boxes.texts,
            QStringList {QStringLiteral(
                "You cannot change settings of preferences while the scan is in progress.")});
    }

    void settingsOutsideRangesStopTheScan()
    {
        // A value that reached the store without the loader's clamping (another part wrote
        // it) must not start a scan that groups every picture.
        DFGenernalPreferences *similar = DFPreferences::instance()->generalPreferences();
        const DFGenernalPreferences saved(*similar);
        similar->setHasSimilar(true);
        similar->setSimilarityValue(0);
        DialogAnswerer boxes;
        QVERIFY(m_window->addFolder(m_tree.filePath("a")));
        QTest::mouseClick(child<QPushButton>("btn_scan"), Qt::LeftButton);
        *similar = saved;
        QCOMPARE(boxes.texts, QStringList {"The similarity threshold 0% is outside 1% to 100%."});
        QCOMPARE(m_window->state(), int(MainWindow::StateReady));
        QCOMPARE(TControlUI::instance()->runState(), int(TControlUI::Stopped));
    }

private:
    template<typename T>
    T *child(const char *name) const
    {
        return m_window->findChild<T *>(QString::fromLatin1(name));
    }
    // The same scene with a small mark that moves with n: alike, never identical.
    static QImage alikePicture(int n)
    {
        QImage image(1024, 768, QImage::Format_RGB32);
        QPainter painter(&image);
        QLinearGradient sky(0, 0, 1024, 768);
        sky.setColorAt(0, QColor(40, 90, 160));
        sky.setColorAt(1, QColor(230, 200, 120));
        painter.fillRect(image.rect(), sky);
        painter.setBrush(QColor(30, 120, 40));
        painter.drawEllipse(QPoint(300, 600), 260, 180);
        painter.setBrush(QColor(250, 250, 240));
        painter.drawRect(620, 240, 180, 260);
        for (int k = 0; k < 40; ++k)
            painter.drawLine(k * 25, 700, k * 25 + 60, 740);
        painter.setBrush(Qt::red);
        painter.drawEllipse(QPoint(40 + (n * 37) % 900, 60 + (n * 13) % 100), 6, 6);
        return image;
    }
    void makeFile(const QString &relative, const QByteArray &content)
    {
        QVERIFY(!ScanTree::write(m_tree.path(), relative, content).isEmpty());
    }
    // A drop arrives after its drag entered, as from a file manager.
    void dropOnWindow(QMimeData *data)
    {
        QDragEnterEvent enter(QPoint(10, 10), Qt::LinkAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_window, &enter);
        QDropEvent drop(QPointF(10, 10), Qt::LinkAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_window, &drop);
    }
    QTemporaryDir m_tree;
    MainWindow *m_window = nullptr;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
