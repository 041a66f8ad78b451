// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxStockMediaItem.h>
#include <NxVBLModel/INxVCGClassifyMediaItem.h>
#include <NxVBLModel/INxVCGMediaItem.h>

#include <Support/NxTestMain.h>

#include <QTest>

namespace {

struct ProviderClip final : INxVCGMediaItem
{
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideoAudio; }
};

struct Classification final : INxVCGClassifyMediaItem
{
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtImage; }
    qint64 classifyId() const override { return 12; }
};

struct StockClip final : INxStockMediaItem
{
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideoAudio; }
};

} // namespace

/// The items of the two stock categories, as little as an engine may say of them.
class tst_StockItems : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aProviderClipIsOnlineAndNotThereYet();
    void aClassificationSaysWhatItIs();
    void aStockClipKnowsNothingAtFirst();
    void theirClassesAreToldApart();
};

void tst_StockItems::aProviderClipIsOnlineAndNotThereYet()
{
    const ProviderClip clip;
    QVERIFY(clip.isOnline());
    QVERIFY(clip.isNotAvailable());
    QCOMPARE(clip.stateCode(), 0);
    QVERIFY(!clip.isPreviewAvailable());
    QCOMPARE(clip.mediaCount(), 0);
    QCOMPARE(clip.mediaPath(0), QString());
    QVERIFY(!clip.frameSize().isValid());
}

void tst_StockItems::aClassificationSaysWhatItIs()
{
    const Classification entry;
    QCOMPARE(entry.subKind(), 1010);
    QCOMPARE(entry.classifyId(), qint64(12));
}

void tst_StockItems::aStockClipKnowsNothingAtFirst()
{
    const StockClip clip;
    QVERIFY(!clip.frameSize().isValid());
    QCOMPARE(clip.title(), QString());
    QCOMPARE(clip.tags(), QString());
    QCOMPARE(clip.provider(), 0);
    QCOMPARE(clip.orientation(), 0);
    QCOMPARE(clip.format(), 0);
}

void tst_StockItems::theirClassesAreToldApart()
{
    ProviderClip clip;
    Classification entry;
    StockClip stock;
    for (INxAbstractMediaItem *item :
         std::initializer_list<INxAbstractMediaItem *>{&clip, &entry, &stock}) {
        QCOMPARE(dynamic_cast<INxVCGMediaItem *>(item) != nullptr, item == &clip);
        QCOMPARE(dynamic_cast<INxVCGClassifyMediaItem *>(item) != nullptr, item == &entry);
        QCOMPARE(dynamic_cast<INxStockMediaItem *>(item) != nullptr, item == &stock);
    }
}

NX_TEST_MAIN(tst_StockItems)
#include "tst_StockItems.moc"
