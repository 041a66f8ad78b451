// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxStreamsForm.h>

#include <NxVBLEngine/Support/NxFootageSamples.h>
#include <Support/NxTestMain.h>

#include <QtTest>

class tst_NxStreamsForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsPackedIsUnpacked()
    {
        const NxFootageStreams streams = NxFootageSamples::full(1).facts.streams;
        NxFootageStreams back;
        QVERIFY(NxStreamsForm::unpack(NxStreamsForm::packed(streams), &back));
        QCOMPARE(NxStreamsForm::packed(back), NxStreamsForm::packed(streams));
        QCOMPARE(back.cameraModel, streams.cameraModel);
    }

    void theFirstByteNamesTheForm()
    {
        QByteArray bytes = NxStreamsForm::packed(NxFootageSamples::full(1).facts.streams);
        QCOMPARE(int(bytes.at(0)), 1); // Projects are out there that say so.
        bytes[0] = 2;
        NxFootageStreams back;
        QVERIFY(!NxStreamsForm::unpack(bytes, &back));
    }

    void whatIsNoneIsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray whole = NxStreamsForm::packed(NxFootageSamples::full(1).facts.streams);
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("the form alone") << whole.left(1);
        QTest::newRow("cut off") << whole.left(whole.size() - 1);
        QTest::newRow("too long") << whole + 'x';
        QTest::newRow("of no kind") << NxStreamsForm::packed(NxFootageStreams());
    }

    void whatIsNoneIsRefused()
    {
        QFETCH(QByteArray, bytes);
        NxFootageStreams back;
        QVERIFY(!NxStreamsForm::unpack(bytes, &back));
    }
};

NX_TEST_MAIN(tst_NxStreamsForm)
#include "tst_NxStreamsForm.moc"
