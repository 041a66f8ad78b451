// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PictureRun.h"

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace NxPictureFile;

namespace {

constexpr int NotReadable = -1;
/// A pass forward leaves out pictures that no other needs: at most two stand between others.
constexpr int LeftOut = 2;

/// The shape in which a film is shown.
QSize shapeOf(const NxFootageTruth &truth)
{
    const double wide = double(truth.pixelAspect.num) / double(truth.pixelAspect.den);
    return {int(std::lround(truth.size.width() * wide)), truth.size.height()};
}

int numberIn(const QImage &picture, const NxFootageTruth &truth)
{
    return NxNumberedFrames::readFitted(picture, shapeOf(truth), truth.rotation, truth.mirrored)
        .value_or(NotReadable);
}

/// Containers whose header or end lists the key frames.
bool listsKeyFrames(const QString &name)
{
    for (const char *suffix : {".mp4", ".mov", ".mkv", ".webm", ".avi"})
        if (name.endsWith(QLatin1String(suffix)))
            return true;
    return false;
}

/// Enough key frames, none of them further than a tenth of the film from its moment.
bool showsKeyFrames(const NxFootageRecipe &recipe)
{
    const NxFootageTruth &truth = recipe.truth;
    const qint64 keys = (truth.frames + truth.keyFrameDistance - 1) / truth.keyFrameDistance;
    return truth.isExact()
           || (listsKeyFrames(recipe.name) && keys >= Moments && !truth.variableRate);
}

void addRows(bool (*isWanted)(const NxFootageTruth &truth))
{
    QTest::addColumn<QString>("name");
    for (const NxFootageRecipe &recipe : NxFootageRecipes::all())
        if (isWanted(recipe.truth))
            QTest::newRow(qUtf8Printable(recipe.name)) << recipe.name;
}

/// Square pixels, upright, never enlarged.
QSize sizeOfCover(const NxFootageTruth &truth)
{
    const QSizeF shown(truth.size.width(),
                       double(truth.size.height()) * truth.pixelAspect.den / truth.pixelAspect.num);
    const double scale = std::min({CoverWidth / shown.width(), CoverHeight / shown.height(), 1.0});
    return {int(std::lround(shown.width() * scale)), int(std::lround(shown.height() * scale))};
}

} // namespace

/// What is made of footage of every kind.
class tst_PicturesOfRecipes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { m_guard = std::make_unique<NxFootageGuard>(NxFootageSet::folder()); }
    void cleanupTestCase() { QCOMPARE(m_guard->changes(), QString()); }

    void coverShowsTheKeyFrameAtOrBeforeItsMoment_data();
    void coverShowsTheKeyFrameAtOrBeforeItsMoment();
    void stripShowsTenMomentsForSixRowsEach_data();
    void stripShowsTenMomentsForSixRowsEach();
    void stillIsItsOwnCoverUpright_data();
    void stillIsItsOwnCoverUpright();
    void soundHasACoverAndNoStrip_data();
    void soundHasACoverAndNoStrip();
    void gifOfOnePictureHasNoStrip();
    void coverOfAGifIsItsFirstPicture();

private:
    std::unique_ptr<NxFootageGuard> m_guard;
};

void tst_PicturesOfRecipes::coverShowsTheKeyFrameAtOrBeforeItsMoment_data()
{
    addRows([](const NxFootageTruth &truth) { return truth.isFilm(); });
}

void tst_PicturesOfRecipes::coverShowsTheKeyFrameAtOrBeforeItsMoment()
{
    QFETCH(QString, name);
    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    const NxFootageTruth &truth = recipe.truth;
    PictureRun run(NxFootageSet::path(recipe));
    run.makeOfStream(truth.durationUs, rwCover);
    QCOMPARE(run.answer().cover.reason, QString());
    QCOMPARE(run.answer().cover.outcome, NxPictureOutcome::Made);
    QCOMPARE(run.answer().strip.outcome, NxPictureOutcome::NotAsked);
    QCOMPARE(numberIn(run.cover(), truth), truth.keyNumberAt(coverMomentUs(truth.durationUs)));
    QCOMPARE(run.cover().size(), sizeOfCover(truth));
    if (!truth.pixelFormat.isEmpty()) {
        QCOMPARE(run.answer().pixelFormat, truth.pixelFormat);
        QCOMPARE(run.answer().bitDepth, truth.bitDepth);
    }
}

