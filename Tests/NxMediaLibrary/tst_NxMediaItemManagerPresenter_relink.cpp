// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>

#include <NxCore/NxLogCapture.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <NxWidgets/ScriptedUser.h>
#include <Support/NxTestMain.h>

#include <QTest>

#include "DialogText.h"
#include "FlowStand.h"
#include "LogLines.h"
#include "TextLines.h"

using Presenter = NxMediaItemManagerPresenter;

namespace {

constexpr const char *OtherLength =
    "The selected file's duration is different from the clip you used in project and may cause "
    "issues, please reselect another file with the same duration.";
constexpr const char *RelinkStep = "step relinkMedia of NxMediaItemManagerPresenter::relinkMedia";

/// Media A, B and C of 100 frames, and files that are as long.
struct RelinkStand : FlowStand
{
    RelinkStand()
    {
        for (const char *name : {"A", "B", "C"}) {
            add(name)->facts.length = 100;
            manager->lengths.insert(found(name), 100);
        }
    }
    static QString found(const char *name)
    {
        return QStringLiteral("/found/") + QString::fromLatin1(name);
    }
    int relink(const char *names) { return presenter->relinkMedia(list(names)); }
};

/// Makes `media` the one that is relinked, without a file.
void beginWith(FlowStand *stand, INxAbstractMedia *media)
{
    ScriptedUser user;
    user.choose({});
    stand->presenter->relinkMedia({media});
}

} // namespace

/// A media is given another file that the user chose.
class tst_NxMediaItemManagerPresenter_relink : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void asksForAFile();
    void looksForTheNextFileBesideTheLast();
    void relinksEachInAStepOfItsOwn();
    void endsWhenNoFileIsChosen();
    void goesOnAfterARefusedFile();
    void tellsWhenTheProjectRefuses();
    void asksNothingAboutNothing();
    void leavesOutWhatIsNoMediaItem();
    void relinksWithoutAProject();

    void comparesLengths_data();
    void comparesLengths();
    void refusesWhatCannotBeRead();
    void refusesPlacesThatAreNotThere_data();
    void refusesPlacesThatAreNotThere();
    void knowsWhatWasRelinkedLast();

    void skipsWhatDiedMeanwhile();
    void skipsWhatDiesWhileItsFileIsChosen();
    void skipsWhatDiesWhileItsFileIsRead();
    void runsOnceAtATime();
    void runsAgainAfterARun();
    void endsWhenThePresenterDiesOverTheFiles();
    void endsWhenThePresenterDiesOverAFileThatIsRead();
    void endsWhenThePresenterDiesOverARefusal_data();
    void endsWhenThePresenterDiesOverARefusal();
    void changesNothingWithoutAManager();
};

void tst_NxMediaItemManagerPresenter_relink::asksForAFile()
{
    RelinkStand stand;
    NxConfig::Instance()->setDefaultImportDir(QStringLiteral("/cards/today"));
    ScriptedUser user;
    user.choose({});
    QCOMPARE(stand.relink("B"), 0);
    const NxFileDialogInfo info = user.fileDialogs().first();
    QCOMPARE(info.title, QStringLiteral("Relink"));
    QCOMPARE(info.directory, QStringLiteral("/cards/today"));
    QCOMPARE(info.filter, NxMediaLibraryUtils::getImportFileFilter());
    QCOMPARE(info.fileName, QStringLiteral("B"));
}

void tst_NxMediaItemManagerPresenter_relink::looksForTheNextFileBesideTheLast()
{
    RelinkStand stand;
    NxConfig::Instance()->setDefaultImportDir(QStringLiteral("/cards/today"));
    ScriptedUser user;
    user.choose(stand.found("A")).choose({}).choose({});
    QCOMPARE(stand.relink("C A"), 1);
    QCOMPARE(user.fileDialogs().at(0).directory, QStringLiteral("/cards/today"));
    QCOMPARE(user.fileDialogs().at(1).directory, QStringLiteral("/found"));
    QCOMPARE(stand.relink("A"), 0); // A new run begins where imports do.
    QCOMPARE(user.fileDialogs().at(2).directory, QStringLiteral("/cards/today"));
}

