// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CliOptions.h"

#include "engine/ProtectedFolders.h"
#include "preferences/DFGenernalPreferences.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFSelectionPreferences.h"
#include "preferences/SettingsTable.h"

#include <cmath>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>

namespace {

// The words of a choice setting, as the options take them.
QMap<QString, int> wordsOf(const SettingsTable::Setting &setting)
{
    QMap<QString, int> map;
    for (const SettingsTable::Word &word : SettingsTable::choices(setting))
        map.insert(QString::fromLatin1(word.word), word.value);
    return map;
}

const QMap<QString, int> &methods()
{
    static const QMap<QString, int> map = wordsOf(SettingsTable::scanMethod);
    return map;
}

// "all" has no hint of its own: like "none" it runs the finder without a selection, and
// then every member is selected.
const QMap<QString, int> &selections()
{
    static const QMap<QString, int> map = [] {
        QMap<QString, int> words = wordsOf(SettingsTable::selectDuplicate);
        words.insert(QStringLiteral("all"), words.value(QStringLiteral("none")));
        return words;
    }();
    return map;
}

const QMap<QString, int> &algorithms()
{
    static const QMap<QString, int> map = wordsOf(SettingsTable::algorithmHint);
    return map;
}

QStringList extensionList(const QString &text)
{
    QStringList out;
    for (QString item : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        item = item.trimmed().toLower();
        if (item.startsWith(QLatin1Char('.')))
            item.remove(0, 1);
        if (!item.isEmpty() && !out.contains(item))
            out.append(item);
    }
    return out;
}

QJsonArray toArray(const QStringList &list)
{
    QJsonArray array;
    for (const QString &item : list)
        array.append(item);
    return array;
}

} // namespace

