// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLogger.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtConcurrent>
#include <QtTest>

class TestLogger : public QObject
{
    Q_OBJECT
private:
    QTemporaryDir m_base;

    QStringList logLines() const
    {
        QFile file(
            m_base.filePath("Log/log_" + QDate::currentDate().toString("yyyy-MM-dd") + ".log"));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    }

private slots:
    void messagesBeforeInitAreDropped()
    {
        splog_d("[Test]: nobody hears this");
        QVERIFY(!QFile::exists(m_base.filePath("Log")));
    }

    void initCreatesTheDailyFile()
    {
        QVERIFY(initLogger(m_base.path()));
        splog_d("[Main]: sentry SDK initialized successfully");
        const QStringList lines = logLines();
        QCOMPARE(lines.size(), 1);
        // Written at once: no flush or shutdown needed before reading.
        QVERIFY2(QRegularExpression(
                     R"(^\[\d\d:\d\d:\d\d\.\d{3}\]:\[Main\]: sentry SDK initialized successfully$)")
                     .match(lines.first())
                     .hasMatch(),
            qPrintable(lines.first()));
    }

    void whiteSpaceIsCollapsed_data()
    {
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("written");
        QTest::newRow("line breaks") << "[A]: one\ntwo\r\nthree" << QString("[A]: one two three");
        QTest::newRow("tabs and runs") << "\t[A]:\t a   b \t" << QString("[A]: a b");
        QTest::newRow("unicode") << "[A]: Bilder  \u00e9t\u00e9 \u5199\u771f"
                                 << QString("[A]: Bilder \u00e9t\u00e9 \u5199\u771f");
    }
    void whiteSpaceIsCollapsed()
    {
        QFETCH(QString, message);
        QFETCH(QString, written);
        splog_d(message);
        QCOMPARE(logLines().last().section("]:", 1), written);
    }

    void linesFromManyThreadsNeverInterleave()
    {
        const int before = logLines().size();
        QList<int> senders(8);
        std::iota(senders.begin(), senders.end(), 0);
        QtConcurrent::blockingMap(senders, [](int sender) {
            for (int i = 0; i < 200; ++i)
                splog_d(QString::asprintf(
                    "[Thread]: sender %d line %d %s", sender, i, QByteArray(40, 'x').constData()));
        });
        const QStringList lines = logLines().mid(before);
        QCOMPARE(lines.size(), 1600);
        const QRegularExpression shape(R"(^\[[\d:.]+\]:\[Thread\]: sender \d line \d+ x{40}$)");
        for (const QString &line : lines)
            QVERIFY2(shape.match(line).hasMatch(), qPrintable(line));
    }

    void repeatedMessagesAreCounted_data()
    {
        QTest::addColumn<int>("sent");
        QTest::newRow("a few") << 5;
        QTest::newRow("exactly the limit") << kRepeatedInFull;
        QTest::newRow("beyond the limit") << kRepeatedInFull + 7;
    }
    void repeatedMessagesAreCounted()
    {
        QFETCH(int, sent);
        splog_flush_repeated();
        const int before = logLines().size();
        const QString kind = QStringLiteral("[Test]: Cannot read %1").arg(sent);
        for (int i = 0; i < sent; ++i)
            splog_repeated(kind.toUtf8().constData(), kind + QStringLiteral(" file %1").arg(i));
        const int inFull = std::min(sent, kRepeatedInFull);
        QStringList lines = logLines().mid(before);
        QCOMPARE(lines.size(), inFull);
        QVERIFY(lines.last().endsWith(kind + QStringLiteral(" file %1").arg(inFull - 1)));
        splog_flush_repeated();
        splog_flush_repeated(); // counts start afresh: nothing more to say
        lines = logLines().mid(before + inFull);
        if (sent > kRepeatedInFull) {
            QCOMPARE(lines.size(), 1);
            QCOMPARE(lines.first().section("]:", 1),
                kind
                    + QStringLiteral(": %1 more like this, not logged one by one.")
                          .arg(sent - kRepeatedInFull));
        } else {
            QVERIFY(lines.isEmpty());
        }
    }

    // Daily files more than 30 days old (by the date in their name) go at start; today's,
    // younger ones and files of other names stay.
    void oldDailyFilesAreRemoved_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("kept");
        const auto daily = [](int daysAgo) {
            return "log_" + QDate::currentDate().addDays(-daysAgo).toString("yyyy-MM-dd") + ".log";
        };
        QTest::newRow("31 days ago") << daily(31) << false;
        QTest::newRow("a year ago") << daily(365) << false;
        QTest::newRow("30 days ago") << daily(30) << true;
        QTest::newRow("5 days ago") << daily(5) << true;
        QTest::newRow("unrelated file") << "notes.txt" << true;
        QTest::newRow("old date, other name") << daily(400) + ".bak" << true;
        QTest::newRow("not a date") << "log_2001-02-30.log" << true;
    }
    void oldDailyFilesAreRemoved()
    {
        QFETCH(QString, name);
        QFETCH(bool, kept);
        QTemporaryDir base;
        QVERIFY(QDir(base.path()).mkpath("Log"));
        QFile file(base.filePath("Log/" + name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QVERIFY(initLogger(base.path()));
        shutdownLogger();
        QCOMPARE(QFile::exists(file.fileName()), kept);
    }

    void unwritableFolderLeavesNoLogger()
    {
        shutdownLogger();
        QFile blocker(m_base.filePath("file"));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        // A regular file where the folder should be: the daily sink cannot open.
        QVERIFY(!initLogger(m_base.filePath("file")));
        QVERIFY(!loggerInstance());
        splog_d("[Test]: dropped without a crash");
    }
};

QTEST_GUILESS_MAIN(TestLogger)
#include "tst_Logger.moc"
