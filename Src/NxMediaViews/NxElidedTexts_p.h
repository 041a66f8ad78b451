// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCache>
#include <QFont>
#include <QPair>
#include <QStaticText>
#include <QString>

/// Texts of one line, laid out once for each width. Those of one font: another font begins anew.
class NxElidedTexts
{
public:
    NxElidedTexts();

    /// The text, its end cut with an ellipsis where it is wider than `width` px. Line breaks are
    /// spaces, and no sign has a meaning.
    [[nodiscard]] QStaticText text(const QString &text, int width, const QFont &font);

private:
    QFont m_font;
    QCache<QPair<QString, int>, QStaticText> m_texts;
};
