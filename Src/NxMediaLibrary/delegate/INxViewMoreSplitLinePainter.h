// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/INxItemBasePainter.h>
#include <NxWidgets/INxSkinEventHandler.h>
#include <NxWidgets/NxSkinPicture.h>

#include <QFont>
#include <QMap>

/// Draws "View More" rows: an arrow and the text in the middle, a line on either side, and a pill
/// behind the middle while the mouse is on it.
///
/// Children: 0 the left line, 1 the arrow, 2 the text, 3 the right line. A left click on arrow or
/// text is announced as mueViewMore. Wears the skin of now. A row is drawn in the option's font,
/// and from then on the children are where that font puts them; until then they are laid out in
/// the application's. A row without a size is not drawn.
class NXMEDIALIBRARY_EXPORT INxViewMoreSplitLinePainter : public INxItemBasePainter,
                                                          public INxSkinEventHandler
{
    Q_OBJECT
public:
    explicit INxViewMoreSplitLinePainter(QObject *parent = nullptr);
    ~INxViewMoreSplitLinePainter() override;

    /// Registers the children anew, untouched, and takes the pictures of the present skin.
    void init();
    void OnSkinChangedEvent(INxSkinEvent *event) override;

    void changeItemChildrenRect() override;
    /// For the font that rows were drawn in last, and the language of now.
    void changeItemChildrenRect(const QModelIndex &index) override;
    /// Nothing for a row that is no "View More" tile.
    void draw(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
              NxMediaItemState state) const override;
    /// Nothing: colours are the skin's at every draw.
    void initPaintStateInfo() override;
    void usageEventFromFromChild(const int &child) override;

    [[nodiscard]] virtual QString title() const;
    /// Of the text and the room around it, px.
    [[nodiscard]] virtual int titleWidth() const;
    /// Of the pill, px.
    [[nodiscard]] virtual int hoverWidth() const;
    /// Whether a row of this state shows the pill.
    [[nodiscard]] virtual bool isEnableHoverArea(NxMediaItemState state) const;

protected:
    /// The arrow, as the mouse has it.
    virtual void drawViewMore(QPainter *painter, const QRect &rect) const;
    /// The pill, where the state shows one.
    virtual void drawHoverArea(QPainter *painter, const QRect &rect, NxMediaItemState state) const;
    /// A line through the middle of the rectangle, with the painter's pen.
    virtual void drawLine(QPainter *painter, const QRect &rect) const;
    virtual void drawTitle(QPainter *painter, const QRect &rect) const;

private:
    Q_DISABLE_COPY_MOVE(INxViewMoreSplitLinePainter)
    void loadPictures();
    [[nodiscard]] int sideLineWidth() const;

    QMap<NxMediaItemChildStatus, NxSkinPicture> m_pictures;
    mutable QFont m_font; // What a row was drawn in last: the mouse is looked up without one.
};
