// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxMediaEngine.h>

#include <NxCore/NxLogCapture.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/NxTrackEvent.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <functional>

using Call = std::function<bool(INxMediaEngine &)>;
Q_DECLARE_METATYPE(Call)

namespace {

const QString somePath = QStringLiteral("/films/Holiday.brevano");

struct MemoryProject final : INxProject
{
    INxMediaLibrary *mediaLibrary() override { return nullptr; }
};

/// Has a project, but no way to close it.
struct EngineWithProject final : INxMediaEngine
{
    INxProject *currentProject() override { return &project; }
    MemoryProject project;
};

} // namespace

class tst_INxMediaEngine : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void offersNothingAndSaysSoOnce_data();
    void offersNothingAndSaysSoOnce();
    void eachEngineSaysSoForItself();
    void eachOfferIsNotedApart();
    void saysWhyAProjectCannotBeMade();
    void saysWhyAProjectCannotBeOpened();
    void closingWithoutAProjectIsDone();
    void saysWhyAProjectCannotBeClosed();
};

void tst_INxMediaEngine::offersNothingAndSaysSoOnce_data()
{
    QTest::addColumn<Call>("answersNothing");
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QByteArray>("function");
    const auto row = [](const char *function, const char *missing, const Call &call) {
        QTest::newRow(function) << call << QString::fromLatin1(missing)
                                << QByteArray("INxMediaEngine::") + function;
    };
    row("createProject", "new projects", [](auto &e) { return !e.createProject(somePath); });
    row("openProject", "opening of projects",
        [](auto &e) { return !e.openProject(somePath, NxProjectOpenMode::ReadWrite); });
    row("currentProject", "current project", [](auto &e) { return !e.currentProject(); });
    row("createVideoClip", "video clips", [](auto &e) { return !e.createVideoClip(somePath); });
    row("createTimeline", "timelines", [](auto &e) { return !e.createTimeline(nullptr); });
    row("createThumbManager", "pictures", [](auto &e) { return !e.createThumbManager(); });
    row("proxyService", "proxy service", [](auto &e) { return !e.proxyService(); });
    row("audioSyncService", "audio synchronisation", [](auto &e) { return !e.audioSyncService(); });
    row("beatService", "beat detection", [](auto &e) { return !e.beatService(); });
    row("sceneService", "scene detection", [](auto &e) { return !e.sceneService(); });
    row("cloudService", "cloud resources", [](auto &e) { return !e.cloudService(); });
    row("collector", "collector of user actions", [](auto &e) { return !e.collector(); });
    row("trackEvent", "usage events", [](auto &e) {
        e.trackEvent(NxTrackEvent(QStringLiteral("click")));
        return true;
    });
}

void tst_INxMediaEngine::offersNothingAndSaysSoOnce()
{
    QFETCH(Call, answersNothing);
    QFETCH(QString, missing);
    QFETCH(QByteArray, function);
    INxMediaEngine engine;
    const NxLogCapture log;
    QVERIFY(answersNothing(engine));
    QVERIFY(answersNothing(engine));
    QCOMPARE(log.texts(), QStringList{QStringLiteral("the media engine offers no ") + missing});
    QCOMPARE(log.records().first().level, NxLogLevel::Info);
    QCOMPARE(QByteArray(log.records().first().function), function);
}

void tst_INxMediaEngine::eachEngineSaysSoForItself()
{
    INxMediaEngine first;
    INxMediaEngine second;
    const NxLogCapture log;
    QVERIFY(!first.beatService());
    QVERIFY(!second.beatService());
    QCOMPARE(log.texts().size(), 2);
}

void tst_INxMediaEngine::eachOfferIsNotedApart()
{
    INxMediaEngine engine;
    const NxLogCapture log;
    QVERIFY(!engine.beatService());
    QVERIFY(!engine.sceneService());
    QVERIFY(!engine.beatService());
    QCOMPARE(log.texts().size(), 2);
}

void tst_INxMediaEngine::saysWhyAProjectCannotBeMade()
{
    INxMediaEngine engine;
    const auto made = engine.createProject(somePath);
    QCOMPARE(made.errorText(),
             QStringLiteral("/films/Holiday.brevano: this media engine makes no project files"));
}

void tst_INxMediaEngine::saysWhyAProjectCannotBeOpened()
{
    INxMediaEngine engine;
    const auto opened = engine.openProject(somePath, NxProjectOpenMode::ReadOnly);
    QCOMPARE(opened.errorText(),
             QStringLiteral("/films/Holiday.brevano: this media engine opens no project files"));
}

void tst_INxMediaEngine::closingWithoutAProjectIsDone()
{
    INxMediaEngine engine;
    QVERIFY(bool(engine.closeProject()));
}

void tst_INxMediaEngine::saysWhyAProjectCannotBeClosed()
{
    EngineWithProject engine;
    const NxLogCapture log;
    const auto closed = engine.closeProject();
    QCOMPARE(closed.errorText(), QStringLiteral("This media engine keeps its project open"));
    QCOMPARE(log.texts(),
             QStringList{QStringLiteral("the media engine offers no closing of projects")});
}

NX_TEST_MAIN(tst_INxMediaEngine)
#include "tst_INxMediaEngine.moc"
