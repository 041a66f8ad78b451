// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>
#include <NxMediaLibrary/delegate/INxItemBasePainter.h>
#include <NxMediaLibrary/delegate/INxPreviewFrameHelper.h>
#include <NxMediaLibrary/delegate/NxMediaItemEventTypes.h>

#include <QPointer>
#include <QStyledItemDelegate>

class QMouseEvent;

/// A delegate that draws nothing itself: a painter does, and learns of every mouse event.
///
/// The view connects sigRepaint() to a repaint of that row, and sigRepaintAll() to a repaint of
/// what is in motion. Lives as long as its view. GUI thread only; nothing here touches a disk.
class NXMEDIALIBRARY_EXPORT NxCustomDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit NxCustomDelegate(QObject *parent = nullptr);
    ~NxCustomDelegate() override;

    /// For a host's own preparation; nothing here.
    virtual void init();
    /// The painter's size, for every row; as the style has it without a painter.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

    /// What plays under the pointer. Owned by the delegate.
    [[nodiscard]] INxPreviewFrameHelper *previewFrameHelper() { return &m_previewFrames; }

Q_SIGNALS:
    void sigRepaint(QModelIndex index);
    void sigRepaintAll();

protected:
    /// `position` from the row's top left corner, px.
    virtual void mouseEventHandle(const QMouseEvent *event, const QPoint &position,
                                  const QModelIndex &index);

    /// What a mouse event means while a modal mask is shown, or is not.
    [[nodiscard]] static NxMediaItemMouseEvent itemMouseEvent(const QMouseEvent *event);

    [[nodiscard]] INxItemBasePainter *itemPainter() const { return m_itemPainter; }
    /// Takes the painter over and deletes the one before; the same again changes nothing.
    void takeItemPainter(INxItemBasePainter *painter);
    /// Puts `painter` in a place of this delegate, which owns it from now on, and deletes the one
    /// that was there. False when it was there already.
    bool takePainter(QPointer<INxItemBasePainter> *place, INxItemBasePainter *painter);

private:
    INxPreviewFrameHelper m_previewFrames;
    QPointer<INxItemBasePainter> m_itemPainter; // A child of this.
};
