// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/SettingsTable.h"

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

// The command line of the headless scanner, turned into the same three configuration
// snapshots the preferences give the window's scans. The user's preferences file is
// never read or written.
class CliOptions
{
public:
    enum ParseResult { Ok, Help, BadArguments };
    enum Command { Scan, Report, Remove, Restore };

    // Parses the arguments after the program name; on BadArguments error() says why.
    ParseResult parse(const QStringList &arguments);

    static QString usage();

    QString error() const { return m_error; }
    Command command() const { return m_command; }
    // The project file of the report command.
    QString projectPath() const { return m_projectPath; }
    // remove: the removal method (TFileDeleter's values), its target folder, and the two
    // switches.
    int removalMethod() const { return m_removalMethod; }
    QString targetFolder() const { return m_targetFolder; }
    bool dryRun() const { return m_dryRun; }
    // A move recreates each item's folders below its scanned folder under the target.
    bool keepStructure() const { return m_keepStructure; }
    bool allowAllCopies() const { return m_allowAllCopies; }
    bool allowDifferentContent() const { return m_allowDifferentContent; }
    // restore: list the batches instead, or the batch to restore (empty: the newest that
    // can be).
    bool listBatches() const { return m_listBatches; }
    QString batchId() const { return m_batchId; }
    QStringList folders() const { return m_folders; }
    // scan and remove: folders nothing in which is selected or removed (--protect).
    QStringList protectedFolders() const { return m_protected; }
    // scan --cloud: "remote:path" folders listed through rclone instead of local folders,
    // and the rclone configuration that names the remotes (empty: the data folder's own).
    QStringList cloudFolders() const { return m_cloudFolders; }
    QString rcloneConfig() const { return m_rcloneConfig; }
    bool json() const { return m_json; }
    // report: one CSV row per member instead of the text.
    bool csv() const { return m_csv; }
    bool useCache() const { return m_useCache; }
    bool overlapsReading() const { return m_overlapped; }
    QString savePath() const { return m_savePath; }
    QString logDirectory() const { return m_logDirectory; }
    // "all" selects every member of each group once the scan is done; the finder itself
    // then stores no selection.
    bool selectAll() const { return m_selectAll; }

    QJsonObject commonConfig() const;
    QJsonObject duplicationConfig() const;
    QJsonObject similarConfig() const;

private:
    // One option of the scan command as it is read: its name, and its value when it takes
    // one, given after "=" or as the next argument (which is then consumed).
    class Option
    {
    public:
        Option(const QStringList &arguments, int &index, QString &error);
        // A switch: given without "=value".
        bool isFlag() const { return !m_inlineValue; }
        bool takeValue();
        bool takeNumber(double &target);
        bool takePercent(double &target, const SettingsTable::Setting &range);

        QString name;
        QString value;

    private:
        const QStringList &m_arguments;
        int &m_index;
        QString &m_error;
        bool m_inlineValue = false;
    };
    enum Taken { Done, Failed, NotMine };

    // report, remove and restore: a project file (not for restore) and their options.
    ParseResult parseProjectCommand(const QStringList &arguments);
    // The scan command's options by kind: what is scanned and selected, what the similar
    // search does, and where the results go.
    Taken takeScanOption(Option &option);
    Taken takeSimilarOption(Option &option);
    Taken takeOutputOption(Option &option);
    // The options that cannot be combined, once all are read.
    ParseResult checkScanOptions();
    // Checks the size limits once all options are read.
    bool checkSizes();

    QString m_error;
    Command m_command = Scan;
    QString m_projectPath;
    int m_removalMethod = -1;
    QString m_targetFolder;
    bool m_dryRun = false;
    bool m_csv = false;
    bool m_keepStructure = false;
    bool m_allowAllCopies = false;
    bool m_allowDifferentContent = false;
    bool m_listBatches = false;
    QString m_batchId;
    QStringList m_folders;
    QStringList m_cloudFolders;
    QString m_rcloneConfig;
    // The whole content by default: groups are real duplicates unless asked otherwise.
    int m_method = int(SettingsTable::scanMethod.byDefault);
    int m_selectHint = int(SettingsTable::selectDuplicate.byDefault);
    int m_ioMode = int(SettingsTable::ioMode.byDefault);
    bool m_selectAll = false;
    bool m_folderGroups = false;
    bool m_includeHidden = false;
    bool m_similar = false;
    // Similar-picture settings; any of their options turns the similar search on (a
    // plain scan compares no pictures).
    double m_threshold = double(SettingsTable::SimilarityValue.byDefault);
    double m_features = double(SettingsTable::FeaturesValue.byDefault);
    int m_algorithm = int(SettingsTable::algorithmHint.byDefault);
    bool m_addFeatures = SettingsTable::isAddFeatures.byDefault != 0;
    bool m_sameType = SettingsTable::isImageType.byDefault != 0;
    bool m_sameRatio = SettingsTable::isImageSize.byDefault != 0;
    bool m_json = false;
    bool m_useCache = true;
    bool m_overlapped = true;
    double m_minSizeKb = double(SettingsTable::MinFileSize.byDefault);
    double m_maxSizeMb = double(SettingsTable::MaxFileSize.byDefault);
    QStringList m_only;
    QStringList m_ignore;
    QStringList m_ignorePaths;
    QStringList m_protected;
    QMap<QString, int> m_priorities;
    QString m_savePath;
    QString m_logDirectory;
};
