// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// How a user met a project template: the first starts a clock, the other two read it.
enum EPrjTemplateInteractionType : int {
    eptNone = 0,
    eptShown = 1,
    eptPreviewed = 2,
    eptUsed = 3,
};

/// How a user met any other resource.
enum EInteractionType : int {
    eitNone = 0,
    eitPreview = 1,
    eitDownload = 2,
    eitAdd = 3,
};
