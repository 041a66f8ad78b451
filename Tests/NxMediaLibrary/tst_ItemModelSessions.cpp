// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Support/NxSeeds.h>
#include <Support/NxTestMain.h>

#include <QTest>

#include "ItemSession.h"

namespace {

constexpr ItemSession::Yard SmallYard{60, 150};
constexpr ItemSession::Yard LargeYard{3000, 3400, true};
constexpr int SmallEvents = 5000;
constexpr int LargeEvents = 2000;
constexpr int FixedSeeds = 20;
constexpr int FixedLargeSeeds = 3;
constexpr int ShrinkingEffort = 100; // Times as many events as the session has.

ItemSession::Events eventsOf(quint32 seed, int count)
{
    std::mt19937 random(seed);
    ItemSession::Events events;
    for (int i = 0; i < count; ++i)
        events.append(ItemSession::randomEvent(random));
    return events;
}

/// How many events it takes until model and plain model differ; -1 when they never do.
int eventsToDifference(const ItemSession::Yard &yard, const ItemSession::Events &events)
{
    ItemSession session(yard);
    if (!session.difference().isEmpty())
        return 0;
    for (int i = 0; i < events.size(); ++i) {
        session.perform(events.at(i));
        if (!session.difference().isEmpty())
            return i + 1;
    }
    return -1;
}

/// Leaves out what can be left out with a difference left, as far as so many more events allow.
ItemSession::Events shrunk(const ItemSession::Yard &yard, ItemSession::Events events, int more)
{
    for (int size = events.size(); size > 0 && more > 0;) {
        const int before = events.size();
        for (int at = 0; at < events.size() && more > 0;) {
            ItemSession::Events fewer = events.mid(0, at) + events.mid(at + size);
            const int needed = eventsToDifference(yard, fewer);
            more -= fewer.size();
            if (needed < 0) {
                at += size;
            } else {
                fewer.resize(needed);
                events = fewer;
            }
        }
        if (size > 1 || events.size() == before)
            size /= 2;
    }
    return events;
}

QString storyOf(const ItemSession::Yard &yard, const ItemSession::Events &events)
{
    ItemSession session(yard, true);
    QString difference = session.difference();
    for (const ItemSession::Event &event : events) {
        session.perform(event);
        difference = session.difference();
    }
    return session.story().join(QLatin1Char('\n')) + QLatin1Char('\n') + difference;
}

void compareSession(const ItemSession::Yard &yard, quint32 seed, int count)
{
    ItemSession::Events events = eventsOf(seed, count);
    const int needed = eventsToDifference(yard, events);
    if (needed < 0)
        return;
    events.resize(needed);
    events = shrunk(yard, events, ShrinkingEffort * count);
    QFAIL(qPrintable(QStringLiteral("seed %1, after %2 events, of which these are enough:\n%3")
                         .arg(seed)
                         .arg(needed)
                         .arg(storyOf(yard, events))));
}

} // namespace

class tst_ItemModelSessions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void showsAndTellsWhatThePlainModelDoes_data();
    void showsAndTellsWhatThePlainModelDoes();
    void doesSoInALargeLibrary_data();
    void doesSoInALargeLibrary();
};

void tst_ItemModelSessions::showsAndTellsWhatThePlainModelDoes_data()
{
    nxAddSeeds(FixedSeeds);
}

void tst_ItemModelSessions::showsAndTellsWhatThePlainModelDoes()
{
    QFETCH(quint32, seed);
    compareSession(SmallYard, seed, SmallEvents);
}

void tst_ItemModelSessions::doesSoInALargeLibrary_data()
{
    nxAddSeeds(FixedLargeSeeds);
}

void tst_ItemModelSessions::doesSoInALargeLibrary()
{
    QFETCH(quint32, seed);
    compareSession(LargeYard, seed, LargeEvents);
}

NX_TEST_MAIN(tst_ItemModelSessions)
#include "tst_ItemModelSessions.moc"
