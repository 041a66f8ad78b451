// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxFolderAnnouncer.h>

#include <EngineEvents.h>
#include <EngineFixture.h>
#include <Support/NxTestMain.h>

#include <QElapsedTimer>
#include <QTest>

#include <functional>
#include <memory>

namespace {

/// Calls a function with every folder that is announced.
class FolderObserver : public INxMediaItemEventObserver
{
public:
    FolderObserver(NxEngineCategory *category, std::function<void(INxFolderMedia *)> hear)
        : m_category(category),
          m_hear(std::move(hear))
    {
        m_category->itemObservers.add(this);
    }
    ~FolderObserver() override { m_category->itemObservers.remove(this); }
    void onAllMediaChangedFinishEvent(INxFolderMedia *folder) override { m_hear(folder); }

private:
    NxEngineCategory *const m_category;
    const std::function<void(INxFolderMedia *)> m_hear;
};

struct Announcing : EngineFixture
{
    Announcing()
        : announcer(std::make_unique<NxFolderAnnouncer>(&memory)),
          parent(addFolder(section, QStringLiteral("parent"))),
          child(addFolder(parent, QStringLiteral("child"))),
          grandchild(addFolder(child, QStringLiteral("grandchild"))),
          inParent(addMedia(parent, QStringLiteral("a"))),
          inChild(addMedia(child, QStringLiteral("b"))),
          inGrandchild(addMedia(grandchild, QStringLiteral("c")))
    {
    }
    void noteAll() const
    {
        for (const NxEngineMedia *media : {inChild, inParent, inGrandchild, inChild})
            announcer->note(media);
    }

    std::unique_ptr<NxFolderAnnouncer> announcer;
    NxEngineFolder *const parent;
    NxEngineFolder *const child;
    NxEngineFolder *const grandchild;
    NxEngineMedia *const inParent;
    NxEngineMedia *const inChild;
    NxEngineMedia *const inGrandchild;
};

const QStringList ChildrenFirst{QStringLiteral("all changed grandchild"),
                                QStringLiteral("all changed child"),
                                QStringLiteral("all changed parent")};

} // namespace

class tst_NxFolderAnnouncer : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void childrenAreAnnouncedBeforeTheirParents();
    void nothingNotedNothingSaid();
    void aFolderIsAnnouncedOnceASecond();
    void removedFoldersAreNotAnnounced();
    void removedMediaHaveNoFolder();
    void anObserverMayRemoveTheOtherFolders();
    void anObserverMayEndTheAnnouncer();
    void anObserverMayAnnounceMore();
    void manyFoldersDoNotHoldTheEventLoop();
};

void tst_NxFolderAnnouncer::childrenAreAnnouncedBeforeTheirParents()
{
    Announcing f;
    f.noteAll();
    EngineEvents events(f.category);
    QVERIFY(f.announcer->isAnythingNoted());
    f.announcer->announce();
    QTRY_VERIFY(!f.announcer->isAnythingNoted());
    QCOMPARE(events.take(), ChildrenFirst);
}

void tst_NxFolderAnnouncer::nothingNotedNothingSaid()
{
    Announcing f;
    EngineEvents events(f.category);
    f.announcer->announce();
    QCOMPARE(events.take(), QStringList());
}

void tst_NxFolderAnnouncer::aFolderIsAnnouncedOnceASecond()
{
    Announcing f;
    EngineEvents events(f.category);
    QElapsedTimer clock;
    clock.start();
    f.announcer->note(f.inChild);
    f.announcer->announce();
    QTRY_VERIFY(!f.announcer->isAnythingNoted());
    QCOMPARE(events.take(), QStringList(ChildrenFirst.at(1)));
    for (int i = 0; i < 10; ++i) {
        f.announcer->note(f.inChild);
        f.announcer->announce();
    }
    f.announcer->note(f.inParent); // It was not announced yet and needs not wait.
    f.announcer->announce();
    const bool isWithinTheSecond = clock.elapsed() < NxFolderAnnouncer::ShortestInterval;
    QTRY_VERIFY(!f.announcer->isAnythingNoted());
    QStringList told = events.take();
    if (isWithinTheSecond)
        QCOMPARE(told, QStringList({ChildrenFirst.at(2), ChildrenFirst.at(1)}));
    told.sort();
    QCOMPARE(told, QStringList({ChildrenFirst.at(1), ChildrenFirst.at(2)}));
    QVERIFY(clock.elapsed() >= NxFolderAnnouncer::ShortestInterval - 1); // Both are cut off.
}

void tst_NxFolderAnnouncer::removedFoldersAreNotAnnounced()
{
    Announcing f;
    f.noteAll();
    QVERIFY(f.folders->removeFolder(f.child));
    EngineEvents events(f.category);
    f.announcer->announce();
    QTRY_VERIFY(!f.announcer->isAnythingNoted());
    QCOMPARE(events.take(), QStringList(ChildrenFirst.at(2)));
}

void tst_NxFolderAnnouncer::removedMediaHaveNoFolder()
{
    Announcing f;
    QVERIFY(f.items->removeMediaItems(f.child, {f.inChild}));
    f.announcer->note(f.inChild);
    QVERIFY(!f.announcer->isAnythingNoted());
}

void tst_NxFolderAnnouncer::anObserverMayRemoveTheOtherFolders()
{
    Announcing f;
    f.noteAll();
    QStringList heard;
    FolderObserver observer(f.category, [&](INxFolderMedia *folder) {
        heard.append(folder->name());
        if (heard.size() == 1)
            QVERIFY(f.folders->removeFolder(f.child));
    });
    f.announcer->announce();
    QTRY_COMPARE(heard, QStringList({QStringLiteral("grandchild"), QStringLiteral("parent")}));
    QTRY_VERIFY(!f.announcer->isAnythingNoted());
}

void tst_NxFolderAnnouncer::anObserverMayEndTheAnnouncer()
{
    Announcing f;
    f.noteAll();
    int heard = 0;
    FolderObserver observer(f.category, [&](INxFolderMedia *) {
        ++heard;
        f.announcer.reset();
    });
    f.announcer->announce();
    QTRY_COMPARE(heard, 1);
}

void tst_NxFolderAnnouncer::anObserverMayAnnounceMore()
{
    Announcing f;
    f.announcer->note(f.inChild);
    QStringList heard;
    FolderObserver observer(f.category, [&](INxFolderMedia *folder) {
        heard.append(folder->name());
        if (heard.size() > 1)
            return;
        f.announcer->note(f.inParent);
        f.announcer->announce();
    });
    f.announcer->announce();
    QTRY_COMPARE(heard, QStringList({QStringLiteral("child"), QStringLiteral("parent")}));
    QTRY_VERIFY(!f.announcer->isAnythingNoted());
}

void tst_NxFolderAnnouncer::manyFoldersDoNotHoldTheEventLoop()
{
    Announcing f;
    constexpr int many = 100;
    for (int i = 0; i < many; ++i) {
        const QString name = QString::number(i);
        f.announcer->note(f.addMedia(f.addFolder(f.section, name), name));
    }
    int heard = 0;
    FolderObserver observer(f.category, [&](INxFolderMedia *) {
        ++heard;
        QElapsedTimer clock;
        clock.start();
        while (!clock.hasExpired(1)) {}
    });
    f.announcer->announce();
    QVERIFY2(heard <= 10, qPrintable(QString::number(heard)));
    QTRY_COMPARE(heard, many);
}

NX_TEST_MAIN(tst_NxFolderAnnouncer)
#include "tst_NxFolderAnnouncer.moc"