void tst_PicturesOfRecipes::stripShowsTenMomentsForSixRowsEach_data()
{
    addRows([](const NxFootageTruth &truth) { return truth.isFilm(); });
}

void tst_PicturesOfRecipes::stripShowsTenMomentsForSixRowsEach()
{
    QFETCH(QString, name);
    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    const NxFootageTruth &truth = recipe.truth;
    PictureRun run(NxFootageSet::path(recipe));
    run.makeOfStream(truth.durationUs);
    QCOMPARE(run.answer().strip.reason, QString());
    QCOMPARE(run.answer().strip.outcome, NxPictureOutcome::Made);
    const QImage strip = run.strip();
    QCOMPARE(strip.size(), QSize(FrameWidth, StripHeight));
    for (int row = 0; row < Moments * RowsPerMoment; ++row) {
        const qint64 moment = momentUs(row / RowsPerMoment, truth.durationUs);
        const int number = numberIn(PictureRun::row(strip, row), truth);
        const int earliest =
            showsKeyFrames(recipe) ? truth.keyNumberAt(moment) : truth.numberAt(moment);
        const int latest = showsKeyFrames(recipe) ? earliest : earliest + 1 + LeftOut;
        QVERIFY2(number >= earliest && number <= latest,
                 qPrintable(QStringLiteral("row %1 shows %2, not %3 to %4")
                                .arg(row)
                                .arg(number)
                                .arg(earliest)
                                .arg(latest)));
    }
}

void tst_PicturesOfRecipes::stillIsItsOwnCoverUpright_data()
{
    addRows([](const NxFootageTruth &truth) { return truth.kind == NxFootageKind::Image; });
}

void tst_PicturesOfRecipes::stillIsItsOwnCoverUpright()
{
    QFETCH(QString, name);
    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    PictureRun run(NxFootageSet::path(recipe));
    run.makeOfStill();
    QCOMPARE(run.answer().cover.reason, QString());
    QCOMPARE(run.answer().cover.outcome, NxPictureOutcome::Made);
    QCOMPARE(run.answer().strip.outcome, NxPictureOutcome::NoneThere);
    const QImage cover = run.cover();
    QCOMPARE(cover.size(), sizeOfCover(recipe.truth));
    QCOMPARE(numberIn(cover, recipe.truth), 0);
    QVERIFY(!run.answer().pixelFormat.isEmpty());
    QCOMPARE(run.answer().bitDepth, name.contains(QLatin1String("16 bits")) ? 16 : 8);
}

void tst_PicturesOfRecipes::soundHasACoverAndNoStrip_data()
{
    addRows([](const NxFootageTruth &truth) { return truth.kind == NxFootageKind::Audio; });
}

void tst_PicturesOfRecipes::soundHasACoverAndNoStrip()
{
    QFETCH(QString, name);
    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    PictureRun run(NxFootageSet::path(recipe));
    run.makeOfStream(recipe.truth.durationUs);
    QCOMPARE(run.answer().cover.reason, QString());
    QCOMPARE(run.answer().cover.outcome, NxPictureOutcome::Made);
    QCOMPARE(run.answer().strip.outcome, NxPictureOutcome::NoneThere);
    const bool isWave = run.cover().size() == QSize(CoverWidth, CoverHeight);
    QCOMPARE(isWave, !recipe.truth.hasCoverArt);
}

void tst_PicturesOfRecipes::gifOfOnePictureHasNoStrip()
{
    PictureRun run(NxFootageSet::path(NxFootageRecipes::named(QStringLiteral("one.gif"))));
    run.makeOfStream(0);
    QCOMPARE(run.answer().cover.outcome, NxPictureOutcome::Made);
    QCOMPARE(run.answer().strip.outcome, NxPictureOutcome::NoneThere);
}

void tst_PicturesOfRecipes::coverOfAGifIsItsFirstPicture()
{
    const NxFootageRecipe &recipe = NxFootageRecipes::named(QStringLiteral("many.gif"));
    PictureRun run(NxFootageSet::path(recipe));
    run.makeOfStream(recipe.truth.durationUs);
    QCOMPARE(numberIn(run.cover(), recipe.truth), 0);
}

NX_TEST_MAIN(tst_PicturesOfRecipes)
#include "tst_PicturesOfRecipes.moc"
