// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "nxSharedCounter.h"

#include <NxCore/NxLazySingleton.h>

#include <Support/NxTestMain.h>

#include <QLibrary>
#include <QProcess>
#include <QTest>

#include <atomic>
#include <set>
#include <thread>
#include <vector>

namespace {

QStringList events; // What happened, in order.

class First : public NxLazySingleton<First>
{
public:
    First() { events += QStringLiteral("first made"); }
    ~First() override { events += QStringLiteral("first gone"); }
    int value = 0;
};

class Second : public NxLazySingleton<Second>
{
public:
    Second() { events += QStringLiteral("second made"); }
    ~Second() override { events += QStringLiteral("second gone"); }
};

/// Needs Second to be made and to live longer.
class User : public NxLazySingleton<User>
{
public:
    User() : m_second(Second::instance()) { events += QStringLiteral("user made"); }
    ~User() override
    {
        const bool stillThere = Second::isActive() && Second::instance() == m_second;
        events += stillThere ? QStringLiteral("user gone") : QStringLiteral("user orphaned");
    }

private:
    Second *m_second;
};

/// Made with difficulty, so that threads meet in its constructor.
class Slow : public NxLazySingleton<Slow>
{
public:
    static std::atomic<int> made;

private:
    friend class NxLazySingleton<Slow>;
    Slow()
    {
        ++made;
        std::this_thread::yield();
    }
};
std::atomic<int> Slow::made{0};

/// Goes at process exit, not with the others.
class Detached : public NxLazySingleton<Detached>
{
public:
    bool attachManager() const override { return false; }
};

} // namespace

class tst_NxLazySingleton : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isMadeWhenFirstAskedFor();
    void isMadeAnewAfterRelease();
    void releaseWithoutAnInstanceDoesNothing();
    void managerDestroysInReverseOrder();
    void managerDestroysThroughTheHook();
    void mayUseOthersWhileItIsMade();
    void goesWithTheApplication();
    void mayStayAwayFromTheManager();
    void isMadeOnceByManyThreads();
    void isOneInAllLibraries();

    void init() { events.clear(); }
    void cleanup() { NxLazySingletonManager::destroyAll(); }
};

void tst_NxLazySingleton::isMadeWhenFirstAskedFor()
{
    QVERIFY(!First::isActive());
    QVERIFY(events.isEmpty());
    First *first = First::instance();
    QVERIFY(First::isActive());
    QCOMPARE(First::instance(), first);
    QCOMPARE(events, QStringList{QStringLiteral("first made")});
}

void tst_NxLazySingleton::isMadeAnewAfterRelease()
{
    First::instance()->value = 5;
    First::release();
    QVERIFY(!First::isActive());
    QCOMPARE(NxLazySingletonManager::count(), 0);
    QCOMPARE(First::instance()->value, 0);
    QCOMPARE(NxLazySingletonManager::count(), 1);
}

void tst_NxLazySingleton::releaseWithoutAnInstanceDoesNothing()
{
    First::release();
    First::release();
    QVERIFY(events.isEmpty());
}

void tst_NxLazySingleton::managerDestroysInReverseOrder()
{
    Second::instance();
    First::instance();
    events.clear();
    NxLazySingletonManager::destroyAll();
    QCOMPARE(events, (QStringList{QStringLiteral("first gone"), QStringLiteral("second gone")}));
    QVERIFY(!First::isActive() && !Second::isActive());
}

void tst_NxLazySingleton::managerDestroysThroughTheHook()
{
    INxLazySingleton *first = First::instance();
    QVERIFY(first->attachManager());
    first->destory();
    QVERIFY(!First::isActive());
    QCOMPARE(NxLazySingletonManager::count(), 0);
}

void tst_NxLazySingleton::mayUseOthersWhileItIsMade()
{
    User::instance();
    QCOMPARE(events, (QStringList{QStringLiteral("second made"), QStringLiteral("user made")}));
    events.clear();
    NxLazySingletonManager::destroyAll();
    QCOMPARE(events, (QStringList{QStringLiteral("user gone"), QStringLiteral("second gone")}));
}

void tst_NxLazySingleton::goesWithTheApplication()
{
    // This program has its one application already; another process shows the end of one.
    QProcess probe;
    probe.start(QStringLiteral(NX_PROBE), QStringList());
    QVERIFY(probe.waitForFinished());
    QCOMPARE(probe.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(probe.readAllStandardOutput()),
             QStringLiteral("made 1\ngone 1, application there\nmain ends\n"
                            "made 2\ngone 2, no application\n"));
}

void tst_NxLazySingleton::mayStayAwayFromTheManager()
{
    Detached::instance();
    QCOMPARE(NxLazySingletonManager::count(), 0);
    NxLazySingletonManager::destroyAll();
    QVERIFY(Detached::isActive());
    Detached::release();
    QVERIFY(!Detached::isActive());
}

void tst_NxLazySingleton::isMadeOnceByManyThreads()
{
    constexpr int rounds = 50;
    constexpr int threads = 4;
    for (int round = 1; round <= rounds; ++round) {
        std::vector<Slow *> seen(threads, nullptr);
        std::vector<std::thread> askers;
        for (int t = 0; t < threads; ++t)
            askers.emplace_back([&mine = seen[std::size_t(t)]] { mine = Slow::instance(); });
        for (std::thread &asker : askers)
            asker.join();
        QCOMPARE(std::set<Slow *>(seen.begin(), seen.end()).size(), std::size_t(1));
        QCOMPARE(int(Slow::made), round);
        Slow::release();
    }
}

void tst_NxLazySingleton::isOneInAllLibraries()
{
    QLibrary library(QStringLiteral(NX_LIBRARY));
    QVERIFY2(library.load(), qUtf8Printable(library.errorString()));
    const auto countInLibrary = reinterpret_cast<int (*)()>(library.resolve("nxCountInLibrary"));
    QVERIFY(countInLibrary);
    NxLazySingleton<nxSharedCounter>::instance()->count = 10;
    QCOMPARE(countInLibrary(), 11);
    QCOMPARE(NxLazySingleton<nxSharedCounter>::instance()->count, 11);
}

NX_TEST_MAIN(tst_NxLazySingleton)
#include "tst_NxLazySingleton.moc"
