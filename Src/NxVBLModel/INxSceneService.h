// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

#include <QList>

class INxAbstractMedia;

/// Finds the cuts of a video. Owned by the engine.
class NXVBLMODEL_EXPORT INxSceneService
{
public:
    virtual ~INxSceneService();

    /// Fills `points` with the first frames of scenes; false when they cannot be found.
    virtual bool scenceDetect(INxAbstractMedia *media, QList<qint64> &points) = 0;
};
