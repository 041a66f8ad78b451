// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMissingMediaRelinker.h>

#include <NxCore/NxLogCapture.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QTest>

#include "FlowStand.h"
#include "LogLines.h"
#include "TextLines.h"

namespace {

constexpr const char *RelinkStep = "step relinkMedia of NxMissingMediaRelinker::onFinished";

/// Searches for nothing by itself: a test tells what was found, and when.
class FlowSearch final : public INxRelinkSearch
{
public:
    explicit FlowSearch(QStringList *journal) : m_journal(journal) {}

    quint64 start(const QList<INxAbstractMediaItem *> &items, const QString &directory) override
    {
        QStringList names;
        for (const INxAbstractMediaItem *item : items)
            names.append(item ? item->name() : QStringLiteral("null"));
        m_journal->append(QStringLiteral("search %1 for %2 in %3")
                              .arg(++number)
                              .arg(names.join(QLatin1Char(' ')), directory));
        return number;
    }
    void cancel(quint64 search) override
    {
        m_journal->append(QStringLiteral("cancel %1").arg(search));
    }

    quint64 number = 40;

private:
    QStringList *const m_journal; // Not owned.
};

NxRelinkFinding found(INxAbstractMedia *media, const QStringList &paths,
                      NxRelinkMatch match = NxRelinkMatch::Fingerprint)
{
    NxRelinkFinding finding;
    finding.media = NxMediaRef(media);
    finding.match = match;
    finding.paths = paths;
    return finding;
}

NxRelinkReport reportOf(const QVector<NxRelinkFinding> &findings)
{
    NxRelinkReport report;
    report.findings = findings;
    return report;
}

/// A relinker over media A, B and C, and what it told.
struct RelinkerStand : FlowStand
{
    RelinkerStand()
    {
        for (const char *name : {"A", "B", "C"})
            add(name);
        project->search = std::make_unique<FlowSearch>(&journal);
        relinker = std::make_unique<NxMissingMediaRelinker>(presenter.get());
        QObject::connect(relinker.get(), &NxMissingMediaRelinker::finished,
                         [this](const NxRelinkReport &report, int relinked) {
                             journal.append(QStringLiteral("finished, %1 relinked").arg(relinked));
                             told = report;
                         });
        QObject::connect(relinker.get(), &NxMissingMediaRelinker::progress,
                         [this](qint64 seen, qint64 compared) {
                             journal.append(
                                 QStringLiteral("seen %1, compared %2").arg(seen).arg(compared));
                         });
    }

    [[nodiscard]] FlowSearch *search() const
    {
        return static_cast<FlowSearch *>(project->search.get());
    }
    QList<INxAbstractMediaItem *> mediaItems(const char *names) const
    {
        return NxMediaLibraryUtils::extractMediaItems(list(names));
    }
    INxAbstractMedia *one(const char *name) const { return list(name).first(); }
    /// Begins a search for media, of which nothing is to be noted.
    void start(const char *names)
    {
        QVERIFY(relinker->start(mediaItems(names), QStringLiteral("/found")));
        journal.clear();
    }
    void finish(const QVector<NxRelinkFinding> &findings)
    {
        Q_EMIT search()->finished(search()->number, reportOf(findings));
    }
    /// Of the report that was told.
    [[nodiscard]] QList<NxRelinkMatch> matches() const
    {
        QList<NxRelinkMatch> list;
        for (const NxRelinkFinding &finding : told.findings)
            list.append(finding.match);
        return list;
    }

    std::unique_ptr<NxMissingMediaRelinker> relinker;
    NxRelinkReport told;
};

const auto APath = QStringLiteral("/found/A");
const auto BPath = QStringLiteral("/found/B");
const auto CPath = QStringLiteral("/found/C");

} // namespace

Q_DECLARE_METATYPE(std::function<void(RelinkerStand *)>)

/// Missing media that are looked for in a folder and put back in place.
class tst_NxMissingMediaRelinker : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void listsWhatIsMissing();

    void asksTheProjectToSearch();
    void relinksAllInOneStep();
    void changesNothingWhenNothingWasFound();
    void relinksWithoutAnUndoHistory();
    void neverChoosesForTheUser();
    void handsOnTheRestOfTheReport();
    void leavesChangedMediaAlone();
    void leavesRemovedMediaAlone();
    void leavesDeadMediaAlone();
    void relinksAMediaOnce();
    void tellsWhatTheProjectRefused();

    void tellsProgress();
    void ignoresSearchesOfOthers();
    void cancels();
    void searchesOnceAtATime();
    void searchesAgain();
    void searchesNothingWithoutASearch_data();
    void searchesNothingWithoutASearch();

    void endsWhenTheEngineGoes();
    void endsWhenThePresenterGoes();
    void endsWhenTheManagerGoes();
    void cancelsWhenItGoesItself();
    void mayDieOfWhatItTells();
};

