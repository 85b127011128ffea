// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudScan.h"

#include "app/FileTypeCatalogue.h"
#include "app/LogTags.h"
#include "app/SnapshotKeys.h"
#include "app/TLogger.h"
#include "cloud/CloudHashKinds.h"
#include "cloud/CloudMembers.h"
#include "cloud/CloudPath.h"
#include "cloud/CloudSession.h"
#include "cloud/KvCloudObject.h"
#include "cloud/RcloneClient.h"
#include "engine/ContentHash.h"
#include "engine/GroupMember.h"
#include "engine/PictureStage.h"
#include "engine/TFileData.h"
#include "preferences/SettingsTable.h"

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QFutureWatcher>
#include <QJsonArray>
#include <QStorageInfo>
#include <QTimer>
#include <QtConcurrent/QtConcurrentRun>

namespace {

const QString &kTag = LogTags::cloud;

constexpr qint64 kCountStep = 1000;
// What a download must leave free on the disk of the download folder.
constexpr qint64 kDiskReserve = 256LL << 20;

} // namespace

CloudScan::CloudScan(KvCloudObject &cloud, CloudSession &session, CloudMembers &members)
    : QObject(&cloud), m_cloud(cloud), m_session(session), m_members(members)
{
    m_scanTimer = new QTimer(this);
    m_scanTimer->setInterval(1000);
    connect(m_scanTimer, &QTimer::timeout, this, [this] {
        const qint64 seconds = m_scanClock.elapsed() / 1000;
        emit m_cloud.onUpdateTimer(QStringLiteral("%1:%2:%3")
                                       .arg(seconds / 3600, 2, 10, QLatin1Char('0'))
                                       .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
                                       .arg(seconds % 60, 2, 10, QLatin1Char('0')));
    });
}

void CloudScan::set_common_config(const QJsonObject &config)
{
    m_commonConfig = config;
    m_minSize = qint64(config.value(SnapshotKeys::minFileSize).toDouble(0.0)) << 10;
    m_maxSize = qint64(config.value(SnapshotKeys::maxFileSize)
                           .toDouble(double(SettingsTable::MaxFileSize.byDefault)))
        << 20;
    m_skipHidden = config.value(SnapshotKeys::ignoreSystemHidden).toBool(true);
    const auto list = [&config](QLatin1String key) {
        QStringList out;
        for (const QJsonValue &value : config.value(key).toArray())
            out.append(value.toString().toLower());
        return out;
    };
    const bool ignoreGoverns = config.value(SnapshotKeys::scanFileType).toInt(0) == 1;
    m_onlyTypes = ignoreGoverns ? QStringList() : list(SnapshotKeys::onlyFileType);
    m_ignoreTypes = ignoreGoverns ? list(SnapshotKeys::ignoreFileType) : QStringList();
    // The result page enters an ignored cloud file as "account:name:remote:path".
    m_ignoredFiles.clear();
    for (const QJsonValue &value : config.value(SnapshotKeys::ignorePathFile).toArray()) {
        const QString entry = value.toString();
        if (entry.count(QLatin1Char(':')) >= 3)
            m_ignoredFiles.insert(entry.section(QLatin1Char(':'), 2));
    }
}

void CloudScan::set_similar_config(const QJsonObject &config)
{
    m_similarConfig = config;
    m_similar = config.value(SnapshotKeys::hasSimilar).toBool();
}

bool CloudScan::accepted(const QString &relative, qint64 size) const
{
    // Empty files hold nothing to compare, as in a local scan.
    if (size <= 0 || size < m_minSize || size > m_maxSize)
        return false;
    if (m_skipHidden
        && (relative.startsWith(QLatin1Char('.')) || relative.contains(QLatin1String("/."))))
        return false;
    if (m_onlyTypes.isEmpty() && m_ignoreTypes.isEmpty())
        return true;
    const qsizetype slash = relative.lastIndexOf(QLatin1Char('/'));
    const qsizetype dot = relative.lastIndexOf(QLatin1Char('.'));
    const QString suffix = dot > slash + 0 ? relative.mid(dot + 1).toLower() : QString();
    if (!m_onlyTypes.isEmpty() && !m_onlyTypes.contains(suffix))
        return false;
    return !m_ignoreTypes.contains(suffix);
}

