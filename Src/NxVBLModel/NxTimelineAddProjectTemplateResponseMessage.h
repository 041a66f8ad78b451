// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxMessage.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QList>

class INxAbstractMedia;

/// Tells that the media of a project template were put on the timeline.
class NXVBLMODEL_EXPORT NxTimelineAddProjectTemplateResponseMessage : public NxMessage
{
public:
    NxTimelineAddProjectTemplateResponseMessage();
    ~NxTimelineAddProjectTemplateResponseMessage() override;

    QList<INxAbstractMedia *> medias; ///< Not owned.
};
