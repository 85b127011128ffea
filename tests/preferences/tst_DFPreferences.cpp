// SPDX-License-Identifier: GPL-3.0-or-later
#include "LogText.h"
#include "TestEnvironment.h"
#include "app/AppIdentity.h"
#include "app/TLogger.h"
#include "engine/ScanTree.h"
#include "engine/TFileData.h"
#include "preferences/DFGenernalPreferences.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "preferences/DFSelectionPreferences.h"
#include "scancontrol/TControlUI.h"

#include <algorithm>
#include <memory>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

static TestEnvironment s_environment;

using PriorityMap = QMap<QString, qint32>;

namespace {

void writeText(const QString &path, const QByteArray &text)
{
    QVERIFY(!ScanTree::write(QFileInfo(path).path(), QFileInfo(path).fileName(), text).isEmpty());
}

QObject *groupOf(const DFPreferences &store, const QString &which)
{
    if (which == QLatin1String("common"))
        return store.ignoreListPreferences();
    if (which == QLatin1String("duplicate"))
        return store.selectionPreferences();
    return store.generalPreferences();
}

} // namespace

static void loadRow(const char *tag, const QByteArray &ini, const char *group, const char *property,
    const QVariant &expected)
{
    QTest::newRow(tag) << ini << QString(group) << QString(property) << expected;
}

// The dialog edits copies and assigns them back: a value a copy missed would be reset
// silently when the dialog is accepted.
template<typename Group>
static void copiesMatch(const Group &original)
{
    Group assigned;
    assigned = original;
    QCOMPARE(Group(original).toJson(), original.toJson());
    QCOMPARE(assigned.toJson(), original.toJson());
}

class TestDFPreferences : public QObject
{
    Q_OBJECT
private slots:
    void freshSaveWritesExactText()
    {
        // QSettings writes the keys of a new section in sorted order; the inherited
        // objectName is written (empty) in every section and no "map" section exists.
        const QString path = m_dir.filePath("fresh.cfg");
        DFPreferences(path).save();
        const QByteArray threads = QByteArray::number(std::max(2, QThread::idealThreadCount()));
        const QByteArray expected = "[Common]\n"
                                    "HideSystemFile=true\n"
                                    "IgnoreFileType=@Invalid()\n"
                                    "IgnorePathFile=@Invalid()\n"
                                    "KeepFolderStructure=false\n"
                                    "MaxFileSize=100000\n"
                                    "MinFileSize=0\n"
                                    "OnlyFileType=@Invalid()\n"
                                    "OpenFolder=\n"
                                    "ProtectedFolderList=@Invalid()\n"
                                    "RemovealMethod=0\n"
                                    "SaveFolder=\n"
                                    "ScanFileType=0\n"
                                    "ThreadCount="
            + threads
            + "\n"
              "TrashFolder=\n"
              "deleteException=0\n"
              "objectName=\n"
              "\n"
              "[Duplicate_files]\n"
              "ioMode=0\n"
              "objectName=\n"
              "scanDupDirectory=false\n"
              "scanMethod=2\n"
              "selectDuplicate=2\n"
              "\n"
              "[Similar_images]\n"
              "FeaturesValue=50\n"
              "SimilarityValue=55\n"
              "algorithmHint=3\n"
              "hasSimilar=true\n"
              "imageMinSize=4\n"
              "isAddFeatures=true\n"
              "isImageSize=true\n"
              "isImageType=false\n"
              "objectName=\n"
              "scanPriority=1\n"
              "selectedSimilar=false\n"
              "selectionHint=2\n";
        QCOMPARE(QString::fromUtf8(ScanTree::read(path)), QString::fromUtf8(expected));

        // Loading that file and saving again changes nothing.
        DFPreferences(path).save();
        QCOMPARE(QString::fromUtf8(ScanTree::read(path)), QString::fromUtf8(expected));
    }

