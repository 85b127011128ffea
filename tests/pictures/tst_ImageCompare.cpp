// SPDX-License-Identifier: GPL-3.0-or-later
// Similar-picture grouping: the two fast measures, the filters, the transitive groups, the
// ORB re-check, the entries written into the result store, and cancelling a run.

#include "ImageFixtures.h"
#include "LogText.h"
#include "TestEnvironment.h"
#include "app/TLogger.h"
#include "engine/GroupMember.h"
#include "engine/TFileData.h"
#include "pictures/ImageCompareThread.h"

#include <functional>
#include <numeric>

#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

static TestEnvironment environment;

class tst_ImageCompare : public QObject
{
    Q_OBJECT
private:
    QTemporaryDir m_dir;
    QTemporaryDir m_logDir;

    static QJsonObject config(int algorithm, bool features = false, bool sameType = true,
        bool ratio = true, int limit = 4)
    {
        return QJsonObject {{"SimilarityValue", 55}, {"FeaturesValue", 50},
            {"selectedSimilar", false}, {"selectionHint", 2}, {"algorithmHint", algorithm},
            {"isAddFeatures", features}, {"isImageType", sameType}, {"isImageSize", ratio},
            {"imageMinSize", limit}};
    }
    QString write(const QString &name, const cv::Mat &mat, std::vector<int> params = {})
    {
        const QString path = m_dir.filePath(name);
        if (!cv::imwrite(QFile::encodeName(path).toStdString(), mat, params))
            return {};
        return path;
    }
    // Loads the given files through the thread's own loading stage.
    static QList<ImageData> load(ImageCompareThread &thread, const QStringList &paths)
    {
        thread.setImagePaths(paths);
        QList<ImageData> images;
        thread.loadImages(images);
        return images;
    }
    // One run of the thread over paths to its end; the arguments of its one finished signal.
    static QVariantList run(ImageCompareThread &thread, const QStringList &paths)
    {
        QSignalSpy finished(&thread, &ImageCompareThread::finished);
        thread.setImagePaths(paths);
        thread.start();
        return thread.wait(120000) && finished.count() == 1 ? finished.first() : QVariantList();
    }
    // The scene with a small red patch: similar to it, never equal.
    static cv::Mat touched(const cv::Mat &scene)
    {
        cv::Mat mat = scene.clone();
        cv::rectangle(mat, cv::Point(10, 10), cv::Point(40, 30), cv::Scalar(0, 0, 255), cv::FILLED);
        return mat;
    }
    static ImageData hashed(const QString &name, quint64 bits)
    {
        ImageData d;
        d.path = name;
        d.fileType = "jpg";
        d.width = 400;
        d.height = 300;
        d.hashBits = bits;
        d.hash = cv::Mat(1, 8, CV_8UC1);
        std::memcpy(d.hash.ptr(), &bits, 8);
        return d;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        QVERIFY(initLogger(m_logDir.path()));
    }
    void cleanupTestCase() { shutdownLogger(); }
    void init()
    {
        TFileData::instance()->clear();
        // Every case starts with fresh counts of the held-back log lines.
        splog_flush_repeated();
    }

    void identicalPictures_data()
    {
        QTest::addColumn<int>("algorithm");
        QTest::addColumn<QString>("nameA");
        QTest::addColumn<QString>("nameB");
        QTest::newRow("histogram") << 1 << "same_a.png"
                                   << "same_b.png";
        QTest::newRow("phash") << 2 << "same_a.png"
                               << "same_b.png";
        // One format under three spellings is one type to the same-type rule.
        QTest::newRow("phash, .jpg and .JPEG") << 2 << "same_a.jpg"
                                               << "same_b.JPEG";
        QTest::newRow("phash, .jpe and .jpeg") << 2 << "same_a.jpe"
                                               << "same_b.jpeg";
    }
    void identicalPictures()
    {
        QFETCH(int, algorithm);
        QFETCH(QString, nameA);
        QFETCH(QString, nameB);
        const cv::Mat scene = fixtures::makeScene(300, 200, 11);
        const QString a = write(nameA, scene);
        const QString b = write(nameB, scene);
        ImageCompareThread thread;
        thread.applyConfig(config(algorithm));
        QList<ImageData> images = load(thread, {a, b});
        QList<QList<ImageData>> groups;
        thread.hashCompare(images, groups);
        QCOMPARE(groups.size(), 1);
        QCOMPARE(groups[0].size(), 2);
        // Never shown as 100 %: the histogram's 1.0 is stored as 99, the hash's 0.82 as 81.
        QCOMPARE(groups[0][0].similarity, algorithm == 1 ? 99 : 81);
    }

