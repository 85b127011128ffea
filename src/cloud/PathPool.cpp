// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/PathPool.h"

#include <algorithm>
#include <cstring>

PathPool::Ref PathPool::add(QByteArrayView bytes)
{
    if (m_blocks.empty() || m_used + bytes.size() > m_capacity) {
        m_capacity = std::max(kBlock, bytes.size());
        m_blocks.emplace_back(new char[size_t(m_capacity)]);
        m_used = 0;
    }
    const Ref ref {quint32(m_blocks.size() - 1), quint32(m_used), quint32(bytes.size())};
    if (!bytes.isEmpty())
        std::memcpy(m_blocks.back().get() + m_used, bytes.data(), size_t(bytes.size()));
    m_used += bytes.size();
    return ref;
}

void PathPool::clear()
{
    m_blocks.clear();
    m_used = 0;
    m_capacity = 0;
}
