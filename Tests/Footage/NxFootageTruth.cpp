// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFootageTruth.h"

namespace {

constexpr qint64 second = 1000000; // us

} // namespace

qint64 NxFootageTruth::frameTimeUs(int frame) const
{
    if (!variableRate)
        return frame * second * rate.den / rate.num;
    // Until slowFrom a frame stands for one step, then for two; the last one for one again.
    const qint64 steps = slowFrom + 2 * (frames - slowFrom) - 1;
    const qint64 step = frame <= slowFrom ? frame : slowFrom + 2 * (frame - slowFrom);
    return step * durationUs / steps;
}

int NxFootageTruth::numberAt(qint64 us) const
{
    int frame = 0;
    while (frame + 1 < frames && frameTimeUs(frame + 1) <= us)
        ++frame;
    return firstNumber + frame;
}

int NxFootageTruth::keyNumberAt(qint64 us) const
{
    const int number = numberAt(us);
    return number - number % qMax(1, keyFrameDistance);
}
