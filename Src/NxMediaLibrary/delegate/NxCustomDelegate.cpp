// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/NxCustomDelegate.h>

#include <NxMediaLibrary/delegate/NxGifPreviewHelper.h>
#include <NxWidgets/NMaskManager.h>

#include <QMouseEvent>
#include <QPersistentModelIndex>

NxCustomDelegate::NxCustomDelegate(QObject *parent)
    : QStyledItemDelegate(parent),
      m_previewFrames(this)
{
    connect(&m_previewFrames, &INxPreviewFrameHelper::sigUpdate, this,
            &NxCustomDelegate::sigRepaint);
    connect(NxGifPreviewHelper::getInstance(), &NxGifPreviewHelper::sigUpdate, this,
            &NxCustomDelegate::sigRepaintAll);
}

NxCustomDelegate::~NxCustomDelegate()
{
    delete m_itemPainter; // Before the preview frames, which it draws.
}

void NxCustomDelegate::init() {}

QSize NxCustomDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return m_itemPainter ? m_itemPainter->size() : QStyledItemDelegate::sizeHint(option, index);
}

bool NxCustomDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                   const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const auto *mouse = dynamic_cast<const QMouseEvent *>(event);
    if (!index.isValid() || !mouse)
        return QStyledItemDelegate::editorEvent(event, model, option, index);

    // Whoever hears of the event may change the model, close the panel, or both.
    const int row = index.row();
    const int column = index.column();
    const bool isChild = index.parent().isValid();
    const QPersistentModelIndex parent(index.parent());
    const QPointer<QAbstractItemModel> shown(model);
    const QPointer<NxCustomDelegate> self(this);
    mouseEventHandle(mouse, mouse->pos() - option.rect.topLeft(), index);
    if (!self || !shown || (isChild && !parent.isValid()))
        return false;
    return QStyledItemDelegate::editorEvent(event, shown, option,
                                            shown->index(row, column, parent));
}

void NxCustomDelegate::mouseEventHandle(const QMouseEvent *event, const QPoint &position,
                                        const QModelIndex &index)
{
    if (!m_itemPainter)
        return;
    if (m_itemPainter->updateMouseEventInItem(position, itemMouseEvent(event), index))
        Q_EMIT sigRepaint(index);
}

NxMediaItemMouseEvent NxCustomDelegate::itemMouseEvent(const QMouseEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseMove)
        return mmeMove;
    if (type == QEvent::MouseButtonDblClick)
        return mmeDoubleClick;
    const bool isPress = type == QEvent::MouseButtonPress;
    if (!isPress && type != QEvent::MouseButtonRelease)
        return mmeNone;
    if (NMaskManager::GetInstance()->IsMaskVisible())
        return mmeNone;
    if (event->button() == Qt::LeftButton)
        return isPress ? mmeLeftPress : mmeLeftRelease;
    return isPress ? mmeOtherPress : mmeOtherRelease;
}

void NxCustomDelegate::takeItemPainter(INxItemBasePainter *painter)
{
    if (takePainter(&m_itemPainter, painter) && painter)
        painter->setPreviewFrameHelper(&m_previewFrames);
}

bool NxCustomDelegate::takePainter(QPointer<INxItemBasePainter> *place, INxItemBasePainter *painter)
{
    if (*place == painter)
        return false;
    delete *place;
    *place = painter;
    if (painter)
        painter->setParent(this);
    return true;
}
