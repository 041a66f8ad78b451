// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/INxItemBasePainter.h>

#include <QStyleOptionViewItem>

/// A painter that draws nothing, and shows what its base keeps for it.
struct PlainPainter : INxItemBasePainter
{
    static constexpr int FirstUse = 20;

    using INxItemBasePainter::adjustDrawingStyle;
    using INxItemBasePainter::changeItemChildrenRect;
    using INxItemBasePainter::currentMouseEvent;
    using INxItemBasePainter::getPicture;
    using INxItemBasePainter::mousePosition;
    using INxItemBasePainter::previewFrameHelper;
    using INxItemBasePainter::roundedRectClip;
    using INxItemBasePainter::setChildRect;
    using INxItemBasePainter::thumbManager;

    void changeItemChildrenRect() override { laidOutFor.append(size()); }
    void draw(QPainter *, const QStyleOptionViewItem &, const QModelIndex &,
              NxMediaItemState) const override
    {
    }
    void initPaintStateInfo() override {}
    void usageEventFromFromChild(const int &child) override
    {
        eventAtUse = currentMouseEvent();
        setUseEvent(FirstUse + child);
    }

    QList<QSize> laidOutFor;
    NxMediaItemMouseEvent eventAtUse = mmeNone;
};
