// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>

#include <QList>

#include <vector>

class INxAbstractMedia;

/// The order that a sort gives media: the place of each, and of one more among them.
///
/// Without a key, or with an unknown one, nothing is moved and nothing left out. Otherwise null
/// entries and media without a type are left out, and folders stand before everything else.
class NxMediaItemOrdering
{
public:
    explicit NxMediaItemOrdering(const NXMEDIALIBRARY::NxMediaItemViewSort &sort);

    [[nodiscard]] bool isSorting() const;
    [[nodiscard]] bool keeps(const INxAbstractMedia *media) const;
    /// The numbers of the entries that are kept, in order; equal ones as they stand in the list.
    [[nodiscard]] std::vector<quint32> places(const QList<INxAbstractMedia *> &media) const;
    /// Negative when a stands before b whatever else stands around them, 0 when they are equal,
    /// positive otherwise. Only for media that are kept; costs one look at the fact of each.
    [[nodiscard]] int compare(const INxAbstractMedia *a, const INxAbstractMedia *b) const;

private:
    NXMEDIALIBRARY::NxMediaItemViewSort m_sort;
};
