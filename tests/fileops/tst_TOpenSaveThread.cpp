// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/FilePathCodec.h"
#include "engine/ScanTree.h"
#include "engine/TFileData.h"
#include "fileops/TOpenSaveThread.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// A hand-written project with one valid group; the malformed rows change one detail.
const char *const kValidProject = R"(<?xml version="1.0" encoding="UTF-8"?>
<VeltrineDuplicateFinder fileCount="10" scanTime="00:01:02" version="4.5.0">
  <groups>
    <GroupItem GroupType="0" GroupFlag="0" key="K1">
      <Item selected="0">%A%</Item>
      <Item selected="1">%B%</Item>
    </GroupItem>
  </groups>
</VeltrineDuplicateFinder>
)";

} // namespace

class TestTOpenSaveThread : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString m_fileA;
    QString m_fileB;
    QString m_folder;

    QString makeFile(const QString &relative, const QByteArray &bytes)
    {
        return ScanTree::write(m_dir.path(), relative, bytes);
    }
    // A project file written by hand, its placeholders replaced by the test's paths.
    QString writeProject(const QString &name, const QString &text)
    {
        return makeFile(name, projectText(text).toUtf8());
    }

    QString projectText(QString text) const
    {
        return text.replace("%A%", m_fileA)
            .replace("%B%", m_fileB)
            .replace("%C%", m_folder)
            .replace("%M%", m_dir.filePath("gone/missing.txt"));
    }

    // Some other results the user has open; a failed open must leave them alone.
    static void fillSentinel()
    {
        TFileData::instance()->replaceAll({{"SENTINEL", {"/x/a.txt", "/x/b.txt"}}},
            {{"DIRS", {DirGroupEntry {"/x", 2, 20}, DirGroupEntry {"/y", 2, 20}}}},
            {{"SENTINEL", {"/x/b.txt"}}});
    }

    static int runOpen(
        TOpenSaveThread &thread, const QString &path, QList<QVariant> *completion = nullptr)
    {
        QSignalSpy spy(&thread, &TOpenSaveThread::openProjectComplated);
        if (!thread.openProject(path))
            return -1;
        thread.wait();
        if (spy.size() != 1)
            return -2;
        if (completion)
            *completion = spy.first();
        return spy.first().first().toInt();
    }

    static int runSave(
        TOpenSaveThread &thread, const QString &path, qint64 count, const QString &time)
    {
        QSignalSpy spy(&thread, &TOpenSaveThread::saveComplated);
        if (!thread.saveProject(path, count, time))
            return -1;
        thread.wait();
        return spy.size() == 1 ? spy.first().first().toInt() : -2;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        m_fileA = makeFile("plain/a.txt", "same content");
        m_fileB = makeFile("plain/b.txt", "same content");
        m_folder = m_dir.filePath("folder");
        QVERIFY(QDir().mkpath(m_folder));
    }

    void roundTrip()
    {
        TFileData *store = TFileData::instance();
        const QString c1 = makeFile("dup/c1.bin", QByteArray(100, 'c'));
        const QString c2 = makeFile("dup/sub dir/c2.bin", QByteArray(100, 'c'));
        const QString c3 = makeFile("dup/ünïcödé & <odd> \"name\".bin", QByteArray(100, 'c'));
        const QString p1 = makeFile("pics/p1.jpg", QByteArray(40, 'p'));
        const QString p2 = makeFile("pics/p2.jpg", QByteArray(60, 'q'));
        const QString d1 = m_dir.filePath("folders/one");
        const QString d2 = m_dir.filePath("folders/two");
        makeFile("folders/one/x.txt", "xx");
        makeFile("folders/one/y.txt", "yyy");
        makeFile("folders/two/x.txt", "xx");
        makeFile("folders/two/y.txt", "yyy");

        const QStringList duplicates {c1, c2, c3};
        const QStringList similar {p1 + "_simlar_100", p2 + "_simlar_87"};
        const QString dupKey = TFileData::groupKey(c1);
        const QString simKey = TFileData::groupKey(similar.first());
        const QString dirKey = TFileData::groupKey(d1);
        const TFileData::Groups groups {{dupKey, duplicates}, {simKey, similar}};
        const TFileData::DirGroups dirGroups {
            {dirKey, {DirGroupEntry {d1, 2, 5}, DirGroupEntry {d2, 2, 5}}}};
        const TFileData::Groups selected {
            {dupKey, {c2, c3}}, {simKey, {similar.at(1)}}, {dirKey, {d2}}};
        store->replaceAll(groups, dirGroups, selected);
        // Found by the sampled mode: it stays marked as not compared whole.
        store->setGroupMatch(dupKey, TFileData::MatchSampled);
        // The scanned folders, one of them with a name XML cannot carry.
        const QStringList roots {m_dir.filePath("dup"),
            FilePathCodec::decode(QFile::encodeName(m_dir.filePath("pics")) + "/\x01\xff")};
        store->setScanRoots(roots);

        TOpenSaveThread thread;
        thread.setGroupOrder({simKey, "NOT-A-GROUP", dupKey});
        QSignalSpy progress(&thread, &TOpenSaveThread::saveProjectProcess);
        const QString project = m_dir.filePath("result.dupproj");
        QCOMPARE(
            runSave(thread, project, 1234, "00:02:05"), int(TOpenSaveThread::ProjectSucceeded));
        QCOMPARE(progress.size(), 3);
        QCOMPARE(progress.last().at(0).toDouble(), 3.0);
        QCOMPARE(progress.last().at(1).toDouble(), 3.0);

        // The file has the documented shape, in the requested order.
        const QString text = QString::fromUtf8(ScanTree::read(project));
        QVERIFY(text.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
        QVERIFY(text.contains("<VeltrineDuplicateFinder fileCount=\"1234\" scanTime=\"00:02:05\" "
                              "version=\"4.5.0\">"));
        QVERIFY(text.contains(
            QString("<GroupItem GroupType=\"0\" GroupFlag=\"0\" key=\"%1\">").arg(simKey)));
        QVERIFY(text.indexOf(simKey) < text.indexOf(dupKey));
        QVERIFY(text.indexOf(dupKey) < text.indexOf(dirKey));
        QVERIFY(text.contains(QString("<Item selected=\"1\">%1</Item>").arg(similar.at(1))));
        QVERIFY(text.contains(QString("<Item selected=\"0\">%1</Item>").arg(c1)));

        fillSentinel();
        QSignalSpy info(&thread, &TOpenSaveThread::openProjectInfo);
        QSignalSpy openProgress(&thread, &TOpenSaveThread::openProjectProcess);
        QList<QVariant> completion;
        QCOMPARE(runOpen(thread, project, &completion), int(TOpenSaveThread::ProjectSucceeded));
        QCOMPARE(store->groups(), groups);
        QCOMPARE(store->dirGroups(), dirGroups);
        QCOMPARE(store->selected(), selected);
        QCOMPARE(store->groupMatch(dupKey), TFileData::MatchSampled);
        QCOMPARE(store->groupMatch(simKey), TFileData::MatchContent);
        QCOMPARE(store->scanRoots(), roots);
        // Members: 3 duplicates + 2 pictures + the 2 + 2 files of the two folders.
        QCOMPARE(completion.at(1).toInt(), 9);
        QCOMPARE(completion.at(2).toLongLong(), qint64(3 * 100 + 40 + 60 + 5 + 5));
        QCOMPARE(info.size(), 1);
        QCOMPARE(info.first().at(0).toLongLong(), qint64(1234));
        QCOMPARE(info.first().at(1).toString(), QString("00:02:05"));
        QCOMPARE(thread.scanFileCount(), qint64(1234));
        QVERIFY(!openProgress.isEmpty());
        QCOMPARE(openProgress.last().at(0).toDouble(), openProgress.last().at(1).toDouble());
        store->clear();
    }

    void handWrittenProjectOpens()
    {
        const QString path = writeProject("hand.dupproj", kValidProject);
        fillSentinel();
        TOpenSaveThread thread;
        QCOMPARE(runOpen(thread, path), int(TOpenSaveThread::ProjectSucceeded));
        QCOMPARE(TFileData::instance()->groups(), (TFileData::Groups {{"K1", {m_fileA, m_fileB}}}));
        QCOMPARE(TFileData::instance()->selected(), (TFileData::Groups {{"K1", {m_fileB}}}));
        QVERIFY(TFileData::instance()->dirGroups().isEmpty());
        QCOMPARE(thread.scanTime(), QString("00:01:02"));
        TFileData::instance()->clear();
    }

    // The protected folders come back with the project, odd names included, and what they
    // protect comes back unselected whatever the file says; a project saved before there
    // were protected folders protects nothing.
    void protectedFolders_data()
    {
        QTest::addColumn<QStringList>("folders");
        QTest::addColumn<bool>("protectsGroup");
        QTest::newRow("none") << QStringList() << false;
        QTest::newRow("an odd name") << QStringList {"%D%/line\nbreak <&>"} << false;
        QTest::newRow("the group's folder") << QStringList {"%D%/plain", "%D%/other"} << true;
    }
    void protectedFolders()
    {
        QFETCH(QStringList, folders);
        QFETCH(bool, protectsGroup);
        for (QString &folder : folders)
            folder.replace("%D%", m_dir.path());
        TFileData *store = TFileData::instance();
        store->replaceAll({{"K1", {m_fileA, m_fileB}}}, {}, {{"K1", {m_fileB}}});
        store->setProtectedFolders(ProtectedFolders(folders));
        TOpenSaveThread thread;
        const QString project = m_dir.filePath("protected.dupproj");
        QCOMPARE(runSave(thread, project, 2, "00:00:01"), int(TOpenSaveThread::ProjectSucceeded));
        // Handed a selection of the protected member, as a project edited elsewhere would.
        QString text = QString::fromUtf8(ScanTree::read(project));
        text.replace("<Item selected=\"0\"", "<Item selected=\"1\"");
        QVERIFY(makeFile("protected.dupproj", text.toUtf8()) == project);
        store->setProtectedFolders({});
        fillSentinel();
        QCOMPARE(runOpen(thread, project), int(TOpenSaveThread::ProjectSucceeded));
        folders.sort();
        QCOMPARE(store->protectedFolders().folders(), folders);
        QCOMPARE(store->selectedOf("K1"),
            protectsGroup ? QStringList() : (QStringList {m_fileA, m_fileB}));
        store->setProtectedFolders({});
        store->clear();
    }

    void missingMembersAreLeftOut()
    {
        const QString text = QString(R"(<?xml version="1.0"?>
<VeltrineDuplicateFinder fileCount="3" version="4.5.0"><groups>
<GroupItem GroupType="7" GroupFlag="-2" key="THREE"><Item selected="1">%M%</Item><Item selected="0">%A%</Item><Item selected="1">%B%</Item></GroupItem>
<GroupItem GroupType="0" GroupFlag="0" key="GONE"><Item selected="1">%M%x</Item><Item selected="0">%B%</Item></GroupItem>
</groups></VeltrineDuplicateFinder>)");
        const QString path = writeProject("partly-gone.dupproj", text);
        fillSentinel();
        TOpenSaveThread thread;
        QCOMPARE(runOpen(thread, path), int(TOpenSaveThread::ProjectSucceeded));
        QCOMPARE(
            TFileData::instance()->groups(), (TFileData::Groups {{"THREE", {m_fileA, m_fileB}}}));
        QCOMPARE(TFileData::instance()->selected(), (TFileData::Groups {{"THREE", {m_fileB}}}));
        // No scan time in the file: the default.
        QCOMPARE(thread.scanTime(), QString("00:00:00"));
        TFileData::instance()->clear();
    }

    // A path listed again is left out, not the project: the first listing stays, and a
    // group that the repeats leave with fewer than two members goes.
    void repeatedPathsAreLeftOut()
    {
        const QString d = makeFile("repeat/d.txt", "same content");
        const QString e = makeFile("repeat/e.txt", "same content");
        const QString text
            = QString(R"(<VeltrineDuplicateFinder fileCount="5" version="4.5.0"><groups>
<GroupItem GroupType="0" GroupFlag="0" key="K1"><Item selected="0">%A%</Item><Item selected="1">%B%</Item><Item selected="1">%A%</Item></GroupItem>
<GroupItem GroupType="0" GroupFlag="0" key="K2"><Item selected="0">%B%</Item><Item selected="1">%D%</Item></GroupItem>
<GroupItem GroupType="0" GroupFlag="0" key="K3"><Item selected="1">%A%</Item><Item selected="0">%D%</Item><Item selected="1">%E%</Item></GroupItem>
</groups></VeltrineDuplicateFinder>)")
                  .replace("%D%", d)
                  .replace("%E%", e);
        const QString path = writeProject("repeats.dupproj", text);
        fillSentinel();
        TOpenSaveThread thread;
        QCOMPARE(runOpen(thread, path), int(TOpenSaveThread::ProjectSucceeded));
        QCOMPARE(TFileData::instance()->groups(),
            (TFileData::Groups {{"K1", {m_fileA, m_fileB}}, {"K3", {d, e}}}));
        QCOMPARE(TFileData::instance()->selected(),
            (TFileData::Groups {{"K1", {m_fileB}}, {"K3", {e}}}));
        TFileData::instance()->clear();
    }

    void emptyResultsRoundTrip()
    {
        TFileData::instance()->clear();
        TOpenSaveThread thread;
        const QString path = m_dir.filePath("empty.dupproj");
        QCOMPARE(runSave(thread, path, 0, QString()), int(TOpenSaveThread::ProjectSucceeded));
        fillSentinel();
        QCOMPARE(runOpen(thread, path), int(TOpenSaveThread::ProjectSucceeded));
        QVERIFY(TFileData::instance()->isEmpty());
    }

    void saveFailureIsReported()
    {
        TOpenSaveThread thread;
        const QString path = m_dir.filePath("no such folder/result.dupproj");
        QCOMPARE(runSave(thread, path, 1, "00:00:01"), int(TOpenSaveThread::ProjectWriteFailed));
        QVERIFY(!QFile::exists(path));
        QVERIFY(!thread.lastError().isEmpty());
    }

    // Whatever is wrong with the file, the results the user has open stay as they are.
    void malformedProjects_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("flag");
        using T = TOpenSaveThread;
        const QString valid = QString::fromUtf8(kValidProject);
        const auto mutate = [&valid](const QString &from, const QString &to) {
            Q_ASSERT(valid.contains(from));
            return QString(valid).replace(from, to).toUtf8();
        };
        const auto row = [](const char *tag, const QByteArray &content, int flag) {
            QTest::newRow(tag) << content << flag;
        };
        // The valid project with one detail changed, so that its content is refused.
        const auto invalid = [&](const char *tag, const QString &from, const QString &to) {
            row(tag, mutate(from, to), T::ProjectInvalidContent);
        };
        row("no such file", "<no file>", T::ProjectFileNotOpened);
        row("a folder", "<folder>", T::ProjectFileNotOpened);
        row("not XML at all", "fileCount=10\nthis is a text file\n", T::ProjectNotXml);
        row("empty file", QByteArray(), T::ProjectNotXml);
        row("binary", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), T::ProjectNotXml);
        row("truncated", valid.toUtf8().left(valid.toUtf8().indexOf("%B%") + 2), T::ProjectNotXml);
        row("cut after the last group", valid.toUtf8().left(valid.toUtf8().indexOf("</groups>")),
            T::ProjectNotXml);
        row("element inside a path", mutate("%B%", "%B%<b/>"), T::ProjectNotXml);
        row("wrong root", mutate("VeltrineDuplicateFinder", "SomeOtherDocument"),
            T::ProjectNotAProject);
        row("entity expansion",
            mutate("<VeltrineDuplicateFinder",
                "<!DOCTYPE VeltrineDuplicateFinder [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b "
                "\"&a;&a;&a;&a;&a;\">]>\n<VeltrineDuplicateFinder"),
            T::ProjectNotAProject);
        invalid("missing fileCount", "fileCount=\"10\" ", "");
        invalid("huge fileCount", "fileCount=\"10\"", "fileCount=\"99999999999999999999999\"");
        invalid("negative fileCount", "fileCount=\"10\"", "fileCount=\"-10\"");
        invalid("missing version", " version=\"4.5.0\"", "");
        invalid("missing key", " key=\"K1\"", "");
        invalid("missing GroupType", "GroupType=\"0\" ", "");
        invalid("GroupFlag not a number", "GroupFlag=\"0\"", "GroupFlag=\"zero\"");
        invalid("missing selected", "<Item selected=\"0\">", "<Item>");
        invalid("selected not 0 or 1", "<Item selected=\"0\">", "<Item selected=\"yes\">");
        invalid("group of one", "      <Item selected=\"1\">%B%</Item>\n", "");
        invalid("percent-encoded NUL", "<Item selected=\"1\">%B%",
            "<Item selected=\"1\" encoding=\"percent\">%B%%00.gone");
        invalid("relative path", "%B%", "plain/b.txt");
        invalid("relative scanned folder", "  <groups>",
            "  <roots><Root>%A%</Root><Root>plain</Root></roots>\n  <groups>");
        invalid("relative protected folder", "  <groups>",
            "  <protected><Folder>plain</Folder></protected>\n  <groups>");
        invalid("empty path", "%B%", "");
        invalid("files and folders mixed", "%B%", "%C%");
        invalid("key listed twice", "  </groups>",
            "    <GroupItem GroupType=\"0\" GroupFlag=\"0\" key=\"K1\"><Item selected=\"0\">%A%"
            "</Item><Item selected=\"0\">%B%</Item></GroupItem>\n  </groups>");
        row("no groups element", "<VeltrineDuplicateFinder fileCount=\"1\" version=\"4.5.0\"/>",
            T::ProjectInvalidContent);
        row("similar tag on a folder", mutate("%A%", "%C%_simlar_90").replace("%B%", "%C%/"),
            T::ProjectInvalidContent);
        row("nonexistent paths", mutate("%A%", "%M%").replace("%B%", "%M%2"),
            T::ProjectNothingLeft);
        row("one path twice", mutate("%B%", "%A%"), T::ProjectNothingLeft);
    }
    void malformedProjects()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, flag);
        QString path = m_folder;
        if (content == "<no file>")
            path = m_dir.filePath("does-not-exist.dupproj");
        else if (content != "<folder>")
            path = writeProject("bad.dupproj", QString::fromUtf8(content));
        fillSentinel();
        const TFileData::Groups groups = TFileData::instance()->groups();
        const TFileData::DirGroups dirGroups = TFileData::instance()->dirGroups();
        const TFileData::Groups selected = TFileData::instance()->selected();

        TOpenSaveThread thread;
        QSignalSpy info(&thread, &TOpenSaveThread::openProjectInfo);
        QList<QVariant> completion;
        QCOMPARE(runOpen(thread, path, &completion), flag);
        QCOMPARE(completion.at(1).toInt(), 0);
        QCOMPARE(completion.at(2).toLongLong(), qint64(0));
        QVERIFY(info.isEmpty());
        QVERIFY(!thread.lastError().isEmpty());
        QVERIFY(!TOpenSaveThread::resultText(flag).isEmpty());
        QCOMPARE(TFileData::instance()->groups(), groups);
        QCOMPARE(TFileData::instance()->dirGroups(), dirGroups);
        QCOMPARE(TFileData::instance()->selected(), selected);
    }

    void entryLimit()
    {
        QString text = "<VeltrineDuplicateFinder fileCount=\"1\" version=\"4.5.0\"><groups>";
        for (int g = 0; g < 3; ++g) {
            text += QStringLiteral("<GroupItem GroupType=\"0\" GroupFlag=\"0\" key=\"G%1\">"
                                   "<Item selected=\"0\">%2</Item><Item selected=\"0\">%3</Item>"
                                   "</GroupItem>")
                        .arg(g)
                        .arg(makeFile(QString("limit/%1a").arg(g), "x"),
                            makeFile(QString("limit/%1b").arg(g), "x"));
        }
        text += "</groups></VeltrineDuplicateFinder>";
        const QString path = writeProject("many.dupproj", text);
        fillSentinel();
        const TFileData::Groups groups = TFileData::instance()->groups();
        TOpenSaveThread thread;
        thread.setMaxEntries(5);
        QCOMPARE(runOpen(thread, path), int(TOpenSaveThread::ProjectInvalidContent));
        QCOMPARE(TFileData::instance()->groups(), groups);
        thread.setMaxEntries(6);
        QCOMPARE(runOpen(thread, path), int(TOpenSaveThread::ProjectSucceeded));
        QCOMPARE(TFileData::instance()->groupCount(), 3);
        TFileData::instance()->clear();
    }
};

QTEST_GUILESS_MAIN(TestTOpenSaveThread)
#include "tst_TOpenSaveThread.moc"
