// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QTranslator;

// Translations and language-dependent background pictures, chosen once at start-up
// from the "Language" index (1 English, 2 French, 3 Portuguese, 4 Italian, 5 German,
// 6 Spanish, 7 Japanese; anything else English).
namespace LanguageSetup {

struct LanguageFiles
{
    QString appTranslation;
    QString qtTranslation;
    QString noSelectionLiteBackground;
    QString noSelectionBackground;
    QString noDuplicatesBackground;
};

LanguageFiles filesFor(int index);

// Loads both translators from ":/translations/language/" and sets the three image names.
void setupLanguage(int index);

QTranslator &appTranslator();
QTranslator &qtTranslator();
const LanguageFiles &current();

} // namespace LanguageSetup
