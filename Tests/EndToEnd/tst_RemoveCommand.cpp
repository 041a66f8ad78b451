// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CutProject.h"
#include "Yard.h"

#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QtTest>

/// What remove and unused ask, and how scripts answer. tst_ChangeCommands tells what remove does.
class tst_RemoveCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nothingIsRemovedWithoutAnAnswer();
    void theAnswerNoKeepsAll_data();
    void theAnswerNoKeepsAll();
    void whatTimelinesUseAsksAboutThem();
    void clipsGoWithTheirMediaAndComeBackWithThem();
    void mediaOfSeveralFoldersAreAskedAboutOnceAndRemovedInOneStep();
    void unusedListsWhatNoTimelineUses();
    void unusedMediaAreRemovedWhenTheAnswerIsYes();
    void unusedMediaStayWhenTheAnswerIsNo();
    void wordsThatContradictEachOtherAreWrong_data();
    void wordsThatContradictEachOtherAreWrong();

private:
    std::unique_ptr<Yard> m_yard;
    std::unique_ptr<NxFootageGuard> m_guard;
    QStringList m_all;
};

void tst_RemoveCommand::init()
{
    m_yard = std::make_unique<Yard>();
    m_all =
        QStringList{m_yard->clip(QStringLiteral("a.mp4")), m_yard->clip(QStringLiteral("b.mp4")),
                    m_yard->clip(QStringLiteral("Day/c.mp4"))};
    m_guard = std::make_unique<NxFootageGuard>(m_yard->footage());
    VERIFY_CODE(
        m_yard->run("import", {m_all.at(0), m_all.at(1), m_yard->footage(QStringLiteral("Day"))}),
        0);
    QCOMPARE(m_yard->paths(), m_all);
}

void tst_RemoveCommand::cleanup()
{
    NX_VERIFY_UNTOUCHED(*m_guard);
    m_guard.reset();
    m_yard.reset();
}

void tst_RemoveCommand::nothingIsRemovedWithoutAnAnswer()
{
    const ProgramResult asked = m_yard->run("remove", {QStringLiteral("a.mp4")});
    VERIFY_CODE(asked, 1);
    QVERIFY2(asked.said("brevano: Are you sure you want to delete the selected item?\n"),
             asked.story().constData());
    QVERIFY2(asked.said("--yes or --no answers it"), asked.story().constData());
    QCOMPARE(asked.output, QByteArray());
    QCOMPARE(m_yard->paths(), m_all);
}

void tst_RemoveCommand::theAnswerNoKeepsAll_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("question");

    QTest::newRow("media") << QStringList{QStringLiteral("a.mp4")}
                           << QByteArray("Are you sure you want to delete the selected item?");
    QTest::newRow("a folder") << QStringList{QStringLiteral("--folder"), QStringLiteral("Day")}
                              << QByteArray(
                                     "Are you sure you want to delete the selected folder(Day)?");
}

void tst_RemoveCommand::theAnswerNoKeepsAll()
{
    QFETCH(QStringList, words);
    QFETCH(QByteArray, question);

    const ProgramResult kept = m_yard->run("remove", words + QStringList{QStringLiteral("--no")});
    VERIFY_CODE(kept, 1);
    QVERIFY2(kept.said(question.constData()), kept.story().constData());
    QVERIFY2(kept.said("nothing was removed"), kept.story().constData());
    QVERIFY2(!kept.said("--yes"), kept.story().constData());
    QCOMPARE(m_yard->paths(), m_all);
    // No step was made: the last one is the import.
    VERIFY_CODE(m_yard->run("undo"), 0);
    QCOMPARE(m_yard->paths(), QStringList());
}

void tst_RemoveCommand::whatTimelinesUseAsksAboutThem()
{
    CutProject::use(m_yard->project(), {m_all.at(0)});
    const ProgramResult asked =
        m_yard->run("remove", {QStringLiteral("a.mp4"), QStringLiteral("--no")});
    VERIFY_CODE(asked, 1);
    QVERIFY2(asked.said("One or more of your selected clips have been added to the timeline. "
                        "Deleting them from the library will also delete them from the "
                        "timeline."),
             asked.story().constData());
    QCOMPARE(CutProject::clips(m_yard->project()), 1);
}

