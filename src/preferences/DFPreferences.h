// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class QSettings;
class DFGenernalPreferences;
class DFIgnoreListPreferences;
class DFSelectionPreferences;

// The process-wide preferences store. It owns the three setting groups and persists
// them by reflection into the INI file "preferences.cfg": every meta-object property of
// a group is written under its own name, so a new property needs no extra code.
// Values are read and written on the GUI thread; workers get JSON snapshots (toJson of
// each group) when a job is set up.
class DFPreferences : public QObject
{
    Q_OBJECT
public:
    // The single store, created (and loaded) on the first call and saved at exit.
    static DFPreferences *instance();

    // A store on an explicit settings file, loaded at once and saved on destruction.
    // The application uses instance(); this serves tools and tests.
    explicit DFPreferences(const QString &settingsPath, QObject *parent = nullptr);
    ~DFPreferences() override;

    DFGenernalPreferences *generalPreferences() const { return m_general; }
    DFIgnoreListPreferences *ignoreListPreferences() const { return m_ignoreList; }
    DFSelectionPreferences *selectionPreferences() const { return m_selection; }
    QString settingsPath() const { return m_settingsPath; }
    // Why the settings file is not used: something other than a regular file (a folder, a
    // pipe, a device) stands at its path. The store then runs on the defaults and writes
    // no settings anywhere. Empty when the file is used.
    QString fileProblem() const { return m_fileProblem; }
    // Why path cannot hold the settings file, without opening it (opening a pipe would wait
    // for a writer); empty when a regular file or nothing is there.
    static QString notSettingsFile(const QString &path);

    // Writes the three groups to the file ("Common", "Duplicate_files", "Similar_images"),
    // unless fileProblem() says it is not one.
    void save();

    // Reflective reader and writer of one group. "Duplicate_files" also reads and writes
    // the top-level "map" section that holds the folder priorities inverted. A stored
    // value that does not fit its setting is logged and replaced: a number outside its
    // range (SettingsTable) by the nearest bound, anything else by the default. Keys
    // the group does not know stay in the file. Returns how many values were replaced.
    static int loadGroup(QSettings &settings, QObject *group, const QString &name);
    static void saveGroup(QSettings &settings, QObject *group, const QString &name);

    // "<generic config>/Veltrine/Veltrine Duplicate Finder/preferences.cfg", or, when
    // that cannot be written, the same file name in a folder on another fixed disk. Not
    // when something other than a file stands there: that is the user's to sort out, and
    // the settings are not moved away behind their back.
    static QString settingsFilePath();

    // The first folder "<root>/Veltrine Duplicate Finder" that exists or can be created,
    // over the fixed disk roots other than failingRoot; empty when there is none.
    static QString fallbackSettingsFolder(
        const QString &failingRoot, const QStringList &fixedRoots);

private:
    DFPreferences();
    void load();
    // Copies the settings file to "preferences.cfg.bak" before a repaired load is saved
    // over it.
    void keepCopyOfFile() const;

    DFGenernalPreferences *m_general = nullptr;
    DFIgnoreListPreferences *m_ignoreList = nullptr;
    DFSelectionPreferences *m_selection = nullptr;
    QString m_settingsPath;
    QString m_fileProblem;
};
