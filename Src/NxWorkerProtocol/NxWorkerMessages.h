// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxFootageFacts.h>

#include <QByteArray>
#include <QString>

#include <optional>

/// What the editor and brevano-worker say to each other over a pipe, message by message. Each is
/// four bytes of length (little endian), one byte of NxWorkerWord, and the message's own bytes.
enum class NxWorkerWord : quint8 {
    Hello = 1, ///< First of all, from the worker.
    Request = 2, ///< To the worker.
    Opened = 3, ///< From the worker: the file was opened, its disk answers.
    Answer = 4, ///< From the worker, one for each request, in their order.
    // Previews; see NxPreviewMessages.h.
    PreviewOpen = 5, ///< To the worker.
    PreviewShow = 6, ///< To the worker.
    PreviewOpened = 7, ///< From the worker.
    PreviewFrame = 8, ///< From the worker.
    PreviewRested = 9, ///< From the worker.
};

namespace NxWorkerProtocol {

/// Raised with every change of a message. Editor and worker of different versions do not talk.
constexpr quint32 Version = 1;
/// Longer messages are none: whoever sends one has lost the thread.
constexpr quint32 LongestMessage = 16 * 1024 * 1024;

} // namespace NxWorkerProtocol

struct NxWorkerHello
{
    quint32 version = NxWorkerProtocol::Version;
    bool hasNoNetwork = false; ///< The system has taken it from the worker.
    bool writesCacheOnly = false; ///< The system refuses every other write.
};

/// By which way a file is read; its suffix decides.
enum class NxFootageRoad : quint8 {
    Stream = 0, ///< Films, sound and GIFs.
    Still = 1, ///< Pictures.
    Text = 2, ///< Subtitles.
};

/// What is wanted of a file.
enum NxReadWish : quint8 {
    rwFacts = 1,
    rwFingerprint = 2,
    rwCover = 4,
    rwStrip = 8,
    rwAnew = 16, ///< Pictures are made even if the cache folder has them.
};

struct NxReadRequest
{
    quint64 number = 0; ///< The answer bears it.
    QByteArray path; ///< As the system names the file.
    NxFootageRoad road = NxFootageRoad::Stream;
    quint8 wishes = rwFacts; ///< NxReadWish
};

/// How the making of a picture ended.
enum class NxPictureOutcome : quint8 {
    NotAsked = 0,
    Made = 1, ///< It lies in the cache folder, by the name of NxPictureFile.
    NoneThere = 2, ///< There is nothing to show: sound has no film strip.
    Failed = 3,
};

struct NxPictureAnswer
{
    NxPictureOutcome outcome = NxPictureOutcome::NotAsked;
    QString reason; ///< Of a failure, a sentence for the user.
};

struct NxReadAnswer
{
    quint64 number = 0;
    QString failure; ///< Why the file cannot be read, a sentence; empty when it can.
    NxFileStamp stamp; ///< When it was opened.
    bool changedMeanwhile = false; ///< It was written while it was read.
    std::optional<NxFootageFacts> facts; ///< When asked for, and the file can be read.
    NxFingerprint fingerprint;
    NxPictureAnswer cover;
    NxPictureAnswer strip;
    /// Depth and format of the pictures, which a cover shows even where the header tells nothing.
    int bitDepth = 0;
    QString pixelFormat;
};

namespace NxWorkerMessages {

[[nodiscard]] QByteArray packed(const NxWorkerHello &hello);
[[nodiscard]] QByteArray packed(const NxReadRequest &request);
[[nodiscard]] QByteArray packedOpened(quint64 number);
[[nodiscard]] QByteArray packed(const NxReadAnswer &answer);

/// False when the bytes are no such message; what is read then means nothing.
[[nodiscard]] bool unpack(const QByteArray &bytes, NxWorkerHello *hello);
[[nodiscard]] bool unpack(const QByteArray &bytes, NxReadRequest *request);
[[nodiscard]] bool unpackOpened(const QByteArray &bytes, quint64 *number);
[[nodiscard]] bool unpack(const QByteArray &bytes, NxReadAnswer *answer);

/// The facts alone, in the form in which projects keep a file's streams, too.
[[nodiscard]] QByteArray packedStreams(const NxFootageStreams &streams);
[[nodiscard]] bool unpackStreams(const QByteArray &bytes, NxFootageStreams *streams);

} // namespace NxWorkerMessages
