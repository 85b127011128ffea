// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/ProjectFileReader.h"

#include "app/AppIdentity.h"
#include "app/LogTags.h"
#include "app/TLogger.h"
#include "engine/FilePathCodec.h"
#include "engine/GroupMember.h"
#include "fileops/ProjectFileFormat.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QThread>

using namespace ProjectFileFormat;

namespace {

// The log tag of this file.
const QString &kTag = LogTags::projectFiles;

bool readInteger(const QXmlStreamAttributes &attributes, const QString &name, qint64 &value)
{
    if (!attributes.hasAttribute(name))
        return false;
    bool ok = false;
    value = attributes.value(name).toLongLong(&ok);
    return ok;
}

// The stamp an item carries; an invalid one when any of its four parts is missing.
FileStamp readStamp(const QXmlStreamAttributes &item)
{
    FileStamp stamp;
    qint64 device = 0;
    qint64 inode = 0;
    if (readInteger(item, kSizeAttribute, stamp.size)
        && readInteger(item, kModifiedAttribute, stamp.modifiedNs)
        && readInteger(item, kDeviceAttribute, device)
        && readInteger(item, kInodeAttribute, inode)) {
        stamp.device = quint64(device);
        stamp.inode = quint64(inode);
        const QStringView key = item.value(kContentKeyAttribute);
        stamp.contentKey = key.toULongLong(&stamp.hasContentKey, 16);
        stamp.hasContentKey
            = stamp.hasContentKey && readInteger(item, kChangedAttribute, stamp.changedNs);
    } else {
        stamp = FileStamp();
    }
    return stamp;
}

} // namespace

ProjectFileReader::ProjectFileReader(QFile &file, const QString &filepath, double fileSize,
    qint64 maxEntries, const QThread &thread, std::function<void(double, double)> progress)
    : m_file(file)
    , m_filepath(filepath)
    , m_fileSize(fileSize)
    , m_maxEntries(maxEntries)
    , m_thread(thread)
    , m_progress(std::move(progress))
    , m_xml(&file)
    , m_scanTime(kDefaultScanTime)
{ }

QString ProjectFileReader::at(const QString &what) const
{
    return QStringLiteral("line %1: %2").arg(m_xml.lineNumber()).arg(what);
}

void ProjectFileReader::refuse(int flag, const QString &reason)
{
    if (m_failure.flag == TOpenSaveThread::ProjectSucceeded)
        m_failure = {flag, reason};
}

ProjectFileReader::Failure ProjectFileReader::read()
{
    while (m_failure.flag == TOpenSaveThread::ProjectSucceeded && !m_xml.atEnd()) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        // Entity declarations are the classic way to make a small file expand without
        // bound; project files never carry a document type, so any is refused.
        if (token == QXmlStreamReader::DTD) {
            refuse(TOpenSaveThread::ProjectNotAProject,
                at(QStringLiteral("document type declarations are not allowed")));
            break;
        }
        if (token != QXmlStreamReader::StartElement)
            continue;
        if (m_thread.isInterruptionRequested()) {
            refuse(TOpenSaveThread::ProjectCancelled, QStringLiteral("cancelled"));
            break;
        }
        const QStringView name = m_xml.name();
        if (!m_sawRoot) {
            if (!readRoot(name))
                break;
            continue;
        }
        if (name == kGroupsElement) {
            m_sawGroups = true;
            continue;
        }
        if (name == kRootsElement) {
            if (!readScanRoots())
                break;
            continue;
        }
        if (name == kProtectedElement) {
            if (!readProtected())
                break;
            continue;
        }
        if (name != kGroupElement) {
            // Elements of later versions are skipped, not trusted.
            m_xml.skipCurrentElement();
            continue;
        }
        if (!m_sawGroups) {
            refuse(TOpenSaveThread::ProjectInvalidContent,
                at(QStringLiteral("GroupItem outside \"groups\"")));
            break;
        }
        if (!readGroup())
            break;
        const double position = double(m_file.pos());
        if (position - m_lastReported >= m_fileSize / 100) {
            m_lastReported = position;
            m_progress(position, m_fileSize);
        }
    }

    if (m_failure.flag == TOpenSaveThread::ProjectSucceeded && m_xml.hasError()) {
        qDebug() << "Failed to parse XML content.";
        splog_d(QStringLiteral("Failed to parse XML content! file=%1").arg(m_filepath));
        return {TOpenSaveThread::ProjectNotXml,
            QStringLiteral("line %1: %2").arg(m_xml.lineNumber()).arg(m_xml.errorString())};
    }
    if (m_failure.flag == TOpenSaveThread::ProjectSucceeded && !m_sawRoot) {
        qDebug() << "Failed to parse XML content.";
        splog_d(QStringLiteral("Failed to parse XML content! file=%1").arg(m_filepath));
        return {TOpenSaveThread::ProjectNotXml, QStringLiteral("the file holds no XML element")};
    }
    if (m_failure.flag == TOpenSaveThread::ProjectSucceeded && !m_sawGroups)
        refuse(TOpenSaveThread::ProjectInvalidContent,
            QStringLiteral("the project has no \"groups\" element"));
    return m_failure;
}

