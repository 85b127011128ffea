// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/RemovalJournal.h"

#include "app/DataDirectory.h"
#include "engine/FilePathCodec.h"
#include "fileops/TFileDeleter.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QUuid>

const QString RemovalJournal::removed = QStringLiteral("removed");
const QString RemovalJournal::skipped = QStringLiteral("skipped");
const QString RemovalJournal::failed = QStringLiteral("failed");

namespace {

const QString kBatch = QStringLiteral("batch");
const QString kEvent = QStringLiteral("event");
const QString kMethod = QStringLiteral("method");
const QString kItems = QStringLiteral("items");
const QString kRestores = QStringLiteral("restores");
const QString kPath = QStringLiteral("path");
const QString kPathBytes = QStringLiteral("pathBytes");
const QString kTo = QStringLiteral("to");
const QString kToBytes = QStringLiteral("toBytes");
const QString kResult = QStringLiteral("result");
const QString kReason = QStringLiteral("reason");
const QString kTime = QStringLiteral("time");
const QString kBegin = QStringLiteral("begin");
const QString kEnd = QStringLiteral("end");
const QString kItem = QStringLiteral("item");

// A path as JSON text, plus its exact bytes percent-encoded when the text cannot carry
// them (names that are not UTF-8).
void putPath(QJsonObject &line, const QString &key, const QString &bytesKey, const QString &path)
{
    line.insert(key, path);
    if (FilePathCodec::hasEscapedBytes(path))
        line.insert(
            bytesKey, QString::fromLatin1(FilePathCodec::encode(path).toPercentEncoding("/")));
}

// Nothing, with refused set, for a path holding a NUL byte: no file name does, and the
// system would read the path only up to it, at another file.
QString takePath(
    const QJsonObject &line, const QString &key, const QString &bytesKey, bool &refused)
{
    const QString path = line.contains(bytesKey)
        ? FilePathCodec::decode(
            QByteArray::fromPercentEncoding(line.value(bytesKey).toString().toLatin1()))
        : line.value(key).toString();
    if (!path.contains(QChar(0)))
        return path;
    refused = true;
    return {};
}

} // namespace

RemovalJournal::RemovalJournal(const QString &path) : m_path(path) { }

QString RemovalJournal::defaultPath()
{
    return DataDirectory::base() + QStringLiteral("removal-journal.jsonl");
}

QString RemovalJournal::methodName(int method)
{
    switch (method) {
    case TFileDeleter::removePermanently:
        return QStringLiteral("permanent");
    case TFileDeleter::moveToFolder:
        return QStringLiteral("move");
    default:
        return QStringLiteral("trash");
    }
}

void RemovalJournal::writeLine(const QByteArray &line)
{
    m_file.write(line);
    m_file.write("\n", 1);
    // Each line reaches the system at once: a crash loses no handled item.
    m_file.flush();
}

bool RemovalJournal::begin(const QString &method, qint64 items, const QString &restores)
{
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    m_file.setFileName(m_path);
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        m_error = m_file.errorString();
        return false;
    }
    m_batch = QUuid::createUuid().toString(QUuid::WithoutBraces);
    QJsonObject line {{kBatch, m_batch}, {kEvent, kBegin}, {kMethod, method}, {kItems, items},
        {kTime, QDateTime::currentDateTime().toString(Qt::ISODate)}};
    if (!restores.isEmpty())
        line.insert(kRestores, restores);
    writeLine(QJsonDocument(line).toJson(QJsonDocument::Compact));
    if (m_file.error() != QFileDevice::NoError) {
        m_error = m_file.errorString();
        m_file.close();
        return false;
    }
    return true;
}

void RemovalJournal::record(
    const QString &method, const DeleteResult &result, const QString &outcome)
{
    QJsonObject line {{kBatch, m_batch}, {kEvent, kItem}, {kMethod, method}, {kResult, outcome}};
    putPath(line, kPath, kPathBytes, result.path);
    if (!result.destination.isEmpty())
        putPath(line, kTo, kToBytes, result.destination);
    if (!result.reason.isEmpty() || !result.message.isEmpty())
        line.insert(kReason, result.reason.isEmpty() ? result.message : result.reason);
    writeLine(QJsonDocument(line).toJson(QJsonDocument::Compact));
}

void RemovalJournal::end()
{
    writeLine(QJsonDocument(QJsonObject {{kBatch, m_batch}, {kEvent, kEnd},
                                {kTime, QDateTime::currentDateTime().toString(Qt::ISODate)}})
                  .toJson(QJsonDocument::Compact));
    m_file.close();
}

RemovalJournal::Batch RemovalJournal::lastBatch() const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // Batches in the order they began; restores strike out what they undid.
    QList<Batch> batches;
    QHash<QString, qsizetype> byId;
    QSet<QString> undone;
    while (!file.atEnd()) {
        const QJsonObject line = QJsonDocument::fromJson(file.readLine()).object();
        const QString id = line.value(kBatch).toString();
        const QString event = line.value(kEvent).toString();
        if (id.isEmpty())
            continue;
        if (event == kBegin) {
            if (line.contains(kRestores)) {
                undone.insert(line.value(kRestores).toString());
                continue;
            }
            byId.insert(id, batches.size());
            batches.append(Batch {id, line.value(kMethod).toString(),
                qint64(line.value(kItems).toDouble()), false, {}});
            continue;
        }
        const auto at = byId.constFind(id);
        if (at == byId.constEnd())
            continue;
        Batch &batch = batches[at.value()];
        if (event == kEnd) {
            batch.ended = true;
        } else if (event == kItem) {
            bool refused = false;
            Item item {line.value(kMethod).toString(), takePath(line, kPath, kPathBytes, refused),
                takePath(line, kTo, kToBytes, refused), line.value(kResult).toString(),
                line.value(kReason).toString()};
            // An item whose path cannot be read back is never acted on.
            if (refused) {
                item.result = failed;
                item.reason = QStringLiteral("its path in the journal holds a NUL byte (%00)");
            }
            batch.items.append(item);
        }
    }
    for (qsizetype i = batches.size() - 1; i >= 0; --i)
        if (!undone.contains(batches.at(i).id))
            return batches.at(i);
    return {};
}
