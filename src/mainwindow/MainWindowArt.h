// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QString>

class QPushButton;
class QWidget;

// The window's pictures and its small flat picture buttons, shared by its pages.
namespace MainWindowArt {

QPixmap picture(const QString &name);
QPushButton *iconButton(QWidget *parent, const QString &name, const QString &icon);

} // namespace MainWindowArt