bool ProjectFileReader::readRoot(QStringView name)
{
    m_sawRoot = true;
    qDebug() << "Root element name:" << name;
    if (name != AppIdentity::documentIdentifier) {
        refuse(TOpenSaveThread::ProjectNotAProject,
            at(QStringLiteral("root element is \"%1\"").arg(name)));
        return false;
    }
    const QXmlStreamAttributes attributes = m_xml.attributes();
    if (!readInteger(attributes, QStringLiteral("fileCount"), m_fileCount) || m_fileCount < 0) {
        refuse(TOpenSaveThread::ProjectInvalidContent,
            at(QStringLiteral("the root has no valid \"fileCount\"")));
        return false;
    }
    if (attributes.hasAttribute(QStringLiteral("scanTime")))
        m_scanTime = attributes.value(QStringLiteral("scanTime")).toString().left(64);
    if (attributes.value(QStringLiteral("version")).isEmpty()) {
        refuse(TOpenSaveThread::ProjectInvalidContent,
            at(QStringLiteral("the root has no \"version\"")));
        return false;
    }
    return true;
}

bool ProjectFileReader::readGroup()
{
    const QXmlStreamAttributes attributes = m_xml.attributes();
    Group group;
    group.key = attributes.value(QStringLiteral("key")).toString();
    if (attributes.value(kMatchAttribute) == kMatchName)
        group.match = TFileData::MatchName;
    else if (attributes.value(kMatchAttribute) == kMatchSampled)
        group.match = TFileData::MatchSampled;
    qint64 reserved = 0;
    if (group.key.isEmpty() || group.key.size() > kMaxKeyLength) {
        refuse(TOpenSaveThread::ProjectInvalidContent,
            at(QStringLiteral("a group has no valid \"key\"")));
        return false;
    }
    if (!readInteger(attributes, QStringLiteral("GroupType"), reserved)
        || !readInteger(attributes, QStringLiteral("GroupFlag"), reserved)) {
        refuse(TOpenSaveThread::ProjectInvalidContent,
            at(QStringLiteral("group %1 lacks \"GroupType\" or \"GroupFlag\"").arg(group.key)));
        return false;
    }
    if (m_keys.contains(group.key)) {
        refuse(TOpenSaveThread::ProjectInvalidContent,
            at(QStringLiteral("group %1 is listed twice").arg(group.key)));
        return false;
    }
    m_keys.insert(group.key);
    QSet<QString> seen;
    while (m_failure.flag == TOpenSaveThread::ProjectSucceeded && m_xml.readNextStartElement()) {
        if (m_xml.name() != kItemElement) {
            m_xml.skipCurrentElement();
            continue;
        }
        if (!readItem(group, seen))
            break;
    }
    if (m_failure.flag != TOpenSaveThread::ProjectSucceeded || m_xml.hasError())
        return false;
    ++m_listedGroups;
    if (group.entries.size() < 2 && group.repeats == 0) {
        refuse(TOpenSaveThread::ProjectInvalidContent,
            at(QStringLiteral("group %1 has fewer than two entries").arg(group.key)));
        return false;
    }
    if (group.entries.size() < 2) {
        splog_d(kTag
            + QStringLiteral("group %1 keeps fewer than two members "
                             "once repeats are left out, and is left out. file=%2")
                  .arg(group.key, m_filepath));
    } else {
        m_taken.unite(seen);
        m_groups.append(std::move(group));
    }
    return true;
}

