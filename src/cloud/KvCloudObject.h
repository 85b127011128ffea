// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/CloudFile.h"
#include "cloud/CloudFolderInfo.h"
#include "cloud/CloudMembers.h"
#include "cloud/DelParams.h"
#include "cloud/ListedFile.h"
#include "cloud/RcloneProcess.h"
#include "engine/DeleteResult.h"

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QStringList>

class CloudFolderBrowser;
class CloudRemoval;
class CloudScan;
class CloudSession;
class RcloneClient;

// The cloud source: lists, compares and removes files of cloud folders through an
// rclone daemon of its own. Files are compared by the hash the service keeps; only
// files it keeps none for, and only those that share their size with another, are
// downloaded into get_download_dir() and hashed here. All calls are made on the thread the object
// lives on and every answer comes back there as a signal; getCFP alone may be called from any
// thread.
class KvCloudObject : public QObject
{
    Q_OBJECT
public:
    static KvCloudObject *instance();
    explicit KvCloudObject(QObject *parent = nullptr);
    ~KvCloudObject() override;

    // The data folder ("…/Veltrine Duplicate Finder/"): the rclone configuration and the
    // download folder are kept inside it.
    void initialization(const QString &dataDirectory);
    // Another rclone program or configuration than the data folder's own.
    void setRcloneSettings(const RcloneSettings &settings);
    RcloneSettings rcloneSettings() const;
    // Starts the daemon when it is not running; empty, or the reason it cannot run.
    QString ensureStarted();

    // Creates the remote "account" of the service's backend; for the services that sign
    // in through the browser rclone opens it and waits for the user. The answer comes as
    // onAuthorizedSuccess or onAuthorizedFailed; false when it could not even start.
    bool start_authorization(const QString &account, int cloudType, int flags = 0);
    // flags: sign in anew even when the account's remote exists.
    static constexpr int kNewSignIn = 1;
    // Gives up a sign-in that waits in the browser; it ends with onAuthorizedFailed.
    void cancel_authorization();
    bool isAuthorizing() const;

    // The folder chooser: the sub-folders of one folder of the signed-in account ("root"
    // for its top), answered by onFindedFolders. Each call lists one level only.
    void init_traversal_folder();
    void start_traversal_folders(int cloudType, const QString &folderId);
    void end_traversal_folders();
    QString account() const;

    void set_common_config(const QJsonObject &config);
    void set_similar_config(const QJsonObject &config);
    // Folders are "remote:path". The number is the window's cloud budget; the listing
    // has no use for it.
    void start_traversal_files(const QList<QString> &folders, int budget);
    void stop_all_tasks();
    bool isScanning() const;
    int scannedFileCount() const;
    // The daemon's process id, 0 when it is not running.
    qint64 rcloneProcessId() const;

    QString get_download_dir() const;
    // A property of a listed member of a group: "size", "mimeType", "createdTime",
    // "name", "cloudPath", "hash" or "webViewLink"; empty when unknown.
    QString getCFP(const QString &file, const QString &property) const;

    void start_delete_one_file(const DelParams &params);
    void start_delete_group_files(const DelParams &params);
    // Several groups in one run: one journal batch, one deleteProgress count, and one
    // onDeletedCloudGroupComplated whose parameters hold every file asked for.
    void start_delete_all_files(const QList<DelParams> &groups);
    void stop_deleted();
    bool isDeleting() const;
    // What happened to each file of the last removal, in the order asked; for the summary.
    QList<DeleteResult> lastRemovalResults() const;
    // The journal the removals are written to (empty: the data folder's).
    void setJournalPath(const QString &path) { m_journalPath = path; }
    QString journalPath() const { return m_journalPath; }

    // For the removal (CloudRemoval), on the owning thread: a member of the groups as
    // listed (nullptr when unknown), the daemon's client, and forgetting a removed member.
    const CloudFile *recorded(const QString &path) const;
    RcloneClient *client();
    void forget(const QString &path);
    // Whether a hash is the one computed here from a fetched copy, not the service's.
    static bool isDownloadedHash(const QString &hashType);

signals:
    void logMessage(const QString &message);
    void onAuthorizedSuccess(const QString &account, int cloudType);
    void onAuthorizedFailed(const QString &reason);
    void onAuthorizedCompleted(bool updated);
    // Where the browser sign-in waits, for when no browser window opened by itself.
    void authorizationLink(const QUrl &link);
    void onFindedFolders(const QList<CloudFolderInfo> &folders, const QString &parentId);
    void onFilesFetchCount(int count);
    void processChange(double percent);
    void onFindedDuplicateItem(const QHash<QString, QList<QString>> &groups);
    void onDuplicateItemFound(int count, qint64 size);
    void diskSpaceLow();
    void onAllComplate(bool aborted);
    // Why a scan could not be completed (rclone missing or gone, an error of the service);
    // followed by onAllComplate(true).
    void onTraversalFailed(const QString &reason);
    void onDeletedCloudGroupComplated(const QStringList &deletedFiles, const DelParams &params);
    void onDeletedCloudOneFileComplated(const QStringList &deletedFiles, const DelParams &params);
    void onDeletedCloudError(int failedCount, const QString &errorMsg);
    void deleteProgress(int done, int total);
    // The time since the scan started, "hh:mm:ss", once a second while it runs.
    void onUpdateTimer(const QString &elapsed);

private:
    void startRemoval(const QList<DelParams> &groups, bool single);

    QString m_journalPath;
    // The members of the groups found, shared by the parts and read from any thread.
    CloudMembers m_members;
    // The parts, owned as children.
    CloudSession *m_session;
    CloudFolderBrowser *m_folderBrowser;
    CloudScan *m_scan;

    // Made by the installed factory, owned as a child; nullptr where none is installed.
    CloudRemoval *m_removal = nullptr;
};
