// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxAbstractMediaItem.h>

#include <NxVBLModel/INxMediaPart.h>

#include <Support/NxTestMain.h>

#include <QTest>

namespace {

struct PlainItem final : INxAbstractMediaItem
{
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideo; }
};

} // namespace

class tst_INxAbstractMediaItem : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void knowsNothingOfItsFileAtFirst();
    void hasNoDatesAtFirst();
    void isNoResourceAtFirst();
    void isTrackedByDefault_data();
    void isTrackedByDefault();
    void travelsInAVariant();
};

void tst_INxAbstractMediaItem::knowsNothingOfItsFileAtFirst()
{
    const PlainItem item;
    QCOMPARE(item.filePath(), QString());
    QVERIFY(!item.mediaInfo());
    QVERIFY(!item.isUnavailable());
    QCOMPARE(item.unavailableReason(), QString());
    QCOMPARE(item.frameCount(), qint64(0));
    QVERIFY(!item.frameRate().isValid());
    QVERIFY(item.hasDuration());
    QVERIFY(item.parts().isEmpty());
    QCOMPARE(item.audioInfoText(), QString());
    QCOMPARE(item.cameraName(), QString());
    QCOMPARE(item.inPoint(), qint64(0));
    QCOMPARE(item.outPoint(), qint64(0));
    QCOMPARE(item.sourceSize(), qint64(-1));
    QCOMPARE(item.thumbnailStripPath(), QString());
    QCOMPARE(item.previewPath(), QString());
}

void tst_INxAbstractMediaItem::hasNoDatesAtFirst()
{
    const PlainItem item;
    QVERIFY(!item.dateCreated().isValid());
    QVERIFY(!item.lastModified().isValid());
    QVERIFY(!item.favouriteTime().isValid());
    QVERIFY(!item.downloadTime().isValid());
    QVERIFY(!item.isNew());
    QVERIFY(!item.isFavourite());
    QCOMPARE(item.usedCount(), 0);
}

void tst_INxAbstractMediaItem::isNoResourceAtFirst()
{
    PlainItem item;
    item.requestResource(QString(), NXVBLMODEL::rrPreview, NXVBLMODEL::dkPreview);
    QVERIFY(!item.isNeedDownload());
    QVERIFY(!item.resourceInfo());
    QCOMPARE(item.categoryName(), QString());
    QCOMPARE(item.listOrder(), 0);
    QCOMPARE(item.sale(), 0);
    QCOMPARE(item.rankId(), 0);
    QCOMPARE(item.packType(), QString());
    QCOMPARE(item.downloadDuration(), qint64(0));
    QVERIFY(!item.templateSize().isValid());
    QCOMPARE(item.templateSlotCount(), 0);
}

void tst_INxAbstractMediaItem::isTrackedByDefault_data()
{
    QTest::addColumn<int>("interaction");
    QTest::newRow("shown") << int(eptShown);
    QTest::newRow("previewed") << int(eptPreviewed);
    QTest::newRow("used") << int(eptUsed);
}

void tst_INxAbstractMediaItem::isTrackedByDefault()
{
    QFETCH(int, interaction);
    QVERIFY(PlainItem().isTrackable(EPrjTemplateInteractionType(interaction)));
}

void tst_INxAbstractMediaItem::travelsInAVariant()
{
    PlainItem item;
    INxAbstractMediaItem *const address = &item;
    QCOMPARE(QVariant::fromValue(address).value<INxAbstractMediaItem *>(), address);
    const QList<INxAbstractMediaItem *> list{address, nullptr};
    QCOMPARE(QVariant::fromValue(list).value<QList<INxAbstractMediaItem *>>(), list);
}

NX_TEST_MAIN(tst_INxAbstractMediaItem)
#include "tst_INxAbstractMediaItem.moc"
