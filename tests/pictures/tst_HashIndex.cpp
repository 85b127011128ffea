// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/HashIndex.h"

#include <bitset>
#include <random>

#include <QtTest>

namespace {

// Hashes as pictures give them: clusters of near copies (a few bits apart) among
// unrelated ones, so that both the hits and the misses near the radius are exercised.
std::vector<std::uint64_t> makeHashes(int count, int clusterSize, std::uint32_t seed)
{
    std::mt19937_64 random(seed);
    std::vector<std::uint64_t> hashes;
    while (int(hashes.size()) < count) {
        const std::uint64_t centre = random();
        hashes.push_back(centre);
        for (int k = 1; k < clusterSize && int(hashes.size()) < count; ++k) {
            std::uint64_t near = centre;
            const int flips = int(random() % 24);
            for (int f = 0; f < flips; ++f)
                near ^= std::uint64_t(1) << (random() % 64);
            hashes.push_back(near);
        }
    }
    return hashes;
}

} // namespace

class TestHashIndex : public QObject
{
    Q_OBJECT

private slots:
    void sameAnswerAsAllPairs_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("clusterSize");
        QTest::addColumn<int>("radius");
        QTest::addColumn<bool>("pruned");
        QTest::newRow("few, one pass") << 50 << 3 << 10 << false;
        QTest::newRow("radius 0") << 4000 << 4 << 0 << true;
        QTest::newRow("radius 8") << 20000 << 5 << 8 << true;
        QTest::newRow("radius 12") << 20000 << 5 << 12 << true;
        QTest::newRow("radius 12, odd blocks") << 3000 << 2 << 12 << true;
        QTest::newRow("radius too wide to prune") << 3000 << 4 << 40 << false;
    }

    // The index must give exactly the pairs of the loop over all pairs: a pair it drops
    // is a copy never shown, one it invents a picture grouped with a stranger.
    void sameAnswerAsAllPairs()
    {
        QFETCH(int, count);
        QFETCH(int, clusterSize);
        QFETCH(int, radius);
        QFETCH(bool, pruned);
        const std::vector<std::uint64_t> hashes = makeHashes(count, clusterSize, 7u + radius);
        const HashIndex index(hashes, radius);
        QCOMPARE(index.blockCount() > 0, pruned);

        HashIndex::Scratch scratch;
        std::vector<int> found;
        // Every stored hash as a query, and as many unrelated queries.
        std::mt19937_64 random(99);
        std::size_t pairs = 0;
        for (int q = 0; q < 2 * count; ++q) {
            const std::uint64_t query = q < count ? hashes[std::size_t(q)] : random();
            index.query(query, scratch, found);
            std::vector<int> expected;
            for (int k = 0; k < count; ++k)
                if (int(std::bitset<64>(hashes[std::size_t(k)] ^ query).count()) <= radius)
                    expected.push_back(k);
            QVERIFY2(found == expected, qPrintable(QStringLiteral("query %1").arg(q)));
            pairs += found.size();
        }
        // The clusters must put pairs near the radius, or the comparison proves little.
        QVERIFY(pairs > std::size_t(count));
    }
};

QTEST_GUILESS_MAIN(TestHashIndex)
#include "tst_HashIndex.moc"