QString CliOptions::usage()
{
    return QStringLiteral(
        "usage: veltrine-duplicate-finder-cli scan [options] FOLDER...\n"
        "       veltrine-duplicate-finder-cli scan [options] --cloud REMOTE:PATH... "
        "[--rclone-config FILE]\n"
        "       veltrine-duplicate-finder-cli report [--json | --csv] PROJECT.dupproj\n"
        "       veltrine-duplicate-finder-cli remove PROJECT.dupproj --method "
        "trash|permanent|move|hardlink|reflink|symlink\n"
        "                                     [--to DIR [--keep-structure]] [--dry-run]\n"
        "                                     [--allow-all-copies] [--protect DIR]...\n"
        "                                     [--allow-different-content] [--json]\n"
        "       veltrine-duplicate-finder-cli restore [--list | BATCH] [--json]\n"
        "\n"
        "scan finds duplicate files in the given folders and report prints the groups and\n"
        "the selection of a saved project; neither deletes or moves anything. remove acts\n"
        "on a saved project's selection: to the trash, for good, or into the folder --to\n"
        "(never over an existing name; with --keep-structure each item keeps its folders\n"
        "below the scanned folder that holds it). Just before each item goes it is\n"
        "checked: it must be as the scan saw it, a member of its group that stays must\n"
        "still exist as a separate file, and its whole content, read at that moment, must\n"
        "equal that copy's. Similar pictures and files of one name differ by design: a\n"
        "member that differs from every copy that stays goes only with\n"
        "--allow-different-content. Items that fail a check are skipped with the reason;\n"
        "when a group's every copy is selected the first stays unless --allow-all-copies\n"
        "is given. --dry-run lists what would be removed and skipped. hardlink, reflink\n"
        "and symlink replace each item by a link to a copy that stays (another name of it\n"
        "on the same file system; a copy-on-write clone of it, where the file system can\n"
        "clone; a symbolic link to its absolute path), after the same checks; folders are\n"
        "skipped. Every removal is\n"
        "written to a journal in the data folder, each item before it is acted on; a\n"
        "full disk there stops the batch. SIGINT or SIGTERM stops it after the item in hand (exit "
        "130 or 143).\n"
        "restore puts the newest batch that went to the trash or into a folder back where\n"
        "it was, each item only if it is what went, never over an existing file; run it\n"
        "again to finish what failed. restore --list lists the batches, restore BATCH (an\n"
        "id or its start) restores that one.\n"
        "--protect DIR keeps everything in DIR and below out of every selection and every\n"
        "removal (the item is skipped: \"in a protected folder\"); a scan saves its\n"
        "protected folders with the project, remove adds its own for that run, and a\n"
        "group whose every member is protected is left out of the report.\n"
        "\n"
        "options:\n"
        "  --method sampled|full|name  how files are compared (default full: whole content;\n"
        "                              sampled: size and three 4 KiB blocks, groups marked not\n"
        "                              verified; name: size and name)\n"
        "  --io auto|ssd|hdd           how many files are read at once (default auto: more\n"
        "                              readers while they read faster; ssd: 64 at once;\n"
        "                              hdd: one at a time in the disk's order)\n"
        "  --folders                   also report folders whose whole content (sub-folders\n"
        "                              and hidden files included) has copies in another\n"
        "  --select RULE               initial selection in each group: newest, oldest,\n"
        "                              filename (default), priority, high-res, low-res,\n"
        "                              high-quality, low-quality, all, none\n"
        "  --priority FOLDER=N         folder priority for --select priority (repeatable)\n"
        "  --min-size KB               skip files smaller than KB kibibytes, %1 to %2\n"
        "  --max-size MB               skip files larger than MB mebibytes, %3 to %4\n"
        "                              (default %4)\n"
        "  --only EXT,...              scan only these extensions\n"
        "  --ignore EXT,...            skip these extensions\n"
        "  --ignore-path PATH          skip this folder or file (repeatable)\n"
        "  --protect DIR               never select anything in this folder (repeatable;\n"
        "                              saved with the project)\n"
        "  --include-hidden            include hidden files and folders\n"
        "  --no-cache                  read every file; neither use nor update the keys\n"
        "                              kept from earlier scans\n"
        "  --no-overlap                read file contents only after the walk (by default\n"
        "                              same-size files are read while it goes on)\n"
        "  --similar                   also group similar pictures; each option below\n"
        "                              turns this on as well:\n"
        "  --threshold PERCENT         pass mark of the fast comparison, %5 to %6\n"
        "                              (default %9)\n"
        "  --algorithm robust|smart|histogram|phash\n"
        "                              measure: robust (default) also finds cropped,\n"
        "                              rotated, mirrored and grey copies; colour\n"
        "                              histogram; 64-bit perceptual hash; or smart:\n"
        "                              the hash above 10000 pictures, else the histogram\n"
        "  --features PERCENT          pass mark of the feature-point re-check, %7 to %8\n"
        "                              (default %10)\n"
        "  --no-features               leave out the feature-point re-check\n"
        "  --any-type                  compare pictures of different file types (default)\n"
        "  --same-type                 compare only pictures of the same file type\n"
        "  --any-ratio                 also compare pictures whose aspect ratios differ\n"
        "                              more than four times\n"
        "  --cloud REMOTE:PATH         scan this folder of an rclone remote instead of local\n"
        "                              folders (repeatable); files are compared by the\n"
        "                              service's own hash, and only where it keeps none\n"
        "                              are files of equal size downloaded and hashed\n"
        "  --rclone-config FILE        the rclone configuration that defines the remotes\n"
        "                              (default: the program's own in its data folder);\n"
        "                              $VELTRINE_RCLONE names another rclone program\n"
        "  --json                      print the groups as one JSON object; groups of\n"
        "                              the sampled and name methods are marked\n"
        "                              \"verified\": false, similar pictures carry their\n"
        "                              percents in \"similarity\"\n"
        "  --csv                       (report) one row per member instead: group, match,\n"
        "                              path, size, modified, selected, protected,\n"
        "                              similarity (RFC 4180, paths as the system's bytes)\n"
        "  --save FILE.dupproj         save the result as a project file\n"
        "  --log-dir DIR               write the program's log into DIR\n"
        "  -h, --help                  show this text\n"
        "\n"
        "Links are followed only where they lead inside the given folders (without\n"
        "--include-hidden, never to a hidden file or into a hidden folder), and a file\n"
        "reached through a link is listed under its real path. Folders and files that\n"
        "could not be read are counted in the summary (and listed in the JSON).\n"
        "\n"
        "Names: the text output writes a backslash as \\\\, control characters as \\n,\n"
        "\\r, \\t or \\xHH, and bytes that are not UTF-8 as \\xHH, so every record is one\n"
        "line. JSON strings are UTF-8; a byte of a name that is not UTF-8 is written as\n"
        "the escape \\udcHH (HH the byte, 80 to ff): decoding such a lone surrogate back\n"
        "to its byte (as the \"surrogateescape\" error handler does) gives the exact name.\n"
        "\n"
        "exit status: 0 done, 1 bad arguments, 2 a folder does not exist, is not a\n"
        "             folder, or none of the folders could be read, or a --cloud scan\n"
        "             could not be completed, 3 the project file could not be saved\n"
        "             or read, or the table not written, 4 the picture comparison\n"
        "             could not be started, 5 remove or restore skipped or failed some items\n"
        "             (each listed with its reason on standard error), 6 the removal\n"
        "             journal could not be written (nothing more was removed), 130 or\n"
        "             143 remove stopped by SIGINT or SIGTERM\n")
        .arg(SettingsTable::MinFileSize.minimum)
        .arg(SettingsTable::MinFileSize.maximum)
        .arg(SettingsTable::MaxFileSize.minimum)
        .arg(SettingsTable::MaxFileSize.maximum)
        .arg(SettingsTable::SimilarityValue.minimum)
        .arg(SettingsTable::SimilarityValue.maximum)
        .arg(SettingsTable::FeaturesValue.minimum)
        .arg(SettingsTable::FeaturesValue.maximum)
        .arg(SettingsTable::SimilarityValue.byDefault)
        .arg(SettingsTable::FeaturesValue.byDefault);
}

