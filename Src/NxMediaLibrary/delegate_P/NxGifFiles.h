// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>
#include <NxMediaLibrary/delegate_P/NxFileThread.h>

#include <QByteArray>
#include <QElapsedTimer>
#include <QHash>
#include <QString>

#include <chrono>
#include <functional>

/// A picture file that may be animated, as it was when it was looked at.
struct NxGifFile
{
    qint64 size = -1; ///< Bytes; -1: there is no such file.
    qint64 modified = 0; ///< ms since 1970.
    int frames = 0; ///< 0: no picture that can be shown.
    QByteArray bytes; ///< All of it; empty when it does not move or is too large to be kept.

    [[nodiscard]] bool isAnimated() const { return frames > 1; }
};

/// What is in picture files that may be animated: read, counted and watched on a thread of its
/// own. GUI thread only.
class NXMEDIALIBRARY_TEST_EXPORT NxGifFiles
{
    Q_DISABLE_COPY_MOVE(NxGifFiles)
public:
    struct Limits
    {
        qint64 oneFile = 64LL * 1'024 * 1'024; ///< Bytes; a larger file is not kept in memory.
        qint64 allFiles = 256LL * 1'024 * 1'024; ///< Bytes.
        int files = 4'096; ///< How many are remembered that need no bytes.
        std::chrono::milliseconds looks{1'000}; ///< Between two looks at one file.
    };
    /// A file was read for the first time, or is not what it was. May destroy the files.
    using Changed = std::function<void(const QString &path)>;

    explicit NxGifFiles(Changed changed);
    NxGifFiles(Changed changed, Limits limits);
    ~NxGifFiles();

    /// What is known, and null while nothing is: then the file is read, and `changed` follows.
    /// From time to time the file is looked at again. Valid until the next event.
    [[nodiscard]] const NxGifFile *file(const QString &path);
    /// Nobody shows it any more: it is read again when it is asked for. What does not move stays
    /// remembered.
    void forgetFilm(const QString &path);
    /// It cannot be played, until it changes.
    void giveUp(const QString &path);

private:
    struct Known
    {
        NxGifFile file;
        qint64 lookedAt = 0; // ms of m_time.
        bool isRead = false;
        bool isBeingLookedAt = false;
    };
    [[nodiscard]] static NxGifFile read(const QString &path, const NxGifFile &known,
                                        qint64 mostBytes);
    void look(const QString &path, Known *known);
    void take(const QString &path, NxGifFile file);
    void makeRoom();

    const Changed m_changed;
    const Limits m_limits;
    QElapsedTimer m_time;
    QHash<QString, Known> m_known;
    qint64 m_bytes = 0; // In memory.
    NxFileThread m_thread;
};
