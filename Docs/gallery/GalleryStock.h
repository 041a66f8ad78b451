// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "GalleryMedia.h"

#include <memory>
#include <vector>

class INxExtraMedia;

/// One of everything that a view can list.
class GalleryStock
{
public:
    GalleryStock();
    ~GalleryStock();

    /// Of each kind one, with every mark on some.
    [[nodiscard]] QList<INxAbstractMedia *> media() const;
    /// One with a cover and all marks.
    [[nodiscard]] GalleryItem *marked() const { return m_marked; }
    [[nodiscard]] INxAbstractMedia *importTile() const;
    [[nodiscard]] INxAbstractMedia *viewMoreTile() const;
    /// Unfolded, folded, empty, and one that cannot be folded.
    [[nodiscard]] QList<INxAbstractMedia *> headers() const;
    [[nodiscard]] QList<INxFolderMedia *> folders() const;

private:
    Q_DISABLE_COPY_MOVE(GalleryStock)
    GalleryItem *add(NXVBLMODEL::NxMediaType type, const QString &name, int hue, qint64 frames);
    void addMedia();
    void addHeaders();
    void addFolders();
    INxGroupMedia *addGroup(const QString &title, bool isExpanded, int members);

    std::vector<std::unique_ptr<GalleryItem>> m_items;
    GalleryItem *m_marked = nullptr; // One of the items.
    INxExtraMedia *m_importTile; // Given back at the end, as what follows.
    INxExtraMedia *m_viewMoreTile;
    QList<INxGroupMedia *> m_groups;
    GalleryHeader m_fixedHeader;
    std::vector<std::unique_ptr<GalleryFolder>> m_folders;
};
