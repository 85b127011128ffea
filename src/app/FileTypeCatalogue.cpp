// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/FileTypeCatalogue.h"

#include <QFileInfo>
#include <QHash>

namespace FileTypeCatalogue {

namespace {

    // Built before main() runs and read-only afterwards, so every thread may read the
    // tables without locking.
    const QHash<int, QStringList> kCategories = {
        {CategoryImages,
            {"png", "jpg", "jpeg", "bmp", "tga", "jp2", "jpg2000", "tif", "tiff", "webp", "hdr",
                "arw", "bay", "bur", "ccr", "crw", "cr2", "cr3", "dcr", "dng", "drw", "erf", "fff",
                "iiq", "k25", "kdc", "mef", "mrw", "mos", "nef", "nrw", "orf", "pef", "pff", "prw",
                "raf", "ra", "rwl", "rw2", "sr2", "srf", "srw", "x3f", "heic", "heif", "pcx", "pic",
                "raw", "jif", "svg", "lic", "eps", "sai", "sgi", "emf", "ico", "psd", "icns", "cur",
                "wmf", "xbm", "pict", "gif", "jpc"}},
        {CategoryDocuments,
            {"pdf", "docx", "txt", "doc", "potx", "xls", "chm", "htm", "html", "rtf", "xlsx",
                "pptx", "xml", "jar", "key", "djvu", "dwg", "epub", "wps", "odt", "xps", "oxps",
                "pages", "pst", "rtf", "rtfd", "vsd", "vdx", "vsdx", "wpd", "dotx", "dot", "docm",
                "dotm", "mht", "xltx", "xlt", "csv", "xlsb", "xlsm", "xltm", "xlam", "xla", "mht",
                "prn", "dif", "slk", "pot", "ppsx", "pps", "pptm", "potm", "ppsm", "thmx", "ppam",
                "ppa", "dat", "ppt", "olm", "dxf", "dwf"}},
        {CategoryAudio,
            {"amr", "au", "aac", "ac3", "aiff", "ape", "caf", "flac", "m4a", "mka", "mp2", "mp3",
                "ra", "ogg", "wav", "mid", "wma", "midi", "cda", "aif"}},
        {CategoryVideos,
            {"webm", "mxf", "mp4", "flv", "mov", "wmv", "vob", "ts", "tp", "rmvb", "rm", "mts",
                "mpg", "mpeg", "mod", "mkv", "m4v", "m2ts", "divx", "avi", "asf", "amv", "3gp",
                "rmx", "flash", "swf"}},
    };

    const QList<int> kCategoryOrder
        = {CategoryImages, CategoryDocuments, CategoryAudio, CategoryVideos};

    const QStringList kSimilarExcluded = {"pcx", "pic", "raw", "jif", "gif", "svg", "lic", "eps",
        "sai", "sgi", "emf", "ico", "psd", "icns", "cur", "wmf", "xbm", "pict", "exr", "jpc"};

    const QStringList kRawFormats = {"arw", "bay", "bur", "ccr", "crw", "cr2", "cr3", "dcr", "dng",
        "drw", "erf", "fff", "iiq", "k25", "kdc", "me2", "mef", "mos", "mrw", "nef", "nrw", "orf",
        "pef", "pff", "prw", "raf", "ra", "rwl", "rw2", "sr2", "srf", "srw", "x3f"};

    const QStringList kHeifFormats = {"heic", "heif"};

} // namespace

const QHash<int, QStringList> &categoryExtensions()
{
    return kCategories;
}
const QList<int> &categoryOrder()
{
    return kCategoryOrder;
}
const QStringList &similarExcludedFormats()
{
    return kSimilarExcluded;
}
const QStringList &rawFormats()
{
    return kRawFormats;
}
const QStringList &heifFormats()
{
    return kHeifFormats;
}

QString categoryLabel(int category)
{
    switch (category) {
    case CategoryImages:
        return QStringLiteral("Images");
    case CategoryDocuments:
        return QStringLiteral("Documents");
    case CategoryAudio:
        return QStringLiteral("Musics");
    case CategoryVideos:
        return QStringLiteral("Videos");
    case CategoryFolders:
        return QStringLiteral("Folders");
    default:
        return QStringLiteral("Others");
    }
}

} // namespace FileTypeCatalogue

int getFileType(const QString &suffix)
{
    const auto &categories = FileTypeCatalogue::categoryExtensions();
    for (int code : FileTypeCatalogue::categoryOrder()) {
        if (categories.value(code).contains(suffix, Qt::CaseInsensitive))
            return code;
    }
    return CategoryOthers;
}

int categoryOfMimeType(const QString &mimeType)
{
    if (mimeType == QLatin1String("inode/directory"))
        return CategoryFolders;
    // A media major type is the surest fact: its subtype may name a container shared by
    // sound and video ("audio/mpeg", "audio/mp4", "video/ogg").
    const QString major = mimeType.section(QLatin1Char('/'), 0, 0);
    if (major == QLatin1String("image"))
        return CategoryImages;
    if (major == QLatin1String("audio"))
        return CategoryAudio;
    if (major == QLatin1String("video"))
        return CategoryVideos;
    QString minor = mimeType.section(QLatin1Char('/'), 1).section(QLatin1Char('+'), 0, 0);
    if (minor.startsWith(QLatin1String("x-")))
        minor = minor.mid(2);
    const int byMinor = getFileType(minor);
    if (byMinor != CategoryOthers)
        return byMinor;
    if (major == QLatin1String("text"))
        return CategoryDocuments;
    return CategoryOthers;
}

bool isImageFile(const QString &path)
{
    return FileTypeCatalogue::categoryExtensions()
        .value(CategoryImages)
        .contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
}

int getPathCategory(const QString &path)
{
    const QFileInfo info(path);
    return info.isDir() ? int(CategoryFolders) : getFileType(info.suffix());
}

bool isRawFormat(const QString &suffix)
{
    return FileTypeCatalogue::rawFormats().contains(suffix, Qt::CaseInsensitive);
}

bool isHeifFormat(const QString &suffix)
{
    return FileTypeCatalogue::heifFormats().contains(suffix, Qt::CaseInsensitive);
}

QString pictureFormatOf(const QString &suffix)
{
    static const QHash<QString, QString> spellings {{QStringLiteral("jpeg"), QStringLiteral("jpg")},
        {QStringLiteral("jpe"), QStringLiteral("jpg")},
        {QStringLiteral("jfif"), QStringLiteral("jpg")},
        {QStringLiteral("tif"), QStringLiteral("tiff")},
        {QStringLiteral("heif"), QStringLiteral("heic")}};
    const QString lower = suffix.toLower();
    return spellings.value(lower, lower);
}

bool isSimilarExcludedFormat(const QString &suffix)
{
    return FileTypeCatalogue::similarExcludedFormats().contains(suffix, Qt::CaseInsensitive);
}
