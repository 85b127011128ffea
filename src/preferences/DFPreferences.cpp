// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/DFPreferences.h"

#include "app/AppIdentity.h"
#include "app/TLogger.h"
#include "platform/Platform.h"
#include "preferences/DFGenernalPreferences.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFSelectionPreferences.h"
#include "preferences/SettingsTable.h"

#include <atomic>
#include <cmath>
#include <limits>
#include <memory>
#include <mutex>

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QMutex>
#include <QSettings>
#include <QStandardPaths>

namespace {

// The log tag of this file.
const QString kTag = QStringLiteral("[DFPreferences]: ");

const QString kFileName = QStringLiteral("preferences.cfg");
const QString kCommonGroup = QStringLiteral("Common");
const QString kDuplicateGroup = QStringLiteral("Duplicate_files");
const QString kSimilarGroup = QStringLiteral("Similar_images");
const QString kMapGroup = QStringLiteral("map");
const char *const kMapProperty = SettingsTable::mapPriority.fileKey;

using PriorityMap = QMap<QString, qint32>;

std::atomic<DFPreferences *> s_instance {nullptr};
std::atomic<QMutex *> s_instanceMutex {nullptr};
std::once_flag s_mutexCreated;

bool isListProperty(const char *name)
{
    const SettingsTable::Setting *setting = SettingsTable::byFileKey(name);
    return setting && setting->kind == SettingsTable::Kind::TextList;
}

// The range of a number setting, or nullptr.
const SettingsTable::Setting *rangeOf(const char *name)
{
    const SettingsTable::Setting *setting = SettingsTable::byFileKey(name);
    return setting && setting->ranged() ? setting : nullptr;
}

// The enumerations travel through QVariant by their qualified names; registering the
// container types also installs the converters that let a QVariant holding a list or
// a map be iterated.
void registerPreferenceTypes()
{
    qRegisterMetaType<PriorityMap>("QMap<QString, qint32>");
    qRegisterMetaType<QStringList>();
    qRegisterMetaType<DFSelectionPreferences::DFScanMethod>("DFSelectionPreferences::DFScanMethod");
    qRegisterMetaType<DFSelectionPreferences::DFSelectionHint>(
        "DFSelectionPreferences::DFSelectionHint");
    qRegisterMetaType<DFSelectionPreferences::DFAlgorithmsHint>(
        "DFSelectionPreferences::DFAlgorithmsHint");
    qRegisterMetaType<DFGenernalPreferences::DFScanPriority>(
        "DFGenernalPreferences::DFScanPriority");
    qRegisterMetaType<DFIgnoreListPreferences::DFRemovalMethod>(
        "DFIgnoreListPreferences::DFRemovalMethod");
}

// A value as the INI format hands it back: text, or a list when it held an unquoted
// comma (a hand-typed path such as "/photos/a, b").
QString textOf(const QVariant &raw)
{
    if (raw.metaType().id() == QMetaType::QStringList)
        return raw.toStringList().join(QStringLiteral(", "));
    return raw.toString();
}

// What a loaded value becomes: an invalid value keeps the default. problem says why the
// stored text was not taken as it stands, for the log.
struct Loaded
{
    QVariant value;
    QString problem;
};

QString quoted(const QVariant &raw)
{
    QString text = textOf(raw);
    if (text.size() > 60)
        text = text.left(60) + QStringLiteral("...");
    return QLatin1Char('"') + text + QLatin1Char('"');
}

// A ranged number is clamped, so that a value typed a little too high still means "as
// high as possible"; anything else that does not fit its type keeps the default.
Loaded checkedValue(const QMetaProperty &property, const QVariant &raw)
{
    const QString text = textOf(raw).trimmed();
    const int type = property.metaType().id();
    if (type == QMetaType::QString)
        return {textOf(raw), QString()};
    if (type == QMetaType::Bool) {
        const QString word = text.toLower();
        if (word == QLatin1String("true") || word == QLatin1String("1"))
            return {true, QString()};
        if (word == QLatin1String("false") || word == QLatin1String("0"))
            return {false, QString()};
        return {QVariant(), quoted(raw) + QStringLiteral(", not true or false")};
    }

    bool whole = false;
    const qint64 number = text.toLongLong(&whole);
    if (const SettingsTable::Setting *range = rangeOf(property.name())) {
        bool ok = whole;
        double value = double(number);
        if (!whole)
            value = text.toDouble(&ok);
        if (!ok || !std::isfinite(value))
            return {QVariant(), quoted(raw) + QStringLiteral(", not a number")};
        if (range->contains(value))
            return {whole ? QVariant(number) : QVariant(qint64(value)), QString()};
        const qint64 clamped = value < double(range->minimum) ? range->minimum : range->maximum;
        return {QVariant(clamped),
            QStringLiteral("%1, outside %2 to %3")
                .arg(text)
                .arg(range->minimum)
                .arg(range->maximum)};
    }
    if (!whole || number < std::numeric_limits<int>::min()
        || number > std::numeric_limits<int>::max())
        return {QVariant(), quoted(raw) + QStringLiteral(", not a whole number")};
    if (property.isEnumType() && !property.enumerator().valueToKey(int(number)))
        return {QVariant(),
            QStringLiteral("%1, not a value of %2")
                .arg(number)
                .arg(QLatin1String(property.enumerator().name()))};
    return {QVariant(int(number)), QString()};
}

} // namespace

