// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxNaturalRecord_p.h"

#include <QtEndian>

#include <algorithm>

namespace {

constexpr int WordSize = 8;
constexpr size_t LargestBlock = 1 << 17;

static_assert(NxNaturalKeyBuffer::PaddingSize >= WordSize, "whole words are read from the buffer");

} // namespace

NxNaturalRecord NxNaturalRecordMaker::record(const QString &name, quint32 index)
{
    m_buffer.write(name);
    const uchar *key = m_buffer.data();
    const quint64 word = qFromBigEndian<quint64>(key);
    if (m_buffer.size() <= WordSize)
        return {word, nullptr, 0, index};
    const quint32 restSize = quint32(m_buffer.size() - 1) / WordSize;
    quint64 *const rest = room(restSize);
    for (quint32 i = 0; i < restSize; ++i) {
        key += WordSize;
        rest[i] = qFromBigEndian<quint64>(key);
    }
    return {word, rest, restSize, index};
}

quint64 *NxNaturalRecordMaker::room(size_t size)
{
    if (size_t(m_end - m_at) < size) {
        m_blockSize = std::min(2 * m_blockSize, LargestBlock);
        const size_t taken = std::max(m_blockSize, size);
        m_blocks.emplace_back(new quint64[taken]);
        m_at = m_blocks.back().get();
        m_end = m_at + taken;
    }
    quint64 *const given = m_at;
    m_at += size;
    return given;
}
