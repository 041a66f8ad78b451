// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QString>
#include <QVector>

#include <vector>

#include "NxMediaItemOrdering_p.h"

class NxMediaItemGrouping;

/// Where a media is shown.
struct NxMediaItemPlace
{
    int section; ///< -1 when it is not shown.
    int at; ///< Among what the section shows.
};

/// Which media of a folder are shown, in which group and order, and how to change that by one.
///
/// Media are known by their number, which is their place in the folder's listing; equal ones stand
/// by number. A number stays until the next whole pass, a removed one leaves a hole. The order of
/// everything listed is kept, so that another filter only walks along it. Media are not owned;
/// removed ones are never looked at.
class NxMediaItemArrangement
{
public:
    using Items = QList<INxAbstractMedia *>;
    using Numbers = std::vector<quint32>;
    using Group = NXMEDIALIBRARY::NxMediaItemViewGroup;
    using Sort = NXMEDIALIBRARY::NxMediaItemViewSort;

    /// What stands under one header, or all of it where there are no groups.
    struct Section
    {
        QString key;
        Numbers shown;
        bool hasRows = false; ///< A header or tile may be left when nothing else is.
    };
    using Place = NxMediaItemPlace;
    static constexpr quint32 NoNumber = ~quint32(0);
    /// More changes than that are not worth being followed one by one.
    static constexpr int ManyChanges = 32;

    /// Forgets everything.
    void clear();
    /// Forgets what is only needed for whole passes.
    void release();
    [[nodiscard]] bool isKnown() const { return m_isKnown; }

    /// The whole listing. What was worked out for it stays when it is the same as before and
    /// nothing in it changed; never when changes are not told.
    void setMedia(const Items &media, bool areChangesTold);
    [[nodiscard]] const Items &media() const { return m_media; }
    /// Divides the media into sections that show nothing yet; into one without a key of groups.
    void groupBy(const Group &group);
    /// True from groupBy() on, until a media comes, goes or is to be ordered anew: then the
    /// sections of all media are known.
    [[nodiscard]] bool hasGroups() const { return m_hasGroups; }
    /// The media that go to a section, as they are listed.
    [[nodiscard]] std::vector<Items> members() const;
    /// Shows those of the media that pass, which stand in the order of the listing. Only while
    /// hasGroups().
    void show(const Items &passing, const Sort &sort);
    /// True when it was arranged by these.
    [[nodiscard]] bool isArrangedBy(const Group &group, const Sort &sort) const;

    [[nodiscard]] const std::vector<Section> &sections() const { return m_sections; }
    [[nodiscard]] Items shown(int section) const;
    /// True when a header stands over nothing.
    [[nodiscard]] bool hasBareSection() const { return m_bareSections > 0; }

    /// One more media at the end of the listing, not shown yet.
    quint32 append(INxAbstractMedia *media);
    /// NoNumber when it is not listed.
    [[nodiscard]] quint32 numberOf(const INxAbstractMedia *media) const;
    /// The section for a media, or -1 and the key of the one that is missing.
    [[nodiscard]] int findSection(INxAbstractMedia *media, QString *missingKey) const;
    /// Where the new section stands.
    int insertSection(const QString &key);
    /// Shows a media in a section, at the place it answers.
    int show(quint32 number, int section);
    /// The place of a shown media; looked for among all of them.
    [[nodiscard]] Place placeOf(quint32 number) const;
    /// Shows a media no longer. It stays listed.
    void hide(const Place &place);
    /// Takes what is not shown out of the listing.
    void remove(quint32 number);
    /// Orders a media that is not shown anew, after its facts changed.
    void reorder(quint32 number);

    /// Remembers that the facts of a media changed, whether it is listed or not.
    void noteChange(INxAbstractMedia *media);
    /// The media that changed; more than ManyChanges stand for any number.
    [[nodiscard]] const QVector<INxAbstractMedia *> &changes() const { return m_changes; }

    /// The listing changed, and nobody knows where.
    void setListingMoved() { m_isListingMoved = true; }
    [[nodiscard]] bool isListingMoved() const { return m_isListingMoved; }
    /// The media appended last stands elsewhere in the listing; all else is as it was.
    void setLastMoved() { m_isLastMoved = true; }
    [[nodiscard]] bool isLastMoved() const { return m_isLastMoved; }
    /// Everything stands where it belongs.
    void setSettled();
    /// The number that the media listed last has in the listing given; NoNumber when the listings
    /// differ in more.
    [[nodiscard]] quint32 listedNumberOfLast(const Items &listing);
    /// Whether a media that is shown stands beside one that is its equal.
    [[nodiscard]] bool hasEqualNeighbour(quint32 number) const;
    /// Gives the last media that number, and others theirs.
    void renumberLast(quint32 number);
    /// Numbers are places in the listing again.
    void closeHoles();

private:
    void order(const Sort &sort);
    void placeUnordered();
    void renumberOrder();
    [[nodiscard]] Numbers::const_iterator spotIn(Numbers::const_iterator begin,
                                                 Numbers::const_iterator end, quint32 number) const;

    bool m_isKnown = false;
    Items m_media; // By number; null where one was removed.
    int m_holes = 0;
    Group m_group;
    Sort m_sort;
    std::vector<Section> m_sections;
    QVector<INxAbstractMedia *> m_changes;
    bool m_isListingMoved = false;
    bool m_isLastMoved = false;

    int m_bareSections = 0;

    Numbers m_order; // All media in order, as of the last pass; empty unless m_hasOrder.
    /// Media that got their numbers since m_order was made, which counts without them.
    Items m_insertedSince;
    bool m_isLastOrdered = false; // The last of the media is in m_order.
    Numbers m_unordered; // What has no place in it yet, or a wrong one; maybe twice.
    bool m_hasOrder = false;
    std::vector<QString> m_keys;
    Numbers m_groupOf; // By number; the section. Empty unless m_hasGroups.
    bool m_hasGroups = false;
};
