// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxTimeline.h>

#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

INxTimeline::~INxTimeline() = default;

INxTimeline *INxTimeline::createInstance(INxClip *clip)
{
    INxMediaEngine *engine = NxMediaEngineDoor::engine();
    return engine && clip ? engine->createTimeline(clip) : nullptr;
}

QString INxTimeline::name() const
{
    return {};
}

int INxTimeline::trackCount()
{
    return clips().isEmpty() ? 0 : 1;
}

void INxTimeline::setOutputSize(int, int) {}

qint64 INxTimeline::frameCount()
{
    return 0;
}

bool INxTimeline::renderFrame(qint64, int, int, uchar *)
{
    return false;
}
