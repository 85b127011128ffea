// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/TitleBar.h"

#include "mainwindow/MainWindowArt.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using MainWindowArt::iconButton;
using MainWindowArt::picture;

TitleBar::TitleBar(QWidget *parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("frame_title"));
    setFixedHeight(48);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 0, 10, 0);
    auto *logo = new QLabel(this);
    logo->setObjectName(QStringLiteral("lab_logo"));
    logo->setPixmap(picture(QStringLiteral("logo.png")));
    m_title = new QLabel(this);
    m_title->setObjectName(QStringLiteral("lab_title"));
    m_btnSet = iconButton(this, QStringLiteral("btn_set"), QStringLiteral("btn_set.png"));
    m_btnMenu = iconButton(this, QStringLiteral("btn_menu"), QStringLiteral("btn_menu.png"));
    m_btnMinimize
        = iconButton(this, QStringLiteral("btn_minimize"), QStringLiteral("btn_minimize.png"));
    m_btnClose = iconButton(this, QStringLiteral("btn_close"), QStringLiteral("btn_close.png"));
    layout->addWidget(logo);
    layout->addWidget(m_title);
    layout->addStretch(1);
    layout->addWidget(m_btnSet);
    layout->addWidget(m_btnMenu);
    layout->addWidget(m_btnMinimize);
    layout->addWidget(m_btnClose);
}

void TitleBar::setTitle(const QString &title)
{
    m_title->setText(title);
}
