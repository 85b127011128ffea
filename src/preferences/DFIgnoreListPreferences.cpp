// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/DFIgnoreListPreferences.h"

#include "app/SnapshotKeys.h"
#include "preferences/PreferenceRanges.h"

#include <algorithm>

#include <QJsonArray>
#include <QThread>

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
    m_ignorePathFile = other.m_ignorePathFile;
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
    m_hideSystemFile = true;
    m_ignoreBundle = false;
    m_scanFileType = 0;
    m_minFileSize = quint64(PreferenceRanges::MinFileSize.byDefault);
    m_removealMethod = moveToTrash;
    m_maxFileSize = quint64(PreferenceRanges::MaxFileSize.byDefault);
    // A single-core machine still gets two workers so that waiting on the disk and
    // hashing can overlap.
    m_threadCount = std::max(2, QThread::idealThreadCount());
}

QJsonObject DFIgnoreListPreferences::toJson() const
{
    QJsonObject json;
    json.insert(SnapshotKeys::maxFileSize, static_cast<double>(m_maxFileSize));
    json.insert(SnapshotKeys::minFileSize, static_cast<double>(m_minFileSize));
    json.insert(SnapshotKeys::ignoreSystemHidden, m_hideSystemFile);
    json.insert(QStringLiteral("IgnoreBundle"), m_ignoreBundle);
    json.insert(SnapshotKeys::scanFileType, m_scanFileType);
    json.insert(QStringLiteral("ThreadCount"), m_threadCount);
    json.insert(QStringLiteral("TrashFolder"), m_trashFolder);
    json.insert(QStringLiteral("OpenFolder"), m_openFolder);
    json.insert(QStringLiteral("SaveFolder"), m_saveFolder);
    json.insert(SnapshotKeys::ignorePathFile, QJsonArray::fromStringList(m_ignorePathFile));
    json.insert(SnapshotKeys::ignoreFileType, QJsonArray::fromStringList(m_ignoreFileType));
    json.insert(SnapshotKeys::onlyFileType, QJsonArray::fromStringList(m_onlyFileType));
    return json;
}
