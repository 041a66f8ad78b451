// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/CoverWait.h>

#include <Brevano/window/CoverView.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaViews/NxMediaItemLayout.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxBsThumbManager.h>
#include <NxVBLModel/INxFootageService.h>

#include <QTimer>

#include <algorithm>

namespace {

/// Until then all that was asked of the view is in it.
constexpr std::chrono::milliseconds FirstLook{20};

} // namespace

CoverWait::CoverWait(INxFootageService *service, NxMediaItemView *view, const CoverView *single)
    : m_service(service),
      m_view(view),
      m_single(single),
      m_pictures(createBsThumbManager())
{
    connect(m_service, &INxFootageService::itemRead, this, &CoverWait::check);
    connect(m_service, &INxFootageService::picturesMade, this, &CoverWait::check);
    connect(m_service, &INxFootageService::idle, this, &CoverWait::check);
    connect(m_view, &NxMediaItemView::sigVisibleRowsChanged, this, &CoverWait::check);
    if (m_pictures)
        m_pictures->setArrivalTeller([this](INxAbstractMedia *) { check(); });
}

CoverWait::~CoverWait()
{
    releaseThumbManager(m_pictures);
}

bool CoverWait::wait(std::chrono::milliseconds longest)
{
    QTimer::singleShot(longest, &m_loop, &QEventLoop::quit);
    QTimer::singleShot(FirstLook, this, &CoverWait::check);
    m_loop.exec();
    return m_isComplete;
}

void CoverWait::check()
{
    if (!m_loop.isRunning() || !isComplete())
        return;
    m_isComplete = true;
    m_loop.quit();
}

bool CoverWait::isComplete()
{
    const QList<INxAbstractMediaItem *> items = visibleItems();
    wantFresh(items);
    const QSize box = coverSize();
    // All are asked for, not only those before the first that is not there.
    const auto settled = std::count_if(items.begin(), items.end(), [&](INxAbstractMediaItem *item) {
        return isSettled(item, box);
    });
    return isSingleSettled() && settled == items.size();
}

void CoverWait::wantFresh(const QList<INxAbstractMediaItem *> &items)
{
    QList<INxAbstractMediaItem *> fresh;
    for (INxAbstractMediaItem *item : items) {
        if (!m_wanted.contains(item))
            fresh.append(item);
        m_wanted.insert(item);
    }
    if (!fresh.isEmpty())
        m_service->want(fresh, INxFootageService::wFacts | INxFootageService::wPictures);
}

bool CoverWait::isSingleSettled() const
{
    auto *item = dynamic_cast<INxAbstractMediaItem *>(m_single ? m_single->media() : nullptr);
    return !item || !m_single->isVisible()
           || isSettled(item, m_single->size() * m_single->devicePixelRatioF());
}

bool CoverWait::isSettled(INxAbstractMediaItem *item, const QSize &box) const
{
    switch (m_service->state(item).cover) {
    case NxFootageStatus::Waiting:
        return m_service->isIdle(); // Its file is not there, or its drive is silent.
    case NxFootageStatus::Done:
        return !m_pictures || !m_pictures->thumbnail(item, box).isNull();
    case NxFootageStatus::NoneThere:
    case NxFootageStatus::Failed:
        return true;
    }
    return true;
}

QList<INxAbstractMediaItem *> CoverWait::visibleItems() const
{
    QList<INxAbstractMediaItem *> items;
    const NxMediaItemModel *model = m_view->mediaModel();
    const auto [first, last] = m_view->visibleRows();
    for (int row = first; model && row >= 0 && row <= last; ++row) {
        if (auto *item = dynamic_cast<INxAbstractMediaItem *>(model->mediaItem(row)))
            items.append(item);
    }
    return items;
}

QSize CoverWait::coverSize() const
{
    const int row = m_view->visibleRows().second;
    if (row < 0)
        return {};
    const QSize size = m_view->visualRect(m_view->mediaModel()->index(row, 0)).size();
    const auto layout = NxMediaItemLayout::of(
        m_view->viewMode(), size, m_view->fontMetrics().height(), m_view->layoutDirection());
    return (QSizeF(layout.cover.size()) * m_view->devicePixelRatioF()).toSize();
}
