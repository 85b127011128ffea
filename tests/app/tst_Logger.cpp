// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLogger.h"

#include <QDate>
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
        QTest::newRow("line breaks") << "[A]: one\ntwo\r\nthree"
                                     << "[A]: one two three";
        QTest::newRow("tabs and runs") << "\t[A]:\t a   b \t"
                                       << "[A]: a b";
        QTest::newRow("unicode") << "[A]: Bilder  \u00e9t\u00e9 \u5199\u771f"
                                 << "[A]: Bilder \u00e9t\u00e9 \u5199\u771f";
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
                splog_d(QStringLiteral("[Thread]: sender %1 line %2 %3")
                            .arg(sender)
                            .arg(i)
                            .arg(QString(40, 'x')));
        });
        const QStringList lines = logLines().mid(before);
        QCOMPARE(lines.size(), 1600);
        const QRegularExpression shape(R"(^\[[\d:.]+\]:\[Thread\]: sender \d line \d+ x{40}$)");
        for (const QString &line : lines)
            QVERIFY2(shape.match(line).hasMatch(), qPrintable(line));
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
