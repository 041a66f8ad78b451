// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaRowDrawing_p.h>

#include <NxCore/NxFile.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxMediaLibrary/delegate/INxItemMediaIconBasePainter.h>
#include <NxMediaViews/NxRowCanvas_p.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QPainter>

namespace {

constexpr qreal FaintOpacity = 0.35; // Of covers that cannot be used now.
constexpr qreal DisabledOpacity = 0.6; // Of marks.
constexpr int BadgeOpacity = 208; // Of 255.
constexpr int SmallestKindGlyph = 16; // px, in place of a cover.
constexpr int LargestKindGlyph = 40;

const INxAbstractMediaItem *itemOf(const INxAbstractMedia *media)
{
    return dynamic_cast<const INxAbstractMediaItem *>(media);
}

QRect centred(const QRect &around, int side)
{
    QRect square(0, 0, side, side);
    square.moveCenter(around.center());
    return square;
}

} // namespace

NxMediaRowDrawing::NxMediaRowDrawing(const NxRowCanvas &canvas, INxAbstractMedia *media,
                                     NxMediaItemState state)
    : m_canvas(canvas),
      m_media(media),
      m_item(itemOf(media)),
      m_state(state),
      m_isMissing(isMissing(m_item)),
      m_kind(nxMediaKind(*media))
{
}

bool NxMediaRowDrawing::isMissing(const INxAbstractMediaItem *item)
{
    if (!item)
        return false;
    return item->isUnavailable()
           || (!item->isResource() && !NxFile::knownToExist(item->filePath()).value_or(true));
}

bool NxMediaRowDrawing::hasAddButton(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = itemOf(media);
    return item && !isMissing(item);
}

void NxMediaRowDrawing::draw(NxMediaItemChildStatus addButton) const
{
    drawCover();
    QPainter *painter = m_canvas.painter();
    const qreal opacity = painter->opacity();
    if (m_state == misDisabled)
        painter->setOpacity(opacity * DisabledOpacity);
    drawMarks();
    drawDuration();
    painter->setOpacity(opacity);
    drawTexts();
    if (isButtonShown())
        drawAddButton(addButton);
}

void NxMediaRowDrawing::drawProgress(const INxItemMediaIconBasePainter &painter, qreal done) const
{
    const QRect back = m_layout.progress;
    if (back.isEmpty())
        return;
    QRect bar = back;
    bar.setWidth(qRound(back.width() * done));
    if (m_canvas.isRightToLeft())
        bar.moveRight(back.right());
    const QColor backColour = colour(NxSkinColor::Progress_Back);
    const QColor barColour = colour(NxSkinColor::Progress_Done);
    painter.drawProgress(m_canvas.painter(), bar.isEmpty() ? back : bar,
                         bar.isEmpty() ? backColour : barColour, back, backColour);
}

void NxMediaRowDrawing::drawImportTile() const
{
    const bool isHovered = m_state == misHovered || m_state == misSelectedHovered;
    const QColor ink = m_state == misDisabled ? colour(NxSkinColor::Text_Icon_Disabled)
                       : isHovered            ? colour(NxSkinColor::Accent)
                                              : colour(NxSkinColor::Text_Icon_Secondary);
    if (!m_layout.cover.isEmpty()) {
        constexpr qreal corner = 4.0;
        QPainter *painter = m_canvas.painter();
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(ink, 1, Qt::DashLine));
        painter->drawRoundedRect(QRectF(m_layout.cover).adjusted(0.5, 0.5, -0.5, -0.5), corner,
                                 corner);
        painter->restore();
        m_canvas.glyph(NxGlyph::Plus, m_layout.missingMark, ink);
    }
    m_canvas.name(m_media->name(), m_layout.name, textColour());
}

QColor NxMediaRowDrawing::colour(NxSkinColor key) const
{
    return NxSkinStyle::instance()->GetColor(key);
}

QColor NxMediaRowDrawing::textColour() const
{
    return colour(m_state == misDisabled ? NxSkinColor::Text_Icon_Disabled
                                         : NxSkinColor::Text_Icon_Primary);
}

/// Of what lies on a cover; in the list marks stand on the row itself.
QColor NxMediaRowDrawing::badgeGround() const
{
    if (m_isList)
        return {};
    QColor ground = colour(NxSkinColor::Badge_Background);
    ground.setAlpha(BadgeOpacity);
    return ground;
}

