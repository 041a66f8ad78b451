// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/CoverView.h>

#include <NxVBLModel/INxAbstractMedia.h>
#include <NxVBLModel/INxBsThumbManager.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <QPainter>

namespace {

constexpr QSize UsualSize(240, 135); // px

} // namespace

void CoverView::Release::operator()(INxBsThumbManager *handle) const
{
    releaseThumbManager(handle);
}

CoverView::CoverView(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

CoverView::~CoverView() = default;

void CoverView::setMedia(INxAbstractMedia *media)
{
    if (m_pictures && media != m_media.get())
        m_pictures->cancelRequests();
    m_media = media;
    setAccessibleName(media ? tr("Picture of %1").arg(media->name()) : QString());
    update();
}

QSize CoverView::sizeHint() const
{
    return UsualSize;
}

void CoverView::paintEvent(QPaintEvent *)
{
    INxAbstractMedia *media = m_media.get();
    INxBsThumbManager *handle = media ? pictures() : nullptr;
    if (!handle)
        return;
    QImage picture = handle->thumbnail(media, size() * devicePixelRatioF());
    if (picture.isNull())
        return;
    picture.setDevicePixelRatio(devicePixelRatioF());
    QRectF place(QPointF(), QSizeF(picture.size()) / devicePixelRatioF());
    place.moveCenter(QRectF(rect()).center());
    QPainter(this).drawImage(place.topLeft(), picture);
}

INxBsThumbManager *CoverView::pictures()
{
    INxMediaEngine *engine = NxMediaEngineDoor::engine();
    if (m_pictures && engine == m_engine)
        return m_pictures.get();
    m_engine = engine;
    m_pictures.reset(createBsThumbManager());
    if (m_pictures) {
        m_pictures->setArrivalTeller([this](const INxAbstractMedia *media) {
            if (media == m_media.get())
                update();
        });
    }
    return m_pictures.get();
}