    // Copies as a photo library holds them; the robust measure must find each one. The
    // text's histogram (with its re-check and same-type rule) misses the mirrored, grey and
    // re-encoded ones; on these drawn scenes it still finds the crops.
    void robustFindsEditedCopies_data()
    {
        QTest::addColumn<QString>("copy");
        QTest::addColumn<bool>("histogramFinds");
        QTest::newRow("mirrored") << "mirrored" << false;
        QTest::newRow("cropped 12 % a side") << "cropped" << true;
        QTest::newRow("turned 2 degrees, straightened") << "rotated" << true;
        QTest::newRow("grey") << "grey" << false;
        QTest::newRow("PNG") << "png" << false;
        QTest::newRow("HEIC with a thumbnail") << "heic" << false;
    }
    void robustFindsEditedCopies()
    {
        QFETCH(QString, copy);
        QFETCH(bool, histogramFinds);
        const cv::Mat scene = fixtures::makeScene(1200, 900, 31);
        const QString original
            = write(copy + "_original.jpg", scene, {cv::IMWRITE_JPEG_QUALITY, 92});
        cv::Mat edited;
        QString name = copy + "_copy.jpg";
        if (copy == "mirrored") {
            cv::flip(scene, edited, 1);
        } else if (copy == "cropped") {
            // Trimmed unevenly: 8 % off the left, 16 % off the right, 12 % top and bottom.
            edited = scene(cv::Rect(96, 108, 1200 - 96 - 192, 900 - 216)).clone();
        } else if (copy == "rotated") {
            const cv::Mat turn = cv::getRotationMatrix2D(cv::Point2f(600, 450), 2.0, 1.0);
            cv::Mat turned;
            cv::warpAffine(scene, turned, turn, scene.size(), cv::INTER_LINEAR);
            edited = turned(cv::Rect(40, 40, 1120, 820)).clone();
        } else if (copy == "grey") {
            cv::cvtColor(scene, edited, cv::COLOR_BGR2GRAY);
        } else if (copy == "png") {
            edited = scene;
            name = copy + "_copy.png";
        }
        QString path;
        if (copy == "heic") {
            path = m_dir.filePath(copy + "_copy.heic");
            QVERIFY(fixtures::writeHeic(path, scene, 320));
        } else {
            path = write(name, edited, {cv::IMWRITE_JPEG_QUALITY, 85});
        }
        QVERIFY(!original.isEmpty() && !path.isEmpty());

        ImageCompareThread robust;
        robust.applyConfig(config(3, false, false));
        QList<ImageData> images = load(robust, {original, path});
        QCOMPARE(images.size(), 2);
        QList<QList<ImageData>> groups;
        robust.robustCompare(images, groups);
        QCOMPARE(groups.size(), 1);
        QCOMPARE(groups[0].size(), 2);
        const ImageData &joined = groups[0][0].path == path ? groups[0][0] : groups[0][1];
        QVERIFY2(joined.reason.startsWith("robust, distance "), qPrintable(joined.reason));
        if (copy == "mirrored")
            QVERIFY2(joined.reason.contains("mirrored"), qPrintable(joined.reason));

        ImageCompareThread histogram;
        histogram.applyConfig(config(1, true, true));
        images = load(histogram, {original, path});
        groups.clear();
        histogram.hashCompare(images, groups);
        histogram.orbFeatureMatch(groups);
        QCOMPARE(!groups.isEmpty(), histogramFinds);
    }

    // Two shots of one subject share colours, layout and part of their content; they are
    // different pictures, and neither may be offered for removal as a copy of the other.
    void robustKeepsLookAlikesApart()
    {
        const cv::Mat first = fixtures::makeScene(1200, 900, 41);
        // The second shot, taken from further left: the same things in another
        // perspective, and two of them gone.
        const std::vector<cv::Point2f> from {{0, 0}, {1200, 0}, {1200, 900}, {0, 900}};
        const std::vector<cv::Point2f> to {{0, 120}, {1200, 0}, {1200, 900}, {0, 780}};
        cv::Mat second;
        cv::warpPerspective(first, second, cv::getPerspectiveTransform(from, to), first.size(),
            cv::INTER_LINEAR, cv::BORDER_REPLICATE);
        cv::rectangle(second, cv::Rect(100, 200, 300, 250), cv::Scalar(40, 90, 160), cv::FILLED);
        cv::circle(second, cv::Point(900, 600), 140, cv::Scalar(200, 180, 60), cv::FILLED);
        const QString a = write("shot_1.jpg", first);
        const QString b = write("shot_2.jpg", second);
        ImageCompareThread robust;
        robust.applyConfig(config(3, false, false));
        QList<ImageData> images = load(robust, {a, b});
        QList<QList<ImageData>> groups;
        robust.robustCompare(images, groups);
        QVERIFY(groups.isEmpty());
    }

