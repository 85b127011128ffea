// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/DFSelectionPreferences.h"
#include "preferences/SettingsTable.h"

#include <QJsonObject>
#include <QObject>

// The similar-image settings (settings group "Similar_images"): thresholds, selection
// and algorithm hints and the image filters. Persisted property by property, in
// declaration order, by DFPreferences.
class DFGenernalPreferences : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool hasSimilar READ hasSimilar WRITE setHasSimilar)
    Q_PROPERTY(int SimilarityValue READ SimilarityValue WRITE setSimilarityValue)
    Q_PROPERTY(int FeaturesValue READ FeaturesValue WRITE setFeaturesValue)
    Q_PROPERTY(bool selectedSimilar READ selectedSimilar WRITE setSelectedSimilar)
    Q_PROPERTY(DFScanPriority scanPriority READ scanPriority WRITE setScanPriority)
    Q_PROPERTY(DFSelectionPreferences::DFSelectionHint selectionHint READ selectionHint WRITE
            setSelectionHint)
    Q_PROPERTY(DFSelectionPreferences::DFAlgorithmsHint algorithmHint READ algorithmHint WRITE
            setAlgorithmHint)
    Q_PROPERTY(bool isAddFeatures READ isAddFeatures WRITE setIsAddFeatures)
    Q_PROPERTY(bool isImageType READ isImageType WRITE setIsImageType)
    Q_PROPERTY(bool isImageSize READ isImageSize WRITE setIsImageSize)
    Q_PROPERTY(int imageMinSize READ imageMinSize WRITE setImageMinSize)
public:
    enum DFScanPriority { scanSpeed = 0, scanResult = 1, scanCustom = 2 };
    Q_ENUM(DFScanPriority)

    explicit DFGenernalPreferences(QObject *parent = nullptr);
    DFGenernalPreferences(const DFGenernalPreferences &other);
    DFGenernalPreferences &operator=(const DFGenernalPreferences &other);

    // Snapshot handed to the image comparison: every property under its own name.
    QJsonObject toJson() const;

    bool hasSimilar() const { return m_hasSimilar; }
    void setHasSimilar(bool value) { m_hasSimilar = value; }
    // The thresholds are held as float but shown as int: reading truncates toward
    // zero, so the file always holds a whole number.
    int SimilarityValue() const { return static_cast<int>(m_similarityValue); }
    void setSimilarityValue(int value) { m_similarityValue = static_cast<float>(value); }
    int FeaturesValue() const { return static_cast<int>(m_featuresValue); }
    void setFeaturesValue(int value) { m_featuresValue = static_cast<float>(value); }
    bool selectedSimilar() const { return m_selectedSimilar; }
    void setSelectedSimilar(bool value) { m_selectedSimilar = value; }
    DFScanPriority scanPriority() const { return m_scanPriority; }
    void setScanPriority(DFScanPriority value) { m_scanPriority = value; }
    DFSelectionPreferences::DFSelectionHint selectionHint() const { return m_selectionHint; }
    void setSelectionHint(DFSelectionPreferences::DFSelectionHint value)
    {
        m_selectionHint = value;
    }
    DFSelectionPreferences::DFAlgorithmsHint algorithmHint() const { return m_algorithmHint; }
    void setAlgorithmHint(DFSelectionPreferences::DFAlgorithmsHint value)
    {
        m_algorithmHint = value;
    }
    bool isAddFeatures() const { return m_isAddFeatures; }
    void setIsAddFeatures(bool value) { m_isAddFeatures = value; }
    bool isImageType() const { return m_isImageType; }
    void setIsImageType(bool value) { m_isImageType = value; }
    bool isImageSize() const { return m_isImageSize; }
    void setIsImageSize(bool value) { m_isImageSize = value; }
    int imageMinSize() const { return m_imageMinSize; }
    void setImageMinSize(int value) { m_imageMinSize = value; }

private:
    bool m_hasSimilar = SettingsTable::hasSimilar.byDefault != 0;
    float m_similarityValue = float(SettingsTable::SimilarityValue.byDefault);
    float m_featuresValue = float(SettingsTable::FeaturesValue.byDefault);
    bool m_selectedSimilar = SettingsTable::selectedSimilar.byDefault != 0;
    DFScanPriority m_scanPriority = DFScanPriority(SettingsTable::scanPriority.byDefault);
    DFSelectionPreferences::DFSelectionHint m_selectionHint
        = DFSelectionPreferences::DFSelectionHint(SettingsTable::selectionHint.byDefault);
    DFSelectionPreferences::DFAlgorithmsHint m_algorithmHint
        = DFSelectionPreferences::DFAlgorithmsHint(SettingsTable::algorithmHint.byDefault);
    bool m_isAddFeatures = SettingsTable::isAddFeatures.byDefault != 0;
    bool m_isImageType = SettingsTable::isImageType.byDefault != 0;
    bool m_isImageSize = SettingsTable::isImageSize.byDefault != 0;
    int m_imageMinSize = int(SettingsTable::imageMinSize.byDefault);
};
