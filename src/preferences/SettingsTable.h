// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/SnapshotKeys.h"

#include <cstring>

#include <QJsonObject>
#include <QLatin1String>
#include <QList>
#include <QtGlobal>

class QObject;

// Every setting of "preferences.cfg" and of the snapshots, once: its group, its key in the
// file (the group class's property name), its key in the JSON snapshot, its kind, its
// default and, for numbers, its range; the words of the choices are in choices(). The
// store loads, checks, saves and snapshots from this table, the settings dialog takes its
// bounds from it, a scan refuses a snapshot outside it, and the command line builds its
// snapshots from the defaults and accepts the words.
namespace SettingsTable {

enum class Group { Common, Duplicates, Similar };

enum class Kind {
    Flag,
    Number,
    // A value of the group's enumeration.
    Choice,
    Text,
    TextList,
    // Folder -> priority; stored inverted in its own section "map".
    Priorities,
};

struct Setting
{
    Group group;
    // The group class's property, which is also the key in "preferences.cfg" (unless not
    // stored).
    const char *fileKey;
    // The key in the snapshot; empty for a value the engines never get.
    QLatin1String snapshotKey;
    Kind kind;
    qint64 byDefault;
    // Bounds of a number; a minimum above the maximum means none.
    qint64 minimum = 1;
    qint64 maximum = 0;
    // false: only the snapshot carries it (the property is declared STORED false).
    bool stored = true;

