// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCache>
#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QString>

/// Short texts on a ground of their own, as they lie on covers; each is drawn once. Those of one
/// font: another font begins anew.
class NxBadgePictures
{
public:
    NxBadgePictures();

    /// What a badge looks like, besides its text.
    struct Look
    {
        QFont font;
        QColor ink;
        QColor ground;
        int width = 0; ///< At most, px; a longer text ends in an ellipsis.
        int height = 0;
        qreal devicePixelRatio = 1.0;
    };

    /// As wide as its text. Null for an empty text and where nothing fits.
    [[nodiscard]] QPixmap picture(const QString &text, const Look &look);

private:
    [[nodiscard]] QPixmap kept(const QString &text, const Look &look);

    struct Key
    {
        QString text;
        QRgb ink;
        QRgb ground;
        int width;
        int height;
        qreal devicePixelRatio;
        friend bool operator==(const Key &a, const Key &b)
        {
            return a.text == b.text && a.ink == b.ink && a.ground == b.ground && a.width == b.width
                   && a.height == b.height && a.devicePixelRatio == b.devicePixelRatio;
        }
        friend uint qHash(const Key &key, uint seed)
        {
            return ::qHash(key.text, seed) ^ (key.ink * 31u) ^ uint(key.width);
        }
    };

    QFont m_font;
    QCache<Key, QPixmap> m_badges;
};
