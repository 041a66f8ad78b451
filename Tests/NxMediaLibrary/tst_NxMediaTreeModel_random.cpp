// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Support/NxSeeds.h>
#include <Support/NxTestMain.h>

#include <QtTest>

#include <algorithm>

#include "TreeSession.h"

/// Thousands of events in any order: model, viewer and plain tree agree after each.
class tst_NxMediaTreeModel_random : public QObject
{
    Q_OBJECT

    static constexpr int Events = 5000;
    static constexpr quint32 Seeds = 20;

    /// Both occur in every long session.
    static void expectRefusals()
    {
        NxTestLog::expectErrors(QStringLiteral("find folder failed: "));
        NxTestLog::expectErrors(QStringLiteral("a folder change inside another one is ignored: "));
    }

private Q_SLOTS:
    void manyEventsAreFollowed_data()
    {
        nxAddSeeds(Seeds);
    }

    void manyEventsAreFollowed()
    {
        QFETCH(quint32, seed);
        expectRefusals();
        const QVector<TreeEvent> events = TreeSession::randomEvents(seed, Events);
        if (TreeSession::playAll(events).isEmpty())
            return;
        const QVector<TreeEvent> few =
            TreeSession::shrunk(events, [](const QVector<TreeEvent> &some) {
                return !TreeSession::playAll(some).isEmpty();
            });
        QFAIL(qPrintable(TreeSession::playAll(few) + TreeSession::text(few)));
    }

    void aFailingListOfEventsIsCutDownToWhatMatters()
    {
        const auto fails = [](const QVector<TreeEvent> &events) {
            const auto isA = [](int wanted) {
                return [wanted](const TreeEvent &event) { return event.a == wanted; };
            };
            const auto first = std::find_if(events.begin(), events.end(), isA(17));
            return std::find_if(first, events.end(), isA(42)) != events.end();
        };
        QVector<TreeEvent> events;
        for (int i = 0; i < 1000; ++i)
            events.append({0, i % 100, 0, 0});
        const QVector<TreeEvent> few = TreeSession::shrunk(events, fails);
        QCOMPARE(few.size(), 2);
        QCOMPARE(few.first().a, 17);
        QCOMPARE(few.last().a, 42);
    }
};

NX_TEST_MAIN(tst_NxMediaTreeModel_random)
#include "tst_NxMediaTreeModel_random.moc"
