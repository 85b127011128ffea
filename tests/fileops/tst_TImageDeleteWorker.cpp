// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/DuplicateFileFinder.h"
#include "engine/FilePathCodec.h"
#include "engine/ScanTree.h"
#include "fileops/RemovalCheck.h"
#include "fileops/RemovalJournal.h"
#include "fileops/TFileDeleter.h"
#include "fileops/TImageDeleteWorker.h"

#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <QtTest>

namespace {

// What happens to the tree between the scan and the removal, one fault a row.
enum Fault {
    NoFault,
    SizeChanged,
    TimeChanged,
    ContentChanged,
    KeptCopyDeleted,
    KeptCopyRemovedByAnotherGroup,
    KeptCopyIsLinkToItem,
    HardLinkedToKeptCopy,
    ItemVanished,
    BothSelected,
    BothSelectedAllowed,
    ReadOnlyItem,
    ReadOnlyFolder,
    SimilarPictures,
    MoveNameTaken,
};

void setModified(const QString &path, qint64 seconds)
{
    const struct timespec times[2] = {{seconds, 0}, {seconds, 0}};
    ::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0);
}

// A two-member group of identical files a/x.bin (kept) and b/x.bin (selected), stamped as
// a scan would.
struct Pair
{
    QTemporaryDir dir;
    QString kept;
    QString item;
    RemovalRequest request;

    explicit Pair(int method)
    {
        const QByteArray data = ScanTree::pattern(20000, 3);
        kept = ScanTree::write(dir.path(), "a/x.bin", data);
        item = ScanTree::write(dir.path(), "b/x.bin", data);
        setModified(kept, 1000000000);
        setModified(item, 1000000000);
        request.method = method;
        request.targetFolder = dir.path() + "/moved";
        request.groups.insert("G", {kept, item});
        request.selected.insert("G", {item});
        // As a full scan stamps them: with the whole-content key, reused while untouched.
        for (const QString &path : {kept, item})
            request.stamps.insert(path,
                FileStamp::withContentKey(
                    path, DuplicateFileFinder::streamHash(path, 0).toULongLong(nullptr, 16)));
    }

    QList<DeleteResult> run(TFileData::Groups *remaining = nullptr)
    {
        TImageDeleteWorker worker(request);
        QObject::connect(&worker, &TImageDeleteWorker::finished,
            [remaining](const TFileData::Groups &, const TFileData::Groups &,
                const TFileData::Groups &selected) {
                if (remaining)
                    *remaining = selected;
            });
        worker.doDelete();
        return worker.results();
    }
};

} // namespace