    void priorityMapRoundTrip()
    {
        const QString path = m_dir.filePath("map.cfg");
        {
            DFPreferences store(path);
            store.selectionPreferences()->setMapPriority({{"D:/a", 2}, {"D:/b", 1}});
            store.save();
        }
        const QString text = QString::fromUtf8(ScanTree::read(path));
        QVERIFY2(text.contains("\n[map]\n1=D:/b\n2=D:/a\n"), qPrintable(text));
        QVERIFY(!text.contains("mapPriority"));
        {
            DFPreferences store(path);
            const PriorityMap expected {{"D:/a", 2}, {"D:/b", 1}};
            QCOMPARE(store.selectionPreferences()->mapPriority(), expected);
            store.selectionPreferences()->setMapPriority({});
            store.save();
        }
        QVERIFY(!ScanTree::read(path).contains("[map]"));
        QVERIFY(DFPreferences(path).selectionPreferences()->mapPriority().isEmpty());
    }

    void loadKeepsDefaultsOrConverts_data()
    {
        QTest::addColumn<QByteArray>("ini");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("property");
        QTest::addColumn<QVariant>("expected");

        const QByteArray noCommon = "[Duplicate_files]\nscanMethod=1\n";
        loadRow("no Common: default", noCommon, "common", "MaxFileSize", 100000);
        loadRow("other group read", noCommon, "duplicate", "scanMethod", 1);
        loadRow("empty file: default", QByteArray(), "similar", "SimilarityValue", 55);
        loadRow("int not a number keeps default", "[Common]\nThreadCount=many\n", "common",
            "ThreadCount", std::max(2, QThread::idealThreadCount()));
        loadRow("enum not a number keeps default", "[Duplicate_files]\nselectDuplicate=x\n",
            "duplicate", "selectDuplicate", 2);
        loadRow("enum beyond its values keeps default", "[Common]\nRemovealMethod=7\n", "common",
            "RemovealMethod", 0);
        loadRow("bool neither true nor false keeps default",
            "[Similar_images]\nhasSimilar=perhaps\n", "similar", "hasSimilar", true);
        loadRow("enum value", "[Similar_images]\nalgorithmHint=2\n", "similar", "algorithmHint", 2);
        // A file written before the robust measure keeps the measure and the type rule it
        // had; the new defaults are for new files only.
        loadRow("older file keeps smart", "[Similar_images]\nalgorithmHint=0\nisImageType=true\n",
            "similar", "algorithmHint", 0);
        loadRow("older file keeps the type rule",
            "[Similar_images]\nalgorithmHint=0\nisImageType=true\n", "similar", "isImageType",
            true);
        loadRow("robust read back", "[Similar_images]\nalgorithmHint=3\n", "similar",
            "algorithmHint", 3);
        loadRow("size not a number keeps default", "[Common]\nMaxFileSize=big\n", "common",
            "MaxFileSize", 100000);
        // Shifted to bytes, this maximum overflows and no file would pass.
        loadRow("size overflowing bytes clamped", "[Common]\nMaxFileSize=9000000000000\n", "common",
            "MaxFileSize", 100000);
        loadRow("size beyond 64 bits clamped", "[Common]\nMaxFileSize=99999999999999999999999\n",
            "common", "MaxFileSize", 100000);
        loadRow("negative size clamped", "[Common]\nMinFileSize=-3\n", "common", "MinFileSize", 0);
        loadRow("minimum not below maximum: minimum reset",
            "[Common]\nMinFileSize=2048\nMaxFileSize=2\n", "common", "MinFileSize", 0);
        // A pass mark of 0 or below links every pair of pictures.
        loadRow("similarity 0 clamped", "[Similar_images]\nSimilarityValue=0\n", "similar",
            "SimilarityValue", 1);
        loadRow("similarity with decimals truncated", "[Similar_images]\nSimilarityValue=72.9\n",
            "similar", "SimilarityValue", 72);
        loadRow("features clamped", "[Similar_images]\nFeaturesValue=95\n", "similar",
            "FeaturesValue", 60);
        loadRow("aspect limit clamped", "[Similar_images]\nimageMinSize=0\n", "similar",
            "imageMinSize", 1);
        loadRow("folder with an unquoted comma", "[Common]\nTrashFolder=/home/me/a, b\n", "common",
            "TrashFolder", "/home/me/a, b");
        loadRow(
            "bool false", "[Common]\nHideSystemFile=false\n", "common", "HideSystemFile", false);
        loadRow("deletion marker", "[Common]\ndeleteException=1\n", "common", "deleteException", 1);
        loadRow("single list item", "[Common]\nIgnoreFileType=jpg\n", "common", "IgnoreFileType",
            QStringList {"jpg"});
        loadRow("list with comma in item", "[Common]\nIgnorePathFile=/a, \"/b,c\"\n", "common",
            "IgnorePathFile", QStringList {"/a", "/b,c"});
        loadRow(
            "absent list", "[Common]\nThreadCount=3\n", "common", "OnlyFileType", QStringList());
        loadRow("priority key not a number", "[map]\nfirst=D:/x\n3=D:/y\n", "duplicate",
            "mapPriority", QVariant::fromValue(PriorityMap {{"D:/x", 0}, {"D:/y", 3}}));
    }
    void loadKeepsDefaultsOrConverts()
    {
        QFETCH(QByteArray, ini);
        QFETCH(QString, group);
        QFETCH(QString, property);
        QFETCH(QVariant, expected);

        const QString path
            = m_dir.filePath(QStringLiteral("load-%1.cfg").arg(QTest::currentDataTag()));
        writeText(path, ini);
        const DFPreferences store(path);
        const QVariant actual = groupOf(store, group)->property(property.toLatin1());
        QVERIFY(actual.isValid());
        switch (expected.metaType().id()) {
        case QMetaType::Bool:
            QCOMPARE(actual.toBool(), expected.toBool());
            break;
        case QMetaType::QStringList:
            QCOMPARE(actual.toStringList(), expected.toStringList());
            break;
        case QMetaType::Int:
        case QMetaType::LongLong:
            QCOMPARE(actual.toLongLong(), expected.toLongLong());
            break;
        case QMetaType::QString:
            QCOMPARE(actual.toString(), expected.toString());
            break;
        default:
            QCOMPARE(actual.value<PriorityMap>(), expected.value<PriorityMap>());
        }
    }