void CloudScan::start_traversal_files(const QList<QString> &folders)
{
    if (m_scanning)
        return;
    m_scanning = true;
    m_picturePhase = PicturesNotStarted;
    m_pictures.clear();
    m_pictureCopies.clear();
    m_groups.clear();
    m_scanClock.start();
    m_scanTimer->start();
    m_downloadsPlanned = false;
    // A folder inside another chosen one would be listed twice, and each of its files
    // would then look like a copy of itself.
    m_folders = CloudPath::outermost(folders);
    m_folderIndex = 0;
    m_scanned = 0;
    m_listed.clear();
    m_paths.clear();
    m_mimeIndex.clear();
    m_mimeTypes.clear();
    m_members.clear();
    splog_d(kTag + QStringLiteral("start_traversal_files: %1").arg(folders.join(", ")));
    const QString problem = m_session.ensureStarted();
    if (!problem.isEmpty()) {
        // Reported after the caller has returned, like every other end of a scan.
        QTimer::singleShot(0, this, [this, problem] { finishScan(true, problem); });
        return;
    }
    listFolder();
}

void CloudScan::listFolder()
{
    if (!m_scanning)
        return;
    if (m_folderIndex >= m_folders.size()) {
        finishScan(false);
        return;
    }
    const QString folder = m_folders.at(m_folderIndex);
    const quint16 folderIndex = quint16(m_folderIndex);
    // The hash kind is the service's, asked once per folder: folders of one scan may lie
    // on remotes of different kinds.
    m_session.client()->call(QStringLiteral("operations/fsinfo"), {{"fs", folder}},
        [this, folder, folderIndex](const QJsonObject &info, const QString &error) {
            if (!error.isEmpty()) {
                finishScan(true, QStringLiteral("%1: %2").arg(folder, error));
                return;
            }
            const QString hashType
                = CloudHashKinds::choose(info.value(QLatin1String("Hashes")).toArray());
            if (hashType.isEmpty())
                emit m_cloud.logMessage(
                    QStringLiteral("%1 offers no hash: its files are not compared").arg(folder));
            QJsonObject options {{"recurse", true}, {"filesOnly", true}};
            if (!hashType.isEmpty()) {
                options.insert(QStringLiteral("showHash"), true);
                options.insert(QStringLiteral("hashTypes"), QJsonArray {hashType});
            }
            m_session.client()->list(
                {{"fs", folder}, {"remote", QString()}, {"opt", options}},
                [this, folderIndex, kind = int(CloudHashKinds::preferred().indexOf(hashType))](
                    const QJsonObject &entry) { addEntry(folderIndex, kind, entry); },
                [this, folder](const QJsonObject &, const QString &listError) {
                    if (!listError.isEmpty()) {
                        finishScan(true, QStringLiteral("%1: %2").arg(folder, listError));
                        return;
                    }
                    ++m_folderIndex;
                    emit m_cloud.onFilesFetchCount(int(m_scanned));
                    emit m_cloud.processChange(100.0 * m_folderIndex / m_folders.size());
                    listFolder();
                });
        });
}

void CloudScan::addEntry(quint16 folder, int hashType, const QJsonObject &entry)
{
    if (!m_scanning || entry.value(QLatin1String("IsDir")).toBool())
        return;
    ++m_scanned;
    if (m_scanned % kCountStep == 0)
        emit m_cloud.onFilesFetchCount(int(m_scanned));
    const QString relative = entry.value(QLatin1String("Path")).toString();
    const qint64 size = entry.value(QLatin1String("Size")).toInteger(-1);
    if (!accepted(relative, size))
        return;
    if (!m_ignoredFiles.isEmpty()
        && m_ignoredFiles.contains(CloudPath::join(m_folders.at(folder), relative)))
        return;
    ListedFile file;
    file.relativePath = m_paths.add(relative.toUtf8());
    file.size = size;
    file.folder = folder;
    file.modTime = ListedFile::parseTime(entry.value(QLatin1String("ModTime")).toString());
    const QString mime = entry.value(QLatin1String("MimeType")).toString();
    auto known = m_mimeIndex.constFind(mime);
    if (known == m_mimeIndex.constEnd() && m_mimeTypes.size() < 0xFFFF) {
        known = m_mimeIndex.insert(mime, quint16(m_mimeTypes.size()));
        m_mimeTypes.append(mime);
    }
    file.mimeType = known == m_mimeIndex.constEnd() ? 0 : known.value();
    if (hashType >= 0)
        file.setHash(entry.value(QLatin1String("Hashes"))
                         .toObject()
                         .value(CloudHashKinds::preferred().at(hashType))
                         .toString(),
            quint8(hashType));
    m_listed.push_back(std::move(file));
}

