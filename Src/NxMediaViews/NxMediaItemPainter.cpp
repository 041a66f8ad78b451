// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaItemPainter.h>

#include <NxMediaViews/NxMediaItemPainter_p.h>
#include <NxMediaViews/NxMediaRowDrawing_p.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxBsThumbManager.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QFontMetrics>
#include <QPainter>
#include <QStyleOptionViewItem>

namespace {

using namespace NXMEDIALIBRARY;

constexpr NxMediaItemViewMode Modes[] = {vmList, vmSmallThumbnail, vmMiddleThumbnail,
                                         vmLargeThumbnail};
constexpr int ChildCount = NxMediaItemPainter::ccAddButton + 1;
constexpr int LowestLine = 20; // px, the height of the line edit that renames.
constexpr int LineAir = 4;
constexpr int SmallestFramed = 8; // px; the frame of anything smaller would lie outside.

int lineHeightOf(const QFont &font)
{
    return qMax(LowestLine, QFontMetrics(font).height() + LineAir);
}

bool isImportTile(const INxAbstractMedia *media)
{
    return media && media->mediaType() == NXVBLMODEL::mtImportTile;
}

} // namespace

NxMediaItemLayout NxMediaItemPainter::Private::layoutOf(const QSize &row,
                                                        Qt::LayoutDirection rowDirection) const
{
    return NxMediaItemLayout::of(mode, row, lineHeight, rowDirection, listNameWidth);
}

std::optional<qreal> NxMediaItemPainter::Private::progressOf(INxAbstractMedia *media) const
{
    const auto found = progress.constFind(media);
    if (found == progress.constEnd() || found->media.get() != media)
        return std::nullopt;
    return qBound(0.0, qreal(found->done) / qreal(found->total), 1.0);
}

void NxMediaItemPainter::Private::forgetDeadProgress()
{
    for (auto entry = progress.begin(); entry != progress.end();)
        entry = entry->media.isNull() ? progress.erase(entry) : std::next(entry);
}

NxMediaItemPainter::NxMediaItemPainter(QObject *parent)
    : INxItemMediaIconBasePainter(parent),
      d(std::make_unique<Private>())
{
    d->lineHeight = lineHeightOf(QFont());
    initItemChildrenInfo(ChildCount);
    fillSizes();
    setViewMode(viewMode());
}

NxMediaItemPainter::~NxMediaItemPainter() = default;

void NxMediaItemPainter::setListWidth(int width)
{
    d->listWidth = qMax(0, width);
    fillSizes();
}

void NxMediaItemPainter::setListNameWidth(int width)
{
    d->listNameWidth = qMax(0, width);
    changeItemChildrenRect();
}

void NxMediaItemPainter::setNameFont(const QFont &font)
{
    d->lineHeight = lineHeightOf(font);
    fillSizes();
}

void NxMediaItemPainter::setLayoutDirection(Qt::LayoutDirection direction)
{
    d->direction = direction;
    changeItemChildrenRect();
}

void NxMediaItemPainter::setProgress(INxAbstractMedia *media, qint64 done, qint64 total)
{
    d->forgetDeadProgress();
    if (media && total > 0)
        d->progress.insert(media, {NxMediaRef(media), done, total});
    else
        d->progress.remove(media);
}

void NxMediaItemPainter::setProxyTest(ProxyTest test)
{
    d->hasProxy = std::move(test);
}

QVector<QPersistentModelIndex> NxMediaItemPainter::takeGifRows()
{
    return d->covers.takeGifRows();
}

void NxMediaItemPainter::cancelCoverRequests()
{
    if (INxBsThumbManager *covers = thumbManager())
        covers->cancelRequests();
}

void NxMediaItemPainter::changeItemChildrenRect()
{
    // Called by setViewMode(), when the common mode is this painter's.
    if (size() == NxMediaItemLayout::rowSize(viewMode(), d->lineHeight, d->listWidth))
        d->mode = viewMode();
    const NxMediaItemLayout layout = d->layoutOf(size(), d->direction);
    setChildRect(ccCover, layout.cover);
    setChildRect(ccName, layout.name);
    setChildRect(ccAddButton, layout.addButton);
}

void NxMediaItemPainter::changeItemChildrenRect(const QModelIndex &index)
{
    changeItemChildrenRect();
    const INxAbstractMedia *media = mediaAt(index);
    if (!NxMediaRowDrawing::hasAddButton(media))
        setChildRect(ccAddButton, {});
    if (!media || isImportTile(media)) {
        setChildRect(ccCover, {});
        setChildRect(ccName, {});
    }
}

void NxMediaItemPainter::draw(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index, NxMediaItemState state) const
{
    if (!painter || !painter->isActive() || !mediaAt(index) || option.rect.isEmpty())
        return;
    const NxSkinStyle *skin = NxSkinStyle::instance();
    if (state == misHovered) {
        NxRowCanvas(painter, option, &d->caches)
            .ground(option.rect, skin->GetColor(NxSkinColor::State_Hover));
    } else if ((state == misSelected || state == misSelectedHovered)
               && qMin(option.rect.width(), option.rect.height()) >= SmallestFramed) {
        painter->save();
        painter->setBrush(skin->GetColor(NxSkinColor::State_Selected));
        // Its lower edge lies a pixel below what it is given.
        drawSelectEffect(painter, option.rect.adjusted(0, 0, 0, -1),
                         skin->GetColor(NxSkinColor::Accent));
        painter->restore();
    }
    drawItemContent(painter, option, index, state);
}

void NxMediaItemPainter::drawItemContent(QPainter *painter, const QStyleOptionViewItem &option,
                                         const QModelIndex &index, NxMediaItemState state) const
{
    INxAbstractMedia *media = mediaAt(index);
    if (!painter || !painter->isActive() || !media)
        return;
    const NxRowCanvas canvas(painter, option, &d->caches);
    NxMediaRowDrawing row(canvas, media, state);
    row.setList(d->mode == vmList);
    row.setLayout(
        d->layoutOf(option.rect.size(), option.direction).translated(option.rect.topLeft()));
    if (isImportTile(media)) {
        row.drawImportTile();
        return;
    }
    const QSize box = canvas.devicePixels(row.layout().cover.size());
    if (!box.isEmpty() && media->mediaType() != NXVBLMODEL::mtFolder)
        row.setCover(d->covers.cover(index, media, box, {thumbManager(), previewFrameHelper()}));
    if (d->hasProxy && row.item())
        row.setHasProxy(d->hasProxy(row.item()));
    row.draw(childStatus(ccAddButton));
    if (const std::optional<qreal> progress = d->progressOf(media))
        row.drawProgress(*this, *progress);
}

void NxMediaItemPainter::usageEventFromFromChild(const int &child)
{
    if (child == ccAddButton && currentMouseEvent() == mmeLeftRelease)
        setUseEvent(mueHoveredOnly);
}

QRect NxMediaItemPainter::nameEditorRect(const QStyleOptionViewItem &option,
                                         const QModelIndex &index) const
{
    const INxAbstractMedia *media = mediaAt(index);
    if (!media || isImportTile(media))
        return {};
    const QRect name = d->layoutOf(option.rect.size(), option.direction).name;
    return name.isNull() ? name : name.translated(option.rect.topLeft());
}

void NxMediaItemPainter::fillSizes()
{
    for (const NxMediaItemViewMode mode : Modes)
        setViewModeSize(mode, NxMediaItemLayout::rowSize(mode, d->lineHeight, d->listWidth));
    const QSize own = NxMediaItemLayout::rowSize(d->mode, d->lineHeight, d->listWidth);
    setSize(own);
}