void tst_NxMediaItemManagerPresenter_relink::relinksEachInAStepOfItsOwn()
{
    RelinkStand stand;
    ScriptedUser user;
    user.choose(stand.found("A")).choose(stand.found("C"));
    QCOMPARE(stand.relink("C A"), 2);
    QCOMPARE(user.messages().size(), 0);
    QCOMPARE(stand.journal, lines({RelinkStep, "C takes /found/A", "step ends", RelinkStep,
                                   "A takes /found/C", "step ends"}));
}

void tst_NxMediaItemManagerPresenter_relink::endsWhenNoFileIsChosen()
{
    RelinkStand stand;
    ScriptedUser user;
    user.choose(stand.found("A")).choose({});
    QCOMPARE(stand.relink("A B C"), 1);
    QCOMPARE(stand.journal, lines({RelinkStep, "A takes /found/A", "step ends"}));
}

void tst_NxMediaItemManagerPresenter_relink::goesOnAfterARefusedFile()
{
    RelinkStand stand;
    stand.manager->lengths.insert(stand.found("B"), 150);
    ScriptedUser user;
    user.choose(stand.found("A")).choose(stand.found("B"));
    user.press(mdbAffirmative).choose(stand.found("C"));
    QCOMPARE(stand.relink("A B C"), 2);
    QCOMPARE(dialogText(user.messages().first()),
             lines({"style 0", OtherLength, "default 2, escape 4"}));
    QCOMPARE(stand.journal, lines({RelinkStep, "A takes /found/A", "step ends", RelinkStep,
                                   "C takes /found/C", "step ends"}));
}

void tst_NxMediaItemManagerPresenter_relink::tellsWhenTheProjectRefuses()
{
    RelinkStand stand;
    stand.manager->refused.insert(stand.found("A"));
    ScriptedUser user;
    user.choose(stand.found("A")).press(mdbAffirmative).choose(stand.found("B"));
    QCOMPARE(stand.relink("A B"), 1);
    QCOMPARE(dialogText(user.messages().first()),
             lines({"style 0", "\"A\" cannot be relinked to /found/A.", "default 2, escape 4"}));
    QCOMPARE(stand.journal, lines({RelinkStep, "A keeps off /found/A", "step ends", RelinkStep,
                                   "B takes /found/B", "step ends"}));
}

void tst_NxMediaItemManagerPresenter_relink::asksNothingAboutNothing()
{
    RelinkStand stand;
    const ScriptedUser user;
    QCOMPARE(stand.presenter->relinkMedia({}), 0);
    QCOMPARE(stand.presenter->relinkMedia({nullptr, nullptr}), 0);
    QCOMPARE(user.dialogs(), 0);
}

void tst_NxMediaItemManagerPresenter_relink::leavesOutWhatIsNoMediaItem()
{
    RelinkStand stand;
    UtilsMedia tile(NXVBLMODEL::mtImportTile);
    ScriptedUser user;
    user.choose(stand.found("B")).choose(stand.found("A"));
    QCOMPARE(stand.presenter->relinkMedia({&tile, stand.list("A").first()}), 1);
    QCOMPARE(stand.journal, lines({RelinkStep, "A takes /found/A", "step ends"}));
}

void tst_NxMediaItemManagerPresenter_relink::relinksWithoutAProject()
{
    RelinkStand stand;
    stand.engine.project = nullptr;
    ScriptedUser user;
    user.choose(stand.found("A"));
    QCOMPARE(stand.relink("A"), 1);
    QCOMPARE(stand.journal, lines({"A takes /found/A"}));
}

void tst_NxMediaItemManagerPresenter_relink::comparesLengths_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("lasts");
    QTest::addColumn<bool>("isKnown");
    QTest::addColumn<int>("recorded");
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("fits");

    for (const int kind : {int(NXVBLMODEL::mikVideo), int(NXVBLMODEL::mikAudio)}) {
        for (int difference = -3; difference <= 3; ++difference) {
            QTest::addRow("kind %d, %+d", kind, difference)
                << kind << true << true << 250 << 250 + difference << (qAbs(difference) < 2);
        }
    }
    const int video = NXVBLMODEL::mikVideo;
    const int image = NXVBLMODEL::mikImage;
    QTest::newRow("not read yet") << video << true << false << 0 << 250 << true;
    QTest::newRow("no length known") << video << true << true << 0 << 250 << true;
    QTest::newRow("length unknown") << video << true << true << -1 << 250 << true;
    QTest::newRow("one frame") << video << true << true << 1 << 0 << true;
    QTest::newRow("an empty file") << video << true << true << 250 << 0 << false;
    QTest::newRow("picture for picture") << image << false << true << 0 << 0 << true;
    QTest::newRow("video for picture") << image << false << true << 0 << 250 << false;
    QTest::newRow("picture for video") << video << true << true << 250 << 0 << false;
    QTest::newRow("picture not read yet") << image << false << false << 0 << 0 << true;
}

