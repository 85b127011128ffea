// SPDX-License-Identifier: GPL-3.0-or-later
// libFuzzer target for the picture reader: the first input byte picks the file's
// extension (and so the decoder chain), the rest is the file's content. Any crash, hang
// or sanitizer report in a decoder path the reader drives is a finding.

#include "pictures/TReadImage.h"

#include <cstddef>
#include <cstdint>

#include <QFile>
#include <QTemporaryDir>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const char *const extensions[] = {"jpg", "png", "webp", "tif", "bmp", "heic", "dng"};
    static QTemporaryDir dir;
    if (size < 1 || !dir.isValid())
        return 0;
    const QString path
        = dir.filePath(QStringLiteral("input.") + QLatin1String(extensions[data[0] % 7]));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return 0;
        file.write(reinterpret_cast<const char *>(data + 1), qint64(size - 1));
    }
    int w = 0;
    int h = 0;
    const cv::Mat mat = TReadImage::readImage(path, &w, &h);
    if (!mat.empty()
        && (mat.cols > TReadImage::kWorkingSize || mat.rows > TReadImage::kWorkingSize))
        __builtin_trap();
    QFile::remove(path);
    return 0;
}
