// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/HashIndex.h"

#include <algorithm>
#include <bitset>
#include <cmath>

namespace {

// Blocks wider than this would need tables of more than a million buckets each.
constexpr int kMaxBlockBits = 20;
constexpr int kMaxBlocks = 16;

int bitCount(std::uint64_t value)
{
    return int(std::bitset<64>(value).count());
}

double choose(int n, int k)
{
    double out = 1.0;
    for (int i = 1; i <= k; ++i)
        out = out * double(n - k + i) / double(i);
    return out;
}

// Bit patterns over width bits with at most maxBits set, fewest set bits first.
std::vector<std::uint32_t> flipsOf(int width, int maxBits)
{
    std::vector<std::uint32_t> flips;
    for (std::uint32_t pattern = 0; pattern < (1u << width); ++pattern)
        if (bitCount(pattern) <= maxBits)
            flips.push_back(pattern);
    std::stable_sort(flips.begin(), flips.end(),
        [](std::uint32_t a, std::uint32_t b) { return bitCount(a) < bitCount(b); });
    return flips;
}

// Work of one lookup with m blocks over n random hashes: the buckets probed, the wrong
// candidates met in them and a share of building the tables, against n for one pass over
// all hashes.
double lookupCost(std::size_t n, int radius, int m)
{
    const int width = (64 + m - 1) / m;
    const int within = radius / m;
    double probes = 0.0;
    for (int k = 0; k <= within; ++k)
        probes += choose(width, k);
    const double buckets = std::ldexp(1.0, width);
    return double(m)
        * (probes * (1.0 + double(n) / buckets) + buckets / double(std::max<std::size_t>(n, 1)));
}

} // namespace

HashIndex::HashIndex(std::vector<std::uint64_t> hashes, int radius, bool prune)
    : m_hashes(std::move(hashes)), m_radius(std::max(0, radius))
{
    const std::size_t n = m_hashes.size();
    if (!prune)
        return;
    int best = 0;
    double bestCost = double(n);
    for (int m = (64 + kMaxBlockBits - 1) / kMaxBlockBits; m <= kMaxBlocks; ++m) {
        const double cost = lookupCost(n, m_radius, m);
        // Worth its tables only when it clearly beats one pass.
        if (cost < bestCost * 0.5) {
            best = m;
            bestCost = cost;
        }
    }
    if (best == 0)
        return;
    m_blocks.resize(std::size_t(best));
    int shift = 0;
    for (int b = 0; b < best; ++b) {
        Block &block = m_blocks[std::size_t(b)];
        block.bits = 64 / best + (b < 64 % best ? 1 : 0);
        block.shift = shift;
        shift += block.bits;
        const std::uint64_t mask = (std::uint64_t(1) << block.bits) - 1;
        block.start.assign((std::size_t(1) << block.bits) + 1, 0);
        for (const std::uint64_t hash : m_hashes)
            ++block.start[std::size_t((hash >> block.shift) & mask) + 1];
        for (std::size_t k = 1; k < block.start.size(); ++k)
            block.start[k] += block.start[k - 1];
        block.entries.resize(n);
        std::vector<std::uint32_t> next(block.start.begin(), block.start.end() - 1);
        for (std::size_t k = 0; k < n; ++k)
            block.entries[next[std::size_t((m_hashes[k] >> block.shift) & mask)]++]
                = std::uint32_t(k);
    }
    m_flips = flipsOf(m_blocks.front().bits, m_radius / best);
}

void HashIndex::query(std::uint64_t query, Scratch &scratch, std::vector<int> &found) const
{
    found.clear();
    if (m_blocks.empty()) {
        for (std::size_t k = 0; k < m_hashes.size(); ++k)
            if (bitCount(m_hashes[k] ^ query) <= m_radius)
                found.push_back(int(k));
        return;
    }
    if (scratch.seen.size() != m_hashes.size() || ++scratch.stamp == 0) {
        scratch.seen.assign(m_hashes.size(), 0);
        scratch.stamp = 1;
    }
    for (const Block &block : m_blocks) {
        const std::uint32_t key = std::uint32_t((query >> block.shift) & ((1u << block.bits) - 1));
        for (const std::uint32_t flip : m_flips) {
            if (flip >> block.bits)
                continue;
            const std::uint32_t bucket = key ^ flip;
            for (std::uint32_t at = block.start[bucket]; at < block.start[bucket + 1]; ++at) {
                const std::uint32_t k = block.entries[at];
                if (scratch.seen[k] == scratch.stamp)
                    continue;
                scratch.seen[k] = scratch.stamp;
                if (bitCount(m_hashes[k] ^ query) <= m_radius)
                    found.push_back(int(k));
            }
        }
    }
    std::sort(found.begin(), found.end());
}
