// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QStringList>

// The scanner's filters as the preferences snapshot sets them: the size range, the one
// file-type list in force, the ignore list and the hidden-files setting. Set before a
// run and only read during it, so the walking threads share it without a lock.
class ScanFilters
{
public:
    void apply(const QJsonObject &common);
    // Builds the lower-cased ignore list; once per run, before the walk.
    void prepare();

    qint64 minimumSize() const { return minSize; }
    qint64 maximumSize() const { return maxSize; }
    QStringList onlyFileTypes() const { return onlyTypes; }
    QStringList ignoredFileTypes() const { return ignoreTypes; }
    bool skipsHiddenAndSystem() const { return skipHiddenSystem; }

    bool hasIgnoredPaths() const { return !m_ignoredLower.isEmpty(); }
    bool hasTypeFilters() const { return !(onlyTypes.isEmpty() && ignoreTypes.isEmpty()); }
    bool isOutsideSizeRange(qint64 size) const { return size < minSize || size > maxSize; }
    bool isIgnoredPath(const QString &path) const;
    // The path or one of its folders is on the ignore list.
    bool isUnderIgnoredPath(const QString &path) const;
    bool passesFileFilters(const QString &fileName, qint64 size) const;

private:
    qint64 minSize = 0;
    qint64 maxSize = 9223372036854775807LL;
    QStringList ignorePaths;
    QStringList onlyTypes;
    QStringList ignoreTypes;
    bool skipHiddenSystem = true;
    int scanFileType = 0;
    // Lower-cased ignorePaths, for the case-insensitive test on every entry.
    QStringList m_ignoredLower;
};
