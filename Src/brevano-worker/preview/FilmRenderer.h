// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>

#include <QByteArray>
#include <QSize>

#include <memory>

class FootageFile;

namespace Mlt {
class Producer;
class Profile;
} // namespace Mlt

/// Renders the frames of one film, 25 a second whatever its own rate is. Frame after frame is
/// quick; a jump costs a search for the key frame before it. Needs RenderModules.
class FilmRenderer
{
    Q_DISABLE_COPY_MOVE(FilmRenderer)
public:
    /// `output` (px) is the shape of the pictures; a film of another shape lies between black
    /// bars. No other file and no address is ever opened, whatever is in the file. The error is a
    /// sentence without the path.
    [[nodiscard]] static NxResult<std::unique_ptr<FilmRenderer>> open(const QByteArray &path,
                                                                      QSize output);
    ~FilmRenderer();

    /// At least 1.
    [[nodiscard]] qint64 frames() const { return m_frames; }
    /// Fills `rgb32` (0xffRRGGBB, rows without gaps); the frame must be one of frames().
    [[nodiscard]] NxResult<void> render(qint64 frame, QSize size, uchar *rgb32);

private:
    FilmRenderer(std::unique_ptr<FootageFile> file, QSize output);
    [[nodiscard]] NxResult<void> openFilm();

    const std::unique_ptr<FootageFile> m_file; // Open as long as the film plays.
    const std::unique_ptr<Mlt::Profile> m_profile;
    std::unique_ptr<Mlt::Producer> m_film;
    qint64 m_frames = 0;
};
