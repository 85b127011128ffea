// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/ProblemListDialog.h"

#include <QLabel>

class ScanProblems;

// What the last scan could not read or did not follow, in a sentence or two under the
// finished pages, with a link to the list of the paths.
class ScanProblemsLabel : public QLabel
{
    Q_OBJECT
public:
    explicit ScanProblemsLabel(QWidget *parent = nullptr);

    void showProblems(const ScanProblems &problems);
    void clearProblems();
    // "3 folders and 1 file could not be read" in the current language; empty when both
    // counts are 0.
    static QString unreadableText(qint64 folders, qint64 files);
    QList<ProblemListDialog::Section> sections() const { return m_problemSections; }

private:
    QList<ProblemListDialog::Section> m_problemSections;
};
