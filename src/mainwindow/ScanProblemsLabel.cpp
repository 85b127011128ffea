// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/ScanProblemsLabel.h"

#include "engine/ScanProblems.h"
#include "mainwindow/MainWindow.h"

ScanProblemsLabel::ScanProblemsLabel(QWidget *parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("lab_scanProblems"));
    setTextFormat(Qt::RichText);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    // One sentence a line: every sentence fits the narrowest window in all languages, and
    // a wrapped label would be squeezed to a thin column between the stretches.
    setWordWrap(false);
    setAlignment(Qt::AlignCenter);
    setVisible(false);
}

void ScanProblemsLabel::clearProblems()
{
    m_problemSections.clear();
    clear();
    setVisible(false);
}

void ScanProblemsLabel::showProblems(const ScanProblems &problems)
{
    const auto section = [&problems](const QString &title, ScanProblems::Kind kind) {
        return ProblemListDialog::Section {title, problems.count(kind), problems.paths(kind)};
    };
    m_problemSections = {
        section(MainWindow::tr("Folders that could not be read"), ScanProblems::UnreadableFolder),
        section(MainWindow::tr("Files that could not be read"), ScanProblems::UnreadableFile),
        section(MainWindow::tr("Links not followed because they lead outside the chosen folders"),
            ScanProblems::LinkOutsideRoots),
        section(MainWindow::tr("System folders not entered"), ScanProblems::PseudoFileSystem),
    };
    QStringList sentences;
    const QString unreadable = unreadableText(problems.count(ScanProblems::UnreadableFolder),
        problems.count(ScanProblems::UnreadableFile));
    if (!unreadable.isEmpty())
        sentences << unreadable;
    if (const qint64 links = problems.count(ScanProblems::LinkOutsideRoots))
        sentences << MainWindow::tr(
            "%n link(s) leading outside the chosen folders were not followed.", nullptr,
            int(std::min<qint64>(links, INT_MAX)));
    if (!sentences.isEmpty()) {
        for (QString &sentence : sentences)
            sentence = sentence.toHtmlEscaped();
        setText(QStringLiteral("%1 &nbsp;<a href=\"details\" style=\"color:#2f6fae;\">%2</a>")
                    .arg(sentences.join(QStringLiteral("<br>")),
                        MainWindow::tr("Details").toHtmlEscaped()));
        setVisible(true);
    }
}

QString ScanProblemsLabel::unreadableText(qint64 folders, qint64 files)
{
    // Counts past two thousand million are not expected; tr's %n takes an int.
    const int f = int(std::min<qint64>(folders, INT_MAX));
    const int n = int(std::min<qint64>(files, INT_MAX));
    if (f > 0 && n > 0)
        return MainWindow::tr("%1 and %2 could not be read.")
            .arg(MainWindow::tr("%n folder(s)", nullptr, f),
                MainWindow::tr("%n file(s)", nullptr, n));
    if (f > 0)
        return MainWindow::tr("%n folder(s) could not be read.", nullptr, f);
    if (n > 0)
        return MainWindow::tr("%n file(s) could not be read.", nullptr, n);
    return QString();
}
