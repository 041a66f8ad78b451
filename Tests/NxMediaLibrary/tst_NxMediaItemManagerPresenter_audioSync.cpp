// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>

#include <NxCore/INxScene.h>
#include <NxCore/NxLogCapture.h>
#include <NxVBLModel/INxAudioSyncService.h>
#include <NxVBLModel/NxTimelineAudioSynMessage.h>

#include <NxWidgets/ScriptedUser.h>
#include <Support/NxTestMain.h>

#include <QTest>

#include "DialogText.h"
#include "FlowStand.h"
#include "LogLines.h"
#include "TextLines.h"

using namespace NXVBLMODEL;
using Presenter = NxMediaItemManagerPresenter;

namespace {

constexpr qint64 ShortestMs = 1000;
constexpr qint64 LongestMs = 10000;

struct FlowAudioSync final : INxAudioSyncService
{
    qint64 minLength() const override { return ShortestMs; }
    qint64 maxLength() const override { return LongestMs; }
};

/// Writes down the audio synchronisations that it is sent.
struct AudioSyncScene final : INxScene
{
    AudioSyncScene() { NxPresenter::registerScene(this); }
    ~AudioSyncScene() override { NxPresenter::registerScene(nullptr); }
    bool onMessage(NxMessage *message) override
    {
        const auto *sync = dynamic_cast<NxTimelineAudioSynMessage *>(message);
        sent.append(sync ? QStringLiteral("%1 %2, mode %3, mute %4")
                               .arg(sync->first->name(), sync->second->name())
                               .arg(sync->mode)
                               .arg(sync->muteChoice)
                         : QStringLiteral("another message"));
        return true;
    }

    QStringList sent;
};

/// Media that are long enough: V and W have pictures and sound, A and B sound alone.
struct SyncStand : FlowStand
{
    SyncStand()
    {
        engine.audioSync = &service;
        for (const char *name : {"V", "W", "A", "B"}) {
            const bool isVideo = *name >= 'V';
            FlowItem *item = add(name, isVideo ? mtVideoAudio : mtAudio);
            item->facts.k = isVideo ? mikVideo : mikAudio;
            item->facts.frames = 100;
            item->facts.rate = {25, 1};
        }
    }

    FlowAudioSync service;
    AudioSyncScene scene;
};

/// The length of V in frames, at a rate.
struct Length
{
    qint64 frames;
    int num;
    int den;
};

} // namespace

Q_DECLARE_METATYPE(Length)
Q_DECLARE_METATYPE(std::function<void(SyncStand *)>)

/// Two media that are put on the timeline, aligned by their sound.
class tst_NxMediaItemManagerPresenter_audioSync : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isForAVideoAndAVideoOrSound_data();
    void isForAVideoAndAVideoOrSound();
    void isForTwo_data();
    void isForTwo();
    void isForMediaItems();

    void knowsTheLengthsThatCanBeAligned_data();
    void knowsTheLengthsThatCanBeAligned();
    void alignsNothingOfUnknownLength();
    void alignsNothingWithoutAService();

    void startsWithTwoMediaAlone_data();
    void startsWithTwoMediaAlone();
    void tellsWhatCannotBeAligned();
    void alignsVideosWithoutAQuestion();
    void asksAboutTheSoundOfAVideo();
    void sendsWhatTheUserSays_data();
    void sendsWhatTheUserSays();
    void endsWhenSomethingDies_data();
    void endsWhenSomethingDies();
    void notesThatThereIsNoEditor();
};

void tst_NxMediaItemManagerPresenter_audioSync::isForAVideoAndAVideoOrSound_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<bool>("isEnabled");

    for (const int first : {mikUnknown, mikVideo, mikAudio, mikImage, mikSubtitle}) {
        for (const int second : {mikUnknown, mikVideo, mikAudio, mikImage, mikSubtitle}) {
            const bool isEnabled = (first == mikVideo && second == mikVideo)
                                   || (first == mikVideo && second == mikAudio)
                                   || (first == mikAudio && second == mikVideo);
            QTest::addRow("%d and %d", first, second) << first << second << isEnabled;
        }
    }
}

