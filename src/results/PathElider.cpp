// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/PathElider.h"

#include <algorithm>

#include <QDir>
#include <QFontMetrics>

namespace {

bool isSeparator(QChar c)
{
    return c == QLatin1Char('/') || c == QDir::separator();
}

} // namespace

int PathElider::distinctFrom(const QStringList &folders)
{
    if (folders.size() < 2)
        return 0;
    const QString &first = folders.first();
    qsizetype common = first.size();
    bool allSame = true;
    for (const QString &folder : folders) {
        qsizetype at = 0;
        while (at < common && at < folder.size() && folder.at(at) == first.at(at))
            ++at;
        common = at;
        allSame = allSame && folder.size() == first.size();
    }
    // One folder for all: nothing in it tells them apart.
    if (allSame && common == first.size())
        return 0;
    // Back to the start of the segment the difference lies in.
    while (common > 0 && !isSeparator(first.at(common - 1)))
        --common;
    return int(common);
}

QString PathElider::elide(
    const QString &folder, int distinctFrom, const QFontMetrics &metrics, int width)
{
    if (metrics.horizontalAdvance(folder) <= width)
        return folder;
    if (distinctFrom <= 0 || distinctFrom >= folder.size())
        return metrics.elidedText(folder, Qt::ElideMiddle, width);
    // The separator before the difference, and one shared segment before it for context
    // when that fits.
    const qsizetype cut = distinctFrom - 1;
    if (cut == 0)
        return metrics.elidedText(folder, Qt::ElideRight, width);
    const QString ellipsis(QChar(0x2026));
    qsizetype context = cut;
    while (context > 0 && !isSeparator(folder.at(context - 1)))
        --context;
    if (context > 0) {
        const QString withContext = ellipsis + folder.mid(context - 1);
        if (metrics.horizontalAdvance(withContext) <= width)
            return withContext;
    }
    return metrics.elidedText(ellipsis + folder.mid(cut), Qt::ElideRight, width);
}
