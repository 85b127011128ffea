// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudMembers.h"

#include "cloud/CloudPath.h"
#include "cloud/CloudService.h"

#include <QDateTime>
#include <QReadLocker>
#include <QWriteLocker>

void CloudMembers::clear()
{
    QWriteLocker lock(&m_filesLock);
    m_members.clear();
}

void CloudMembers::replace(QHash<QString, CloudFile> members)
{
    QWriteLocker lock(&m_filesLock);
    m_members = std::move(members);
}

void CloudMembers::insert(const QHash<QString, CloudFile> &members)
{
    QWriteLocker lock(&m_filesLock);
    m_members.insert(members);
}

void CloudMembers::forget(const QString &path)
{
    QWriteLocker lock(&m_filesLock);
    m_members.remove(path);
}

void CloudMembers::setRemoteType(const QString &account, int cloudType)
{
    QWriteLocker lock(&m_filesLock);
    m_remoteTypes.insert(account, cloudType);
}

QString CloudMembers::property(const QString &file, const QString &property) const
{
    QReadLocker lock(&m_filesLock);
    const auto found = m_members.constFind(file);
    if (found == m_members.constEnd())
        return {};
    const CloudFile &item = found.value();
    if (property == QLatin1String("size"))
        return QString::number(item.size);
    if (property == QLatin1String("mimeType"))
        return item.mimeType;
    if (property == QLatin1String("createdTime"))
        return QDateTime::fromMSecsSinceEpoch(item.modTime, Qt::UTC).toString(Qt::ISODateWithMs);
    if (property == QLatin1String("name"))
        return CloudPath::split(item.path).remote;
    if (property == QLatin1String("cloudPath"))
        return item.path;
    if (property == QLatin1String("hash"))
        return item.hashType + QLatin1Char(':') + QString::fromLatin1(item.hash.toHex());
    if (property == QLatin1String("webViewLink")) {
        const CloudService *service = CloudService::byType(
            m_remoteTypes.value(item.path.left(item.path.indexOf(QLatin1Char(':')))));
        if (!service)
            return {};
        const CloudPath where = CloudPath::split(item.path);
        return service->webLink(where.fs.mid(where.fs.indexOf(QLatin1Char(':')) + 1), where.remote)
            .toString();
    }
    return {};
}

const CloudFile *CloudMembers::recorded(const QString &path) const
{
    // Only called on the owning thread, the one thread that changes the table.
    const auto found = m_members.constFind(path);
    return found == m_members.constEnd() ? nullptr : &found.value();
}
