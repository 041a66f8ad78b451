// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PreviewEngine.h"
#include "PreviewMedia.h"
#include "PreviewStand.h"

#include <NxCore/NxDiskBan.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QtTest>

#include <optional>

namespace {

/// An engine that hands out film strips from memory.
struct ServingEngine
{
    ServingEngine()
    {
        engine.shelf = &shelf;
        door.emplace(&engine);
    }

    StripShelf shelf;
    PreviewEngine engine;
    std::optional<NxMediaEngineDoor> door;
    StripItem item{QStringLiteral("strip.jpg")};
};

/// The helper goes first: it gives its handle back.
struct ServedStand : ServingEngine, PreviewStand
{
    /// The strip of a media comes into memory.
    void bring(INxAbstractMedia *media, const QImage &strip)
    {
        shelf.strips.insert(media, strip);
        if (shelf.teller)
            shelf.teller(media);
    }
};

/// Film strips in files, and no engine at all.
struct FileStand : PreviewStand
{
    QString write(const QString &name, const QImage &strip) const
    {
        const QString path = dir.filePath(name);
        if (!strip.save(path, "png"))
            qFatal("no picture can be written");
        return path;
    }

    const NxTempDir dir;
};

} // namespace

/// How film strips come: from the engine's memory, else from files, and nobody waits for them.
class tst_INxPreviewFrameHelper_arrivals : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aStripInMemoryPlaysAtOnce();
    void aStripThatComesLaterPlaysByItself();
    void itsFirstFrameIsToldAtOnce();
    void aStripThatComesUnwantedWaits();
    void aStripThatComesTooLateIsNotPlayed_data();
    void aStripThatComesTooLateIsNotPlayed();
    void anotherMediasStripIsNotTaken();
    void aMediaWithoutAStripIsNotAskedFor();
    void aStripWithoutAFrameIsNone_data();
    void aStripWithoutAFrameIsNone();
    void anotherEngineIsAskedWithAHandleOfItsOwn();
    void theHandleIsGivenBack();
    void theHelperMayGoWhenAStripComes();

    void aFileIsReadWithoutTheGuiThreadWaiting();
    void aFileIsReadWhereTheEngineServesNone();
    void aFileThatIsNotThereShowsNothing();
    void theFileIsLookedAtEachTime();
    void theLastFileAskedForIsShown();
    void theHelperMayGoWhileAFileIsRead();
};

void tst_INxPreviewFrameHelper_arrivals::aStripInMemoryPlaysAtOnce()
{
    ServedStand f;
    f.shelf.strips.insert(&f.item, filmStrip(162));
    f.helper.setMedia({}, &f.item);
    QCOMPARE(f.helper.getPlayThumbnail(), filmStrip(162));
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.isPlaying());
}

void tst_INxPreviewFrameHelper_arrivals::aStripThatComesLaterPlaysByItself()
{
    ServedStand f;
    f.helper.setMedia({}, &f.item);
    QVERIFY(f.helper.getPlayThumbnail().isNull());
    QVERIFY(!f.helper.playPreviewFrame());
    QVERIFY(!f.isPlaying());
    f.bring(&f.item, filmStrip(162));
    QVERIFY(f.isPlaying());
    QCOMPARE(f.helper.getPlayThumbnail(), filmStrip(162));
    QTRY_VERIFY(f.updates.size() > 1);
}

void tst_INxPreviewFrameHelper_arrivals::itsFirstFrameIsToldAtOnce()
{
    ServedStand f;
    f.helper.setMedia({}, &f.item);
    QVERIFY(!f.helper.playPreviewFrame());
    QVector<int> told;
    f.onUpdate = [&] { told.append(frameShown(f.frame())); };
    f.bring(&f.item, filmStrip(162));
    QCOMPARE(told, QVector<int>{0});
    QVERIFY(f.step());
    QCOMPARE(told, QVector<int>({0, 0}));
    QCOMPARE(frameShown(f.frame()), 1);
}

void tst_INxPreviewFrameHelper_arrivals::aStripThatComesUnwantedWaits()
{
    ServedStand f;
    f.helper.setMedia({}, &f.item);
    f.bring(&f.item, filmStrip(162));
    QVERIFY(!f.isPlaying());
    QVERIFY(f.updates.isEmpty());
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.isPlaying());
}

void tst_INxPreviewFrameHelper_arrivals::aStripThatComesTooLateIsNotPlayed_data()
{
    QTest::addColumn<QString>("meanwhile");
    QTest::newRow("stopped") << QStringLiteral("stop");
    QTest::newRow("disabled") << QStringLiteral("disable");
    QTest::newRow("another media") << QStringLiteral("other");
    QTest::newRow("the same media again") << QStringLiteral("same");
    QTest::newRow("no media") << QStringLiteral("none");
    QTest::newRow("a strip of the host's") << QStringLiteral("strip");
}