void tst_NxMissingMediaRelinker::listsWhatIsMissing()
{
    FlowStand stand;
    const NxTempDir dir;
    stand.add("there")->file = dir.write(QStringLiteral("there.mov"));
    stand.add("gone")->file = dir.filePath(QStringLiteral("gone.mov"));
    stand.add("resource")->resource = true;
    stand.add("pathless")->file.clear();
    stand.add("far", stand.folder->append(std::make_unique<ScriptedItemFolder>()))->file =
        dir.filePath(QStringLiteral("far.mov"));
    QStringList names;
    const QList<INxAbstractMediaItem *> missing =
        NxMissingMediaRelinker::missingMedia(stand.folder);
    for (const INxAbstractMediaItem *item : missing)
        names.append(item->name());
    QCOMPARE(names, lines({"gone", "far"}));
    QVERIFY(NxMissingMediaRelinker::missingMedia(nullptr).isEmpty());
}

void tst_NxMissingMediaRelinker::asksTheProjectToSearch()
{
    RelinkerStand stand;
    QVERIFY(!stand.relinker->isRunning());
    QVERIFY(stand.relinker->start(stand.mediaItems("B A"), QStringLiteral("/found")));
    QVERIFY(stand.relinker->isRunning());
    QCOMPARE(stand.journal, lines({"search 41 for B A in /found"}));
}

void tst_NxMissingMediaRelinker::relinksAllInOneStep()
{
    RelinkerStand stand;
    stand.start("A B C");
    stand.finish({found(stand.one("A"), {APath}), found(stand.one("B"), {}, NxRelinkMatch::None),
                  found(stand.one("C"), {CPath}, NxRelinkMatch::NameSizeDuration)});
    QCOMPARE(stand.journal, lines({RelinkStep, "A takes /found/A", "C takes /found/C", "step ends",
                                   "finished, 2 relinked"}));
    QVERIFY(!stand.relinker->isRunning());
    QCOMPARE(stand.matches(), QList<NxRelinkMatch>({NxRelinkMatch::Fingerprint, NxRelinkMatch::None,
                                                    NxRelinkMatch::NameSizeDuration}));
}

void tst_NxMissingMediaRelinker::changesNothingWhenNothingWasFound()
{
    RelinkerStand stand;
    stand.start("A");
    stand.finish({found(stand.one("A"), {}, NxRelinkMatch::None)});
    QCOMPARE(stand.journal, lines({RelinkStep, "step ends", "finished, 0 relinked"}));
}

void tst_NxMissingMediaRelinker::relinksWithoutAnUndoHistory()
{
    RelinkerStand stand;
    stand.start("A");
    stand.project->hasUndo = false;
    stand.finish({found(stand.one("A"), {APath})});
    QCOMPARE(stand.journal, lines({"A takes /found/A", "finished, 1 relinked"}));
}

void tst_NxMissingMediaRelinker::neverChoosesForTheUser()
{
    RelinkerStand stand;
    stand.start("A B");
    stand.finish({found(stand.one("A"), {APath, BPath}, NxRelinkMatch::Ambiguous),
                  found(stand.one("B"), {BPath}, NxRelinkMatch::Ambiguous)});
    QCOMPARE(stand.journal, lines({RelinkStep, "step ends", "finished, 0 relinked"}));
    QCOMPARE(stand.matches(),
             QList<NxRelinkMatch>({NxRelinkMatch::Ambiguous, NxRelinkMatch::Ambiguous}));
    QCOMPARE(stand.told.findings.first().paths, QStringList({APath, BPath}));
}

void tst_NxMissingMediaRelinker::handsOnTheRestOfTheReport()
{
    RelinkerStand stand;
    stand.start("A");
    NxRelinkReport report = reportOf({found(stand.one("A"), {APath})});
    report.unreadable = lines({"/found/locked cannot be opened."});
    Q_EMIT stand.search()->finished(stand.search()->number, report);
    QCOMPARE(stand.told.unreadable, report.unreadable);
    QVERIFY(!stand.told.cancelled);
    QCOMPARE(stand.told.findings.first().paths, QStringList(APath));
    QCOMPARE(stand.journal.last(), QStringLiteral("finished, 1 relinked"));
}

void tst_NxMissingMediaRelinker::leavesChangedMediaAlone()
{
    RelinkerStand stand;
    stand.start("A B");
    static_cast<FlowItem *>(stand.one("A"))->file = QStringLiteral("/by/hand");
    stand.finish({found(stand.one("A"), {APath}), found(stand.one("B"), {BPath})});
    QCOMPARE(stand.journal,
             lines({RelinkStep, "B takes /found/B", "step ends", "finished, 1 relinked"}));
    QCOMPARE(stand.matches(),
             QList<NxRelinkMatch>({NxRelinkMatch::None, NxRelinkMatch::Fingerprint}));
}

