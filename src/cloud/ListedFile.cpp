// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/ListedFile.h"

#include <QDate>
#include <QDateTime>

bool ListedFile::setHash(QStringView hex, quint8 type)
{
    if (hex.isEmpty() || hex.size() % 2 != 0 || hex.size() / 2 > kMaxHash)
        return false;
    const auto digit = [](char16_t c) -> int {
        if (c >= '0' && c <= '9')
            return c - '0';
        if (c >= 'a' && c <= 'f')
            return c - 'a' + 10;
        if (c >= 'A' && c <= 'F')
            return c - 'A' + 10;
        return -1;
    };
    for (qsizetype i = 0; i < hex.size(); i += 2) {
        const int high = digit(hex.at(i).unicode());
        const int low = digit(hex.at(i + 1).unicode());
        if (high < 0 || low < 0)
            return false;
        hash[i / 2] = char(high << 4 | low);
    }
    hashLength = quint8(hex.size() / 2);
    hashType = type;
    return true;
}

qint64 ListedFile::parseTime(QStringView text)
{
    // The common form "2024-05-01T10:20:30.123456789Z" is read by hand: a general parse
    // per file would cost more than the rest of the listing's handling together.
    const auto number = [&text](qsizetype at, int digits) {
        int value = 0;
        for (int i = 0; i < digits; ++i) {
            const int d = text.at(at + i).unicode() - '0';
            if (d < 0 || d > 9)
                return -1;
            value = value * 10 + d;
        }
        return value;
    };
    if (text.size() >= 20 && text.at(4) == '-' && text.at(7) == '-' && text.at(10) == 'T'
        && text.at(13) == ':' && text.at(16) == ':') {
        const QDate date(number(0, 4), number(5, 2), number(8, 2));
        const int hours = number(11, 2), minutes = number(14, 2), seconds = number(17, 2);
        if (date.isValid() && hours >= 0 && minutes >= 0 && seconds >= 0) {
            qint64 ms = (date.toJulianDay() - 2440588) * 86400000LL
                + (hours * 3600LL + minutes * 60LL + seconds) * 1000;
            qsizetype i = 19;
            if (text.at(i) == '.') {
                int scale = 100;
                for (++i; i < text.size() && text.at(i).isDigit(); ++i, scale /= 10)
                    ms += (text.at(i).unicode() - '0') * scale;
            }
            if (i == text.size() - 1 && text.at(i) == 'Z')
                return ms;
            if (i + 6 == text.size() && (text.at(i) == '+' || text.at(i) == '-')) {
                const int offset = number(i + 1, 2) * 60 + number(i + 4, 2);
                if (offset >= 0)
                    return ms - (text.at(i) == '+' ? 1 : -1) * offset * 60000LL;
            }
        }
    }
    const QDateTime parsed = QDateTime::fromString(text.toString(), Qt::ISODateWithMs);
    return parsed.isValid() ? parsed.toMSecsSinceEpoch() : 0;
}
