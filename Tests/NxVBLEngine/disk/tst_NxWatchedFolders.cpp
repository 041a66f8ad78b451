// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxWatchedFolders.h>

#include <EngineFixture.h>
#include <Support/NxTestMain.h>

#include <QTest>

namespace {

struct Watch : EngineFixture
{
    Watch() : watched(&memory)
    {
        watched.setVolumeRoots({QStringLiteral("/"), QStringLiteral("/mnt/usb")});
    }
    NxEngineMedia *media(const QString &path, const QString &canonical = {})
    {
        NxMediaSeed seed;
        seed.path = path;
        seed.canonicalPath = canonical;
        NxEngineMedia *made = memory.addNewMedia(section, {seed}).first();
        watched.add(made);
        return made;
    }
    /// The questions of one task: "volume: /f(a b) /g(c)".
    QString take(int most = 1'000)
    {
        QString volume;
        QStringList parts;
        for (const NxFolderQuestion &question : watched.takeQuestions(most, &volume)) {
            QStringList names;
            for (const NxFileQuestion &file : question.files)
                names.append(file.path.section(QLatin1Char('/'), -1));
            parts.append(
                QStringLiteral("%1(%2)").arg(question.path, names.join(QLatin1Char(' '))));
        }
        return parts.isEmpty() ? QString()
                               : volume + QLatin1String(": ") + parts.join(QLatin1Char(' '));
    }
    /// Answers for a folder that is there, or missing from `ancestor` on.
    void answer(int folder, NxPresence presence, bool settled = true, const QString &ancestor = {})
    {
        NxFolderAnswer answer;
        answer.folder = folder;
        answer.state.exists = ancestor.isEmpty();
        answer.state.settled = settled;
        answer.state.missingAncestor = ancestor;
        NxFileAnswer file;
        file.presence = presence;
        answer.files.append(file);
        watched.note(answer, now);
    }
    /// Answers for some files of a folder that was last changed at that time.
    void partialAnswer(int folder, qint64 modified)
    {
        NxFolderAnswer answer;
        answer.folder = folder;
        answer.isWhole = false;
        answer.state.exists = true;
        answer.state.settled = true;
        answer.state.modified = modified;
        watched.note(answer, now);
    }
    QStringList polls(int most = 100)
    {
        QStringList paths;
        const auto byVolume = watched.nextPolls(most);
        for (const QVector<NxFolderPoll> &polls : byVolume) {
            for (const NxFolderPoll &poll : polls)
                paths.append(poll.path);
        }
        paths.sort();
        return paths;
    }

    NxWatchedFolders watched;
    qint64 now = 100'000;
};

} // namespace

class tst_NxWatchedFolders : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void filesAreAskedFolderByFolder();
    void largeFoldersAreAskedInParts();
    void oneTaskAsksOneVolume();
    void linksBelongToTheVolumeTheyLeadTo();
    void removedAndRelinkedMediaAreNotAsked();
    void aFolderWantedAgainBeginsAnew();
    void singleMediaAreAskedAlone();
    void filesAreAskedInTurn();
    void filesAreAskedInTurnWhenNothingElseIsWanted();
    void lookingAgainFilesNothingTwice();
    void inTurnOnlyFilesThatAreInReach();
    void aPartialAnswerThatHidesAChangeIsFollowedByAWholeOne();
    void partialQuestionsSayThatTheyAre();
    void lostVolumesAreLeftAloneUntilFound();
    void missingFoldersArePolledAtTheirHighestMissing();
    void presentFoldersArePolledInTurn();
    void uncertainFoldersAreWantedInTheirTurn();
    void movedPathsStandBesideTheProject();
};

void tst_NxWatchedFolders::filesAreAskedFolderByFolder()
{
    Watch f;
    f.media(QStringLiteral("/f/a"));
    f.media(QStringLiteral("/g/b"));
    f.media(QStringLiteral("/f/c"));
    f.media(QStringLiteral("/top"));
    QCOMPARE(f.take(), QString());
    f.watched.wantAll();
    QCOMPARE(f.take(), QStringLiteral("/: /f(a c) /g(b) /(top)"));
    QVERIFY(!f.watched.isAnythingWanted());
}