bool CliOptions::checkSizes()
{
    // The sizes are used in bytes; the ranges keep them within a signed 64-bit count, and
    // a minimum not below the maximum would let no file through.
    using namespace SettingsTable;
    if (!MinFileSize.contains(m_minSizeKb)) {
        m_error = QStringLiteral("--min-size needs a number from %1 to %2 (KiB), not %3")
                      .arg(MinFileSize.minimum)
                      .arg(MinFileSize.maximum)
                      .arg(m_minSizeKb);
        return false;
    }
    if (!MaxFileSize.contains(m_maxSizeMb)) {
        m_error = QStringLiteral("--max-size needs a number from %1 to %2 (MiB), not %3")
                      .arg(MaxFileSize.minimum)
                      .arg(MaxFileSize.maximum)
                      .arg(m_maxSizeMb);
        return false;
    }
    if (!sizeBoundsValid(m_minSizeKb, m_maxSizeMb)) {
        m_error = QStringLiteral("--min-size (%1 KiB) is not below --max-size (%2 MiB)")
                      .arg(m_minSizeKb)
                      .arg(m_maxSizeMb);
        return false;
    }
    return true;
}

CliOptions::ParseResult CliOptions::parseProjectCommand(const QStringList &arguments)
{
    const QString &command = arguments.first();
    m_command = command == QLatin1String("report") ? Report
        : command == QLatin1String("remove")       ? Remove
                                                   : Restore;
    const bool removing = m_command == Remove;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        const bool hasValue = i + 1 < arguments.size();
        if (argument == QLatin1String("-h") || argument == QLatin1String("--help"))
            return Help;
        if (argument == QLatin1String("--json")) {
            m_json = true;
        } else if (m_command == Report && argument == QLatin1String("--csv")) {
            m_csv = true;
        } else if (argument == QLatin1String("--log-dir") && hasValue) {
            m_logDirectory = arguments.at(++i);
        } else if (removing && argument == QLatin1String("--method") && hasValue) {
            const QString value = arguments.at(++i);
            static const QMap<QString, int> names = wordsOf(SettingsTable::RemovealMethod);
            m_removalMethod = names.value(value, -1);
            if (m_removalMethod < 0) {
                m_error = QStringLiteral("unknown removal method \"%1\" (trash, permanent, move, "
                                         "hardlink, reflink or symlink)")
                              .arg(value);
                return BadArguments;
            }
        } else if (removing && argument == QLatin1String("--to") && hasValue) {
            m_targetFolder = QDir::cleanPath(QFileInfo(arguments.at(++i)).absoluteFilePath());
        } else if (removing && argument == QLatin1String("--keep-structure")) {
            m_keepStructure = true;
        } else if (removing && argument == QLatin1String("--protect") && hasValue) {
            m_protected.append(ProtectedFolders::normalised(arguments.at(++i)));
        } else if (removing && argument == QLatin1String("--dry-run")) {
            m_dryRun = true;
        } else if (removing && argument == QLatin1String("--allow-all-copies")) {
            m_allowAllCopies = true;
        } else if (removing && argument == QLatin1String("--allow-different-content")) {
            m_allowDifferentContent = true;
        } else if (m_command == Restore && argument == QLatin1String("--list")) {
            m_listBatches = true;
        } else if (argument.startsWith(QLatin1Char('-')) && argument != QLatin1String("-")) {
            m_error = QStringLiteral("unknown option \"%1\" for %2").arg(argument, command);
            return BadArguments;
        } else if (m_command != Restore && m_projectPath.isEmpty()) {
            m_projectPath = argument;
        } else if (m_command == Restore && m_batchId.isEmpty()) {
            m_batchId = argument;
        } else {
            m_error = m_command == Restore
                ? QStringLiteral("restore takes one batch")
                : QStringLiteral("%1 takes one project file").arg(command);
            return BadArguments;
        }
    }
    if (m_csv && m_json) {
        m_error = QStringLiteral("report prints --json or --csv, not both");
        return BadArguments;
    }
    if (m_command != Restore && m_projectPath.isEmpty()) {
        m_error = QStringLiteral("no project file given");
        return BadArguments;
    }
    if (removing && m_removalMethod < 0) {
        m_error = QStringLiteral(
            "remove needs --method trash, permanent, move, hardlink, reflink or symlink");
        return BadArguments;
    }
    if (m_keepStructure && m_targetFolder.isEmpty()) {
        m_error = QStringLiteral("--keep-structure goes with --method move --to FOLDER");
        return BadArguments;
    }
    if (removing && (m_removalMethod == 2) != !m_targetFolder.isEmpty()) {
        m_error = m_removalMethod == 2 ? QStringLiteral("--method move needs --to FOLDER")
                                       : QStringLiteral("--to goes with --method move only");
        return BadArguments;
    }
    return Ok;
}

