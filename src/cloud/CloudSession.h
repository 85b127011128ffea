// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/RcloneProcess.h"

#include <utility>

#include <QObject>
#include <QString>

class CloudMembers;
class KvCloudObject;
class RcloneClient;

// The cloud source's session: the rclone daemon it starts and talks to, the data folder
// it keeps its configuration in, and the sign-in of the account that is browsed and
// scanned. Lives on the thread of the KvCloudObject it answers through.
class CloudSession : public QObject
{
    Q_OBJECT
public:
    // cloud: whose signals carry the answers; members: where the service of each signed-in
    // remote is noted.
    CloudSession(KvCloudObject &cloud, CloudMembers &members);

    void initialization(const QString &dataDirectory);
    void setRcloneSettings(const RcloneSettings &settings);
    RcloneSettings rcloneSettings() const { return m_settings; }
    // Starts the daemon when it is not running; empty, or the reason it cannot run.
    QString ensureStarted();

    bool start_authorization(const QString &account, int cloudType, int flags);
    void cancel_authorization();
    bool isAuthorizing() const { return m_authorizing; }
    // Ends a sign-in the daemon's death cut short; true when one was waiting.
    bool dropAuthorization() { return std::exchange(m_authorizing, false); }
    QString account() const { return m_account; }

    QString downloadDir() const;
    RcloneProcess *process() const { return m_process; }
    RcloneClient *client() const { return m_client; }

private:
    void authorized(const QString &account, int cloudType, bool updated);

    KvCloudObject &m_cloud;
    CloudMembers &m_members;
    RcloneSettings m_settings;
    QString m_account;
    bool m_authorizing = false;
    QString m_dataDirectory;
    RcloneProcess *m_process;
    RcloneClient *m_client;
};
