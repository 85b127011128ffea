// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/RemovalJournal.h"

#include "app/DataDirectory.h"
#include "engine/FilePathCodec.h"
#include "fileops/TFileDeleter.h"
#include "preferences/SettingsTable.h"

#include <utility>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QUuid>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#endif

const QString RemovalJournal::removed = QStringLiteral("removed");
const QString RemovalJournal::skipped = QStringLiteral("skipped");
const QString RemovalJournal::failed = QStringLiteral("failed");
const QString RemovalJournal::gone = QStringLiteral("already gone");
const QString RemovalJournal::restored = QStringLiteral("restored");

namespace {

const QString kBatch = QStringLiteral("batch");
const QString kEvent = QStringLiteral("event");
const QString kMethod = QStringLiteral("method");
const QString kItems = QStringLiteral("items");
const QString kTarget = QStringLiteral("target");
const QString kTargetBytes = QStringLiteral("targetBytes");
const QString kRestores = QStringLiteral("restores");
const QString kPid = QStringLiteral("pid");
const QString kSeq = QStringLiteral("seq");
const QString kPath = QStringLiteral("path");
const QString kPathBytes = QStringLiteral("pathBytes");
const QString kPrivate = QStringLiteral("private");
const QString kPrivateBytes = QStringLiteral("privateBytes");
const QString kInto = QStringLiteral("into");
const QString kIntoBytes = QStringLiteral("intoBytes");
const QString kTo = QStringLiteral("to");
const QString kToBytes = QStringLiteral("toBytes");
const QString kResult = QStringLiteral("result");
const QString kReason = QStringLiteral("reason");
const QString kSize = QStringLiteral("size");
const QString kModified = QStringLiteral("modifiedNs");
const QString kHash = QStringLiteral("hash");
const QString kMode = QStringLiteral("mode");
const QString kDevice = QStringLiteral("device");
const QString kInode = QStringLiteral("inode");
const QString kSignal = QStringLiteral("signal");
const QString kTime = QStringLiteral("time");
const QString kBegin = QStringLiteral("begin");
const QString kIntent = QStringLiteral("intent");
const QString kEnd = QStringLiteral("end");
const QString kItem = QStringLiteral("item");
const QString kNoticed = QStringLiteral("noticed");
const QString kRestoreMethod = QStringLiteral("restore");

// A path as JSON text, plus its exact bytes percent-encoded when the text cannot carry
// them (names that are not UTF-8).
void putPath(QJsonObject &line, const QString &key, const QString &bytesKey, const QString &path)
{
    line.insert(key, path);
    if (FilePathCodec::hasEscapedBytes(path))
        line.insert(
            bytesKey, QString::fromLatin1(FilePathCodec::encode(path).toPercentEncoding("/")));
}

// One journal line of the two kinds written per item, built straight into bytes: a batch
// of tens of thousands of items spent a fifth of its time building them as JSON objects.
// The reader parses them as any other line.
class ItemLine
{
public:
    explicit ItemLine(const QString &batch) { add(kBatch, batch); }
    void add(const QString &key, const QString &value)
    {
        name(key);
        string(value);
    }
    void add(const QString &key, qint64 value)
    {
        name(key);
        m_line += QByteArray::number(value);
    }
    // The path, and its bytes where they are not UTF-8 (as putPath).
    void addPath(const QString &key, const QString &bytesKey, const QString &path)
    {
        add(key, path);
        if (FilePathCodec::hasEscapedBytes(path))
            add(bytesKey, QString::fromLatin1(FilePathCodec::encode(path).toPercentEncoding("/")));
    }
    QByteArray take()
    {
        m_line += '}';
        return std::exchange(m_line, QByteArray());
    }

private:
    void name(const QString &key)
    {
        m_line += m_line.isEmpty() ? '{' : ',';
        string(key);
        m_line += ':';
    }
    void string(const QString &text)
    {
        static const char hex[] = "0123456789abcdef";
        m_line += '"';
        for (const char c : text.toUtf8()) {
            const auto byte = static_cast<unsigned char>(c);
            if (c == '"' || c == '\\') {
                m_line += '\\';
                m_line += c;
            } else if (byte < 0x20) {
                m_line += "\\u00";
                m_line += hex[byte >> 4];
                m_line += hex[byte & 0xf];
            } else {
                m_line += c;
            }
        }
        m_line += '"';
    }
    QByteArray m_line;
};

// Nothing, with refused set, for a path holding a NUL byte: no file name does, and the
// system would read the path only up to it, at another file.
QString takePath(
    const QJsonObject &line, const QString &key, const QString &bytesKey, bool *refused = nullptr)
{
    const QString path = line.contains(bytesKey)
        ? FilePathCodec::decode(
            QByteArray::fromPercentEncoding(line.value(bytesKey).toString().toLatin1()))
        : line.value(key).toString();
    if (!path.contains(QChar(0)))
        return path;
    if (refused)
        *refused = true;
    return {};
}

// Appends bytes in one write. With closeUnfinished, a last line that a full disk or a crash
// left unfinished (another process's, or an earlier batch's) is closed first, so the next
// line is never glued to it and lost to the reader. Nothing is ever cut off: other
// processes may append to the same file at any moment.
bool appendWhole(QFile &file, const QByteArray &bytes, bool closeUnfinished, QString &error)
{
    QByteArray out = bytes;
    if (closeUnfinished) {
        QFile tail(file.fileName());
        const qint64 size = tail.size();
        if (size > 0 && tail.open(QIODevice::ReadOnly) && tail.seek(size - 1)
            && tail.read(1) != "\n")
            out.prepend('\n');
    }
    if (file.write(out) == out.size())
        return true;
    error = file.errorString();
    return false;
}

bool processAlive(qint64 pid)
{
#ifdef Q_OS_UNIX
    return pid > 0 && (::kill(pid_t(pid), 0) == 0 || errno == EPERM);
#else
    Q_UNUSED(pid)
    return false;
#endif
}

} // namespace

