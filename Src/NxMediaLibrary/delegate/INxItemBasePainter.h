// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>
#include <NxMediaLibrary/delegate/NxMediaItemEventTypes.h>

#include <QColor>
#include <QFont>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QSize>

class INxBsThumbManager;
class INxPreviewFrameHelper;
class QModelIndex;
class QPainter;
class QStyleOptionViewItem;

/// Draws the rows of a view and knows the areas inside a row that can be clicked.
///
/// One painter serves all rows of its view: its hit areas, "children" with ids from 0 upwards,
/// describe the row that the mouse was over last. Rectangles are in px, those of children from the
/// row's top left corner. The delegate that a painter is given to owns it. GUI thread only; no
/// function touches a disk, and none fails: unknown ids, states and null pointers are ignored.
class NXMEDIALIBRARY_EXPORT INxItemBasePainter : public QObject
{
    Q_OBJECT
public:
    explicit INxItemBasePainter(QObject *parent = nullptr);
    ~INxItemBasePainter() override;

    /// Lays the children out for the size of now. Called by setSize().
    virtual void changeItemChildrenRect() = 0;
    /// Lays them out for one row, where rows differ. Called before the mouse is looked up in it.
    virtual void changeItemChildrenRect(const QModelIndex &index);
    virtual void itemEntered(const QModelIndex &index);
    virtual void itemLeave();
    virtual void draw(QPainter *painter, const QStyleOptionViewItem &option,
                      const QModelIndex &index, NxMediaItemState state) const = 0;
    /// Plays what is hovered. Not owned; null takes it away.
    virtual void setPreviewFrameHelper(INxPreviewFrameHelper *helper);
    /// Fills the table of styles.
    virtual void initPaintStateInfo() = 0;
    /// Registers the children 0 to count - 1, untouched, enabled and without a rectangle, over
    /// what those ids had.
    virtual void initItemChildrenInfo(const int &count);
    /// Which of several enabled children under the mouse is meant; ids ascending. Of each two
    /// neighbours the first wins if it is smaller both ways; the last two decide.
    [[nodiscard]] virtual int mouseInChildCrossPositionJudgement(
        const QList<QPair<int, QRect>> &children, const QModelIndex &index) const;
    /// Turns a mouse event on a child (-1: on none) into the children's states and the usage event.
    virtual void mouseEventFilterInChild(const NxMediaItemMouseEvent &event, const int &child);
    /// Sets the usage event that the current mouse event completes on the child, if any.
    virtual void usageEventFromFromChild(const int &child) = 0;
    /// Where a row's name is edited, in view coordinates; a null rectangle: where the style says.
    [[nodiscard]] virtual QRect nameEditorRect(const QStyleOptionViewItem &option,
                                               const QModelIndex &index) const;

    /// Of a row; what the view takes for every row. Null at first.
    [[nodiscard]] QSize size() const { return m_size; }
    void setSize(const QSize &size);
    /// The row that was drawn hovered last; -1: none.
    [[nodiscard]] int getHoverItem() const { return m_hoverItem; }
    void setHoverItem(int row) { m_hoverItem = row; }

    /// NxMediaItemUsageEvents, or a host's own: what the last mouse event completed.
    [[nodiscard]] int useEvent() const { return m_useEvent; }
    [[nodiscard]] NxMediaItemEventCondition useEventCondition() const;
    /// The enabled child at a place of the row; -1: none.
    [[nodiscard]] int mouseInChild(const QPoint &position, const QModelIndex &index) const;
    /// The child that the mouse was on last; -1: none.
    [[nodiscard]] int mouseInChild() const { return m_mouseInChild; }
    /// The child that was pressed last, whether or not it is still held; -1: none. Both the same.
    [[nodiscard]] int mouseClickedChild() const { return m_pressedChild; }
    [[nodiscard]] int mousePressedChild() const { return m_pressedChild; }
    /// Takes a mouse event of a row. True when the row looks different now: another child is under
    /// the mouse, or every move is to be drawn.
    bool updateMouseEventInItem(const QPoint &position, NxMediaItemMouseEvent event,
                                const QModelIndex &index);
    /// From now on every mouse event asks for a repaint.
    void needRepaintOnMouseMove() { m_repaintsOnMouseMove = true; }

    /// Initial for an unknown child.
    [[nodiscard]] NxMediaItemChildStatus childStatus(int child) const;
    void setChildStatus(int child, NxMediaItemChildStatus status);
    /// Null for an unknown child.
    [[nodiscard]] QRect childRect(int child) const;
    [[nodiscard]] QList<int> childIds() const { return m_children.keys(); }
    [[nodiscard]] bool isChildEnabled(int child) const;
    /// One that is not enabled is not found under the mouse.
    void setChildEnabled(int child, bool enabled);
    /// A child's rectangle in view coordinates, for a row whose top left corner is there.
    [[nodiscard]] QRect itemConvertViewChildRect(const int &childId,
                                                 const QPoint &itemTopLeft) const;

    /// How rows of a state are drawn: inserted, or replaced.
    void setPaintColor(const int &penWidth, const QColor &penColor, const QColor &brushColor,
                       const QFont &font, NxMediaItemState state);

protected:
    /// Pen, brush and font of a state, or of the normal one where the state has none. The pen's
    /// and the brush's style stay.
    void adjustDrawingStyle(QPainter *painter, NxMediaItemState state) const;
    /// The picture for a child's status: untouched and unknown ones are normal and disabled.
    [[nodiscard]] QPixmap getPicture(NxMediaItemChildStatus status, const QPixmap &disabled,
                                     const QPixmap &hover, const QPixmap &normal,
                                     const QPixmap &pressed) const;
    /// Draws nothing outside the rounded rectangle from now on, whatever was clipped before.
    void roundedRectClip(QPainter *painter, QRect &rect, double xRadius, double yRadius) const;

    void setChildRect(int child, const QRect &rect);
    [[nodiscard]] NxMediaItemMouseEvent currentMouseEvent() const { return m_mouseEvent; }
    /// From the row's top left corner.
    [[nodiscard]] QPoint mousePosition() const { return m_mousePosition; }
    void setUseEvent(int event) { m_useEvent = event; }
    /// The pictures of media; null without an engine that has some.
    [[nodiscard]] INxBsThumbManager *thumbManager() const { return m_thumbManager; }
    [[nodiscard]] INxPreviewFrameHelper *previewFrameHelper() const { return m_previewFrames; }

private:
    struct Child
    {
        QRect rect;
        NxMediaItemChildStatus status = mcsInitial;
        bool isEnabled = true;
    };
    struct Style
    {
        int penWidth = 0;
        QColor penColor;
        QColor brushColor;
        QFont font;
    };

    void changeStatus(int child, NxMediaItemChildStatus status);
    void leaveHoveredChildren();
    void settleOtherChildren(int child);

    QSize m_size;
    int m_useEvent = mueNone;
    int m_mouseInChild = -1;
    int m_pressedChild = -1;
    bool m_isPressed = false;
    bool m_repaintsOnMouseMove = false;
    NxMediaItemMouseEvent m_mouseEvent = mmeNone;
    QPoint m_mousePosition;
    INxBsThumbManager *const m_thumbManager; // Given back at the end.
    QMap<int, Child> m_children;
    QMap<NxMediaItemState, Style> m_styles;
    int m_hoverItem = -1;
    INxPreviewFrameHelper *m_previewFrames = nullptr; // Not owned.
};