void tst_NxWatchedFolders::largeFoldersAreAskedInParts()
{
    Watch f;
    for (int i = 0; i < 5; ++i)
        f.media(QStringLiteral("/f/%1").arg(i));
    f.media(QStringLiteral("/g/x"));
    f.watched.wantAll();
    QCOMPARE(f.take(2), QStringLiteral("/: /f(0 1)"));
    QCOMPARE(f.take(2), QStringLiteral("/: /f(2 3)"));
    QCOMPARE(f.take(4), QStringLiteral("/: /f(4) /g(x)"));
    QCOMPARE(f.take(2), QString());
}

void tst_NxWatchedFolders::oneTaskAsksOneVolume()
{
    Watch f;
    f.media(QStringLiteral("/f/a"));
    f.media(QStringLiteral("/mnt/usb/b"));
    f.watched.wantAll();
    QCOMPARE(f.take(), QStringLiteral("/: /f(a)"));
    QCOMPARE(f.take(), QStringLiteral("/mnt/usb: /mnt/usb(b)"));
}

void tst_NxWatchedFolders::linksBelongToTheVolumeTheyLeadTo()
{
    Watch f;
    f.media(QStringLiteral("/f/a"));
    f.media(QStringLiteral("/f/link"), QStringLiteral("/mnt/usb/real"));
    QCOMPARE(f.watched.loseVolume(QStringLiteral("/mnt/usb")).size(), size_t(1));
    f.watched.wantAll();
    QCOMPARE(f.take(), QStringLiteral("/: /f(a)"));
}

void tst_NxWatchedFolders::removedAndRelinkedMediaAreNotAsked()
{
    Watch f;
    f.media(QStringLiteral("/f/a"));
    NxEngineMedia *removed = f.media(QStringLiteral("/f/b"));
    NxEngineMedia *relinked = f.media(QStringLiteral("/f/c"));
    QVERIFY(f.items->removeMediaItems(f.section, {removed}));
    QVERIFY(f.items->relinkMedia(relinked, QStringLiteral("/g/c")));
    f.watched.wantAll();
    QCOMPARE(f.take(), QStringLiteral("/: /f(a)"));
}

void tst_NxWatchedFolders::aFolderWantedAgainBeginsAnew()
{
    Watch f;
    for (int i = 0; i < 4; ++i)
        f.media(QStringLiteral("/f/%1").arg(i));
    f.watched.wantAll();
    QCOMPARE(f.take(2), QStringLiteral("/: /f(0 1)"));
    f.watched.wantAll();
    QCOMPARE(f.take(10), QStringLiteral("/: /f(0 1 2 3)"));
    QCOMPARE(f.take(10), QString());
}

void tst_NxWatchedFolders::singleMediaAreAskedAlone()
{
    Watch f;
    f.media(QStringLiteral("/f/a"));
    const NxEngineMedia *fresh = f.addMedia(f.section, QStringLiteral("b"));
    f.watched.wantMedia({fresh->id(), 999});
    QCOMPARE(f.take(), QStringLiteral("/: /footage(b)"));
    QCOMPARE(f.take(), QString());
    f.watched.wantAll();
    QCOMPARE(f.take(), QStringLiteral("/: /f(a) /footage(b)"));
}

void tst_NxWatchedFolders::filesAreAskedInTurn()
{
    Watch f;
    f.watched.wantNext(3);
    QCOMPARE(f.take(), QString()); // There are no folders.
    for (int i = 0; i < 5; ++i)
        f.media(QStringLiteral("/f/%1").arg(i));
    f.media(QStringLiteral("/g/x"));
    f.media(QStringLiteral("/h/y"));
    const QStringList turns{QStringLiteral("/: /f(0 1 2)"), QStringLiteral("/: /f(3 4) /g(x)"),
        QStringLiteral("/: /h(y) /f(0 1)"), QStringLiteral("/: /f(2 3 4)")};
    for (const QString &turn : turns) {
        f.watched.wantNext(3);
        QCOMPARE(f.take(), turn);
        QVERIFY(!f.watched.isAnythingWanted());
    }
    f.watched.wantNext(100);
    QCOMPARE(f.take(), QStringLiteral("/: /g(x) /h(y) /f(0 1 2 3 4)"));
}

