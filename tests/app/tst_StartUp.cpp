// SPDX-License-Identifier: GPL-3.0-or-later
// Starts the real program on the offscreen platform with a private configuration
// folder and checks what a start and an orderly close leave on disk.
#include "LogText.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

class TestStartUp : public QObject
{
    Q_OBJECT
private:
    QTemporaryDir m_home;

    QString dataFolder() const
    {
        return m_home.filePath("config/Veltrine/Veltrine Duplicate Finder");
    }
    QString logText() const { return ::logText(dataFolder()); }

    void runOnce()
    {
        QProcess program;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("XDG_CONFIG_HOME", m_home.filePath("config"));
        env.insert("XDG_DATA_HOME", m_home.filePath("data"));
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.remove("VELTRINE_SENTRY_DSN");
        program.setProcessEnvironment(env);
        const int before = logText().count("[Main]: sentry SDK initialized");
        program.start(PROGRAM_PATH, {});
        QVERIFY(program.waitForStarted());
        // Terminated right after the start lines, possibly before the window exists.
        QTRY_VERIFY_WITH_TIMEOUT(logText().count("[Main]: sentry SDK initialized") > before, 30000);
        program.terminate();
        QVERIFY(program.waitForFinished(30000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
    }

private slots:
    void startWritesTheStartLinesAndFolders()
    {
        runOnce();
        QVERIFY(QDir(dataFolder() + "/sentrydb").exists());
        const QString log = logText();
        QVERIFY2(
            QRegularExpression(
                R"(^\[\d\d:\d\d:\d\d\.\d{3}\]:\[Main\]: The program is starting to run \[4\.5\.0\]\.{62}$)",
                QRegularExpression::MultilineOption)
                .match(log)
                .hasMatch(),
            qPrintable(log));
        QVERIFY(log.contains("]:[sentry]: INFO using database path"));
        QVERIFY(log.contains("]:[Main]: sentry SDK initialized successfully\n"));
        // An orderly close leaves no crash report behind.
        QVERIFY(QDir(dataFolder() + "/sentrydb/reports").entryList(QDir::Files).isEmpty());
    }

    void aSecondStartAppendsToTheSameDailyFile()
    {
        runOnce();
        QCOMPARE(logText().count("The program is starting to run"), 2);
    }
};

QTEST_GUILESS_MAIN(TestStartUp)
#include "tst_StartUp.moc"
