// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/NxMediaItemEventTypes.h>
#include <NxMediaViews/NxMediaItemLayout.h>
#include <NxMediaViews/NxMediaKind_p.h>
#include <NxWidgets/NxSkinColor.h>

#include <QColor>
#include <QImage>

class INxAbstractMedia;
class INxAbstractMediaItem;
class INxItemMediaIconBasePainter;
class NxRowCanvas;

/// The drawing of one media's row, inside its frame. Lives for one paint.
class NxMediaRowDrawing
{
public:
    /// Neither is owned.
    NxMediaRowDrawing(const NxRowCanvas &canvas, INxAbstractMedia *media, NxMediaItemState state);

    /// Whether a media can be added to a timeline from its row: an item that is there.
    [[nodiscard]] static bool hasAddButton(const INxAbstractMedia *media);

    /// What is known without a look at the disk: a file is missing when somebody knows that. Null:
    /// no.
    [[nodiscard]] static bool isMissing(const INxAbstractMediaItem *item);

    void setList(bool isList) { m_isList = isList; }
    /// In view coordinates.
    void setLayout(const NxMediaItemLayout &layout) { m_layout = layout; }
    [[nodiscard]] const NxMediaItemLayout &layout() const { return m_layout; }
    /// In pixels of the screen; null: a glyph stands for it.
    void setCover(const QImage &cover) { m_cover = cover; }
    void setHasProxy(bool hasProxy) { m_hasProxy = hasProxy; }
    /// The media, if it is an item.
    [[nodiscard]] const INxAbstractMediaItem *item() const { return m_item; }

    void draw(NxMediaItemChildStatus addButton) const;
    /// @param done from 0 to 1.
    void drawProgress(const INxItemMediaIconBasePainter &painter, qreal done) const;
    void drawImportTile() const;

private:
    [[nodiscard]] QColor colour(NxSkinColor key) const;
    [[nodiscard]] QColor textColour() const;
    [[nodiscard]] QColor badgeGround() const;
    [[nodiscard]] bool isButtonShown() const;
    [[nodiscard]] QRect durationRoom() const;
    void drawCover() const;
    void drawMarks() const;
    void drawLicence() const;
    void drawTexts() const;
    void drawDuration() const;
    void drawAddButton(NxMediaItemChildStatus status) const;

    const NxRowCanvas &m_canvas;
    INxAbstractMedia *const m_media;
    const INxAbstractMediaItem *const m_item;
    const NxMediaItemState m_state;
    const bool m_isMissing;
    const NxMediaKind m_kind;
    bool m_isList = false;
    bool m_hasProxy = false;
    NxMediaItemLayout m_layout;
    QImage m_cover;
};
