// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/TOpenSaveThread.h"

#include "app/AppIdentity.h"
#include "app/LogTags.h"
#include "app/TLogger.h"
#include "engine/FilePathCodec.h"
#include "engine/GroupMember.h"
#include "engine/TFileData.h"
#include "fileops/ProjectFileFormat.h"
#include "fileops/ProjectFileReader.h"

#include <algorithm>
#include <limits>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSet>
#include <QXmlStreamWriter>

using namespace ProjectFileFormat;

namespace {

using ReadGroup = ProjectFileReader::Group;

// The log tag of this file.
const QString &kTag = LogTags::projectFiles;

// Whether text holds a character XML 1.0 cannot carry unchanged: controls (tab, line
// feed and carriage return too, which a reader may turn into spaces or drop), unpaired
// surrogates (the codec's escaped bytes) and the two non-characters U+FFFE and U+FFFF.
bool needsEncoding(const QString &text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text.at(i).unicode();
        if (c < 0x20 || c == 0xFFFE || c == 0xFFFF)
            return true;
        if (QChar::isHighSurrogate(c) && i + 1 < text.size()
            && QChar::isLowSurrogate(text.at(i + 1).unicode())) {
            ++i;
            continue;
        }
        if (QChar::isSurrogate(c))
            return true;
    }
    return false;
}

// What the disk says of a path, by its exact bytes (QFileInfo cannot reach names that
// are not UTF-8).
struct DiskEntry
{
    bool exists = false;
    bool isDir = false;
    qint64 size = 0;
};

DiskEntry diskEntry(const QString &path)
{
    DiskEntry entry;
#ifdef Q_OS_UNIX
    struct stat info
    {
    };
    if (::stat(FilePathCodec::encode(path).constData(), &info) != 0)
        return entry;
    entry.exists = true;
    entry.isDir = S_ISDIR(info.st_mode);
    entry.size = info.st_size;
#else
    const QFileInfo info(path);
    entry.exists = info.exists();
    entry.isDir = info.isDir();
    entry.size = info.size();
#endif
    return entry;
}


// An element's text: the path, or its percent-encoded bytes where XML cannot carry it.
void writePath(QXmlStreamWriter &xml, const QString &path)
{
    if (needsEncoding(path)) {
        xml.writeAttribute(kEncodingAttribute, kPercentEncoding);
        xml.writeCharacters(
            QString::fromLatin1(FilePathCodec::encode(path).toPercentEncoding("/")));
    } else {
        xml.writeCharacters(path);
    }
}

void writeItem(QXmlStreamWriter &xml, const QString &path, bool selected, const FileStamp &stamp)
{
    xml.writeStartElement(kItemElement);
    xml.writeAttribute(
        QStringLiteral("selected"), selected ? QStringLiteral("1") : QStringLiteral("0"));
    // What the scan saw of the file, so that a removal from the reopened project
    // still notices a file changed since.
    if (stamp.isValid()) {
        xml.writeAttribute(kSizeAttribute, QString::number(stamp.size));
        xml.writeAttribute(kModifiedAttribute, QString::number(stamp.modifiedNs));
        xml.writeAttribute(kDeviceAttribute, QString::number(stamp.device));
        xml.writeAttribute(kInodeAttribute, QString::number(stamp.inode));
        if (stamp.hasContentKey) {
            xml.writeAttribute(kContentKeyAttribute, QString::number(stamp.contentKey, 16));
            xml.writeAttribute(kChangedAttribute, QString::number(stamp.changedNs));
        }
    }
    writePath(xml, path);
    xml.writeEndElement();
}