void tst_INxPreviewFrameHelper_arrivals::aStripThatComesTooLateIsNotPlayed()
{
    QFETCH(QString, meanwhile);
    ServedStand f;
    StripItem other(QStringLiteral("other.jpg"));
    f.helper.setMedia({}, &f.item);
    QVERIFY(!f.helper.playPreviewFrame());
    if (meanwhile == QLatin1String("stop"))
        f.helper.stopPreviewFrame();
    else if (meanwhile == QLatin1String("disable"))
        f.helper.setEnablePlayThumbnail(false);
    else if (meanwhile == QLatin1String("other"))
        f.helper.setMedia({}, &other);
    else if (meanwhile == QLatin1String("same"))
        f.helper.setMedia({}, &f.item);
    else if (meanwhile == QLatin1String("none"))
        f.helper.setMedia({}, nullptr);
    else
        f.helper.setPlayThumbnail(filmStrip(243));
    f.bring(&f.item, filmStrip(162));
    QVERIFY(!f.isPlaying());
    QVERIFY(f.updates.isEmpty());
    QCOMPARE(f.helper.getMedia() == &f.item, meanwhile != QLatin1String("stop")
                                                 && meanwhile != QLatin1String("other")
                                                 && meanwhile != QLatin1String("none"));
}

void tst_INxPreviewFrameHelper_arrivals::anotherMediasStripIsNotTaken()
{
    ServedStand f;
    StripItem other(QStringLiteral("other.jpg"));
    f.helper.setMedia({}, &other);
    QVERIFY(!f.helper.playPreviewFrame());
    f.bring(&f.item, filmStrip(162));
    QVERIFY(f.helper.getPlayThumbnail().isNull());
    QVERIFY(!f.isPlaying());
    f.bring(&other, filmStrip(243));
    QCOMPARE(f.helper.getPlayThumbnail(), filmStrip(243));
    QVERIFY(f.isPlaying());
}

void tst_INxPreviewFrameHelper_arrivals::aMediaWithoutAStripIsNotAskedFor()
{
    ServedStand f;
    f.item.stripPath.clear();
    f.shelf.strips.insert(&f.item, filmStrip(162));
    f.helper.setMedia({}, &f.item);
    QVERIFY(f.helper.getPlayThumbnail().isNull());
    QVERIFY(f.shelf.journal.isEmpty());
    QVERIFY(!f.helper.playPreviewFrame());
}

void tst_INxPreviewFrameHelper_arrivals::aStripWithoutAFrameIsNone_data()
{
    QTest::addColumn<QImage>("strip");
    QTest::newRow("too narrow") << filmStrip(162, 143);
    QTest::newRow("too low") << filmStrip(80);
}

void tst_INxPreviewFrameHelper_arrivals::aStripWithoutAFrameIsNone()
{
    QFETCH(QImage, strip);
    ServedStand f;
    f.helper.setMedia({}, &f.item);
    QVERIFY(!f.helper.playPreviewFrame());
    f.bring(&f.item, strip);
    QVERIFY(f.helper.getPlayThumbnail().isNull());
    QVERIFY(!f.isPlaying());
    f.helper.setMedia({}, &f.item);
    QVERIFY(f.helper.getPlayThumbnail().isNull());
    QVERIFY(!f.helper.playPreviewFrame());
}

void tst_INxPreviewFrameHelper_arrivals::anotherEngineIsAskedWithAHandleOfItsOwn()
{
    ServedStand f;
    f.shelf.strips.insert(&f.item, filmStrip(162));
    f.helper.setMedia({}, &f.item);
    StripShelf shelf;
    shelf.strips.insert(&f.item, filmStrip(243));
    PreviewEngine engine;
    engine.shelf = &shelf;
    f.door.reset();
    f.door.emplace(&engine);
    f.helper.setMedia({}, &f.item);
    QCOMPARE(f.helper.getPlayThumbnail(), filmStrip(243));
    QVERIFY(f.shelf.journal.contains(QStringLiteral("given back")));
    f.helper.setMedia({}, &f.item);
    QVERIFY(!shelf.journal.contains(QStringLiteral("given back")));
    f.door.reset(); // Its shelf goes before the stand's helper.
    f.helper.setMedia({}, &f.item);
    QVERIFY(shelf.journal.contains(QStringLiteral("given back")));
}

void tst_INxPreviewFrameHelper_arrivals::theHandleIsGivenBack()
{
    StripShelf shelf;
    PreviewEngine engine;
    engine.shelf = &shelf;
    const NxMediaEngineDoor door(&engine);
    StripItem item(QStringLiteral("strip.jpg"));
    {
        INxPreviewFrameHelper helper;
        helper.setMedia({}, &item);
        QCOMPARE(shelf.journal, QStringList{QStringLiteral("asked")});
    }
    QCOMPARE(shelf.journal, QStringList({QStringLiteral("asked"), QStringLiteral("given back")}));
}

