// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Yard.h"

#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QSet>
#include <QtTest>

namespace {

constexpr int folders = 30;
constexpr int filesInFolder = 50;
constexpr int allFiles = folders * filesInFolder;

quint32 chosenSeed()
{
    bool isSet = false;
    const uint seed = qEnvironmentVariable("NX_KILL_SEED").toUInt(&isSet);
    constexpr quint32 usual = 20260701;
    return isSet ? seed : usual;
}

QSet<QString> asSet(const QStringList &list)
{
    return QSet<QString>(list.cbegin(), list.cend());
}

} // namespace

/// Kills the program at random moments, sixty times in all. What it had told stands in the
/// project, nothing stands half, and the work can go on.
class tst_KilledProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void duringImport_data();
    void duringImport();
    void duringRemovalOfAFolder_data();
    void duringRemovalOfAFolder();
    void duringUndo_data();
    void duringUndo();
    void duringClose_data();
    void duringClose();

private:
    static void addRows(int kills);
    [[nodiscard]] int moment(int longest) { return m_random.bounded(qMax(longest, 1)); }
    void startFrom(const QString &prepared);
    [[nodiscard]] int durationOf(const char *command, const QStringList &rest);
    void killDuring(ProgramRun *run, const char *command, const QStringList &rest, int *longest);
    void kill(ProgramRun *run, int *longest);
    void verifyWhole();

    quint32 m_seed = 0;
    QRandomGenerator m_random;
    std::unique_ptr<Yard> m_yard;
    std::unique_ptr<NxFootageGuard> m_guard;
    QString m_full; ///< A project that holds everything in the folder "footage".
    QString m_emptied; ///< The same after that folder was removed.
    QStringList m_order; ///< The paths of the full one.
    int m_importTime = 0; // ms, how long a run may go on before it is killed.
    int m_removeTime = 0;
    int m_undoTime = 0;
    int m_closeTime = 12;
    int m_runs = 0;
    int m_kills = 0; ///< Runs that did not end by themselves.
};

void tst_KilledProgram::initTestCase()
{
    m_seed = chosenSeed();
    qInfo("NX_KILL_SEED=%u", m_seed);
    m_random.seed(m_seed);
    m_yard = std::make_unique<Yard>();
    m_yard->manyClips(folders, filesInFolder);
    m_guard = std::make_unique<NxFootageGuard>(m_yard->footage());
    m_full = m_yard->path(QStringLiteral("Full.brevano"));
    m_emptied = m_yard->path(QStringLiteral("Emptied.brevano"));

    const QStringList folder{QStringLiteral("--folder"), QStringLiteral("footage"),
                             QStringLiteral("--yes")};
    m_importTime = durationOf("import", {m_yard->footage()});
    m_order = m_yard->paths();
    QCOMPARE(m_order.size(), allFiles);
    QVERIFY(QFile::copy(m_yard->project(), m_full));
    m_removeTime = durationOf("remove", folder);
    QVERIFY(QFile::copy(m_yard->project(), m_emptied));
    m_undoTime = durationOf("undo", {});
    QCOMPARE(m_yard->paths(), m_order);
}

void tst_KilledProgram::cleanupTestCase()
{
    qInfo("%d of %d runs were killed", m_kills, m_runs);
    QVERIFY2(m_kills >= m_runs / 3, "too few of the runs were killed to tell anything");
    m_guard.reset();
    m_yard.reset();
}

void tst_KilledProgram::init()
{
    QFile::remove(m_yard->project());
}

void tst_KilledProgram::cleanup()
{
    NX_VERIFY_UNTOUCHED(*m_guard);
}

int tst_KilledProgram::durationOf(const char *command, const QStringList &rest)
{
    QElapsedTimer timer;
    timer.start();
    const ProgramResult result = m_yard->run(command, rest);
    if (result.code != 0)
        QTest::qFail(result.story().constData(), __FILE__, __LINE__);
    return int(timer.elapsed());
}

void tst_KilledProgram::addRows(int kills)
{
    QTest::addColumn<int>("kill");
    for (int kill = 1; kill <= kills; ++kill)
        QTest::addRow("kill %d", kill) << kill;
}

void tst_KilledProgram::startFrom(const QString &prepared)
{
    QVERIFY(QFile::copy(prepared, m_yard->project()));
}

