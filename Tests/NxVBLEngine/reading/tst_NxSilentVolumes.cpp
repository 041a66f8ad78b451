// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxSilentVolumes.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

const QString Usb = QStringLiteral("/mnt/usb");
const QString Net = QStringLiteral("/mnt/net");
constexpr auto Pause = 15s;
constexpr std::chrono::milliseconds Now = 100s;

} // namespace

class tst_NxSilentVolumes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void slowDrivesAreHeldBackUntilTheyAnswer();
    void aSlowDriveIsNewsOnce();
    void silentDrivesAreTriedAgainAfterAPause();
    void everyPauseIsLongerUpToALimit();
    void anAnswerEndsTheSilence();
    void drivesDoNotConcernEachOther();
};

void tst_NxSilentVolumes::slowDrivesAreHeldBackUntilTheyAnswer()
{
    NxSilentVolumes volumes(Pause);
    QVERIFY(!volumes.isHeldBack(Usb, Now));
    QVERIFY(volumes.noteSlow(Usb));
    QVERIFY(volumes.isHeldBack(Usb, Now));
    QVERIFY(volumes.isHeldBack(Usb, Now + 10h));
    QVERIFY(volumes.noteAnswer(Usb));
    QVERIFY(!volumes.isHeldBack(Usb, Now));
}

void tst_NxSilentVolumes::aSlowDriveIsNewsOnce()
{
    NxSilentVolumes volumes(Pause);
    QVERIFY(volumes.noteSlow(Usb));
    QVERIFY(!volumes.noteSlow(Usb));
    QVERIFY(volumes.noteAnswer(Usb));
    QVERIFY(volumes.noteSlow(Usb));
}

void tst_NxSilentVolumes::silentDrivesAreTriedAgainAfterAPause()
{
    NxSilentVolumes volumes(Pause);
    QVERIFY(volumes.noteSlow(Usb));
    volumes.noteSilent(Usb, Now);
    QVERIFY(volumes.isHeldBack(Usb, Now + Pause - 1ms));
    QVERIFY(!volumes.isHeldBack(Usb, Now + Pause));
}

void tst_NxSilentVolumes::everyPauseIsLongerUpToALimit()
{
    NxSilentVolumes volumes(Pause);
    std::chrono::milliseconds now = Now;
    std::chrono::milliseconds expected = Pause;
    constexpr std::chrono::milliseconds longest = 5min;
    for (int tries = 0; tries < 10; ++tries) {
        volumes.noteSilent(Usb, now);
        QVERIFY(volumes.isHeldBack(Usb, now + expected - 1ms));
        QVERIFY(!volumes.isHeldBack(Usb, now + expected));
        now += expected;
        expected = std::min(expected * 2, longest);
    }
    QCOMPARE(expected.count(), longest.count());
}

void tst_NxSilentVolumes::anAnswerEndsTheSilence()
{
    NxSilentVolumes volumes(Pause);
    volumes.noteSilent(Usb, Now);
    volumes.noteSilent(Usb, Now + Pause);
    QVERIFY(volumes.noteAnswer(Usb));
    QVERIFY(!volumes.isHeldBack(Usb, Now + Pause));
    volumes.noteSilent(Usb, Now); // The pauses are short again.
    QVERIFY(!volumes.isHeldBack(Usb, Now + Pause));
}

void tst_NxSilentVolumes::drivesDoNotConcernEachOther()
{
    NxSilentVolumes volumes(Pause);
    volumes.noteSilent(Usb, Now);
    QVERIFY(!volumes.isHeldBack(Net, Now));
    QVERIFY(!volumes.noteAnswer(Net)); // It was never silent.
    QVERIFY(volumes.isHeldBack(Usb, Now));
}

NX_TEST_MAIN(tst_NxSilentVolumes)
#include "tst_NxSilentVolumes.moc"
