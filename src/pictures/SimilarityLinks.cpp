// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/SimilarityLinks.h"

#include <algorithm>
#include <numeric>

SimilarityLinks::SimilarityLinks(int count)
    : m_parent(size_t(std::max(count, 0)))
    , m_linked(size_t(std::max(count, 0)), 0)
    , m_written(size_t(std::max(count, 0)))
{
    std::iota(m_parent.begin(), m_parent.end(), 0);
    for (auto &w : m_written)
        w.store(0);
}

int SimilarityLinks::root(int k)
{
    while (m_parent[size_t(k)] != k) {
        m_parent[size_t(k)] = m_parent[size_t(m_parent[size_t(k)])];
        k = m_parent[size_t(k)];
    }
    return k;
}

void SimilarityLinks::recordSimilarity(int i, int j, int percent)
{
    const quint64 packed = (quint64(i + 1) << 32) | quint32(percent);
    quint64 current = m_written[size_t(j)].load();
    while (current < packed && !m_written[size_t(j)].compare_exchange_weak(current, packed)) { }
}

void SimilarityLinks::link(
    int i, const std::vector<int> &others, const std::function<void(int)> &joined)
{
    QMutexLocker locker(&m_mutex);
    m_linked[size_t(i)] = 1;
    for (int j : others) {
        m_linked[size_t(j)] = 1;
        const int a = root(i);
        const int b = root(j);
        // The smaller index stays the root: a group is known by its first picture.
        if (a != b) {
            m_parent[size_t(std::max(a, b))] = std::min(a, b);
            joined(j);
        }
    }
}

void SimilarityLinks::collect(QList<ImageData> &images, QList<QList<ImageData>> &groups)
{
    const int n = int(m_parent.size());
    for (int j = 0; j < n; ++j) {
        const quint64 packed = m_written[size_t(j)].load();
        if (packed != 0)
            images[j].similarity = qint32(packed & 0xffffffffu);
    }

    // Groups in the order of their first picture, members in index order before the sort
    // by similarity: the same on every run, whatever order the pool ran the tasks in.
    std::vector<int> groupOf(size_t(std::max(n, 0)), -1);
    const qsizetype firstNew = groups.size();
    for (int k = 0; k < n; ++k) {
        if (!m_linked[size_t(k)])
            continue;
        int &group = groupOf[size_t(root(k))];
        if (group < 0) {
            group = int(groups.size());
            groups.append(QList<ImageData>());
        }
        groups[group].append(images.at(k));
    }
    for (auto group = groups.begin() + firstNew; group != groups.end(); ++group)
        std::stable_sort(group->begin(), group->end(),
            [](const ImageData &x, const ImageData &y) { return x.similarity > y.similarity; });
}
