// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaViews/NxMediaViewsExport.h>
#include <NxVBLModel/NxMediaRef.h>

#include <QHash>
#include <QItemSelection>
#include <QList>
#include <QPair>
#include <QVector>

class INxAbstractMedia;
class NxMediaItemModel;

/// What a view remembers of its media while its model is reset, and where it stands afterwards.
///
/// A media that dies is forgotten; one that is only removed has to be taken out, see forget().
/// Looking for all of them is one walk over the rows.
class NXMEDIAVIEWS_TEST_EXPORT NxMediaRowMemory
{
public:
    /// The media that a view cares about one by one.
    enum Role { Current, Anchor, Edited, Hovered, RoleCount };

    void setSelected(const QList<INxAbstractMedia *> &medias);
    void setMedia(Role role, INxAbstractMedia *media);
    /// Null also when it died.
    [[nodiscard]] const INxAbstractMedia *media(Role role) const { return m_media[role].get(); }
    /// Takes a media out of the selection and out of every role.
    void forget(const INxAbstractMedia *media);
    void clear();
    [[nodiscard]] bool hasSelection() const { return !m_selected.isEmpty(); }

    /// Looks for all of them among the rows of the model.
    void find(const NxMediaItemModel &model);
    /// The first row of a role's media; -1 when it has none.
    [[nodiscard]] int row(Role role) const { return m_rows[role]; }
    /// Whole rows in the order in which the media were selected; in the order of the rows where
    /// that would be many ranges.
    [[nodiscard]] QItemSelection selection(const NxMediaItemModel &model) const;

private:
    using Place = QPair<int, int>; // Number in the selection, and row.
    struct Selected
    {
        int number;
        NxMediaRef media; // Another one may come to stand at the address.
    };

    [[nodiscard]] static QItemSelection ranges(const NxMediaItemModel &model,
                                               const QVector<Place> &places, bool keepsOrder);

    QHash<const INxAbstractMedia *, Selected> m_selected;
    NxMediaRef m_media[RoleCount];
    int m_rows[RoleCount] = {-1, -1, -1, -1};
    QVector<Place> m_places; // By row.
};