bool ProjectFileReader::readPathText(QString &path, const QString &owner)
{
    const QStringView encoding = m_xml.attributes().value(kEncodingAttribute);
    if (!encoding.isEmpty() && encoding != kPercentEncoding) {
        refuse(TOpenSaveThread::ProjectInvalidContent,
            at(QStringLiteral("an item of %1 has an unknown encoding").arg(owner)));
        return false;
    }
    path = m_xml.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement);
    if (m_xml.hasError())
        return false;
    if (!encoding.isEmpty()) {
        const QByteArray bytes = QByteArray::fromPercentEncoding(path.toLatin1());
        // No file name holds a NUL byte; the system would read the path only up to
        // it and reach another file.
        if (bytes.contains('\0')) {
            refuse(TOpenSaveThread::ProjectInvalidContent,
                at(QStringLiteral("%1 holds a path with a NUL byte (%00)").arg(owner)));
            return false;
        }
        path = FilePathCodec::decode(bytes);
    }
    return true;
}

bool ProjectFileReader::readScanRoots()
{
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() != kRootElement) {
            m_xml.skipCurrentElement();
            continue;
        }
        QString root;
        if (!readPathText(root, kRootsElement))
            return false;
        if (++m_entryCount > m_maxEntries) {
            refuse(TOpenSaveThread::ProjectInvalidContent,
                at(QStringLiteral("more than %1 entries").arg(m_maxEntries)));
            return false;
        }
        if (root.isEmpty() || root.size() > kMaxPathLength || !QDir::isAbsolutePath(root)) {
            refuse(TOpenSaveThread::ProjectInvalidContent,
                at(QStringLiteral("the scanned folders hold an invalid path")));
            return false;
        }
        m_roots.append(QDir::cleanPath(root));
    }
    return !m_xml.hasError();
}

bool ProjectFileReader::readItem(Group &group, QSet<QString> &seen)
{
    const QStringView flag = m_xml.attributes().value(QStringLiteral("selected"));
    if (flag != QLatin1String("0") && flag != QLatin1String("1")) {
        refuse(TOpenSaveThread::ProjectInvalidContent,
            at(QStringLiteral("an item of group %1 has no valid \"selected\"").arg(group.key)));
        return false;
    }
    const bool isSelected = flag == QLatin1String("1");
    const FileStamp stamp = readStamp(m_xml.attributes());
    QString entry;
    if (!readPathText(entry, QStringLiteral("group %1").arg(group.key)))
        return false;
    if (++m_entryCount > m_maxEntries) {
        refuse(TOpenSaveThread::ProjectInvalidContent,
            at(QStringLiteral("more than %1 entries").arg(m_maxEntries)));
        return false;
    }
    const QString path = GroupMember::fromEntry(entry).path;
    if (path.isEmpty() || entry.size() > kMaxPathLength || !QDir::isAbsolutePath(path)) {
        refuse(TOpenSaveThread::ProjectInvalidContent,
            at(QStringLiteral("group %1 holds an invalid path").arg(group.key)));
        return false;
    }
    // The same file twice in one group would let the removal take every copy. Only
    // the repeat is left out: the rest of the project is still sound.
    if (seen.contains(path) || m_taken.contains(path)) {
        ++group.repeats;
        splog_d(kTag
            + QStringLiteral("%1 is listed again in group %2; the "
                             "repeat is left out. file=%3")
                  .arg(path, group.key, m_filepath));
        return true;
    }
    seen.insert(path);
    group.entries.append(entry);
    if (stamp.isValid())
        group.stamps.insert(path, stamp);
    if (isSelected)
        group.selected.insert(entry);
    return true;
}

bool ProjectFileReader::readProtected()
{
    const QString what = QStringLiteral("the protected folders");
    while (m_failure.flag == TOpenSaveThread::ProjectSucceeded && m_xml.readNextStartElement()) {
        if (m_xml.name() != kProtectedFolderElement) {
            m_xml.skipCurrentElement();
            continue;
        }
        QString folder;
        if (!readPathText(folder, what))
            return false;
        // Counted with the items, so that a hostile file cannot exhaust memory here either.
        if (++m_entryCount > m_maxEntries) {
            refuse(TOpenSaveThread::ProjectInvalidContent,
                at(QStringLiteral("more than %1 entries").arg(m_maxEntries)));
            return false;
        }
        // A folder the project cannot name exactly would protect something else, or
        // nothing: the project is not trusted.
        if (folder.isEmpty() || folder.size() > kMaxPathLength || !QDir::isAbsolutePath(folder)) {
            refuse(TOpenSaveThread::ProjectInvalidContent,
                at(QStringLiteral("%1 hold an invalid path").arg(what)));
            return false;
        }
        m_protectedFolders.append(folder);
    }
    return m_failure.flag == TOpenSaveThread::ProjectSucceeded && !m_xml.hasError();
}
