// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Yard.h"

#include <Support/NxFootageGuard.h>

#include <memory>

/// A yard whose project holds five media that the keys of a listing tell apart, and a data folder
/// of its own, in which the user's settings are.
///
/// In their folder they stand as "c 10.mp4", "C 9.wav", "b.jpg", "a.gif", "d.srt"; they were made
/// and changed in the order "C 9.wav", "a.gif", "d.srt", "c 10.mp4", "b.jpg".
class ListYard : public Yard
{
public:
    ListYard();

    /// Runs `list` with more words, which "|" parts.
    [[nodiscard]] ProgramResult list(const QString &rest) const;
    /// The rows of `list --json`: "== Video (2)|[import]|a.gif". What went wrong comes in place
    /// of them.
    [[nodiscard]] QString rowsOf(const QString &rest) const;

    void writeSettings(const QByteArray &content) const;
    [[nodiscard]] QString settingsFile() const;
    /// Marks a media of the project as a favourite.
    void makeFavourite(const QString &name) const;

    /// Fails the test function when the footage is not as it was.
    void verifyFootage() const;
    /// The footage is watched from now on, as it is now.
    void watchFootage();

private:
    std::unique_ptr<NxFootageGuard> m_guard;
};
