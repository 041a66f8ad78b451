// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>

#include <QList>
#include <QListView>
#include <QPersistentModelIndex>

class INxAbstractMedia;
class NxMediaItemDelegate;
class NxMediaItemPainter;

/// A view of media as an editor makes it: rows are drawn by the library's delegate, what the
/// pointer rests on plays, what is dragged leaves as media.
class PanelList : public QListView
{
    Q_OBJECT
public:
    explicit PanelList(QWidget *parent);
    ~PanelList() override;

    [[nodiscard]] NxMediaItemDelegate *delegate() const { return m_delegate; }
    /// How media look; without this, one below the other.
    void setMediaViewMode(NXMEDIALIBRARY::NxMediaItemViewMode mode);
    /// How often a row was asked to be drawn again, because it shows a GIF or for another reason.
    [[nodiscard]] int gifRepaints() const { return m_gifRepaints; }
    [[nodiscard]] int rowRepaints() const { return m_rowRepaints; }

Q_SIGNALS:
    /// A drag began with these; nothing is dragged when there are none.
    void draggedOut(const QList<INxAbstractMedia *> &medias);

protected:
    void startDrag(Qt::DropActions actions) override;
    void hideEvent(QHideEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void play(const QModelIndex &index);
    void stop();
    void fitRows();

    NxMediaItemDelegate *const m_delegate;
    NxMediaItemPainter *const m_painter; // The delegate's.
    int m_gifRepaints = 0;
    int m_rowRepaints = 0;
};
