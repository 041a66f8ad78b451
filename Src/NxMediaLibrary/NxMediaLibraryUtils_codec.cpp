// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/NxStreamInfo.h>

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {

// Containers name one and the same codec in many ways; case tells some of them apart.
constexpr const char *H264Tags[] = {"H264", "FAVC", "havc", "K264", "I264", "IAVC", "IPON",
                                    "IPAN", "M264", "N264", "PS3H", "PAVC", "VAVC", "X264"};
constexpr const char *H265Tags[] = {"HEVC", "K265", "H265"};

/// Null when nothing is known about moving pictures.
const NxVideoStreamInfo *videoStream(const INxAbstractMediaItem *item)
{
    const INxMediaInfo *info = item ? item->mediaInfo() : nullptr;
    if (!info || !(info->streamFlags() & NXVBLMODEL::sfVideo))
        return nullptr;
    return info->videoStream();
}

template<size_t Count>
bool hasTagOf(const INxAbstractMediaItem *item, const char *const (&tags)[Count])
{
    const NxVideoStreamInfo *stream = videoStream(item);
    return stream && std::any_of(std::begin(tags), std::end(tags), [stream](const char *tag) {
               return stream->codecTag == QLatin1String(tag);
           });
}

} // namespace

bool NxMediaLibraryUtils::IsHevc(INxAbstractMediaItem *item)
{
    const NxVideoStreamInfo *stream = videoStream(item);
    return stream && stream->codecName == QLatin1String("HEVC");
}

bool NxMediaLibraryUtils::isH264Encode(INxAbstractMediaItem *item)
{
    return hasTagOf(item, H264Tags);
}

bool NxMediaLibraryUtils::isH265Encode(INxAbstractMediaItem *item)
{
    return hasTagOf(item, H265Tags);
}

bool NxMediaLibraryUtils::IsVob(INxAbstractMediaItem *item)
{
    if (!item)
        return false;
    const QString path = item->filePath().isEmpty() ? item->sourcePath() : item->filePath();
    return QFileInfo(path).suffix().compare(QLatin1String("vob"), Qt::CaseInsensitive) == 0;
}
