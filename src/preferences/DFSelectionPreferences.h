// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/SettingsTable.h"

#include <QJsonObject>
#include <QMap>
#include <QObject>
#include <QString>

// The duplicate-file settings (settings group "Duplicate_files"): how duplicates are
// recognised, the rule of the automatic selection and the folder priorities. The
// priority map is stored by DFPreferences in a top-level "map" section, inverted.
// The group also owns the enumerations shared with the similar-image group.
class DFSelectionPreferences : public QObject
{
    Q_OBJECT
    Q_PROPERTY(DFScanMethod scanMethod READ scanMethod WRITE setScanMethod)
    Q_PROPERTY(DFSelectionHint selectDuplicate READ selectDuplicate WRITE setSelectDuplicate)
    Q_PROPERTY(QMap<QString, qint32> mapPriority READ mapPriority WRITE setMapPriority)
    Q_PROPERTY(bool scanDupDirectory READ scanDupDirectory WRITE setScanDupDirectory)
    Q_PROPERTY(DFIoMode ioMode READ ioMode WRITE setIoMode)
    Q_PROPERTY(DFSelectionHint similarSelectHint READ similarSelectHint WRITE setSimilarSelectHint
            STORED false)
public:
    enum DFScanMethod { scanContent = 0, scanName = 1, scanAllContent = 2 };
    Q_ENUM(DFScanMethod)
    enum DFSelectionHint {
        selectNewest = 0,
        selectOldest = 1,
        autoSelect = 2,
        selectPriority = 3,
        selectHighResolution = 4,
        selectLowResolution = 5,
        selectHighQuality = 6,
        selectLowQuality = 7,
        NoSelected = 8
    };
    Q_ENUM(DFSelectionHint)
    enum DFAlgorithmsHint { rbSmart = 0, rbHistogram = 1, rbPhash = 2, rbRobust = 3 };
    Q_ENUM(DFAlgorithmsHint)
    // How many files are read at once: as many as help (auto), many (ssd: a device that
    // serves reads in parallel), or one at a time in the disk's order (hdd).
    enum DFIoMode { ioAuto = 0, ioSsd = 1, ioHdd = 2 };
    Q_ENUM(DFIoMode)

    explicit DFSelectionPreferences(QObject *parent = nullptr);
    DFSelectionPreferences(const DFSelectionPreferences &other);
    DFSelectionPreferences &operator=(const DFSelectionPreferences &other);

    // Snapshot handed to the finder and the automatic selection; "selectDuplicate" is
    // written as "duplicateSelectHint".
    QJsonObject toJson() const;

    DFScanMethod scanMethod() const { return m_scanMethod; }
    void setScanMethod(DFScanMethod value) { m_scanMethod = value; }
    DFSelectionHint selectDuplicate() const { return m_selectDuplicate; }
    void setSelectDuplicate(DFSelectionHint value) { m_selectDuplicate = value; }
    // Folder path -> priority number, used by the selectPriority rule.
    QMap<QString, qint32> mapPriority() const { return m_mapPriority; }
    void setMapPriority(const QMap<QString, qint32> &value) { m_mapPriority = value; }
    bool scanDupDirectory() const { return m_scanDupDirectory; }
    void setScanDupDirectory(bool value) { m_scanDupDirectory = value; }
    DFIoMode ioMode() const { return m_ioMode; }
    void setIoMode(DFIoMode value) { m_ioMode = value; }

    DFSelectionHint similarSelectHint() const { return m_similarSelectHint; }
    void setSimilarSelectHint(DFSelectionHint value) { m_similarSelectHint = value; }

private:
    DFScanMethod m_scanMethod = DFScanMethod(SettingsTable::scanMethod.byDefault);
    DFSelectionHint m_selectDuplicate = DFSelectionHint(SettingsTable::selectDuplicate.byDefault);
    QMap<QString, qint32> m_mapPriority;
    bool m_scanDupDirectory = SettingsTable::scanDupDirectory.byDefault != 0;
    DFIoMode m_ioMode = DFIoMode(SettingsTable::ioMode.byDefault);
    DFSelectionHint m_similarSelectHint
        = DFSelectionHint(SettingsTable::similarSelectHint.byDefault);
};
