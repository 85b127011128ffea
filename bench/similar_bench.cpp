// SPDX-License-Identifier: GPL-3.0-or-later
// Measures the similar-picture search on a folder of pictures: runs the comparison's
// stages one after the other with the given settings, writes the groups as JSON for
// score_groups.py, and prints pictures per second for loading, pairs per second for
// comparing, and the peak resident memory. With --baseline it instead times decoding
// the same files with OpenCV alone, brought to the working size.

#include "app/FileTypeCatalogue.h"
#include "engine/TFileData.h"
#include "pictures/ImageCompareThread.h"
#include "pictures/RobustMatcher.h"

#include <atomic>
#include <cstdio>
#include <cstring>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>
#include <sys/resource.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtConcurrent>

static double peakMegabytes()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024.0;
}

// The pair stage alone: n pictures in clusters of up to six near copies (a few bits apart)
// of random 64-bit hashes, three in four JPEG, sizes of common photo ratios.
static int syntheticPairs(int n, double threshold, bool sameType, bool ratio)
{
    if (n < 2) {
        std::fprintf(stderr, "--synthetic needs at least 2 pictures\n");
        return 2;
    }
    ImageCompareThread compare;
    compare.applyConfig(QJsonObject {{"SimilarityValue", threshold}, {"FeaturesValue", 50},
        {"algorithmHint", 2}, {"isAddFeatures", false}, {"isImageType", sameType},
        {"isImageSize", ratio}, {"imageMinSize", 4}});
    compare.setImagePaths({});
    QList<ImageData> images;
    compare.loadImages(images); // fixes the measure
    cv::RNG rng {0x5151u};
    quint64 centre = 0;
    static const int sizes[][2] = {{4000, 3000}, {3000, 4000}, {1920, 1080}, {1024, 1024}};
    for (int k = 0; k < n; ++k) {
        if (k % 6 == 0 || rng.uniform(0, 3) == 0)
            centre = (quint64(unsigned(rng)) << 32) | unsigned(rng);
        quint64 bits = centre;
        for (int flips = rng.uniform(0, 12); flips > 0; --flips)
            bits ^= 1ULL << rng.uniform(0, 64);
        ImageData image;
        image.path = QStringLiteral("/synthetic/%1.jpg").arg(k);
        image.fileType = rng.uniform(0, 4) == 0 ? QStringLiteral("png") : QStringLiteral("jpg");
        const int *size = sizes[rng.uniform(0, 4)];
        image.width = size[0];
        image.height = size[1];
        image.hashBits = bits;
        image.hash = cv::Mat(1, 8, CV_8UC1);
        std::memcpy(image.hash.ptr(), &bits, sizeof(bits));
        images.append(image);
    }
    QList<QList<ImageData>> groups;
    QElapsedTimer timer;
    timer.start();
    compare.hashCompare(images, groups);
    const double seconds = timer.nsecsElapsed() / 1e9;
    const double pairs = double(n) * double(n - 1) / 2.0;
    std::printf("synthetic: %d hashes, %.3f s, %.0f pairs/s, %lld groups, peak %.0f MB\n", n,
        seconds, pairs / seconds, qlonglong(groups.size()), peakMegabytes());
    return 0;
}

