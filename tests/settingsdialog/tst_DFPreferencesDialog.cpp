// SPDX-License-Identifier: GPL-3.0-or-later
#include "DialogAnswerer.h"
#include "TestEnvironment.h"
#include "engine/ContentKeyCache.h"
#include "engine/FileStamp.h"
#include "engine/ScanTree.h"
#include "preferences/DFGenernalPreferences.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "preferences/DFSelectionPreferences.h"
#include "settingsdialog/DFGeneralWidget.h"
#include "settingsdialog/DFIgnoreListWidget.h"
#include "settingsdialog/DFPreferencesDialog.h"
#include "settingsdialog/DFSelectionWidget.h"

#include <memory>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QSettings>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

static TestEnvironment s_environment;

using PriorityMap = QMap<QString, qint32>;

// Each test works on a store of its own file and a dialog shown on it. Steps are written
// as the user would take them, separated by ";": "name" clicks a button, "name=text" sets
// a spin box or slider or types into a field, "folder:path" adds a priority folder,
// "cell:row=text" edits the priority of a table row.
static void keyRow(const char *tag, const char *steps, const char *key, const char *expected)
{
    QTest::newRow(tag) << QString(steps) << QString(key) << QString(expected);
}

static void refusalRow(const char *tag, const char *steps, bool scanRunning, const char *text,
    const char *control, const char *shown)
{
    QTest::newRow(tag) << QString(steps) << scanRunning << QString(text) << QString(control)
                       << QString(shown);
}

// Entries are ignore-list entries, or "folder=priority" for the table, in the tree's names.
static void dropRow(const char *tag, const char *target, const char *steps,
    const QStringList &dropped, bool accepted, const QStringList &entries,
    const QStringList &texts = {})
{
    QTest::newRow(tag) << QString(target) << QString(steps) << dropped << accepted << entries
                       << texts;
}

