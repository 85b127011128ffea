// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The names and limits of the project file (".dupproj"), shared by its writer
// (TOpenSaveThread) and its reader (ProjectFileReader).
namespace ProjectFileFormat {

inline const QString kGroupsElement = QStringLiteral("groups");
inline const QString kGroupElement = QStringLiteral("GroupItem");
inline const QString kItemElement = QStringLiteral("Item");
// The folders the scan started from, one "Root" each, before the groups.
inline const QString kRootsElement = QStringLiteral("roots");
inline const QString kRootElement = QStringLiteral("Root");
inline const QString kDefaultScanTime = QStringLiteral("00:00:00");
// An item whose path XML cannot carry (control characters, bytes that are not UTF-8)
// is written as the percent-encoded bytes of the name, marked by this attribute.
inline const QString kEncodingAttribute = QStringLiteral("encoding");
inline const QString kPercentEncoding = QStringLiteral("percent");
// A group whose members share only their name (the name mode).
inline const QString kMatchAttribute = QStringLiteral("match");
inline const QString kMatchName = QStringLiteral("name");
inline const QString kMatchSampled = QStringLiteral("sampled");
// An item's stamp as the scan saw it: size, modification time in nanoseconds, device and
// inode.
inline const QString kSizeAttribute = QStringLiteral("size");
inline const QString kModifiedAttribute = QStringLiteral("mtime");
inline const QString kDeviceAttribute = QStringLiteral("device");
inline const QString kInodeAttribute = QStringLiteral("inode");
inline const QString kContentKeyAttribute = QStringLiteral("contentKey");
inline const QString kChangedAttribute = QStringLiteral("ctime");
// The folders the project protects: <protected><Folder>/path</Folder>...</protected>,
// beside "groups". A project without it protects nothing.
inline const QString kProtectedElement = QStringLiteral("protected");
inline const QString kProtectedFolderElement = QStringLiteral("Folder");
// Longest path Windows accepts; anything longer cannot name a file.
constexpr int kMaxPathLength = 32767;
constexpr int kMaxKeyLength = 256;

} // namespace ProjectFileFormat
