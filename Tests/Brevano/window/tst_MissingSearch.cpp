// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/MissingSearch.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMissingMediaRelinker.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFootageService.h>

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <NxMediaLibrary/PanelYard.h>
#include <Support/NxBracketLanguage.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTestLog.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

namespace {

constexpr int Patience = 30'000; // ms

/// A film that was read and then moved, a media whose file nobody has, and the search.
struct Yard : PanelYard
{
    Yard()
    {
        const QString old = dir.makeDir(QStringLiteral("old"));
        const QString film = old + QStringLiteral("/film.mov");
        QVERIFY(QFile::copy(source(), film));
        add({film, QStringLiteral("lost.mov")});
        INxFootageService *service = project->footageService();
        QSignalSpy idle(service, &INxFootageService::idle);
        service->read({item()}, INxFootageService::wFacts | INxFootageService::wFingerprint);
        QVERIFY(idle.wait(Patience));
        dir.makeDir(QStringLiteral("place"));
        QVERIFY(QFile::rename(old, place() + QStringLiteral("/deep")));
        lookAtFiles();
    }

    [[nodiscard]] static QString source()
    {
        return NxFootageSet::path(NxFootageRecipes::named(QStringLiteral("30.mov")));
    }
    [[nodiscard]] INxAbstractMediaItem *item() const
    {
        return dynamic_cast<INxAbstractMediaItem *>(media(QStringLiteral("film.mov")));
    }
    [[nodiscard]] QList<INxAbstractMediaItem *> missing() const
    {
        return NxMissingMediaRelinker::missingMedia(section());
    }
    [[nodiscard]] QString place() const { return dir.filePath(QStringLiteral("place")); }
    /// Starts the search, and waits for its end.
    void look()
    {
        QVERIFY(search.start(items(), missing(), place()));
        QVERIFY(!search.isHidden());
        QVERIFY(finished.wait(Patience));
    }
    [[nodiscard]] QString summary() const { return finished.value(0).value(0).toString(); }

    MissingSearch search;
    QSignalSpy finished{&search, &MissingSearch::sigFinished};
};

} // namespace

/// The search for missing files, in the status bar.
class tst_MissingSearch : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatIsFoundIsTold();
    void oneSearchRunsAtATime();
    void aCancelledSearchChangesNothing();
    void severalCandidatesAreNamed();
    void aPresenterMayDie();
    void textsFollowTheLanguage();
};

void tst_MissingSearch::whatIsFoundIsTold()
{
    Yard yard;
    const NxFootageGuard guard(yard.place());
    QVERIFY(yard.search.isHidden());
    QCOMPARE(yard.missing().size(), 2);
    yard.look();
    QCOMPARE(yard.finished.size(), 1);
    QCOMPARE(yard.summary(), QStringLiteral("1 of 2 missing files found"));
    QVERIFY(yard.search.isHidden());
    QCOMPARE(yard.item()->filePath(), yard.place() + QStringLiteral("/deep/film.mov"));
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_MissingSearch::oneSearchRunsAtATime()
{
    Yard yard;
    QVERIFY(yard.search.start(yard.items(), yard.missing(), yard.place()));
    QVERIFY(!yard.search.start(yard.items(), yard.missing(), yard.place()));
    QVERIFY(!yard.search.isHidden());
    QVERIFY(yard.finished.wait(Patience));
    QVERIFY(yard.search.start(yard.items(), yard.missing(), yard.place()));
    QVERIFY(yard.finished.wait(Patience));
    QCOMPARE(yard.finished.size(), 2);
}

void tst_MissingSearch::aCancelledSearchChangesNothing()
{
    Yard yard;
    QVERIFY(yard.search.start(yard.items(), yard.missing(), yard.place()));
    QTest::mouseClick(yard.search.findChild<QPushButton *>(), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(yard.finished.size(), 1, Patience);
    QCOMPARE(yard.summary(), QStringLiteral("The search was cancelled. Nothing was relinked."));
    yard.lookAtFiles();
    QCOMPARE(yard.missing().size(), 2);
    QVERIFY(yard.search.isHidden());
}

void tst_MissingSearch::severalCandidatesAreNamed()
{
    Yard yard;
    yard.dir.makeDir(QStringLiteral("place/copy"));
    QVERIFY(QFile::copy(Yard::source(), yard.place() + QStringLiteral("/copy/film.mov")));
    yard.look();
    QCOMPARE(yard.summary(), QStringLiteral("0 of 2 missing files found"));
    const QStringList details = yard.finished.constFirst().at(1).toStringList();
    QCOMPARE(details.size(), 1);
    QVERIFY(details.constFirst().startsWith(QLatin1String("\"film.mov\"")));
    QVERIFY(details.constFirst().contains(yard.place() + QStringLiteral("/deep/film.mov")));
}

void tst_MissingSearch::aPresenterMayDie()
{
    Yard yard;
    QVERIFY(yard.search.start(yard.items(), yard.missing(), yard.place()));
    yard.leavePanel();
    QTRY_VERIFY_WITH_TIMEOUT(yard.search.isHidden(), Patience);
    NxTestLog::expectError(QStringLiteral("nothing can search for missing media"));
    QVERIFY(!yard.search.start(nullptr, {}, yard.place()));
    QVERIFY(yard.search.isHidden());
}

void tst_MissingSearch::textsFollowTheLanguage()
{
    Yard yard;
    const NxBracketLanguage language;
    QCoreApplication::sendPostedEvents();
    QCOMPARE(yard.search.findChild<QPushButton *>()->text(), QStringLiteral("[Cancel]"));
    QVERIFY(yard.search.findChild<QLabel *>()->text().startsWith(QLatin1Char('[')));
}

NX_TEST_MAIN_WIDGETS(tst_MissingSearch)
#include "tst_MissingSearch.moc"
