// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxMessage.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <NxVBLModel/NxMediaTypes.h>

class INxAbstractMediaItem;

/// Sent to the scene: align two clips by their sound.
class NXVBLMODEL_EXPORT NxTimelineAudioSynMessage : public NxMessage
{
public:
    NxTimelineAudioSynMessage();
    ~NxTimelineAudioSynMessage() override;

    INxAbstractMediaItem *first = nullptr; ///< Not owned.
    INxAbstractMediaItem *second = nullptr; ///< Not owned.
    int mode = NXVBLMODEL::asmBySound; ///< NXVBLMODEL::NxAudioSyncMode.
    int muteChoice = NXVBLMODEL::mcNotAsked; ///< NXVBLMODEL::NxMuteChoice.
};
