// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PreviewMedia.h"

#include <NxCore/NxDiskBan.h>
#include <NxMediaLibrary/delegate/INxPreviewFrameHelper.h>
#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Footage/NxNumberedFrames.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFileInfo>
#include <QSignalSpy>
#include <QStringListModel>

#include <limits>

namespace {

constexpr int Patience = 60'000; // ms
constexpr int SomeFrames = 5; // Of some hundred.

NxEmbeddedEngine::Options options(const NxTempDir &dir)
{
    NxEmbeddedEngine::Options options;
    options.pictureFolder = dir.filePath(QStringLiteral("pictures"));
    return options;
}

QString film(const char *name)
{
    return NxFootageSet::path(NxFootageRecipes::named(QLatin1String(name)));
}

/// A stock item that is hovered, over the engine and its worker.
struct HoveredStock
{
    explicit HoveredStock(const QString &path) { item.preview = path; }

    bool play()
    {
        helper.setMedia(model.index(0), &item);
        return helper.playPreviewFrame();
    }
    /// The number of the frame that is shown; -1: none.
    int frame() const
    {
        QImage image;
        const bool isShown = helper.getCurIndexPlayThumbnail(image) && !image.isNull();
        return isShown ? NxNumberedFrames::read(image).value_or(-1) : -1;
    }
    /// Waits until a frame from those on is shown, but for one at or after the end. The worker's
    /// frames may arrive at any moment: what was shown at one look may not be at the next.
    bool comesTo(int first, int end = std::numeric_limits<int>::max()) const
    {
        return QTest::qWaitFor([&] { return frame() >= first && frame() < end; }, Patience);
    }

    const NxTempDir dir;
    NxEmbeddedEngine engine{options(dir)};
    const NxMediaEngineDoor door{&engine};
    const QStringListModel model{QStringList{QStringLiteral("stock")}};
    StockItem item;
    INxPreviewFrameHelper helper;
};

} // namespace

/// Videos of stock items as the embedded engine plays them, in a program of their own.
class tst_INxPreviewFrameHelper_engine : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aStockVideoPlaysInItsOrder();
    void theNextVideoFollowsOnTheSameTimeline();
    void aFileThatIsNoVideoLeavesTheCover_data();
    void aFileThatIsNoVideoLeavesTheCover();
    void steppingAsksNoDisk();
};

void tst_INxPreviewFrameHelper_engine::aStockVideoPlaysInItsOrder()
{
    const NxFootageGuard guard(QFileInfo(film("avc.mp4")).path());
    HoveredStock stock(film("avc.mp4"));
    QVERIFY(stock.play());
    QVERIFY(stock.comesTo(0));
    int last = -1;
    bool isOrdered = true;
    int seen = 0;
    connect(&stock.helper, &INxPreviewFrameHelper::sigUpdate, this, [&] {
        const int frame = stock.frame();
        if (frame < 0 || frame == last)
            return;
        // Where it ends it begins again.
        isOrdered = isOrdered && (frame > last || frame < SomeFrames);
        last = frame;
        ++seen;
    });
    QVERIFY(QTest::qWaitFor([&seen] { return seen >= 10; }, Patience));
    stock.helper.stopPreviewFrame();
    QVERIFY(isOrdered);
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_INxPreviewFrameHelper_engine::theNextVideoFollowsOnTheSameTimeline()
{
    HoveredStock stock(film("avc.mp4"));
    QVERIFY(stock.play());
    QVERIFY(stock.comesTo(SomeFrames));
    stock.helper.stopPreviewFrame();
    stock.item.preview = film("24.mp4");
    QVERIFY(stock.play());
    QVERIFY(stock.comesTo(0, SomeFrames));
    QVERIFY(stock.comesTo(SomeFrames));
}

void tst_INxPreviewFrameHelper_engine::aFileThatIsNoVideoLeavesTheCover_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("nothing in it") << QByteArray();
    QTest::newRow("no film") << QByteArray("no film at all\n");
    QTest::newRow("a list of other files") << QByteArray("#EXTM3U\n#EXTINF:1,\n/etc/passwd\n");
}

void tst_INxPreviewFrameHelper_engine::aFileThatIsNoVideoLeavesTheCover()
{
    QFETCH(QByteArray, contents);
    const NxTempDir place;
    place.write(QStringLiteral("film.mp4"), contents);
    HoveredStock stock(place.filePath(QStringLiteral("film.mp4")));
    QVERIFY(stock.play());
    QSignalSpy steps(&stock.helper, &INxPreviewFrameHelper::sigUpdate);
    QTRY_VERIFY_WITH_TIMEOUT(steps.size() > 10, Patience);
    QCOMPARE(stock.frame(), -1);
    stock.item.preview = film("avc.mp4");
    QVERIFY(stock.play());
    QVERIFY(stock.comesTo(0));
}

void tst_INxPreviewFrameHelper_engine::steppingAsksNoDisk()
{
    const NxDiskBan ban;
    HoveredStock stock(film("avc.mp4"));
    QVERIFY(stock.play());
    QVERIFY(stock.comesTo(SomeFrames));
    QCOMPARE(ban.breaches(), QStringList());
}

NX_TEST_MAIN_WIDGETS(tst_INxPreviewFrameHelper_engine)
#include "tst_INxPreviewFrameHelper_engine.moc"
