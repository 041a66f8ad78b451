// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/INxItemBasePainter.h>

/// Base of the painters of folder rows, which draws nothing: a host's own draws arrow, icon, name
/// and count, and gives the four indents a meaning.
class NXMEDIALIBRARY_EXPORT NxFolderTreeItemPainter : public INxItemBasePainter
{
    Q_OBJECT
public:
    /// What a row keeps free, in px, from the first indent to the fourth.
    struct Indents
    {
        int first = 4;
        int second = 0;
        int third = 0;
        int fourth = 0;
    };

    explicit NxFolderTreeItemPainter(QObject *parent = nullptr);
    ~NxFolderTreeItemPainter() override;

    using INxItemBasePainter::changeItemChildrenRect;
    /// Nothing, as the next three: a host's painter has areas, styles and events of its own.
    void changeItemChildrenRect() override;
    void draw(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
              NxMediaItemState state) const override;
    void initPaintStateInfo() override;
    void usageEventFromFromChild(const int &child) override;

    void setIndent(int first, int second, int third, int fourth);
    [[nodiscard]] Indents indent() const { return m_indents; }

    /// Where a folder's name is drawn that stands at this place, in the coordinates of the place:
    /// as wide as the text is in the font and as high as a line of it, with a little air.
    [[nodiscard]] QRect getTextDrawRect(const int &x, const int &y, const QFont &font,
                                        const QString &text) const;

private:
    Indents m_indents;
};
