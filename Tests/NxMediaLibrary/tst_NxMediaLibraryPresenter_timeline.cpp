// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxLogCapture.h>
#include <NxCore/NxMessageType.h>
#include <NxCore/NxQueryMessage.h>
#include <NxVBLModel/NxAddCustomMediaItemMessage.h>
#include <NxVBLModel/NxTimelineAddMediaMessage.h>
#include <NxVBLModel/NxTimelineAddMediaResponseMessage.h>
#include <NxVBLModel/NxTimelineAddProjectTemplateResponseMessage.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include "LibraryStand.h"
#include "LogLines.h"
#include "ScriptedProject.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

QStringList filed(const char *function, const QStringList &names)
{
    QStringList lines;
    for (const QString &name : names)
        lines.append(
            QStringLiteral("info NxMediaLibraryPresenterPrivate::%1: add to project folder: %2")
                .arg(QLatin1String(function), name));
    return lines;
}

QStringList filedClips(const QStringList &names)
{
    return filed("processAddTimelineMediaResponse", names);
}

QStringList filedTemplate(const QStringList &names)
{
    return filed("processTimelineAddProjectTemplateResponse", names);
}

/// A project whose own media are "held" and, in a folder further in, "deep".
struct TimelineStand : LibraryStand
{
    TimelineStand()
    {
        engine.project = &project;
        media.list("held");
        media.list(QStringLiteral("deep"), media.addFolder("folder", media.section));
    }
    /// A media that stands in no folder of the project.
    ScriptedItem *make(const char *name, const char *path = "")
    {
        ScriptedItem *item = media.list(QLatin1String(name), &elsewhere);
        item->path = QLatin1String(path);
        return item;
    }
    ScriptedItem *makeStockCopy(const char *name, const char *path)
    {
        ScriptedItem *item = make(name, path);
        item->code = mkcStockCopy;
        return item;
    }

    ScriptedProject project{&log.lines};
    ScriptedCategory &media = library[mctMedia];
    ScriptedItemFolder elsewhere{QStringLiteral("elsewhere")};
};

struct Response : NxTimelineAddMediaResponseMessage
{
    explicit Response(const QList<INxAbstractMedia *> &added) { medias = added; }
};

struct TemplateResponse : NxTimelineAddProjectTemplateResponseMessage
{
    explicit TemplateResponse(const QList<INxAbstractMedia *> &added) { medias = added; }
};

/// The project's own transitions, of which some are downloaded.
struct TransitionStand : LibraryStand
{
    explicit TransitionStand(const QList<QString> &names)
    {
        for (const QString &name : names)
            transitions.list(name, downloaded);
        scene.look = [this](NxMessage *message) { look(message); };
    }
    void look(NxMessage *message)
    {
        if (auto *query = dynamic_cast<NxQueryMessage *>(message)) {
            queries.append(query->queryCode);
            query->result = cutPoints;
        }
        if (const auto *add = dynamic_cast<NxTimelineAddMediaMessage *>(message)) {
            added = add->medias;
            mode = add->addMode;
        }
    }
    bool ask()
    {
        NxMessage message(nmtAddRandomClips);
        return presenter.dispatchMessage(&message);
    }

    ScriptedCategory &transitions = library[mctTransition];
    ScriptedItemFolder *const downloaded =
        transitions.folders.addSection(QStringLiteral("downloaded"), fkDownloaded);
    int cutPoints = 0;
    QList<int> queries;
    QList<INxAbstractMedia *> added;
    int mode = 0;
};

} // namespace