class TestTImageDeleteWorker : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        // The trash of this test, not the user's.
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.path()));
        // The pairs' files are written just before their scan and must keep their keys.
        qputenv(FileStamp::kSettleOverride, "0");
    }

    void faults_data()
    {
        QTest::addColumn<int>("fault");
        QTest::addColumn<int>("method");
        QTest::addColumn<QString>("outcome"); // of the selected item: removed, skipped, failed
        QTest::addColumn<QString>("reason");
        const int permanent = TFileDeleter::removePermanently;
        const int move = TFileDeleter::moveToFolder;
        const auto row = [](const QByteArray &tag, Fault fault, const char *outcome,
                             const QString &reason, int method = TFileDeleter::removePermanently) {
            QTest::newRow(tag) << int(fault) << method << QString(outcome) << reason;
        };
        for (int method : {int(TFileDeleter::moveToTrash), permanent, move}) {
            const QByteArray name = RemovalJournal::methodName(method).toLatin1();
            row("nothing changed, " + name, NoFault, "removed", {}, method);
            row("read-only file, " + name, ReadOnlyItem, "removed", {}, method);
        }
        row("size changed", SizeChanged, "skipped", RemovalCheck::changedSinceScan);
        row("modification time changed", TimeChanged, "skipped", RemovalCheck::changedSinceScan);
        row("same size and time, content changed", ContentChanged, "skipped",
            RemovalCheck::contentDiffers);
        row("kept copy deleted", KeptCopyDeleted, "skipped", RemovalCheck::noKeptCopyLeft);
        // The kept copy is selected in a group of similar pictures of the same batch: removing
        // both would leave only a picture that merely looks alike.
        row("kept copy removed by another group", KeptCopyRemovedByAnotherGroup, "skipped",
            RemovalCheck::noKeptCopyLeft);
        row("kept copy replaced by a link to the item", KeptCopyIsLinkToItem, "skipped",
            RemovalCheck::noKeptCopyLeft);
        row("item hard-linked to the kept copy", HardLinkedToKeptCopy, "skipped",
            RemovalCheck::noKeptCopyLeft);
        row("item vanished", ItemVanished, "removed", {});
        row("both members selected: the first stays", BothSelected, "removed", {});
        row("whole group selected, allowed", BothSelectedAllowed, "removed", {});
        row("similar pictures: tagged entries", SimilarPictures, "removed", {});
        row("move: name taken", MoveNameTaken, "removed", {}, move);
        // Permission bits do not stop the superuser; the unprivileged run covers this row.
        if (::geteuid() != 0)
            row("file in a read-only folder", ReadOnlyFolder, "failed", "Permission denied");
    }
    void faults()
    {
        QFETCH(int, fault);
        QFETCH(int, method);
        QFETCH(QString, outcome);
        QFETCH(QString, reason);
        Pair pair(method);
        QVERIFY(pair.request.stamps.value(pair.item).hasContentKey);
        const QByteArray keptBytes = ScanTree::read(pair.kept);
        QString taken;
        QString look;
        switch (fault) {
        case SizeChanged:
            ScanTree::write(pair.dir.path(), "b/x.bin", keptBytes + "more");
            break;
        case TimeChanged:
            setModified(pair.item, 1000000100);
            break;
        case ContentChanged: {
            QByteArray edited = keptBytes;
            edited[100] = char(edited[100] ^ 1);
            ScanTree::write(pair.dir.path(), "b/x.bin", edited);
            setModified(pair.item, 1000000000);
            break;
        }
        case KeptCopyDeleted:
            QFile::remove(pair.kept);
            break;
        case KeptCopyRemovedByAnotherGroup:
            look = ScanTree::write(pair.dir.path(), "c/look.bin", "a similar picture");
            pair.request.groups.insert("S", {pair.kept + "_simlar_100", look + "_simlar_90"});
            pair.request.selected.insert("S", {pair.kept});
            break;
        case KeptCopyIsLinkToItem:
            QFile::remove(pair.kept);
            QVERIFY(QFile::link(pair.item, pair.kept));
            break;
        case HardLinkedToKeptCopy:
            QFile::remove(pair.kept);
            QCOMPARE(::link(QFile::encodeName(pair.item).constData(),
                         QFile::encodeName(pair.kept).constData()),
                0);
            break;
        case ItemVanished:
            QFile::remove(pair.item);
            break;
        case BothSelected:
        case BothSelectedAllowed:
            pair.request.selected["G"] = {pair.kept, pair.item};
            pair.request.allowAllCopies = fault == BothSelectedAllowed;
            break;
        case ReadOnlyItem:
            QFile::setPermissions(pair.item, QFileDevice::ReadOwner);
            break;
        case ReadOnlyFolder:
            QFile::setPermissions(
                pair.dir.path() + "/b", QFileDevice::ReadOwner | QFileDevice::ExeOwner);
            break;
        case SimilarPictures:
            // Similar pictures differ by design; the selection names the file untagged.
            ScanTree::write(pair.dir.path(), "b/x.bin", keptBytes + "other");
            pair.request.stamps.insert(pair.item, FileStamp::of(pair.item));
            pair.request.groups["G"] = {pair.kept + "_simlar_100", pair.item + "_simlar_91"};
            break;
        case MoveNameTaken:
            taken = ScanTree::write(pair.request.targetFolder, "x.bin", "already here");
            break;
        }
        TFileData::Groups remaining;
        const QList<DeleteResult> results = pair.run(&remaining);
        QFile::setPermissions(pair.dir.path() + "/b",
            QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);

        const DeleteResult *item = nullptr;
        for (const DeleteResult &result : results)
            if (result.path == pair.item)
                item = &result;
        QVERIFY(item);
        const QString got = item->errorCode == DeleteResult::Skipped ? "skipped"
            : item->success                                          ? "removed"
                                                                     : "failed";
        QCOMPARE(got, outcome);
        QVERIFY2(item->reason.contains(reason), qPrintable(item->reason));
        QCOMPARE(QFileInfo::exists(pair.item), outcome != "removed");
        // A skipped or failed item keeps its selection.
        QCOMPARE(remaining.value("G").contains(pair.item), outcome != "removed");
        // The kept copy is never touched, unless every copy was allowed to go or another group
        // selected it.
        if (fault == BothSelectedAllowed || fault == KeptCopyRemovedByAnotherGroup) {
            QVERIFY(!QFileInfo::exists(pair.kept));
        } else if (fault != KeptCopyDeleted) {
            QVERIFY(QFileInfo::exists(pair.kept));
            if (fault != KeptCopyIsLinkToItem && fault != HardLinkedToKeptCopy)
                QCOMPARE(ScanTree::read(pair.kept), keptBytes);
        }
        if (fault == BothSelected)
            QCOMPARE(results.first().reason, TImageDeleteWorker::keptLastCopy);
        if (!look.isEmpty())
            QVERIFY(QFileInfo::exists(look));
        if (method == TFileDeleter::moveToFolder && outcome == "removed") {
            // A move never replaces: the taken name keeps its file, the item gets a free one.
            const QString expected = pair.request.targetFolder
                + (taken.isEmpty() ? QStringLiteral("/x.bin") : QStringLiteral("/x (2).bin"));
            QCOMPARE(item->destination, expected);
            QCOMPARE(ScanTree::read(expected), keptBytes);
            if (!taken.isEmpty())
                QCOMPARE(ScanTree::read(taken), QByteArray("already here"));
        }
    }

    void folders_data()
    {
        QTest::addColumn<bool>("extraFile");
        QTest::addColumn<bool>("nameTaken");
        QTest::addColumn<QString>("reason");
        QTest::newRow("alike, moved beside a folder of the same name") << false << true << "";
        QTest::newRow("a file without a copy in the kept folder")
            << true << false << RemovalCheck::folderNotCovered;
    }
    void folders()
    {
        QFETCH(bool, extraFile);
        QFETCH(bool, nameTaken);
        QFETCH(QString, reason);
        QTemporaryDir dir;
        for (const char *folder : {"F", "G/F"}) {
            ScanTree::write(
                dir.path(), QString("%1/one.bin").arg(folder), ScanTree::pattern(9000, 1));
            ScanTree::write(
                dir.path(), QString("%1/sub/.two").arg(folder), ScanTree::pattern(7000, 2));
        }
        if (extraFile)
            ScanTree::write(dir.path(), "G/F/sub/extra.bin", "no copy of this anywhere");
        const QString target = dir.path() + "/moved";
        if (nameTaken)
            ScanTree::write(target, "F/occupant.txt", "stays");
        RemovalRequest request;
        request.method = TFileDeleter::moveToFolder;
        request.targetFolder = target;
        request.dirGroups.insert(
            "D", {{dir.path() + "/F", 2, 16000}, {dir.path() + "/G/F", 2, 16000}});
        request.selected.insert("D", {dir.path() + "/G/F"});
        TImageDeleteWorker worker(request);
        worker.doDelete();
        const DeleteResult result = worker.results().value(0);
        QCOMPARE(result.reason, reason);
        QCOMPARE(QFileInfo::exists(dir.path() + "/G/F"), !reason.isEmpty());
        if (reason.isEmpty()) {
            QCOMPARE(result.destination, target + "/F (2)");
            QVERIFY(QFileInfo::exists(target + "/F (2)/sub/.two"));
            QCOMPARE(ScanTree::read(target + "/F/occupant.txt"), QByteArray("stays"));
        }
    }

    void cancelKeepsTheRestSelected()
    {
        QTemporaryDir dir;
        RemovalRequest request;
        request.method = TFileDeleter::removePermanently;
        QStringList members;
        for (int i = 0; i < 5; ++i)
            members.append(ScanTree::write(dir.path(), QString("c%1.bin").arg(i), "same"));
        request.groups.insert("G", members);
        request.selected.insert("G", members.mid(1));
        TImageDeleteWorker worker(request);
        TFileData::Groups remaining;
        connect(&worker, &TImageDeleteWorker::progressChanged, &worker, [&worker](int done) {
            if (done == 1)
                worker.setCancelled();
        });
        connect(&worker, &TImageDeleteWorker::finished,
            [&remaining](const TFileData::Groups &, const TFileData::Groups &,
                const TFileData::Groups &selected) { remaining = selected; });
        worker.doDelete();
        QCOMPARE(worker.results().size(), 1);
        QCOMPARE(remaining.value("G"), members.mid(2));
        for (const QString &path : members.mid(2))
            QVERIFY(QFileInfo::exists(path));
    }

    void trashEntryRestorable()
    {
        Pair pair(TFileDeleter::moveToTrash);
        // A name that is not UTF-8 goes to the trash and is recorded byte for byte.
        const QByteArray odd = QFile::encodeName(pair.dir.path()) + "/b/caf\xe9 \x01.bin";
        QCOMPARE(::rename(QFile::encodeName(pair.item).constData(), odd.constData()), 0);
        const QString item = FilePathCodec::decode(odd);
        pair.request.groups["G"] = {pair.kept, item};
        pair.request.selected["G"] = {item};
        pair.request.stamps.insert(item, FileStamp::of(item));
        const DeleteResult result = pair.run().value(0);
        QVERIFY2(result.success, qPrintable(result.reason));
        const QByteArray trashed = FilePathCodec::encode(result.destination);
        QVERIFY(trashed.startsWith(QFile::encodeName(m_home.path()) + "/Trash/files/"));
        QVERIFY(::access(trashed.constData(), F_OK) == 0);
        // What a file manager reads to restore it.
        const QByteArray infoPath = QFile::encodeName(m_home.path()) + "/Trash/info/"
            + trashed.mid(trashed.lastIndexOf('/') + 1) + ".trashinfo";
        std::ifstream in(infoPath.toStdString());
        std::stringstream text;
        text << in.rdbuf();
        const QByteArray info = QByteArray::fromStdString(text.str());
        QVERIFY(info.startsWith("[Trash Info]\n"));
        const QByteArray path = info.mid(info.indexOf("Path=") + 5).split('\n').first();
        QCOMPARE(QByteArray::fromPercentEncoding(path), odd);
        QVERIFY(QRegularExpression("\nDeletionDate=\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\n")
                    .match(QString::fromLatin1(info))
                    .hasMatch());
    }

private:
    QTemporaryDir m_home;
};

QTEST_GUILESS_MAIN(TestTImageDeleteWorker)
#include "tst_TImageDeleteWorker.moc"
