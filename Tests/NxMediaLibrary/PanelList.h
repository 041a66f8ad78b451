// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaViews/NxMediaItemView.h>

/// The view of media, which tells how often it painted and what was dragged out of it.
class PanelList : public NxMediaItemView
{
    Q_OBJECT
public:
    explicit PanelList(QWidget *parent);
    ~PanelList() override;

    /// How often anything was painted, and how often a row was asked to be drawn again.
    [[nodiscard]] int paints() const { return m_paints; }
    [[nodiscard]] int rowRepaints() const { return m_rowRepaints; }

Q_SIGNALS:
    /// A drag with these would have begun.
    void draggedOut(const QList<INxAbstractMedia *> &medias);

protected:
    void paintEvent(QPaintEvent *event) override;
    void dragOut(QDrag *drag) override;

private:
    int m_paints = 0;
    int m_rowRepaints = 0;
};
