// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QList>
#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>

// Reads one property ("createdTime", "width", "height", "size", "similar") of a cloud
// item, given the entry the group holds. The cloud source wraps its library in such a
// reader; local callers pass an empty one, which means "read the file on disk".
using CloudPropertyReader = std::function<QVariant(const QString &entry, const QString &property)>;

// Computes which members of a group of identical (or similar) files are marked for
// removal. Every function returns the entries to select, in group order; the entry left
// out is the copy that is kept. Entries are as the result store keeps them
// (GroupMember::entry()): the file behind an entry is read through its path, and the entries
// are returned exactly as given. Members in a protected folder (the result store's
// ProtectedFolders) are never selected, whatever the rule; how a group holding one is
// judged is told at select(). The class holds no state (the keyword table and the
// copy-number pattern are built once per process), so every function may run on any
// thread at the same time.
//
// Typical use by the duplicate finder for a new group:
//     const QStringList pick = GroupItemAutoSelector::select(paths, hint, mapPriority);
//     GroupItemAutoSelector::storeSelection(key, pick);
// or both steps at once with applyToGroup(key, paths, hint, mapPriority).
class GroupItemAutoSelector
{
public:
    // Rules of the automatic selection. 0 to 7 carry the values of the selection-hint
    // preference; 8 and 9 are the plain "Select All" and "Deselect" commands of the result
    // page. The preference's "no selection" value is also 8: callers skip the selector for
    // it, so 8 reaching the selector always means "select all".
    enum AutoSelectRule : int {
        selectNewest = 0, // keeps the oldest file
        selectOldest = 1, // keeps the newest file
        autoSelect = 2, // keeps the best name-and-folder score
        selectPriority = 3, // keeps the file in the folder of highest priority
        selectHighResolution = 4, // keeps the smallest picture
        selectLowResolution = 5, // keeps the largest picture
        selectHighQuality = 6, // keeps the smallest file
        selectLowQuality = 7, // keeps the largest file
        selectAllFiles = 8, // selects every member
        deselectAll = 9, // selects nothing
    };

    using KeyedGroup = QPair<QString, QStringList>;

    // Rules 0 to 2 and 4 to 9. Rule 3 and unknown values select nothing here (rule 3
    // needs the folder priorities: use selectByPriority or select).
    static QStringList selectGroup(
        const QStringList &paths, int rule, const CloudPropertyReader &cloud = {});

    // Rule 3: the members under the folder of highest priority (the most specific listed
    // folder that holds them) are the candidates to keep and the first of them in group
    // order is kept. Without any priorities it behaves exactly like rule 2.
    static QStringList selectByPriority(const QStringList &paths,
        const QMap<QString, int> &mapPriority, const CloudPropertyReader &cloud = {});

    // Any rule. A group with protected members: the name and priority rules (2, 3)
    // select every unprotected member, since a protected copy stays anyway; the rules of
    // a criterion (0, 1, 4 to 8) pick as over the whole group, less the protected members;
    // "Deselect" selects nothing.
    static QStringList select(const QStringList &paths, int rule,
        const QMap<QString, int> &mapPriority = {}, const CloudPropertyReader &cloud = {});

    // Writes a computed selection into the result store: a non-empty one replaces the
    // group's selection, an empty one removes the group's entry.
    static void storeSelection(const QString &key, const QStringList &selection);

    // select() followed by storeSelection(); returns the selection.
    static QStringList applyToGroup(const QString &key, const QStringList &paths, int rule,
        const QMap<QString, int> &mapPriority = {}, const CloudPropertyReader &cloud = {});

    // Applies the rule to every (group key, members) pair on the global thread pool and
    // stores each result; blocks until all groups are done.
    static void autoSelectAllEx(const QList<KeyedGroup> &groups, int rule,
        const CloudPropertyReader &cloud = {}, const QMap<QString, int> &mapPriority = {});

    // The same rule for cloud groups, after leaving out of consideration the members
    // whose cloud property "similar" is true (only when excludeSimilar is set and a
    // reader is given; those members are then neither kept nor selected).
    static QStringList selectCloudGroup(const QStringList &paths, int rule,
        const QMap<QString, int> &mapPriority, const CloudPropertyReader &cloud,
        bool excludeSimilar);

    // Name-and-folder score of one entry (rule 2): 100, minus 50 per keyword found in the
    // lower-case file name (20 for "new"), minus 30 per keyword in the lower-case parent
    // folder for local files (20 for "new"), minus 50 per copy-number match in the name.
    static int score(const QString &entry, bool cloud = false);

    // Priority of one path: that of the longest listed folder holding it, 0 when none.
    static int priorityOf(const QString &path, const QMap<QString, int> &mapPriority);

    // Picture size read from the file header without decoding the picture; (-1, -1)
    // when it cannot be read.
    static QPair<int, int> pictureSize(const QString &path);

    // The 32 lower-case keywords of the score rule.
    static const QStringList &keywords();

private:
    // The rules as they judge every member given, protected or not.
    static QStringList selectOpen(
        const QStringList &paths, int rule, const CloudPropertyReader &cloud);
    static QStringList byPriorityOpen(const QStringList &paths,
        const QMap<QString, int> &mapPriority, const CloudPropertyReader &cloud);
};
