// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>

#include <NxAppSettings/NxPerformanceSettings.h>
#include <NxCore/NxLogCapture.h>
#include <NxVBLModel/INxBeatService.h>
#include <NxVBLModel/INxSceneService.h>

#include <NxWidgets/ScriptedUser.h>
#include <Support/NxTestMain.h>

#include <QTest>

#include "DialogText.h"
#include "FlowStand.h"
#include "LogLines.h"
#include "TextLines.h"

using Presenter = NxMediaItemManagerPresenter;

namespace {

struct FlowBeats final : INxBeatService
{
    bool beatDetection(const QList<INxAbstractMedia *> &medias) override
    {
        asked.append(QLatin1String("detect ") + namesOf(medias));
        return starts;
    }
    QList<qint64> getOneBeatInfo(const QList<INxAbstractMedia *> &medias) override
    {
        asked.append(QLatin1String("beats of ") + namesOf(medias));
        return beats;
    }

    bool starts = true;
    QList<qint64> beats;
    QStringList asked;
};

struct FlowScenes final : INxSceneService
{
    bool scenceDetect(INxAbstractMedia *media, QList<qint64> &points) override
    {
        asked.append(media->name());
        points = found;
        return finds;
    }

    bool finds = true;
    QList<qint64> found;
    QStringList asked;
};

} // namespace

/// What the presenter hands on to the services of the engine.
class tst_NxMediaItemManagerPresenter_services : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void asksAboutRoomWhereProxiesAreKept();
    void tellsWhatIsMissingOfRoom_data();
    void tellsWhatIsMissingOfRoom();
    void makesAndStopsProxies();
    void handsOnMediaItemsAlone();
    void detectsBeats();
    void tellsBeats();
    void detectsScenes();
    void detectsNoScenesOfNothing();
    void doesNothingWithoutTheServices();
    void doesNothingWithoutAnEngine();
};

void tst_NxMediaItemManagerPresenter_services::asksAboutRoomWhereProxiesAreKept()
{
    FlowStand stand;
    stand.add("A");
    stand.add("B");
    NxAppSettings::instance()->performance().setProxyDirectory(QStringLiteral("/fast/proxies"));
    const ScriptedUser user;
    QVERIFY(stand.presenter->checkFreeSpaceForProxy(stand.list("B A")));
    QCOMPARE(stand.journal, lines({"room in /fast/proxies for proxies B A"}));
    QCOMPARE(user.dialogs(), 0);
}

void tst_NxMediaItemManagerPresenter_services::tellsWhatIsMissingOfRoom_data()
{
    QTest::addColumn<double>("needed");
    QTest::addColumn<double>("remaining");
    QTest::addColumn<QString>("numbers");

    QTest::newRow("whole") << 1500.0 << 20.0 << "Dise Space needed :1500 MB, remaining:20 MB.";
    QTest::newRow("parts") << 1500.1 << 20.9 << "Dise Space needed :1501 MB, remaining:20 MB.";
    QTest::newRow("large") << 12345678.0 << 2000000.5
                           << "Dise Space needed :12345678 MB, remaining:2000000 MB.";
    QTest::newRow("nothing left") << 0.5 << 0.0 << "Dise Space needed :1 MB, remaining:0 MB.";
}

void tst_NxMediaItemManagerPresenter_services::tellsWhatIsMissingOfRoom()
{
    QFETCH(double, needed);
    QFETCH(double, remaining);
    QFETCH(QString, numbers);
    FlowStand stand;
    stand.add("A");
    stand.proxies.fits = false;
    stand.proxies.needed = needed;
    stand.proxies.remaining = remaining;
    ScriptedUser user;
    user.press(mdbAffirmative);
    QVERIFY(!stand.presenter->checkFreeSpaceForProxy(stand.list("A")));
    const QStringList expected = {
        QStringLiteral("style 0"),
        QStringLiteral("There is not enough space in the specified output directory, please choose "
                       "another one.\n")
            + numbers,
        QStringLiteral("default 2, escape 4")};
    QCOMPARE(dialogText(user.messages().first()), expected);
}

void tst_NxMediaItemManagerPresenter_services::makesAndStopsProxies()
{
    FlowStand stand;
    for (const char *name : {"A", "B", "C"})
        stand.add(name);
    QVERIFY(stand.presenter->createProxyFile(stand.list("C A")));
    QVERIFY(stand.presenter->stopCreateProxyFile(stand.list("A B")));
    QCOMPARE(stand.journal, lines({"create proxies C A", "stop proxies A B"}));
}