    constexpr bool ranged() const { return minimum <= maximum; }
    constexpr bool contains(double value) const { return value >= minimum && value <= maximum; }
    constexpr qint64 clamp(qint64 value) const
    {
        return value < minimum ? minimum : (value > maximum ? maximum : value);
    }
};

// Common ("Common").
// At least two, so that waiting on the disk and hashing overlap; the real default is the
// machine's thread count (defaultThreadCount()).
inline constexpr Setting ThreadCount {
    Group::Common, "ThreadCount", QLatin1String("ThreadCount"), Kind::Number, 2};
inline constexpr Setting RemovealMethod {
    Group::Common, "RemovealMethod", QLatin1String(), Kind::Choice, 0};
// Megabytes. The top keeps the byte count far from overflowing when shifted.
inline constexpr Setting MaxFileSize {
    Group::Common, "MaxFileSize", SnapshotKeys::maxFileSize, Kind::Number, 100000, 1, 100000};
// Kilobytes.
inline constexpr Setting MinFileSize {
    Group::Common, "MinFileSize", SnapshotKeys::minFileSize, Kind::Number, 0, 0, 10000000};
inline constexpr Setting TrashFolder {
    Group::Common, "TrashFolder", QLatin1String("TrashFolder"), Kind::Text, 0};
// A move into the target folder recreates each item's folders below its scanned folder.
inline constexpr Setting KeepFolderStructure {
    Group::Common, "KeepFolderStructure", QLatin1String(), Kind::Flag, 0};
inline constexpr Setting IgnorePathFile {
    Group::Common, "IgnorePathFile", SnapshotKeys::ignorePathFile, Kind::TextList, 0};
// Folders nothing in which is selected or removed. The window hands them to the result
// store when a scan starts, so the scan engines never read them from a snapshot.
inline constexpr Setting ProtectedFolderList {
    Group::Common, "ProtectedFolderList", QLatin1String(), Kind::TextList, 0};
inline constexpr Setting IgnoreFileType {
    Group::Common, "IgnoreFileType", SnapshotKeys::ignoreFileType, Kind::TextList, 0};
inline constexpr Setting OnlyFileType {
    Group::Common, "OnlyFileType", SnapshotKeys::onlyFileType, Kind::TextList, 0};
// Hidden and system files are left out unless the user asks for them.
inline constexpr Setting HideSystemFile {
    Group::Common, "HideSystemFile", SnapshotKeys::ignoreSystemHidden, Kind::Flag, 1};
// 0: the only-list governs; 1: the ignore list governs.
inline constexpr Setting ScanFileType {
    Group::Common, "ScanFileType", SnapshotKeys::scanFileType, Kind::Number, 0};
inline constexpr Setting OpenFolder {
    Group::Common, "OpenFolder", QLatin1String("OpenFolder"), Kind::Text, 0};
inline constexpr Setting SaveFolder {
    Group::Common, "SaveFolder", QLatin1String("SaveFolder"), Kind::Text, 0};
// The marker of a removal in progress.
inline constexpr Setting deleteException {
    Group::Common, "deleteException", QLatin1String(), Kind::Number, 0};
inline constexpr Setting IgnoreBundle {
    Group::Common, "IgnoreBundle", QLatin1String("IgnoreBundle"), Kind::Flag, 0, 1, 0, false};

// Duplicates ("Duplicate_files").
// A new settings file compares whole contents, so that a group is a real duplicate.
inline constexpr Setting scanMethod {
    Group::Duplicates, "scanMethod", SnapshotKeys::scanMethod, Kind::Choice, 2};
inline constexpr Setting selectDuplicate {
    Group::Duplicates, "selectDuplicate", SnapshotKeys::duplicateSelectHint, Kind::Choice, 2};
inline constexpr Setting mapPriority {
    Group::Duplicates, "mapPriority", SnapshotKeys::mapPriority, Kind::Priorities, 0};
inline constexpr Setting scanDupDirectory {
    Group::Duplicates, "scanDupDirectory", SnapshotKeys::scanDupDirectory, Kind::Flag, 0};
// How many files the finder reads at once; auto follows what the device does.
inline constexpr Setting ioMode {
    Group::Duplicates, "ioMode", SnapshotKeys::ioMode, Kind::Choice, 0};
inline constexpr Setting similarSelectHint {Group::Duplicates, "similarSelectHint",
    QLatin1String("similarSelectHint"), Kind::Choice, 2, 1, 0, false};

// Similar pictures ("Similar_images").
inline constexpr Setting hasSimilar {
    Group::Similar, "hasSimilar", SnapshotKeys::hasSimilar, Kind::Flag, 1};
// Percent. At 0 every pair of pictures would pass and all pictures would form one group.
inline constexpr Setting SimilarityValue {
    Group::Similar, "SimilarityValue", SnapshotKeys::similarityValue, Kind::Number, 55, 1, 100};
// Percent.
inline constexpr Setting FeaturesValue {
    Group::Similar, "FeaturesValue", SnapshotKeys::featuresValue, Kind::Number, 50, 20, 60};
inline constexpr Setting selectedSimilar {
    Group::Similar, "selectedSimilar", SnapshotKeys::selectedSimilar, Kind::Flag, 0};
inline constexpr Setting scanPriority {
    Group::Similar, "scanPriority", SnapshotKeys::scanPriority, Kind::Choice, 1};
inline constexpr Setting selectionHint {
    Group::Similar, "selectionHint", SnapshotKeys::selectionHint, Kind::Choice, 2};
// A new settings file takes the robust measure and compares across picture formats: the
// text's measures with the same-type rule find a quarter of the edited copies in a photo
// library. Files written before keep their values (every stored key is written).
inline constexpr Setting algorithmHint {
    Group::Similar, "algorithmHint", SnapshotKeys::algorithmHint, Kind::Choice, 3};
inline constexpr Setting isAddFeatures {
    Group::Similar, "isAddFeatures", SnapshotKeys::isAddFeatures, Kind::Flag, 1};
inline constexpr Setting isImageType {
    Group::Similar, "isImageType", SnapshotKeys::isImageType, Kind::Flag, 0};
inline constexpr Setting isImageSize {
    Group::Similar, "isImageSize", SnapshotKeys::isImageSize, Kind::Flag, 1};
// Times: how far two aspect ratios may differ.
inline constexpr Setting imageMinSize {
    Group::Similar, "imageMinSize", SnapshotKeys::imageMinSize, Kind::Number, 4, 1, 10};

// In the order of the file and of the snapshots.
inline constexpr const Setting *all[]
    = {&ThreadCount, &RemovealMethod, &MaxFileSize, &MinFileSize, &TrashFolder,
        &KeepFolderStructure, &IgnorePathFile, &ProtectedFolderList, &IgnoreFileType, &OnlyFileType,
        &HideSystemFile, &ScanFileType, &OpenFolder, &SaveFolder, &deleteException, &IgnoreBundle,
        &scanMethod, &selectDuplicate, &mapPriority, &scanDupDirectory, &ioMode, &similarSelectHint,
        &hasSimilar, &SimilarityValue, &FeaturesValue, &selectedSimilar, &scanPriority,
        &selectionHint, &algorithmHint, &isAddFeatures, &isImageType, &isImageSize, &imageMinSize};

// The setting stored under a key of "preferences.cfg", or nullptr.
inline const Setting *byFileKey(const char *key)
{
    for (const Setting *setting : all) {
        if (std::strcmp(setting->fileKey, key) == 0)
            return setting;
    }
    return nullptr;
}

// The snapshot of one group: each of its settings that has a snapshot key, read from the
// group's property of that setting.
QJsonObject snapshotOf(const QObject &group, Group which);

// The worker-thread count a new settings file gets.
int defaultThreadCount();

// A choice by the word the command line and the journal use for it.
struct Word
{
    const char *word;
    int value;
};
// The words of a choice setting (RemovealMethod, scanMethod, selectDuplicate and the
// other selection hints, algorithmHint, scanPriority), in the order of their values.
QList<Word> choices(const Setting &setting);
// The word of a value, or nullptr when it has none.
const char *wordOf(const Setting &setting, int value);

// A minimum not below the maximum would let no file through.
constexpr bool sizeBoundsValid(double minimumKb, double maximumMb)
{
    return minimumKb < maximumMb * 1024.0;
}

} // namespace SettingsTable
