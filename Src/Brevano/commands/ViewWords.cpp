// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ViewWords.h>

#include <algorithm>
#include <iterator>

using namespace NXMEDIALIBRARY;

namespace {

template<typename Value>
struct Word
{
    Value value;
    const char *text;
};

constexpr Word<NxMediaItemViewSortBy> SortWords[] = {
    {sbNone, "none"},
    {sbName, "name"},
    {sbDuration, "duration"},
    {sbDateCreated, "datecreated"},
    {sbUsed, "used"},
    {sbFrameRate, "framerate"},
    {sbInPoint, "inpoint"},
    {sbOutPoint, "outpoint"},
    {sbFavourite, "favourite"},
    {sbFavouriteTime, "favouritetime"},
    {sbDownloadTime, "downloadtime"},
    {sbResolution, "resolution"},
    {sbAudioInfo, "audioinfo"},
    {sbType, "type"},
    {sbNew, "new"},
    {sbCategory, "category"},
    {sbListorder, "listorder"},
    {sbSale, "sale"},
};

constexpr Word<NxMediaItemViewGroupBy> GroupWords[] = {
    {gbNone, "none"},
    {gbType, "type"},
    {gbDateCreated, "datecreated"},
    {gbDuration, "duration"},
    {gbCameraName, "cameraname"},
    {gbCategory, "category"},
};

constexpr Word<NxMediaTypeFilter> TypeWords[] = {
    {mtfAll, "all"},           {mtfVideo, "video"},       {mtfPhoto, "photo"},
    {mtfAudio, "audio"},       {mtfSubtitle, "subtitle"}, {mtfPremium, "premium"},
    {mtfStandard, "standard"}, {mtfFree, "free"},         {mtfPaid, "paid"},
};

constexpr Word<NxMediaItemViewMode> ViewModeWords[] = {
    {vmList, "list"},
    {vmSmallThumbnail, "small"},
    {vmMiddleThumbnail, "middle"},
    {vmLargeThumbnail, "large"},
};

template<typename Value, size_t Count>
QStringList textsOf(const Word<Value> (&words)[Count])
{
    QStringList texts;
    for (const Word<Value> &word : words)
        texts.append(QLatin1String(word.text));
    return texts;
}

template<typename Value, size_t Count>
NxResult<Value> valueOf(const QString &text, const Word<Value> (&words)[Count], const char *kind)
{
    const auto known =
        std::find_if(std::begin(words), std::end(words),
                     [&text](const Word<Value> &word) { return text == QLatin1String(word.text); });
    if (known != std::end(words))
        return known->value;
    return NxError{QStringLiteral("there is no %1 \"%2\", only %3")
                       .arg(QLatin1String(kind), text, textsOf(words).join(QLatin1String(", ")))};
}

} // namespace

NxResult<NxMediaItemViewSortBy> ViewWords::sortKey(const QString &word)
{
    return valueOf(word, SortWords, "sort key");
}

NxResult<NxMediaItemViewGroupBy> ViewWords::groupKey(const QString &word)
{
    return valueOf(word, GroupWords, "group key");
}

NxResult<NxMediaTypeFilter> ViewWords::type(const QString &word)
{
    return valueOf(word, TypeWords, "type");
}

NxResult<NxMediaItemViewMode> ViewWords::view(const QString &word)
{
    return valueOf(word, ViewModeWords, "view");
}

NxResult<NXVBLMODEL::NxMediaCategoryType> ViewWords::category(const QString &word)
{
    for (int code = 0; code < NXVBLMODEL::MediaCategoryCount; ++code) {
        if (word == QString::number(code))
            return static_cast<NXVBLMODEL::NxMediaCategoryType>(code);
    }
    return NxError{QStringLiteral("there is no category \"%1\", only 0 to %2")
                       .arg(word, QString::number(NXVBLMODEL::MediaCategoryCount - 1))};
}

QStringList ViewWords::sortKeys()
{
    return textsOf(SortWords);
}

QStringList ViewWords::groupKeys()
{
    return textsOf(GroupWords);
}

QStringList ViewWords::types()
{
    return textsOf(TypeWords);
}

QStringList ViewWords::views()
{
    return textsOf(ViewModeWords);
}
