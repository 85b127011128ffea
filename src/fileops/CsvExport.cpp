// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/CsvExport.h"

#include "engine/FilePathCodec.h"
#include "engine/FileStamp.h"
#include "engine/GroupMember.h"
#include "engine/ProtectedFolders.h"
#include "engine/TFileData.h"

#include <QDateTime>
#include <QIODevice>
#include <QSet>

namespace {

const QByteArray kHeader = "group,match,path,size,modified,selected,protected,similarity\r\n";

QByteArray matchOf(const TFileData &store, const QString &key, bool folders, bool similar)
{
    if (folders)
        return "folder";
    if (similar)
        return "similar";
    switch (store.groupMatch(key)) {
    case TFileData::MatchName:
        return "name";
    case TFileData::MatchSampled:
        return "sampled";
    case TFileData::MatchContent:
        break;
    }
    return "identical";
}

QByteArray timeOf(qint64 modifiedNs)
{
    if (modifiedNs <= 0)
        return {};
    return QDateTime::fromMSecsSinceEpoch(modifiedNs / 1000000, Qt::UTC)
        .toString(Qt::ISODate)
        .toLatin1();
}

} // namespace

QByteArray CsvExport::field(const QByteArray &value)
{
    if (!value.contains(',') && !value.contains('"') && !value.contains('\n')
        && !value.contains('\r'))
        return value;
    QByteArray quoted = value;
    quoted.replace('"', "\"\"");
    return '"' + quoted + '"';
}

bool CsvExport::write(QIODevice &out, const QStringList &order, QString *error)
{
    const TFileData &store = *TFileData::instance();
    const TFileData::Groups groups = store.groups();
    const TFileData::DirGroups dirGroups = store.dirGroups();
    const TFileData::Groups selected = store.selected();
    const TFileData::Stamps stamps = store.stamps();
    const ProtectedFolders protectedFolders = store.protectedFolders();

    QByteArray text = kHeader;
    bool ok = true;
    const auto flush = [&](bool always) {
        if (!always && text.size() < (1 << 20))
            return;
        ok = ok && out.write(text) == text.size();
        text.clear();
    };
    int number = 0;
    for (const QString &key : TFileData::orderedKeys(groups, dirGroups, order)) {
        const bool folders = !groups.contains(key);
        QList<GroupMember> members;
        QHash<QString, qint64> folderSizes;
        if (folders) {
            for (const DirGroupEntry &entry : dirGroups.value(key)) {
                members.append(GroupMember {entry.folderPath});
                folderSizes.insert(entry.folderPath, entry.totalSize);
            }
        } else {
            members = GroupMember::fromEntries(groups.value(key));
        }
        QStringList entries;
        for (const GroupMember &member : std::as_const(members))
            entries.append(member.entry());
        // As on the result page: a group of protected copies only offers nothing to do.
        if (protectedFolders.protectsEvery(entries))
            continue;
        const QStringList chosenList = selected.value(key);
        const QSet<QString> chosen(chosenList.cbegin(), chosenList.cend());
        const QByteArray group = QByteArray::number(++number);
        const QByteArray match = matchOf(store, key, folders, GroupMember::anySimilar(members));
        for (const GroupMember &member : std::as_const(members)) {
            FileStamp stamp = stamps.value(member.path);
            if (!stamp.isValid())
                stamp = FileStamp::of(member.path);
            const qint64 size = folders ? folderSizes.value(member.path)
                                        : (stamp.isValid() ? stamp.size : qint64(-1));
            text += group + ',' + match + ',' + field(FilePathCodec::encode(member.path)) + ','
                + (size >= 0 ? QByteArray::number(size) : QByteArray()) + ','
                + timeOf(stamp.isValid() ? stamp.modifiedNs : 0) + ','
                + (chosen.contains(member.entry()) ? '1' : '0') + ','
                + (protectedFolders.protects(member.path) ? '1' : '0') + ','
                + (member.isSimilar() ? QByteArray::number(member.similarity) : QByteArray())
                + "\r\n";
            flush(false);
        }
    }
    flush(true);
    if (!ok && error)
        *error = out.errorString();
    return ok;
}
