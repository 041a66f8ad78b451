// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>

#include <QCoreApplication>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

#include "ScriptedItemManager.h"

/// A section with one folder in it, and the media of a test.
struct ItemStand
{
    using Items = QList<INxAbstractMedia *>;

    explicit ItemStand(int sectionKind = NXVBLMODEL::fkProject)
        : section(root.append(
            std::make_unique<ScriptedItemFolder>(QStringLiteral("section"), sectionKind))),
          folder(section->append(std::make_unique<ScriptedItemFolder>(QStringLiteral("folder"))))
    {
    }
    ItemStand(int sectionKind, const char *words) : ItemStand(sectionKind) { list(words); }

    /// "A:x" is a media called A in the category x. It stands in no folder.
    ScriptedItem *make(const QString &word)
    {
        items.push_back(std::make_unique<ScriptedItem>(NXVBLMODEL::mtVideoAudio,
                                                       word.section(QLatin1Char(':'), 0, 0)));
        items.back()->category = word.section(QLatin1Char(':'), 1);
        return items.back().get();
    }
    /// Adds media to a folder and tells nobody.
    void list(const char *words, ScriptedItemFolder *into)
    {
        for (const QString &word : QString::fromLatin1(words).split(QLatin1Char(' '))) {
            ScriptedItem *item = make(word);
            item->home = into;
            into->media.append(item);
        }
    }
    void list(const char *words) { list(words, folder); }
    ScriptedItemFolder *addFolder(const char *words, ScriptedItemFolder *into)
    {
        ScriptedItemFolder *added = into->append(std::make_unique<ScriptedItemFolder>());
        list(words, added);
        return added;
    }
    ScriptedItem *item(const char *name) const
    {
        for (const auto &one : items) {
            if (one->title == QLatin1String(name))
                return one.get();
        }
        return nullptr;
    }

    ScriptedItemFolder root;
    ScriptedItemFolder *const section;
    ScriptedItemFolder *const folder;
    ScriptedItemManager manager;
    std::vector<std::unique_ptr<ScriptedItem>> items;
};

/// "A" is a media, "[x]" a header, "+" an "Import Media" tile and "..." a "View More" tile.
inline QString rowText(const INxAbstractMedia *media)
{
    if (!media)
        return QStringLiteral("null");
    switch (media->mediaType()) {
    case NXVBLMODEL::mtGroup:
        return QStringLiteral("[%1]").arg(media->name());
    case NXVBLMODEL::mtImportTile:
        return QStringLiteral("+");
    case NXVBLMODEL::mtViewMoreTile:
        return QStringLiteral("...");
    default:
        return media->name();
    }
}

inline QString rowsText(const QList<INxAbstractMedia *> &rows)
{
    QStringList texts;
    for (const INxAbstractMedia *media : rows)
        texts.append(rowText(media));
    return texts.join(QLatin1Char(' '));
}

inline NXMEDIALIBRARY::NxMediaItemViewFilter filterOf(const char *keyword)
{
    NXMEDIALIBRARY::NxMediaItemViewFilter filter;
    filter.keyword = QLatin1String(keyword);
    return filter;
}

/// The filter of a search for what is like a resource.
inline NXMEDIALIBRARY::NxMediaItemViewFilter similarTo(qint64 resource, bool inList = false)
{
    NXMEDIALIBRARY::NxMediaItemViewFilter filter;
    filter.searchMode = NXMEDIALIBRARY::esmSimilar;
    filter.similarResourceId = resource;
    filter.listView = inList;
    return filter;
}

/// Translates every text into capitals while it lives.
struct CapitalTranslator final : QTranslator
{
    CapitalTranslator() { QCoreApplication::installTranslator(this); }
    ~CapitalTranslator() override { QCoreApplication::removeTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QString::fromUtf8(text).toUpper();
    }
};
