// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Yard.h"

#include <QColor>
#include <QImage>

/// A yard whose project holds three pictures of one colour each, "a red.png", "b green.png" in the
/// folder "Day 1" and "c blue.png", and "d film.mp4" of numbered frames. Data, settings and cache
/// of the user are in the yard, too.
class ShotYard : public Yard
{
public:
    ShotYard();

    /// Runs `shot` with more words, which "|" parts; the picture goes to pictureFile().
    [[nodiscard]] ProgramResult shot(const QString &rest = {}) const;
    /// The picture that this run makes; the run must end with 0.
    [[nodiscard]] QImage picture(const QString &rest = {}) const;
    [[nodiscard]] QString pictureFile() const { return path(QStringLiteral("panel.png")); }
    void writeSettings(const QByteArray &content) const;

    static const QColor Red;
    static const QColor Green;
    static const QColor Blue;
    /// What encloses everything of that colour left of the information; null when there is none.
    [[nodiscard]] static QRect patch(const QImage &picture, const QColor &colour);
    /// How many pixels of a part have the colour.
    [[nodiscard]] static int pixels(const QImage &picture, const QRect &part, const QColor &colour);

private:
    void paint(const QString &name, const QColor &colour) const;
};
