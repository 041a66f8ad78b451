// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxFileLength.h>

#include "MovedProject.h"

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLEngine/Support/NxFootageSamples.h>
#include <NxVBLEngine/disk/NxFileProbe.h>
#include <NxVBLEngine/reading/NxFootageReader.h>
#include <Support/NxTestMain.h>

#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace {

constexpr qint64 ScriptedLength = 100; // Frames that scripted workers find in every file.

NxEngineItemManager *itemsOf(const NxEngineProject &project)
{
    return project.memory()->category(NXVBLMODEL::mctMedia)->engineItemManager();
}

} // namespace

Q_DECLARE_METATYPE(NxFootageKind)

class tst_NxFileLength : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void lengthsAreThoseOfReadMedia();
    void lengthsOfFacts_data();
    void lengthsOfFacts();
    void whatCannotBeReadHasNone_data();
    void whatCannotBeReadHasNone();
    void withoutWorkersThereIsNone_data();
    void withoutWorkersThereIsNone();
    void theWindowLivesMeanwhile();
    void filesMayBeReadWhileOneIs();
    void itMayDieMeanwhile();
    void projectsAnswerWhetherOrNotTheyAreRead();
    void projectsWithoutWorkersAnswerNone();
    void theProjectMayCloseMeanwhile();
};

void tst_NxFileLength::lengthsAreThoseOfReadMedia()
{
    MovedProject f;
    NxFileLength length(f.settings);
    QVector<NxEngineMedia *> media;
    for (const NxFootageRecipe &recipe : NxFootageRecipes::all())
        media.append(f.addExisting(NxFootageSet::path(recipe)));
    f.identify(media);
    int compared = 0;
    for (const NxEngineMedia *one : media) {
        if (one->readState() != NxReadState::Read)
            continue;
        const NxFootageTruth &truth = NxFootageRecipes::named(one->name()).truth;
        const qint64 expected = one->mediaInfo()->duration();
        QVERIFY2(length.read(one->filePath()) == expected, qPrintable(one->name()));
        if (truth.kind == NxFootageKind::Video)
            QVERIFY2(expected == truth.frames, qPrintable(one->name()));
        ++compared;
    }
    QVERIFY(compared > 10);
}

void tst_NxFileLength::lengthsOfFacts_data()
{
    QTest::addColumn<NxFootageKind>("kind");
    QTest::addColumn<qint64>("expected");
    // Four seconds at 25 frames a second.
    QTest::newRow("film") << NxFootageKind::Video << qint64(100);
    QTest::newRow("sound") << NxFootageKind::Audio << qint64(400);
    QTest::newRow("picture") << NxFootageKind::Image << qint64(0);
    QTest::newRow("moving picture") << NxFootageKind::AnimatedImage << qint64(100);
    QTest::newRow("subtitles") << NxFootageKind::Subtitle << qint64(100);
    QTest::newRow("nothing known") << NxFootageKind::Unknown << NxFileLength::None;
}

void tst_NxFileLength::lengthsOfFacts()
{
    QFETCH(NxFootageKind, kind);
    const bool isSound = kind == NxFootageKind::Audio;
    QTEST(NxFileLength::of(NxFootageSamples::ofKind(kind, isSound).facts), "expected");
}

void tst_NxFileLength::whatCannotBeReadHasNone_data()
{
    QTest::addColumn<bool>("isReal");
    QTest::addColumn<QString>("name");
    QTest::newRow("no name") << true << QString();
    QTest::newRow("not there") << true << QStringLiteral("gone.mp4");
    QTest::newRow("a folder") << true << QStringLiteral("folder");
    QTest::newRow("text by the name of a film") << true << QStringLiteral("folder/text.mp4");
    QTest::newRow("damaged") << false << QStringLiteral("fails.mp4");
    QTest::newRow("crashes") << false << QStringLiteral("crash.mp4");
    QTest::newRow("hangs") << false << QStringLiteral("hang-opened.mp4");
    QTest::newRow("on a silent drive") << false << QStringLiteral("dead/hang-unopened.mp4");
}

void tst_NxFileLength::whatCannotBeReadHasNone()
{
    QFETCH(bool, isReal);
    QFETCH(QString, name);
    MovedProject f(isReal ? MovedProject::Worker::Real : MovedProject::Worker::Scripted);
    f.write(QStringLiteral("folder/text.mp4"), "This is no film.");
    if (name.contains(QLatin1String("hang")))
        f.settings = f.footage.impatient();
    if (!isReal)
        f.write(name, "x");
    f.write(QStringLiteral("good.mp4"), "x");
    NxFileLength length(f.settings);
    QCOMPARE(length.read(name.isEmpty() ? name : f.path(name)), NxFileLength::None);
    if (!isReal) // The next one is none the worse for it.
        QCOMPARE(length.read(f.path(QStringLiteral("good.mp4"))), ScriptedLength);
}

void tst_NxFileLength::withoutWorkersThereIsNone_data()
{
    QTest::addColumn<QString>("manner");
    QTest::newRow("not installed") << QString();
    QTest::newRow("another version") << QStringLiteral("otherversion");
}

