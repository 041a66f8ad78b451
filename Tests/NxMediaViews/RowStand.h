// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <GalleryMedia.h>
#include <GalleryModel.h>

#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxMediaViews/NxMediaItemPainter.h>
#include <NxVBLModel/INxBsThumbManager.h>
#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QImage>
#include <QPainter>
#include <QStyleOptionViewItem>

#include <functional>

/// An engine whose covers a test makes up.
struct CoverEngine final : INxMediaEngine
{
    using Covers = std::function<QImage(INxAbstractMedia *media, const QSize &devicePixels)>;

    struct Thumbs final : INxBsThumbManager
    {
        explicit Thumbs(CoverEngine *owner) : engine(owner) {}
        QImage thumbnail(INxAbstractMedia *media, const QSize &devicePixels) override
        {
            engine->asked.append(devicePixels);
            return engine->covers ? engine->covers(media, devicePixels) : QImage();
        }
        void cancelRequests() override {}

        CoverEngine *const engine; // Not owned.
    };

    INxBsThumbManager *createThumbManager() override { return new Thumbs(this); }

    Covers covers;
    QVector<QSize> asked;
};

/// Rows that are painted into pictures, as a view would have them painted.
class RowStand
{
public:
    RowStand() : painter(new NxMediaItemPainter)
    {
        font.setPixelSize(12);
        painter->setNameFont(font);
        painter->setListWidth(600);
        delegate.setItemPainter(painter);
    }
    ~RowStand() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }

    void show(INxAbstractMedia *media) { model.setMedia({media}); }
    [[nodiscard]] QModelIndex index() const { return model.index(0); }

    [[nodiscard]] QStyleOptionViewItem option(QStyle::State state = QStyle::State_Enabled) const
    {
        QStyleOptionViewItem wanted;
        wanted.rect = QRect({0, 0}, painter->size());
        wanted.state = state;
        wanted.font = font;
        wanted.direction = direction;
        return wanted;
    }
    /// The row on the panel's ground.
    [[nodiscard]] QImage painted(QStyle::State state = QStyle::State_Enabled,
                                 qreal ratio = 1.0) const
    {
        return paintedAs(option(state), ratio);
    }
    [[nodiscard]] QImage paintedAs(const QStyleOptionViewItem &wanted, qreal ratio = 1.0) const
    {
        QImage picture((QSizeF(wanted.rect.size()) * ratio).toSize().expandedTo({1, 1}),
                       QImage::Format_RGB32);
        picture.setDevicePixelRatio(ratio);
        picture.fill(colour(NxSkinColor::Background_Panel));
        QPainter canvas(&picture);
        canvas.translate(-wanted.rect.topLeft());
        delegate.paint(&canvas, wanted, index());
        return picture;
    }
    [[nodiscard]] NxMediaItemLayout layout(NXMEDIALIBRARY::NxMediaItemViewMode mode) const
    {
        constexpr int line = 20;
        return NxMediaItemLayout::of(mode, painter->size(), line, direction);
    }
    [[nodiscard]] static QColor colour(NxSkinColor key)
    {
        return NxSkinStyle::instance()->GetColor(key);
    }

    CoverEngine engine;
    const NxMediaEngineDoor door{&engine};
    GalleryModel model;
    NxMediaItemDelegate delegate;
    NxMediaItemPainter *const painter; // The delegate's.
    QFont font{QStringLiteral("DejaVu Sans")};
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

/// How many pixels of this colour a picture has inside a rectangle (in px; 1:1).
inline int pixelsOf(const QImage &picture, const QRect &rect, const QColor &colour)
{
    int count = 0;
    const QRect inside = rect & picture.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            count += picture.pixelColor(x, y) == colour ? 1 : 0;
    }
    return count;
}

/// The same for colours that are near: small glyphs and letters have few pixels of their own.
inline int pixelsNear(const QImage &picture, const QRect &rect, const QColor &colour)
{
    constexpr int near = 64; // In each channel.
    int count = 0;
    const QRect inside = rect & picture.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            count += qAbs(pixel.red() - colour.red()) < near
                             && qAbs(pixel.green() - colour.green()) < near
                             && qAbs(pixel.blue() - colour.blue()) < near
                         ? 1
                         : 0;
        }
    }
    return count;
}

/// The largest difference of two pixels in a channel; of pictures in different sizes, 255.
inline int differenceOf(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return 255;
    int difference = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            difference = qMax(difference,
                              qMax(qAbs(a.red() - b.red()),
                                   qMax(qAbs(a.green() - b.green()), qAbs(a.blue() - b.blue()))));
        }
    }
    return difference;
}

/// A cover whose every pixel differs from its neighbours.
inline QImage patterned(const QSize &size)
{
    QImage cover(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            cover.setPixel(x, y, qRgb((x * 37) % 256, (y * 53) % 256, ((x + y) * 11) % 256));
    }
    return cover;
}

inline QImage patternedCover(INxAbstractMedia *, const QSize &size)
{
    return patterned(size);
}

constexpr QStyle::State Hovered = QStyle::State_Enabled | QStyle::State_MouseOver;
constexpr QStyle::State Selected = QStyle::State_Enabled | QStyle::State_Selected;
