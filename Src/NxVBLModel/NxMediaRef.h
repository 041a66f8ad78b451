// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

#include <QMetaType>

class INxAbstractMedia;
struct NxMediaGuard;

/// A weak reference to a media: 8 bytes, null as soon as the media died.
///
/// Use it wherever a media is remembered beyond the current event; a table keyed by address keeps
/// one beside the key, because an address may be used again. Copies are cheap. The first
/// reference to a media makes its guard, so watching a media allocates at most once.
/// GUI thread only.
class NXVBLMODEL_EXPORT NxMediaRef
{
public:
    NxMediaRef(INxAbstractMedia *media = nullptr);
    NxMediaRef(const NxMediaRef &other);
    NxMediaRef(NxMediaRef &&other) noexcept;
    NxMediaRef &operator=(NxMediaRef other) noexcept;
    ~NxMediaRef();

    /// The media, or null when there is none or it died.
    [[nodiscard]] INxAbstractMedia *get() const;
    [[nodiscard]] bool isNull() const { return get() == nullptr; }

    /// True when both name the same living media, or neither names one.
    friend bool operator==(const NxMediaRef &a, const NxMediaRef &b) { return a.get() == b.get(); }
    friend bool operator!=(const NxMediaRef &a, const NxMediaRef &b) { return a.get() != b.get(); }

private:
    NxMediaGuard *m_guard = nullptr; // Shared; counts its references.
};

Q_DECLARE_METATYPE(NxMediaRef)
Q_DECLARE_TYPEINFO(NxMediaRef, Q_MOVABLE_TYPE);
