// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ScanConfigCheck.h"

#include "app/SnapshotKeys.h"
#include "preferences/SettingsTable.h"

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

bool inRange(const QJsonValue &value, const SettingsTable::Setting &range)
{
    return value.isDouble() && std::isfinite(value.toDouble()) && range.contains(value.toDouble());
}

// Appends the sentence when the key is present and its value is outside the range.
void check(const QJsonObject &snapshot, const SettingsTable::Setting &range, const char *text,
    QStringList &out)
{
    const QJsonValue value = snapshot.value(range.snapshotKey);
    if (value.isUndefined() || inRange(value, range))
        return;
    out.append(translated(text).arg(shown(value)).arg(range.minimum).arg(range.maximum));
}

} // namespace

QStringList ScanConfigCheck::problems(const QJsonObject &common, const QJsonObject &similar)
{
    using namespace SettingsTable;
    QStringList out;
    check(common, MinFileSize,
        QT_TRANSLATE_NOOP("ScanConfigCheck", "The minimum file size %1 KB is outside %2 to %3 KB."),
        out);
    check(common, MaxFileSize,
        QT_TRANSLATE_NOOP("ScanConfigCheck", "The maximum file size %1 MB is outside %2 to %3 MB."),
        out);
    if (out.isEmpty()) {
        const double minimum
            = common.value(MinFileSize.snapshotKey).toDouble(double(MinFileSize.minimum));
        const double maximum
            = common.value(MaxFileSize.snapshotKey).toDouble(double(MaxFileSize.maximum));
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