    void measureChoice_data()
    {
        QTest::addColumn<int>("hint");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("measure");
        QTest::newRow("smart small") << 0 << 3 << int(ImageCompareThread::MeasureHistogram);
        QTest::newRow("smart above 10000") << 0 << 10001 << int(ImageCompareThread::MeasurePHash);
        QTest::newRow("histogram forced")
            << 1 << 10001 << int(ImageCompareThread::MeasureHistogram);
        QTest::newRow("phash forced") << 2 << 3 << int(ImageCompareThread::MeasurePHash);
        QTest::newRow("robust") << 3 << 3 << int(ImageCompareThread::MeasureRobust);
    }
    void measureChoice()
    {
        QFETCH(int, hint);
        QFETCH(int, count);
        QFETCH(int, measure);
        ImageCompareThread thread;
        thread.applyConfig(config(hint));
        // Files that do not exist are cheap: the choice counts them, then they leave the run.
        QStringList paths;
        for (int i = 0; i < count; ++i)
            paths << m_dir.filePath(QStringLiteral("missing_%1.svg").arg(i));
        const QList<ImageData> images = load(thread, paths);
        QVERIFY(images.isEmpty());
        QCOMPARE(int(thread.measure()), measure);
    }

    void aspectRatio_data()
    {
        QTest::addColumn<int>("wa");
        QTest::addColumn<int>("ha");
        QTest::addColumn<int>("configuredLimit");
        QTest::addColumn<bool>("compared");
        QTest::newRow("4:1 against 1:1, limit 4") << 4000 << 1000 << 4 << true;
        QTest::newRow("5:1 against 1:1, limit 4") << 5000 << 1000 << 4 << false;
        QTest::newRow("11 behaves as 4, inside") << 4000 << 1000 << 11 << true;
        QTest::newRow("11 behaves as 4, outside") << 5000 << 1000 << 11 << false;
        QTest::newRow("1:4 against 1:1") << 1000 << 4000 << 4 << true;
        QTest::newRow("zero height") << 1000 << 0 << 4 << false;
        QTest::newRow("limit 2") << 3000 << 1000 << 2 << false;
    }
    void aspectRatio()
    {
        QFETCH(int, wa);
        QFETCH(int, ha);
        QFETCH(int, configuredLimit);
        QFETCH(bool, compared);
        ImageCompareThread thread;
        thread.applyConfig(config(2, false, true, true, configuredLimit));
        load(thread, {});
        // Two pictures with equal hashes: only the ratio filter can keep them apart.
        ImageData a = hashed("a.jpg", 0x0123456789abcdefULL);
        ImageData b = hashed("b.jpg", 0x0123456789abcdefULL);
        a.width = wa;
        a.height = ha;
        b.width = 1000;
        b.height = 1000;
        QList<ImageData> images {a, b};
        QList<QList<ImageData>> groups;
        thread.hashCompare(images, groups);
        QCOMPARE(groups.size(), compared ? 1 : 0);
    }