void CloudScan::groupFiles()
{
    if (m_similar) {
        for (const ListedFile &listed : std::as_const(m_listed)) {
            const QString path = CloudPath::join(
                m_folders.at(listed.folder), QString::fromUtf8(m_paths.view(listed.relativePath)));
            if (!isImageFile(path))
                continue;
            CloudFile picture;
            picture.path = path;
            picture.size = listed.size;
            picture.modTime = listed.modTime;
            picture.mimeType = m_mimeTypes.value(listed.mimeType);
            picture.hash = listed.hashBytes().toByteArray();
            picture.hashType = CloudHashKinds::name(listed.hashType);
            m_pictures.append(picture);
        }
    }
    // Files the service gave no hash for cannot be compared without downloading them.
    const auto unhashed = std::partition(m_listed.begin(), m_listed.end(),
        [](const ListedFile &file) { return file.hashLength > 0; });
    const qsizetype notCompared = m_listed.end() - unhashed;
    if (notCompared > 0)
        emit m_cloud.logMessage(
            QStringLiteral("%1 files without a hash were not compared").arg(notCompared));
    m_listed.erase(unhashed, m_listed.end());
    const auto sameContent = [](const ListedFile &a, const ListedFile &b) {
        return a.size == b.size && a.hashType == b.hashType && a.hashBytes() == b.hashBytes();
    };
    std::sort(m_listed.begin(), m_listed.end(), [this](const ListedFile &a, const ListedFile &b) {
        if (a.size != b.size)
            return a.size < b.size;
        if (a.hashType != b.hashType)
            return a.hashType < b.hashType;
        const int order = a.hashBytes().compare(b.hashBytes());
        if (order != 0)
            return order < 0;
        return a.folder != b.folder
            ? a.folder < b.folder
            : m_paths.view(a.relativePath).compare(m_paths.view(b.relativePath)) < 0;
    });
    QHash<QString, QList<QString>> groups;
    QHash<QString, CloudFile> members;
    qint64 duplicateBytes = 0;
    for (auto begin = m_listed.cbegin(); begin != m_listed.cend();) {
        auto end = begin + 1;
        while (end != m_listed.cend() && sameContent(*end, *begin))
            ++end;
        if (end - begin > 1) {
            QStringList paths;
            for (auto it = begin; it != end; ++it) {
                CloudFile member;
                member.path = CloudPath::join(
                    m_folders.at(it->folder), QString::fromUtf8(m_paths.view(it->relativePath)));
                member.size = it->size;
                member.modTime = it->modTime;
                member.mimeType = m_mimeTypes.at(it->mimeType);
                member.hash = it->hashBytes().toByteArray();
                member.hashType = CloudHashKinds::name(it->hashType);
                paths.append(member.path);
                members.insert(member.path, member);
            }
            duplicateBytes += begin->size * (end - begin - 1);
            groups.insert(TFileData::groupKey(paths.first()), paths);
            emit m_cloud.onDuplicateItemFound(int(groups.size()), duplicateBytes);
        }
        begin = end;
    }
    std::deque<ListedFile>().swap(m_listed);
    m_paths.clear();
    m_members.replace(std::move(members));
    m_groups = std::move(groups);
}