    void damagedFileLoadsRepairedAndScans()
    {
        // Hand-edited and then cut off: numbers out of range, a wrong type, a line that is no
        // setting, a key this version does not know, and a section header cut in the middle.
        const QByteArray damaged = "[Common]\nMaxFileSize=9000000000000\nMinFileSize=-3\n"
                                   "ThreadCount=many\nUnknownKey=kept\nnot a setting\n"
                                   "[Similar_images]\nSimilarityValue=0\n"
                                   "[Duplicate_files]\nscanMethod=2\n[Simil";
        const QString path = m_dir.filePath("damaged.cfg");
        const QString logFolder = m_dir.filePath("damaged-log");
        writeText(path, damaged);
        QVERIFY(initLogger(logFolder));
        {
            const DFPreferences store(path);
            QCOMPARE(store.ignoreListPreferences()->MaxFileSize(), quint64(100000));
            QCOMPARE(store.ignoreListPreferences()->MinFileSize(), quint64(0));
            QCOMPARE(store.generalPreferences()->SimilarityValue(), 1);
            QCOMPARE(int(store.selectionPreferences()->scanMethod()), 2);
            // The next save drops the line that is no setting; the file as it was stays.
            QCOMPARE(ScanTree::read(path + ".bak"), damaged);

            QTemporaryDir tree;
            ScanTree::write(tree.path(), "a/one.bin", ScanTree::pattern(20000, 1));
            ScanTree::write(tree.path(), "b/two.bin", ScanTree::pattern(20000, 1));
            ScanTree::write(tree.path(), "b/other.bin", ScanTree::pattern(20000, 2));
            TFileData::instance()->clear();
            TControlUI controller;
            QSignalSpy done(&controller, &TControlUI::onAllComplate);
            QCOMPARE(
                controller.startScan({tree.path()}, store.ignoreListPreferences()->toJson(),
                    store.selectionPreferences()->toJson(), store.generalPreferences()->toJson()),
                QString());
            QVERIFY(done.wait(30000));
            QCOMPARE(TFileData::instance()->groups().size(), 1);
            QCOMPARE(TFileData::instance()->groups().begin()->size(), 2);
        }
        QVERIFY(ScanTree::read(path).contains("\nUnknownKey=kept\n"));
        // Saved repaired at exit, so the next start has nothing more to say.
        QCOMPARE(DFPreferences(path).ignoreListPreferences()->MaxFileSize(), quint64(100000));
        shutdownLogger();
        const QString log = logText(logFolder);
        for (const char *key : {"\"MaxFileSize\" in [Common]", "\"MinFileSize\" in [Common]",
                 "\"ThreadCount\" in [Common]", "\"SimilarityValue\" in [Similar_images]",
                 "lines that are not settings"})
            QVERIFY2(log.count(QLatin1String(key)) == 1, qPrintable(log));
    }

