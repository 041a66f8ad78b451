// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxMediaRef.h>

#include <NxVBLModel/INxAbstractMedia.h>
#include <NxVBLModel/NxMediaGuard_p.h>

#include <utility>

NxMediaRef::NxMediaRef(INxAbstractMedia *media) : m_guard(media ? NxMediaGuard::of(media) : nullptr)
{
    if (m_guard)
        ++m_guard->references;
}

NxMediaRef::NxMediaRef(const NxMediaRef &other) : m_guard(other.m_guard)
{
    if (m_guard)
        ++m_guard->references;
}

NxMediaRef::NxMediaRef(NxMediaRef &&other) noexcept : m_guard(std::exchange(other.m_guard, nullptr))
{
}

NxMediaRef &NxMediaRef::operator=(NxMediaRef other) noexcept
{
    std::swap(m_guard, other.m_guard);
    return *this;
}

NxMediaRef::~NxMediaRef()
{
    NxMediaGuard::drop(m_guard);
}

INxAbstractMedia *NxMediaRef::get() const
{
    return m_guard ? m_guard->media : nullptr;
}
