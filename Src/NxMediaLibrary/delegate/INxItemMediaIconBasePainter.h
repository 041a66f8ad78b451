// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxMediaLibrary/delegate/INxItemBasePainter.h>

/// Base of the painters of media items: the size of each view mode, and what all of them draw.
///
/// A host derives the painter that places cover, name and badges, fills the table of sizes with
/// setViewModeSize(), and gives it to NxMediaItemDelegate::setItemPainter().
class NXMEDIALIBRARY_EXPORT INxItemMediaIconBasePainter : public INxItemBasePainter
{
    Q_OBJECT
public:
    /// With a white normal style of pen width 1 and the default font.
    explicit INxItemMediaIconBasePainter(QObject *parent = nullptr);
    ~INxItemMediaIconBasePainter() override;

    using INxItemBasePainter::changeItemChildrenRect;
    /// Nothing, as the next three: a host's painter has children, styles and events of its own.
    void changeItemChildrenRect() override;
    void draw(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
              NxMediaItemState state) const override;
    void initPaintStateInfo() override;
    void usageEventFromFromChild(const int &child) override;

    /// What the last mouse event has come to.
    [[nodiscard]] virtual NxMediaItemEventCondition mouseEventCondition() const;
    /// What a row shows inside its frame.
    virtual void drawItemContent(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index, NxMediaItemState state) const = 0;
    /// The text, its end cut with an ellipsis where it is wider than the rectangle. `flags`:
    /// Qt::Alignment and Qt::TextFlag.
    virtual void drawTxt(QPainter *painter, const QRect &rect, const QString &text,
                         int flags) const;
    /// A bar over its ground, both with round corners. The caller works out how far it has come.
    virtual void drawProgress(QPainter *painter, const QRect &progressRect,
                              const QColor &progressColor, const QRect &backRect,
                              const QColor &backColor) const;
    /// The frame of what is selected, a pixel inside `rect` but at the bottom.
    virtual void drawSelectEffect(QPainter *painter, const QRect &rect, const QColor &color) const;

    /// Takes the mode's size; a mode without one gives a null size. The mode is that of all
    /// painters of media items, the size is this one's.
    void setViewMode(NXMEDIALIBRARY::NxMediaItemViewMode mode);
    [[nodiscard]] NXMEDIALIBRARY::NxMediaItemViewMode viewMode() const { return m_modeItemView; }
    /// What the last mouse event completed.
    [[nodiscard]] NxMediaItemUsageEvents mouseEventResult() const;

protected:
    void setViewModeSize(NXMEDIALIBRARY::NxMediaItemViewMode mode, const QSize &size);

private:
    QMap<NXMEDIALIBRARY::NxMediaItemViewMode, QSize> m_sizes;
    static NXMEDIALIBRARY::NxMediaItemViewMode m_modeItemView;
};
