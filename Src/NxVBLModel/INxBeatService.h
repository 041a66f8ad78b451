// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

#include <QList>

class INxAbstractMedia;

/// Finds the beats of music. Owned by the engine.
class NXVBLMODEL_EXPORT INxBeatService
{
public:
    virtual ~INxBeatService();

    /// Starts finding beats; false when nothing was started.
    virtual bool beatDetection(const QList<INxAbstractMedia *> &medias) = 0;
    /// Beats of the first media, ms from its start; empty when not known.
    [[nodiscard]] virtual QList<qint64> getOneBeatInfo(const QList<INxAbstractMedia *> &medias) = 0;
};