bool NxMediaRowDrawing::isButtonShown() const
{
    return (m_state == misHovered || m_state == misSelectedHovered) && m_item && !m_isMissing;
}

/// Not below the button.
QRect NxMediaRowDrawing::durationRoom() const
{
    QRect room = m_layout.duration;
    if (!isButtonShown() || !room.intersects(m_layout.addButton))
        return room;
    if (m_canvas.isRightToLeft())
        room.setLeft(m_layout.addButton.right() + 2);
    else
        room.setRight(m_layout.addButton.left() - 2);
    return room;
}

void NxMediaRowDrawing::drawCover() const
{
    const QRect place = m_layout.cover;
    if (place.isEmpty())
        return;
    if (m_cover.size() != m_canvas.devicePixels(place.size()) || m_isMissing
        || m_state == misDisabled || m_cover.hasAlphaChannel())
        m_canvas.painter()->fillRect(place, colour(NxSkinColor::Background_Cover));
    if (m_cover.isNull() && !m_isMissing) {
        const int side = qBound(SmallestKindGlyph, place.height() * 2 / 5, LargestKindGlyph);
        m_canvas.glyph(m_kind.glyph, centred(place, side),
                       colour(m_state == misDisabled ? NxSkinColor::Text_Icon_Disabled
                                                     : NxSkinColor::Text_Icon_Secondary));
    }
    QPainter *painter = m_canvas.painter();
    const qreal opacity = painter->opacity();
    if (m_isMissing || m_state == misDisabled)
        painter->setOpacity(opacity * FaintOpacity);
    m_canvas.picture(m_cover, place);
    painter->setOpacity(opacity);
    if (m_isMissing)
        m_canvas.glyph(NxGlyph::Missing, m_layout.missingMark, colour(NxSkinColor::Warning));
}

void NxMediaRowDrawing::drawMarks() const
{
    const QColor ground = badgeGround();
    const QColor kindColour =
        colour(m_isList ? NxSkinColor::Text_Icon_Secondary : NxSkinColor::Badge_Text);
    m_canvas.glyph(m_kind.glyph, m_layout.kindMark, kindColour, ground);
    if (!m_item)
        return;
    if (NxMediaLibraryUtils::isUsed(m_item))
        m_canvas.glyph(NxGlyph::Used, m_layout.usedMark, colour(NxSkinColor::Progress_Done),
                       ground);
    if (m_hasProxy)
        m_canvas.glyph(NxGlyph::Proxy, m_layout.proxyMark, colour(NxSkinColor::Accent), ground);
    drawLicence();
}

void NxMediaRowDrawing::drawLicence() const
{
    const int state = m_item->state();
    if (state == NXVBLMODEL::lsStandard)
        m_canvas.glyph(NxGlyph::Standard, m_layout.licenceMark,
                       colour(NxSkinColor::Licence_Standard), badgeGround());
    else if (state == NXVBLMODEL::lsPremium)
        m_canvas.glyph(NxGlyph::Premium, m_layout.licenceMark, colour(NxSkinColor::Licence_Premium),
                       badgeGround());
}

void NxMediaRowDrawing::drawTexts() const
{
    m_canvas.name(m_media->name(), m_layout.name, textColour());
    const QColor faint = colour(m_state == misDisabled ? NxSkinColor::Text_Icon_Disabled
                                                       : NxSkinColor::Text_Icon_Secondary);
    if (!m_layout.kindText.isNull())
        m_canvas.detail(m_kind.text(), m_layout.kindText, faint);
}

void NxMediaRowDrawing::drawDuration() const
{
    if (m_layout.duration.isEmpty())
        return;
    const QString duration = NxMediaLibraryUtils::getDuration(m_item);
    if (m_isList)
        m_canvas.detail(duration, m_layout.duration, colour(NxSkinColor::Text_Icon_Secondary),
                        Qt::AlignRight);
    else
        m_canvas.badge(duration, durationRoom(), colour(NxSkinColor::Badge_Text), badgeGround());
}

void NxMediaRowDrawing::drawAddButton(NxMediaItemChildStatus status) const
{
    const bool isTouched = status == mcsHovered || status == mcsPressed;
    m_canvas.glyph(NxGlyph::Plus, m_layout.addButton,
                   colour(isTouched ? NxSkinColor::Background_Panel : NxSkinColor::Badge_Text),
                   colour(isTouched ? NxSkinColor::Accent : NxSkinColor::Badge_Background));
}
