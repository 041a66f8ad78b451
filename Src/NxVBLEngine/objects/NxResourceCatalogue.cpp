// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxResourceCatalogue.h>

#include <QCoreApplication>

#include <array>
#include <vector>

using namespace NXVBLMODEL;

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("NxResourceCatalogue", source);
}

struct Section
{
    int id;
    NxFolderKind kind;
    const char *name;
    bool online = false;
    bool takesMedia = false;
    bool takesFolders = false;
};

const std::vector<Section> MediaSections = {
    {fidRoot, fkProject, QT_TRANSLATE_NOOP("NxResourceCatalogue", "Project Media"), false, true,
     true},
    {fkShared, fkShared, QT_TRANSLATE_NOOP("NxResourceCatalogue", "Shared Media"), false, true,
     true},
};
const std::vector<Section> ResourceSections = {
    {fidRoot, fkUserSection, QT_TRANSLATE_NOOP("NxResourceCatalogue", "All"), false, false, true},
    {fkFavourites, fkFavourites, QT_TRANSLATE_NOOP("NxResourceCatalogue", "Favorites")},
    {fkDownloaded, fkDownloaded, QT_TRANSLATE_NOOP("NxResourceCatalogue", "Downloaded")},
};
const std::vector<Section> FixedResourceSections = {
    {fidRoot, fkUserSection, QT_TRANSLATE_NOOP("NxResourceCatalogue", "All")},
    {fkFavourites, fkFavourites, QT_TRANSLATE_NOOP("NxResourceCatalogue", "Favorites")},
    {fkDownloaded, fkDownloaded, QT_TRANSLATE_NOOP("NxResourceCatalogue", "Downloaded")},
};
const std::vector<Section> ProviderSections = {
    {fkStockHome, fkStockHome, QT_TRANSLATE_NOOP("NxResourceCatalogue", "Home"), true},
    {fkStockImageChoice, fkStockImageChoice, QT_TRANSLATE_NOOP("NxResourceCatalogue", "Images"),
     true},
    {fkStockAudioChoice, fkStockAudioChoice, QT_TRANSLATE_NOOP("NxResourceCatalogue", "Audio"),
     true},
    {fkStockVideoChoice, fkStockVideoChoice, QT_TRANSLATE_NOOP("NxResourceCatalogue", "Videos"),
     true},
    {fkFavourites, fkFavourites, QT_TRANSLATE_NOOP("NxResourceCatalogue", "Favorites")},
    {fkDownloaded, fkDownloaded, QT_TRANSLATE_NOOP("NxResourceCatalogue", "Downloaded")},
    {fkDownloadRecord, fkDownloadRecord,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Download Records")},
};
const std::vector<Section> ReservedSections = {
    {fidRoot, fkUserSection, QT_TRANSLATE_NOOP("NxResourceCatalogue", "All")},
};

const std::vector<Section> *sectionTable(int category)
{
    static const std::array<const std::vector<Section> *, MediaCategoryCount> tables = {
        &MediaSections,    &ResourceSections,      &ResourceSections, &ResourceSections,
        &ResourceSections, &ResourceSections,      &ResourceSections, &FixedResourceSections,
        &ProviderSections, &FixedResourceSections, &ReservedSections,
    };
    return category >= 0 && category < MediaCategoryCount ? tables[size_t(category)] : nullptr;
}

// A family of resources: how the engine fills one section of a category.
struct Family
{
    int category;
    int section;
    NxMediaType type;
    int subKind;
    int kindCode;
    int count;
    const char *name; // "%1" is the number within the family.
    const char *group; // What the user can group them by.
    bool needsDownload;
};

constexpr std::array<Family, 26> Families = {{
    {mctAudio, fidRoot, mtAudio, mskNone, mkcNone, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Calm Loop %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Calm"), false},
    {mctAudio, fidRoot, mtAudio, mskNone, mkcNone, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Driving Beat %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Beats"), true},
    {mctAudio, fkDownloaded, mtAudio, mskNone, mkcNone, 4,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Street Sound %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Sounds"), false},
    {mctTitle, fidRoot, mtTitle, mskNone, mkcNone, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Lower Third %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Lower Thirds"), false},
    {mctTitle, fidRoot, mtTitle, mskNone, mkcNone, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Opener %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Openers"), true},
    {mctTitle, fkDownloaded, mtTitle, mskNone, mkcNone, 4,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Credits %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Credits"), false},
    {mctTransition, fidRoot, mtTransition, mskNone, mkcNone, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Dissolve %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Dissolves"), false},
    {mctTransition, fidRoot, mtTransition, mskNone, mkcNone, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Wipe %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Wipes"), true},
    {mctTransition, fkDownloaded, mtTransition, mskNone, mkcNone, 4,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Slide %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Slides"), false},
    {mctEffect, fidRoot, mtEffect, mskNone, mkcNone, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Blur %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Blurs"), false},
    {mctEffect, fidRoot, mtEffect, mskNone, mkcNone, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Film Look %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Looks"), true},
    {mctEffect, fkDownloaded, mtEffect, mskNone, mkcNone, 4,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Glow %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Glows"), false},
    {mctElement, fidRoot, mtElement, mskNone, mkcNone, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Arrow %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Arrows"), false},
    {mctElement, fidRoot, mtElement, mskPictureElement, mkcStillImage, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Sticker %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Stickers"), true},
    {mctElement, fkDownloaded, mtElement, mskNone, mkcNone, 4,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Frame %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Frames"), false},
    {mctSplitScreen, fidRoot, mtSplitScreen, mskNone, mkcNone, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Two Pictures %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Two Pictures"), false},
    {mctSplitScreen, fidRoot, mtSplitScreen, mskNone, mkcNone, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Three Pictures %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Three Pictures"), true},
    {mctSplitScreen, fkDownloaded, mtSplitScreen, mskNone, mkcNone, 4,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Four Pictures %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Four Pictures"), false},
    {mctStockMedia, fidRoot, mtVideoAudio, mskStockMedia, mkcStockCopy, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "City Clip %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Cities"), true},
    {mctStockMedia, fidRoot, mtImage, mskStockMedia, mkcStockCopy, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Nature Picture %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Nature"), true},
    {mctStockMedia, fkDownloaded, mtElement, mskStockGif, mkcAnimatedImage, 4,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Reaction %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Reactions"), true},
    {mctVCGStock, fkStockImageChoice, mtImage, mskNone, mkcStockCopy, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Stock Picture %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Pictures"), true},
    {mctVCGStock, fkStockVideoChoice, mtVideoAudio, mskNone, mkcStockCopy, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Stock Clip %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Clips"), true},
    {mctVCGStock, fkStockAudioChoice, mtAudio, mskNone, mkcStockCopy, 6,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Stock Track %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Tracks"), true},
    {mctTemplate, fidRoot, mtProjectTemplate, mskNone, mkcNone, 10,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Travel Template %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Travel"), true},
    {mctTemplate, fkDownloaded, mtProjectTemplate, mskNone, mkcNone, 4,
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Family Template %1"),
     QT_TRANSLATE_NOOP("NxResourceCatalogue", "Family"), false},
}};

// Ids of resources lie far above those of media, and never move: family by family, a thousand
// numbers each.
constexpr qint64 FirstResourceId = qint64(1) << 52;
constexpr qint64 IdsPerFamily = 1000;

NxResourceEntry entryOf(size_t family, int number)
{
    constexpr int LicenceKinds = 3; // Free, standard, premium in turn.
    const Family &made = Families[family];
    NxResourceEntry entry;
    entry.id = FirstResourceId + qint64(family) * IdsPerFamily + number;
    entry.category = made.category;
    entry.section = made.section;
    entry.type = made.type;
    entry.subKind = made.subKind;
    entry.kindCode = made.kindCode;
    entry.licence = lsFree + (number - 1) % LicenceKinds;
    entry.name = text(made.name).arg(number);
    entry.categoryText = text(made.group);
    entry.listOrder = int(family) * int(IdsPerFamily) + number;
    entry.needsDownload = made.needsDownload;
    return entry;
}

} // namespace

QVector<NxSectionEntry> NxResourceCatalogue::sections(int category)
{
    QVector<NxSectionEntry> entries;
    if (const std::vector<Section> *table = sectionTable(category)) {
        for (const Section &section : *table) {
            entries.append({section.id, section.kind, text(section.name), section.online,
                            section.takesMedia, section.takesFolders});
        }
    }
    return entries;
}

QVector<NxResourceEntry> NxResourceCatalogue::resources(int category)
{
    QVector<NxResourceEntry> entries;
    for (size_t family = 0; family < Families.size(); ++family) {
        if (Families[family].category != category)
            continue;
        for (int number = 1; number <= Families[family].count; ++number)
            entries.append(entryOf(family, number));
    }
    return entries;
}