CliOptions::Option::Option(const QStringList &arguments, int &index, QString &error)
    : m_arguments(arguments), m_index(index), m_error(error)
{
    const QString &argument = arguments.at(index);
    name = argument;
    const qsizetype equals = argument.indexOf(QLatin1Char('='));
    if (argument.startsWith(QLatin1String("--")) && equals > 0) {
        name = argument.left(equals);
        value = argument.mid(equals + 1);
        m_inlineValue = true;
    }
}

bool CliOptions::Option::takeValue()
{
    if (m_inlineValue)
        return true;
    if (m_index + 1 >= m_arguments.size()) {
        m_error = QStringLiteral("%1 needs a value").arg(name);
        return false;
    }
    value = m_arguments.at(++m_index);
    return true;
}

bool CliOptions::Option::takeNumber(double &target)
{
    if (!takeValue())
        return false;
    bool ok = false;
    const double number = value.toDouble(&ok);
    if (!ok || !std::isfinite(number) || number < 0) {
        m_error = QStringLiteral("%1 needs a number of zero or more, not \"%2\"").arg(name, value);
        return false;
    }
    target = number;
    return true;
}

bool CliOptions::Option::takePercent(double &target, const SettingsTable::Setting &range)
{
    if (!takeValue())
        return false;
    bool ok = false;
    const double number = value.toDouble(&ok);
    if (!ok || !range.contains(number)) {
        m_error = QStringLiteral("%1 needs a percent from %2 to %3, not \"%4\"")
                      .arg(name)
                      .arg(range.minimum)
                      .arg(range.maximum)
                      .arg(value);
        return false;
    }
    target = number;
    return true;
}

