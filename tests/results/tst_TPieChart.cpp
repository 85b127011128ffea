// SPDX-License-Identifier: GPL-3.0-or-later
#include "TestEnvironment.h"
#include "results/TPieChart.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThreadPool>

static TestEnvironment environment;

// Category -> (files, bytes).
using Shares = QMap<int, QPair<int, qint64>>;

constexpr qint64 MiB = 1024 * 1024;

class tst_TPieChart : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        for (const char *copy : {"a", "b", "c"})
            makeFile(QStringLiteral("%1/photo.jpg").arg(copy), 10 * MiB);
        // A folder counts every file in it, as the folder comparison does: the hidden one
        // and the sub-folder's too.
        for (const char *folder : {"d1", "d2"}) {
            for (const char *name : {"1.txt", "2.mp3", "3.bin", ".hidden"})
                makeFile(QStringLiteral("%1/%2").arg(folder, name), MiB / 4);
            makeFile(QStringLiteral("%1/sub/deep.bin").arg(folder), 5 * MiB);
        }
        makeFile(QStringLiteral("s1.png"), 2000000);
        makeFile(QStringLiteral("s2.png"), 3000000);
        makeFile(QStringLiteral("x/report.pdf"), 1000);
        makeFile(QStringLiteral("y/report.pdf"), 1000);
        for (const char *copy : {"m1", "m2", "m3"})
            makeFile(QStringLiteral("%1/song.mp3").arg(copy), 500);
    }

    void categoryTotals_data()
    {
        QTest::addColumn<QList<QStringList>>("groups");
        QTest::addColumn<Shares>("expected");
        const QStringList pictures = {"a/photo.jpg", "b/photo.jpg", "c/photo.jpg"};
        const QStringList folders = {"d1", "d2"};
        const QStringList similar = {"s1.png_simlar_90", "s2.png_simlar_90"};
        const QStringList pdfs = {"x/report.pdf", "y/report.pdf"};
        const QStringList songs = {"m1/song.mp3", "m2/song.mp3", "m3/song.mp3"};
        QTest::newRow("copies of a picture")
            << QList<QStringList> {pictures} << Shares {{1, {3, 30 * MiB}}};
        QTest::newRow("copies of a folder")
            << QList<QStringList> {folders} << Shares {{6, {10, 12 * MiB}}};
        QTest::newRow("similar pictures")
            << QList<QStringList> {similar} << Shares {{1, {2, 5000000}}};
        QTest::newRow("a picture and pictures like it") << QList<QStringList> {
            QStringList {"a/photo.jpg"} + similar} << Shares {{1, {3, 10 * MiB + 5000000}}};
        QTest::newRow("deleted files")
            << QList<QStringList> {{"gone/1.txt", "gone/2.txt"}} << Shares {};
        QTest::newRow("several categories")
            << QList<QStringList> {pictures, folders, pdfs, songs, {"gone/1.txt", "gone/2.txt"}}
            << Shares {{1, {3, 30 * MiB}}, {6, {10, 12 * MiB}}, {2, {2, 2000}}, {3, {3, 1500}}};
    }
    void categoryTotals()
    {
        QFETCH(QList<QStringList>, groups);
        QFETCH(Shares, expected);
        TPieChart chart;
        QSignalSpy ready(&chart, &TPieChart::statsReady);
        chart.start(keyed(groups), nullptr, false);
        QVERIFY(ready.wait());

        Shares shares;
        int count = 0;
        qint64 bytes = 0;
        const auto stats = ready.at(0).at(0).value<FileCategoryStatsMap>();
        for (auto it = stats.cbegin(); it != stats.cend(); ++it) {
            shares.insert(it.key(), {it->count, it->size});
            count += it->count;
            bytes += it->size;
        }
        QCOMPARE(shares, expected);
        QCOMPARE(ready.at(0).at(1).toInt(), count);
        QCOMPARE(ready.at(0).at(2).toLongLong(), bytes);
    }

    void newerStartWins()
    {
        QHash<QString, QList<QString>> many;
        for (int i = 0; i < 20000; ++i)
            many.insert(QString::number(i), {path("a/photo.jpg"), path("b/photo.jpg")});
        TPieChart chart;
        QSignalSpy ready(&chart, &TPieChart::statsReady);
        chart.start(many, nullptr, false);
        QVERIFY(chart.isRunning());
        chart.start(keyed({{"x/report.pdf", "y/report.pdf"}}), nullptr, false);
        QVERIFY(ready.wait());
        // Let the first run end and anything it queued arrive.
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::sendPostedEvents();
        QCOMPARE(ready.count(), 1);
        QCOMPARE(ready.at(0).at(1).toInt(), 2);
        QCOMPARE(ready.at(0).at(2).toLongLong(), 2000);
    }

private:
    QString path(const QString &name) const { return m_dir.filePath(name); }
    void makeFile(const QString &name, qint64 size)
    {
        QDir().mkpath(QFileInfo(path(name)).absolutePath());
        QFile file(path(name));
        // Sparse: the sizes matter, not the bytes.
        if (!file.open(QIODevice::WriteOnly) || !file.resize(size))
            qFatal("cannot make %s", qPrintable(name));
    }
    QHash<QString, QList<QString>> keyed(const QList<QStringList> &groups) const
    {
        QHash<QString, QList<QString>> byKey;
        for (const QStringList &names : groups) {
            QStringList members;
            for (const QString &name : names)
                members.append(path(name));
            byKey.insert(members.first(), members);
        }
        return byKey;
    }
    QTemporaryDir m_dir;
};

QTEST_MAIN(tst_TPieChart)
#include "tst_TPieChart.moc"
