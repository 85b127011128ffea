// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/DFIgnoreListPreferences.h"

DFIgnoreListPreferences::DFIgnoreListPreferences(QObject *parent) : QObject(parent)
{
    resetDefaults();
}

DFIgnoreListPreferences::DFIgnoreListPreferences(const DFIgnoreListPreferences &other)
    : QObject(nullptr)
{
    *this = other;
}

DFIgnoreListPreferences &DFIgnoreListPreferences::operator=(const DFIgnoreListPreferences &other)
{
    if (this == &other)
        return *this;
    setObjectName(other.objectName());
    m_threadCount = other.m_threadCount;
    m_removealMethod = other.m_removealMethod;
    m_maxFileSize = other.m_maxFileSize;
    m_minFileSize = other.m_minFileSize;
    m_trashFolder = other.m_trashFolder;
    m_keepFolderStructure = other.m_keepFolderStructure;
    m_ignorePathFile = other.m_ignorePathFile;
    m_protectedFolders = other.m_protectedFolders;
    m_ignoreFileType = other.m_ignoreFileType;
    m_onlyFileType = other.m_onlyFileType;
    m_hideSystemFile = other.m_hideSystemFile;
    m_scanFileType = other.m_scanFileType;
    m_openFolder = other.m_openFolder;
    m_saveFolder = other.m_saveFolder;
    m_deleteException = other.m_deleteException;
    m_ignoreBundle = other.m_ignoreBundle;
    return *this;
}

void DFIgnoreListPreferences::resetDefaults()
{
    namespace Table = SettingsTable;
    m_hideSystemFile = Table::HideSystemFile.byDefault != 0;
    m_keepFolderStructure = Table::KeepFolderStructure.byDefault != 0;
    m_ignoreBundle = Table::IgnoreBundle.byDefault != 0;
    m_scanFileType = int(Table::ScanFileType.byDefault);
    m_minFileSize = quint64(Table::MinFileSize.byDefault);
    m_removealMethod = DFRemovalMethod(Table::RemovealMethod.byDefault);
    m_maxFileSize = quint64(Table::MaxFileSize.byDefault);
    m_threadCount = Table::defaultThreadCount();
}

QJsonObject DFIgnoreListPreferences::toJson() const
{
    return SettingsTable::snapshotOf(*this, SettingsTable::Group::Common);
}
