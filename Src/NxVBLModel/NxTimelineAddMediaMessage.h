// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxMessage.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <NxVBLModel/NxMediaTypes.h>

#include <QList>

class INxAbstractMedia;

/// Sent to the scene: put media on the timeline.
class NXVBLMODEL_EXPORT NxTimelineAddMediaMessage : public NxMessage
{
public:
    NxTimelineAddMediaMessage();
    ~NxTimelineAddMediaMessage() override;

    QList<INxAbstractMedia *> medias; ///< Not owned.
    int addMode = NXVBLMODEL::tamAppend; ///< NXVBLMODEL::NxTimelineAddMode.
};
