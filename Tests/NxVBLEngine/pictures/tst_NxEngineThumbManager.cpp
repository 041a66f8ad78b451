// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CachedPictures.h"

#include <EngineEvents.h>
#include <EngineFixture.h>

#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLModel/INxBsThumbManager.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QtTest>

#include <memory>

using namespace CachedPictures;

namespace {

constexpr QSize Small{160, 90};

using Handle = std::unique_ptr<INxBsThumbManager, void (*)(INxBsThumbManager *)>;

Handle newHandle()
{
    return {createBsThumbManager(), &releaseThumbManager};
}

/// An engine that reads nothing by itself, and media whose pictures were made before.
struct Library
{
    const NxTempDir dir;
    std::unique_ptr<NxEmbeddedEngine> engine;
    std::unique_ptr<NxMediaEngineDoor> door;

    Library()
    {
        NxEmbeddedEngine::Options options;
        options.backups = false;
        options.readsFootage = false;
        options.pictureFolder = dir.filePath(QStringLiteral("pictures"));
        engine = std::make_unique<NxEmbeddedEngine>(options);
        door = std::make_unique<NxMediaEngineDoor>(engine.get());
    }
    ~Library() { leave(); }
    void leave()
    {
        door.reset();
        engine.reset();
    }
    void createProject(const QString &name)
    {
        const auto created = engine->createProject(dir.filePath(name));
        if (!created)
            qFatal("%s", qUtf8Printable(created.errorText()));
    }
    NxEngineMedia *addMade(int number)
    {
        NxProjectMemory *memory =
            static_cast<NxEngineProject *>(engine->currentProject())->memory();
        NxMediaSeed seed;
        seed.path = dir.write(QStringLiteral("%1.mp4").arg(number));
        NxEngineFolder *section =
            memory->category(NXVBLMODEL::mctMedia)->folder(NXVBLMODEL::fidRoot);
        NxEngineMedia *media = memory->addNewMedia(section, {seed}).first();
        NxFootageRecord record;
        record.state = NxReadState::Read;
        record.fingerprint = contents(number);
        record.cover = record.strip = NxPictureState::Made;
        memory->setFootage(media, record);
        const QString folder = dir.filePath(QStringLiteral("pictures"));
        write(folder, record.fingerprint, NxPictureKind::Cover, jpeg(WholeCover));
        write(folder, record.fingerprint, NxPictureKind::Strip, jpeg(WholeStrip));
        return media;
    }
};

} // namespace

/// A painter's handle lives as long as the painter, whatever becomes of projects.
class tst_NxEngineThumbManager : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aHandleMadeBeforeAProjectServesIt();
    void aHandleServesTheNextProject();
    void aHandleOutlivesProjectAndEngine();
    void oneHandleGivesUpNothingOfAnothers();
    void withoutAProjectThereAreNoPictures();
    void whoAskedIsToldWhenAPictureComes();
    void onlyWhoAskedIsTold();
    void whoGaveUpIsNotTold();
    void theNextProjectTellsAsWell();
    void whoIsToldMayDoAnything_data();
    void whoIsToldMayDoAnything();
    void nobodyIsToldAfterwards();
};

void tst_NxEngineThumbManager::aHandleMadeBeforeAProjectServesIt()
{
    Library f;
    const Handle handle = newHandle();
    QVERIFY(handle);
    f.createProject(QStringLiteral("a.brevano"));
    NxEngineMedia *media = f.addMade(1);
    QVERIFY(handle->thumbnail(media, Small).isNull());
    QVERIFY(handle->filmStrip(media).isNull());
    QTRY_COMPARE(handle->thumbnail(media, Small).size(), Small);
    QTRY_COMPARE(handle->filmStrip(media).size(), WholeStrip);
}

void tst_NxEngineThumbManager::aHandleServesTheNextProject()
{
    Library f;
    f.createProject(QStringLiteral("a.brevano"));
    const Handle handle = newHandle();
    NxEngineMedia *first = f.addMade(1);
    QTRY_VERIFY(!handle->thumbnail(first, Small).isNull());
    QVERIFY(f.engine->closeProject());
    QVERIFY(handle->thumbnail(nullptr, Small).isNull());
    f.createProject(QStringLiteral("b.brevano"));
    NxEngineMedia *second = f.addMade(2);
    QTRY_VERIFY(!handle->thumbnail(second, Small).isNull());
}