void tst_RemoveCommand::clipsGoWithTheirMediaAndComeBackWithThem()
{
    CutProject::use(m_yard->project(), m_all);
    VERIFY_CODE(m_yard->run("remove", {QStringLiteral("a.mp4"), QStringLiteral("--yes")}), 0);
    QCOMPARE(m_yard->paths(), m_all.mid(1));
    QCOMPARE(CutProject::clips(m_yard->project()), 2);
    VERIFY_CODE(m_yard->run("undo"), 0);
    QCOMPARE(m_yard->paths(), m_all);
    QCOMPARE(CutProject::clips(m_yard->project()), 3);
}

void tst_RemoveCommand::mediaOfSeveralFoldersAreAskedAboutOnceAndRemovedInOneStep()
{
    const ProgramResult asked = m_yard->run(
        "remove", {QStringLiteral("c.mp4"), QStringLiteral("a.mp4"), QStringLiteral("--no")});
    VERIFY_CODE(asked, 1);
    QCOMPARE(asked.errors.count("Are you sure"), 1);
    const ProgramResult removed = m_yard->run(
        "remove", {QStringLiteral("c.mp4"), QStringLiteral("a.mp4"), QStringLiteral("--yes")});
    VERIFY_CODE(removed, 0);
    QCOMPARE(removed.output, QByteArray("Removed 2 media\n"));
    QCOMPARE(m_yard->paths(), m_all.mid(1, 1));
    VERIFY_CODE(m_yard->run("undo"), 0);
    QCOMPARE(m_yard->paths(), m_all);
}

void tst_RemoveCommand::unusedListsWhatNoTimelineUses()
{
    CutProject::use(m_yard->project(), {m_all.at(1)});
    const ProgramResult listed = m_yard->run("unused");
    VERIFY_CODE(listed, 0);
    QCOMPARE(listed.lines(),
             (QList<QByteArray>{m_all.at(0).toUtf8(), m_all.at(2).toUtf8(), "2 media not used"}));

    const ProgramResult inFolder =
        m_yard->run("unused", {QStringLiteral("--folder=Day"), QStringLiteral("--json")});
    VERIFY_CODE(inFolder, 0);
    QCOMPARE(inFolder.objects().size(), 1);
    QCOMPARE(inFolder.objects().constFirst().value(QLatin1String("path")).toString(), m_all.at(2));
    QCOMPARE(inFolder.objects().constFirst().value(QLatin1String("folder")).toString(),
             QStringLiteral("Day"));
}

void tst_RemoveCommand::unusedMediaAreRemovedWhenTheAnswerIsYes()
{
    CutProject::use(m_yard->project(), {m_all.at(1)});
    const ProgramResult removed =
        m_yard->run("unused", {QStringLiteral("--remove"), QStringLiteral("--yes")});
    VERIFY_CODE(removed, 0);
    QVERIFY2(removed.output.endsWith("Removed 2 media\n"), removed.story().constData());
    QCOMPARE(m_yard->paths(), m_all.mid(1, 1));
    QCOMPARE(CutProject::clips(m_yard->project()), 1);
    VERIFY_CODE(m_yard->run("undo"), 0);
    QCOMPARE(m_yard->paths(), m_all);
}

void tst_RemoveCommand::unusedMediaStayWhenTheAnswerIsNo()
{
    const ProgramResult kept =
        m_yard->run("unused", {QStringLiteral("--remove"), QStringLiteral("--no")});
    VERIFY_CODE(kept, 1);
    QVERIFY2(kept.said("nothing was removed"), kept.story().constData());
    QCOMPARE(m_yard->paths(), m_all);
}

void tst_RemoveCommand::wordsThatContradictEachOtherAreWrong_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QStringList>("words");

    const QString yes = QStringLiteral("--yes");
    const QString no = QStringLiteral("--no");
    QTest::newRow("remove") << QByteArray("remove")
                            << QStringList{QStringLiteral("a.mp4"), yes, no};
    QTest::newRow("unused") << QByteArray("unused")
                            << QStringList{QStringLiteral("--remove"), yes, no};
    QTest::newRow("unused without a question") << QByteArray("unused") << QStringList{yes};
}

void tst_RemoveCommand::wordsThatContradictEachOtherAreWrong()
{
    QFETCH(QByteArray, command);
    QFETCH(QStringList, words);

    VERIFY_CODE(m_yard->run(command.constData(), words), 2);
    QCOMPARE(m_yard->paths(), m_all);
}

NX_TEST_MAIN(tst_RemoveCommand)
#include "tst_RemoveCommand.moc"
