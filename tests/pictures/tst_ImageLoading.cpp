// SPDX-License-Identifier: GPL-3.0-or-later
// Reading pictures of every supported format into working-size matrices, and what happens
// with broken, truncated and oversized files.

#include "ImageFixtures.h"
#include "LogText.h"
#include "TestEnvironment.h"
#include "app/TLogger.h"
#include "engine/GroupMember.h"
#include "pictures/ImageLoadTask.h"
#include "pictures/TReadImage.h"

#include <opencv2/imgcodecs.hpp>

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThreadPool>
#include <QtTest>

static TestEnvironment environment;

// CRC-32 of PNG chunks (type and data).
static quint32 crc32(const QByteArray &bytes)
{
    quint32 crc = 0xFFFFFFFFu;
    for (const char c : bytes) {
        crc ^= quint8(c);
        for (int k = 0; k < 8; ++k)
            crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

class tst_ImageLoading : public QObject
{
    Q_OBJECT
private:
    QTemporaryDir m_dir;
    QTemporaryDir m_logDir;

    QString file(const QString &name) const { return m_dir.filePath(name); }
    QString logText() const { return ::logText(m_logDir.path()); }
    // The bytes of a picture file of the given format.
    QByteArray encoded(const QString &format, const cv::Mat &scene, int heicThumbnail = 64) const
    {
        if (format == QLatin1String("heic")) {
            const QString path = file("encoding.heic");
            QFile heic(path);
            if (!fixtures::writeHeic(path, scene, heicThumbnail) || !heic.open(QIODevice::ReadOnly))
                return {};
            return heic.readAll();
        }
        if (format == QLatin1String("dng"))
            return fixtures::makeDng(fixtures::encode(scene, ".jpg"), scene.cols, scene.rows);
        return fixtures::encode(scene, "." + format.toStdString());
    }
    // Writes a picture of the given format; returns its path.
    QString writePicture(
        const QString &format, const cv::Mat &scene, const QString &stem, int heicThumbnail = 64)
    {
        const QString path = file(stem + QLatin1Char('.') + format);
        const QByteArray bytes = encoded(format, scene, heicThumbnail);
        return !bytes.isEmpty() && fixtures::writeBytes(path, bytes) ? path : QString();
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        QVERIFY(initLogger(m_logDir.path()));
    }
    void cleanupTestCase() { shutdownLogger(); }

    void readsEveryFormat_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<int>("expectedWidth");
        QTest::addColumn<int>("expectedHeight");
        QTest::addColumn<QString>("logLine");
        QTest::addColumn<int>("heicThumbnail");
        // The tag names the file. HEIC is read from its embedded 64-pixel thumbnail when it
        // has one, DNG from its JPEG preview; a name beyond ASCII is read through memory.
        const char *full = "[TReadImage]: Full read success.";
        for (const char *format : {"jpg", "png", "webp", "tif", "bmp"})
            QTest::newRow(format) << format << 320 << 240 << full << 0;
        QTest::newRow("ферма_写真") << "jpg" << 320 << 240 << full << 0;
        QTest::newRow("heic thumbnail") << "heic" << 64 << 48 << "" << 64;
        QTest::newRow("heic without thumbnail") << "heic" << 320 << 240 << "" << 0;
        QTest::newRow("dng preview") << "dng" << 320 << 240 << "" << 0;
    }
    void readsEveryFormat()
    {
        QFETCH(QString, format);
        QFETCH(int, expectedWidth);
        QFETCH(int, expectedHeight);
        QFETCH(QString, logLine);
        QFETCH(int, heicThumbnail);
        const cv::Mat scene = fixtures::makeScene(320, 240, 1);
        const QString path = writePicture(
            format, scene, QString::fromUtf8(QTest::currentDataTag()), heicThumbnail);
        QVERIFY(!path.isEmpty());
        int w = 0;
        int h = 0;
        const cv::Mat mat = TReadImage::readImage(path, &w, &h);
        QVERIFY(!mat.empty());
        QCOMPARE(mat.type(), CV_8UC3);
        QCOMPARE(w, expectedWidth);
        QCOMPARE(h, expectedHeight);
        // Colours arrive in BGR order whichever decoder ran: compare with the scene
        // brought to the same size (lossy codecs allow some difference).
        cv::Mat expected;
        cv::resize(scene, expected, mat.size(), 0, 0, cv::INTER_AREA);
        QVERIFY2(cv::norm(expected, mat, cv::NORM_L1) / double(mat.total() * 3) < 25.0,
            "decoded colours differ from the scene");
        if (!logLine.isEmpty())
            QVERIFY(logText().contains(logLine + " File: " + path));
    }

    // Every broken file gives an empty matrix and the real reason; none is blamed on
    // memory. A truncated JPEG in particular must not come back as the grey picture its
    // decoder makes of it.
    void brokenFilesSayWhy_data()
    {
        using F = TReadImage::Failure;
        QTest::addColumn<QString>("suffix");
        // A null array writes no file at all.
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("failure");
        const QStringList formats {"jpg", "png", "webp", "tif", "bmp", "heic", "dng"};
        QByteArray noise(4000, '\0');
        for (int i = 0; i < noise.size(); ++i)
            noise[i] = char((i * 131 + 7) % 251);
        for (const QString &f : formats) {
            const QByteArray good = encoded(f, fixtures::makeScene(200, 150, 3));
            QVERIFY(!good.isEmpty());
            const bool ownStructure = f == QLatin1String("jpg") || f == QLatin1String("png")
                || f == QLatin1String("webp");
            QTest::addRow("%s cut to 40 bytes", qPrintable(f))
                << f << good.left(40) << int(ownStructure ? F::Truncated : F::DecoderRefused);
            // The first four bytes of a valid file followed by noise: a signature the
            // decoders refuse, except where four bytes are too few to tell a picture (the
            // box length of HEIC, the "RIFF" of any RIFF file).
            const bool tooFew = f == QLatin1String("heic") || f == QLatin1String("webp");
            QTest::addRow("%s garbage", qPrintable(f))
                << f << good.left(4) + noise << int(tooFew ? F::NotAPicture : F::DecoderRefused);
        }
        const QByteArray jpeg = fixtures::encode(fixtures::makeScene(200, 150, 3), ".jpg");
        const int scan = jpeg.indexOf("\xFF\xDA");
        QVERIFY(scan > 0);
        QTest::newRow("jpeg cut a few hundred bytes into its scan")
            << "jpg" << jpeg.left(scan + 300) << int(F::Truncated);
        QTest::newRow("png cut after its header chunk")
            << "png" << fixtures::encode(fixtures::makeScene(200, 150, 3), ".png").left(33)
            << int(F::Truncated);
        QTest::newRow("zero bytes") << "jpg" << QByteArray("") << int(F::Empty);
        QTest::newRow("text named .jpg")
            << "jpg" << QByteArray("Holiday list:\n- sun cream\n- hat\n") << int(F::NotAPicture);
        QTest::newRow("missing file") << "jpg" << QByteArray() << int(F::CannotOpen);
    }
    void brokenFilesSayWhy()
    {
        QFETCH(QString, suffix);
        QFETCH(QByteArray, bytes);
        QFETCH(int, failure);
        const QString path
            = file(QStringLiteral("broken_%1.%2").arg(QTest::currentDataTag(), suffix));
        if (!bytes.isNull())
            QVERIFY(fixtures::writeBytes(path, bytes));
        int w = -1;
        int h = -1;
        TReadImage::Failure why = TReadImage::Failure::None;
        const cv::Mat mat = TReadImage::readImage(path, &w, &h, &why);
        QVERIFY(mat.empty());
        QCOMPARE(w, 0);
        QCOMPARE(h, 0);
        QCOMPARE(int(why), failure);
        for (const QString &line : logText().split(QLatin1Char('\n'))) {
            if (line.contains(path))
                QVERIFY2(!line.contains("memory", Qt::CaseInsensitive), qPrintable(line));
        }
    }

    void completeFilesPassTheStructureCheck_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QByteArray>("bytes");
        const cv::Mat scene = fixtures::makeScene(200, 150, 7);
        const QByteArray jpeg = fixtures::encode(scene, ".jpg");
        QTest::newRow("jpeg") << "jpg" << jpeg;
        // Data after the picture (a phone's appended video) puts the end marker far from
        // the end of the file.
        QByteArray trailer(200000, 'v');
        QTest::newRow("jpeg with a long trailer") << "jpg" << jpeg + trailer;
        QTest::newRow("progressive jpeg")
            << "jpg" << fixtures::encode(scene, ".jpg", {cv::IMWRITE_JPEG_PROGRESSIVE, 1});
        QTest::newRow("png") << "png" << fixtures::encode(scene, ".png");
        QTest::newRow("webp") << "webp" << fixtures::encode(scene, ".webp");
    }
    void completeFilesPassTheStructureCheck()
    {
        QFETCH(QString, suffix);
        QFETCH(QByteArray, bytes);
        const QString path
            = file(QStringLiteral("complete_%1.%2").arg(QTest::currentDataTag(), suffix));
        QVERIFY(fixtures::writeBytes(path, bytes));
        QCOMPARE(TReadImage::inspectFile(path), TReadImage::Failure::None);
        TReadImage::Failure why = TReadImage::Failure::Truncated;
        QCOMPARE(TReadImage::readImage(path, nullptr, nullptr, &why).cols, 200);
        QCOMPARE(why, TReadImage::Failure::None);
    }

    void emptyFileThroughMemory()
    {
        const QString path = file("empty_memory.jpg");
        QVERIFY(fixtures::writeBytes(path, QByteArray()));
        TReadImage::Failure why = TReadImage::Failure::None;
        QVERIFY(TReadImage::imreadThroughMemory(path, cv::IMREAD_COLOR, &why).empty());
        QCOMPARE(why, TReadImage::Failure::Empty);
        QVERIFY(logText().contains("[TImageRead]: File too large or empty: " + path));
    }

    void hugeHeaderIsRefused()
    {
        // A PNG whose header announces 20000 x 10000 pixels and whose data is missing:
        // no decoder may allocate the full picture, and the last-resort reader refuses it.
        QByteArray png = fixtures::encode(fixtures::makeScene(8, 8, 4), ".png");
        QVERIFY(png.size() > 33);
        qToBigEndian(quint32(20000), png.data() + 16);
        qToBigEndian(quint32(10000), png.data() + 20);
        // The header chunk's checksum must match, or the reader rejects it before the size.
        qToBigEndian(crc32(png.mid(12, 17)), png.data() + 29);
        const QString path = file("huge.png");
        QVERIFY(fixtures::writeBytes(path, png));
        TReadImage::Failure why = TReadImage::Failure::None;
        QVERIFY(TReadImage::readImage(path, nullptr, nullptr, &why).empty());
        QCOMPARE(why, TReadImage::Failure::TooLarge);
        QVERIFY(logText().contains(
            QStringLiteral("[TReadImage]: Image too large, skip. File: %1, Size: 20000x10000")
                .arg(path)));
    }

    void workingSize_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("workingWidth");
        QTest::addColumn<int>("workingHeight");
        QTest::newRow("4000x3000") << 4000 << 3000 << 1024 << 768;
        QTest::newRow("1024x1024 untouched") << 1024 << 1024 << 1024 << 1024;
        QTest::newRow("tall") << 900 << 3000 << 307 << 1024;
        QTest::newRow("thin strip") << 5000 << 3 << 1024 << 1;
    }
    void workingSize()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(int, workingWidth);
        QFETCH(int, workingHeight);
        const QString path = file(QStringLiteral("size_%1x%2.png").arg(width).arg(height));
        QVERIFY(cv::imwrite(QFile::encodeName(path).toStdString(),
            cv::Mat(height, width, CV_8UC3, cv::Scalar(10, 200, 30))));
        int w = 0;
        int h = 0;
        const cv::Mat mat = TReadImage::readImage(path, &w, &h);
        QCOMPARE(w, width);
        QCOMPARE(h, height);
        QCOMPARE(mat.cols, workingWidth);
        QCOMPARE(mat.rows, workingHeight);
        if (width > 1024 || height > 1024)
            QVERIFY(logText().contains(
                QString::asprintf("[TReadImage]: Resized image from %dx%d to %dx%d", width, height,
                    workingWidth, workingHeight)));
    }

    void conversionsKeepColours()
    {
        cv::Mat bgr(2, 3, CV_8UC3, cv::Scalar(255, 0, 0)); // blue in BGR
        const QImage image = TReadImage::mat2QImage(bgr);
        QCOMPARE(image.pixelColor(1, 1), QColor(0, 0, 255));
        const cv::Mat back = TReadImage::qimage2Mat(image);
        QCOMPARE(back.at<cv::Vec3b>(1, 2), cv::Vec3b(255, 0, 0));
        QVERIFY(TReadImage::mat2QImage(cv::Mat(2, 2, CV_32FC1)).isNull());
        QVERIFY(logText().contains("[TReadImage]: mat2QImage: Unsupported cv::Mat type: 5"));
        QVERIFY(TReadImage::qimage2Mat(QImage()).empty());
        QVERIFY(logText().contains("[TReadImage]: qimage2Mat: result is empty!"));
    }

    void loadTaskReportsThumbnailOrCancel_data()
    {
        QTest::addColumn<bool>("cancelFirst");
        QTest::newRow("runs") << false;
        QTest::newRow("cancelled") << true;
    }
    void loadTaskReportsThumbnailOrCancel()
    {
        QFETCH(bool, cancelFirst);
        const QString path = writePicture("jpg", fixtures::makeScene(1200, 600, 6), "thumb");
        // The task is a tagged member of a similar group, as the result model passes it.
        const QString entry = GroupMember {path, 87}.entry();
        auto *task = new ImageLoadTask(7, 1, entry, false);
        QSignalSpy spy(task, &ImageLoadTask::finished);
        if (cancelFirst)
            task->cancel();
        task->setAutoDelete(false);
        QThreadPool::globalInstance()->start(task);
        QVERIFY(QThreadPool::globalInstance()->waitForDone(30000));
        QCOMPARE(spy.count(), 1);
        const QList<QVariant> args = spy.takeFirst();
        QCOMPARE(args.at(0).toInt(), 7);
        QCOMPARE(args.at(1).toBool(), cancelFirst);
        QCOMPARE(args.at(2).toString(), entry);
        const QImage image = args.at(3).value<QImage>();
        if (cancelFirst) {
            QVERIFY(image.isNull());
        } else {
            QCOMPARE(image.size(), QSize(256, 128));
        }
        delete task;
    }
};

QTEST_GUILESS_MAIN(tst_ImageLoading)
#include "tst_ImageLoading.moc"