void tst_NxEngineThumbManager::aHandleOutlivesProjectAndEngine()
{
    Library f;
    f.createProject(QStringLiteral("a.brevano"));
    Handle handle = newHandle();
    NxEngineMedia *media = f.addMade(1);
    QVERIFY(handle->thumbnail(media, Small).isNull()); // On its way.
    QVERIFY(f.engine->closeProject());
    handle->cancelRequests();
    QVERIFY(handle->thumbnail(nullptr, Small).isNull());
    f.leave();
    QVERIFY(handle->thumbnail(nullptr, Small).isNull());
    QVERIFY(handle->filmStrip(nullptr).isNull());
    handle->cancelRequests();
    handle.reset();
}

void tst_NxEngineThumbManager::oneHandleGivesUpNothingOfAnothers()
{
    Library f;
    f.createProject(QStringLiteral("a.brevano"));
    Handle one = newHandle();
    const Handle other = newHandle();
    QVERIFY(one != other);
    QVector<NxEngineMedia *> media;
    for (int i = 0; i < 5; ++i)
        media.append(f.addMade(i));
    const QString folder = f.dir.filePath(QStringLiteral("pictures"));
    Jam first(folder, contents(0));
    Jam second(folder, contents(1));
    f.engine->refreshExistence(); // From now on only pictures are told of.
    EngineEvents events(media.first()->folder()->category());
    for (NxEngineMedia *each : std::as_const(media)) {
        QVERIFY(one->thumbnail(each, Small).isNull());
        QVERIFY(other->thumbnail(each, Small).isNull());
    }
    one->cancelRequests();
    one.reset();
    NxEngineFolder *section = media.at(0)->folder(); // Nobody shall make those two anew.
    QVERIFY(section->category()->engineItemManager()->removeMediaItems(section,
                                                                       {media.at(0), media.at(1)}));
    first.release();
    second.release();
    QStringList told;
    for (int i = 2; i < media.size(); ++i) {
        const auto isTold = [&] {
            told += events.take();
            return told.contains(QStringLiteral("state ") + media.at(i)->name());
        };
        QTRY_VERIFY(isTold());
        QVERIFY(!other->thumbnail(media.at(i), Small).isNull());
    }
}

void tst_NxEngineThumbManager::withoutAProjectThereAreNoPictures()
{
    Library f;
    const Handle handle = newHandle();
    QVERIFY(handle->thumbnail(nullptr, Small).isNull());
    QVERIFY(handle->filmStrip(nullptr).isNull());
    handle->cancelRequests();
}

void tst_NxEngineThumbManager::whoAskedIsToldWhenAPictureComes()
{
    Library f;
    const Handle handle = newHandle();
    QVERIFY(handle->servesFilmStrips());
    QVector<INxAbstractMedia *> told;
    QVector<QSize> had;
    handle->setArrivalTeller([&](INxAbstractMedia *media) {
        told.append(media);
        had.append(handle->filmStrip(media).size());
    });
    f.createProject(QStringLiteral("a.brevano"));
    NxEngineMedia *media = f.addMade(1);
    QVERIFY(handle->filmStrip(media).isNull());
    QVERIFY(handle->filmStrip(media).isNull());
    QTRY_COMPARE(told, QVector<INxAbstractMedia *>{media});
    QCOMPARE(had, QVector<QSize>{WholeStrip}); // It may be had at once.
    QVERIFY(!handle->filmStrip(media).isNull());
    QVERIFY(handle->thumbnail(media, Small).isNull());
    QTRY_COMPARE(told.size(), 2);
}

void tst_NxEngineThumbManager::onlyWhoAskedIsTold()
{
    Library f;
    f.createProject(QStringLiteral("a.brevano"));
    NxEngineMedia *media = f.addMade(1);
    NxEngineMedia *copy = f.addMade(1);
    NxEngineMedia *other = f.addMade(2);
    const Handle one = newHandle();
    const Handle another = newHandle();
    QVector<INxAbstractMedia *> toldOne;
    QVector<INxAbstractMedia *> toldAnother;
    one->setArrivalTeller([&](INxAbstractMedia *come) { toldOne.append(come); });
    another->setArrivalTeller([&](INxAbstractMedia *come) { toldAnother.append(come); });
    QVERIFY(one->filmStrip(media).isNull());
    QVERIFY(another->filmStrip(copy).isNull()); // One picture serves both.
    QVERIFY(another->filmStrip(other).isNull());
    QTRY_COMPARE(toldAnother.size(), 2);
    QVERIFY(toldAnother.contains(copy));
    QVERIFY(toldAnother.contains(other));
    QTRY_COMPARE(toldOne, QVector<INxAbstractMedia *>{media});
}

