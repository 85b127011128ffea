// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/TFileDeleter.h"
#include "platform/FolderReader.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/LinuxTrash.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

using platform::LinuxPlatform;

namespace {

// A file by its exact bytes (QFile cannot reach names that are not UTF-8).
bool writeFile(const QByteArray &path)
{
    const int fd = ::open(path.constData(), O_CREAT | O_WRONLY | O_TRUNC, 0644);
    return fd >= 0 && ::write(fd, "x", 1) == 1 && ::close(fd) == 0;
}

QList<QByteArray> bytesOf(const std::vector<std::string> &paths)
{
    QList<QByteArray> out;
    for (const std::string &path : paths)
        out.append(QByteArray::fromStdString(path));
    return out;
}

} // namespace

class TestLinuxPlatform : public QObject
{
    Q_OBJECT
private slots:
    void parseMountsDecodesEscapes()
    {
        const auto mounts = LinuxPlatform::parseMounts("/dev/sda1 / ext4 rw,relatime 0 0\n"
                                                       "/dev/sdb1 /mnt/my\\040photos ext4 rw 0 0\n"
                                                       "tmpfs /run tmpfs rw 0 0\n"
                                                       "broken-line\n");
        QCOMPARE(mounts.size(), size_t(3));
        QCOMPARE(QString::fromStdString(mounts[1].mountPoint), "/mnt/my photos");
        QCOMPARE(QString::fromStdString(mounts[2].fsType), "tmpfs");
    }

    void executableDirIsThisBinarysFolder()
    {
        QCOMPARE(QString::fromStdString(platform::current().executableDir()),
            QFileInfo(QCoreApplication::applicationFilePath()).absolutePath());
    }

    void diskRootIsTheLongestMountPrefix()
    {
        const auto &p = platform::current();
        QCOMPARE(QString::fromStdString(p.diskRootOf("/")), "/");
        // /proc is its own mount; a sibling that only shares the prefix is not inside it.
        QCOMPARE(QString::fromStdString(p.diskRootOf("/proc/self")), "/proc");
        QCOMPARE(QString::fromStdString(p.diskRootOf("/procfoo")), "/");
    }

    void fixedDisksAreBlockDevicesOnly()
    {
        QVERIFY(!LinuxPlatform::isFixedBlockDevice("/dev/null"));
        QVERIFY(!LinuxPlatform::isFixedBlockDevice("/nonexistent"));
        for (const std::string &root : platform::current().fixedDiskRoots())
            QVERIFY(QFileInfo(QString::fromStdString(root)).isDir());
    }

    // An info file's Path= that would cut the path short, or that has no byte where an
    // escape stands, is refused rather than read as some other path.
    // The walk trusts the reader's kinds: a link listed as a file would be followed
    // into another tree, a pipe read as a file would block the scan.
    void folderReaderKinds()
    {
        using platform::EntryInfo;
        QTemporaryDir dir;
        const QByteArray root = QFile::encodeName(dir.path());
        QVERIFY(writeFile(root + "/file"));
        QVERIFY(writeFile(root + "/name\xff"));
        QVERIFY(::mkdir(root + "/folder", 0755) == 0);
        QVERIFY(::symlink("file", root + "/link") == 0);
        QVERIFY(::mkfifo(root + "/pipe", 0644) == 0);
        QVERIFY(::link(root + "/file", root + "/second") == 0);

        platform::FolderReader reader(root.toStdString());
        QCOMPARE(reader.error(), 0);
        QMap<QByteArray, int> kinds;
        EntryInfo info;
        while (reader.next()) {
            const QByteArray name(reader.name(), qsizetype(reader.nameLength()));
            QCOMPARE(reader.stat(info), 0);
            const EntryInfo::Kind listed = reader.listedKind();
            QVERIFY2(listed == EntryInfo::Unknown || listed == info.kind, name);
            kinds[name] = info.kind;
            if (name == "file") {
                QCOMPARE(info.size, 1);
                QCOMPARE(info.links, 2ULL);
                QVERIFY(reader.mayRead(platform::ReadAccess()));
            }
        }
        const QMap<QByteArray, int> expected {{"file", EntryInfo::File},
            {"name\xff", EntryInfo::File}, {"folder", EntryInfo::Folder}, {"link", EntryInfo::Link},
            {"pipe", EntryInfo::Other}, {"second", EntryInfo::File}};
        QCOMPARE(kinds, expected);

        QVERIFY(platform::entryInfoOf((root + "/link").toStdString(), true, info) == 0);
        QCOMPARE(info.kind, EntryInfo::File);
        int error = 0;
        QCOMPARE(platform::realPathOf((root + "/link").toStdString(), error),
            QFileInfo(dir.filePath("file")).canonicalFilePath().toStdString());

        platform::FolderReader missing((root + "/gone").toStdString());
        QVERIFY(platform::isNotFoundError(missing.error()));
        QVERIFY(!missing.next());
    }

