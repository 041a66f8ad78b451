// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxReadingOrder.h>

#include <algorithm>
#include <vector>

void NxReadingOrder::dropLeftPlaces(Line *line)
{
    constexpr size_t few = 64;
    std::deque<Place> &places = line->places;
    if (places.size() < few + 2 * size_t(line->tickets.size()))
        return;
    const auto isLeft = [line](const Place &place) {
        return line->tickets.value(place.media) != place.ticket;
    };
    places.erase(std::remove_if(places.begin(), places.end(), isLeft), places.end());
}

NxReadingOrder::Place NxReadingOrder::newPlace(Line *line, qint64 media)
{
    dropLeftPlaces(line);
    line->tickets.insert(media, ++m_lastTicket);
    return {media, m_lastTicket};
}

void NxReadingOrder::add(qint64 media, NxReadWave wave)
{
    Line &line = m_others[size_t(wave)];
    if (!contains(media, wave))
        line.places.push_back(newPlace(&line, media));
}

void NxReadingOrder::addVisible(qint64 media, NxReadWave wave)
{
    Line &line = m_visible[size_t(wave)];
    m_others[size_t(wave)].tickets.remove(media);
    if (!line.tickets.contains(media))
        line.places.push_back(newPlace(&line, media));
}

void NxReadingOrder::forgetVisible()
{
    for (size_t wave = 0; wave < Waves; ++wave) {
        std::vector<qint64> seen;
        while (const std::optional<qint64> media = takeFirst(&m_visible[wave]))
            seen.push_back(*media);
        Line &others = m_others[wave];
        for (auto media = seen.rbegin(); media != seen.rend(); ++media)
            others.places.push_front(newPlace(&others, *media));
    }
}

void NxReadingOrder::remove(qint64 media)
{
    for (size_t wave = 0; wave < Waves; ++wave) {
        m_visible[wave].tickets.remove(media);
        m_others[wave].tickets.remove(media);
    }
}

void NxReadingOrder::clear()
{
    m_visible = {};
    m_others = {};
}

std::optional<qint64> NxReadingOrder::takeFirst(Line *line)
{
    while (!line->places.empty()) {
        const Place place = line->places.front();
        line->places.pop_front();
        const auto ticket = line->tickets.find(place.media);
        if (ticket == line->tickets.end() || *ticket != place.ticket)
            continue;
        line->tickets.erase(ticket);
        return place.media;
    }
    return std::nullopt;
}

std::optional<NxReadingOrder::Item> NxReadingOrder::take()
{
    for (std::array<Line, Waves> *lines : {&m_visible, &m_others}) {
        for (size_t wave = 0; wave < Waves; ++wave) {
            if (const std::optional<qint64> media = takeFirst(&(*lines)[wave]))
                return Item{*media, NxReadWave(wave)};
        }
    }
    return std::nullopt;
}

bool NxReadingOrder::contains(qint64 media, NxReadWave wave) const
{
    return m_visible[size_t(wave)].tickets.contains(media)
        || m_others[size_t(wave)].tickets.contains(media);
}

qint64 NxReadingOrder::waiting(NxReadWave wave) const
{
    return m_visible[size_t(wave)].tickets.size() + m_others[size_t(wave)].tickets.size();
}

size_t NxReadingOrder::placesKept() const
{
    size_t places = 0;
    for (const std::array<Line, Waves> *lines : {&m_visible, &m_others}) {
        for (const Line &line : *lines)
            places += line.places.size();
    }
    return places;
}
