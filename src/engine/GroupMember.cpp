// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/GroupMember.h"

#include <algorithm>

#include <QRegularExpression>

namespace {

// The entry of a similar picture is its path, this tag, "_" and its percent.
const QString kSimilarTag = QStringLiteral("_simlar");

} // namespace

QString GroupMember::entry() const
{
    return isSimilar() ? path + kSimilarTag + QLatin1Char('_') + QString::number(similarity) : path;
}

GroupMember GroupMember::fromEntry(const QString &entry)
{
    // Nearly every entry carries no tag; the pattern runs only on the few that might.
    if (!entry.contains(kSimilarTag))
        return {entry};
    // Only a percent entry() could have written: an entry read back is written back as it
    // was, so that the store finds it by the same name.
    static const QRegularExpression pattern(
        QStringLiteral("^(.*)%1_(0|[1-9][0-9]{0,8})$").arg(kSimilarTag));
    const QRegularExpressionMatch match = pattern.match(entry);
    if (!match.hasMatch())
        return {entry};
    return {match.captured(1), match.captured(2).toInt()};
}

QList<GroupMember> GroupMember::fromEntries(const QStringList &entries)
{
    QList<GroupMember> members;
    members.reserve(entries.size());
    for (const QString &entry : entries)
        members.append(fromEntry(entry));
    return members;
}

QStringList GroupMember::entries(const QList<GroupMember> &members)
{
    QStringList entries;
    entries.reserve(members.size());
    for (const GroupMember &member : members)
        entries.append(member.entry());
    return entries;
}

QStringList GroupMember::paths(const QList<GroupMember> &members)
{
    QStringList paths;
    paths.reserve(members.size());
    for (const GroupMember &member : members)
        paths.append(member.path);
    return paths;
}

bool GroupMember::anySimilar(const QList<GroupMember> &members)
{
    return std::any_of(members.cbegin(), members.cend(),
        [](const GroupMember &member) { return member.isSimilar(); });
}