void tst_NxFileLength::withoutWorkersThereIsNone()
{
    QFETCH(QString, manner);
    MovedProject f(MovedProject::Worker::Scripted,
                   manner.isEmpty() ? QStringLiteral("plain") : manner);
    f.write(QStringLiteral("a.mp4"), "x");
    if (manner.isEmpty())
        f.settings.program.clear();
    else
        NxTestLog::expectError(QStringLiteral("no footage is read"));
    NxFileLength length(f.settings);
    QCOMPARE(length.read(f.path(QStringLiteral("a.mp4"))), NxFileLength::None);
    QCOMPARE(length.read(f.path(QStringLiteral("a.mp4"))), NxFileLength::None);
}

void tst_NxFileLength::theWindowLivesMeanwhile()
{
    MovedProject f(MovedProject::Worker::Scripted);
    f.write(QStringLiteral("gated.mp4"), "x");
    NxFileLength length(f.settings);
    int beats = 0;
    QTimer heart;
    connect(&heart, &QTimer::timeout, this, [&] {
        if (!f.footage.names().isEmpty() && ++beats == 5)
            f.footage.openGate();
    });
    heart.start(1);
    QCOMPARE(length.read(f.path(QStringLiteral("gated.mp4"))), ScriptedLength);
    QVERIFY(beats >= 5);
}

void tst_NxFileLength::filesMayBeReadWhileOneIs()
{
    MovedProject f(MovedProject::Worker::Scripted);
    f.write(QStringLiteral("gated.mp4"), "x");
    f.write(QStringLiteral("fails.mp4"), "x");
    f.write(QStringLiteral("a.mp4"), "x");
    NxFileLength length(f.settings);
    QVector<qint64> inner;
    QTimer::singleShot(0, this, [&] {
        inner.append(length.read(f.path(QStringLiteral("fails.mp4"))));
        inner.append(length.read(f.path(QStringLiteral("a.mp4"))));
        f.footage.openGate();
    });
    QCOMPARE(length.read(f.path(QStringLiteral("gated.mp4"))), ScriptedLength);
    QCOMPARE(inner, QVector<qint64>({NxFileLength::None, ScriptedLength}));
}

void tst_NxFileLength::itMayDieMeanwhile()
{
    MovedProject f(MovedProject::Worker::Scripted);
    f.write(QStringLiteral("gated.mp4"), "x");
    const QString path = f.path(QStringLiteral("gated.mp4"));
    constexpr int deepest = 3;
    for (int depth = 1; depth <= deepest; ++depth) {
        auto length = std::make_unique<NxFileLength>(f.settings);
        QVector<qint64> found;
        const std::function<void(int)> read = [&](int left) {
            if (left == 0) {
                length.reset();
                return;
            }
            QTimer::singleShot(1, this, [&read, left] { read(left - 1); });
            found.append(length->read(path));
        };
        read(depth);
        QCOMPARE(found, QVector<qint64>(depth, NxFileLength::None));
        QVERIFY(!length);
    }
    for (const QString &id : f.footage.starts())
        QTRY_VERIFY(isProcessGone(id.toLongLong()));
}

void tst_NxFileLength::projectsAnswerWhetherOrNotTheyAreRead()
{
    MovedProject f(MovedProject::Worker::Scripted);
    f.write(QStringLiteral("a.mp4"), "x");
    const QString path = f.path(QStringLiteral("a.mp4"));
    NxEngineProject project(f.settings);
    const INxMediaItemManager *items = itemsOf(project);
    QCOMPARE(items->readDuration(path), ScriptedLength);
    project.footageService()->start();
    QCOMPARE(items->readDuration(path), ScriptedLength);
    project.footageService()->stop();
    QCOMPARE(items->readDuration(path), ScriptedLength);
    QCOMPARE(items->readDuration(QString()), NxFileLength::None);
    QVERIFY(project.close());
    QCOMPARE(items->readDuration(path), NxFileLength::None);
}

void tst_NxFileLength::projectsWithoutWorkersAnswerNone()
{
    MovedProject f(MovedProject::Worker::Scripted);
    f.write(QStringLiteral("a.mp4"), "x");
    const NxEngineProject project;
    QCOMPARE(itemsOf(project)->readDuration(f.path(QStringLiteral("a.mp4"))), NxFileLength::None);
}

void tst_NxFileLength::theProjectMayCloseMeanwhile()
{
    MovedProject f(MovedProject::Worker::Scripted);
    f.write(QStringLiteral("gated.mp4"), "x");
    constexpr int rounds = 10;
    for (int round = 0; round < rounds; ++round) {
        auto project = std::make_unique<NxEngineProject>(f.settings);
        const INxMediaItemManager *items = itemsOf(*project);
        const int before = f.footage.names().size();
        QTimer ending;
        connect(&ending, &QTimer::timeout, this, [&] {
            // At once, or when the worker is at it.
            if (round % 2 == 0 || f.footage.names().size() > before)
                project.reset();
        });
        ending.start(1);
        QCOMPARE(items->readDuration(f.path(QStringLiteral("gated.mp4"))), NxFileLength::None);
        QVERIFY(!project);
    }
    for (const QString &id : f.footage.starts())
        QTRY_VERIFY(isProcessGone(id.toLongLong()));
}

NX_TEST_MAIN(tst_NxFileLength)
#include "tst_NxFileLength.moc"
