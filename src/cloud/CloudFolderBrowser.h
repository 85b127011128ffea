// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

class CloudSession;
class KvCloudObject;

// The cloud folder chooser's part of the cloud source: lists the sub-folders of one folder
// of the signed-in account, one level per call. Listings in flight belong to the chooser
// that asked; a new one drops them.
class CloudFolderBrowser : public QObject
{
    Q_OBJECT
public:
    CloudFolderBrowser(KvCloudObject &cloud, CloudSession &session);

    void init_traversal_folder();
    void start_traversal_folders(int cloudType, const QString &folderId);
    void end_traversal_folders();

private:
    KvCloudObject &m_cloud;
    CloudSession &m_session;
    // Folder listings in flight belong to the chooser that asked; a new one drops them.
    quint64 m_folderSession = 0;
};
