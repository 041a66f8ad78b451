// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "GalleryEngine.h"
#include "GalleryModel.h"
#include "GalleryStock.h"

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxMediaViews/NxMediaFolderTreeDelegate.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <QFont>
#include <QImage>
#include <QStyleOptionViewItem>
#include <QVector>

class NxMediaItemPainter;

/// One sheet with every kind of row in every state, in the skin that is worn.
class GallerySheet
{
public:
    GallerySheet();
    ~GallerySheet();

    /// px
    [[nodiscard]] QSize size() const;
    void draw(QPainter *painter);
    /// A part of the sheet under its name, without a title.
    struct Section
    {
        QString name;
        QRect place;
    };
    /// Those that were drawn last.
    [[nodiscard]] QVector<Section> sections() const { return m_sections; }

    /// The sheet as a picture.
    /// @param scale how many pixels stand for one px.
    [[nodiscard]] QImage image(int scale);

private:
    Q_DISABLE_COPY_MOVE(GallerySheet)
    void addMarks();
    void drawTitle(const QString &text, QPoint place);
    void drawMode(NXMEDIALIBRARY::NxMediaItemViewMode mode, int &y);
    void drawList(int &y);
    void drawHeaders(int &y);
    void drawFolders(int &y);
    void drawRow(const QAbstractItemDelegate &delegate, const QModelIndex &index,
                 const QRect &place, QStyle::State state);

    GalleryEngine m_engine;
    const NxMediaEngineDoor m_door{&m_engine};
    GalleryStock m_stock;
    GalleryModel m_model;
    GalleryModel m_folders;
    NxMediaItemDelegate m_delegate;
    NxMediaFolderTreeDelegate m_treeDelegate;
    NxMediaItemPainter *const m_painter; // The delegate's.
    QFont m_font;
    QVector<Section> m_sections;
    QPainter *m_canvas = nullptr; // Not owned; while something is drawn.
};
