// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/DuplicateFileFinder.h"
#include "engine/FilePathCodec.h"
#include "engine/ScanTree.h"
#include "fileops/LinkReplacer.h"
#include "fileops/RemovalCheck.h"
#include "fileops/RemovalJournal.h"
#include "fileops/RemovalRestorer.h"
#include "fileops/TFileDeleter.h"
#include "fileops/TImageDeleteWorker.h"

#include <fcntl.h>
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QProcess>
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

    // parent: where the pair's folder is made (empty: the system's temporary folder).
    explicit Pair(int method, const QString &parent = {})
        : dir((parent.isEmpty() ? QDir::tempPath() : parent) + "/pair-XXXXXX")
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

    QList<DeleteResult> run(
        TFileData::Groups *remaining = nullptr, std::function<void(const QString &)> beforeAct = {})
    {
        RemovalJournal journal(dir.path() + "/journal.jsonl");
        TImageDeleteWorker worker(request);
        if (!request.dryRun) {
            journal.begin(RemovalJournal::methodName(request.method), 1, request.targetFolder);
            worker.setJournal(&journal);
        }
        worker.setBeforeActHook(std::move(beforeAct));
        QObject::connect(&worker, &TImageDeleteWorker::finished,
            [remaining](const TFileData::Groups &, const TFileData::Groups &,
                const TFileData::Groups &selected) {
                if (remaining)
                    *remaining = selected;
            });
        worker.doDelete();
        journal.end();
        return worker.results();
    }
};

// Runs a worker on request with a journal at journalPath.
QList<DeleteResult> runWithJournal(
    const RemovalRequest &request, const QString &journalPath, TImageDeleteWorker **out = nullptr)
{
    RemovalJournal journal(journalPath);
    TImageDeleteWorker worker(request);
    journal.begin(RemovalJournal::methodName(request.method), 1, request.targetFolder);
    worker.setJournal(&journal);
    worker.doDelete();
    journal.end();
    return worker.results();
}

// A btrfs file system in image, its notes to the user discarded.
bool made(const QString &image)
{
    QProcess mkfs;
    mkfs.start("mkfs.btrfs", {"-q", image});
    return mkfs.waitForFinished() && mkfs.exitStatus() == QProcess::NormalExit
        && mkfs.exitCode() == 0;
}

// A file system mounted for one test: a tmpfs, or a btrfs image on a loop device. Only root
// can; path is empty when the mount failed, and why says so.
struct Mount
{
    QTemporaryDir dir;
    QString path;
    QString why;

    explicit Mount(const QString &type)
    {
        if (::geteuid() != 0) {
            why = "mounting " + type + " needs root";
            return;
        }
        const QString point = dir.path() + "/mnt";
        QDir().mkpath(point);
        QStringList arguments {"-t", "tmpfs", "tmpfs", point};
        if (type == "btrfs") {
            const QString image = dir.path() + "/fs.img";
            QFile file(image);
            if (!file.open(QIODevice::WriteOnly) || !file.resize(128 << 20) || !made(image)) {
                why = "mkfs.btrfs cannot make a file system here";
                return;
            }
            arguments = {"-o", "loop", image, point};
        }
        if (QProcess::execute("mount", arguments) != 0) {
            why = type + " cannot be mounted here";
            return;
        }
        path = point;
    }
    ~Mount()
    {
        if (!path.isEmpty())
            QProcess::execute("umount", {path});
    }
};

// Whatever the act left in the item's folder besides the item.
QStringList leftovers(const QString &item)
{
    QStringList names = QFileInfo(item).dir().entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    names.removeAll(QFileInfo(item).fileName());
    return names;
}

