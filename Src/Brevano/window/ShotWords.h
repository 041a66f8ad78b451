// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/ViewChoice.h>
#include <NxCore/NxResult.h>
#include <NxWidgets/NxSkin.h>

#include <QSize>
#include <QString>

class CommandLine;

/// What a picture of the window shows, and where it goes.
struct ShotWords
{
    ViewChoice view;
    QString out; ///< The path of a PNG file.
    QSize size{1280, 800}; ///< Of the window, px of a plain screen.
    NxSkin skin = NxSkin::Dark;
    QString language = QStringLiteral("en");
    QString selected; ///< The name of a media; empty: none.

    /// Reads the user's view settings, never writes them. A word that is not known is an error
    /// that says so.
    [[nodiscard]] static NxResult<ShotWords> of(const CommandLine &line);
    /// Pixels of the picture for each one of a plain screen: 1 without the option.
    [[nodiscard]] static NxResult<int> scaleOf(const CommandLine &line);
};
