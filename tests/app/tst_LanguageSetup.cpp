// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LanguageSetup.h"

#include <QFile>
#include <QTranslator>
#include <QtTest>

class TestLanguageSetup : public QObject
{
    Q_OBJECT
private slots:
    void filesFor_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("code");
        const char *codes[] = {"en", "en", "fr", "pt", "it", "de", "es", "ja", "en"};
        for (int index = 0; index < 9; ++index)
            QTest::addRow("%d", index) << index << codes[index];
        QTest::newRow("negative") << -3 << "en";
    }
    void filesFor()
    {
        QFETCH(int, index);
        QFETCH(QString, code);
        const auto files = LanguageSetup::filesFor(index);
        QVERIFY2(
            files.appTranslation.endsWith("_" + code + ".qm"), qPrintable(files.appTranslation));
        QCOMPARE(files.qtTranslation, "qt_" + code + ".qm");
        QCOMPARE(files.noDuplicatesBackground.contains("_" + code + "."), code != "en");
        // Every file the set-up names is compiled into the program.
        for (const QString &file : {files.appTranslation, files.qtTranslation})
            QVERIFY2(QFile::exists(":/translations/language/" + file), qPrintable(file));
    }

    void setupLoadsBothTranslators()
    {
        LanguageSetup::setupLanguage(5);
        QVERIFY(!LanguageSetup::qtTranslator().isEmpty());
        QCOMPARE(LanguageSetup::qtTranslator().translate("QPlatformTheme", "Cancel"), "Abbrechen");
        QCOMPARE(LanguageSetup::current().noSelectionBackground, "noSelection_bg_de.png");
    }
};

QTEST_GUILESS_MAIN(TestLanguageSetup)
#include "tst_LanguageSetup.moc"
