// SPDX-License-Identifier: GPL-3.0-or-later
// A real picture far above the working size (20000 x 10000 JPEG, 12000 x 6000 PNG) goes
// through the similar-picture search of the command line without a full-size pixel
// buffer: the pictures are written here row by row by the codec libraries (the test never
// holds them whole either), the program runs as a child process, and its peak resident
// memory is taken from wait4. A small copy of the same drawing must land in one group
// with the large one, which shows the large one was really decoded and hashed.
#include "LogText.h"
#include "ReportGroups.h"
#include "TestEnvironment.h"
#include "engine/ScanTree.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <csetjmp>
#include <cstdio>
#include <fcntl.h>
#include <jpeglib.h>
#include <png.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <vector>

#include <QTemporaryDir>
#include <QtTest>

extern char **environ;

namespace {

// One smooth drawing defined on the unit square, so that every size shows the same
// picture: four bands of colour with soft diagonal stripes and a bright disc.
void pixelAt(double u, double v, unsigned char *rgb)
{
    const int band = std::min(3, int(u * 4));
    const double stripe = 0.5 + 0.5 * std::sin((u * 3 + v * 2) * 6.2832);
    const double du = u - 0.62;
    const double dv = v - 0.4;
    const bool disc = du * du * 4 + dv * dv < 0.04;
    static const int colours[4][3] = {{200, 40, 40}, {40, 160, 60}, {50, 60, 190}, {210, 190, 50}};
    for (int c = 0; c < 3; ++c) {
        const double value = disc ? 245 : colours[band][c] * (0.55 + 0.45 * stripe) * (1 - v / 3);
        rgb[c] = static_cast<unsigned char>(std::clamp(value, 0.0, 255.0));
    }
}

void fillRow(std::vector<unsigned char> &row, int width, int height, int y)
{
    for (int x = 0; x < width; ++x)
        pixelAt((x + 0.5) / width, (y + 0.5) / height, &row[size_t(x) * 3]);
}

struct JpegFailure
{
    jpeg_error_mgr manager;
    jmp_buf jump;
};

void jpegFailed(j_common_ptr info)
{
    longjmp(reinterpret_cast<JpegFailure *>(info->err)->jump, 1);
}

bool writeJpeg(const QString &path, int width, int height)
{
    FILE *file = std::fopen(QFile::encodeName(path).constData(), "wb");
    if (!file)
        return false;
    jpeg_compress_struct info {};
    JpegFailure failure {};
    info.err = jpeg_std_error(&failure.manager);
    failure.manager.error_exit = jpegFailed;
    std::vector<unsigned char> row(size_t(width) * 3);
    if (setjmp(failure.jump)) {
        jpeg_destroy_compress(&info);
        std::fclose(file);
        return false;
    }
    jpeg_create_compress(&info);
    jpeg_stdio_dest(&info, file);
    info.image_width = JDIMENSION(width);
    info.image_height = JDIMENSION(height);
    info.input_components = 3;
    info.in_color_space = JCS_RGB;
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, 80, TRUE);
    jpeg_start_compress(&info, TRUE);
    for (int y = 0; y < height; ++y) {
        fillRow(row, width, height, y);
        JSAMPROW pointer = row.data();
        jpeg_write_scanlines(&info, &pointer, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    return std::fclose(file) == 0;
}

bool writePng(const QString &path, int width, int height)
{
    FILE *file = std::fopen(QFile::encodeName(path).constData(), "wb");
    if (!file)
        return false;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    std::vector<unsigned char> row(size_t(width) * 3);
    if (!png || !info || setjmp(png_jmpbuf(png))) {
        png_destroy_write_struct(&png, &info);
        std::fclose(file);
        return false;
    }
    png_init_io(png, file);
    png_set_compression_level(png, 1);
    png_set_IHDR(png, info, png_uint_32(width), png_uint_32(height), 8, PNG_COLOR_TYPE_RGB,
        PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    for (int y = 0; y < height; ++y) {
        fillRow(row, width, height, y);
        png_write_row(png, row.data());
    }
    png_write_end(png, nullptr);
    png_destroy_write_struct(&png, &info);
    return std::fclose(file) == 0;
}

bool writePicture(const QString &path, int width, int height)
{
    return path.endsWith(QLatin1String(".png")) ? writePng(path, width, height)
                                                : writeJpeg(path, width, height);
}

struct ChildRun
{
    int exitCode = -1;
    qint64 peakKiB = 0;
    QByteArray out;
};

// Runs the program with its output in files and returns its own peak resident memory.
ChildRun runMeasured(const QStringList &arguments, const QString &folder)
{
    ChildRun result;
    const QByteArray program = QByteArrayLiteral(VELTRINE_CLI_PATH);
    QList<QByteArray> encoded {program};
    for (const QString &argument : arguments)
        encoded.append(QFile::encodeName(argument));
    std::vector<char *> argv;
    for (QByteArray &item : encoded)
        argv.push_back(item.data());
    argv.push_back(nullptr);
    const QByteArray outPath = QFile::encodeName(folder + "/out.json");
    const QByteArray errPath = QFile::encodeName(folder + "/err.txt");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(
        &actions, 1, outPath.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    posix_spawn_file_actions_addopen(
        &actions, 2, errPath.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    pid_t pid = 0;
    const int spawned
        = posix_spawn(&pid, program.constData(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (spawned != 0)
        return result;
    int status = 0;
    rusage usage {};
    pid_t waited = 0;
    do {
        waited = wait4(pid, &status, 0, &usage);
    } while (waited < 0 && errno == EINTR);
    if (waited != pid || !WIFEXITED(status))
        return result;
    result.exitCode = WEXITSTATUS(status);
    result.peakKiB = usage.ru_maxrss;
    result.out = ScanTree::read(QString::fromLocal8Bit(outPath));
    return result;
}

} // namespace

// The scans' key cache goes to a temporary data folder, never the user's.
static TestEnvironment environment;

class TestCliLargePicture : public QObject
{
    Q_OBJECT
private slots:
    void withoutFullSizeBuffer_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<QStringList>("logLines");
        // JPEG: decoded at 1/8 by the codec itself. PNG: the image reader scales row by row.
        // (20000 x 10000 PNG exceeds the reader's pixel limit and is refused instead.)
        QTest::newRow("JPEG 20000 x 10000")
            << "jpg" << 20000 << 10000
            << QStringList {
                   "[TReadImage]: Large image, skip full read. File: %1, Size: 20000x10000",
                   "[TReadImage]: Reduced read success (1/8). File: %1, Size: 2500x1250"};
        QTest::newRow("PNG 12000 x 6000")
            << "png" << 12000 << 6000
            << QStringList {"[TReadImage]: Large image, skip full read. File: %1, Size: 12000x6000",
                   "[TReadImage]: QImageReader scaled size. File: %1, Scaled Size: 1024x512"};
    }
    void withoutFullSizeBuffer()
    {
        QFETCH(QString, suffix);
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(QStringList, logLines);
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString root = dir.path() + "/pictures";
        QVERIFY(QDir().mkpath(root));
        const QString small = root + "/small." + suffix;
        const QString large = root + "/large." + suffix;
        QVERIFY(writePicture(small, 1000, 500));
        const QStringList options {"scan", "--json", "--algorithm", "phash", "--no-features",
            "--select", "none", "--log-dir"};

        // The same run on the small picture alone gives the program's own footprint.
        const QString baseLog = dir.path() + "/base-log";
        const ChildRun base = runMeasured(options + QStringList {baseLog, root}, dir.path());
        QCOMPARE(base.exitCode, 0);
        QVERIFY(base.peakKiB > 0);

        QVERIFY(writePicture(large, width, height));
        const QString log = dir.path() + "/log";
        const ChildRun run = runMeasured(options + QStringList {log, root}, dir.path());
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(reportGroups(run.out, root, false),
            QStringList {QStringLiteral("similar:large.%1,small.%1").arg(suffix)});
        const QString text = logText(log);
        for (const QString &line : logLines)
            QVERIFY2(text.contains(line.arg(large)), qPrintable(line.arg(large)));

        // A full-size decode would need width x height x 3 bytes at least; the run may grow
        // by a quarter of that at most.
        const qint64 fullBufferKiB = qint64(width) * height * 3 / 1024;
        const qint64 growthKiB = run.peakKiB - base.peakKiB;
        qInfo("peak %lld KiB, %lld KiB without the large picture, full buffer %lld KiB",
            static_cast<long long>(run.peakKiB), static_cast<long long>(base.peakKiB),
            static_cast<long long>(fullBufferKiB));
        QVERIFY2(growthKiB < fullBufferKiB / 4,
            qPrintable(QStringLiteral("grew by %1 KiB").arg(growthKiB)));
    }

    void everyPairPassingInBoundedMemory()
    {
        // 2,000 small pictures, each of its own size (so none is a copy of another). At the
        // lowest pass mark every one of the two million pairs passes with the hash measure.
        QTemporaryDir dir;
        const QString root = dir.path() + "/pictures";
        QVERIFY(QDir().mkpath(root));
        const int count = 2000;
        for (int k = 0; k < count; ++k)
            QVERIFY(writePicture(QString("%1/p%2.png").arg(root).arg(k), 40 + k % 50, 30 + k / 50));
        const QStringList options {"scan", "--json", "--algorithm", "phash", "--no-features",
            "--any-ratio", "--no-cache", "--select", "none", "--threshold"};
        const ChildRun none = runMeasured(options + QStringList {"100", root}, dir.path());
        const ChildRun every = runMeasured(options + QStringList {"1", root}, dir.path());
        QCOMPARE(none.exitCode, 0);
        QCOMPARE(every.exitCode, 0);
        const QStringList groups = reportGroups(every.out, root, false);
        QCOMPARE(groups.size(), 1);
        QCOMPARE(groups.first().count(','), count - 1);
        // A list of the passing pairs alone would take 16 MB.
        const qint64 growthKiB = every.peakKiB - none.peakKiB;
        qInfo("peak %lld KiB linking every pair, %lld KiB linking none",
            static_cast<long long>(every.peakKiB), static_cast<long long>(none.peakKiB));
        QVERIFY2(growthKiB < 6 * 1024, qPrintable(QStringLiteral("grew by %1 KiB").arg(growthKiB)));
    }
};

QTEST_GUILESS_MAIN(TestCliLargePicture)
#include "tst_CliLargePicture.moc"
