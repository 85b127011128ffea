// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/CloudFile.h"

#include <QHash>
#include <QReadWriteLock>
#include <QString>

// The members of the cloud groups, by path, for getCFP and the removal checks, with the
// service of each remote signed in during this run (for the web links). Changed on the
// owning thread only; read from any thread under its lock.
class CloudMembers
{
public:
    void clear();
    void replace(QHash<QString, CloudFile> members);
    void insert(const QHash<QString, CloudFile> &members);
    void forget(const QString &path);
    void setRemoteType(const QString &account, int cloudType);
    // A property of a member, as KvCloudObject::getCFP gives it; any thread.
    QString property(const QString &file, const QString &property) const;
    // A member as listed (nullptr when unknown); only on the owning thread.
    const CloudFile *recorded(const QString &path) const;

private:
    mutable QReadWriteLock m_filesLock;
    QHash<QString, CloudFile> m_members;
    // The service of each remote signed in during this run, for the web links.
    QHash<QString, int> m_remoteTypes;
};
