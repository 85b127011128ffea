// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMutex>
#include <QString>
#include <QStringList>
#include <QThread>

// Saves the scan results of the result store (TFileData) as a project file (".dupproj")
// and opens such a file again, off the GUI thread. A request (openProject or
// saveProject) is stored and run() carries it out; the outcome arrives by the completion
// signals, whose first argument is a ProjectResult value.
//
// File shape (UTF-8 XML):
//   <VeltrineDuplicateFinder fileCount="N" scanTime="hh:mm:ss" version="4.5.0">
//     <roots><Root>/scanned/folder</Root> ...</roots>
//     <protected><Folder>/absolute/folder</Folder> ...</protected>   (only when any)
//     <groups>
//       <GroupItem GroupType="0" GroupFlag="0" key="KEY">
//         <Item selected="1">/absolute/path</Item> ...
//       </GroupItem> ...
//     </groups>
//   </VeltrineDuplicateFinder>
// Folder groups are written the same way with folder paths as items; on opening, a group
// whose members are folders becomes a folder group again. Similar-picture entries keep
// their tag ("path_simlar_87").
//
// Opening never changes the store unless the whole file was read and checked: a file
// that is not XML, is truncated, has another root, lacks a required attribute, holds a
// group of fewer than two entries, a repeated key, a relative path (of a member, a
// scanned folder or a protected folder), a percent-encoded path holding a NUL byte or
// more entries than the limit is refused as a whole. A path listed again (in its own
// group or a later one) and members that no longer exist on disk are left out (each is
// logged); a group that keeps fewer than two members is left out; if no group is left
// although the file listed some, the open fails as well.
class TOpenSaveThread : public QThread
{
    Q_OBJECT
public:
    // Values of the completion signals' flag. The main window shows resultText(flag)
    // for every value but ProjectSucceeded.
    enum ProjectResult : int {
        ProjectSucceeded = 0,
        ProjectFileNotOpened = 1, // the file could not be opened or read
        ProjectNotXml = 2, // not XML, or truncated
        ProjectNotAProject = 3, // XML, but not a project file of this program
        ProjectInvalidContent = 4, // a project file with missing or impossible values
        ProjectNothingLeft = 5, // none of its groups still has two existing members
        ProjectWriteFailed = 6, // the project could not be written
        ProjectCancelled = 7, // the thread was asked to stop
    };
    Q_ENUM(ProjectResult)

    // More entries than this in one file are refused, so that a hostile file cannot
    // exhaust memory.
    static constexpr qint64 defaultMaxEntries = 10'000'000;

    explicit TOpenSaveThread(QObject *parent = nullptr);
    ~TOpenSaveThread() override;

    // Both return false (and start nothing) while a request is still running.
    Q_INVOKABLE bool openProject(const QString &filepath);
    Q_INVOKABLE bool saveProject(const QString &filepath, qint64 count, const QString &time);

    // Order in which the next save writes the groups (the result page's order). Groups
    // not listed follow, file groups before folder groups, each by their first path.
    void setGroupOrder(const QStringList &keys);
    void setMaxEntries(qint64 maxEntries);
    // Whether opening looks up every member on disk to leave out the ones gone since the
    // save (on by default). A caller that checks each member itself before acting on it
    // (the removal) turns it off: members stamped as files are then taken as listed.
    void setCheckMembersOnDisk(bool check);

    // After openProjectComplated: the scanned-file count and the scan duration the
    // project carries (also sent by openProjectInfo), and a one-line reason of the last
    // failure (empty after a success).
    qint64 scanFileCount() const;
    QString scanTime() const;
    QString lastError() const;

    // A sentence for the user for a flag value.
    static QString resultText(int flag);

signals:
    void openProjectComplated(int falg, int files, qint64 size);
    void saveComplated(int falg);
    void openProjectProcess(double cur, double total);
    void saveProjectProcess(double cur, double total);
    // Sent right before a successful openProjectComplated.
    void openProjectInfo(qint64 scanFileCount, const QString &scanTime);

protected:
    void run() override;

private:
    enum class Request { None, Open, Save };

    int saveDocument(
        const QString &filepath, qint64 count, const QString &time, const QStringList &order);
    int openDocument(const QString &filepath, int &files, qint64 &size);
    void setOutcome(const QString &error, qint64 fileCount = 0, const QString &time = {});

    mutable QMutex m_mutex;
    Request m_request = Request::None;
    QString m_filepath;
    qint64 m_count = 0;
    QString m_time;
    QStringList m_groupOrder;
    qint64 m_maxEntries = defaultMaxEntries;
    bool m_checkMembersOnDisk = true;
    qint64 m_openedFileCount = 0;
    QString m_openedScanTime;
    QString m_lastError;
};
