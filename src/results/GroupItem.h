// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QString>
#include <QStringList>

// One result group as the group list shows it.
struct GroupItem
{
    QString key;
    // The members as the store keeps them (GroupMember entries), so that what the store
    // lets go is found here by the same name.
    QStringList files;
    // The first member's path: the file (or folder) that stands for the group.
    QString firstFile;
    QString name;
    // Copies of a file count the first one's size each; similar pictures and folders
    // their own.
    qint64 totalSize = 0;
    int selectedCount = 0;
    int count = 0;
    int type = 7;
};

Q_DECLARE_METATYPE(GroupItem)