CliOptions::ParseResult CliOptions::parse(const QStringList &arguments)
{
    if (arguments.isEmpty()) {
        m_error = QStringLiteral("no command given");
        return BadArguments;
    }
    if (arguments.first() == QLatin1String("-h") || arguments.first() == QLatin1String("--help"))
        return Help;
    static const QStringList projectCommands {"report", "remove", "restore"};
    if (projectCommands.contains(arguments.first()))
        return parseProjectCommand(arguments);
    if (arguments.first() != QLatin1String("scan")) {
        m_error = QStringLiteral("unknown command \"%1\"").arg(arguments.first());
        return BadArguments;
    }
    bool optionsEnded = false;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString argument = arguments.at(i);
        if (optionsEnded || !argument.startsWith(QLatin1String("-")) || argument == "-") {
            m_folders.append(argument);
            continue;
        }
        if (argument == QLatin1String("--")) {
            optionsEnded = true;
            continue;
        }
        Option option(arguments, i, m_error);
        if (option.name == QLatin1String("-h") || option.name == QLatin1String("--help"))
            return Help;
        Taken taken = takeScanOption(option);
        if (taken == NotMine)
            taken = takeSimilarOption(option);
        if (taken == NotMine)
            taken = takeOutputOption(option);
        if (taken == NotMine)
            m_error = QStringLiteral("unknown option \"%1\"").arg(argument);
        if (taken != Done)
            return BadArguments;
    }
    return checkScanOptions();
}

CliOptions::Taken CliOptions::takeScanOption(Option &option)
{
    const QString &name = option.name;
    if (name == QLatin1String("--method")) {
        if (!option.takeValue())
            return Failed;
        if (!methods().contains(option.value)) {
            m_error
                = QStringLiteral("unknown method \"%1\" (sampled, full or name)").arg(option.value);
            return Failed;
        }
        m_method = methods().value(option.value);
    } else if (name == QLatin1String("--io")) {
        static const QMap<QString, int> modes = wordsOf(SettingsTable::ioMode);
        if (!option.takeValue())
            return Failed;
        if (!modes.contains(option.value)) {
            m_error = QStringLiteral("unknown reading mode \"%1\" (auto, ssd or hdd)")
                          .arg(option.value);
            return Failed;
        }
        m_ioMode = modes.value(option.value);
    } else if (name == QLatin1String("--select")) {
        if (!option.takeValue())
            return Failed;
        if (!selections().contains(option.value)) {
            m_error = QStringLiteral("unknown selection rule \"%1\"").arg(option.value);
            return Failed;
        }
        m_selectHint = selections().value(option.value);
        m_selectAll = option.value == QLatin1String("all");
    } else if (name == QLatin1String("--priority")) {
        if (!option.takeValue())
            return Failed;
        const QString &value = option.value;
        const qsizetype cut = value.lastIndexOf(QLatin1Char('='));
        bool ok = false;
        const int priority = cut > 0 ? value.mid(cut + 1).toInt(&ok) : 0;
        if (!ok) {
            m_error = QStringLiteral("--priority needs FOLDER=NUMBER, not \"%1\"").arg(value);
            return Failed;
        }
        m_priorities.insert(
            QDir::cleanPath(QFileInfo(value.left(cut)).absoluteFilePath()), priority);
    } else if (name == QLatin1String("--min-size")) {
        return option.takeNumber(m_minSizeKb) ? Done : Failed;
    } else if (name == QLatin1String("--max-size")) {
        return option.takeNumber(m_maxSizeMb) ? Done : Failed;
    } else if (name == QLatin1String("--only")) {
        if (!option.takeValue())
            return Failed;
        m_only = extensionList(option.value);
    } else if (name == QLatin1String("--ignore")) {
        if (!option.takeValue())
            return Failed;
        m_ignore = extensionList(option.value);
    } else if (name == QLatin1String("--ignore-path")) {
        if (!option.takeValue())
            return Failed;
        m_ignorePaths.append(QDir::cleanPath(QFileInfo(option.value).absoluteFilePath()));
    } else if (name == QLatin1String("--protect")) {
        if (!option.takeValue())
            return Failed;
        m_protected.append(ProtectedFolders::normalised(option.value));
    } else if (name == QLatin1String("--include-hidden") && option.isFlag()) {
        m_includeHidden = true;
    } else if (name == QLatin1String("--folders") && option.isFlag()) {
        m_folderGroups = true;
    } else {
        return NotMine;
    }
    return Done;
}

