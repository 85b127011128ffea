// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LanguageSetup.h"

#include <QTranslator>

namespace LanguageSetup {

namespace {

    LanguageFiles g_current = filesFor(1);

} // namespace

LanguageFiles filesFor(int index)
{
    QString code;
    switch (index) {
    case 2:
        code = QStringLiteral("fr");
        break;
    case 3:
        code = QStringLiteral("pt");
        break;
    case 4:
        code = QStringLiteral("it");
        break;
    case 5:
        code = QStringLiteral("de");
        break;
    case 6:
        code = QStringLiteral("es");
        break;
    case 7:
        code = QStringLiteral("ja");
        break;
    default:
        // The English file is the only one named without "-win".
        return {QStringLiteral("duplicate-finder_en.qm"), QStringLiteral("qt_en.qm"),
            QStringLiteral("noSelection_LiteBG.png"), QStringLiteral("noSelection_bg.png"),
            QStringLiteral("noduplicatesfound_bg.png")};
    }
    return {QStringLiteral("duplicate-finder-win_%1.qm").arg(code),
        QStringLiteral("qt_%1.qm").arg(code), QStringLiteral("noSelection_LiteBG_%1.png").arg(code),
        QStringLiteral("noSelection_bg_%1.png").arg(code),
        QStringLiteral("noduplicatesfound_bg_%1.png").arg(code)};
}

QTranslator &appTranslator()
{
    static QTranslator translator;
    return translator;
}

QTranslator &qtTranslator()
{
    static QTranslator translator;
    return translator;
}

const LanguageFiles &current()
{
    return g_current;
}

void setupLanguage(int index)
{
    static const QString directory = QStringLiteral(":/translations/language/");
    g_current = filesFor(index);
    // A file that fails to load leaves its translator empty: the source texts show.
    (void)appTranslator().load(directory + g_current.appTranslation);
    (void)qtTranslator().load(directory + g_current.qtTranslation);
}

} // namespace LanguageSetup