    void snapshotsAndCopies()
    {
        // The engine reads each group by these keys, whatever the settings file calls them.
        DFPreferences store(m_dir.filePath("json.cfg"));
        DFIgnoreListPreferences *common = store.ignoreListPreferences();
        common->setHideSystemFile(false);
        common->setIgnoreBundle(true);
        common->setIgnoreFileType({"tmp", "bak"});
        common->setTrashFolder("/trash");
        common->setIgnorePathFile({"/skip"});
        DFSelectionPreferences *duplicate = store.selectionPreferences();
        duplicate->setSelectDuplicate(DFSelectionPreferences::selectOldest);
        duplicate->setSimilarSelectHint(DFSelectionPreferences::NoSelected);
        duplicate->setMapPriority({{"/photos", 4}});
        duplicate->setScanDupDirectory(true);
        DFGenernalPreferences *similar = store.generalPreferences();
        similar->setFeaturesValue(61);
        similar->setSimilarityValue(90);
        similar->setAlgorithmHint(DFSelectionPreferences::rbPhash);
        similar->setImageMinSize(7);
        const auto keys = [](const QJsonObject &json) { return json.keys().join(','); };

        const QJsonObject c = common->toJson();
        QCOMPARE(keys(c),
            "IgnoreBundle,IgnoreFileType,IgnorePathFile,IgnoreSystemHidden,MaxFileSize,MinFileSize,"
            "OnlyFileType,OpenFolder,SaveFolder,ScanFileType,ThreadCount,TrashFolder");
        QCOMPARE(c.value("IgnoreSystemHidden").toBool(true), false);
        QCOMPARE(c.value("IgnoreBundle").toBool(), true);
        QCOMPARE(c.value("MaxFileSize").toDouble(), 100000.0);
        QCOMPARE(c.value("IgnoreFileType").toVariant().toStringList(), QStringList({"tmp", "bak"}));
        const QJsonObject d = duplicate->toJson();
        QCOMPARE(keys(d),
            "duplicateSelectHint,ioMode,mapPriority,scanDupDirectory,scanMethod,similarSelectHint");
        QCOMPARE(d.value("duplicateSelectHint").toInt(), int(DFSelectionPreferences::selectOldest));
        QCOMPARE(d.value("similarSelectHint").toInt(), int(DFSelectionPreferences::NoSelected));
        QCOMPARE(d.value("mapPriority").toObject().value("/photos").toInt(), 4);
        const QJsonObject s = similar->toJson();
        QCOMPARE(keys(s),
            "FeaturesValue,SimilarityValue,algorithmHint,hasSimilar,imageMinSize,isAddFeatures,"
            "isImageSize,isImageType,scanPriority,selectedSimilar,selectionHint");
        QCOMPARE(s.value("FeaturesValue").toInt(), 61);
        QCOMPARE(s.value("SimilarityValue").toInt(), 90);

        copiesMatch(*common);
        copiesMatch(*duplicate);
        copiesMatch(*similar);
    }

