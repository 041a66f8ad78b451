// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaColumns.h>

#include <NxCore/NxConvertUtility.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxMediaLibrary/ToolTip.h>
#include <NxMediaViews/NxMediaKind_p.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxMediaInfo.h>

#include <QCoreApplication>

#include <iterator>

namespace {

using namespace NXMEDIALIBRARY;

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
    return nxMediaKind(media).text();
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
    return media.isFavourite() ? QCoreApplication::translate("NxMediaColumns", "yes") : QString();
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

struct Column
{
    TextOf text;
    NxMediaItemViewSortBy sortKey;
    int width; // px
    Qt::AlignmentFlag alignment;
};

constexpr Column MediaColumns[] = {
    {&nameText, sbName, 320, Qt::AlignLeft},
    {&usedText, sbUsed, 72, Qt::AlignRight},
    {&typeText, sbType, 88, Qt::AlignLeft},
    {&rateText, sbFrameRate, 108, Qt::AlignRight},
    {&inPointText, sbInPoint, 116, Qt::AlignRight},
    {&outPointText, sbOutPoint, 116, Qt::AlignRight},
    {&durationText, sbDuration, 116, Qt::AlignRight},
    {&resolutionText, sbResolution, 116, Qt::AlignRight},
    {&soundText, sbAudioInfo, 128, Qt::AlignLeft},
    {&createdText, sbDateCreated, 176, Qt::AlignLeft},
};

constexpr Column ResourceColumns[] = {
    {&nameText, sbName, 320, Qt::AlignLeft},
    {&libraryText, sbNone, 144, Qt::AlignLeft},
    {&favouriteText, sbFavourite, 88, Qt::AlignLeft},
    {&categoryText, sbCategory, 144, Qt::AlignLeft},
    {&noText, sbNone, 104, Qt::AlignLeft},
};

struct Columns
{
    const Column *first;
    int count;
};

Columns columnsOf(NXVBLMODEL::NxMediaCategoryType category)
{
    return category == NXVBLMODEL::mctMedia
               ? Columns{MediaColumns, int(std::size(MediaColumns))}
               : Columns{ResourceColumns, int(std::size(ResourceColumns))};
}

/// Null for a column that is not there.
const Column *columnAt(NXVBLMODEL::NxMediaCategoryType category, int column)
{
    const Columns columns = columnsOf(category);
    return column >= 0 && column < columns.count ? columns.first + column : nullptr;
}

} // namespace

int NxMediaColumns::count(NXVBLMODEL::NxMediaCategoryType category)
{
    return columnsOf(category).count;
}

QString NxMediaColumns::text(const INxAbstractMediaItem &media,
                             NXVBLMODEL::NxMediaCategoryType category, int column)
{
    const Column *known = columnAt(category, column);
    return known ? known->text(media) : QString();
}

QStringList NxMediaColumns::texts(const INxAbstractMediaItem &media,
                                  NXVBLMODEL::NxMediaCategoryType category)
{
    QStringList texts;
    for (int column = 0; column < count(category); ++column)
        texts.append(text(media, category, column));
    return texts;
}

NxMediaItemViewSortBy NxMediaColumns::sortKey(NXVBLMODEL::NxMediaCategoryType category, int column)
{
    const Column *known = columnAt(category, column);
    return known ? known->sortKey : sbNone;
}

int NxMediaColumns::column(NXVBLMODEL::NxMediaCategoryType category, NxMediaItemViewSortBy key)
{
    for (int column = 0; key != sbNone && column < count(category); ++column) {
        if (sortKey(category, column) == key)
            return column;
    }
    return -1;
}

int NxMediaColumns::defaultWidth(NXVBLMODEL::NxMediaCategoryType category, int column)
{
    const Column *known = columnAt(category, column);
    return known ? known->width : 0;
}

Qt::Alignment NxMediaColumns::alignment(NXVBLMODEL::NxMediaCategoryType category, int column)
{
    const Column *known = columnAt(category, column);
    return known ? known->alignment : Qt::AlignLeft;
}