DFPreferences *DFPreferences::instance()
{
    if (DFPreferences *existing = s_instance.load(std::memory_order_acquire))
        return existing;
    std::call_once(s_mutexCreated, [] { s_instanceMutex.store(new QMutex); });
    QMutexLocker locker(s_instanceMutex.load());
    if (!s_instance.load(std::memory_order_relaxed)) {
        // A function-local holder is destroyed at exit after everything the first load
        // touched was set up, so the final save still finds QSettings working.
        static std::unique_ptr<DFPreferences> holder(new DFPreferences());
        s_instance.store(holder.get(), std::memory_order_release);
    }
    return s_instance.load(std::memory_order_acquire);
}

DFPreferences::DFPreferences() : DFPreferences(settingsFilePath()) { }

DFPreferences::DFPreferences(const QString &settingsPath, QObject *parent)
    : QObject(parent)
    , m_general(new DFGenernalPreferences)
    , m_ignoreList(new DFIgnoreListPreferences)
    , m_selection(new DFSelectionPreferences)
    , m_settingsPath(settingsPath)
    , m_fileProblem(notSettingsFile(settingsPath))
{
    if (m_fileProblem.isEmpty()) {
        load();
        return;
    }
    const QString words = QStringLiteral("The settings file %1 %2: the default settings are used "
                                         "and no settings are saved.")
                              .arg(m_settingsPath, m_fileProblem);
    splog_d(kTag + words);
    qWarning().noquote() << words;
}

QString DFPreferences::notSettingsFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists() || info.isFile())
        return {};
    return info.isDir() ? QStringLiteral("is a folder")
                        : QStringLiteral("is not a regular file (a pipe, socket or device)");
}

DFPreferences::~DFPreferences()
{
    save();
    qDebug() << "~DFPreferences()";
    delete m_general;
    delete m_ignoreList;
    delete m_selection;
    DFPreferences *self = this;
    if (s_instance.compare_exchange_strong(self, nullptr))
        delete s_instanceMutex.exchange(nullptr);
}

void DFPreferences::load()
{
    QSettings settings(m_settingsPath, QSettings::IniFormat);
    int corrected = loadGroup(settings, m_ignoreList, kCommonGroup);
    corrected += loadGroup(settings, m_selection, kDuplicateGroup);
    corrected += loadGroup(settings, m_general, kSimilarGroup);

    const DFIgnoreListPreferences defaults;
    if (!SettingsTable::sizeBoundsValid(
            double(m_ignoreList->MinFileSize()), double(m_ignoreList->MaxFileSize()))) {
        splog_d(kTag
            + QStringLiteral("\"MinFileSize\" %1 KB is not below "
                             "\"MaxFileSize\" %2 MB, so no file would be scanned; %3 is used.")
                  .arg(m_ignoreList->MinFileSize())
                  .arg(m_ignoreList->MaxFileSize())
                  .arg(defaults.MinFileSize()));
        m_ignoreList->setMinFileSize(defaults.MinFileSize());
        ++corrected;
    }

    // The next save rewrites the file from the corrected values and drops lines that are
    // not settings; the file as the user left it is kept beside it.
    const bool damaged = settings.status() == QSettings::FormatError;
    if (damaged)
        splog_d(kTag
            + QStringLiteral("%1 has lines that are not settings; they are "
                             "left out from the next save.")
                  .arg(m_settingsPath));
    if (damaged || corrected > 0)
        keepCopyOfFile();
}

void DFPreferences::keepCopyOfFile() const
{
    const QString copy = m_settingsPath + QStringLiteral(".bak");
    QFile::remove(copy);
    if (QFile::copy(m_settingsPath, copy))
        splog_d(kTag + QStringLiteral("The settings file as it was is kept as %1.").arg(copy));
    else
        splog_d(kTag + QStringLiteral("The settings file could not be copied to %1.").arg(copy));
}

void DFPreferences::save()
{
    if (!m_fileProblem.isEmpty())
        return;
    QSettings settings(m_settingsPath, QSettings::IniFormat);
    saveGroup(settings, m_ignoreList, kCommonGroup);
    saveGroup(settings, m_selection, kDuplicateGroup);
    saveGroup(settings, m_general, kSimilarGroup);
    settings.sync();
}

