// SPDX-License-Identifier: GPL-3.0-or-later
#include "CsvTable.h"
#include "DialogAnswerer.h"
#include "ImageFixtures.h"
#include "TestEnvironment.h"
#include "app/DataDirectory.h"
#include "app/FileTypeCatalogue.h"
#include "app/LanguageSetup.h"
#include "app/TLogger.h"
#include "engine/FilePathCodec.h"
#include "engine/GroupMember.h"
#include "engine/ScanTree.h"
#include "engine/TFileData.h"
#include "fileops/CloudRemover.h"
#include "fileops/RemovalCheck.h"
#include "fileops/TImageDeleteWorker.h"
#include "mainwindow/MainWindow.h"
#include "pictures/ImageCompareStage.h"
#include "preferences/DFGenernalPreferences.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "results/CsvExportRun.h"
#include "results/ResultForm.h"
#include "results/TImageModel.h"
#include "scancontrol/TControlUI.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QAction>
#include <QDirIterator>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

static TestEnvironment environment;

class tst_ResultForm : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        ImageCompareStage::install();
        CloudRemover::install();
        initLogger(DataDirectory::base());
        LanguageSetup::setupLanguage(1);
        QCoreApplication::installTranslator(&LanguageSetup::appTranslator());
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

    void init()
    {
        TFileData::instance()->clear();
        QDir(m_tree.path()).removeRecursively();
        QDir().mkpath(m_tree.path());
        DFIgnoreListPreferences *prefs = DFPreferences::instance()->ignoreListPreferences();
        prefs->setRemovealMethod(DFIgnoreListPreferences::moveToTrash);
        prefs->setTrashFolder(QString());
        prefs->setIgnorePathFile({});
        DFPreferences::instance()->save();
    }

    void cleanup()
    {
        delete m_page;
        m_page = nullptr;
        TFileData::instance()->clear();
    }

    void scanReviewRemove()
    {
        // Three copies of a photo, two of a document, two of a song, and files of their own.
        const QByteArray photo = jpeg(7);
        const QString keptPhoto = file("photos/beach.jpg", photo);
        const QString copyPhoto = file("backup/copy of beach.jpg", photo);
        const QString thirdPhoto = file("backup/old/beach (1).jpg", photo);
        const QString keptDoc = file("docs/report.txt", ScanTree::pattern(4000, 'd'));
        const QString copyDoc = file("docs/report (2).txt", ScanTree::pattern(4000, 'd'));
        const QString song = file("music/song.mp3", ScanTree::pattern(9000, 's'));
        const QString songCopy = file("music/song-1.mp3", ScanTree::pattern(9000, 's'));
        for (int i = 0; i < 4; ++i)
            file(QStringLiteral("misc/u%1.dat").arg(i), ScanTree::pattern(100 + i, char('u' + i)));

        DialogAnswerer answers({QMessageBox::Yes});
        answers.closeOtherDialogs = true;
        MainWindow window({"program"});
        window.show();
        window.addFolder(m_tree.path());
        QSignalSpy done(TControlUI::instance(), &TControlUI::onAllComplate);
        QTest::mouseClick(window.findChild<QPushButton *>("btn_scan"), Qt::LeftButton);
        QVERIFY(done.wait(60000));
        QTest::mouseClick(window.findChild<QPushButton *>("btn_scan"), Qt::LeftButton);
        ResultForm *page = window.resultPage();
        QVERIFY(page);
        QTRY_VERIFY(page->isDataLoaded());
        QVERIFY(!window.isVisible());

        // Categories: one group each of pictures, documents and music; none of videos.
        QCOMPARE(page->groupModel()->rowCount(), 3);
        QVERIFY(child<QPushButton>(page, "btn_image")->text().startsWith("Images  1 · "));
        QVERIFY(child<QPushButton>(page, "btn_document")->text().startsWith("Documents  1 · "));
        QVERIFY(child<QPushButton>(page, "btn_music")->isVisibleTo(page));
        QVERIFY(!child<QPushButton>(page, "btn_videos")->isVisibleTo(page));
        QTest::mouseClick(child<QPushButton>(page, "btn_image"), Qt::LeftButton);
        QCOMPARE(page->groupModel()->rowCount(), 1);
        QTRY_COMPARE(page->itemModel()->rowCount(), 3);
        QTest::mouseClick(child<QPushButton>(page, "btn_all"), Qt::LeftButton);

        // Select by Filename keeps the plain names; then the song group is kept whole by hand.
        action(page->selectionMenu(), "Select by Filename")->trigger();
        QTRY_COMPARE(page->totals().count, 4);
        const TFileData::Groups selected = TFileData::instance()->selected();
        QVERIFY(std::any_of(selected.cbegin(), selected.cend(), [&](const QStringList &paths) {
            return paths.size() == 2 && paths.contains(copyPhoto) && paths.contains(thirdPhoto);
        }));
        openGroup(page, [](const GroupItem &group) { return group.name.startsWith("song"); });
        QTRY_VERIFY(page->itemModel()->rowCount() == 2
            && page->itemModel()->displayedItems().first().path.contains(QLatin1String("song")));
        for (int row = 0; row < 2; ++row)
            page->itemModel()->setData(
                page->itemModel()->index(row, 0), false, TImageModel::CheckedRole, true);
        QTRY_COMPARE(page->totals().count, 3);
        QCOMPARE(page->totals().bytes, 2 * qint64(photo.size()) + 4000);

        // The removal method's menu entry both chooses the trash and starts the batch.
        page->deleteMenu()->actions().first()->trigger();
        QTRY_VERIFY(!page->isRemoving() && !page->lastRemoval().isEmpty());
        QCOMPARE(page->lastRemoval().size(), 3);
        // In the English catalogue's words: the Trash, and no claim that large files skip it.
        QVERIFY(answers.texts.first().contains("moved to the Trash"));
        QVERIFY(!answers.texts.first().contains("too large"));
        QTRY_VERIFY(answers.dialogs.contains("RemovalSummaryDialog"));

        for (const QString &kept : {keptPhoto, keptDoc, song, songCopy})
            QVERIFY2(QFileInfo::exists(kept), qPrintable(kept));
        for (const QString &gone : {copyPhoto, thirdPhoto, copyDoc})
            QVERIFY2(!QFileInfo::exists(gone), qPrintable(gone));
        QCOMPARE(
            trashedNames(), QStringList({"beach (1).jpg", "copy of beach.jpg", "report (2).txt"}));
        QCOMPARE(DFPreferences::instance()->ignoreListPreferences()->deleteException(), 0);

        // Groups left with one member are gone; totals and chart describe the song group alone.
        QCOMPARE(page->groupModel()->rowCount(), 1);
        QCOMPARE(TFileData::instance()->groupCount(), 1);
        QTRY_COMPARE(page->totals().count, 0);
        QVERIFY(!child<QToolButton>(page, "btn_delete")->isEnabled());
        QTRY_COMPARE(page->chartStats().value(CategoryAudio).count, 2);
        QCOMPARE(page->chartStats().value(CategoryAudio).size, 18000);
        QCOMPARE(page->chartStats().value(CategoryImages).count, 0);
        QCOMPARE(child<QLabel>(page, "lab_total_num")->text(), "2");
        QCOMPARE(child<QLabel>(page, "lab_musics_num")->text(), "2");
        QCOMPARE(child<QLabel>(page, "lab_images_num")->text(), "0");

        page->close();
        QVERIFY(window.isVisible());
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("step");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        const auto row
            = [](const char *tag, const char *step, const char *title, const char *text) {
                  QTest::newRow(tag) << QString(step) << QString(title) << QString(text);
              };
        row("nothing selected", "delete", "Warning", "No Selected Files!");
        row("folder question cancelled", "folder", "Move to Folder", "");
        row("still loading", "loading", "Loading Data", "Data is still loading, please wait...");
    }
    void refusals()
    {
        QFETCH(QString, step);
        QFETCH(QString, title);
        QFETCH(QString, text);
        const QString key = writeGroup("same.bin", 2, ScanTree::pattern(3000, 'x'));
        if (step != QLatin1String("delete"))
            TFileData::instance()->setSelected(key, {TFileData::instance()->group(key).last()});
        // Loading is caught before it ends: the page is used at once.
        m_page = new ResultForm;
        if (step != QLatin1String("loading"))
            QTRY_VERIFY(m_page->isDataLoaded());
        const QByteArray settingsBefore = ScanTree::read(DFPreferences::instance()->settingsPath());

        DialogAnswerer answers({QMessageBox::Yes});
        answers.closeOtherDialogs = true;
        if (step == QLatin1String("folder"))
            folderAction()->trigger();
        else
            m_page->on_btn_delete_clicked();
        QTRY_COMPARE(answers.titles.size(), 1);
        QCOMPARE(answers.titles.first(), title);
        QCOMPARE(answers.texts.first(), text);

        // Nothing was removed, the method is as it was and the settings file is untouched.
        QCOMPARE(TFileData::instance()->group(key).size(), 2);
        for (const QString &path : TFileData::instance()->group(key))
            QVERIFY(QFileInfo::exists(path));
        QCOMPARE(DFPreferences::instance()->ignoreListPreferences()->RemovealMethod(),
            DFIgnoreListPreferences::moveToTrash);
        QVERIFY(m_page->deleteMenu()->actions().first()->isChecked());
        QVERIFY(!folderAction()->isChecked());
        QCOMPARE(ScanTree::read(DFPreferences::instance()->settingsPath()), settingsBefore);
        QTRY_VERIFY(m_page->isDataLoaded());
    }

    // The menu's hard link entry chooses the method and replaces the selected copy by another
    // name of the one that stays; the summary counts the space and warns of the shared bits.
    void hardLinkFromTheMenu()
    {
        const QString key = writeGroup("same.bin", 2, ScanTree::pattern(3000, 'h'));
        const QString kept = TFileData::instance()->group(key).first();
        const QString item = TFileData::instance()->group(key).last();
        TFileData::instance()->setSelected(key, {item});
        m_page = new ResultForm;
        QTRY_VERIFY(m_page->isDataLoaded());
        DialogAnswerer answers;
        answers.closeOtherDialogs = true;
        for (QAction *action : m_page->deleteMenu()->actions())
            if (action->data() == int(DFIgnoreListPreferences::replaceByHardLink))
                action->trigger();
        QTRY_VERIFY(answers.dialogs.contains("RemovalSummaryDialog"));
        QCOMPARE(DFPreferences::instance()->ignoreListPreferences()->RemovealMethod(),
            DFIgnoreListPreferences::replaceByHardLink);
        QCOMPARE(child<QToolButton>(m_page, "btn_delete")->text(), "Replace by links…");
        QVERIFY2(m_page->lastRemoval().value(0).success,
            qPrintable(m_page->lastRemoval().value(0).reason));
        QCOMPARE(QFileInfo(item).size(), 3000);
        QCOMPARE(QFile::symLinkTarget(item), QString());
        struct stat a
        {
        };
        struct stat b
        {
        };
        QCOMPARE(::stat(QFile::encodeName(kept).constData(), &a), 0);
        QCOMPARE(::stat(QFile::encodeName(item).constData(), &b), 0);
        QCOMPARE(a.st_ino, b.st_ino);
        const QString summary = answers.texts.last();
        QVERIFY2(summary.contains("Space freed: 2.92 KB"), qPrintable(summary));
        QVERIFY2(summary.contains("share one set of permissions"), qPrintable(summary));
    }

    // The permanent question names what goes and falls back on No; the button says what a
    // click does.
    void permanentQuestionDefaultsToNo()
    {
        const QString key = writeGroup("same.bin", 2, ScanTree::pattern(3000, 'p'));
        const QString item = TFileData::instance()->group(key).last();
        TFileData::instance()->setSelected(key, {item});
        DFPreferences::instance()->ignoreListPreferences()->setRemovealMethod(
            DFIgnoreListPreferences::removePermanently);
        m_page = new ResultForm;
        QTRY_VERIFY(m_page->isDataLoaded());
        QCOMPARE(child<QToolButton>(m_page, "btn_delete")->text(), "Remove permanently…");
        DialogAnswerer answers;
        m_page->on_btn_delete_clicked();
        QTRY_COMPARE(answers.defaults.size(), 1);
        QCOMPARE(answers.defaults.first(), QMessageBox::No);
        const QString question = answers.texts.first();
        QVERIFY2(
            question.contains("1 item") && question.contains(", 2.92 KB."), qPrintable(question));
        QVERIFY(QFileInfo::exists(item));
        QVERIFY(!m_page->isRemoving());
    }

    void searchFiltersAndSlider()
    {
        writeGroup("holiday.jpg", 3, jpeg(3));
        writeGroup("notes.txt", 2, ScanTree::pattern(500, 'n'));
        const QString key = writeGroup("holiday-notes.txt", 2, ScanTree::pattern(700, 'h'));
        TFileData::instance()->setSelected(key, {TFileData::instance()->group(key).last()});
        ResultForm *page = openPage();

        auto *search = child<QLineEdit>(page, "lineEdit");
        QTest::keyClicks(search, "HOLIDAY");
        QCOMPARE(page->groupModel()->rowCount(), 2);
        // A category narrows the search further.
        QTest::mouseClick(child<QPushButton>(page, "btn_document"), Qt::LeftButton);
        QCOMPARE(page->groupModel()->rowCount(), 1);
        QCOMPARE(page->groupModel()->displayedGroups().first().name, "holiday-notes.txt");
        search->clear();
        QCOMPARE(page->groupModel()->rowCount(), 2);

        // The open group is holiday-notes.txt: only its selected copy is left to show.
        QTRY_COMPARE(page->itemModel()->rowCount(), 2);
        action(page->filterMenu(), "Show Only Selected Files")->trigger();
        QCOMPARE(page->itemModel()->rowCount(), 1);
        QVERIFY(page->itemModel()->displayedItems().first().checked);
        QVERIFY(!action(page->filterMenu(), "Show All Files")->isChecked());
        action(page->filterMenu(), "Show All Files")->trigger();
        QCOMPARE(page->itemModel()->rowCount(), 2);

        // The slider cannot go below the threshold the scan used.
        const int threshold = DFPreferences::instance()->generalPreferences()->SimilarityValue();
        QSlider *slider = page->similaritySlider();
        QCOMPARE(slider->minimum(), threshold);
        slider->setValue(threshold - 10);
        QCOMPARE(slider->value(), threshold);
    }

    void hideAndIgnore()
    {
        const QString hidden = writeGroup("three.bin", 3, ScanTree::pattern(900, 't'));
        const QString ignored = writeGroup("two.bin", 2, ScanTree::pattern(600, 'w'));
        const QStringList members = TFileData::instance()->group(ignored);
        ResultForm *page = openPage();
        openGroup(page, [&](const GroupItem &group) { return group.key == hidden; });
        QTRY_COMPARE(page->itemModel()->rowCount(), 3);

        // Hiding takes a member out of the result, never off the disk.
        const QString first = page->itemModel()->displayedItems().first().path;
        page->onBtnHideFileClick(page->itemModel()->index(0, 0));
        QCOMPARE(page->itemModel()->rowCount(), 2);
        QCOMPARE(TFileData::instance()->group(hidden).size(), 2);
        QVERIFY(QFileInfo::exists(first));
        page->onBtnHideFileClick(page->itemModel()->index(0, 0));
        QVERIFY(TFileData::instance()->group(hidden).isEmpty());
        QCOMPARE(page->groupModel()->rowCount(), 1);

        page->onMenuIgnoreGroup(ignored, 0, 2);
        QCOMPARE(page->groupModel()->rowCount(), 0);
        QVERIFY(TFileData::instance()->isEmpty());
        QCOMPARE(DFPreferences::instance()->ignoreListPreferences()->IgnorePathFile(), members);
        const QByteArray written = ScanTree::read(DFPreferences::instance()->settingsPath());
        QVERIFY(written.contains(QFileInfo(members.first()).fileName().toUtf8()));
    }

    void everyCopyAsksAgain()
    {
        const QString key = writeGroup("only.bin", 2, ScanTree::pattern(800, 'o'));
        const QStringList members = TFileData::instance()->group(key);
        TFileData::instance()->setSelected(key, members);
        ResultForm *page = openPage();
        // Yes to the trash, then the default (No) to losing every copy.
        DialogAnswerer answers({QMessageBox::Yes, QMessageBox::NoButton});
        answers.closeOtherDialogs = true;
        page->on_btn_delete_clicked();
        QTRY_VERIFY(!page->isRemoving() && !page->lastRemoval().isEmpty());
        QVERIFY(answers.texts.at(1).contains("every copy"));
        QCOMPARE(answers.defaults.at(1), QMessageBox::No);
        // The first copy stayed; the other went.
        QVERIFY(QFileInfo::exists(members.first()));
        QVERIFY(!QFileInfo::exists(members.last()));
        QCOMPARE(page->lastRemoval().first().reason, TImageDeleteWorker::keptLastCopy);
    }

    // Files that only share a name: the batch keeps the one that differs and asks, naming
    // how many; No keeps it, Yes lets it go while its namesake stays.
    void differentContentNeedsAYes_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::newRow("no: kept") << QMessageBox::No;
        QTest::newRow("yes: removed") << QMessageBox::Yes;
    }
    void differentContentNeedsAYes()
    {
        QFETCH(QMessageBox::StandardButton, answer);
        const QString kept = file("a/report.txt", ScanTree::pattern(900, 'a'));
        const QString other = file("b/report.txt", ScanTree::pattern(900, 'b'));
        const QString key = TFileData::groupKey(kept);
        TFileData::instance()->insertGroup(key, {kept, other});
        TFileData::instance()->setGroupMatch(key, TFileData::MatchName);
        TFileData::instance()->setSelected(key, {other});
        ResultForm *page = openPage();
        // Yes to the removal, the summary closed, the answer to the question, the second
        // summary closed.
        DialogAnswerer answers(
            {QMessageBox::Yes, QMessageBox::NoButton, answer, QMessageBox::NoButton});
        answers.closeOtherDialogs = true;
        page->on_btn_delete_clicked();
        QTRY_VERIFY(answers.titles.contains("Remove Different Files?"));
        QTRY_VERIFY(!page->isRemoving());
        const qsizetype asked = answers.titles.indexOf("Remove Different Files?");
        QVERIFY2(answers.texts.at(asked).startsWith("1 selected file differs"),
            qPrintable(answers.texts.at(asked)));
        QCOMPARE(answers.defaults.at(asked), QMessageBox::No);
        QTRY_COMPARE(QFileInfo::exists(other), answer == QMessageBox::No);
        QCOMPARE(ScanTree::read(kept), ScanTree::pattern(900, 'a'));
    }

    void nameNotUtf8ShowsRealSizeAndDate()
    {
        // A name of bytes that are no UTF-8 (as old archives and other systems leave
        // them): the scan keeps it through the path codec, and so must the page.
        const QString plain = file("odd/plain.bin", ScanTree::pattern(4321, 'o'));
        const QByteArray raw = QFile::encodeName(m_tree.filePath("odd/")) + "caf\xe9.bin";
        {
            const int fd = ::open(raw.constData(), O_WRONLY | O_CREAT | O_EXCL, 0644);
            QVERIFY(fd >= 0);
            const QByteArray content = ScanTree::pattern(4321, 'o');
            QCOMPARE(::write(fd, content.constData(), size_t(content.size())), ssize_t(4321));
            const timespec times[2] = {{0, UTIME_OMIT}, {1500000000, 0}};
            QCOMPARE(::futimens(fd, times), 0);
            ::close(fd);
        }
        const QString odd = FilePathCodec::decode(raw);
        TFileData::instance()->insertGroup(TFileData::groupKey(plain), {plain, odd});
        ResultForm *page = openPage();
        QTRY_COMPARE(page->itemModel()->rowCount(), 2);
        const ImageItem item = page->itemModel()->displayedItems().at(1);
        QCOMPARE(item.path, odd);
        QCOMPARE(item.size, qint64(4321));
        QCOMPARE(page->itemModel()->index(1, TImageModel::DateColumn).data().toString(),
            QDateTime::fromSecsSinceEpoch(1500000000).toString("yyyy/MM/dd HH:mm:ss"));
        ::unlink(raw.constData());
    }

    void hideCountsAndUndo()
    {
        const QString key = writeGroup("notes.txt", 3, ScanTree::pattern(600, 'n'));
        const QStringList members = TFileData::instance()->group(key);
        TFileData::instance()->setSelected(key, {members.at(2)});
        ResultForm *page = openPage();
        QTRY_COMPARE(page->itemModel()->rowCount(), 3);
        const auto group = [page] { return page->groupModel()->displayedGroups().value(0); };
        QCOMPARE(group().selectedCount, 1);
        // The selected copy hidden: two copies left, none selected.
        const QModelIndex hide = page->itemModel()->index(2, TImageModel::HideColumn);
        QCOMPARE(hide.data(TImageModel::FilePathRole).toString(), members.at(2));
        page->onBtnHideFileClick(hide);
        QCOMPARE(group().count, 2);
        QCOMPARE(group().selectedCount, 0);
        auto *undo = page->findChild<QLabel *>("lab_undo");
        QVERIFY(undo->isVisible());
        QVERIFY(undo->text().contains("notes.txt"));
        // Undo puts it back, selected as it was.
        emit undo->linkActivated("undo");
        QCOMPARE(group().count, 3);
        QCOMPARE(group().selectedCount, 1);
        QCOMPARE(TFileData::instance()->group(key), members);
        QVERIFY(TFileData::instance()->isSelected(key, members.at(2)));
        QVERIFY(!undo->isVisible());
        QTRY_COMPARE(page->itemModel()->rowCount(), 3);

        // Undo brings back what was there only while nothing else changed: a copy
        // checked after the hide takes the offer away.
        page->onBtnHideFileClick(page->itemModel()->index(2, TImageModel::HideColumn));
        QVERIFY(undo->isVisible());
        page->itemModel()->setData(
            page->itemModel()->index(0, 0), true, TImageModel::CheckedRole, true);
        QVERIFY(!undo->isVisible());
        QCOMPARE(group().count, 2);
    }

    void shownGroupStaysHighlighted()
    {
        writeGroup("big.bin", 2, ScanTree::pattern(9000, 'b'));
        const QString small = writeGroup("a-small.bin", 3, ScanTree::pattern(100, 's'));
        ResultForm *page = openPage();
        openGroup(page, [&small](const GroupItem &g) { return g.key == small; });
        QTRY_COMPARE(page->itemModel()->rowCount(), 3);
        // By name the small group comes first, by size last: either way it stays the one
        // highlighted and shown.
        for (int role : {int(ByName), int(BySize)}) {
            page->on_comboBox_activated(role);
            const QModelIndex current
                = page->findChild<QListView *>("listView_groups")->currentIndex();
            QCOMPARE(current.data(TImageModel::KeyRole).toString(), small);
            QTRY_COMPARE(page->itemModel()->rowCount(), 3);
            QCOMPARE(page->itemModel()->displayedItems().first().key, small);
        }
    }

    void similarityFloorHidesGroups_data()
    {
        QTest::addColumn<int>("floor");
        QTest::addColumn<bool>("listed");
        QTest::newRow("below both") << 60 << true;
        QTest::newRow("one reaches it besides the reference") << 70 << true;
        QTest::newRow("only the reference reaches it") << 75 << false;
    }
    void similarityFloorHidesGroups()
    {
        QFETCH(int, floor);
        QFETCH(bool, listed);
        const QString a = file("p/a.jpg", jpeg(1));
        const QString b = file("p/b.jpg", jpeg(2));
        const QString c = file("p/c.jpg", jpeg(3));
        const QStringList entries = GroupMember::entries({{a, 0}, {b, 70}, {c, 62}});
        TFileData::instance()->insertGroup(TFileData::groupKey(entries.first()), entries);
        DFGenernalPreferences *similar = DFPreferences::instance()->generalPreferences();
        const DFGenernalPreferences saved(*similar);
        similar->setSimilarityValue(55);
        ResultForm *page = openPage();
        *similar = saved;
        page->findChild<QSlider *>("slider_similarity")->setValue(floor);
        QCOMPARE(page->groupModel()->rowCount(), listed ? 1 : 0);
    }

    void fileListShowsWhereEachCopyLives()
    {
        const QByteArray content = ScanTree::pattern(700, 'f');
        const QString z = file("zeta/report.txt", content);
        const QString a = file("alpha/report.txt", content);
        const QString m = file("mid/report.txt", content);
        TFileData::instance()->insertGroup(TFileData::groupKey(z), {z, a, m});
        ResultForm *page = openPage();
        page->setViewMode(ResultForm::ListMode);
        QTRY_COMPARE(page->itemModel()->rowCount(), 3);
        auto *table = page->findChild<QTableView *>("tableView_files");
        QHeaderView *header = table->horizontalHeader();
        // The folder right after the name, and every cell naming the whole file.
        QCOMPARE(header->visualIndex(TImageModel::FolderColumn), TImageModel::SizeColumn);
        QCOMPARE(page->itemModel()->headerData(TImageModel::FolderColumn, Qt::Horizontal),
            QVariant("Folder"));
        const QModelIndex first = page->itemModel()->index(0, TImageModel::FolderColumn);
        QCOMPARE(first.data().toString(), QDir::toNativeSeparators(QFileInfo(z).path()));
        QCOMPARE(first.data(Qt::ToolTipRole).toString(), QDir::toNativeSeparators(z));
        QCOMPARE(page->itemModel()->index(0, TImageModel::HideColumn).data(Qt::ToolTipRole),
            QVariant("Hide from results"));
        // A click on the folder header sorts by folder, a second one the other way.
        const auto folderOrder = [page] {
            QStringList order;
            for (const ImageItem &item : page->itemModel()->displayedItems())
                order << QFileInfo(item.path).dir().dirName();
            return order;
        };
        const int x = header->sectionViewportPosition(TImageModel::FolderColumn) + 5;
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(x, 5));
        QCOMPARE(folderOrder(), QStringList({"alpha", "mid", "zeta"}));
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(x, 5));
        QCOMPARE(folderOrder(), QStringList({"zeta", "mid", "alpha"}));
        // Space checks the current row and unchecks it again.
        table->setFocus();
        table->setCurrentIndex(page->itemModel()->index(1, TImageModel::NameColumn));
        QTest::keyClick(table, Qt::Key_Space);
        QVERIFY(TFileData::instance()->isSelected(TFileData::groupKey(z), m));
        QTest::keyClick(table, Qt::Key_Space);
        QVERIFY(!TFileData::instance()->isSelected(TFileData::groupKey(z), m));
    }

    // A copy in a protected folder shows why it cannot be checked, and no way of checking
    // it works; a group of protected copies only is not listed at all.
    void protectedCopies()
    {
        const QByteArray content = ScanTree::pattern(900, 'p');
        const QString kept = file("archive/r.txt", content);
        const QString loose = file("down/r.txt", content);
        const QString key = TFileData::groupKey(kept);
        TFileData::instance()->insertGroup(key, {kept, loose});
        const QStringList archived {file("archive/s.txt", "s"), file("archive/sub/s.txt", "s")};
        TFileData::instance()->insertGroup(TFileData::groupKey(archived.first()), archived);
        TFileData::instance()->setProtectedFolders(ProtectedFolders({m_tree.path() + "/archive"}));
        ResultForm *page = openPage();
        page->setViewMode(ResultForm::ListMode);
        QCOMPARE(page->groupModel()->rowCount(), 1);
        QTRY_COMPARE(page->itemModel()->rowCount(), 2);
        auto *table = page->findChild<QTableView *>("tableView_files");
        for (int row = 0; row < 2; ++row) {
            const QModelIndex box = page->itemModel()->index(row, TImageModel::CheckColumn);
            const bool locked = box.data(TImageModel::FilePathRole).toString() == kept;
            QCOMPARE(box.data(TImageModel::ProtectedRole).toBool(), locked);
            QCOMPARE(bool(box.flags() & Qt::ItemIsUserCheckable), !locked);
            if (locked)
                QCOMPARE(box.data(Qt::ToolTipRole).toString(), TImageModel::protectedText());
            QTest::mouseClick(
                table->viewport(), Qt::LeftButton, {}, table->visualRect(box).center());
            table->setFocus();
            table->setCurrentIndex(box.siblingAtColumn(TImageModel::NameColumn));
            QTest::keyClick(table, Qt::Key_Space);
            QTest::keyClick(table, Qt::Key_Space);
            QCOMPARE(TFileData::instance()->isSelected(
                         key, box.data(TImageModel::FilePathRole).toString()),
                !locked);
        }
        TFileData::instance()->setProtectedFolders({});
    }

    void sampledGroupThatDiffersLeavesThePage()
    {
        // The sampled mode reads parts of a file: two files that agree there may differ
        // elsewhere. Shown as not verified; the removal finds out, keeps the file without
        // asking about different content, and the group leaves the page.
        const QByteArray content = ScanTree::pattern(40000, 'a');
        QByteArray changed = content;
        changed[20000] = char(changed[20000] ^ 1);
        const QString kept = file("a/data.bin", content);
        const QString other = file("b/data.bin", changed);
        const QString key = TFileData::groupKey(kept);
        TFileData::instance()->insertGroup(key, {kept, other});
        TFileData::instance()->setGroupMatch(key, TFileData::MatchSampled);
        TFileData::instance()->setSelected(key, {other});
        ResultForm *page = openPage();
        QTRY_COMPARE(page->itemModel()->rowCount(), 2);
        QVERIFY(page->itemModel()->displayedItems().at(1).unverified);
        QCOMPARE(page->itemModel()->displayedItems().at(1).extra, "not verified");
        DialogAnswerer answers({QMessageBox::Yes, QMessageBox::NoButton});
        answers.closeOtherDialogs = true;
        page->on_btn_delete_clicked();
        QTRY_VERIFY(answers.titles.size() >= 2);
        QTRY_VERIFY(!page->isRemoving());
        QCOMPARE(ScanTree::read(other), changed);
        QVERIFY(!answers.titles.contains("Remove Different Files?"));
        QVERIFY(TFileData::instance()->group(key).isEmpty());
        QCOMPARE(page->groupModel()->rowCount(), 0);
        DeleteResult refused;
        refused.errorCode = DeleteResult::Skipped;
        refused.reason = RemovalCheck::notIdentical;
        QCOMPARE(ResultForm::failureText(refused, 0), "Not identical (only parts were compared).");
    }

    void similarMembersShowRealFiles()
    {
        const QByteArray picture = jpeg(5);
        const QString a = file("p/sunset.jpg", picture);
        const QByteArray edited = jpeg(6);
        const QString b = file("q/sunset-edit.jpg", edited);
        const QStringList entries = GroupMember::entries({{a, 100}, {b, 92}});
        TFileData::instance()->insertGroup(TFileData::groupKey(entries.first()), entries);
        ResultForm *page = openPage();
        const GroupItem group = page->groupModel()->displayedGroups().first();
        QCOMPARE(group.name, "sunset.jpg");
        QCOMPARE(group.type, int(CategoryImages));
        // Similar pictures differ in size: each counts its own.
        QCOMPARE(group.totalSize, qint64(picture.size() + edited.size()));
        QTRY_COMPARE(page->itemModel()->rowCount(), 2);
        const ImageItem second = page->itemModel()->displayedItems().at(1);
        QCOMPARE(second.path, b);
        QCOMPARE(second.displayName, "sunset-edit.jpg");
        QCOMPARE(second.size, QFileInfo(b).size());
        QCOMPARE(second.type, int(CategoryImages));
        QCOMPARE(second.similarity, 92);
    }

    // The exported table numbers the groups as the page lists them; a refused write is
    // said, and leaves nothing behind.
    void exportAsCsv()
    {
        const QString small = writeGroup("small.bin", 2, ScanTree::pattern(3000, 's'));
        const QString large = writeGroup("large.bin", 3, ScanTree::pattern(9000, 'l'));
        const QString chosen = TFileData::instance()->group(large).last();
        TFileData::instance()->setSelected(large, {chosen});
        openPage();
        QTemporaryDir out;
        QSignalSpy done(m_page->csvExport(), &CsvExportRun::finished);
        {
            // The button asks where first; a cancelled question writes nothing.
            DialogAnswerer answers;
            QTest::mouseClick(m_page->findChild<QPushButton *>("btn_export"), Qt::LeftButton);
            QTRY_COMPARE(answers.titles.size(), 1);
            QCOMPARE(answers.titles.first(), "Export as CSV");
        }
        QVERIFY(!m_page->csvExport()->isRunning());
        QStringList order;
        for (int row = 0; row < m_page->groupModel()->rowCount(); ++row)
            order.append(m_page->groupModel()->index(row, 0).data(TImageModel::KeyRole).toString());
        QCOMPARE(QSet<QString>(order.cbegin(), order.cend()), QSet<QString>({small, large}));
        m_page->csvExport()->writeTo(out.filePath("table.csv"), order);
        QVERIFY(done.wait(10000));
        QCOMPARE(done.last().at(1).toString(), QString());
        const QList<QList<QByteArray>> rows = csvRows(ScanTree::read(out.filePath("table.csv")));
        QCOMPARE(rows.size(), 6);
        for (const QList<QByteArray> &row : rows.mid(1)) {
            const QString path = FilePathCodec::decode(row.at(2));
            const QString key = QString::number(
                order.indexOf(TFileData::instance()->group(small).contains(path) ? small : large)
                + 1);
            QCOMPARE(QString::fromLatin1(row.at(0)), key);
            QCOMPARE(row.at(3).toLongLong(), QFileInfo(path).size());
            QCOMPARE(row.at(5), path == chosen ? "1" : "0");
        }

        DialogAnswerer answers;
        m_page->csvExport()->writeTo(out.filePath("no such folder/table.csv"), order);
        QVERIFY(done.wait(10000));
        QVERIFY(!done.last().at(1).toString().isEmpty());
        QTRY_COMPARE(answers.titles.value(0), "Export Failed");
        QVERIFY(!QFileInfo::exists(out.filePath("no such folder")));
    }

