// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxObserverList.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include <functional>

namespace {

struct Watcher
{
    QString name;
    std::function<void()> reaction;
};

} // namespace

class tst_NxObserverList : public QObject
{
    Q_OBJECT

private:
    QString told;
    Watcher a{QStringLiteral("a"), {}};
    Watcher b{QStringLiteral("b"), {}};
    Watcher c{QStringLiteral("c"), {}};
    NxObserverList<Watcher> list;

    void tell()
    {
        list.tell([this](Watcher *watcher) {
            told += watcher->name;
            if (watcher->reaction)
                watcher->reaction();
        });
    }

private Q_SLOTS:
    void init()
    {
        list = NxObserverList<Watcher>();
        told.clear();
        for (Watcher *watcher : {&a, &b, &c})
            watcher->reaction = {};
    }

    void tellsInTheOrderOfRegistration()
    {
        QVERIFY(list.isEmpty());
        QVERIFY(list.add(&b));
        QVERIFY(list.add(&a));
        QVERIFY(!list.isEmpty());
        tell();
        QCOMPARE(told, QStringLiteral("ba"));
    }

    void refusesNullAndWhoeverIsThereAlready()
    {
        QVERIFY(list.add(&a));
        QVERIFY(!list.add(&a));
        QVERIFY(!list.add(nullptr));
        tell();
        QCOMPARE(told, QStringLiteral("a"));
    }

    void whoLeavesWhileBeingToldIsNotToldAgain()
    {
        list.add(&a);
        list.add(&b);
        list.add(&c);
        a.reaction = [this] { list.remove(&b); };
        tell();
        QCOMPARE(told, QStringLiteral("ac"));
        tell();
        QCOMPARE(told, QStringLiteral("acac"));
    }

    void whoComesWhileOthersAreToldHearsOfTheNextEvent()
    {
        list.add(&a);
        a.reaction = [this] { list.add(&b); };
        tell();
        QCOMPARE(told, QStringLiteral("a"));
        tell();
        QCOMPARE(told, QStringLiteral("aab"));
    }

    void removingInsideANestedEventIsSafe()
    {
        list.add(&a);
        list.add(&b);
        a.reaction = [this] {
            a.reaction = {};
            tell();
            list.remove(&a);
        };
        tell();
        QCOMPARE(told, QStringLiteral("aabb"));
        QVERIFY(!list.isEmpty());
        list.remove(&b);
        QVERIFY(list.isEmpty());
    }

    void removingAStrangerDoesNothing()
    {
        list.add(&a);
        list.remove(&b);
        list.remove(nullptr);
        tell();
        QCOMPARE(told, QStringLiteral("a"));
    }
};

NX_TEST_MAIN(tst_NxObserverList)
#include "tst_NxObserverList.moc"
