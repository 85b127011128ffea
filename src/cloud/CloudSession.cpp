// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudSession.h"

#include "app/LogTags.h"
#include "app/TLogger.h"
#include "cloud/CloudMembers.h"
#include "cloud/CloudService.h"
#include "cloud/KvCloudObject.h"
#include "cloud/RcloneClient.h"

#include <QTimer>

const QString &kTag = LogTags::cloud;

CloudSession::CloudSession(KvCloudObject &cloud, CloudMembers &members)
    : QObject(&cloud)
    , m_cloud(cloud)
    , m_members(members)
    , m_process(new RcloneProcess(this))
    , m_client(new RcloneClient(this))
{
    connect(m_process, &RcloneProcess::signInLink, &m_cloud, &KvCloudObject::authorizationLink);
}

void CloudSession::initialization(const QString &dataDirectory)
{
    m_dataDirectory = dataDirectory.endsWith(QLatin1Char('/')) ? dataDirectory
                                                               : dataDirectory + QLatin1Char('/');
    m_settings.configFile = m_dataDirectory + QStringLiteral("rclone/rclone.conf");
}

void CloudSession::setRcloneSettings(const RcloneSettings &settings)
{
    if (m_process->isRunning()
        && (settings.program != m_settings.program || settings.configFile != m_settings.configFile))
        m_process->stop();
    m_settings = settings;
}

QString CloudSession::ensureStarted()
{
    if (m_process->isRunning())
        return {};
    const QString problem = m_process->start(m_settings);
    if (problem.isEmpty())
        m_client->setEndpoint(m_process->baseUrl(), m_process->user(), m_process->password());
    return problem;
}

bool CloudSession::start_authorization(const QString &account, int cloudType, int flags)
{
    const CloudService *service = CloudService::byType(cloudType);
    QString problem;
    if (!service)
        problem = QStringLiteral("Unknown cloud type %1.").arg(cloudType);
    else if (account.isEmpty() || account.contains(QLatin1Char(':')))
        problem = QStringLiteral("\"%1\" cannot name an account.").arg(account);
    else
        problem = ensureStarted();
    if (!problem.isEmpty()) {
        splog_d(kTag + QStringLiteral("start_authorization: %1").arg(problem));
        QTimer::singleShot(0, this, [this, problem] { emit m_cloud.onAuthorizedFailed(problem); });
        return false;
    }
    // A remote made by an earlier run is used again as it is, unless a new sign-in is
    // asked for (its token was refused); only then does the user see the browser again.
    m_authorizing = true;
    m_client->call(QStringLiteral("config/get"), {{"name", account}},
        [this, account, cloudType, flags, service](
            const QJsonObject &answer, const QString &error) {
            const bool known = error.isEmpty()
                && answer.value(QLatin1String("type")).toString() == service->backend
                && (!service->signsIn
                    || !answer.value(QLatin1String("token")).toString().isEmpty());
            if (known && !(flags & KvCloudObject::kNewSignIn)) {
                authorized(account, cloudType, false);
                return;
            }
            // For the services that sign in through OAuth, rclone opens the browser and the
            // call returns once the user is through (or cancel_authorization gives up).
            m_client->call(QStringLiteral("config/create"),
                {{"name", account}, {"type", service->backend},
                    {"parameters", service->parameters}},
                [this, account, cloudType](const QJsonObject &created, const QString &failed) {
                    const QString failure = failed.isEmpty()
                        ? created.value(QLatin1String("Error")).toString()
                        : failed;
                    if (!failure.isEmpty()) {
                        m_authorizing = false;
                        emit m_cloud.onAuthorizedFailed(failure);
                        return;
                    }
                    authorized(account, cloudType, true);
                });
        });
    return true;
}

void CloudSession::authorized(const QString &account, int cloudType, bool updated)
{
    m_authorizing = false;
    m_account = account;
    m_members.setRemoteType(account, cloudType);
    emit m_cloud.onAuthorizedCompleted(updated);
    emit m_cloud.onAuthorizedSuccess(account, cloudType);
}

void CloudSession::cancel_authorization()
{
    if (!m_authorizing)
        return;
    m_authorizing = false;
    m_client->abortAll();
    // The daemon would go on waiting for the browser, holding the sign-in port.
    m_process->stop();
    splog_d(kTag + QStringLiteral("sign-in cancelled"));
    emit m_cloud.onAuthorizedFailed(QStringLiteral("The sign-in was cancelled."));
}

QString CloudSession::downloadDir() const
{
    return m_dataDirectory + QStringLiteral("CloudDownload/");
}