RemovalJournal::RemovalJournal(const QString &path) : m_path(path) { }

RemovalJournal::~RemovalJournal()
{
    if (m_file.isOpen())
        flush();
}

QString RemovalJournal::defaultPath()
{
    return DataDirectory::base() + QStringLiteral("removal-journal.jsonl");
}

QString RemovalJournal::methodName(int method)
{
    // The words of the command line's --method.
    const char *word = SettingsTable::wordOf(SettingsTable::RemovealMethod, method);
    return QLatin1String(word
            ? word
            : SettingsTable::wordOf(SettingsTable::RemovealMethod, TFileDeleter::moveToTrash));
}

qsizetype RemovalJournal::Batch::restorableCount() const
{
    if (method == methodName(TFileDeleter::removePermanently))
        return 0;
    return std::count_if(items.cbegin(), items.cend(), [](const Item &item) {
        return !item.restored
            && ((item.result == removed && !item.destination.isEmpty())
                || (item.intended && !item.hasOutcome));
    });
}

qsizetype RemovalJournal::Batch::count(const QString &result) const
{
    return std::count_if(items.cbegin(), items.cend(),
        [&result](const Item &item) { return item.result == result; });
}

bool RemovalJournal::writeLine(const QByteArray &line)
{
    if (!m_file.isOpen()) {
        m_error = QCoreApplication::translate("RemovalJournal", "the journal is not open");
        return false;
    }
    // Straight to the system (the file is unbuffered), the held outcome first: a crash
    // loses no intent, and a full disk shows at once.
    m_pending += line;
    m_pending += '\n';
    return flush();
}

bool RemovalJournal::begin(
    const QString &method, qint64 items, const QString &target, const QString &restores)
{
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    m_file.setFileName(m_path);
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
        m_error = m_file.errorString();
        return false;
    }
    m_checkTail = true;
    m_batch = QUuid::createUuid().toString(QUuid::WithoutBraces);
    QJsonObject line {{kBatch, m_batch}, {kEvent, kBegin}, {kMethod, method}, {kItems, items},
        {kPid, QCoreApplication::applicationPid()},
        {kTime, QDateTime::currentDateTime().toString(Qt::ISODate)}};
    if (!target.isEmpty())
        putPath(line, kTarget, kTargetBytes, target);
    if (!restores.isEmpty())
        line.insert(kRestores, restores);
    if (!writeLine(QJsonDocument(line).toJson(QJsonDocument::Compact))) {
        m_file.close();
        return false;
    }
    return true;
}

