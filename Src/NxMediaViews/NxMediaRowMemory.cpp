// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaRowMemory_p.h>

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>

#include <algorithm>
#include <iterator>

namespace {

// More would make every later question about the selection slow.
constexpr int MostOrderedRanges = 64;

} // namespace

void NxMediaRowMemory::setSelected(const QList<INxAbstractMedia *> &medias)
{
    m_selected.clear();
    m_selected.reserve(medias.size());
    for (int i = 0; i < medias.size(); ++i) {
        if (medias.at(i) && !m_selected.contains(medias.at(i)))
            m_selected.insert(medias.at(i), {i, medias.at(i)});
    }
}

void NxMediaRowMemory::setMedia(Role role, INxAbstractMedia *media)
{
    m_media[role] = media;
}

void NxMediaRowMemory::forget(const INxAbstractMedia *media)
{
    m_selected.remove(media);
    for (NxMediaRef &one : m_media) {
        if (one.get() == media)
            one = nullptr;
    }
}

void NxMediaRowMemory::clear()
{
    *this = NxMediaRowMemory();
}

void NxMediaRowMemory::find(const NxMediaItemModel &model)
{
    std::fill(std::begin(m_rows), std::end(m_rows), -1);
    m_places.clear();
    const bool hasRoles = std::any_of(std::begin(m_media), std::end(m_media),
                                      [](const NxMediaRef &media) { return !media.isNull(); });
    if (!hasRoles && m_selected.isEmpty())
        return;
    const QList<INxAbstractMedia *> rows = model.getItems();
    for (int row = 0; row < rows.size(); ++row) {
        const INxAbstractMedia *media = rows.at(row);
        for (int role = 0; role < RoleCount; ++role) {
            if (m_rows[role] < 0 && m_media[role].get() == media)
                m_rows[role] = row;
        }
        if (m_selected.isEmpty())
            continue;
        const auto selected = m_selected.constFind(media);
        if (selected != m_selected.constEnd() && !selected->media.isNull())
            m_places.append({selected->number, row});
    }
}

QItemSelection NxMediaRowMemory::selection(const NxMediaItemModel &model) const
{
    QVector<Place> ordered = m_places;
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](const Place &a, const Place &b) { return a.first < b.first; });
    const QItemSelection inOrder = ranges(model, ordered, true);
    return inOrder.size() <= MostOrderedRanges ? inOrder : ranges(model, m_places, false);
}

QItemSelection NxMediaRowMemory::ranges(const NxMediaItemModel &model, const QVector<Place> &places,
                                        bool keepsOrder)
{
    QItemSelection selection;
    const int lastColumn = model.columnCount() - 1;
    for (int begin = 0; begin < places.size();) {
        int end = begin + 1;
        while (end < places.size() && places.at(end).second == places.at(end - 1).second + 1)
            ++end;
        selection.append(QItemSelectionRange(model.index(places.at(begin).second, 0),
                                             model.index(places.at(end - 1).second, lastColumn)));
        if (keepsOrder && selection.size() > MostOrderedRanges)
            break;
        begin = end;
    }
    return selection;
}
