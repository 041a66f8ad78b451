// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <ScriptedFootage.h>

#include <NxVBLEngine/preview/NxPreviewSettings.h>

#include <QSize>
#include <QStringList>

/// Films by whose names scriptedPlayer knows what to do with them, and the player's settings.
class ScriptedFilms
{
public:
    static constexpr qint64 Frames = 100; ///< Of a film that is not "short".
    static constexpr qint64 ShortFrames = 3;
    static constexpr QSize Size{144, 81}; ///< px

    /// The manner is the name of the player's cache folder; see scriptedPlayer.cpp.
    explicit ScriptedFilms(const QString &manner = QStringLiteral("plain"));

    /// Limits that no test reaches by accident.
    [[nodiscard]] NxPreviewSettings settings() const;
    /// The same, but whatever hangs is given up after a moment.
    [[nodiscard]] NxPreviewSettings impatient() const;

    /// The path of a film; there need be no file.
    [[nodiscard]] QString film(const QString &name) const;
    /// What the players were told, in order: "open NAME WxH" and "show FRAME W".
    [[nodiscard]] QStringList orders() const { return m_footage.requests(); }
    /// Names of the films that were opened, in order.
    [[nodiscard]] QStringList opened() const;
    /// Process ids of all players that were ever started.
    [[nodiscard]] QStringList starts() const { return m_footage.starts(); }

private:
    const ScriptedFootage m_footage;
};
