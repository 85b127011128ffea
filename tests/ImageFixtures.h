// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Pictures made by the tests themselves: drawn scenes, HEIC files encoded through
// libheif, and a minimal DNG whose embedded JPEG preview LibRaw returns.

#include <libheif/heif.h>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>
#include <vector>

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QtEndian>

namespace fixtures {

// A scene of random rectangles and circles on a gradient; the same seed gives the same
// picture, different seeds give pictures that share nothing.
inline cv::Mat makeScene(int width, int height, int seed)
{
    cv::RNG rng(uint64(seed) * 7919u + 17u);
    cv::Mat mat(height, width, CV_8UC3);
    const cv::Scalar base(rng.uniform(0, 255), rng.uniform(0, 255), rng.uniform(0, 255));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            mat.at<cv::Vec3b>(y, x) = cv::Vec3b(uchar(int(base[0] + x * 60 / width) % 256),
                uchar(int(base[1] + y * 60 / height) % 256), uchar(base[2]));
        }
    }
    const int shapes = 40;
    for (int i = 0; i < shapes; ++i) {
        const cv::Scalar colour(rng.uniform(0, 255), rng.uniform(0, 255), rng.uniform(0, 255));
        const cv::Point p1(rng.uniform(0, width), rng.uniform(0, height));
        if (i % 2 == 0) {
            const cv::Point p2(rng.uniform(0, width), rng.uniform(0, height));
            cv::rectangle(mat, p1, p2, colour, cv::FILLED);
        } else {
            cv::circle(mat, p1, rng.uniform(2, std::max(3, std::min(width, height) / 6)), colour,
                cv::FILLED);
        }
    }
    return mat;
}

inline bool writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

inline QByteArray encode(const cv::Mat &mat, const std::string &ext, std::vector<int> params = {})
{
    std::vector<uchar> buffer;
    if (!cv::imencode(ext, mat, buffer, params))
        return {};
    return QByteArray(reinterpret_cast<const char *>(buffer.data()), int(buffer.size()));
}

// HEIC through libheif's HEVC encoder, optionally with an embedded thumbnail.
inline bool writeHeic(const QString &path, const cv::Mat &bgr, int thumbnailSide)
{
    heif_context *context = heif_context_alloc();
    heif_encoder *encoder = nullptr;
    heif_image *image = nullptr;
    heif_image_handle *handle = nullptr;
    heif_image_handle *thumb = nullptr;
    bool ok = heif_context_get_encoder_for_format(context, heif_compression_HEVC, &encoder).code
        == heif_error_Ok;
    if (ok) {
        heif_encoder_set_lossy_quality(encoder, 90);
        ok = heif_image_create(
                 bgr.cols, bgr.rows, heif_colorspace_RGB, heif_chroma_interleaved_RGB, &image)
                 .code
            == heif_error_Ok;
    }
    if (ok)
        ok = heif_image_add_plane(image, heif_channel_interleaved, bgr.cols, bgr.rows, 8).code
            == heif_error_Ok;
    if (ok) {
        int stride = 0;
        uint8_t *plane = heif_image_get_plane(image, heif_channel_interleaved, &stride);
        cv::Mat rgb(bgr.rows, bgr.cols, CV_8UC3, plane, size_t(stride));
        cv::cvtColor(bgr, rgb, cv::COLOR_BGR2RGB);
        ok = heif_context_encode_image(context, image, encoder, nullptr, &handle).code
            == heif_error_Ok;
    }
    if (ok && thumbnailSide > 0)
        ok = heif_context_encode_thumbnail(
                 context, image, handle, encoder, nullptr, thumbnailSide, &thumb)
                 .code
            == heif_error_Ok;
    if (ok)
        ok = heif_context_write_to_file(context, QFile::encodeName(path).constData()).code
            == heif_error_Ok;
    if (thumb)
        heif_image_handle_release(thumb);
    if (handle)
        heif_image_handle_release(handle);
    if (image)
        heif_image_release(image);
    if (encoder)
        heif_encoder_release(encoder);
    heif_context_free(context);
    return ok;
}

