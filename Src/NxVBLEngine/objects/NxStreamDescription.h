// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLModel/NxMediaTypes.h>
#include <NxVBLModel/NxStreamInfo.h>
#include <NxWorkerProtocol/NxFootageFacts.h>

/// What files of one camera and setting share, in the words of the media model. Made once for all
/// of them, and never changed.
struct NXVBLENGINE_TEST_EXPORT NxStreamDescription
{
    explicit NxStreamDescription(const NxFootageStreams &streams);

    /// The maker and the model; the model alone where it names the maker already.
    [[nodiscard]] static QString cameraName(const QString &maker, const QString &model);
    /// "48000 Hz, 2 ch"; without what is unknown.
    [[nodiscard]] static QString audioText(int sampleRate, int channels);

    NxFootageStreams streams;
    NXVBLMODEL::NxMediaType type = NXVBLMODEL::mtNone;
    NXVBLMODEL::NxMediaSubKind subKind = NXVBLMODEL::mskNone;
    NXVBLMODEL::NxMediaKindCode kindCode = NXVBLMODEL::mkcNone;
    NXVBLMODEL::NxMediaInfoKind infoKind = NXVBLMODEL::mikUnknown;
    int streamFlags = NXVBLMODEL::sfNone; ///< Bits of NxStreamFlag.
    NxVideoStreamInfo video; ///< Says something when streamFlags holds sfVideo.
    NxAudioStreamInfo audio; ///< Says something when streamFlags holds sfAudio.
    NxImageInfo image; ///< Says something when streamFlags holds sfImage.
    QString camera;
    QString audioFormat; ///< In words.
};
