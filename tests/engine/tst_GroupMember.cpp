// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/GroupMember.h"

#include <QtTest>

class TestGroupMember : public QObject
{
    Q_OBJECT
private slots:
    void fromEntry_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("similarity");
        const struct
        {
            const char *name, *entry, *path;
            int similarity;
        } rows[] = {{"tagged", "abc_simlar_12", "abc", 12},
            {"path", "/p/q r.jpg_simlar_100", "/p/q r.jpg", 100},
            {"compared with", "/p/a.jpg_simlar_0", "/p/a.jpg", 0},
            {"no digits", "abc_simlar_", "abc_simlar_", GroupMember::kNotSimilar},
            {"trailing letter", "abc_simlar_1x", "abc_simlar_1x", GroupMember::kNotSimilar},
            {"leading zero", "abc_simlar_07", "abc_simlar_07", GroupMember::kNotSimilar},
            {"beyond an int", "abc_simlar_9999999999", "abc_simlar_9999999999",
                GroupMember::kNotSimilar},
            {"plain", "/a/b.jpg", "/a/b.jpg", GroupMember::kNotSimilar},
            {"tag twice keeps first", "a_simlar_1_simlar_2", "a_simlar_1", 2},
            {"case-sensitive", "abc_SIMLAR_3", "abc_SIMLAR_3", GroupMember::kNotSimilar}};
        for (const auto &row : rows)
            QTest::newRow(row.name) << QString(row.entry) << QString(row.path) << row.similarity;
    }
    void fromEntry()
    {
        QFETCH(QString, entry);
        QFETCH(QString, path);
        QFETCH(int, similarity);
        const GroupMember member = GroupMember::fromEntry(entry);
        QCOMPARE(member.path, path);
        QCOMPARE(member.similarity, similarity);
        QCOMPARE(member.isSimilar(), similarity != GroupMember::kNotSimilar);
        // What the store keeps comes back as it was.
        QCOMPARE(member.entry(), entry);
        QCOMPARE(GroupMember::fromEntries({entry, "plain"}),
            QList<GroupMember>({member, GroupMember {"plain"}}));
    }
};

QTEST_GUILESS_MAIN(TestGroupMember)
#include "tst_GroupMember.moc"