// Little-endian TIFF directory builder for the minimal DNG.
class TiffIfd
{
public:
    void add(quint16 tag, quint16 type, quint32 count, const QByteArray &value)
    {
        m_entries.append({tag, type, count, value});
    }
    // Numbers of one TIFF type, little-endian.
    template<typename T>
    void add(quint16 tag, quint16 type, std::initializer_list<T> values)
    {
        QByteArray v;
        for (T x : values)
            v.append(le(x));
        add(tag, type, quint32(values.size()), v);
    }
    void addShort(quint16 tag, std::initializer_list<quint16> values) { add(tag, 3, values); }
    void addLong(quint16 tag, quint32 value) { add<quint32>(tag, 4, {value}); }
    void addBytes(quint16 tag, std::initializer_list<quint8> values) { add(tag, 1, values); }
    void addAscii(quint16 tag, const QByteArray &text)
    {
        add(tag, 2, quint32(text.size() + 1), text + '\0');
    }
    // Appends the directory (entries sorted by tag) and its out-of-line values to out;
    // returns the directory's offset.
    quint32 writeTo(QByteArray &out) const
    {
        if (out.size() % 2)
            out.append('\0');
        const quint32 offset = quint32(out.size());
        auto entries = m_entries;
        std::sort(entries.begin(), entries.end(),
            [](const Entry &a, const Entry &b) { return a.tag < b.tag; });
        quint32 extra = offset + 2 + quint32(entries.size()) * 12 + 4;
        QByteArray dir;
        QByteArray values;
        dir.append(le<quint16>(quint16(entries.size())));
        for (const Entry &e : entries) {
            dir.append(le<quint16>(e.tag));
            dir.append(le<quint16>(e.type));
            dir.append(le<quint32>(e.count));
            if (e.value.size() <= 4) {
                QByteArray inlineValue = e.value;
                inlineValue.append(QByteArray(4 - inlineValue.size(), '\0'));
                dir.append(inlineValue);
            } else {
                dir.append(le<quint32>(extra + quint32(values.size())));
                values.append(e.value);
                if (values.size() % 2)
                    values.append('\0');
            }
        }
        dir.append(le<quint32>(0));
        out.append(dir);
        out.append(values);
        return offset;
    }
    template<typename T>
    static QByteArray le(T v)
    {
        QByteArray b(sizeof(T), '\0');
        qToLittleEndian(v, b.data());
        return b;
    }

private:
    struct Entry
    {
        quint16 tag;
        quint16 type;
        quint32 count;
        QByteArray value;
    };
    QList<Entry> m_entries;
};

// Minimal DNG: IFD0 is the JPEG preview, its SubIFD a 16-bit uncompressed RGGB raw image
// larger than the preview. previewJpeg empty gives a DNG whose preview strip is garbage.
inline QByteArray makeDng(const QByteArray &previewJpeg, int previewW, int previewH)
{
    const int rawW = previewW * 2;
    const int rawH = previewH * 2;
    QByteArray out("II");
    out.append(TiffIfd::le<quint16>(42));
    out.append(TiffIfd::le<quint32>(0)); // patched below
    const quint32 jpegOffset = quint32(out.size());
    out.append(previewJpeg);
    if (out.size() % 2)
        out.append('\0');
    const quint32 rawOffset = quint32(out.size());
    QByteArray raw(rawW * rawH * 2, '\0');
    for (int i = 0; i < rawW * rawH; ++i)
        qToLittleEndian(quint16((i * 37) % 4096), raw.data() + 2 * i);
    out.append(raw);

    TiffIfd sub;
    sub.addLong(254, 0);
    sub.addLong(256, quint32(rawW));
    sub.addLong(257, quint32(rawH));
    sub.addShort(258, {16});
    sub.addShort(259, {1});
    sub.addShort(262, {32803});
    sub.addLong(273, rawOffset);
    sub.addShort(277, {1});
    sub.addLong(278, quint32(rawH));
    sub.addLong(279, quint32(raw.size()));
    sub.addShort(33421, {2, 2});
    sub.addBytes(33422, {0, 1, 1, 2});
    sub.addLong(50717, 4095);
    const quint32 subOffset = sub.writeTo(out);

    TiffIfd ifd0;
    ifd0.addLong(254, 1);
    ifd0.addLong(256, quint32(previewW));
    ifd0.addLong(257, quint32(previewH));
    ifd0.addShort(258, {8, 8, 8});
    ifd0.addShort(259, {7});
    ifd0.addShort(262, {6});
    ifd0.addAscii(271, "Testmaker");
    ifd0.addAscii(272, "Model T");
    ifd0.addLong(273, jpegOffset);
    ifd0.addShort(277, {3});
    ifd0.addLong(278, quint32(previewH));
    ifd0.addLong(279, quint32(previewJpeg.size()));
    ifd0.addLong(330, subOffset);
    ifd0.addBytes(50706, {1, 4, 0, 0});
    ifd0.addBytes(50707, {1, 1, 0, 0});
    ifd0.addAscii(50708, "Testmaker Model T");
    QByteArray matrix;
    const qint32 m[9] = {10000, 0, 0, 0, 10000, 0, 0, 0, 10000};
    for (qint32 v : m) {
        matrix.append(TiffIfd::le<quint32>(quint32(v)));
        matrix.append(TiffIfd::le<quint32>(10000));
    }
    ifd0.add(50721, 10, 9, matrix);
    ifd0.addShort(50778, {21});
    const quint32 ifd0Offset = ifd0.writeTo(out);
    qToLittleEndian(ifd0Offset, out.data() + 4);
    return out;
}

} // namespace fixtures
