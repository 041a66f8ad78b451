// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxDataMessage.h>
#include <NxCore/NxMessageType.h>
#include <NxCore/NxQueryMessage.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <memory>

class tst_NxMessage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void codesNeverChange_data();
    void codesNeverChange();
    void carriesItsType();
    void isToldApartByItsClass();
    void queryIsUnansweredAtFirst();
    void dataCarriesBothFlags();
};

void tst_NxMessage::codesNeverChange_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("number");

    QTest::newRow("import media") << int(nmtImportMedia) << 514;
    QTest::newRow("remove media") << int(nmtRemoveMedia) << 515;
    QTest::newRow("get import files") << int(nmtGetImportFiles) << 516;
    QTest::newRow("add media") << int(nmtTimelineAddMedia) << 3008;
    QTest::newRow("added media") << int(nmtTimelineAddMediaResponse) << 3009;
    QTest::newRow("added template") << int(nmtTimelineAddProjectTemplateResponse) << 3010;
    QTest::newRow("add random clips") << int(nmtAddRandomClips) << 3011;
    QTest::newRow("custom media") << int(nmtAddCustomMediaItem) << 3012;
    QTest::newRow("find similar") << int(nmtFindSimilar) << 3013;
    QTest::newRow("audio sync") << int(nmtTimelineAudioSync) << 3017;
    QTest::newRow("start audio sync") << int(nmtStartAudioSync) << 3018;
    QTest::newRow("clip export") << int(nmtClipExportImportMedia) << 3035;
    QTest::newRow("query") << int(nmtQuery) << 5000;
    QTest::newRow("data") << int(nmtData) << 10009;
    QTest::newRow("cut points asked for") << int(nqcSelectedCutPoints) << 5003;
}

void tst_NxMessage::codesNeverChange()
{
    QFETCH(int, code);
    QFETCH(int, number);
    QCOMPARE(code, number);
}

void tst_NxMessage::carriesItsType()
{
    QCOMPARE(NxMessage(nmtAddRandomClips).type(), 3011);
    QCOMPARE(NxMessage(77).type(), 77);
    QCOMPARE(NxQueryMessage(nqcSelectedCutPoints).type(), 5000);
    QCOMPARE(NxDataMessage(true, true).type(), 10009);
}

void tst_NxMessage::isToldApartByItsClass()
{
    const std::unique_ptr<NxMessage> message =
        std::make_unique<NxQueryMessage>(nqcSelectedCutPoints);
    QVERIFY(dynamic_cast<NxQueryMessage *>(message.get()));
    QVERIFY(!dynamic_cast<NxDataMessage *>(message.get()));
}

void tst_NxMessage::queryIsUnansweredAtFirst()
{
    const NxQueryMessage query(nqcSelectedCutPoints);
    QCOMPARE(query.queryCode, 5003);
    QCOMPARE(query.result, 0);
}

void tst_NxMessage::dataCarriesBothFlags()
{
    const NxDataMessage proxies(true, false);
    QVERIFY(proxies.createProxy && !proxies.resolutionChanged);
    const NxDataMessage resolution(false, true);
    QVERIFY(!resolution.createProxy && resolution.resolutionChanged);
}

NX_TEST_MAIN(tst_NxMessage)
#include "tst_NxMessage.moc"
