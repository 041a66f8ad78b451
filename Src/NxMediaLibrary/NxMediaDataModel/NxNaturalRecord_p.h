// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

#include <memory>
#include <vector>

#include "NxNaturalKeyBuffer_p.h"

/// A name while it is sorted: the eight bytes of its key that are being sorted by, as a number, and
/// where the others stand.
struct NxNaturalRecord
{
    quint64 word;
    const quint64 *rest;
    quint32 restSize; ///< In words.
    quint32 index;
};

/// Makes the records of many names and keeps their keys, in few blocks.
class NxNaturalRecordMaker
{
public:
    [[nodiscard]] NxNaturalRecord record(const QString &name, quint32 index);

private:
    [[nodiscard]] quint64 *room(size_t size);

    NxNaturalKeyBuffer m_buffer;
    size_t m_blockSize = 1 << 6; // Grows, so that a few names need little.
    std::vector<std::unique_ptr<quint64[]>> m_blocks;
    quint64 *m_at = nullptr;
    quint64 *m_end = nullptr;
};
