// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/INxScene.h>
#include <NxCore/NxMessageType.h>
#include <NxCore/NxPresenter.h>
#include <NxCore/NxQueryMessage.h>
#include <NxCore/NxUIView.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <thread>
#include <vector>

namespace {

/// Answers every query with 12 and says about each message what it was told to say.
class Scene : public INxScene
{
public:
    bool onMessage(NxMessage *message) override
    {
        received.push_back(message->type());
        if (auto *query = dynamic_cast<NxQueryMessage *>(message))
            query->result = 12;
        return answer;
    }

    bool answer = true;
    std::vector<int> received;
};

class View : public NxUIView
{
public:
    QWidget *widget() override { return nullptr; }
};

} // namespace

class tst_NxPresenter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void asksTheSceneAndWaits();
    void passesOnWhatTheSceneAnswers();
    void reportsAMissingScene();
    void refusesNoMessage();
    void refusesOtherThreads();
    void forgetsASceneThatLeft();
    void takesNoMessageItself();
    void keepsItsView();
    void ownsChildPresenters();

    void cleanup() { NxPresenter::registerScene(nullptr); }
};

void tst_NxPresenter::asksTheSceneAndWaits()
{
    Scene scene;
    NxPresenter::registerScene(&scene);
    NxPresenter presenter;
    NxQueryMessage query(nqcSelectedCutPoints);
    QVERIFY(presenter.sendMessageToScene(&query));
    QCOMPARE(query.result, 12);
    QCOMPARE(scene.received, (std::vector<int>{5000}));
}

void tst_NxPresenter::passesOnWhatTheSceneAnswers()
{
    Scene scene;
    scene.answer = false;
    NxPresenter::registerScene(&scene);
    NxPresenter presenter;
    NxMessage message(nmtTimelineAddMedia);
    QVERIFY(!presenter.sendMessageToScene(&message));
    QCOMPARE(scene.received, (std::vector<int>{3008}));
}

void tst_NxPresenter::reportsAMissingScene()
{
    NxTestLog::expectError(QStringLiteral("no scene takes message 3008"));
    NxPresenter presenter;
    NxMessage message(nmtTimelineAddMedia);
    QVERIFY(!presenter.sendMessageToScene(&message));
}

void tst_NxPresenter::refusesNoMessage()
{
    Scene scene;
    NxPresenter::registerScene(&scene);
    NxTestLog::expectError(QStringLiteral("no message to send"));
    NxPresenter presenter;
    QVERIFY(!presenter.sendMessageToScene(nullptr));
    QVERIFY(scene.received.empty());
}

void tst_NxPresenter::refusesOtherThreads()
{
    Scene scene;
    NxPresenter::registerScene(&scene);
    NxTestLog::expectError(QStringLiteral("must be sent from the GUI thread"));
    NxPresenter presenter;
    bool sent = true;
    std::thread([&] {
        NxMessage message(nmtTimelineAddMedia);
        sent = presenter.sendMessageToScene(&message);
    }).join();
    QVERIFY(!sent);
    QVERIFY(scene.received.empty());
}

void tst_NxPresenter::forgetsASceneThatLeft()
{
    {
        Scene scene;
        NxPresenter::registerScene(&scene);
        QCOMPARE(NxPresenter::scene(), &scene);
        NxPresenter::registerScene(nullptr);
    }
    QVERIFY(!NxPresenter::scene());
    NxTestLog::expectError(QStringLiteral("no scene takes message"));
    NxPresenter presenter;
    NxMessage message(nmtTimelineAddMedia);
    QVERIFY(!presenter.sendMessageToScene(&message));
}

void tst_NxPresenter::takesNoMessageItself()
{
    NxPresenter presenter;
    NxMessage message(nmtImportMedia);
    QVERIFY(!presenter.dispatchMessage(&message));
    QVERIFY(!presenter.dispatchMessage(nullptr));
}

void tst_NxPresenter::keepsItsView()
{
    NxPresenter presenter;
    QVERIFY(!presenter.view());
    View view;
    presenter.setView(&view);
    QCOMPARE(presenter.view(), &view);
    presenter.setView(nullptr);
    QVERIFY(!presenter.view());
}

void tst_NxPresenter::ownsChildPresenters()
{
    QPointer<NxPresenter> child;
    {
        NxPresenter parent;
        child = new NxPresenter(&parent);
        QVERIFY(child);
    }
    QVERIFY(!child);
}

NX_TEST_MAIN(tst_NxPresenter)
#include "tst_NxPresenter.moc"
