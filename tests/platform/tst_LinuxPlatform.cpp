// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LinuxPlatform.h"

#include <QCoreApplication>
#include <QFileInfo>
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
        QCOMPARE(QString::fromStdString(mounts[1].mountPoint), QStringLiteral("/mnt/my photos"));
        QCOMPARE(QString::fromStdString(mounts[2].fsType), QStringLiteral("tmpfs"));
    }

    void executableDirIsThisBinarysFolder()
    {
        QCOMPARE(QString::fromStdString(platform::current().executableDir()),
            QFileInfo(QCoreApplication::applicationFilePath()).absolutePath());
    }

    void diskRootIsTheLongestMountPrefix()
    {
        const auto &p = platform::current();
        QCOMPARE(QString::fromStdString(p.diskRootOf("/")), QStringLiteral("/"));
        // /proc is its own mount; a sibling that only shares the prefix is not inside it.
        QCOMPARE(QString::fromStdString(p.diskRootOf("/proc/self")), QStringLiteral("/proc"));
        QCOMPARE(QString::fromStdString(p.diskRootOf("/procfoo")), QStringLiteral("/"));
    }

    void fixedDisksAreBlockDevicesOnly()
    {
        QVERIFY(!LinuxPlatform::isFixedBlockDevice("/dev/null"));
        QVERIFY(!LinuxPlatform::isFixedBlockDevice("/nonexistent"));
        for (const std::string &root : platform::current().fixedDiskRoots())
            QVERIFY(QFileInfo(QString::fromStdString(root)).isDir());
    }
};

QTEST_GUILESS_MAIN(TestLinuxPlatform)
#include "tst_LinuxPlatform.moc"