void tst_NxWatchedFolders::filesAreAskedInTurnWhenNothingElseIsWanted()
{
    Watch f;
    f.media(QStringLiteral("/f/a"));
    f.media(QStringLiteral("/g/b"));
    f.watched.want(1);
    f.watched.wantNext(1);
    QCOMPARE(f.take(), QStringLiteral("/: /g(b)"));
    f.watched.wantNext(1);
    QCOMPARE(f.take(), QStringLiteral("/: /f(a)"));
}

void tst_NxWatchedFolders::lookingAgainFilesNothingTwice()
{
    Watch f;
    const NxEngineMedia *media = f.media(QStringLiteral("/f/a"));
    f.media(QStringLiteral("/f/b"));
    for (int i = 0; i < 3; ++i) {
        f.watched.wantAgain({media->id()});
        QCOMPARE(f.take(), QStringLiteral("/: /f(a)"));
    }
    f.watched.wantNext(10);
    QCOMPARE(f.take(), QStringLiteral("/: /f(a b)"));
}

void tst_NxWatchedFolders::inTurnOnlyFilesThatAreInReach()
{
    Watch f;
    NxEngineMedia *removed = f.media(QStringLiteral("/f/a"));
    f.media(QStringLiteral("/f/b"));
    f.media(QStringLiteral("/mnt/usb/c"));
    QVERIFY(f.items->removeMediaItems(f.section, {removed}));
    QCOMPARE(f.watched.loseVolume(QStringLiteral("/mnt/usb")).size(), size_t(1));
    f.watched.wantNext(10);
    QCOMPARE(f.take(), QStringLiteral("/: /f(b)"));
    QVERIFY(!f.watched.isAnythingWanted());
}

