// SPDX-License-Identifier: GPL-3.0-or-later
#include "TestEnvironment.h"
#include "engine/ScanTree.h"
#include "engine/TFileData.h"
#include "pictures/ImageCompareStage.h"
#include "scancontrol/TControlUI.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QJsonObject kCommon {{"IgnoreSystemHidden", true}};
const QJsonObject kSimilarOff {{"hasSimilar", false}};

} // namespace

// The scans' key cache goes to a temporary data folder, never the user's.
static TestEnvironment environment;

class TestControlUI : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { ImageCompareStage::install(); }

    void formatSeconds_data()
    {
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << qint64(0) << "00:00:00";
        QTest::newRow("minute carry") << qint64(61) << "00:01:01";
        QTest::newRow("hours") << qint64(3 * 3600 + 59 * 60 + 59) << "03:59:59";
        QTest::newRow("beyond a day") << qint64(100 * 3600) << "100:00:00";
    }
    void formatSeconds()
    {
        QFETCH(qint64, seconds);
        QFETCH(QString, text);
        QCOMPARE(TControlUI::formatSeconds(seconds), text);
    }

    void scanRunsScannerThenFinder()
    {
        QTemporaryDir dir;
        ScanTree::write(dir.path(), "a/one.bin", ScanTree::pattern(20000, 1));
        ScanTree::write(dir.path(), "b/two.bin", ScanTree::pattern(20000, 1));
        ScanTree::write(dir.path(), "b/other.bin", ScanTree::pattern(20000, 2));
        ScanTree::write(dir.path(), "c/.hidden.bin", ScanTree::pattern(20000, 1));
        TFileData::instance()->clear();

        TControlUI controller;
        QSignalSpy done(&controller, &TControlUI::onAllComplate);
        QSignalSpy found(&controller, &TControlUI::onDuplicateItemFound);
        controller.startScan(
            {dir.path()}, kCommon, {{"scanMethod", 2}, {"duplicateSelectHint", 2}}, kSimilarOff);
        QCOMPARE(controller.runState(), int(TControlUI::Running));
        QVERIFY(done.wait(30000));
        QCOMPARE(done.count(), 1);
        QCOMPARE(controller.runState(), int(TControlUI::Stopped));
        QCOMPARE(controller.stage(), int(TControlUI::StageMatching));
        QCOMPARE(controller.scannedFileCount(), 3);
        QVERIFY(!found.isEmpty());
        // One of the two copies could go.
        QCOMPARE(found.last().at(0).toInt(), 1);
        QCOMPARE(found.last().at(1).toLongLong(), qint64(20000));
        const TFileData::Groups groups = TFileData::instance()->groups();
        QCOMPARE(groups.size(), 1);
        QCOMPARE(TFileData::instance()->selectedCount(groups.begin().key()), 1);
    }

    void stopWhileScanningEndsOnce()
    {
        QTemporaryDir dir;
        for (int i = 0; i < 2000; ++i)
            ScanTree::write(dir.path(), QString("d%1/f%2.txt").arg(i % 200).arg(i), "x");
        TControlUI controller;
        QSignalSpy done(&controller, &TControlUI::onAllComplate);
        controller.startScan({dir.path(), dir.path()}, kCommon, {}, kSimilarOff);
        controller.stop();
        QCOMPARE(controller.runState(), int(TControlUI::Stopped));
        QVERIFY(done.wait(30000));
        // Let any late report arrive: the scan must end exactly once.
        QTest::qWait(200);
        QCOMPARE(done.count(), 1);
        QCOMPARE(controller.stage(), int(TControlUI::StageScanning));
    }

    void refusesValuesOutsideRanges_data()
    {
        QTest::addColumn<QJsonObject>("common");
        QTest::addColumn<QJsonObject>("similar");
        QTest::addColumn<QString>("refusal");
        // Shifted to bytes this maximum overflows, and no file would pass.
        QTest::newRow("maximum overflowing bytes")
            << QJsonObject {{"MaxFileSize", 9e12}} << kSimilarOff
            << "The maximum file size 9000000000000 MB is outside 1 to 100000 MB.";
        QTest::newRow("maximum not a number") << QJsonObject {{"MaxFileSize", "big"}} << kSimilarOff
                                              << "The maximum file size \"big\" MB is outside 1 to "
                                                 "100000 MB.";
        QTest::newRow("minimum not below maximum")
            << QJsonObject {{"MinFileSize", 1024}, {"MaxFileSize", 1}} << kSimilarOff
            << "The minimum file size 1024 KB is not below the maximum file size 1 MB, so no file "
               "would be scanned.";
        // (A similarity of 0 is refused through the window's scan button.)
        QTest::newRow("features beyond the re-check's range")
            << kCommon << QJsonObject {{"hasSimilar", true}, {"FeaturesValue", 100}}
            << "The feature similarity threshold 100% is outside 20% to 60%.";
        QTest::newRow("pass marks of a search that does not run")
            << kCommon << QJsonObject {{"hasSimilar", false}, {"SimilarityValue", 0}} << QString();
    }
    void refusesValuesOutsideRanges()
    {
        QFETCH(QJsonObject, common);
        QFETCH(QJsonObject, similar);
        QFETCH(QString, refusal);
        QTemporaryDir dir;
        TControlUI controller;
        QSignalSpy done(&controller, &TControlUI::onAllComplate);
        QCOMPARE(controller.startScan({dir.path()}, common, {}, similar), refusal);
        if (refusal.isEmpty()) {
            QVERIFY(done.wait(30000));
            return;
        }
        QCOMPARE(controller.runState(), int(TControlUI::Stopped));
        QTest::qWait(50);
        QCOMPARE(done.count(), 0);
    }
};

QTEST_GUILESS_MAIN(TestControlUI)
#include "tst_TControlUI.moc"
