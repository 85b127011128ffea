// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/SettingsTable.h"

#include "preferences/DFGenernalPreferences.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFSelectionPreferences.h"

#include <algorithm>

#include <QJsonArray>
#include <QMap>
#include <QThread>
#include <QVariant>

namespace SettingsTable {

QJsonObject snapshotOf(const QObject &group, Group which)
{
    QJsonObject json;
    for (const Setting *setting : all) {
        if (setting->group != which || setting->snapshotKey.isEmpty())
            continue;
        const QVariant value = group.property(setting->fileKey);
        switch (setting->kind) {
        case Kind::Flag:
            json.insert(setting->snapshotKey, value.toBool());
            break;
        case Kind::Number:
            // Sizes are unsigned 64-bit in the store; a snapshot number is a double.
            if (value.metaType().id() == QMetaType::ULongLong)
                json.insert(setting->snapshotKey, double(value.toULongLong()));
            else
                json.insert(setting->snapshotKey, value.toInt());
            break;
        case Kind::Choice:
            json.insert(setting->snapshotKey, value.toInt());
            break;
        case Kind::Text:
            json.insert(setting->snapshotKey, value.toString());
            break;
        case Kind::TextList:
            json.insert(setting->snapshotKey, QJsonArray::fromStringList(value.toStringList()));
            break;
        case Kind::Priorities: {
            QJsonObject priorities;
            const auto map = value.value<QMap<QString, qint32>>();
            for (auto it = map.cbegin(); it != map.cend(); ++it)
                priorities.insert(it.key(), it.value());
            json.insert(setting->snapshotKey, priorities);
            break;
        }
        }
    }
    return json;
}

int defaultThreadCount()
{
    return std::max(int(ThreadCount.byDefault), QThread::idealThreadCount());
}

QList<Word> choices(const Setting &setting)
{
    using Common = DFIgnoreListPreferences;
    using Duplicates = DFSelectionPreferences;
    using Similar = DFGenernalPreferences;
    if (&setting == &RemovealMethod)
        return {{"trash", Common::moveToTrash}, {"permanent", Common::removePermanently},
            {"move", Common::moveToFolder}, {"hardlink", Common::replaceByHardLink},
            {"reflink", Common::replaceByReflink}, {"symlink", Common::replaceBySymlink}};
    if (&setting == &scanMethod)
        return {{"sampled", Duplicates::scanContent}, {"name", Duplicates::scanName},
            {"full", Duplicates::scanAllContent}};
    if (&setting == &selectDuplicate || &setting == &selectionHint
        || &setting == &similarSelectHint)
        return {{"newest", Duplicates::selectNewest}, {"oldest", Duplicates::selectOldest},
            {"filename", Duplicates::autoSelect}, {"priority", Duplicates::selectPriority},
            {"high-res", Duplicates::selectHighResolution},
            {"low-res", Duplicates::selectLowResolution},
            {"high-quality", Duplicates::selectHighQuality},
            {"low-quality", Duplicates::selectLowQuality}, {"none", Duplicates::NoSelected}};
    if (&setting == &ioMode)
        return {
            {"auto", Duplicates::ioAuto}, {"ssd", Duplicates::ioSsd}, {"hdd", Duplicates::ioHdd}};
    if (&setting == &algorithmHint)
        return {{"smart", Duplicates::rbSmart}, {"histogram", Duplicates::rbHistogram},
            {"phash", Duplicates::rbPhash}, {"robust", Duplicates::rbRobust}};
    if (&setting == &scanPriority)
        return {{"speed", Similar::scanSpeed}, {"result", Similar::scanResult},
            {"custom", Similar::scanCustom}};
    return {};
}

const char *wordOf(const Setting &setting, int value)
{
    for (const Word &word : choices(setting)) {
        if (word.value == value)
            return word.word;
    }
    return nullptr;
}

} // namespace SettingsTable