void tst_NxMediaItemManagerPresenter_audioSync::isForAVideoAndAVideoOrSound()
{
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(bool, isEnabled);
    // What the file holds counts, not what the media is listed as.
    FlowItem a(QStringLiteral("a"), mtAudio);
    FlowItem b(QStringLiteral("b"), mtAudio);
    a.facts.k = first;
    b.facts.k = second;
    const NxLogCapture log;
    QCOMPARE(Presenter::isAudioSyncEnabled({&a, &b}), isEnabled);
    QCOMPARE(linesOf(log), QStringList());
}

void tst_NxMediaItemManagerPresenter_audioSync::isForTwo_data()
{
    QTest::addColumn<int>("count");

    for (const int count : {0, 1, 3, 4})
        QTest::addRow("%d", count) << count;
}

void tst_NxMediaItemManagerPresenter_audioSync::isForTwo()
{
    QFETCH(int, count);
    FlowItem video(QStringLiteral("video"));
    FlowStand::Items items;
    for (int i = 0; i < count; ++i)
        items.append(&video);
    const NxLogCapture log;
    QVERIFY(!Presenter::isAudioSyncEnabled(items));
    QCOMPARE(linesOf(log), lines({"info NxMediaItemManagerPresenter::isAudioSyncEnabled: not two "
                                  "medias selected"}));
}

void tst_NxMediaItemManagerPresenter_audioSync::isForMediaItems()
{
    FlowItem video(QStringLiteral("video"));
    FlowItem unread(QStringLiteral("unread"));
    unread.info = nullptr;
    UtilsMedia tile(mtImportTile);
    const NxLogCapture log;
    QVERIFY(Presenter::isAudioSyncEnabled({&video, &video}));
    for (INxAbstractMedia *other :
         QList<INxAbstractMedia *>({nullptr, &tile, static_cast<INxAbstractMedia *>(&unread)})) {
        QVERIFY(!Presenter::isAudioSyncEnabled({&video, other}));
        QVERIFY(!Presenter::isAudioSyncEnabled({other, &video}));
        QVERIFY(!Presenter::isAudioSyncEnabled({other, other}));
    }
    QCOMPARE(linesOf(log), QStringList());
}

void tst_NxMediaItemManagerPresenter_audioSync::knowsTheLengthsThatCanBeAligned_data()
{
    QTest::addColumn<Length>("length");
    QTest::addColumn<bool>("isValid");

    QTest::newRow("a frame too short") << Length{24, 25, 1} << false;
    QTest::newRow("shortest") << Length{25, 25, 1} << true;
    QTest::newRow("longest") << Length{250, 25, 1} << true;
    QTest::newRow("a frame too long") << Length{251, 25, 1} << false;
    QTest::newRow("shortest of film") << Length{24, 24000, 1001} << true; // 1001 ms.
    QTest::newRow("too long of film") << Length{240, 24000, 1001} << false; // 10010 ms.
    QTest::newRow("longest of film") << Length{239, 24000, 1001} << true;
    QTest::newRow("one frame that lasts") << Length{1, 1, 2} << true;
    QTest::newRow("no frames") << Length{0, 25, 1} << false;
    QTest::newRow("fewer than none") << Length{-250, 25, 1} << false;
    QTest::newRow("no rate") << Length{100, 0, 0} << false;
    QTest::newRow("half a rate") << Length{100, 25, 0} << false;
    QTest::newRow("backwards") << Length{-100, -25, 1} << false;
}

void tst_NxMediaItemManagerPresenter_audioSync::knowsTheLengthsThatCanBeAligned()
{
    QFETCH(Length, length);
    QFETCH(bool, isValid);
    SyncStand stand;
    auto *tested = static_cast<FlowItem *>(stand.list("V").first());
    auto *other = static_cast<FlowItem *>(stand.list("A").first());
    tested->facts.frames = length.frames;
    tested->facts.rate = {length.num, length.den};
    QCOMPARE(stand.presenter->isValidAudioSyncMediaLength(tested, other), isValid);
    QCOMPARE(stand.presenter->isValidAudioSyncMediaLength(other, tested), isValid);
}

