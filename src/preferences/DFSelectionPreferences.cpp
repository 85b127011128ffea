// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/DFSelectionPreferences.h"

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
    m_ioMode = other.m_ioMode;
    m_similarSelectHint = other.m_similarSelectHint;
    return *this;
}

QJsonObject DFSelectionPreferences::toJson() const
{
    return SettingsTable::snapshotOf(*this, SettingsTable::Group::Duplicates);
}
