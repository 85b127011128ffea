// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/DFSelectionPreferences.h"

#include "app/SnapshotKeys.h"

DFSelectionPreferences::DFSelectionPreferences(QObject *parent) : QObject(parent) { }

DFSelectionPreferences::DFSelectionPreferences(const DFSelectionPreferences &other)
    : QObject(nullptr)
{
    *this = other;
}

DFSelectionPreferences &DFSelectionPreferences::operator=(const DFSelectionPreferences &other)
{
    if (this == &other)
        return *this;
    setObjectName(other.objectName());
    m_scanMethod = other.m_scanMethod;
    m_selectDuplicate = other.m_selectDuplicate;
    m_mapPriority = other.m_mapPriority;
    m_scanDupDirectory = other.m_scanDupDirectory;
    m_similarSelectHint = other.m_similarSelectHint;
    return *this;
}

QJsonObject DFSelectionPreferences::toJson() const
{
    QJsonObject priorities;
    for (auto it = m_mapPriority.cbegin(); it != m_mapPriority.cend(); ++it)
        priorities.insert(it.key(), it.value());

    QJsonObject json;
    json.insert(SnapshotKeys::scanMethod, static_cast<int>(m_scanMethod));
    json.insert(SnapshotKeys::duplicateSelectHint, static_cast<int>(m_selectDuplicate));
    json.insert(QStringLiteral("similarSelectHint"), static_cast<int>(m_similarSelectHint));
    json.insert(SnapshotKeys::scanDupDirectory, m_scanDupDirectory);
    json.insert(SnapshotKeys::mapPriority, priorities);
    return json;
}
