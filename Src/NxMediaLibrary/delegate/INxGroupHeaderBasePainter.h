// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/INxItemBasePainter.h>
#include <NxWidgets/INxSkinEventHandler.h>
#include <NxWidgets/NxSkinPicture.h>

#include <QMap>

/// Draws the headers of groups: an arrow where the group can be folded, the group's name and
/// count, and a line to the end of the row.
///
/// The arrow is child 0; children 1 and 2 are the rest of the row and do nothing. A left click on
/// the arrow is announced as mueToggleGroup. Wears the skin of now. Rows are drawn in the option's
/// font; a header without a size is not drawn.
class NXMEDIALIBRARY_EXPORT INxGroupHeaderBasePainter : public INxItemBasePainter,
                                                        public INxSkinEventHandler
{
    Q_OBJECT
public:
    explicit INxGroupHeaderBasePainter(QObject *parent = nullptr);
    ~INxGroupHeaderBasePainter() override;

    /// Registers the children anew, untouched, and takes the pictures of the present skin.
    void init();
    void OnSkinChangedEvent(INxSkinEvent *event) override;

    using INxItemBasePainter::changeItemChildrenRect;
    void changeItemChildrenRect() override;
    /// Nothing for a row that is no group.
    void draw(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
              NxMediaItemState state) const override;
    /// Nothing: colours are the skin's at every draw.
    void initPaintStateInfo() override;
    void usageEventFromFromChild(const int &child) override;

protected:
    /// The arrow, as the mouse has it; it looks hovered only while its row is.
    virtual void drawExpandState(QPainter *painter, const QRect &rect, bool expanded,
                                 NxMediaItemState state) const;
    /// A line through the middle of the rectangle, with the painter's pen.
    virtual void drawLine(QPainter *painter, const QRect &rect) const;
    virtual void drawTitle(QPainter *painter, const QRect &rect, const QString &title) const;

private:
    Q_DISABLE_COPY_MOVE(INxGroupHeaderBasePainter)
    void loadPictures();

    QMap<NxMediaItemChildStatus, NxSkinPicture> m_expandedPictures;
    QMap<NxMediaItemChildStatus, NxSkinPicture> m_collapsedPictures;
};
