// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudService.h"

const QList<CloudService> &CloudService::offered()
{
    static const QList<CloudService> services {
        {1, QStringLiteral("Google Drive"), QStringLiteral("drive")},
        {2, QStringLiteral("Dropbox"), QStringLiteral("dropbox")},
        {5, QStringLiteral("Google Photos"), QStringLiteral("googlephotos")},
        {7, QStringLiteral("OneDrive"), QStringLiteral("onedrive")},
    };
    return services;
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
