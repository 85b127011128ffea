// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CliText.h"

namespace CliText {

void writeJsonString(std::FILE *out, const QString &text)
{
    QByteArray buffer;
    buffer.reserve(text.size() + 8);
    buffer.append('"');
    // Characters that need no escape are converted a run at a time: one conversion per
    // path instead of one per character.
    qsizetype run = 0;
    const auto flush = [&](qsizetype end) {
        if (end > run)
            buffer.append(QStringView(text).mid(run, end - run).toUtf8());
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text.at(i).unicode();
        if (c == '"' || c == '\\') {
            flush(i);
            buffer.append('\\').append(char(c));
            run = i + 1;
        } else if (c < 0x20) {
            flush(i);
            buffer.append(QStringLiteral("\\u%1").arg(int(c), 4, 16, QLatin1Char('0')).toLatin1());
            run = i + 1;
        } else if (QChar::isSurrogate(c)) {
            const bool paired = QChar::isHighSurrogate(c) && i + 1 < text.size()
                && QChar::isLowSurrogate(text.at(i + 1).unicode());
            if (paired) {
                ++i;
            } else {
                flush(i);
                buffer.append(
                    QStringLiteral("\\u%1").arg(int(c), 4, 16, QLatin1Char('0')).toLatin1());
                run = i + 1;
            }
        }
    }
    flush(text.size());
    buffer.append('"');
    std::fwrite(buffer.constData(), 1, size_t(buffer.size()), out);
}

void writeJsonList(std::FILE *out, const QStringList &items)
{
    std::fputc('[', out);
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (i)
            std::fputs(", ", out);
        writeJsonString(out, items.at(i));
    }
    std::fputc(']', out);
}

QByteArray lineText(const QString &text)
{
    QByteArray out;
    out.reserve(text.size() + 8);
    qsizetype run = 0;
    const auto flush = [&](qsizetype end) {
        if (end > run)
            out.append(QStringView(text).mid(run, end - run).toUtf8());
    };
    const auto hex = [&out](unsigned value) {
        static const char digits[] = "0123456789abcdef";
        out.append("\\x").append(digits[(value >> 4) & 0xF]).append(digits[value & 0xF]);
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text.at(i).unicode();
        const bool lone = c >= 0xDC80 && c <= 0xDCFF
            && (i == 0 || !QChar::isHighSurrogate(text.at(i - 1).unicode()));
        if (c != '\\' && c >= 0x20 && c != 0x7F && !(c >= 0x80 && c <= 0x9F) && !lone)
            continue;
        flush(i);
        run = i + 1;
        if (c == '\\')
            out.append("\\\\");
        else if (c == '\n')
            out.append("\\n");
        else if (c == '\r')
            out.append("\\r");
        else if (c == '\t')
            out.append("\\t");
        else if (lone)
            hex(c - 0xDC00);
        else
            hex(c);
    }
    flush(text.size());
    return out;
}

} // namespace CliText
