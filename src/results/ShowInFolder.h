// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class KvCloudObject;
class QWidget;

// Shows a member where it lives: the file selected in the file manager (its folder when
// the file manager cannot select it), or a cloud file's page on the service.
class ShowInFolder
{
public:
    ShowInFolder(QWidget *page, bool isCloud, KvCloudObject *cloud);

    void show(const QString &path) const;

private:
    QWidget *m_page = nullptr;
    bool m_isCloud = false;
    KvCloudObject *m_cloud = nullptr;
};