struct stat statOf(const QString &path)
{
    struct stat info
    {
    };
    ::lstat(QFile::encodeName(path).constData(), &info);
    return info;
}

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
        row("similar pictures, different content", SimilarPictures, "skipped",
            RemovalCheck::differentContent);
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
            pair.request.allowDifferentContent = true;
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

    // Each row a way the last copy was lost while the removal trusted an earlier look.
    void lossPaths_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("kept copy rewritten by another program during the batch") << "rewrite";
        QTest::newRow("kept copy written through a shared mapping, times unchanged") << "mapping";
        QTest::newRow("files sharing a name, different content") << "name";
        QTest::newRow("new version renamed over the item before the act") << "renamed";
        QTest::newRow("kept folder is a bind mount of the removed one") << "bind";
    }
    void lossPaths()
    {
        QFETCH(QString, path);
        Pair pair(TFileDeleter::removePermanently);
        const QByteArray original = ScanTree::read(pair.kept);
        QByteArray other = original;
        other[15000] = char(other[15000] ^ 0x55);
        std::function<void(const QString &)> beforeAct;
        QString survivor = pair.kept;
        QByteArray survivorBytes = other;
        if (path == "rewrite") {
            // Many copies of one file: another process rewrites the kept copy in place (same
            // size) while the batch is under way.
            QStringList members {pair.kept};
            for (int i = 0; i < 20; ++i)
                members.append(
                    ScanTree::write(pair.dir.path(), QString("c/%1.bin").arg(i), original));
            pair.request.groups["G"] = members;
            pair.request.selected["G"] = members.mid(1);
            pair.request.stamps.clear();
            const QString source = ScanTree::write(pair.dir.path(), "other.bin", other);
            int items = 0;
            beforeAct = [&](const QString &) {
                if (++items == 5)
                    QCOMPARE(QProcess::execute("cp", {source, pair.kept}), 0);
            };
            const QList<DeleteResult> results = pair.run(nullptr, beforeAct);
            QCOMPARE(results.size(), 20);
            for (int i = 0; i < 20; ++i)
                QCOMPARE(results.at(i).success, i < 4);
            QCOMPARE(ScanTree::read(members.last()), original);
            return;
        }
        if (path == "mapping") {
            // The first write fault moves the times; a second write to the dirty page does
            // not, until writeback.
            const int fd = ::open(QFile::encodeName(pair.kept).constData(), O_RDWR);
            QVERIFY(fd >= 0);
            char *map = static_cast<char *>(::mmap(
                nullptr, size_t(original.size()), PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0));
            QVERIFY(map != MAP_FAILED);
            map[15000] = original[15000];
            FileStamp stamp = FileStamp::of(pair.kept);
            stamp.contentKey = pair.request.stamps.value(pair.item).contentKey;
            stamp.hasContentKey = true;
            pair.request.stamps.insert(pair.kept, stamp);
            map[15000] = other[15000];
            QCOMPARE(FileStamp::of(pair.kept).changedNs, stamp.changedNs);
            ::munmap(map, size_t(original.size()));
            ::close(fd);
            survivor = pair.item;
            survivorBytes = original;
        } else if (path == "name") {
            ScanTree::write(pair.dir.path(), "b/x.bin", other);
            pair.request.stamps.insert(pair.item, FileStamp::of(pair.item));
            pair.request.nameGroups.insert("G");
            survivor = pair.item;
        } else if (path == "renamed") {
            const QString fresh = ScanTree::write(pair.dir.path(), "b/.x.bin.part", other);
            beforeAct = [fresh](const QString &item) {
                QCOMPARE(::rename(QFile::encodeName(fresh).constData(),
                             QFile::encodeName(item).constData()),
                    0);
            };
            survivor = pair.item;
        } else if (path == "bind") {
            if (::geteuid() != 0)
                QSKIP("bind mounts need root");
            const QString removed = pair.dir.path() + "/R";
            const QString kept = pair.dir.path() + "/K";
            ScanTree::write(removed, "one.bin", original);
            QDir().mkpath(kept);
            if (QProcess::execute("mount", {"--bind", removed, kept}) != 0)
                QSKIP("mount --bind is not allowed here");
            pair.request.groups.clear();
            pair.request.dirGroups.insert("D", {{kept, 1, 20000}, {removed, 1, 20000}});
            pair.request.selected = {{"D", {removed}}};
            const QList<DeleteResult> results = pair.run();
            QProcess::execute("umount", {kept});
            QCOMPARE(results.value(0).reason, RemovalCheck::noKeptCopyLeft);
            QCOMPARE(ScanTree::read(removed + "/one.bin"), original);
            return;
        }
        const QList<DeleteResult> results = pair.run(nullptr, beforeAct);
        QVERIFY(!results.value(0).success);
        QCOMPARE(ScanTree::read(survivor), survivorBytes);
        if (path == "name") {
            // With the user's yes it goes: a copy by name is still there.
            pair.request.allowDifferentContent = true;
            QVERIFY(pair.run().value(0).success);
            QVERIFY(!QFileInfo::exists(pair.item));
        }
    }

    // A journal that stops taking lines stops the batch: nothing goes unrecorded.
    void fullJournalStopsTheBatch()
    {
        if (::geteuid() != 0)
            QSKIP("mounting a small tmpfs for the journal needs root");
        QTemporaryDir dir;
        const QString data = dir.path() + "/data";
        QDir().mkpath(data);
        if (QProcess::execute("mount", {"-t", "tmpfs", "-o", "size=8k", "tmpfs", data}) != 0)
            QSKIP("tmpfs cannot be mounted here");
        QStringList members;
        for (int i = 0; i < 200; ++i)
            members.append(ScanTree::write(dir.path(), QString("t/%1.bin").arg(i), "same"));
        RemovalRequest request;
        request.method = TFileDeleter::removePermanently;
        request.groups.insert("G", members);
        request.selected.insert("G", members.mid(1));
        RemovalJournal journal(data + "/journal.jsonl");
        QVERIFY(journal.begin("permanent", 199));
        TImageDeleteWorker worker(request);
        worker.setJournal(&journal);
        worker.doDelete();
        journal.end();
        const RemovalJournal::Batch batch = journal.batches().value(0);
        QProcess::execute("umount", {data});
        QVERIFY(!worker.journalError().isEmpty());
        QCOMPARE(worker.results().constLast().errorCode, int(DeleteResult::NotRecorded));
        // Every file that is gone has its intent on record.
        int gone = 0;
        for (const QString &member : members)
            gone += QFileInfo::exists(member) ? 0 : 1;
        QVERIFY(gone > 0 && gone < 199);
        const qsizetype intended = std::count_if(batch.items.cbegin(), batch.items.cend(),
            [](const RemovalJournal::Item &item) { return item.intended; });
        QVERIFY2(
            gone <= intended, qPrintable(QString("%1 gone, %2 on record").arg(gone).arg(intended)));
    }

    // A protected member is refused whatever selection the worker is handed; it still
    // counts as the copy that stays.
    void protectedFolders_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("reach"); // the item's folder: as is, a link or a bind mount
        QTest::addColumn<bool>("selectBoth");
        QTest::addColumn<bool>("dryRun");
        QTest::addColumn<bool>("itemGoes");
        QTest::newRow("the selected item's folder") << "b"
                                                    << "" << false << false << false;
        QTest::newRow("the same in a dry run") << "b"
                                               << "" << false << true << false;
        QTest::newRow("a folder above both") << ""
                                             << "" << false << false << false;
        QTest::newRow("reached through a link") << "b"
                                                << "link" << false << false << false;
        QTest::newRow("reached through a bind mount") << "b"
                                                      << "bind" << false << false << false;
        // Mounted outside it: only the mount table tells that b lies inside the protected one.
        QTest::newRow("a folder inside it bind-mounted elsewhere")
            << ""
            << "bind-inside" << false << false << false;
        QTest::newRow("both selected, the protected one stays as the kept copy")
            << "a"
            << "" << true << false << true;
    }
    void protectedFolders()
    {
        QFETCH(QString, folder);
        QFETCH(QString, reach);
        QFETCH(bool, selectBoth);
        QFETCH(bool, dryRun);
        QFETCH(bool, itemGoes);
        Pair pair(TFileDeleter::removePermanently);
        const QString shelter = QDir::cleanPath(pair.dir.path() + '/' + folder);
        const QTemporaryDir outside;
        const QString other = reach == "bind-inside" ? outside.path() : pair.dir.path() + "/other";
        if (reach == "link")
            QVERIFY(QFile::link(pair.dir.path() + "/b", other));
        if (reach.startsWith("bind")) {
            if (::geteuid() != 0)
                QSKIP("bind mounts need root");
            QVERIFY(QDir().mkpath(other));
            if (QProcess::execute("mount", {"--bind", pair.dir.path() + "/b", other}) != 0)
                QSKIP("mount --bind is not allowed here");
        }
        if (!reach.isEmpty()) {
            pair.request.stamps.insert(other + "/x.bin", pair.request.stamps.value(pair.item));
            pair.item = other + "/x.bin";
            pair.request.groups["G"] = {pair.kept, pair.item};
        }
        pair.request.selected["G"]
            = selectBoth ? QStringList {pair.kept, pair.item} : QStringList {pair.item};
        pair.request.allowAllCopies = selectBoth;
        pair.request.dryRun = dryRun;
        pair.request.protectedFolders = ProtectedFolders({shelter});
        const QList<DeleteResult> results = pair.run();
        const QString refused = selectBoth ? pair.kept : pair.item;
        const bool refusedStays = QFileInfo::exists(refused);
        if (reach.startsWith("bind"))
            QProcess::execute("umount", {other});
        const auto found = std::find_if(results.cbegin(), results.cend(),
            [&refused](const DeleteResult &result) { return result.path == refused; });
        QVERIFY(found != results.cend());
        QCOMPARE(found->reason, RemovalCheck::inProtectedFolder);
        QVERIFY(refusedStays);
        QCOMPARE(QFileInfo::exists(selectBoth ? pair.item : pair.kept), !itemGoes);
    }

    // A folder that holds a protected one mounted inside it holds it, whatever the paths say.
    void protectedFolderMountedInside()
    {
        if (::geteuid() != 0)
            QSKIP("bind mounts need root");
        QTemporaryDir dir;
        const QByteArray bytes = ScanTree::pattern(9000, 1);
        const QString archive
            = QFileInfo(ScanTree::write(dir.path(), "archive/one.bin", bytes)).path();
        ScanTree::write(dir.path(), "K/m/one.bin", bytes);
        const QString mounted = dir.path() + "/F/m";
        QVERIFY(QDir().mkpath(mounted));
        if (QProcess::execute("mount", {"--bind", archive, mounted}) != 0)
            QSKIP("mount --bind is not allowed here");
        RemovalRequest request;
        request.method = TFileDeleter::removePermanently;
        request.dirGroups.insert("D", {{dir.path() + "/K", 1, 9000}, {dir.path() + "/F", 1, 9000}});
        request.selected.insert("D", {dir.path() + "/F"});
        request.protectedFolders = ProtectedFolders({archive});
        const QList<DeleteResult> results = runWithJournal(request, dir.path() + "/journal");
        QProcess::execute("umount", {mounted});
        QCOMPARE(results.value(0).reason, RemovalCheck::inProtectedFolder);
        QCOMPARE(ScanTree::read(archive + "/one.bin"), bytes);
    }

    void folders_data()
    {
        QTest::addColumn<bool>("extraFile");
        QTest::addColumn<bool>("nameTaken");
        QTest::addColumn<QString>("reason");
        QTest::addColumn<bool>("targetInside");
        QTest::newRow("alike, moved beside a folder of the same name")
            << false << true << "" << false;
        QTest::newRow("a file without a copy in the kept folder")
            << true << false << RemovalCheck::folderNotCovered << false;
        // Refused before anything moves: nothing is handled at all.
        QTest::newRow("moved into a folder inside itself") << false << false << "" << true;
    }
    void folders()
    {
        QFETCH(bool, extraFile);
        QFETCH(bool, nameTaken);
        QFETCH(QString, reason);
        QFETCH(bool, targetInside);
        QTemporaryDir dir;
        for (const char *folder : {"F", "G/F"}) {
            ScanTree::write(
                dir.path(), QString("%1/one.bin").arg(folder), ScanTree::pattern(9000, 1));
            ScanTree::write(
                dir.path(), QString("%1/sub/.two").arg(folder), ScanTree::pattern(7000, 2));
        }
        if (extraFile)
            ScanTree::write(dir.path(), "G/F/sub/extra.bin", "no copy of this anywhere");
        const QString target = dir.path() + (targetInside ? "/G/F/sub/moved" : "/moved");
        if (nameTaken)
            ScanTree::write(target, "F/occupant.txt", "stays");
        RemovalRequest request;
        request.method = TFileDeleter::moveToFolder;
        request.targetFolder = target;
        request.dirGroups.insert(
            "D", {{dir.path() + "/F", 2, 16000}, {dir.path() + "/G/F", 2, 16000}});
        request.selected.insert("D", {dir.path() + "/G/F"});
        const QList<DeleteResult> results = runWithJournal(request, dir.path() + "/journal");
        if (targetInside) {
            QVERIFY(!request.refusal().isEmpty());
            QVERIFY(results.isEmpty());
            QVERIFY(QFileInfo::exists(dir.path() + "/G/F/one.bin"));
            return;
        }
        const DeleteResult result = results.value(0);
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
        RemovalJournal journal(dir.path() + "/journal");
        QVERIFY(journal.begin("permanent", 4));
        TImageDeleteWorker worker(request);
        worker.setJournal(&journal);
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
        // And it comes back under that name.
        RemovalJournal journal(pair.dir.path() + "/journal.jsonl");
        QList<DeleteResult> restored;
        QVERIFY(RemovalRestorer(journal).restore({}, restored));
        QVERIFY2(restored.value(0).success, qPrintable(restored.value(0).reason));
        QVERIFY(::access(odd.constData(), F_OK) == 0);
    }

    // A name at the length limit, taken in the target folder: the move shortens it to make
    // room for " (2)" instead of looking for a free name for ever.
    void longNameMovedBesideItsTwin()
    {
        Pair pair(TFileDeleter::moveToFolder);
        const QString name = QString(247, QLatin1Char('n')) + ".bin";
        const QString item = pair.dir.path() + "/b/" + name;
        QVERIFY(QFile::rename(pair.item, item));
        pair.request.groups["G"] = {pair.kept, item};
        pair.request.selected["G"] = {item};
        pair.request.stamps.insert(item, FileStamp::of(item));
        ScanTree::write(pair.request.targetFolder, name, "already here");
        const DeleteResult result = pair.run().value(0);
        QVERIFY2(result.success, qPrintable(result.reason));
        QCOMPARE(QFileInfo(result.destination).fileName().toUtf8().size(), 255);
        QVERIFY(result.destination.endsWith(" (2).bin"));
        QCOMPARE(
            ScanTree::read(pair.request.targetFolder + "/" + name), QByteArray("already here"));
    }

    // A move that keeps the folder structure puts b/x.bin at moved/b/x.bin. A writer that
    // changes the item at the last moment keeps it, and no folder is made for it; a batch
    // cut off between the act and its outcome is found where the structure put it.
    void moveKeepingStructure_data()
    {
        QTest::addColumn<QString>("event");
        QTest::newRow("nothing changes") << "none";
        QTest::newRow("another program writes the item") << "write";
        QTest::newRow("cut off before the outcome") << "cut";
    }
    void moveKeepingStructure()
    {
        QFETCH(QString, event);
        Pair pair(TFileDeleter::moveToFolder);
        pair.request.keepStructure = true;
        pair.request.scanRoots = {pair.dir.path() + "/a", pair.dir.path()};
        const QString into = pair.request.targetFolder + "/b";
        QCOMPARE(pair.request.folderFor(pair.item), into);
        const QByteArray before = ScanTree::read(pair.item);
        if (event == "cut") {
            // What a crash leaves: the intent, the item moved, no outcome.
            const FileStamp stamp = FileStamp::of(pair.item);
            RemovalJournal journal(pair.dir.path() + "/journal.jsonl");
            QVERIFY(journal.begin(
                RemovalJournal::methodName(pair.request.method), 1, pair.request.targetFolder));
            QVERIFY(journal.intent(0, RemovalJournal::methodName(pair.request.method), pair.item,
                pair.item + ".private", stamp.size, stamp.modifiedNs, into));
            QVERIFY(QDir().mkpath(into));
            QVERIFY(QFile::rename(pair.item, into + "/x.bin"));
        } else {
            const DeleteResult result
                = pair.run(nullptr,
                          [&](const QString &path) {
                              if (event == "write")
                                  ScanTree::write(pair.dir.path(), "b/x.bin", before + "appended");
                              Q_UNUSED(path)
                          })
                      .value(0);
            if (event == "write") {
                QCOMPARE(result.errorCode, int(DeleteResult::Skipped));
                QCOMPARE(ScanTree::read(pair.item), before + "appended");
                QVERIFY(!QFileInfo::exists(into));
                return;
            }
            QVERIFY2(result.success, qPrintable(result.reason));
            QCOMPARE(result.destination, into + "/x.bin");
        }
        QCOMPARE(ScanTree::read(into + "/x.bin"), before);
        RemovalJournal journal(pair.dir.path() + "/journal.jsonl");
        QList<DeleteResult> restored;
        QVERIFY(RemovalRestorer(journal).restore({}, restored));
        QVERIFY2(restored.value(0).success, qPrintable(restored.value(0).reason));
        QCOMPARE(ScanTree::read(pair.item), before);
        QVERIFY(!QFileInfo::exists(into + "/x.bin"));
    }

    void replaceByLink_data()
    {
        QTest::addColumn<int>("method");
        QTest::newRow("hard link") << int(TFileDeleter::replaceByHardLink);
        QTest::newRow("reflink on btrfs") << int(TFileDeleter::replaceByReflink);
        QTest::newRow("symbolic link") << int(TFileDeleter::replaceBySymlink);
    }
    void replaceByLink()
    {
        QFETCH(int, method);
        std::unique_ptr<Mount> btrfs;
        if (method == TFileDeleter::replaceByReflink) {
            btrfs = std::make_unique<Mount>("btrfs");
            if (btrfs->path.isEmpty())
                QSKIP(qPrintable(btrfs->why));
        }
        Pair pair(method, btrfs ? btrfs->path : QString());
        const QByteArray bytes = ScanTree::read(pair.item);
        const struct stat before = statOf(pair.item);
        const DeleteResult result = pair.run().value(0);
        QVERIFY2(result.success, qPrintable(result.reason));
        QCOMPARE(result.destination, pair.kept);
        QCOMPARE(result.freedBytes, qint64(bytes.size()));
        QCOMPARE(leftovers(pair.item), QStringList());
        QCOMPARE(ScanTree::read(pair.item), bytes);
        const struct stat now = statOf(pair.item);
        const struct stat kept = statOf(pair.kept);
        if (method == TFileDeleter::replaceBySymlink)
            QCOMPARE(QFile::symLinkTarget(pair.item), pair.kept);
        else
            QVERIFY(S_ISREG(now.st_mode));
        QCOMPARE(now.st_ino == kept.st_ino, method == TFileDeleter::replaceByHardLink);
        QVERIFY(now.st_ino != before.st_ino);

        RemovalJournal journal(pair.dir.path() + "/journal.jsonl");
        const RemovalJournal::Item item = journal.batches().value(0).items.value(0);
        QCOMPARE(item.method, RemovalJournal::methodName(method));
        QCOMPARE(item.result, RemovalJournal::removed);
        QCOMPARE(item.destination, pair.kept);
        QCOMPARE(item.inode, quint64(before.st_ino));
        QVERIFY(!item.digest.isEmpty());
        QFile lines(pair.dir.path() + "/journal.jsonl");
        QVERIFY(lines.open(QIODevice::ReadOnly));
        const QByteArray mode
            = QByteArray("\"mode\":") + QByteArray::number(before.st_mode & 07777);
        const QList<QByteArray> written = lines.readAll().split('\n');
        QVERIFY(std::any_of(written.cbegin(), written.cend(), [&mode](const QByteArray &line) {
            return line.contains("\"intent\"") && line.contains(mode);
        }));
        QCOMPARE(journal.batches().value(0).restorableCount(), 1);

        QList<DeleteResult> restored;
        QVERIFY(RemovalRestorer(journal).restore({}, restored));
        QVERIFY2(restored.value(0).success, qPrintable(restored.value(0).reason));
        const struct stat back = statOf(pair.item);
        QVERIFY(S_ISREG(back.st_mode));
        QVERIFY(back.st_ino != statOf(pair.kept).st_ino);
        QCOMPARE(back.st_mtim.tv_sec, time_t(1000000000));
        QCOMPARE(back.st_mode, before.st_mode);
        QCOMPARE(ScanTree::read(pair.item), bytes);
        QCOMPARE(leftovers(pair.item), QStringList());
        QCOMPARE(journal.lastBatch().id, QString());
    }

    // With a protected copy and another one to choose from, a link leads to the other: a
    // write through the link must not reach the archive.
    void linkAvoidsTheProtectedCopy()
    {
        Pair pair(TFileDeleter::replaceByHardLink);
        const QString spare
            = ScanTree::write(pair.dir.path(), "c/x.bin", ScanTree::read(pair.kept));
        setModified(spare, 1000000000);
        pair.request.groups["G"] = {pair.kept, spare, pair.item};
        pair.request.stamps.insert(spare, FileStamp::of(spare));
        pair.request.protectedFolders = ProtectedFolders({pair.dir.path() + "/a"});
        const DeleteResult result = pair.run().value(0);
        QVERIFY2(result.success, qPrintable(result.reason));
        QCOMPARE(result.destination, spare);
        QCOMPARE(statOf(pair.item).st_ino, statOf(spare).st_ino);
        QVERIFY(statOf(pair.item).st_ino != statOf(pair.kept).st_ino);
    }

    // Between the look and the act another program writes: to the kept copy, or to the item.
    void linkStopsOnWrite_data()
    {
        QTest::addColumn<int>("method");
        QTest::addColumn<bool>("keptWritten");
        QTest::addColumn<QString>("reason");
        for (const int method : {int(TFileDeleter::replaceByHardLink),
                 int(TFileDeleter::replaceBySymlink), int(TFileDeleter::replaceByReflink)}) {
            const QByteArray name = RemovalJournal::methodName(method).toLatin1();
            QTest::newRow("kept copy written, " + name)
                << method << true << RemovalCheck::contentDiffers;
            QTest::newRow("item written, " + name)
                << method << false << RemovalCheck::changedSinceScan;
        }
    }
    void linkStopsOnWrite()
    {
        QFETCH(int, method);
        QFETCH(bool, keptWritten);
        QFETCH(QString, reason);
        std::unique_ptr<Mount> btrfs;
        if (method == TFileDeleter::replaceByReflink) {
            btrfs = std::make_unique<Mount>("btrfs");
            if (btrfs->path.isEmpty())
                QSKIP(qPrintable(btrfs->why));
        }
        Pair pair(method, btrfs ? btrfs->path : QString());
        QByteArray itemBytes = ScanTree::read(pair.item);
        const ino_t inode = statOf(pair.item).st_ino;
        const DeleteResult result = pair.run(nullptr,
                                            [&](const QString &) {
                                                // Same size, other bytes: only reading the content
                                                // now shows it.
                                                QByteArray edited = itemBytes;
                                                edited[7] = char(edited[7] ^ 1);
                                                QFile file(keptWritten ? pair.kept : pair.item);
                                                QVERIFY(file.open(QIODevice::ReadWrite));
                                                file.write(edited);
                                                if (!keptWritten)
                                                    itemBytes = edited;
                                            })
                                        .value(0);
        QCOMPARE(result.errorCode, int(DeleteResult::Skipped));
        QCOMPARE(result.reason, reason);
        QCOMPARE(statOf(pair.item).st_ino, inode);
        QCOMPARE(ScanTree::read(pair.item), itemBytes);
        QCOMPARE(leftovers(pair.item), QStringList());
    }

    void linkRefused_data()
    {
        QTest::addColumn<int>("method");
        QTest::addColumn<QString>("keptOn");
        QTest::addColumn<QString>("reason");
        QTest::newRow("hard link to another file system")
            << int(TFileDeleter::replaceByHardLink) << "tmpfs" << LinkReplacer::noHardLinkCopy;
        QTest::newRow("reflink on the temporary folder's file system")
            << int(TFileDeleter::replaceByReflink) << "" << LinkReplacer::cannotClone;
        QTest::newRow("reflink on tmpfs")
            << int(TFileDeleter::replaceByReflink) << "tmpfs-both" << LinkReplacer::cannotClone;
    }
    void linkRefused()
    {
        QFETCH(int, method);
        QFETCH(QString, keptOn);
        QFETCH(QString, reason);
        std::unique_ptr<Mount> tmpfs;
        if (!keptOn.isEmpty()) {
            tmpfs = std::make_unique<Mount>("tmpfs");
            if (tmpfs->path.isEmpty())
                QSKIP(qPrintable(tmpfs->why));
        }
        Pair pair(method, keptOn == "tmpfs-both" ? tmpfs->path : QString());
        if (keptOn == "tmpfs") {
            const QString moved = tmpfs->path + "/x.bin";
            QVERIFY(QFile::copy(pair.kept, moved));
            pair.request.groups["G"] = {moved, pair.item};
            pair.request.stamps.insert(moved, FileStamp::of(moved));
        }
        const QByteArray bytes = ScanTree::read(pair.item);
        const ino_t inode = statOf(pair.item).st_ino;
        const DeleteResult result = pair.run().value(0);
        if (keptOn.isEmpty() && result.success)
            QSKIP("the temporary folder's file system clones files");
        QCOMPARE(result.errorCode, int(DeleteResult::Skipped));
        QCOMPARE(result.reason, reason);
        QCOMPARE(statOf(pair.item).st_ino, inode);
        QCOMPARE(ScanTree::read(pair.item), bytes);
        QCOMPARE(leftovers(pair.item), QStringList());
    }

    // A batch cut short between an item's intent and its outcome, at each place the act can
    // stop: restore leaves or puts the item back as a separate file with its content.
    void linkWithoutOutcomeRestored_data()
    {
        QTest::addColumn<QString>("state");
        QTest::newRow("item untouched, link made beside it") << "untouched";
        QTest::newRow("swapped, old item under the private name") << "aside";
        QTest::newRow("link in place, old item gone") << "linked";
        // Another program saved a new file over the link after the cut: it is no link of ours.
        QTest::newRow("swapped, then a new file saved at its place") << "saved";
    }
    void linkWithoutOutcomeRestored()
    {
        QFETCH(QString, state);
        Pair pair(TFileDeleter::replaceByHardLink);
        const QByteArray bytes = ScanTree::read(pair.item);
        // Bits of its own, which the kept copy behind the link does not have.
        QVERIFY(QFile::setPermissions(pair.item, QFile::ReadOwner | QFile::WriteOwner));
        const struct stat item = statOf(pair.item);
        const QString privatePath = pair.dir.path() + "/b/.veltrine-linking-0123456789abcdef";
        const QString method = RemovalJournal::methodName(TFileDeleter::replaceByHardLink);
        {
            RemovalJournal journal(pair.dir.path() + "/journal.jsonl");
            QVERIFY(journal.begin(method, 1));
            QVERIFY(journal.intent(0, method, pair.item, privatePath, item.st_size,
                qint64(item.st_mtim.tv_sec) * 1000000000, {}, pair.kept, item.st_dev, item.st_ino,
                int(item.st_mode & 07777)));
        }
        const auto link = [&pair](const QString &at) {
            return ::link(
                QFile::encodeName(pair.kept).constData(), QFile::encodeName(at).constData());
        };
        if (state == "untouched") {
            QCOMPARE(link(privatePath), 0);
        } else {
            QVERIFY(QFile::rename(pair.item, privatePath));
            QCOMPARE(link(pair.item), 0);
            if (state == "linked")
                QVERIFY(QFile::remove(privatePath));
            if (state == "saved") {
                const QString saved = ScanTree::write(pair.dir.path(), "b/x.bin.new", "saved");
                QCOMPARE(::rename(QFile::encodeName(saved).constData(),
                             QFile::encodeName(pair.item).constData()),
                    0);
            }
        }
        RemovalJournal journal(pair.dir.path() + "/journal.jsonl");
        QCOMPARE(journal.batches().value(0).restorableCount(), 1);
        QList<DeleteResult> restored;
        const bool whole = RemovalRestorer(journal).restore({}, restored);
        if (state == "saved") {
            QVERIFY(!restored.value(0).success);
            QCOMPARE(ScanTree::read(pair.item), QByteArray("saved"));
            QCOMPARE(ScanTree::read(privatePath), bytes);
            return;
        }
        QVERIFY(whole);
        QVERIFY2(restored.value(0).success, qPrintable(restored.value(0).reason));
        // The same file comes back where it still existed (a freed inode number may be reused).
        if (state != "linked")
            QCOMPARE(statOf(pair.item).st_ino, item.st_ino);
        QCOMPARE(statOf(pair.item).st_nlink, nlink_t(1));
        QCOMPARE(statOf(pair.item).st_mode, item.st_mode);
        QCOMPARE(statOf(pair.kept).st_nlink, nlink_t(1));
        QCOMPARE(ScanTree::read(pair.item), bytes);
        QCOMPARE(leftovers(pair.item), QStringList());
    }

    // The kept copy changed after the link was made: its old content is gone, and the
    // restore says so and changes nothing.
    void restoreRefusedWhenKeptChanged()
    {
        Pair pair(TFileDeleter::replaceBySymlink);
        QVERIFY(pair.run().value(0).success);
        ScanTree::write(pair.dir.path(), "a/x.bin", "rewritten");
        RemovalJournal journal(pair.dir.path() + "/journal.jsonl");
        QList<DeleteResult> restored;
        QVERIFY(RemovalRestorer(journal).restore({}, restored));
        QVERIFY(!restored.value(0).success);
        QVERIFY2(restored.value(0).reason.contains("has changed since"),
            qPrintable(restored.value(0).reason));
        QCOMPARE(QFile::symLinkTarget(pair.item), pair.kept);
        QCOMPARE(leftovers(pair.item), QStringList());
    }

private:
    QTemporaryDir m_home;
};

QTEST_GUILESS_MAIN(TestTImageDeleteWorker)
#include "tst_TImageDeleteWorker.moc"
