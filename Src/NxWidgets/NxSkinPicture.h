// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NxWidgetsExport.h>

#include <QPixmap>

/// One picture of the skin, at the crispness of any screen. GUI thread only.
class NXWIDGETS_EXPORT NxSkinPicture
{
public:
    /// A picture of nothing.
    NxSkinPicture() = default;

    /// Loads "x.png", and beside it "x@2x.png" for screens with more pixels. What is not there or
    /// no picture stays null.
    /// @param formattedPath of "x.png", as NxSkinStyle::FormatResourceFile() answers it.
    explicit NxSkinPicture(const QString &formattedPath);

    /// What to draw on a screen with so many pixels for each one of a plain screen: above 1.0 the
    /// crisper picture, which knows its ratio and so takes no more room. Where only one of the two
    /// is there, that one.
    [[nodiscard]] QPixmap pixmap(qreal devicePixelRatio) const;

    /// True when nothing could be loaded.
    [[nodiscard]] bool isNull() const;

private:
    QPixmap m_plain;
    QPixmap m_crisp;
};
