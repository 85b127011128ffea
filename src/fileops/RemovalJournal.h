// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/DeleteResult.h"

#include <QFile>
#include <QList>
#include <QString>

// The record of every removal, one JSON object a line, written straight to the system
// item by item, so that even a crash or a full disk leaves it saying how far a batch got.
// A batch opens with a "begin" line (its id, method, item count, target folder and the
// process that runs it) and closes with an "end" line (marked when a signal cut it short).
// Each item has an "intent" line, written before anything is done to it (its path and the
// private name it takes for the act), and an "item" line with the outcome: where it went,
// the result, the reason, and its size, time and content hash. A restore is a batch of its
// own whose items name the batch and item they put back. Every write is checked: a write
// that fails makes the caller stop before the next item.
class RemovalJournal
{
public:
    struct Item
    {
        qint64 seq = -1;
        QString method;
        QString path;
        // The private name the item had during the act.
        QString privatePath;
        // The folder a move was to put the item into, when not the batch's target itself
        // (a move that keeps the folder structure).
        QString into;
        QString destination;
        QString result;
        QString reason;
        qint64 size = -1;
        qint64 modifiedNs = 0;
        QByteArray digest;
        // A replaced item's identity as the look saw it, and its permission bits (-1: none).
        quint64 device = 0;
        quint64 inode = 0;
        int mode = -1;
        bool intended = false;
        bool hasOutcome = false;
        // A later restore put it back.
        bool restored = false;
    };
    struct Batch
    {
        QString id;
        QString method;
        QString target;
        QString time;
        qint64 pid = 0;
        qint64 planned = 0;
        bool ended = false;
        // The end line says a signal cut the batch short.
        int signal = 0;
        // The window has shown its interrupted-batch notice for it.
        bool noticed = false;
        QList<Item> items;

        // Items that went to the trash or into a folder or were replaced by a link, or whose
        // outcome was never written, and that no restore has put back yet.
        qsizetype restorableCount() const;
        bool restorable() const { return restorableCount() > 0; }
        qsizetype count(const QString &result) const;
    };

    // Results written in the item lines.
    static const QString removed;
    static const QString skipped;
    static const QString failed;
    static const QString gone;
    static const QString restored;

    explicit RemovalJournal(const QString &path = defaultPath());
    // Writes a held outcome.
    ~RemovalJournal();
    RemovalJournal(const RemovalJournal &) = delete;
    RemovalJournal &operator=(const RemovalJournal &) = delete;
    // "removal-journal.jsonl" in the data folder.
    static QString defaultPath();
    QString path() const { return m_path; }

    // Each returns false (with error()) when the line could not be written whole: then
    // nothing more may be done in the batch.
    bool begin(const QString &method, qint64 items, const QString &target = {},
        const QString &restores = {});
    // size and modifiedNs: the item as the look before the act saw it (size -1 for a
    // folder), so that an item whose outcome was never written can be recognised.
    // into: the folder a move puts the item into, when it is not the batch's target. An
    // item replaced by a link also names the kept copy (destination), its own identity and
    // its permission bits (mode, -1: none), which a link cut short without an outcome has lost.
    bool intent(qint64 seq, const QString &method, const QString &path, const QString &privatePath,
        qint64 size, qint64 modifiedNs, const QString &into = {}, const QString &destination = {},
        quint64 device = 0, quint64 inode = 0, int mode = -1);
    // The outcome line is held until the next line is written (the next item's intent, at
    // the latest), so that each item costs one write: it follows the act, and comes before
    // the next act. An intent without its outcome is what a restore looks for anyway.
    bool record(const QString &method, const DeleteResult &result, const QString &outcome,
        qint64 seq = -1, const QString &restores = {});
    // Writes a held outcome now.
    bool flush();
    // signal: the signal that cut the batch short, 0 when it ran to its end.
    bool end(int signal = 0);
    // Marks a batch whose interruption the user has been told of.
    bool markNoticed(const QString &batch);
    QString error() const { return m_error; }
    QString batchId() const { return m_batch; }

    // Every removal batch, oldest first, with what restores did to their items.
    QList<Batch> batches() const;
    // The newest batch that can still be restored (empty id when none).
    Batch lastBatch() const;
    // The newest batch cut short (no end and its process gone, or ended by a signal) that
    // the user has not been told of.
    Batch interruptedBatch() const;

    static QString methodName(int method);

private:
    bool writeLine(const QByteArray &line);

    QString m_path;
    QFile m_file;
    QString m_batch;
    QString m_error;
    QByteArray m_pending;
    // The next write looks at how the file ends: the batch's first, and any after a failure.
    bool m_checkTail = false;
};
