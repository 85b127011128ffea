// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictures/ImageData.h"

#include <atomic>
#include <functional>
#include <vector>

#include <QList>
#include <QMutex>

// The pairs of pictures that passed, joined into groups as they are found (union by
// index, halved paths) instead of being listed: at a low pass mark nearly every pair
// passes, and a list of them would grow with the square of the pictures. Shared by the
// pool's tasks: the joins are made under its lock, the similarities kept as atomics.
class SimilarityLinks
{
public:
    explicit SimilarityLinks(int count);

    // The percent of picture j as scored against picture i (i < j).
    void recordSimilarity(int i, int j, int percent);
    // Joins picture i with each of others; joined(j) is called, under the lock, for each
    // join that made one group of two.
    void link(int i, const std::vector<int> &others, const std::function<void(int)> &joined);
    // Gives each picture the similarity kept for it and appends the groups of linked
    // pictures to groups.
    void collect(QList<ImageData> &images, QList<QList<ImageData>> &groups);

private:
    int root(int k);

    std::vector<int> m_parent;
    std::vector<char> m_linked;
    // similarity of image j, packed with the index i that wrote it: the value kept is the
    // one of the largest i, which is what a sequential run in index order leaves behind,
    // so that the result does not depend on the order in which the pool runs the tasks.
    std::vector<std::atomic<quint64>> m_written;
    // Guards m_parent and m_linked.
    QMutex m_mutex;
};
