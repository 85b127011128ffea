// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/KvCloudObject.h"

#include "app/DataDirectory.h"
#include "cloud/CloudFolderBrowser.h"
#include "cloud/CloudHashKinds.h"
#include "cloud/CloudRemoval.h"
#include "cloud/CloudScan.h"
#include "cloud/CloudSession.h"
#include "cloud/RcloneClient.h"
#include "engine/DeleteResult.h"

#include <QCoreApplication>

KvCloudObject *KvCloudObject::instance()
{
    // Owned by the application, so that the daemon ends with it.
    static KvCloudObject *object = new KvCloudObject(QCoreApplication::instance());
    return object;
}

KvCloudObject::KvCloudObject(QObject *parent)
    : QObject(parent)
    , m_session(new CloudSession(*this, m_members))
    , m_folderBrowser(new CloudFolderBrowser(*this, *m_session))
    , m_scan(new CloudScan(*this, *m_session, m_members))
{
    qRegisterMetaType<DelParams>();
    m_removal = CloudRemoval::create(this);
    qRegisterMetaType<CloudFolderInfo>();
    qRegisterMetaType<QList<CloudFolderInfo>>();
    initialization(DataDirectory::base());
    connect(m_session->process(), &RcloneProcess::died, this, [this](const QString &reason) {
        m_session->client()->abortAll();
        if (m_session->dropAuthorization())
            emit onAuthorizedFailed(reason);
        if (m_scan->isScanning())
            m_scan->finishScan(true, reason);
        if (m_removal)
            m_removal->abort(reason, false);
    });
}

KvCloudObject::~KvCloudObject()
{
    m_session->client()->abortAll();
    m_session->process()->stop();
}

void KvCloudObject::initialization(const QString &dataDirectory)
{
    m_session->initialization(dataDirectory);
}

void KvCloudObject::setRcloneSettings(const RcloneSettings &settings)
{
    m_session->setRcloneSettings(settings);
}

RcloneSettings KvCloudObject::rcloneSettings() const
{
    return m_session->rcloneSettings();
}

QString KvCloudObject::ensureStarted()
{
    return m_session->ensureStarted();
}

bool KvCloudObject::start_authorization(const QString &account, int cloudType, int flags)
{
    return m_session->start_authorization(account, cloudType, flags);
}

void KvCloudObject::cancel_authorization()
{
    m_session->cancel_authorization();
}

bool KvCloudObject::isAuthorizing() const
{
    return m_session->isAuthorizing();
}

void KvCloudObject::init_traversal_folder()
{
    m_folderBrowser->init_traversal_folder();
}

void KvCloudObject::start_traversal_folders(int cloudType, const QString &folderId)
{
    m_folderBrowser->start_traversal_folders(cloudType, folderId);
}

void KvCloudObject::end_traversal_folders()
{
    m_folderBrowser->end_traversal_folders();
}

QString KvCloudObject::account() const
{
    return m_session->account();
}

void KvCloudObject::set_common_config(const QJsonObject &config)
{
    m_scan->set_common_config(config);
}

void KvCloudObject::set_similar_config(const QJsonObject &config)
{
    m_scan->set_similar_config(config);
}

void KvCloudObject::start_traversal_files(const QList<QString> &folders, int budget)
{
    Q_UNUSED(budget)
    m_scan->start_traversal_files(folders);
}

bool KvCloudObject::isScanning() const
{
    return m_scan->isScanning();
}

int KvCloudObject::scannedFileCount() const
{
    return m_scan->scannedFileCount();
}

qint64 KvCloudObject::rcloneProcessId() const
{
    const RcloneProcess *process = m_session->process();
    return process->isRunning() ? process->processId() : 0;
}

QString KvCloudObject::get_download_dir() const
{
    return m_session->downloadDir();
}

QString KvCloudObject::getCFP(const QString &file, const QString &property) const
{
    return m_members.property(file, property);
}

const CloudFile *KvCloudObject::recorded(const QString &path) const
{
    return m_members.recorded(path);
}

RcloneClient *KvCloudObject::client()
{
    return m_session->client();
}

void KvCloudObject::stop_all_tasks()
{
    stop_deleted();
    if (m_scan->isScanning())
        m_scan->finishScan(true);
}

void KvCloudObject::start_delete_one_file(const DelParams &params)
{
    startRemoval({params}, true);
}

void KvCloudObject::start_delete_group_files(const DelParams &params)
{
    startRemoval({params}, false);
}

void KvCloudObject::start_delete_all_files(const QList<DelParams> &groups)
{
    startRemoval(groups, false);
}

void KvCloudObject::startRemoval(const QList<DelParams> &groups, bool single)
{
    if (m_removal) {
        m_removal->start(groups, single);
        return;
    }
    qsizetype count = 0;
    for (const DelParams &group : groups)
        count += group.files.size();
    emit onDeletedCloudError(int(count), QStringLiteral("This program cannot remove cloud files."));
}

bool KvCloudObject::isDeleting() const
{
    return m_removal && m_removal->isRunning();
}

QList<DeleteResult> KvCloudObject::lastRemovalResults() const
{
    return m_removal ? m_removal->lastResults() : QList<DeleteResult>();
}

void KvCloudObject::forget(const QString &path)
{
    m_members.forget(path);
}

bool KvCloudObject::isDownloadedHash(const QString &hashType)
{
    return hashType == CloudHashKinds::downloaded();
}

void KvCloudObject::stop_deleted()
{
    if (!isDeleting())
        return;
    m_session->client()->abortAll();
    m_removal->abort(QStringLiteral("stopped before it was removed"), true);
}
