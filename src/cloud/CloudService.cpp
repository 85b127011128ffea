// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudService.h"

const QList<CloudService> &CloudService::offered()
{
    static const QList<CloudService> services {
        {1, QStringLiteral("Google Drive"), QStringLiteral("drive"), {}, true},
        {2, QStringLiteral("Dropbox"), QStringLiteral("dropbox"), {}, true},
        {5, QStringLiteral("Google Photos"), QStringLiteral("googlephotos"), {}, true},
        {7, QStringLiteral("OneDrive"), QStringLiteral("onedrive"), {}, true},
    };
    return services;
}

QUrl CloudService::webLink(const QString &folder, const QString &name) const
{
    const QString searched = QString::fromLatin1(QUrl::toPercentEncoding(name));
    switch (cloudType) {
    case 1:
        return QUrl(QStringLiteral("https://drive.google.com/drive/search?q=") + searched);
    case 2:
        return QUrl(QStringLiteral("https://www.dropbox.com/home/")
            + QString::fromLatin1(QUrl::toPercentEncoding(folder, "/")));
    case 5:
        return QUrl(QStringLiteral("https://photos.google.com/search/") + searched);
    case 7:
        return QUrl(QStringLiteral("https://onedrive.live.com/?qt=search&q=") + searched);
    default:
        return {};
    }
}

const CloudService *CloudService::byType(int cloudType)
{
    static const CloudService local {
        kLocalFolder, QStringLiteral("Local folder"), QStringLiteral("local")};
    static const CloudService unhashed {kLocalFolderWithoutHashes,
        QStringLiteral("Local folder without hashes"), QStringLiteral("chunker"),
        QJsonObject {{"remote", "/"}, {"hash_type", "none"}}};
    if (cloudType == kLocalFolder)
        return &local;
    if (cloudType == kLocalFolderWithoutHashes)
        return &unhashed;
    for (const CloudService &service : offered())
        if (service.cloudType == cloudType)
            return &service;
    return nullptr;
}