    // Many pictures with random hashes around a few centres, random types, sizes and
    // earlier entries: the groups (joined through members, so transitive), their order and
    // the similarity written into each member must be those of the plain definition, every
    // pair tested in index order with every filter.
    void randomHashesMatchPlainDefinition_data()
    {
        QTest::addColumn<int>("threshold");
        QTest::addColumn<bool>("sameType");
        QTest::addColumn<bool>("ratio");
        QTest::addColumn<int>("seed");
        QTest::newRow("defaults") << 55 << true << true << 1;
        QTest::newRow("strict, no filters") << 80 << false << false << 2;
        QTest::newRow("loose, type filter") << 35 << true << false << 3;
        QTest::newRow("pass mark 0 links every pair") << 0 << false << false << 4;
        QTest::newRow("pass mark 100 links nothing") << 100 << true << true << 5;
    }
    void randomHashesMatchPlainDefinition()
    {
        QFETCH(int, threshold);
        QFETCH(bool, sameType);
        QFETCH(bool, ratio);
        QFETCH(int, seed);
        QJsonObject settings = config(2, false, sameType, ratio);
        settings.insert("SimilarityValue", threshold);
        ImageCompareThread thread;
        thread.applyConfig(settings);
        load(thread, {});

        cv::RNG rng {uint64(seed)};
        const auto random64 = [&rng] { return (quint64(unsigned(rng)) << 32) | unsigned(rng); };
        std::vector<quint64> centres(12);
        for (quint64 &centre : centres)
            centre = random64();
        const int n = 400;
        QList<ImageData> images;
        for (int k = 0; k < n; ++k) {
            quint64 bits = centres[size_t(rng.uniform(0, int(centres.size())))];
            for (int flips = rng.uniform(0, 24); flips > 0; --flips)
                bits ^= 1ULL << rng.uniform(0, 64);
            if (rng.uniform(0, 10) == 0)
                bits = random64();
            ImageData image = hashed(QStringLiteral("p%1").arg(k), bits);
            image.fileType = rng.uniform(0, 4) == 0 ? QStringLiteral("png") : QStringLiteral("jpg");
            image.width = rng.uniform(1, 5000);
            image.height = rng.uniform(1, 1000);
            image.fromEarlierResult = rng.uniform(0, 8) == 0;
            if (rng.uniform(0, 40) == 0)
                image.hash.release(); // not decoded: never similar to anything
            images.append(image);
        }

        // The plain definition.
        const double passMark = double(float(threshold / 100.0));
        std::vector<int> parent(static_cast<size_t>(n));
        std::iota(parent.begin(), parent.end(), 0);
        const std::function<int(int)> root = [&](int k) {
            return parent[size_t(k)] == k ? k : parent[size_t(k)] = root(parent[size_t(k)]);
        };
        std::vector<int> expectedPercent(size_t(n), 0);
        std::vector<char> linked(size_t(n), 0);
        for (int i = 0; i < n; ++i) {
            for (int j = i + 1; j < n; ++j) {
                const ImageData &a = images[i];
                const ImageData &b = images[j];
                if (a.fromEarlierResult && b.fromEarlierResult)
                    continue;
                if (sameType && a.fileType != b.fileType)
                    continue;
                if (ratio
                    && !ImageCompareThread::aspectRatioCompatible(
                        a.width, a.height, b.width, b.height, 4))
                    continue;
                // A picture without a measure takes part in no pair, whatever the pass mark.
                if (a.hash.empty() || b.hash.empty())
                    continue;
                const double similarity
                    = ImageCompareThread::hashSimilarity(qPopulationCount(a.hashBits ^ b.hashBits));
                if (similarity < passMark)
                    continue;
                expectedPercent[size_t(j)] = std::min(99, int(similarity * 100.0));
                linked[size_t(i)] = linked[size_t(j)] = 1;
                parent[size_t(root(i))] = root(j);
            }
        }
        QMap<int, QStringList> expectedGroups;
        for (int k = 0; k < n; ++k) {
            if (linked[size_t(k)])
                expectedGroups[root(k)].append(
                    images[k].path + ":" + QString::number(expectedPercent[size_t(k)]));
        }
        QList<QStringList> expected = expectedGroups.values();
        for (QStringList &group : expected)
            group.sort();
        std::sort(expected.begin(), expected.end());

        QList<QList<ImageData>> groups;
        thread.hashCompare(images, groups);
        QList<QStringList> actual;
        for (const QList<ImageData> &group : std::as_const(groups)) {
            // Members come sorted by similarity, highest first.
            QVERIFY(std::is_sorted(
                group.begin(), group.end(), [](const ImageData &x, const ImageData &y) {
                    return x.similarity > y.similarity;
                }));
            QStringList members;
            for (const ImageData &image : group)
                members.append(image.path + ":" + QString::number(image.similarity));
            members.sort();
            actual.append(members);
        }
        std::sort(actual.begin(), actual.end());
        QVERIFY(threshold == 100 ? expected.isEmpty() : expected.size() >= 1);
        QCOMPARE(actual, expected);
    }

