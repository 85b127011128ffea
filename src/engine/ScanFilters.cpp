// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ScanFilters.h"

#include "app/SnapshotKeys.h"
#include "preferences/SettingsTable.h"

#include <QJsonArray>

void ScanFilters::apply(const QJsonObject &common)
{
    minSize = static_cast<qint64>(common.value(SnapshotKeys::minFileSize).toDouble(0.0)) << 10;
    maxSize = static_cast<qint64>(common.value(SnapshotKeys::maxFileSize)
                                      .toDouble(double(SettingsTable::MaxFileSize.byDefault)))
        << 20;
    skipHiddenSystem = common.value(SnapshotKeys::ignoreSystemHidden).toBool(true);
    scanFileType = common.value(SnapshotKeys::scanFileType).toInt(0);
    const auto readList = [&common](QLatin1String key, QStringList &target) {
        const QJsonValue value = common.value(key);
        if (!value.isArray())
            return;
        target.clear();
        for (const QJsonValue &item : value.toArray())
            target.append(item.toVariant().toString());
    };
    readList(SnapshotKeys::ignorePathFile, ignorePaths);
    readList(SnapshotKeys::ignoreFileType, ignoreTypes);
    readList(SnapshotKeys::onlyFileType, onlyTypes);
    // Exactly one of the two type lists is in force.
    if (scanFileType > 0)
        onlyTypes.clear();
    else
        ignoreTypes.clear();
}

void ScanFilters::prepare()
{
    m_ignoredLower.clear();
    for (const QString &path : std::as_const(ignorePaths)) {
        QString cleaned = path;
        while (cleaned.size() > 1
            && (cleaned.endsWith(QLatin1Char('/')) || cleaned.endsWith(QLatin1Char('\\'))))
            cleaned.chop(1);
        m_ignoredLower.append(cleaned.toLower());
    }
}

bool ScanFilters::isIgnoredPath(const QString &path) const
{
    return !m_ignoredLower.isEmpty() && m_ignoredLower.contains(path.toLower());
}

bool ScanFilters::isUnderIgnoredPath(const QString &path) const
{
    if (m_ignoredLower.isEmpty())
        return false;
    const QString lower = path.toLower();
    for (const QString &ignored : m_ignoredLower)
        if (lower == ignored
            || (lower.startsWith(ignored) && lower.at(ignored.size()) == QLatin1Char('/')))
            return true;
    return false;
}

bool ScanFilters::passesFileFilters(const QString &fileName, qint64 size) const
{
    if (size < minSize || size > maxSize)
        return false;
    if (onlyTypes.isEmpty() && ignoreTypes.isEmpty())
        return true;
    const qsizetype dot = fileName.lastIndexOf(QLatin1Char('.'));
    const QString suffix = dot < 0 ? QString() : fileName.mid(dot + 1).toLower();
    // The lists hold what the user typed: "JPG" and "jpg" are one format.
    if (!onlyTypes.isEmpty() && !onlyTypes.contains(suffix, Qt::CaseInsensitive))
        return false;
    return !ignoreTypes.contains(suffix, Qt::CaseInsensitive);
}