void CloudScan::fetchNextPicture()
{
    if (!m_scanning || m_picturePhase != PicturesFetching)
        return;
    if (m_nextPicture >= m_pictures.size()) {
        comparePictures();
        return;
    }
    const qsizetype index = m_nextPicture++;
    const CloudFile &picture = m_pictures.at(index);
    const QString directory = m_session.downloadDir() + QStringLiteral("pictures/");
    QDir().mkpath(directory);
    if (QStorageInfo(directory).bytesAvailable() < picture.size + kDiskReserve) {
        emit m_cloud.diskSpaceLow();
        emit m_cloud.logMessage(QStringLiteral("%1 pictures were not compared: low disk space")
                                    .arg(m_pictures.size() - index));
        m_nextPicture = m_pictures.size();
        comparePictures();
        return;
    }
    const CloudPath source = CloudPath::split(picture.path);
    const qsizetype dot = source.remote.lastIndexOf(QLatin1Char('.'));
    // The picture's own extension: the comparison reads the format from it.
    const QString name = QStringLiteral("%1%2").arg(index).arg(source.remote.mid(dot));
    const quint64 generation = m_generation;
    m_session.client()->call(QStringLiteral("operations/copyfile"),
        {{"srcFs", source.fs}, {"srcRemote", source.remote}, {"dstFs", directory},
            {"dstRemote", name}},
        [this, index, generation, source, target = directory + name](
            const QJsonObject &, const QString &error) {
            if (generation != m_generation)
                return;
            if (error.isEmpty())
                m_pictureCopies.insert(target, index);
            else
                emit m_cloud.logMessage(
                    QStringLiteral("%1 not compared: %2").arg(source.remote, error));
            emit m_cloud.processChange(100.0 * double(m_nextPicture) / double(m_pictures.size()));
            fetchNextPicture();
        });
}

void CloudScan::comparePictures()
{
    m_picturePhase = PicturesComparing;
    m_pictureStage = m_pictureCopies.size() > 1 ? PictureStage::create(this) : nullptr;
    if (!m_pictureStage) {
        endPicturePhase();
        return;
    }
    m_pictureStage->applyConfig(m_similarConfig);
    m_pictureStage->setInput({}, m_pictureCopies.keys());
    connect(m_pictureStage, &PictureStage::ended, this, [this, stage = m_pictureStage] {
        if (stage != m_pictureStage)
            return;
        takePictureGroups();
        endPicturePhase();
    });
    m_pictureStage->start();
}

void CloudScan::takePictureGroups()
{
    // The comparison writes its groups to the result store, in terms of the local copies;
    // they are taken out of it and named by the cloud paths.
    TFileData *store = TFileData::instance();
    const TFileData::Groups stored = store->groups();
    // The members go into the table in one write: a reader on another thread never sees
    // some of the pictures without the others.
    QHash<QString, CloudFile> found;
    for (auto it = stored.cbegin(); it != stored.cend(); ++it) {
        QStringList members;
        for (const QString &entry : it.value()) {
            GroupMember member = GroupMember::fromEntry(entry);
            const auto copy = m_pictureCopies.constFind(member.path);
            if (copy == m_pictureCopies.cend())
                break;
            const CloudFile &picture = m_pictures.at(*copy);
            member.path = picture.path;
            members.append(member.entry());
            found.insert(picture.path, picture);
        }
        if (members.size() != it.value().size())
            continue;
        store->removeGroup(it.key());
        m_groups.insert(TFileData::groupKey(members.first()), members);
    }
    m_members.insert(found);
}

void CloudScan::endPicturePhase()
{
    if (m_pictureStage) {
        m_pictureStage->cancel();
        m_pictureStage->wait();
        m_pictureStage->deleteLater();
        m_pictureStage = nullptr;
    }
    for (auto it = m_pictureCopies.cbegin(); it != m_pictureCopies.cend(); ++it)
        QFile::remove(it.key());
    m_pictureCopies.clear();
    m_pictures.clear();
    if (m_picturePhase == PicturesComparing) {
        m_picturePhase = PicturesDone;
        finishScan(false);
    } else {
        m_picturePhase = PicturesDone;
    }
}

bool CloudScan::planDownloads()
{
    // Only files that share their size with another one the service gave no hash for
    // can have a copy among them; those alone are fetched.
    const auto unhashed = std::partition(m_listed.begin(), m_listed.end(),
        [](const ListedFile &file) { return file.hashLength > 0; });
    std::sort(unhashed, m_listed.end(),
        [](const ListedFile &a, const ListedFile &b) { return a.size < b.size; });
    m_downloads.clear();
    m_nextDownload = 0;
    for (auto it = unhashed; it != m_listed.end();) {
        auto end = it + 1;
        while (end != m_listed.end() && end->size == it->size)
            ++end;
        if (end - it > 1)
            for (; it != end; ++it)
                m_downloads.push_back(size_t(it - m_listed.begin()));
        it = end;
    }
    return !m_downloads.empty();
}