    // Two copies of each kind of broken file beside two real similar pictures: the broken
    // ones leave the run at loading, with their reason in the log, and never form a group
    // (a truncated JPEG decodes to grey, and two grey pictures are alike).
    void brokenPicturesLeaveTheRun_data()
    {
        QTest::addColumn<int>("algorithm");
        QTest::addColumn<QString>("suffix");
        // A null array writes no file (it vanished after the scan).
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        const cv::Mat scene = fixtures::makeScene(400, 300, 62);
        const QByteArray jpeg = fixtures::encode(scene, ".jpg");
        const QByteArray png = fixtures::encode(scene, ".png");
        for (const int algorithm : {1, 2}) {
            const char *measure = algorithm == 1 ? "histogram" : "phash";
            QTest::addRow("zero bytes, %s", measure)
                << algorithm << "jpg" << QByteArray("") << "file empty";
            QTest::addRow("text named .jpg, %s", measure)
                << algorithm << "jpg" << QByteArray("not a picture at all\n") << "not a picture";
            QTest::addRow("jpeg cut into its scan, %s", measure)
                << algorithm << "jpg" << jpeg.left(jpeg.indexOf("\xFF\xDA") + 300) << "truncated";
            QTest::addRow("png cut after its header chunk, %s", measure)
                << algorithm << "png" << png.left(33) << "truncated";
            QTest::addRow("missing, %s", measure)
                << algorithm << "jpg" << QByteArray() << "cannot open the file";
        }
    }
    void brokenPicturesLeaveTheRun()
    {
        QFETCH(int, algorithm);
        QFETCH(QString, suffix);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        const QString stem
            = QString::fromLatin1(QTest::currentDataTag()).replace(QRegularExpression("\\W+"), "_");
        QStringList broken;
        for (int copy = 0; copy < 2; ++copy) {
            broken << m_dir.filePath(QStringLiteral("%1_%2.%3").arg(stem).arg(copy).arg(suffix));
            if (!bytes.isNull())
                QVERIFY(fixtures::writeBytes(broken.last(), bytes));
        }
        const cv::Mat scene = fixtures::makeScene(400, 300, 61);
        const QString a = write(stem + "_a.png", scene);
        const QString b = write(stem + "_b.png", touched(scene));
        const QStringList paths {broken[0], a, broken[1], b};

        ImageCompareThread thread;
        thread.applyConfig(config(algorithm, false, false, false));
        QVERIFY(!run(thread, paths).isEmpty());
        const TFileData::Groups groups = TFileData::instance()->groups();
        QCOMPARE(groups.size(), 1);
        QStringList members
            = GroupMember::paths(GroupMember::fromEntries(groups.constBegin().value()));
        members.sort();
        QCOMPARE(members, QStringList({a, b}));
        // Not merely left ungrouped: the loading stage hands on only real pictures.
        QStringList loaded;
        for (const ImageData &image : load(thread, paths))
            loaded << image.path;
        QCOMPARE(loaded, QStringList({a, b}));

        const QString log = logText(m_logDir.path());
        for (const QString &path : broken) {
            QVERIFY2(
                log.contains(QStringLiteral("[TImageCompareThread]: Picture skipped, %1. File: %2")
                                 .arg(reason, path)),
                qPrintable(path));
            for (const QString &line : log.split(QLatin1Char('\n'))) {
                if (line.contains(path))
                    QVERIFY2(!line.contains("memory", Qt::CaseInsensitive), qPrintable(line));
            }
        }
    }

    void featureRecheckDropsUnrelated()
    {
        const cv::Mat scene = fixtures::makeScene(640, 480, 21);
        const QString original = write("orb_original.jpg", scene, {cv::IMWRITE_JPEG_QUALITY, 95});
        const QString copy = write("orb_copy.jpg", scene, {cv::IMWRITE_JPEG_QUALITY, 60});
        const QString other = write("orb_other.jpg", fixtures::makeScene(640, 480, 22));
        ImageCompareThread thread;
        thread.applyConfig(config(1, true));
        QList<ImageData> images = load(thread, {original, copy, other});
        images[0].similarity = 90;
        images[1].similarity = 80;
        images[2].similarity = 70;
        QList<QList<ImageData>> groups {{images[0], images[1], images[2]}, {images[0], images[2]}};
        QSignalSpy progress(&thread, &ImageCompareThread::progressChanged);
        thread.orbFeatureMatch(groups);
        // The unrelated picture leaves the first group; the second is left with one
        // picture and disappears.
        QCOMPARE(groups.size(), 1);
        QCOMPARE(groups[0].size(), 2);
        QCOMPARE(groups[0][0].path, original);
        QCOMPARE(groups[0][1].path, copy);
        QVERIFY(!progress.isEmpty());
        QCOMPARE(progress.last().at(0).toInt(), 4);
        QCOMPARE(progress.last().at(1).toInt(), 100);

        // The measure itself: a picture against itself passes, against another it fails.
        const cv::Mat d1 = ImageCompareThread::computeDescriptors(scene);
        const cv::Mat d2
            = ImageCompareThread::computeDescriptors(fixtures::makeScene(640, 480, 22));
        QVERIFY(thread.compareFeatures(d1, d1) > 0.5);
        QVERIFY(thread.compareFeatures(d1, d2) < 0.5);
        QCOMPARE(thread.compareFeatures(d1, cv::Mat()), 0.0);
        // Same inputs, same answer: the LSH index is seeded before it is built.
        QCOMPARE(thread.compareFeatures(d1, d2), thread.compareFeatures(d1, d2));
        QVERIFY(ImageCompareThread::computeDescriptors(cv::Mat(3000, 4, CV_8UC3)).empty());
    }

