// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxClip.h>

#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

INxClip::~INxClip() = default;

INxClip *INxClip::createVideoClip(const QString &path)
{
    INxMediaEngine *engine = NxMediaEngineDoor::engine();
    return engine ? engine->createVideoClip(path) : nullptr;
}

QString INxClip::mediaId() const
{
    return {};
}

INxTimeline *INxClip::timeline() const
{
    return nullptr;
}

NxClipPlace INxClip::place() const
{
    return {};
}
