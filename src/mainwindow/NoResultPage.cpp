// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/NoResultPage.h"

#include "app/LanguageSetup.h"
#include "mainwindow/MainWindow.h"
#include "mainwindow/MainWindowArt.h"

#include <QLabel>
#include <QVBoxLayout>

using MainWindowArt::picture;

NoResultPage::NoResultPage(QWidget *parent) : QWidget(parent)
{
    auto *page = this;
    page->setObjectName(QStringLiteral("page_noResults"));
    auto *layout = new QVBoxLayout(page);
    m_noResultRing = new QLabel(page);
    m_noResultRing->setObjectName(QStringLiteral("lab_noDuplicatesRing"));
    m_noResultRing->setPixmap(picture(QStringLiteral("noduplicatesfound_ring_bg.png")));
    m_noResultRing->setAlignment(Qt::AlignCenter);
    m_noResultText = new QLabel(page);
    m_noResultText->setObjectName(QStringLiteral("lab_noDuplicates"));
    m_noResultText->setPixmap(picture(LanguageSetup::current().noDuplicatesBackground.isEmpty()
            ? QStringLiteral("noduplicatesfound_bg.png")
            : LanguageSetup::current().noDuplicatesBackground));
    m_noResultText->setAlignment(Qt::AlignCenter);
    // Takes the place of "No duplicate files found" when nothing could be read at all:
    // an all-clear would then be false.
    m_labUnreadable = new QLabel(page);
    m_labUnreadable->setObjectName(QStringLiteral("lab_rootsUnreadable"));
    m_labUnreadable->setAlignment(Qt::AlignCenter);
    m_labUnreadable->setWordWrap(true);
    m_labUnreadable->setVisible(false);
    layout->addStretch(1);
    layout->addWidget(m_noResultRing);
    layout->addWidget(m_noResultText);
    layout->addWidget(m_labUnreadable);
    layout->addStretch(1);
}

void NoResultPage::showAllClear()
{
    m_noResultRing->setPixmap(picture(QStringLiteral("noduplicatesfound_ring_bg.png")));
    m_noResultText->setVisible(true);
    m_labUnreadable->setVisible(false);
}

void NoResultPage::showRootsUnreadable(bool one)
{
    showWarning(
        QStringLiteral("<b>%1</b><br>%2")
            .arg((one ? MainWindow::tr("The chosen folder could not be read.")
                      : MainWindow::tr("The chosen folders could not be read."))
                     .toHtmlEscaped(),
                (one ? MainWindow::tr(
                     "Check that it still exists and that you are allowed to open it.")
                     : MainWindow::tr(
                         "Check that they still exist and that you are allowed to open them."))
                    .toHtmlEscaped()));
}

void NoResultPage::showStopped(bool beforeComparing)
{
    showWarning(
        QStringLiteral("<b>%1</b><br>%2")
            .arg(MainWindow::tr("Scan stopped – results are incomplete").toHtmlEscaped(),
                (beforeComparing
                        ? MainWindow::tr("The scan was stopped before any files were compared.")
                        : MainWindow::tr("No duplicates were found among the files compared "
                                         "before the stop."))
                    .toHtmlEscaped()));
}

void NoResultPage::showWarning(const QString &html)
{
    m_noResultRing->setPixmap(picture(QStringLiteral("unreadable_ring_bg.png")));
    m_noResultText->setVisible(false);
    m_labUnreadable->setText(html);
    m_labUnreadable->setVisible(true);
}
