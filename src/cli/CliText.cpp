// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CliText.h"

#include <string>

#include <QStringEncoder>

namespace CliText {

void writeJsonString(std::FILE *out, const QString &text)
{
    // One buffer per thread, kept between calls: a report writes tens of thousands of
    // names, and nearly all of them are plain ASCII, copied a character at a time.
    thread_local std::string buffer;
    thread_local QStringEncoder toUtf8(QStringEncoder::Utf8);
    buffer.clear();
    buffer.push_back('"');
    const QStringView view(text);
    const auto escape = [](std::string &to, char16_t c) {
        static const char digits[] = "0123456789abcdef";
        to.append("\\u");
        for (int shift = 12; shift >= 0; shift -= 4)
            to.push_back(digits[(c >> shift) & 0xF]);
    };
    for (qsizetype i = 0; i < view.size(); ++i) {
        const char16_t c = view.at(i).unicode();
        if (c < 0x80) {
            if (c == '"' || c == '\\') {
                buffer.push_back('\\');
                buffer.push_back(char(c));
            } else if (c < 0x20) {
                escape(buffer, c);
            } else {
                buffer.push_back(char(c));
            }
            continue;
        }
        // Everything else up to the next ASCII character at once; a surrogate without its
        // partner (a byte that was not UTF-8) becomes an escape instead.
        qsizetype end = i;
        while (end < view.size() && view.at(end).unicode() >= 0x80) {
            const char16_t u = view.at(end).unicode();
            if (!QChar::isSurrogate(u)) {
                ++end;
                continue;
            }
            if (QChar::isHighSurrogate(u) && end + 1 < view.size()
                && QChar::isLowSurrogate(view.at(end + 1).unicode())) {
                end += 2;
                continue;
            }
            break;
        }
        if (end > i) {
            const QStringView run = view.mid(i, end - i);
            const size_t before = buffer.size();
            buffer.resize(before + size_t(toUtf8.requiredSpace(run.size())));
            char *written = toUtf8.appendToBuffer(buffer.data() + before, run);
            buffer.resize(size_t(written - buffer.data()));
            i = end - 1;
        } else {
            escape(buffer, view.at(i).unicode());
        }
    }
    buffer.push_back('"');
    std::fwrite(buffer.data(), 1, buffer.size(), out);
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
