// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

// File categories as integer codes. 4 is deliberately left unassigned.
enum FileCategory : int {
    CategoryImages = 1,
    CategoryDocuments = 2,
    CategoryAudio = 3,
    CategoryVideos = 5,
    CategoryFolders = 6,
    CategoryOthers = 7,
};

namespace FileTypeCatalogue {

// Category code -> extension list, in the catalogue's order (repeats included).
const QHash<int, QStringList> &categoryExtensions();
// Codes that carry a list, ascending; lookups walk them in this fixed order so that
// "ra" (both an image and an audio extension) is an image.
const QList<int> &categoryOrder();
// Label shown by the result page for a category code.
QString categoryLabel(int category);

const QStringList &similarExcludedFormats();
const QStringList &rawFormats();
const QStringList &heifFormats();

} // namespace FileTypeCatalogue

// Category of an extension given without its dot, case-insensitive; 7 when unknown.
int getFileType(const QString &suffix);
// Category of a cloud item, which has a MIME type rather than a trustworthy extension.
int categoryOfMimeType(const QString &mimeType);
// True when the file name's extension is in the Images list.
bool isImageFile(const QString &path);
// Category of a path on disk: 6 for a directory, else getFileType of its extension.
int getPathCategory(const QString &path);

bool isRawFormat(const QString &suffix);
bool isHeifFormat(const QString &suffix);
bool isSimilarExcludedFormat(const QString &suffix);
// The format a picture's suffix names, in lower case, one spelling per format: "JPEG",
// "jpe" and "jfif" are "jpg", "tif" is "tiff", "heif" is "heic".
QString pictureFormatOf(const QString &suffix);
