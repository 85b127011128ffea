// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>

// The groups of the command line's JSON report, one "kind:name,name" line per group with
// the names relative to root and sorted, and " sel:name,..." after it when withSelection.
// Similar groups list tagged entries and nothing else, file groups never: an entry that
// breaks this, or a percentage above 99, comes back as the only line, naming the fault.
inline QStringList reportGroups(const QByteArray &json, const QString &root, bool withSelection)
{
    static const QRegularExpression tagged(QStringLiteral("^(.+)_simlar_(\\d+)$"));
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return {QStringLiteral("not JSON: ") + QString::fromUtf8(json.left(200))};
    QStringList out;
    QString fault;
    for (const QJsonValue &value : document.object().value("groups").toArray()) {
        const QJsonObject group = value.toObject();
        const QString kind = group.value("kind").toString();
        const auto names = [&](const char *list) {
            QStringList names;
            for (const QJsonValue &file : group.value(list).toArray()) {
                QString entry = file.toString();
                const QRegularExpressionMatch match = tagged.match(entry);
                if (match.hasMatch() != (kind == QLatin1String("similar")))
                    fault = QStringLiteral("wrongly tagged: ") + entry;
                else if (match.hasMatch() && match.captured(2).toInt() > 99)
                    fault = QStringLiteral("percent above 99: ") + entry;
                if (match.hasMatch())
                    entry = match.captured(1);
                names.append(entry.mid(root.size() + 1));
            }
            names.sort();
            return names.join(QLatin1Char(','));
        };
        out.append(kind + QLatin1Char(':') + names("files")
            + (withSelection ? QStringLiteral(" sel:") + names("selected") : QString()));
    }
    if (!fault.isEmpty())
        return {fault};
    out.sort();
    return out;
}