    void fullRunStoresTaggedGroups()
    {
        const cv::Mat scene = fixtures::makeScene(500, 400, 31);
        const QString a = write("run_a.jpg", scene, {cv::IMWRITE_JPEG_QUALITY, 95});
        const QString b = write("run_b.jpg", scene, {cv::IMWRITE_JPEG_QUALITY, 60});
        const QString c = write("run_c.jpg", fixtures::makeScene(500, 400, 32));
        ImageCompareThread thread;
        thread.applyConfig(config(1, true));
        const QVariantList finished = run(thread, {a, b, c});
        QVERIFY(!finished.isEmpty());
        // One of the two alike pictures could go; the first of the group stays.
        QCOMPARE(finished.at(0).toInt(), 1);
        const QString second = TFileData::instance()->groups().begin()->at(1);
        QCOMPARE(
            finished.at(1).toLongLong(), QFileInfo(GroupMember::fromEntry(second).path).size());
        const TFileData::Groups groups = TFileData::instance()->groups();
        QCOMPARE(groups.size(), 1);
        const QString key = groups.constBegin().key();
        const QStringList entries = groups.constBegin().value();
        QCOMPARE(entries.size(), 2);
        QCOMPARE(key, TFileData::groupKey(entries.first()));
        for (const GroupMember &member : TFileData::instance()->groupMembers(key)) {
            QVERIFY(member.isSimilar());
            QVERIFY(member.path == a || member.path == b);
            QVERIFY(member.similarity < 100);
        }
    }

    void earlierGroupReceivesNewPictures()
    {
        const cv::Mat scene = fixtures::makeScene(300, 300, 41);
        const QString dup1 = write("dup1.png", scene);
        const QString dup2 = write("dup2.png", scene);
        const QString similar = write("near.png", touched(scene));
        const QString key = TFileData::groupKey(dup1);
        TFileData::instance()->insertGroup(key, {dup1, dup2});
        ImageCompareThread thread;
        thread.applyConfig(config(1));
        thread.setEarlierGroups(TFileData::instance()->imageGroups());
        QCOMPARE(run(thread, {similar}).value(0).toInt(), 1);
        const QStringList members = TFileData::instance()->group(key);
        QCOMPARE(members.size(), 3);
        QCOMPARE(members.mid(0, 2), QStringList({dup1, dup2}));
        QCOMPARE(GroupMember::fromEntry(members.at(2)).path, similar);
        QCOMPARE(TFileData::instance()->groupCount(), 1);
    }

    void cancelMidRun()
    {
        QStringList paths;
        const cv::Mat scene = fixtures::makeScene(800, 600, 51);
        for (int i = 0; i < 60; ++i)
            paths << write(QStringLiteral("many_%1.png").arg(i), scene + cv::Scalar(i % 5, 0, 0));
        ImageCompareThread thread;
        thread.applyConfig(config(1, true));
        thread.setImagePaths(paths);
        QSignalSpy finished(&thread, &ImageCompareThread::finished);
        QSignalSpy progress(&thread, &ImageCompareThread::progressChanged);
        thread.start();
        thread.cancel();
        QVERIFY(thread.wait(120000));
        // The run ends normally with whatever it stored before the flag was seen.
        QCOMPARE(finished.count(), 1);
        QVERIFY(thread.isCancelled());
        QVERIFY(finished.first().at(0).toInt() < paths.size());
    }
};

QTEST_GUILESS_MAIN(tst_ImageCompare)
#include "tst_ImageCompare.moc"
