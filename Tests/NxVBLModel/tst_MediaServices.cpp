// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxBsThumbManager.h>
#include <NxVBLModel/INxClip.h>
#include <NxVBLModel/INxCloudResourceService.h>
#include <NxVBLModel/INxCloudResourceUserActionCollector.h>
#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/INxMediaProxyService.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxProjectManager.h>
#include <NxVBLModel/INxTimeline.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <NxVBLModel/NxTrackEvent.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <memory>

namespace {

struct Clip final : INxClip
{
    int kind() const override { return NXVBLMODEL::ckVideo; }
};

struct Timeline final : INxTimeline
{
    QList<INxClip *> clips() override { return {}; }
    bool removeClip(INxClip *) override { return false; }
    bool insertClip(INxClip *, int, qint64) override { return false; }
};

struct Pictures final : INxBsThumbManager
{
    explicit Pictures(int &count) : deaths(count) {}
    ~Pictures() override { ++deaths; }
    QImage thumbnail(INxAbstractMedia *, const QSize &) override { return {}; }
    void cancelRequests() override {}
    int &deaths;
};

struct Proxies final : INxMediaProxyService
{
    void setResolution(int) override {}
    void createProxyFile(const QList<INxAbstractMediaItem *> &) override {}
    void stopCreateProxyFile(const QList<INxAbstractMediaItem *> &) override {}
    bool checkFreeSpace(const QString &, const QList<INxAbstractMediaItem *> &, double &,
                        double &) override
    {
        return true;
    }
};

struct Cloud final : INxCloudResourceService
{
    quint64 request(const QVariantMap &, INxCloudResouceReplyObserver *) override { return 0; }
    void cancel(quint64) override {}
    void removeDownloadRecords(INxFolderMedia *, const QList<INxAbstractMediaItem *> &) override {}
};

struct Collector final : INxCloudResourceUserActionCollector
{
    QString catalogNamePath(INxFolderMedia *) override { return {}; }
    QString catalogIdPath(INxFolderMedia *) override { return {}; }
    QString catalogType(INxFolderMedia *) override { return {}; }
    void collectDownload(INxAbstractMediaItem *) override {}
};

struct Project final : INxProject
{
    INxMediaLibrary *mediaLibrary() override { return nullptr; }
};

struct FullEngine final : INxMediaEngine
{
    INxProject *currentProject() override { return &project; }
    INxClip *createVideoClip(const QString &path) override
    {
        askedFor = path;
        return new Clip;
    }
    INxTimeline *createTimeline(INxClip *clip) override
    {
        delete clip; // Taken over.
        ++timelinesMade;
        return new Timeline;
    }
    INxBsThumbManager *createThumbManager() override { return new Pictures(pictureDeaths); }
    INxMediaProxyService *proxyService() override { return &proxies; }
    INxCloudResourceService *cloudService() override { return &cloud; }
    INxCloudResourceUserActionCollector *collector() override { return &actions; }
    void trackEvent(const NxTrackEvent &event) override { tracked += event.name(); }

    Project project;
    Proxies proxies;
    Cloud cloud;
    Collector actions;
    QString askedFor;
    QStringList tracked;
    int timelinesMade = 0;
    int pictureDeaths = 0;
};

} // namespace

/// The static entries, which whichever engine is installed serves.
class tst_MediaServices : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void answerNullWithoutAnEngine();
    void answerWhatTheEngineOffers();
    void answerNullAgainAfterTheEngine();
    void aClipIsMadeForAPath();
    void aTimelineIsMadeForAClip();
    void noTimelineIsMadeWithoutAClip();
    void pictureHandlesAreGivenBack();
    void eventsGoToTheEngine();
};

void tst_MediaServices::answerNullWithoutAnEngine()
{
    QVERIFY(INxProjectManager::getInstance());
    QVERIFY(!INxProjectManager::getInstance()->currentProject());
    QVERIFY(!INxCloudResourceService::getInstance());
    QVERIFY(!INxCloudResourceUserActionCollector::getInstance());
    QVERIFY(!getMediaProxyService());
    QVERIFY(!createBsThumbManager());
    QVERIFY(!INxClip::createVideoClip(QStringLiteral("/clips/a.mp4")));
    Clip clip;
    QVERIFY(!INxTimeline::createInstance(&clip));
}

void tst_MediaServices::answerWhatTheEngineOffers()
{
    FullEngine engine;
    const NxMediaEngineDoor door(&engine);
    QCOMPARE(INxProjectManager::getInstance()->currentProject(),
             static_cast<INxProject *>(&engine.project));
    QCOMPARE(INxCloudResourceService::getInstance(),
             static_cast<INxCloudResourceService *>(&engine.cloud));
    QCOMPARE(INxCloudResourceUserActionCollector::getInstance(),
             static_cast<INxCloudResourceUserActionCollector *>(&engine.actions));
    QCOMPARE(getMediaProxyService(), static_cast<INxMediaProxyService *>(&engine.proxies));
}

void tst_MediaServices::answerNullAgainAfterTheEngine()
{
    FullEngine engine;
    {
        const NxMediaEngineDoor door(&engine);
        QVERIFY(getMediaProxyService());
    }
    answerNullWithoutAnEngine();
}

void tst_MediaServices::aClipIsMadeForAPath()
{
    FullEngine engine;
    const NxMediaEngineDoor door(&engine);
    const QString path = QStringLiteral("/clips/a.mp4");
    const std::unique_ptr<INxClip> clip(INxClip::createVideoClip(path));
    QVERIFY(clip);
    QCOMPARE(engine.askedFor, path);
}

void tst_MediaServices::aTimelineIsMadeForAClip()
{
    FullEngine engine;
    const NxMediaEngineDoor door(&engine);
    const std::unique_ptr<INxTimeline> timeline(INxTimeline::createInstance(new Clip));
    QVERIFY(timeline);
    QCOMPARE(engine.timelinesMade, 1);
}

void tst_MediaServices::noTimelineIsMadeWithoutAClip()
{
    FullEngine engine;
    const NxMediaEngineDoor door(&engine);
    QVERIFY(!INxTimeline::createInstance(nullptr));
    QCOMPARE(engine.timelinesMade, 0);
}

void tst_MediaServices::pictureHandlesAreGivenBack()
{
    FullEngine engine;
    const NxMediaEngineDoor door(&engine);
    INxBsThumbManager *first = createBsThumbManager();
    INxBsThumbManager *second = createBsThumbManager();
    QVERIFY(first);
    QVERIFY(first != second);
    releaseThumbManager(first);
    QCOMPARE(engine.pictureDeaths, 1);
    releaseThumbManager(second);
    releaseThumbManager(nullptr);
    QCOMPARE(engine.pictureDeaths, 2);
}

void tst_MediaServices::eventsGoToTheEngine()
{
    NxTrackEvent event(QStringLiteral("click"));
    event.sendEvent();
    FullEngine engine;
    const NxMediaEngineDoor door(&engine);
    QVERIFY(engine.tracked.isEmpty());
    event.sendEvent();
    QCOMPARE(engine.tracked, QStringList{QStringLiteral("click")});
}

NX_TEST_MAIN(tst_MediaServices)
#include "tst_MediaServices.moc"
