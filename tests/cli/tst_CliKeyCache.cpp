// SPDX-License-Identifier: GPL-3.0-or-later
#include "CliRunner.h"
#include "ReportGroups.h"
#include "TestEnvironment.h"
#include "engine/ContentKeyCache.h"
#include "engine/FileStamp.h"
#include "engine/ScanTree.h"

#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

// The scans' key cache goes to a temporary data folder, never the user's.
static TestEnvironment environment;

class TestCliKeyCache : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QStringList scanOf(const QString &root) const
    {
        return {"scan", "--json", "--select", "none", "--method", "full", root};
    }

private slots:
    void keyFollowsWriteToDirtyPage()
    {
        // The scans wait out the kernel's own write-back delay.
        qunsetenv(FileStamp::kSettleOverride);
        const QString root = m_dir.filePath("mapped");
        const QByteArray content = ScanTree::pattern(20000, 5);
        ScanTree::write(root, "a.bin", content);
        const QString b = ScanTree::write(root, "b.bin", QByteArray(content.size(), '\0'));
        const int fd = ::open(QFile::encodeName(b).constData(), O_RDWR);
        QVERIFY(fd >= 0);
        void *mapped
            = ::mmap(nullptr, size_t(content.size()), PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
        QVERIFY(mapped != MAP_FAILED);
        char *bytes = static_cast<char *>(mapped);
        std::memcpy(bytes, content.constData(), size_t(content.size()));
        // Older than the time stamps' step: only the dirty pages can hide the next write.
        QThread::msleep(2500);
        QCOMPARE(
            reportGroups(runCli(scanOf(root)).out, root, false), QStringList {"files:a.bin,b.bin"});
        const auto changed = [&b] {
            struct stat info
            {
            };
            ::stat(QFile::encodeName(b).constData(), &info);
            return qint64(info.st_ctim.tv_sec) * 1000000000LL + info.st_ctim.tv_nsec;
        };
        const qint64 before = changed();
        // The page is dirty already: the change moves no time.
        bytes[100] = char(bytes[100] ^ 1);
        const bool unmoved = changed() == before;
        const QStringList cached = reportGroups(runCli(scanOf(root)).out, root, false);
        const QStringList reference
            = reportGroups(runCli(scanOf(root) + QStringList {"--no-cache"}).out, root, false);
        ::munmap(mapped, size_t(content.size()));
        ::close(fd);
        if (!unmoved)
            QSKIP("the page was written back between the two writes");
        QCOMPARE(reference, QStringList());
        QCOMPARE(cached, reference);
    }
};

QTEST_GUILESS_MAIN(TestCliKeyCache)
#include "tst_CliKeyCache.moc"