void tst_NxMediaItemManagerPresenter_relink::comparesLengths()
{
    QFETCH(int, kind);
    QFETCH(bool, lasts);
    QFETCH(bool, isKnown);
    QFETCH(int, recorded);
    QFETCH(int, length);
    QFETCH(bool, fits);
    FlowStand stand;
    FlowItem *media = stand.add("A");
    media->facts.k = kind;
    media->facts.length = recorded;
    media->lasts = lasts;
    if (!isKnown)
        media->info = nullptr;
    beginWith(&stand, media);
    const QString path = QStringLiteral("/found/A");
    stand.manager->lengths.insert(path, length);
    ScriptedUser user;
    if (!fits)
        user.press(mdbAffirmative);
    QCOMPARE(stand.presenter->checkRelinkMediaFile(0, path), fits);
    QCOMPARE(user.dialogs(), fits ? 0 : 1);
    if (!fits)
        QCOMPARE(user.messages().first().text, QString::fromLatin1(OtherLength));
    QCOMPARE(stand.journal, QStringList());
}

void tst_NxMediaItemManagerPresenter_relink::refusesWhatCannotBeRead()
{
    FlowStand stand;
    beginWith(&stand, stand.add("Film %1"));
    ScriptedUser user;
    user.press(mdbAffirmative);
    QVERIFY(!stand.presenter->checkRelinkMediaFile(0, QStringLiteral("/found/notes %2.txt")));
    QCOMPARE(dialogText(user.messages().first()),
             lines({"style 0",
                    "/found/notes %2.txt cannot be read as media, so it cannot take the place of "
                    "\"Film %1\".",
                    "default 2, escape 4"}));
}

void tst_NxMediaItemManagerPresenter_relink::refusesPlacesThatAreNotThere_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("path");

    QTest::newRow("before the first") << -1 << "/found/A";
    QTest::newRow("behind the last") << 1 << "/found/A";
    QTest::newRow("no path") << 0 << "";
}

void tst_NxMediaItemManagerPresenter_relink::refusesPlacesThatAreNotThere()
{
    QFETCH(int, index);
    QFETCH(QString, path);
    RelinkStand stand;
    beginWith(&stand, stand.list("A").first());
    const ScriptedUser user;
    QVERIFY(!stand.presenter->checkRelinkMediaFile(index, path));
    if (index != 0)
        QCOMPARE(stand.presenter->getRelinkMediaFile(index), QString());
    QCOMPARE(user.dialogs(), 0);
}

void tst_NxMediaItemManagerPresenter_relink::knowsWhatWasRelinkedLast()
{
    RelinkStand stand;
    {
        const ScriptedUser user;
        QCOMPARE(stand.presenter->getRelinkMediaFile(0), QString()); // Nothing was, until now.
        QVERIFY(!stand.presenter->checkRelinkMediaFile(0, stand.found("A")));
        QCOMPARE(user.dialogs(), 0);
    }
    beginWith(&stand, stand.list("B").first());
    ScriptedUser user;
    user.choose(stand.found("B"));
    QCOMPARE(stand.presenter->getRelinkMediaFile(0), stand.found("B"));
    QVERIFY(stand.presenter->checkRelinkMediaFile(0, stand.found("B")));
    QCOMPARE(user.fileDialogs().first().fileName, QStringLiteral("B"));
}

void tst_NxMediaItemManagerPresenter_relink::skipsWhatDiedMeanwhile()
{
    RelinkStand stand;
    ScriptedUser user;
    user.choose(stand.found("A")).whileOpen([&stand] { stand.kill(stand.list("B").first()); });
    user.choose(stand.found("C"));
    QCOMPARE(stand.relink("A B C"), 2);
    QCOMPARE(stand.journal, lines({RelinkStep, "A takes /found/A", "step ends", RelinkStep,
                                   "C takes /found/C", "step ends"}));
}

