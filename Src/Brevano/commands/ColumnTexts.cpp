// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ColumnTexts.h>

#include <Brevano/commands/MediaFacts.h>
#include <NxCore/NxConvertUtility.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxMediaLibrary/ToolTip.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxMediaInfo.h>

#include <iterator>

namespace {

using Media = INxAbstractMediaItem;
using TextOf = QString (*)(const Media &);

NxRational rateOf(const Media &media)
{
    const INxMediaInfo *info = media.mediaInfo();
    return info ? info->frameRate() : media.frameRate();
}

QString nameText(const Media &media)
{
    return ToolTip::getName(&media);
}

QString usedText(const Media &media)
{
    return QString::number(media.usedCount());
}

QString typeText(const Media &media)
{
    return MediaFacts::typeWord(media);
}

/// At most two digits behind the point: "25", "29.97".
QString rateText(const Media &media)
{
    constexpr double hundredths = 100.0;
    const NxRational rate = rateOf(media);
    return rate.num > 0 && rate.den > 0
               ? QString::number(qRound(rate.toDouble() * hundredths) / hundredths)
               : QString();
}

QString pointText(qint64 frame, const Media &media)
{
    constexpr double lowestRate = 1.0;
    const double rate = rateOf(media).toDouble();
    return rate < lowestRate ? QString() : NxConvertUtility::frame2String(frame, rate);
}

QString inPointText(const Media &media)
{
    return pointText(media.inPoint(), media);
}

QString outPointText(const Media &media)
{
    return pointText(media.outPoint(), media);
}

QString durationText(const Media &media)
{
    return NxMediaLibraryUtils::getDuration(&media);
}

QString resolutionText(const Media &media)
{
    const QSize size = NxMediaLibraryUtils::getResolution(&media);
    return size.isEmpty() ? QString()
                          : QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

QString soundText(const Media &media)
{
    const QString text = media.audioInfoText();
    const int rate = NxMediaLibraryUtils::getAudioSampleRate(&media);
    return text.isEmpty() && rate > 0 ? QStringLiteral("%1 Hz").arg(rate) : text;
}

QString createdText(const Media &media)
{
    const QDateTime created = media.dateCreated();
    return created.isValid() ? created.toLocalTime().toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"))
                             : QString();
}

QString libraryText(const Media &media)
{
    return NxMediaLibraryUtils::getParentFolderName(&media);
}

QString favouriteText(const Media &media)
{
    return media.isFavourite() ? QStringLiteral("yes") : QString();
}

QString categoryText(const Media &media)
{
    return media.categoryName();
}

/// The column holds a button.
QString noText(const Media &)
{
    return {};
}

constexpr TextOf MediaTexts[] = {
    &nameText,     &usedText,     &typeText,       &rateText,  &inPointText,
    &outPointText, &durationText, &resolutionText, &soundText, &createdText,
};

constexpr TextOf ResourceTexts[] = {
    &nameText, &libraryText, &favouriteText, &categoryText, &noText,
};

template<size_t Count>
QStringList textsOf(const Media &media, const TextOf (&columns)[Count])
{
    QStringList texts;
    for (const TextOf text : columns)
        texts.append(text(media));
    return texts;
}

} // namespace

QStringList ColumnTexts::of(const INxAbstractMediaItem &media,
                            NXVBLMODEL::NxMediaCategoryType category)
{
    return category == NXVBLMODEL::mctMedia ? textsOf(media, MediaTexts)
                                            : textsOf(media, ResourceTexts);
}
