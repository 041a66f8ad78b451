// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// What an NxMessage is about. The numbers are the editor's own and never change.
enum NxMessageType : int {
    // Sent to the panel.
    nmtImportMedia = 514,
    nmtRemoveMedia = 515,
    nmtGetImportFiles = 516,
    nmtTimelineAddMediaResponse = 3009,
    nmtTimelineAddProjectTemplateResponse = 3010,
    nmtAddRandomClips = 3011, ///< Put random transitions on the timeline. Carries no data.
    nmtAddCustomMediaItem = 3012,
    nmtFindSimilar = 3013,
    nmtStartAudioSync = 3018, ///< Align the sound of what is selected. Carries no data.
    nmtClipExportImportMedia = 3035,
    nmtData = 10009, ///< The proxy settings changed; see NxDataMessage.

    // Sent by the panel to the scene.
    nmtTimelineAddMedia = 3008,
    nmtTimelineAudioSync = 3017,
    nmtQuery = 5000, ///< See NxQueryMessage.
};

/// What an NxQueryMessage asks.
enum NxQueryCode : int {
    nqcSelectedCutPoints = 5003, ///< How many cut points are selected on the timeline.
};
