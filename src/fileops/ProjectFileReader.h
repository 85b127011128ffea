// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/FileStamp.h"
#include "engine/TFileData.h"
#include "fileops/TOpenSaveThread.h"

#include <functional>

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QXmlStreamReader>

class QFile;
class QThread;

// Reads a project file and checks it as a whole, before the disk is consulted: its root,
// its groups and their items (see TOpenSaveThread for what is refused and what is only
// left out). Runs on the thread that opens the project and stops when it is asked to.
class ProjectFileReader
{
public:
    // One group as read from the file, before the disk is consulted.
    struct Group
    {
        QString key;
        QStringList entries;
        QSet<QString> selected;
        TFileData::GroupMatch match = TFileData::MatchContent;
        QHash<QString, FileStamp> stamps;
        // Entries left out as repeats of a path listed before.
        int repeats = 0;
    };

    // A failure while reading: the flag (a TOpenSaveThread::ProjectResult) and a reason
    // that names the place in the file.
    struct Failure
    {
        int flag = TOpenSaveThread::ProjectSucceeded;
        QString reason;
    };

    // progress(position, fileSize) is called as the file is read, at most about a hundred
    // times.
    ProjectFileReader(QFile &file, const QString &filepath, double fileSize, qint64 maxEntries,
        const QThread &thread, std::function<void(double, double)> progress);

    // Reads the whole file; the flag of the result is ProjectSucceeded when it is sound.
    Failure read();

    qint64 fileCount() const { return m_fileCount; }
    QString scanTime() const { return m_scanTime; }
    const QList<Group> &groups() const { return m_groups; }
    // The folders the scan started from (none in files of earlier versions).
    const QStringList &roots() const { return m_roots; }
    // Groups the file lists, the ones left out included.
    qsizetype listedGroups() const { return m_listedGroups; }
    // The folders the project protects (none in projects saved before there were any).
    QStringList protectedFolders() const { return m_protectedFolders; }

private:
    // Each returns false where reading stops.
    bool readRoot(QStringView name);
    bool readGroup();
    bool readItem(Group &group, QSet<QString> &seen);
    bool readScanRoots();
    // The text of the current element as a path, decoded where it is percent-encoded;
    // owner names what holds it in a refusal.
    bool readPathText(QString &path, const QString &owner);
    bool readProtected();
    void refuse(int flag, const QString &reason);
    QString at(const QString &what) const;

    QFile &m_file;
    QString m_filepath;
    double m_fileSize;
    qint64 m_maxEntries;
    const QThread &m_thread;
    std::function<void(double, double)> m_progress;
    QXmlStreamReader m_xml;
    Failure m_failure;

    qint64 m_fileCount = 0;
    QString m_scanTime;
    QList<Group> m_groups;
    QStringList m_roots;
    QSet<QString> m_keys;
    // Paths of the groups taken so far: a file listed in two groups would let a removal
    // take it through one while the other counts on it as the copy that stays.
    QSet<QString> m_taken;
    qsizetype m_listedGroups = 0;
    QStringList m_protectedFolders;
    qint64 m_entryCount = 0;
    bool m_sawRoot = false;
    bool m_sawGroups = false;
    double m_lastReported = -1;
};
