// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fileops/DeleteResult.h"

#include <QFile>
#include <QList>
#include <QString>

// The record of every removal, one JSON object a line, appended and flushed item by
// item so that even a crash leaves it saying how far a batch got. A batch opens with a
// "begin" line (its id, method and item count) and closes with an "end" line; each item
// line holds the method, the original path, where it went, the result and its reason. A
// restore is a batch of its own that names the batch it undoes.
class RemovalJournal
{
public:
    // One item line as read back.
    struct Item
    {
        QString method;
        QString path;
        QString destination;
        QString result;
        QString reason;
    };
    // The last removal batch that no restore has undone yet.
    struct Batch
    {
        QString id;
        QString method;
        qint64 planned = 0;
        bool ended = false;
        QList<Item> items;
    };

    // Results written in the item lines.
    static const QString removed;
    static const QString skipped;
    static const QString failed;

    explicit RemovalJournal(const QString &path = defaultPath());
    // "removal-journal.jsonl" in the data folder.
    static QString defaultPath();
    QString path() const { return m_path; }

    // False (with error()) when the journal cannot be written: then nothing is removed.
    bool begin(const QString &method, qint64 items, const QString &restores = {});
    void record(const QString &method, const DeleteResult &result, const QString &outcome);
    void end();
    QString error() const { return m_error; }

    Batch lastBatch() const;

    static QString methodName(int method);

private:
    void writeLine(const QByteArray &line);

    QString m_path;
    QFile m_file;
    QString m_batch;
    QString m_error;
};