void tst_NxEngineThumbManager::whoGaveUpIsNotTold()
{
    Library f;
    f.createProject(QStringLiteral("a.brevano"));
    NxEngineMedia *media = f.addMade(1);
    const Handle one = newHandle();
    const Handle another = newHandle();
    int toldOne = 0;
    int toldAnother = 0;
    one->setArrivalTeller([&](INxAbstractMedia *) { ++toldOne; });
    another->setArrivalTeller([&](INxAbstractMedia *) { ++toldAnother; });
    QVERIFY(one->filmStrip(media).isNull());
    QVERIFY(another->filmStrip(media).isNull());
    one->cancelRequests(); // Also if it is being fetched already.
    QTRY_COMPARE(toldAnother, 1);
    QCOMPARE(toldOne, 0);
}

void tst_NxEngineThumbManager::theNextProjectTellsAsWell()
{
    Library f;
    f.createProject(QStringLiteral("a.brevano"));
    const Handle handle = newHandle();
    int told = 0;
    handle->setArrivalTeller([&](INxAbstractMedia *) { ++told; });
    QVERIFY(handle->filmStrip(f.addMade(1)).isNull());
    QTRY_COMPARE(told, 1);
    QVERIFY(f.engine->closeProject());
    f.createProject(QStringLiteral("b.brevano"));
    QVERIFY(handle->filmStrip(f.addMade(2)).isNull());
    QTRY_COMPARE(told, 2);
}

void tst_NxEngineThumbManager::whoIsToldMayDoAnything_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("let go of the handle") << QStringLiteral("release");
    QTest::newRow("tell somebody else") << QStringLiteral("replace");
    QTest::newRow("close the project") << QStringLiteral("close");
}

void tst_NxEngineThumbManager::whoIsToldMayDoAnything()
{
    QFETCH(QString, what);
    Library f;
    f.createProject(QStringLiteral("a.brevano"));
    Handle handle = newHandle();
    int told = 0;
    handle->setArrivalTeller([&](INxAbstractMedia *) {
        ++told;
        if (what == QLatin1String("release"))
            handle.reset();
        else if (what == QLatin1String("replace"))
            handle->setArrivalTeller([&](INxAbstractMedia *) { told += 10; });
        else
            QVERIFY(f.engine->closeProject());
    });
    QVERIFY(handle->filmStrip(f.addMade(1)).isNull());
    QVERIFY(handle->filmStrip(f.addMade(2)).isNull());
    if (what != QLatin1String("replace")) {
        QTRY_COMPARE(told, 1);
        return;
    }
    QTRY_VERIFY(told > 0);
    QVERIFY(handle->filmStrip(f.addMade(3)).isNull()); // Asked for through the new one.
    QTRY_VERIFY(told > 10);
}

void tst_NxEngineThumbManager::nobodyIsToldAfterwards()
{
    Library f;
    f.createProject(QStringLiteral("a.brevano"));
    NxEngineMedia *media = f.addMade(1);
    const Handle witness = newHandle();
    int told = 0;
    int seen = 0;
    witness->setArrivalTeller([&](INxAbstractMedia *) { ++seen; });
    {
        const Handle handle = newHandle();
        handle->setArrivalTeller([&](INxAbstractMedia *) { ++told; });
        QVERIFY(handle->filmStrip(media).isNull());
    }
    const Handle silent = newHandle();
    silent->setArrivalTeller([&](INxAbstractMedia *) { ++told; });
    QVERIFY(silent->filmStrip(media).isNull());
    silent->setArrivalTeller({});
    QVERIFY(witness->filmStrip(media).isNull());
    QTRY_COMPARE(seen, 1);
    QCOMPARE(told, 0);
}

NX_TEST_MAIN(tst_NxEngineThumbManager)
#include "tst_NxEngineThumbManager.moc"
