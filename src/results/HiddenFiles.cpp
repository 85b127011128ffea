// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/HiddenFiles.h"

#include "engine/GroupMember.h"
#include "engine/TFileData.h"

#include <QFileInfo>

QString HiddenFiles::hide(const QString &key, const QString &path, bool undoable)
{
    // The store's own entry, as it holds it, is the one it lets go.
    QString entry = path;
    for (const QString &member : TFileData::instance()->group(key))
        if (GroupMember::fromEntry(member).path == path)
            entry = member;
    TFileData *store = TFileData::instance();
    HiddenFile hidden {key, QFileInfo(path).fileName(), store->group(key), store->selectedOf(key),
        store->dirGroup(key), int(store->groupMatch(key)), 0};
    store->removePath(key, entry);
    // Undo puts back exactly what was there, so it is offered only until anything else
    // changes the results. Cloud groups are not rebuilt here.
    hidden.revision = store->revision();
    m_hidden.clear();
    if (undoable)
        m_hidden.append(hidden);
    return entry;
}

QString HiddenFiles::undo()
{
    const HiddenFile hidden = m_hidden.takeLast();
    TFileData *store = TFileData::instance();
    if (store->revision() != hidden.revision)
        return QString();
    // The group as it was, whether the hide left it smaller or took it off the list.
    if (hidden.folders.isEmpty())
        store->replaceGroup(hidden.key, hidden.members);
    else
        store->insertDirGroup(hidden.key, hidden.folders);
    store->setGroupMatch(hidden.key, TFileData::GroupMatch(hidden.match));
    if (hidden.selection.isEmpty())
        store->removeSelected(hidden.key);
    else
        store->setSelected(hidden.key, hidden.selection);
    return hidden.key;
}

bool HiddenFiles::forgetIfChanged()
{
    if (m_hidden.isEmpty() || TFileData::instance()->revision() == m_hidden.last().revision)
        return false;
    m_hidden.clear();
    return true;
}
