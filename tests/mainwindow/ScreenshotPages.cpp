// SPDX-License-Identifier: GPL-3.0-or-later
// Saves a picture of each page of the main window into the folder given as argument.
// Run it through tools/screenshots.sh (under Xvfb) to look at the real rendering.
#include "engine/TFileData.h"
#include "mainwindow/MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>

static void save(QWidget *widget, const QString &folder, const QString &name)
{
    QTest::qWait(150);
    widget->grab().save(QDir(folder).filePath(name + QStringLiteral(".png")));
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QString out = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::currentPath();
    QFile style(QStringLiteral(":resource/Style.qss"));
    if (style.open(QIODevice::ReadOnly))
        app.setStyleSheet(QString::fromUtf8(style.readAll()));

    QTemporaryDir tree;
    for (const char *name : {"Photos", "Documents", "Music archive"})
        QDir(tree.path()).mkpath(QString::fromLatin1(name));

    MainWindow window({QStringLiteral("program")});
    window.show();
    QTest::qWaitForWindowExposed(&window);
    save(&window, out, QStringLiteral("1-folders-empty"));

    for (const char *name : {"Photos", "Documents", "Music archive"})
        window.addFolder(QDir(tree.path()).filePath(QString::fromLatin1(name)));
    save(&window, out, QStringLiteral("2-folders-added"));

    auto *pages = window.findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    pages->setCurrentIndex(1);
    window.setStatus(MainWindow::StateScanning);
    window.filesCountChange(48211);
    window.onProcessChange(62.5);
    window.onItemFound(1375, qint64(3) * 1024 * 1024 * 1024 + 400 * 1024 * 1024);
    window.onUpdateTimer(QStringLiteral("00:01:37"));
    save(&window, out, QStringLiteral("3-scanning"));

    pages->setCurrentIndex(2);
    window.setStatus(MainWindow::StateFinished);
    save(&window, out, QStringLiteral("4-no-duplicates"));

    window.systemMenu()->popup(window.mapToGlobal(QPoint(600, 48)));
    QTest::qWait(200);
    save(window.systemMenu(), out, QStringLiteral("5-system-menu"));
    window.systemMenu()->hide();
    window.addMenu()->popup(window.mapToGlobal(QPoint(400, 500)));
    QTest::qWait(200);
    save(window.addMenu(), out, QStringLiteral("6-add-menu"));
    window.addMenu()->hide();

    // A finished scan with results opens the group list.
    const QString a = QDir(tree.path()).filePath(QStringLiteral("Photos/beach.jpg"));
    const QString b = QDir(tree.path()).filePath(QStringLiteral("Documents/beach.jpg"));
    for (const QString &path : {a, b}) {
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(QByteArray(250000, 'x'));
    }
    TFileData::instance()->insertGroup(TFileData::groupKey(a), {a, b});
    window.allThreadComplate();
    if (window.resultPage())
        save(window.resultPage(), out, QStringLiteral("7-results"));
    TFileData::instance()->clear();
    return 0;
}