void tst_NxMediaItemManagerPresenter_audioSync::alignsNothingOfUnknownLength()
{
    SyncStand stand;
    auto *known = static_cast<FlowItem *>(stand.list("V").first());
    auto *unread = static_cast<FlowItem *>(stand.list("A").first());
    unread->info = nullptr;
    QVERIFY(stand.presenter->isValidAudioSyncMediaLength(known, known));
    QVERIFY(!stand.presenter->isValidAudioSyncMediaLength(known, unread));
    QVERIFY(!stand.presenter->isValidAudioSyncMediaLength(unread, known));
    QVERIFY(!stand.presenter->isValidAudioSyncMediaLength(known, nullptr));
    QVERIFY(!stand.presenter->isValidAudioSyncMediaLength(nullptr, known));
    QVERIFY(!stand.presenter->isValidAudioSyncMediaLength(nullptr, nullptr));
}

void tst_NxMediaItemManagerPresenter_audioSync::alignsNothingWithoutAService()
{
    SyncStand stand;
    stand.engine.audioSync = nullptr;
    const NxLogCapture log;
    ScriptedUser user;
    user.press(mdbAffirmative);
    stand.presenter->startAudioSyn(stand.list("V A"));
    QCOMPARE(user.messages().first().title, QStringLiteral("Auto Synchronization"));
    QCOMPARE(stand.scene.sent, QStringList());
    QCOMPARE(linesOf(log), lines({"info INxMediaEngine::audioSyncService: the media engine offers "
                                  "no audio synchronisation"}));
}

void tst_NxMediaItemManagerPresenter_audioSync::startsWithTwoMediaAlone_data()
{
    QTest::addColumn<QString>("names");

    QTest::newRow("none") << "";
    QTest::newRow("one") << "V";
    QTest::newRow("three") << "V W A";
}

void tst_NxMediaItemManagerPresenter_audioSync::startsWithTwoMediaAlone()
{
    QFETCH(QString, names);
    SyncStand stand;
    const NxLogCapture log;
    const ScriptedUser user;
    NxTestLog::expectError(QStringLiteral("not two medias selected"));
    stand.presenter->startAudioSyn(stand.list(names.toLatin1().constData()));
    QCOMPARE(linesOf(log),
             lines({"error NxMediaItemManagerPresenter::startAudioSyn: not two medias selected"}));
    QCOMPARE(user.dialogs(), 0);
    QCOMPARE(stand.scene.sent, QStringList());
}

void tst_NxMediaItemManagerPresenter_audioSync::tellsWhatCannotBeAligned()
{
    SyncStand stand;
    UtilsMedia tile(mtImportTile);
    static_cast<FlowItem *>(stand.list("B").first())->facts.frames = 24;
    const QList<FlowStand::Items> pairs = {stand.list("V B"),
                                           stand.list("B W"),
                                           {stand.list("V").first(), &tile},
                                           {nullptr, stand.list("V").first()}};
    for (const FlowStand::Items &pair : pairs) {
        ScriptedUser user;
        user.press(mdbAffirmative);
        stand.presenter->startAudioSyn(pair);
        QCOMPARE(dialogText(user.messages().first()),
                 lines({"style 0", "title Auto Synchronization",
                        "The selected clips cannot be synchronized, please reselect the clips.",
                        "default 2, escape 4"}));
    }
    QCOMPARE(stand.scene.sent, QStringList());
}

void tst_NxMediaItemManagerPresenter_audioSync::alignsVideosWithoutAQuestion()
{
    SyncStand stand;
    const ScriptedUser user;
    stand.presenter->startAudioSyn(stand.list("W V"));
    QCOMPARE(stand.scene.sent, lines({"W V, mode 1, mute 0"}));
    QCOMPARE(user.dialogs(), 0);
    QCOMPARE(stand.journal, QStringList());
}