CliOptions::Taken CliOptions::takeSimilarOption(Option &option)
{
    // Each of these asks for the similar-picture search.
    const QString &name = option.name;
    if (name == QLatin1String("--similar") && option.isFlag()) {
        // Nothing besides asking for the search.
    } else if (name == QLatin1String("--threshold")) {
        if (!option.takePercent(m_threshold, SettingsTable::SimilarityValue))
            return Failed;
    } else if (name == QLatin1String("--features")) {
        if (!option.takePercent(m_features, SettingsTable::FeaturesValue))
            return Failed;
    } else if (name == QLatin1String("--algorithm")) {
        if (!option.takeValue())
            return Failed;
        if (!algorithms().contains(option.value)) {
            m_error = QStringLiteral("unknown algorithm \"%1\" (robust, smart, histogram or phash)")
                          .arg(option.value);
            return Failed;
        }
        m_algorithm = algorithms().value(option.value);
    } else if (name == QLatin1String("--no-features") && option.isFlag()) {
        m_addFeatures = false;
    } else if (name == QLatin1String("--any-type") && option.isFlag()) {
        m_sameType = false;
    } else if (name == QLatin1String("--same-type") && option.isFlag()) {
        m_sameType = true;
    } else if (name == QLatin1String("--any-ratio") && option.isFlag()) {
        m_sameRatio = false;
    } else {
        return NotMine;
    }
    m_similar = true;
    return Done;
}

CliOptions::Taken CliOptions::takeOutputOption(Option &option)
{
    const QString &name = option.name;
    if (name == QLatin1String("--no-cache") && option.isFlag()) {
        m_useCache = false;
    } else if (name == QLatin1String("--no-overlap") && option.isFlag()) {
        m_overlapped = false;
    } else if (name == QLatin1String("--json") && option.isFlag()) {
        m_json = true;
    } else if (name == QLatin1String("--save")) {
        if (!option.takeValue())
            return Failed;
        m_savePath = option.value;
    } else if (name == QLatin1String("--log-dir")) {
        if (!option.takeValue())
            return Failed;
        m_logDirectory = option.value;
    } else if (name == QLatin1String("--cloud")) {
        if (!option.takeValue())
            return Failed;
        if (!option.value.contains(QLatin1Char(':'))) {
            m_error = QStringLiteral("--cloud needs REMOTE:PATH, not \"%1\"").arg(option.value);
            return Failed;
        }
        m_cloudFolders.append(option.value);
    } else if (name == QLatin1String("--rclone-config")) {
        if (!option.takeValue())
            return Failed;
        m_rcloneConfig = QFileInfo(option.value).absoluteFilePath();
    } else {
        return NotMine;
    }
    return Done;
}