    void fallbackFolderSkipsFailingAndUncreatableRoots()
    {
        QTemporaryDir disks;
        QVERIFY(disks.isValid());
        const QString blocker = disks.filePath("plainfile");
        writeText(blocker, "not a folder");
        const QString failing = disks.filePath("failing");
        const QString good = disks.filePath("good");
        QVERIFY(QDir().mkpath(failing));
        QVERIFY(QDir().mkpath(good));

        const QString chosen = DFPreferences::fallbackSettingsFolder(
            failing, {failing, blocker + "/sub", good + "/"});
        QCOMPARE(chosen, good + "/" + AppIdentity::applicationName);
        QVERIFY(QFileInfo(chosen).isDir());
        // A root without a trailing slash (a mount point) gets one inserted.
        QCOMPARE(DFPreferences::fallbackSettingsFolder(QString(), {good}), chosen);
        QVERIFY(DFPreferences::fallbackSettingsFolder(failing, {failing, blocker}).isEmpty());
    }

    void unwritableConfigFolderKeepsStoreWorking()
    {
        const QByteArray savedHome = qgetenv("XDG_CONFIG_HOME");
        const QString blocker = m_dir.filePath("config-is-a-file");
        writeText(blocker, "x");
        qputenv("XDG_CONFIG_HOME", QString(blocker + "/config").toUtf8());

        const QString path = DFPreferences::settingsFilePath();
        qputenv("XDG_CONFIG_HOME", savedHome);

        QVERIFY2(path.endsWith("/preferences.cfg"), qPrintable(path));
        const QString firstChoice
            = blocker + "/config/Veltrine/Veltrine Duplicate Finder/preferences.cfg";
        if (path != firstChoice) {
            // Another fixed disk took the file: it must really be writable there.
            QFile probe(path);
            QVERIFY(probe.open(QIODevice::WriteOnly | QIODevice::Append));
        }
        DFPreferences store(path);
        store.generalPreferences()->setSimilarityValue(80);
        store.save();
        QCOMPARE(store.generalPreferences()->SimilarityValue(), 80);
        QCOMPARE(store.ignoreListPreferences()->MaxFileSize(), quint64(100000));
    }

    void notAFileLeftAlone_data()
    {
        QTest::addColumn<bool>("pipe");
        QTest::addColumn<QString>("problem");
        // Opening a pipe waits for a writer; a folder made the file move to another disk.
        QTest::newRow("a named pipe") << true << "is not a regular file";
        QTest::newRow("a folder") << false << "is a folder";
    }
    void notAFileLeftAlone()
    {
        QFETCH(bool, pipe);
        QFETCH(QString, problem);
        const QByteArray savedHome = qgetenv("XDG_CONFIG_HOME");
        QTemporaryDir home;
        const QString folder = home.filePath("Veltrine/Veltrine Duplicate Finder");
        const QString expected = folder + "/preferences.cfg";
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(pipe ? ::mkfifo(QFile::encodeName(expected).constData(), 0600) == 0
                     : QDir().mkdir(expected));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
        const QString path = DFPreferences::settingsFilePath();
        qputenv("XDG_CONFIG_HOME", savedHome);
        QCOMPARE(path, expected);
        {
            DFPreferences store(path);
            QVERIFY2(store.fileProblem().contains(problem), qPrintable(store.fileProblem()));
            QCOMPARE(store.generalPreferences()->toJson(), DFGenernalPreferences().toJson());
            QCOMPARE(store.ignoreListPreferences()->toJson(), DFIgnoreListPreferences().toJson());
            store.generalPreferences()->setSimilarityValue(80);
            store.save();
        }
        // Nothing written into it (a pipe's writer would still wait) or beside it.
        QCOMPARE(QDir(folder).entryList(
                     QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot | QDir::Hidden),
            QStringList {"preferences.cfg"});
        QCOMPARE(QFileInfo(expected).isDir(), !pipe);
        QVERIFY(pipe || QDir(expected).isEmpty());
    }

    void instanceIsOneStoreInTheConfigFolder()
    {
        DFPreferences *store = DFPreferences::instance();
        QCOMPARE(DFPreferences::instance(), store);
        QCOMPARE(store->settingsPath(),
            s_environment.path() + "/config/Veltrine/Veltrine Duplicate Finder/preferences.cfg");
        store->ignoreListPreferences()->setDeleteException(1);
        store->save();
        QVERIFY(ScanTree::read(store->settingsPath()).contains("\ndeleteException=1\n"));
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(TestDFPreferences)
#include "tst_DFPreferences.moc"
