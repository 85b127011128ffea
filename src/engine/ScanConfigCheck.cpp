// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ScanConfigCheck.h"

#include "app/SnapshotKeys.h"
#include "preferences/PreferenceRanges.h"

#include <cmath>

#include <QCoreApplication>
#include <QJsonValue>

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("ScanConfigCheck", text);
}

// The value as the message shows it: a number as written, anything else quoted.
QString shown(const QJsonValue &value)
{
    if (value.isDouble())
        return QString::number(value.toDouble(), 'g', 15);
    return QLatin1Char('"') + value.toVariant().toString() + QLatin1Char('"');
}

bool inRange(const QJsonValue &value, const PreferenceRanges::Range &range)
{
    return value.isDouble() && std::isfinite(value.toDouble()) && range.contains(value.toDouble());
}

// Appends the sentence when the key is present and its value is outside the range.
void check(const QJsonObject &snapshot, const PreferenceRanges::Range &range, const char *text,
    QStringList &out)
{
    const QJsonValue value = snapshot.value(QLatin1String(range.key));
    if (value.isUndefined() || inRange(value, range))
        return;
    out.append(translated(text).arg(shown(value)).arg(range.minimum).arg(range.maximum));
}

} // namespace

QStringList ScanConfigCheck::problems(const QJsonObject &common, const QJsonObject &similar)
{
    using namespace PreferenceRanges;
    QStringList out;
    check(common, MinFileSize,
        QT_TRANSLATE_NOOP("ScanConfigCheck", "The minimum file size %1 KB is outside %2 to %3 KB."),
        out);
    check(common, MaxFileSize,
        QT_TRANSLATE_NOOP("ScanConfigCheck", "The maximum file size %1 MB is outside %2 to %3 MB."),
        out);
    if (out.isEmpty()) {
        const double minimum
            = common.value(QLatin1String(MinFileSize.key)).toDouble(double(MinFileSize.minimum));
        const double maximum
            = common.value(QLatin1String(MaxFileSize.key)).toDouble(double(MaxFileSize.maximum));
        if (!sizeBoundsValid(minimum, maximum))
            out.append(translated(
                QT_TRANSLATE_NOOP("ScanConfigCheck",
                    "The minimum file size %1 KB is not below the maximum file size %2 MB, so no "
                    "file would be scanned."))
                           .arg(minimum)
                           .arg(maximum));
    }
    // Pass marks of a search that does not run do not matter.
    if (similar.value(SnapshotKeys::hasSimilar).toBool(false)) {
        check(similar, SimilarityValue,
            QT_TRANSLATE_NOOP(
                "ScanConfigCheck", "The similarity threshold %1% is outside %2% to %3%."),
            out);
        if (similar.value(SnapshotKeys::isAddFeatures).toBool(true))
            check(similar, FeaturesValue,
                QT_TRANSLATE_NOOP("ScanConfigCheck",
                    "The feature similarity threshold %1% is outside %2% to %3%."),
                out);
    }
    return out;
}
