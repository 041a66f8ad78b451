// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/preview/FilmRenderer.h>

#include <brevano-worker/input/Container.h>
#include <brevano-worker/input/FootageFile.h>

#include <QCoreApplication>
#include <QRgb>
#include <QtEndian>

#include <mlt++/Mlt.h>

#include <utility>

namespace {

constexpr int FramesPerSecond = 25;
constexpr int ColorsOfHd = 709;
constexpr int BytesPerPixel = 4;

QString translated(const char *text)
{
    return QCoreApplication::translate("FilmRenderer", text);
}

/// Whether our own reader takes the file for a film. It refuses whatever names other files; the
/// renderer would open them.
NxResult<void> accepted(const FootageFile &file)
{
    // Under the very name that the renderer is given, so that both take it for the same.
    const NxResult<std::unique_ptr<FootageFile>> again = FootageFile::open(file.openName());
    if (!again)
        return again.error();
    const NxResult<std::unique_ptr<Container>> container = Container::open(again->get());
    if (!container)
        return container.error();
    if (!(*container)->video()) {
        const NxResult<void> analysed = (*container)->analyse();
        if (!analysed)
            return analysed.error();
    }
    if (!(*container)->video())
        return NxError{translated("There is no film in the file.")};
    return {};
}

std::unique_ptr<Mlt::Profile> profileOf(QSize output)
{
    auto profile = std::make_unique<Mlt::Profile>();
    profile->set_width(output.width());
    profile->set_height(output.height());
    profile->set_sample_aspect(1, 1);
    profile->set_display_aspect(output.width(), output.height());
    profile->set_frame_rate(FramesPerSecond, 1);
    profile->set_progressive(1);
    profile->set_colorspace(ColorsOfHd);
    return profile;
}

/// Bytes of red, green, blue and how opaque it is, to pixels that hide what is behind them.
void toRgb32(const uchar *rgba, int pixels, uchar *rgb32)
{
    for (int i = 0; i < pixels; ++i, rgba += BytesPerPixel, rgb32 += BytesPerPixel)
        qToUnaligned(qRgb(rgba[0], rgba[1], rgba[2]), rgb32);
}

} // namespace

NxResult<std::unique_ptr<FilmRenderer>> FilmRenderer::open(const QByteArray &path, QSize output)
{
    NxResult<std::unique_ptr<FootageFile>> file = FootageFile::open(path);
    if (!file)
        return file.error();
    const NxResult<void> mayOpen = accepted(**file);
    if (!mayOpen)
        return mayOpen.error();
    std::unique_ptr<FilmRenderer> renderer(new FilmRenderer(file.take(), output));
    const NxResult<void> opened = renderer->openFilm();
    if (!opened)
        return opened.error();
    return renderer;
}

FilmRenderer::FilmRenderer(std::unique_ptr<FootageFile> file, QSize output)
    : m_file(std::move(file)),
      m_profile(profileOf(output))
{
}

FilmRenderer::~FilmRenderer() = default;

NxResult<void> FilmRenderer::openFilm()
{
    const QByteArray name = "avformat:" + m_file->openName();
    m_film = std::make_unique<Mlt::Producer>(*m_profile, name.constData());
    if (!m_film->is_valid())
        return NxError{translated("The film cannot be decoded.")};
    m_film->set("audio_index", -1); // Nobody hears it.
    m_frames = m_film->get_length();
    return m_frames > 0 ? NxResult<void>()
                        : NxResult<void>(NxError{translated("There is no film in the file.")});
}

NxResult<void> FilmRenderer::render(qint64 frame, QSize size, uchar *rgb32)
{
    m_film->seek(int(frame));
    const std::unique_ptr<Mlt::Frame> rendered(m_film->get_frame());
    int width = size.width();
    int height = size.height();
    mlt_image_format format = mlt_image_rgba;
    const uchar *rgba =
        rendered && rendered->is_valid() ? rendered->get_image(format, width, height) : nullptr;
    if (!rgba || format != mlt_image_rgba || QSize(width, height) != size)
        return NxError{translated("The film cannot be decoded.")};
    toRgb32(rgba, width * height, rgb32);
    return {};
}