void tst_NxMissingMediaRelinker::leavesRemovedMediaAlone()
{
    RelinkerStand stand;
    stand.start("A B");
    static_cast<FlowItem *>(stand.one("A"))->parent = nullptr; // It waits for an undo.
    stand.finish({found(stand.one("A"), {APath}), found(stand.one("B"), {BPath})});
    QCOMPARE(stand.journal,
             lines({RelinkStep, "B takes /found/B", "step ends", "finished, 1 relinked"}));
    QCOMPARE(stand.matches().first(), NxRelinkMatch::None);
}

void tst_NxMissingMediaRelinker::leavesDeadMediaAlone()
{
    RelinkerStand stand;
    stand.start("A B");
    const QVector<NxRelinkFinding> findings = {found(stand.one("A"), {APath}),
                                               found(stand.one("B"), {BPath})};
    stand.kill(stand.one("A"));
    stand.finish(findings);
    QCOMPARE(stand.journal,
             lines({RelinkStep, "B takes /found/B", "step ends", "finished, 1 relinked"}));
    QCOMPARE(stand.matches().first(), NxRelinkMatch::None);
    QVERIFY(stand.told.findings.first().media.isNull());
}

void tst_NxMissingMediaRelinker::relinksAMediaOnce()
{
    RelinkerStand stand;
    stand.start("A A");
    stand.finish({found(stand.one("A"), {APath}), found(stand.one("A"), {BPath})});
    QCOMPARE(stand.journal,
             lines({RelinkStep, "A takes /found/A", "step ends", "finished, 1 relinked"}));
}

void tst_NxMissingMediaRelinker::tellsWhatTheProjectRefused()
{
    RelinkerStand stand;
    stand.manager->refused.insert(APath);
    stand.start("A B");
    stand.finish({found(stand.one("A"), {APath}), found(stand.one("B"), {BPath})});
    QCOMPARE(stand.journal, lines({RelinkStep, "A keeps off /found/A", "B takes /found/B",
                                   "step ends", "finished, 1 relinked"}));
    QCOMPARE(stand.matches(),
             QList<NxRelinkMatch>({NxRelinkMatch::None, NxRelinkMatch::Fingerprint}));
}

void tst_NxMissingMediaRelinker::tellsProgress()
{
    RelinkerStand stand;
    stand.start("A");
    Q_EMIT stand.search()->progress(41, 10, 2);
    Q_EMIT stand.search()->progress(41, 30, 4);
    QCOMPARE(stand.journal, lines({"seen 10, compared 2", "seen 30, compared 4"}));
}

void tst_NxMissingMediaRelinker::ignoresSearchesOfOthers()
{
    RelinkerStand stand;
    stand.start("A");
    Q_EMIT stand.search()->progress(40, 10, 2);
    Q_EMIT stand.search()->finished(40, reportOf({found(stand.one("A"), {APath})}));
    Q_EMIT stand.search()->finished(0, reportOf({found(stand.one("A"), {APath})}));
    QCOMPARE(stand.journal, QStringList());
    QVERIFY(stand.relinker->isRunning());
}

void tst_NxMissingMediaRelinker::cancels()
{
    RelinkerStand stand;
    stand.relinker->cancel(); // Nothing runs.
    QCOMPARE(stand.journal, QStringList());
    stand.start("A B");
    stand.relinker->cancel();
    QVERIFY(stand.relinker->isRunning());
    // The files that were not looked at may be the right ones as well.
    NxRelinkReport report =
        reportOf({found(stand.one("A"), {APath}), found(stand.one("B"), {}, NxRelinkMatch::None)});
    report.cancelled = true;
    Q_EMIT stand.search()->finished(stand.search()->number, report);
    QCOMPARE(stand.journal, lines({"cancel 41", "finished, 0 relinked"}));
    QVERIFY(stand.told.cancelled);
    QCOMPARE(stand.matches(),
             QList<NxRelinkMatch>({NxRelinkMatch::Ambiguous, NxRelinkMatch::None}));
    QCOMPARE(stand.told.findings.first().paths, QStringList(APath));
    stand.takeJournal();
    stand.relinker->cancel();
    QCOMPARE(stand.journal, QStringList());
}

void tst_NxMissingMediaRelinker::searchesOnceAtATime()
{
    RelinkerStand stand;
    stand.start("A");
    const NxLogCapture log;
    NxTestLog::expectError(QStringLiteral("a search for missing media runs already"));
    QVERIFY(!stand.relinker->start(stand.mediaItems("B"), QStringLiteral("/elsewhere")));
    QCOMPARE(linesOf(log), lines({"error NxMissingMediaRelinker::start: a search for missing media "
                                  "runs already"}));
    QCOMPARE(stand.journal, QStringList());
    stand.finish({found(stand.one("A"), {APath})});
    QCOMPARE(stand.journal,
             lines({RelinkStep, "A takes /found/A", "step ends", "finished, 1 relinked"}));
}

