// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NxFootageRecipe.h"

/// Writes the recipe of a numbered film, one property after the other. Arguments are those of the
/// ffmpeg program, parted by spaces.
class NxFilmRecipe
{
public:
    /// How the pictures are compressed.
    struct Codec
    {
        const char *name;
        const char *pixelFormat;
        int bitDepth;
        int keyFrameDistance;
        const char *arguments;
    };
    struct Sound
    {
        const char *codec;
        int sampleRate; ///< Hz
        int channels;
        const char *arguments;
        qint64 slackUs; ///< By how much the last packet may reach over the end.
    };

    NxFilmRecipe(const char *name, int frames, NxRational rate, const Codec &codec,
                 QSize size = {320, 180});

    NxFilmRecipe &sound(const Sound &sound);
    /// More inputs, after the pictures and the sound.
    NxFilmRecipe &input(const char *arguments);
    /// More for the container.
    NxFilmRecipe &options(const char *arguments);
    NxFilmRecipe &tag(const char *key, const char *value);
    /// Another step of ffmpeg that copies what there is, from the file of the step before.
    NxFilmRecipe &copied(const char *inputArguments, const char *outputArguments);

    NxFilmRecipe &rotated(int degrees);
    NxFilmRecipe &shot(const char *utc);
    NxFilmRecipe &camera(const char *maker, const char *model);
    NxFilmRecipe &timecode(const char *text, const char *reel);
    NxFootageTruth &truth() { return m_recipe.truth; }

    [[nodiscard]] NxFootageRecipe made() const;

private:
    struct Copy
    {
        QStringList input;
        QStringList output;
    };

    [[nodiscard]] NxFootageStep encoding(const QString &target) const;

    NxFootageRecipe m_recipe;
    QStringList m_inputs;
    QStringList m_codec;
    QStringList m_options;
    QVector<Copy> m_copies;
};
