// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ProjectLoader.h"

#include "cli/CliText.h"
#include "fileops/TOpenSaveThread.h"

#include <cstdio>

#include <QEventLoop>
#include <QFileInfo>

int ProjectLoader::load(
    const QString &path, qint64 *scannedFiles, QString *scanTime, bool checkMembers)
{
    const QFileInfo info(path);
    if (!info.exists() || info.isDir()) {
        std::fprintf(stderr, "veltrine-duplicate-finder-cli: %s: %s\n",
            CliText::lineText(path).constData(),
            info.isDir() ? "is a folder, not a project file" : "no such project file");
        return 3;
    }
    TOpenSaveThread reader;
    reader.setCheckMembersOnDisk(checkMembers);
    int flag = -1;
    QEventLoop loop;
    QObject::connect(
        &reader, &TOpenSaveThread::openProjectComplated, &loop,
        [&](int result) {
            flag = result;
            loop.quit();
        },
        Qt::QueuedConnection);
    if (reader.openProject(info.absoluteFilePath()))
        loop.exec();
    if (flag != TOpenSaveThread::ProjectSucceeded) {
        std::fprintf(stderr,
            "veltrine-duplicate-finder-cli: the project could not be read: %s %s\n",
            qPrintable(TOpenSaveThread::resultText(flag)), qPrintable(reader.lastError()));
        return 3;
    }
    if (scannedFiles)
        *scannedFiles = reader.scanFileCount();
    if (scanTime)
        *scanTime = reader.scanTime();
    return 0;
}