    void percentDecode_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("escapes") << QByteArray("/a%20b/caf%c3%A9") << true
                                 << QByteArray("/a b/caf\xc3\xa9");
        QTest::newRow("NUL") << QByteArray("/a/x%00/y") << false << QByteArray();
        QTest::newRow("not hexadecimal") << QByteArray("/a/%zz") << false << QByteArray();
        QTest::newRow("cut short") << QByteArray("/a/%4") << false << QByteArray();
    }
    void percentDecode()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, valid);
        QFETCH(QByteArray, bytes);
        std::string decoded;
        QCOMPARE(platform::LinuxTrash::percentDecode(text.toStdString(), decoded), valid);
        if (valid)
            QCOMPARE(QByteArray::fromStdString(decoded), bytes);
    }

    // Two copies go to the trash under one name: a name too long for its info file is cut
    // on a character boundary, sparing a short extension; the info file keeps the whole
    // path, the copies are found newest first and come back.
    void trashNames_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("recorded"); // the name trashed as; empty: its own
        QTest::addColumn<QList<QByteArray>>("expected");
        const QByteArray e = "\xc3\xa9";
        const QByteArray longName = e.repeated(125) + "x.jpg";
        const QByteArray longExtension = QByteArray(200, 'x') + "." + QByteArray(54, 'y');
        QTest::newRow("plain") << QByteArray("photo.jpg") << QByteArray()
                               << QList<QByteArray> {"photo.jpg", "photo.jpg.2"};
        QTest::newRow("255 bytes, extension kept")
            << longName << QByteArray()
            << QList<QByteArray> {e.repeated(120) + ".jpg", e.repeated(119) + ".jpg.2"};
        QTest::newRow("255 bytes, long extension cut")
            << longExtension << QByteArray()
            << QList<QByteArray> {longExtension.left(245), longExtension.left(243) + ".2"};
        QTest::newRow("recorded name") << QByteArray("tmp-1234") << QByteArray("kept name.txt")
                                       << QList<QByteArray> {"kept name.txt", "kept name.txt.2"};
        QTest::newRow("recorded 255-byte name")
            << QByteArray("tmp-1234") << longName
            << QList<QByteArray> {e.repeated(120) + ".jpg", e.repeated(119) + ".jpg.2"};
    }
    void trashNames()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, recorded);
        QFETCH(QList<QByteArray>, expected);
        QTemporaryDir home;
        QTemporaryDir items;
        const QByteArray trashFolder = QFile::encodeName(home.path()) + "/Trash";
        const QByteArray item = QFile::encodeName(items.path()) + "/" + name;
        const QByteArray original
            = recorded.isEmpty() ? item : QFile::encodeName(items.path()) + "/" + recorded;
        const platform::LinuxTrash trash(trashFolder.toStdString());
        std::vector<std::string> trashed;
        for (const QByteArray &want : expected) {
            QVERIFY(writeFile(item));
            std::string place;
            QCOMPARE(trash.moveToTrash(item.toStdString(), place,
                         recorded.isEmpty() ? std::string() : original.toStdString()),
                0);
            QCOMPARE(QByteArray::fromStdString(place), trashFolder + "/files/" + want);
            QFile info(QFile::decodeName(trashFolder + "/info/" + want + ".trashinfo"));
            QVERIFY(info.open(QIODevice::ReadOnly));
            QVERIFY(info.readAll().contains("\nPath=" + original.toPercentEncoding("/") + "\n"));
            trashed.insert(trashed.begin(), place);
        }
        QCOMPARE(bytesOf(trash.trashedCopiesOf(original.toStdString())), bytesOf(trashed));
        QCOMPARE(trash.restore(trashed.front(), original.toStdString()), 0);
        QVERIFY(::access(original.constData(), F_OK) == 0);
        QCOMPARE(bytesOf(trash.trashedCopiesOf(original.toStdString())), bytesOf({trashed.back()}));
    }

    // A trash that cannot be made is named, down to the reason a removal gives.
    void unmakeableTrash_data()
    {
        QTest::addColumn<QString>("dataHome");
        QTest::addColumn<QString>("blocker"); // a file where a folder belongs
        QTest::addColumn<QString>("failed");
        QTest::newRow("file where the trash belongs") << "data"
                                                      << "data/Trash"
                                                      << "data/Trash";
        QTest::newRow("file where files/ belongs") << "data"
                                                   << "data/Trash/files"
                                                   << "data/Trash/files";
        // Permission bits do not stop the superuser.
        if (::geteuid() != 0)
            QTest::newRow("read-only folder above") << "locked/data" << QString() << "locked/data";
    }
    void unmakeableTrash()
    {
        QFETCH(QString, dataHome);
        QFETCH(QString, blocker);
        QFETCH(QString, failed);
        QTemporaryDir dir;
        const QString base = dir.path();
        QVERIFY(QDir().mkpath(base + "/locked"));
        QFile::setPermissions(base + "/locked", QFileDevice::ReadOwner | QFileDevice::ExeOwner);
        if (!blocker.isEmpty()) {
            QVERIFY(QDir().mkpath(QFileInfo(base + "/" + blocker).absolutePath()));
            QVERIFY(writeFile(QFile::encodeName(base + "/" + blocker)));
        }
        const QString item = base + "/item.txt";
        QVERIFY(writeFile(QFile::encodeName(item)));
        qputenv("XDG_DATA_HOME", QFile::encodeName(base + "/" + dataHome));
        std::string trashed;
        std::string folder;
        const int error = platform::current().moveToTrash(
            QFile::encodeName(item).toStdString(), trashed, std::string(), folder);
        const DeleteResult result = TFileDeleter::deleteOne(item, TFileDeleter::moveToTrash, {});
        qunsetenv("XDG_DATA_HOME");
        QFile::setPermissions(base + "/locked",
            QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        QVERIFY(error != 0);
        QCOMPARE(QString::fromStdString(folder), base + "/" + failed);
        QVERIFY2(
            result.reason.startsWith("cannot make the trash folder " + base + "/" + failed + ": "),
            qPrintable(result.reason));
        QVERIFY(QFile::exists(item));
    }

    // An item on another file system than the home trash goes to that file system's own
    // trash folder, recorded relative to its top folder, and comes back from there.
    void trashOnAnotherMount()
    {
        QTemporaryDir home;
        QTemporaryDir other(QStringLiteral("/dev/shm/veltrine-trash-XXXXXX"));
        struct stat a
        {
        }, b {};
        if (!other.isValid() || ::stat(QFile::encodeName(home.path()), &a) != 0
            || ::stat("/dev/shm", &b) != 0 || a.st_dev == b.st_dev)
            QSKIP("no second file system to trash on");
        const std::string item = QFile::encodeName(other.path()).toStdString() + "/photo.jpg";
        QFile file(QString::fromStdString(item));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("jpeg");
        file.close();
        const platform::LinuxTrash trash(QFile::encodeName(home.path()).toStdString() + "/Trash");
        std::string trashed;
        QCOMPARE(trash.moveToTrash(item, trashed), 0);
        const std::string topTrash = "/dev/shm/.Trash-" + std::to_string(::getuid());
        QVERIFY(trashed.rfind(topTrash + "/files/", 0) == 0);
        QFile info(QString::fromStdString(
            topTrash + "/info/" + trashed.substr(trashed.rfind('/') + 1) + ".trashinfo"));
        QVERIFY(info.open(QIODevice::ReadOnly));
        const QByteArray relative = QFile::encodeName(other.path()).mid(9) + "/photo.jpg";
        QVERIFY2(info.readAll().contains("Path=" + relative + "\n"), relative.constData());
        info.close();
        QCOMPARE(trash.restore(trashed, item), 0);
        QVERIFY(QFileInfo::exists(QString::fromStdString(item)));
        QVERIFY(!info.exists());
    }
};

QTEST_GUILESS_MAIN(TestLinuxPlatform)
#include "tst_LinuxPlatform.moc"
