// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QUrl>

// A kind of cloud storage the user can sign in to, and the rclone backend that serves it.
struct CloudService
{
    int cloudType = 0;
    QString name;
    QString backend;
    // Settings of the remote beyond the sign-in.
    QJsonObject parameters;
    // Signs in through the browser (OAuth): the remote is usable only with a token.
    bool signsIn = false;

    // The services offered in the add menu.
    static const QList<CloudService> &offered();
    // The service's web page that shows the file (its folder, or a search for its name
    // where the service's addresses go by identifiers rclone does not list); empty for a
    // service without web pages.
    QUrl webLink(const QString &folder, const QString &name) const;
    // Any known type: the offered ones, and two made of local folders behind the same
    // remote-control path, which the tests use in place of real accounts: one that keeps
    // hashes and one that keeps none.
    static const CloudService *byType(int cloudType);
    static constexpr int kLocalFolder = 99;
    static constexpr int kLocalFolderWithoutHashes = 98;
};