void writeRoots(QXmlStreamWriter &xml, const QStringList &roots)
{
    if (roots.isEmpty())
        return;
    xml.writeStartElement(kRootsElement);
    for (const QString &root : roots) {
        xml.writeStartElement(kRootElement);
        writePath(xml, root);
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

void writeProtected(QXmlStreamWriter &xml, const QStringList &folders)
{
    if (folders.isEmpty())
        return;
    xml.writeStartElement(kProtectedElement);
    for (const QString &folder : folders) {
        xml.writeStartElement(kProtectedFolderElement);
        writePath(xml, folder);
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

// The groups of a sound project as the disk has them now.
struct OpenedGroups
{
    TFileData::Groups groups;
    TFileData::DirGroups dirGroups;
    TFileData::Groups selected;
    qint64 memberCount = 0;
    qint64 totalSize = 0;
    int missing = 0;
};

DirGroupEntry folderEntry(const QString &folder)
{
    DirGroupEntry entry;
    entry.folderPath = folder;
    // The same count the finder uses: every file below the folder, hidden
    // ones included.
    QDirIterator files(
        folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        ++entry.fileCount;
        entry.totalSize += files.fileInfo().size();
    }
    return entry;
}

// Takes a group read from the file into opened with the members still on disk (without
// checkDisk, members stamped as files are taken as listed). A group left with fewer than
// two is left out; one that tags a folder as a picture or mixes files and folders
// refuses the whole project.
ProjectFileReader::Failure takeGroup(const ReadGroup &group, bool checkDisk, OpenedGroups &opened)
{
    QStringList present;
    QList<DiskEntry> infos;
    int folders = 0;
    for (const QString &entry : group.entries) {
        const GroupMember member = GroupMember::fromEntry(entry);
        const QString &path = member.path;
        const auto stamp = group.stamps.constFind(path);
        const DiskEntry info = checkDisk || stamp == group.stamps.constEnd()
            ? diskEntry(path)
            : DiskEntry {true, false, stamp->size};
        if (!info.exists) {
            ++opened.missing;
            splog_d(kTag
                + QStringLiteral("%1 no longer exists, left out of group %2.")
                      .arg(path, group.key));
            continue;
        }
        if (info.isDir) {
            if (member.isSimilar())
                return {TOpenSaveThread::ProjectInvalidContent,
                    QStringLiteral("group %1 tags a folder as a similar picture").arg(group.key)};
            ++folders;
        }
        present.append(entry);
        infos.append(info);
    }
    if (folders > 0 && folders != present.size())
        return {TOpenSaveThread::ProjectInvalidContent,
            QStringLiteral("group %1 mixes files and folders").arg(group.key)};
    if (present.size() < 2) {
        splog_d(QStringLiteral(
            "[TOpenSaveThread]: group %1 keeps fewer than two members and is left out.")
                    .arg(group.key));
        return {};
    }
    QStringList chosen;
    for (const QString &entry : std::as_const(present)) {
        if (group.selected.contains(entry))
            chosen.append(entry);
    }
    if (!chosen.isEmpty())
        opened.selected.insert(group.key, chosen);
    if (folders > 0) {
        QList<DirGroupEntry> entries;
        for (const QString &folder : std::as_const(present)) {
            const DirGroupEntry entry = folderEntry(folder);
            opened.memberCount += entry.fileCount;
            opened.totalSize += entry.totalSize;
            entries.append(entry);
        }
        opened.dirGroups.insert(group.key, entries);
    } else {
        for (const DiskEntry &info : std::as_const(infos))
            opened.totalSize += info.size;
        opened.memberCount += present.size();
        opened.groups.insert(group.key, present);
    }
    return {};
}

} // namespace

TOpenSaveThread::TOpenSaveThread(QObject *parent) : QThread(parent) { }

TOpenSaveThread::~TOpenSaveThread()
{
    // A half-read project is simply dropped; a save in progress ends without committing,
    // so the previous file on disk stays intact.
    requestInterruption();
    wait();
}

bool TOpenSaveThread::openProject(const QString &filepath)
{
    QMutexLocker locker(&m_mutex);
    if (isRunning()) {
        splog_d(kTag + QStringLiteral("busy, open refused. file=%1").arg(filepath));
        return false;
    }
    m_request = Request::Open;
    m_filepath = filepath;
    start(QThread::InheritPriority);
    return true;
}

bool TOpenSaveThread::saveProject(const QString &filepath, qint64 count, const QString &time)
{
    QMutexLocker locker(&m_mutex);
    if (isRunning()) {
        splog_d(kTag + QStringLiteral("busy, save refused. file=%1").arg(filepath));
        return false;
    }
    m_request = Request::Save;
    m_filepath = filepath;
    m_count = count;
    m_time = time;
    start(QThread::InheritPriority);
    return true;
}

void TOpenSaveThread::setGroupOrder(const QStringList &keys)
{
    QMutexLocker locker(&m_mutex);
    m_groupOrder = keys;
}

void TOpenSaveThread::setMaxEntries(qint64 maxEntries)
{
    QMutexLocker locker(&m_mutex);
    m_maxEntries = maxEntries;
}

void TOpenSaveThread::setCheckMembersOnDisk(bool check)
{
    QMutexLocker locker(&m_mutex);
    m_checkMembersOnDisk = check;
}

qint64 TOpenSaveThread::scanFileCount() const
{
    QMutexLocker locker(&m_mutex);
    return m_openedFileCount;
}

QString TOpenSaveThread::scanTime() const
{
    QMutexLocker locker(&m_mutex);
    return m_openedScanTime;
}

QString TOpenSaveThread::lastError() const
{
    QMutexLocker locker(&m_mutex);
    return m_lastError;
}

void TOpenSaveThread::setOutcome(const QString &error, qint64 fileCount, const QString &time)
{
    QMutexLocker locker(&m_mutex);
    m_lastError = error;
    m_openedFileCount = fileCount;
    m_openedScanTime = time;
}

QString TOpenSaveThread::resultText(int flag)
{
    switch (flag) {
    case ProjectSucceeded:
        return {};
    case ProjectFileNotOpened:
        return tr("The project file could not be opened.");
    case ProjectNotXml:
        return tr("The project file is damaged or incomplete.");
    case ProjectNotAProject:
        return tr("This file is not a project file of this program.");
    case ProjectInvalidContent:
        return tr("The project file contains invalid data and was not opened.");
    case ProjectNothingLeft:
        return tr("None of the duplicate groups in this project exist any more.");
    case ProjectWriteFailed:
        return tr("The project file could not be saved.");
    case ProjectCancelled:
        return tr("The operation was cancelled.");
    default:
        return tr("Unknown error.");
    }
}

void TOpenSaveThread::run()
{
    Request request;
    QString filepath;
    qint64 count = 0;
    QString time;
    QStringList order;
    {
        QMutexLocker locker(&m_mutex);
        request = m_request;
        filepath = m_filepath;
        count = m_count;
        time = m_time;
        order = m_groupOrder;
        m_request = Request::None;
    }
    // Failures never leave the thread as exceptions: they become the completion flag.
    if (request == Request::Save) {
        int flag = ProjectWriteFailed;
        try {
            flag = saveDocument(filepath, count, time, order);
        } catch (const std::exception &error) {
            setOutcome(QString::fromLocal8Bit(error.what()));
            splog_d(kTag
                + QStringLiteral("save failed: %1. file=%2")
                      .arg(QString::fromLocal8Bit(error.what()), filepath));
        }
        emit saveComplated(flag);
    } else if (request == Request::Open) {
        int flag = ProjectInvalidContent;
        int files = 0;
        qint64 size = 0;
        try {
            flag = openDocument(filepath, files, size);
        } catch (const std::exception &error) {
            // std::bad_alloc from a hostile file lands here; the store is untouched.
            setOutcome(QString::fromLocal8Bit(error.what()));
            splog_d(kTag
                + QStringLiteral("open failed: %1. file=%2")
                      .arg(QString::fromLocal8Bit(error.what()), filepath));
        }
        if (flag != ProjectSucceeded) {
            qDebug() << "Failed to open Project.";
            splog_d(QStringLiteral("Failed to open Project! file=%1").arg(filepath));
            files = 0;
            size = 0;
        } else {
            emit openProjectInfo(scanFileCount(), scanTime());
        }
        emit openProjectComplated(flag, files, size);
    }
}

int TOpenSaveThread::saveDocument(
    const QString &filepath, qint64 count, const QString &time, const QStringList &order)
{
    const TFileData *store = TFileData::instance();
    const TFileData::Groups groups = store->groups();
    const TFileData::DirGroups dirGroups = store->dirGroups();
    const TFileData::Groups selected = store->selected();
    const TFileData::Stamps stamps = store->stamps();
    const QStringList protectedFolders = store->protectedFolders().folders();

    const QStringList keys = TFileData::orderedKeys(groups, dirGroups, order);

    // QSaveFile writes beside the target and renames at the end: a failed or cancelled
    // save leaves an earlier project file as it was.
    QSaveFile file(filepath);
    if (!file.open(QIODevice::WriteOnly)) {
        qDebug() << "Failed to WriteOnly.";
        splog_d(QStringLiteral("Failed to WriteOnly! file=%1").arg(filepath));
        setOutcome(file.errorString());
        return ProjectWriteFailed;
    }

    QXmlStreamWriter xml(&file);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(AppIdentity::documentIdentifier);
    xml.writeAttribute(QStringLiteral("fileCount"), QString::number(count));
    xml.writeAttribute(QStringLiteral("scanTime"), time.isEmpty() ? kDefaultScanTime : time);
    xml.writeAttribute(QStringLiteral("version"), AppIdentity::version);
    writeRoots(xml, store->scanRoots());
    writeProtected(xml, protectedFolders);
    xml.writeStartElement(kGroupsElement);
    const double total = keys.size();
    double done = 0;
    for (const QString &key : std::as_const(keys)) {
        if (isInterruptionRequested()) {
            file.cancelWriting();
            setOutcome(QStringLiteral("cancelled"));
            return ProjectCancelled;
        }
        QStringList members = groups.value(key);
        if (!groups.contains(key)) {
            for (const DirGroupEntry &entry : dirGroups.value(key))
                members.append(entry.folderPath);
        }
        const QStringList chosenList = selected.value(key);
        // Looked up per member: a list would cost a large group time in its size squared.
        const QSet<QString> chosen(chosenList.cbegin(), chosenList.cend());
        xml.writeStartElement(kGroupElement);
        // A reserved pair kept in the format: always 0 when written, ignored when read.
        xml.writeAttribute(QStringLiteral("GroupType"), QStringLiteral("0"));
        xml.writeAttribute(QStringLiteral("GroupFlag"), QStringLiteral("0"));
        xml.writeAttribute(QStringLiteral("key"), key);
        switch (store->groupMatch(key)) {
        case TFileData::MatchName:
            xml.writeAttribute(kMatchAttribute, kMatchName);
            break;
        case TFileData::MatchSampled:
            xml.writeAttribute(kMatchAttribute, kMatchSampled);
            break;
        case TFileData::MatchContent:
            break;
        }
        for (const QString &entry : std::as_const(members)) {
            writeItem(xml, entry, chosen.contains(entry),
                stamps.value(GroupMember::fromEntry(entry).path));
        }
        xml.writeEndElement();
        emit saveProjectProcess(++done, total);
    }
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndDocument();
    if (xml.hasError() || !file.commit()) {
        qDebug() << "Failed to WriteOnly.";
        splog_d(kTag
            + QStringLiteral("writing the project failed: %1. file=%2")
                  .arg(file.errorString(), filepath));
        setOutcome(file.errorString());
        return ProjectWriteFailed;
    }
    splog_d(
        kTag + QStringLiteral("project saved, %1 groups. file=%2").arg(keys.size()).arg(filepath));
    setOutcome(QString());
    return ProjectSucceeded;
}

int TOpenSaveThread::openDocument(const QString &filepath, int &files, qint64 &size)
{
    qint64 maxEntries;
    bool checkDisk = true;
    {
        QMutexLocker locker(&m_mutex);
        maxEntries = m_maxEntries;
        checkDisk = m_checkMembersOnDisk;
    }
    splog_d(QStringLiteral("Begin open project"));
    const auto fail = [&](int flag, const QString &reason) {
        splog_d(kTag + QStringLiteral("%1. file=%2").arg(reason, filepath));
        setOutcome(reason);
        return flag;
    };

    QFile file(filepath);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qDebug() << "Failed to open XML file.";
        splog_d(QStringLiteral("Failed to open project file! file=%1").arg(filepath));
        splog_d(QStringLiteral("Failed to openProject! file=%1").arg(filepath));
        setOutcome(file.errorString());
        return ProjectFileNotOpened;
    }
    splog_d(QStringLiteral("file.open success."));

    const double fileSize = double(std::max<qint64>(file.size(), 1));
    ProjectFileReader reader(file, filepath, fileSize, maxEntries, *this,
        [this](double position, double total) { emit openProjectProcess(position, total); });
    const ProjectFileReader::Failure failure = reader.read();
    if (failure.flag != ProjectSucceeded)
        return fail(failure.flag, failure.reason);
    splog_d(QStringLiteral("doc.setContent success."));

    // The file is sound; now compare it with the disk. Files deleted or moved since the
    // save are left out rather than shown as if they were still there.
    OpenedGroups opened;
    for (const ReadGroup &group : reader.groups()) {
        if (isInterruptionRequested())
            return fail(ProjectCancelled, QStringLiteral("cancelled"));
        const ProjectFileReader::Failure refused = takeGroup(group, checkDisk, opened);
        if (refused.flag != ProjectSucceeded)
            return fail(refused.flag, refused.reason);
    }
    const TFileData::Groups &groups = opened.groups;
    const TFileData::DirGroups &dirGroups = opened.dirGroups;
    const qsizetype listedGroups = reader.listedGroups();
    if (listedGroups > 0 && groups.isEmpty() && dirGroups.isEmpty())
        return fail(ProjectNothingLeft,
            QStringLiteral("none of the %1 groups has two members left").arg(listedGroups));

    TFileData *store = TFileData::instance();
    // Before the selection comes in, so that none of it lands on a protected member.
    store->setProtectedFolders(ProtectedFolders(reader.protectedFolders()));
    store->replaceAll(groups, dirGroups, opened.selected);
    store->setScanRoots(reader.roots());
    TFileData::Stamps stamps;
    for (const ReadGroup &group : reader.groups()) {
        for (auto it = group.stamps.cbegin(); it != group.stamps.cend(); ++it)
            stamps.insert(it.key(), it.value());
        if (group.match != TFileData::MatchContent && groups.contains(group.key))
            store->setGroupMatch(group.key, group.match);
    }
    store->setStamps(stamps);
    emit openProjectProcess(fileSize, fileSize);
    files = int(std::min<qint64>(opened.memberCount, std::numeric_limits<int>::max()));
    size = opened.totalSize;
    splog_d(kTag
        + QStringLiteral("project opened: %1 groups, %2 folder groups, %3 "
                         "members no longer on disk. file=%4")
              .arg(groups.size())
              .arg(dirGroups.size())
              .arg(opened.missing)
              .arg(filepath));
    setOutcome(QString(), reader.fileCount(), reader.scanTime());
    return ProjectSucceeded;
}