void tst_INxPreviewFrameHelper_arrivals::theHelperMayGoWhenAStripComes()
{
    StripShelf shelf;
    PreviewEngine engine;
    engine.shelf = &shelf;
    const NxMediaEngineDoor door(&engine);
    StripItem item(QStringLiteral("strip.jpg"));
    auto helper = std::make_unique<INxPreviewFrameHelper>();
    connect(helper.get(), &INxPreviewFrameHelper::sigUpdate, this, [&] { helper.reset(); });
    helper->setMedia({}, &item);
    QVERIFY(!helper->playPreviewFrame());
    shelf.strips.insert(&item, filmStrip(162));
    const INxBsThumbManager::ArrivalTeller teller = shelf.teller; // As an engine keeps it.
    teller(&item);
    QVERIFY(!helper);
}

void tst_INxPreviewFrameHelper_arrivals::aFileIsReadWithoutTheGuiThreadWaiting()
{
    FileStand f;
    StripItem item(f.write(QStringLiteral("a.png"), filmStrip(162)));
    const NxDiskBan ban;
    f.helper.setMedia({}, &item);
    QVERIFY(f.helper.getPlayThumbnail().isNull());
    QVERIFY(!f.helper.playPreviewFrame());
    QTRY_VERIFY(f.isPlaying());
    QCOMPARE(f.helper.getPlayThumbnail(), filmStrip(162));
    QVERIFY(!f.updates.isEmpty());
    QCOMPARE(ban.breaches(), QStringList());
}

void tst_INxPreviewFrameHelper_arrivals::aFileIsReadWhereTheEngineServesNone()
{
    FileStand f;
    StripShelf shelf;
    shelf.isServing = false;
    PreviewEngine engine;
    engine.shelf = &shelf;
    StripItem item(f.write(QStringLiteral("a.png"), filmStrip(162)));
    {
        const NxMediaEngineDoor door(&engine);
        f.helper.setMedia({}, &item);
        QTRY_COMPARE(f.helper.getPlayThumbnail(), filmStrip(162));
        QVERIFY(shelf.journal.isEmpty());
    }
    f.helper.setMedia({}, &item); // Lets go of the handle.
    QTRY_COMPARE(f.helper.getPlayThumbnail(), filmStrip(162));
}

void tst_INxPreviewFrameHelper_arrivals::aFileThatIsNotThereShowsNothing()
{
    FileStand f;
    StripItem missing(f.dir.filePath(QStringLiteral("missing.png")));
    StripItem there(f.write(QStringLiteral("a.png"), filmStrip(162)));
    f.helper.setMedia({}, &missing);
    QVERIFY(!f.helper.playPreviewFrame());
    f.helper.setMedia({}, &there); // It is answered later, so the one before was.
    QTRY_COMPARE(f.helper.getPlayThumbnail(), filmStrip(162));
    QVERIFY(!f.isPlaying());
}

void tst_INxPreviewFrameHelper_arrivals::theFileIsLookedAtEachTime()
{
    FileStand f;
    StripItem item(f.write(QStringLiteral("a.png"), filmStrip(162)));
    f.helper.setMedia({}, &item);
    QTRY_COMPARE(f.helper.getPlayThumbnail(), filmStrip(162));
    f.write(QStringLiteral("a.png"), filmStrip(243));
    f.helper.setMedia({}, &item);
    QTRY_COMPARE(f.helper.getPlayThumbnail(), filmStrip(243));
}

void tst_INxPreviewFrameHelper_arrivals::theLastFileAskedForIsShown()
{
    FileStand f;
    StripItem first(f.write(QStringLiteral("a.png"), filmStrip(162)));
    StripItem second(f.write(QStringLiteral("b.png"), filmStrip(243)));
    f.helper.setMedia({}, &first);
    QVERIFY(!f.helper.playPreviewFrame());
    f.helper.setMedia({}, &second);
    QVERIFY(!f.helper.playPreviewFrame());
    QTRY_VERIFY(f.isPlaying());
    QCOMPARE(f.helper.getPlayThumbnail(), filmStrip(243));
}

void tst_INxPreviewFrameHelper_arrivals::theHelperMayGoWhileAFileIsRead()
{
    const FileStand f;
    StripItem item(f.write(QStringLiteral("a.png"), filmStrip(810)));
    for (int i = 0; i < 20; ++i) {
        INxPreviewFrameHelper helper;
        helper.setMedia({}, &item);
    }
    QCoreApplication::processEvents();
}

NX_TEST_MAIN(tst_INxPreviewFrameHelper_arrivals)
#include "tst_INxPreviewFrameHelper_arrivals.moc"
