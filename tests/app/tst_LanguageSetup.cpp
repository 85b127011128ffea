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
        QTest::addColumn<QString>("app");
        QTest::addColumn<QString>("qt");
        QTest::addColumn<QString>("noDuplicates");
        QTest::newRow("0 is English") << 0 << "duplicate-finder_en.qm"
                                      << "qt_en.qm"
                                      << "noduplicatesfound_bg.png";
        QTest::newRow("1 English") << 1 << "duplicate-finder_en.qm"
                                   << "qt_en.qm"
                                   << "noduplicatesfound_bg.png";
        QTest::newRow("2 French") << 2 << "duplicate-finder-win_fr.qm"
                                  << "qt_fr.qm"
                                  << "noduplicatesfound_bg_fr.png";
        QTest::newRow("3 Portuguese") << 3 << "duplicate-finder-win_pt.qm"
                                      << "qt_pt.qm"
                                      << "noduplicatesfound_bg_pt.png";
        QTest::newRow("4 Italian") << 4 << "duplicate-finder-win_it.qm"
                                   << "qt_it.qm"
                                   << "noduplicatesfound_bg_it.png";
        QTest::newRow("5 German") << 5 << "duplicate-finder-win_de.qm"
                                  << "qt_de.qm"
                                  << "noduplicatesfound_bg_de.png";
        QTest::newRow("6 Spanish") << 6 << "duplicate-finder-win_es.qm"
                                   << "qt_es.qm"
                                   << "noduplicatesfound_bg_es.png";
        QTest::newRow("7 Japanese") << 7 << "duplicate-finder-win_ja.qm"
                                    << "qt_ja.qm"
                                    << "noduplicatesfound_bg_ja.png";
        QTest::newRow("8 is English") << 8 << "duplicate-finder_en.qm"
                                      << "qt_en.qm"
                                      << "noduplicatesfound_bg.png";
        QTest::newRow("negative is English") << -3 << "duplicate-finder_en.qm"
                                             << "qt_en.qm"
                                             << "noduplicatesfound_bg.png";
    }
    void filesFor()
    {
        QFETCH(int, index);
        QFETCH(QString, app);
        QFETCH(QString, qt);
        QFETCH(QString, noDuplicates);
        const auto files = LanguageSetup::filesFor(index);
        QCOMPARE(files.appTranslation, app);
        QCOMPARE(files.qtTranslation, qt);
        QCOMPARE(files.noDuplicatesBackground, noDuplicates);
        // Every file the set-up names is compiled into the program.
        QVERIFY2(QFile::exists(":/translations/language/" + app), qPrintable(app));
        QVERIFY2(QFile::exists(":/translations/language/" + qt), qPrintable(qt));
    }

    void setupLoadsBothTranslators()
    {
        LanguageSetup::setupLanguage(5);
        QVERIFY(!LanguageSetup::qtTranslator().isEmpty());
        QCOMPARE(LanguageSetup::qtTranslator().translate("QPlatformTheme", "Cancel"),
            QStringLiteral("Abbrechen"));
        QCOMPARE(LanguageSetup::current().noSelectionBackground,
            QStringLiteral("noSelection_bg_de.png"));
    }
};

QTEST_GUILESS_MAIN(TestLanguageSetup)
#include "tst_LanguageSetup.moc"
