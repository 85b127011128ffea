// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/DeleteResult.h"
#include "preferences/DFIgnoreListPreferences.h"

#include <QString>

// Removes one file or folder by one of the three removal methods: to the trash, for
// good, or into a chosen folder. Stateless; every failure is logged with the system's
// words. A move never replaces anything: an existing name gets a free one, and a move to
// another drive copies, checks the copy and only then removes the original.
class TFileDeleter
{
public:
    // The removal methods of the settings, under the names this class has always used.
    using Method = DFIgnoreListPreferences::DFRemovalMethod;
    static constexpr Method moveToTrash = DFIgnoreListPreferences::moveToTrash;
    static constexpr Method removePermanently = DFIgnoreListPreferences::removePermanently;
    static constexpr Method moveToFolder = DFIgnoreListPreferences::moveToFolder;
    static constexpr Method replaceByHardLink = DFIgnoreListPreferences::replaceByHardLink;
    static constexpr Method replaceByReflink = DFIgnoreListPreferences::replaceByReflink;
    static constexpr Method replaceBySymlink = DFIgnoreListPreferences::replaceBySymlink;

    // recordedPath: where the item belongs when it is at path only under a private name for
    // the act; the trash and the target folder take its name from there (empty: path).
    static DeleteResult deleteOne(const QString &path, int method, const QString &targetFolder,
        const QString &recordedPath = {});
    static DeleteResult deleteFile(const QString &path, int method, const QString &targetFolder,
        const QString &recordedPath = {});
    static DeleteResult deleteFolder(const QString &path, int method, const QString &targetFolder,
        const QString &recordedPath = {});

    // Each returns whether the item is gone; destination receives where it went, error
    // the system's code of the last failure. reason, when given, receives the words for a
    // failure to trash, naming the trash folder that could not be made.
    static bool moveFileToTrash(const QString &path, QString &destination, int &error,
        const QString &recordedPath = {}, QString *reason = nullptr);
    static bool removeFile(const QString &path, int &error);
    // name: the name to give it in folder (empty: its own).
    static bool moveIntoFolder(const QString &path, const QString &folder, QString &destination,
        int &error, const QString &name = {});

    // The first free name for name in folder: "name.ext", then "name (2).ext", and so on
    // (folders: "name (2)").
    static QString freeName(const QString &folder, const QString &name, bool isFolder);
    static QString errorText(int code);
    // A name in path's own folder that nothing else uses, for an item in the middle of an
    // act: ".veltrine-<purpose>-<16 hex digits>".
    static QString privateNameFor(
        const QString &path, const QString &purpose = QStringLiteral("removing"));
    // Puts an item back from its private name: at its own place, or beside it under a free
    // name when another program has put something there meanwhile. Where it ended up.
    static QString putBack(const QString &privatePath, const QString &path, bool isFolder);
};