void tst_NxMediaItemManagerPresenter_services::handsOnMediaItemsAlone()
{
    FlowStand stand;
    UtilsMedia tile(NXVBLMODEL::mtImportTile);
    INxAbstractMedia *item = stand.add("A");
    stand.presenter->createProxyFile({&tile, nullptr, item});
    stand.presenter->stopCreateProxyFile({nullptr, item, &tile});
    QVERIFY(stand.presenter->checkFreeSpaceForProxy({&tile, item, nullptr}));
    QCOMPARE(stand.journal.size(), 3);
    for (const QString &line : qAsConst(stand.journal))
        QVERIFY2(line.endsWith(QLatin1String("proxies A")), qPrintable(line));
}

void tst_NxMediaItemManagerPresenter_services::detectsBeats()
{
    FlowStand stand;
    FlowBeats beats;
    stand.engine.beats = &beats;
    stand.add("A");
    stand.add("B");
    QVERIFY(stand.presenter->beatDetection(stand.list("B A")));
    beats.starts = false;
    QVERIFY(!stand.presenter->beatDetection(stand.list("A")));
    QCOMPARE(beats.asked, lines({"detect B A", "detect A"}));
}

void tst_NxMediaItemManagerPresenter_services::tellsBeats()
{
    FlowStand stand;
    FlowBeats beats;
    beats.beats = {0, 480, 960};
    stand.engine.beats = &beats;
    stand.add("A");
    QCOMPARE(stand.presenter->getOneBeatInfo(stand.list("A")), QList<qint64>({0, 480, 960}));
    QCOMPARE(beats.asked, lines({"beats of A"}));
}

void tst_NxMediaItemManagerPresenter_services::detectsScenes()
{
    FlowStand stand;
    FlowScenes scenes;
    scenes.found = {0, 25, 75};
    stand.engine.scenes = &scenes;
    QList<qint64> points;
    QVERIFY(stand.presenter->scenceDetect(stand.add("A"), points));
    QCOMPARE(points, QList<qint64>({0, 25, 75}));
    scenes.finds = false;
    QVERIFY(!stand.presenter->scenceDetect(stand.add("B"), points));
    QCOMPARE(scenes.asked, lines({"A", "B"}));
}

void tst_NxMediaItemManagerPresenter_services::detectsNoScenesOfNothing()
{
    FlowStand stand;
    FlowScenes scenes;
    stand.engine.scenes = &scenes;
    QList<qint64> points = {7};
    QVERIFY(!stand.presenter->scenceDetect(nullptr, points));
    QCOMPARE(points, QList<qint64>({7}));
    QCOMPARE(scenes.asked, QStringList());
}

void tst_NxMediaItemManagerPresenter_services::doesNothingWithoutTheServices()
{
    FlowStand stand;
    stand.engine.proxies = nullptr;
    const FlowStand::Items items = {stand.add("A")};
    const NxLogCapture log;
    const ScriptedUser user;
    QList<qint64> points = {7};
    // Asked twice, each missing service is noted once.
    for (int round = 0; round < 2; ++round) {
        QVERIFY(!stand.presenter->checkFreeSpaceForProxy(items));
        QVERIFY(!stand.presenter->createProxyFile(items));
        QVERIFY(!stand.presenter->stopCreateProxyFile(items));
        QVERIFY(!stand.presenter->beatDetection(items));
        QVERIFY(stand.presenter->getOneBeatInfo(items).isEmpty());
        QVERIFY(!stand.presenter->scenceDetect(items.first(), points));
    }
    QCOMPARE(points, QList<qint64>({7}));
    QCOMPARE(user.dialogs(), 0);
    QCOMPARE(linesOf(log),
             lines({"info INxMediaEngine::proxyService: the media engine offers no proxy service",
                    "info INxMediaEngine::beatService: the media engine offers no beat detection",
                    "info INxMediaEngine::sceneService: the media engine offers no scene "
                    "detection"}));
}

void tst_NxMediaItemManagerPresenter_services::doesNothingWithoutAnEngine()
{
    QVERIFY(!NxMediaEngineDoor::engine());
    FlowItem item(QStringLiteral("A"));
    Presenter presenter(nullptr, nullptr);
    const NxLogCapture log;
    QList<qint64> points;
    QVERIFY(!presenter.checkFreeSpaceForProxy({&item}));
    QVERIFY(!presenter.createProxyFile({&item}));
    QVERIFY(!presenter.stopCreateProxyFile({&item}));
    QVERIFY(!presenter.beatDetection({&item}));
    QVERIFY(presenter.getOneBeatInfo({&item}).isEmpty());
    QVERIFY(!presenter.scenceDetect(&item, points));
    QCOMPARE(linesOf(log), QStringList());
}

NX_TEST_MAIN(tst_NxMediaItemManagerPresenter_services)
#include "tst_NxMediaItemManagerPresenter_services.moc"
