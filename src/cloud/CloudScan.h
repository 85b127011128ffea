// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/CloudFile.h"
#include "cloud/ListedFile.h"
#include "cloud/PathPool.h"

#include <deque>
#include <limits>
#include <vector>

#include <QElapsedTimer>
#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QSet>
#include <QStringList>

class CloudMembers;
class CloudSession;
class KvCloudObject;
class PictureStage;
class QTimer;

// A scan of cloud folders: lists them through the session's daemon, groups the files by
// size and the service's hash, downloads and hashes here the files the service keeps no
// hash for that share their size with another, and, with the similar-picture stage,
// fetches the pictures and compares them. Lives on the thread of the KvCloudObject it
// answers through; every answer of the daemon comes back there.
class CloudScan : public QObject
{
    Q_OBJECT
public:
    // cloud: whose signals carry the progress and the groups; members: where the members
    // of the groups found are kept.
    CloudScan(KvCloudObject &cloud, CloudSession &session, CloudMembers &members);

    void set_common_config(const QJsonObject &config);
    void set_similar_config(const QJsonObject &config);
    void start_traversal_files(const QList<QString> &folders);
    bool isScanning() const { return m_scanning; }
    int scannedFileCount() const { return int(m_scanned); }
    void finishScan(bool aborted, const QString &failure = {});

private:
    void listFolder();
    void addEntry(quint16 folder, int hashType, const QJsonObject &entry);
    bool accepted(const QString &relative, qint64 size) const;
    // Files without a service hash that might have copies: fetched and hashed here.
    bool planDownloads();
    void downloadNext();
    // Groups the listing into m_groups and the members; keeps the pictures for comparing.
    void groupFiles();
    // The similar-picture stage: every listed picture is fetched into the download
    // folder and compared there as a local scan compares them.
    void fetchNextPicture();
    void comparePictures();
    void takePictureGroups();
    void endPicturePhase();

    KvCloudObject &m_cloud;
    CloudSession &m_session;
    CloudMembers &m_members;

    QJsonObject m_commonConfig;
    QJsonObject m_similarConfig;
    qint64 m_minSize = 0;
    qint64 m_maxSize = std::numeric_limits<qint64>::max();
    bool m_skipHidden = true;
    QStringList m_onlyTypes;
    QStringList m_ignoreTypes;
    QSet<QString> m_ignoredFiles;

    QStringList m_folders;
    int m_folderIndex = 0;
    bool m_scanning = false;
    qint64 m_scanned = 0;
    // In blocks: a listing of unknown length grows without ever being copied whole.
    std::deque<ListedFile> m_listed;
    PathPool m_paths;
    std::vector<size_t> m_downloads;
    size_t m_nextDownload = 0;
    bool m_downloadsPlanned = false;
    // Tells the answers of an ended scan from those of the next.
    quint64 m_generation = 0;
    QHash<QString, quint16> m_mimeIndex;
    QStringList m_mimeTypes;

    bool m_similar = false;
    enum PicturePhase { PicturesNotStarted, PicturesFetching, PicturesComparing, PicturesDone };
    PicturePhase m_picturePhase = PicturesNotStarted;
    QList<CloudFile> m_pictures;
    qsizetype m_nextPicture = 0;
    // Local copy -> index into m_pictures.
    QHash<QString, qsizetype> m_pictureCopies;
    PictureStage *m_pictureStage = nullptr;
    QHash<QString, QList<QString>> m_groups;

    QElapsedTimer m_scanClock;
    QTimer *m_scanTimer;
};