private:
    QAction *folderAction() const
    {
        for (QAction *action : m_page->deleteMenu()->actions())
            if (action->data() == int(DFIgnoreListPreferences::moveToFolder))
                return action;
        return nullptr;
    }

    // A real file in the tree; its path.
    QString file(const QString &relative, const QByteArray &content)
    {
        return ScanTree::write(m_tree.path(), relative, content);
    }
    // Groups of real files in the store, one per entry: name -> copies.
    QString writeGroup(const QString &name, int copies, const QByteArray &content)
    {
        QStringList paths;
        for (int i = 0; i < copies; ++i)
            paths << file(QStringLiteral("c%1/%2").arg(i).arg(name), content);
        const QString key = TFileData::groupKey(paths.first());
        TFileData::instance()->insertGroup(key, paths);
        return key;
    }
    ResultForm *openPage()
    {
        m_page = new ResultForm;
        m_page->resize(1366, 768);
        m_page->show();
        [&] { QTRY_VERIFY(m_page->isDataLoaded()); }();
        return m_page;
    }
    QAction *action(QMenu *menu, const QString &text) const
    {
        for (QAction *candidate : menu->actions())
            if (candidate->text() == text)
                return candidate;
        return nullptr;
    }
    // Makes the first group that passes current the open one.
    static void openGroup(ResultForm *page, const std::function<bool(const GroupItem &)> &current)
    {
        const QList<GroupItem> groups = page->groupModel()->displayedGroups();
        for (int row = 0; row < groups.size(); ++row)
            if (current(groups.at(row)))
                page->findChild<QListView *>("listView_groups")
                    ->setCurrentIndex(page->groupModel()->index(row, 0));
    }
    template<typename T>
    T *child(QWidget *page, const char *name) const
    {
        return page->findChild<T *>(QString::fromLatin1(name));
    }
    static QByteArray jpeg(int seed)
    {
        return fixtures::encode(fixtures::makeScene(320, 200, seed), ".jpg");
    }
    static QStringList trashedNames()
    {
        QStringList names;
        QDirIterator it(qEnvironmentVariable("XDG_DATA_HOME") + "/Trash/files", QDir::Files);
        while (it.hasNext())
            names << QFileInfo(it.next()).fileName();
        names.sort();
        return names;
    }

    QTemporaryDir m_tree;
    ResultForm *m_page = nullptr;
};

QTEST_MAIN(tst_ResultForm)
#include "tst_ResultForm.moc"
