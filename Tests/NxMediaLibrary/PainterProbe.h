// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/INxItemBasePainter.h>
#include <NxWidgets/INxSkinEvent.h>

#include <QModelIndex>

/// What the tests of painters do to one, and ask of it.

/// Tells of a skin, new or not.
class TestSkinEvent final : public INxSkinEvent
{
public:
    explicit TestSkinEvent(bool changed) : m_isChanged(changed) {}
    bool isSkinChanged() const override { return m_isChanged; }

private:
    const bool m_isChanged;
};

inline QList<QRect> childRects(const INxItemBasePainter &painter)
{
    QList<QRect> rects;
    for (const int child : painter.childIds())
        rects.append(painter.childRect(child));
    return rects;
}

inline void sendMouse(INxItemBasePainter *painter, NxMediaItemMouseEvent event, const QPoint &place)
{
    painter->updateMouseEventInItem(place, event, QModelIndex());
}

inline void click(INxItemBasePainter *painter, const QPoint &place)
{
    sendMouse(painter, mmeLeftPress, place);
    sendMouse(painter, mmeLeftRelease, place);
}
