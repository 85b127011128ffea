// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QMutex>
#include <QString>
#include <QStringList>

// What one scan could not do: folders and files it could not read, links it did not
// follow because they lead outside the chosen folders, pseudo file systems it did not
// enter, and files that vanished between the walk and the read. The scanner's and the
// finder's pool threads add to it under its lock; the controller clears it when a scan
// starts, and the window and the command line read it when the scan has ended.
class ScanProblems
{
public:
    enum Kind : int {
        UnreadableFolder = 0,
        UnreadableFile,
        LinkOutsideRoots,
        PseudoFileSystem,
        VanishedFile,
        KindCount
    };
    // Paths kept per kind for the user to look at; the counts go on past it.
    static constexpr int kKeptPaths = 1000;

    ScanProblems() = default;
    ScanProblems(const ScanProblems &) = delete;
    ScanProblems &operator=(const ScanProblems &) = delete;

    // Starts a scan of rootCount roots.
    void clear(int rootCount = 0);
    void add(Kind kind, const QString &path);
    // A root that could not be listed; counted as an unreadable folder too.
    void addUnreadableRoot(const QString &path);

    qint64 count(Kind kind) const;
    QStringList paths(Kind kind) const;
    int unreadableRoots() const;
    // True when the scan had roots and none of them could be read: "nothing found" would
    // then be a false all-clear.
    bool allRootsUnreadable() const;
    // "N folders and M files could not be read" (singular where it is one), empty when
    // everything was read.
    QString unreadableSummary() const;

private:
    mutable QMutex m_mutex;
    std::array<qint64, KindCount> m_counts {};
    std::array<QStringList, KindCount> m_paths;
    int m_rootCount = 0;
    int m_unreadableRoots = 0;
};
