// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <vector>

#include <QByteArrayView>

// The names of a listing packed into large blocks: one allocation per megabyte instead of
// one per file, which with a million files saves both the allocator's overhead and the
// holes the short-lived JSON of each entry would leave between them.
class PathPool
{
public:
    struct Ref
    {
        quint32 block = 0;
        quint32 offset = 0;
        quint32 length = 0;
    };

    Ref add(QByteArrayView bytes);
    QByteArrayView view(const Ref &ref) const
    {
        return QByteArrayView(m_blocks[ref.block].get() + ref.offset, ref.length);
    }
    void clear();

private:
    static constexpr qsizetype kBlock = 1 << 20;
    std::vector<std::unique_ptr<char[]>> m_blocks;
    qsizetype m_used = 0;
    qsizetype m_capacity = 0;
};
