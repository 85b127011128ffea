// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

// The program's single window.
class MainWindow : public QWidget
{
    Q_OBJECT
public:
    explicit MainWindow(const QStringList &arguments, QWidget *parent = nullptr);
};