void tst_NxWatchedFolders::aPartialAnswerThatHidesAChangeIsFollowedByAWholeOne()
{
    Watch f;
    f.media(QStringLiteral("/f/a"));
    f.media(QStringLiteral("/f/b"));
    f.partialAnswer(0, 1'000); // Nothing was known to compare it with.
    QCOMPARE(f.take(), QString());
    f.partialAnswer(0, 1'000);
    QCOMPARE(f.take(), QString());
    f.partialAnswer(0, 2'000);
    QCOMPARE(f.take(), QStringLiteral("/: /f(a b)"));
    f.partialAnswer(0, 2'000); // Still unknown what changed: the whole look did not come yet.
    QCOMPARE(f.take(), QStringLiteral("/: /f(a b)"));
    NxFolderAnswer whole;
    whole.state.exists = whole.state.settled = true;
    whole.state.modified = 2'000;
    f.watched.note(whole, f.now);
    f.partialAnswer(0, 2'000);
    QCOMPARE(f.take(), QString());
}

void tst_NxWatchedFolders::partialQuestionsSayThatTheyAre()
{
    Watch f;
    NxEngineMedia *media = f.media(QStringLiteral("/f/a"));
    const auto isWhole = [&f] {
        QString volume;
        return f.watched.takeQuestions(10, &volume).first().isWhole;
    };
    f.watched.wantAll();
    QVERIFY(isWhole());
    f.watched.wantMedia({media->id()});
    QVERIFY(!isWhole());
    f.watched.wantNext(1);
    QVERIFY(!isWhole());
}

void tst_NxWatchedFolders::lostVolumesAreLeftAloneUntilFound()
{
    Watch f;
    f.media(QStringLiteral("/f/a"));
    f.media(QStringLiteral("/mnt/usb/b"));
    f.media(QStringLiteral("/mnt/usb/c/d"));
    QCOMPARE(f.watched.loseVolume(QStringLiteral("/mnt/usb")).size(), size_t(2));
    f.watched.wantAll();
    QCOMPARE(f.take(), QStringLiteral("/: /f(a)"));
    QVERIFY(!f.watched.isAnythingWanted());
    f.watched.findVolume(QStringLiteral("/mnt/usb"));
    QCOMPARE(f.take(), QStringLiteral("/mnt/usb: /mnt/usb(b) /mnt/usb/c(d)"));
}

void tst_NxWatchedFolders::missingFoldersArePolledAtTheirHighestMissing()
{
    Watch f;
    f.media(QStringLiteral("/mnt/usb/day/a"));
    f.media(QStringLiteral("/mnt/usb/night/b"));
    f.media(QStringLiteral("/f/c"));
    const QString usb = QStringLiteral("/mnt/usb");
    f.answer(0, NxPresence::Missing, true, usb);
    f.answer(1, NxPresence::Missing, true, usb);
    f.answer(2, NxPresence::Present);
    QCOMPARE(f.polls(), QStringList({QStringLiteral("/f"), usb}));
    f.answer(0, NxPresence::Present);
    f.answer(1, NxPresence::Missing, true, QStringLiteral("/mnt/usb/night"));
    QCOMPARE(f.polls(), QStringList({QStringLiteral("/f"), QStringLiteral("/mnt/usb/day"),
                                     QStringLiteral("/mnt/usb/night")}));
}

void tst_NxWatchedFolders::presentFoldersArePolledInTurn()
{
    Watch f;
    QSet<QString> all;
    for (int i = 0; i < 10; ++i) {
        f.media(QStringLiteral("/%1/a").arg(i));
        f.answer(i, NxPresence::Present);
        all.insert(QStringLiteral("/%1").arg(i));
    }
    QSet<QString> polled;
    for (int round = 0; round < 4; ++round) {
        const QStringList some = f.polls(3);
        QVERIFY(some.size() <= 3);
        polled.unite(QSet<QString>(some.begin(), some.end()));
    }
    QCOMPARE(polled, all);
}

void tst_NxWatchedFolders::uncertainFoldersAreWantedInTheirTurn()
{
    Watch f;
    f.media(QStringLiteral("/ok/a"));
    f.media(QStringLiteral("/missing/a"));
    f.media(QStringLiteral("/busy/a"));
    for (int i = 0; i < 10'000; ++i)
        f.media(QStringLiteral("/large/%1").arg(i));
    f.answer(0, NxPresence::Present);
    f.answer(1, NxPresence::Missing);
    f.answer(2, NxPresence::Present, false);
    f.answer(3, NxPresence::Missing);
    f.watched.wantUncertain(f.now + 100);
    QCOMPARE(f.take(), QString()); // Too soon.
    f.watched.wantUncertain(f.now + 2'000);
    const QString small = f.take();
    QVERIFY2(small.contains(QStringLiteral("/missing(a)")), qUtf8Printable(small));
    QVERIFY2(small.contains(QStringLiteral("/busy(a)")), qUtf8Printable(small));
    QVERIFY(!small.contains(QStringLiteral("/ok")));
    QVERIFY(!small.contains(QStringLiteral("/large"))); // 10,000 looks are worth five seconds.
    f.answer(1, NxPresence::Present);
    f.answer(2, NxPresence::Present);
    f.watched.wantUncertain(f.now + 5'000);
    QVERIFY(f.take().startsWith(QStringLiteral("/: /large")));
}

void tst_NxWatchedFolders::movedPathsStandBesideTheProject()
{
    NxProjectMemory memory(QStringLiteral("/new/place/p.brevano"));
    NxMediaSeed seed;
    seed.path = QStringLiteral("/old/footage/a.mp4");
    NxEngineFolder *section = memory.category(NXVBLMODEL::mctMedia)->folder(NXVBLMODEL::fidRoot);
    const NxEngineMedia *media = memory.addNewMedia(section, {seed}).first();
    NxWatchedFolders watched(&memory);
    watched.setRelativePaths({{media->id(), QStringLiteral("../footage/a.mp4")}});
    watched.add(media);
    watched.wantAll();
    QString volume;
    const auto questions = watched.takeQuestions(10, &volume);
    QCOMPARE(questions.first().files.first().movedPath, QStringLiteral("/new/footage/a.mp4"));
}

NX_TEST_MAIN(tst_NxWatchedFolders)
#include "tst_NxWatchedFolders.moc"