CliOptions::ParseResult CliOptions::checkScanOptions()
{
    if (!m_only.isEmpty() && !m_ignore.isEmpty()) {
        m_error = QStringLiteral("--only and --ignore cannot be combined");
        return BadArguments;
    }
    if (!m_cloudFolders.isEmpty() && !m_folders.isEmpty()) {
        m_error = QStringLiteral("local folders and --cloud cannot be scanned together");
        return BadArguments;
    }
    if (!m_rcloneConfig.isEmpty() && m_cloudFolders.isEmpty()) {
        m_error = QStringLiteral("--rclone-config goes with --cloud only");
        return BadArguments;
    }
    if (!m_cloudFolders.isEmpty() && (m_similar || m_folderGroups || m_savePath.size() > 0)) {
        m_error = QStringLiteral("--cloud compares files only: no --similar, --folders or --save");
        return BadArguments;
    }
    if (m_folders.isEmpty() && m_cloudFolders.isEmpty()) {
        m_error = QStringLiteral("no folder given");
        return BadArguments;
    }
    return checkSizes() ? Ok : BadArguments;
}

// The snapshots are those of a new settings file with the options put in: the user's own
// settings never change what a command does.
QJsonObject CliOptions::commonConfig() const
{
    using namespace SettingsTable;
    QJsonObject json = DFIgnoreListPreferences().toJson();
    json.insert(MinFileSize.snapshotKey, m_minSizeKb);
    json.insert(MaxFileSize.snapshotKey, m_maxSizeMb);
    json.insert(HideSystemFile.snapshotKey, !m_includeHidden);
    // 0: the only-list governs; 1: the ignore list governs.
    json.insert(ScanFileType.snapshotKey, m_ignore.isEmpty() ? 0 : 1);
    json.insert(IgnorePathFile.snapshotKey, toArray(m_ignorePaths));
    json.insert(IgnoreFileType.snapshotKey, toArray(m_ignore));
    json.insert(OnlyFileType.snapshotKey, toArray(m_only));
    return json;
}

QJsonObject CliOptions::duplicationConfig() const
{
    using namespace SettingsTable;
    QJsonObject priorities;
    for (auto it = m_priorities.begin(); it != m_priorities.end(); ++it)
        priorities.insert(it.key(), it.value());
    QJsonObject json = DFSelectionPreferences().toJson();
    json.insert(scanMethod.snapshotKey, m_method);
    json.insert(selectDuplicate.snapshotKey, m_selectHint);
    json.insert(similarSelectHint.snapshotKey, m_selectHint);
    json.insert(scanDupDirectory.snapshotKey, m_folderGroups);
    json.insert(mapPriority.snapshotKey, priorities);
    json.insert(ioMode.snapshotKey, m_ioMode);
    return json;
}

QJsonObject CliOptions::similarConfig() const
{
    using namespace SettingsTable;
    QJsonObject json = DFGenernalPreferences().toJson();
    json.insert(hasSimilar.snapshotKey, m_similar);
    json.insert(SimilarityValue.snapshotKey, m_threshold);
    json.insert(FeaturesValue.snapshotKey, m_features);
    json.insert(selectedSimilar.snapshotKey, m_selectHint != DFSelectionPreferences::NoSelected);
    json.insert(selectionHint.snapshotKey, m_selectHint);
    json.insert(algorithmHint.snapshotKey, m_algorithm);
    json.insert(isAddFeatures.snapshotKey, m_addFeatures);
    json.insert(isImageType.snapshotKey, m_sameType);
    json.insert(isImageSize.snapshotKey, m_sameRatio);
    return json;
}