void tst_KilledProgram::killDuring(ProgramRun *run, const char *command, const QStringList &rest,
                                   int *longest)
{
    run->begin(QStringList{QLatin1String(command), m_yard->project()} + rest);
    kill(run, longest);
}

void tst_KilledProgram::kill(ProgramRun *run, int *longest)
{
    ++m_runs;
    if (run->killAfter(moment(*longest)))
        ++m_kills;
    else
        *longest = qMax(1, *longest * 3 / 4); // It is faster than it was when it was measured.
}

void tst_KilledProgram::verifyWhole()
{
    // Their contents are no footage: a run that came to reading them may have noted that.
    const ProgramResult checked = m_yard->run("check", {QStringLiteral("--json")});
    QVERIFY2(checked.code == 0 || checked.code == 3, checked.story().constData());
    const QJsonObject summary = checked.summary();
    QCOMPARE(summary.value(QLatin1String("missing")).toInt(-1), 0);
    QCOMPARE(summary.value(QLatin1String("integrity")).toInt(-1), 0);
}

void tst_KilledProgram::duringImport_data()
{
    addRows(18);
}

void tst_KilledProgram::duringImport()
{
    ProgramRun run;
    killDuring(&run, "import", {m_yard->footage(), QStringLiteral("--json")}, &m_importTime);
    const QStringList told = run.end().values("added", "path");

    QStringList standing;
    if (QFile::exists(m_yard->project())) {
        standing = m_yard->paths();
        verifyWhole();
    }
    QVERIFY(asSet(standing).contains(asSet(told)));
    QCOMPARE(asSet(standing).size(), standing.size());

    const ProgramResult again =
        m_yard->run("import", {m_yard->footage(), QStringLiteral("--json")});
    VERIFY_CODE(again, 0);
    const QStringList added = again.values("added", "path");
    QCOMPARE(added.size(), allFiles - standing.size());
    QVERIFY(!asSet(added).intersects(asSet(standing)));
    QCOMPARE(asSet(m_yard->paths()), asSet(m_order));
    verifyWhole();
}

void tst_KilledProgram::duringRemovalOfAFolder_data()
{
    addRows(14);
}

void tst_KilledProgram::duringRemovalOfAFolder()
{
    startFrom(m_full);
    ProgramRun run;
    killDuring(
        &run, "remove",
        {QStringLiteral("--folder"), QStringLiteral("footage"), QStringLiteral("--yes")},
        &m_removeTime);
    const bool told = !run.end().lines().isEmpty();

    const QStringList standing = m_yard->paths();
    const bool removed = standing.isEmpty();
    QVERIFY2(removed || standing == m_order, "a part of the folder was removed");
    QVERIFY(removed || !told);
    verifyWhole();
    // The step is kept, and takes everything back.
    if (removed)
        VERIFY_CODE(m_yard->run("undo"), 0);
    QCOMPARE(m_yard->paths(), m_order);
}

void tst_KilledProgram::duringUndo_data()
{
    addRows(14);
}

void tst_KilledProgram::duringUndo()
{
    startFrom(m_emptied);
    ProgramRun run;
    killDuring(&run, "undo", {}, &m_undoTime);
    const bool told = !run.end().lines().isEmpty();

    const QStringList standing = m_yard->paths();
    const bool undone = !standing.isEmpty();
    QVERIFY2(!undone || standing == m_order, "a part of the removal was undone");
    QVERIFY(undone || !told);
    verifyWhole();
    VERIFY_CODE(m_yard->run(undone ? "redo" : "undo"), 0);
    QCOMPARE(m_yard->paths(), undone ? QStringList() : m_order);
}

void tst_KilledProgram::duringClose_data()
{
    addRows(14);
}

void tst_KilledProgram::duringClose()
{
    startFrom(m_full);
    ProgramRun run;
    run.begin({QStringLiteral("remove"), m_yard->project(), QStringLiteral("--folder"),
               QStringLiteral("footage/part 003"), QStringLiteral("--yes")});
    QVERIFY(run.waitForLine()); // It is told, so the closing begins.
    kill(&run, &m_closeTime);

    QCOMPARE(m_yard->paths().size(), allFiles - filesInFolder);
    verifyWhole();
    VERIFY_CODE(m_yard->run("undo"), 0);
    QCOMPARE(m_yard->paths(), m_order);
    verifyWhole();
}

NX_TEST_MAIN(tst_KilledProgram)
#include "tst_KilledProgram.moc"
