// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudFolderBrowser.h"

#include "cloud/CloudPath.h"
#include "cloud/CloudSession.h"
#include "cloud/KvCloudObject.h"
#include "cloud/RcloneClient.h"

#include <algorithm>
#include <memory>

#include <QTimer>

CloudFolderBrowser::CloudFolderBrowser(KvCloudObject &cloud, CloudSession &session)
    : QObject(&cloud), m_cloud(cloud), m_session(session)
{ }

void CloudFolderBrowser::init_traversal_folder()
{
    ++m_folderSession;
}

void CloudFolderBrowser::end_traversal_folders()
{
    ++m_folderSession;
}

void CloudFolderBrowser::start_traversal_folders(int cloudType, const QString &folderId)
{
    Q_UNUSED(cloudType)
    const QString folder
        = folderId == QLatin1String("root") ? m_session.account() + QLatin1Char(':') : folderId;
    if (const QString problem = m_session.ensureStarted();
        !problem.isEmpty() || m_session.account().isEmpty()) {
        const QString reason
            = problem.isEmpty() ? QStringLiteral("No account is signed in.") : problem;
        QTimer::singleShot(0, this, [this, reason] { emit m_cloud.onAuthorizedFailed(reason); });
        return;
    }
    const quint64 session = m_folderSession;
    auto folders = std::make_shared<QList<CloudFolderInfo>>();
    m_session.client()->list(
        {{"fs", folder}, {"remote", QString()}, {"opt", QJsonObject {{"dirsOnly", true}}}},
        [folders, folder](const QJsonObject &entry) {
            folders->append({CloudPath::join(folder, entry.value(QLatin1String("Path")).toString()),
                entry.value(QLatin1String("Name")).toString(), true});
        },
        [this, folders, folderId, session](const QJsonObject &, const QString &error) {
            if (session != m_folderSession)
                return;
            if (!error.isEmpty()) {
                emit m_cloud.onAuthorizedFailed(error);
                return;
            }
            std::sort(folders->begin(), folders->end(),
                [](const CloudFolderInfo &a, const CloudFolderInfo &b) { return a.name < b.name; });
            emit m_cloud.onFindedFolders(*folders, folderId);
        });
}