void tst_NxMediaItemManagerPresenter_relink::skipsWhatDiesWhileItsFileIsChosen()
{
    RelinkStand stand;
    ScriptedUser user;
    user.choose(stand.found("A")).whileOpen([&stand] { stand.kill(stand.list("A").first()); });
    user.choose(stand.found("B"));
    QCOMPARE(stand.relink("A B"), 1);
    QCOMPARE(stand.journal, lines({RelinkStep, "B takes /found/B", "step ends"}));
}

void tst_NxMediaItemManagerPresenter_relink::skipsWhatDiesWhileItsFileIsRead()
{
    RelinkStand stand;
    stand.manager->whileReading = [&stand] {
        stand.kill(stand.list("A").first());
        stand.manager->whileReading = nullptr;
    };
    ScriptedUser user;
    user.choose(stand.found("A")).choose(stand.found("B"));
    QCOMPARE(stand.relink("A B"), 1);
    QCOMPARE(stand.journal, lines({RelinkStep, "B takes /found/B", "step ends"}));
}

void tst_NxMediaItemManagerPresenter_relink::runsOnceAtATime()
{
    RelinkStand stand;
    const NxLogCapture log;
    NxTestLog::expectError(QStringLiteral("media are being relinked already"));
    int inner = -1;
    ScriptedUser user;
    user.choose(stand.found("A")).whileOpen([&stand, &inner] { inner = stand.relink("B"); });
    QCOMPARE(stand.relink("A"), 1);
    QCOMPARE(inner, 0);
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(linesOf(log), lines({"error NxMediaItemManagerPresenter::relinkMedia: media are being "
                                  "relinked already"}));
    QCOMPARE(stand.journal, lines({RelinkStep, "A takes /found/A", "step ends"}));
}

void tst_NxMediaItemManagerPresenter_relink::runsAgainAfterARun()
{
    RelinkStand stand;
    ScriptedUser user;
    user.choose({}).choose(stand.found("A"));
    QCOMPARE(stand.relink("A"), 0);
    QCOMPARE(stand.relink("A"), 1);
}

void tst_NxMediaItemManagerPresenter_relink::endsWhenThePresenterDiesOverTheFiles()
{
    RelinkStand stand;
    ScriptedUser user;
    user.choose(stand.found("A"));
    user.choose(stand.found("B")).whileOpen([&stand] { stand.presenter.reset(); });
    QCOMPARE(stand.relink("A B C"), 1);
    QCOMPARE(stand.journal, lines({RelinkStep, "A takes /found/A", "step ends"}));
}

void tst_NxMediaItemManagerPresenter_relink::endsWhenThePresenterDiesOverAFileThatIsRead()
{
    RelinkStand stand;
    stand.manager->whileReading = [&stand] { stand.presenter.reset(); };
    ScriptedUser user;
    user.choose(stand.found("A"));
    QCOMPARE(stand.relink("A B"), 0);
    QCOMPARE(stand.journal, QStringList());
}

void tst_NxMediaItemManagerPresenter_relink::endsWhenThePresenterDiesOverARefusal_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("isRefused");

    QTest::newRow("cannot be read") << -1 << false;
    QTest::newRow("another length") << 150 << false;
    QTest::newRow("refused by the project") << 100 << true;
}

void tst_NxMediaItemManagerPresenter_relink::endsWhenThePresenterDiesOverARefusal()
{
    QFETCH(int, length);
    QFETCH(bool, isRefused);
    RelinkStand stand;
    const QString path = stand.found("A");
    stand.manager->lengths.insert(path, length);
    if (isRefused)
        stand.manager->refused.insert(path);
    ScriptedUser user;
    user.choose(path).press(mdbAffirmative).whileOpen([&stand] { stand.presenter.reset(); });
    QCOMPARE(stand.relink("A B"), 0);
    QCOMPARE(user.dialogs(), 2); // Nobody is asked about B.
}

void tst_NxMediaItemManagerPresenter_relink::changesNothingWithoutAManager()
{
    RelinkStand stand;
    ScriptedUser user;
    user.choose(stand.found("A")).whileOpen([&stand] { stand.manager.reset(); });
    QCOMPARE(stand.relink("A"), 0);
    QCOMPARE(stand.journal, QStringList());
}

NX_TEST_MAIN(tst_NxMediaItemManagerPresenter_relink)
#include "tst_NxMediaItemManagerPresenter_relink.moc"
