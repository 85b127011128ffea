// SPDX-License-Identifier: GPL-3.0-or-later
// The cloud source as the window drives it, against a real rclone daemon whose "here"
// remote is a local folder signed in through the same call as a real account.
#include "DialogAnswerer.h"
#include "TestEnvironment.h"
#include "app/FileTypeCatalogue.h"
#include "cloud/CloudService.h"
#include "cloud/KvCloudObject.h"
#include "engine/ScanTree.h"
#include "engine/TFileData.h"
#include "fileops/CloudRemover.h"
#include "mainwindow/MainWindow.h"
#include "mainwindow/TCloudFolderDialog.h"
#include "pictures/ImageCompareStage.h"
#include "results/RemovalSummaryDialog.h"
#include "results/ResultForm.h"

#include <csignal>

#include <QAction>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

static TestEnvironment environment;

class tst_CloudSources : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        ImageCompareStage::install();
        CloudRemover::install();
        // rclone starts in the tree, so the local remote's top is the tree.
        QVERIFY(QDir::setCurrent(m_tree.path()));
        const auto file = [this](const char *path, char seed, qint64 size) {
            ScanTree::write(
                m_tree.path(), QString::fromLatin1(path), ScanTree::pattern(size, seed));
        };
        file("set/a1.jpg", 'a', 5000);
        file("set/sub/a2.jpg", 'a', 5000);
        file("set/b1.txt", 'b', 7000);
        file("set/sub/b2.txt", 'b', 7000);
        file("set/sub/b3.txt", 'b', 7000);
        file("set/alone.txt", 'c', 7000);
        file("other/c1.txt", 'c', 3000);
        m_window = new MainWindow({"program"});
        m_window->setShowResultsWhenDone(true);
        m_window->show();
    }

    void cleanup()
    {
        if (m_window->resultPage())
            m_window->resultPage()->close();
        if (m_window->state() == MainWindow::StateFinished)
            QTest::mouseClick(child<QPushButton>("btnAdd"), Qt::LeftButton);
        for (int row = m_window->folders().size() + m_window->cloudFolders().size(); row > 0; --row)
            m_window->deleteSelectPath(child<QListView>("listview_path")->model()->index(0, 0));
        qunsetenv("VELTRINE_RCLONE");
    }

    void cloudMenuRefusals_data()
    {
        QTest::addColumn<bool>("localFolder");
        QTest::addColumn<QString>("rclone");
        QTest::addColumn<QString>("said");
        QTest::newRow("local folders chosen")
            << true << QString()
            << "After adding local directories, cloud accounts can no longer be added.";
        QTest::newRow("rclone missing") << false << m_tree.filePath("no-such-rclone")
                                        << "Cloud drives are reached through the program rclone";
    }
    void cloudMenuRefusals()
    {
        QFETCH(bool, localFolder);
        QFETCH(QString, rclone);
        QFETCH(QString, said);
        if (localFolder)
            QVERIFY(m_window->addFolder(m_tree.filePath("other")));
        if (!rclone.isEmpty())
            qputenv("VELTRINE_RCLONE", rclone.toUtf8());
        DialogAnswerer boxes;
        QAction *drive = m_window->addMenu()->findChild<QAction *>("action_cloud_1");
        QVERIFY(drive);
        emit m_window->addMenu()->aboutToShow();
        QCOMPARE(drive->text().endsWith("(needs rclone)"), !rclone.isEmpty());
        drive->trigger();
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY2(boxes.texts.first().startsWith(said), qPrintable(boxes.texts.first()));
        QVERIFY(m_window->cloudFolders().isEmpty());
        QVERIFY(!m_window->isCloudMode());
    }

    void chooseScanAndRemove()
    {
        KvCloudObject *cloud = KvCloudObject::instance();
        chooseWhenShown({"set"});
        QVERIFY(cloud->start_authorization("here", CloudService::kLocalFolder));
        QTRY_VERIFY_WITH_TIMEOUT(m_choiceError.isEmpty(), 30000);
        QCOMPARE(m_secondOpeningAsked, 0);
        // The sub-folder took its parent's check and is not chosen a second time.
        QCOMPARE(m_chosen.size(), 1);
        QCOMPARE(m_window->cloudFolders(), QStringList {"here:set"});
        QCOMPARE(child<QLabel>("lab_number")->text(), "here");

        DialogAnswerer boxes({QMessageBox::Yes});
        // Local folders, and a second account, are refused while the cloud folders stand.
        QMimeData dropped;
        dropped.setUrls({QUrl::fromLocalFile(m_tree.filePath("other"))});
        QDragEnterEvent enter(QPoint(10, 10), Qt::LinkAction, &dropped, Qt::LeftButton, {});
        QApplication::sendEvent(m_window, &enter);
        QDropEvent drop(QPointF(10, 10), Qt::LinkAction, &dropped, Qt::LeftButton, {});
        QApplication::sendEvent(m_window, &drop);
        QVERIFY(cloud->start_authorization("elsewhere", CloudService::kLocalFolder));
        QTRY_COMPARE_WITH_TIMEOUT(boxes.texts.size(), 2, 20000);
        QCOMPARE(boxes.texts,
            QStringList({"After adding cloud accounts and directories, local directories can no "
                         "longer be added.",
                "Multiple cloud accounts cannot be scanned at the same time."}));
        QCOMPARE(m_window->cloudFolders(), QStringList {"here:set"});
        QVERIFY(m_window->folders().isEmpty());
        // Signing in to the first account again leads back to its folders.
        chooseWhenShown({"set"});
        QVERIFY(cloud->start_authorization("here", CloudService::kLocalFolder));
        QTRY_VERIFY_WITH_TIMEOUT(m_choiceError.isEmpty(), 30000);
        QCOMPARE(m_window->cloudFolders(), QStringList {"here:set"});

        QTest::mouseClick(child<QPushButton>("btn_scan"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(m_window->state(), int(MainWindow::StateFinished), 30000);
        QCOMPARE(ScanTree::relativeGroups(TFileData::instance()->groups(), "here:set"),
            QList<QStringList>({{"a1.jpg", "sub/a2.jpg"}, {"b1.txt", "sub/b2.txt", "sub/b3.txt"}}));
        ResultForm *page = m_window->resultPage();
        QVERIFY(page);
        QTRY_VERIFY_WITH_TIMEOUT(page->isDataLoaded(), 10000);
        // Sizes and categories come from the listing: nothing was downloaded.
        QTRY_COMPARE(page->totals().count, 3);
        QTRY_COMPARE(page->chartStats().value(CategoryImages).size, 10000);

        // The kept copy of the picture group disappears before the removal: its other copy
        // must stay too.
        TFileData *store = TFileData::instance();
        QString keptPicture;
        for (auto it = store->groups().cbegin(); it != store->groups().cend(); ++it)
            if (it.value().first().endsWith(".jpg"))
                for (const QString &member : it.value())
                    if (!store->isSelected(it.key(), member))
                        keptPicture = member;
        QVERIFY(QFile::remove(local(keptPicture)));
        QTimer closer;
        connect(&closer, &QTimer::timeout, this, [] {
            if (auto *summary
                = qobject_cast<RemovalSummaryDialog *>(QApplication::activeModalWidget()))
                summary->accept();
        });
        closer.start(20);
        page->on_btn_delete_clicked();
        QTRY_VERIFY_WITH_TIMEOUT(!page->isRemoving(), 20000);
        int removed = 0;
        for (const DeleteResult &result : page->lastRemoval()) {
            const bool picture = result.path.endsWith(".jpg");
            QCOMPARE(result.success, !picture);
            QCOMPARE(QFile::exists(local(result.path)), picture);
            removed += result.success;
        }
        QCOMPARE(removed, 2);
        QVERIFY(QFile::exists(m_tree.filePath("set/alone.txt")));
    }

    void scanEndsEarly_data()
    {
        QTest::addColumn<bool>("killRclone");
        QTest::addColumn<QString>("said");
        QTest::newRow("stopped") << false
                                 << "Thumbnail download was not completed. This may affect similar "
                                    "image detection results. ";
        QTest::newRow("rclone killed") << true << "The cloud scan could not be completed: ";
    }
    void scanEndsEarly()
    {
        QFETCH(bool, killRclone);
        QFETCH(QString, said);
        chooseFolders({"other"});
        DialogAnswerer boxes;
        QTest::mouseClick(child<QPushButton>("btn_scan"), Qt::LeftButton);
        QCOMPARE(m_window->state(), int(MainWindow::StateScanning));
        // The listing is under way: its answers come through the event loop.
        if (killRclone)
            QCOMPARE(::kill(pid_t(KvCloudObject::instance()->rcloneProcessId()), SIGKILL), 0);
        else
            QTest::mouseClick(child<QPushButton>("btnAdd"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(boxes.texts.size(), 1, 20000);
        QVERIFY2(boxes.texts.first().startsWith(said), qPrintable(boxes.texts.first()));
        QCOMPARE(m_window->state(), int(MainWindow::StateFinished));
        // The window is usable again, and so is the cloud source.
        QTest::mouseClick(child<QPushButton>("btnAdd"), Qt::LeftButton);
        QCOMPARE(m_window->state(), int(MainWindow::StateReady));
        chooseFolders({"other"});
        QCOMPARE(m_window->cloudFolders(), QStringList {"here:other"});
    }

private:
    // Answers the folder chooser once it shows: opens the folders of path one level at a
    // time, opens the last one twice, checks it and accepts.
    void chooseWhenShown(const QStringList &path)
    {
        m_choiceError = "the chooser did not show";
        auto *timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, [this, timer, path] {
            auto *dialog = qobject_cast<TCloudFolderDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            timer->deleteLater();
            timer->stop();
            m_choiceError.clear();
            QTreeWidgetItem *item = dialog->tree()->topLevelItem(0);
            const auto openAndWait = [&] {
                item->setExpanded(true);
                return QTest::qWaitFor([&] { return !dialog->isLoading(); }, 20000);
            };
            for (const QString &name : path) {
                if (!openAndWait()) {
                    m_choiceError = "no folders listed above " + name;
                    dialog->reject();
                    return;
                }
                QTreeWidgetItem *next = nullptr;
                for (int i = 0; i < item->childCount() && !next; ++i)
                    if (item->child(i)->text(0) == name)
                        next = item->child(i);
                if (!next) {
                    m_choiceError = "folder not listed: " + name;
                    dialog->reject();
                    return;
                }
                item = next;
            }
            // Opened, closed and opened again: listed once.
            openAndWait();
            const int asked = dialog->listingsAsked();
            item->setExpanded(false);
            item->setExpanded(true);
            QTest::qWait(50);
            m_secondOpeningAsked = dialog->listingsAsked() - asked;
            item->setCheckState(0, Qt::Checked);
            m_chosen = dialog->selectedFolders();
            dialog->accept();
        });
        timer->start(20);
    }
    void chooseFolders(const QStringList &path)
    {
        chooseWhenShown(path);
        m_window->showSelectFolderDialog("here", CloudService::kLocalFolder);
        QVERIFY2(m_choiceError.isEmpty(), qPrintable(m_choiceError));
    }
    QString local(const QString &cloudPath) const
    {
        return m_tree.filePath(cloudPath.mid(cloudPath.indexOf(QLatin1Char(':')) + 1));
    }
    template<typename T>
    T *child(const char *name) const
    {
        return m_window->findChild<T *>(QString::fromLatin1(name));
    }

    QTemporaryDir m_tree;
    MainWindow *m_window = nullptr;
    QString m_choiceError;
    int m_secondOpeningAsked = -1;
    QList<CloudFolderInfo> m_chosen;
};

QTEST_MAIN(tst_CloudSources)
#include "tst_CloudSources.moc"
