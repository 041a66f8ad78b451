// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>

#include <NxCore/NxFile.h>
#include <NxMediaLibrary/delegate/INxGroupHeaderBasePainter.h>
#include <NxMediaLibrary/delegate/INxViewMoreSplitLinePainter.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxWidgets/NxLineEdit.h>

#include <QLineEdit>
#include <QMouseEvent>
#include <QPersistentModelIndex>

namespace {

bool hasType(const QModelIndex &index, NXVBLMODEL::NxMediaType type)
{
    const INxAbstractMedia *media = mediaAt(index);
    return media && media->mediaType() == type;
}

/// The events by which a click reaches the presenters: moves and the release of another button
/// never do.
bool isClick(NxMediaItemMouseEvent event)
{
    return event == mmeLeftPress || event == mmeOtherPress || event == mmeLeftRelease
           || event == mmeDoubleClick;
}

void registerEventTypes()
{
    qRegisterMetaType<NxMediaItemEventCondition>("NxMediaItemEventCondition");
    qRegisterMetaType<INxAbstractMedia *>("INxAbstractMedia*");
    qRegisterMetaType<QList<INxAbstractMedia *>>("QList<INxAbstractMedia*>");
}

} // namespace

NxMediaItemDelegate::NxMediaItemDelegate(QObject *parent)
    : NxCustomDelegate(parent),
      m_groupPainter(new INxGroupHeaderBasePainter(this)),
      m_viewMorePainter(new INxViewMoreSplitLinePainter(this))
{
    registerEventTypes();
}

NxMediaItemDelegate::~NxMediaItemDelegate() = default;

void NxMediaItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    if (!painter || !mediaAt(index))
        return;
    INxItemBasePainter *rowPainter = getItemPainter(index);
    if (!rowPainter)
        return;
    const NxMediaItemState state = mediaItemState(option);
    if (state == misHovered || state == misSelectedHovered)
        rowPainter->setHoverItem(index.row());
    else if (rowPainter->getHoverItem() == index.row())
        rowPainter->setHoverItem(-1);
    rowPainter->draw(painter, option, index, state);
}

QWidget *NxMediaItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                           const QModelIndex &) const
{
    QLineEdit *editor = NxLineEdit::creartNormalLineEdit(parent, NxLineEditSizeType::lestItem);
    editor->setObjectName(QStringLiteral("NxEditItem_LineEdit"));
    editor->setTextMargins(0, 0, 0, 0);
    return editor;
}

void NxMediaItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *line = qobject_cast<QLineEdit *>(editor);
    const INxAbstractMedia *media = mediaAt(index);
    if (line && media)
        line->setText(media->name());
}

void NxMediaItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *,
                                       const QModelIndex &index) const
{
    const auto *line = qobject_cast<QLineEdit *>(editor);
    const INxAbstractMedia *media = mediaAt(index);
    if (!line || !media)
        return;
    const QString name = line->text();
    if (!name.isEmpty() && name != media->name())
        Q_EMIT sigMediaItemRenameEvent(index, name);
}

void NxMediaItemDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                               const QModelIndex &index) const
{
    const INxItemBasePainter *rowPainter = getItemPainter(index);
    const QRect rect = rowPainter ? rowPainter->nameEditorRect(option, index) : QRect();
    if (editor && rect.isValid())
        editor->setGeometry(rect);
    else
        NxCustomDelegate::updateEditorGeometry(editor, option, index);
}

void NxMediaItemDelegate::itemEntered(const QModelIndex &index)
{
    Q_EMIT sigItemEnterEvent(index);
}

void NxMediaItemDelegate::itemLeave() {}

void NxMediaItemDelegate::viewportEntered()
{
    Q_EMIT sigViewportEnterEvent();
}

void NxMediaItemDelegate::setItemPainter(INxItemBasePainter *painter)
{
    takeItemPainter(painter);
}

INxItemBasePainter *NxMediaItemDelegate::getItemPainter(const QModelIndex &index) const
{
    if (isGroupItem(index))
        return m_groupPainter;
    return isViewMoreItem(index) ? m_viewMorePainter.data() : itemPainter();
}

void NxMediaItemDelegate::setGroupPainter(INxItemBasePainter *painter)
{
    takePainter(&m_groupPainter, painter);
}

void NxMediaItemDelegate::setGroupHeaderSize(QSize size)
{
    if (m_groupPainter)
        m_groupPainter->setSize(size);
}

void NxMediaItemDelegate::setViewMoreHeaderSize(QSize size)
{
    if (m_viewMorePainter)
        m_viewMorePainter->setSize(size);
}

void NxMediaItemDelegate::mouseEventHandle(const QMouseEvent *event, const QPoint &position,
                                           const QModelIndex &index)
{
    const QPointer<INxItemBasePainter> rowPainter(getItemPainter(index));
    if (!event || !rowPainter || !mediaAt(index))
        return;
    const NxMediaItemMouseEvent mouse = itemMouseEvent(event);
    const QPersistentModelIndex row(index);
    if (rowPainter->updateMouseEventInItem(position, mouse, index))
        Q_EMIT sigRepaint(index);
    if (!rowPainter || !row.isValid())
        return; // Whoever was told has taken the row, or the whole view, away.
    if (isExtraImportItem(row)) {
        if (event->type() == QEvent::MouseButtonRelease)
            Q_EMIT sigExtraImportEvent();
        return;
    }
    // A pointer that only moves asks nothing about files.
    if (!isClick(mouse) || isMissingItem(row))
        return;
    if (rowPainter->useEvent() == mueHoveredOnly && rowPainter->getHoverItem() != row.row())
        return;
    Q_EMIT sigMediaItemEvent(rowPainter->useEvent(), rowPainter->useEventCondition(), row);
}

bool NxMediaItemDelegate::isGroupItem(const QModelIndex &index) const
{
    return hasType(index, NXVBLMODEL::mtGroup);
}

bool NxMediaItemDelegate::isExtraImportItem(const QModelIndex &index) const
{
    return hasType(index, NXVBLMODEL::mtImportTile);
}

bool NxMediaItemDelegate::isViewMoreItem(const QModelIndex &index) const
{
    return hasType(index, NXVBLMODEL::mtViewMoreTile);
}

bool NxMediaItemDelegate::isVCGClassifyItem(const QModelIndex &index) const
{
    const INxAbstractMedia *media = mediaAt(index);
    return media && media->subKind() == NXVBLMODEL::mskStockClassification;
}

bool NxMediaItemDelegate::isMissingItem(const QModelIndex &index) const
{
    const auto *item = dynamic_cast<const INxAbstractMediaItem *>(mediaAt(index));
    return item && !item->isResource() && !NxFile::exists(item->filePath());
}
