// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QHash>

#include <array>
#include <deque>
#include <optional>

/// What of a media is read: facts of every file come before pictures of any, but for what somebody
/// looks at.
enum class NxReadWave : quint8 { Facts = 0, Pictures = 1 };

/// In which order the media of a project are read: what is visible first, facts before pictures;
/// then the facts of the others in the order in which they came, then their pictures. Values only.
class NXVBLENGINE_TEST_EXPORT NxReadingOrder
{
public:
    struct Item
    {
        qint64 media = 0;
        NxReadWave wave = NxReadWave::Facts;
    };

    /// Behind all others of its wave. One that waits already keeps its place.
    void add(qint64 media, NxReadWave wave);
    /// Before all that nobody looks at.
    void addVisible(qint64 media, NxReadWave wave);
    /// Nobody looks any more: what was visible waits like the others, before them.
    void forgetVisible();
    void remove(qint64 media);
    void clear();
    [[nodiscard]] std::optional<Item> take();
    [[nodiscard]] bool contains(qint64 media, NxReadWave wave) const;
    [[nodiscard]] qint64 waiting(NxReadWave wave) const;
    /// For tests: places that take memory.
    [[nodiscard]] size_t placesKept() const;

private:
    /// A place in a line; it counts as long as its media holds this very ticket.
    struct Place
    {
        qint64 media = 0;
        quint64 ticket = 0;
    };
    struct Line
    {
        std::deque<Place> places; // Some may have been left.
        QHash<qint64, quint64> tickets; // Of the media that wait.
    };
    static constexpr size_t Waves = 2;

    [[nodiscard]] static std::optional<qint64> takeFirst(Line *line);
    static void dropLeftPlaces(Line *line);
    [[nodiscard]] Place newPlace(Line *line, qint64 media);

    std::array<Line, Waves> m_visible; // By wave.
    std::array<Line, Waves> m_others;
    quint64 m_lastTicket = 0;
};
