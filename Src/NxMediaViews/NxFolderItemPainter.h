// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/NxFolderTreeItemPainter.h>
#include <NxMediaViews/NxMediaViewsExport.h>

#include <memory>

class INxFolderMedia;
struct NxRowCaches;

/// Paints a row of the folder tree: glyph, name, and how many media the folder and those below it
/// hold.
///
/// The indents are, in px: before the glyph, between glyph and name, between name and number, and
/// after the number. Colours are those of the skin at each paint, texts are in the option's font.
/// The number gives way to the name in a narrow tree. GUI thread only; no paint touches a disk.
class NXMEDIAVIEWS_EXPORT NxFolderItemPainter : public NxFolderTreeItemPainter
{
    Q_OBJECT
public:
    /// With rows 32 px high.
    explicit NxFolderItemPainter(QObject *parent = nullptr);
    ~NxFolderItemPainter() override;

    void draw(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
              NxMediaItemState state) const override;
    /// From the name to the end of the row.
    [[nodiscard]] QRect nameEditorRect(const QStyleOptionViewItem &option,
                                       const QModelIndex &index) const override;
    /// The number in the row of a folder, which is left out when it is 0.
    [[nodiscard]] static int mediaCount(const INxFolderMedia &folder);

private:
    struct Places;
    [[nodiscard]] Places placesIn(const QStyleOptionViewItem &option, const QString &name,
                                  const QString &count) const;

    const std::unique_ptr<NxRowCaches> m_caches;
};
