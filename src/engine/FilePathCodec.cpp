// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/FilePathCodec.h"

namespace {

// A byte b (0x80 to 0xFF; ASCII is always valid) is carried as U+DC00 + b.
constexpr char16_t kEscapeBase = 0xDC00;
constexpr char16_t kEscapeFirst = 0xDC80;
constexpr char16_t kEscapeLast = 0xDCFF;

// Length of the valid UTF-8 sequence starting at bytes[i], or 0 when it is not valid
// (overlong forms, surrogates and code points above U+10FFFF are invalid too).
int validSequenceLength(const unsigned char *bytes, qsizetype i, qsizetype length)
{
    const unsigned char lead = bytes[i];
    if (lead < 0x80)
        return 1;
    int count = 0;
    char32_t minimum = 0;
    char32_t value = 0;
    if ((lead & 0xE0) == 0xC0) {
        count = 2;
        minimum = 0x80;
        value = lead & 0x1F;
    } else if ((lead & 0xF0) == 0xE0) {
        count = 3;
        minimum = 0x800;
        value = lead & 0x0F;
    } else if ((lead & 0xF8) == 0xF0) {
        count = 4;
        minimum = 0x10000;
        value = lead & 0x07;
    } else {
        return 0;
    }
    if (i + count > length)
        return 0;
    for (int k = 1; k < count; ++k) {
        const unsigned char next = bytes[i + k];
        if ((next & 0xC0) != 0x80)
            return 0;
        value = (value << 6) | (next & 0x3F);
    }
    if (value < minimum || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))
        return 0;
    return count;
}

} // namespace

QString FilePathCodec::decode(const char *bytes, qsizetype length)
{
    const auto *data = reinterpret_cast<const unsigned char *>(bytes);
    // Fast path: plain ASCII or valid UTF-8 is what nearly every name is.
    qsizetype i = 0;
    while (i < length) {
        const int n = validSequenceLength(data, i, length);
        if (n == 0)
            break;
        i += n;
    }
    if (i == length)
        return QString::fromUtf8(bytes, length);

    QString out = QString::fromUtf8(bytes, i);
    while (i < length) {
        const int n = validSequenceLength(data, i, length);
        if (n == 0) {
            out.append(QChar(char16_t(kEscapeBase + data[i])));
            ++i;
        } else {
            out.append(QString::fromUtf8(bytes + i, n));
            i += n;
        }
    }
    return out;
}

QByteArray FilePathCodec::encode(const QString &path)
{
    if (!hasEscapedBytes(path))
        return path.toUtf8();
    QByteArray out;
    out.reserve(path.size() * 3);
    qsizetype start = 0;
    for (qsizetype i = 0; i < path.size(); ++i) {
        const char16_t c = path.at(i).unicode();
        const bool lone = c >= kEscapeFirst && c <= kEscapeLast
            && (i == 0 || !QChar::isHighSurrogate(path.at(i - 1).unicode()));
        if (!lone)
            continue;
        out.append(QStringView(path).mid(start, i - start).toUtf8());
        out.append(char(c - kEscapeBase));
        start = i + 1;
    }
    out.append(QStringView(path).mid(start).toUtf8());
    return out;
}

bool FilePathCodec::hasEscapedBytes(const QString &path)
{
    for (qsizetype i = 0; i < path.size(); ++i) {
        const char16_t c = path.at(i).unicode();
        if (c >= kEscapeFirst && c <= kEscapeLast
            && (i == 0 || !QChar::isHighSurrogate(path.at(i - 1).unicode())))
            return true;
    }
    return false;
}
