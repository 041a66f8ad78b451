// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>
#include <NxMediaLibrary/delegate_P/NxFileThread.h>

#include <QCache>
#include <QImage>
#include <QString>

#include <functional>

/// Reads film strips from their files, for engines that hand out none from memory.
///
/// Files are looked at on a thread of its own, each time; the picture is decoded again only when
/// the file changed. The last strips are kept, about 32 MiB of them. GUI thread only.
class NXMEDIALIBRARY_TEST_EXPORT NxFilmStripLoader
{
    Q_DISABLE_COPY_MOVE(NxFilmStripLoader)
public:
    /// A null strip: there is no such file, or no film strip in it. May destroy the loader.
    using Arrived = std::function<void(const QString &path, const QImage &strip)>;

    static constexpr int DefaultMemoryKiB = 32 * 1'024;

    explicit NxFilmStripLoader(Arrived arrived, int memoryKiB = DefaultMemoryKiB);
    ~NxFilmStripLoader();

    /// `arrived` follows, unless another strip is asked for before this one's turn has come.
    void load(const QString &path);

    /// Whether a picture is wide and high enough for one frame.
    [[nodiscard]] static bool isStrip(const QImage &image);

private:
    struct Strip
    {
        qint64 bytes = -1; // Of the file.
        qint64 modified = 0; // ms since 1970.
        QImage image;
    };
    [[nodiscard]] static Strip read(const QString &path, const Strip &known);
    void take(const QString &path, const Strip &strip);

    const Arrived m_arrived;
    QCache<QString, Strip> m_strips; // By path; costs are KiB.
    NxFileThread m_thread;
};