void tst_NxMissingMediaRelinker::searchesAgain()
{
    RelinkerStand stand;
    stand.start("A");
    stand.finish({found(stand.one("A"), {}, NxRelinkMatch::None)});
    stand.start("A");
    // Told once, and of the new search alone.
    Q_EMIT stand.search()->progress(41, 1, 1);
    Q_EMIT stand.search()->progress(42, 2, 2);
    stand.finish({found(stand.one("A"), {APath})});
    QCOMPARE(stand.journal, lines({"seen 2, compared 2", RelinkStep, "A takes /found/A",
                                   "step ends", "finished, 1 relinked"}));
}

void tst_NxMissingMediaRelinker::searchesNothingWithoutASearch_data()
{
    using Deed = std::function<void(RelinkerStand *)>;
    QTest::addColumn<Deed>("take");

    QTest::newRow("no project") << Deed(
        [](RelinkerStand *stand) { stand->engine.project = nullptr; });
    QTest::newRow("a project that does not search")
        << Deed([](RelinkerStand *stand) { stand->project->search.reset(); });
    QTest::newRow("no presenter") << Deed([](RelinkerStand *stand) { stand->presenter.reset(); });
}

void tst_NxMissingMediaRelinker::searchesNothingWithoutASearch()
{
    QFETCH(std::function<void(RelinkerStand *)>, take);
    RelinkerStand stand;
    take(&stand);
    const NxLogCapture log;
    NxTestLog::expectError(QStringLiteral("nothing can search for missing media"));
    QVERIFY(!stand.relinker->start(stand.mediaItems("A"), QStringLiteral("/found")));
    QVERIFY(!stand.relinker->isRunning());
    QCOMPARE(linesOf(log), lines({"error NxMissingMediaRelinker::start: nothing can search for "
                                  "missing media"}));
    QCOMPARE(stand.journal, QStringList());
}

void tst_NxMissingMediaRelinker::endsWhenTheEngineGoes()
{
    RelinkerStand stand;
    stand.start("A");
    stand.project->search.reset();
    QCOMPARE(stand.journal, lines({"finished, 0 relinked"}));
    QVERIFY(stand.told.cancelled);
    QVERIFY(!stand.relinker->isRunning());
    stand.relinker->cancel();
    QCOMPARE(stand.journal, lines({"finished, 0 relinked"}));

    stand.project->search = std::make_unique<FlowSearch>(&stand.journal);
    stand.start("A");
    stand.finish({found(stand.one("A"), {APath})});
    stand.takeJournal();
    stand.project->search.reset(); // Nothing runs any more: nothing ends.
    QCOMPARE(stand.journal, QStringList());
}

void tst_NxMissingMediaRelinker::endsWhenThePresenterGoes()
{
    RelinkerStand stand;
    stand.start("A");
    stand.presenter.reset();
    QCOMPARE(stand.takeJournal(), lines({"cancel 41"}));
    stand.finish({found(stand.one("A"), {APath})});
    QCOMPARE(stand.journal, lines({RelinkStep, "step ends", "finished, 0 relinked"}));
    QCOMPARE(stand.matches(), QList<NxRelinkMatch>({NxRelinkMatch::None}));
}

void tst_NxMissingMediaRelinker::endsWhenTheManagerGoes()
{
    RelinkerStand stand;
    stand.start("A");
    stand.manager.reset();
    stand.finish({found(stand.one("A"), {APath})});
    QCOMPARE(stand.journal, lines({RelinkStep, "step ends", "finished, 0 relinked"}));
}

void tst_NxMissingMediaRelinker::cancelsWhenItGoesItself()
{
    RelinkerStand stand;
    stand.start("A");
    stand.relinker.reset();
    QCOMPARE(stand.takeJournal(), lines({"cancel 41"}));
    stand.finish({found(stand.one("A"), {APath})});
    QCOMPARE(stand.journal, QStringList());
}

void tst_NxMissingMediaRelinker::mayDieOfWhatItTells()
{
    RelinkerStand stand;
    stand.start("A");
    QObject context;
    connect(stand.relinker.get(), &NxMissingMediaRelinker::finished, &context,
            [&stand] { stand.relinker.reset(); });
    stand.finish({found(stand.one("A"), {APath})});
    QCOMPARE(stand.journal,
             lines({RelinkStep, "A takes /found/A", "step ends", "finished, 1 relinked"}));
}

NX_TEST_MAIN(tst_NxMissingMediaRelinker)
#include "tst_NxMissingMediaRelinker.moc"
