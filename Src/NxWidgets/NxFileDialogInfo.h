// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// What an NxFileDialog asks for.
struct NxFileDialogInfo
{
    QString title; ///< The product's name when empty.
    QString directory; ///< Where it begins; empty or not there: where the last one ended.
    /// "Video (*.MP4;*.MOV);;Sound (*.MP3)": a name and its patterns, which ";" parts, for each
    /// choice. Names of any case fit a pattern. Empty: every file.
    QString filter;
    QString fileName; ///< What is proposed, or looked for; may be empty.
};
