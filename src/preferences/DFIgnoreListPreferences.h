// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/SettingsTable.h"

#include <QJsonObject>
#include <QObject>
#include <QStringList>

// The common settings (settings group "Common"): size bounds, ignore, protected and only
// lists, removal method and its target folder, remembered folders, worker-thread count and
// the deletion-in-progress marker. Every Q_PROPERTY is persisted by DFPreferences under
// its own name, in declaration order; a property added here is stored without more code.
class DFIgnoreListPreferences : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int ThreadCount READ ThreadCount WRITE setThreadCount)
    Q_PROPERTY(DFRemovalMethod RemovealMethod READ RemovealMethod WRITE setRemovealMethod)
    Q_PROPERTY(quint64 MaxFileSize READ MaxFileSize WRITE setMaxFileSize)
    Q_PROPERTY(quint64 MinFileSize READ MinFileSize WRITE setMinFileSize)
    Q_PROPERTY(QString TrashFolder READ TrashFolder WRITE setTrashFolder)
    Q_PROPERTY(bool KeepFolderStructure READ KeepFolderStructure WRITE setKeepFolderStructure)
    Q_PROPERTY(QStringList IgnorePathFile READ IgnorePathFile WRITE setIgnorePathFile)
    Q_PROPERTY(
        QStringList ProtectedFolderList READ ProtectedFolderList WRITE setProtectedFolderList)
    Q_PROPERTY(QStringList IgnoreFileType READ IgnoreFileType WRITE setIgnoreFileType)
    Q_PROPERTY(QStringList OnlyFileType READ OnlyFileType WRITE setOnlyFileType)
    Q_PROPERTY(bool HideSystemFile READ HideSystemFile WRITE setHideSystemFile)
    Q_PROPERTY(int ScanFileType READ ScanFileType WRITE setScanFileType)
    Q_PROPERTY(QString OpenFolder READ OpenFolder WRITE setOpenFolder)
    Q_PROPERTY(QString SaveFolder READ SaveFolder WRITE setSaveFolder)
    Q_PROPERTY(int deleteException READ deleteException WRITE setDeleteException)
    Q_PROPERTY(bool IgnoreBundle READ IgnoreBundle WRITE setIgnoreBundle STORED false)
public:
    // The last three replace each selected file by a link to a copy that stays: another name
    // of it, a copy-on-write clone of it, or a symbolic link to it.
    enum DFRemovalMethod {
        moveToTrash = 0,
        removePermanently = 1,
        moveToFolder = 2,
        replaceByHardLink = 3,
        replaceByReflink = 4,
        replaceBySymlink = 5
    };
    Q_ENUM(DFRemovalMethod)

    explicit DFIgnoreListPreferences(QObject *parent = nullptr);
    DFIgnoreListPreferences(const DFIgnoreListPreferences &other);
    DFIgnoreListPreferences &operator=(const DFIgnoreListPreferences &other);

    // Restores the scan and removal defaults. The folders, the lists and the
    // deletion marker are left alone: they are user data, not tunables.
    void resetDefaults();

    // Snapshot handed to the scan engines and written to the log when a scan starts.
    QJsonObject toJson() const;

    int ThreadCount() const { return m_threadCount; }
    void setThreadCount(int value) { m_threadCount = value; }
    DFRemovalMethod RemovealMethod() const { return m_removealMethod; }
    void setRemovealMethod(DFRemovalMethod value) { m_removealMethod = value; }
    quint64 MaxFileSize() const { return m_maxFileSize; }
    void setMaxFileSize(quint64 value) { m_maxFileSize = value; }
    quint64 MinFileSize() const { return m_minFileSize; }
    void setMinFileSize(quint64 value) { m_minFileSize = value; }
    QString TrashFolder() const { return m_trashFolder; }
    void setTrashFolder(const QString &value) { m_trashFolder = value; }
    bool KeepFolderStructure() const { return m_keepFolderStructure; }
    void setKeepFolderStructure(bool value) { m_keepFolderStructure = value; }
    QStringList IgnorePathFile() const { return m_ignorePathFile; }
    void setIgnorePathFile(const QStringList &value) { m_ignorePathFile = value; }
    QStringList ProtectedFolderList() const { return m_protectedFolders; }
    void setProtectedFolderList(const QStringList &value) { m_protectedFolders = value; }
    QStringList IgnoreFileType() const { return m_ignoreFileType; }
    void setIgnoreFileType(const QStringList &value) { m_ignoreFileType = value; }
    QStringList OnlyFileType() const { return m_onlyFileType; }
    void setOnlyFileType(const QStringList &value) { m_onlyFileType = value; }
    bool HideSystemFile() const { return m_hideSystemFile; }
    void setHideSystemFile(bool value) { m_hideSystemFile = value; }
    int ScanFileType() const { return m_scanFileType; }
    void setScanFileType(int value) { m_scanFileType = value; }
    QString OpenFolder() const { return m_openFolder; }
    void setOpenFolder(const QString &value) { m_openFolder = value; }
    QString SaveFolder() const { return m_saveFolder; }
    void setSaveFolder(const QString &value) { m_saveFolder = value; }
    int deleteException() const { return m_deleteException; }
    void setDeleteException(int value) { m_deleteException = value; }

    bool IgnoreBundle() const { return m_ignoreBundle; }
    void setIgnoreBundle(bool value) { m_ignoreBundle = value; }

private:
    // Set by resetDefaults().
    int m_threadCount = 0;
    DFRemovalMethod m_removealMethod = moveToTrash;
    quint64 m_maxFileSize = 0;
    quint64 m_minFileSize = 0;
    QString m_trashFolder;
    bool m_keepFolderStructure = false;
    QStringList m_ignorePathFile;
    QStringList m_protectedFolders;
    QStringList m_ignoreFileType;
    QStringList m_onlyFileType;
    bool m_hideSystemFile = false;
    int m_scanFileType = 0;
    QString m_openFolder;
    QString m_saveFolder;
    int m_deleteException = 0;
    bool m_ignoreBundle = false;
};
