// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/LinuxTrash.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

using platform::LinuxPlatform;

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
