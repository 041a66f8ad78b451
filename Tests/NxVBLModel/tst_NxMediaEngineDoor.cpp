// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <NxVBLModel/INxMediaEngine.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <memory>

class tst_NxMediaEngineDoor : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QVERIFY(!NxMediaEngineDoor::engine()); }
    void cleanup() { QVERIFY(!NxMediaEngineDoor::engine()); }

    void installsForAsLongAsItLives();
    void refusesASecondEngine();
    void refusesTheSameEngineTwice();
    void refusesNull();
    void installsAgainAfterTheFirstIsGone();
    void ownsNothing();
};

void tst_NxMediaEngineDoor::installsForAsLongAsItLives()
{
    INxMediaEngine engine;
    const NxMediaEngineDoor door(&engine);
    QVERIFY(door.isInstalled());
    QCOMPARE(NxMediaEngineDoor::engine(), &engine);
}

void tst_NxMediaEngineDoor::refusesASecondEngine()
{
    INxMediaEngine first;
    INxMediaEngine second;
    const NxMediaEngineDoor door(&first);
    NxTestLog::expectError(QStringLiteral("a media engine is installed already"));
    {
        const NxMediaEngineDoor refused(&second);
        QVERIFY(!refused.isInstalled());
        QCOMPARE(NxMediaEngineDoor::engine(), &first);
    }
    QCOMPARE(NxMediaEngineDoor::engine(), &first);
}

void tst_NxMediaEngineDoor::refusesTheSameEngineTwice()
{
    INxMediaEngine engine;
    const NxMediaEngineDoor door(&engine);
    NxTestLog::expectError(QStringLiteral("a media engine is installed already"));
    {
        const NxMediaEngineDoor refused(&engine);
        QVERIFY(!refused.isInstalled());
    }
    QCOMPARE(NxMediaEngineDoor::engine(), &engine);
}

void tst_NxMediaEngineDoor::refusesNull()
{
    NxTestLog::expectError(QStringLiteral("there is no media engine to install"));
    const NxMediaEngineDoor door(nullptr);
    QVERIFY(!door.isInstalled());
    QVERIFY(!NxMediaEngineDoor::engine());
}

void tst_NxMediaEngineDoor::installsAgainAfterTheFirstIsGone()
{
    INxMediaEngine first;
    INxMediaEngine second;
    auto door = std::make_unique<NxMediaEngineDoor>(&first);
    door.reset();
    const NxMediaEngineDoor next(&second);
    QVERIFY(next.isInstalled());
    QCOMPARE(NxMediaEngineDoor::engine(), &second);
}

void tst_NxMediaEngineDoor::ownsNothing()
{
    struct CountedEngine final : INxMediaEngine
    {
        explicit CountedEngine(int &count) : deaths(count) {}
        ~CountedEngine() override { ++deaths; }
        int &deaths;
    };
    int deaths = 0;
    {
        CountedEngine engine(deaths);
        {
            const NxMediaEngineDoor door(&engine);
        }
        QCOMPARE(deaths, 0);
    }
    QCOMPARE(deaths, 1);
}

NX_TEST_MAIN(tst_NxMediaEngineDoor)
#include "tst_NxMediaEngineDoor.moc"
