// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/DFPreferences.h"

#include "app/AppIdentity.h"
#include "app/TLogger.h"
#include "platform/Platform.h"
#include "preferences/DFGenernalPreferences.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFSelectionPreferences.h"

#include <atomic>
#include <memory>
#include <mutex>

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QMap>
#include <QMetaProperty>
#include <QMutex>
#include <QSettings>
#include <QStandardPaths>

namespace {

const QString kFileName = QStringLiteral("preferences.cfg");
const QString kCommonGroup = QStringLiteral("Common");
const QString kDuplicateGroup = QStringLiteral("Duplicate_files");
const QString kSimilarGroup = QStringLiteral("Similar_images");
const QString kMapGroup = QStringLiteral("map");
const char *const kMapProperty = "mapPriority";

using PriorityMap = QMap<QString, qint32>;

std::atomic<DFPreferences *> s_instance {nullptr};
std::atomic<QMutex *> s_instanceMutex {nullptr};
std::once_flag s_mutexCreated;

bool isListProperty(const QString &name)
{
    return name == QLatin1String("IgnorePathFile") || name == QLatin1String("IgnoreFileType")
        || name == QLatin1String("OnlyFileType");
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
{
    load();
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
    loadGroup(settings, m_ignoreList, kCommonGroup);
    loadGroup(settings, m_selection, kDuplicateGroup);
    loadGroup(settings, m_general, kSimilarGroup);
}

void DFPreferences::save()
{
    QSettings settings(m_settingsPath, QSettings::IniFormat);
    saveGroup(settings, m_ignoreList, kCommonGroup);
    saveGroup(settings, m_selection, kDuplicateGroup);
    saveGroup(settings, m_general, kSimilarGroup);
    settings.sync();
}

void DFPreferences::loadGroup(QSettings &settings, QObject *group, const QString &name)
{
    registerPreferenceTypes();
    const QMetaObject *meta = group->metaObject();

    settings.beginGroup(name);
    // From index 0 on, so the inherited "objectName" is read too and files written by
    // earlier versions stay interchangeable.
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const QString key = QString::fromLatin1(property.name());
        if (isListProperty(key)) {
            group->setProperty(property.name(), settings.value(key).toStringList());
            continue;
        }
        if (key == QLatin1String(kMapProperty))
            continue;
        QVariant value = settings.value(key);
        if (!value.isValid())
            continue;
        // The INI file hands back text; enumerations are stored as their numbers.
        if (property.isEnumType() || property.metaType().id() == QMetaType::Int)
            value = value.toInt();
        group->setProperty(property.name(), value);
    }
    settings.endGroup();

    if (name == kDuplicateGroup) {
        PriorityMap priorities;
        settings.beginGroup(kMapGroup);
        const QStringList keys = settings.childKeys();
        for (const QString &priority : keys)
            priorities.insert(settings.value(priority).toString(), priority.toInt(nullptr, 10));
        settings.endGroup();
        group->setProperty(kMapProperty, QVariant::fromValue(priorities));
    }
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
        const QString key = QString::fromLatin1(property.name());
        const QVariant value = property.read(group);
        if (isListProperty(key)) {
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
        splog_d(QStringLiteral("[DFPreferences]: The settings file %1 cannot be written and "
                               "no other disk can hold it.")
                    .arg(path));
        return path;
    }
    splog_d(QStringLiteral("[DFPreferences]: The settings file %1 cannot be written, using "
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
