// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/GroupMember.h"
#include "results/GroupItem.h"
#include "results/TImageModel.h"

#include <QFutureWatcher>
#include <QList>
#include <QObject>
#include <QString>

namespace Ui {
class ResultForm;
}

class KvCloudObject;

// One member of the group being opened, filled in parallel before the member view gets it.
struct IndexFileGroup
{
    QString key;
    GroupMember file;
    QString name;
    qint64 size = 0;
    QString createdTime;
    QString mimeType;
    // As shown and filtered on: 100 for a copy and for the picture compared with.
    int similarity = 0;
    QString cloudPath;
};

// Fills the result page's two models: every group, built on the pool and handed to the
// group list in batches, then the members of the group opened, filled in parallel; and
// keeps the group counts on the category buttons and above the list.
class ResultGroupLoader : public QObject
{
    Q_OBJECT
public:
    ResultGroupLoader(Ui::ResultForm *ui, TImageModel *groupModel, TImageModel *itemModel,
        bool isCloud, KvCloudObject *cloud, QObject *parent);

    // Every group is in the list.
    bool isLoaded() const { return m_dataLoaded; }
    void setLoaded() { m_dataLoaded = true; }
    // Builds every group again (nothing while a build runs).
    void start();
    // Fills the member view with the group's members; a newer call replaces an older one.
    void loadMembers(const GroupItem &group);
    // No group is open any more.
    void clearMembers();
    // The group whose members are on show (or being filled).
    QString memberKey() const { return m_memberKey; }
    void setMemberKey(const QString &key) { m_memberKey = key; }
    // Stops the member fill and waits for the work on the pool: before the page goes.
    void stop();
    // The category buttons' captions with their groups and bytes; an empty category is
    // hidden unless it is the one on show.
    void updateCategoryButtons(int category);
    void updateGroupTitle();

signals:
    void progressChanged(int progress);
    void loaded(int selectCount, qlonglong selectSize, int progress);
    // The member model holds the group's members; match: its TFileData::GroupMatch.
    void membersShown(int match);

private:
    void feedBatches();
    void showMembers(const QList<IndexFileGroup> &members);

    Ui::ResultForm *ui = nullptr;
    TImageModel *m_groupModel = nullptr;
    TImageModel *m_itemModel = nullptr;
    bool m_isCloud = false;
    KvCloudObject *m_cloud = nullptr;
    bool m_dataLoaded = false;

    // Loading in batches: the built groups wait here until the views have taken them.
    QFutureWatcher<TImageModel::BuiltGroups> m_buildWatcher;
    QList<GroupItem> m_pendingGroups;
    qsizetype m_nextBatch = 0;
    TImageModel::BuiltGroups m_loadSums;

    QFutureWatcher<void> m_memberWatcher;
    QList<IndexFileGroup> m_members;
    QString m_memberKey;
};