bool RemovalJournal::intent(qint64 seq, const QString &method, const QString &path,
    const QString &privatePath, qint64 size, qint64 modifiedNs, const QString &into,
    const QString &destination, quint64 device, quint64 inode, int mode)
{
    ItemLine line(m_batch);
    line.add(kEvent, kIntent);
    line.add(kSeq, seq);
    line.add(kMethod, method);
    line.add(kSize, size);
    line.add(kModified, QString::number(modifiedNs));
    line.addPath(kPath, kPathBytes, path);
    if (!privatePath.isEmpty())
        line.addPath(kPrivate, kPrivateBytes, privatePath);
    if (!into.isEmpty())
        line.addPath(kInto, kIntoBytes, into);
    if (!destination.isEmpty()) {
        line.addPath(kTo, kToBytes, destination);
        // As text: a JSON reader's numbers lose the low bits of large identities.
        line.add(kDevice, QString::number(device));
        line.add(kInode, QString::number(inode));
    }
    if (mode >= 0)
        line.add(kMode, mode);
    return writeLine(line.take());
}

bool RemovalJournal::record(const QString &method, const DeleteResult &result,
    const QString &outcome, qint64 seq, const QString &restores)
{
    ItemLine line(m_batch);
    line.add(kEvent, kItem);
    line.add(kMethod, method);
    line.add(kResult, outcome);
    if (seq >= 0)
        line.add(kSeq, seq);
    if (!restores.isEmpty())
        line.add(kRestores, restores);
    line.addPath(kPath, kPathBytes, result.path);
    if (!result.destination.isEmpty())
        line.addPath(kTo, kToBytes, result.destination);
    if (!result.reason.isEmpty() || !result.message.isEmpty())
        line.add(kReason, result.reason.isEmpty() ? result.message : result.reason);
    if (!result.digest.isEmpty()) {
        line.add(kSize, result.size);
        line.add(kModified, QString::number(result.modifiedNs));
        line.add(kHash, QString::fromLatin1(result.digest.toHex()));
    }
    if (result.mode >= 0)
        line.add(kMode, result.mode);
    if (!m_file.isOpen()) {
        m_error = QCoreApplication::translate("RemovalJournal", "the journal is not open");
        return false;
    }
    m_pending += line.take();
    m_pending += '\n';
    return true;
}

bool RemovalJournal::flush()
{
    if (m_pending.isEmpty())
        return true;
    const QByteArray whole = std::exchange(m_pending, QByteArray());
    // After a failed write the line may have gone out in part: the next write closes it.
    m_checkTail = !appendWhole(m_file, whole, m_checkTail, m_error);
    return !m_checkTail;
}

bool RemovalJournal::end(int signal)
{
    QJsonObject line {{kBatch, m_batch}, {kEvent, kEnd},
        {kTime, QDateTime::currentDateTime().toString(Qt::ISODate)}};
    if (signal)
        line.insert(kSignal, signal);
    const bool written = writeLine(QJsonDocument(line).toJson(QJsonDocument::Compact));
    m_file.close();
    return written;
}

bool RemovalJournal::markNoticed(const QString &batch)
{
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
        m_error = file.errorString();
        return false;
    }
    const QByteArray line = QJsonDocument(QJsonObject {{kBatch, batch}, {kEvent, kNoticed}})
                                .toJson(QJsonDocument::Compact)
        + '\n';
    return appendWhole(file, line, true, m_error);
}

