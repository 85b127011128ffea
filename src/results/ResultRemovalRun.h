// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/DeleteResult.h"
#include "fileops/RemovalRequest.h"

#include <memory>

#include <QHash>
#include <QList>
#include <QObject>
#include <QPair>
#include <QPointer>
#include <QStringList>

class CustomProgressDialog;
class KvCloudObject;
class QToolButton;
class QWidget;
class RemovalSequence;

// Removal from the result page, local and through the cloud: the questions before it, the
// batch on a worker thread (or one file, one group on the GUI thread), the store brought up
// to date and the summary after it. The page's views follow through removalApplied.
class ResultRemovalRun : public QObject
{
    Q_OBJECT
public:
    ResultRemovalRun(QWidget *page, QToolButton *deleteButton, bool isCloud, KvCloudObject *cloud);
    ~ResultRemovalRun() override;

    bool isRemoving() const { return m_sequence != nullptr || m_cloudRemoval != NoCloudRemoval; }
    // Every item of the last batch, the one-file and one-group removals included.
    QList<DeleteResult> lastRemoval() const { return m_lastRemoval; }

    // The whole selection, after the questions it needs.
    void removeSelection();
    // One file of a group (the row's remove button).
    void removeOne(const QString &key, const QString &path);
    // The selected members of one group (the group's menu).
    void removeGroup(const QString &key);
    // The batch's end, from the worker's queued finished.
    void batchEnded(
        const QHash<QString, QStringList> &files, const QHash<QString, QStringList> &dirs);
    void showProgress(int complate, int total);
    // Closing the page asks a running batch to stop.
    void cancel();
    QPair<int, QString> removalMethod() const;
    // A request for selection by the chosen method and its options.
    RemovalRequest requestFor(const QHash<QString, QStringList> &selection) const;

    static QString failureText(const DeleteResult &result, int method);
    static qint64 removedBytes(const QList<DeleteResult> &results);
    static bool removesEveryCopy(
        const QHash<QString, QStringList> &groups, const QHash<QString, QStringList> &selected);

signals:
    void progressChanged(int complate, int total);
    // These items left the store (by group): the views drop them. Sent before the summary.
    void removalApplied(const QHash<QString, QStringList> &removed);
    // A cloud removal was refused: the selection totals are to be counted again.
    void totalsStale();

private:
    enum CloudRemoval { NoCloudRemoval, CloudOne, CloudGroup, CloudBatch };
    // The question of the current method; true when the removal may go on.
    // Asks before a removal, naming how many items of what size go; No is the default
    // answer for a permanent one.
    bool confirmRemoval(const QHash<QString, QStringList> &selection);
    // Runs a removal of the given selection on the GUI thread (one file, one group).
    QList<DeleteResult> removeNow(
        const QHash<QString, QStringList> &selection, bool allowDifferentContent = false);
    // Asks whether count members that differ from every copy that stays may go.
    bool confirmDifferentContent(qsizetype count);
    void startBatch(const QHash<QString, QStringList> &selection, bool allowAllCopies,
        bool allowDifferentContent = false);
    // After a batch: asks whether the members kept for differing from every copy that
    // stays may go too, and removes them on a yes.
    void offerDifferentContent(const QList<DeleteResult> &results);
    void finishRemoval(const QHash<QString, QStringList> &files,
        const QHash<QString, QStringList> &dirs, const QList<DeleteResult> &results,
        bool showSummary);
    void showRemovalSummary(const QList<DeleteResult> &results, int method);
    // Hands the selection to the cloud source, group by group with the copy that stays;
    // the answer comes back through onCloudRemovalDone.
    void startCloudRemoval(const QHash<QString, QStringList> &selection, CloudRemoval kind);
    void onCloudRemovalDone(const QStringList &deleted);
    void onDeletedCloudError(int failedCount, const QString &errorMsg);

    QWidget *m_page = nullptr;
    QToolButton *m_deleteButton = nullptr;
    bool m_isCloud = false;
    KvCloudObject *m_cloud = nullptr;
    QPointer<CustomProgressDialog> m_progress;
    // The batch on its worker thread, from its start to its end.
    std::unique_ptr<RemovalSequence> m_sequence;
    int m_batchMethod = 0;
    bool m_batchAllowsDifferent = false;
    CloudRemoval m_cloudRemoval = NoCloudRemoval;
    // The group and the listed size of each cloud file under removal.
    QHash<QString, QString> m_cloudKeys;
    QHash<QString, qint64> m_cloudSizes;
    QList<DeleteResult> m_lastRemoval;
};
