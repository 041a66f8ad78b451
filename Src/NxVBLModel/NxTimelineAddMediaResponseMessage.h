// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxMessage.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <NxVBLModel/NxMediaTypes.h>

#include <QList>

class INxAbstractMedia;

/// Tells that media were sent to the timeline.
class NXVBLMODEL_EXPORT NxTimelineAddMediaResponseMessage : public NxMessage
{
public:
    NxTimelineAddMediaResponseMessage();
    ~NxTimelineAddMediaResponseMessage() override;

    int status = NXVBLMODEL::tasAdded; ///< NXVBLMODEL::NxTimelineAddStatus.
    QList<INxAbstractMedia *> medias; ///< Not owned.
};
