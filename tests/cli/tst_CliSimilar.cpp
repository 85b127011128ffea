// SPDX-License-Identifier: GPL-3.0-or-later
// The similar-picture options of the command line, run as a real process on pictures
// encoded here: one scene saved as JPEG, as a smaller JPEG, as PNG and stretched to a very
// different aspect ratio, plus an unrelated scene.
#include "CliRunner.h"
#include "ImageFixtures.h"
#include "ReportGroups.h"
#include "TestEnvironment.h"
#include "engine/ScanTree.h"

#include <opencv2/imgproc.hpp>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

// The scans' key cache goes to a temporary data folder, never the user's.
static TestEnvironment environment;

class TestCliSimilar : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        m_root = m_dir.path();
        const cv::Mat scene = fixtures::makeScene(640, 480, 11);
        const cv::Mat other = fixtures::makeScene(640, 480, 12);
        cv::Mat smaller;
        cv::resize(scene, smaller, cv::Size(480, 360), 0, 0, cv::INTER_AREA);
        // 1600 x 240 against 640 x 480: the ratios differ five times, beyond the default limit
        // of 4, while the perceptual hash (taken on a square reduction) barely changes.
        cv::Mat stretched;
        cv::resize(scene, stretched, cv::Size(1600, 240), 0, 0, cv::INTER_AREA);
        const std::vector<int> q92 {cv::IMWRITE_JPEG_QUALITY, 92};
        const std::vector<int> q85 {cv::IMWRITE_JPEG_QUALITY, 85};
        QVERIFY(fixtures::writeBytes(m_root + "/a.jpg", fixtures::encode(scene, ".jpg", q92)));
        QVERIFY(
            fixtures::writeBytes(m_root + "/a_small.jpg", fixtures::encode(smaller, ".jpg", q85)));
        QVERIFY(fixtures::writeBytes(m_root + "/a.png", fixtures::encode(scene, ".png")));
        QVERIFY(
            fixtures::writeBytes(m_root + "/a_wide.jpg", fixtures::encode(stretched, ".jpg", q92)));
        QVERIFY(fixtures::writeBytes(m_root + "/b.jpg", fixtures::encode(other, ".jpg", q92)));
    }

    void similarGroups_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QStringList>("expected");
        using L = QStringList;
        QTest::newRow("no similar search") << L {} << L {};
        QTest::newRow("robust by default, across formats")
            << L {"--similar"} << L {"similar:a.jpg,a.png,a_small.jpg"};
        QTest::newRow("robust, same type") << L {"--similar", "--same-type"}
                                           << L {"similar:a.jpg,a_small.jpg"};
        QTest::newRow("histogram with re-check")
            << L {"--algorithm", "histogram", "--same-type"} << L {"similar:a.jpg,a_small.jpg"};
        QTest::newRow("histogram pass mark 99")
            << L {"--algorithm", "histogram", "--threshold", "99"} << L {};
        QTest::newRow("threshold alone turns the search on")
            << L {"--threshold", "50"} << L {"similar:a.jpg,a.png,a_small.jpg"};
        QTest::newRow("phash") << L {"--algorithm", "phash", "--same-type"}
                               << L {"similar:a.jpg,a_small.jpg"};
        QTest::newRow("phash pass mark 99")
            << L {"--algorithm", "phash", "--threshold", "99"} << L {};
        QTest::newRow("phash any type: the PNG joins its JPEG")
            << L {"--algorithm", "phash", "--any-type"} << L {"similar:a.jpg,a.png,a_small.jpg"};
        QTest::newRow("phash any ratio: the stretched copy joins")
            << L {"--algorithm", "phash", "--any-ratio", "--no-features", "--same-type"}
            << L {"similar:a.jpg,a_small.jpg,a_wide.jpg"};
        QTest::newRow("both filters off") << L {"--algorithm", "phash", "--any-ratio", "--any-type",
            "--no-features"} << L {"similar:a.jpg,a.png,a_small.jpg,a_wide.jpg"};
    }
    void similarGroups()
    {
        QFETCH(QStringList, options);
        QFETCH(QStringList, expected);
        QTemporaryDir out;
        const QString project = out.path() + "/pictures.dupproj";
        const CliRun run
            = runCli(QStringList {"scan", "--json", "--select", "none", "--save", project} + options
                + QStringList {m_root});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(QJsonDocument::fromJson(run.out).object().value("scannedFiles").toInt(), 5);
        QCOMPARE(reportGroups(run.out, m_root, false), expected);
        // The saved project holds the same members, tagged, and no others.
        const QString text = QString::fromUtf8(ScanTree::read(project));
        const QStringList grouped = expected.join(',').remove("similar:").split(',');
        for (const QString &name : QDir(m_root).entryList(QDir::Files))
            QVERIFY2(text.contains(QRegularExpression(
                         QRegularExpression::escape(m_root + "/" + name) + "_simlar_\\d+<"))
                    == grouped.contains(name),
                qPrintable(name));
    }

    void textReport()
    {
        const CliRun run
            = runCli({"scan", "--algorithm", "phash", "--same-type", "--select", "none", m_root});
        QCOMPARE(run.exitCode, 0);
        QStringList lines = QString::fromUtf8(run.out).split('\n', Qt::SkipEmptyParts);
        lines.sort();
        QCOMPARE(lines.size(), 2);
        const QRegularExpression line("^" + QRegularExpression::escape(m_root)
            + "/(a\\.jpg|a_small\\.jpg)\t\\[similar (\\d+)%\\]$");
        QStringList names;
        for (const QString &text : std::as_const(lines)) {
            const QRegularExpressionMatch match = line.match(text);
            QVERIFY2(match.hasMatch(), qPrintable(text));
            QVERIFY(match.captured(2).toInt() <= 99);
            names.append(match.captured(1));
        }
        QCOMPARE(names, QStringList({"a.jpg", "a_small.jpg"}));
    }

private:
    QTemporaryDir m_dir;
    QString m_root;
};

QTEST_GUILESS_MAIN(TestCliSimilar)
#include "tst_CliSimilar.moc"
