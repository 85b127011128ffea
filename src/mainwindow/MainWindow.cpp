// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/MainWindow.h"

#include "app/AppIdentity.h"

#include <QLabel>
#include <QVBoxLayout>

MainWindow::MainWindow(const QStringList &arguments, QWidget *parent)
    : QWidget(parent)
{
    Q_UNUSED(arguments)
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(AppIdentity::applicationName);
    resize(1080, 720);
    auto *layout = new QVBoxLayout(this);
    auto *label = new QLabel(tr("Add folders to find duplicate files and similar photos."), this);
    label->setAlignment(Qt::AlignCenter);
    layout->addWidget(label);
}
