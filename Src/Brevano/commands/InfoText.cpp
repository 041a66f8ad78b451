// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/InfoText.h>

#include <Brevano/commands/InfoFacts.h>
#include <Brevano/commands/JsonLine.h>
#include <Brevano/commands/MediaFacts.h>
#include <Brevano/commands/ShownText.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/NxStreamInfo.h>

#include <array>

using namespace NXVBLMODEL;

namespace {

/// By NxFootageStatus.
constexpr std::array<const char *, 4> FactWords = {"waiting", "done", "none", "failed"};
constexpr std::array<const char *, 4> PictureWords = {"waiting", "made", "none", "failed"};

QString pictureFileText(NxFootageStatus status, const QString &path, const QString &reason)
{
    // By NxFootageStatus.
    const std::array<QString, 4> texts = {QStringLiteral("not made yet"), path,
                                          QStringLiteral("there is none"), reason};
    return texts[size_t(status)];
}

/// Names and values in two columns.
class Sheet
{
public:
    void add(const char *name, const QString &value)
    {
        constexpr int width = 12;
        if (value.isEmpty())
            return;
        const QString head = QLatin1String(name) + QLatin1Char(':');
        m_lines.append(ShownText::oneLine(head.leftJustified(width) + value));
    }
    [[nodiscard]] const QStringList &lines() const { return m_lines; }

private:
    QStringList m_lines;
};

void addFile(Sheet *sheet, const INxAbstractMediaItem &media)
{
    sheet->add("Name", media.name());
    sheet->add("File", media.sourcePath());
    sheet->add("Folder", MediaFacts::folder(media));
    sheet->add("Section", MediaFacts::section(media));
    sheet->add("Type", MediaFacts::typeWord(media));
    sheet->add("Size", media.sourceSize() < 0 ? QString() : ShownText::size(media.sourceSize()));
    const QDateTime created = media.dateCreated();
    sheet->add("Created", created.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
    if (MediaFacts::isMissing(media))
        sheet->add("State", QStringLiteral("missing"));
}

void addContents(Sheet *sheet, const INxAbstractMediaItem &media)
{
    for (const InfoFact &fact : InfoFacts::contents(media))
        sheet->add(fact.label, fact.value);
}

void addPicture(JsonLine *line, const char *key, const QString &path, NxFootageStatus status,
                const QString &reason)
{
    const QByteArray name(key);
    line->addTextOrNull(key, path);
    line->addText((name + "_state").constData(), QLatin1String(PictureWords[size_t(status)]));
    line->addTextOrNull((name + "_reason").constData(), reason);
}

} // namespace

QStringList InfoText::lines(const INxAbstractMediaItem &media, const NxFootageState &state)
{
    Sheet sheet;
    addFile(&sheet, media);
    if (state.facts == NxFootageStatus::Failed) {
        sheet.add("State", QStringLiteral("unreadable: %1").arg(state.reason));
        return sheet.lines(); // No picture is to come.
    }
    if (state.facts == NxFootageStatus::Waiting)
        sheet.add("State", QStringLiteral("not read yet"));
    else
        addContents(&sheet, media);
    sheet.add("Cover", pictureFileText(state.cover, state.coverPath, state.coverReason));
    sheet.add("Film strip", pictureFileText(state.strip, state.stripPath, state.stripReason));
    return sheet.lines();
}

QByteArray InfoText::json(const INxAbstractMediaItem &media, const NxFootageState &state)
{
    const INxMediaInfo *info = media.mediaInfo();
    const NxVideoStreamInfo *video = info ? info->videoStream() : nullptr;
    const NxAudioStreamInfo *audio = info ? info->audioStream() : nullptr;
    JsonLine line;
    MediaFacts::addIdentity(&line, media);
    MediaFacts::addState(&line, media);
    MediaFacts::addContents(&line, media);
    line.addTextOrNull("reel", info ? info->reelName() : QString());
    line.addTextOrNull("audio_codec", audio ? audio->format : QString());
    line.addTextOrNull("pixel_format", video ? video->pixelFormat : QString());
    line.addNumberOrNull("bit_depth", video ? video->bitDepth : 0, video && video->bitDepth > 0);
    line.addTextOrNull("text_encoding", info ? info->textEncoding() : QString());
    line.addText("read", statusWord(state.facts));
    line.addTextOrNull("reason", state.reason);
    line.addTextOrNull("fingerprint", QString::fromLatin1(state.fingerprint));
    addPicture(&line, "cover", state.coverPath, state.cover, state.coverReason);
    addPicture(&line, "strip", state.stripPath, state.strip, state.stripReason);
    return line.text();
}

QString InfoText::statusWord(NxFootageStatus status)
{
    return QLatin1String(FactWords[size_t(status)]);
}
