// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/MainWindowArt.h"

#include <QIcon>
#include <QPushButton>

namespace MainWindowArt {

QPixmap picture(const QString &name)
{
    return QPixmap(QStringLiteral(":/resource/") + name);
}

QPushButton *iconButton(QWidget *parent, const QString &name, const QString &icon)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(name);
    button->setIcon(QIcon(QStringLiteral(":/resource/") + icon));
    button->setIconSize(QSize(20, 20));
    button->setFixedSize(32, 32);
    button->setFlat(true);
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

} // namespace MainWindowArt
