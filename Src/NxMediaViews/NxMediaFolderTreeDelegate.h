// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/NxFolderTreeDelegate.h>
#include <NxMediaViews/NxMediaViewsExport.h>

/// The delegate of the folder tree beside the media: its rows are NxFolderItemPainter's, and as
/// high as that one says.
class NXMEDIAVIEWS_EXPORT NxMediaFolderTreeDelegate : public NxFolderTreeDelegate
{
    Q_OBJECT
public:
    explicit NxMediaFolderTreeDelegate(QObject *parent = nullptr);
    ~NxMediaFolderTreeDelegate() override;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;

protected:
    void createItemPaintTool() override;
};