int DFPreferences::loadGroup(QSettings &settings, QObject *group, const QString &name)
{
    registerPreferenceTypes();
    const QMetaObject *meta = group->metaObject();
    int corrected = 0;

    settings.beginGroup(name);
    // From index 0 on, so the inherited "objectName" is read too and files written by
    // earlier versions stay interchangeable.
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const QString key = QString::fromLatin1(property.name());
        if (key == QLatin1String(kMapProperty) || !property.isStored())
            continue;
        const QVariant raw = settings.value(key);
        if (isListProperty(property.name())) {
            group->setProperty(property.name(), raw.toStringList());
            continue;
        }
        // An absent key keeps the default.
        if (!raw.isValid())
            continue;
        const Loaded loaded = checkedValue(property, raw);
        if (!loaded.problem.isEmpty()) {
            ++corrected;
            splog_d(kTag
                + QStringLiteral("\"%1\" in [%2] is %3; %4 is used.")
                      .arg(key, name, loaded.problem,
                          (loaded.value.isValid() ? loaded.value : property.read(group))
                              .toString()));
        }
        if (loaded.value.isValid())
            group->setProperty(property.name(), loaded.value);
    }
    settings.endGroup();

    if (name == kDuplicateGroup) {
        PriorityMap priorities;
        settings.beginGroup(kMapGroup);
        const QStringList keys = settings.childKeys();
        for (const QString &priority : keys) {
            const QString folder = textOf(settings.value(priority));
            if (folder.isEmpty()) {
                ++corrected;
                splog_d(kTag
                    + QStringLiteral("Priority %1 in [map] names no folder; "
                                     "it is left out.")
                          .arg(priority));
                continue;
            }
            priorities.insert(folder, priority.toInt(nullptr, 10));
        }
        settings.endGroup();
        group->setProperty(kMapProperty, QVariant::fromValue(priorities));
    }
    return corrected;
}

void DFPreferences::saveGroup(QSettings &settings, QObject *group, const QString &name)
{
    registerPreferenceTypes();
    const QMetaObject *meta = group->metaObject();
    bool hasMap = false;
    PriorityMap priorities;

    settings.beginGroup(name);
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (!property.isStored())
            continue;
        const QString key = QString::fromLatin1(property.name());
        const QVariant value = property.read(group);
        if (isListProperty(property.name())) {
            settings.setValue(key, value.toStringList());
        } else if (key == QLatin1String(kMapProperty)) {
            hasMap = true;
            priorities = value.value<PriorityMap>();
        } else if (value.isValid()) {
            // Enumerations go in as plain numbers, not as serialised variants.
            settings.setValue(key, property.isEnumType() ? QVariant(value.toInt()) : value);
        }
    }
    settings.endGroup();

    if (hasMap) {
        // The map is stored inverted, priority -> folder. Two folders of one priority
        // share a key and the later one wins; the format accepts that loss.
        settings.remove(kMapGroup);
        if (!priorities.isEmpty()) {
            settings.beginGroup(kMapGroup);
            for (auto it = priorities.cbegin(); it != priorities.cend(); ++it)
                settings.setValue(QString::number(it.value()), it.key());
            settings.endGroup();
        }
    }
}

QString DFPreferences::settingsFilePath()
{
    const QString folder
        = QStringLiteral("%1/%2/%3/")
              .arg(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
                  AppIdentity::organizationName, AppIdentity::applicationName);
    if (!QDir(folder).exists())
        QDir().mkpath(folder);
    const QString path = folder + kFileName;
    if (!notSettingsFile(path).isEmpty())
        return path;

    // Append mode, so probing never truncates an existing file.
    QFile probe(path);
    if (probe.open(QIODevice::WriteOnly | QIODevice::Append)) {
        probe.close();
        return path;
    }

    const platform::Platform &os = platform::current();
    const QString failingRoot = QString::fromStdString(os.diskRootOf(path.toStdString()));
    QStringList fixedRoots;
    for (const std::string &root : os.fixedDiskRoots())
        fixedRoots << QString::fromStdString(root);
    const QString other = fallbackSettingsFolder(failingRoot, fixedRoots);
    if (other.isEmpty()) {
        splog_d(kTag
            + QStringLiteral("The settings file %1 cannot be written and "
                             "no other disk can hold it.")
                  .arg(path));
        return path;
    }
    splog_d(kTag
        + QStringLiteral("The settings file %1 cannot be written, using "
                         "%2 instead.")
              .arg(path, other));
    return other + QLatin1Char('/') + kFileName;
}

QString DFPreferences::fallbackSettingsFolder(
    const QString &failingRoot, const QStringList &fixedRoots)
{
    for (const QString &root : fixedRoots) {
        if (root.isEmpty() || root == failingRoot)
            continue;
        // Drive roots such as "C:/" end in a slash; mount points such as "/data" do not.
        const QString folder = root.endsWith(QLatin1Char('/'))
            ? root + AppIdentity::applicationName
            : root + QLatin1Char('/') + AppIdentity::applicationName;
        if (QDir(folder).exists() || QDir().mkpath(folder))
            return folder;
    }
    return QString();
}
