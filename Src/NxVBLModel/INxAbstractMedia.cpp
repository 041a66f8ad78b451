// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxAbstractMedia.h>

#include <NxVBLModel/NxMediaGuard_p.h>

#include <QCoreApplication>
#include <QThread>

namespace {

[[maybe_unused]] bool isGuiThread()
{
    return !QCoreApplication::instance()
           || QThread::currentThread() == QCoreApplication::instance()->thread();
}

} // namespace

NxMediaGuard *NxMediaGuard::of(INxAbstractMedia *media)
{
    Q_ASSERT(isGuiThread());
    if (!media->m_guard)
        media->m_guard = new NxMediaGuard{media, 1};
    return media->m_guard;
}

void NxMediaGuard::drop(NxMediaGuard *guard)
{
    if (guard && --guard->references == 0)
        delete guard;
}

INxAbstractMedia::~INxAbstractMedia()
{
    if (!m_guard)
        return;
    Q_ASSERT(isGuiThread());
    m_guard->media = nullptr;
    NxMediaGuard::drop(m_guard);
}

int INxAbstractMedia::subKind() const
{
    return NXVBLMODEL::mskNone;
}

int INxAbstractMedia::state() const
{
    return NXVBLMODEL::lsFree;
}

int INxAbstractMedia::kindCode() const
{
    return NXVBLMODEL::mkcNone;
}

QString INxAbstractMedia::name() const
{
    return {};
}

QString INxAbstractMedia::mediaId() const
{
    return {};
}

qint64 INxAbstractMedia::resourceId() const
{
    return 0;
}

INxFolderMedia *INxAbstractMedia::parentFolder() const
{
    return nullptr;
}

QString INxAbstractMedia::sourcePath() const
{
    return {};
}

bool INxAbstractMedia::isResource() const
{
    return false;
}

bool INxAbstractMedia::isSourceMedia() const
{
    return false;
}