QList<RemovalJournal::Batch> RemovalJournal::batches() const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<Batch> batches;
    QHash<QString, qsizetype> byId;
    // Per batch, its items by sequence number (older journals have none: by path).
    QHash<QString, QHash<qint64, qsizetype>> bySeq;
    QHash<QString, QString> restoreOf;
    while (!file.atEnd()) {
        const QJsonObject line = QJsonDocument::fromJson(file.readLine()).object();
        const QString id = line.value(kBatch).toString();
        const QString event = line.value(kEvent).toString();
        if (id.isEmpty())
            continue;
        if (event == kBegin) {
            if (line.contains(kRestores)) {
                restoreOf.insert(id, line.value(kRestores).toString());
                continue;
            }
            byId.insert(id, batches.size());
            Batch batch;
            batch.id = id;
            batch.method = line.value(kMethod).toString();
            batch.target = takePath(line, kTarget, kTargetBytes);
            batch.time = line.value(kTime).toString();
            batch.pid = qint64(line.value(kPid).toDouble());
            batch.planned = qint64(line.value(kItems).toDouble());
            batches.append(batch);
            continue;
        }
        if (restoreOf.contains(id)) {
            // A restore's item: marks the item it put back.
            const QString of = restoreOf.value(id);
            const auto at = byId.constFind(of);
            if (event != kItem || line.value(kResult).toString() != restored
                || at == byId.constEnd())
                continue;
            Batch &batch = batches[at.value()];
            const qint64 seq = qint64(line.value(kSeq).toDouble(-1));
            const QString path = takePath(line, kPath, kPathBytes);
            for (Item &item : batch.items)
                if (seq >= 0 ? item.seq == seq : item.path == path)
                    item.restored = true;
            continue;
        }
        const auto at = byId.constFind(id);
        if (at == byId.constEnd())
            continue;
        Batch &batch = batches[at.value()];
        if (event == kEnd) {
            batch.ended = true;
            batch.signal = line.value(kSignal).toInt();
            continue;
        }
        if (event == kNoticed) {
            batch.noticed = true;
            continue;
        }
        if (event != kIntent && event != kItem)
            continue;
        bool refused = false;
        const QString path = takePath(line, kPath, kPathBytes, &refused);
        if (path.isEmpty() && !refused)
            continue;
        const qint64 seq = qint64(line.value(kSeq).toDouble(-1));
        QHash<qint64, qsizetype> &items = bySeq[id];
        qsizetype index = seq >= 0 ? items.value(seq, -1) : -1;
        if (index < 0) {
            index = batch.items.size();
            batch.items.append(Item {});
            batch.items.last().seq = seq;
            if (seq >= 0)
                items.insert(seq, index);
        }
        Item &item = batch.items[index];
        item.path = path;
        item.method = line.value(kMethod).toString();
        if (event == kIntent) {
            item.intended = true;
            item.privatePath = takePath(line, kPrivate, kPrivateBytes);
            item.into = takePath(line, kInto, kIntoBytes);
            item.size = qint64(line.value(kSize).toDouble(-1));
            item.modifiedNs = line.value(kModified).toString().toLongLong();
            item.destination = takePath(line, kTo, kToBytes, &refused);
            item.device = line.value(kDevice).toString().toULongLong();
            item.inode = line.value(kInode).toString().toULongLong();
            item.mode = line.value(kMode).toInt(-1);
            continue;
        }
        item.hasOutcome = true;
        item.result = line.value(kResult).toString();
        item.destination = takePath(line, kTo, kToBytes, &refused);
        item.reason = line.value(kReason).toString();
        // An item whose paths cannot be read back is never acted on.
        if (refused) {
            item.result = failed;
            item.reason = QCoreApplication::translate(
                "RemovalJournal", "its path in the journal holds a NUL byte (%00)");
        }
        if (line.contains(kHash)) {
            item.size = qint64(line.value(kSize).toDouble());
            item.modifiedNs = line.value(kModified).toString().toLongLong();
            item.digest = QByteArray::fromHex(line.value(kHash).toString().toLatin1());
        }
        if (line.contains(kMode))
            item.mode = line.value(kMode).toInt(-1);
    }
    return batches;
}

RemovalJournal::Batch RemovalJournal::lastBatch() const
{
    const QList<Batch> all = batches();
    for (qsizetype i = all.size() - 1; i >= 0; --i)
        if (all.at(i).restorable())
            return all.at(i);
    return {};
}

RemovalJournal::Batch RemovalJournal::interruptedBatch() const
{
    const QList<Batch> all = batches();
    for (qsizetype i = all.size() - 1; i >= 0; --i) {
        const Batch &batch = all.at(i);
        // What came before the last notice was told of then, or belongs to older versions.
        if (batch.noticed)
            break;
        // A batch without an end whose process still runs is not interrupted: it is
        // going on (another window, or the command line).
        const bool running
            = batch.pid != QCoreApplication::applicationPid() && processAlive(batch.pid);
        if ((!batch.ended && !running) || batch.signal != 0)
            return batch;
    }
    return {};
}