/// What the panel does about the timeline: it files what is used there among the project's own
/// media, and puts transitions there.
class tst_NxMediaLibraryPresenter_timeline : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Clips that were put on the timeline

    void newClipsAreFiled()
    {
        TimelineStand stand;
        ScriptedItem *a = stand.make("a");
        ScriptedItem *b = stand.make("Schnee");
        b->title = QStringLiteral("Schnee ß雪");
        const NxLogCapture log;
        Response message({a, b});
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(linesOf(log), filedClips({QStringLiteral("a"), QStringLiteral("Schnee ß雪")}));
        QCOMPARE(stand.log.take(), (QStringList{QStringLiteral("add a Schnee ß雪 to section"),
                                                QStringLiteral("set project")}));
        QCOMPARE(stand.media.projects, QList<INxProject *>{&stand.project});
        QCOMPARE(stand.presenter.currentCategoryType(), mctNone);
    }

    void theProjectIsHandedOverEvenWhenNoneIsOpen()
    {
        TimelineStand stand;
        stand.engine.project = nullptr;
        Response message({stand.make("a")});
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.media.projects, QList<INxProject *>{nullptr});
    }

    void theStatusDecides_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("isFiled");
        for (const int status : {-1, 0, 1, 2, 4})
            QTest::addRow("%d", status) << status << true;
        QTest::newRow("cancelled") << 3 << false;
    }

    void theStatusDecides()
    {
        QFETCH(int, status);
        QFETCH(bool, isFiled);
        TimelineStand stand;
        Response message({stand.make("a")});
        message.status = status;
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.media.projects.size(), isFiled ? 1 : 0);
        QCOMPARE(stand.log.take().size(), isFiled ? 2 : 0);
    }

    void heldMediaAreNotFiledAgain()
    {
        TimelineStand stand;
        const NxLogCapture log;
        Response message({stand.media.medias[0].get(), nullptr, stand.media.medias[1].get()});
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(linesOf(log), QStringList());
        QCOMPARE(stand.log.take(), QStringList());
        QVERIFY(stand.media.projects.isEmpty());
    }

    void nothingIsFiledOfAnEmptyList()
    {
        TimelineStand stand;
        Response message({});
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), QStringList());
    }

    void aMediaThatComesTwiceIsFiledOnce()
    {
        TimelineStand stand;
        ScriptedItem *a = stand.make("a");
        ScriptedItem *b = stand.make("b");
        const NxLogCapture log;
        Response message({a, b, a, b, a});
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(linesOf(log), filedClips({QStringLiteral("a"), QStringLiteral("b")}));
        QCOMPARE(stand.log.take().first(), QStringLiteral("add a b to section"));
    }

    void aStockCopyIsKnownByItsFile()
    {
        TimelineStand stand;
        ScriptedItem *again = stand.makeStockCopy("again", "/footage/held");
        ScriptedItem *deepAgain = stand.makeStockCopy("deep again", "/footage/deep");
        ScriptedItem *fresh = stand.makeStockCopy("fresh", "/footage/fresh");
        ScriptedItem *freshAgain = stand.makeStockCopy("fresh again", "/footage/fresh");
        ScriptedItem *nowhere = stand.makeStockCopy("nowhere", "");
        ScriptedItem *nowhereElse = stand.makeStockCopy("nowhere else", "");
        const NxLogCapture log;
        Response message({again, deepAgain, fresh, freshAgain, nowhere, nowhereElse});
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(linesOf(log), filedClips({QStringLiteral("fresh"), QStringLiteral("nowhere"),
                                           QStringLiteral("nowhere else")}));
    }

    void anyOtherClipIsKnownByItself()
    {
        TimelineStand stand;
        const NxLogCapture log;
        Response message(
            {stand.make("again", "/footage/held"), stand.make("too", "/footage/held")});
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(linesOf(log), filedClips({QStringLiteral("again"), QStringLiteral("too")}));
    }

    void resourcesAreFiledOnlyAsFiles_data()
    {
        QTest::addColumn<bool>("isResource");
        QTest::addColumn<bool>("isSourceMedia");
        QTest::addColumn<bool>("isFiled");
        QTest::newRow("file") << false << false << true;
        QTest::newRow("source file") << false << true << true;
        QTest::newRow("resource") << true << false << false;
        QTest::newRow("downloaded resource") << true << true << true;
    }

    void resourcesAreFiledOnlyAsFiles()
    {
        QFETCH(bool, isResource);
        QFETCH(bool, isSourceMedia);
        QFETCH(bool, isFiled);
        TimelineStand stand;
        ScriptedItem *item = stand.make("a", "/footage/a");
        item->resource = isResource;
        item->sourceMedia = isSourceMedia;
        Response message({item});
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.media.projects.size(), isFiled ? 1 : 0);
        item->home = &stand.elsewhere;
        stand.media.section->media.removeAll(item);
        TemplateResponse templateMessage({item});
        QVERIFY(stand.presenter.dispatchMessage(&templateMessage));
        QCOMPARE(stand.media.projects.size(), isFiled ? 2 : 0);
    }

    void clipsAreNotFiledWithoutASection()
    {
        TimelineStand stand;
        stand.media.section->id = 98;
        const NxLogCapture log;
        Response message({stand.make("a")});
        TemplateResponse templateMessage({stand.make("b")});
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QVERIFY(stand.presenter.dispatchMessage(&templateMessage));
        QCOMPARE(linesOf(log), QStringList());
        QCOMPARE(stand.log.take(), QStringList());
    }

    void clipsAreNotFiledWithoutTheProjectsMedia()
    {
        LibraryStand stand;
        ScriptedItem item;
        const NxLogCapture log;
        Response message({&item});
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(linesOf(log), QStringList());
    }

    // Media of a project template

    void mediaOfATemplateAreKnownByTheirFiles()
    {
        TimelineStand stand;
        const NxLogCapture log;
        TemplateResponse message(
            {stand.make("again", "/footage/held"), stand.make("deep again", "/footage/deep"),
             nullptr, stand.make("new", "/footage/new"), stand.make("new again", "/footage/new"),
             stand.make("nowhere"), stand.make("nowhere else"), stand.media.medias[0].get(),
             stand.makeStockCopy("stock", "/footage/stock")});
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(linesOf(log),
                 filedTemplate({QStringLiteral("new"), QStringLiteral("nowhere"),
                                QStringLiteral("nowhere else"), QStringLiteral("stock")}));
        QCOMPARE(stand.log.take(),
                 (QStringList{QStringLiteral("add new nowhere nowhere else stock to section"),
                              QStringLiteral("set project")}));
        QCOMPARE(stand.media.projects, QList<INxProject *>{&stand.project});
    }

    void aTemplateOfHeldMediaChangesNothing()
    {
        TimelineStand stand;
        TemplateResponse message({stand.make("again", "/footage/held")});
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), QStringList());
        QVERIFY(stand.media.projects.isEmpty());
    }

    void aTemplateWithoutTheProjectsMediaIsLogged()
    {
        NxTestLog::expectError(QStringLiteral("pMediaManager is null"));
        LibraryStand stand;
        ScriptedItem item;
        const NxLogCapture log;
        TemplateResponse message({&item});
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(linesOf(log),
                 QStringList{QStringLiteral(
                     "error NxMediaLibraryPresenterPrivate::"
                     "processTimelineAddProjectTemplateResponse: pMediaManager is null")});
    }

    // Transitions at the cuts

    void twoTransitionsAreDrawnForEachCut_data()
    {
        QTest::addColumn<int>("cutPoints");
        QTest::addColumn<int>("drawn");
        for (const int cutPoints : {0, 1, 2, 7, 200})
            QTest::addRow("%d cuts", cutPoints) << cutPoints << 2 * cutPoints;
        QTest::newRow("an answer that is no number of cuts") << -3 << 0;
    }

    void twoTransitionsAreDrawnForEachCut()
    {
        QFETCH(int, cutPoints);
        QFETCH(int, drawn);
        TransitionStand stand({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        const QSet<INxAbstractMedia *> known(stand.downloaded->media.begin(),
                                             stand.downloaded->media.end());
        stand.cutPoints = cutPoints;
        QVERIFY(!stand.ask());
        QCOMPARE(stand.scene.types, (QList<int>{nmtQuery, nmtTimelineAddMedia}));
        QCOMPARE(stand.queries, QList<int>{5003});
        QCOMPARE(stand.mode, 4);
        QCOMPARE(stand.added.size(), drawn);
        const QSet<INxAbstractMedia *> used(stand.added.begin(), stand.added.end());
        QVERIFY(known.contains(used));
        if (drawn >= 400)
            QCOMPARE(used, known);
    }

    void aTransitionIsDrawnAsOftenAsItTakes()
    {
        TransitionStand stand({QStringLiteral("a")});
        stand.cutPoints = 3;
        QVERIFY(!stand.ask());
        QCOMPARE(stand.added.size(), 6);
        QCOMPARE(stand.added.count(stand.downloaded->media.first()), 6);
    }

    void transitionsFurtherInAreDrawn()
    {
        TransitionStand stand({});
        ScriptedItemFolder *inner = stand.transitions.addFolder("inner", stand.downloaded);
        ScriptedItem *only = stand.transitions.list(QStringLiteral("only"), inner);
        stand.cutPoints = 1;
        QVERIFY(!stand.ask());
        QCOMPARE(stand.added, (QList<INxAbstractMedia *>{only, only}));
    }

    void nothingIsAskedWithoutTransitions()
    {
        TransitionStand stand({});
        stand.transitions.list("not downloaded");
        stand.cutPoints = 3;
        QVERIFY(!stand.ask());
        QCOMPARE(stand.scene.types, QList<int>());
        stand.downloaded->id = 98;
        QVERIFY(!stand.ask());
        stand.transitions.hasFolders = false;
        QVERIFY(!stand.ask());
        stand.library.categories.clear();
        QVERIFY(!stand.ask());
        QCOMPARE(stand.scene.types, QList<int>());
    }

    void theLogTellsWhenThereIsNoTimeline()
    {
        NxTestLog::expectError(QStringLiteral("no scene takes message 5000"));
        NxTestLog::expectError(QStringLiteral("no scene takes message 3008"));
        TransitionStand stand({QStringLiteral("a")});
        NxPresenter::registerScene(nullptr);
        QVERIFY(!stand.ask());
    }

    // A custom media

    void aCustomMediaIsOffered()
    {
        LibraryStand stand;
        stand.library[mctMedia];
        stand.follow(mctMedia);
        NxAddCustomMediaItemMessage message;
        message.value = QStringLiteral("preset");
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QVERIFY(message.received);
        QVERIFY(!message.alreadyAdded);
        QCOMPARE(stand.log.take(),
                 QStringList{QStringLiteral("items: sigAddCustomMediaItem(kind 18 preset, null)")});
        QCOMPARE(stand.presenter.currentCategoryType(), mctNone);
    }

    void aCustomMediaThatIsThereIsOnlyReceived()
    {
        LibraryStand stand;
        stand.library[mctMedia];
        stand.follow(mctMedia);
        NxAddCustomMediaItemMessage message;
        message.alreadyAdded = true;
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QVERIFY(message.received);
        QVERIFY(message.alreadyAdded);
        QCOMPARE(stand.log.take(), QStringList());
    }

    void aCustomMediaIsReceivedWithoutTheProjectsMedia()
    {
        LibraryStand stand;
        NxAddCustomMediaItemMessage message;
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QVERIFY(message.received);
    }
};

NX_TEST_MAIN(tst_NxMediaLibraryPresenter_timeline)
#include "tst_NxMediaLibraryPresenter_timeline.moc"
