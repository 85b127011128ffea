// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

// The groups of the command line's JSON report, one "kind:name,name" line per group with
// the names relative to root and sorted, and " sel:name,..." after it when withSelection;
// a group of files not compared whole is of the kind "files (not verified)".
// Every member is a real path; similar groups give each member's percent in "similarity",
// file groups give none: an entry that breaks this, or a percentage outside 0..99 (0: the picture
// the others were compared with), comes back as the only line, naming the fault.
inline QStringList reportGroups(const QByteArray &json, const QString &root, bool withSelection)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return {QStringLiteral("not JSON: ") + QString::fromUtf8(json.left(200))};
    QStringList out;
    QString fault;
    for (const QJsonValue &value : document.object().value("groups").toArray()) {
        const QJsonObject group = value.toObject();
        const QString kind = group.value("kind").toString();
        const bool similar = kind == QLatin1String("similar");
        const QJsonArray percents = group.value("similarity").toArray();
        if (similar != group.contains("similarity")
            || (similar && percents.size() != group.value("files").toArray().size()))
            fault = QStringLiteral("similarity list wrong in a group of ") + kind;
        for (const QJsonValue &percent : percents)
            if (percent.toInt() < 0 || percent.toInt() > 99)
                fault
                    = QStringLiteral("percent outside 0..99: ") + QString::number(percent.toInt());
        const auto names = [&](const char *list) {
            QStringList names;
            for (const QJsonValue &file : group.value(list).toArray()) {
                const QString entry = file.toString();
                if (entry.contains(QLatin1String("_simlar_")))
                    fault = QStringLiteral("tagged path: ") + entry;
                names.append(entry.mid(root.size() + 1));
            }
            names.sort();
            return names.join(QLatin1Char(','));
        };
        const bool verified = group.value("verified").toBool(true);
        if (!similar && group.contains("verified") != (kind == QLatin1String("files")))
            fault = QStringLiteral("\"verified\" wrong in a group of ") + kind;
        out.append(kind + (verified ? QString() : QStringLiteral(" (not verified)"))
            + QLatin1Char(':') + names("files")
            + (withSelection ? QStringLiteral(" sel:") + names("selected") : QString()));
    }
    if (!fault.isEmpty())
        return {fault};
    out.sort();
    return out;
}