class TestDFPreferencesDialog : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_path = m_dir.filePath(QStringLiteral("%1.cfg").arg(QTest::currentDataTag()));
        QFile::remove(m_path);
        m_scanRunning = false;
        m_store = std::make_unique<DFPreferences>(m_path);
        m_store->save();
        m_dialog = std::make_unique<DFPreferencesDialog>(
            m_store.get(), [this] { return m_scanRunning; });
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    }

    void cleanup()
    {
        m_dialog.reset();
        m_store.reset();
    }

    void controlWritesItsKey_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        keyRow("remove permanently", "rbRemovePermanently", "Common/RemovealMethod", "1");
        keyRow("move folder typed", "rbMoveToFolder;lineEdit=/srv/moved", "Common/TrashFolder",
            "/srv/moved");
        keyRow("move method", "rbMoveToFolder;lineEdit=/srv/moved", "Common/RemovealMethod", "2");
        keyRow("minimum size", "sbMinimumFileSize=512", "Common/MinFileSize", "512");
        keyRow("maximum size", "sbMaximumFileSize=2048", "Common/MaxFileSize", "2048");
        // The validator lets neither a dot nor a blank in, and empty entries are dropped.
        keyRow("ignored formats", "radBtnUgnore;linEditIgnore=t x.t,,avi", "Common/IgnoreFileType",
            "txt,avi");
        keyRow("ignore mode", "radBtnUgnore", "Common/ScanFileType", "1");
        keyRow("only formats", "linEditOnly=jpg,png", "Common/OnlyFileType", "jpg,png");
        keyRow("hidden files", "chkIgnoreSystemHidden", "Common/HideSystemFile", "false");
        keyRow("whole content", "rbAllFileContent", "Duplicate_files/scanMethod", "2");
        keyRow("by name", "rbFileName", "Duplicate_files/scanMethod", "1");
        keyRow("newest", "rbSelectionNewest", "Duplicate_files/selectDuplicate", "0");
        keyRow("priority rule", "rbSelectionPriority", "Duplicate_files/selectDuplicate", "3");
        keyRow("priority folders", "folder:/data/a;folder:/data/b;cell:1=7", "map/7", "/data/b");
        keyRow("folder groups", "chkScanDupDir", "Duplicate_files/scanDupDirectory", "true");
        keyRow("similar off", "chkEnableSimilar", "Similar_images/hasSimilar", "false");
        keyRow("phash", "rbPhash", "Similar_images/algorithmHint", "2");
        keyRow("robust again", "rbPhash;rbRobust", "Similar_images/algorithmHint", "3");
        keyRow("similarity", "hsSimilarity=80", "Similar_images/SimilarityValue", "80");
        keyRow("features", "hsFeatures=30", "Similar_images/FeaturesValue", "30");
        // The re-check belongs to the text's measures; the robust one checks its own pairs.
        keyRow("features off", "rbPhash;chkFeatures", "Similar_images/isAddFeatures", "false");
        keyRow("same type", "chkImageType", "Similar_images/isImageType", "true");
        keyRow("any ratio", "chkImageWH", "Similar_images/isImageSize", "false");
        keyRow("ratio limit", "sbImageWH=7", "Similar_images/imageMinSize", "7");
        keyRow("select similar", "chkSelectedSimilar", "Similar_images/selectedSimilar", "true");
        keyRow(
            "similar rule", "chkSelectedSimilar;rbLowQuality", "Similar_images/selectionHint", "7");
    }
    void controlWritesItsKey()
    {
        QFETCH(QString, steps);
        QFETCH(QString, key);
        QFETCH(QString, expected);
        run(steps + QStringLiteral(";btnOK"));
        QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
        QCOMPARE(stored(key), expected);
    }

    void defaultRestoresItsTab_data()
    {
        // The tab shown, and the settings group it edits: Default restores every value of
        // that group, lists and table included, and no other.
        QTest::addColumn<QString>("tab");
        QTest::addColumn<QString>("group");
        QTest::newRow("general") << "tabGeneral"
                                 << "Common";
        QTest::newRow("duplicate files") << "tabDuplicateFiles"
                                         << "Duplicate_files";
        QTest::newRow("similar images") << "tabSimilarImages"
                                        << "Similar_images";
    }
    void defaultRestoresItsTab()
    {
        QFETCH(QString, tab);
        QFETCH(QString, group);
        DFIgnoreListPreferences *common = m_store->ignoreListPreferences();
        common->setRemovealMethod(DFIgnoreListPreferences::moveToFolder);
        common->setTrashFolder(QStringLiteral("/srv/moved"));
        common->setMinFileSize(10);
        common->setMaxFileSize(20);
        common->setHideSystemFile(false);
        common->setScanFileType(1);
        common->setThreadCount(1);
        common->setIgnorePathFile({QStringLiteral("/skip/me")});
        common->setIgnoreFileType({QStringLiteral("tmp")});
        common->setOnlyFileType({QStringLiteral("JPG")});
        common->setOpenFolder(QStringLiteral("/projects"));
        DFSelectionPreferences *duplicate = m_store->selectionPreferences();
        duplicate->setScanMethod(DFSelectionPreferences::scanName);
        duplicate->setSelectDuplicate(DFSelectionPreferences::NoSelected);
        duplicate->setScanDupDirectory(true);
        duplicate->setMapPriority({{QStringLiteral("/data/a"), 4}});
        DFGenernalPreferences *similar = m_store->generalPreferences();
        similar->setHasSimilar(false);
        similar->setSimilarityValue(90);
        similar->setFeaturesValue(30);
        similar->setSelectedSimilar(true);
        similar->setSelectionHint(DFSelectionPreferences::selectLowQuality);
        similar->setScanPriority(DFGenernalPreferences::scanCustom);
        similar->setImageMinSize(9);
        similar->setIsImageSize(false);
        similar->setAlgorithmHint(DFSelectionPreferences::rbPhash);
        m_store->save();
        const QSettings before(m_path, QSettings::IniFormat);
        QHash<QString, QVariant> changed;
        for (const QString &key : before.allKeys())
            changed.insert(key, before.value(key));
        m_dialog->hide();
        m_dialog->show();
        auto *tabs = m_dialog->findChild<QTabWidget *>(QStringLiteral("tabWidget"));
        tabs->setCurrentWidget(m_dialog->findChild<QWidget *>(tab));

        // Written at once, and the dialog stays open.
        run(QStringLiteral("btnDefault"));
        QVERIFY(m_dialog->isVisible());
        const QString defaultsPath = m_dir.filePath(QStringLiteral("defaults.cfg"));
        DFPreferences(defaultsPath).save();
        const QSettings defaults(defaultsPath, QSettings::IniFormat);
        const QSettings now(m_path, QSettings::IniFormat);
        // The priority table is the duplicate tab's, stored apart.
        const auto ofTab = [&group](const QString &key) {
            return key.startsWith(group + QLatin1Char('/'))
                || (group == QLatin1String("Duplicate_files") && key.startsWith("map/"));
        };
        const QStringList remembered {
            "Common/OpenFolder", "Common/SaveFolder", "Common/deleteException"};
        for (const QString &key : changed.keys() + defaults.allKeys()) {
            const QVariant expected = ofTab(key) && !remembered.contains(key) ? defaults.value(key)
                                                                              : changed.value(key);
            QVERIFY2(now.value(key) == expected, qPrintable(key));
        }
        QCOMPARE(stored("Common/OpenFolder"), "/projects");
    }

    void cancelLeavesFileUntouched()
    {
        const QByteArray before = ScanTree::read(m_path);
        run(QStringLiteral("rbMoveToFolder;lineEdit=/srv/moved;sbMaximumFileSize=5;"
                           "folder:/data/a;rbFileName;hsSimilarity=90;chkEnableSimilar;btnCancel"));
        QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
        QCOMPARE(ScanTree::read(m_path), before);
        QCOMPARE(int(m_store->ignoreListPreferences()->RemovealMethod()), 0);
        QVERIFY(m_store->selectionPreferences()->mapPriority().isEmpty());
    }

    void refusalKeepsEdits_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<bool>("scanRunning");
        QTest::addColumn<QString>("text");
        // The control whose edit must survive the refusal, and the value it must show.
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("shown");
        const char *duringScan
            = "You cannot change settings of preferences while the scan is in progress.";
        refusalRow("minimum equal to maximum", "sbMinimumFileSize=1024;sbMaximumFileSize=1;btnOK",
            false, "The maximum file size cannot be less than the minimum file size.",
            "sbMinimumFileSize", "1024");
        refusalRow("empty move folder",
            "sbMinimumFileSize=1023;sbMaximumFileSize=1;rbMoveToFolder;btnOK", false,
            "Please select the folder where the deleted files will be moved to.",
            "sbMinimumFileSize", "1023");
        refusalRow("folder added twice", "folder:/data/a;folder:/data/a", false,
            "The folder has been added.", "cell:0", "1");
        refusalRow("priority not a number", "folder:/data/a;cell:0=abc", false,
            "abc is not a number.", "cell:0", "1");
        refusalRow("priority of another folder", "folder:/data/a;folder:/data/b;cell:1=1", false,
            "1 is added.", "cell:1", "2");
        refusalRow(
            "OK during a scan", "hsSimilarity=90;btnOK", true, duringScan, "hsSimilarity", "90");
        refusalRow("Default during a scan", "hsSimilarity=90;btnDefault", true, duringScan,
            "hsSimilarity", "90");
    }
    void refusalKeepsEdits()
    {
        QFETCH(QString, steps);
        QFETCH(bool, scanRunning);
        QFETCH(QString, text);
        QFETCH(QString, control);
        QFETCH(QString, shown);
        const QByteArray before = ScanTree::read(m_path);
        m_scanRunning = scanRunning;
        DialogAnswerer boxes;
        run(steps);
        QCOMPARE(boxes.texts, QStringList {text});
        // A folder already in the table is news, not an error.
        const QString title = scanRunning                         ? QStringLiteral("Note")
            : text == QLatin1String("The folder has been added.") ? QStringLiteral("Already Added")
                                                                  : QStringLiteral("Error");
        QCOMPARE(boxes.titles, QStringList {title});
        QVERIFY(m_dialog->isVisible());
        QCOMPARE(ScanTree::read(m_path), before);
        QString actual;
        if (control.startsWith(QLatin1String("cell:")))
            actual = m_dialog->findChild<QTableWidget *>(QStringLiteral("tableWidget"))
                         ->item(control.mid(5).toInt(), 0)
                         ->text();
        else if (auto *spin = m_dialog->findChild<QSpinBox *>(control))
            actual = QString::number(spin->value());
        else
            actual = QString::number(m_dialog->findChild<QSlider *>(control)->value());
        QCOMPARE(actual, shown);
    }

    void priorityOfAddedFolder_data()
    {
        QTest::addColumn<PriorityMap>("priorities");
        QTest::addColumn<int>("expected");
        QTest::newRow("empty map") << PriorityMap {} << 1;
        QTest::newRow("one above the largest") << PriorityMap {{"/data/a", 5}, {"/data/b", 2}} << 6;
        QTest::newRow("priorities below 1 do not count") << PriorityMap {{"/data/a", -3}} << 1;
    }
    void priorityOfAddedFolder()
    {
        QFETCH(PriorityMap, priorities);
        QFETCH(int, expected);
        m_store->selectionPreferences()->setMapPriority(priorities);
        m_dialog->hide();
        m_dialog->show();
        run(QStringLiteral("folder:/data/new;btnOK"));
        QCOMPARE(m_store->selectionPreferences()->mapPriority().value("/data/new"), expected);
    }

    void reopeningShowsTheStore()
    {
        // The result page changes the removal method while the dialog is closed.
        run(QStringLiteral("hsSimilarity=90;btnCancel"));
        m_store->ignoreListPreferences()->setRemovealMethod(
            DFIgnoreListPreferences::removePermanently);
        m_dialog->show();
        QVERIFY(m_dialog->findChild<QAbstractButton *>("rbRemovePermanently")->isChecked());
        QCOMPARE(m_dialog->findChild<QSlider *>("hsSimilarity")->value(), 55);
        // A new language puts the design-time texts back; the page fills them again.
        m_dialog->retranslate();
        QCOMPARE(m_dialog->findChild<QLabel *>("lblSimilarityValue")->text(), "55%");
    }

    void okKeepsWhatOthersWrote()
    {
        // A removal that starts while the dialog is open sets its crash marker; OK must not
        // clear it, or a crash would go unreported at the next start.
        m_store->ignoreListPreferences()->setDeleteException(1);
        m_store->ignoreListPreferences()->setSaveFolder(QStringLiteral("/srv/projects"));
        run(QStringLiteral("hsSimilarity=90;btnOK"));
        QCOMPARE(stored("Common/deleteException"), "1");
        QCOMPARE(stored("Common/SaveFolder"), "/srv/projects");
        QCOMPARE(stored("Similar_images/SimilarityValue"), "90");
    }

    void dropAddsPaths_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QStringList>("dropped");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QStringList>("texts");
        dropRow("folder and file onto the ignore list", "lwIgnoreList", "",
            {"photos", "notes.txt", "missing"}, true, {"photos", "notes.txt"});
        dropRow("nothing that exists", "lwIgnoreList", "", {"missing"}, false, {});
        dropRow("folders onto the table in drop order", "tableWidget", "",
            {"photos", "notes.txt", "music"}, true, {"music=2", "photos=1"});
        dropRow("only a file onto the table", "tableWidget", "", {"notes.txt"}, false, {});
        dropRow("folder already in the table", "tableWidget", "folder:@/photos",
            {"photos", "music"}, true, {"music=2", "photos=1"}, {"The folder has been added."});
        dropRow("folders onto the protected list", "lwProtectedFolders", "",
            {"photos", "notes.txt", "music"}, true, {"photos", "music"});
        dropRow("only a file onto the protected list", "lwProtectedFolders", "", {"notes.txt"},
            false, {});
    }
    void dropAddsPaths()
    {
        QFETCH(QString, target);
        QFETCH(QString, steps);
        QFETCH(QStringList, dropped);
        QFETCH(bool, accepted);
        QFETCH(QStringList, entries);
        QFETCH(QStringList, texts);
        QTemporaryDir tree;
        QVERIFY(QDir(tree.path()).mkpath("photos") && QDir(tree.path()).mkpath("music"));
        ScanTree::write(tree.path(), "notes.txt", "x");
        run(steps.replace('@', tree.path()));
        QList<QUrl> urls;
        for (const QString &name : dropped)
            urls << QUrl::fromLocalFile(tree.filePath(name));
        QMimeData data;
        data.setUrls(urls);

        DialogAnswerer boxes;
        QWidget *viewport = m_dialog->findChild<QAbstractItemView *>(target)->viewport();
        const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
        QDragEnterEvent enter(QPoint(5, 5), actions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &enter);
        QCOMPARE(enter.isAccepted(), accepted);
        if (accepted) {
            QDropEvent drop(QPointF(5, 5), actions, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(viewport, &drop);
            // Told "moved", a file manager may delete what was dragged.
            QCOMPARE(drop.dropAction(), Qt::LinkAction);
        }
        QTest::qWait(100);

        QStringList actual;
        const QString root = tree.path() + '/';
        const DFIgnoreListPreferences &common = m_dialog->ignoreListWidget()->preferences();
        for (const QString &path : common.IgnorePathFile() + common.ProtectedFolderList())
            actual << QString(path).remove(root);
        const PriorityMap priorities = m_dialog->selectionWidget()->preferences().mapPriority();
        for (auto it = priorities.cbegin(); it != priorities.cend(); ++it)
            actual << QString(it.key()).remove(root) + '=' + QString::number(it.value());
        QCOMPARE(actual, entries);
        QCOMPARE(boxes.texts, texts);
    }

    void clearingTheKeyCache()
    {
        const QString path = ContentKeyCache::defaultPath();
        std::vector<ContentKeyCache::Entry> stored;
        for (quint64 inode = 1; inode <= 2000; ++inode) {
            stored.push_back(ContentKeyCache::Entry {{1, inode, 3, 4, 5}, 6, 7, true, true});
            stored.back().fresh = true;
        }
        const ContentKeyCache::Entry entry = stored.front();
        ContentKeyCache(path).store(stored, FileStamp::settleNs() * 2);
        const qint64 before = ContentKeyCache::sizeOnDisk(path);
        QVERIFY(before > 0);

        DFIgnoreListWidget widget;
        auto *size = widget.findChild<QLabel *>("lblKeyCacheSize");
        auto *clear = widget.findChild<QAbstractButton *>("btnClearKeyCache");
        QVERIFY(size && clear);
        // In the units the rest of the window uses (KB, MB).
        QVERIFY(size->text().endsWith(
            QLocale().formattedDataSize(before, 2, QLocale::DataSizeTraditionalFormat)));
        QVERIFY(clear->isEnabled());
        clear->click();

        std::vector<ContentKeyCache::Entry> entries {ContentKeyCache::Entry {entry.stamp}};
        ContentKeyCache(path).lookup(entries);
        QVERIFY(!entries[0].found);
        QVERIFY(ContentKeyCache::sizeOnDisk(path) < before);
        QVERIFY(size->text().endsWith(QLocale().formattedDataSize(
            ContentKeyCache::sizeOnDisk(path), 2, QLocale::DataSizeTraditionalFormat)));
    }

private:
    void run(const QString &steps)
    {
        for (const QString &step : steps.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            const QString name = step.section(QLatin1Char('='), 0, 0);
            const QString value = step.section(QLatin1Char('='), 1);
            if (name.startsWith(QLatin1String("folder:"))) {
                m_dialog->selectionWidget()->addPriorityFolders({name.mid(7)});
            } else if (name.startsWith(QLatin1String("cell:"))) {
                auto *table = m_dialog->findChild<QTableWidget *>(QStringLiteral("tableWidget"));
                table->item(name.mid(5).toInt(), 0)->setText(value);
            } else if (auto *button = m_dialog->findChild<QAbstractButton *>(name)) {
                QVERIFY2(button->isEnabled(), qPrintable(name));
                button->click();
            } else if (auto *spin = m_dialog->findChild<QSpinBox *>(name)) {
                spin->setValue(value.toInt());
            } else if (auto *slider = m_dialog->findChild<QSlider *>(name)) {
                slider->setValue(value.toInt());
            } else if (auto *field = m_dialog->findChild<QLineEdit *>(name)) {
                field->selectAll();
                QTest::keyClick(field, Qt::Key_Delete);
                QTest::keyClicks(field, value);
            } else {
                QFAIL(qPrintable(QStringLiteral("no control %1").arg(name)));
            }
        }
    }
    QString stored(const QString &key) const
    {
        const QVariant value = QSettings(m_path, QSettings::IniFormat).value(key);
        return value.metaType().id() == QMetaType::QStringList ? value.toStringList().join(',')
                                                               : value.toString();
    }

    QTemporaryDir m_dir;
    QString m_path;
    std::unique_ptr<DFPreferences> m_store;
    std::unique_ptr<DFPreferencesDialog> m_dialog;
    bool m_scanRunning = false;
};

QTEST_MAIN(TestDFPreferencesDialog)
#include "tst_DFPreferencesDialog.moc"
