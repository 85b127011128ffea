// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

// A kind of cloud storage the user can sign in to, and the rclone backend that serves it.
struct CloudService
{
    int cloudType = 0;
    QString name;
    QString backend;

    // The services offered in the add menu.
    static const QList<CloudService> &offered();
    // Any known type, the offered ones and a plain local folder behind the same
    // remote-control path, which the tests use in place of a real account.
    static const CloudService *byType(int cloudType);
    static constexpr int kLocalFolder = 99;
};
