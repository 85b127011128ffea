// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The log tags that more than one file writes under: a module cut into several files
// still logs as the one module it is. A file that alone writes a tag names it itself.
namespace LogTags {

inline const QString mainWindow = QStringLiteral("[MainWindows]: ");
inline const QString resultForm = QStringLiteral("[TResultForm]: ");
inline const QString projectFiles = QStringLiteral("[TOpenSaveThread]: ");
inline const QString imageCompare = QStringLiteral("[TImageCompareThread]: ");
// OpenCV's own failures, as the comparison reports them.
inline const QString openCv = QStringLiteral("[ImageCompareThread] ");
inline const QString duplicateFinder = QStringLiteral("[TDuplicateFinleFinder]: ");
inline const QString cloud = QStringLiteral("[KvCloudObject]: ");
inline const QString keyCache = QStringLiteral("[ContentKeyCache]: ");

} // namespace LogTags
