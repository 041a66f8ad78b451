// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <brevano-worker/pictures/AvHandles.h>

#include <QImage>

class FilmReader;
class KeyPictures;

/// Makes the cover of moving pictures.
class CoverMaker
{
public:
    /// Neither is owned.
    CoverMaker(FilmReader *film, KeyPictures *keys);

    /// The key frame at or before the moment; where that one is damaged, and for moment 0, the
    /// first picture that can be decoded. The error is a sentence for the user.
    [[nodiscard]] NxResult<QImage> make(qint64 momentUs);
    /// Of the decoded picture.
    [[nodiscard]] AVPixelFormat format() const { return m_format; }

private:
    FilmReader *const m_film;
    KeyPictures *const m_keys;
    AVPixelFormat m_format = AV_PIX_FMT_NONE;
};
