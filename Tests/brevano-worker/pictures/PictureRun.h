// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxPictureFile.h>
#include <NxWorkerProtocol/NxWorkerMessages.h>
#include <Support/NxTempDir.h>
#include <brevano-worker/input/Container.h>
#include <brevano-worker/input/FootageFile.h>

#include <QImage>

/// A file of which pictures are made into a cache folder of its own.
class PictureRun
{
public:
    /// Ends the program when the file cannot be opened.
    explicit PictureRun(const QString &path);

    /// Makes pictures by way of the container, or as of a still.
    void makeOfStream(qint64 durationUs, int wishes = rwCover | rwStrip);
    void makeOfStill(int wishes = rwCover | rwStrip);

    /// Forgets the answer, not what lies in the cache folder.
    void forget();

    [[nodiscard]] FootageFile *file() const { return m_file.get(); }
    [[nodiscard]] const NxReadAnswer &answer() const { return m_answer; }
    [[nodiscard]] QImage cover() const { return QImage(path(NxPictureKind::Cover)); }
    [[nodiscard]] QImage strip() const { return QImage(path(NxPictureKind::Strip)); }
    /// One of the frames that a strip stacks.
    [[nodiscard]] static QImage row(const QImage &strip, int row);
    [[nodiscard]] QString cacheFolder() const { return m_dir.path(); }
    [[nodiscard]] QString path(NxPictureKind kind) const;

private:
    [[nodiscard]] NxReadRequest request(int wishes) const;

    NxTempDir m_dir;
    std::unique_ptr<FootageFile> m_file;
    NxReadAnswer m_answer;
};
