// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/VisibleFirst.h>

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/INxProject.h>

namespace {

constexpr int QuietMsec = 120;

} // namespace

VisibleFirst::VisibleFirst(NxMediaItemView *view, QObject *parent) : QObject(parent), m_view(view)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(QuietMsec);
    connect(&m_soon, &QTimer::timeout, this, &VisibleFirst::want);
    connect(view, &NxMediaItemView::sigVisibleRowsChanged, &m_soon,
            QOverload<>::of(&QTimer::start));
}

VisibleFirst::~VisibleFirst() = default;

void VisibleFirst::setProject(INxProject *project)
{
    m_service = project ? project->footageService() : nullptr;
}

void VisibleFirst::want()
{
    if (!m_view || !m_service || !m_view->mediaModel())
        return;
    QList<INxAbstractMediaItem *> items;
    const QPair<int, int> rows = m_view->visibleRows();
    for (int row = qMax(0, rows.first); row <= rows.second; ++row) {
        auto *item = dynamic_cast<INxAbstractMediaItem *>(m_view->mediaModel()->mediaItem(row));
        if (item && !item->isResource())
            items.append(item);
    }
    if (!items.isEmpty())
        m_service->want(items, INxFootageService::wFacts | INxFootageService::wPictures);
}
