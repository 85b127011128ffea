// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/DirGroupEntry.h"

#include <QList>
#include <QString>
#include <QStringList>

// Files hidden from the results, taken out of their groups in the store; the last one can
// be brought back while nothing else has changed the results since.
class HiddenFiles
{
public:
    // Takes the member at path out of its group; gives the group's entry that went.
    // undoable: the group as it was is kept for undo(), in place of any earlier hide.
    QString hide(const QString &key, const QString &path, bool undoable);
    bool isEmpty() const { return m_hidden.isEmpty(); }
    // The file name of the last hidden file.
    QString lastName() const { return m_hidden.isEmpty() ? QString() : m_hidden.last().name; }
    // Puts the last hidden file's group back as it was; gives its key, empty when the
    // results changed since the hide (nothing is put back then).
    QString undo();
    // Drops the last hide once the results changed since; true when one was dropped.
    bool forgetIfChanged();

private:
    // The last file hidden from the results, as its group was before: Undo brings it back.
    struct HiddenFile
    {
        QString key;
        QString name;
        QStringList members;
        QStringList selection;
        QList<DirGroupEntry> folders;
        int match = 0;
        // The store's revision right after the hide.
        quint64 revision = 0;
    };
    QList<HiddenFile> m_hidden;
};