// The robust measure's candidate pairs from the hash index against those of one pass over
// all hashes: the same pairs, in a fraction of the time.
static int indexCheck(const QList<ImageData> &images, bool sameType, bool ratio)
{
    std::atomic_int cancel {0};
    QThreadPool pool;
    const auto run = [&](bool allPairs, double &seconds) {
        RobustMatcher::Options options;
        options.sameType = sameType;
        options.sameRatio = ratio;
        options.allPairs = allPairs;
        RobustMatcher matcher(options, cancel);
        QElapsedTimer timer;
        timer.start();
        std::vector<RobustMatcher::Pair> pairs = matcher.candidates(images, &pool);
        seconds = timer.elapsed() / 1000.0;
        return pairs;
    };
    double indexed = 0;
    double linear = 0;
    const std::vector<RobustMatcher::Pair> a = run(false, indexed);
    const std::vector<RobustMatcher::Pair> b = run(true, linear);
    const bool same = std::equal(a.begin(), a.end(), b.begin(), b.end(),
        [](const RobustMatcher::Pair &x, const RobustMatcher::Pair &y) {
            return x.a == y.a && x.b == y.b && x.distance == y.distance && x.variant == y.variant
                && x.variantOfA == y.variantOfA;
        });
    std::printf("index check, %lld pictures: index %.3f s, all pairs %.3f s, %zu and %zu "
                "candidate pairs, %s\n",
        qlonglong(images.size()), indexed, linear, a.size(), b.size(),
        same ? "identical" : "DIFFERENT");
    return same ? 0 : 1;
}

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addPositionalArgument("folder", "Folder of pictures (searched recursively).");
    parser.addOptions({
        {"threshold", "Pass mark of the fast measure, percent.", "percent", "55"},
        {"algorithm", "smart, histogram, phash or robust.", "name", "smart"},
        {"index-check",
            "With the robust measure: find the candidate pairs with the hash index and with "
            "one pass over all hashes per picture, compare them and time both."},
        {"features", "Pass mark of the ORB re-check, percent.", "percent", "50"},
        {"no-features", "Leave out the ORB re-check."},
        {"any-type", "Compare pictures of different file types."},
        {"any-ratio", "Compare pictures of any aspect ratio."},
        {"json", "Write the groups to this file.", "file"},
        {"baseline", "Only decode the files with OpenCV at the working size."},
        {"synthetic",
            "Time only the pair stage with the hash measure on N made-up hashes "
            "(clusters of near copies); the folder is not read.",
            "N"},
    });
    parser.process(app);
    if (parser.isSet("synthetic"))
        return syntheticPairs(parser.value("synthetic").toInt(),
            parser.value("threshold").toDouble(), !parser.isSet("any-type"),
            !parser.isSet("any-ratio"));
    if (parser.positionalArguments().size() != 1)
        parser.showHelp(2);

    QStringList paths;
    QDirIterator it(
        parser.positionalArguments().first(), QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        if (isImageFile(path))
            paths << path;
    }
    paths.sort();

    if (parser.isSet("baseline")) {
        std::atomic_int decoded {0};
        QElapsedTimer timer;
        timer.start();
        QtConcurrent::blockingMap(paths, [&](const QString &path) {
            cv::Mat mat = cv::imread(QFile::encodeName(path).toStdString(), cv::IMREAD_COLOR);
            if (mat.empty())
                return;
            if (mat.cols > 1024 || mat.rows > 1024) {
                const double s = std::min(1024.0 / mat.cols, 1024.0 / mat.rows);
                cv::resize(mat, mat,
                    cv::Size(std::max(1, int(mat.cols * s)), std::max(1, int(mat.rows * s))), 0, 0,
                    cv::INTER_AREA);
            }
            decoded.fetch_add(1);
        });
        const double seconds = timer.elapsed() / 1000.0;
        std::printf("baseline: %d of %lld files decoded by OpenCV in %.3f s (%.1f pictures/s), "
                    "peak %.0f MB\n",
            decoded.load(), qlonglong(paths.size()), seconds, decoded.load() / seconds,
            peakMegabytes());
        return 0;
    }

    const QString algorithm = parser.value("algorithm");
    const int hint = algorithm == "histogram" ? 1
        : algorithm == "phash"                ? 2
        : algorithm == "robust"               ? 3
                                              : 0;
    const QJsonObject config {{"SimilarityValue", parser.value("threshold").toDouble()},
        {"FeaturesValue", parser.value("features").toDouble()}, {"selectedSimilar", false},
        {"selectionHint", 2}, {"algorithmHint", hint},
        {"isAddFeatures", !parser.isSet("no-features")}, {"isImageType", !parser.isSet("any-type")},
        {"isImageSize", !parser.isSet("any-ratio")}, {"imageMinSize", 4}};
    ImageCompareThread compare;
    compare.applyConfig(config);
    compare.setImagePaths(paths);
    QList<ImageData> images;
    QList<QList<ImageData>> groups;
    QElapsedTimer timer;
    timer.start();
    compare.loadImages(images);
    const double loadSeconds = timer.restart() / 1000.0;
    if (parser.isSet("index-check"))
        return indexCheck(images, !parser.isSet("any-type"), !parser.isSet("any-ratio"));
    if (compare.measure() == ImageCompareThread::MeasureRobust)
        compare.robustCompare(images, groups);
    else
        compare.hashCompare(images, groups);
    const double compareSeconds = timer.restart() / 1000.0;
    const qint64 n = images.size();
    images.clear();
    double orbSeconds = 0;
    if (!parser.isSet("no-features") && compare.measure() != ImageCompareThread::MeasureRobust) {
        compare.orbFeatureMatch(groups);
        orbSeconds = timer.restart() / 1000.0;
    }
    const auto totals = compare.storeGroups(groups);
    const double pairs = double(n) * double(n - 1) / 2.0;
    std::printf("measure %s, %lld pictures: load %.3f s (%.1f pictures/s), compare %.3f s "
                "(%.0f pairs/s), re-check %.3f s, %lld groups, %d files, peak %.0f MB\n",
        compare.measure() == ImageCompareThread::MeasureRobust      ? "robust"
            : compare.measure() == ImageCompareThread::MeasurePHash ? "phash"
                                                                    : "histogram",
        qlonglong(n), loadSeconds, n / loadSeconds, compareSeconds,
        compareSeconds > 0 ? pairs / compareSeconds : 0.0, orbSeconds, qlonglong(groups.size()),
        totals.first, peakMegabytes());
    if (parser.isSet("json")) {
        QJsonArray out;
        const TFileData::Groups stored = TFileData::instance()->groups();
        for (auto g = stored.cbegin(); g != stored.cend(); ++g)
            out.append(QJsonArray::fromStringList(g.value()));
        QFile file(parser.value("json"));
        if (!file.open(QIODevice::WriteOnly)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(parser.value("json")));
            return 1;
        }
        file.write(QJsonDocument(out).toJson(QJsonDocument::Compact));
    }
    return 0;
}
