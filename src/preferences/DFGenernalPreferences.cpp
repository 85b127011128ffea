// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/DFGenernalPreferences.h"

DFGenernalPreferences::DFGenernalPreferences(QObject *parent) : QObject(parent) { }

DFGenernalPreferences::DFGenernalPreferences(const DFGenernalPreferences &other) : QObject(nullptr)
{
    *this = other;
}

DFGenernalPreferences &DFGenernalPreferences::operator=(const DFGenernalPreferences &other)
{
    if (this == &other)
        return *this;
    setObjectName(other.objectName());
    m_hasSimilar = other.m_hasSimilar;
    m_similarityValue = other.m_similarityValue;
    m_featuresValue = other.m_featuresValue;
    m_selectedSimilar = other.m_selectedSimilar;
    m_scanPriority = other.m_scanPriority;
    m_selectionHint = other.m_selectionHint;
    m_algorithmHint = other.m_algorithmHint;
    m_isAddFeatures = other.m_isAddFeatures;
    m_isImageType = other.m_isImageType;
    m_isImageSize = other.m_isImageSize;
    m_imageMinSize = other.m_imageMinSize;
    return *this;
}

QJsonObject DFGenernalPreferences::toJson() const
{
    return SettingsTable::snapshotOf(*this, SettingsTable::Group::Similar);
}
