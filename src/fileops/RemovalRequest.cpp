// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/RemovalRequest.h"

#include "fileops/TFileDeleter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

RemovalRequest RemovalRequest::fromStore(int method, const QString &targetFolder)
{
    const TFileData *store = TFileData::instance();
    RemovalRequest request;
    request.method = method;
    request.targetFolder = targetFolder;
    request.groups = store->groups();
    request.dirGroups = store->dirGroups();
    request.selected = store->selected();
    request.stamps = store->stamps();
    request.scanRoots = store->scanRoots();
    request.protectedFolders = store->protectedFolders();
    for (auto it = request.groups.cbegin(); it != request.groups.cend(); ++it) {
        const TFileData::GroupMatch match = store->groupMatch(it.key());
        if (match == TFileData::MatchName)
            request.nameGroups.insert(it.key());
        else if (match == TFileData::MatchSampled)
            request.sampledGroups.insert(it.key());
    }
    return request;
}

QString RemovalRequest::refusal() const
{
    if (method != TFileDeleter::moveToFolder)
        return {};
    const QFileInfo target(targetFolder);
    if (targetFolder.isEmpty())
        return QCoreApplication::translate("RemovalRequest", "No target folder was chosen.");
    if (target.exists() && !target.isDir())
        return QCoreApplication::translate("RemovalRequest", "The target %1 is not a folder.")
            .arg(QDir::toNativeSeparators(targetFolder));
    // The target's real place, or, for one still to be made, that of its nearest existing
    // parent plus the rest.
    QString existing = QDir::cleanPath(target.absoluteFilePath());
    QString rest;
    while (!QFileInfo::exists(existing) && existing != QDir::rootPath()) {
        const QFileInfo part(existing);
        rest = QLatin1Char('/') + part.fileName() + rest;
        existing = part.absolutePath();
    }
    const QString real = QFileInfo(existing).canonicalFilePath() + rest;
    for (auto it = selected.cbegin(); it != selected.cend(); ++it) {
        if (!dirGroups.contains(it.key()))
            continue;
        for (const QString &folder : it.value()) {
            const QString realFolder = QFileInfo(folder).canonicalFilePath();
            if (!realFolder.isEmpty()
                && (real == realFolder || real.startsWith(realFolder + QLatin1Char('/'))))
                return QCoreApplication::translate("RemovalRequest",
                    "The folder %1 cannot be moved into %2, which lies inside it.")
                    .arg(QDir::toNativeSeparators(folder), QDir::toNativeSeparators(targetFolder));
        }
    }
    return {};
}

QString RemovalRequest::folderFor(const QString &path) const
{
    if (!keepStructure || method != TFileDeleter::moveToFolder)
        return targetFolder;
    const QString folder = QDir::cleanPath(path.left(path.lastIndexOf(QLatin1Char('/'))));
    QString holder;
    for (const QString &root : scanRoots) {
        const QString clean = QDir::cleanPath(root);
        const QString prefix = clean.endsWith(QLatin1Char('/')) ? clean : clean + QLatin1Char('/');
        if ((folder == clean || folder.startsWith(prefix)) && clean.size() > holder.size())
            holder = clean;
    }
    QString relative;
    if (!holder.isEmpty()) {
        relative = folder.mid(holder.size());
    } else {
        // "C:/photos" keeps its drive as a folder name "C".
        relative = folder;
        relative.remove(QLatin1Char(':'));
    }
    while (relative.startsWith(QLatin1Char('/')))
        relative.remove(0, 1);
    return relative.isEmpty() ? targetFolder
                              : QDir::cleanPath(targetFolder + QLatin1Char('/') + relative);
}