void CloudScan::downloadNext()
{
    if (!m_scanning)
        return;
    if (m_nextDownload >= m_downloads.size()) {
        finishScan(false);
        return;
    }
    const size_t index = m_downloads.at(m_nextDownload++);
    const ListedFile &file = m_listed.at(index);
    const QString directory = m_session.downloadDir();
    QDir().mkpath(directory);
    if (QStorageInfo(directory).bytesAvailable() < file.size + kDiskReserve) {
        emit m_cloud.diskSpaceLow();
        emit m_cloud.logMessage(
            QStringLiteral("%1 files without a hash were not compared: low disk space")
                .arg(m_downloads.size() - m_nextDownload + 1));
        m_nextDownload = m_downloads.size();
        finishScan(false);
        return;
    }
    const CloudPath source = CloudPath::split(CloudPath::join(
        m_folders.at(file.folder), QString::fromUtf8(m_paths.view(file.relativePath))));
    const QString name = QStringLiteral("scan-%1").arg(index);
    const QString target = directory + name;
    const quint64 generation = m_generation;
    m_session.client()->call(QStringLiteral("operations/copyfile"),
        {{"srcFs", source.fs}, {"srcRemote", source.remote}, {"dstFs", directory},
            {"dstRemote", name}},
        [this, index, target, generation, source](const QJsonObject &, const QString &error) {
            if (!error.isEmpty()) {
                emit m_cloud.logMessage(
                    QStringLiteral("%1 not compared: %2").arg(source.remote, error));
                QFile::remove(target);
                downloadNext();
                return;
            }
            // Read off this thread: a download may be gigabytes.
            auto *watcher = new QFutureWatcher<QByteArray>(this);
            connect(watcher, &QFutureWatcher<QByteArray>::finished, this,
                [this, watcher, index, target, generation] {
                    watcher->deleteLater();
                    QFile::remove(target);
                    if (!m_scanning || generation != m_generation)
                        return;
                    const QByteArray digest = watcher->result();
                    ListedFile &file = m_listed.at(index);
                    if (!digest.isEmpty() && digest.size() <= ListedFile::kMaxHash) {
                        std::copy(digest.begin(), digest.end(), file.hash.begin());
                        file.hashLength = quint8(digest.size());
                        file.hashType = quint8(CloudHashKinds::preferred().size());
                    }
                    downloadNext();
                });
            watcher->setFuture(QtConcurrent::run([target] { return ContentHash::ofFile(target); }));
        });
}

void CloudScan::finishScan(bool aborted, const QString &failure)
{
    if (!m_scanning)
        return;
    if (!aborted && failure.isEmpty() && !m_downloadsPlanned) {
        m_downloadsPlanned = true;
        if (planDownloads()) {
            downloadNext();
            return;
        }
    }
    if (m_picturePhase == PicturesNotStarted) {
        groupFiles();
        m_picturePhase = PicturesDone;
        if (!aborted && failure.isEmpty() && m_pictures.size() > 1) {
            m_picturePhase = PicturesFetching;
            m_nextPicture = 0;
            fetchNextPicture();
            return;
        }
        m_pictures.clear();
    } else if (m_picturePhase != PicturesDone) {
        // Stopped or failed while pictures were fetched or compared.
        m_picturePhase = PicturesDone;
        endPicturePhase();
    }
    m_scanning = false;
    m_scanTimer->stop();
    ++m_generation;
    m_session.client()->abortAll();
    if (!failure.isEmpty()) {
        splog_d(kTag + QStringLiteral("scan failed: %1").arg(failure));
        emit m_cloud.onTraversalFailed(failure);
    }
    emit m_cloud.onFindedDuplicateItem(std::exchange(m_groups, {}));
    emit m_cloud.onFilesFetchCount(int(m_scanned));
    if (!aborted)
        emit m_cloud.processChange(100.0);
    splog_d(kTag
        + QStringLiteral("scan ended%1, %2 files listed")
              .arg(aborted ? QStringLiteral(" early") : QString())
              .arg(m_scanned));
    emit m_cloud.onAllComplate(aborted);
}
