// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/LanguageSetup.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSize>
#include <QTest>
#include <QWidget>

// What the screenshot drivers share: the languages and window sizes they cover, the
// switch of language, the program's style and the saving of one picture.
namespace ScreenshotSupport {

struct Language
{
    int index;
    const char *code;
};
inline const Language kLanguages[]
    = {{1, "en"}, {5, "de"}, {6, "es"}, {2, "fr"}, {4, "it"}, {3, "pt"}, {7, "ja"}};
inline const QSize kSizes[] = {QSize(1366, 768), QSize(1920, 1080)};

// "en-1366x768-": the start of every picture's name.
inline QString namePrefix(const Language &language, const QSize &size)
{
    return QStringLiteral("%1-%2x%3-")
        .arg(QLatin1String(language.code))
        .arg(size.width())
        .arg(size.height());
}

inline void save(QWidget *widget, const QString &folder, const QString &name)
{
    // Time for late layouts and thumbnails to land before the picture is taken.
    QTest::qWait(150);
    widget->grab().save(QDir(folder).filePath(name + QStringLiteral(".png")));
}

inline void useLanguage(int index)
{
    QCoreApplication::removeTranslator(&LanguageSetup::appTranslator());
    QCoreApplication::removeTranslator(&LanguageSetup::qtTranslator());
    LanguageSetup::setupLanguage(index);
    QCoreApplication::installTranslator(&LanguageSetup::appTranslator());
    QCoreApplication::installTranslator(&LanguageSetup::qtTranslator());
}

// The program's own style sheet, so that the pictures show what the user sees.
inline void useProgramStyle(QApplication &app)
{
    QFile style(QStringLiteral(":resource/Style.qss"));
    if (style.open(QIODevice::ReadOnly))
        app.setStyleSheet(QString::fromUtf8(style.readAll()));
}

// The folder given as the first argument, else the current one.
inline QString outputFolder(int argc, char *argv[])
{
    return argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::currentPath();
}

} // namespace ScreenshotSupport