void tst_NxMediaItemManagerPresenter_audioSync::asksAboutTheSoundOfAVideo()
{
    SyncStand stand;
    ScriptedUser user;
    user.press(mdbAffirmative);
    stand.presenter->startAudioSyn(stand.list("A V"));
    QCOMPARE(dialogText(user.messages().first()),
             lines({"style 198",
                    "After the audio and video are synced, the audio and video will be added to "
                    "the timeline simultaneously. Do you want to mute the original audio within "
                    "the video file automatically?",
                    "buttons 2, 3", "default 2, escape 4"}));
}

void tst_NxMediaItemManagerPresenter_audioSync::sendsWhatTheUserSays_data()
{
    QTest::addColumn<QString>("names");
    QTest::addColumn<int>("button");
    QTest::addColumn<QStringList>("sent");

    const int closed = mdbClosed;
    QTest::newRow("sound first, yes") << "A V" << 2 << lines({"A V, mode 1, mute 1"});
    QTest::newRow("sound first, no") << "A V" << 3 << lines({"A V, mode 1, mute 2"});
    QTest::newRow("sound first, closed") << "A V" << closed << QStringList();
    QTest::newRow("sound last, yes") << "V A" << 2 << lines({"A V, mode 1, mute 1"});
    QTest::newRow("sound last, no") << "V A" << 3 << lines({"A V, mode 1, mute 2"});
    QTest::newRow("sound last, closed") << "V A" << closed << QStringList();
    QTest::newRow("two sounds stay as they are") << "B A" << 2 << lines({"B A, mode 1, mute 1"});
}

void tst_NxMediaItemManagerPresenter_audioSync::sendsWhatTheUserSays()
{
    QFETCH(QString, names);
    QFETCH(int, button);
    QFETCH(QStringList, sent);
    SyncStand stand;
    ScriptedUser user;
    if (button == mdbClosed)
        user.escape();
    else
        user.press(button);
    stand.presenter->startAudioSyn(stand.list(names.toLatin1().constData()));
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(stand.scene.sent, sent);
    QCOMPARE(stand.journal, QStringList());
}

void tst_NxMediaItemManagerPresenter_audioSync::endsWhenSomethingDies_data()
{
    using Deed = std::function<void(SyncStand *)>;
    QTest::addColumn<Deed>("kill");

    QTest::newRow("presenter") << Deed([](SyncStand *stand) { stand->presenter.reset(); });
    QTest::newRow("first") << Deed([](SyncStand *stand) { stand->kill(stand->list("V").first()); });
    QTest::newRow("second") << Deed(
        [](SyncStand *stand) { stand->kill(stand->list("A").first()); });
}

void tst_NxMediaItemManagerPresenter_audioSync::endsWhenSomethingDies()
{
    QFETCH(std::function<void(SyncStand *)>, kill);
    for (const int button : {mdbAffirmative, mdbNegative, mdbClosed}) {
        SyncStand stand;
        ScriptedUser user;
        if (button == mdbClosed)
            user.escape();
        else
            user.press(button);
        user.whileOpen([&stand, &kill] { kill(&stand); });
        stand.presenter->startAudioSyn(stand.list("V A"));
        QCOMPARE(user.dialogs(), 1);
        QCOMPARE(stand.scene.sent, QStringList());
    }
}

void tst_NxMediaItemManagerPresenter_audioSync::notesThatThereIsNoEditor()
{
    SyncStand stand;
    NxPresenter::registerScene(nullptr);
    const NxLogCapture log;
    NxTestLog::expectError(QStringLiteral("no scene takes message 3017"));
    stand.presenter->startAudioSyn(stand.list("V W"));
    QCOMPARE(linesOf(log),
             lines({"error NxPresenter::sendMessageToScene: no scene takes message 3017"}));
    QCOMPARE(stand.scene.sent, QStringList());
}

NX_TEST_MAIN(tst_NxMediaItemManagerPresenter_audioSync)
#include "tst_NxMediaItemManagerPresenter_audioSync.moc"
