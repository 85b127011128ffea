// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudPath.h"

CloudPath CloudPath::split(const QString &path)
{
    const qsizetype colon = path.indexOf(QLatin1Char(':'));
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    if (slash <= colon)
        return {path.left(colon + 1), path.mid(colon + 1)};
    return {path.left(slash), path.mid(slash + 1)};
}

QString CloudPath::join(const QString &folder, const QString &relative)
{
    if (folder.endsWith(QLatin1Char(':')) || folder.endsWith(QLatin1Char('/')))
        return folder + relative;
    return folder + QLatin1Char('/') + relative;
}

QStringList CloudPath::outermost(const QStringList &folders)
{
    const auto trimmed = [](QString folder) {
        while (folder.endsWith(QLatin1Char('/')) && !folder.endsWith(QLatin1String(":/")))
            folder.chop(1);
        return folder;
    };
    const auto inside = [](const QString &inner, const QString &outer) {
        if (!inner.startsWith(outer))
            return false;
        return inner.size() == outer.size() || outer.endsWith(QLatin1Char(':'))
            || outer.endsWith(QLatin1Char('/')) || inner.at(outer.size()) == QLatin1Char('/');
    };
    QStringList kept;
    for (qsizetype i = 0; i < folders.size(); ++i) {
        const QString folder = trimmed(folders.at(i));
        bool covered = false;
        for (qsizetype j = 0; j < folders.size() && !covered; ++j) {
            const QString other = trimmed(folders.at(j));
            // Of two equal folders the first one stays.
            covered = j != i && inside(folder, other) && (folder != other || j < i);
        }
        if (!covered)
            kept.append(folder);
    }
    return kept;
}
