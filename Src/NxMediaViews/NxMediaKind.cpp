// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaKind_p.h>

#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxVBLModel/INxAbstractMedia.h>

#include <QCoreApplication>

namespace {

struct KindOfType
{
    NXVBLMODEL::NxMediaType type;
    NxGlyph glyph;
    const char *text;
};

constexpr KindOfType Kinds[] = {
    {NXVBLMODEL::mtFolder, NxGlyph::Folder, QT_TRANSLATE_NOOP("NxMediaItemPainter", "Folder")},
    {NXVBLMODEL::mtVideo, NxGlyph::Film, QT_TRANSLATE_NOOP("NxMediaItemPainter", "Video")},
    {NXVBLMODEL::mtVideoAudio, NxGlyph::Film, QT_TRANSLATE_NOOP("NxMediaItemPainter", "Video")},
    {NXVBLMODEL::mtAudio, NxGlyph::Sound, QT_TRANSLATE_NOOP("NxMediaItemPainter", "Audio")},
    {NXVBLMODEL::mtImage, NxGlyph::Picture, QT_TRANSLATE_NOOP("NxMediaItemPainter", "Photo")},
    {NXVBLMODEL::mtTitle, NxGlyph::Text, QT_TRANSLATE_NOOP("NxMediaItemPainter", "Title")},
    {NXVBLMODEL::mtTransition, NxGlyph::Element,
     QT_TRANSLATE_NOOP("NxMediaItemPainter", "Transition")},
    {NXVBLMODEL::mtEffect, NxGlyph::Element, QT_TRANSLATE_NOOP("NxMediaItemPainter", "Effect")},
    {NXVBLMODEL::mtSplitScreen, NxGlyph::Template,
     QT_TRANSLATE_NOOP("NxMediaItemPainter", "Split screen")},
    {NXVBLMODEL::mtElement, NxGlyph::Element, QT_TRANSLATE_NOOP("NxMediaItemPainter", "Element")},
    {NXVBLMODEL::mtSubtitle, NxGlyph::Text, QT_TRANSLATE_NOOP("NxMediaItemPainter", "Subtitle")},
    {NXVBLMODEL::mtProjectTemplate, NxGlyph::Template,
     QT_TRANSLATE_NOOP("NxMediaItemPainter", "Template")},
};
constexpr KindOfType Gif = {NXVBLMODEL::mtElement, NxGlyph::Motion,
                            QT_TRANSLATE_NOOP("NxMediaItemPainter", "GIF")};

} // namespace

QString NxMediaKind::text() const
{
    return *source ? QCoreApplication::translate("NxMediaItemPainter", source) : QString();
}

NxMediaKind nxMediaKind(const INxAbstractMedia &media)
{
    if (NxMediaLibraryUtils::isGif(&media))
        return {Gif.glyph, Gif.text};
    for (const KindOfType &it : Kinds) {
        if (it.type == media.mediaType())
            return {it.glyph, it.text};
    }
    return {NxGlyph::Element, ""};
}
