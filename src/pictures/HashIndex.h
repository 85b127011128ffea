// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

// Finds the stored 64-bit hashes within a Hamming radius of a query without comparing the
// query with all of them (multi-index hashing). The hashes are cut into m blocks; two
// hashes at most r bits apart agree within floor(r / m) bits in at least one block, so only
// the stored hashes whose block lies that close to the query's block are candidates, and
// each block's neighbours are looked up in a table indexed by the block's bits. The number
// of blocks follows from the number of hashes and the radius, so that a lookup touches few
// empty buckets and few wrong candidates; a radius too wide for any pruning falls back to
// one pass over all hashes, which gives the same answer.
class HashIndex
{
public:
    // Without prune every lookup is one pass over all hashes (the benchmark's reference).
    HashIndex(std::vector<std::uint64_t> hashes, int radius, bool prune = true);

    int radius() const { return m_radius; }
    int blockCount() const { return int(m_blocks.size()); }
    std::size_t size() const { return m_hashes.size(); }
    std::uint64_t hash(int k) const { return m_hashes[std::size_t(k)]; }

    // The stored hashes within radius of query: their indexes, ascending, each once.
    // scratch is the caller's (one per thread), reused between queries.
    struct Scratch
    {
        std::vector<std::uint32_t> seen;
        std::uint32_t stamp = 0;
    };
    void query(std::uint64_t query, Scratch &scratch, std::vector<int> &found) const;

private:
    struct Block
    {
        int shift = 0;
        int bits = 0;
        // Bucket b holds entries[start[b] .. start[b + 1]).
        std::vector<std::uint32_t> start;
        std::vector<std::uint32_t> entries;
    };

    std::vector<std::uint64_t> m_hashes;
    int m_radius = 0;
    std::vector<Block> m_blocks;
    // Within each block, every bit pattern of at most floor(radius / m) set bits over its
    // width (the widest block's), fewest bits first.
    std::vector<std::uint32_t> m_flips;
};
